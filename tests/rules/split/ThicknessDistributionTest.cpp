#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>
#include <numeric>

#include "Random.h"
#include "split/ThicknessDistribution.h"

namespace ov {

void PrintTo(const AxisSpan& span, std::ostream* out) {
  *out << span.origin << " + " << span.length;
}

namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

using Shares = std::vector<std::uint32_t>;

constexpr int kRandomMost = 2147483647;

// Answers one number after another, and fails the test when it is asked once more.
class Draws {
 public:
  explicit Draws(std::vector<int> numbers) : numbers_(std::move(numbers)) {}
  int operator()() {
    if (used_ == numbers_.size()) {
      ADD_FAILURE() << "asked for more than " << numbers_.size() << " random numbers";
      return 0;
    }
    return numbers_[used_++];
  }
  std::size_t used() const { return used_; }

 private:
  std::vector<int> numbers_;
  std::size_t used_ = 0;
};

std::uint64_t sum(const Shares& shares) {
  return std::accumulate(shares.begin(), shares.end(), std::uint64_t{0});
}

// --- Wishes, and what there is -------------------------------------------------------

TEST(Wish, IsTheWholePointsOfTheThickness) {
  EXPECT_EQ(wishOf(0), 0U);
  EXPECT_EQ(wishOf(0.99), 0U);
  EXPECT_EQ(wishOf(1), 1U);
  EXPECT_EQ(wishOf(100.75), 100U);
  // In single precision this is 100 already.
  EXPECT_EQ(wishOf(99.9999999), 100U);
}

TEST(Wish, OfAnImpossibleThicknessIsNothingOrTheMost) {
  EXPECT_EQ(wishOf(-5), 0U);
  EXPECT_EQ(wishOf(std::numeric_limits<Scalar>::quiet_NaN()), 0U);
  EXPECT_EQ(wishOf(-std::numeric_limits<Scalar>::infinity()), 0U);
  EXPECT_EQ(wishOf(std::numeric_limits<Scalar>::infinity()), 4294967295U);
  EXPECT_EQ(wishOf(Scalar(4294967296.0)), 4294967295U);
  EXPECT_EQ(wishOf(std::numeric_limits<Scalar>::max()), 4294967295U);
}

TEST(Available, IsWhatTheDividersLeave) {
  EXPECT_EQ(availableThickness(300, 1, 6), 300U);
  EXPECT_EQ(availableThickness(300, 3, 6), 288U);
  EXPECT_EQ(availableThickness(300.9, 2, 6), 294U);
}

TEST(Available, IsNothingWhenTheDividersTakeAll) {
  EXPECT_EQ(availableThickness(12, 3, 6), 0U);
  EXPECT_EQ(availableThickness(5, 3, 6), 0U);
  EXPECT_EQ(availableThickness(0.5, 1, 6), 0U);
  EXPECT_EQ(availableThickness(-10, 1, 6), 0U);
  EXPECT_EQ(availableThickness(std::numeric_limits<Scalar>::quiet_NaN(), 2, 6), 0U);
  EXPECT_EQ(availableThickness(300, 0, 6), 0U);
}

// --- Distribution, row by row --------------------------------------------------------

struct DistributionRow {
  const char* name;
  Shares wishes;
  std::uint32_t available;
  Index firstShown;
  std::vector<int> draws;  // exactly those that are asked for
  Shares expected;
};

void PrintTo(const DistributionRow& row, std::ostream* out) { *out << row.name; }

class Distribution : public testing::TestWithParam<DistributionRow> {};

TEST_P(Distribution, Row) {
  const DistributionRow& row = GetParam();
  Draws draws(row.draws);
  EXPECT_THAT(distributeThickness(row.wishes, row.available, row.firstShown, std::ref(draws)),
              ElementsAreArray(row.expected));
  EXPECT_EQ(draws.used(), row.draws.size());
}

INSTANTIATE_TEST_SUITE_P(
    Rows, Distribution,
    testing::Values(
        DistributionRow{"noPanes", {}, 100, kNoIndex, {}, {}},
        DistributionRow{"onePane", {70}, 100, 0, {}, {100}},
        DistributionRow{"fitsAlready", {100, 100, 101}, 301, 0, {}, {100, 100, 101}},
        DistributionRow{"doubles", {50, 100}, 300, 0, {}, {100, 200}},
        DistributionRow{"halves", {50, 100}, 75, 0, {}, {25, 50}},
        DistributionRow{"collapsedGetsNothing", {50, 0, 50}, 80, 0, {}, {40, 0, 40}},
        // 100 x 1.0066 rounds down to 100 and 101 to 101: two points left for three panes.
        // The first draw is 2/3 x 2^31 = 1431655765 (in single precision 1431655808).
        DistributionRow{"leftOverToTheFirstTwo",
                        {100, 100, 101},
                        303,
                        0,
                        {1431655807, 1073741823},
                        {101, 101, 101}},
        DistributionRow{
            "leftOverNotToTheFirst", {100, 100, 101}, 303, 0, {1431655808}, {100, 101, 102}},
        DistributionRow{
            "leftOverNotToTheSecond", {100, 100, 101}, 303, 0, {0, 1073741824}, {101, 100, 102}},
        // As many as panes left: no draw.
        DistributionRow{"leftOverToAll", {10, 10, 10}, 33, 0, {}, {11, 11, 11}},
        DistributionRow{
            "leftOverPassesOverTheCollapsed", {100, 0, 100}, 201, 0, {kRandomMost}, {100, 0, 101}},
        // 1 x 0.1 is raised to 1; of two such, one point too many is given.
        DistributionRow{"raisedToOne", {99, 1}, 10, 0, {}, {9, 1}},
        DistributionRow{"tooManyGiven", {98, 1, 1}, 10, 0, {0}, {8, 1, 1}},
        DistributionRow{
            "tooManyGivenTakesASmallOne", {98, 1, 1}, 10, 0, {kRandomMost, 0}, {9, 0, 1}},
        // A point for nobody.
        DistributionRow{"noSpace", {10, 20}, 0, 0, {}, {0, 0}},
        DistributionRow{"morePanesThanPoints", {5, 5, 5}, 1, 0, {kRandomMost}, {1, 0, 0}},
        DistributionRow{"nobodyWishes", {0, 0, 0}, 90, 1, {}, {0, 90, 0}},
        DistributionRow{"allCollapsed", {0, 0, 0}, 90, kNoIndex, {}, {90, 0, 0}},
        DistributionRow{"nobodyWishesNoSpace", {0, 0}, 0, 1, {}, {0, 0}},
        DistributionRow{"firstShownBeyondTheEnd", {0, 0}, 90, 7, {}, {0, 0}},
        DistributionRow{"hugeWishes", {4294967295U, 4294967295U}, 100, 0, {}, {50, 50}}),
    [](const auto& info) { return info.param.name; });

// --- Properties ----------------------------------------------------------------------

TEST(DistributionProperties, HoldForRandomRows) {
  test::Random random;
  SCOPED_TRACE(random.describe());
  for (int row = 0; row < 20000; ++row) {
    const Index count = static_cast<Index>(random.integer(1, random.oneIn(10) ? 100 : 8));
    Shares wishes;
    std::uint64_t shown = 0;
    for (Index i = 0; i < count; ++i) {
      wishes.push_back(random.oneIn(4) ? 0
                                       : static_cast<std::uint32_t>(
                                             random.integer(1, random.oneIn(5) ? 3 : 1500)));
      if (wishes.back() != 0) ++shown;
    }
    const auto available = static_cast<std::uint32_t>(random.integer(0, 5000));
    const auto draw = [&] { return static_cast<int>(random.integer(0, kRandomMost)); };
    const Shares shares = distributeThickness(wishes, available, 0, draw);
    ASSERT_EQ(shares.size(), wishes.size());
    if (shown == 0) {
      ASSERT_EQ(shares[0], available);
      ASSERT_EQ(sum(shares), available);
      continue;
    }

    const float ratio = static_cast<float>(available) / static_cast<float>(sum(wishes));
    std::uint64_t raised = 0;
    int up = 0;
    int down = 0;
    for (Index i = 0; i < count; ++i) {
      if (wishes[i] == 0) {
        ASSERT_EQ(shares[i], 0U) << "pane " << i << " is collapsed";
        continue;
      }
      const double exact = std::floor(static_cast<float>(wishes[i]) * ratio);
      const double base = std::max(1.0, exact);
      raised += exact < 1;
      const double step = static_cast<double>(shares[i]) - base;
      ASSERT_LE(std::abs(step), 1) << "pane " << i << " got the remainder twice";
      up += step > 0;
      down += step < 0;
    }
    ASSERT_TRUE(up == 0 || down == 0);
    if (available >= shown) {
      ASSERT_EQ(sum(shares), available);
    }
    if (raised == 0) {
      for (Index i = 0; i < count; ++i) {
        if (wishes[i] != 0) {
          ASSERT_GE(shares[i], 1U) << "pane " << i;
        }
      }
    }
  }
}

// Three panes, two points to hand out: each of the three pairs, about equally often.
TEST(DistributionProperties, EveryChoiceOfPanesIsEquallyLikely) {
  test::Random random(17);
  std::map<Shares, int> counts;
  const auto draw = [&] { return static_cast<int>(random.integer(0, kRandomMost)); };
  for (int i = 0; i < 30000; ++i) ++counts[distributeThickness({100, 100, 101}, 303, 0, draw)];
  ASSERT_EQ(counts.size(), 3U);
  for (const auto& [shares, count] : counts) {
    EXPECT_EQ(sum(shares), 303U);
    EXPECT_NEAR(count, 10000, 500);
  }
}

TEST(DistributionProperties, ManyResizesFavourNobody) {
  test::Random random(23);
  const auto draw = [&] { return static_cast<int>(random.integer(0, kRandomMost)); };
  Shares shares(10, 50);
  for (int i = 0; i < 2000; ++i) {
    shares = distributeThickness(shares, static_cast<std::uint32_t>(500 + i % 7), 0, draw);
  }
  EXPECT_GT(*std::ranges::min_element(shares), 1U);
}

// --- Places --------------------------------------------------------------------------

TEST(Places, FollowEachOtherWithADividerBetween) {
  EXPECT_THAT(placePanes({100, 50, 138}, 300, 6),
              ElementsAre(AxisSpan{0, 100}, AxisSpan{106, 50}, AxisSpan{162, 138}));
}

TEST(Places, LastShownTakesTheFraction) {
  EXPECT_THAT(placePanes({100, 100}, 206.5, 6),
              ElementsAre(AxisSpan{0, 100}, AxisSpan{106, 100.5F}));
}

TEST(Places, CollapsedPaneLeavesOnlyItsDivider) {
  EXPECT_THAT(placePanes({0, 94, 0, 94}, 206, 6),
              ElementsAre(AxisSpan{}, AxisSpan{6, 94}, AxisSpan{}, AxisSpan{112, 94}));
}

TEST(Places, LastShownLeavesSpaceForTheDividersBehind) {
  EXPECT_THAT(placePanes({100, 1, 0, 0}, 200, 6),
              ElementsAre(AxisSpan{0, 100}, AxisSpan{106, 82}, AxisSpan{}, AxisSpan{}));
}

TEST(Places, LastShownIsNeverNegative) {
  EXPECT_THAT(placePanes({100, 100}, 50, 6), ElementsAre(AxisSpan{0, 100}, AxisSpan{106, 0}));
}

TEST(Places, NothingShown) {
  EXPECT_THAT(placePanes({}, 100, 6), IsEmpty());
  EXPECT_THAT(placePanes({0, 0}, 100, 6), ElementsAre(AxisSpan{}, AxisSpan{}));
}

TEST(Places, FillTheViewForRandomRows) {
  test::Random random;
  SCOPED_TRACE(random.describe());
  for (int row = 0; row < 5000; ++row) {
    const Index count = static_cast<Index>(random.integer(1, 100));
    const Scalar own = static_cast<Scalar>(random.integer(static_cast<int64_t>(count) * 8, 9000)) +
                       (random.oneIn(2) ? Scalar(0.5) : Scalar(0));
    Shares wishes;
    for (Index i = 0; i < count; ++i) {
      wishes.push_back(static_cast<std::uint32_t>(random.integer(1, 500)));
    }
    const auto draw = [&] { return static_cast<int>(random.integer(0, kRandomMost)); };
    const auto spans =
        placePanes(distributeThickness(wishes, availableThickness(own, count, 6), 0, draw), own, 6);
    // A share that was taken back to nothing leaves its pane where it was.
    if (std::ranges::any_of(spans, [](const AxisSpan& s) { return s.length == 0; })) continue;
    float position = 0;
    for (const AxisSpan& span : spans) {
      ASSERT_EQ(span.origin, position);
      ASSERT_GE(span.length, 1);
      position += span.length + 6;
    }
    ASSERT_EQ(position - 6, static_cast<float>(own));
  }
}

TEST(Dividers, LieBehindEachPane) {
  EXPECT_THAT(dividerOrigins({100, 50, 138}, 6), ElementsAre(100, 156));
  EXPECT_THAT(dividerOrigins({100}, 6), IsEmpty());
  EXPECT_THAT(dividerOrigins({}, 6), IsEmpty());
}

TEST(Dividers, AroundACollapsedPaneLieSideBySide) {
  EXPECT_THAT(dividerOrigins({100, 0, 0, 50}, 6), ElementsAre(100, 106, 112));
  EXPECT_THAT(dividerOrigins({0, 0, 0}, 6), ElementsAre(0, 6));
}

TEST(Dividers, AreSinglePrecision) {
  EXPECT_THAT(dividerOrigins({Scalar(0.1), 1}, 6), ElementsAre(0.1F));
}

}  // namespace
}  // namespace ov
