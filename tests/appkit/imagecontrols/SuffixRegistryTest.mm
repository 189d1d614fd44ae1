#import <OvAppKit/HXImageControlImageContainer.h>
#import <OvAppKit/HXImageControlImageResourceNameSuffixRegistry.h>

#include <cstdint>
#include <vector>

#import "LiveTest.h"
#import "StringKinds.h"

using Registry = HXImageControlImageResourceNameSuffixRegistry;

/* Answers what it is told to, whatever was set. */
@interface OvTestRegistry : HXImageControlImageResourceNameSuffixRegistry {
 @public
  BOOL answersNil;
}
@end

@implementation OvTestRegistry
- (BOOL)appendsSuffixForImagePartBeforeImageVariation {
  return YES;
}
- (NSString *)suffixForImagePart:(HXImageControlImagePart)part {
  return answersNil ? nil : [NSString stringWithFormat:@"+p%u", part];
}
- (NSString *)suffixForImageVariation:(HXImageControlImageVariation)variation {
  return answersNil ? nil : [NSString stringWithFormat:@"+v%u", variation];
}
@end

@interface OvTestDerivedContainer : HXImageControlImageContainer
@end
@implementation OvTestDerivedContainer
@end

namespace {

constexpr uint32_t kParts = 11;
constexpr uint32_t kVariations = 5;

const char *const kPartSuffixes[kParts] = {
    "",           "-left",        "-right",        "-top",  "-bottom",   "-left-top",
    "-right-top", "-left-bottom", "-right-bottom", "-icon", "-accessory"};
const char *const kVariationSuffixes[kVariations] = {"-default", "-highlighted", "-mouseopushed",
                                                     "-mouseovered", "-disabled"};

std::string text(NSString *string) { return string ? [string UTF8String] : "nil"; }

Registry *shared() { return [HXImageControlImageContainer imageResourceNameSuffixRegistry]; }

class SuffixRegistry : public ov::test::LiveTest {
 protected:
  void SetUp() override {
    LiveTest::SetUp();
    registry = [[[Registry alloc] init] autorelease];
  }
  Registry *registry = nil;
};

TEST_F(SuffixRegistry, ANewOneAddsNothing) {
  EXPECT_FALSE([registry appendsSuffixForImagePartBeforeImageVariation]);
  EXPECT_EQ([registry pathExtension], nil);
  for (uint32_t part = 0; part < kParts; part++) {
    EXPECT_EQ(text([registry suffixForImagePart:part]), "");
    EXPECT_EQ(text([registry stringWithPrefix:@"Button" imagePart:part]), "Button");
    for (uint32_t variation = 0; variation < kVariations; variation++) {
      EXPECT_EQ(text([registry suffixForImageVariation:variation]), "");
      EXPECT_EQ(text([registry stringWithPrefix:@"Button" imageVariation:variation]), "Button");
      EXPECT_EQ(text([registry stringWithPrefix:@"Button" imagePart:part imageVariation:variation]),
                "Button");
    }
  }
}

TEST_F(SuffixRegistry, TheNumbersArePartOfTheInterface) {
  EXPECT_EQ(HXImageControlImagePartCenter, 0);
  EXPECT_EQ(HXImageControlImagePartLeft, 1);
  EXPECT_EQ(HXImageControlImagePartRight, 2);
  EXPECT_EQ(HXImageControlImagePartTop, 3);
  EXPECT_EQ(HXImageControlImagePartBottom, 4);
  EXPECT_EQ(HXImageControlImagePartLeftTop, 5);
  EXPECT_EQ(HXImageControlImagePartRightTop, 6);
  EXPECT_EQ(HXImageControlImagePartLeftBottom, 7);
  EXPECT_EQ(HXImageControlImagePartRightBottom, 8);
  EXPECT_EQ(HXImageControlImagePartIcon, 9);
  EXPECT_EQ(HXImageControlImagePartAccessory, 10);
  EXPECT_EQ(HXImageControlImageVariationDefault, 0);
  EXPECT_EQ(HXImageControlImageVariationHighlighted, 1);
  EXPECT_EQ(HXImageControlImageVariationMousePushed, 2);
  EXPECT_EQ(HXImageControlImageVariationMouseOver, 3);
  EXPECT_EQ(HXImageControlImageVariationDisabled, 4);
  EXPECT_EQ(sizeof(HXImageControlImagePart), 4u);
  EXPECT_EQ(sizeof(HXImageControlImageVariation), 4u);
}

TEST_F(SuffixRegistry, KeysAndSuffixesOfStates) {
  EXPECT_EQ(text(HXImageControlDefaultImageKey), "HXImageControlDefaultImage");
  EXPECT_EQ(text(HXImageControlAlternateImageKey), "HXImageControlAlternateImage");
  EXPECT_EQ(text(HXImageControlMouseOverImageKey), "HXImageControlMouseOverImage");
  EXPECT_EQ(text(HXImageControlDisabledImageKey), "HXImageControlDisabledImage");
  EXPECT_EQ(text(HXImageControlDefaultImageSuffix), "_default");
  EXPECT_EQ(text(HXImageControlAlternateImageSuffix), "_alternate");
  EXPECT_EQ(text(HXImageControlMouseOverImageSuffix), "_mouseover");
  EXPECT_EQ(text(HXImageControlDisabledImageSuffix), "_disabled");
}

TEST_F(SuffixRegistry, TheSharedOneIsOne) {
  ASSERT_NE(shared(), nil);
  EXPECT_EQ(shared(), shared());
  EXPECT_EQ([OvTestDerivedContainer imageResourceNameSuffixRegistry], shared());
}

TEST_F(SuffixRegistry, TheSharedOneNamesEveryPicture) {
  EXPECT_FALSE([shared() appendsSuffixForImagePartBeforeImageVariation]);
  EXPECT_EQ([shared() pathExtension], nil);
  for (uint32_t part = 0; part < kParts; part++) {
    const std::string partSuffix = kPartSuffixes[part];
    EXPECT_EQ(text([shared() suffixForImagePart:part]), partSuffix);
    EXPECT_EQ(text([shared() stringWithPrefix:@"B" imagePart:part]), "B" + partSuffix);
    for (uint32_t variation = 0; variation < kVariations; variation++) {
      const std::string suffix = kVariationSuffixes[variation];
      EXPECT_EQ(text([shared() suffixForImageVariation:variation]), suffix);
      EXPECT_EQ(text([shared() stringWithPrefix:@"B" imageVariation:variation]), "B" + suffix);
      EXPECT_EQ(text([shared() stringWithPrefix:@"B" imagePart:part imageVariation:variation]),
                "B" + suffix + partSuffix);
    }
  }
}

TEST_F(SuffixRegistry, NamesOfButtons) {
  const struct {
    uint32_t part, variation;
    const char *name;
  } rows[] = {{0, 0, "Button-default"},
              {1, 1, "Button-highlighted-left"},
              {8, 4, "Button-disabled-right-bottom"},
              {9, 3, "Button-mouseovered-icon"},
              {10, 2, "Button-mouseopushed-accessory"}};
  for (const auto &row : rows) {
    EXPECT_EQ(text([shared() stringWithPrefix:@"Button"
                                    imagePart:row.part
                               imageVariation:row.variation]),
              row.name);
  }
}

TEST_F(SuffixRegistry, ThePartMayComeFirst) {
  for (uint32_t part = 0; part < kParts; part++) {
    [registry setSuffix:[shared() suffixForImagePart:part] forImagePart:part];
  }
  for (uint32_t variation = 0; variation < kVariations; variation++) {
    [registry setSuffix:[shared() suffixForImageVariation:variation] forImageVariation:variation];
  }
  [registry setAppendsSuffixForImagePartBeforeImageVariation:YES];
  EXPECT_TRUE([registry appendsSuffixForImagePartBeforeImageVariation]);
  EXPECT_EQ(text([registry stringWithPrefix:@"Button" imagePart:1 imageVariation:1]),
            "Button-left-highlighted");
  EXPECT_EQ(text([registry stringWithPrefix:@"Button" imagePart:0 imageVariation:1]),
            "Button-highlighted");
  // The names with one suffix have no order.
  EXPECT_EQ(text([registry stringWithPrefix:@"Button" imagePart:1]), "Button-left");
  EXPECT_EQ(text([registry stringWithPrefix:@"Button" imageVariation:1]), "Button-highlighted");
  [registry setAppendsSuffixForImagePartBeforeImageVariation:NO];
  EXPECT_EQ(text([registry stringWithPrefix:@"Button" imagePart:1 imageVariation:1]),
            "Button-highlighted-left");
}

TEST_F(SuffixRegistry, WhatIsNoPartOrVariationHasNoSuffix) {
  for (uint32_t i = 0; i < kParts; i++) [registry setSuffix:@"p" forImagePart:i];
  for (uint32_t i = 0; i < kVariations; i++) [registry setSuffix:@"v" forImageVariation:i];
  for (const uint32_t part : {11u, 12u, 55u, UINT32_MAX}) {
    [registry setSuffix:@"bad" forImagePart:part];
    EXPECT_EQ(text([registry suffixForImagePart:part]), "");
    EXPECT_EQ(text([registry stringWithPrefix:@"B" imagePart:part imageVariation:0]), "Bv");
  }
  for (const uint32_t variation : {5u, 6u, 11u, UINT32_MAX}) {
    [registry setSuffix:@"bad" forImageVariation:variation];
    EXPECT_EQ(text([registry suffixForImageVariation:variation]), "");
    EXPECT_EQ(text([registry stringWithPrefix:@"B" imagePart:0 imageVariation:variation]), "Bp");
  }
  for (uint32_t i = 0; i < kParts; i++) EXPECT_EQ(text([registry suffixForImagePart:i]), "p");
  for (uint32_t i = 0; i < kVariations; i++) {
    EXPECT_EQ(text([registry suffixForImageVariation:i]), "v");
  }
  EXPECT_EQ([registry pathExtension], nil);
}

TEST_F(SuffixRegistry, KeepsTheVeryStrings) {
  NSMutableString *suffix = [NSMutableString stringWithString:@"-a"];
  [registry setSuffix:suffix forImagePart:3];
  [registry setSuffix:suffix forImageVariation:2];
  [registry setPathExtension:suffix];
  EXPECT_EQ([registry suffixForImagePart:3], suffix);
  EXPECT_EQ([registry suffixForImageVariation:2], suffix);
  EXPECT_EQ([registry pathExtension], suffix);
  [suffix appendString:@"b"];
  EXPECT_EQ(text([registry stringWithPrefix:@"B" imagePart:3 imageVariation:2]), "B-ab-ab");
}

TEST_F(SuffixRegistry, HoldsEachStringOnce) {
  id suffix = [[OvTestDeathCounter alloc] init];
  const NSUInteger count = [suffix retainCount];
  [registry setSuffix:suffix forImagePart:3];
  EXPECT_EQ([suffix retainCount], count + 1);
  [registry setSuffix:suffix forImagePart:3];
  EXPECT_EQ([suffix retainCount], count + 1);
  [registry setSuffix:suffix forImageVariation:3];
  [registry setSuffix:suffix forImageVariation:3];
  EXPECT_EQ([suffix retainCount], count + 2);
  [registry setPathExtension:suffix];
  [registry setPathExtension:suffix];
  EXPECT_EQ([suffix retainCount], count + 3);
  const int before = [OvTestDeathCounter deaths];
  [suffix release];
  [registry setSuffix:@"" forImagePart:3];
  [registry setSuffix:@"" forImageVariation:3];
  EXPECT_EQ([OvTestDeathCounter deaths], before);
  [registry setPathExtension:nil];
  EXPECT_EQ([OvTestDeathCounter deaths], before + 1);
}

TEST_F(SuffixRegistry, LetsAllGoAtItsEnd) {
  Registry *mortal = [[Registry alloc] init];
  for (uint32_t i = 0; i < kParts; i++) {
    id suffix = [[OvTestDeathCounter alloc] init];
    [mortal setSuffix:suffix forImagePart:i];
    [suffix release];
  }
  for (uint32_t i = 0; i < kVariations; i++) {
    id suffix = [[OvTestDeathCounter alloc] init];
    [mortal setSuffix:suffix forImageVariation:i];
    [suffix release];
  }
  id extension = [[OvTestDeathCounter alloc] init];
  [mortal setPathExtension:extension];
  [extension release];
  const int before = [OvTestDeathCounter deaths];
  [mortal release];
  EXPECT_EQ([OvTestDeathCounter deaths], before + 17);
}

TEST_F(SuffixRegistry, NilIsNoSuffix) {
  [registry setSuffix:@"p" forImagePart:1];
  [registry setSuffix:@"v" forImageVariation:1];
  [registry setSuffix:nil forImagePart:1];
  [registry setSuffix:nil forImageVariation:1];
  EXPECT_EQ(text([registry suffixForImagePart:1]), "");
  EXPECT_EQ(text([registry suffixForImageVariation:1]), "");
  EXPECT_EQ(text([registry stringWithPrefix:nil imagePart:1 imageVariation:1]), "");
  EXPECT_EQ(text([shared() stringWithPrefix:nil imagePart:1 imageVariation:1]),
            "-highlighted-left");
}

TEST_F(SuffixRegistry, AsksItself) {
  OvTestRegistry *own = [[[OvTestRegistry alloc] init] autorelease];
  EXPECT_EQ(text([own stringWithPrefix:@"B" imagePart:7 imageVariation:3]), "B+p7+v3");
  EXPECT_EQ(text([own stringWithPrefix:@"B" imagePart:7]), "B+p7");
  EXPECT_EQ(text([own stringWithPrefix:@"B" imageVariation:3]), "B+v3");
  own->answersNil = YES;
  EXPECT_EQ(text([own stringWithPrefix:@"B" imagePart:7 imageVariation:3]), "B");
}

TEST_F(SuffixRegistry, TakesAnyText) {
  const std::u16string strange = {0xD800, 0, u'x', 0xDC00, 0x202E};
  for (const ov::test::StringKind kind : ov::test::stringKinds()) {
    SCOPED_TRACE(nameOf(kind));
    NSString *prefix = ov::test::makeString(strange, kind);
    if (prefix == nil) continue;
    [registry setSuffix:prefix forImagePart:1];
    [registry setSuffix:@"%@%n" forImageVariation:1];
    NSString *name = [registry stringWithPrefix:prefix imagePart:1 imageVariation:1];
    EXPECT_EQ(ov::test::unitsOf(name), strange + u"%@%n" + strange);
  }

  NSString *huge = [@"" stringByPaddingToLength:1000000 withString:@"n" startingAtIndex:0];
  EXPECT_EQ([[registry stringWithPrefix:huge imagePart:0] length], 1000000u);
}

TEST_F(SuffixRegistry, ThePathExtensionIsNoPartOfAName) {
  [registry setPathExtension:@"png"];
  EXPECT_EQ(text([registry stringWithPrefix:@"B" imagePart:0 imageVariation:0]), "B");
}

}  // namespace
