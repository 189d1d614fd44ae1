// A view that shows frames, and what is needed to look at how they were drawn.

#pragma once

#import <OvAppKit/HXImageControlImageContainer.h>
#import <OvAppKit/HXImageSegment.h>

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#import "LiveTest.h"

/* Draws every piece by an override that does nothing of its own, so that no frame is composed. */
@interface OvTestPlainContainer : HXImageControlImageContainer
@end

/* Says how it is flipped. */
@interface OvTestFrameView : NSView {
 @public
  BOOL _flipped;
}
@end

namespace ov::test {

// What the platform drew, and the pictures that it holds; since the program began.
int imageDrawings();
int heldPictures();
long heldPicturePixels();

// The samples of a view after drawing over a ground of many colours. `scale` and `turn` (degrees)
// change the plane.
struct Plane {
  double scale = 1;
  double turn = 0;
};
class Samples {
 public:
  Samples(OvTestFrameView *view, const Plane &plane, const std::function<void()> &draw);

  int width() const { return width_; }
  int height() const { return height_; }
  // Premultiplied; (0, 0) is the visual top left.
  Pixel at(int x, int y) const;
  // The greatest difference of a sample; on 32 bits, but for a hundredth of them.
  int distance(const Samples &other) const;

 private:
  int width_;
  int height_;
  int stride_;
  std::vector<std::uint8_t> data_;
};

// An image of one bitmap, whose pixels the function makes. (0, 0) is the visual top left.
NSImage *makeImage(int width, int height, const std::function<Pixel(int, int)> &pixel);
// Of noise, half of it transparent to some degree.
NSImage *noise(int width, int height, Random &random);
// Changes the pixels of an image's bitmap, which the image does not know.
void invertBitmap(NSImage *image);

inline constexpr HXImageControlImageVariation kDefault = HXImageControlImageVariationDefault;
inline constexpr HXImageControlImageVariation kHighlighted =
    HXImageControlImageVariationHighlighted;
inline constexpr HXImageControlImageVariation kDisabled = HXImageControlImageVariationDisabled;

// A flipped view, and two containers with the same pictures: one that may compose, and one that
// draws pieces.
class FrameTest : public LiveTest {
 protected:
  void SetUp() override {
    LiveTest::SetUp();
    NSWindow *window = makeWindow(NSMakeSize(300, 200));
    view = [[[OvTestFrameView alloc] initWithFrame:NSMakeRect(0, 0, 300, 200)] autorelease];
    view->_flipped = YES;
    [[window contentView] addSubview:view];
    container = [[[HXImageControlImageContainer alloc] init] autorelease];
    plain = [[[OvTestPlainContainer alloc] init] autorelease];
    image = noise(24, 24, random);
    setStretchable(image, kDefault);
  }

  std::vector<HXImageControlImageContainer *> containers() const { return {container, plain}; }

  void setStretchable(NSImage *picture, HXImageControlImageVariation variation) {
    auto *segment = [[[HXImageSegment alloc] initWithImage:picture] autorelease];
    for (HXImageControlImageContainer *each : containers()) {
      [each setStrechableImage:segment leftCap:8 topCap:7 forImageVariation:variation];
    }
  }
  void setPiece(NSImage *picture, NSRect rect, HXImageControlImagePart part,
                HXImageControlImageVariation variation) {
    auto *segment = [[[HXImageSegment alloc] initWithImage:picture rect:rect] autorelease];
    for (HXImageControlImageContainer *each : containers()) {
      [each setImage:segment forImagePart:part imageVariation:variation];
    }
  }

  Samples draw(HXImageControlImageContainer *drawn, NSRect rect,
               HXImageControlImageVariation variation = kDefault, Plane plane = {}) {
    return draw(drawn, rect, variation, plane, view->_flipped);
  }
  Samples draw(HXImageControlImageContainer *drawn, NSRect rect,
               HXImageControlImageVariation variation, Plane plane, BOOL flipped) {
    return Samples(view, plane, [&] {
      [drawn drawImageInRect:rect isFlipped:flipped imageVariation:variation];
    });
  }

  // How many images one drawing took.
  int drawingsFor(NSRect rect, HXImageControlImageVariation variation = kDefault,
                  Plane plane = {}) {
    const int before = imageDrawings();
    draw(container, rect, variation, plane);
    return imageDrawings() - before;
  }
  void composeFor(NSRect rect) {
    draw(container, rect);
    draw(container, rect);
    ASSERT_EQ(drawingsFor(rect), 0);
  }

  void expectAsPlain(NSRect rect, HXImageControlImageVariation variation = kDefault,
                     Plane plane = {}) {
    EXPECT_LE(draw(container, rect, variation, plane).distance(draw(plain, rect, variation, plane)),
              1)
        << rect;
  }

  Random random;
  OvTestFrameView *view = nil;
  HXImageControlImageContainer *container = nil;
  OvTestPlainContainer *plain = nil;
  NSImage *image = nil;
};

}  // namespace ov::test
