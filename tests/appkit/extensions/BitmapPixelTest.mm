#import <OvAppKit/NSBitmapImageRep+OvAppKit.h>

#include <array>
#include <cmath>
#include <string>
#include <vector>

#import "LiveTest.h"

/* A bitmap of a system without the two methods: it answers what the functions read. */
@interface OvTestPlainBitmap : NSObject {
 @public
  NSString *_space;
  BOOL _hasAlpha;
  NSUInteger _format;
  NSInteger _samples;
  NSInteger _bits;
  NSInteger _bytesPerRow;
  NSInteger _bitsPerPixel;
  const unsigned char *_data;
  std::string *_read;
}
@end

@implementation OvTestPlainBitmap
- (NSString *)colorSpaceName {
  *_read += "space ";
  return _space;
}
- (BOOL)hasAlpha {
  *_read += "alpha ";
  return _hasAlpha;
}
- (NSUInteger)bitmapFormat {
  *_read += "format ";
  return _format;
}
- (NSInteger)samplesPerPixel {
  *_read += "samples ";
  return _samples;
}
- (NSInteger)bitsPerSample {
  return _bits;
}
- (const unsigned char *)bitmapData {
  return _data;
}
- (NSInteger)bytesPerRow {
  return _bytesPerRow;
}
- (NSInteger)bitsPerPixel {
  return _bitsPerPixel;
}
@end

/* One that knows its size, too. */
@interface OvTestSizedBitmap : OvTestPlainBitmap
@end

@implementation OvTestSizedBitmap
- (NSInteger)pixelsWide {
  return 2;
}
- (NSInteger)pixelsHigh {
  return 2;
}
@end

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr uint32_t kUntouched = 0xDEAD;

using Samples = std::array<uint32_t, 6>;

Samples samplesAt(id bitmap, int x, NSInteger y) {
  Samples samples;
  samples.fill(kUntouched);
  HXGetPixelFromBitmapImageRep(bitmap, samples.data(), x, y);
  return samples;
}

Samples startingWith(std::initializer_list<uint32_t> first) {
  Samples samples;
  samples.fill(kUntouched);
  std::copy(first.begin(), first.end(), samples.begin());
  return samples;
}

void expectColor(NSColor *color, double r, double g, double b, double a) {
  ASSERT_NE(color, nil);
  EXPECT_TRUE([[color colorSpaceName] isEqualToString:NSDeviceRGBColorSpace]);
  EXPECT_NEAR([color redComponent], r, 1e-6);
  EXPECT_NEAR([color greenComponent], g, 1e-6);
  EXPECT_NEAR([color blueComponent], b, 1e-6);
  EXPECT_NEAR([color alphaComponent], a, 1e-6);
}

class FallbackPixel : public ov::test::LiveTest {
 protected:
  template <typename Bitmap = OvTestPlainBitmap>
  Bitmap *bitmap(Class bitmapClass, BOOL hasAlpha, NSUInteger format, NSInteger samples,
                 NSInteger bitsPerPixel = 32) {
    Bitmap *bitmap = [[[bitmapClass alloc] init] autorelease];
    bitmap->_space = NSDeviceRGBColorSpace;
    bitmap->_hasAlpha = hasAlpha;
    bitmap->_format = format;
    bitmap->_samples = samples;
    bitmap->_bits = 8;
    bitmap->_bytesPerRow = 9;
    bitmap->_bitsPerPixel = bitsPerPixel;
    bitmap->_data = bytes.data();
    bitmap->_read = &read;
    return bitmap;
  }
  OvTestPlainBitmap *plain(BOOL hasAlpha, NSUInteger format, NSInteger samples,
                           NSInteger bitsPerPixel = 32) {
    return bitmap<>([OvTestPlainBitmap class], hasAlpha, format, samples, bitsPerPixel);
  }

  static NSColor *colorAt(id bitmap, int x, int y) {
    return HXGetColorFromBitmapImageRep(bitmap, x, y);
  }

  // Two rows of two pixels and a byte that belongs to none.
  std::array<unsigned char, 18> bytes = {1,  2,  3,  4,  5,  6,  7,  8,   99,
                                         11, 12, 13, 14, 40, 20, 10, 128, 99};
  std::string read;
};

