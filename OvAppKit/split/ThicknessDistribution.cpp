#include "split/ThicknessDistribution.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace ov {
namespace {

// Written so that what is no number becomes 0.
std::uint32_t wholePoints(float length) {
  if (!(length > 0)) return 0;
  if (length >= 4294967296.0F) return std::numeric_limits<std::uint32_t>::max();
  return static_cast<std::uint32_t>(length);
}

}  // namespace

std::uint32_t wishOf(Scalar thickness) {
  return wholePoints(std::floor(static_cast<float>(thickness)));
}

std::uint32_t availableThickness(Scalar own, Index panes, Scalar dividerThickness) {
  if (panes == 0) return 0;
  return wholePoints(static_cast<float>(own) -
                     static_cast<float>(panes - 1) * static_cast<float>(dividerThickness));
}

std::vector<std::uint32_t> distributeThickness(const std::vector<std::uint32_t>& wishes,
                                               std::uint32_t available, Index firstShown,
                                               const std::function<int()>& random) {
  std::vector<std::uint32_t> shares = wishes;
  std::uint64_t wished = 0;
  std::uint64_t candidates = 0;  // panes with a wish that the draw has not come to
  for (const std::uint32_t wish : wishes) {
    wished += wish;
    if (wish != 0) ++candidates;
  }
  if (wished == 0) {
    const Index all = firstShown == kNoIndex ? 0 : firstShown;
    if (all < shares.size()) shares[all] = available;
    return shares;
  }

  const float ratio = static_cast<float>(available) / static_cast<float>(wished);
  std::uint64_t given = 0;
  for (std::uint32_t& share : shares) {
    if (share == 0) continue;
    share = std::max(wholePoints(std::floor(static_cast<float>(share) * ratio)), 1U);
    given += share;
  }

  // Selection sampling: each set of panes of the size wanted is equally likely.
  const bool more = available > given;
  std::uint64_t remaining = more ? available - given : given - available;
  for (std::uint32_t& share : shares) {
    if (remaining == 0) break;
    if (share == 0) continue;
    if (remaining == candidates ||
        static_cast<float>(remaining) / static_cast<float>(candidates) * 2147483648.0 > random()) {
      share = more ? share + 1 : share - 1;
      --remaining;
    }
    --candidates;
  }
  return shares;
}

std::vector<AxisSpan> placePanes(const std::vector<std::uint32_t>& shares, Scalar own,
                                 Scalar dividerThickness) {
  const auto divider = static_cast<float>(dividerThickness);
  const Index count = shares.size();
  Index last = kNoIndex;
  for (Index i = 0; i < count; ++i) {
    if (shares[i] != 0) last = i;
  }
  std::vector<AxisSpan> spans(count);
  float position = 0;
  for (Index i = 0; i < count; ++i) {
    if (shares[i] != 0) {
      auto length = static_cast<float>(shares[i]);
      if (i == last) {
        length = std::max(0.0F, static_cast<float>(own) - position -
                                    static_cast<float>(count - 1 - last) * divider);
      }
      spans[i] = {position, length};
      position += length;
    }
    if (i + 1 < count) position += divider;
  }
  return spans;
}

std::vector<float> dividerOrigins(const std::vector<Scalar>& shownThicknesses,
                                  Scalar dividerThickness) {
  std::vector<float> origins;
  float position = 0;
  for (std::size_t i = 0; i + 1 < shownThicknesses.size(); ++i) {
    position += static_cast<float>(shownThicknesses[i]);
    origins.push_back(position);
    position += static_cast<float>(dividerThickness);
  }
  return origins;
}

}  // namespace ov
