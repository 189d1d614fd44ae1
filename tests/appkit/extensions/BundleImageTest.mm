#import <OvAppKit/NSBundle+OvAppKit.h>

#import "LiveTest.h"

#import "ImageFiles.h"

namespace {

using ov::test::encoded;
using testing::IsEmpty;

class BundleImage : public ov::test::LiveTest {
 protected:
  void SetUp() override {
    LiveTest::SetUp();
    put(@"plain.png", encoded(NSPNGFileType));
    put(@"sub/deep.tiff", encoded(NSTIFFFileType));
    // The platform looks for languages within a folder, others for a folder within one.
    put(@"English.lproj/sub/spoken.png", encoded(NSPNGFileType));
    put(@"sub/English.lproj/spoken.png", encoded(NSPNGFileType));
    put(@"broken.png", [@"no picture" dataUsingEncoding:NSUTF8StringEncoding]);
    put(@"coarse.tiff", ov::test::grayTIFF(2, 1));
    put(@"empty.png", ov::test::headerOfPNG(0, 0));
    bundle = [NSBundle bundleWithPath:folder.path(@"Test.bundle")];
    ASSERT_NE(bundle, nil);
  }

  void put(NSString *name, NSData *data) {
    folder.write([@"Test.bundle/Resources" stringByAppendingPathComponent:name], data);
  }

  ov::test::ImageFolder folder;
  NSBundle *bundle = nil;
};

TEST_F(BundleImage, BitmapsAreFoundAsResourcesAre) {
  EXPECT_EQ([[bundle bitmapImageRepForResourceNamed:@"plain" ofType:@"png"] pixelsWide], 4);
  EXPECT_EQ([[bundle bitmapImageRepForResourceNamed:@"deep" ofType:@"tiff"
                                        inDirectory:@"sub"] pixelsWide],
            4);
  EXPECT_EQ([[bundle bitmapImageRepForResourceNamed:@"spoken"
                                             ofType:@"png"
                                        inDirectory:@"sub"
                                    forLocalization:@"English"] pixelsWide],
            4);
}

TEST_F(BundleImage, EachBitmapIsNew) {
  NSBitmapImageRep *first = [bundle bitmapImageRepForResourceNamed:@"plain" ofType:@"png"];
  EXPECT_NE([bundle bitmapImageRepForResourceNamed:@"plain" ofType:@"png"], first);
}

TEST_F(BundleImage, WhatIsNotThereIsNil) {
  EXPECT_EQ([bundle bitmapImageRepForResourceNamed:@"other" ofType:@"png"], nil);
  EXPECT_EQ([bundle bitmapImageRepForResourceNamed:@"plain" ofType:@"tiff"], nil);
  EXPECT_EQ([bundle bitmapImageRepForResourceNamed:@"plain" ofType:@"png" inDirectory:@"sub"], nil);
  EXPECT_EQ([bundle bitmapImageRepForResourceNamed:@"broken" ofType:@"png"], nil);
  EXPECT_EQ([bundle bitmapImageRepForResourceNamed:@"coarse" ofType:@"tiff"], nil);
  EXPECT_EQ([bundle bitmapImageRepForResourceNamed:@"empty" ofType:@"png"], nil);
  for (NSString *name : {static_cast<NSString *>(nil), @""}) {
    EXPECT_EQ([bundle bitmapImageRepForResourceNamed:name ofType:@"png"], nil);
    EXPECT_EQ([bundle bitmapImageRepForResourceNamed:name ofType:nil], nil);
    EXPECT_EQ([bundle bitmapImageRepForResourceNamed:name ofType:@"png" inDirectory:nil], nil);
    EXPECT_EQ([bundle bitmapImageRepForResourceNamed:name
                                              ofType:@"png"
                                         inDirectory:nil
                                     forLocalization:nil],
              nil);
  }
}

TEST_F(BundleImage, ImagesAreFoundByTheirName) {
  for (NSString *name in @[ @"plain", @"plain.png" ]) {
    NSImage *image = [bundle imageForResource:name];
    ASSERT_NE(image, nil) << [name UTF8String];
    EXPECT_EQ([image size], NSMakeSize(4, 2));
    EXPECT_EQ(ov::test::pictureOfImage(image).at(0, 0), ov::test::kRed);
    EXPECT_NE([bundle imageForResource:name], image) << "each is new";
  }
}

TEST_F(BundleImage, ImagesThatAreNotThereAreNil) {
  ov::test::LogCapture log;
  for (NSString *name : {static_cast<NSString *>(nil), @"", @"other", @"other.png", @"coarse",
                         @"empty", @".", @"..", @"/", @".png", @"\0"}) {
    SCOPED_TRACE(name == nil ? "nil" : [name UTF8String]);
    EXPECT_EQ([bundle imageForResource:name], nil);
  }
  // A few lines tell of the header without pixels.
  EXPECT_LT(log.lines().size(), 10u) << log.lines()[0];
}

}  // namespace
