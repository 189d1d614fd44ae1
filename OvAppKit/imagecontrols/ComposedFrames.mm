#import "imagecontrols/ComposedFrames.h"

#import <OvAppKit/OvFlippedView.h>

#include <algorithm>
#include <cmath>
#include <cstring>

#include "imagecontrols/FrameAlignment.h"
#include "imagecontrols/FrameBudget.h"
#import "platform/DeviceSpace.h"
#import "platform/ImageChanges.h"
#include "support/GeometryBridge.h"

namespace ov {

namespace {

// Pictures are windows to the platform, which is more than their pixels.
constexpr std::size_t kBytesBesidePixels = 2048;
constexpr FrameLimits kLimits;

// How often the pieces are drawn before a picture is made again of what has changed.
constexpr int kDrawingsAfterChange = 8;

// For the main thread.
std::vector<ComposedFrames *> owners;
std::uint64_t uses = 0;

class FocusScope {
 public:
  explicit FocusScope(NSView *view) : view_(view) { [view_ lockFocus]; }
  ~FocusScope() { [view_ unlockFocus]; }
  FocusScope(const FocusScope &) = delete;
  FocusScope &operator=(const FocusScope &) = delete;

 private:
  NSView *view_;
};

FramePieces placedPieces(const FrameContent &content, const Affine &toDevice) {
  const Rect rect = fromNS(content.rect);
  return alignFrame(placeFrame(content.sizes, rect), rect, toDevice);
}

void setTransform(NSGraphicsContext *context, const Affine &m) {
  NSAffineTransform *transform = [[NSAffineTransform alloc] init];
  [transform setTransformStruct:NSAffineTransformStruct{m.a, m.b, m.c, m.d, m.tx, m.ty}];
  [context GSSetCTM:transform];
  [transform release];
}

// A place in device space: a whole pixel, and what is left of it in units that cannot be seen.
struct PixelPlace {
  Scalar pixel = 0;
  long rest = 0;

  PixelPlace() = default;
  explicit PixelPlace(Scalar device)
      : pixel(std::floor(device + Scalar{1} / 131072)),
        rest(std::abs(device) < 1e6 ? std::lround((device - pixel) * 65536) : 0) {}
};

template <typename... Values>
std::uint64_t hashOf(Values... values) {
  std::uint64_t hash = 1469598103934665603U;
  const auto add = [&hash](auto value) {
    std::uint64_t bits = 0;
    static_assert(sizeof value <= sizeof bits);
    std::memcpy(&bits, &value, sizeof value);
    hash = (hash ^ bits) * 1099511628211U;
    hash ^= hash >> 29U;
  };
  (add(values), ...);
  return hash;
}

// Its content is not drawn before the picture is complete.
Retained<NSCachedImageRep *> newPicture(const Rect &pixels, bool flipped) {
  const auto picture =
      adopt([[NSCachedImageRep alloc] initWithSize:NSMakeSize(pixels.width, pixels.height)
                                             depth:[[NSScreen mainScreen] depth]
                                          separate:YES
                                             alpha:YES]);
  if (flipped) {
    NSWindow *window = [picture.get() window];
    NSView *canvas = [[OvFlippedView alloc] initWithFrame:[[window contentView] frame]];
    [window setContentView:canvas];
    [canvas release];
  }
  return picture;
}

}  // namespace

// What a picture shows, wherever it is drawn.
struct ComposedFrames::Key {
  FramePartSizes sizes;
  std::array<FrameSlice, kFramePartCount> slices;
  NSSize size;
  Scalar scaleX;
  Scalar scaleY;
  long restX;
  long restY;
  bool flipped;
  bool viewFlipped;

  friend bool operator==(const Key &a, const Key &b) {
    return NSEqualSizes(a.size, b.size) && a.scaleX == b.scaleX && a.scaleY == b.scaleY &&
           a.restX == b.restX && a.restY == b.restY && a.flipped == b.flipped &&
           a.viewFlipped == b.viewFlipped && a.sizes == b.sizes && a.slices == b.slices;
  }

