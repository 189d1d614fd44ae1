#import "FrameHost.h"

#include <functional>
#include <string>
#include <vector>

namespace {

using ov::test::heldPictures;
using ov::test::imageDrawings;
using ov::test::kDefault;
using ov::test::kDisabled;
using ov::test::kHighlighted;
using ov::test::noise;
using ov::test::Plane;
using ov::test::Random;
using ov::test::Samples;

class ComposedFrames : public ov::test::FrameTest {};

constexpr NSRect kPlace = {{20, 30}, {120, 60}};

TEST_F(ComposedFrames, TheThirdDrawingIsOfOnePicture) {
  EXPECT_EQ(drawingsFor(kPlace), 9);
  EXPECT_EQ(drawingsFor(kPlace), 9) << "into the picture";
  EXPECT_EQ(drawingsFor(kPlace), 0);
  EXPECT_EQ(drawingsFor(NSOffsetRect(kPlace, 13, -7)), 0) << "anywhere";
  expectAsPlain(kPlace);
}

TEST_F(ComposedFrames, AFirstDrawingMakesNoPicture) {
  draw(container, kPlace);
  const int before = heldPictures();
  for (int i = 1; i < 100; ++i) {
    EXPECT_EQ(drawingsFor(NSMakeRect(10, 10, 40 + i, 50)), 9);
  }
  EXPECT_EQ(heldPictures(), before);
}

TEST_F(ComposedFrames, EachVariationFlipAndSizeHasItsOwn) {
  setStretchable(noise(24, 24, random), kHighlighted);
  for (const BOOL viewFlipped : {NO, YES}) {
    view->_flipped = viewFlipped;
    for (const BOOL flipped : {NO, YES}) {
      for (const auto variation : {kDefault, kHighlighted, kDisabled}) {
        for (const NSSize size : {NSMakeSize(120, 60), NSMakeSize(121, 60), NSMakeSize(120, 61)}) {
          const NSRect rect = {NSMakePoint(20, 30), size};
          const Samples expected = draw(plain, rect, variation, {}, flipped);
          for (int i = 0; i < 4; ++i) {
            EXPECT_LE(draw(container, rect, variation, {}, flipped).distance(expected), 1)
                << "view flipped " << int{viewFlipped} << ", flipped " << int{flipped}
                << ", variation " << variation << ", size " << size << ", drawing " << i;
          }
        }
      }
    }
  }
}

// Everything at random: sizes down to nothing, fractions of pixels, pieces that are not there or
// overlap, scales.
TEST_F(ComposedFrames, ThePictureIsWhatThePiecesShow) {
  SCOPED_TRACE(random.describe());
  int composed = 0;
  for (int round = 0; round < 120; ++round) {
    @autoreleasepool {
      view->_flipped = random.oneIn(2);
      if (random.oneIn(4)) {
        setStretchable(noise(24, 24, random), kDefault);
      } else {
        NSImage *sheet = noise(40, 40, random);
        for (HXImageControlImagePart part = 0; part < 9; ++part) {
          for (const auto variation : {kDefault, kHighlighted}) {
            if (part > 0 && random.oneIn(4)) {
              [container setImage:nil forImagePart:part imageVariation:variation];
              [plain setImage:nil forImagePart:part imageVariation:variation];
              continue;
            }
            const NSRect rect = NSMakeRect(random.integer(0, 30), random.integer(0, 30),
                                           random.integer(1, 14), random.integer(1, 14));
            setPiece(random.oneIn(3) ? noise(30, 30, random) : sheet, rect, part, variation);
          }
        }
      }
      const double unit = random.pick(std::vector<double>{1, 0.5, 0.25, 0.1});
      const auto number = [&](int low, int high) {
        return static_cast<double>(random.integer(low, high)) * unit;
      };
      const NSRect rect =
          NSMakeRect(number(20, 50), number(20, 50), number(-4, 90), number(-4, 90));
      const Plane plane{random.pick(std::vector<double>{1, 1, 1.5, 2, 1.25}), 0};
      const auto variation = random.pick(std::vector{kDefault, kHighlighted});
      const Samples expected = draw(plain, rect, variation, plane);
      for (int i = 0; i < 3; ++i) {
        const int before = imageDrawings();
        const Samples drawn = draw(container, rect, variation, plane);
        // Each layer of up to nine is rounded.
        ASSERT_LE(drawn.distance(expected), 2)
            << "round " << round << ", drawing " << i << ", " << rect << " at " << plane.scale;
        if (i == 2 && imageDrawings() == before) ++composed;
      }
    }
  }
  EXPECT_GT(composed, 100) << "or else little was compared";
}

TEST_F(ComposedFrames, AFrameBetweenPixelsHasItsOwnPicture) {
  composeFor(kPlace);
  const NSRect between = NSOffsetRect(kPlace, 0.5, 0.25);
  EXPECT_EQ(drawingsFor(between), 9);
  EXPECT_EQ(drawingsFor(between), 9);
  EXPECT_EQ(drawingsFor(NSOffsetRect(between, 3, 4)), 0);
  expectAsPlain(between);
}

TEST_F(ComposedFrames, ATurnedPlaneIsDrawnInPieces) {
  for (const double turn : {30.0, 90.0}) {
    for (int i = 0; i < 3; ++i) {
      EXPECT_EQ(drawingsFor(NSMakeRect(90, -40, 60, 40), kDefault, {1, turn}), 9);
    }
    expectAsPlain(NSMakeRect(90, -40, 60, 40), kDefault, {1, turn});
  }
}

TEST_F(ComposedFrames, InterpolationIsLeftToThePieces) {
  composeFor(kPlace);
  const auto interpolated = [&](HXImageControlImageContainer *drawn) {
    return Samples(view, {}, [&] {
      NSGraphicsContext *context = [NSGraphicsContext currentContext];
      const NSImageInterpolation before = [context imageInterpolation];
      [context setImageInterpolation:NSImageInterpolationHigh];
      [drawn drawImageInRect:kPlace isFlipped:YES imageVariation:kDefault];
      [context setImageInterpolation:before];
    });
  };
  EXPECT_EQ(interpolated(container).distance(interpolated(plain)), 0);
  EXPECT_GT(interpolated(plain).distance(draw(plain, kPlace)), 1) << "or else nothing was compared";
}

TEST_F(ComposedFrames, ImagesAreLeftFlippedAsAfterPieces) {
  NSImage *center = noise(24, 24, random);
  setPiece(center, NSMakeRect(2, 3, 9, 8), HXImageControlImagePartCenter, kDefault);
  NSImage *icon = noise(8, 8, random);
  setPiece(icon, NSMakeRect(0, 0, 8, 8), HXImageControlImagePartIcon, kDefault);
  for (const BOOL flipped : {YES, NO}) {
    for (int i = 0; i < 4; ++i) {
      for (NSImage *each in @[ image, center, icon ]) [each setFlipped:!flipped];
      draw(container, kPlace, kDefault, {}, flipped);
      EXPECT_EQ([image isFlipped], flipped) << i;
      EXPECT_EQ([center isFlipped], flipped) << i;
      EXPECT_EQ([icon isFlipped], !flipped) << "not drawn by the frame";
    }
  }
}

TEST_F(ComposedFrames, TheGraphicsStateIsLeftAsItWas) {
  composeFor(kPlace);
  Samples(view, {1.5, 0}, [&] {
    NSGraphicsContext *context = [NSGraphicsContext currentContext];
    const NSAffineTransformStruct before = [[context GSCurrentCTM] transformStruct];
    for (int i = 0; i < 3; ++i) {
      [container drawImageInRect:kPlace isFlipped:YES imageVariation:kDefault];
      const NSAffineTransformStruct after = [[context GSCurrentCTM] transformStruct];
      EXPECT_EQ(after.m11, before.m11);
      EXPECT_EQ(after.m22, before.m22);
      EXPECT_EQ(after.tX, before.tX);
      EXPECT_EQ(after.tY, before.tY);
      EXPECT_EQ([NSGraphicsContext currentContext], context);
      EXPECT_EQ([NSView focusView], view);
    }
  });
}

// MARK: What changes

struct Change {
  std::string name;
  // What a host does to the image of all pieces.
  std::function<void(NSImage *, Random &)> make;
  friend void PrintTo(const Change &change, std::ostream *out) { *out << change.name; }
};

class ComposedFramesOfAChangedImage : public ComposedFrames,
                                      public ::testing::WithParamInterface<Change> {};

TEST_P(ComposedFramesOfAChangedImage, ShowTheChange) {
  const Samples before = draw(plain, kPlace);
  composeFor(kPlace);
  GetParam().make(image, random);
  // The plain container second: it must not be the one that makes the platform notice.
  std::vector<Samples> after;
  for (int i = 0; i < 14; ++i) after.push_back(draw(container, kPlace));
  const Samples expected = draw(plain, kPlace);
  EXPECT_GT(expected.distance(before), 1) << "or else nothing was changed";
  for (size_t i = 0; i < after.size(); ++i) EXPECT_LE(after[i].distance(expected), 1) << i;
}

INSTANTIATE_TEST_SUITE_P(
    Changes, ComposedFramesOfAChangedImage,
    ::testing::Values(
        Change{"Size", [](NSImage *image, Random &) { [image setSize:NSMakeSize(36, 30)]; }},
        Change{"Recached",
               [](NSImage *image, Random &) {
                 ov::test::invertBitmap(image);
                 [image recache];
               }},
        Change{"DrawnInto",
               [](NSImage *image, Random &) {
                 [image lockFocus];
                 [[NSColor redColor] set];
                 NSRectFill(NSMakeRect(2, 2, 20, 20));
                 [image unlockFocus];
               }},
        Change{"DrawnIntoARepresentation",
               [](NSImage *image, Random &) {
                 [image lockFocusOnRepresentation:[[image representations] objectAtIndex:0]];
                 [[NSColor redColor] set];
                 NSRectFill(NSMakeRect(2, 2, 20, 20));
                 [image unlockFocus];
               }},
        Change{"NewRepresentation",
               [](NSImage *image, Random &random) {
                 NSImage *other = ov::test::noise(24, 24, random);
                 NSArray *old = [NSArray arrayWithArray:[image representations]];
                 [image addRepresentation:[[other representations] objectAtIndex:0]];
                 for (NSImageRep *rep in old) [image removeRepresentation:rep];
               }},
        Change{"NoRepresentation",
               [](NSImage *image, Random &) {
                 for (NSImageRep *rep in [NSArray arrayWithArray:[image representations]]) {
                   [image removeRepresentation:rep];
                 }
               }},
        Change{"NoCopies",
               [](NSImage *image, Random &) {
                 [image setCacheMode:NSImageCacheNever];
                 ov::test::invertBitmap(image);
               }}),
    [](const auto &info) { return info.param.name; });

TEST_F(ComposedFrames, AnImageThatIsDrawnIntoEveryTimeShowsThat) {
  int made = 0;
  for (int i = 0; i < 40; ++i) {
    [image lockFocus];
    [[NSColor colorWithDeviceRed:i / 40.0 green:0 blue:1 alpha:1] set];
    NSRectFill(NSMakeRect(2, 2, 20, 20));
    [image unlockFocus];
    const int before = heldPictures();
    const Samples drawn = draw(container, kPlace);
    made += heldPictures() > before;
    EXPECT_LE(drawn.distance(draw(plain, kPlace)), 1) << i;
  }
  EXPECT_LE(made, 6) << "pictures that are never used";
}

TEST_F(ComposedFrames, AnImageThatIsNotCopiedIsDrawnEveryTime) {
  [image setCacheMode:NSImageCacheNever];
  for (int i = 0; i < 4; ++i) {
    EXPECT_EQ(drawingsFor(kPlace), 9);
    ov::test::invertBitmap(image);
    expectAsPlain(kPlace);
  }
}

TEST_F(ComposedFrames, WhatHasNoEffectChangesNothing) {
  composeFor(kPlace);
  [image setFlipped:NO];
  [image setDataRetained:YES];
  [image setName:@"OvTestComposedFrame"];
  EXPECT_EQ(drawingsFor(kPlace), 0);
  [image setName:nil];
}

TEST_F(ComposedFrames, AnotherSegmentIsShown) {
  composeFor(kPlace);
  setPiece(noise(24, 24, random), NSMakeRect(1, 2, 9, 8), HXImageControlImagePartTop, kDefault);
  for (int i = 0; i < 4; ++i) expectAsPlain(kPlace);
  setPiece(image, NSMakeRect(3, 4, 9, 8), HXImageControlImagePartTop, kDefault);
  for (int i = 0; i < 4; ++i) expectAsPlain(kPlace);
  // The size of a piece is its default's.
  setPiece(image, NSMakeRect(3, 4, 9, 3), HXImageControlImagePartTop, kHighlighted);
  for (int i = 0; i < 4; ++i) expectAsPlain(kPlace, kHighlighted);
  setPiece(image, NSMakeRect(3, 4, 9, 11), HXImageControlImagePartTop, kDefault);
  for (int i = 0; i < 4; ++i) expectAsPlain(kPlace, kHighlighted);
}

TEST_F(ComposedFrames, WhatIsTakenAwayIsNotShown) {
  composeFor(kPlace);
  for (HXImageControlImageContainer *each : containers()) {
    [each removeAllImagesForImageKey:HXImageControlImagePartLeft];
  }
  for (int i = 0; i < 4; ++i) expectAsPlain(kPlace);
  for (HXImageControlImageContainer *each : containers()) {
    [each removeAllImagesForImageVariation:kDefault];
  }
  EXPECT_EQ(draw(container, kPlace).distance(Samples(view, {}, [] {})), 0);
}

// MARK: What is asked every time

}  // namespace

