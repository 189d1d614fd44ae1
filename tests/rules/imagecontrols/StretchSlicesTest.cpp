#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

#include "Frames.h"
#include "Random.h"
#include "imagecontrols/StretchSlices.h"

namespace ov {
namespace {

using testing::UnorderedElementsAreArray;

using enum FramePart;

constexpr Scalar kNaN = std::numeric_limits<Scalar>::quiet_NaN();

struct Row {
  std::string name;
  Rect whole;
  Scalar leftCap;
  Scalar topCap;
  std::vector<FramePiece> expected;
  friend void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }
};

class Slices : public testing::TestWithParam<Row> {};

TEST_P(Slices, AreCutAsExpected) {
  const Row& row = GetParam();
  EXPECT_THAT(listOf(sliceStretchable(row.whole, row.leftCap, row.topCap)),
              UnorderedElementsAreArray(row.expected));
}

// A tile of a strip, say.
constexpr Rect kWhole{30, 5, 20, 12};

INSTANTIATE_TEST_SUITE_P(
    Rows, Slices,
    testing::Values(
        Row{"NoCaps", kWhole, 0, 0, {{Center, kWhole}}},
        Row{"NegativeCaps", kWhole, -4, -3, {{Center, kWhole}}},
        Row{"CapsThatAreNoNumbers", kWhole, kNaN, kNaN, {{Center, kWhole}}},
        Row{"BothCaps",
            kWhole,
            4,
            3,
            {{Center, {34, 8, 12, 6}},
             {LeftTop, {30, 5, 4, 3}},
             {Left, {30, 8, 4, 6}},
             {LeftBottom, {30, 14, 4, 3}},
             {Top, {34, 5, 12, 3}},
             {Bottom, {34, 14, 12, 3}},
             {RightTop, {46, 5, 4, 3}},
             {Right, {46, 8, 4, 6}},
             {RightBottom, {46, 14, 4, 3}}}},
        Row{"LeftCapOnly",
            kWhole,
            4,
            0,
            {{Center, {34, 5, 12, 12}}, {Left, {30, 5, 4, 12}}, {Right, {46, 5, 4, 12}}}},
        Row{"TopCapOnly",
            kWhole,
            0,
            3,
            {{Center, {30, 8, 20, 6}}, {Top, {30, 5, 20, 3}}, {Bottom, {30, 14, 20, 3}}}},
        Row{"LeftCapAndNegativeTopCap",
            kWhole,
            4,
            -3,
            {{Center, {34, 5, 12, 12}}, {Left, {30, 5, 4, 12}}, {Right, {46, 5, 4, 12}}}},
        Row{"TopCapAndNoLeftNumber",
            kWhole,
            kNaN,
            3,
            {{Center, {30, 8, 20, 6}}, {Top, {30, 5, 20, 3}}, {Bottom, {30, 14, 20, 3}}}},
        Row{"CapsThatMeet",
            kWhole,
            10,
            0,
            {{Center, {40, 5, 0, 12}}, {Left, {30, 5, 10, 12}}, {Right, {40, 5, 10, 12}}}},
        // The center has a negative side, and shows nothing.
        Row{"CapsThatOverlap",
            kWhole,
            15,
            0,
            {{Center, {45, 5, -10, 12}}, {Left, {30, 5, 15, 12}}, {Right, {35, 5, 15, 12}}}},
        Row{"NoPicture", {}, 0, 0, {{Center, {}}}}),
    [](const auto& info) { return info.param.name; });

// The cutting once more, piece after piece.
std::vector<FramePiece> stepByStep(const Rect& r, Scalar leftCap, Scalar topCap) {
  const Scalar l = leftCap > 0 ? leftCap : 0;
  const Scalar t = topCap > 0 ? topCap : 0;
  const Rect i{r.x + l, r.y + t, r.width - 2 * l, r.height - 2 * t};
  std::vector<FramePiece> cut = {{Center, i}};
  if (l > 0 && t > 0) {
    cut.push_back({LeftTop, {r.x, r.y, l, t}});
    cut.push_back({Left, {r.x, i.y, l, i.height}});
    cut.push_back({LeftBottom, {r.x, i.y + i.height, l, t}});
    cut.push_back({Top, {i.x, r.y, i.width, t}});
    cut.push_back({Bottom, {i.x, i.y + i.height, i.width, t}});
    cut.push_back({RightTop, {i.x + i.width, r.y, l, t}});
    cut.push_back({Right, {i.x + i.width, i.y, l, i.height}});
    cut.push_back({RightBottom, {i.x + i.width, i.y + i.height, l, t}});
  }
  if (l > 0 && !(t > 0)) {
    cut.push_back({Left, {r.x, r.y, l, r.height}});
    cut.push_back({Right, {i.x + i.width, r.y, l, r.height}});
  }
  if (!(l > 0) && t > 0) {
    cut.push_back({Top, {r.x, r.y, r.width, t}});
    cut.push_back({Bottom, {r.x, i.y + i.height, r.width, t}});
  }
  return cut;
}

TEST(SlicesOfAnyPicture, AreAsStepByStep) {
  test::Random random;
  SCOPED_TRACE(random.describe());
  // Quarters, whose sums are exact in any precision.
  const auto any = [&random](int low, int high) {
    return Scalar(random.integer(4 * low, 4 * high)) / 4;
  };
  for (int i = 0; i < 5000; i++) {
    const Rect whole{any(-50, 50), any(-50, 50), any(0, 100), any(0, 100)};
    const auto cap = [&] { return random.oneIn(4) ? 0 : any(-10, 60); };
    const Scalar left = cap(), top = cap();
    ASSERT_THAT(listOf(sliceStretchable(whole, left, top)),
                UnorderedElementsAreArray(stepByStep(whole, left, top)))
        << left << ", " << top << " of " << testing::PrintToString(whole);
  }
}

TEST(SlicesOfAnyPicture, CoverItOnce) {
  test::Random random;
  SCOPED_TRACE(random.describe());
  for (int i = 0; i < 1000; i++) {
    const Rect whole{Scalar(random.integer(-50, 50)), Scalar(random.integer(-50, 50)),
                     Scalar(random.integer(20, 90)), Scalar(random.integer(20, 90))};
    const auto left = Scalar(random.integer(0, 10)), top = Scalar(random.integer(0, 10));
    Scalar area = 0;
    std::vector<Rect> rects;
    for (const FramePiece& slice : sliceStretchable(whole, left, top)) {
      for (const Rect& other : rects) ASSERT_FALSE(overlap(other, slice.rect));
      rects.push_back(slice.rect);
      area += slice.rect.width * slice.rect.height;
    }
    ASSERT_EQ(area, whole.width * whole.height);
  }
}

}  // namespace
}  // namespace ov
