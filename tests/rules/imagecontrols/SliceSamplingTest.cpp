#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "Random.h"
#include "RulePrinting.h"
#include "platform/SliceSampling.h"

namespace ov {

void PrintTo(const SliceSampling& sampling, std::ostream* out) {
  PrintTo(sampling.source, out);
  *out << " into ";
  PrintTo(sampling.destination, out);
  *out << (sampling.clips ? ", clipped" : "");
}

namespace {

constexpr ImageExtent kImage{{30, 30}, {30, 30}};
constexpr Rect kSlice{10, 10, 10, 10};
constexpr Scalar kInfinity = std::numeric_limits<Scalar>::infinity();

TEST(SliceSampling, PixelByPixelNothingChanges) {
  EXPECT_EQ(sampleSlice({5, 6, 10, 10}, kSlice, kImage, {}),
            (SliceSampling{{5, 6, 10, 10}, kSlice, false}));
  EXPECT_EQ(sampleSlice({5, 6, 5, 5}, kSlice, kImage, {2, 0, 0, -2, 0, 100}),
            (SliceSampling{{5, 6, 5, 5}, kSlice, false}));
}

TEST(SliceSampling, ASliceReachesToWholePixels) {
  EXPECT_EQ(sampleSlice({5.5, 6.25, 9.5, 9.75}, kSlice, kImage, {}),
            (SliceSampling{{5, 6, 10, 10}, kSlice, true}));
  EXPECT_EQ(sampleSlice({5.25, 6, 4.75, 5}, kSlice, kImage, {2, 0, 0, -2, 0, 100}),
            (SliceSampling{{5, 6, 5, 5}, kSlice, true}));
}

TEST(SliceSampling, WithoutNeighboursThereIsNothingToHide) {
  const SliceSampling sampling = sampleSlice({5.5, 6, 30, 30}, {0, 0, 30, 30}, kImage, {});
  EXPECT_EQ(sampling.destination, (Rect{5.5, 6, 30, 30}));
  EXPECT_FALSE(sampling.clips);
}

TEST(SliceSampling, OddNumbersAndTurnedPlanesChangeNothing) {
  const Rect destination{5.5, 6.5, 70, 70};
  for (const Affine& m : {Affine{0, 1, -1, 0, 0, 0}, Affine{0, 0, 0, 1, 0, 0},
                          Affine{kInfinity, 0, 0, 1, 0, 0}, Affine{1, 0, 0, 1, kInfinity, 0}}) {
    EXPECT_EQ(sampleSlice(destination, kSlice, kImage, m),
              (SliceSampling{destination, kSlice, false}));
  }
  EXPECT_EQ(sampleSlice({kInfinity, 0, 1, 1}, kSlice, kImage, {}),
            (SliceSampling{{kInfinity, 0, 1, 1}, kSlice, false}));
  EXPECT_EQ(sampleSlice(destination, kSlice, {{0, 0}, {0, 0}}, {}),
            (SliceSampling{destination, kSlice, false}));
}

// What the display server makes of a span of the image, from a place far off, in its units.
TEST(SliceSampling, StepsAreWholeUnitsWithinTheSlice) {
  // A float has digits for a unit or so.
  const double tolerance = sizeof(Scalar) < sizeof(double) ? 1 : 1e-6;
  test::Random random;
  SCOPED_TRACE(random.describe());
  for (int i = 0; i < 3000; ++i) {
    const double pixelsPerPoint = random.pick(std::vector<double>{1, 2, 0.5, 24.0 / 36, 1.5});
    const auto points = static_cast<Scalar>(random.integer(3, 60));
    const auto pixels = static_cast<Scalar>(points * pixelsPerPoint);
    const ImageExtent image{{points, points}, {pixels, pixels}};
    const auto start = static_cast<Scalar>(random.integer(0, static_cast<int>(points) - 2));
    const auto length = static_cast<Scalar>(random.integer(1, static_cast<int>(points - start)));
    const auto steps = static_cast<Scalar>(random.integer(1, 3000));
    const SliceSampling sampling =
        sampleSlice({10, 10, steps, steps}, {start, start, length, length}, image, {});
    const double step = sampling.source.width * pixelsPerPoint / steps * 65536;
    EXPECT_NEAR(step, std::round(step), tolerance);
    const double first = sampling.source.x * pixelsPerPoint * 65536;
    EXPECT_NEAR(first, std::round(first), tolerance);
    EXPECT_GE(first, std::floor(start * pixelsPerPoint * 65536) - tolerance);
    EXPECT_LE(sampling.source.maxX(), start + length + tolerance / 32768);
    EXPECT_GT(sampling.source.width, length - (steps + 1 + tolerance) / 65536 / pixelsPerPoint);
  }
}

}  // namespace
}  // namespace ov
