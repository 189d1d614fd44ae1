// The pictures that come with the library: all that its code asks for, and no others.

#import <OvAppKit/OvAppKit.h>

#include <set>

#import "Raster.h"

namespace {

using ov::test::Pixel;
using ov::test::Raster;
using ov::test::rasterOfResource;
using ov::test::toNS;

NSBundle *library() { return [NSBundle bundleForClass:[OvSplitView class]]; }

std::vector<std::string> scrollerPictures() {
  std::vector<std::string> names;
  for (const char *look : {"Metal", "Black"}) {
    for (const char *part :
         {"DecrementArrow_MinEnd", "DecrementArrow_MaxEnd_EndCap", "DecrementArrow_MinEnd_EndCap",
          "IncrementArrow_MaxEnd", "IncrementArrow_MaxEnd_EndCap", "IncrementArrow_MinEnd_EndCap",
          "KnobBody", "KnobCap_MaxEnd", "KnobCap_MinEnd", "EndCap_MaxEnd", "EndCap_MinEnd",
          "KnobSlot"}) {
      for (const char *orientation : {"H", "V"}) {
        names.push_back(std::string("HXScroller_") + look + "_" + part + "_" + orientation);
      }
    }
  }
  return names;
}

const std::vector<std::string> kButtonPictures = {
    "HXMultiImageButton_default", "HXMultiImageButton_alternate", "HXMultiImageButton_mouseover",
    "HXMultiImageButton_disabled"};
const std::vector<std::string> kTriangles = {"OvDisclosureDownNormal", "OvDisclosureRightNormal"};
// In one resolution: a cursor has the screen's.
const std::vector<std::string> kCursors = {"OvResizeLeftRightCursor", "OvResizeUpDownCursor"};

// In two resolutions.
std::vector<std::string> finerPictures() {
  std::vector<std::string> names = scrollerPictures();
  names.insert(names.end(), kButtonPictures.begin(), kButtonPictures.end());
  names.insert(names.end(), kTriangles.begin(), kTriangles.end());
  return names;
}

class Artwork : public ov::test::LiveTest {};

TEST_F(Artwork, EveryPictureIsThereInTwoResolutions) {
  for (const std::string &name : finerPictures()) {
    SCOPED_TRACE(name);
    const Raster plain = rasterOfResource(library(), name);
    const Raster finer = rasterOfResource(library(), name + "@2x");
    EXPECT_EQ(finer.width, 2 * plain.width);
    EXPECT_EQ(finer.height, 2 * plain.height);
  }
}

TEST_F(Artwork, EachCursorIsThere) {
  for (const std::string &name : kCursors) {
    const Raster raster = rasterOfResource(library(), name);
    EXPECT_EQ(raster.width, 16) << name;
    EXPECT_EQ(raster.height, 16) << name;
  }
}

TEST_F(Artwork, NothingElseIsThere) {
  std::set<std::string> expected = {"Info-gnustep.plist"};
  for (const std::string &name : finerPictures()) {
    expected.insert(name + ".tiff");
    expected.insert(name + "@2x.tiff");
  }
  for (const std::string &name : kCursors) expected.insert(name + ".tiff");
  std::set<std::string> found;
  for (NSString *file in
       [[NSFileManager defaultManager] directoryContentsAtPath:[library() resourcePath]]) {
    found.insert([file UTF8String]);
  }
  EXPECT_EQ(found, expected);
}

TEST_F(Artwork, AnImageOfAResourceHasBothResolutions) {
  NSDictionary *fine = @{NSDeviceResolution : [NSValue valueWithSize:NSMakeSize(144, 144)]};
  NSDictionary *plain = @{NSDeviceResolution : [NSValue valueWithSize:NSMakeSize(72, 72)]};
  for (const std::string &name : finerPictures()) {
    SCOPED_TRACE(name);
    const Raster raster = rasterOfResource(library(), name);
    NSImage *image = [library() imageForResource:toNS(name)];
    EXPECT_EQ([image size], NSMakeSize(raster.width, raster.height));
    ASSERT_EQ([[image representations] count], 2u);
    EXPECT_EQ([[image bestRepresentationForDevice:plain] pixelsWide], raster.width);
    EXPECT_EQ([[image bestRepresentationForDevice:fine] pixelsWide], 2 * raster.width);
  }
}

TEST_F(Artwork, StatesOfTheMultiImageButtonDiffer) {
  for (const std::string &one : kButtonPictures) {
    const Raster raster = rasterOfResource(library(), one);
    EXPECT_EQ(raster.width, 20);
    EXPECT_EQ(raster.height, 20);
    EXPECT_EQ(raster.at(0, 0).a, 0) << "round: " << one;
    EXPECT_EQ(raster.at(10, 10).a, 255) << one;
    for (const std::string &other : kButtonPictures) {
      if (one == other) continue;
      EXPECT_GT(raster.differencesTo(rasterOfResource(library(), other)), 100) << one << other;
    }
  }
}

// A knob as a scroller draws it, in the middle of what the two caps and the body make.
TEST_F(Artwork, AKnobOfPartsHasNoSeam) {
  NSArray *keys = @[
    HXImageControlDisabledImageKey, HXImageControlDefaultImageKey, HXImageControlAlternateImageKey
  ];
  NSWindow *window = makeWindow(NSMakeSize(40, 100));
  OvFlippedView *view =
      [[[OvFlippedView alloc] initWithFrame:NSMakeRect(0, 0, 40, 100)] autorelease];
  [[window contentView] addSubview:view];
  for (const char *look : {"Metal", "Black"}) {
    const auto container = [&](NSString *part) {
      NSString *name = [NSString stringWithFormat:@"HXScroller_%s_%@_V", look, part];
      return [[[HXDictionaryImageContainer alloc] initWithImageResourceName:name
                                                                   keyArray:keys
                                                                   inBundle:library()] autorelease];
    };
    HXDictionaryImageContainer *body = container(@"KnobBody");
    HXDictionaryImageContainer *top = container(@"KnobCap_MinEnd");
    HXDictionaryImageContainer *bottom = container(@"KnobCap_MaxEnd");
    for (NSString *key in keys) {
      SCOPED_TRACE(std::string(look) + [key UTF8String]);
      EXPECT_EQ([body imageSizeForKey:key], NSMakeSize(18, 4));
      [view lockFocus];
      [[NSColor greenColor] set];
      NSRectFill([view bounds]);
      [body drawImageInRect:NSMakeRect(10, 18, 18, 44) isFlipped:YES forKey:key];
      [top drawImageInRect:NSMakeRect(10, 10, 18, 9) isFlipped:YES forKey:key];
      [bottom drawImageInRect:NSMakeRect(10, 61, 18, 9) isFlipped:YES forKey:key];
      NSBitmapImageRep *rep =
          [[[NSBitmapImageRep alloc] initWithFocusedViewRect:[view bounds]] autorelease];
      [view unlockFocus];
      const Raster knob = Raster(ov::test::Picture(rep)).part(10, 10, 18, 60);
      for (int y = 8; y < 52; y++) EXPECT_EQ(knob.row(y), knob.row(30)) << y;
      EXPECT_EQ(knob.at(0, 0), ov::test::kGreen);
      EXPECT_EQ(knob.at(0, 30), ov::test::kGreen);
      EXPECT_NE(knob.at(9, 30), ov::test::kGreen);
      EXPECT_EQ(knob.upsideDown().differencesTo(knob, 8), 0) << "rounded alike at both ends";
    }
  }
}

}  // namespace
