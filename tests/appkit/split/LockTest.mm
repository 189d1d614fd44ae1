// The lock, and the cursor over the dividers.

#import "SplitTest.h"

using namespace ov::test;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

namespace {

class SplitLock : public SplitTest {};

TEST_F(SplitLock, CursorsStandOverTheDividers) {
  OvSplitView *split = makeSplit({96, 96, 96});
  show([split window]);
  NSCursor *leftRight = [NSCursor resizeLeftRightCursor];
  EXPECT_THAT(cursorRects(split), ElementsAre(Pair(leftRight, NSMakeRect(96, 0, 6, 200)),
                                              Pair(leftRight, NSMakeRect(198, 0, 6, 200))));
}

TEST_F(SplitLock, ShowsTheArrowAndIgnoresTheMouse) {
  OvSplitView *split = makeSplit({147, 147});
  show([split window]);
  delegate->has = {"splitView:canCollapseSubview:",
                   "splitView:didDoubleClickInDivider:withModifierFlag:"};
  [split setDelegate:delegate];
  EXPECT_FALSE([split mouseLocked]);
  [split setMouseLocked:YES];
  EXPECT_TRUE([split mouseLocked]);
  EXPECT_EQ(currentCursor(split), [NSCursor arrowCursor]);
  EXPECT_THAT(cursorRects(split),
              ElementsAre(Pair([NSCursor arrowCursor], NSMakeRect(147, 0, 6, 200))));
  [split mouseDown:mouseEvent(NSLeftMouseDown, split, onDivider(split, 0))];
  [split mouseDown:mouseEvent(NSLeftMouseDown, split, onDivider(split, 0), 0, 2)];
  EXPECT_THAT(journal(), IsEmpty());
  [split setMouseLocked:NO];
  EXPECT_EQ(currentCursor(split), [NSCursor resizeLeftRightCursor]);
  EXPECT_THAT(cursorRects(split),
              ElementsAre(Pair([NSCursor resizeLeftRightCursor], NSMakeRect(147, 0, 6, 200))));
}

TEST_F(SplitLock, KeepsTheArrowInAnyOrientation) {
  OvSplitView *split = makeSplit({147, 147});
  [split setMouseLocked:YES];
  [split setVertical:NO];
  EXPECT_EQ(currentCursor(split), [NSCursor arrowCursor]);
  [split setMouseLocked:NO];
  EXPECT_EQ(currentCursor(split), [NSCursor resizeUpDownCursor]);
}

TEST_F(SplitLock, MarksTheViewOnlyWhenItChanges) {
  OvSplitView *split = makeSplit({147, 147});
  show([split window]);
  [[split window] display];
  [split setMouseLocked:NO];
  EXPECT_FALSE([split needsDisplay]);
  [split setMouseLocked:YES];
  EXPECT_TRUE([split needsDisplay]);
  [[split window] display];
  [split setMouseLocked:YES];
  EXPECT_FALSE([split needsDisplay]);
  EXPECT_EQ([split mouseLocked], YES);
}

TEST_F(SplitLock, CursorsAreRightAtOnceAfterAResizeOrAnOrientation) {
  OvSplitView *split = makeSplit({147, 147});
  show([split window]);
  [split setFrameSize:NSMakeSize(206, 100)];
  EXPECT_THAT(cursorRects(split),
              ElementsAre(Pair([NSCursor resizeLeftRightCursor], NSMakeRect(100, 0, 6, 100))));
  [split setVertical:NO];
  EXPECT_THAT(cursorRects(split), ElementsAre(Pair([NSCursor resizeUpDownCursor], testing::_)));
  [split resizeSubviewsWithOldSize:[split bounds].size];
  EXPECT_THAT(cursorRects(split),
              ElementsAre(Pair([NSCursor resizeUpDownCursor], NSMakeRect(0, 47, 206, 6))));
  pumpPending();  // the platform sets them up once more
  EXPECT_THAT(cursorRects(split),
              ElementsAre(Pair([NSCursor resizeUpDownCursor], NSMakeRect(0, 47, 206, 6))));
}

TEST_F(SplitLock, CursorsFollowAMove) {
  OvSplitView *split = makeSplit({147, 147});
  show([split window]);
  [split setFrameOrigin:NSMakePoint(0, 0)];
  [split setFrame:NSMakeRect(5, 5, 300, 200)];
  EXPECT_THAT(cursorRects(split),
              ElementsAre(Pair([NSCursor resizeLeftRightCursor], NSMakeRect(147, 0, 6, 200))));
}

}  // namespace
