// What a control under the pointer shows, whatever brings it there or takes it away. The view
// draws what is true when it draws; the tests wait for the drawing to come.

#import "LiveTest.h"

#import <GNUstepGUI/GSTrackingRect.h>

#include "support/HoverTracking.h"

using namespace ov::test;

@interface OvTestHoverView : NSView {
 @public
  BOOL shown;  // what was drawn last
  int drawings;
  int marks;
}
+ (int)deaths;
@end

static int hoverViewDeaths;

@implementation OvTestHoverView
+ (int)deaths {
  return hoverViewDeaths;
}
- (void)dealloc {
  hoverViewDeaths++;
  [super dealloc];
}
- (void)drawRect:(NSRect)rect {
  (void)rect;
  shown = ov::isMouseInside(self);
  drawings++;
}
- (void)setNeedsDisplay:(BOOL)flag {
  marks++;
  [super setNeedsDisplay:flag];
}
@end

// Takes the tracking away while the platform tells of the pointer.
@interface OvTestSpoiler : NSObject {
 @public
  NSView *view;
  int entered;
}
@end

@implementation OvTestSpoiler
- (void)mouseEntered:(NSEvent *)event {
  (void)event;
  entered++;
  ov::setHoverTracking(view, NO);
}
@end

@interface OvTestFlippedBox : NSView
@end

@implementation OvTestFlippedBox
- (BOOL)isFlipped {
  return YES;
}
@end

namespace {

constexpr NSPoint kInside{20, 10};
constexpr NSPoint kBeside{150, 100};

size_t hoverRects(NSView *view) { return [[view valueForKey:@"tracking_rects"] count]; }

class HoverTracking : public LiveTest {
 protected:
  void SetUp() override {
    LiveTest::SetUp();
    window_ = showWindow(NSMakeSize(300, 200));
    box_ = boxIn([window_ contentView]);
    view_ = addView(box_, NSMakeRect(40, 30, 100, 20));
    pointTo(view_, kBeside);
    ov::setHoverTracking(view_, YES);
    settle();
  }

  OvTestFlippedBox *boxIn(NSView *superview) {
    OvTestFlippedBox *box =
        [[[OvTestFlippedBox alloc] initWithFrame:[superview bounds]] autorelease];
    [superview addSubview:box];
    return box;
  }
  OvTestHoverView *addView(NSView *superview, NSRect frame) {
    OvTestHoverView *view = [[[OvTestHoverView alloc] initWithFrame:frame] autorelease];
    [superview addSubview:view];
    return view;
  }
  // In a document of 280 x 900.
  NSScrollView *scrolled() {
    [[box_ retain] autorelease];
    [box_ removeFromSuperview];
    [box_ setFrameSize:NSMakeSize(280, 900)];
    NSScrollView *scroll = scrollView(window_, box_);
    [box_ scrollPoint:NSZeroPoint];
    settle();
    return scroll;
  }

  void pointTo(NSView *view, NSPoint point) { pointAt(screenPoint(view, point), view); }
  void pointAt(NSPoint place, NSView *view) {
    warpPointer(view, viewPoint(view, place));
    ASSERT_TRUE(pumpUntil([=] {
      const NSPoint now = [NSEvent mouseLocation];
      return std::abs(now.x - place.x) < 1 && std::abs(now.y - place.y) < 1;
    }));
    settle();
  }
  // Lets everything be delivered and drawn.
  void settle() {
    pumpPending();
    for (int turns = 0; turns < 3; turns++) pumpUntil([] { return false; }, 0.01);
    view_->marks = 0;
    view_->drawings = 0;
  }
  bool comesToShow(BOOL inside) {
    return pumpUntil([=, this] { return view_->shown == inside && ![view_ needsDisplay]; }, 2);
  }
  void hover() {
    pointTo(view_, kInside);
    ASSERT_TRUE(comesToShow(YES));
    settle();
  }

