// What a scroller that is drawn from images shows where, and what a press on it hits.
//
//   0                                                                    end
//   +-------+-------+---+---------------+----------+--------+---+----+----+
//   | arrow | arrow |cap|    slot       |   knob   |  slot  |cap|arrow..  |
//   +-------+-------+---+---------------+----------+--------+---+----+----+
//   |    arrows     |  decrement page   |          | increment page |     |
//
// Lengths are measured along the scroller: widths of a horizontal one, heights of a vertical one.

#pragma once

#include <array>
#include <cstddef>
#include <optional>

#include "geometry/Geometry.h"

namespace ov {

// The images, in the order of the part names in HXScroller.h.
enum class ScrollerArt {
  kDecrementArrowMinEnd,
  kDecrementArrowMaxEndEndCap,
  kDecrementArrowMinEndEndCap,
  kIncrementArrowMaxEnd,
  kIncrementArrowMaxEndEndCap,
  kIncrementArrowMinEndEndCap,
  kKnobBody,
  kKnobCapMaxEnd,
  kKnobCapMinEnd,
  kEndCapMaxEnd,
  kEndCapMinEnd,
  kKnobSlot,
};
inline constexpr std::size_t kScrollerArtCount = 12;

// With the platform's numbers.
enum class ScrollerArrow { kIncrement = 0, kDecrement = 1 };

// With the platform's numbers; a press never hits the slot itself.
enum class ScrollerPart {
  kNone = 0,
  kDecrementPage = 1,
  kKnob = 2,
  kIncrementPage = 3,
  kDecrementLine = 4,
  kIncrementLine = 5,
  kSlot = 6,
};

struct ArrowPiece {
  ScrollerArt art = ScrollerArt::kKnobSlot;
  // The arrow that this is, and shows as pressed; none for the cap of an end without arrows.
  std::optional<ScrollerArrow> arrow;

  friend bool operator==(const ArrowPiece&, const ArrowPiece&) = default;
};

// What is drawn together with an arrow, from the scroller's end inward.
struct ArrowPieces {
  bool atMaxEnd = false;
  std::size_t count = 0;
  std::array<ArrowPiece, 2> pieces;

  friend bool operator==(const ArrowPieces&, const ArrowPieces&) = default;
};

// By configuration: 1 one arrow at each end, 2 both at the minimum end, 3 both at the maximum end,
// 4 both at both ends, and for any other number nothing.
ArrowPieces arrowPieces(ScrollerArrow arrow, int configuration);

// The sizes that belong to the pieces, and their places. The minimum end is at 0, the maximum end
// where the bounds end.
using PieceSizes = std::array<Size, 2>;
std::array<Rect, 2> placeArrowPieces(const ArrowPieces& pieces, const PieceSizes& sizes,
                                     const Rect& bounds, bool horizontal);

struct KnobPieces {
  Rect body;
  Rect minCap;
  Rect maxCap;

  friend bool operator==(const KnobPieces&, const KnobPieces&) = default;
};

// The body reaches one point under either cap, so that no seam shows.
KnobPieces placeKnobPieces(const Rect& knob, Size body, Size minCap, Size maxCap, bool horizontal);

// As thick as the image.
Rect placeSlot(const Rect& slot, Size image, bool horizontal);

// What the layout depends on. Numbers that are none count as 0.
struct ScrollerState {
  Rect bounds;
  bool horizontal = false;
  int configuration = 0;
  // By ScrollerArt; the zero size for what has no image.
  std::array<Size, kScrollerArtCount> art;
  // Both from 0 to 1.
  double value = 0;
  double proportion = 0;
};

enum class ScrollerRoom { kNothing, kArrows, kAll };

struct ScrollerLayout {
  ScrollerRoom room = ScrollerRoom::kNothing;
  // By ScrollerArrow: at the minimum end, at the maximum end. Empty where there is none.
  std::array<std::array<Rect, 2>, 2> arrows;
  Rect slot;
  Rect knob;
  // Between arrows and knob, caps included.
  Rect decrementPage;
  Rect incrementPage;
};

ScrollerLayout layOutScroller(const ScrollerState& state);

// The empty rectangle for what is not there. An arrow that stands at both ends is at its own.
Rect rectForPart(const ScrollerLayout& layout, ScrollerPart part);

// Counts across the whole thickness, though images may be thinner. Nothing can be hit in a slot
// without knob.
ScrollerPart partAtPoint(const ScrollerLayout& layout, const ScrollerState& state, Point point);

}  // namespace ov
