// The tool tip over the dividers.

#import "SplitTest.h"

#import <GNUstepGUI/GSTrackingRect.h>

using namespace ov::test;
using testing::ElementsAre;
using testing::IsEmpty;

// Writes down the rectangles it gives tips to.
@interface OvTestTipSplit : OvSplitView
@end

@implementation OvTestTipSplit
- (NSToolTipTag)addToolTipRect:(NSRect)rect owner:(id)owner userData:(void *)data {
  journal().push_back("tip " + text(rect) + (owner == self ? "" : " another owner") +
                      (data == nullptr ? "" : " data"));
  return [super addToolTipRect:rect owner:owner userData:data];
}
- (void)removeAllToolTips {
  journal().push_back("removeTips");
  [super removeAllToolTips];
}
@end

namespace {

class SplitToolTips : public SplitTest {
 protected:
  OvTestTipSplit *make(int count) {
    OvTestTipSplit *split =
        [[[OvTestTipSplit alloc] initWithFrame:NSMakeRect(10, 20, 300, 200)] autorelease];
    [split setVertical:YES];
    [split setToolTip:@"a tip for a divider"];
    for (int i = 0; i < count; ++i) {
      [split addSubview:[[[OvTestPane alloc] initWithFrame:NSMakeRect(0, 0, 50, 50)] autorelease]];
    }
    [[makeWindow(NSMakeSize(640, 480)) contentView] addSubview:split];
    [split resizeSubviewsWithOldSize:[split bounds].size];
    return split;
  }

  static void movePointer(NSView *view, NSPoint point) {
    [[view window] sendEvent:mouseEvent(NSMouseMoved, view, point)];
  }

  static NSUInteger rectCount(NSView *view) { return [[view valueForKey:@"tracking_rects"] count]; }
};

TEST_F(SplitToolTips, TextIsOneForAllDividersAndRetained) {
  OvSplitView *split = makeSplit({96, 96, 96});
  EXPECT_EQ(rectCount(split), 0U);
  EXPECT_EQ([split view:split stringForToolTip:1 point:NSZeroPoint userData:nullptr], nil);
  NSMutableString *tip = [NSMutableString stringWithString:@"drag me"];
  [split setToolTip:tip];
  EXPECT_EQ([split toolTip], tip) << "retained, not copied";
  EXPECT_EQ([split view:split stringForToolTip:1 point:NSZeroPoint userData:nullptr], tip);
  EXPECT_EQ(rectCount(split), 2U);
  [split setToolTip:nil];
  EXPECT_EQ([split toolTip], nil);
  EXPECT_EQ(rectCount(split), 0U);
}

TEST_F(SplitToolTips, EachResizeGivesEachDividerATip) {
  OvTestTipSplit *split = make(3);
  EXPECT_EQ(rectCount(split), 2U);
  journal().clear();
  [split setFrameSize:NSMakeSize(588, 100)];
  EXPECT_THAT(journal(),
              ElementsAre("removeTips", "tip {192, 0, 6 x 100}", "tip {390, 0, 6 x 100}"));
  EXPECT_EQ(rectCount(split), 2U);
}

TEST_F(SplitToolTips, NoneAreLeftOfDividersThatWent) {
  OvTestTipSplit *split = make(12);
  EXPECT_EQ(rectCount(split), 11U);
  while ([[split subviews] count] > 1) [[[split subviews] lastObject] removeFromSuperview];
  [split resizeSubviewsWithOldSize:[split bounds].size];
  EXPECT_EQ(rectCount(split), 0U);
}

TEST_F(SplitToolTips, ADragResetsThemAtItsEnd) {
  OvTestTipSplit *split = make(2);
  journal().clear();
  drag(split, 0, {10, 20});
  EXPECT_THAT(journal(), ElementsAre("removeTips", "tip {167, 0, 6 x 200}"));
}

TEST_F(SplitToolTips, PointerOverADividerShowsIt) {
  OvTestTipSplit *split = make(2);
  show([split window]);
  warpPointer(split, NSMakePoint(150, 100));
  movePointer(split, NSMakePoint(50, 100));
  movePointer(split, NSMakePoint(150, 100));
  const auto tipShows = [&] {
    for (NSWindow *window in [NSApp windows]) {
      if ([window isVisible] && [NSStringFromClass([window class]) isEqual:@"GSTTPanel"])
        return true;
    }
    return false;
  };
  EXPECT_TRUE(pumpUntil(tipShows));
  movePointer(split, NSMakePoint(50, 100));
  EXPECT_TRUE(pumpUntil([&] { return !tipShows(); }));
}

TEST_F(SplitToolTips, AreThereOnceTheViewCanBeSeen) {
  OvTestTipSplit *split = make(2);
  [[split retain] autorelease];
  NSView *content = [split superview];
  NSView *container = [[[NSView alloc] initWithFrame:NSMakeRect(0, 0, 0, 0)] autorelease];
  [split removeFromSuperview];
  EXPECT_EQ(rectCount(split), 0U);
  [container addSubview:split];
  [content addSubview:container];
  EXPECT_EQ(rectCount(split), 0U) << "nothing of it is visible";
  [container setFrameSize:NSMakeSize(400, 400)];
  [[split window] resetCursorRects];
  EXPECT_EQ(rectCount(split), 1U);
}

}  // namespace