  NSWindow *window_ = nil;
  OvTestFlippedBox *box_ = nil;
  OvTestHoverView *view_ = nil;
};

TEST_F(HoverTracking, ShowsThePointerComeAndGo) {
  for (int i = 0; i < 3; i++) {
    hover();
    pointTo(view_, kBeside);
    EXPECT_TRUE(comesToShow(NO));
  }
}

TEST_F(HoverTracking, ShowsThePointerLeaveTheWindowAtOnce) {
  hover();
  pointAt(NSMakePoint(60, 60), view_);
  EXPECT_TRUE(comesToShow(NO));
}

TEST_F(HoverTracking, MovingInsideOrOutsideMarksNothing) {
  pointTo(view_, NSMakePoint(150, 60));
  EXPECT_EQ(view_->marks, 0);
  hover();
  pointTo(view_, NSMakePoint(60, 12));
  EXPECT_EQ(view_->marks, 0);
}

TEST_F(HoverTracking, ScrollsAwayFromARestingPointer) {
  scrolled();
  hover();
  [box_ scrollPoint:NSMakePoint(0, 15)];
  EXPECT_TRUE([view_ needsDisplay]) << "at once, not with the next event";
  EXPECT_TRUE(comesToShow(NO));
  [box_ scrollPoint:NSZeroPoint];
  EXPECT_TRUE(comesToShow(YES));
}

TEST_F(HoverTracking, ScrolledHalfOutOfSightOnlyTheRestCounts) {
  scrolled();
  // The lower half stays in sight.
  [box_ scrollPoint:NSMakePoint(0, 40)];
  settle();
  ASSERT_EQ([view_ visibleRect].size.height, 10);
  pointTo(view_, NSMakePoint(20, 5));
  EXPECT_TRUE(comesToShow(YES)) << "the view is not flipped";
  pointTo(view_, NSMakePoint(20, 15));
  EXPECT_TRUE(comesToShow(NO));
}

TEST_F(HoverTracking, ScrollingElsewhereMarksNothing) {
  scrolled();
  pointTo(view_, NSMakePoint(200, 10));
  [box_ scrollPoint:NSMakePoint(0, 10)];
  EXPECT_EQ(view_->marks, 0) << "in sight, but not under the pointer";
  [box_ scrollPoint:NSMakePoint(0, 300)];
  settle();
  [box_ scrollPoint:NSMakePoint(0, 320)];
  EXPECT_EQ(view_->marks, 0) << "out of sight";
}

TEST_F(HoverTracking, MovesAndGrowsUnderARestingPointer) {
  hover();
  [view_ setFrameOrigin:NSMakePoint(40, 100)];
  EXPECT_TRUE([view_ needsDisplay]);
  EXPECT_TRUE(comesToShow(NO));
  [view_ setFrameOrigin:NSMakePoint(40, 30)];
  EXPECT_TRUE(comesToShow(YES));
  [view_ setFrameSize:NSMakeSize(10, 20)];
  EXPECT_TRUE(comesToShow(NO));
  [view_ setFrame:NSMakeRect(30, 20, 100, 50)];
  EXPECT_TRUE(comesToShow(YES));
  [view_ setBoundsOrigin:NSMakePoint(500, 500)];
  settle();
  pointTo(view_, NSMakePoint(490, 490));
  EXPECT_TRUE(comesToShow(NO));
  pointTo(view_, NSMakePoint(510, 510));
  EXPECT_TRUE(comesToShow(YES)) << "wherever its bounds begin";
}

TEST_F(HoverTracking, MovesWithItsAncestors) {
  hover();
  [box_ setFrameOrigin:NSMakePoint(0, -80)];
  EXPECT_TRUE([view_ needsDisplay]);
  EXPECT_TRUE(comesToShow(NO));
  [box_ setFrameOrigin:NSZeroPoint];
  EXPECT_TRUE(comesToShow(YES));
  [box_ setBoundsOrigin:NSMakePoint(0, -50)];
  EXPECT_TRUE(comesToShow(NO));
  [box_ setBoundsOrigin:NSZeroPoint];
  EXPECT_TRUE(comesToShow(YES));
  // Too small to show the view where the pointer is.
  [box_ setFrameSize:NSMakeSize(45, 200)];
  EXPECT_TRUE(comesToShow(NO));
}

TEST_F(HoverTracking, FollowsNewAncestors) {
  OvTestFlippedBox *outer = boxIn([window_ contentView]);
  [[box_ retain] autorelease];
  [box_ removeFromSuperview];
  [outer addSubview:box_];
  settle();
  hover();
  [outer setFrameOrigin:NSMakePoint(0, -80)];
  EXPECT_TRUE([view_ needsDisplay]);
  EXPECT_TRUE(comesToShow(NO));
}

TEST_F(HoverTracking, FollowsAncestorsThatTellNobody) {
  [box_ setPostsFrameChangedNotifications:NO];
  [box_ setPostsBoundsChangedNotifications:NO];
  hover();
  [box_ setFrameOrigin:NSMakePoint(0, -80)];
  EXPECT_TRUE(comesToShow(NO));
}

TEST_F(HoverTracking, HiddenItLosesThePointer) {
  for (NSView *hidden : {(NSView *)view_, (NSView *)box_}) {
    hover();
    [hidden setHidden:YES];
    settle();
    EXPECT_FALSE(ov::isMouseInside(view_));
    [hidden setHidden:NO];
    EXPECT_TRUE(comesToShow(YES)) << "the pointer has not moved";
    [hidden setHidden:YES];
    settle();
    pointTo([window_ contentView], NSMakePoint(280, 10));
    [hidden setHidden:NO];
    EXPECT_TRUE(comesToShow(NO));
  }
}

TEST_F(HoverTracking, UncoveredUnderThePointerItIsFollowedFromThere) {
  [view_ setHidden:YES];
  settle();
  pointTo(view_, kInside);
  [view_ setHidden:NO];
  ASSERT_TRUE(comesToShow(YES));
  [box_ setFrameOrigin:NSMakePoint(0, -80)];
  EXPECT_TRUE(comesToShow(NO));
}

TEST_F(HoverTracking, AWindowThatReturnsShowsWhatIs) {
  hover();
  [window_ orderOut:nil];
  ASSERT_TRUE(pumpUntil([&] { return ![window_ isVisible]; }));
  settle();
  EXPECT_FALSE(ov::isMouseInside(view_));
  pointAt(NSMakePoint(60, 60), view_);
  [window_ orderFront:nil];
  EXPECT_TRUE(comesToShow(NO));

  [window_ orderOut:nil];
  settle();
  pointTo(view_, kInside);
  [window_ orderFront:nil];
  EXPECT_TRUE(comesToShow(YES));
}

TEST_F(HoverTracking, TheWindowMovesAwayFromARestingPointer) {
  hover();
  const NSPoint origin = [window_ frame].origin;
  [window_ setFrameOrigin:NSMakePoint(origin.x + 200, origin.y)];
  EXPECT_TRUE(comesToShow(NO));
  [window_ setFrameOrigin:origin];
  EXPECT_TRUE(comesToShow(YES));
}

TEST_F(HoverTracking, GoesAlongIntoAnotherWindow) {
  hover();
  NSWindow *other = showWindow(NSMakeSize(300, 200));
  [other setFrameOrigin:NSMakePoint(700, 400)];
  settle();
  [[view_ retain] autorelease];
  [view_ removeFromSuperview];
  settle();
  EXPECT_FALSE(ov::isMouseInside(view_)) << "without a window";
  [[other contentView] addSubview:view_];
  EXPECT_TRUE(comesToShow(NO));
  hover();
  [view_ setFrameOrigin:NSMakePoint(150, 120)];
  EXPECT_TRUE(comesToShow(NO));
  // And back in under the pointer.
  const NSPoint place = screenPoint(box_, NSMakePoint(50, 40));
  [window_ makeKeyAndOrderFront:nil];
  pointAt(place, box_);
  [view_ removeFromSuperview];
  [view_ setFrameOrigin:NSMakePoint(40, 30)];
  [box_ addSubview:view_];
  EXPECT_TRUE(comesToShow(YES));
}

TEST_F(HoverTracking, IsOnOnceAndOffOnce) {
  EXPECT_TRUE(ov::isHoverTracking(view_));
  EXPECT_EQ(hoverRects(view_), 1u);
  ov::setHoverTracking(view_, YES);
  EXPECT_EQ(hoverRects(view_), 1u);
  hover();
  ov::setHoverTracking(view_, NO);
  EXPECT_FALSE(ov::isHoverTracking(view_));
  EXPECT_EQ(hoverRects(view_), 0u);
  ov::setHoverTracking(view_, NO);
  pointTo(view_, kBeside);
  [box_ setFrameOrigin:NSMakePoint(0, -80)];
  settle();
  EXPECT_EQ(view_->marks, 0);
  EXPECT_TRUE(view_->shown) << "nothing has drawn it since";
  [box_ setFrameOrigin:NSZeroPoint];
  ov::setHoverTracking(view_, YES);
  EXPECT_TRUE(comesToShow(NO));
  ov::setHoverTracking(nil, YES);
  ov::setHoverTracking(nil, NO);
  EXPECT_FALSE(ov::isHoverTracking(nil));
  EXPECT_FALSE(ov::isMouseInside(nil));
}

TEST_F(HoverTracking, MayBeOnBeforeThereIsAWindow) {
  OvTestHoverView *early =
      [[[OvTestHoverView alloc] initWithFrame:NSMakeRect(40, 100, 100, 20)] autorelease];
  ov::setHoverTracking(early, YES);
  view_ = early;
  [box_ addSubview:early];
  hover();
  pointTo(early, kBeside);
  EXPECT_TRUE(comesToShow(NO));
}

TEST_F(HoverTracking, LeavesOtherRectanglesAlone) {
  OvTestSpoiler *other = [[[OvTestSpoiler alloc] init] autorelease];
  const NSTrackingRectTag before = [view_ addTrackingRect:[view_ bounds]
                                                    owner:other
                                                 userData:nullptr
                                             assumeInside:NO];
  ov::setHoverTracking(view_, NO);
  EXPECT_EQ(hoverRects(view_), 1u);
  ov::setHoverTracking(view_, YES);
  NSArray *rects = [view_ valueForKey:@"tracking_rects"];
  ASSERT_EQ([rects count], 2u);
  EXPECT_NE([(GSTrackingRect *)[rects objectAtIndex:0] tag],
            [(GSTrackingRect *)[rects objectAtIndex:1] tag]);
  [view_ removeTrackingRect:before];
  EXPECT_TRUE(ov::isHoverTracking(view_));
  hover();
}

TEST_F(HoverTracking, MayGoWhileThePlatformTellsOfThePointer) {
  ov::setHoverTracking(view_, NO);
  OvTestSpoiler *spoiler = [[[OvTestSpoiler alloc] init] autorelease];
  spoiler->view = view_;
  [view_ addTrackingRect:[view_ bounds] owner:spoiler userData:nullptr assumeInside:NO];
  ov::setHoverTracking(view_, YES);
  settle();
  pointTo(view_, kInside);
  EXPECT_TRUE(pumpUntil([=] { return spoiler->entered > 0; }));
  EXPECT_FALSE(ov::isHoverTracking(view_));
}

TEST_F(HoverTracking, NothingIsLeftOfAViewThatDiesUnderThePointer) {
  const int before = [OvTestHoverView deaths];
  @autoreleasepool {
    OvTestHoverView *dying = addView(box_, NSMakeRect(40, 100, 100, 20));
    ov::setHoverTracking(dying, YES);
    pointTo(dying, kInside);
    [dying removeFromSuperview];
  }
  pumpPending();
  ASSERT_EQ([OvTestHoverView deaths], before + 1) << "it was not kept";
  [box_ setFrameOrigin:NSMakePoint(0, 10)];
  pointTo(box_, kBeside);
  [box_ setFrameOrigin:NSZeroPoint];
  hover();
}

}  // namespace
