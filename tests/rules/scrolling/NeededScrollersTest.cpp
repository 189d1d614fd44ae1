#include <gtest/gtest.h>

#include <limits>
#include <ostream>

#include "Random.h"
#include "RulePrinting.h"
#include "scrolling/NeededScrollers.h"

namespace ov {

void PrintTo(const NeededScrollers& needed, std::ostream* out) {
  *out << (needed.horizontal ? "horizontal " : "") << (needed.vertical ? "vertical" : "");
}

namespace {

constexpr Size kRoom{200, 150};
constexpr Size kTaken{19, 19};
constexpr Scalar kNaN = std::numeric_limits<Scalar>::quiet_NaN();

struct Row {
  const char* name;
  Size document;
  NeededScrollers expected;
};

class NeededScrollersTable : public testing::TestWithParam<Row> {};

TEST_P(NeededScrollersTable, AreShown) {
  EXPECT_EQ(neededScrollers(GetParam().document, kRoom, kTaken), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Documents, NeededScrollersTable,
    testing::Values(Row{"Nothing", {0, 0}, {}}, Row{"JustFits", {200, 150}, {}},
                    // It would not fit beside scrollers, but there are none.
                    Row{"FitsWithoutScrollersOnly", {190, 140}, {}},
                    Row{"High", {100, 151}, {.vertical = true}},
                    Row{"HighAndFitsBeside", {181, 151}, {.vertical = true}},
                    // The vertical one calls for the other.
                    Row{"HighAndTooWideBeside", {182, 151}, {.horizontal = true, .vertical = true}},
                    Row{"Wide", {201, 100}, {.horizontal = true}},
                    Row{"WideAndFitsAbove", {201, 131}, {.horizontal = true}},
                    Row{"WideAndTooHighAbove", {201, 132}, {.horizontal = true, .vertical = true}},
                    Row{"Both", {201, 151}, {.horizontal = true, .vertical = true}},
                    Row{"NoSize", {kNaN, kNaN}, {}}),
    [](const auto& info) { return info.param.name; });

// What shows is what is too large beside it; nothing with fewer scrollers is so.
TEST(NeededScrollers, AreTheFewestThatAgreeWithThemselves) {
  test::Random random;
  SCOPED_TRACE(random.describe());
  for (int i = 0; i < 20000; ++i) {
    const auto size = [&](int64_t limit) {
      return Size{static_cast<Scalar>(random.integer(0, limit)),
                  static_cast<Scalar>(random.integer(0, limit))};
    };
    const Size document = size(60);
    const Size room = size(60);
    const Size taken = size(20);
    const auto agrees = [&](NeededScrollers n) {
      return n.horizontal == (document.width > room.width - (n.vertical ? taken.width : 0)) &&
             n.vertical == (document.height > room.height - (n.horizontal ? taken.height : 0));
    };
    const NeededScrollers needed = neededScrollers(document, room, taken);
    ASSERT_TRUE(agrees(needed));
    for (bool horizontal : {false, true}) {
      for (bool vertical : {false, true}) {
        const NeededScrollers fewer{horizontal, vertical};
        if (horizontal + vertical >= needed.horizontal + needed.vertical) continue;
        ASSERT_FALSE(agrees(fewer));
      }
    }
  }
}

}  // namespace
}  // namespace ov
