#import <OvAppKit/NSView+OvAppKit.h>

#include <cmath>

#import "LiveTest.h"

/* Four squares of ten points: red and green in the row of small y, blue and half black above;
   white beyond. With a seam: the cell left of and below the origin is yellow. */
@interface OvTestColorView : NSView {
 @public
  BOOL _flipped;
}
@end

@implementation OvTestColorView
- (BOOL)isFlipped {
  return _flipped;
}
- (void)drawRect:(NSRect)rect {
  [[NSColor whiteColor] set];
  NSRectFill([self bounds]);
  [[NSColor redColor] set];
  NSRectFill(NSMakeRect(0, 0, 10, 10));
  [[NSColor greenColor] set];
  NSRectFill(NSMakeRect(10, 0, 10, 10));
  [[NSColor blueColor] set];
  NSRectFill(NSMakeRect(0, 10, 10, 10));
  [[NSColor blackColor] set];
  NSRectFill(NSMakeRect(10, 10, 10, 10));
  [[NSColor yellowColor] set];
  NSRectFill(NSMakeRect(-1, -1, 1, 1));
}
@end

namespace {

using ov::test::Pixel;

class ViewColor : public ov::test::LiveTest {
 protected:
  OvTestColorView *colors(NSWindow *window, BOOL flipped, NSRect frame = NSMakeRect(5, 7, 40, 40)) {
    OvTestColorView *view = [[[OvTestColorView alloc] initWithFrame:frame] autorelease];
    view->_flipped = flipped;
    [[window contentView] addSubview:view];
    drawn(window);
    return view;
  }

  // A window that is not shown draws only when its views are told to.
  static void drawn(NSWindow *window) { [[window contentView] display]; }

  // Both methods must agree.
  static Pixel at(NSView *view, CGFloat x, CGFloat y) {
    const NSPoint point = NSMakePoint(x, y);
    uint32_t r = 7, g = 7, b = 7, a = 7;
    [view getRed:&r green:&g blue:&b alpha:&a atPoint:point];
    NSColor *color = [view colorAtPoint:point];
    if (color != nil) {
      EXPECT_NEAR([color redComponent] * 255, r, 1);
      EXPECT_NEAR([color greenComponent] * 255, g, 1);
      EXPECT_NEAR([color blueComponent] * 255, b, 1);
      EXPECT_NEAR([color alphaComponent] * 255, a, 1);
    } else {
      EXPECT_EQ(r + g + b + a, 0u);
    }
    return {int(r), int(g), int(b), int(a)};
  }