TEST_F(FallbackPixel, ReadsEveryLayoutOfColours) {
  expectColor(colorAt(plain(YES, 0, 4), 1, 1), 40 / 255., 20 / 255., 10 / 255., 128 / 255.);
  expectColor(colorAt(plain(YES, 1, 4), 1, 1), 20 / 255., 10 / 255., 128 / 255., 40 / 255.);
  expectColor(colorAt(plain(NO, 1, 4), 1, 1), 20 / 255., 10 / 255., 128 / 255., 1);
  expectColor(colorAt(plain(NO, 1, 3), 1, 1), 40 / 255., 20 / 255., 10 / 255., 1);
  expectColor(colorAt(plain(NO, 0, 4), 1, 1), 40 / 255., 20 / 255., 10 / 255., 1);
  expectColor(colorAt(plain(NO, 0, 3, 24), 1, 0), 4 / 255., 5 / 255., 6 / 255., 1);
  expectColor(colorAt(plain(YES, 0, 4), 0, 0), 1 / 255., 2 / 255., 3 / 255., 4 / 255.);
}

TEST_F(FallbackPixel, CopiesTheSamplesInTheirOrder) {
  EXPECT_EQ(samplesAt(plain(YES, 0, 4), 1, 1), startingWith({40, 20, 10, 128}));
  EXPECT_EQ(samplesAt(plain(YES, 1, 4), 1, 1), startingWith({40, 20, 10, 128}));
  EXPECT_EQ(samplesAt(plain(NO, 0, 3, 24), 1, 0), startingWith({4, 5, 6}));
  EXPECT_EQ(samplesAt(plain(NO, 0, 1, 8), 3, 0), startingWith({4}));
  EXPECT_EQ(samplesAt(plain(NO, 0, 0), 1, 1), startingWith({}));
  EXPECT_EQ(samplesAt(plain(NO, 0, -1), 1, 1), startingWith({}));
}

TEST_F(FallbackPixel, UnreadableLayoutsSayTheFirstReason) {
  struct {
    NSUInteger format;
    NSInteger bits;
    const char *reason;
  } const rows[] = {
      {2, 8, "Unsupported bitmap format. The alpha values are nonpremultiplied."},
      {2, 16, "Unsupported bitmap format. The alpha values are nonpremultiplied."},
      {6, 32, "Unsupported bitmap format. The alpha values are nonpremultiplied."},
      {4, 8, "Unsupported bitmap format. The samples are floating values."},
      {4, 32, "Unsupported bitmap format. The samples are floating values."},
      {0, 16, "Unsupported bitmap format. The bits length per sample is not 8 bits."},
      {1, 4, "Unsupported bitmap format. The bits length per sample is not 8 bits."},
  };
  for (const auto &row : rows) {
    OvTestPlainBitmap *bitmap = plain(YES, row.format, 4);
    bitmap->_bits = row.bits;
    // It comes last, so it is not what is told.
    bitmap->_space = NSDeviceWhiteColorSpace;
    {
      ov::test::LogCapture log;
      EXPECT_EQ(colorAt(bitmap, 1, 1), nil);
      EXPECT_THAT(log.lines(),
                  ElementsAre(std::string("HXGetColorFromBitmapImageRep() ") + row.reason));
    }
    ov::test::LogCapture log;
    EXPECT_EQ(samplesAt(bitmap, 1, 1), startingWith({}));
    EXPECT_THAT(log.lines(),
                ElementsAre(std::string("HXGetPixelFromBitmapImageRep() ") + row.reason));
  }
}

TEST_F(FallbackPixel, OtherColourSpacesHaveSamplesOnly) {
  OvTestPlainBitmap *gray = plain(NO, 0, 1, 8);
  gray->_space = NSDeviceWhiteColorSpace;
  {
    ov::test::LogCapture log;
    EXPECT_EQ(colorAt(gray, 2, 0), nil);
    EXPECT_THAT(log.lines(), ElementsAre(std::string("HXGetColorFromBitmapImageRep() ") +
                                         [NSDeviceWhiteColorSpace UTF8String] + " not supported."));
  }
  ov::test::LogCapture log;
  EXPECT_EQ(samplesAt(gray, 2, 0), startingWith({3}));
  EXPECT_THAT(log.lines(), IsEmpty());

  OvTestPlainBitmap *calibrated = plain(YES, 0, 4);
  calibrated->_space = NSCalibratedRGBColorSpace;
  EXPECT_EQ(colorAt(calibrated, 0, 0), nil);
}

