#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <ostream>

#include "Random.h"
#include "split/DividerDrag.h"

namespace ov {

void PrintTo(const DragLimits& l, std::ostream* out) {
  *out << l.min << " [" << l.low << ", " << l.high << "] " << l.max;
}
static bool operator==(const DragLimits& a, const DragLimits& b) {
  return a.min == b.min && a.max == b.max && a.low == b.low && a.high == b.high;
}
void PrintTo(const DragStep& s, std::ostream* out) {
  *out << "at " << s.position << (s.collapsesBefore ? " collapses before" : "")
       << (s.collapsesBehind ? " collapses behind" : "") << (s.behindFirst ? " behind first" : "")
       << " held " << static_cast<int>(s.held);
}

namespace {

constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
constexpr float kInfinity = std::numeric_limits<float>::infinity();

TEST(DragLimits, LieWithinTheTwoPanes) {
  EXPECT_EQ(dragLimits(100, 300, 100, 300), (DragLimits{100, 300, 100, 300}));
  EXPECT_EQ(dragLimits(100, 300, 140, 260), (DragLimits{100, 300, 140, 260}));
  EXPECT_EQ(dragLimits(100, 300, 20, 900), (DragLimits{100, 300, 100, 300}));
}

TEST(DragLimits, ThatCrossCountForNothing) {
  EXPECT_EQ(dragLimits(100, 300, 250, 150), (DragLimits{100, 300, 100, 300}));
  EXPECT_EQ(dragLimits(100, 300, 400, 300), (DragLimits{100, 300, 100, 300}));
  EXPECT_EQ(dragLimits(100, 300, kInfinity, -kInfinity), (DragLimits{100, 300, 100, 300}));
}

TEST(DragLimits, ThatMeetLeaveOnePlace) {
  EXPECT_EQ(dragLimits(100, 300, 200, 200), (DragLimits{100, 300, 200, 200}));
}

TEST(DragLimits, ThatAreNoNumbersCountForNothing) {
  EXPECT_EQ(dragLimits(100, 300, kNaN, kNaN), (DragLimits{100, 300, 100, 300}));
}

using Held = DragStep::Held;

struct StepRow {
  const char* name;
  DragLimits limits;
  bool before;
  bool behind;
  float pointer;
  DragStep expected;
};

void PrintTo(const StepRow& row, std::ostream* out) { *out << row.name; }

class Step : public testing::TestWithParam<StepRow> {};

TEST_P(Step, Row) {
  const StepRow& row = GetParam();
  EXPECT_EQ(dragStep(row.limits, row.before, row.behind, row.pointer), row.expected);
}

// The panes span 100 to 300; the divider moves from 140 to 260; half way lies 120 and 280.
constexpr DragLimits kLimits = {100, 300, 140, 260};
constexpr DragLimits kFree = {100, 300, 100, 300};
constexpr DragLimits kNoSpace = {100, 100, 100, 100};
constexpr DragLimits kOnePlace = {100, 300, 200, 200};

constexpr DragStep at(float position, Held held = Held::kNowhere) {
  return {position, false, false, false, held};
}
constexpr DragStep beforeGone(float position) {
  return {position, true, false, true, Held::kNowhere};
}
constexpr DragStep behindGone(float position) {
  return {position, false, true, false, Held::kNowhere};
}

INSTANTIATE_TEST_SUITE_P(
    Rows, Step,
    testing::Values(
        StepRow{"follows", kLimits, true, true, 200, at(200)},
        StepRow{"followsFractions", kLimits, true, true, 200.25F, at(200.25F)},
        StepRow{"followsAtTheLowLimit", kLimits, true, true, 140, at(140)},
        StepRow{"heldBelowTheLowLimit", kLimits, true, true, 139.5F, at(140, Held::kAtLow)},
        StepRow{"heldHalfWay", kLimits, true, true, 120, at(140, Held::kAtLow)},
        StepRow{"collapsesBelowHalfWay", kLimits, true, true, 119.5F, beforeGone(100)},
        StepRow{"collapsesFarOut", kLimits, true, true, -5000, beforeGone(100)},
        StepRow{"heldWhereItMayNot", kLimits, false, true, 50, at(140, Held::kAtLow)},
        StepRow{"followsBelowTheHighLimit", kLimits, true, true, 259.5F, at(259.5F)},
        StepRow{"heldAtTheHighLimit", kLimits, true, true, 260, at(260, Held::kAtHigh)},
        StepRow{"heldBeforeHalfWay", kLimits, true, true, 279.5F, at(260, Held::kAtHigh)},
        StepRow{"collapsesHalfWay", kLimits, true, true, 280, behindGone(300)},
        StepRow{"collapsesFarOver", kLimits, true, true, 5000, behindGone(300)},
        StepRow{"heldWhereBehindMayNot", kLimits, true, false, 5000, at(260, Held::kAtHigh)},
        // Without limits the edges are all there is.
        StepRow{"freeAtTheEdge", kFree, true, true, 100, at(100)},
        StepRow{"freeBelowTheEdge", kFree, true, true, 99, beforeGone(100)},
        StepRow{"freeBelowTheEdgeMayNot", kFree, false, false, 99, at(100, Held::kAtLow)},
        StepRow{"freeAtTheFarEdge", kFree, false, true, 300, behindGone(300)},
        StepRow{"freeAtTheFarEdgeMayNot", kFree, false, false, 300, at(300, Held::kAtHigh)},
        StepRow{"noSpaceBoth", kNoSpace, true, true, 200, {100, true, true, false, Held::kNowhere}},
        StepRow{
            "noSpaceBefore", kNoSpace, true, false, 0, {100, true, false, false, Held::kNowhere}},
        StepRow{"noSpaceNone", kNoSpace, false, false, 0, at(100)},
        StepRow{"onePlaceBelow", kOnePlace, false, false, 190, at(200, Held::kAtLow)},
        StepRow{"onePlaceAbove", kOnePlace, false, false, 210, at(200, Held::kAtHigh)},
        StepRow{"onePlaceCollapses", kOnePlace, true, false, 149, beforeGone(100)},
        StepRow{"noNumber", kLimits, true, true, kNaN, at(260, Held::kAtHigh)},
        StepRow{"infinite", kLimits, true, true, kInfinity, behindGone(300)},
        StepRow{"negativeInfinite", kLimits, true, true, -kInfinity, beforeGone(100)}),
    [](const auto& info) { return info.param.name; });

TEST(StepProperties, HoldForRandomRows) {
  test::Random random;
  SCOPED_TRACE(random.describe());
  for (int row = 0; row < 20000; ++row) {
    const auto number = [&] { return static_cast<float>(random.integer(-50, 600)) / 2; };
    const float min = number();
    const float max = min + std::abs(number());
    const DragLimits limits = dragLimits(min, max, number(), number());
    ASSERT_LE(limits.min, limits.low);
    ASSERT_LE(limits.low, limits.high);
    ASSERT_LE(limits.high, limits.max);
    const bool before = random.oneIn(2);
    const bool behind = random.oneIn(2);
    const float pointer = number();
    const DragStep step = dragStep(limits, before, behind, pointer);
    ASSERT_GE(step.position, min);
    ASSERT_LE(step.position, max);
    ASSERT_TRUE(!step.collapsesBefore || before);
    ASSERT_TRUE(!step.collapsesBehind || behind);
    // Where nothing collapses the divider keeps to its limits.
    if (!step.collapsesBefore && !step.collapsesBehind) {
      ASSERT_GE(step.position, limits.low);
      ASSERT_LE(step.position, limits.high);
    }
    // A pointer that moves up never moves the divider down.
    const float further = pointer + static_cast<float>(random.integer(0, 100));
    ASSERT_LE(step.position, dragStep(limits, before, behind, further).position);
  }
}

}  // namespace
}  // namespace ov
