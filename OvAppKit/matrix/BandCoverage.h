// The items that a rubber band covers, and what a step of the band changes; so that a step
// costs by what changed, however large the band has become.

#pragma once

#include <algorithm>

#include "geometry/Geometry.h"

namespace ov {

// The items of a block of columns and rows, in a layout of `stride` columns. A range of
// items is a block of one row in a layout without end.
struct BandCoverage {
  Index stride = kNoIndex;
  Index items = 0;
  IndexRange columns;
  IndexRange rows;

  static BandCoverage range(Index items, IndexRange covered) {
    return {kNoIndex, items, covered, {0, 1}};
  }

  bool isEmpty() const { return rows.isEmpty() || columns.isEmpty(); }
  // Whether two can be compared at all.
  bool sameLayout(const BandCoverage& other) const {
    return stride == other.stride && items == other.items;
  }

  bool contains(Index item) const;
  // kNoIndex when nothing is covered.
  Index first() const;
  Index last() const;

  // The covered items as runs of neighbours, in ascending order: one for each row, or a
  // single one where the rows join.
  Index runCount() const;
  IndexRange run(Index k) const;
  // The run that a covered item is in; for another item above the first, the one before it.
  Index runOf(Index item) const;

  // Calls body(IndexRange) for the items that this holds and the other does not, in runs
  // that lie in one row each.
  template <typename Body>
  void eachRunWithout(const BandCoverage& other, Body body) const {
    if (isEmpty()) return;
    const bool apart = other.isEmpty();
    const Index commonStart = apart ? rows.end() : clampToRows(other.rows.location);
    const Index commonEnd = apart ? rows.end() : clampToRows(other.rows.end());
    const auto eachRow = [&](Index from, Index to, Index firstColumn, Index endColumn) {
      if (from >= to || firstColumn >= endColumn) return;
      if (endColumn - firstColumn == stride) {  // the rows join
        const IndexRange begin = row(from, firstColumn, endColumn);
        if (!begin.isEmpty()) {
          body({begin.location, std::min(to * stride, items) - begin.location});
        }
        return;
      }
      for (Index r = from; r < to; ++r) {
        const IndexRange part = row(r, firstColumn, endColumn);
        if (part.isEmpty()) return;  // and so are all later ones
        body(part);
      }
    };
    eachRow(rows.location, commonStart, columns.location, columns.end());
    eachRow(commonStart, commonEnd, columns.location,
            std::min(columns.end(), other.columns.location));
    eachRow(commonStart, commonEnd, std::max(columns.location, other.columns.end()), columns.end());
    eachRow(commonEnd, rows.end(), columns.location, columns.end());
  }

  friend bool operator==(const BandCoverage&, const BandCoverage&) = default;

 private:
  // The items of one row between two columns; the last item ends the last row.
  IndexRange row(Index r, Index firstColumn, Index endColumn) const;
  bool rowsJoin() const { return columns.length == stride; }
  Index clampToRows(Index r) const { return std::clamp(r, rows.location, rows.end()); }
};

}  // namespace ov
