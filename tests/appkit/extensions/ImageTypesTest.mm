#import <OvAppKit/NSImage+OvAppKit.h>

#include <objc/runtime.h>

#import "LiveTest.h"

static NSArray *givenTypes = nil;
static int typesAsked = 0;

/* Methods that stand for the platform's. */
@interface OvTestPlatform : NSImageRep
@end

@implementation OvTestPlatform

+ (NSArray *)imageFileTypes {
  ++typesAsked;
  return givenTypes;
}

// What there is with Core Image; the argument is the size.
+ (id)imageRepWithCIImage:(id)image {
  if (![image isKindOfClass:[NSValue class]]) return nil;
  NSImageRep *representation = [[[self alloc] init] autorelease];
  [representation setSize:[image sizeValue]];
  return representation;
}

@end

namespace {

IMP standIn(SEL selector) {
  return method_getImplementation(class_getClassMethod([OvTestPlatform class], selector));
}

// The list is asked once in a process: the first test of this suite that gets an answer sees
// this list, and all later ones do.
class ImageTypes : public ov::test::LiveTest {
 protected:
  void SetUp() override {
    LiveTest::SetUp();
    givenTypes = @[ @"png", @"'PNGf'", @"TIFF", @"'TIFF'", @"odd'" ];
    method_ = class_getClassMethod([NSImage class], @selector(imageFileTypes));
    real_ = method_setImplementation(method_, standIn(@selector(imageFileTypes)));
  }
  void TearDown() override {
    method_setImplementation(method_, real_);
    LiveTest::TearDown();
  }

 private:
  Method method_ = nullptr;
  IMP real_ = nullptr;
};

TEST_F(ImageTypes, NothingIsNoneWithoutAsking) {
  typesAsked = 0;
  EXPECT_FALSE([NSImage canInitWithPathExtension:@""]);
  EXPECT_FALSE([NSImage canInitWithPathExtension:nil]);
  EXPECT_FALSE([NSImage canInitWithHFSFileType:@""]);
  EXPECT_FALSE([NSImage canInitWithHFSFileType:nil]);
  EXPECT_FALSE([NSImage canInitWithPath:@""]);
  EXPECT_FALSE([NSImage canInitWithPath:nil]);
  EXPECT_EQ(typesAsked, 0);
}

TEST_F(ImageTypes, ExtensionsAreThoseWithoutApostrophe) {
  EXPECT_TRUE([NSImage canInitWithPathExtension:@"png"]);
  EXPECT_TRUE([NSImage canInitWithPathExtension:@"TIFF"]);
  EXPECT_TRUE([NSImage canInitWithPathExtension:@"odd'"]) << "only the first character counts";
  EXPECT_FALSE([NSImage canInitWithPathExtension:@"PNG"]);
  EXPECT_FALSE([NSImage canInitWithPathExtension:@"tiff"]);
  EXPECT_FALSE([NSImage canInitWithPathExtension:@".png"]);
  EXPECT_FALSE([NSImage canInitWithPathExtension:@"'PNGf'"]);
}

TEST_F(ImageTypes, TypeCodesAreThoseInApostrophes) {
  EXPECT_TRUE([NSImage canInitWithHFSFileType:@"'PNGf'"]);
  EXPECT_TRUE([NSImage canInitWithHFSFileType:@"'TIFF'"]);
  EXPECT_FALSE([NSImage canInitWithHFSFileType:@"PNGf"]);
  EXPECT_FALSE([NSImage canInitWithHFSFileType:@"png"]);
}

TEST_F(ImageTypes, TheListsAreKept) {
  [NSImage canInitWithPathExtension:@"png"];
  [NSImage canInitWithHFSFileType:@"'PNGf'"];
  typesAsked = 0;
  givenTypes = @[ @"new", @"'newT'" ];
  EXPECT_FALSE([NSImage canInitWithPathExtension:@"new"]);
  EXPECT_FALSE([NSImage canInitWithHFSFileType:@"'newT'"]);
  EXPECT_TRUE([NSImage canInitWithPathExtension:@"png"]);
  EXPECT_EQ(typesAsked, 0);
}

TEST_F(ImageTypes, APathIsJudgedByItsExtension) {
  EXPECT_TRUE([NSImage canInitWithPath:@"/nothing/here.png"]);
  EXPECT_TRUE([NSImage canInitWithPath:@"a.b.png"]);
  EXPECT_FALSE([NSImage canInitWithPath:@"/nothing/here.txt"]);
  EXPECT_FALSE([NSImage canInitWithPath:@"/nothing/png"]);
  EXPECT_FALSE([NSImage canInitWithPath:@".png"]) << "that is its name";
  EXPECT_FALSE([NSImage canInitWithPath:@"/nothing.png/here"]);
  EXPECT_FALSE([NSImage canInitWithPath:@"/"]);
}

class CoreImage : public ov::test::LiveTest {};

TEST_F(CoreImage, ThePlatformsRepresentationIsUsedWhenThereIsOne) {
  CIImage *given = static_cast<CIImage *>([NSValue valueWithSize:NSMakeSize(30, 20)]);
  if (![NSCIImageRep respondsToSelector:@selector(imageRepWithCIImage:)]) {
    EXPECT_EQ([[NSImage alloc] initWithCIImage:given], nil);
    EXPECT_EQ([NSImage imageWithCIImage:given], nil);
    class_addMethod(object_getClass([NSCIImageRep class]), @selector(imageRepWithCIImage:),
                    standIn(@selector(imageRepWithCIImage:)), "@@:@");
  }
  NSImage *image = [[[NSImage alloc] initWithCIImage:given] autorelease];
  for (NSImage *each in @[ image, [NSImage imageWithCIImage:given] ]) {
    EXPECT_EQ([each size], NSMakeSize(30, 20));
    ASSERT_EQ([[each representations] count], 1u);
    EXPECT_TRUE([[[each representations] objectAtIndex:0] isKindOfClass:[NSCIImageRep class]]);
  }
  EXPECT_EQ([[NSImage alloc] initWithCIImage:nil], nil);
  EXPECT_EQ([NSImage imageWithCIImage:nil], nil);
  EXPECT_EQ([NSImage imageWithCIImage:static_cast<CIImage *>(@"no picture")], nil);
}

}  // namespace