  static void expectColors(NSView *view) {
    EXPECT_EQ(at(view, 0, 0), ov::test::kRed);
    EXPECT_EQ(at(view, 9, 9), ov::test::kRed);
    EXPECT_EQ(at(view, 10, 9), ov::test::kGreen);
    EXPECT_EQ(at(view, 9, 10), ov::test::kBlue);
    EXPECT_EQ(at(view, 10, 10), ov::test::kBlack);
    EXPECT_EQ(at(view, 20, 20), ov::test::kWhite);
  }
};

TEST_F(ViewColor, IsWhatWasDrawnThere) {
  for (const BOOL flipped : {NO, YES}) {
    for (const bool onScreen : {false, true}) {
      SCOPED_TRACE(testing::Message() << "flipped " << int(flipped) << " on screen " << onScreen);
      NSWindow *window =
          onScreen ? showWindow(NSMakeSize(100, 100)) : makeWindow(NSMakeSize(100, 100));
      expectColors(colors(window, flipped));
    }
  }
}

TEST_F(ViewColor, ThePointIsRoundedDown) {
  NSView *view = colors(makeWindow(NSMakeSize(100, 100)), NO);
  EXPECT_EQ(at(view, 9.99, 9.99), ov::test::kRed);
  EXPECT_EQ(at(view, 10.01, 9.99), ov::test::kGreen);
}

TEST_F(ViewColor, NegativePointsAreRoundedDownToo) {
  OvTestColorView *view = colors(makeWindow(NSMakeSize(100, 100)), NO);
  [view setBoundsOrigin:NSMakePoint(-5, -5)];
  drawn([view window]);
  EXPECT_EQ(at(view, -0.5, -0.5), (Pixel{255, 255, 0, 255}));
  EXPECT_EQ(at(view, -1.5, -0.5), ov::test::kWhite);
  EXPECT_EQ(at(view, 0.5, 0.5), ov::test::kRed);
}

TEST_F(ViewColor, NestedFlippedAndScrolledViewsUseTheirOwnCoordinates) {
  NSWindow *window = makeWindow(NSMakeSize(120, 120));
  OvTestColorView *document =
      [[[OvTestColorView alloc] initWithFrame:NSMakeRect(0, 0, 400, 400)] autorelease];
  document->_flipped = YES;
  scrollView(window, document);
  drawn(window);
  expectColors(document);
  [document scrollPoint:NSMakePoint(8, 8)];
  drawn(window);
  EXPECT_EQ(at(document, 9, 9), ov::test::kRed);
  EXPECT_EQ(at(document, 10, 10), ov::test::kBlack);
  EXPECT_EQ([document colorAtPoint:NSMakePoint(2, 2)], nil) << "scrolled away";

  NSView *outer = [[[NSView alloc] initWithFrame:NSMakeRect(10, 10, 100, 100)] autorelease];
  NSWindow *other = makeWindow(NSMakeSize(120, 120));
  [[other contentView] addSubview:outer];
  OvTestColorView *inner =
      [[[OvTestColorView alloc] initWithFrame:NSMakeRect(20, 20, 40, 40)] autorelease];
  inner->_flipped = YES;
  [outer addSubview:inner];
  drawn(other);
  expectColors(inner);
  EXPECT_EQ(at(outer, 20, 59), ov::test::kRed) << "the flipped view's first row is above";
}

TEST_F(ViewColor, ScaledViewsUseTheirOwnCoordinatesToo) {
  for (const BOOL flipped : {NO, YES}) {
    for (const CGFloat points : {20.0, 80.0}) {
      SCOPED_TRACE(testing::Message() << "flipped " << int(flipped) << " " << points);
      OvTestColorView *view = colors(makeWindow(NSMakeSize(100, 100)), flipped);
      [view setBoundsSize:NSMakeSize(points, points)];
      drawn([view window]);
      EXPECT_EQ(at(view, 4, 4), ov::test::kRed);
      EXPECT_EQ(at(view, 14, 4), ov::test::kGreen);
      EXPECT_EQ(at(view, 4, 14), ov::test::kBlue);
      EXPECT_EQ(at(view, 14, 14), ov::test::kBlack);
    }
  }
}

TEST_F(ViewColor, WhereNothingCanBeReadThereIsNone) {
  NSWindow *window = makeWindow(NSMakeSize(100, 100));
  OvTestColorView *view = colors(window, NO);
  for (const NSPoint point : {NSMakePoint(-1, 5), NSMakePoint(5, -1), NSMakePoint(40, 5),
                              NSMakePoint(5, 40), NSMakePoint(1e9, 1e9), NSMakePoint(-1e30, 0),
                              NSMakePoint(NAN, 0), NSMakePoint(0, INFINITY)}) {
    SCOPED_TRACE(testing::Message() << point);
    EXPECT_EQ([view colorAtPoint:point], nil);
    EXPECT_EQ(at(view, point.x, point.y), (Pixel{}));
  }
  [view setHidden:YES];
  EXPECT_EQ([view colorAtPoint:NSMakePoint(1, 1)], nil);
  [view setHidden:NO];
  EXPECT_NE([view colorAtPoint:NSMakePoint(1, 1)], nil);
  [[view retain] autorelease];
  [view removeFromSuperview];
  EXPECT_EQ([view colorAtPoint:NSMakePoint(1, 1)], nil);
  EXPECT_EQ(at(view, 1, 1), (Pixel{}));
}

TEST_F(ViewColor, AWindowThatIsNotMadeYetShowsNothing) {
  NSWindow *window = [[NSWindow alloc] initWithContentRect:NSMakeRect(50, 50, 60, 60)
                                                 styleMask:NSBorderlessWindowMask
                                                   backing:NSBackingStoreBuffered
                                                     defer:YES];
  [window setReleasedWhenClosed:NO];
  NSView *view = [[[NSView alloc] initWithFrame:NSMakeRect(0, 0, 50, 50)] autorelease];
  [[window contentView] addSubview:view];
  const NSView *focused = [NSView focusView];
  [view colorAtPoint:NSMakePoint(1, 1)];
  EXPECT_EQ([NSView focusView], focused) << "focus is given back";
  [window release];
}

TEST_F(ViewColor, PartsOutsideTheWindowAndTheScreenAreNoTrouble) {
  NSWindow *window = makeWindow(NSMakeSize(50, 50));
  OvTestColorView *view = colors(window, NO, NSMakeRect(-15, -15, 40, 40));
  EXPECT_EQ([view colorAtPoint:NSMakePoint(1, 1)], nil) << "outside the window";
  EXPECT_EQ(at(view, 16, 16), ov::test::kBlack);
  NSWindow *away = [[NSWindow alloc] initWithContentRect:NSMakeRect(-2000, -2000, 50, 50)
                                               styleMask:NSBorderlessWindowMask
                                                 backing:NSBackingStoreBuffered
                                                   defer:NO];
  [away setReleasedWhenClosed:NO];
  expectColors(colors(away, NO));
  [away release];
}

TEST_F(ViewColor, WorksWhileAnotherViewIsDrawnInto) {
  NSWindow *window = makeWindow(NSMakeSize(100, 100));
  OvTestColorView *view = colors(window, NO);
  NSView *other = [window contentView];
  [other lockFocus];
  EXPECT_EQ(at(view, 5, 5), ov::test::kRed);
  EXPECT_EQ([NSView focusView], other);
  [other unlockFocus];
}

TEST_F(ViewColor, MissingPlacesForSamplesAreLeftOut) {
  NSView *view = colors(makeWindow(NSMakeSize(100, 100)), NO);
  uint32_t green = 1, alpha = 0;
  [view getRed:NULL green:&green blue:NULL alpha:&alpha atPoint:NSMakePoint(1, 1)];
  EXPECT_EQ(green, 0u);
  EXPECT_EQ(alpha, 255u);
}

}  // namespace
