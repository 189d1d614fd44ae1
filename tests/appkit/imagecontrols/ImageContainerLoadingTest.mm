#import <OvAppKit/HXImageControlImageResourceNameSuffixRegistry.h>
#import <OvAppKit/NSBundle+OvAppKit.h>

#include <objc/runtime.h>

#include <algorithm>
#include <cstdint>
#include <set>
#include <string>
#include <vector>

#import "Artwork.h"

using Registry = HXImageControlImageResourceNameSuffixRegistry;

namespace {
std::vector<std::string> lookUps;
Registry *ownRegistry = nil;

// IMP's own type fits no method.
using LookUp = NSString *(id, SEL, NSString *);
IMP asMethod(LookUp *function) { return reinterpret_cast<IMP>(reinterpret_cast<void *>(function)); }

LookUp *platformLookUp = nullptr;
NSString *countLookUp(id bundle, SEL selector, NSString *name) {
  lookUps.push_back([name UTF8String]);
  return platformLookUp(bundle, selector, name);
}

}  // namespace

/* Writes down what it is asked for, and finds nothing. */
@interface OvTestListeningBundle : NSBundle
@end

@implementation OvTestListeningBundle
- (NSString *)pathForImageResource:(NSString *)name {
  lookUps.push_back([name UTF8String]);
  return nil;
}
- (NSString *)pathForResource:(NSString *)name ofType:(NSString *)type {
  // The platform looks for its own list.
  if ([type isEqualToString:@"plist"]) return nil;
  lookUps.push_back(std::string([name UTF8String]) + " of " + [type UTF8String]);
  return nil;
}
@end

/* Has a naming scheme of its own. */
@interface OvTestNamingContainer : OvTestContainer
@end

@implementation OvTestNamingContainer
+ (Registry *)imageResourceNameSuffixRegistry {
  return ownRegistry;
}
@end

namespace {

using ov::test::enlarged;
using ov::test::kBlue;
using ov::test::kGreen;
using ov::test::kRed;
using ov::test::plain;

constexpr uint32_t kParts = 11;
constexpr uint32_t kVariations = 5;

Registry *shared() { return [HXImageControlImageContainer imageResourceNameSuffixRegistry]; }

class ImageContainerLoading : public ov::test::LiveTest {
 protected:
  void SetUp() override {
    LiveTest::SetUp();
    lookUps.clear();
    ownRegistry = [[[Registry alloc] init] autorelease];
  }
  void TearDown() override {
    [shared() setAppendsSuffixForImagePartBeforeImageVariation:NO];
    [shared() setPathExtension:nil];
    [shared() setSuffix:@"-default" forImageVariation:0];
    [shared() setSuffix:@"-left" forImagePart:1];
    ownRegistry = nil;
    LiveTest::TearDown();
  }

  OvTestContainer *separated(NSString *prefix, NSBundle *bundle,
                             Class containerClass = [OvTestContainer class]) {
    return [[[containerClass alloc] initWithSeparatedImageResourceNamePrefix:prefix
                                                                    inBundle:bundle] autorelease];
  }
  OvTestContainer *stretchable(NSString *prefix, CGFloat cap, NSBundle *bundle,
                               Class containerClass = [OvTestContainer class]) {
    return [[[containerClass alloc] initWithStrechableImageResourceNamePrefix:prefix
                                                                      leftCap:cap
                                                                       topCap:cap
                                                                     inBundle:bundle] autorelease];
  }
  OvTestContainer *tiled(NSString *name, const std::vector<int32_t> &variations, NSBundle *bundle,
                         Class containerClass = [OvTestContainer class]) {
    return [[[containerClass alloc] initWithTiledImageResourceName:name
                                                   imageVariations:variations.data()
                                                             count:variations.size()
                                                          inBundle:bundle] autorelease];
  }
  OvTestContainer *tiledStretchable(NSString *name, CGFloat cap,
                                    const std::vector<int32_t> &variations, NSBundle *bundle,
                                    Class containerClass = [OvTestContainer class]) {
    return [[[containerClass alloc] initWithTiledStrechableImageResourceName:name
                                                                     leftCap:cap
                                                                      topCap:cap
                                                             imageVariations:variations.data()
                                                                       count:variations.size()
                                                                    inBundle:bundle] autorelease];
  }