  std::uint64_t hash() const {
    std::uint64_t hash =
        hashOf(size.width, size.height, scaleX, scaleY, restX, restY, flipped, viewFlipped);
    for (const FrameSlice &slice : slices) {
      hash = hashOf(hash, slice.image, slice.source.origin.x, slice.source.origin.y,
                    slice.source.size.width, slice.source.size.height);
    }
    return hash;
  }
};

// Where a frame's origin lies.
struct ComposedFrames::Place {
  Affine toDevice;
  PixelPlace x;
  PixelPlace y;

  // Farther away, numbers have no digits left for parts of a pixel; nor has the display.
  bool isNear() const { return std::abs(x.pixel) < 1e6 && std::abs(y.pixel) < 1e6; }
};

struct ComposedFrames::Frame {
  Key key;
  std::vector<ImageState> images;  // each once
  Retained<NSCachedImageRep *> picture;
  // From the pixel of the frame's origin.
  Rect pixels;
  std::uint64_t lastUse = 0;

  bool holds() const { return std::ranges::all_of(images, &ImageState::holds); }

  std::size_t bytes() const {
    return static_cast<std::size_t>(pixels.width * pixels.height) * 4 + kBytesBesidePixels;
  }

  void draw(NSGraphicsContext *context, const Place &place) const {
    for (const ImageState &state : images) [state.image() setFlipped:key.flipped];
    const NSRect whole = NSMakeRect(0, 0, pixels.width, pixels.height);
    setTransform(context, {1, 0, 0, 1, place.x.pixel + pixels.x, place.y.pixel + pixels.y});
    [picture.get() drawInRect:whole
                     fromRect:whole
                    operation:NSCompositeSourceOver
                     fraction:1
               respectFlipped:NO
                        hints:nil];
    setTransform(context, place.toDevice);
  }
};

ComposedFrames::ComposedFrames() { owners.push_back(this); }

ComposedFrames::~ComposedFrames() { std::erase(owners, this); }

void ComposedFrames::clear() {
  frames_.clear();
  seen_.fill({});
}

std::shared_ptr<ComposedFrames::Frame> ComposedFrames::find(const Key &key) const {
  const auto found =
      std::ranges::find_if(frames_, [&key](const auto &frame) { return frame->key == key; });
  return found == frames_.end() ? nullptr : *found;
}

void ComposedFrames::drop(const Frame *frame) {
  std::erase_if(frames_, [frame](const auto &other) { return other.get() == frame; });
}

void ComposedFrames::waitFor(std::uint64_t hash, int drawings) {
  auto found = std::ranges::find(seen_, hash, &Seen::hash);
  if (found == seen_.end()) {
    found = seen_.begin() + static_cast<std::ptrdiff_t>(nextSeen_);
    nextSeen_ = (nextSeen_ + 1) % seen_.size();
  }
  *found = {hash, drawings};
}

bool ComposedFrames::isDue(std::uint64_t hash) {
  const auto found = std::ranges::find(seen_, hash, &Seen::hash);
  if (found == seen_.end()) {
    waitFor(hash, 0);
    return false;
  }
  return found->wait == 0 || --found->wait < 0;
}

void ComposedFrames::draw(const FrameContent &content, const DrawPiece &drawPiece) {
  NSGraphicsContext *context = [NSGraphicsContext currentContext];
  const Affine toDevice = deviceTransform(context);
  const auto drawPieces = [&] {
    for (const FramePiece &piece : placedPieces(content, toDevice)) drawPiece(piece);
  };
  // Interpolation would mix the pieces' pixels by where they are.
  if (!isUpright(toDevice) || ![context isDrawingToScreen] || ![context supportsDrawGState] ||
      [context imageInterpolation] != NSImageInterpolationNone) {
    drawPieces();
    return;
  }
  const Place place{toDevice, PixelPlace(toDevice.a * content.rect.origin.x + toDevice.tx),
                    PixelPlace(toDevice.d * content.rect.origin.y + toDevice.ty)};
  if (!place.isNear()) {
    drawPieces();
    return;
  }
  const Key key{content.sizes, content.slices,  content.rect.size,
                toDevice.a,    toDevice.d,      place.x.rest,
                place.y.rest,  content.flipped, static_cast<bool>([context isFlipped])};

  std::shared_ptr<Frame> frame = find(key);
  if (frame != nullptr && !frame->holds()) {
    // It may change from each drawing to the next.
    drop(frame.get());
    waitFor(key.hash(), kDrawingsAfterChange);
    drawPieces();
    return;
  }
  if (frame == nullptr && isDue(key.hash())) {
    frame = compose(key, place, placedPieces(content, toDevice), drawPiece);
  }
  if (frame == nullptr) {
    drawPieces();
    return;
  }
  frame->lastUse = ++uses;
  frame->draw(context, place);
}

std::shared_ptr<ComposedFrames::Frame> ComposedFrames::compose(const Key &key, const Place &place,
                                                               const FramePieces &pieces,
                                                               const DrawPiece &drawPiece) {
  const Rect pixels = pixelsOf(pieces, place.toDevice);
  if (pixels.isEmpty() || pixels.width * pixels.height * 4 > Scalar{kLimits.bytesOfFrame}) {
    return nullptr;
  }
  std::vector<Retained<NSImage *>> images;
  for (const FrameSlice &slice : key.slices) {
    if (slice.image == nil ||
        std::ranges::find(images, slice.image, &Retained<NSImage *>::get) != images.end()) {
      continue;
    }
    if (!drawsPredictably(slice.image)) return nullptr;
    images.push_back(retain(slice.image));
  }
  const auto frame = std::make_shared<Frame>();
  frame->key = key;
  frame->picture = newPicture(pixels, key.viewFlipped);
  frame->pixels = {pixels.x - place.x.pixel, pixels.y - place.y.pixel, pixels.width, pixels.height};
  {
    NSView *canvas = [[frame->picture.get() window] contentView];
    const FocusScope focus(canvas);
    NSRectFillUsingOperation([canvas bounds], NSCompositeClear);
    Affine toPicture = place.toDevice;
    toPicture.tx -= pixels.x;
    toPicture.ty -= pixels.y;
    setTransform([NSGraphicsContext currentContext], toPicture);
    for (const FramePiece &piece : pieces) drawPiece(piece);
  }
  // Now that the platform has made its copies of them.
  for (const auto &image : images) frame->images.emplace_back(image.get());
  frame->lastUse = ++uses;
  frames_.push_back(frame);
  keepToLimits();
  return frame;
}

// The newest frame stays: alone, it keeps to all limits.
void ComposedFrames::keepToLimits() {
  std::vector<HeldFrame> held;
  std::vector<std::pair<ComposedFrames *, const Frame *>> frames;
  for (ComposedFrames *owner : owners) {
    for (const auto &frame : owner->frames_) {
      held.push_back({owner, frame->bytes(), frame->lastUse});
      frames.emplace_back(owner, frame.get());
    }
  }
  for (const std::size_t index : framesToDrop(held, kLimits)) {
    frames[index].first->drop(frames[index].second);
  }
}

void drawPieces(const FrameContent &content, const DrawPiece &drawPiece) {
  // Without a view there are no pixels that pieces could meet on.
  const FramePieces pieces =
      [NSView focusView] == nil
          ? placeFrame(content.sizes, fromNS(content.rect))
          : placedPieces(content, deviceTransform([NSGraphicsContext currentContext]));
  for (const FramePiece &piece : pieces) drawPiece(piece);
}

}  // namespace ov
