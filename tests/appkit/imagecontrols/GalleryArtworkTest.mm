// The gallery's plates, as one plate gives them in three ways: in pieces, whole, and in a strip.

#import <OvAppKit/OvAppKit.h>

#import "Raster.h"

namespace {

using ov::test::Raster;

constexpr uint32_t kParts = 11, kVariations = 5;

class GalleryArtwork : public ov::test::LiveTest {
 protected:
  void SetUp() override {
    LiveTest::SetUp();
    bundle = [NSBundle bundleWithPath:@GALLERY_APPLICATION];
    ASSERT_NE(bundle, nil);
    pieces = [[[HXImageControlImageContainer alloc]
        initWithSeparatedImageResourceNamePrefix:@"GalleryButton"
                                        inBundle:bundle] autorelease];
    whole = [[[HXImageControlImageContainer alloc]
        initWithStrechableImageResourceNamePrefix:@"GalleryPlate"
                                          leftCap:8
                                           topCap:8
                                         inBundle:bundle] autorelease];
    const int32_t variations[] = {0, 1, 2, 3, 4};
    strip = [[[HXImageControlImageContainer alloc]
        initWithTiledStrechableImageResourceName:@"GalleryStrip"
                                         leftCap:8
                                          topCap:8
                                 imageVariations:variations
                                           count:5
                                        inBundle:bundle] autorelease];
    view = [[[OvFlippedView alloc] initWithFrame:NSMakeRect(0, 0, 100, 60)] autorelease];
    [[makeWindow(NSMakeSize(100, 60)) contentView] addSubview:view];
  }

  Raster drawn(HXImageControlImageContainer *container, uint32_t variation) {
    [view lockFocus];
    [[NSColor greenColor] set];
    NSRectFill([view bounds]);
    [container drawImageInRect:NSMakeRect(5, 5, 80, 44) isFlipped:YES imageVariation:variation];
    NSBitmapImageRep *rep =
        [[[NSBitmapImageRep alloc] initWithFocusedViewRect:[view bounds]] autorelease];
    [view unlockFocus];
    return Raster(ov::test::Picture(rep));
  }

  NSBundle *bundle = nil;
  HXImageControlImageContainer *pieces = nil, *whole = nil, *strip = nil;
  OvFlippedView *view = nil;
};

TEST_F(GalleryArtwork, EveryPieceIsThere) {
  for (uint32_t variation = 0; variation < kVariations; variation++) {
    for (uint32_t part = 0; part < kParts; part++) {
      EXPECT_TRUE([pieces containsImageVariation:variation forImagePart:part])
          << part << " " << variation;
    }
    for (uint32_t part = 0; part <= HXImageControlImagePartRightBottom; part++) {
      EXPECT_TRUE([whole containsImageVariation:variation forImagePart:part])
          << part << " " << variation;
      EXPECT_TRUE([strip containsImageVariation:variation forImagePart:part])
          << part << " " << variation;
    }
  }
}

TEST_F(GalleryArtwork, AllCornersAreOfOneSize) {
  for (const uint32_t part :
       {HXImageControlImagePartLeftTop, HXImageControlImagePartRightTop,
        HXImageControlImagePartLeftBottom, HXImageControlImagePartRightBottom}) {
    EXPECT_EQ([pieces imageSizeForImagePart:part], NSMakeSize(8, 8)) << part;
  }
  EXPECT_EQ([pieces imageSizeForImagePart:HXImageControlImagePartIcon], NSMakeSize(16, 16));
  EXPECT_EQ([pieces imageSizeForImagePart:HXImageControlImagePartAccessory], NSMakeSize(10, 5));
}

TEST_F(GalleryArtwork, TheThreeWaysLookAlike) {
  for (uint32_t variation = 0; variation < kVariations; variation++) {
    const Raster expected = drawn(pieces, variation);
    EXPECT_TRUE(drawn(whole, variation) == expected) << variation;
    EXPECT_TRUE(drawn(strip, variation) == expected) << variation;
    EXPECT_EQ(expected.at(4, 20), ov::test::kGreen);
    EXPECT_NE(expected.at(5, 20), ov::test::kGreen);
    EXPECT_NE(expected.at(84, 48 - 20), ov::test::kGreen);
    for (uint32_t other = 0; other < variation; other++) {
      EXPECT_GT(expected.differencesTo(drawn(pieces, other)), 1000) << variation << " " << other;
    }
  }
}

// What is curved lies within the corners: the same pixels at the left of each row, at the top of
// each column.
TEST_F(GalleryArtwork, EdgesAreStraight) {
  for (uint32_t variation = 0; variation < kVariations; variation++) {
    const Raster plate = drawn(pieces, variation).part(5, 5, 80, 44);
    for (int x = 9; x < 80 - 8; x++) {
      EXPECT_EQ(plate.part(x, 0, 1, 44), plate.part(8, 0, 1, 44)) << variation << " " << x;
    }
    for (int y = 9; y < 44 - 8; y++) {
      EXPECT_EQ(plate.at(0, y), plate.at(0, 8)) << variation << " " << y;
      EXPECT_EQ(plate.at(79, y), plate.at(0, 8)) << variation << " " << y;
    }
  }
}

TEST_F(GalleryArtwork, IconsAndArrowsOfVariationsDiffer) {
  NSArray *variations =
      @[ @"default", @"highlighted", @"mouseopushed", @"mouseovered", @"disabled" ];
  for (NSString *part in @[ @"icon", @"accessory" ]) {
    for (NSString *one in variations) {
      for (NSString *other in variations) {
        if (one == other) continue;
        const auto raster = [&](NSString *variation) {
          return ov::test::rasterOfResource(
              bundle,
              [[NSString stringWithFormat:@"GalleryButton-%@-%@", variation, part] UTF8String]);
        };
        EXPECT_GT(raster(one).differencesTo(raster(other)), 10)
            << [part UTF8String] << [one UTF8String] << [other UTF8String];
      }
    }
  }
}

}  // namespace
