// The lines between cells: which are stroked, and what they look like.

#import "GridTest.h"

#import <objc/runtime.h>

#include <algorithm>

using namespace ov::test;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

struct Stroke {
  NSPoint from, to;
  CGFloat width;
};

std::vector<Stroke> *strokes = nullptr;
void (*formerStroke)(id, SEL, NSPoint, NSPoint) = nullptr;

void recordStroke(id self, SEL selector, NSPoint from, NSPoint to) {
  strokes->push_back({from, to, [NSBezierPath defaultLineWidth]});
  formerStroke(self, selector, from, to);
}

// Collects the straight lines that are stroked while it exists.
class StrokeCapture {
 public:
  StrokeCapture() {
    strokes = &lines_;
    former_ = method_setImplementation(
        method(), reinterpret_cast<IMP>(reinterpret_cast<void *>(recordStroke)));
    formerStroke =
        reinterpret_cast<void (*)(id, SEL, NSPoint, NSPoint)>(reinterpret_cast<void *>(former_));
  }
  ~StrokeCapture() { method_setImplementation(method(), former_); }

  const std::vector<Stroke> &lines() const { return lines_; }

 private:
  static Method method() {
    return class_getClassMethod([NSBezierPath class], @selector(strokeLineFromPoint:toPoint:));
  }
  std::vector<Stroke> lines_;
  IMP former_;
};

class GridLineDrawing : public GridTest {
 protected:
  std::vector<Stroke> stroke(OvTestGrid *grid, NSRect rect) {
    StrokeCapture capture;
    [grid lockFocus];
    [grid drawGridLinesInRect:rect];
    [grid unlockFocus];
    return capture.lines();
  }

  // The x of upright lines, the y of level ones; only those that show in the rectangle.
  static std::vector<CGFloat> upright(const std::vector<Stroke> &all, NSRect rect) {
    std::vector<CGFloat> places;
    for (const Stroke &s : all) {
      if (s.from.x != s.to.x) continue;
      if (s.from.x + s.width / 2 <= NSMinX(rect) || s.from.x - s.width / 2 >= NSMaxX(rect))
        continue;
      places.push_back(s.from.x);
    }
    return places;
  }
  static std::vector<CGFloat> level(const std::vector<Stroke> &all, NSRect rect) {
    std::vector<CGFloat> places;
    for (const Stroke &s : all) {
      if (s.from.y != s.to.y) continue;
      if (s.from.y + s.width / 2 <= NSMinY(rect) || s.from.y - s.width / 2 >= NSMaxY(rect))
        continue;
      places.push_back(s.from.y);
    }
    return places;
  }

  static constexpr NSUInteger kInside = 0x80000000U;
};

TEST_F(GridLineDrawing, NoStyleDrawsNothing) {
  OvTestGrid *grid = gridInWindow(9);
  EXPECT_TRUE(stroke(grid, [grid bounds]).empty());
  // The limiting bit alone asks for no line.
  [grid setGridStyleMask:kInside];
  EXPECT_TRUE(stroke(grid, [grid bounds]).empty());
}

TEST_F(GridLineDrawing, InsideAGridOfThreeColumnsAreTwoUprightLines) {
  OvTestGrid *grid = gridInWindow(9, NSMakeSize(290, 200));
  [grid setFrameSize:NSMakeSize(200, 200)];
  [grid setGridStyleMask:1 | kInside];
  NSRect rect = NSMakeRect(0, 0, 290, 200);
  std::vector<Stroke> all = stroke(grid, rect);
  EXPECT_THAT(upright(all, rect), ElementsAre(64.5, 129.5));
  EXPECT_THAT(level(all, rect), IsEmpty());
  for (const Stroke &s : all) {
    EXPECT_EQ(std::min(s.from.y, s.to.y), 0);
    EXPECT_EQ(std::max(s.from.y, s.to.y), 200);
  }
}

TEST_F(GridLineDrawing, WithoutTheLimitTheyGoOnToTheEndOfThePart) {
  OvTestGrid *grid = gridInWindow(9);
  [grid setGridStyleMask:1];
  NSRect rect = NSMakeRect(0, 0, 290, 200);
  EXPECT_THAT(upright(stroke(grid, rect), rect), ElementsAre(64.5, 129.5, 194.5, 259.5));
}

TEST_F(GridLineDrawing, EveryBitFromTheThirtyFirstUpLimits) {
  OvTestGrid *grid = gridInWindow(9);
  NSRect rect = NSMakeRect(0, 0, 290, 200);
  for (int bit = 31; bit < static_cast<int>(sizeof(NSUInteger) * 8); bit += 8) {
    [grid setGridStyleMask:1 | (NSUInteger(1) << bit)];
    EXPECT_EQ(upright(stroke(grid, rect), rect).size(), 2u) << "bit " << bit;
  }
  [grid setGridStyleMask:1 | 0x40000000];
  EXPECT_EQ(upright(stroke(grid, rect), rect).size(), 4u);
}