@interface OvTestOrdinaryContainer : HXImageControlImageContainer
@end
@implementation OvTestOrdinaryContainer
@end

@interface OvTestPieceContainer : HXImageControlImageContainer {
 @public
  int _pieces;
}
@end
@implementation OvTestPieceContainer
- (void)drawImageInRect:(NSRect)rect
              isFlipped:(BOOL)flipped
              imagePart:(HXImageControlImagePart)part
         imageVariation:(HXImageControlImageVariation)variation {
  ++_pieces;
}
@end

@interface OvTestSizeContainer : HXImageControlImageContainer {
 @public
  CGFloat _width;
}
@end
@implementation OvTestSizeContainer
- (NSSize)imageSizeForImagePart:(HXImageControlImagePart)part {
  return NSMakeSize(_width, _width);
}
@end

@interface OvTestWithoutEdges : HXImageControlImageContainer {
 @public
  BOOL _hides;
}
@end
@implementation OvTestWithoutEdges
- (BOOL)containsImageForImagePart:(HXImageControlImagePart)part {
  return (!_hides || part == HXImageControlImagePartCenter) &&
         [super containsImageForImagePart:part];
}
@end

/* Takes everything away from the containers that it is in, when it is asked to be flipped. */
@interface OvTestRebelImage : NSImage {
 @public
  HXImageControlImageContainer *_container;  // not retained
  int _patience;
}
@end
@implementation OvTestRebelImage
- (void)setFlipped:(BOOL)flipped {
  [super setFlipped:flipped];
  if (--_patience == 0) [_container removeAllImages];
}
@end

