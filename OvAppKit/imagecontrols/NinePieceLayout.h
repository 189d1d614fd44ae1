// Where the nine pieces of a frame go.

#pragma once

#include <array>
#include <cstddef>
#include <optional>

#include "geometry/Geometry.h"

namespace ov {

// Numbered as HXImageControlImagePart.
enum class FramePart : unsigned {
  Center,
  Left,
  Right,
  Top,
  Bottom,
  LeftTop,
  RightTop,
  LeftBottom,
  RightBottom,
};
inline constexpr std::size_t kFramePartCount = 9;

// A piece and its rectangle: of the picture when it is cut, of the view when it is placed.
struct FramePiece {
  FramePart part = FramePart::Center;
  Rect rect;
  friend bool operator==(const FramePiece&, const FramePiece&) = default;
};

// In drawing order.
class FramePieces {
 public:
  void add(FramePart part, const Rect& rect) { pieces_[count_++] = {part, rect}; }
  std::size_t size() const { return count_; }
  const FramePiece* begin() const { return pieces_.data(); }
  const FramePiece* end() const { return pieces_.data() + count_; }

 private:
  std::array<FramePiece, kFramePartCount> pieces_{};
  std::size_t count_ = 0;
};

// The natural size of each piece that there is.
using FramePartSizes = std::array<std::optional<Size>, kFramePartCount>;

// Edges, corners, then the center over them; nothing without a center. An edge gives way to the
// corners at its ends; the center gives way to the edges only. The right bottom corner has the size
// of the piece that is drawn before it, deliberately: of the left bottom one, in a whole set.
FramePieces placeFrame(const FramePartSizes& sizes, const Rect& destination);

}  // namespace ov
