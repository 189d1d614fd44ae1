#import <OvAppKit/NSBitmapImageRep+OvAppKit.h>

#include <sys/stat.h>

#include <cmath>

#import "LiveTest.h"

#import "ImageFiles.h"

/* Tells when it dies. */
@interface OvTestMortalBitmap : NSBitmapImageRep
+ (int)deaths;
@end

static int mortalDeaths = 0;

@implementation OvTestMortalBitmap
+ (int)deaths {
  return mortalDeaths;
}
- (void)dealloc {
  mortalDeaths++;
  [super dealloc];
}
@end

namespace {

using ov::test::encoded;
using ov::test::grayTIFF;
using ov::test::headerOfPNG;
using ov::test::redAndBlue;

class BitmapFiles : public ov::test::LiveTest {
 protected:
  static NSBitmapImageRep *load(NSString *path) {
    return [[[NSBitmapImageRep alloc] initWithContentsOfFile:path] autorelease];
  }

  // Whether such a file gives a bitmap; the one that was to be initialised must not outlive
  // a refusal.
  bool loads(NSData *data) {
    const int before = [OvTestMortalBitmap deaths];
    bool loaded = false;
    @autoreleasepool {
      NSString *path = folder.write(@"picture", data);
      OvTestMortalBitmap *rep = [[OvTestMortalBitmap alloc] initWithContentsOfFile:path];
      loaded = rep != nil;
      [rep release];
    }
    EXPECT_EQ([OvTestMortalBitmap deaths], before + 1);
    return loaded;
  }

