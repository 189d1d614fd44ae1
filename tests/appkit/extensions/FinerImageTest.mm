// Pictures in two resolutions: NAME and, beside it, NAME@2x.

#import <OvAppKit/HXImageSegment.h>
#import <OvAppKit/NSBundle+OvAppKit.h>

#import "LiveTest.h"

#import "ImageFiles.h"

namespace {

using ov::test::encoded;

// Of one colour, so many pixels wide and half as high.
NSData *plain(NSColor *color, NSInteger width, NSBitmapImageFileType type = NSTIFFFileType) {
  NSBitmapImageRep *rep = ov::test::emptyBitmap(width, width / 2);
  for (NSInteger y = 0; y < width / 2; y++) {
    for (NSInteger x = 0; x < width; x++) [rep setColor:color atX:x y:y];
  }
  return [rep representationUsingType:type properties:[NSDictionary dictionary]];
}

class FinerImage : public ov::test::LiveTest {
 protected:
  void SetUp() override {
    LiveTest::SetUp();
    put(@"two.tiff", plain([NSColor redColor], 16));
    put(@"two@2x.tiff", plain([NSColor blueColor], 32));
    put(@"same.png", plain([NSColor redColor], 16, NSPNGFileType));
    put(@"same@2x.png", plain([NSColor blueColor], 32, NSPNGFileType));
    put(@"types.png", plain([NSColor redColor], 16, NSPNGFileType));
    put(@"types@2x.tiff", plain([NSColor blueColor], 32));
    put(@"odd.tiff", plain([NSColor redColor], 16));
    put(@"odd@2x.tiff", plain([NSColor blueColor], 30));
    put(@"broken.tiff", plain([NSColor redColor], 16));
    put(@"broken@2x.tiff", [@"no picture" dataUsingEncoding:NSUTF8StringEncoding]);
    put(@"coarse.tiff", plain([NSColor redColor], 16));
    put(@"coarse@2x.tiff", ov::test::grayTIFF(2, 1));
    put(@"alone@2x.tiff", plain([NSColor blueColor], 32));
    bundle = [NSBundle bundleWithPath:folder.path(@"Test.bundle")];
    ASSERT_NE(bundle, nil);
  }

  void put(NSString *name, NSData *data) {
    folder.write([@"Test.bundle/Resources" stringByAppendingPathComponent:name], data);
  }

  ov::test::ImageFolder folder;
  NSBundle *bundle = nil;
};

NSImageRep *best(NSImage *image, CGFloat resolution) {
  return [image bestRepresentationForDevice:@{
    NSDeviceResolution : [NSValue valueWithSize:NSMakeSize(resolution, resolution)]
  }];
}

TEST_F(FinerImage, IsFoundBesideThePlainOne) {
  for (NSString *name in @[ @"two", @"two.tiff", @"same" ]) {
    SCOPED_TRACE([name UTF8String]);
    NSImage *image = [bundle imageForResource:name];
    EXPECT_EQ([image size], NSMakeSize(16, 8));
    ASSERT_EQ([[image representations] count], 2u);
    EXPECT_EQ([best(image, 72) pixelsWide], 16);
    EXPECT_EQ([best(image, 144) pixelsWide], 32);
    EXPECT_EQ([best(image, 144) size], NSMakeSize(16, 8));
  }
}

TEST_F(FinerImage, IsFoundForASegmentOfAPath) {
  HXImageSegment *segment =
      [[[HXImageSegment alloc] initWithPath:[bundle pathForResource:@"two"
                                                             ofType:@"tiff"]] autorelease];
  EXPECT_EQ([[[segment image] representations] count], 2u);
  EXPECT_EQ([segment rect], NSMakeRect(0, 0, 16, 8));
}

TEST_F(FinerImage, MustBeOfTheSameTypeAndTwiceTheSize) {
  for (NSString *name in @[ @"types", @"odd" ]) {
    NSImage *image = [bundle imageForResource:name];
    EXPECT_EQ([image size], NSMakeSize(16, 8)) << [name UTF8String];
    EXPECT_EQ([[image representations] count], 1u) << [name UTF8String];
  }
}

TEST_F(FinerImage, ThatIsNoneLeavesThePlainOne) {
  for (NSString *name in @[ @"broken", @"coarse" ]) {
    NSImage *image = [bundle imageForResource:name];
    EXPECT_EQ([[image representations] count], 1u) << [name UTF8String];
  }
}

TEST_F(FinerImage, AloneIsAPictureOfItsOwnName) {
  EXPECT_EQ([bundle imageForResource:@"alone"], nil);
  EXPECT_EQ([[bundle imageForResource:@"alone@2x"] size], NSMakeSize(32, 16));
}

// Whole or in part, in its size or another.
TEST_F(FinerImage, IsNotForScreensOfOnePixelAPoint) {
  NSWindow *window = makeWindow(NSMakeSize(100, 40));
  NSView *view = [window contentView];
  NSImage *image = [bundle imageForResource:@"two"];
  for (const NSRect source : {NSZeroRect, NSMakeRect(0, 0, 16, 8), NSMakeRect(8, 0, 8, 8)}) {
    for (const NSRect destination : {NSMakeRect(0, 0, 16, 8), NSMakeRect(0, 0, 80, 36)}) {
      [view lockFocus];
      NSRectFill([view bounds]);
      [image drawInRect:destination
                fromRect:source
               operation:NSCompositeSourceOver
                fraction:1
          respectFlipped:YES
                   hints:nil];
      NSBitmapImageRep *rep =
          [[[NSBitmapImageRep alloc] initWithFocusedViewRect:destination] autorelease];
      [view unlockFocus];
      const ov::test::Picture picture(rep);
      EXPECT_EQ(picture.at(3, 3), ov::test::kRed) << source << destination;
      EXPECT_EQ(picture.at(picture.width() - 3, picture.height() - 3), ov::test::kRed);
    }
  }
}

TEST_F(FinerImage, SurvivesAnArchiveOfItsContents) {
  NSImage *image = [bundle imageForResource:@"two"];
  NSImage *copy = [[[NSImage alloc] initWithData:[image TIFFRepresentation]] autorelease];
  EXPECT_EQ([copy size], NSMakeSize(16, 8));
  EXPECT_EQ([best(copy, 72) pixelsWide], 16);
  EXPECT_EQ([best(copy, 144) pixelsWide], 32);
}

}  // namespace
