#import <OvAppKit/HXDictionaryImageContainer.h>
#import <OvAppKit/NSBundle+OvAppKit.h>

#include <limits>

#import "Artwork.h"

namespace {

using ov::test::corners;
using ov::test::drawn;
using ov::test::enlarged;
using ov::test::imageOf;
using ov::test::isAll;
using ov::test::kBlue;
using ov::test::kGreen;
using ov::test::kRed;
using ov::test::kWhite;
using ov::test::kYellow;
using ov::test::Picture;
using ov::test::plain;

constexpr CGFloat kNaN = std::numeric_limits<CGFloat>::quiet_NaN();
constexpr CGFloat kInfinity = std::numeric_limits<CGFloat>::infinity();

NSValue *rect(CGFloat x, CGFloat y, CGFloat width, CGFloat height) {
  return [NSValue valueWithRect:NSMakeRect(x, y, width, height)];
}

class DictionaryContainer : public ov::test::LiveTest {
 protected:
  HXDictionaryImageContainer *withImages(NSDictionary *images) {
    return [[[HXDictionaryImageContainer alloc] initWithImageDictionary:images] autorelease];
  }
  HXDictionaryImageContainer *withRects(NSImage *image, NSDictionary *rects) {
    return [[[HXDictionaryImageContainer alloc] initWithImage:image
                                               rectDictionary:rects] autorelease];
  }
  HXDictionaryImageContainer *withKeys(NSImage *image, NSArray *keys) {
    return [[[HXDictionaryImageContainer alloc] initWithImage:image keyArray:keys] autorelease];
  }

