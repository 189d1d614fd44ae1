// Whether an image still draws what it drew before.
//
// The platform draws an image from a copy of it that it keeps with the image's representations,
// and makes it anew when it is told to: so what can change a picture is seen at its
// representations, but for drawing into that copy by `lockFocus`, which is overheard.
// What goes unnoticed: drawing into the window of such a copy, found by `representations`; a
// representation that changes anything but its size while the platform keeps a copy (the platform
// does not draw that, either).

#pragma once

#import <AppKit/AppKit.h>

#include <cstdint>
#include <vector>

#include "support/Retained.h"

namespace ov {

// Whether everything that the image will draw can be known beforehand. Not so for a class that
// draws itself, and for an image that is not to be copied.
bool drawsPredictably(NSImage *image);

// What an image was when this was made. For the main thread.
class ImageState {
 public:
  explicit ImageState(NSImage *image);
  ~ImageState();
  ImageState(ImageState &&other) noexcept;
  ImageState(const ImageState &) = delete;
  ImageState &operator=(const ImageState &) = delete;
  ImageState &operator=(ImageState &&) = delete;

  NSImage *image() const { return image_.get(); }
  // Whether it is so still.
  bool holds() const;

 private:
  struct Representation {
    // Retained, so that no other one takes its address.
    Retained<NSImageRep *> object;
    NSSize size;
  };

  Retained<NSImage *> image_;
  Class class_;
  NSSize size_;
  Retained<NSColor *> background_;
  NSImageCacheMode cacheMode_;
  bool prefersColorMatch_;
  bool matchesOnMultipleResolution_;
  std::vector<Representation> representations_;
  const std::uint64_t *drawings_;  // how often it was drawn into
  std::uint64_t drawingsThen_;
};

}  // namespace ov
