// The view that folds to its header.

#import <OvAppKit/OvCollapsingView.h>
#import <OvAppKit/OvFlippedView.h>
#import <OvAppKit/OvSimpleView.h>
#import <OvAppKit/OvTextField.h>

#import "Coding.h"
#import "InterfaceFiles.h"
#import "LiveTest.h"

using namespace ov::test;
using testing::ElementsAre;
using testing::IsEmpty;

using Lines = std::vector<std::string>;

// Notes what it hears, with the state and the height at that moment.
@interface OvTestFoldingDelegate : NSObject <NSCoding> {
 @public
  Lines lines;
}
@end

@implementation OvTestFoldingDelegate
- (void)note:(const char *)what of:(NSNotification *)notification {
  OvCollapsingView *view = [notification object];
  lines.push_back(std::string(what) + ([view isCollapsed] ? " folded " : " unfolded ") +
                  std::to_string(static_cast<int>(NSHeight([view frame]))) +
                  ([notification userInfo] ? " with info" : ""));
}
- (void)collapsingViewWillCollapse:(NSNotification *)notification {
  [self note:"willCollapse" of:notification];
}
- (void)collapsingViewDidCollapse:(NSNotification *)notification {
  [self note:"didCollapse" of:notification];
}
- (void)collapsingViewWillExpand:(NSNotification *)notification {
  [self note:"willExpand" of:notification];
}
- (void)collapsingViewDidExpand:(NSNotification *)notification {
  [self note:"didExpand" of:notification];
}
- (void)encodeWithCoder:(NSCoder *)coder {
  (void)coder;
}
- (id)initWithCoder:(NSCoder *)coder {
  (void)coder;
  return [self init];
}
@end

@interface OvTestHalfDelegate : NSObject {
 @public
  int heard;
}
@end

@implementation OvTestHalfDelegate
- (void)collapsingViewDidCollapse:(NSNotification *)notification {
  (void)notification;
  ++heard;
}
@end

@interface OvTestCollapsingView : OvCollapsingView {
 @public
  int refreshed;
}
@end

@implementation OvTestCollapsingView
- (void)refresh {
  ++refreshed;
  [super refresh];
}
- (NSView *)defaultContentView {
  return [[[OvFlippedView alloc] initWithFrame:NSMakeRect(9, 9, 9, 9)] autorelease];
}
@end

namespace {

class CollapsingView : public LiveTest {
 protected:
  void SetUp() override {
    LiveTest::SetUp();
    window = makeWindow(NSMakeSize(320, 320));
    view = add([[[OvCollapsingView alloc] initWithFrame:NSMakeRect(10, 20, 300, 200)] autorelease]);
    delegate = [[[OvTestFoldingDelegate alloc] init] autorelease];
  }

  void TearDown() override {
    [view setDelegate:nil];
    LiveTest::TearDown();
  }

  template <class T>
  T *add(T *made) {
    [[window contentView] addSubview:made];
    return made;
  }

  NSString *shown() { return [[view header] stringValue]; }

