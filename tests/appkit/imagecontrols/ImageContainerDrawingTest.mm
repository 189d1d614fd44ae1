#include <cstdint>
#include <limits>
#include <string>
#include <vector>

#import "Artwork.h"

/* Writes down what its frames draw, and draws it or does something else. */
@interface OvTestDrawingContainer : OvTestContainer {
 @public
  std::vector<std::pair<uint32_t, NSRect>> pieces;
  std::vector<uint32_t> variations;
  std::function<void(uint32_t)> afterPiece;
  NSSize leftSize;
}
@end

@implementation OvTestDrawingContainer
- (NSSize)imageSizeForImagePart:(HXImageControlImagePart)part {
  return part == 1 && leftSize.width > 0 ? leftSize : [super imageSizeForImagePart:part];
}
- (void)drawImageInRect:(NSRect)rect
              isFlipped:(BOOL)flipped
              imagePart:(HXImageControlImagePart)part
         imageVariation:(HXImageControlImageVariation)variation {
  pieces.emplace_back(part, rect);
  variations.push_back(variation);
  [super drawImageInRect:rect isFlipped:flipped imagePart:part imageVariation:variation];
  if (afterPiece) afterPiece(part);
}
@end

/* Tells its owner that it is drawn. */
@interface OvTestTellingImage : NSImage {
 @public
  std::function<void()> tell;
}
@end

@implementation OvTestTellingImage
- (void)setFlipped:(BOOL)flag {
  if (tell) tell();
  [super setFlipped:flag];
}
@end

namespace {

using ov::test::corners;
using ov::test::drawn;
using ov::test::enlarged;
using ov::test::imageOf;
using ov::test::isAll;
using ov::test::kBlack;
using ov::test::kBlue;
using ov::test::kGreen;
using ov::test::kRed;
using ov::test::kWhite;
using ov::test::kYellow;
using ov::test::Picture;
using ov::test::Pixel;
using ov::test::plain;

constexpr CGFloat kNaN = std::numeric_limits<CGFloat>::quiet_NaN();
constexpr CGFloat kInfinity = std::numeric_limits<CGFloat>::infinity();

// One for each part of a frame, and a lighter one for another state.
constexpr Pixel kColors[11] = {
    {100, 100, 100, 255}, {200, 0, 0, 255},   {0, 200, 0, 255},   {0, 0, 200, 255},
    {200, 200, 0, 255},   {0, 200, 200, 255}, {200, 0, 200, 255}, {200, 100, 0, 255},
    {0, 100, 200, 255},   {50, 50, 0, 255},   {0, 50, 50, 255},
};
Pixel lighter(const Pixel &color) { return {color.r + 50, color.g + 50, color.b + 50, 255}; }

class ImageContainerDrawing : public ov::test::LiveTest {
 protected:
  void SetUp() override {
    LiveTest::SetUp();
    container = [[[OvTestDrawingContainer alloc] init] autorelease];
  }

  void set(uint32_t part, uint32_t variation, NSImage *image) {
    HXImageSegment *segment = [[[HXImageSegment alloc] initWithImage:image] autorelease];
    [container setImage:segment forImagePart:part imageVariation:variation];
  }
  void set(uint32_t part, NSImage *image, NSRect rect) {
    HXImageSegment *segment = [[[HXImageSegment alloc] initWithImage:image rect:rect] autorelease];
    [container setImage:segment forImagePart:part imageVariation:0];
  }
  // Edges 3 and 4 points thick at the left and right, 5 and 6 at the top and bottom.
  void setFrame(uint32_t variation, bool light) {
    const struct {
      int width, height;
    } sizes[11] = {{7, 7}, {3, 7}, {4, 7}, {7, 5}, {7, 6}, {3, 5},
                   {4, 5}, {3, 6}, {3, 6}, {9, 9}, {9, 9}};
    for (uint32_t part = 0; part < 11; part++) {
      const Pixel color = light ? lighter(kColors[part]) : kColors[part];
      set(part, variation, imageOf(plain(sizes[part].width, sizes[part].height, color)));
    }
  }