TEST_F(GridLineDrawing, LevelLinesFollowTheRows) {
  OvTestGrid *grid = gridInWindow(9);
  [grid setGridStyleMask:2 | kInside];
  NSRect rect = NSMakeRect(0, 0, 200, 290);
  std::vector<Stroke> all = stroke(grid, rect);
  EXPECT_THAT(level(all, rect), ElementsAre(64.5, 129.5));
  EXPECT_THAT(upright(all, rect), IsEmpty());
  for (const Stroke &s : all) {
    EXPECT_EQ(std::min(s.from.x, s.to.x), 0);
    EXPECT_EQ(std::max(s.from.x, s.to.x), 200);
  }
  [grid setGridStyleMask:2];
  EXPECT_THAT(level(stroke(grid, rect), rect), ElementsAre(64.5, 129.5, 194.5, 259.5));
}

TEST_F(GridLineDrawing, BothDirectionsTogether) {
  OvTestGrid *grid = gridInWindow(9);
  [grid setGridStyleMask:3 | kInside];
  NSRect rect = NSMakeRect(0, 0, 200, 200);
  std::vector<Stroke> all = stroke(grid, rect);
  EXPECT_EQ(upright(all, rect).size(), 2u);
  EXPECT_EQ(level(all, rect).size(), 2u);
}

TEST_F(GridLineDrawing, LinesSpanTheDirtyPartOnly) {
  OvTestGrid *grid = gridInWindow(9);
  [grid setGridStyleMask:1];
  NSRect rect = NSMakeRect(100, 30, 50, 20);
  std::vector<Stroke> all = stroke(grid, rect);
  EXPECT_THAT(upright(all, rect), ElementsAre(129.5));
  for (const Stroke &s : all) {
    EXPECT_EQ(std::min(s.from.y, s.to.y), 30);
    EXPECT_EQ(std::max(s.from.y, s.to.y), 50);
  }
}

TEST_F(GridLineDrawing, WidthAndSpacingMoveThem) {
  OvTestGrid *grid = gridInWindow(9, NSMakeSize(290, 200));
  [grid setGridStyleMask:1];
  NSRect rect = NSMakeRect(0, 0, 80, 100);
  [grid setIntercellSpacing:NSMakeSize(3, 3)];
  EXPECT_THAT(upright(stroke(grid, rect), rect), ElementsAre(67 - 2 + 0.5));
  [grid setGridLineWidth:3];
  EXPECT_THAT(upright(stroke(grid, rect), rect), ElementsAre(67 - 2 + 1.5));
  [grid setIntercellSpacing:NSZeroSize];
  EXPECT_THAT(upright(stroke(grid, rect), rect), ElementsAre(64 + 1.5));
  [grid setIntercellSpacing:NSMakeSize(-4, 0)];
  EXPECT_THAT(upright(stroke(grid, rect), rect), ElementsAre(60 + 1.5));
}

TEST_F(GridLineDrawing, TheLineWidthIsUsedAndPutBack) {
  OvTestGrid *grid = gridInWindow(9);
  [grid setGridStyleMask:3];
  [grid setGridLineWidth:2.5];
  CGFloat before = [NSBezierPath defaultLineWidth];
  [NSBezierPath setDefaultLineWidth:7];
  for (const Stroke &s : stroke(grid, [grid bounds])) EXPECT_EQ(s.width, 2.5);
  EXPECT_EQ([NSBezierPath defaultLineWidth], 7);
  [NSBezierPath setDefaultLineWidth:before];
}

TEST_F(GridLineDrawing, ALineFillsTheGap) {
  OvTestGrid *grid = gridInWindow(9);
  [grid setBackgroundColor:[NSColor whiteColor]];
  [grid setGridColor:[NSColor redColor]];
  [grid setGridStyleMask:3 | kInside];
  Picture picture = pictureOf(grid);
  EXPECT_EQ(picture.at(63, 20), kWhite);
  EXPECT_EQ(picture.at(64, 20), kRed);
  EXPECT_EQ(picture.at(65, 20), kWhite);
  EXPECT_EQ(picture.at(20, 63), kWhite);
  EXPECT_EQ(picture.at(20, 64), kRed);
  EXPECT_EQ(picture.at(20, 65), kWhite);
  EXPECT_EQ(picture.at(194, 20), kWhite) << "after the last column";
  EXPECT_EQ(picture.at(20, 193), kWhite);
}

