// The window itself: pages, size, leaving.

#import "GalleryProcess.h"

#include <signal.h>

#include <fstream>

#include "XTest.h"

namespace ov::test {

class WindowJourney : public GalleryJourney {};

TEST_F(WindowJourney, ThePageListSwitchesPages) {
  makePictures(3);
  start();
  EXPECT_EQ(state().value("page"), "pictures");
  const ScreenRect million = state().rows.at("million");
  clickAt(million.midX(), million.midY());
  waitFor("the second page", [](const GalleryState &s) { return s.value("page") == "million"; });
  typeKeys({"1"}, {"Super_L"});
  waitFor("the first page again",
          [](const GalleryState &s) { return s.value("page") == "pictures"; });
}

TEST_F(WindowJourney, DraggingTheCornerResizesTheGrid) {
  makePictures(60);
  start();
  const GalleryState before = state();
  // A press that comes too soon after the window may be lost; then the corner is still there.
  for (int i = 0; i < 3 && state().window.height == before.window.height; ++i) {
    const int x = before.window.x + before.window.width - 4;
    const int y = before.window.y + before.window.height + 4;  // the bar below the content
    xtest::movePointer(x, y);
    nudgePointer();
    xtest::pressButton();
    glide(x, y, x + 80, y - 150);
    nudgePointer();
    xtest::releaseButton();
    nudgePointer();
    pumpUntil([&] { return state().window.height != before.window.height; }, 3);
  }
  waitFor("the window and the grid are wider and lower", [&](const GalleryState &s) {
    return s.window.width > before.window.width + 60 &&
           s.window.height < before.window.height - 130 && s.grid.width > before.grid.width + 60 &&
           s.grid.height < before.grid.height - 130;
  });
  // The first row stays in its place on the window.
  const GalleryState after = state();
  EXPECT_EQ(after.items.at("p00.png").y - after.grid.y, 0);
  EXPECT_LT(after.items.size(), before.items.size());
}

TEST_F(WindowJourney, TheMenuKeyQuits) {
  makePictures(2);
  start();
  typeKeys({"q"}, {"Super_L"});
  EXPECT_EQ(waitForExit(), 0);
}

TEST_F(WindowJourney, ASignalEndsItEvenWhileTheButtonIsDown) {
  makePictures(40);
  start();
  const ScreenRect first = state().items.at("p00.png");
  const int x = first.x + first.width + 4;
  xtest::movePointer(x, first.midY());
  xtest::pressButton();
  glide(x, first.midY(), x + 60, first.midY() + 60);
  waitFor("the band", [](const GalleryState &s) { return !s.selected.empty(); });
  sendSignal(SIGINT);
  const int status = waitForExit();
  xtest::releaseButton();
  EXPECT_EQ(status, 0);
}

TEST_F(WindowJourney, SnapshotsOfEveryPageAreWritten) {
  makePictures(9);
  std::ofstream(folder() / "broken.png") << "This is not a picture.";
  const std::filesystem::path pictures = root() / "snapshots";
  ASSERT_EQ(run({"-snapshot", pictures.string(), folder().string()}), 0);
  for (const char *page : {"pictures.png", "million.png", "form.png", "lines.png", "windows.png",
                           "panes.png", "inspector.png", "simple.png", "imagebuttons.png",
                           "multibuttons.png", "popups.png", "slicing.png", "scrollers.png"}) {
    NSString *path = [NSString stringWithUTF8String:(pictures / page).c_str()];
    NSBitmapImageRep *rep = [NSBitmapImageRep imageRepWithContentsOfFile:path];
    ASSERT_NE(rep, nil) << page;
    Picture picture(rep);
    EXPECT_EQ(picture.width(), 1180) << page;
    EXPECT_GT(picture.count(NSMakeRect(0, 0, 1180, 780), kWhite), 1000) << page;
  }
}

}  // namespace ov::test
