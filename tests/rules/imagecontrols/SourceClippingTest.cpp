#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

#include "Random.h"
#include "RulePrinting.h"
#include "platform/SourceClipping.h"

namespace ov {

void PrintTo(const ClippedDrawing& drawing, std::ostream* out) {
  PrintTo(drawing.source, out);
  *out << " into ";
  PrintTo(drawing.destination, out);
}

namespace {

struct Row {
  std::string name;
  Rect source;
  Rect destination;
  std::optional<ClippedDrawing> expected;
  friend void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }
};

class SourceClipping : public testing::TestWithParam<Row> {};

constexpr Size kPicture{40, 20};
constexpr Rect kPlace{100, 200, 80, 60};

TEST_P(SourceClipping, IsAsExpected) {
  const Row& row = GetParam();
  EXPECT_EQ(clipSource(kPicture, row.source, row.destination), row.expected);
}

constexpr auto kNothing = std::nullopt;

INSTANTIATE_TEST_SUITE_P(
    Rows, SourceClipping,
    testing::Values(
        Row{"Inside", {10, 5, 20, 10}, kPlace, {{{10, 5, 20, 10}, kPlace}}},
        Row{"All", {0, 0, 40, 20}, kPlace, {{{0, 0, 40, 20}, kPlace}}},
        Row{"ZeroIsAll", {0, 0, 0, 0}, kPlace, {{{0, 0, 40, 20}, kPlace}}},
        Row{"BeyondMinX", {-20, 0, 40, 20}, kPlace, {{{0, 0, 20, 20}, {140, 200, 40, 60}}}},
        Row{"BeyondMaxX", {20, 0, 40, 20}, kPlace, {{{20, 0, 20, 20}, {100, 200, 40, 60}}}},
        Row{"BeyondMinY", {0, -10, 40, 20}, kPlace, {{{0, 0, 40, 10}, {100, 230, 80, 30}}}},
        Row{"BeyondMaxY", {0, 10, 40, 20}, kPlace, {{{0, 10, 40, 10}, {100, 200, 80, 30}}}},
        Row{"AllAround", {-20, -10, 80, 40}, kPlace, {{{0, 0, 40, 20}, {120, 215, 40, 30}}}},
        Row{"BesideIt", {40, 0, 10, 20}, kPlace, kNothing},
        Row{"FarAway", {-500, 300, 10, 20}, kPlace, kNothing},
        Row{"NoWidth", {10, 5, 0, 10}, kPlace, kNothing},
        Row{"NoSizeElsewhere", {10, 5, 0, 0}, kPlace, kNothing},
        Row{"NegativeWidth", {30, 5, -10, 10}, kPlace, kNothing},
        Row{"NoPlace", {10, 5, 20, 10}, {5, 5, 0, 0}, kNothing},
        Row{"FlatPlace", {10, 5, 20, 10}, {5, 5, 10, 0}, kNothing},
        Row{"NegativePlace", {10, 5, 20, 10}, {5, 5, -10, 10}, kNothing}),
    [](const auto& info) { return info.param.name; });

TEST(SourceClippingOfNoPicture, IsNothing) {
  EXPECT_EQ(clipSource({0, 0}, {}, kPlace), kNothing);
  EXPECT_EQ(clipSource({0, 20}, {0, 0, 10, 10}, kPlace), kNothing);
  EXPECT_EQ(clipSource({-40, 20}, {0, 0, 10, 10}, kPlace), kNothing);
  EXPECT_EQ(clipSource({std::numeric_limits<Scalar>::quiet_NaN(), 20}, {}, kPlace), kNothing);
}

TEST(SourceClippingNumbers, AnyNumbersGiveNumbers) {
  test::Random random;
  SCOPED_TRACE(random.describe());
  const auto any = [&] { return random.anyNumber<Scalar>(); };
  const auto isNumber = [](const Rect& r) {
    return std::isfinite(r.maxX()) && std::isfinite(r.maxY()) && std::isfinite(r.x) &&
           std::isfinite(r.y) && !r.isEmpty();
  };
  int drawn = 0;
  for (int i = 0; i < 50000; ++i) {
    const Size picture{any(), any()};
    const auto drawing =
        clipSource(picture, {any(), any(), any(), any()}, {any(), any(), any(), any()});
    if (!drawing) continue;
    drawn++;
    ASSERT_TRUE(isNumber(drawing->source) && isNumber(drawing->destination))
        << testing::PrintToString(*drawing);
    ASSERT_TRUE(drawing->source.x >= 0 && drawing->source.y >= 0);
  }
  EXPECT_GT(drawn, 0);
}

}  // namespace
}  // namespace ov
