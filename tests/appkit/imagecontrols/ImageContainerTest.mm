#include <cstdint>
#include <limits>

#import "Artwork.h"

/* Tells what it was cut into. */
@interface OvTestCutSegment : HXImageSegment
@end
@implementation OvTestCutSegment
@end

namespace {

using ov::test::corners;
using ov::test::imageOf;
using ov::test::plain;

constexpr uint32_t kParts = 11;
constexpr uint32_t kVariations = 5;
constexpr uint32_t kNoParts[] = {11, 12, 55, UINT32_MAX};
constexpr uint32_t kNoVariations[] = {5, 6, 11, UINT32_MAX};
constexpr CGFloat kNaN = std::numeric_limits<CGFloat>::quiet_NaN();

HXImageSegment *segment(NSRect rect = NSMakeRect(0, 0, 10, 10)) {
  static NSImage *const image = [imageOf(corners()) retain];
  return [[[HXImageSegment alloc] initWithImage:image rect:rect] autorelease];
}

class ImageContainer : public ov::test::LiveTest {
 protected:
  void SetUp() override {
    LiveTest::SetUp();
    container = [[[OvTestContainer alloc] init] autorelease];
  }

  HXImageSegment *at(uint32_t part, uint32_t variation) {
    return [container segmentForPart:part variation:variation];
  }
  int count() {
    int found = 0;
    for (uint32_t part = 0; part < kParts; part++) {
      for (uint32_t variation = 0; variation < kVariations; variation++) {
        found += at(part, variation) != nil;
      }
    }
    return found;
  }
  void fill() {
    for (uint32_t part = 0; part < kParts; part++) {
      for (uint32_t variation = 0; variation < kVariations; variation++) {
        [container setImage:segment() forImagePart:part imageVariation:variation];
      }
    }
    ASSERT_EQ(count(), 55);
  }

