// Where menus lie. y grows upward; the screen of the tables is 800 wide and 600 high.

#include <gtest/gtest.h>

#include "Random.h"
#include "RulePrinting.h"
#include "platform/MenuPlacement.h"

namespace ov {
namespace {

constexpr Rect kScreen{0, 0, 800, 600};

struct MenuCase {
  const char* name;
  Point topLeft;
  Size size;
  Rect screen;
  Rect expected;
};

std::ostream& operator<<(std::ostream& out, const MenuCase& c) { return out << c.name; }

class MenuPlacement : public ::testing::TestWithParam<MenuCase> {};

TEST_P(MenuPlacement, StaysOnTheScreen) {
  const MenuCase& c = GetParam();
  EXPECT_EQ(menuFrame(c.topLeft, c.size, c.screen), c.expected);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, MenuPlacement,
    ::testing::Values(
        MenuCase{"opens below and to the right of its corner",
                 {100, 300},
                 {80, 120},
                 kScreen,
                 {100, 180, 80, 120}},
        MenuCase{"just fits at the right and the bottom",
                 {720, 120},
                 {80, 120},
                 kScreen,
                 {720, 0, 80, 120}},
        MenuCase{"moves left", {721, 300}, {80, 120}, kScreen, {720, 180, 80, 120}},
        MenuCase{"moves up", {100, 119}, {80, 120}, kScreen, {100, 0, 80, 120}},
        MenuCase{"moves down from above the screen",
                 {100, 650},
                 {80, 120},
                 kScreen,
                 {100, 480, 80, 120}},
        MenuCase{"moves right from beside it", {-30, 300}, {80, 120}, kScreen, {0, 180, 80, 120}},
        // What does not fit is cut at the bottom and at the right.
        MenuCase{"too tall", {100, 300}, {80, 700}, kScreen, {100, -100, 80, 700}},
        MenuCase{"too wide", {100, 300}, {900, 120}, kScreen, {0, 180, 900, 120}},
        MenuCase{"a second screen at the left",
                 {-10, 40},
                 {80, 60},
                 {-400, 20, 400, 300},
                 {-80, 20, 80, 60}},
        MenuCase{"nothing", {5, 5}, {0, 0}, kScreen, {5, 5, 0, 0}}));

TEST(MenuPlacementRandom, WhatFitsIsNeverCut) {
  test::Random random;
  SCOPED_TRACE(random.describe());
  auto number = [&](int64_t low, int64_t high) {
    return static_cast<Scalar>(random.integer(low, high));
  };
  for (int i = 0; i < 2000; i++) {
    const Size size{number(0, 800), number(0, 600)};
    const Rect frame = menuFrame({number(-400, 1200), number(-400, 1000)}, size, kScreen);
    EXPECT_GE(frame.x, 0);
    EXPECT_GE(frame.y, 0);
    EXPECT_LE(frame.maxX(), 800);
    EXPECT_LE(frame.maxY(), 600);
    EXPECT_EQ((Size{frame.width, frame.height}), size);
  }
}

TEST(SubmenuPlacement, LiesWhereThePlatformPutsItWhileThereIsRoom) {
  EXPECT_EQ(submenuFrame({198, 180, 80, 120}, {100, 180, 100, 120}, kScreen),
            (Rect{198, 180, 80, 120}));
}

TEST(SubmenuPlacement, OpensToTheLeftAtTheRightEdge) {
  // It lies over its parent's side by 2, as it would have at the right.
  EXPECT_EQ(submenuFrame({738, 180, 80, 120}, {640, 180, 100, 120}, kScreen),
            (Rect{562, 180, 80, 120}));
}

TEST(SubmenuPlacement, StaysAtTheRightWhereTheLeftHasNoRoomEither) {
  EXPECT_EQ(submenuFrame({148, 100, 120, 50}, {50, 100, 100, 50}, {0, 0, 200, 600}),
            (Rect{80, 100, 120, 50}));
}

TEST(SubmenuPlacement, MovesUpAtTheBottom) {
  EXPECT_EQ(submenuFrame({198, -60, 80, 120}, {100, 0, 100, 60}, kScreen), (Rect{198, 0, 80, 120}));
}

}  // namespace
}  // namespace ov