  Picture drawFrame(BOOL flipped, uint32_t variation, NSRect place = NSMakeRect(10, 10, 20, 20)) {
    return drawn(NSMakeSize(40, 40), flipped, [&] {
      [container drawImageInRect:place isFlipped:flipped imageVariation:variation];
    });
  }
  Picture drawPiece(BOOL flipped, uint32_t part = 0, uint32_t variation = 0,
                    NSRect place = NSMakeRect(10, 10, 20, 20)) {
    return drawn(NSMakeSize(40, 40), flipped, [&] {
      [container drawImageInRect:place isFlipped:flipped imagePart:part imageVariation:variation];
    });
  }
  void expectNothing(const Picture &picture) {
    EXPECT_TRUE(isAll(picture, NSMakeRect(0, 0, 40, 40), kWhite));
  }
  void expectCorners(const Picture &picture) {
    EXPECT_TRUE(isAll(picture, NSMakeRect(10, 10, 10, 10), kRed));
    EXPECT_TRUE(isAll(picture, NSMakeRect(20, 10, 10, 10), kGreen));
    EXPECT_TRUE(isAll(picture, NSMakeRect(10, 20, 10, 10), kBlue));
    EXPECT_TRUE(isAll(picture, NSMakeRect(20, 20, 10, 10), kYellow));
    EXPECT_EQ(picture.count(NSMakeRect(0, 0, 40, 40), kWhite), 1200);
  }

