#include "scrolling/ScrollerPieces.h"

#include <algorithm>
#include <cmath>

namespace ov {
namespace {

constexpr ArrowPiece kDecrementMinEnd{ScrollerArt::kDecrementArrowMinEnd,
                                      ScrollerArrow::kDecrement};
constexpr ArrowPiece kDecrementMaxEndCap{ScrollerArt::kDecrementArrowMaxEndEndCap,
                                         ScrollerArrow::kDecrement};
constexpr ArrowPiece kDecrementMinEndCap{ScrollerArt::kDecrementArrowMinEndEndCap,
                                         ScrollerArrow::kDecrement};
constexpr ArrowPiece kIncrementMaxEnd{ScrollerArt::kIncrementArrowMaxEnd,
                                      ScrollerArrow::kIncrement};
constexpr ArrowPiece kIncrementMaxEndCap{ScrollerArt::kIncrementArrowMaxEndEndCap,
                                         ScrollerArrow::kIncrement};
constexpr ArrowPiece kIncrementMinEndCap{ScrollerArt::kIncrementArrowMinEndEndCap,
                                         ScrollerArrow::kIncrement};
constexpr ArrowPiece kMaxEndCap{ScrollerArt::kEndCapMaxEnd, std::nullopt};
constexpr ArrowPiece kMinEndCap{ScrollerArt::kEndCapMinEnd, std::nullopt};

// A stretch along the scroller.
struct Span {
  Scalar start = 0;
  Scalar length = 0;
  Scalar end() const { return start + length; }
};

// Of a stretch and a thickness; no rectangle without length.
Rect rectOf(Span span, Scalar thickness, bool horizontal) {
  if (!(span.length > 0)) return {};
  return horizontal ? Rect{span.start, 0, span.length, thickness}
                    : Rect{0, span.start, thickness, span.length};
}

Scalar positive(Scalar number) { return number > 0 ? number : 0; }

double fraction(double number) { return number > 0 ? std::min(number, 1.0) : 0; }

Scalar along(Size size, bool horizontal) { return positive(horizontal ? size.width : size.height); }

Scalar across(Size size, bool horizontal) {
  return positive(horizontal ? size.height : size.width);
}

Size sizeOf(const ScrollerState& state, ScrollerArt art) {
  const Size& size = state.art[static_cast<std::size_t>(art)];
  return {positive(size.width), positive(size.height)};
}

PieceSizes sizesOf(const ScrollerState& state, const ArrowPieces& pieces) {
  PieceSizes sizes;
  for (std::size_t i = 0; i < pieces.count; ++i) sizes[i] = sizeOf(state, pieces.pieces[i].art);
  return sizes;
}

// The knob's place within its slot.
Span knobSpan(const ScrollerState& state, Span slot, Scalar shortest) {
  const auto proportional = std::floor(fraction(state.proportion) * slot.length);
  const Scalar length = std::max(shortest, static_cast<Scalar>(proportional));
  const auto offset = std::floor(fraction(state.value) * (slot.length - length));
  return {slot.start + static_cast<Scalar>(offset), length};
}

}  // namespace

ArrowPieces arrowPieces(ScrollerArrow arrow, int configuration) {
  const bool decrement = arrow == ScrollerArrow::kDecrement;
  switch (configuration) {
    case 1:
      return decrement ? ArrowPieces{false, 1, {kDecrementMinEndCap}}
                       : ArrowPieces{true, 1, {kIncrementMaxEndCap}};
    case 2:
      return decrement ? ArrowPieces{false, 2, {kDecrementMinEnd, kIncrementMinEndCap}}
                       : ArrowPieces{true, 1, {kMaxEndCap}};
    case 3:
      return decrement ? ArrowPieces{false, 1, {kMinEndCap}}
                       : ArrowPieces{true, 2, {kIncrementMaxEnd, kDecrementMaxEndCap}};
    case 4:
      return decrement ? ArrowPieces{false, 2, {kDecrementMinEnd, kIncrementMinEndCap}}
                       : ArrowPieces{true, 2, {kIncrementMaxEnd, kDecrementMaxEndCap}};
    default:
      return {};
  }
}

std::array<Rect, 2> placeArrowPieces(const ArrowPieces& pieces, const PieceSizes& sizes,
                                     const Rect& bounds, bool horizontal) {
  std::array<Rect, 2> places;
  const Scalar end = horizontal ? bounds.maxX() : bounds.maxY();
  Scalar used = 0;
  for (std::size_t i = 0; i < pieces.count; ++i) {
    const Scalar length = horizontal ? sizes[i].width : sizes[i].height;
    const Scalar start = pieces.atMaxEnd ? end - used - length : used;
    places[i] = horizontal ? Rect{start, 0, sizes[i].width, sizes[i].height}
                           : Rect{0, start, sizes[i].width, sizes[i].height};
    used += length;
  }
  return places;
}

KnobPieces placeKnobPieces(const Rect& knob, Size body, Size minCap, Size maxCap, bool horizontal) {
  const auto half = static_cast<Scalar>(0.5);
  if (horizontal) {
    const auto y = [&](Scalar height) { return knob.y + (knob.height - height) * half; };
    return {
        .body = {knob.x + minCap.width - 1, y(body.height),
                 knob.width - minCap.width - maxCap.width + 2, body.height},
        .minCap = {knob.x, y(minCap.height), minCap.width, minCap.height},
        .maxCap = {knob.maxX() - maxCap.width, y(maxCap.height), maxCap.width, maxCap.height},
    };
  }
  const auto x = [&](Scalar width) { return knob.x + (knob.width - width) * half; };
  return {
      .body = {x(body.width), knob.y + minCap.height - 1, body.width,
               knob.height - minCap.height - maxCap.height + 2},
      .minCap = {x(minCap.width), knob.y, minCap.width, minCap.height},
      .maxCap = {x(maxCap.width), knob.maxY() - maxCap.height, maxCap.width, maxCap.height},
  };
}

Rect placeSlot(const Rect& slot, Size image, bool horizontal) {
  return horizontal ? Rect{slot.x, slot.y, slot.width, image.height}
                    : Rect{slot.x, slot.y, image.width, slot.height};
}

ScrollerLayout layOutScroller(const ScrollerState& state) {
  const bool horizontal = state.horizontal;
  const Scalar end = positive(horizontal ? state.bounds.maxX() : state.bounds.maxY());
  const Scalar thickness = positive(horizontal ? state.bounds.maxY() : state.bounds.maxX());
  const Scalar slotImage = across(sizeOf(state, ScrollerArt::kKnobSlot), horizontal);
  // Where images are thinner than the scroller, the knob lies on the slot.
  const Scalar slotThickness = slotImage > 0 ? slotImage : thickness;

  ScrollerLayout layout;
  std::array<std::array<Rect, 2>, 2> arrows;
  Span slot{0, end};
  Span pages{0, end};
  for (const ScrollerArrow call : {ScrollerArrow::kDecrement, ScrollerArrow::kIncrement}) {
    const ArrowPieces pieces = arrowPieces(call, state.configuration);
    const PieceSizes sizes = sizesOf(state, pieces);
    const std::array<Rect, 2> places = placeArrowPieces(pieces, sizes, state.bounds, horizontal);
    for (std::size_t i = 0; i < pieces.count; ++i) {
      const Scalar length = along(sizes[i], horizontal);
      slot.length -= length;
      if (!pieces.atMaxEnd) slot.start += length;
      // The cap of an end is a piece of the way that the knob has not.
      const std::optional<ScrollerArrow> arrow = pieces.pieces[i].arrow;
      if (!arrow) continue;
      pages.length -= length;
      if (!pieces.atMaxEnd) pages.start += length;
      arrows[static_cast<std::size_t>(*arrow)][pieces.atMaxEnd ? 1 : 0] = places[i];
    }
  }

  if (slot.length < 0) {
    layout.slot = rectOf({0, end}, slotThickness, horizontal);
    return layout;
  }
  layout.room = ScrollerRoom::kArrows;
  layout.arrows = arrows;
  layout.slot = rectOf(slot, slotThickness, horizontal);

  const Scalar caps = along(sizeOf(state, ScrollerArt::kKnobCapMinEnd), horizontal) +
                      along(sizeOf(state, ScrollerArt::kKnobCapMaxEnd), horizontal);
  const Scalar shortest = std::max(caps, slotThickness);
  if (!(slot.length >= shortest && shortest > 0)) return layout;
  layout.room = ScrollerRoom::kAll;
  const Span knob = knobSpan(state, slot, shortest);
  layout.knob = rectOf(knob, slotThickness, horizontal);
  layout.decrementPage = rectOf({pages.start, knob.start - pages.start}, slotThickness, horizontal);
  layout.incrementPage = rectOf({knob.end(), pages.end() - knob.end()}, slotThickness, horizontal);
  return layout;
}

Rect rectForPart(const ScrollerLayout& layout, ScrollerPart part) {
  const auto arrow = [&](ScrollerArrow which, std::size_t own) {
    const std::array<Rect, 2>& places = layout.arrows[static_cast<std::size_t>(which)];
    return places[own].isEmpty() ? places[1 - own] : places[own];
  };
  switch (part) {
    case ScrollerPart::kDecrementPage:
      return layout.decrementPage;
    case ScrollerPart::kKnob:
      return layout.knob;
    case ScrollerPart::kIncrementPage:
      return layout.incrementPage;
    case ScrollerPart::kDecrementLine:
      return arrow(ScrollerArrow::kDecrement, 0);
    case ScrollerPart::kIncrementLine:
      return arrow(ScrollerArrow::kIncrement, 1);
    case ScrollerPart::kSlot:
      return layout.slot;
    case ScrollerPart::kNone:
      break;
  }
  return {};
}

ScrollerPart partAtPoint(const ScrollerLayout& layout, const ScrollerState& state, Point point) {
  const Rect& bounds = state.bounds;
  const bool inside = point.x >= bounds.x && point.x < bounds.maxX() && point.y >= bounds.y &&
                      point.y < bounds.maxY();
  if (!inside) return ScrollerPart::kNone;
  const Scalar place = state.horizontal ? point.x : point.y;
  const auto contains = [&](const Rect& rect) {
    if (rect.isEmpty()) return false;
    return state.horizontal ? place >= rect.x && place < rect.maxX()
                            : place >= rect.y && place < rect.maxY();
  };
  const auto standsThere = [&](ScrollerArrow arrow) {
    const std::array<Rect, 2>& places = layout.arrows[static_cast<std::size_t>(arrow)];
    return contains(places[0]) || contains(places[1]);
  };
  if (standsThere(ScrollerArrow::kDecrement)) return ScrollerPart::kDecrementLine;
  if (standsThere(ScrollerArrow::kIncrement)) return ScrollerPart::kIncrementLine;
  if (contains(layout.knob)) return ScrollerPart::kKnob;
  if (contains(layout.decrementPage)) return ScrollerPart::kDecrementPage;
  if (contains(layout.incrementPage)) return ScrollerPart::kIncrementPage;
  return ScrollerPart::kNone;
}

}  // namespace ov
