#import <OvAppKit/NSGraphicsContext+OvAppKit.h>

#include <cmath>

#import "LiveTest.h"

@interface OvTestAlignedView : NSView {
 @public
  BOOL _flipped;
}
@end

@implementation OvTestAlignedView
- (BOOL)isFlipped {
  return _flipped;
}
@end

namespace {

class Alignment : public ov::test::LiveTest {
 protected:
  OvTestAlignedView *view(BOOL flipped, NSRect frame = NSMakeRect(0, 0, 100, 100)) {
    NSWindow *window = [[[NSWindow alloc] initWithContentRect:NSMakeRect(100, 100, 200, 200)
                                                    styleMask:NSBorderlessWindowMask
                                                      backing:NSBackingStoreBuffered
                                                        defer:NO] autorelease];
    [window setReleasedWhenClosed:NO];
    OvTestAlignedView *view = [[[OvTestAlignedView alloc] initWithFrame:frame] autorelease];
    view->_flipped = flipped;
    [[window contentView] addSubview:view];
    return view;
  }
};

void expectNear(NSRect a, NSRect b) {
  EXPECT_NEAR(NSMinX(a), NSMinX(b), 1e-4);
  EXPECT_NEAR(NSMinY(a), NSMinY(b), 1e-4);
  EXPECT_NEAR(NSWidth(a), NSWidth(b), 1e-4);
  EXPECT_NEAR(NSHeight(a), NSHeight(b), 1e-4);
}

TEST_F(Alignment, DownIsTowardsTheBottomOfTheScreen) {
  for (const BOOL flipped : {NO, YES}) {
    NSView *v = view(flipped);
    [v lockFocus];
    NSGraphicsContext *context = [NSGraphicsContext currentContext];
    const NSPoint p = [context alignPoint:NSMakePoint(1.3, 2.7)];
    EXPECT_NEAR(p.x, 1, 1e-4);
    EXPECT_NEAR(p.y, flipped ? 3 : 2, 1e-4);
    const NSSize s = [context alignSize:NSMakeSize(3.75, 4.75)];
    EXPECT_NEAR(s.width, 3, 1e-4);
    EXPECT_NEAR(s.height, 4, 1e-4) << "also where y points down";
    // Flipped: from 2.5 to 7.25 downwards; the lower edge goes down to 8.
    expectNear([context alignRect:NSMakeRect(1.5, 2.5, 3.75, 4.75)],
               flipped ? NSMakeRect(1, 4, 3, 4) : NSMakeRect(1, 2, 3, 4));
    [v unlockFocus];
  }
}

TEST_F(Alignment, AFractionalOriginShiftsThePixels) {
  NSView *v = view(NO, NSMakeRect(10.25, 10.75, 100, 100));
  [v lockFocus];
  expectNear([[NSGraphicsContext currentContext] alignRect:NSMakeRect(1.5, 2.5, 3.75, 4.75)],
             NSMakeRect(0.75, 2.25, 3, 4));
  [v unlockFocus];
}

TEST_F(Alignment, ScaledViewsHaveTheirOwnPixels) {
  struct {
    CGFloat scale;
    NSRect expected;
  } const rows[] = {
      {2, NSMakeRect(1.5, 2.5, 3.5, 4.5)},
      // 2.25, 3.75, 5.625, 7.125 in the device
      {1.5, NSMakeRect(2 / 1.5, 2, 5 / 1.5, 7 / 1.5)},
      {0.5, NSMakeRect(0, 2, 2, 4)},
  };
  for (const auto &row : rows) {
    SCOPED_TRACE(row.scale);
    NSView *v = view(NO);
    [v scaleUnitSquareToSize:NSMakeSize(row.scale, row.scale)];
    [v lockFocus];
    NSGraphicsContext *context = [NSGraphicsContext currentContext];
    const NSRect once = [context alignRect:NSMakeRect(1.5, 2.5, 3.75, 4.75)];
    expectNear(once, row.expected);
    expectNear([context alignRect:once], once);
    [v unlockFocus];
  }
}

TEST_F(Alignment, FollowsTheTransformationOfTheMoment) {
  NSView *v = view(NO);
  [v lockFocus];
  NSGraphicsContext *context = [NSGraphicsContext currentContext];
  NSAffineTransform *turn = [NSAffineTransform transform];
  [turn translateXBy:50 yBy:50];
  [turn rotateByDegrees:90];
  [turn concat];
  expectNear([context alignRect:NSMakeRect(1.25, 2.75, 3.5, 4.5)], NSMakeRect(1, 4, 3, 4));
  [v unlockFocus];
}

TEST_F(Alignment, WorksInAnImage) {
  NSImage *image = [[[NSImage alloc] initWithSize:NSMakeSize(20, 20)] autorelease];
  [image lockFocus];
  expectNear([[NSGraphicsContext currentContext] alignRect:NSMakeRect(1.5, 2.5, 3.75, 4.75)],
             NSMakeRect(1, 2, 3, 4));
  NSAffineTransform *scale = [NSAffineTransform transform];
  [scale scaleBy:2];
  [scale concat];
  expectNear([[NSGraphicsContext currentContext] alignRect:NSMakeRect(1.5, 2.5, 3.75, 4.75)],
             NSMakeRect(1.5, 2.5, 3.5, 4.5));
  [image unlockFocus];
}

TEST_F(Alignment, WhatIsFilledAlignedIsCrisp) {
  OvTestAlignedView *v = view(YES);
  [v lockFocus];
  [[NSColor whiteColor] set];
  NSRectFill([v bounds]);
  [[NSColor redColor] set];
  const NSRect r =
      [[NSGraphicsContext currentContext] alignRect:NSMakeRect(10.4, 10.4, 20.4, 20.4)];
  NSRectFill(r);
  NSBitmapImageRep *rep =
      [[[NSBitmapImageRep alloc] initWithFocusedViewRect:[v bounds]] autorelease];
  [v unlockFocus];
  const ov::test::Picture picture(rep);
  const NSRect all = NSMakeRect(0, 0, 100, 100);
  EXPECT_EQ(picture.count(all, ov::test::kRed, 0), 400);
  EXPECT_EQ(picture.count(all, ov::test::kWhite, 0), 9600) << "no pixel is half covered";
}

TEST_F(Alignment, WhatIsNoNumberComesBack) {
  NSView *v = view(NO);
  [v lockFocus];
  NSGraphicsContext *context = [NSGraphicsContext currentContext];
  EXPECT_TRUE(std::isnan([context alignPoint:NSMakePoint(NAN, 1.5)].x));
  EXPECT_EQ([context alignPoint:NSMakePoint(NAN, 1.5)].y, 1.5);
  EXPECT_EQ([context alignSize:NSMakeSize(INFINITY, 1.5)], NSMakeSize(INFINITY, 1.5));
  EXPECT_EQ([context alignRect:NSMakeRect(1.5, -INFINITY, 1.5, 1.5)],
            NSMakeRect(1.5, -INFINITY, 1.5, 1.5));
  [v unlockFocus];
}

TEST_F(Alignment, AContextThatIsNotDrawnToIsNoTrouble) {
  NSGraphicsContext *context = [[view(NO) window] graphicsContext];
  const NSPoint p = [context alignPoint:NSMakePoint(1.5, 2.5)];
  EXPECT_TRUE(std::isfinite(p.x) && std::isfinite(p.y));
  EXPECT_EQ([static_cast<NSGraphicsContext *>(nil) alignPoint:NSMakePoint(1, 2)],
            NSMakePoint(0, 0));
}

}  // namespace
