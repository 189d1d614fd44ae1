// Frames that were drawn before are kept as one picture each, and drawn again as that.
//
// A frame is composed when it is drawn the second time in the same size: in a window that is being
// resized, every size is new, and none comes back. A picture is drawn only while nothing has
// changed that the pieces would show.

#pragma once

#import <AppKit/AppKit.h>

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

#include "imagecontrols/NinePieceLayout.h"

namespace ov {

// A piece as the container has it now.
struct FrameSlice {
  NSImage *image = nil;
  NSRect source = NSZeroRect;
  friend bool operator==(const FrameSlice &a, const FrameSlice &b) {
    return a.image == b.image && NSEqualRects(a.source, b.source);
  }
};

// Everything that tells what the pieces will show.
struct FrameContent {
  NSRect rect = NSZeroRect;
  bool flipped = false;
  FramePartSizes sizes;
  std::array<FrameSlice, kFramePartCount> slices;
};

using DrawPiece = std::function<void(const FramePiece &)>;

// Draws a frame in pieces, placed, and aligned on the pixels of the focused view, if there is one.
void drawPieces(const FrameContent &content, const DrawPiece &drawPiece);

class ComposedFrames {
 public:
  ComposedFrames();
  ~ComposedFrames();
  ComposedFrames(const ComposedFrames &) = delete;
  ComposedFrames &operator=(const ComposedFrames &) = delete;

  // Draws a frame into the focused view: one picture, or else the pieces by the function.
  void draw(const FrameContent &content, const DrawPiece &drawPiece);

  // Lets all pictures go.
  void clear();

 private:
  struct Key;
  struct Place;
  struct Frame;
  // A frame that was drawn, and how often it is yet to be drawn in pieces.
  struct Seen {
    std::uint64_t hash = 0;
    int wait = 0;
  };

  std::shared_ptr<Frame> find(const Key &key) const;
  void drop(const Frame *frame);
  void waitFor(std::uint64_t hash, int drawings);
  // Whether the frame was drawn in pieces often enough.
  bool isDue(std::uint64_t hash);
  // nullptr if it cannot be, or is not worth its memory.
  std::shared_ptr<Frame> compose(const Key &key, const Place &place, const FramePieces &pieces,
                                 const DrawPiece &drawPiece);
  static void keepToLimits();

  // Shared with who draws one: a host's image may change the container meanwhile.
  std::vector<std::shared_ptr<Frame>> frames_;
  std::array<Seen, 32> seen_;
  std::size_t nextSeen_ = 0;
};

}  // namespace ov
