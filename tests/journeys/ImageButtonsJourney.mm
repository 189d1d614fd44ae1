// Pressing and hovering over buttons that are drawn from artwork.

#import "GalleryProcess.h"
#include "XTest.h"

namespace ov::test {

// Titles of menu items stand this far apart, the first one's below half of it.
static const int kMenuItemHeight = 20;

class ArtworkJourney : public GalleryJourney {
 protected:
  void open(const std::string &page) {
    start({"-page", page});
    waitFor(page, [&](const GalleryState &s) { return s.value("page") == page; });
    // Over nothing that shows it.
    moveAway();
  }

  void moveAway() {
    const ScreenRect window = state().window;
    glide(window.x + 40, window.y + window.height - 40, window.x + 44,
          window.y + window.height - 44);
    nudgePointer();
  }

  static std::function<bool(const GalleryState &)> has(const std::string &key,
                                                       const std::string &value) {
    return [key, value](const GalleryState &s) { return s.value(key) == value; };
  }

  static std::function<bool(const GalleryState &)> logged(const std::string &line) {
    return [line](const GalleryState &s) { return s.logged(0) == line; };
  }

  // Lets go beside the control that is held.
  void releaseAway(const ScreenRect &held, const std::string &what,
                   const std::function<bool(const GalleryState &)> &is) {
    glide(held.midX(), held.midY(), held.midX(), held.y - 12);
    nudgePointer();
    EXPECT_TRUE(waitFor(what, is));
    xtest::releaseButton();
    nudgePointer();
  }