  OvTestContainer *container = nil;
};

TEST_F(ImageContainer, IsEmptyAtFirst) {
  EXPECT_EQ(count(), 0);
  for (uint32_t part = 0; part < kParts; part++) {
    EXPECT_FALSE([container containsImageForImagePart:part]);
    EXPECT_EQ([container imageSizeForImagePart:part], NSZeroSize);
  }
}

TEST_F(ImageContainer, HoldsEveryPieceInEveryState) {
  for (uint32_t part = 0; part < kParts; part++) {
    for (uint32_t variation = 0; variation < kVariations; variation++) {
      HXImageSegment *one = segment();
      [container setImage:one forImagePart:part imageVariation:variation];
      EXPECT_EQ(at(part, variation), one);
      EXPECT_TRUE([container containsImageVariation:variation forImagePart:part]);
      EXPECT_EQ(count(), static_cast<int>(part * kVariations + variation + 1));
    }
  }
}

TEST_F(ImageContainer, OnlyTheDefaultStateMakesAPartPresent) {
  for (uint32_t variation = 1; variation < kVariations; variation++) {
    [container setImage:segment() forImagePart:3 imageVariation:variation];
  }
  EXPECT_FALSE([container containsImageForImagePart:3]);
  EXPECT_EQ([container imageSizeForImagePart:3], NSZeroSize);
  EXPECT_FALSE([container containsImageVariation:0 forImagePart:3]);
  EXPECT_TRUE([container containsImageVariation:4 forImagePart:3]);
  // The variation comes first.
  EXPECT_FALSE([container containsImageVariation:3 forImagePart:4]);
  [container setImage:segment() forImagePart:3 imageVariation:0];
  EXPECT_TRUE([container containsImageForImagePart:3]);
}

TEST_F(ImageContainer, TheDefaultPictureTellsTheSize) {
  [container setImage:segment(NSMakeRect(1, 2, 3, 4)) forImagePart:9 imageVariation:0];
  [container setImage:segment(NSMakeRect(0, 0, 8, 9)) forImagePart:9 imageVariation:1];
  EXPECT_EQ([container imageSizeForImagePart:9], NSMakeSize(3, 4));
}

TEST_F(ImageContainer, WhatIsNoPartOrVariationIsIgnored) {
  fill();
  NSString *none = @"/none.png";
  for (const uint32_t part : kNoParts) {
    [container setImage:segment() forImagePart:part imageVariation:0];
    [container setImage:nil forImagePart:part imageVariation:0];
    [container setImageWithPath:none forImagePart:part imageVariation:0];
    [container removeAllImagesForImageKey:part];
    EXPECT_FALSE([container containsImageForImagePart:part]);
    EXPECT_FALSE([container containsImageVariation:0 forImagePart:part]);
    EXPECT_EQ([container imageSizeForImagePart:part], NSZeroSize);
  }
  for (const uint32_t variation : kNoVariations) {
    [container setImage:segment() forImagePart:0 imageVariation:variation];
    [container setImage:nil forImagePart:0 imageVariation:variation];
    [container setImageWithPath:none forImagePart:0 imageVariation:variation];
    [container setStrechableImage:segment() leftCap:3 topCap:3 forImageVariation:variation];
    [container setStrechableImage:nil leftCap:3 topCap:3 forImageVariation:variation];
    [container setStrechableImageWithPath:none leftCap:3 topCap:3 forImageVariation:variation];
    [container removeAllImagesForImageVariation:variation];
    EXPECT_FALSE([container containsImageVariation:variation forImagePart:0]);
  }
  EXPECT_EQ(count(), 55);
}

// MARK: Ownership

TEST_F(ImageContainer, HoldsAndLetsGo) {
  const int before = [OvTestImage deaths];
  @autoreleasepool {
    NSImage *image = imageOf(corners(), [OvTestImage class]);
    HXImageSegment *one = [[[HXImageSegment alloc] initWithImage:image] autorelease];
    [container setImage:one forImagePart:0 imageVariation:0];
  }
  EXPECT_EQ([OvTestImage deaths], before);
  [container setImage:segment() forImagePart:0 imageVariation:0];
  EXPECT_EQ([OvTestImage deaths], before + 1);
}

TEST_F(ImageContainer, TheSameSegmentMayBeStoredAgain) {
  @autoreleasepool {
    [container setImage:segment() forImagePart:0 imageVariation:0];
  }
  HXImageSegment *only = at(0, 0);
  [container setImage:only forImagePart:0 imageVariation:0];
  EXPECT_EQ(at(0, 0), only);
  EXPECT_EQ([only retainCount], 1u);
  EXPECT_EQ([only rect], NSMakeRect(0, 0, 10, 10));
}

TEST_F(ImageContainer, NilTakesAPictureAway) {
  [container setImage:segment() forImagePart:0 imageVariation:0];
  [container setImage:nil forImagePart:0 imageVariation:0];
  EXPECT_FALSE([container containsImageForImagePart:0]);
}

TEST_F(ImageContainer, LetsAllGoAtItsEnd) {
  const int before = [OvTestImage deaths];
  @autoreleasepool {
    OvTestContainer *mortal = [[OvTestContainer alloc] init];
    for (uint32_t part = 0; part < kParts; part++) {
      for (uint32_t variation = 0; variation < kVariations; variation++) {
        NSImage *image = imageOf(plain(1, 1, ov::test::kRed), [OvTestImage class]);
        [mortal setImage:[[[HXImageSegment alloc] initWithImage:image] autorelease]
              forImagePart:part
            imageVariation:variation];
      }
    }
    [mortal release];
  }
  EXPECT_EQ([OvTestImage deaths], before + 55);
}

// MARK: Removing

TEST_F(ImageContainer, RemovesAll) {
  fill();
  [container removeAllImages];
  EXPECT_EQ(count(), 0);
}

TEST_F(ImageContainer, RemovesAPartInAllStates) {
  for (uint32_t removed = 0; removed < kParts; removed++) {
    fill();
    [container removeAllImagesForImageKey:removed];
    EXPECT_EQ(count(), 50);
    for (uint32_t variation = 0; variation < kVariations; variation++) {
      EXPECT_EQ(at(removed, variation), nil);
    }
  }
}

TEST_F(ImageContainer, RemovesAStateOfAllParts) {
  for (uint32_t removed = 0; removed < kVariations; removed++) {
    fill();
    [container removeAllImagesForImageVariation:removed];
    EXPECT_EQ(count(), 44);
    for (uint32_t part = 0; part < kParts; part++) EXPECT_EQ(at(part, removed), nil);
  }
}

// MARK: Cutting

TEST_F(ImageContainer, CutsIntoNine) {
  HXImageSegment *whole = segment(NSMakeRect(30, 5, 20, 12));
  [container setStrechableImage:whole leftCap:4 topCap:3 forImageVariation:2];
  const struct {
    uint32_t part;
    NSRect rect;
  } rows[] = {
      {0, {{34, 8}, {12, 6}}}, {1, {{30, 8}, {4, 6}}},   {2, {{46, 8}, {4, 6}}},
      {3, {{34, 5}, {12, 3}}}, {4, {{34, 14}, {12, 3}}}, {5, {{30, 5}, {4, 3}}},
      {6, {{46, 5}, {4, 3}}},  {7, {{30, 14}, {4, 3}}},  {8, {{46, 14}, {4, 3}}},
  };
  for (const auto &row : rows) {
    SCOPED_TRACE(row.part);
    EXPECT_EQ([at(row.part, 2) rect], row.rect);
    EXPECT_EQ([at(row.part, 2) image], [whole image]) << "shared";
  }
  EXPECT_EQ(count(), 9);
}

TEST_F(ImageContainer, CutsIntoThree) {
  [container setStrechableImage:segment() leftCap:4 topCap:0 forImageVariation:0];
  EXPECT_EQ(count(), 3);
  EXPECT_EQ([at(1, 0) rect], NSMakeRect(0, 0, 4, 10));
  EXPECT_EQ([at(0, 0) rect], NSMakeRect(4, 0, 2, 10));
  EXPECT_EQ([at(2, 0) rect], NSMakeRect(6, 0, 4, 10));

  [container setStrechableImage:segment() leftCap:0 topCap:3 forImageVariation:0];
  EXPECT_EQ(count(), 3);
  EXPECT_EQ([at(3, 0) rect], NSMakeRect(0, 0, 10, 3));
  EXPECT_EQ([at(0, 0) rect], NSMakeRect(0, 3, 10, 4));
  EXPECT_EQ([at(4, 0) rect], NSMakeRect(0, 7, 10, 3));
}

TEST_F(ImageContainer, WithoutCapsTheWholeIsTheCenter) {
  for (const CGFloat cap : {CGFloat{0}, CGFloat{-5}, kNaN}) {
    [container setStrechableImage:segment(NSMakeRect(1, 2, 3, 4))
                          leftCap:cap
                           topCap:cap
                forImageVariation:0];
    EXPECT_EQ(count(), 1);
    EXPECT_EQ([at(0, 0) rect], NSMakeRect(1, 2, 3, 4));
  }
  [container setStrechableImage:segment() leftCap:-1 topCap:3 forImageVariation:0];
  EXPECT_EQ(count(), 3);
  EXPECT_EQ([at(0, 0) rect], NSMakeRect(0, 3, 10, 4));
}

TEST_F(ImageContainer, CapsOfAnySizeAreTaken) {
  for (const CGFloat cap :
       {CGFloat{5}, CGFloat{100}, CGFloat{1e30}, std::numeric_limits<CGFloat>::infinity()}) {
    [container setStrechableImage:segment() leftCap:cap topCap:cap forImageVariation:0];
    EXPECT_EQ(count(), 9);
  }
}

TEST_F(ImageContainer, CuttingReplacesTheState) {
  for (const CGFloat cap : {0, 3}) {
    fill();
    [container setStrechableImage:segment() leftCap:cap topCap:cap forImageVariation:1];
    EXPECT_EQ(at(9, 1), nil) << "the icon goes";
    EXPECT_EQ(at(10, 1), nil) << "and the accessory";
    EXPECT_EQ(count(), cap > 0 ? 53 : 45);
  }
  fill();
  [container setStrechableImage:nil leftCap:3 topCap:3 forImageVariation:1];
  EXPECT_EQ(count(), 44);
}

TEST_F(ImageContainer, MayCutWhatItHolds) {
  @autoreleasepool {
    [container setImage:segment() forImagePart:0 imageVariation:0];
  }
  [container setStrechableImage:at(0, 0) leftCap:3 topCap:3 forImageVariation:0];
  EXPECT_EQ([at(0, 0) rect], NSMakeRect(3, 3, 4, 4));
}

TEST_F(ImageContainer, PiecesAreOfTheClassThatIsCut) {
  OvTestCutSegment *own = [[[OvTestCutSegment alloc] initWithImage:imageOf(corners())] autorelease];
  [container setStrechableImage:own leftCap:3 topCap:3 forImageVariation:0];
  for (uint32_t part = 0; part < 9; part++) {
    EXPECT_EQ([at(part, 0) class], [OvTestCutSegment class]);
  }
}

TEST_F(ImageContainer, ASegmentWithoutImageIsCutAsWell) {
  HXImageSegment *empty = [[[HXImageSegment alloc] initWithImage:nil] autorelease];
  [container setStrechableImage:empty leftCap:0 topCap:0 forImageVariation:0];
  EXPECT_EQ(count(), 1);
  EXPECT_EQ([container imageSizeForImagePart:0], NSZeroSize);
}

// MARK: Files

class ImageContainerFiles : public ImageContainer {
 protected:
  ov::test::ImageFolder folder;
};

TEST_F(ImageContainerFiles, ArePieces) {
  NSString *path = folder.write(@"a.png", ov::test::pngOf(corners()));
  [container setImageWithPath:path forImagePart:9 imageVariation:3];
  EXPECT_EQ([at(9, 3) rect], NSMakeRect(0, 0, 10, 10));
  EXPECT_EQ(count(), 1);
  [container setStrechableImageWithPath:path leftCap:3 topCap:3 forImageVariation:3];
  EXPECT_EQ(count(), 9);
  for (uint32_t part = 1; part < 9; part++) EXPECT_EQ([at(part, 3) image], [at(0, 3) image]);
}

TEST_F(ImageContainerFiles, ThatAreMissingOrDamagedLeaveTheirPlaceEmpty) {
  NSString *damaged =
      folder.write(@"a.png", [@"no picture" dataUsingEncoding:NSASCIIStringEncoding]);
  for (NSString *path : {damaged, folder.path(@"none.png"), @"", static_cast<NSString *>(nil)}) {
    fill();
    [container setImageWithPath:path forImagePart:9 imageVariation:3];
    EXPECT_EQ(at(9, 3), nil);
    EXPECT_EQ(count(), 54);
    [container setStrechableImageWithPath:path leftCap:3 topCap:3 forImageVariation:3];
    EXPECT_EQ(count(), 44);
  }
}

}  // namespace