TEST_F(FallbackPixel, TheBitmapIsAskedInItsOrder) {
  colorAt(plain(NO, 0, 3), 0, 0);
  EXPECT_EQ(read, "space alpha format format samples ");
  read.clear();
  samplesAt(plain(NO, 0, 3), 0, 0);
  EXPECT_EQ(read, "alpha format samples ");
}

TEST_F(FallbackPixel, ASizeThatIsKnownIsKept) {
  OvTestPlainBitmap *sized = bitmap<>([OvTestSizedBitmap class], YES, 0, 4);
  expectColor(colorAt(sized, 1, 1), 40 / 255., 20 / 255., 10 / 255., 128 / 255.);
  ov::test::LogCapture log;
  for (const int at : {-1, 2, INT_MAX, INT_MIN}) {
    EXPECT_EQ(colorAt(sized, at, 0), nil);
    EXPECT_EQ(colorAt(sized, 0, at), nil);
    EXPECT_EQ(samplesAt(sized, at, 0), startingWith({}));
    EXPECT_EQ(samplesAt(sized, 0, at), startingWith({}));
  }
  // The last pixel has no fourth byte.
  sized->_bytesPerRow = 7;
  EXPECT_EQ(colorAt(sized, 1, 1), nil);
  EXPECT_EQ(samplesAt(sized, 1, 1), startingWith({}));
  sized->_data = NULL;
  EXPECT_EQ(colorAt(sized, 0, 0), nil);
  EXPECT_EQ(samplesAt(sized, 0, 0), startingWith({}));
  EXPECT_THAT(log.lines(), IsEmpty());
}

class NativePixel : public ov::test::LiveTest {
 protected:
  NSBitmapImageRep *bitmap(NSInteger samples, BOOL hasAlpha, int format, NSString *space,
                           std::initializer_list<unsigned char> bytes, NSInteger bits = 8) {
    NSBitmapImageRep *rep =
        [[[NSBitmapImageRep alloc] initWithBitmapDataPlanes:NULL
                                                 pixelsWide:1
                                                 pixelsHigh:1
                                              bitsPerSample:bits
                                            samplesPerPixel:samples
                                                   hasAlpha:hasAlpha
                                                   isPlanar:NO
                                             colorSpaceName:space
                                               bitmapFormat:static_cast<NSBitmapFormat>(format)
                                                bytesPerRow:0
                                               bitsPerPixel:0] autorelease];
    if (bytes.size() > 0) std::copy(bytes.begin(), bytes.end(), [rep bitmapData]);
    return rep;
  }
};

TEST_F(NativePixel, ThePlatformAnswersColours) {
  NSBitmapImageRep *rep = bitmap(4, YES, 0, NSDeviceRGBColorSpace, {40, 20, 10, 128});
  // Divided by alpha, unlike those that are read here.
  expectColor(HXGetColorFromBitmapImageRep(rep, 0, 0), 40 / 128., 20 / 128., 10 / 128., 128 / 255.);
  EXPECT_TRUE([HXGetColorFromBitmapImageRep(rep, 0, 0) isEqual:[rep colorAtX:0 y:0]]);
  NSBitmapImageRep *gray = bitmap(1, NO, 0, NSDeviceWhiteColorSpace, {51});
  ov::test::LogCapture log;
  NSColor *color = HXGetColorFromBitmapImageRep(gray, 0, 0);
  EXPECT_NEAR([color whiteComponent], 0.2, 1e-6);
  EXPECT_THAT(log.lines(), IsEmpty());
}

TEST_F(NativePixel, ThePlatformAnswersSamples) {
  EXPECT_EQ(samplesAt(bitmap(4, YES, 0, NSDeviceRGBColorSpace, {40, 20, 10, 128}), 0, 0),
            startingWith({40, 20, 10, 128}));
  EXPECT_EQ(samplesAt(bitmap(4, YES, 1, NSDeviceRGBColorSpace, {40, 20, 10, 128}), 0, 0),
            startingWith({40, 20, 10, 128}));
  EXPECT_EQ(samplesAt(bitmap(3, NO, 0, NSDeviceRGBColorSpace, {1, 2, 3}), 0, 0),
            startingWith({1, 2, 3}));
  EXPECT_EQ(samplesAt(bitmap(1, NO, 0, NSDeviceWhiteColorSpace, {77}), 0, 0), startingWith({77}));
  EXPECT_EQ(samplesAt(bitmap(2, YES, 2, NSDeviceWhiteColorSpace, {77, 5}), 0, 0),
            startingWith({77, 5}));
}