  NSWindow *window;
  OvCollapsingView *view;
  OvTestFoldingDelegate *delegate;
};

struct Size {
  int boxSize;
  CGFloat header, font, top;
};

class CollapsingViewSizes : public CollapsingView, public testing::WithParamInterface<Size> {};

INSTANTIATE_TEST_SUITE_P(Sizes, CollapsingViewSizes,
                         testing::Values(Size{0, 23, 13, 4}, Size{1, 17, 11, 2}, Size{2, 14, 9, 2},
                                         Size{3, 23, 13, 2}, Size{-1, 23, 13, 2}),
                         [](const auto &info) {
                           return info.param.boxSize < 0 ? std::string("negative")
                                                         : std::to_string(info.param.boxSize);
                         });

TEST_P(CollapsingViewSizes, PlaceHeaderAndContent) {
  const Size size = GetParam();
  OvCollapsingView *box =
      add([[[OvTestCollapsingView alloc] initWithFrame:NSMakeRect(0, 0, 300, 200)
                                                  size:size.boxSize] autorelease]);
  EXPECT_EQ([box boxSize], size.boxSize);
  EXPECT_EQ([box headerHeight], size.header);
  EXPECT_EQ([box fontSize], size.font);
  EXPECT_EQ([[box discrosure] frame], NSMakeRect(12, size.top, 11, 11));
  EXPECT_EQ([[box header] frame], NSMakeRect(35, 0, 253, size.header));
  EXPECT_EQ([[[box header] font] pointSize], size.font);
  EXPECT_EQ([box visibleContentViewSize], NSMakeSize(300, 200 - size.header));
  EXPECT_EQ([[box contentView] frame], NSMakeRect(0, size.header, 300, 200 - size.header));
  EXPECT_EQ([box reversedFrameSize], NSMakeSize(300, size.header));
  [box setCollapsed:YES];
  EXPECT_EQ([box frame], NSMakeRect(0, 0, 300, size.header));
  [box setCollapsed:NO];
  EXPECT_EQ([box frame], NSMakeRect(0, 0, 300, 200));
  EXPECT_EQ([[box contentView] frame], NSMakeRect(0, size.header, 300, 200 - size.header));
}

TEST_F(CollapsingView, StartsUnfolded) {
  EXPECT_TRUE([view isFlipped]);
  EXPECT_FALSE([view isCollapsed]);
  EXPECT_FALSE([view isLocked]);
  EXPECT_EQ([view boxSize], 0);
  EXPECT_EQ([view title], nil);
  EXPECT_EQ([view headline], nil);
  EXPECT_EQ([view delegate], nil);
  EXPECT_EQ([view contentView], nil);
  EXPECT_EQ([view defaultContentView], nil);
  EXPECT_TRUE([shown() isEqualToString:@""]);
}

TEST_F(CollapsingView, MakesATriangleThatToggles) {
  NSButton *button = [view discrosure];
  EXPECT_TRUE([[button title] isEqualToString:@""]);
  EXPECT_EQ([[button cell] bezelStyle], 6u);
  EXPECT_EQ([button imagePosition], NSImageOnly);
  EXPECT_FALSE([button isBordered]);
  EXPECT_EQ([button state], NSOnState);
  EXPECT_EQ([button target], view);
  EXPECT_EQ([button superview], view);
  EXPECT_EQ([[button image] size], NSMakeSize(11, 11));
  EXPECT_EQ([[button alternateImage] size], NSMakeSize(11, 11));
  EXPECT_NE([button image], [button alternateImage]);
  // Another twice as fine.
  EXPECT_EQ([[[button image] representations] count], 2u);
  EXPECT_EQ([[[[button image] representations] lastObject] pixelsWide], 22);
  EXPECT_EQ([[[[button image] representations] lastObject] size], NSMakeSize(11, 11));
}

TEST_F(CollapsingView, MakesAPlainTitle) {
  OvTextField *header = [view header];
  EXPECT_TRUE([header isKindOfClass:[OvTextField class]]);
  EXPECT_FALSE([header isBordered]);
  EXPECT_FALSE([header isEditable]);
  EXPECT_FALSE([header drawsBackground]);
  EXPECT_FALSE([[header cell] wraps]);
  EXPECT_EQ([header autoresizingMask], (NSUInteger)NSViewWidthSizable);
  EXPECT_EQ([header superview], view);
}

TEST_F(CollapsingView, HeaderAndContentGrowWithTheView) {
  NSView *content = [[[NSView alloc] initWithFrame:NSMakeRect(5, 5, 5, 5)] autorelease];
  [view setContentView:content];
  EXPECT_EQ([content autoresizingMask], 18u);
  [view setFrameSize:NSMakeSize(400, 300)];
  EXPECT_EQ([[view header] frame], NSMakeRect(35, 0, 353, 23));
  EXPECT_EQ([content frame], NSMakeRect(0, 23, 400, 277));
  // A view that was too small for a while makes no lasting error, and no noise.
  LogCapture log;
  [view setFrameSize:NSMakeSize(10, 5)];
  EXPECT_EQ([view visibleContentViewSize], NSMakeSize(10, 0));
  EXPECT_THAT(log.lines(), IsEmpty());
  [view setFrame:NSMakeRect(0, 0, 300, 200)];
  EXPECT_EQ([[view header] frame], NSMakeRect(35, 0, 253, 23));
  EXPECT_EQ([content frame], NSMakeRect(0, 23, 300, 177));
}

TEST_F(CollapsingView, ShowsTheSummaryWhileFolded) {
  [view setTitle:@"Filter"];
  [view setHeadline:@"3 items"];
  EXPECT_TRUE([shown() isEqualToString:@"Filter"]);
  [view setCollapsed:YES];
  EXPECT_TRUE([shown() isEqualToString:@"Filter:3 items"]);
  [view setHeadline:@""];
  EXPECT_TRUE([shown() isEqualToString:@"Filter"]);
  [view setHeadline:@"none"];
  EXPECT_TRUE([shown() isEqualToString:@"Filter:none"]);
  [view setHeadline:nil];
  EXPECT_TRUE([shown() isEqualToString:@"Filter"]);
  [view setHeadline:@"2"];
  [view setTitle:nil];
  EXPECT_TRUE([shown() isEqualToString:@":2"]);
  [view setTitle:@"Sort"];
  [view setCollapsed:NO];
  EXPECT_TRUE([shown() isEqualToString:@"Sort"]);
}

TEST_F(CollapsingView, RefreshesForNewObjectsOnly) {
  OvTestCollapsingView *counting =
      add([[[OvTestCollapsingView alloc] initWithFrame:NSMakeRect(0, 0, 300, 200)] autorelease]);
  NSMutableString *title = [NSMutableString stringWithString:@"One"];
  [counting setTitle:title];
  EXPECT_EQ(counting->refreshed, 1);
  EXPECT_EQ([counting title], title) << "retained, not copied";
  [title setString:@"Two"];
  [counting setTitle:title];
  EXPECT_EQ(counting->refreshed, 1);
  EXPECT_TRUE([[[counting header] stringValue] isEqualToString:@"One"]);
  [counting refresh];
  EXPECT_TRUE([[[counting header] stringValue] isEqualToString:@"Two"]);
  [counting setHeadline:title];
  EXPECT_EQ(counting->refreshed, 3);
  [counting setHeadline:title];
  EXPECT_EQ(counting->refreshed, 3);
}

TEST_F(CollapsingView, ExchangesHeightsOnly) {
  [view setFrameSize:NSMakeSize(300, 300)];
  [view setCollapsed:YES];
  EXPECT_EQ([view frame], NSMakeRect(10, 20, 300, 23));
  EXPECT_EQ([view reversedFrameSize], NSMakeSize(300, 300));
  [view setFrameSize:NSMakeSize(250, 23)];
  [view setCollapsed:NO];
  EXPECT_EQ([view frame], NSMakeRect(10, 20, 250, 300)) << "the width is today's";
  EXPECT_EQ([view reversedFrameSize], NSMakeSize(250, 23));
  [view setReversedFrameSize:NSMakeSize(1, 50)];
  EXPECT_EQ([view frame], NSMakeRect(10, 20, 250, 300)) << "a plain number";
  [view setCollapsed:YES];
  EXPECT_EQ([view frame].size, NSMakeSize(250, 50));
}

TEST_F(CollapsingView, TellsBeforeAndAfter) {
  [view setDelegate:delegate];
  EXPECT_EQ([view delegate], delegate);
  [view setCollapsed:YES];
  [view setCollapsed:YES];
  EXPECT_THAT(delegate->lines, ElementsAre("willCollapse folded 200", "didCollapse folded 23"));
  EXPECT_EQ([[view discrosure] state], NSOffState);
  delegate->lines.clear();
  [view setCollapsed:NO];
  [view setCollapsed:NO];
  EXPECT_THAT(delegate->lines, ElementsAre("willExpand unfolded 23", "didExpand unfolded 200"));
  EXPECT_EQ([[view discrosure] state], NSOnState);
}

TEST_F(CollapsingView, NamesOfItsNotificationsAreTheirValues) {
  EXPECT_TRUE([OvCollapsingViewWillCollapseNotification
      isEqualToString:@"OvCollapsingViewWillCollapseNotification"]);
  EXPECT_TRUE([OvCollapsingViewDidCollapseNotification
      isEqualToString:@"OvCollapsingViewDidCollapseNotification"]);
  EXPECT_TRUE([OvCollapsingViewWillExpandNotification
      isEqualToString:@"OvCollapsingViewWillExpandNotification"]);
  EXPECT_TRUE([OvCollapsingViewDidExpandNotification
      isEqualToString:@"OvCollapsingViewDidExpandNotification"]);
}

TEST_F(CollapsingView, OneDelegateAtATime) {
  OvTestHalfDelegate *half = [[[OvTestHalfDelegate alloc] init] autorelease];
  [view setDelegate:delegate];
  [view setDelegate:half];
  [view setDelegate:half];
  [view setCollapsed:YES];
  EXPECT_THAT(delegate->lines, IsEmpty());
  EXPECT_EQ(half->heard, 1) << "set twice, subscribed once";
  [view setDelegate:nil];
  [view setCollapsed:NO];
  [view setCollapsed:YES];
  EXPECT_EQ(half->heard, 1);
  // Another view's news are none of its business.
  OvCollapsingView *other =
      add([[[OvCollapsingView alloc] initWithFrame:NSMakeRect(0, 0, 300, 100)] autorelease]);
  [view setDelegate:half];
  [other setCollapsed:YES];
  EXPECT_EQ(half->heard, 1);
}

TEST_F(CollapsingView, AClickOnTheHeaderToggles) {
  show(window);
  [view setTitle:@"Filter"];
  [view setHeadline:@"all"];
  click(view, NSMakePoint(250, 12));
  EXPECT_TRUE([view isCollapsed]);
  EXPECT_TRUE([shown() isEqualToString:@"Filter:all"]);
  click([view header], NSMakePoint(5, 5));
  EXPECT_FALSE([view isCollapsed]) << "the title is part of the header";
  click(view, NSMakePoint(3, 3));
  EXPECT_TRUE([view isCollapsed]);
  click(view, NSMakePoint(3, 3));
  click(view, NSMakePoint(100, 60));
  EXPECT_FALSE([view isCollapsed]) << "below the header";
}

TEST_F(CollapsingView, AClickOnTheTriangleToggles) {
  show(window);
  [[view discrosure] performClick:nil];
  EXPECT_TRUE([view isCollapsed]);
  EXPECT_EQ([[view discrosure] state], NSOffState);
  [[view discrosure] performClick:nil];
  EXPECT_FALSE([view isCollapsed]);
  EXPECT_EQ([[view discrosure] state], NSOnState);
  // With the mouse, as the application delivers it.
  NSButton *button = [view discrosure];
  post(mouseEvent(NSLeftMouseDown, button, NSMakePoint(5, 5)));
  post(mouseEvent(NSLeftMouseUp, button, NSMakePoint(5, 5)));
  EXPECT_TRUE(pumpUntil([&] { return [view isCollapsed]; }));
  EXPECT_EQ([button state], NSOffState);
}

TEST_F(CollapsingView, TheKeyboardWorksTheTriangle) {
  show(window);
  ASSERT_TRUE([window makeFirstResponder:[view discrosure]]);
  bool folded = false;
  for (NSString *key in @[ @" ", @"\r", @"\003" ]) {
    type(window, key);
    folded = !folded;
    EXPECT_TRUE(pumpUntil([&] { return [view isCollapsed] == folded; })) << [key UTF8String];
  }
}

TEST_F(CollapsingView, TheLockKeepsTheUserOut) {
  show(window);
  [view setLocked:YES];
  EXPECT_TRUE([view isLocked]);
  EXPECT_FALSE([[view discrosure] isEnabled]);
  click(view, NSMakePoint(250, 12));
  [[view discrosure] performClick:nil];
  EXPECT_FALSE([view isCollapsed]);
  [view setCollapsed:YES];
  EXPECT_TRUE([view isCollapsed]) << "the program is not the user";
  [view setLocked:NO];
  EXPECT_TRUE([[view discrosure] isEnabled]);
  click(view, NSMakePoint(250, 12));
  EXPECT_FALSE([view isCollapsed]);
}

TEST_F(CollapsingView, ContentTakesItsPlace) {
  OvFlippedView *first = [[[OvFlippedView alloc] initWithFrame:NSMakeRect(3, 3, 3, 3)] autorelease];
  OvFlippedView *second = [[[OvFlippedView alloc] initWithFrame:NSZeroRect] autorelease];
  [view setContentView:first];
  EXPECT_EQ([view contentView], first);
  EXPECT_EQ([first superview], view);
  EXPECT_EQ([first frame], NSMakeRect(0, 23, 300, 177));
  [view setContentView:second];
  EXPECT_EQ([first superview], nil);
  EXPECT_EQ([second superview], view);
  [view setContentView:nil];
  EXPECT_EQ([second superview], nil);
  EXPECT_EQ([view contentView], nil);
}

// What is in the content is not squeezed while the view is folded.
TEST_F(CollapsingView, ContentComesBackAsItWas) {
  NSView *content = [[[NSView alloc] initWithFrame:NSMakeRect(0, 0, 300, 177)] autorelease];
  NSView *low = [[[NSView alloc] initWithFrame:NSMakeRect(10, 10, 100, 20)] autorelease];
  NSView *tall = [[[NSView alloc] initWithFrame:NSMakeRect(150, 60, 100, 90)] autorelease];
  [low setAutoresizingMask:NSViewMinYMargin | NSViewWidthSizable];
  [tall setAutoresizingMask:NSViewMinYMargin | NSViewHeightSizable | NSViewMaxYMargin];
  [content addSubview:low];
  [content addSubview:tall];
  [view setContentView:content];
  for (int i = 0; i < 3; ++i) {
    [view setCollapsed:YES];
    EXPECT_EQ([content frame], NSMakeRect(0, 23, 300, 0));
    EXPECT_EQ([view visibleContentViewSize], NSMakeSize(300, 0));
    [view setCollapsed:NO];
    ASSERT_EQ([content frame], NSMakeRect(0, 23, 300, 177));
    ASSERT_EQ([low frame], NSMakeRect(10, 10, 100, 20));
    ASSERT_EQ([tall frame], NSMakeRect(150, 60, 100, 90));
  }
  EXPECT_TRUE([content autoresizesSubviews]);
  // A width that came meanwhile is laid out for once.
  [view setCollapsed:YES];
  [view setFrameSize:NSMakeSize(360, 23)];
  [view setCollapsed:NO];
  EXPECT_EQ([content frame], NSMakeRect(0, 23, 360, 177));
  EXPECT_EQ([low frame], NSMakeRect(10, 10, 160, 20));
}

TEST_F(CollapsingView, ContentThatComesWhileFoldedIsFittedToTheUnfoldedView) {
  NSView *content = [[[NSView alloc] initWithFrame:NSMakeRect(0, 0, 300, 177)] autorelease];
  NSView *inner = [[[NSView alloc] initWithFrame:NSMakeRect(10, 10, 280, 157)] autorelease];
  [inner setAutoresizingMask:NSViewWidthSizable | NSViewHeightSizable];
  [content addSubview:inner];
  NSView *old = [[[NSView alloc] initWithFrame:NSZeroRect] autorelease];
  [view setContentView:old];
  [view setCollapsed:YES];
  EXPECT_FALSE([old autoresizesSubviews]);
  [view setContentView:content];
  EXPECT_TRUE([old autoresizesSubviews]) << "as it was before";
  EXPECT_EQ([content frame], NSMakeRect(0, 23, 300, 0));
  [view setCollapsed:NO];
  EXPECT_EQ([content frame], NSMakeRect(0, 23, 300, 177));
  EXPECT_EQ([inner frame], NSMakeRect(10, 10, 280, 157));
}

TEST_F(CollapsingView, NothingOfTheContentShowsWhileFolded) {
  [window setBackgroundColor:[NSColor colorWithDeviceRed:0 green:0 blue:1 alpha:1]];
  OvSimpleView *content = [[[OvSimpleView alloc] initWithFrame:NSMakeRect(0, 0, 9, 9)] autorelease];
  [content setFillColor:[NSColor colorWithDeviceRed:1 green:0 blue:0 alpha:1]];
  [content setFillRect:YES];
  [view setContentView:content];
  EXPECT_GT(pictureOf([window contentView]).count(NSMakeRect(0, 0, 320, 320), kRed), 40000);
  [view setCollapsed:YES];
  [window displayIfNeeded];
  EXPECT_EQ(pictureOf([window contentView]).count(NSMakeRect(0, 0, 320, 320), kRed), 0);
}

TEST_F(CollapsingView, TheKeyboardLeavesContentThatFolds) {
  show(window);
  OvFlippedView *content = [[[OvFlippedView alloc] initWithFrame:NSZeroRect] autorelease];
  NSTextField *field = [[[NSTextField alloc] initWithFrame:NSMakeRect(0, 0, 90, 22)] autorelease];
  [content addSubview:field];
  [view setContentView:content];
  ASSERT_TRUE([window makeFirstResponder:field]);
  type(window, @"a");
  ASSERT_NE([field currentEditor], nil);
  [view setCollapsed:YES];
  EXPECT_EQ([window firstResponder], [view discrosure]);
  EXPECT_TRUE([[field stringValue] isEqualToString:@"a"]);
  // The keyboard that is elsewhere stays there.
  NSTextField *outside =
      add([[[NSTextField alloc] initWithFrame:NSMakeRect(0, 290, 90, 22)] autorelease]);
  [view setCollapsed:NO];
  ASSERT_TRUE([window makeFirstResponder:outside]);
  [view setCollapsed:YES];
  EXPECT_NE([outside currentEditor], nil);
  // A locked triangle cannot take it.
  [view setCollapsed:NO];
  [view setLocked:YES];
  ASSERT_TRUE([window makeFirstResponder:field]);
  [view setCollapsed:YES];
  EXPECT_EQ([window firstResponder], window);
}

TEST_F(CollapsingView, TabPassesContentThatIsFolded) {
  show(window);
  OvFlippedView *content = [[[OvFlippedView alloc] initWithFrame:NSZeroRect] autorelease];
  NSTextField *field = [[[NSTextField alloc] initWithFrame:NSMakeRect(0, 0, 90, 22)] autorelease];
  [content addSubview:field];
  [view setContentView:content];
  EXPECT_TRUE([field canBecomeKeyView]);
  [view setCollapsed:YES];
  EXPECT_FALSE([field canBecomeKeyView]);
  [view setCollapsed:NO];
  EXPECT_TRUE([field canBecomeKeyView]);
  EXPECT_FALSE([content isHidden]);
  // What hides by itself otherwise is not moved away for it.
  OvSimpleView *simple = [[[OvSimpleView alloc] initWithFrame:NSZeroRect] autorelease];
  [view setContentView:simple];
  [view setCollapsed:YES];
  EXPECT_EQ([simple frame].origin, NSMakePoint(0, 23));
  [view setCollapsed:NO];
  EXPECT_EQ([simple frame], NSMakeRect(0, 23, 300, 177));
}

TEST_F(CollapsingView, AHeightThatIsNoneCountsAsTheHeaders) {
  for (CGFloat height : {CGFloat(-5), CGFloat(NAN), CGFloat(INFINITY)}) {
    [view setReversedFrameSize:NSMakeSize(1, height)];
    [view setCollapsed:YES];
    EXPECT_EQ([view frame].size, NSMakeSize(300, 23));
    [view setCollapsed:NO];
    EXPECT_EQ([view frame].size, NSMakeSize(300, 200));
  }
}

TEST_F(CollapsingView, TipsMenuAndEmbossingGoOn) {
  [view setContentView:[[[NSView alloc] initWithFrame:NSZeroRect] autorelease]];
  [view setDisclosureToolTip:@"triangle"];
  [view setHeaderToolTip:@"title"];
  [view setContentViewToolTip:@"content"];
  EXPECT_TRUE([[[view discrosure] toolTip] isEqualToString:@"triangle"]);
  EXPECT_TRUE([[[view header] toolTip] isEqualToString:@"title"]);
  EXPECT_TRUE([[[view contentView] toolTip] isEqualToString:@"content"]);
  EXPECT_TRUE([[view disclosureToolTip] isEqualToString:@"triangle"]);
  EXPECT_TRUE([[view headerToolTip] isEqualToString:@"title"]);
  EXPECT_TRUE([[view contentViewToolTip] isEqualToString:@"content"]);
  NSMenu *menu = [[[NSMenu alloc] initWithTitle:@"m"] autorelease];
  [view setMenu:menu];
  EXPECT_EQ([view menu], menu);
  EXPECT_EQ([[view discrosure] menu], menu);
  EXPECT_EQ([[view header] menu], menu);
  EXPECT_EQ([[view contentView] menu], menu);
  EXPECT_FALSE([view isHeaderEmboss]);
  [view setHeaderEmboss:YES];
  EXPECT_TRUE([view isHeaderEmboss]);
  EXPECT_TRUE([[view header] isEmboss]);
}

TEST_F(CollapsingView, InternalControlsGoAndCome) {
  [view performSelector:@selector(_removeInternalControls)];
  EXPECT_EQ([view discrosure], nil);
  EXPECT_EQ([view header], nil);
  EXPECT_EQ([[view subviews] count], 0u);
  [view setTitle:@"x"];
  [view performSelector:@selector(_addInternalControls)];
  EXPECT_EQ([[view subviews] count], 2u);
}

TEST_F(CollapsingView, ABoxSizeIsANumber) {
  OvCollapsingView *box = add([[[OvCollapsingView alloc] initWithFrame:NSMakeRect(0, 0, 300, 99)
                                                                  size:1] autorelease]);
  [box _setBoxSize:2];
  EXPECT_EQ([box boxSize], 2);
  EXPECT_EQ([box headerHeight], 14);
  EXPECT_EQ([[box header] frame].size.height, 17) << "nothing is laid out";
}

TEST_F(CollapsingView, DiesCleanlyInAnyState) {
  for (int i = 0; i < 4; ++i) {
    @autoreleasepool {
      OvCollapsingView *box =
          [[OvTestCollapsingView alloc] initWithFrame:NSMakeRect(0, 0, 300, 99)];
      NSView *content = [[[box contentView] retain] autorelease];
      NSButton *button = [[[box discrosure] retain] autorelease];
      [box setDelegate:delegate];
      [box setTitle:[NSString stringWithFormat:@"%d", i]];
      if (i % 2) [box setCollapsed:YES];
      if (i / 2) [[window contentView] addSubview:box];
      [box removeFromSuperview];
      [box release];
      [button performClick:nil];
      EXPECT_TRUE([content autoresizesSubviews]);
    }
  }
  delegate->lines.clear();
  [[NSNotificationCenter defaultCenter] postNotificationName:OvCollapsingViewDidCollapseNotification
                                                      object:view];
  EXPECT_THAT(delegate->lines, IsEmpty());
}

TEST_F(CollapsingView, AnObserverMayRemoveIt) {
  // Nothing but its superview keeps it.
  OvCollapsingView *box = nil;
  @autoreleasepool {
    box = [[OvCollapsingView alloc] initWithFrame:NSMakeRect(0, 0, 300, 99)];
    [[window contentView] addSubview:box];
    [box release];
    [[NSNotificationCenter defaultCenter] addObserver:box
                                             selector:@selector(removeFromSuperview)
                                                 name:OvCollapsingViewWillCollapseNotification
                                               object:box];
    [box setCollapsed:YES];
    [[NSNotificationCenter defaultCenter] removeObserver:box];
  }
  EXPECT_EQ([[[window contentView] subviews] count], 1u);
}

class CollapsingViewArchive : public CollapsingView, public testing::WithParamInterface<Coding> {};

INSTANTIATE_TEST_SUITE_P(Codings, CollapsingViewArchive,
                         testing::Values(Coding::keyed, Coding::sequential), codingName);

TEST_P(CollapsingViewArchive, KeepsWhatAHostHasSet) {
  [view setTitle:@"Filter"];
  [view setHeadline:@"all"];
  [view setLocked:YES];
  OvFlippedView *content = [[[OvFlippedView alloc] initWithFrame:NSZeroRect] autorelease];
  [content addSubview:[[[NSView alloc] initWithFrame:NSMakeRect(1, 2, 3, 4)] autorelease]];
  [view setContentView:content];
  [view setDelegate:delegate];
  NSArray *both = roundTrip(@[ delegate, view ], GetParam());
  OvCollapsingView *copy = [both objectAtIndex:1];
  ASSERT_TRUE([copy isMemberOfClass:[OvCollapsingView class]]);
  EXPECT_EQ([copy frame], [view frame]);
  EXPECT_TRUE([[copy title] isEqualToString:@"Filter"]);
  EXPECT_TRUE([[[copy header] stringValue] isEqualToString:@"Filter"]);
  EXPECT_TRUE([[copy headline] isEqualToString:@"all"]);
  EXPECT_TRUE([copy isLocked]);
  EXPECT_FALSE([[copy discrosure] isEnabled]);
  EXPECT_EQ([[copy subviews] count], 3u) << "one triangle, one title, the content";
  EXPECT_EQ([[copy discrosure] target], copy);
  ASSERT_TRUE([[copy contentView] isKindOfClass:[OvFlippedView class]]);
  EXPECT_EQ([[[[copy contentView] subviews] objectAtIndex:0] frame], NSMakeRect(1, 2, 3, 4));
  OvTestFoldingDelegate *copiedDelegate = [both objectAtIndex:0];
  EXPECT_EQ([copy delegate], copiedDelegate);
  [copy setCollapsed:YES];
  EXPECT_THAT(copiedDelegate->lines,
              ElementsAre("willCollapse folded 200", "didCollapse folded 23"));
  EXPECT_EQ([copy frame].size, NSMakeSize(300, 23));
  [copy setDelegate:nil];
  OvCollapsingView *alone = roundTrip(view, GetParam());
  EXPECT_EQ([alone delegate], nil) << "the connection is conditional";
}

TEST_P(CollapsingViewArchive, AFoldedViewComesBackUnfolded) {
  OvCollapsingView *box = add([[[OvTestCollapsingView alloc] initWithFrame:NSMakeRect(0, 0, 300, 99)
                                                                      size:1] autorelease]);
  NSView *inner = [[[NSView alloc] initWithFrame:NSMakeRect(5, 5, 290, 72)] autorelease];
  [inner setAutoresizingMask:NSViewHeightSizable];
  [[box contentView] addSubview:inner];
  [box setCollapsed:YES];
  OvCollapsingView *copy = roundTrip(box, GetParam());
  EXPECT_FALSE([copy isCollapsed]);
  EXPECT_EQ([copy boxSize], 0);
  EXPECT_EQ([copy frame].size, NSMakeSize(300, 99));
  EXPECT_EQ([copy bounds].size, NSMakeSize(300, 99));
  EXPECT_EQ([[copy contentView] frame], NSMakeRect(0, 23, 300, 76));
  EXPECT_TRUE([[copy contentView] autoresizesSubviews]);
  EXPECT_EQ([[[[copy contentView] subviews] objectAtIndex:0] frame], NSMakeRect(5, 5, 290, 66))
      << "six points fewer, as the header is higher";
  EXPECT_EQ([[box contentView] frame].size, NSMakeSize(300, 0));
  EXPECT_EQ([inner frame].size, NSMakeSize(290, 72));
  EXPECT_EQ([box frame].size, NSMakeSize(300, 17)) << "untouched by it";
}

}  // namespace

@interface OvTestFoldingOwner : OvTestFoldingDelegate {
 @public
  OvCollapsingView *box;
}
@end

@implementation OvTestFoldingOwner
- (void)setBox:(OvCollapsingView *)view {
  box = view;
}
@end

namespace {

TEST_F(CollapsingView, AnInterfaceFileMakesAndConnectsOne) {
  NSString *objects =
      @"<customView id=\"v1\" customClass=\"OvCollapsingView\">"
      @"<rect key=\"frame\" x=\"0.0\" y=\"0.0\" width=\"300\" height=\"200\"/>"
      @"<connections><outlet property=\"delegate\" destination=\"-2\" id=\"o2\"/></connections>"
      @"</customView>";
  OvTestFoldingOwner *owner = [[[OvTestFoldingOwner alloc] init] autorelease];
  ASSERT_TRUE(loadXib(owner, @{@"box" : @"v1"}, objects));
  ASSERT_TRUE([owner->box isMemberOfClass:[OvCollapsingView class]]);
  [owner->box setCollapsed:YES];
  EXPECT_EQ(owner->lines.size(), 2u);
  EXPECT_EQ([owner->box frame].size, NSMakeSize(300, 23));
  [owner->box setDelegate:nil];
}

}  // namespace
