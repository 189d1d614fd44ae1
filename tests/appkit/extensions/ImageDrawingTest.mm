#import <OvAppKit/NSImage+OvAppKit.h>

#include <limits>

#import "LiveTest.h"

/* White, with an image drawn by the method that is tested. */
@interface OvTestPlacingView : NSView {
 @public
  BOOL _flipped;
  NSImage *_image;
  NSRect _rect;
  int _position;
  unsigned char _scaled;
  NSCompositingOperation _operation;
  float _fraction;
  NSRect _answer;
}
@end

@implementation OvTestPlacingView
- (BOOL)isFlipped {
  return _flipped;
}
- (void)drawRect:(NSRect)rect {
  [[NSColor whiteColor] set];
  NSRectFill([self bounds]);
  _answer = [_image drawInRect:_rect
                    atPosition:_position
                        scaled:_scaled
                     operation:_operation
                      fraction:_fraction];
}
@end

namespace {

using ov::test::kBlue;
using ov::test::kGreen;
using ov::test::kRed;
using ov::test::kWhite;
using ov::test::Picture;
using ov::test::Pixel;

constexpr CGFloat kNaN = std::numeric_limits<CGFloat>::quiet_NaN();
constexpr CGFloat kInfinity = std::numeric_limits<CGFloat>::infinity();

class ImageDrawing : public ov::test::LiveTest {
 protected:
  void SetUp() override {
    LiveTest::SetUp();
    NSWindow *window = makeWindow(NSMakeSize(100, 100));
    view = [[[OvTestPlacingView alloc] initWithFrame:NSMakeRect(0, 0, 100, 100)] autorelease];
    [[window contentView] addSubview:view];
    view->_image = redOverGreen(NSMakeSize(40, 20));
    view->_operation = NSCompositeSourceOver;
    view->_fraction = 1;
  }

  // The upper half is red, the lower green.
  static NSImage *redOverGreen(NSSize size) {
    NSImage *image = [[[NSImage alloc] initWithSize:size] autorelease];
    [image lockFocus];
    [[NSColor redColor] set];
    NSRectFill(NSMakeRect(0, 0, size.width, size.height));
    [[NSColor greenColor] set];
    NSRectFill(NSMakeRect(0, 0, size.width, size.height / 2));
    [image unlockFocus];
    return image;
  }

  Picture draw(NSRect rect, int position, unsigned char scaled) {
    view->_rect = rect;
    view->_position = position;
    view->_scaled = scaled;
    view->_answer = NSMakeRect(-1, -1, -1, -1);
    return ov::test::pictureOf(view);
  }

  // Exactly the rectangle of the answer, in the view's coordinates, is red over green.
  void expectDrawnInto(NSRect rect, const Picture &picture) {
    EXPECT_EQ(view->_answer, rect);
    const CGFloat top = view->_flipped ? NSMinY(rect) : 100 - NSMaxY(rect);
    const CGFloat half = NSHeight(rect) / 2;
    const int area = static_cast<int>(NSWidth(rect) * half);
    EXPECT_EQ(picture.count(NSMakeRect(NSMinX(rect), top, NSWidth(rect), half), kRed), area);
    EXPECT_EQ(picture.count(NSMakeRect(NSMinX(rect), top + half, NSWidth(rect), half), kGreen),
              area);
    EXPECT_EQ(picture.count(NSMakeRect(0, 0, 100, 100), kWhite), 10000 - 2 * area);
  }

  void expectNothing(const Picture &picture) {
    EXPECT_EQ(picture.count(NSMakeRect(0, 0, 100, 100), kWhite), 10000);
  }