  ov::test::ImageFolder folder;
};

TEST_F(BitmapFiles, AreReadWhole) {
  struct {
    NSString *name;
    NSBitmapImageFileType type;
  } const rows[] = {{@"a.png", NSPNGFileType}, {@"a.tiff", NSTIFFFileType}};
  for (const auto &row : rows) {
    NSString *path = folder.write(row.name, encoded(row.type));
    for (NSBitmapImageRep *rep :
         {load(path), static_cast<NSBitmapImageRep *>([[[NSBitmapImageRep alloc]
                          initWithContentsOfURL:[NSURL fileURLWithPath:path]] autorelease])}) {
      ASSERT_NE(rep, nil) << [row.name UTF8String];
      EXPECT_EQ([rep pixelsWide], 4);
      EXPECT_EQ([rep pixelsHigh], 2);
      const ov::test::Picture picture(rep);
      EXPECT_EQ(picture.at(0, 0), ov::test::kRed);
      EXPECT_EQ(picture.at(3, 1), ov::test::kBlue);
    }
  }
  NSString *jpeg = folder.write(@"a.jpg", encoded(NSJPEGFileType));
  EXPECT_EQ([load(jpeg) pixelsWide], 64);
}

TEST_F(BitmapFiles, TheNameDoesNotMatter) {
  NSString *path = folder.write(@"ä ö", encoded(NSPNGFileType));
  EXPECT_EQ([load(path) pixelsWide], 4);
}

TEST_F(BitmapFiles, WhatIsNoFileGivesNone) {
  EXPECT_EQ(load(nil), nil);
  EXPECT_EQ(load(@""), nil);
  EXPECT_EQ(load(folder.path(@"missing.png")), nil);
  EXPECT_EQ(load(folder.path()), nil) << "a folder";
  NSString *pipe = folder.path(@"pipe");
  ASSERT_EQ(mkfifo([pipe fileSystemRepresentation], 0600), 0);
  EXPECT_EQ(load(pipe), nil) << "reading one would wait for ever";
  EXPECT_EQ([[NSBitmapImageRep alloc] initWithContentsOfURL:nil], nil);
  EXPECT_EQ([[NSBitmapImageRep alloc]
                initWithContentsOfURL:[NSURL fileURLWithPath:folder.path(@"missing.png")]],
            nil);
}

TEST_F(BitmapFiles, WhatIsNoPictureGivesNone) {
  EXPECT_FALSE(loads([NSData data]));
  EXPECT_FALSE(loads([@"This is no picture." dataUsingEncoding:NSUTF8StringEncoding]));
  EXPECT_FALSE(loads([NSMutableData dataWithLength:1000]));
}

TEST_F(BitmapFiles, DamagedPicturesGiveNoneOrWhatIsThere) {
  for (const NSBitmapImageFileType type :
       {NSPNGFileType, NSTIFFFileType, NSJPEGFileType, NSGIFFileType}) {
    NSData *whole = encoded(type);
    EXPECT_TRUE(loads(whole));
    int refused = 0;
    for (NSUInteger length = 0; length < [whole length]; length += 1 + [whole length] / 60) {
      refused += !loads([whole subdataWithRange:NSMakeRange(0, length)]);
    }
    EXPECT_GT(refused, 0) << "of type " << type;
  }
}

TEST_F(BitmapFiles, ATIFFWithoutItsPixelsGivesNone) {
  NSData *whole = grayTIFF(8, 1);
  EXPECT_TRUE(loads(whole));
  EXPECT_FALSE(loads([whole subdataWithRange:NSMakeRange(0, [whole length] - 10)]));
}

TEST_F(BitmapFiles, LayoutsThatThePlatformCannotReadAreRefused) {
  EXPECT_TRUE(loads(grayTIFF(8, 1)));
  EXPECT_TRUE(loads(grayTIFF(1, 1)));
  EXPECT_TRUE(loads(grayTIFF(16, 1)));
  EXPECT_FALSE(loads(grayTIFF(2, 1)));
  EXPECT_FALSE(loads(grayTIFF(4, 1)));
  EXPECT_FALSE(loads(grayTIFF(2, 4)));
}

TEST_F(BitmapFiles, ImpossibleSizesAreRefused) {
  EXPECT_FALSE(loads(headerOfPNG(0, 0)));
  EXPECT_FALSE(loads(headerOfPNG(20000, 20000)));
  EXPECT_FALSE(loads(headerOfPNG(1, 0x7FFFFFFF))) << "its rows would not fit on the stack";
}

class BitmapImage : public ov::test::LiveTest {};

TEST_F(BitmapImage, FillsTheSizeWithNoRegardForProportions) {
  NSImage *image = [redAndBlue() imageWithSize:NSMakeSize(40, 60)];
  EXPECT_EQ([image size], NSMakeSize(40, 60));
  const ov::test::Picture picture = ov::test::pictureOfImage(image);
  ASSERT_EQ(picture.width(), 40);
  ASSERT_EQ(picture.height(), 60);
  for (const int y : {1, 30, 58}) {
    EXPECT_TRUE(near(picture.at(2, y), ov::test::kRed, 40)) << picture.at(2, y);
    EXPECT_TRUE(near(picture.at(37, y), ov::test::kBlue, 40)) << picture.at(37, y);
  }
}

TEST_F(BitmapImage, IsScaledSmoothly) {
  const ov::test::Picture picture =
      ov::test::pictureOfImage([redAndBlue() imageWithSize:NSMakeSize(40, 20)]);
  // Between the two colours lies a mixture of both.
  const ov::test::Pixel seam = picture.at(20, 10);
  const ov::test::Pixel before = picture.at(19, 10);
  EXPECT_TRUE((seam.r > 10 && seam.b > 10) || (before.r > 10 && before.b > 10))
      << before << " " << seam;
}

TEST_F(BitmapImage, EachIsNewAndLeavesTheBitmapAlone) {
  NSBitmapImageRep *rep = redAndBlue();
  NSImage *first = [rep imageWithSize:NSMakeSize(8, 4)];
  NSImage *second = [rep imageWithSize:NSMakeSize(8, 4)];
  EXPECT_NE(first, second);
  EXPECT_EQ([rep size], NSMakeSize(4, 2));
}

TEST_F(BitmapImage, ImpossibleSizesGiveNone) {
  for (const NSSize size :
       {NSMakeSize(0, 0), NSMakeSize(0, 5), NSMakeSize(5, 0), NSMakeSize(-5, 5), NSMakeSize(NAN, 5),
        NSMakeSize(5, NAN), NSMakeSize(INFINITY, 5), NSMakeSize(8193, 5), NSMakeSize(5, 1e30)}) {
    EXPECT_EQ([redAndBlue() imageWithSize:size], nil) << size;
  }
}

TEST_F(BitmapImage, SmallAndLongSizesAreNoTrouble) {
  EXPECT_EQ([[redAndBlue() imageWithSize:NSMakeSize(0.25, 0.5)] size], NSMakeSize(0.25, 0.5));
  EXPECT_EQ([[redAndBlue() imageWithSize:NSMakeSize(1, 1)] size], NSMakeSize(1, 1));
  EXPECT_EQ([[redAndBlue() imageWithSize:NSMakeSize(8192, 2)] size], NSMakeSize(8192, 2));
}

TEST_F(BitmapImage, FocusStaysWhereItWas) {
  NSWindow *window = makeWindow(NSMakeSize(50, 50));
  [[window contentView] lockFocus];
  NSGraphicsContext *context = [NSGraphicsContext currentContext];
  const NSImageInterpolation interpolation = [context imageInterpolation];
  [redAndBlue() imageWithSize:NSMakeSize(8, 4)];
  EXPECT_EQ([NSView focusView], [window contentView]);
  EXPECT_EQ([NSGraphicsContext currentContext], context);
  EXPECT_EQ([context imageInterpolation], interpolation);
  [[window contentView] unlockFocus];
}

}  // namespace
