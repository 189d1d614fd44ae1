// How a split view shares its space among its panes, and where the dividers lie.
//
// A thickness is an extent along the split view's axis. Wishes and shares are whole points;
// positions are single precision, at which a view of any size on a screen is exact.

#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include "geometry/Geometry.h"

namespace ov {

// A pane's wish: the whole points of its present thickness. A thickness that is negative or
// no number wishes nothing, one beyond 32 bits the most that they hold.
std::uint32_t wishOf(Scalar thickness);

// The whole points that remain of a view's own thickness beside its dividers, or 0.
std::uint32_t availableThickness(Scalar own, Index panes, Scalar dividerThickness);

// One share for each wish; panes that wish nothing get nothing. Shares are in proportion to
// the wishes and at least 1. What the rounding leaves over, or has given too much, goes in
// steps of 1 to panes that a draw picks, at most one step each, so that no pane gains or
// loses at every resize. When nobody wishes anything, the pane firstShown gets all, or
// pane 0 if that is kNoIndex.
//
// random answers what rand() does: 0 to 2147483647. It is asked only where the draw is open.
//
// The sum is available if every pane that wishes something can have a point of it: then no
// share is under 1 either, unless those small ones that were raised to 1 have to give back.
std::vector<std::uint32_t> distributeThickness(const std::vector<std::uint32_t>& wishes,
                                               std::uint32_t available, Index firstShown,
                                               const std::function<int()>& random);

// A stretch of the axis. An empty one says that a pane is to be left alone.
struct AxisSpan {
  float origin = 0;
  float length = 0;
  friend bool operator==(const AxisSpan&, const AxisSpan&) = default;
};

// Where panes with these shares go. A share of 0 leaves a pane alone, though its divider
// takes space; the last pane with a share takes what fraction the view has left.
std::vector<AxisSpan> placePanes(const std::vector<std::uint32_t>& shares, Scalar own,
                                 Scalar dividerThickness);

// The origins of the dividers between panes of these thicknesses, 0 for a collapsed one; one
// fewer than there are panes.
std::vector<float> dividerOrigins(const std::vector<Scalar>& shownThicknesses,
                                  Scalar dividerThickness);

}  // namespace ov