  OvTestDrawingContainer *container = nil;
};

constexpr NSRect kPlace = {{10, 10}, {20, 20}};

// MARK: One piece

TEST_F(ImageContainerDrawing, PiecesAreUprightInAnyView) {
  set(0, 0, imageOf(corners()));
  for (const BOOL flipped : {NO, YES}) expectCorners(drawPiece(flipped));
}

TEST_F(ImageContainerDrawing, TheRectangleCountsAsTheViewDoes) {
  NSImage *image = imageOf(corners());
  for (const BOOL flipped : {NO, YES}) {
    SCOPED_TRACE(flipped ? "flipped" : "not flipped");
    set(0, image, NSMakeRect(0, 0, 5, 5));
    EXPECT_TRUE(isAll(drawPiece(flipped), kPlace, flipped ? kRed : kBlue));
    set(0, image, NSMakeRect(5, 5, 5, 5));
    EXPECT_TRUE(isAll(drawPiece(flipped), kPlace, flipped ? kYellow : kGreen));
    // Across the middle: both, upright.
    set(0, image, NSMakeRect(0, 3, 5, 4));
    const Picture both = drawPiece(flipped);
    EXPECT_TRUE(isAll(both, NSMakeRect(10, 10, 20, 10), kRed));
    EXPECT_TRUE(isAll(both, NSMakeRect(10, 20, 20, 10), kBlue));
  }
}

TEST_F(ImageContainerDrawing, TheImageIsLeftFlipped) {
  NSImage *image = imageOf(corners());
  set(0, 0, image);
  drawPiece(YES);
  EXPECT_TRUE([image isFlipped]);
  drawPiece(NO);
  EXPECT_FALSE([image isFlipped]);
}

TEST_F(ImageContainerDrawing, DefaultStandsInForAStateThatIsMissing) {
  set(9, 0, imageOf(plain(5, 5, kRed)));
  set(9, 3, imageOf(plain(5, 5, kGreen)));
  EXPECT_TRUE(isAll(drawPiece(YES, 9, 3), kPlace, kGreen));
  for (const uint32_t variation : {0, 1, 2, 4}) {
    EXPECT_TRUE(isAll(drawPiece(YES, 9, variation), kPlace, kRed));
  }
  // But not for one that is there, without an image.
  [container setImage:[[[HXImageSegment alloc] init] autorelease] forImagePart:9 imageVariation:3];
  expectNothing(drawPiece(YES, 9, 3));
}

TEST_F(ImageContainerDrawing, AnotherStateDoesNotStandInForDefault) {
  set(9, 3, imageOf(plain(5, 5, kGreen)));
  expectNothing(drawPiece(YES, 9, 0));
  expectNothing(drawPiece(YES, 9, 1));
  expectNothing(drawPiece(YES, 8, 3));
}

TEST_F(ImageContainerDrawing, WhatIsNoPartOrVariationDrawsNothing) {
  set(0, 0, imageOf(corners()));
  for (const uint32_t part : {11u, 55u, UINT32_MAX}) expectNothing(drawPiece(YES, part, 0));
  for (const uint32_t variation : {5u, 55u, UINT32_MAX}) {
    expectNothing(drawPiece(YES, 0, variation));
    expectNothing(drawFrame(YES, variation));
  }
}

TEST_F(ImageContainerDrawing, WhatIsBelowShowsThroughTransparentPixels) {
  set(0, 0, imageOf({{{255, 0, 0, 128}, {0, 0, 0, 0}}}));
  const Picture picture = drawPiece(YES);
  EXPECT_TRUE(ov::test::near(picture.at(15, 15), Pixel{255, 127, 127, 255}, 4))
      << picture.at(15, 15);
  EXPECT_TRUE(isAll(picture, NSMakeRect(20, 10, 10, 20), kWhite));
}

// MARK: Frames

TEST_F(ImageContainerDrawing, FramesHaveTheirPiecesAround) {
  setFrame(0, false);
  for (const BOOL flipped : {NO, YES}) {
    SCOPED_TRACE(flipped ? "flipped" : "not flipped");
    const Picture picture = drawFrame(flipped, 0);
    const struct {
      uint32_t part;
      NSRect rect;
    } rows[] = {
        {0, {{13, 15}, {13, 9}}}, {1, {{10, 15}, {3, 9}}},  {2, {{26, 15}, {4, 9}}},
        {3, {{13, 10}, {13, 5}}}, {4, {{13, 24}, {14, 6}}}, {5, {{10, 10}, {3, 5}}},
        {6, {{26, 10}, {4, 5}}},  {7, {{10, 24}, {3, 6}}},  {8, {{27, 24}, {3, 6}}},
    };
    int area = 0;
    for (const auto &row : rows) {
      SCOPED_TRACE(row.part);
      NSRect rect = row.rect;
      if (!flipped) rect.origin.y = 40 - NSMaxY(rect);
      EXPECT_TRUE(isAll(picture, rect, kColors[row.part]));
      area += picture.count(NSMakeRect(0, 0, 40, 40), kColors[row.part]);
    }
    EXPECT_EQ(area, 400) << "nothing but the frame";
    EXPECT_EQ(picture.count(NSMakeRect(0, 0, 40, 40), kWhite), 1200);
  }
}

TEST_F(ImageContainerDrawing, ACutPictureIsPutTogetherAgain) {
  NSImage *image = imageOf(enlarged({{kRed, kGreen, kBlue, kRed},
                                     {kGreen, kYellow, kYellow, kBlue},
                                     {kBlue, kYellow, kYellow, kGreen},
                                     {kYellow, kBlue, kRed, kGreen}},
                                    5));
  [container setStrechableImage:[[[HXImageSegment alloc] initWithImage:image] autorelease]
                        leftCap:5
                         topCap:5
              forImageVariation:0];
  set(9, 0, image);
  for (const BOOL flipped : {NO, YES}) {
    const Picture whole = drawPiece(flipped, 9);
    const Picture pieces = drawFrame(flipped, 0);
    for (int y = 0; y < 40; y++) {
      for (int x = 0; x < 40; x++) ASSERT_EQ(pieces.at(x, y), whole.at(x, y)) << x << ", " << y;
    }
  }
}

TEST_F(ImageContainerDrawing, AllStatesLookLikeTheOnlyOne) {
  setFrame(0, false);
  const Picture only = drawFrame(YES, 0);
  for (uint32_t variation = 1; variation < 5; variation++) {
    const Picture other = drawFrame(YES, variation);
    for (int y = 0; y < 40; y++) {
      for (int x = 0; x < 40; x++) ASSERT_EQ(other.at(x, y), only.at(x, y));
    }
  }
}

TEST_F(ImageContainerDrawing, APieceThatAStateLacksIsThatOfDefault) {
  setFrame(0, false);
  setFrame(1, true);
  [container setImage:nil forImagePart:1 imageVariation:1];
  const Picture picture = drawFrame(YES, 1);
  EXPECT_TRUE(isAll(picture, NSMakeRect(10, 15, 3, 9), kColors[1]));
  EXPECT_TRUE(isAll(picture, NSMakeRect(13, 15, 13, 9), lighter(kColors[0])));
  EXPECT_TRUE(isAll(picture, NSMakeRect(26, 15, 4, 9), lighter(kColors[2])));
}

TEST_F(ImageContainerDrawing, WithoutADefaultCenterThereIsNoFrame) {
  setFrame(0, false);
  setFrame(1, true);
  [container setImage:nil forImagePart:0 imageVariation:0];
  for (uint32_t variation = 0; variation < 5; variation++) {
    expectNothing(drawFrame(YES, variation));
  }
  EXPECT_TRUE(container->pieces.empty());
}

TEST_F(ImageContainerDrawing, TheCenterGivesWayToEdgesOnly) {
  setFrame(0, false);
  for (uint32_t part = 1; part <= 4; part++) {
    [container setImage:nil forImagePart:part imageVariation:0];
  }
  EXPECT_TRUE(isAll(drawFrame(YES, 0), kPlace, kColors[0])) << "over the corners";
}

// Sizes and presence are those of Default, whatever is drawn.
TEST_F(ImageContainerDrawing, DefaultLaysTheFrameOut) {
  setFrame(0, false);
  set(1, 1, imageOf(plain(9, 9, kRed)));
  const Picture wide = drawFrame(YES, 1);
  EXPECT_TRUE(isAll(wide, NSMakeRect(10, 15, 3, 9), kRed));
  EXPECT_TRUE(isAll(wide, NSMakeRect(13, 15, 13, 9), kColors[0]));
  [container setImage:nil forImagePart:1 imageVariation:0];
  const Picture without = drawFrame(YES, 1);
  EXPECT_EQ(without.count(kPlace, kRed), 0);
  EXPECT_TRUE(isAll(without, NSMakeRect(10, 15, 16, 9), kColors[0]));
}

TEST_F(ImageContainerDrawing, PiecesAreDrawnInOrderByTheMethodForOne) {
  setFrame(0, false);
  drawFrame(YES, 3);
  std::vector<uint32_t> order;
  for (const auto &piece : container->pieces) order.push_back(piece.first);
  EXPECT_EQ(order, (std::vector<uint32_t>{1, 2, 3, 4, 5, 6, 7, 8, 0})) << "no icon, no accessory";
  EXPECT_EQ(container->variations, std::vector<uint32_t>(9, 3));
}

TEST_F(ImageContainerDrawing, TheRightBottomCornerHasTheSizeOfTheOneBefore) {
  setFrame(0, false);
  set(8, 0, imageOf(plain(4, 6, kRed)));
  drawFrame(YES, 0);
  const auto &piece = container->pieces[7];
  EXPECT_EQ(piece.first, 8u);
  EXPECT_EQ(piece.second, NSMakeRect(26, 24, 3, 6));
}

TEST_F(ImageContainerDrawing, ASubclassMaySaySizes) {
  setFrame(0, false);
  container->leftSize = NSMakeSize(8, 1);
  const Picture picture = drawFrame(YES, 0);
  EXPECT_TRUE(isAll(picture, NSMakeRect(10, 15, 8, 9), kColors[1]));
  EXPECT_TRUE(isAll(picture, NSMakeRect(18, 15, 8, 9), kColors[0]));
}

TEST_F(ImageContainerDrawing, ChangesWhileAFrameIsDrawnDoNotHurt) {
  for (const uint32_t changed : {1u, 5u, 0u}) {
    setFrame(0, false);
    container->afterPiece = [&](uint32_t part) {
      if (part == changed) [container removeAllImages];
    };
    drawFrame(YES, 0);
    EXPECT_FALSE([container containsImageForImagePart:0]);
  }
  container->afterPiece = [&](uint32_t) { setFrame(0, true); };
  setFrame(0, false);
  drawFrame(YES, 0);
}

TEST_F(ImageContainerDrawing, AnImageMayBeTakenAwayWhileItIsDrawn) {
  @autoreleasepool {
    auto *image = static_cast<OvTestTellingImage *>(imageOf(corners(), [OvTestTellingImage class]));
    image->tell = [this] {
      @autoreleasepool {
        [container removeAllImages];
      }
    };
    set(0, 0, image);
  }
  drawPiece(YES);
  EXPECT_FALSE([container containsImageForImagePart:0]);
}

// MARK: Odd places

TEST_F(ImageContainerDrawing, NoPlaceShowsNothing) {
  setFrame(0, false);
  for (const NSRect place :
       {NSZeroRect, NSMakeRect(10, 10, 0, 0), NSMakeRect(kNaN, 0, 10, 10),
        NSMakeRect(0, kNaN, 10, 10), NSMakeRect(kInfinity, 0, 10, 10),
        NSMakeRect(0, 0, kInfinity, kInfinity), NSMakeRect(0, 0, kNaN, kNaN)}) {
    for (const BOOL flipped : {NO, YES}) expectNothing(drawPiece(flipped, 0, 0, place));
  }
  for (const NSRect place :
       {NSMakeRect(10, 10, -20, 20), NSMakeRect(10, 10, 20, -20), NSMakeRect(10, 10, 20, 0)}) {
    for (const BOOL flipped : {NO, YES}) expectNothing(drawPiece(flipped, 0, 0, place));
  }
}

TEST_F(ImageContainerDrawing, OddFramesDoNoHarm) {
  setFrame(0, false);
  for (const NSRect place : {NSZeroRect, NSMakeRect(10, 10, -20, -20), NSMakeRect(10, 10, 1, 1),
                             NSMakeRect(kNaN, kNaN, kNaN, kNaN), NSMakeRect(0, 0, kInfinity, 10),
                             NSMakeRect(-kInfinity, 0, kInfinity, 10), NSMakeRect(0, 0, 1e9, 1e9),
                             NSMakeRect(-1e15, -1e15, 2e15, 2e15), NSMakeRect(1e9, 1e9, 10, 10),
                             NSMakeRect(0, 0, std::numeric_limits<CGFloat>::max(), 1)}) {
    for (const BOOL flipped : {NO, YES}) drawFrame(flipped, 0, place);
  }
}

TEST_F(ImageContainerDrawing, HugePlacesShowTheirPart) {
  set(0, 0, imageOf(corners()));
  for (const BOOL flipped : {NO, YES}) {
    const NSRect all = NSMakeRect(0, 0, 40, 40);
    EXPECT_TRUE(isAll(drawPiece(flipped, 0, 0, NSMakeRect(0, 0, 10000, 10000)), all,
                      flipped ? kRed : kBlue));
    EXPECT_TRUE(isAll(drawPiece(flipped, 0, 0, NSMakeRect(-9000, -9000, 10000, 10000)), all,
                      flipped ? kYellow : kGreen));
  }
}

TEST_F(ImageContainerDrawing, WithoutAContextNothingHappens) {
  setFrame(0, false);
  NSGraphicsContext *context = [[NSGraphicsContext currentContext] retain];
  [NSGraphicsContext setCurrentContext:nil];
  [container drawImageInRect:kPlace isFlipped:NO imageVariation:0];
  [container drawImageInRect:kPlace isFlipped:NO imagePart:9 imageVariation:0];
  [NSGraphicsContext setCurrentContext:context];
  [context release];
  EXPECT_EQ(container->pieces.size(), 10u);
}

// MARK: Odd rectangles

TEST_F(ImageContainerDrawing, WhatLiesBesideTheImageIsNotDrawn) {
  NSImage *image = imageOf(corners());
  for (const BOOL flipped : {NO, YES}) {
    SCOPED_TRACE(flipped ? "flipped" : "not flipped");
    // The image is the middle of it, in the same place in both kinds of view.
    set(0, image, NSMakeRect(-10, -10, 30, 30));
    const Picture middle = drawPiece(flipped, 0, 0, NSMakeRect(-10, -10, 60, 60));
    expectCorners(middle);
    // Only its right half is there.
    set(0, image, NSMakeRect(-10, 0, 20, 10));
    const Picture right = drawPiece(flipped);
    EXPECT_TRUE(isAll(right, NSMakeRect(0, 0, 20, 40), kWhite));
    EXPECT_TRUE(isAll(right, NSMakeRect(20, 10, 5, 10), kRed));
    EXPECT_TRUE(isAll(right, NSMakeRect(25, 20, 5, 10), kYellow));
    for (const NSRect beside :
         {NSMakeRect(10, 0, 10, 10), NSMakeRect(0, -10, 10, 10), NSMakeRect(500, 500, 10, 10),
          NSMakeRect(5, 5, 0, 5), NSMakeRect(5, 5, -5, 5), NSMakeRect(kNaN, 0, 5, 5),
          NSMakeRect(0, 0, kInfinity, kInfinity)}) {
      set(0, image, beside);
      expectNothing(drawPiece(flipped));
    }
  }
}

TEST_F(ImageContainerDrawing, TheZeroRectangleIsTheWholeImage) {
  set(0, imageOf(corners()), NSZeroRect);
  for (const BOOL flipped : {NO, YES}) expectCorners(drawPiece(flipped));
}

// Tiles of 33.3 points: no tile shows more of its neighbour than the column that they share.
TEST_F(ImageContainerDrawing, TilesThatAreNotWholePointsKeepToThemselves) {
  ov::test::Rows rows = plain(100, 10, kRed);
  for (auto &row : rows) {
    for (size_t x = 33; x < 100; x++) row[x] = x < 66 ? kGreen : kBlue;
    row[33] = row[66] = kBlack;
  }
  NSImage *image = imageOf(rows);
  const Pixel own[] = {kRed, kGreen, kBlue};
  for (int tile = 0; tile < 3; tile++) {
    SCOPED_TRACE(tile);
    set(0, image, NSMakeRect(tile * 100.0 / 3, 0, 100.0 / 3, 10));
    for (const int width : {20, 33, 34, 40}) {
      for (const BOOL flipped : {NO, YES}) {
        const NSRect place = NSMakeRect(0, 10, width, 20);
        const Picture picture = drawPiece(flipped, 0, 0, place);
        const int shared = picture.count(place, kBlack);
        EXPECT_EQ(picture.count(place, own[tile]) + shared, width * 20) << width;
        EXPECT_LE(shared, 20 * 2 * (width + 32) / 33) << width;
        EXPECT_EQ(picture.count(NSMakeRect(0, 0, 40, 40), kWhite), 1600 - width * 20);
      }
    }
  }
}

// MARK: Images of several resolutions

TEST_F(ImageContainerDrawing, ImagesOfSeveralResolutionsAreCutInPoints) {
  NSImage *image = imageOf(corners());
  NSBitmapImageRep *fine = ov::test::bitmapOf(enlarged(corners(), 2));
  [fine setSize:NSMakeSize(10, 10)];
  [image addRepresentation:fine];
  NSImage *fineAlone = [[[NSImage alloc] initWithSize:NSMakeSize(10, 10)] autorelease];
  [fineAlone addRepresentation:fine];
  for (NSImage *any : {image, fineAlone}) {
    EXPECT_EQ([any size], NSMakeSize(10, 10));
    for (const BOOL flipped : {NO, YES}) {
      set(0, 0, any);
      expectCorners(drawPiece(flipped));
      set(0, any, NSMakeRect(5, 5, 5, 5));
      EXPECT_TRUE(isAll(drawPiece(flipped), kPlace, flipped ? kYellow : kGreen));
      [container setStrechableImage:[[[HXImageSegment alloc] initWithImage:any] autorelease]
                            leftCap:2
                             topCap:2
                  forImageVariation:0];
      expectCorners(drawFrame(flipped, 0));
    }
  }
}

TEST_F(ImageContainerDrawing, AnImageMayHaveAnotherSizeThanItsPixels) {
  NSImage *image = imageOf(corners());
  [image setSize:NSMakeSize(40, 20)];
  set(0, image, NSMakeRect(20, 0, 20, 10));
  for (const BOOL flipped : {NO, YES}) {
    EXPECT_TRUE(isAll(drawPiece(flipped), kPlace, flipped ? kGreen : kYellow));
  }
}

TEST_F(ImageContainerDrawing, WithoutFocusPiecesAreAskedForAtFractionsOfAPoint) {
  setFrame(0, false);
  ASSERT_EQ([NSView focusView], nil);
  [container drawImageInRect:NSMakeRect(10.25, 20.5, 30.5, 40.25) isFlipped:NO imageVariation:0];
  ASSERT_EQ(container->pieces.size(), 9u);
  EXPECT_EQ(container->pieces[0].second, NSMakeRect(10.25, 25.5, 3, 29.25));
  EXPECT_EQ(container->pieces[1].second, NSMakeRect(36.75, 25.5, 4, 29.25));
  EXPECT_EQ(container->pieces[8].second, NSMakeRect(13.25, 25.5, 23.5, 29.25));
}

}  // namespace
