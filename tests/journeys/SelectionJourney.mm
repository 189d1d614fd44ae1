// Selecting with the pointer.

#import "GalleryProcess.h"
#include "XTest.h"

namespace ov::test {

class SelectionJourney : public GalleryJourney {};

TEST_F(SelectionJourney, ClicksSelectAddAndToggle) {
  makePictures(20);
  start();
  ASSERT_EQ(state().number("columns"), 5);
  clickItem("p06.png");
  ASSERT_TRUE(waitForSelection({"p06.png"}));
  // A block from the anchor in column 1, row 1 to column 2, row 2.
  clickItem("p12.png", {"Shift_L"});
  ASSERT_TRUE(waitForSelection({"p06.png", "p07.png", "p11.png", "p12.png"}));
  clickItem("p07.png", {"Super_L"});
  ASSERT_TRUE(waitForSelection({"p06.png", "p11.png", "p12.png"}));
  clickItem("p00.png", {"Super_L"});
  ASSERT_TRUE(waitForSelection({"p00.png", "p06.png", "p11.png", "p12.png"}));
  clickItem("p11.png");
  ASSERT_TRUE(waitForSelection({"p11.png"}));
  // The gap between the first two columns.
  const ScreenRect first = state().items.at("p00.png");
  clickAt(first.x + first.width + 4, first.midY());
  ASSERT_TRUE(waitForSelection({}));
}

TEST_F(SelectionJourney, SelectAllComesFromTheMenuKey) {
  makePictures(7);
  start();
  typeKeys({"a"}, {"Super_L"});
  waitFor("all are selected", [](const GalleryState &s) { return s.selected.size() == 7; });
}

TEST_F(SelectionJourney, ARubberBandScrollsOnAndSelectsWhatItCovers) {
  makePictures(80);
  start();
  const GalleryState before = state();
  const ScreenRect first = before.items.at("p00.png");
  const int x = first.x + first.width + 4, y = first.midY();  // a gap
  const int endX = before.items.at("p02.png").midX();
  const int below = before.grid.y + before.grid.height + 30;
  xtest::movePointer(x, y);
  xtest::pressButton();
  glide(x, y, endX, below);
  // The pointer rests; the view goes on scrolling, to its end.
  const bool scrolled = waitFor("the band has reached the last row", [](const GalleryState &s) {
    return !s.selected.empty() && s.selected.back() == "p77.png";
  });
  xtest::releaseButton();
  ASSERT_TRUE(scrolled);
  EXPECT_GT(state().number("scrolled"), 0);
  // Columns 1 and 2 of all 16 rows.
  EXPECT_EQ(state().selected.size(), 32u);
}

TEST_F(SelectionJourney, AMillionItemsAreSelectedLikeTen) {
  makePictures(1);
  start({"-page", "million"});
  waitFor("the page", [](const GalleryState &s) { return s.number("items") == 1000000; });
  const ScreenRect grid = state().grid;
  // The first click in a new window may only bring it to the front.
  bool selected = false;
  for (int i = 0; i < 20 && !selected; ++i) {
    clickAt(grid.x + 30, grid.y + 20);
    selected = pumpUntil([&] { return state().number("selectedcount") == 1; }, 0.5);
    nudgePointer();
  }
  ASSERT_TRUE(selected);
  typeKeys({"a"}, {"Super_L"});
  waitFor("all are selected",
          [](const GalleryState &s) { return s.number("selectedcount") == 1000000; });
}

}  // namespace ov::test
