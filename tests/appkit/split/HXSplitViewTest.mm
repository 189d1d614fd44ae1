// The platform's split view with a double click and a test for what can be seen.

#import "SplitTest.h"

using namespace ov::test;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class HXSplit : public SplitTest {
 protected:
  HXSplitView *make() {
    HXSplitView *split =
        [[[HXSplitView alloc] initWithFrame:NSMakeRect(10, 20, 300, 200)] autorelease];
    [split setVertical:YES];
    [split addSubview:[[[OvTestPane alloc] initWithFrame:NSMakeRect(0, 0, 147, 200)] autorelease]];
    [split
        addSubview:[[[OvTestPane alloc] initWithFrame:NSMakeRect(153, 0, 147, 200)] autorelease]];
    NSWindow *window = makeWindow(NSMakeSize(320, 240));
    [[window contentView] addSubview:split];
    [split adjustSubviews];
    return split;
  }
};

TEST_F(HXSplit, DoubleClickOnADividerGoesToTheDelegate) {
  HXSplitView *split = make();
  delegate->has = {"splitViewDidDoubleClickSplitter:"};
  [split setDelegate:delegate];
  [split mouseDown:mouseEvent(NSLeftMouseDown, split, NSMakePoint(150, 100), 0, 2)];
  [split mouseDown:mouseEvent(NSLeftMouseDown, split, NSMakePoint(150, 100), 0, 3)];
  EXPECT_THAT(journal(), ElementsAre("doubleSplitter", "doubleSplitter"));
}

TEST_F(HXSplit, DoubleClickOnADividerNeverReachesThePlatform) {
  HXSplitView *split = make();
  delegate->has = {"splitView:constrainMinCoordinate:ofSubviewAt:"};  // asked by the platform
  [split setDelegate:delegate];
  [split mouseDown:mouseEvent(NSLeftMouseDown, split, NSMakePoint(150, 100), 0, 2)];
  EXPECT_THAT(journal(), IsEmpty());
}

TEST_F(HXSplit, DoubleClickInAPaneIsThePlatforms) {
  HXSplitView *split = make();
  delegate->has = {"splitViewDidDoubleClickSplitter:"};
  [split setDelegate:delegate];
  [split mouseDown:mouseEvent(NSLeftMouseDown, split, NSMakePoint(50, 100), 0, 2)];
  EXPECT_THAT(journal(), IsEmpty());
}

TEST_F(HXSplit, SingleClickDragsAsThePlatformDoes) {
  HXSplitView *split = make();
  show([split window]);
  discardPending();
  const CGFloat before = NSWidth([[[split subviews] objectAtIndex:0] frame]);
  const NSPoint start = NSMakePoint(150, 100);
  EXPECT_TRUE(
      runWithSteps({[&] { post(mouseEvent(NSLeftMouseDragged, split, NSMakePoint(180, 100))); },
                    [] {}, [&] { post(mouseEvent(NSLeftMouseUp, split, NSMakePoint(180, 100))); }},
                   [&] { [split mouseDown:mouseEvent(NSLeftMouseDown, split, start)]; }));
  EXPECT_GT(NSWidth([[[split subviews] objectAtIndex:0] frame]), before + 20);
}

TEST_F(HXSplit, CollapsedIsWhatCannotBeSeen) {
  HXSplitView *split = make();
  NSView *pane = [[split subviews] objectAtIndex:0];
  EXPECT_FALSE([split isSubviewCollapsed:pane]);
  for (NSRect frame :
       {NSMakeRect(0, 0, 0, 200), NSMakeRect(0, 0, 100, 0), NSMakeRect(300, 0, 10, 10),
        NSMakeRect(-10, 0, 10, 10), NSMakeRect(kParked, kParked, 100, 100)}) {
    [pane setFrame:frame];
    EXPECT_TRUE([split isSubviewCollapsed:pane]) << frame;
  }
  for (NSRect frame : {NSMakeRect(299, 199, 10, 10), NSMakeRect(-9, 0, 10, 10)}) {
    [pane setFrame:frame];
    EXPECT_FALSE([split isSubviewCollapsed:pane]) << frame;
  }
  EXPECT_TRUE([split isSubviewCollapsed:nil]);
  NSView *stranger = [[[NSView alloc] initWithFrame:NSMakeRect(0, 0, 10, 10)] autorelease];
  EXPECT_FALSE([split isSubviewCollapsed:stranger]) << "only the frame counts";
}

}  // namespace