@interface OvTestSelfDrawingImage : NSImage
@end
@implementation OvTestSelfDrawingImage
- (void)drawInRect:(NSRect)rect
          fromRect:(NSRect)source
         operation:(NSCompositingOperation)operation
          fraction:(CGFloat)fraction
    respectFlipped:(BOOL)respects
             hints:(NSDictionary *)hints {
  [super drawInRect:rect
            fromRect:source
           operation:operation
            fraction:fraction
      respectFlipped:respects
               hints:hints];
}
@end

namespace {

TEST_F(ComposedFrames, ASubclassDrawsEachPieceEveryTime) {
  auto *own = [[[OvTestPieceContainer alloc] init] autorelease];
  container = own;
  setStretchable(image, kDefault);
  for (int i = 1; i <= 5; ++i) {
    draw(own, kPlace);
    EXPECT_EQ(own->_pieces, 9 * i);
  }
}

TEST_F(ComposedFrames, ASubclassIsAskedForSizesEveryTime) {
  auto *own = [[[OvTestSizeContainer alloc] init] autorelease];
  container = own;
  setStretchable(image, kDefault);
  own->_width = 5;
  const Samples five = draw(own, kPlace);
  for (int i = 0; i < 3; ++i) EXPECT_EQ(draw(own, kPlace).distance(five), 0);
  own->_width = 12;
  EXPECT_GT(draw(own, kPlace).distance(five), 1);
}

TEST_F(ComposedFrames, ASubclassIsAskedForItsPartsEveryTime) {
  auto *own = [[[OvTestWithoutEdges alloc] init] autorelease];
  container = own;
  setStretchable(image, kDefault);
  for (int i = 0; i < 4; ++i) draw(own, kPlace);
  const Samples all = draw(own, kPlace);
  own->_hides = YES;
  EXPECT_GT(draw(own, kPlace).distance(all), 1);
}

TEST_F(ComposedFrames, ASubclassThatOverridesNothingIsComposed) {
  container = [[[OvTestOrdinaryContainer alloc] init] autorelease];
  setStretchable(image, kDefault);
  composeFor(kPlace);
  expectAsPlain(kPlace);
}

TEST_F(ComposedFrames, AnImageThatDrawsItselfIsDrawnEveryTime) {
  auto *own = [[[OvTestSelfDrawingImage alloc] initWithSize:NSMakeSize(24, 24)] autorelease];
  [own addRepresentation:[[image representations] objectAtIndex:0]];
  setStretchable(own, kDefault);
  for (int i = 0; i < 4; ++i) EXPECT_EQ(drawingsFor(kPlace), 9);
}

// In pieces, while a picture is made, and when it is drawn.
TEST_F(ComposedFrames, AnImageMayTakeItselfAwayAtAnyTime) {
  for (int patience = 1; patience <= 20; ++patience) {
    @autoreleasepool {
      container = [[[HXImageControlImageContainer alloc] init] autorelease];
      @autoreleasepool {
        auto *rebel = [[[OvTestRebelImage alloc] initWithSize:NSMakeSize(24, 24)] autorelease];
        [rebel addRepresentation:[[image representations] objectAtIndex:0]];
        rebel->_container = container;
        rebel->_patience = patience;
        setStretchable(rebel, kDefault);
        [plain removeAllImages];
      }
      for (int i = 0; i < 4; ++i) draw(container, kPlace);
      EXPECT_FALSE([container containsImageForImagePart:HXImageControlImagePartCenter]);
      EXPECT_EQ(draw(container, kPlace).distance(Samples(view, {}, [] {})), 0);
    }
  }
}

}  // namespace
