#include "matrix/GridGeometry.h"

#include <algorithm>
#include <cmath>

namespace ov {
namespace {

// The number of leading indexes below count for which before(i) holds; before must hold
// for a run of indexes from 0 and for none after it. The guess only decides how soon the
// answer is found: a good one costs two calls.
template <typename Before>
Index partitionPoint(Index count, Index guess, Before before) {
  Index low = 0;       // every index below it is known to be before
  Index high = count;  // every index from it on is known not to be
  guess = std::min(guess, count);
  for (Index step = 1; guess < high; step *= 2) {
    if (!before(guess)) {
      high = guess;
      break;
    }
    low = guess + 1;
    guess = high - low > step ? low + step - 1 : high;
  }
  Index back = high;
  for (Index step = 1; back > low; step *= 2) {
    const Index probe = back - low > step ? back - step : low;
    if (before(probe)) {
      low = probe + 1;
      break;
    }
    high = back = probe;
  }
  while (low < high) {
    const Index middle = low + (high - low) / 2;
    if (before(middle)) {
      low = middle + 1;
    } else {
      high = middle;
    }
  }
  return low;
}

// The quotient as an index between 0 and limit, whatever it is.
Index clampedQuotient(Scalar dividend, Scalar divisor, Index limit) {
  const Scalar quotient = dividend / divisor;
  if (!(quotient > 0)) return 0;
  if (quotient >= static_cast<Scalar>(limit)) return limit;
  return static_cast<Index>(quotient);
}

}  // namespace

Index GridAxis::hit(Scalar x) const {
  const auto startsAtOrBefore = [&](Index i) { return origin(i) <= x; };
  const auto endsAfter = [&](Index i) { return x < origin(i) + cell; };
  const Scalar step = pitch();
  Index candidate = 0;
  if (step < 0) {
    // Later cells lie further left: of those that end after x, the last.
    candidate = partitionPoint(count, clampedQuotient(x - cell, step, count), endsAfter);
  } else {
    // Of the cells that start at or before x, the last; where two overlap it wins.
    candidate = partitionPoint(count, clampedQuotient(x, step, count) + 1, startsAtOrBefore);
  }
  if (candidate == 0) return kNoIndex;
  --candidate;
  return startsAtOrBefore(candidate) && endsAfter(candidate) ? candidate : kNoIndex;
}

IndexRange GridAxis::covering(Scalar min, Scalar max) const {
  if (count == 0) return {};
  const auto endsBeyondMin = [&](Index i) { return origin(i) + cell > min; };
  const auto startsBeforeMax = [&](Index i) { return origin(i) < max; };
  const Scalar step = pitch();
  Index first = 0;
  if (!endsBeyondMin(0)) {
    if (!(step > 0)) return {};
    first = partitionPoint(count, clampedQuotient(min - cell, step, count) + 1,
                           [&](Index i) { return !endsBeyondMin(i); });
    if (first == count) return {};
  }
  Index last = count - 1;
  if (!startsBeforeMax(last)) {
    if (!(step > 0)) return {};
    const Index before =
        partitionPoint(count, clampedQuotient(max, step, count) + 1, startsBeforeMax);
    if (before == 0) return {};
    last = before - 1;
  }
  return first <= last ? IndexRange{first, last - first + 1} : IndexRange{};
}

Scalar GridAxis::contentLength() const {
  if (count == 0) return 0;
  return static_cast<Scalar>(count) * cell + static_cast<Scalar>(count - 1) * spacing;
}

Index GridAxis::countFitting(Scalar length, Index items) const {
  if (items == 0) return 0;
  if (!(length > cell)) return 1;
  const Scalar fitting = (length - cell) / pitch() + 1;
  // A pitch of nothing fits every item; a negative one is treated as a single cell.
  if (!(fitting >= 1)) return 1;
  if (fitting >= static_cast<Scalar>(kNoIndex)) return items;
  return std::min(static_cast<Index>(fitting), items);
}

GridShape GridGeometry::shapeFor(GridFit fit, Scalar length) const {
  const Index fitted = (fit == GridFit::width ? columns() : rows()).countFitting(length, items);
  if (fitted == 0) return {};
  const Index other = items / fitted + (items % fitted == 0 ? 0 : 1);
  return fit == GridFit::width ? GridShape{fitted, other} : GridShape{other, fitted};
}

Size GridGeometry::sizeFor(GridFit fit, Size proposed, Size atLeast) const {
  if (fit == GridFit::width) {
    return {proposed.width, std::fmax(rows().contentLength(), atLeast.height)};
  }
  return {std::fmax(columns().contentLength(), atLeast.width), proposed.height};
}

Index GridGeometry::itemAt(Index column, Index row) const {
  // The product may exceed an index when the caller asks beyond the layout.
  Index item = 0;
  if (__builtin_mul_overflow(row, shape.columns, &item) ||
      __builtin_add_overflow(item, column, &item)) {
    return kNoIndex;
  }
  return item < items ? item : kNoIndex;
}

Index GridGeometry::itemAt(Point p) const {
  const Index column = columns().hit(p.x);
  if (column == kNoIndex) return kNoIndex;
  const Index row = rows().hit(p.y);
  if (row == kNoIndex) return kNoIndex;
  return itemAt(column, row);
}

Rect GridGeometry::frameOf(Index item) const {
  if (!isValid(item) || shape.columns == 0) return {};
  return frameAt(item % shape.columns, item / shape.columns);
}

Rect GridGeometry::frameOf(IndexRange columnRange, IndexRange rowRange) const {
  const Rect first = frameAt(columnRange.location, rowRange.location);
  if (columnRange.length <= 1 && rowRange.length <= 1) return first;
  const Index lastColumn = columnRange.length > 1 ? columnRange.end() - 1 : columnRange.location;
  const Index lastRow = rowRange.length > 1 ? rowRange.end() - 1 : rowRange.location;
  return unite(first, frameAt(lastColumn, lastRow));
}

IndexRange GridGeometry::columnsIn(const Rect& r) const {
  return r.isEmpty() ? IndexRange{} : columns().covering(r.x, r.maxX());
}

IndexRange GridGeometry::rowsIn(const Rect& r) const {
  return r.isEmpty() ? IndexRange{} : rows().covering(r.y, r.maxY());
}

IndexRange GridGeometry::itemsInRow(Index row, IndexRange columnRange) const {
  const Index item = itemAt(columnRange.location, row);
  if (item == kNoIndex) return {};
  Index length = columnRange.length;
  if (row == shape.rows - 1) length = std::min(length, items - item);
  return {item, length};
}

IndexRange GridGeometry::columnsOf(IndexRange itemRange) const {
  if (itemRange.isEmpty() || shape.columns == 0) return {};
  const Index first = itemRange.location % shape.columns;
  // A range that passes the end of a row touches both the last and the first column.
  if (itemRange.length > shape.columns - first) return {0, shape.columns};
  return {first, itemRange.length};
}

}  // namespace ov
