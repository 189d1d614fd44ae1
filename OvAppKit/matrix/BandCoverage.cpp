#include "matrix/BandCoverage.h"

namespace ov {

IndexRange BandCoverage::row(Index r, Index firstColumn, Index endColumn) const {
  const Index start = r == 0 ? firstColumn : r * stride + firstColumn;
  if (start >= items) return {};
  return {start, std::min(endColumn - firstColumn, items - start)};
}

bool BandCoverage::contains(Index item) const {
  if (item >= items) return false;
  const Index column = item % stride;
  const Index r = item / stride;
  return column >= columns.location && column < columns.end() && r >= rows.location &&
         r < rows.end();
}

Index BandCoverage::first() const {
  if (isEmpty()) return kNoIndex;
  const IndexRange begin = row(rows.location, columns.location, columns.end());
  return begin.isEmpty() ? kNoIndex : begin.location;
}

Index BandCoverage::last() const {
  const Index count = runCount();
  return count == 0 ? kNoIndex : run(count - 1).end() - 1;
}

Index BandCoverage::runCount() const {
  const Index begin = first();
  if (begin == kNoIndex) return 0;
  if (rowsJoin()) return 1;
  const Index lastRow = std::min(rows.end() - 1, (items - 1 - columns.location) / stride);
  return lastRow - rows.location + 1;
}

IndexRange BandCoverage::run(Index k) const {
  if (!rowsJoin()) return row(rows.location + k, columns.location, columns.end());
  const Index begin = rows.location * stride;
  return {begin, std::min(rows.end() * stride, items) - begin};
}

Index BandCoverage::runOf(Index item) const {
  return rowsJoin() || item / stride < rows.location ? 0 : item / stride - rows.location;
}

}  // namespace ov
