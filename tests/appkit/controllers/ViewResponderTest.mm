// Responders that follow a view, and the view classes that are patched for them.

#import <objc/runtime.h>

#include <atomic>

#import "ResponderTest.h"

using namespace ov::test;

// Writes down its own moves, and the window that its responder had at that time.
@interface MovingView : NSView {
 @public
  NSMutableArray *log;
  HXViewDynamicResponder *watched;
}
- (std::string)said;
@end

@implementation MovingView
- (id)initWithFrame:(NSRect)frame {
  self = [super initWithFrame:frame];
  log = [[NSMutableArray alloc] init];
  return self;
}
- (void)dealloc {
  [log release];
  [super dealloc];
}
- (std::string)said {
  return [[log componentsJoinedByString:@" "] UTF8String];
}
- (void)viewWillMoveToWindow:(NSWindow *)newWindow {
  [log addObject:newWindow ? @"will" : @"will-nil"];
  if (watched) [log addObject:[watched window] ? @"in" : @"out"];
  [super viewWillMoveToWindow:newWindow];
}
- (void)viewDidMoveToWindow {
  [log addObject:[self window] ? @"did" : @"did-nil"];
  if (watched) [log addObject:[watched window] ? @"in" : @"out"];
  [super viewDidMoveToWindow];
}
@end

// A line of classes that all do something of their own, except PlainMiddle.
@interface LineBase : NSView {
 @public
  NSMutableString *line;
}
@end
@implementation LineBase
- (id)initWithFrame:(NSRect)frame {
  self = [super initWithFrame:frame];
  line = [[NSMutableString alloc] init];
  return self;
}
- (void)dealloc {
  [line release];
  [super dealloc];
}
- (void)viewWillMoveToWindow:(NSWindow *)newWindow {
  [line appendString:@"base-will "];
  [super viewWillMoveToWindow:newWindow];
}
- (void)viewDidMoveToWindow {
  [line appendString:@"base-did "];
  [super viewDidMoveToWindow];
}
@end
@interface LinePlain : LineBase
@end
@implementation LinePlain
@end
@interface LineTop : LinePlain
@end
@implementation LineTop
- (void)viewWillMoveToWindow:(NSWindow *)newWindow {
  [line appendString:@"top-will "];
  [super viewWillMoveToWindow:newWindow];
}
- (void)viewDidMoveToWindow {
  [line appendString:@"top-did "];
  [super viewDidMoveToWindow];
}
@end

// Classes for tests that look at the patching itself: used once each.
@interface PatchedOnceView : NSView
@end
@implementation PatchedOnceView
@end
@interface NeighbourView : NSView
@end
@implementation NeighbourView
@end
@interface PatchedParentView : NSView
@end
@implementation PatchedParentView
@end
@interface ChildOfPatchedView : PatchedParentView {
 @public
  int moves;
}
@end
@implementation ChildOfPatchedView
- (void)viewDidMoveToWindow {
  moves++;
  [super viewDidMoveToWindow];
}
@end
@interface ObservedView : NSView {
  int _number;
}
@end
@implementation ObservedView
- (int)number {
  return _number;
}
- (void)setNumber:(int)number {
  _number = number;
}
@end

@interface NumberObserver : NSObject {
 @public
  int changes;
}
@end
@implementation NumberObserver
- (void)observeValueForKeyPath:(NSString *)path
                      ofObject:(id)object
                        change:(NSDictionary *)change
                       context:(void *)context {
  (void)path, (void)object, (void)change, (void)context;
  changes++;
}
@end

// Asks for the table and a view's responders from a thread.
@interface TableAsker : NSObject {
 @public
  NSView *view;
  NSHashTable *table;
  NSUInteger found;
  std::atomic<bool> done;
}
- (void)ask;
@end
@implementation TableAsker
- (void)ask {
  @autoreleasepool {
    for (int i = 0; i < 200; ++i) {
      table = [HXViewDynamicResponder _instanceTable];
      found = [[HXViewDynamicResponder _instancesForView:view] count];
    }
  }
  done = true;
}
@end

