// Where the cells of a grid lie, and which cell lies where.
//
// Cells of one size stand at a fixed pitch (size plus spacing) from the origin,
// numbered row by row. Every answer takes constant time, whatever the item count, and
// is exactly the one of testing each column (or row) in turn: the tests compare the two.

#pragma once

#include "geometry/Geometry.h"

namespace ov {

// One direction of the grid: `count` cells, each `cell` long, one every `pitch`.
struct GridAxis {
  Scalar cell = 0;
  Scalar spacing = 0;
  Index count = 0;

  Scalar pitch() const { return cell + spacing; }
  Scalar origin(Index i) const { return static_cast<Scalar>(i) * pitch(); }

  // The last i with origin(i) <= x < origin(i) + cell; kNoIndex for none.
  Index hit(Scalar x) const;

  // From the first cell that ends beyond min to the last one that starts before max;
  // (0, 0) when there is none between. A cell that only touches an end is left out.
  IndexRange covering(Scalar min, Scalar max) const;

  // From the first cell's start to the last one's end; 0 without cells.
  Scalar contentLength() const;

  // How many cells fit into a length: at least one, at most `items`; 0 without items.
  Index countFitting(Scalar length, Index items) const;
};

// Whether the grid fills the width and grows downward, or fills the height and grows
// sideways.
enum class GridFit { width, height };

struct GridShape {
  Index columns = 0;
  Index rows = 0;
  friend bool operator==(const GridShape&, const GridShape&) = default;
};

struct GridGeometry {
  Size cell;
  Size spacing;
  Index items = 0;
  GridShape shape;

  GridAxis columns() const { return {cell.width, spacing.width, shape.columns}; }
  GridAxis rows() const { return {cell.height, spacing.height, shape.rows}; }

  // The shape for a view `length` wide (or high, when the height is filled).
  GridShape shapeFor(GridFit fit, Scalar length) const;

  // The size of a view that was asked to take `proposed`: the filled axis as asked, the
  // growing one as long as the content, but not shorter than `atLeast`.
  Size sizeFor(GridFit fit, Size proposed, Size atLeast) const;

  bool isValid(Index item) const { return item < items; }
  Index columnOf(Index item) const { return shape.columns ? item % shape.columns : kNoIndex; }
  Index rowOf(Index item) const { return shape.columns ? item / shape.columns : kNoIndex; }

  // The item at a place, kNoIndex beyond the last one. The column is not checked.
  Index itemAt(Index column, Index row) const;
  Index itemAt(Point p) const;

  Rect frameAt(Index column, Index row) const {
    return {columns().origin(column), rows().origin(row), cell.width, cell.height};
  }
  // Empty for an item that does not exist.
  Rect frameOf(Index item) const;
  Rect frameOf(IndexRange columnRange, IndexRange rowRange) const;

  // Both empty for an empty rectangle.
  IndexRange columnsIn(const Rect& r) const;
  IndexRange rowsIn(const Rect& r) const;

  // The items of one row of a block that is `width` columns wide. The last row of the
  // layout ends with the last item; other rows are not checked against the columns.
  // Empty when the block's first item in that row does not exist.
  IndexRange itemsInRow(Index row, IndexRange columnRange) const;

  // From the leftmost to the rightmost column that the items of a range stand in.
  IndexRange columnsOf(IndexRange itemRange) const;
};

}  // namespace ov