  static int count(OvTestContainer *container) {
    int found = 0;
    for (uint32_t part = 0; part < kParts; part++) {
      for (uint32_t variation = 0; variation < kVariations; variation++) {
        found += [container containsImageVariation:variation forImagePart:part];
      }
    }
    return found;
  }

  ov::test::ArtBundle art;
};

// MARK: Separated

// Each picture has a size of its own.
TEST_F(ImageContainerLoading, FindsEveryPieceInEveryState) {
  for (uint32_t part = 0; part < kParts; part++) {
    for (uint32_t variation = 0; variation < kVariations; variation++) {
      NSString *name = [shared() stringWithPrefix:@"B" imagePart:part imageVariation:variation];
      art.put([name stringByAppendingString:@".png"],
              plain(static_cast<int>(part + 1), static_cast<int>(variation + 1), kRed));
    }
  }
  OvTestContainer *container = separated(@"B", art.bundle());
  for (uint32_t part = 0; part < kParts; part++) {
    for (uint32_t variation = 0; variation < kVariations; variation++) {
      EXPECT_EQ([[container segmentForPart:part variation:variation] rect],
                NSMakeRect(0, 0, part + 1, variation + 1));
    }
  }
  EXPECT_EQ(count(separated(@"Other", art.bundle())), 0);
}

TEST_F(ImageContainerLoading, NothingStandsInForAStateThatIsMissing) {
  art.put(@"B-default.png", plain(3, 3, kRed));
  art.put(@"B-highlighted-left.png", plain(3, 3, kRed));
  OvTestContainer *container = separated(@"B", art.bundle());
  EXPECT_EQ(count(container), 2);
  EXPECT_TRUE([container containsImageForImagePart:0]);
  EXPECT_TRUE([container containsImageVariation:1 forImagePart:1]);
}

TEST_F(ImageContainerLoading, TriesAllNamesInOrder) {
  NSBundle *bundle = art.bundle([OvTestListeningBundle class]);
  ASSERT_NE(bundle, nil);
  EXPECT_EQ(count(separated(@"B", bundle)), 0);
  std::vector<std::string> expected;
  for (uint32_t part = 0; part < kParts; part++) {
    for (uint32_t variation = 0; variation < kVariations; variation++) {
      expected.push_back([[shared() stringWithPrefix:@"B" imagePart:part
                                      imageVariation:variation] UTF8String]);
    }
  }
  EXPECT_EQ(lookUps, expected);
  EXPECT_EQ(lookUps.size(), 55u);
}

TEST_F(ImageContainerLoading, AnExtensionIsAType) {
  NSBundle *bundle = art.bundle([OvTestListeningBundle class]);
  [shared() setPathExtension:@"art"];
  separated(@"B", bundle);
  EXPECT_EQ(lookUps.size(), 55u);
  EXPECT_EQ(lookUps[1], "B-highlighted of art");
  lookUps.clear();
  stretchable(@"B", 3, bundle);
  EXPECT_EQ(lookUps, (std::vector<std::string>{"B-default of art", "B-highlighted of art",
                                               "B-mouseopushed of art", "B-mouseovered of art",
                                               "B-disabled of art"}));
  lookUps.clear();
  tiled(@"B", {0}, bundle);
  tiledStretchable(@"C", 3, {0}, bundle);
  EXPECT_EQ(lookUps, (std::vector<std::string>{"B of art", "C of art"}));
}

TEST_F(ImageContainerLoading, AnExtensionFindsOnlyItsType) {
  art.put(@"B-default.png", plain(3, 3, kRed));
  art.put(@"B-default.tiff", ov::test::encoded(NSTIFFFileType));
  art.put(@"B-disabled.gif", ov::test::encoded(NSGIFFileType));
  EXPECT_EQ(count(separated(@"B", art.bundle())), 2);
  [shared() setPathExtension:@"png"];
  OvTestContainer *png = separated(@"B", art.bundle());
  EXPECT_EQ(count(png), 1);
  EXPECT_EQ([png imageSizeForImagePart:0], NSMakeSize(3, 3));
  [shared() setPathExtension:@"tiff"];
  EXPECT_EQ([separated(@"B", art.bundle()) imageSizeForImagePart:0], NSMakeSize(4, 2));
  [shared() setPathExtension:@"jpg"];
  EXPECT_EQ(count(separated(@"B", art.bundle())), 0);
  [shared() setPathExtension:@""];
  EXPECT_EQ(count(separated(@"B", art.bundle())), 0);
}

TEST_F(ImageContainerLoading, LanguagesAreFoundBesides) {
  art.put(@"sub/B-default.png", plain(2, 2, kRed));
  art.put(@"English.lproj/B-disabled.png", plain(2, 2, kRed));
  art.put(@"B-highlighted.png", plain(2, 2, kRed));
  NSBundle *bundle = art.bundle();
  EXPECT_TRUE([separated(@"B", bundle) containsImageVariation:4 forImagePart:0]);
  EXPECT_EQ(count(separated(@"B", bundle)), 2);
  // The platform takes no paths.
  EXPECT_EQ(count(separated(@"sub/B", bundle)), 0);
}

TEST_F(ImageContainerLoading, TheSharedNamesCanBeChanged) {
  art.put(@"B-normal.png", plain(2, 2, kRed));
  art.put(@"B-west-highlighted.png", plain(2, 2, kRed));
  art.put(@"B-default.png", plain(3, 3, kRed));
  OvTestContainer *before = separated(@"B", art.bundle());
  [shared() setSuffix:@"-normal" forImageVariation:0];
  [shared() setSuffix:@"-west" forImagePart:1];
  [shared() setAppendsSuffixForImagePartBeforeImageVariation:YES];
  OvTestContainer *after = separated(@"B", art.bundle());
  EXPECT_EQ([after imageSizeForImagePart:0], NSMakeSize(2, 2));
  EXPECT_TRUE([after containsImageVariation:1 forImagePart:1]);
  EXPECT_EQ([before imageSizeForImagePart:0], NSMakeSize(3, 3)) << "keeps its pictures";
  EXPECT_EQ(count(before), 1);
}

TEST_F(ImageContainerLoading, ASubclassMayHaveNamesOfItsOwn) {
  Class naming = [OvTestNamingContainer class];
  NSBundle *bundle = art.bundle([OvTestListeningBundle class]);
  [ownRegistry setSuffix:@".on" forImageVariation:1];
  [ownRegistry setSuffix:@".l" forImagePart:1];
  [ownRegistry setPathExtension:@"own"];
  const std::string all[] = {"B of own", "B.on of own", "B.l of own", "B.on.l of own"};
  separated(@"B", bundle, naming);
  EXPECT_EQ(lookUps.size(), 55u);
  EXPECT_EQ(std::set<std::string>(lookUps.begin(), lookUps.end()),
            std::set<std::string>(std::begin(all), std::end(all)));
  lookUps.clear();
  stretchable(@"B", 3, bundle, naming);
  EXPECT_EQ(lookUps, (std::vector<std::string>{"B of own", "B.on of own", "B of own", "B of own",
                                               "B of own"}));
  lookUps.clear();
  tiled(@"B", {0}, bundle, naming);
  tiledStretchable(@"B", 3, {0}, bundle, naming);
  EXPECT_EQ(lookUps, (std::vector<std::string>{"B of own", "B of own"}));
}

TEST_F(ImageContainerLoading, NamesMayAllBeTheSame) {
  art.put(@"B.png", plain(3, 3, kRed));
  EXPECT_EQ(count(separated(@"B", art.bundle(), [OvTestNamingContainer class])), 55);
  EXPECT_EQ(count(separated(@"C", art.bundle(), [OvTestNamingContainer class])), 0);
}

TEST_F(ImageContainerLoading, WithoutARegistryNothingIsFound) {
  ownRegistry = nil;
  art.put(@"B.png", plain(3, 3, kRed));
  Class naming = [OvTestNamingContainer class];
  EXPECT_EQ(count(separated(@"B", art.bundle(), naming)), 0);
  EXPECT_EQ(count(stretchable(@"B", 3, art.bundle(), naming)), 0);
}

TEST_F(ImageContainerLoading, NoNameFindsNothingAndSaysNothing) {
  const int32_t variations[] = {0};
  ov::test::LogCapture log;
  for (NSString *name : {static_cast<NSString *>(nil), @"", @".", @"/"}) {
    ownRegistry = [[[Registry alloc] init] autorelease];
    Class naming = [OvTestNamingContainer class];
    EXPECT_EQ(count(separated(name, art.bundle(), naming)), 0);
    EXPECT_EQ(count(stretchable(name, 3, art.bundle(), naming)), 0);
    EXPECT_EQ(count([[[OvTestContainer alloc] initWithTiledImageResourceName:name
                                                             imageVariations:variations
                                                                       count:1] autorelease]),
              0);
  }
  EXPECT_THAT(log.lines(), testing::IsEmpty());
}

// The short forms, and nil.
TEST_F(ImageContainerLoading, TheMainBundleIsMeantWithoutABundle) {
  // A picture that the platform has for every program.
  NSString *name = @"common_Close";
  const NSSize size = [[[NSBundle mainBundle] imageForResource:name] size];
  ASSERT_GT(size.width, 0);
  const int32_t variations[] = {0};
  Class naming = [OvTestNamingContainer class];
  NSArray *containers = @[
    [[[naming alloc] initWithSeparatedImageResourceNamePrefix:name] autorelease],
    separated(name, nil, naming),
    [[[naming alloc] initWithStrechableImageResourceNamePrefix:name leftCap:0
                                                        topCap:0] autorelease],
    stretchable(name, 0, nil, naming),
    [[[naming alloc] initWithTiledImageResourceName:name imageVariations:variations
                                              count:1] autorelease],
    tiled(name, {0}, nil, naming),
    [[[naming alloc] initWithTiledStrechableImageResourceName:name
                                                      leftCap:0
                                                       topCap:0
                                              imageVariations:variations
                                                        count:1] autorelease],
    tiledStretchable(name, 0, {0}, nil, naming)
  ];
  for (OvTestContainer *container in containers) {
    EXPECT_EQ([container imageSizeForImagePart:0], size);
  }
}

// What the platform finds beyond the bundle, it finds in a set, too.
TEST_F(ImageContainerLoading, ThePicturesOfThePlatformAreFoundInSets) {
  [ownRegistry setSuffix:@"Close" forImagePart:10];
  OvTestContainer *container = separated(@"common_", art.bundle(), [OvTestNamingContainer class]);
  EXPECT_EQ(count(container), 5);
  EXPECT_TRUE([container containsImageForImagePart:10]);
}

// Each would take the platform as long as everything else together.
TEST_F(ImageContainerLoading, NamesWithoutAPictureAreNotLookedForOneByOne) {
  art.put(@"B-default.png", plain(3, 3, kRed));
  art.put(@"B-disabled-accessory.png", plain(3, 3, kRed));
  for (int i = 0; i < 3000; i++) {
    art.put([NSString stringWithFormat:@"other-%d.txt", i], [NSData data]);
  }
  Method method = class_getInstanceMethod([NSBundle class], @selector(pathForImageResource:));
  const IMP platform = method_setImplementation(method, asMethod(countLookUp));
  platformLookUp = reinterpret_cast<LookUp *>(reinterpret_cast<void *>(platform));
  const int counted = count(separated(@"B", art.bundle()));
  method_setImplementation(method, platform);
  EXPECT_EQ(counted, 2);
  EXPECT_EQ(lookUps,
            (std::vector<std::string>{"B-default", "B-highlighted", "B-disabled-accessory"}));
}

// MARK: Stretchable

TEST_F(ImageContainerLoading, CutsAPictureForEachState) {
  art.put(@"P-default.png", plain(10, 10, kRed));
  art.put(@"P-disabled.png", plain(20, 12, kRed));
  art.put(@"P-default-left.png", plain(1, 1, kRed));
  OvTestContainer *container = stretchable(@"P", 3, art.bundle());
  EXPECT_EQ(count(container), 18);
  EXPECT_EQ([container imageSizeForImagePart:0], NSMakeSize(4, 4));
  EXPECT_EQ([[container segmentForPart:8 variation:4] rect], NSMakeRect(17, 9, 3, 3));
  for (uint32_t part = 1; part < 9; part++) {
    EXPECT_EQ([[container segmentForPart:part variation:4] image],
              [[container segmentForPart:0 variation:4] image]);
  }
}

// MARK: Tiled

TEST_F(ImageContainerLoading, CutsATileForEachState) {
  art.put(@"Strip.png", enlarged({{kRed, kGreen, kBlue}}, 30));
  OvTestContainer *container = tiled(@"Strip", {0, 1, 4}, art.bundle());
  EXPECT_EQ(count(container), 3);
  NSImage *image = [[container segmentForPart:0 variation:0] image];
  EXPECT_EQ([image size], NSMakeSize(90, 30));
  CGFloat x = 0;
  for (const uint32_t variation : {0u, 1u, 4u}) {
    EXPECT_EQ([[container segmentForPart:0 variation:variation] rect], NSMakeRect(x, 0, 30, 30));
    EXPECT_EQ([[container segmentForPart:0 variation:variation] image], image) << "shared";
    x += 30;
  }
}

TEST_F(ImageContainerLoading, TilesNeedNotBeWholePoints) {
  art.put(@"Strip.png", plain(100, 10, kRed));
  OvTestContainer *container = tiled(@"Strip", {0, 1, 2}, art.bundle());
  const CGFloat width = CGFloat(100) / 3;
  for (uint32_t i = 0; i < 3; i++) {
    EXPECT_EQ([[container segmentForPart:0 variation:i] rect], NSMakeRect(i * width, 0, width, 10));
  }
}

TEST_F(ImageContainerLoading, CutsTilesIntoNine) {
  art.put(@"Strip.png", plain(90, 30, kRed));
  OvTestContainer *container = tiledStretchable(@"Strip", 5, {0, 3}, art.bundle());
  EXPECT_EQ(count(container), 18);
  EXPECT_EQ([[container segmentForPart:0 variation:0] rect], NSMakeRect(5, 5, 35, 20));
  EXPECT_EQ([[container segmentForPart:0 variation:3] rect], NSMakeRect(50, 5, 35, 20));
  EXPECT_EQ([[container segmentForPart:6 variation:3] rect], NSMakeRect(85, 0, 5, 5));
  EXPECT_EQ([[container segmentForPart:6 variation:3] image], [[container segmentForPart:0
                                                                               variation:0] image]);
}

TEST_F(ImageContainerLoading, TheNameOfAStripIsUsedAsItIs) {
  art.put(@"Strip-default.png", plain(90, 30, kRed));
  EXPECT_EQ(count(tiled(@"Strip", {0}, art.bundle())), 0);
  EXPECT_EQ(count(tiled(@"Strip-default", {0}, art.bundle())), 1);
  EXPECT_EQ(count(tiled(@"Strip-default.png", {0}, art.bundle())), 1);
}

TEST_F(ImageContainerLoading, OddVariationsOfStrips) {
  art.put(@"Strip.png", plain(90, 30, kRed));
  NSBundle *bundle = art.bundle();
  EXPECT_EQ(count(tiled(@"Strip", {}, bundle)), 0);
  EXPECT_EQ(count(tiledStretchable(@"Strip", 3, {}, bundle)), 0);
  // Those that are none have their tile all the same.
  OvTestContainer *some = tiled(@"Strip", {5, -1, INT32_MAX, INT32_MIN, 2, 0}, bundle);
  EXPECT_EQ(count(some), 2);
  EXPECT_EQ([[some segmentForPart:0 variation:2] rect], NSMakeRect(60, 0, 15, 30));
  EXPECT_EQ(count(tiledStretchable(@"Strip", 3, {5, -1, 2}, bundle)), 9);
  // The last one counts.
  EXPECT_EQ([[tiled(@"Strip", {1, 1, 1}, bundle) segmentForPart:0 variation:1] rect],
            NSMakeRect(60, 0, 30, 30));
  OvTestContainer *none =
      [[[OvTestContainer alloc] initWithTiledImageResourceName:@"Strip"
                                               imageVariations:NULL
                                                         count:3
                                                      inBundle:bundle] autorelease];
  EXPECT_EQ(count(none), 0);
}

TEST_F(ImageContainerLoading, AnImageGoesWithItsLastTile) {
  art.put(@"Strip.png", plain(90, 30, kRed));
  NSImage *image = nil;
  @autoreleasepool {
    OvTestContainer *container = [tiled(@"Strip", {0, 1}, art.bundle()) retain];
    image = [[[container segmentForPart:0 variation:0] image] retain];
    [container release];
  }
  EXPECT_EQ([image retainCount], 1u);
  [image release];
}

}  // namespace