namespace {

IMP methodOf(Class cls, SEL selector) { return class_getMethodImplementation(cls, selector); }
const SEL kWill = @selector(viewWillMoveToWindow:), kDid = @selector(viewDidMoveToWindow);
SEL originalWill() { return NSSelectorFromString(@"__original_viewWillMoveToWindow:"); }
SEL originalDid() { return NSSelectorFromString(@"__original_viewDidMoveToWindow"); }

class ViewResponder : public ResponderTest {
 protected:
  void SetUp() override {
    ResponderTest::SetUp();
    first = makeWindow(NSMakeSize(200, 100));
    second = makeWindow(NSMakeSize(200, 100));
  }
  template <typename View = NSView>
  View *make(Class cls) {
    return static_cast<View *>([[[cls alloc] initWithFrame:NSMakeRect(0, 0, 20, 20)] autorelease]);
  }
  // A view of that class in a window, or in none.
  template <typename View = NSView>
  View *make(Class cls, NSWindow *window) {
    View *view = make<View>(cls);
    [[window contentView] addSubview:view];
    return view;
  }
  HXViewDynamicResponder *enabled(const std::string &name, NSView *view, NSInteger ordering) {
    HXViewDynamicResponder *result = viewResponder(name, view, ordering);
    [result setEnabled:YES];
    return result;
  }

