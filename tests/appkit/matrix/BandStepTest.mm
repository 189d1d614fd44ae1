// A band goes from one step to the next by what the step changes. Here the same drags are
// made in a grid that must compute each step afresh, because a subclass has a say in the
// rules, and the two must agree after every step: on the items, on both ends, on what the
// delegate was told and on how often the change was announced.

#import <OvAppKit/OvAppKit.h>

#import "LiveTest.h"

namespace {

constexpr NSUInteger kColumns = 7;
constexpr NSUInteger kItems = 60;

}  // namespace

// A set's own description tells its address.
static NSString *listed(NSIndexSet *indexes) {
  NSMutableArray *numbers = [NSMutableArray array];
  for (NSUInteger i = [indexes firstIndex]; i != NSNotFound;
       i = [indexes indexGreaterThanIndex:i]) {
    [numbers addObject:@(i)];
  }
  return [numbers componentsJoinedByString:@" "];
}

@interface BandDelegate : NSObject {
 @public
  NSMutableArray *told;
}
@end

@implementation BandDelegate
- (id)init {
  self = [super init];
  told = [[NSMutableArray alloc] init];
  return self;
}
- (void)dealloc {
  [told release];
  [super dealloc];
}
- (void)matrixView:(HXMatrixView *)view didSelectItemIndexes:(NSIndexSet *)indexes {
  // The selection at this moment is still the one before the step.
  [told addObject:[NSString stringWithFormat:@"%@ of %lu", listed(indexes),
                                             (unsigned long)[view numberOfSelectedItems]]];
}
@end

@interface BandItems : NSObject
@end

@implementation BandItems
- (NSUInteger)numberOfItemsInMatrixView:(HXMatrixView *)view {
  (void)view;
  return kItems;
}
- (id)matrixView:(HXMatrixView *)view
    objectValueForCell:(NSCell *)cell
           atItemIndex:(NSUInteger)index {
  (void)view, (void)cell, (void)index;
  return @"";
}
@end

// Overriding a rule makes every step be computed afresh.
@interface AfreshGrid : HXMatrixView
@end
@implementation AfreshGrid
- (NSIndexSet *)_itemIndexesForMouseDraggedColumns:(NSRange)columns
                                              rows:(NSRange)rows
                                    mouseDownFlags:(NSUInteger)flags {
  return [super _itemIndexesForMouseDraggedColumns:columns rows:rows mouseDownFlags:flags];
}
@end

@interface AfreshOvGrid : OvMatrixView
@end
@implementation AfreshOvGrid
- (NSIndexSet *)_itemIndexesForMouseDraggedColumns:(NSRange)columns
                                              rows:(NSRange)rows
                                    mouseDownFlags:(NSUInteger)flags {
  return [super _itemIndexesForMouseDraggedColumns:columns rows:rows mouseDownFlags:flags];
}
@end

namespace {

class BandStep : public ov::test::LiveTest {
 protected:
  struct Side {
    HXMatrixView *grid;
    BandDelegate *delegate;
    NSWindow *window;
  };

  Side make(Class gridClass) {
    Side side;
    // Not in the window, which only gives the events a number: drawing is no subject here.
    side.window = makeWindow(NSMakeSize(500, 500));
    side.grid =
        [[[gridClass alloc] initWithFrame:NSMakeRect(0, 0, kColumns * 50 - 2, 500)] autorelease];
    [side.grid setAutoFitHorizentally:NO];
    [side.grid setCellSize:NSMakeSize(48, 48)];
    [side.grid setIntercellSpacing:NSMakeSize(2, 2)];
    [side.grid setDataSource:items_];
    side.delegate = [[[BandDelegate alloc] init] autorelease];
    [side.grid setDelegate:side.delegate];
    return side;
  }

  static NSEvent *event(const Side &side, NSEventType type, NSPoint point, NSUInteger flags) {
    return [NSEvent mouseEventWithType:type
                              location:[side.grid convertPoint:point toView:nil]
                         modifierFlags:flags
                             timestamp:0
                          windowNumber:[side.window windowNumber]
                               context:[side.window graphicsContext]
                           eventNumber:0
                            clickCount:1
                              pressure:1];
  }