  // Presses at a place and takes the item of the menu that comes up with its corner elsewhere.
  bool takeItem(const std::string &button, int corner, int item, const std::string &line) {
    for (int i = 0; i < 4; ++i) {
      const ScreenRect rect = state().rect(button);
      const int x = rect.x + 24;
      const int y = corner + item * kMenuItemHeight + kMenuItemHeight / 2;
      pressAt(rect.midX(), rect.midY());
      glide(rect.midX(), rect.midY(), x, y);
      nudgePointer();
      pumpUntil([] { return false; }, 0.2);
      pressAt(x, y);
      if (pumpUntil([&] { return state().logged(0) == line; }, 3)) return true;
      // What is left of a menu goes.
      typeKeys({"Escape"});
      nudgePointer();
    }
    return waitFor(line, logged(line));
  }
};

using ImageButtonsJourney = ArtworkJourney;

TEST_F(ImageButtonsJourney, HoveringInAndOut) {
  open("imagebuttons");
  EXPECT_TRUE(waitFor("it is at rest", has("drawn.momentary", "0")));
  ASSERT_TRUE(hoverUntil("momentary", "it shows the mouse", has("drawn.momentary", "3")));
  EXPECT_EQ(state().value("drawn.toggle"), "0");
  moveAway();
  EXPECT_TRUE(waitFor("it is at rest again", has("drawn.momentary", "0")));
}

TEST_F(ImageButtonsJourney, APressActsAndOneThatLeavesDoesNot) {
  open("imagebuttons");
  ASSERT_TRUE(pressUntil("momentary", "it acted", logged("action momentary")));
  const int count = state().number("log");
  const ScreenRect held = grasp("momentary");
  EXPECT_TRUE(waitFor("it is pushed", has("drawn.momentary", "2")));
  releaseAway(held, "it is not pushed any more",
              [](const GalleryState &s) { return s.value("drawn.momentary") != "2"; });
  EXPECT_TRUE(waitFor("it is at rest", has("drawn.momentary", "0")));
  EXPECT_EQ(state().number("log"), count);
}

TEST_F(ImageButtonsJourney, AToggleStaysOn) {
  open("imagebuttons");
  ASSERT_TRUE(pressUntil("toggle", "on", has("toggle", "1")));
  EXPECT_EQ(state().logged(0), "action, on toggle");
  moveAway();
  ASSERT_TRUE(pressUntil("toggle", "off", has("toggle", "0")));
  EXPECT_EQ(state().logged(0), "action toggle");
}

TEST_F(ImageButtonsJourney, AMenuComesUpBelowAndAnItemIsTaken) {
  open("imagebuttons");
  const ScreenRect rect = state().rect("menu");
  ASSERT_TRUE(takeItem("menu", rect.y + rect.height + 5, 1, "Copy menu"));
  // The delegate heard first, and the button did not act.
  EXPECT_EQ(state().logged(1), "willPopUpMenu menu");
  EXPECT_TRUE(waitFor("it is not pressed", [](const GalleryState &s) {
    return s.value("drawn.menu") == "0" || s.value("drawn.menu") == "3";
  }));
}

TEST_F(ImageButtonsJourney, TheKeyboardPresses) {
  open("imagebuttons");
  ASSERT_TRUE(typeUntil("space", "it acted", logged("action momentary")));
  typeKeys({"Tab"});
  ASSERT_TRUE(typeUntil("space", "the next one acted",
                        [](const GalleryState &s) { return s.value("toggle") == "1"; }));
}

using PopUpsJourney = ArtworkJourney;

TEST_F(PopUpsJourney, AnItemIsChosen) {
  open("popups");
  ASSERT_TRUE(choose("center", 2, "Pears", has("title.center", "Pears")));
  EXPECT_EQ(state().logged(0), "Pears center");
  ASSERT_TRUE(choose("bottom", 1, "Oranges", has("title.bottom", "Oranges")));
}

TEST_F(PopUpsJourney, HoveringInAndOut) {
  open("popups");
  EXPECT_TRUE(waitFor("at rest", has("drawn.center", "0")));
  ASSERT_TRUE(hoverUntil("center", "it shows the mouse", has("drawn.center", "3")));
  moveAway();
  EXPECT_TRUE(waitFor("at rest again", has("drawn.center", "0")));
}

using MultiImageButtonsJourney = ArtworkJourney;

TEST_F(MultiImageButtonsJourney, HoveringInAndOut) {
  open("multibuttons");
  ASSERT_TRUE(
      hoverUntil("tracking", "its picture for the mouse", has("shown.tracking", "mouseover")));
  moveAway();
  EXPECT_TRUE(waitFor("at rest again", has("shown.tracking", "default")));
  // The other does not track.
  const ScreenRect plain = state().rect("plain");
  glide(plain.midX() - 3, plain.midY(), plain.midX(), plain.midY());
  nudgePointer();
  EXPECT_EQ(state().value("shown.plain"), "default");
}

TEST_F(MultiImageButtonsJourney, APressActsAndOneThatLeavesDoesNot) {
  open("multibuttons");
  ASSERT_TRUE(pressUntil("plain", "it acted", logged("action plain")));
  const int count = state().number("log");
  const ScreenRect held = grasp("plain");
  EXPECT_TRUE(waitFor("its picture for the press", has("shown.plain", "alternate")));
  releaseAway(held, "at rest", has("shown.plain", "default"));
  EXPECT_EQ(state().number("log"), count);
}

TEST_F(MultiImageButtonsJourney, TheDelegatesMenuComesUpInsteadOfTheAction) {
  open("multibuttons");
  const ScreenRect rect = state().rect("menu");
  // Its corner is below the origin of the button's frame, which is at the top here.
  ASSERT_TRUE(takeItem("menu", rect.y + 3, 0, "By name menu"));
  EXPECT_EQ(state().logged(1), "menuForPopUp: menu");
}

TEST_F(MultiImageButtonsJourney, AQuickClickActsAndHoldingBringsTheMenu) {
  open("multibuttons");
  ASSERT_TRUE(pressUntil("held", "it acted", logged("action held")));
  for (int i = 0; i < 4 && state().logged(0) != "By date menu"; ++i) {
    const ScreenRect held = grasp("held");
    // Still, for longer than half a second; the menu's corner is the button's lower left one.
    pumpUntil([] { return false; }, 1);
    const int y = held.y + held.height + kMenuItemHeight + kMenuItemHeight / 2;
    glide(held.midX(), held.midY(), held.x + 24, y);
    nudgePointer();
    pumpUntil([] { return false; }, 0.2);
    xtest::releaseButton();
    pumpUntil([&] { return state().logged(0) == "By date menu"; }, 3);
    if (state().logged(0) != "By date menu") typeKeys({"Escape"});
    nudgePointer();
  }
  EXPECT_TRUE(waitFor("the item", logged("By date menu")));
}

TEST_F(MultiImageButtonsJourney, AMenuAtOnce) {
  open("multibuttons");
  const ScreenRect rect = state().rect("atonce");
  EXPECT_TRUE(takeItem("atonce", rect.midY(), 2, "By size menu"));
}

}  // namespace ov::test
