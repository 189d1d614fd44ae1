#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <ostream>
#include <string>

#include "Random.h"
#include "RulePrinting.h"
#include "extensions/ImagePlacement.h"

namespace ov {
namespace {

constexpr auto kStretched = ImagePosition::Stretched;
constexpr auto kCentered = ImagePosition::Centered;
constexpr auto kMaxY = ImagePosition::MaxY;

struct Row {
  std::string name;
  Size image;
  Rect rect;
  ImagePosition position;
  bool scaled;
  Rect expected;
  friend void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }
};

class ImagePlacement : public testing::TestWithParam<Row> {};

TEST_P(ImagePlacement, IsAsExpected) {
  const Row& row = GetParam();
  EXPECT_EQ(placeImage(row.image, row.rect, row.position, row.scaled), row.expected);
}

constexpr Size kWide{100, 50};
constexpr Rect kSquare{0, 0, 300, 300};

INSTANTIATE_TEST_SUITE_P(
    Rows, ImagePlacement,
    testing::Values(
        Row{"EnlargedCentered", kWide, kSquare, kCentered, true, {0, 75, 300, 150}},
        Row{"EnlargedAtMaxY", kWide, kSquare, kMaxY, true, {0, 150, 300, 150}},
        Row{"StretchedScaled", kWide, kSquare, kStretched, true, kSquare},
        Row{"StretchedUnscaled", kWide, kSquare, kStretched, false, kSquare},
        Row{"KeptCentered", kWide, kSquare, kCentered, false, {100, 125, 100, 50}},
        Row{"KeptAtMaxY", kWide, kSquare, kMaxY, false, {100, 250, 100, 50}},
        Row{"Reduced", kWide, {10, 20, 50, 50}, kCentered, true, {10, 32, 50, 25}},
        // 49 x 24.5
        Row{"SizeRoundsDown", kWide, {0, 0, 49, 49}, kCentered, true, {0, 12, 49, 24}},
        Row{"KeptSizeRoundsDown", {3.75, 2.25}, {0, 0, 10, 10}, kCentered, false, {3, 4, 3, 2}},
        Row{"KeptBeyondTheRect", kWide, {0, 0, 11, 11}, kCentered, false, {-45, -20, 100, 50}},
        // -44.5 and -19.5 round down, not towards zero
        Row{"OriginRoundsDown", kWide, {0, 0, 11, 11}, kMaxY, false, {-45, -39, 100, 50}},
        Row{"XRoundsAtMaxY", kWide, {0.5, 0.25, 300, 200}, kMaxY, false, {100, 150.25, 100, 50}},
        Row{"YRoundsCentered", kWide, {0.5, 0.25, 300, 200}, kCentered, false, {100, 75, 100, 50}},
        // Of a flat image nothing can be seen; the other side sets the factor.
        Row{"FlatImage", {100, 0}, kSquare, kCentered, true, {0, 150, 300, 0}},
        Row{"NarrowImage", {0, 50}, kSquare, kMaxY, true, {150, 0, 0, 300}},
        Row{"NoImage", {0, 0}, kSquare, kCentered, true, {150, 150, 0, 0}},
        Row{"NoImageStretched", {0, 0}, kSquare, kStretched, true, kSquare},
        Row{"NoRect", kWide, {7.5, 8.5, 0, 0}, kCentered, true, {7, 8, 0, 0}},
        Row{"NoRectStretched", kWide, {7.5, 8.5, 0, 0}, kStretched, true, {7.5, 8.5, 0, 0}},
        Row{"NoRectNoImage", {0, 0}, {7.5, 8.5, 0, 0}, kMaxY, true, {7, 8.5, 0, 0}},
        Row{"NegativeRect", kWide, {0, 0, -10, 20}, kCentered, true, {-5, 10, 0, 0}},
        Row{"KeptInNoRect", kWide, {0, 0, 0, 0}, kCentered, false, {-50, -25, 100, 50}}),
    [](const auto& info) { return info.param.name; });

TEST(ImagePlacementFactor, IsOfSinglePrecision) {
  for (int image = 1; image <= 200; ++image) {
    for (int side = 1; side <= 400; ++side) {
      const float factor = float(side) / float(image);
      const Scalar expected = std::floor(Scalar(image) * Scalar(factor));
      const Rect placed = placeImage({Scalar(image), Scalar(image)},
                                     {0, 0, Scalar(side), Scalar(side)}, kMaxY, true);
      ASSERT_EQ(placed.width, expected) << image << " in " << side;
      ASSERT_EQ(placed.y, Scalar(side) - expected);
    }
  }
}

// Where the geometry is of double precision, the product shows what the factor lost.
TEST(ImagePlacementFactor, LossesOfTheFactorShow) {
  constexpr bool wide = sizeof(Scalar) > sizeof(float);
  // 0.699999988
  EXPECT_EQ(placeImage({100, 100}, {0, 0, 70, 70}, kCentered, true).width, wide ? 69 : 70);
  // 0.333333343
  EXPECT_EQ(placeImage({3, 3}, {0, 0, 1, 1}, kCentered, true).width, 1);
}

TEST(ImagePlacementNumbers, WhatIsNotFiniteIsNowhere) {
  constexpr Scalar bad[] = {std::numeric_limits<Scalar>::quiet_NaN(),
                            std::numeric_limits<Scalar>::infinity(),
                            -std::numeric_limits<Scalar>::infinity()};
  for (const Scalar value : bad) {
    for (const ImagePosition position : {kStretched, kCentered, kMaxY}) {
      for (const bool scaled : {false, true}) {
        EXPECT_EQ(placeImage(kWide, {value, 0, 9, 9}, position, scaled), Rect{});
        EXPECT_EQ(placeImage(kWide, {0, value, 9, 9}, position, scaled), Rect{});
        EXPECT_EQ(placeImage(kWide, {0, 0, value, 9}, position, scaled), Rect{});
        EXPECT_EQ(placeImage(kWide, {0, 0, 9, value}, position, scaled), Rect{});
      }
    }
  }
}

TEST(ImagePlacementNumbers, WhatBecomesTooLargeIsNowhere) {
  constexpr Scalar huge = std::numeric_limits<Scalar>::max();
  constexpr Scalar tiny = std::numeric_limits<Scalar>::denorm_min();
  EXPECT_EQ(placeImage({tiny, tiny}, {0, 0, huge, huge}, kCentered, true), Rect{});
  EXPECT_EQ(placeImage(kWide, {huge, huge, huge, huge}, kMaxY, true), Rect{});
}

TEST(ImagePlacementNumbers, AnyNumbersGiveNumbers) {
  test::Random random;
  SCOPED_TRACE(random.describe());
  const auto any = [&] { return random.anyNumber<Scalar>(); };
  for (int i = 0; i < 20000; ++i) {
    const Size image{any(), any()};
    const Rect rect{any(), any(), any(), any()};
    const auto position = static_cast<ImagePosition>(i % 3);
    const Rect r = placeImage(image, rect, position, i % 2 == 0);
    ASSERT_TRUE(std::isfinite(r.x) && std::isfinite(r.y) && std::isfinite(r.width) &&
                std::isfinite(r.height))
        << testing::PrintToString(image) << " in " << testing::PrintToString(rect);
  }
}

}  // namespace
}  // namespace ov
