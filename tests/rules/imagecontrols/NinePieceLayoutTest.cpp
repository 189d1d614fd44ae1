#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include "Frames.h"
#include "Random.h"
#include "imagecontrols/NinePieceLayout.h"

namespace ov {
namespace {

using testing::ElementsAreArray;

using enum FramePart;

FramePartSizes sizesOf(const std::vector<FramePiece>& parts) {
  FramePartSizes sizes;
  for (const FramePiece& part : parts) {
    sizes[static_cast<unsigned>(part.part)] = Size{part.rect.width, part.rect.height};
  }
  return sizes;
}

FramePiece size(FramePart part, Scalar width, Scalar height) {
  return {part, {0, 0, width, height}};
}

struct Row {
  std::string name;
  std::vector<FramePiece> parts;  // the places do not count
  Rect destination;
  std::vector<FramePiece> expected;
  friend void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }
};

class NinePieces : public testing::TestWithParam<Row> {};

TEST_P(NinePieces, AreWhereTheyShouldBe) {
  const Row& row = GetParam();
  EXPECT_THAT(listOf(placeFrame(sizesOf(row.parts), row.destination)),
              ElementsAreArray(row.expected));
}

constexpr Rect kPlace{10, 20, 100, 60};

INSTANTIATE_TEST_SUITE_P(
    Rows, NinePieces,
    testing::Values(
        Row{"Nothing", {}, kPlace, {}},
        Row{"CenterAlone", {size(Center, 1, 1)}, kPlace, {{Center, kPlace}}},
        // All the others, without a center.
        Row{"NoCenter",
            {size(Left, 3, 1), size(Right, 4, 1), size(Top, 1, 5), size(Bottom, 1, 6),
             size(LeftTop, 3, 5), size(RightTop, 4, 5), size(LeftBottom, 3, 6),
             size(RightBottom, 4, 6)},
            kPlace,
            {}},
        Row{"ThreePiecesAcross",
            {size(Center, 1, 1), size(Left, 3, 60), size(Right, 4, 60)},
            kPlace,
            {{Left, {10, 20, 3, 60}}, {Right, {106, 20, 4, 60}}, {Center, {13, 20, 93, 60}}}},
        Row{"ThreePiecesDown",
            {size(Center, 1, 1), size(Top, 9, 5), size(Bottom, 9, 6)},
            kPlace,
            {{Top, {10, 20, 100, 5}}, {Bottom, {10, 74, 100, 6}}, {Center, {10, 25, 100, 49}}}},
        Row{"WholeSet",
            {size(Center, 1, 1), size(Left, 3, 1), size(Right, 4, 1), size(Top, 1, 5),
             size(Bottom, 1, 6), size(LeftTop, 3, 5), size(RightTop, 4, 5), size(LeftBottom, 3, 6),
             size(RightBottom, 4, 6)},
            kPlace,
            {{Left, {10, 25, 3, 49}},
             {Right, {106, 25, 4, 49}},
             {Top, {13, 20, 93, 5}},
             {Bottom, {13, 74, 93, 6}},
             {LeftTop, {10, 20, 3, 5}},
             {RightTop, {106, 20, 4, 5}},
             {LeftBottom, {10, 74, 3, 6}},
             // At its own place, in the size of the left bottom corner.
             {RightBottom, {106, 74, 3, 6}},
             {Center, {13, 25, 93, 49}}}},
        // The center gives way to edges only.
        Row{"CornersWithoutEdges",
            {size(Center, 1, 1), size(LeftTop, 3, 5), size(RightTop, 4, 5)},
            kPlace,
            {{LeftTop, {10, 20, 3, 5}}, {RightTop, {106, 20, 4, 5}}, {Center, kPlace}}},
        // Nothing was drawn before it.
        Row{"RightBottomAlone",
            {size(Center, 1, 1), size(RightBottom, 4, 6)},
            kPlace,
            {{RightBottom, {106, 74, 0, 0}}, {Center, kPlace}}},
        // The piece before it is the right top corner.
        Row{"RightBottomAfterRightTop",
            {size(Center, 1, 1), size(RightTop, 7, 8), size(RightBottom, 4, 6)},
            kPlace,
            {{RightTop, {103, 20, 7, 8}}, {RightBottom, {106, 74, 7, 8}}, {Center, kPlace}}},
        // … an edge, as it is stretched: its corner leaves it 54 of 60.
        Row{"RightBottomAfterAnEdge",
            {size(Center, 1, 1), size(Right, 4, 1), size(RightBottom, 4, 6)},
            kPlace,
            {{Right, {106, 20, 4, 54}},
             {RightBottom, {106, 74, 4, 54}},
             {Center, {10, 20, 96, 60}}}},
        Row{"CornersMayBeWiderThanTheEdge",
            {size(Center, 1, 1), size(Left, 3, 1), size(LeftTop, 9, 9)},
            kPlace,
            {{Left, {10, 29, 3, 51}}, {LeftTop, {10, 20, 9, 9}}, {Center, {13, 20, 97, 60}}}},
        // What is too small for its edges turns inside out, and such pieces draw nothing.
        Row{"TooNarrow",
            {size(Center, 1, 1), size(Left, 30, 1), size(Right, 30, 1)},
            {0, 0, 40, 10},
            {{Left, {0, 0, 30, 10}}, {Right, {10, 0, 30, 10}}, {Center, {30, 0, -20, 10}}}},
        Row{"NoPlace", {size(Center, 1, 1)}, {5, 6, 0, 0}, {{Center, {5, 6, 0, 0}}}},
        Row{"EmptyPieces",
            {size(Center, 0, 0), size(Left, 0, 0)},
            kPlace,
            {{Left, {10, 20, 0, 60}}, {Center, kPlace}}}),
    [](const auto& info) { return info.param.name; });

// The layout once more: each step by itself, with its variables, in drawing order.
std::vector<FramePiece> stepByStep(const FramePartSizes& sizes, const Rect& d) {
  std::vector<FramePiece> drawn;
  const auto has = [&](FramePart part) { return sizes[static_cast<unsigned>(part)].has_value(); };
  const auto widthOf = [&](FramePart part) { return sizes[static_cast<unsigned>(part)]->width; };
  const auto heightOf = [&](FramePart part) { return sizes[static_cast<unsigned>(part)]->height; };
  if (!has(Center)) return drawn;
  Rect c = d;
  Scalar lastWidth = 0, lastHeight = 0;

  if (has(Left)) {
    Scalar width = widthOf(Left), top = d.y, height = d.height;
    if (has(LeftTop)) {
      top += heightOf(LeftTop);
      height -= heightOf(LeftTop);
    }
    if (has(LeftBottom)) height -= heightOf(LeftBottom);
    drawn.push_back({Left, {d.x, top, width, height}});
    c.x = d.x + width;
    c.width = d.width - width;
    lastWidth = width;
    lastHeight = height;
  }
  if (has(Right)) {
    Scalar width = widthOf(Right), top = d.y, height = d.height;
    if (has(RightTop)) {
      top += heightOf(RightTop);
      height -= heightOf(RightTop);
    }
    if (has(RightBottom)) height -= heightOf(RightBottom);
    drawn.push_back({Right, {d.x + d.width - width, top, width, height}});
    c.width -= width;
    lastWidth = width;
    lastHeight = height;
  }
  if (has(Top)) {
    Scalar height = heightOf(Top), left = d.x, width = d.width;
    if (has(LeftTop)) {
      left += widthOf(LeftTop);
      width -= widthOf(LeftTop);
    }
    if (has(RightTop)) width -= widthOf(RightTop);
    drawn.push_back({Top, {left, d.y, width, height}});
    c.y = d.y + height;
    c.height = d.height - height;
    lastWidth = width;
    lastHeight = height;
  }
  if (has(Bottom)) {
    Scalar height = heightOf(Bottom), left = d.x, width = d.width;
    if (has(LeftBottom)) {
      left += widthOf(LeftBottom);
      width -= widthOf(LeftBottom);
    }
    if (has(RightBottom)) width -= widthOf(RightBottom);
    drawn.push_back({Bottom, {left, d.y + d.height - height, width, height}});
    c.height -= height;
    lastWidth = width;
    lastHeight = height;
  }
  if (has(LeftTop)) {
    drawn.push_back({LeftTop, {d.x, d.y, widthOf(LeftTop), heightOf(LeftTop)}});
    lastWidth = widthOf(LeftTop);
    lastHeight = heightOf(LeftTop);
  }
  if (has(RightTop)) {
    drawn.push_back(
        {RightTop,
         {d.x + d.width - widthOf(RightTop), d.y, widthOf(RightTop), heightOf(RightTop)}});
    lastWidth = widthOf(RightTop);
    lastHeight = heightOf(RightTop);
  }
  if (has(LeftBottom)) {
    drawn.push_back(
        {LeftBottom,
         {d.x, d.y + d.height - heightOf(LeftBottom), widthOf(LeftBottom), heightOf(LeftBottom)}});
    lastWidth = widthOf(LeftBottom);
    lastHeight = heightOf(LeftBottom);
  }
  if (has(RightBottom)) {
    drawn.push_back({RightBottom,
                     {d.x + d.width - widthOf(RightBottom), d.y + d.height - heightOf(RightBottom),
                      lastWidth, lastHeight}});
  }
  drawn.push_back({Center, c});
  return drawn;
}

TEST(NinePiecesInEveryCombination, AreAsStepByStep) {
  test::Random random;
  SCOPED_TRACE(random.describe());
  // Quarters, whose sums are exact in any precision.
  const auto any = [&random](int low, int high) {
    return Scalar(random.integer(4 * low, 4 * high)) / 4;
  };
  for (unsigned present = 0; present < 1U << kFramePartCount; present++) {
    for (int round = 0; round < 20; round++) {
      FramePartSizes sizes;
      for (std::size_t part = 0; part < kFramePartCount; part++) {
        if (present >> part & 1) sizes[part] = Size{any(0, 20), any(0, 20)};
      }
      // Often too small for the edges, now and then negative.
      const Rect place{any(-50, 50), any(-50, 50), any(-5, 100), any(-5, 100)};
      ASSERT_THAT(listOf(placeFrame(sizes, place)), ElementsAreArray(stepByStep(sizes, place)))
          << "parts " << present;
    }
  }
}

TEST(NinePiecesInEveryCombination, AreDrawnOnceEach) {
  for (unsigned present = 1; present < 1U << kFramePartCount; present += 2) {
    FramePartSizes sizes;
    for (std::size_t part = 0; part < kFramePartCount; part++) {
      if (present >> part & 1) sizes[part] = Size{2, 2};
    }
    unsigned drawn = 0;
    for (const FramePiece& piece : placeFrame(sizes, kPlace)) {
      const unsigned bit = 1U << static_cast<unsigned>(piece.part);
      EXPECT_EQ(drawn & bit, 0U);
      drawn |= bit;
    }
    EXPECT_EQ(drawn, present);
  }
}

// With equal corners as thick as the edges.
TEST(NinePieces, OfASymmetricSetCoverTheDestinationOnce) {
  test::Random random;
  SCOPED_TRACE(random.describe());
  for (int i = 0; i < 1000; i++) {
    const auto across = Scalar(random.integer(0, 20)), down = Scalar(random.integer(0, 20));
    FramePartSizes sizes;
    sizes.fill(Size{across, down});
    const Rect place{Scalar(random.integer(-50, 50)), Scalar(random.integer(-50, 50)),
                     Scalar(random.integer(40, 90)), Scalar(random.integer(40, 90))};
    Scalar area = 0;
    std::vector<Rect> rects;
    for (const FramePiece& piece : placeFrame(sizes, place)) {
      for (const Rect& other : rects) ASSERT_FALSE(overlap(other, piece.rect));
      rects.push_back(piece.rect);
      area += piece.rect.width * piece.rect.height;
      ASSERT_EQ(unite(place, piece.rect), place);
    }
    ASSERT_EQ(area, place.width * place.height);
  }
}

TEST(NinePieces, NumbersThatAreNoneStayAmongTheNumbers) {
  constexpr Scalar bad[] = {
      std::numeric_limits<Scalar>::quiet_NaN(), std::numeric_limits<Scalar>::infinity(),
      -std::numeric_limits<Scalar>::infinity(), std::numeric_limits<Scalar>::max()};
  for (const Scalar value : bad) {
    FramePartSizes sizes;
    sizes.fill(Size{value, value});
    EXPECT_EQ(placeFrame(sizes, {value, value, value, value}).size(), kFramePartCount);
  }
}

}  // namespace
}  // namespace ov