TEST_F(GridLineDrawing, WithoutAColourItIsThePlatforms) {
  OvTestGrid *grid = gridInWindow(9);
  [grid setBackgroundColor:[NSColor whiteColor]];
  [grid setGridStyleMask:1];
  NSColor *color = [[NSColor gridColor] colorUsingColorSpaceName:NSDeviceRGBColorSpace];
  Pixel expected{static_cast<int>([color redComponent] * 255 + 0.5),
                 static_cast<int>([color greenComponent] * 255 + 0.5),
                 static_cast<int>([color blueComponent] * 255 + 0.5), 255};
  ASSERT_FALSE(near(expected, kWhite));
  EXPECT_TRUE(near(pictureOf(grid).at(64, 20), expected));
}

TEST_F(GridLineDrawing, TheDrawingStateIsPutBack) {
  OvTestGrid *grid = gridInWindow(9);
  [grid setGridColor:[NSColor redColor]];
  [grid setGridStyleMask:3];
  [grid lockFocus];
  [[NSColor greenColor] set];
  [grid drawGridLinesInRect:[grid bounds]];
  NSRectFill(NSMakeRect(10, 10, 5, 5));
  NSBitmapImageRep *rep = [[NSBitmapImageRep alloc] initWithFocusedViewRect:[grid bounds]];
  [grid unlockFocus];
  Picture picture(rep);
  [rep release];
  EXPECT_EQ(picture.at(12, 12), kGreen);
}

NSShadow *redShadow(CGFloat right, CGFloat up, CGFloat blur) {
  NSShadow *shadow = [[[NSShadow alloc] init] autorelease];
  [shadow setShadowOffset:NSMakeSize(right, up)];
  [shadow setShadowBlurRadius:blur];
  [shadow setShadowColor:[NSColor redColor]];
  return shadow;
}

// The shadow's offset is in the window's sense, up being positive, also in a flipped view.
TEST_F(GridLineDrawing, AShadowFallsWhereItsOffsetSays) {
  OvTestGrid *grid = gridInWindow(9);
  [grid setBackgroundColor:[NSColor whiteColor]];
  [grid setGridColor:[NSColor blackColor]];
  auto shadowed = [&](int x, int y) {
    Pixel p = pictureOf(grid).at(x, y);
    return p.r > p.g + 20;
  };
  [grid setGridStyleMask:1 | kInside];
  EXPECT_FALSE(shadowed(68, 20));
  [grid setGridShadow:redShadow(4, 0, 1)];
  EXPECT_TRUE(shadowed(68, 20));
  EXPECT_FALSE(shadowed(60, 20));
  EXPECT_EQ(pictureOf(grid).at(64, 20), kBlack) << "the line itself is on top";
  [grid setGridShadow:redShadow(-4, 0, 1)];
  EXPECT_TRUE(shadowed(60, 20));
  EXPECT_FALSE(shadowed(68, 20));
  [grid setGridStyleMask:2 | kInside];
  [grid setGridShadow:redShadow(0, -4, 1)];
  EXPECT_TRUE(shadowed(20, 68)) << "down";
  EXPECT_FALSE(shadowed(20, 60));
  [grid setGridShadow:redShadow(0, 4, 1)];
  EXPECT_TRUE(shadowed(20, 60)) << "up";
  EXPECT_FALSE(shadowed(20, 68));
}

TEST_F(GridLineDrawing, AShadowIsNotCutOffAtTheEdgeOfAPart) {
  // Drawn in two parts, the shadow looks as drawn in one. Lines are where they are; what a
  // part shows of a line outside it is its shadow.
  OvTestGrid *grid = gridInWindow(9, NSMakeSize(200, 200));
  [grid setBackgroundColor:[NSColor whiteColor]];
  [grid setGridStyleMask:1 | kInside];
  [grid setGridShadow:redShadow(-6, 0, 1)];
  [grid setNeedsDisplay:YES];
  Picture whole = pictureOf(grid);
  [grid lockFocus];
  [[NSColor whiteColor] set];
  NSRectFill([grid bounds]);
  NSRectClip(NSMakeRect(0, 0, 60, 200));
  [grid drawRect:NSMakeRect(0, 0, 60, 200)];
  NSBitmapImageRep *rep =
      [[NSBitmapImageRep alloc] initWithFocusedViewRect:NSMakeRect(0, 0, 60, 194)];
  [grid unlockFocus];
  Picture part(rep);
  [rep release];
  for (int x = 54; x < 60; x++) EXPECT_EQ(part.at(x, 100), whole.at(x, 100)) << x;
}

}  // namespace
