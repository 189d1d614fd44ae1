// What a layout marks for display, with panes that leave the marking to the platform.

#import "SplitTest.h"

using namespace ov::test;

@interface OvTestPlainPane : NSView {
 @public
  int drawn;
  bool opaque;
}
@end

@implementation OvTestPlainPane
- (void)drawRect:(NSRect)rect {
  if (NSEqualRects(rect, [self bounds])) ++drawn;
}
- (BOOL)isOpaque {
  return opaque;
}
@end

// Has a say in its marking, by one of the two messages only.
@interface OvTestRectPane : NSView {
 @public
  int marked;
}
@end

@implementation OvTestRectPane
- (void)setNeedsDisplayInRect:(NSRect)rect {
  ++marked;
  [super setNeedsDisplayInRect:rect];
}
@end

namespace {

class SplitMarks : public SplitTest, public testing::WithParamInterface<bool> {};

TEST_P(SplitMarks, PlainPanesAreDrawnAfterEachLayout) {
  OvSplitView *split = makeSplit({});
  std::vector<OvTestPlainPane *> panes;
  for (int i = 0; i < 3; ++i) {
    OvTestPlainPane *pane =
        [[[OvTestPlainPane alloc] initWithFrame:NSMakeRect(0, 0, 96, 200)] autorelease];
    pane->opaque = GetParam();
    panes.push_back(pane);
    [split addSubview:pane];
  }
  [split resizeSubviewsWithOldSize:[split bounds].size];
  show([split window]);
  [[split window] display];
  for (OvTestPlainPane *pane : panes) {
    EXPECT_FALSE([pane needsDisplay]);
    pane->drawn = 0;
  }
  [split setFrameSize:NSMakeSize(252, 200)];
  EXPECT_TRUE([[split window] viewsNeedDisplay]);
  for (OvTestPlainPane *pane : panes) EXPECT_TRUE([pane needsDisplay]);
  [[split window] displayIfNeeded];
  for (OvTestPlainPane *pane : panes) {
    EXPECT_EQ(pane->drawn, 1);
    EXPECT_FALSE([pane needsDisplay]);
  }

  // A layout that changes nothing marks nothing.
  [split resizeSubviewsWithOldSize:[split bounds].size];
  for (OvTestPlainPane *pane : panes) EXPECT_FALSE([pane needsDisplay]);

  // A layout without new dividers, that the host asks for.
  [panes[0] setFrame:NSMakeRect(0, 0, 40, 200)];
  [[split window] display];
  [split adjustSubviews];
  EXPECT_TRUE([[split window] viewsNeedDisplay]);
  EXPECT_TRUE([panes[0] needsDisplay]);
}

INSTANTIATE_TEST_SUITE_P(Panes, SplitMarks, testing::Bool(),
                         [](const auto &info) { return info.param ? "opaque" : "transparent"; });

TEST_F(SplitTest, PanesThatHaveASayInTheirMarkingAreTold) {
  OvSplitView *split = makeSplit({147});
  OvTestRectPane *pane =
      [[[OvTestRectPane alloc] initWithFrame:NSMakeRect(0, 0, 147, 200)] autorelease];
  [split addSubview:pane];
  [split resizeSubviewsWithOldSize:[split bounds].size];
  pane->marked = 0;
  [split setFrameSize:NSMakeSize(206, 200)];
  EXPECT_EQ(pane->marked, 1);
}

}  // namespace