  NSWindow *first = nil, *second = nil;
};

TEST_F(ViewResponder, StartsInTheViewsWindowDisabled) {
  MovingView *view = make<MovingView>([MovingView class], first);
  const NSUInteger count = [view retainCount];
  HXViewDynamicResponder *a = viewResponder("a", view, 3);
  EXPECT_EQ([a view], view);
  EXPECT_EQ([view retainCount], count) << "the view is not retained";
  EXPECT_EQ([a window], first);
  EXPECT_EQ([a ordering], 3);
  EXPECT_FALSE([a enabled]);
  EXPECT_EQ(chain(first), "app");
  EXPECT_EQ([viewResponder("b", make([MovingView class]), 1) window], nil);
}

TEST_F(ViewResponder, FollowsItsViewFromWindowToWindow) {
  NSView *view = make([MovingView class], first);
  enabled("3", view, 3);
  enabled("1", view, 1);
  HXViewDynamicResponder *off = viewResponder("off", view, 2);
  EXPECT_EQ(chain(first), "1 3 app");
  [[second contentView] addSubview:view];
  EXPECT_EQ(chain(first), "app");
  EXPECT_EQ(chain(second), "1 3 app");
  EXPECT_EQ([off window], second) << "a disabled one follows, too";
  [off setEnabled:YES];
  EXPECT_EQ(chain(second), "1 off 3 app");
}

TEST_F(ViewResponder, LeavesTheChainWithItsView) {
  NSView *view = [[make([MovingView class], first) retain] autorelease];
  HXViewDynamicResponder *on = enabled("on", view, 1), *off = viewResponder("off", view, 2);
  [view removeFromSuperview];
  EXPECT_EQ(chain(first), "app");
  EXPECT_EQ([on window], nil);
  EXPECT_TRUE([on enabled]);
  EXPECT_EQ([off window], first) << "only those in the chain are told of a view that leaves";
  [[second contentView] addSubview:view];
  EXPECT_EQ(chain(second), "on app");
  EXPECT_EQ([off window], second);
}

TEST_F(ViewResponder, StaysWhenItsViewMovesWithinTheWindow) {
  NSView *view = make([MovingView class], first);
  NSView *box = make([NSView class], first);
  enabled("a", view, 1);
  [box addSubview:view];
  EXPECT_EQ(chain(first), "a app");
}

TEST_F(ViewResponder, FollowsTheViewsAroundItsView) {
  NSView *outer = make([NSView class], first), *inner = make([NSView class]);
  NSView *view = make([MovingView class]);
  [outer addSubview:inner];
  [inner addSubview:view];
  enabled("a", view, 1);
  EXPECT_EQ(chain(first), "a app");
  [[second contentView] addSubview:outer];
  EXPECT_EQ(chain(first), "app");
  EXPECT_EQ(chain(second), "a app");
  [inner retain];
  [inner removeFromSuperview];
  EXPECT_EQ(chain(second), "app");
  [first setContentView:inner];
  [inner release];
  EXPECT_EQ(chain(first), "a app");
}

TEST_F(ViewResponder, LeavesTheRespondersOfOtherViewsAlone) {
  NSView *view = make([MovingView class], first), *other = make([MovingView class], first);
  enabled("view's", view, 1);
  enabled("other's", other, 2);
  HXDynamicResponder *plain = responder("window's", first, 3);
  [plain setEnabled:YES];
  [[second contentView] addSubview:view];
  EXPECT_EQ(chain(first), "other's window's app");
  EXPECT_EQ(chain(second), "view's app");
}

TEST_F(ViewResponder, TheViewsOwnMethodsRunAfterwards) {
  MovingView *view = make<MovingView>([MovingView class]);
  view->watched = enabled("a", view, 1);
  [[first contentView] addSubview:view];
  EXPECT_EQ([view said], "will out did in");
  [view->log removeAllObjects];
  [[view retain] autorelease];
  [view removeFromSuperview];
  EXPECT_EQ([view said], "will-nil out did-nil out");
  view->watched = nil;
}

TEST_F(ViewResponder, DiesInAChain) {
  NSView *view = make([MovingView class], first);
  HXViewDynamicResponder *a = enabled("a", view, 1);
  enabled("b", view, 2);
  kill(a);
  EXPECT_EQ(chain(first), "b app");
  [[second contentView] addSubview:view];
  EXPECT_EQ(chain(second), "b app");
}

TEST_F(ViewResponder, OutlivesTheWindowOfItsView) {
  NSWindow *dying = ownedWindow();
  NSView *view = make([MovingView class], dying);
  HXViewDynamicResponder *on = enabled("on", view, 1), *off = viewResponder("off", view, 2);
  [dying release];
  EXPECT_EQ([on window], nil);
  EXPECT_EQ([off window], nil);
  [off setEnabled:YES];
  NSView *survivor = [[MovingView alloc] initWithFrame:NSZeroRect];
  dying = ownedWindow();
  [[dying contentView] addSubview:survivor];
  HXViewDynamicResponder *its = enabled("its", survivor, 1);
  [dying release];
  EXPECT_EQ([its window], nil);
  [survivor removeFromSuperview];
  [[first contentView] addSubview:survivor];
  EXPECT_EQ([its window], first);
  EXPECT_EQ(chain(first), "its app");
  [survivor release];
}

TEST_F(ViewResponder, WithoutAViewFollowsNothing) {
  HXViewDynamicResponder *a = viewResponder("a", nil, 4);
  EXPECT_EQ([a view], nil);
  EXPECT_EQ([a window], nil);
  EXPECT_EQ([a ordering], 4);
  [a setEnabled:YES];
  [a setWindow:first];
  make([MovingView class], first);
  EXPECT_EQ(chain(first), "a app");
}

// --- The instance table

TEST_F(ViewResponder, TheTableHoldsTheLiveOnes) {
  NSHashTable *table = [HXViewDynamicResponder _instanceTable];
  EXPECT_EQ([HXViewDynamicResponder _instanceTable], table);
  const NSUInteger before = NSCountHashTable(table);
  NSView *view = make([MovingView class], first), *other = make([MovingView class], first);
  HXViewDynamicResponder *a = enabled("a", view, 1), *b = viewResponder("b", view, 2);
  HXViewDynamicResponder *c = viewResponder("c", other, 1);
  EXPECT_EQ(NSCountHashTable(table), before + 3);
  EXPECT_EQ([a retainCount], 1u) << "the table does not retain";

  drainPool();
  NSArray *found = [HXViewDynamicResponder _instancesForView:[a view]];
  EXPECT_EQ([found count], 2u);
  EXPECT_TRUE([found containsObject:a] && [found containsObject:b]);
  EXPECT_NE([HXViewDynamicResponder _instancesForView:[a view]], found);
  // In the order of the table.
  NSMutableArray *inTable = [NSMutableArray array];
  for (HXViewDynamicResponder *responder in NSAllHashTableObjects(table)) {
    if ([responder view] == [a view]) [inTable addObject:responder];
  }
  EXPECT_TRUE([found isEqual:inTable]);
  drainPool();

  kill(a);
  kill(c);
  EXPECT_EQ(NSCountHashTable(table), before + 1);
  EXPECT_EQ([[HXViewDynamicResponder _instancesForView:[b view]] count], 1u);
  EXPECT_EQ([[HXViewDynamicResponder _instancesForView:other] count], 0u);
}

TEST_F(ViewResponder, CanBeTakenOutOfTheTableTwice) {
  NSView *view = make([MovingView class]);
  HXViewDynamicResponder *a = viewResponder("a", view, 1);
  [a _willDeallocate];
  EXPECT_EQ([[HXViewDynamicResponder _instancesForView:view] count], 0u);
  [[first contentView] addSubview:view];
  EXPECT_EQ([a window], nil);
  [a _didInitialized];
  [a _didInitialized];
  EXPECT_EQ([[HXViewDynamicResponder _instancesForView:view] count], 1u);
}

TEST_F(ViewResponder, ThreadsMayAskForTheTable) {
  NSView *view = make([MovingView class], first);
  viewResponder("a", view, 1);
  std::vector<TableAsker *> askers;
  for (int i = 0; i < 4; ++i) {
    TableAsker *asker = [[[TableAsker alloc] init] autorelease];
    asker->view = view;
    askers.push_back(asker);
    [NSThread detachNewThreadSelector:@selector(ask) toTarget:asker withObject:nil];
  }
  for (TableAsker *asker : askers) {
    ASSERT_TRUE(pumpUntil([&] { return asker->done.load(); }));
    EXPECT_EQ(asker->table, [HXViewDynamicResponder _instanceTable]);
    EXPECT_EQ(asker->found, 1u);
  }
}

// --- Patching

TEST_F(ViewResponder, PatchesAClassOnce) {
  Class cls = [PatchedOnceView class];
  const IMP will = methodOf(cls, kWill), did = methodOf(cls, kDid);
  const IMP neighbour = methodOf([NeighbourView class], kWill);
  viewResponder("a", make(cls, first), 1);
  const IMP patchedWill = methodOf(cls, kWill), patchedDid = methodOf(cls, kDid);
  EXPECT_EQ(patchedWill, methodOf([HXViewDynamicResponder_NSViewReplacer class], kWill));
  EXPECT_EQ(patchedDid, methodOf([HXViewDynamicResponder_NSViewReplacer class], kDid));
  EXPECT_EQ(methodOf(cls, originalWill()), will);
  EXPECT_EQ(methodOf(cls, originalDid()), did);

  viewResponder("b", make(cls, first), 1);
  EXPECT_EQ(methodOf(cls, kWill), patchedWill);
  EXPECT_EQ(methodOf(cls, originalWill()), will) << "patched again, it would call itself";
  EXPECT_EQ(methodOf(cls, originalDid()), did);
  EXPECT_EQ(methodOf([NeighbourView class], kWill), neighbour);
  EXPECT_FALSE([NeighbourView instancesRespondToSelector:originalWill()]);
  EXPECT_FALSE([NSView instancesRespondToSelector:originalWill()]);
}

TEST_F(ViewResponder, ASubclassOfAPatchedClassIsNotPatched) {
  viewResponder("a", make([PatchedParentView class], first), 1);
  const IMP own = methodOf([ChildOfPatchedView class], kDid);
  ChildOfPatchedView *child = make<ChildOfPatchedView>([ChildOfPatchedView class]);
  HXViewDynamicResponder *b = enabled("b", child, 1);
  EXPECT_EQ(methodOf([ChildOfPatchedView class], kDid), own);
  [[second contentView] addSubview:child];
  EXPECT_EQ([b window], second) << "by way of super";
  EXPECT_EQ(chain(second), "b app");
  EXPECT_EQ(child->moves, 1);
}

TEST_F(ViewResponder, AncestorsThatArePatchedLaterRunTheirOwnMethodsOnce) {
  LineTop *top = make<LineTop>([LineTop class]);
  LinePlain *plain = make<LinePlain>([LinePlain class]);
  LineBase *base = make<LineBase>([LineBase class]);
  // From below upwards; LinePlain has no methods of its own.
  enabled("top", top, 1);
  enabled("plain", plain, 2);
  enabled("base", base, 3);
  for (NSWindow *window : {first, second}) {
    for (LineBase *view : {static_cast<LineBase *>(top), static_cast<LineBase *>(plain), base}) {
      [[view retain] autorelease];
      [view removeFromSuperview];
      [view->line setString:@""];
      [[window contentView] addSubview:view];
    }
    EXPECT_STREQ([top->line UTF8String], "top-will base-will top-did base-did ");
    EXPECT_STREQ([plain->line UTF8String], "base-will base-did ");
    EXPECT_STREQ([base->line UTF8String], "base-will base-did ");
    EXPECT_EQ(chain(window), "top plain base app");
  }
  EXPECT_EQ(chain(first), "app");
}

TEST_F(ViewResponder, FollowsAnObservedView) {
  ObservedView *view = make<ObservedView>([ObservedView class], first);
  NumberObserver *observer = [[[NumberObserver alloc] init] autorelease];
  [view addObserver:observer forKeyPath:@"number" options:0 context:NULL];
  ASSERT_NE(object_getClass(view), [ObservedView class]);
  enabled("a", view, 1);
  [[second contentView] addSubview:view];
  EXPECT_EQ(chain(first), "app");
  EXPECT_EQ(chain(second), "a app");
  [view setNumber:3];
  EXPECT_EQ(observer->changes, 1);
  [view removeObserver:observer forKeyPath:@"number"];
  // The class itself was patched, not the observer's.
  ObservedView *another = make<ObservedView>([ObservedView class], second);
  enabled("b", another, 2);
  [[first contentView] addSubview:another];
  [[first contentView] addSubview:view];
  EXPECT_EQ(chain(first), "a b app");
}

TEST_F(ViewResponder, FollowsAViewThatIsObservedLater) {
  ObservedView *view = make<ObservedView>([ObservedView class], first);
  NumberObserver *observer = [[[NumberObserver alloc] init] autorelease];
  enabled("a", view, 1);
  [view addObserver:observer forKeyPath:@"number" options:0 context:NULL];
  [[second contentView] addSubview:view];
  EXPECT_EQ(chain(second), "a app");
  [view removeObserver:observer forKeyPath:@"number"];
}

TEST_F(ViewResponder, OnlyViewClassesArePatched) {
  [HXViewDynamicResponder_NSViewReplacer replaceMethodImplementationOnClass:Nil];
  [HXViewDynamicResponder_NSViewReplacer replaceMethodImplementationOnClass:[NSString class]];
  EXPECT_FALSE([NSString instancesRespondToSelector:kWill]);
  EXPECT_FALSE([NSString instancesRespondToSelector:originalWill()]);
}

// The last one: from here on every view of the process is patched. GoogleTest keeps the
// order of a file.
TEST_F(ViewResponder, PatchesThePlatformsViewUnderPatchedClasses) {
  MovingView *moving = make<MovingView>([MovingView class]);
  LineTop *top = make<LineTop>([LineTop class]);
  enabled("moving", moving, 1);
  enabled("top", top, 2);
  NSView *plain = make([NSView class]);
  enabled("plain", plain, 3);
  NSButton *button = [[[NSButton alloc] initWithFrame:NSZeroRect] autorelease];
  enabled("button", button, 4);
  for (NSView *view : {static_cast<NSView *>(moving), static_cast<NSView *>(top), plain,
                       static_cast<NSView *>(button)}) {
    [[first contentView] addSubview:view];
  }
  EXPECT_EQ(chain(first), "moving top plain button app");
  EXPECT_STREQ([top->line UTF8String], "top-will base-will top-did base-did ");
  EXPECT_EQ([moving said], "will did");
}

}  // namespace