TEST_F(NativePixel, TransparentPixelsHaveNumbers) {
  expectColor(
      HXGetColorFromBitmapImageRep(bitmap(4, YES, 0, NSDeviceRGBColorSpace, {0, 0, 0, 0}), 0, 0), 0,
      0, 0, 0);
  // Colour without alpha is an infinite one, which the platform takes for a full one.
  expectColor(
      HXGetColorFromBitmapImageRep(bitmap(4, YES, 0, NSDeviceRGBColorSpace, {9, 9, 9, 0}), 0, 0), 1,
      1, 1, 0);
  NSColor *calibrated = HXGetColorFromBitmapImageRep(
      bitmap(4, YES, 0, NSCalibratedRGBColorSpace, {0, 0, 0, 0}), 0, 0);
  EXPECT_TRUE([[calibrated colorSpaceName] isEqualToString:NSCalibratedRGBColorSpace]);
  EXPECT_EQ([calibrated redComponent], 0);
  EXPECT_EQ([calibrated alphaComponent], 0);
  for (NSString *space in @[ NSDeviceWhiteColorSpace, NSCalibratedWhiteColorSpace ]) {
    NSColor *white = HXGetColorFromBitmapImageRep(bitmap(2, YES, 0, space, {0, 0}), 0, 0);
    EXPECT_TRUE([[white colorSpaceName] isEqualToString:space]);
    EXPECT_EQ([white whiteComponent], 0);
    EXPECT_EQ([white alphaComponent], 0);
  }
  NSColor *ink = HXGetColorFromBitmapImageRep(
      bitmap(5, YES, 0, NSDeviceCMYKColorSpace, {0, 0, 0, 0, 0}), 0, 0);
  EXPECT_EQ([ink cyanComponent], 0);
  EXPECT_EQ([ink alphaComponent], 0);
}

TEST_F(NativePixel, OutsideThereIsNone) {
  NSBitmapImageRep *rep = bitmap(4, YES, 0, NSDeviceRGBColorSpace, {40, 20, 10, 128});
  ov::test::LogCapture log;
  for (const int at : {-1, 1, INT_MAX, INT_MIN}) {
    EXPECT_EQ(HXGetColorFromBitmapImageRep(rep, at, 0), nil);
    EXPECT_EQ(HXGetColorFromBitmapImageRep(rep, 0, at), nil);
    EXPECT_EQ(samplesAt(rep, at, 0), startingWith({}));
    EXPECT_EQ(samplesAt(rep, 0, at), startingWith({}));
  }
  EXPECT_EQ(HXGetColorFromBitmapImageRep(nil, 0, 0), nil);
  EXPECT_EQ(samplesAt(nil, 0, 0), startingWith({}));
  HXGetPixelFromBitmapImageRep(rep, NULL, 0, 0);
  EXPECT_THAT(log.lines(), IsEmpty());
}

TEST_F(NativePixel, MoreSamplesThanAColourHas) {
  NSBitmapImageRep *rep = bitmap(6, NO, 0, NSDeviceRGBColorSpace, {});
  // Not by its data: for those, too, the platform has room for five.
  NSUInteger all[] = {1, 2, 3, 4, 5, 6};
  [rep setPixel:all atX:0 y:0];
  EXPECT_EQ(HXGetColorFromBitmapImageRep(rep, 0, 0), nil)
      << "the platform would write beyond its array";
  EXPECT_EQ(samplesAt(rep, 0, 0), startingWith({1, 2, 3, 4, 5, 6}));
}

TEST_F(NativePixel, SixteenBitsAreThePlatformsMatter) {
  NSBitmapImageRep *rep = bitmap(3, NO, 0, NSDeviceRGBColorSpace, {255, 255, 0, 0, 255, 255}, 16);
  NSColor *color = HXGetColorFromBitmapImageRep(rep, 0, 0);
  EXPECT_NEAR([color redComponent], 1, 1e-4);
  EXPECT_NEAR([color greenComponent], 0, 1e-4);
  EXPECT_EQ(samplesAt(rep, 0, 0), startingWith({65535, 0, 65535}));
}

}  // namespace