  static std::string describe(const Side &side) {
    HXMatrixViewSelectionInfo *info = [side.grid _selectionInfo];
    NSString *text = [NSString
        stringWithFormat:@"%@ first %lu last %lu told %@", listed([info selectionIndexes]),
                         (unsigned long)[info firstSelectionIndex],
                         (unsigned long)[info lastSelectionIndex],
                         [side.delegate->told componentsJoinedByString:@"; "]];
    return [text UTF8String];
  }

  void compare(Class fast, Class afresh, int gestures) {
    ov::test::Random random;
    SCOPED_TRACE(random.describe());
    const Side a = make(fast);
    const Side b = make(afresh);
    const std::vector<NSUInteger> modifiers = {0,
                                               NSShiftKeyMask,
                                               NSCommandKeyMask,
                                               NSAlternateKeyMask,
                                               NSShiftKeyMask | NSAlternateKeyMask,
                                               NSCommandKeyMask | NSAlternateKeyMask,
                                               NSShiftKeyMask | NSCommandKeyMask};
    for (int gesture = 0; gesture < gestures; ++gesture) @autoreleasepool {
        NSMutableIndexSet *start = [NSMutableIndexSet indexSet];
        for (NSUInteger i = 0; i < kItems; ++i) {
          if (random.oneIn(3)) [start addIndex:i];
        }
        if (random.oneIn(4)) [start removeAllIndexes];
        if (random.oneIn(6)) [start addIndexesInRange:NSMakeRange(0, kItems)];
        const NSUInteger first = static_cast<NSUInteger>(random.integer(0, kItems - 1));
        const NSUInteger last = static_cast<NSUInteger>(random.integer(0, kItems - 1));
        for (const Side *side : {&a, &b}) {
          [side->grid deselectAll:nil];
          [side->grid selectItemsWithIndexes:start];
          if ([start containsIndex:first])
            [[side->grid _selectionInfo] setFirstSelectionIndex:first];
          if ([start containsIndex:last]) [[side->grid _selectionInfo] setLastSelectionIndex:last];
          [side->delegate->told removeAllObjects];
        }
        const NSUInteger flags = random.pick(modifiers);
        const auto somewhere = [&] {
          return NSMakePoint(random.real(-20, 380), random.real(-20, 480));
        };
        const NSPoint press = somewhere();
        for (const Side *side : {&a, &b}) {
          [side->grid mouseDown:event(*side, NSLeftMouseDown, press, flags)];
        }
        for (int step = 0; step < 12; ++step) {
          const NSPoint point = somewhere();
          for (const Side *side : {&a, &b}) {
            [side->grid mouseDragged:event(*side, NSLeftMouseDragged, point, flags)];
          }
          ASSERT_EQ(describe(a), describe(b))
              << "gesture " << gesture << " step " << step << " flags " << flags;
        }
        for (const Side *side : {&a, &b}) {
          [side->grid mouseUp:event(*side, NSLeftMouseUp, press, flags)];
        }
      }
  }

  BandItems *items_ = [[[BandItems alloc] init] autorelease];
};

TEST_F(BandStep, EqualsTheBandComputedAfresh) {
  compare([HXMatrixView class], [AfreshGrid class], 600);
}

TEST_F(BandStep, EqualsTheBandComputedAfreshWhereShiftToggles) {
  compare([OvMatrixView class], [AfreshOvGrid class], 600);
}

// What a listener does to the selection between two steps is undone by the next one, as if
// it were computed afresh.
TEST_F(BandStep, UndoesWhatAListenerDidToTheSelection) {
  const Side side = make([HXMatrixView class]);
  [side.grid mouseDown:event(side, NSLeftMouseDown, NSMakePoint(1, 1), 0)];
  [side.grid mouseDragged:event(side, NSLeftMouseDragged, NSMakePoint(60, 60), 0)];
  ASSERT_EQ([side.grid numberOfSelectedItems], 4u);
  [side.grid selectItem:40 byExtendingSelection:YES];
  [side.grid mouseDragged:event(side, NSLeftMouseDragged, NSMakePoint(60, 110), 0)];
  EXPECT_FALSE([side.grid isItemSelected:40]);
  EXPECT_EQ([side.grid numberOfSelectedItems], 6u);
  [side.grid mouseUp:event(side, NSLeftMouseUp, NSMakePoint(60, 110), 0)];
}

}  // namespace
