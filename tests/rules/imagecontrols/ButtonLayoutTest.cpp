#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

#include "RulePrinting.h"
#include "imagecontrols/ButtonLayout.h"

namespace ov {
namespace {

constexpr Rect kNothing{};
constexpr Scalar kNaN = std::numeric_limits<Scalar>::quiet_NaN();

// Odd on purpose, so that halves are rounded down: 100 - 21 = 79, 45 - 10 = 35.
constexpr Rect kBounds{10, 20, 100, 45};
constexpr Rect kTitle{15, 23, 89, 38};
constexpr Size kIcon{21, 10};

struct IconRow {
  const char* name;
  IconPosition position;
  Rect title;
  Size icon;
  Rect released;
  Rect pressed;
};

class IconRect : public testing::TestWithParam<IconRow> {};

TEST_P(IconRect, IsAsTheTableSays) {
  const IconRow& row = GetParam();
  EXPECT_EQ(iconRect(row.position, kBounds, row.title, row.icon, false), row.released);
  EXPECT_EQ(iconRect(row.position, kBounds, row.title, row.icon, true), row.pressed);
}

// 10 + floor(39.5) = 49, 20 + floor(17.5) = 37.
constexpr Rect kCentred{49, 37, 21, 10};
constexpr Rect kCentredPressed{50, 38, 21, 10};
constexpr Rect kNoWidth{15, 23, 0, 38};
constexpr Rect kNoHeight{15, 23, 89, 0};

INSTANTIATE_TEST_SUITE_P(
    Positions, IconRect,
    testing::ValuesIn(std::vector<IconRow>{
        {"None", IconPosition::kNone, kTitle, kIcon, kNothing, kNothing},
        {"NoneWithoutTitle", IconPosition::kNone, kNothing, kIcon, kNothing, kNothing},
        {"Only", IconPosition::kOnly, kTitle, kIcon, kCentred, kCentredPressed},
        {"Overlaps", IconPosition::kOverlaps, kTitle, kIcon, kCentred, kCentredPressed},
        {"Left", IconPosition::kLeft, kTitle, kIcon, {15, 37, 21, 10}, {15, 38, 21, 10}},
        {"Right", IconPosition::kRight, kTitle, kIcon, {83, 37, 21, 10}, {83, 38, 21, 10}},
        {"Below", IconPosition::kBelow, kTitle, kIcon, {49, 23, 21, 10}, {50, 23, 21, 10}},
        {"Above", IconPosition::kAbove, kTitle, kIcon, {49, 51, 21, 10}, {50, 51, 21, 10}},
        // Without room for a title the icon is alone.
        {"OnlyWithoutTitle", IconPosition::kOnly, kNothing, kIcon, kCentred, kCentredPressed},
        {"OverlapsWithoutTitle", IconPosition::kOverlaps, kNothing, kIcon, kCentred,
         kCentredPressed},
        {"LeftWithoutTitle", IconPosition::kLeft, kNoWidth, kIcon, kCentred, kCentredPressed},
        {"RightWithoutTitle", IconPosition::kRight, kNoHeight, kIcon, kCentred, kCentredPressed},
        {"BelowWithoutTitle", IconPosition::kBelow, kNoWidth, kIcon, kCentred, kCentredPressed},
        {"AboveWithoutTitle", IconPosition::kAbove, kNoHeight, kIcon, kCentred, kCentredPressed},
        {"NoSuchPosition", static_cast<IconPosition>(7), kTitle, kIcon, kNothing, kNothing},
        {"NegativePosition", static_cast<IconPosition>(-1), kTitle, kIcon, kNothing, kNothing},
        // Larger than the button: still centred, rounded down.
        {"LargerThanTheBounds",
         IconPosition::kOnly,
         kTitle,
         {121, 60},
         {-1, 12, 121, 60},
         {0, 13, 121, 60}}}),
    [](const auto& info) { return std::string(info.param.name); });

constexpr IconPosition kPositions[] = {IconPosition::kNone,     IconPosition::kOnly,
                                       IconPosition::kLeft,     IconPosition::kRight,
                                       IconPosition::kBelow,    IconPosition::kAbove,
                                       IconPosition::kOverlaps, static_cast<IconPosition>(7)};
constexpr Size kNoSizes[] = {{0, 10}, {21, 0}, {-1, 10}, {21, -1}, {0, 0}, {kNaN, 10}, {21, kNaN}};

TEST(IconRectWithoutArea, IsEmptyWhateverThePosition) {
  for (IconPosition position : kPositions)
    for (Size icon : kNoSizes)
      for (bool pressed : {false, true})
        EXPECT_EQ(iconRect(position, kBounds, kTitle, icon, pressed), kNothing);
}

TEST(TitleRectBesideIcon, MakesRoomOnTheIconsSide) {
  EXPECT_EQ(titleRectBesideIcon(IconPosition::kLeft, kTitle, kIcon), (Rect{36, 23, 68, 38}));
  EXPECT_EQ(titleRectBesideIcon(IconPosition::kRight, kTitle, kIcon), (Rect{15, 23, 68, 38}));
  EXPECT_EQ(titleRectBesideIcon(IconPosition::kBelow, kTitle, kIcon), (Rect{15, 33, 89, 28}));
  EXPECT_EQ(titleRectBesideIcon(IconPosition::kAbove, kTitle, kIcon), (Rect{15, 23, 89, 28}));
}

TEST(TitleRectBesideIcon, IsWholeWhereTheIconIsNotBeside) {
  for (IconPosition position : {IconPosition::kNone, IconPosition::kOnly, IconPosition::kOverlaps,
                                static_cast<IconPosition>(7), static_cast<IconPosition>(-1)})
    EXPECT_EQ(titleRectBesideIcon(position, kTitle, kIcon), kTitle);
}

TEST(TitleRectBesideIcon, IsWholeBesideAnIconWithoutArea) {
  for (IconPosition position : kPositions)
    for (Size icon : kNoSizes) EXPECT_EQ(titleRectBesideIcon(position, kTitle, icon), kTitle);
}

TEST(TitleRectBesideIcon, IsEmptyBesideAnIconThatIsWider) {
  EXPECT_TRUE(titleRectBesideIcon(IconPosition::kLeft, kTitle, {90, 10}).isEmpty());
  EXPECT_TRUE(titleRectBesideIcon(IconPosition::kAbove, kTitle, {21, 39}).isEmpty());
}

TEST(AccessoryRect, IsAsFarFromTheRightAsFromTheTop) {
  // floor((45 - 10) / 2) = 17
  EXPECT_EQ(accessoryRect(kBounds, {8, 10}), (Rect{85, 37, 8, 10}));
  EXPECT_EQ(accessoryRect({0, 0, 100, 20}, {8, 8}), (Rect{86, 6, 8, 8}));
  EXPECT_EQ(accessoryRect({0, 0, 100, 20}, {8, 20}), (Rect{92, 0, 8, 20}));
  // Taller than the button, it reaches beyond it on all three sides: floor(-1.5) = -2.
  EXPECT_EQ(accessoryRect({0, 0, 100, 20}, {8, 23}), (Rect{94, -2, 8, 23}));
}

struct ArrowRow {
  const char* name;
  ArrowPosition position;
  Rect bounds;
  Size accessory;
  Rect expected;
};

class ArrowRect : public testing::TestWithParam<ArrowRow> {};

TEST_P(ArrowRect, IsAsTheTableSays) {
  const ArrowRow& row = GetParam();
  EXPECT_EQ(arrowRect(row.position, row.bounds, row.accessory), row.expected);
}

INSTANTIATE_TEST_SUITE_P(
    Positions, ArrowRect,
    testing::ValuesIn(std::vector<ArrowRow>{
        {"None", ArrowPosition::kNone, kBounds, {8, 10}, kNothing},
        {"AtCenter", ArrowPosition::kAtCenter, kBounds, {8, 10}, {85, 37, 8, 10}},
        // The right side 12 inside the right edge, the far side on the maximum y.
        {"AtBottom", ArrowPosition::kAtBottom, {0, 0, 100, 20}, {8, 8}, {80, 12, 8, 8}},
        {"AtBottomOfBounds", ArrowPosition::kAtBottom, kBounds, {8, 10}, {67, 55, 8, 10}},
        {"AtBottomIsNotRounded",
         ArrowPosition::kAtBottom,
         {0, 0, 100, 20.5},
         {8, 8},
         {79.5, 12.5, 8, 8}},
        {"AtBottomAsTall", ArrowPosition::kAtBottom, {0, 0, 100, 20}, {8, 20}, {92, 0, 8, 20}},
        {"AtBottomTaller", ArrowPosition::kAtBottom, {0, 0, 100, 20}, {8, 23}, {95, -3, 8, 23}},
        {"NoSuchPosition", static_cast<ArrowPosition>(3), kBounds, {8, 10}, kNothing},
        {"NegativePosition", static_cast<ArrowPosition>(-1), kBounds, {8, 10}, kNothing}}),
    [](const auto& info) { return std::string(info.param.name); });

}  // namespace
}  // namespace ov