  // A key's picture in a view of 40 x 40, at (10, 10) in the size of 20 x 20.
  Picture draw(HXDictionaryImageContainer *container, id key, BOOL flipped,
               NSRect place = NSMakeRect(10, 10, 20, 20)) {
    return drawn(NSMakeSize(40, 40), flipped,
                 [&] { [container drawImageInRect:place isFlipped:flipped forKey:key]; });
  }
  void expectNothing(const Picture &picture) {
    EXPECT_TRUE(isAll(picture, NSMakeRect(0, 0, 40, 40), kWhite));
  }
  // That container knows nothing of the key.
  void expectNone(HXDictionaryImageContainer *container, id key) {
    EXPECT_FALSE([container containsImageForKey:key]);
    expectUnusable(container, key);
  }
  void expectUnusable(HXDictionaryImageContainer *container, id key) {
    EXPECT_EQ([container imageSizeForKey:key], NSZeroSize);
    for (const BOOL flipped : {NO, YES}) expectNothing(draw(container, key, flipped));
  }
  void expectCorners(const Picture &picture) {
    EXPECT_TRUE(isAll(picture, NSMakeRect(10, 10, 10, 10), kRed));
    EXPECT_TRUE(isAll(picture, NSMakeRect(20, 10, 10, 10), kGreen));
    EXPECT_TRUE(isAll(picture, NSMakeRect(10, 20, 10, 10), kBlue));
    EXPECT_TRUE(isAll(picture, NSMakeRect(20, 20, 10, 10), kYellow));
    EXPECT_EQ(picture.count(NSMakeRect(0, 0, 40, 40), kWhite), 1200);
  }
};

// MARK: Images

TEST_F(DictionaryContainer, DrawsTheImageOfTheKeyUpright) {
  HXDictionaryImageContainer *container = withImages(@{@"a" : imageOf(corners())});
  EXPECT_TRUE([container containsImageForKey:@"a"]);
  EXPECT_EQ([container imageSizeForKey:@"a"], NSMakeSize(10, 10));
  for (const BOOL flipped : {NO, YES}) expectCorners(draw(container, @"a", flipped));
}

TEST_F(DictionaryContainer, LeavesTheImageFlipped) {
  NSImage *image = imageOf(corners());
  HXDictionaryImageContainer *images = withImages(@{@"a" : image});
  HXDictionaryImageContainer *rects = withRects(image, @{@"a" : rect(0, 0, 5, 5)});
  for (HXDictionaryImageContainer *container : {images, rects}) {
    draw(container, @"a", YES);
    EXPECT_TRUE([image isFlipped]);
    draw(container, @"a", NO);
    EXPECT_FALSE([image isFlipped]);
  }
}

TEST_F(DictionaryContainer, OtherKeysHaveNothing) {
  HXDictionaryImageContainer *container = withImages(@{@"a" : imageOf(corners())});
  for (id key : {static_cast<id>(@"b"), static_cast<id>(@""), static_cast<id>(nil),
                 static_cast<id>([NSNumber numberWithInt:1])}) {
    expectNone(container, key);
  }
}

TEST_F(DictionaryContainer, TheDictionaryIsHeldNotCopied) {
  NSMutableDictionary *images = [NSMutableDictionary dictionary];
  HXDictionaryImageContainer *container = withImages(images);
  expectNone(container, @"a");
  [images setObject:imageOf(corners()) forKey:@"a"];
  EXPECT_TRUE([container containsImageForKey:@"a"]);
  expectCorners(draw(container, @"a", YES));

  NSMutableDictionary *rects = [NSMutableDictionary dictionary];
  container = withRects(imageOf(corners()), rects);
  [rects setObject:rect(0, 0, 10, 10) forKey:@"a"];
  expectCorners(draw(container, @"a", NO));
}

TEST_F(DictionaryContainer, LetsAllGoAtItsEnd) {
  const int before = [OvTestImage deaths];
  HXDictionaryImageContainer *images = nil, *rects = nil;
  @autoreleasepool {
    images = [withImages(@{@"a" : imageOf(corners(), [OvTestImage class])}) retain];
    rects = [withKeys(imageOf(corners(), [OvTestImage class]), @[ @"a" ]) retain];
  }
  EXPECT_EQ([OvTestImage deaths], before);
  [images release];
  EXPECT_EQ([OvTestImage deaths], before + 1);
  [rects release];
  EXPECT_EQ([OvTestImage deaths], before + 2);
}

TEST_F(DictionaryContainer, WhatIsNoImageIsNotDrawn) {
  HXDictionaryImageContainer *container = withImages(@{
    @"string" : @"a",
    @"rect" : rect(0, 0, 5, 5),
    @"null" : [NSNull null],
    @"class" : [NSImage class]
  });
  for (NSString *key in @[ @"string", @"rect", @"null", @"class" ]) {
    EXPECT_TRUE([container containsImageForKey:key]) << [key UTF8String];
    expectUnusable(container, key);
  }
}

TEST_F(DictionaryContainer, EmptyImagesAreNotDrawn) {
  HXDictionaryImageContainer *container = withImages(@{
    @"none" : [[[NSImage alloc] initWithSize:NSZeroSize] autorelease],
    @"flat" : [[[NSImage alloc] initWithSize:NSMakeSize(5, 0)] autorelease]
  });
  for (NSString *key in @[ @"none", @"flat" ]) expectNothing(draw(container, key, YES));
}

// MARK: Rectangles

TEST_F(DictionaryContainer, DrawsTheRectangleOfTheKeyUpright) {
  // Its y counts as the view's does: from the visible top in a flipped one.
  HXDictionaryImageContainer *container = withRects(imageOf(corners()), @{
    @"all" : rect(0, 0, 10, 10),
    @"min" : rect(0, 0, 5, 5),
    @"max" : rect(5, 5, 5, 5),
    @"row" : rect(0, 0, 10, 5)
  });
  EXPECT_TRUE([container containsImageForKey:@"min"]);
  EXPECT_EQ([container imageSizeForKey:@"row"], NSMakeSize(10, 5));
  for (const BOOL flipped : {NO, YES}) {
    SCOPED_TRACE(flipped ? "flipped" : "not flipped");
    expectCorners(draw(container, @"all", flipped));
    constexpr NSRect kAll = {{10, 10}, {20, 20}};
    EXPECT_TRUE(isAll(draw(container, @"min", flipped), kAll, flipped ? kRed : kBlue));
    EXPECT_TRUE(isAll(draw(container, @"max", flipped), kAll, flipped ? kYellow : kGreen));
    const Picture row = draw(container, @"row", flipped);
    EXPECT_TRUE(isAll(row, NSMakeRect(10, 10, 10, 20), flipped ? kRed : kBlue));
    EXPECT_TRUE(isAll(row, NSMakeRect(20, 10, 10, 20), flipped ? kGreen : kYellow));
  }
}

TEST_F(DictionaryContainer, WithoutImageOrRectanglesThereIsNothing) {
  for (HXDictionaryImageContainer *container : {
         withRects(nil, @{@"a" : rect(0, 0, 5, 5)}), withRects(imageOf(corners()), nil),
             withRects(nil, nil), withImages(nil), withKeys(nil, @[ @"a" ]), withKeys(nil, nil),
             withKeys(imageOf(corners()), nil), withKeys(imageOf(corners()), @[]),
             [[[HXDictionaryImageContainer alloc] init] autorelease]
       }) {
    ASSERT_NE(container, nil);
    expectNone(container, @"a");
    expectNone(container, nil);
  }
}

TEST_F(DictionaryContainer, WhatIsNoRectangleIsNotDrawn) {
  HXDictionaryImageContainer *container = withRects(imageOf(corners()), @{
    @"string" : @"{{0, 0}, {5, 5}}",
    @"image" : imageOf(corners()),
    @"number" : [NSNumber numberWithInt:5],
    @"size" : [NSValue valueWithSize:NSMakeSize(5, 5)],
    @"point" : [NSValue valueWithPoint:NSMakePoint(5, 5)],
    @"range" : [NSValue valueWithRange:NSMakeRange(5, 5)],
    @"pointer" : [NSValue valueWithPointer:this],
    @"object" : [NSValue valueWithNonretainedObject:@"a"]
  });
  for (NSString *key in
       @[ @"string", @"image", @"number", @"size", @"point", @"range", @"pointer", @"object" ]) {
    SCOPED_TRACE([key UTF8String]);
    EXPECT_TRUE([container containsImageForKey:key]);
    expectUnusable(container, key);
  }
}

// The platform cannot read them from a keyed archive.
TEST_F(DictionaryContainer, RectanglesOfAnArchiveAreRectangles) {
  NSData *archive = [NSArchiver archivedDataWithRootObject:@{@"a" : rect(0, 0, 10, 10)}];
  HXDictionaryImageContainer *container =
      withRects(imageOf(corners()), [NSUnarchiver unarchiveObjectWithData:archive]);
  EXPECT_EQ([container imageSizeForKey:@"a"], NSMakeSize(10, 10));
  expectCorners(draw(container, @"a", YES));
}

TEST_F(DictionaryContainer, OddRectanglesDrawWhatIsThere) {
  HXDictionaryImageContainer *container = withRects(imageOf(corners()), @{
    @"zero" : rect(0, 0, 0, 0),
    @"flat" : rect(5, 5, 5, 0),
    @"negative" : rect(5, 5, -5, 5),
    @"beside" : rect(10, 0, 5, 5),
    @"nan" : rect(kNaN, 0, 5, 5),
    @"infinite" : rect(0, 0, kInfinity, 5),
    @"larger" : rect(-10, -10, 30, 30)
  });
  for (const BOOL flipped : {NO, YES}) {
    expectCorners(draw(container, @"zero", flipped));
    for (NSString *key in @[ @"flat", @"negative", @"beside", @"nan", @"infinite" ]) {
      SCOPED_TRACE([key UTF8String]);
      expectNothing(draw(container, key, flipped));
    }
    // A third of it each way.
    expectCorners(draw(container, @"larger", flipped, NSMakeRect(-10, -10, 60, 60)));
  }
  EXPECT_EQ([container imageSizeForKey:@"zero"], NSZeroSize);
  EXPECT_EQ([container imageSizeForKey:@"negative"], NSMakeSize(-5, 5));
}

// MARK: Strips

TEST_F(DictionaryContainer, KeysStandSideBySide) {
  NSImage *image = imageOf(enlarged({{kRed, kGreen, kBlue}, {kYellow, kYellow, kYellow}}, 10));
  HXDictionaryImageContainer *container = withKeys(image, @[ @"a", @"b", @"c" ]);
  for (const BOOL flipped : {NO, YES}) {
    int i = 0;
    for (NSString *key in @[ @"a", @"b", @"c" ]) {
      SCOPED_TRACE([key UTF8String]);
      EXPECT_EQ([container imageSizeForKey:key], NSMakeSize(10, 20));
      const Picture picture = draw(container, key, flipped);
      const ov::test::Pixel colors[] = {kRed, kGreen, kBlue};
      EXPECT_TRUE(isAll(picture, NSMakeRect(10, 10, 20, 10), colors[i++]));
      EXPECT_TRUE(isAll(picture, NSMakeRect(10, 20, 20, 10), kYellow));
    }
  }
}

TEST_F(DictionaryContainer, TilesNeedNotBeWholePoints) {
  HXDictionaryImageContainer *container =
      withKeys(imageOf(plain(100, 10, kRed)), @[ @"a", @"b", @"c" ]);
  for (NSString *key in @[ @"a", @"b", @"c" ]) {
    EXPECT_EQ([container imageSizeForKey:key], NSMakeSize(static_cast<CGFloat>(100.0 / 3), 10));
  }
}

TEST_F(DictionaryContainer, TheLastOfEqualKeysCounts) {
  HXDictionaryImageContainer *container =
      withKeys(imageOf(enlarged({{kRed, kGreen}}, 10)), @[ @"a", @"a" ]);
  EXPECT_TRUE(isAll(draw(container, @"a", YES), NSMakeRect(10, 10, 20, 20), kGreen));
}

// MARK: Resources

class DictionaryResources : public DictionaryContainer {
 protected:
  void SetUp() override {
    DictionaryContainer::SetUp();
    art.put(@"Knob_default.png", plain(4, 3, kRed));
    art.put(@"Knob_alternate.png", plain(5, 3, kGreen));
    art.put(@"Strip.png", enlarged({{kRed, kGreen}}, 10));
    bundle = art.bundle();
  }
  ov::test::ArtBundle art;
  NSBundle *bundle = nil;
};

TEST_F(DictionaryResources, AreFoundByName) {
  HXDictionaryImageContainer *container =
      [[[HXDictionaryImageContainer alloc] initWithImageResourceNameDictionary:@{
        @"a" : @"Knob_default",
        @"b" : @"Knob_alternate.png",
        @"c" : @"Knob_none",
        @"d" : @"",
        @"e" : [NSNumber numberWithInt:3]
      }
                                                                      inBundle:bundle] autorelease];
  EXPECT_EQ([container imageSizeForKey:@"a"], NSMakeSize(4, 3));
  EXPECT_EQ([container imageSizeForKey:@"b"], NSMakeSize(5, 3));
  for (NSString *key in @[ @"c", @"d", @"e" ]) expectNone(container, key);
  EXPECT_TRUE(isAll(draw(container, @"a", YES), NSMakeRect(10, 10, 20, 20), kRed));
}

TEST_F(DictionaryResources, AreFoundByPrefixAndSuffix) {
  NSDictionary *suffixes = @{
    HXImageControlDefaultImageKey : HXImageControlDefaultImageSuffix,
    HXImageControlAlternateImageKey : HXImageControlAlternateImageSuffix,
    HXImageControlDisabledImageKey : HXImageControlDisabledImageSuffix,
    HXImageControlMouseOverImageKey : [NSNull null]
  };
  HXDictionaryImageContainer *container =
      [[[HXDictionaryImageContainer alloc] initWithImageResourceNamePrefix:@"Knob"
                                                          suffixDictionary:suffixes
                                                                  inBundle:bundle] autorelease];
  EXPECT_EQ([container imageSizeForKey:HXImageControlDefaultImageKey], NSMakeSize(4, 3));
  EXPECT_EQ([container imageSizeForKey:HXImageControlAlternateImageKey], NSMakeSize(5, 3));
  expectNone(container, HXImageControlDisabledImageKey);
  expectNone(container, HXImageControlMouseOverImageKey);

  container =
      [[[HXDictionaryImageContainer alloc] initWithImageResourceNamePrefix:nil
                                                          suffixDictionary:@{@"a" : @"Knob_default"}
                                                                  inBundle:bundle] autorelease];
  EXPECT_TRUE([container containsImageForKey:@"a"]);
}

TEST_F(DictionaryResources, MayBeOneImage) {
  HXDictionaryImageContainer *tiles =
      [[[HXDictionaryImageContainer alloc] initWithImageResourceName:@"Strip"
                                                            keyArray:@[ @"a", @"b" ]
                                                            inBundle:bundle] autorelease];
  HXDictionaryImageContainer *rects =
      [[[HXDictionaryImageContainer alloc] initWithImageResourceName:@"Strip"
                                                      rectDictionary:@{@"b" : rect(10, 0, 10, 10)}
                                                            inBundle:bundle] autorelease];
  for (HXDictionaryImageContainer *container : {tiles, rects}) {
    EXPECT_EQ([container imageSizeForKey:@"b"], NSMakeSize(10, 10));
    EXPECT_TRUE(isAll(draw(container, @"b", NO), NSMakeRect(10, 10, 20, 20), kGreen));
  }
}

TEST_F(DictionaryResources, ThatAreMissingLeaveNothing) {
  NSBundle *any = bundle;
  for (NSString *name : {@"None", @"", static_cast<NSString *>(nil)}) {
    for (NSBundle *place : {any, static_cast<NSBundle *>(nil)}) {
      expectNone([[[HXDictionaryImageContainer alloc] initWithImageResourceName:name
                                                                       keyArray:@[ @"a" ]
                                                                       inBundle:place] autorelease],
                 @"a");
      expectNone(
          [[[HXDictionaryImageContainer alloc] initWithImageResourceName:name
                                                          rectDictionary:@{@"a" : rect(0, 0, 5, 5)}
                                                                inBundle:place] autorelease],
          @"a");
    }
  }
  expectNone(
      [[[HXDictionaryImageContainer alloc] initWithImageResourceNameDictionary:nil
                                                                      inBundle:bundle] autorelease],
      @"a");
  expectNone(
      [[[HXDictionaryImageContainer alloc] initWithImageResourceNamePrefix:@"Knob"
                                                          suffixDictionary:nil
                                                                  inBundle:bundle] autorelease],
      @"a");
}

// Of a picture that the platform has for every program, in the short forms.
TEST_F(DictionaryResources, AreThoseOfTheMainBundleInShort) {
  NSString *name = @"common_Close";
  const NSSize size = [[[NSBundle mainBundle] imageForResource:name] size];
  ASSERT_GT(size.width, 0);
  NSArray *containers = @[
    [[[HXDictionaryImageContainer alloc] initWithImageResourceNameDictionary:@{@"a" : name}]
        autorelease],
    [[[HXDictionaryImageContainer alloc] initWithImageResourceNamePrefix:@"common_"
                                                        suffixDictionary:@{@"a" : @"Close"}]
        autorelease],
    [[[HXDictionaryImageContainer alloc] initWithImageResourceName:name
                                                          keyArray:@[ @"a" ]] autorelease],
    [[[HXDictionaryImageContainer alloc]
        initWithImageResourceName:name
                   rectDictionary:@{@"a" : rect(0, 0, size.width, size.height)}] autorelease]
  ];
  for (HXDictionaryImageContainer *container in containers) {
    EXPECT_EQ([container imageSizeForKey:@"a"], size);
  }
}

// MARK: Odd places

TEST_F(DictionaryContainer, DrawsNothingIntoNoPlace) {
  NSImage *image = imageOf(corners());
  HXDictionaryImageContainer *images = withImages(@{@"a" : image});
  HXDictionaryImageContainer *rects = withRects(image, @{@"a" : rect(0, 0, 10, 10)});
  for (HXDictionaryImageContainer *container : {images, rects}) {
    for (const NSRect place :
         {NSZeroRect, NSMakeRect(10, 10, 0, 0), NSMakeRect(10, 10, 20, 0),
          NSMakeRect(10, 10, -20, 20), NSMakeRect(kNaN, 0, 10, 10), NSMakeRect(0, 0, kNaN, 10),
          NSMakeRect(0, kInfinity, 10, 10), NSMakeRect(0, 0, 10, kInfinity)}) {
      for (const BOOL flipped : {NO, YES}) {
        expectNothing(draw(container, @"a", flipped, place));
      }
    }
  }
}

TEST_F(DictionaryContainer, NeedsAContextToDraw) {
  HXDictionaryImageContainer *container = withImages(@{@"a" : imageOf(corners())});
  NSGraphicsContext *context = [[NSGraphicsContext currentContext] retain];
  [NSGraphicsContext setCurrentContext:nil];
  [container drawImageInRect:NSMakeRect(0, 0, 9, 9) isFlipped:YES forKey:@"a"];
  [NSGraphicsContext setCurrentContext:context];
  [context release];
}

}  // namespace
