#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

#include "Frames.h"
#include "Random.h"
#include "imagecontrols/FrameAlignment.h"

namespace ov {
namespace {

constexpr Scalar kNaN = std::numeric_limits<Scalar>::quiet_NaN();

FramePartSizes wholeSet(Size corner) {
  FramePartSizes sizes;
  sizes.fill(corner);
  return sizes;
}

FramePieces placed(const Rect& destination, Size corner = {8, 8}) {
  return placeFrame(wholeSet(corner), destination);
}

FramePiece pieceOf(const FramePieces& pieces, FramePart part) {
  for (const FramePiece& piece : pieces) {
    if (piece.part == part) return piece;
  }
  return {};
}

TEST(FrameAlignment, WholePixelsStayExactlyAsTheyAre) {
  const Rect destination{10, 20, 100, 50};
  for (const Affine& m : {Affine{}, Affine{2, 0, 0, -2, 7, 900}}) {
    const FramePieces pieces = placed(destination);
    EXPECT_EQ(listOf(alignFrame(pieces, destination, m)), listOf(pieces));
  }
}

TEST(FrameAlignment, InnerEdgesMoveToTheNearestPixel) {
  const Rect destination{10.25, 20.75, 100, 50};
  const FramePieces aligned = alignFrame(placed(destination), destination, {});
  EXPECT_EQ(pieceOf(aligned, FramePart::LeftTop).rect, (Rect{10.25, 20.75, 7.75, 8.25}));
  EXPECT_EQ(pieceOf(aligned, FramePart::Left).rect, (Rect{10.25, 29, 7.75, 34}));
  EXPECT_EQ(pieceOf(aligned, FramePart::Center).rect, (Rect{18, 29, 84, 34}));
  EXPECT_EQ(pieceOf(aligned, FramePart::Right).rect, (Rect{102, 29, 8.25, 34}));
  EXPECT_EQ(pieceOf(aligned, FramePart::RightBottom).rect, (Rect{102, 63, 8.25, 7.75}));
}

TEST(FrameAlignment, APixelIsTheDevices) {
  const Rect destination{0, 0, 99, 50};
  const FramePieces aligned =
      alignFrame(placed(destination, {9, 9}), destination, {1.5, 0, 0, -1.5, 0, 75});
  // 13.5 and 135 in the device.
  const Rect center = pieceOf(aligned, FramePart::Center).rect;
  EXPECT_NEAR(center.x, 14 / 1.5, 1e-5);
  EXPECT_NEAR(center.maxX(), 90, 1e-5);
}

TEST(FrameAlignment, ATurnedPlaneAndOddNumbersMoveNothing) {
  const Rect destination{10.25, 20.75, 100, 50};
  const FramePieces pieces = placed(destination);
  for (const Affine& m : {Affine{0, 1, -1, 0, 0, 0}, Affine{1, 0.1, 0, 1, 0, 0},
                          Affine{0, 0, 0, 1, 0, 0}, Affine{kNaN, 0, 0, 1, 0, 0}}) {
    EXPECT_FALSE(isUpright(m));
    EXPECT_EQ(listOf(alignFrame(pieces, destination, m)), listOf(pieces));
  }
}

TEST(FrameAlignment, EmptyPiecesStayEmpty) {
  const Rect destination{0.5, 0.5, 12, 12};
  const FramePieces pieces = placed(destination);
  const FramePieces aligned = alignFrame(pieces, destination, {});
  const Rect center = pieceOf(aligned, FramePart::Center).rect;
  EXPECT_EQ(center, pieceOf(pieces, FramePart::Center).rect);
  EXPECT_TRUE(center.isEmpty());
}

// What met before meets after, on a pixel, and nothing goes farther than one.
TEST(FrameAlignment, WhatMetMeets) {
  // A float has digits for about that at these places.
  constexpr double kTolerance = sizeof(Scalar) < sizeof(double) ? 1e-2 : 1e-3;
  test::Random random;
  SCOPED_TRACE(random.describe());
  for (int i = 0; i < 5000; ++i) {
    const auto number = [&](double low, double high) {
      return static_cast<Scalar>(random.real(low, high));
    };
    const Affine m{
        number(0.9, 3),  0, 0, random.oneIn(2) ? number(0.9, 3) : -number(0.9, 3), number(-50, 50),
        number(-50, 900)};
    const Rect destination{number(-20, 200), number(-20, 200), number(40, 300), number(40, 300)};
    const FramePieces pieces = placed(destination, {number(4, 18), number(4, 18)});
    const FramePieces aligned = alignFrame(pieces, destination, m);
    const auto at = [&](FramePart part) { return pieceOf(aligned, part).rect; };
    const Rect center = at(FramePart::Center);
    EXPECT_NEAR(at(FramePart::Left).maxX(), center.x, kTolerance);
    EXPECT_NEAR(at(FramePart::Right).x, center.maxX(), kTolerance);
    EXPECT_NEAR(at(FramePart::Top).maxY(), center.y, kTolerance);
    EXPECT_NEAR(at(FramePart::Bottom).y, center.maxY(), kTolerance);
    EXPECT_NEAR(at(FramePart::LeftTop).maxY(), at(FramePart::Left).y, kTolerance);
    EXPECT_NEAR(at(FramePart::LeftTop).maxX(), at(FramePart::Top).x, kTolerance);
    EXPECT_EQ(at(FramePart::Left).x, destination.x);
    for (const Scalar edge : {m.a * center.x + m.tx, m.a * center.maxX() + m.tx,
                              m.d * center.y + m.ty, m.d * center.maxY() + m.ty}) {
      EXPECT_NEAR(edge, std::round(edge), kTolerance);
    }
    const auto* before = pieces.begin();
    for (const FramePiece& piece : aligned) {
      EXPECT_LT(std::abs(piece.rect.x - before->rect.x) * m.a, 0.51);
      EXPECT_LT(std::abs(piece.rect.maxY() - before->rect.maxY()) * std::abs(m.d), 0.51);
      ++before;
    }
  }
}

TEST(FrameAlignment, PixelsThatAreTouched) {
  EXPECT_EQ(pixelsOf(placed({10, 20, 100, 50}), {}), (Rect{10, 20, 100, 50}));
  EXPECT_EQ(pixelsOf(placed({10.5, 20.5, 100, 50}), {}), (Rect{10, 20, 101, 51}));
  EXPECT_EQ(pixelsOf(placed({10, 20, 100, 50}), {2, 0, 0, -2, 5, 200}), (Rect{25, 60, 200, 100}));
  EXPECT_EQ(pixelsOf(placed({10, 20, 4, 50}), {}), (Rect{6, 20, 12, 50})) << "corners stand out";
  EXPECT_EQ(pixelsOf(FramePieces(), {}), Rect{});
  EXPECT_TRUE(pixelsOf(placed({kNaN, 0, 100, 50}), {}).isEmpty());
}

}  // namespace
}  // namespace ov