  OvTestPlacingView *view = nil;
};

constexpr NSRect kPlace = {{10, 20}, {80, 60}};

TEST_F(ImageDrawing, ScaledAndCentered) {
  for (const BOOL flipped : {NO, YES}) {
    view->_flipped = flipped;
    expectDrawnInto(NSMakeRect(10, 30, 80, 40), draw(kPlace, 1, YES));
  }
}

TEST_F(ImageDrawing, ScaledAtMaxY) {
  for (const BOOL flipped : {NO, YES}) {
    view->_flipped = flipped;
    expectDrawnInto(NSMakeRect(10, 40, 80, 40), draw(kPlace, 2, YES));
  }
}

TEST_F(ImageDrawing, InItsSize) {
  for (const BOOL flipped : {NO, YES}) {
    view->_flipped = flipped;
    expectDrawnInto(NSMakeRect(30, 40, 40, 20), draw(kPlace, 1, NO));
    expectDrawnInto(NSMakeRect(30, 60, 40, 20), draw(kPlace, 2, NO));
  }
}

TEST_F(ImageDrawing, StretchedAtEveryOtherPosition) {
  for (const BOOL flipped : {NO, YES}) {
    view->_flipped = flipped;
    for (const int position : {0, 3, -1, std::numeric_limits<int>::max()}) {
      expectDrawnInto(kPlace, draw(kPlace, position, YES));
      expectDrawnInto(kPlace, draw(kPlace, position, NO));
    }
  }
}

TEST_F(ImageDrawing, OnlyOneIsScaled) {
  draw(kPlace, 1, 2);
  EXPECT_EQ(view->_answer, NSMakeRect(30, 40, 40, 20));
}

TEST_F(ImageDrawing, TheImageIsReducedToo) {
  expectDrawnInto(NSMakeRect(40, 45, 20, 10), draw(NSMakeRect(40, 40, 20, 20), 1, YES));
}

TEST_F(ImageDrawing, YAtMaxYIsNotRoundedDown) {
  draw(NSMakeRect(0.5, 0.5, 80, 60), 2, NO);
  EXPECT_EQ(view->_answer, NSMakeRect(20, 40.5, 40, 20));
  draw(NSMakeRect(0.5, 0.75, 80, 60), 1, NO);
  EXPECT_EQ(view->_answer, NSMakeRect(20, 20, 40, 20));
}

TEST_F(ImageDrawing, TheFractionShowsWhatIsBelow) {
  view->_fraction = 0.5;
  const Picture half = draw(kPlace, 0, YES);
  EXPECT_TRUE(ov::test::near(half.at(50, 30), Pixel{255, 128, 128, 255})) << half.at(50, 30);
  view->_fraction = 0;
  expectNothing(draw(kPlace, 0, YES));
  EXPECT_EQ(view->_answer, kPlace);
}

TEST_F(ImageDrawing, TheOperationIsUsed) {
  view->_operation = NSCompositeClear;
  EXPECT_EQ(draw(kPlace, 0, YES).at(50, 50).a, 0);
  view->_operation = NSCompositeDestinationOver;
  expectNothing(draw(kPlace, 0, YES));
}

TEST_F(ImageDrawing, WithoutAreaNothingIsDrawn) {
  expectNothing(draw(NSMakeRect(50, 50, 0, 0), 0, YES));
  EXPECT_EQ(view->_answer, NSMakeRect(50, 50, 0, 0));
  expectNothing(draw(NSMakeRect(50, 50, 0, 0), 1, YES));
  EXPECT_EQ(view->_answer, NSMakeRect(50, 50, 0, 0));
  expectNothing(draw(NSMakeRect(50, 50, 30, 0), 2, YES));
  EXPECT_EQ(view->_answer, NSMakeRect(65, 50, 0, 0));
  expectNothing(draw(NSMakeRect(50, 50, -30, 30), 0, YES));
  EXPECT_EQ(view->_answer, NSMakeRect(50, 50, -30, 30));
}

TEST_F(ImageDrawing, AnEmptyImageDrawsNothing) {
  for (NSImage *image in @[
         [[[NSImage alloc] initWithSize:NSZeroSize] autorelease],
         [[[NSImage alloc] initWithSize:NSMakeSize(0, 20)] autorelease]
       ]) {
    view->_image = image;
    for (const int position : {0, 1, 2}) {
      expectNothing(draw(kPlace, position, YES));
      EXPECT_TRUE(position == 0 ? NSEqualRects(view->_answer, kPlace)
                                : NSIsEmptyRect(view->_answer) && NSMinX(view->_answer) == 50)
          << view->_answer;
    }
  }
  // One that has a size, but nothing to show.
  view->_image = [[[NSImage alloc] initWithSize:NSMakeSize(40, 20)] autorelease];
  expectNothing(draw(kPlace, 1, NO));
  EXPECT_EQ(view->_answer, NSMakeRect(30, 40, 40, 20));
}

TEST_F(ImageDrawing, NumbersThatAreNoneDrawNothing) {
  for (const CGFloat value : {kNaN, kInfinity, -kInfinity}) {
    for (const int position : {0, 1, 2}) {
      expectNothing(draw(NSMakeRect(value, 0, 9, 9), position, YES));
      EXPECT_EQ(view->_answer, NSZeroRect);
      expectNothing(draw(NSMakeRect(0, 0, 9, value), position, NO));
      EXPECT_EQ(view->_answer, NSZeroRect);
    }
  }
}

TEST_F(ImageDrawing, HugeRectanglesAndOddFractionsAreNoTrouble) {
  for (const CGFloat side : {1e5, 1e9, 1e20}) {
    draw(NSMakeRect(-side / 2, -side / 2, side, side), 0, YES);
    EXPECT_EQ(view->_answer.size.width, side);
  }
  for (const float fraction : {-1.0F, 2.0F, std::numeric_limits<float>::quiet_NaN()}) {
    view->_fraction = fraction;
    draw(kPlace, 0, YES);
  }
  view->_fraction = 1;
  expectDrawnInto(kPlace, draw(kPlace, 0, YES));
}

TEST_F(ImageDrawing, WithoutFocusTheAnswerIsTheSame) {
  ASSERT_EQ([NSView focusView], nil);
  [NSGraphicsContext setCurrentContext:nil];
  EXPECT_EQ([view->_image drawInRect:NSMakeRect(0, 0, 80, 60)
                          atPosition:1
                              scaled:YES
                           operation:NSCompositeSourceOver
                            fraction:1],
            NSMakeRect(0, 10, 80, 40));
}

}  // namespace
