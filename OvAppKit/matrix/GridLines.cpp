#include "matrix/GridLines.h"

#include <algorithm>
#include <cmath>

namespace ov {

GridLineRun gridLinesIn(const GridLineAxis& axis, Scalar lineWidth, const GridShadowReach* reach,
                        Scalar alongMin, Scalar alongMax, Scalar acrossMin, Scalar acrossMax) {
  GridLineRun run;
  run.pitch = axis.pitch;
  // Half a gap back from the next cell, then half the line's own width forward: a line as
  // wide as its gap is centred in it.
  run.offset = (axis.spacing > 0 ? -std::ceil(axis.spacing * Scalar(0.5)) : 0) +
               (lineWidth > 0 ? lineWidth * Scalar(0.5) : 0);
  run.start = acrossMin;
  run.end = acrossMax;
  Scalar extentBefore = -lineWidth * Scalar(0.5);
  Scalar extentAfter = lineWidth * Scalar(0.5);
  if (reach != nullptr) {
    run.start += reach->offset.height - reach->blur;
    run.end += reach->offset.height + reach->blur;
    extentBefore = std::min(extentBefore, reach->offset.width - reach->blur);
    // The shadow is painted a little wider than its blur radius.
    extentAfter =
        std::max(extentAfter, reach->offset.width + 2 * reach->blur + std::fabs(lineWidth));
  }
  if (!(axis.pitch > 0)) return run;

  const auto passed = [&](Index k) { return run.position(k) + extentBefore > alongMax; };
  // From here every comparison is made on the position itself; the quotients only tell
  // where to begin.
  const Scalar guess = (alongMin - extentAfter - run.offset) / axis.pitch;
  Index first =
      guess > 2 && guess < static_cast<Scalar>(kNoIndex) ? static_cast<Index>(guess) - 1 : 1;
  const Index end = axis.insideOnly ? axis.count : kNoIndex;  // not drawn from here on
  Index last = first - 1;
  const Index most = std::min(end, first + kMostGridLines);
  while (last + 1 < most && !passed(last + 1)) ++last;
  while (first <= last && run.position(first) + extentAfter < alongMin) ++first;
  run.first = first;
  run.last = last;
  return run;
}

}  // namespace ov
