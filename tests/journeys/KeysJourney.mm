// Keys that a view is let process or not, and a panel whose delegate takes events.

#import "GalleryProcess.h"
#include "XTest.h"

namespace ov::test {

class KeysJourney : public GalleryJourney {
 protected:
  void open() {
    start({"-page", "keys"});
    waitFor("the keys", [](const GalleryState &s) { return s.rect("keyview").width > 0; });
  }

  // A check box is clicked once, and again only if the click was lost.
  bool press(const char *key, const std::string &name, bool processed) {
    for (int i = 0; i < 6; ++i) {
      const int before = state().number("keycount");
      typeKeys({key});
      nudgePointer();
      if (pumpUntil([&] { return state().number("keycount") > before; }, 2)) break;
    }
    return waitFor(name, [&](const GalleryState &s) {
      return s.value("lastkey") == name && s.number("processed") == processed;
    });
  }

  // Without a window manager the window that was clicked last covers it.
  bool showPanel() {
    return clickUntil("show", "the panel", [](const GalleryState &s) {
      return s.number("panel") == 1 && s.number("panelkey") == 1 && s.rect("panelbutton").width > 0;
    });
  }

  std::string lastQuestion() const {
    const GalleryState s = state();
    return s.logged(0);
  }
};

TEST_F(KeysJourney, TheDelegateDecidesByTheKindOfKey) {
  open();
  ASSERT_TRUE(press("x", "x", true));
  EXPECT_EQ(lastQuestion(), "shouldProcessAlphaNumericOrPunctuationKeyDown YES");
  ASSERT_TRUE(press("Up", "Up", true));
  EXPECT_EQ(lastQuestion(), "shouldProcessUpArrowFunctionKeyDown YES");
  for (const char *kind : {"arrows", "space"}) {
    ASSERT_TRUE(clickUntil(kind, std::string(kind) + " off", [&](const GalleryState &s) {
      return s.value(std::string("is") + kind) == "0";
    }));
  }
  ASSERT_TRUE(clickUntil("keyview", "the keyboard",
                         [](const GalleryState &s) { return s.number("focused") == 1; }));
  ASSERT_TRUE(press("Left", "Left", false));
  EXPECT_EQ(lastQuestion(), "shouldProcessLeftArrowFunctionKeyDown NO");
  ASSERT_TRUE(press("space", "Space", false));
  EXPECT_EQ(lastQuestion(), "shouldProcessWhitespaceKeyDown NO");
  ASSERT_TRUE(press("y", "y", true));
  // Nobody is asked about these.
  const int asked = state().number("log");
  ASSERT_TRUE(press("Home", "Home", true));
  EXPECT_EQ(state().number("log"), asked);
}

TEST_F(KeysJourney, APanelsDelegateTakesClicksAndKeys) {
  open();
  ASSERT_TRUE(showPanel());
  ASSERT_TRUE(clickUntil("panelbutton", "the button pressed",
                         [](const GalleryState &s) { return s.number("pressed") > 0; }));
  ASSERT_TRUE(clickUntil("clicks", "clicks taken",
                         [](const GalleryState &s) { return s.number("isclicks") == 1; }));
  ASSERT_TRUE(showPanel());
  const int pressed = state().number("pressed");
  ASSERT_TRUE(clickUntil("panelbutton", "the click taken",
                         [](const GalleryState &s) { return s.number("taken") > 0; }));
  EXPECT_EQ(state().number("pressed"), pressed);
  // A panel without a frame has the keyboard all the same.
  for (int i = 0; i < 6 && state().number("panel") == 1; ++i) {
    typeKeys({"Escape"});
    nudgePointer();
    pumpUntil([&] { return state().number("panel") == 0; }, 2);
  }
  EXPECT_EQ(state().number("panel"), 0);
}

TEST_F(KeysJourney, AnImageIsPlacedInItsRectangle) {
  start({"-page", "helpers"});
  ASSERT_TRUE(waitFor("the image", [](const GalleryState &s) { return s.number("side") > 0; }));
  const int side = state().number("side");
  const auto drawn = [](int x, int y, int width, int height) {
    return std::to_string(x) + " " + std::to_string(y) + " " + std::to_string(width) + " " +
           std::to_string(height);
  };
  EXPECT_EQ(state().value("drawn"), drawn(0, side / 4, side, side / 2));
  clickUntil("scaled", "as large as it is", [&](const GalleryState &s) {
    return s.value("drawn") == drawn((side - 100) / 2, (side - 50) / 2, 100, 50);
  });
}

}  // namespace ov::test
