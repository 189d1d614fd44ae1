// Placing, resizing and measuring a window, and the colour under the pointer.

#import "GalleryProcess.h"
#include "XTest.h"

namespace ov::test {

static int screenWidth() { return static_cast<int>(NSWidth([[NSScreen mainScreen] frame])); }

class WindowsPageJourney : public GalleryJourney {
 protected:
  void open() {
    start({"-page", "windows"});
    waitFor("the demonstration window with its toolbar, at the bottom right",
            [](const GalleryState &s) {
              const ScreenRect now = s.rect("demonstration");
              return s.number("toolbarheight") > 20 && now.x + now.width == screenWidth();
            });
  }

  ScreenRect demonstration() const { return state().rect("demonstration"); }
};

TEST_F(WindowsPageJourney, TheButtonsPlaceTheWindow) {
  open();
  const int width = screenWidth(), height = xtest::screenHeight();
  const int menuBar = [NSMenu menuBarVisible] ? 22 : 0;
  const ScreenRect size = demonstration();
  struct Place {
    const char *button;
    int x, y;
  };
  const int right = width - size.width, bottom = height - size.height;
  for (const Place &place : {
           Place{"topleft", 0, menuBar},
           Place{"topright", right, menuBar},
           Place{"bottomleft", 0, bottom},
           Place{"bottomright", right, bottom},
           Place{"centre", right / 2, (bottom + menuBar) / 2},
       }) {
    EXPECT_TRUE(clickUntil(place.button, place.button, [&](const GalleryState &s) {
      const ScreenRect now = s.rect("demonstration");
      return std::abs(now.x - place.x) <= 1 && std::abs(now.y - place.y) <= 1 &&
             now.width == size.width && now.height == size.height;
    })) << place.button;
  }
}

TEST_F(WindowsPageJourney, SizesKeepTheTopRightCorner) {
  open();
  ASSERT_TRUE(clickUntil("topright", "at the top right", [](const GalleryState &s) {
    const ScreenRect now = s.rect("demonstration");
    return now.x + now.width == screenWidth() && now.y < 100;
  }));
  const ScreenRect before = demonstration();
  // With and without an animation.
  for (const auto &[button, width, height] :
       {std::tuple{"size2", 440, 320}, std::tuple{"size0", 240, 180}}) {
    EXPECT_TRUE(clickUntil(button, button, [&](const GalleryState &s) {
      const ScreenRect now = s.rect("demonstration");
      return now.width == width && now.height == height && now.y == before.y &&
             now.x + now.width == before.x + before.width;
    }));
    clickUntil("animated", "not animated",
               [](const GalleryState &s) { return s.value("isanimated") == "0"; });
  }
}

TEST_F(WindowsPageJourney, TheToolbarIsMeasured) {
  open();
  const ScreenRect with = demonstration();
  const int toolbar = state().number("toolbarheight");
  ASSERT_TRUE(clickUntil("toolbar", "no toolbar",
                         [](const GalleryState &s) { return s.value("toolbarheight") == "0"; }));
  EXPECT_EQ(demonstration().height, with.height - toolbar);
}

TEST_F(WindowsPageJourney, TheColourUnderThePointerIsRead) {
  open();
  const std::vector<std::string> colors = {"D64545", "E3A008", "3F9142",
                                           "2F6FDE", "7C4DBE", "1F2633"};
  const std::vector<std::string> pixels = {"214 69 69 255",  "227 160 8 255",  "63 145 66 255",
                                           "47 111 222 255", "124 77 190 255", "31 38 51 255"};
  for (size_t i = 0; i < colors.size(); ++i) {
    const ScreenRect patch = state().rect("patch" + std::to_string(i));
    ASSERT_GT(patch.width, 0);
    glide(patch.x + 2, patch.y + 2, patch.midX(), patch.midY());
    EXPECT_TRUE(waitFor(colors[i], [&](const GalleryState &s) {
      return s.value("color") == colors[i] && s.value("pixel") == pixels[i];
    }));
  }
}

}  // namespace ov::test
