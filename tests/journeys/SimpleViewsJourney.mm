// Hiding and showing the small views, and choosing a tab.

#import "GalleryProcess.h"

namespace ov::test {

class SimpleViewsJourney : public GalleryJourney {
 protected:
  void open() {
    start({"-page", "simple"});
    waitFor("the small views", [](const GalleryState &s) { return s.value("page") == "simple"; });
  }

  static std::function<bool(const GalleryState &)> has(const std::string &key,
                                                       const std::string &value) {
    return [key, value](const GalleryState &s) { return s.value(key) == value; };
  }
};

TEST_F(SimpleViewsJourney, HiddenViewsComeBackToTheirPlaces) {
  open();
  const GalleryState before = state();
  ASSERT_TRUE(pressUntil("Hidden", "hidden", has("hidden.framed", "1")));
  for (const char *name : {"filled", "pictured", "labelled", "framed"}) {
    EXPECT_GT(state().rect(name).x, 900000) << name;
    EXPECT_EQ(state().rect(name).width, before.rect(name).width) << name;
  }
  ASSERT_TRUE(pressUntil("Hidden", "shown", has("hidden.framed", "0")));
  for (const char *name : {"filled", "pictured", "labelled", "framed"}) {
    EXPECT_EQ(state().rect(name).x, before.rect(name).x) << name;
    EXPECT_EQ(state().rect(name).y, before.rect(name).y) << name;
  }
}

TEST_F(SimpleViewsJourney, AnImageSwitchesTheFillingOff) {
  open();
  ASSERT_TRUE(pressUntil("Filled", "filled", has("imagefills", "1")));
  ASSERT_TRUE(pressUntil("Image", "no image", has("setting.Image", "0")));
  EXPECT_EQ(state().value("imagefills"), "1");
  ASSERT_TRUE(pressUntil("Image", "an image", has("setting.Image", "1")));
  EXPECT_EQ(state().value("imagefills"), "0");
  EXPECT_EQ(state().value("setting.Filled"), "0");
}

TEST_F(SimpleViewsJourney, ATabIsChosenAtTheTopAndAtTheBottom) {
  open();
  ASSERT_TRUE(pressUntil("tab.details", "the second tab", has("tab", "Details")));
  const int top = state().rect("tab.details").y;
  ASSERT_TRUE(choose("Kind", 1, "tabs at the bottom", has("setting.Kind", "1")));
  ASSERT_TRUE(waitFor("the tabs are lower",
                      [&](const GalleryState &s) { return s.rect("tab.history").y > top + 50; }));
  ASSERT_TRUE(pressUntil("tab.history", "the third tab", has("tab", "History")));
}

}  // namespace ov::test
