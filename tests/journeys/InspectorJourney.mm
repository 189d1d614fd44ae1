// Folding and unfolding the sections of the inspector.

#import "GalleryProcess.h"
#include "XTest.h"

namespace ov::test {

class InspectorJourney : public GalleryJourney {
 protected:
  void open() {
    start({"-page", "inspector"});
    waitFor("the inspector, with the keyboard beside the sections",
            [](const GalleryState &s) { return s.value("focus") == "column"; });
  }

  static std::function<bool(const GalleryState &)> folded(const std::string &name, bool flag) {
    return [name, flag](const GalleryState &s) {
      return s.value("folded." + name) == (flag ? "1" : "0");
    };
  }

  bool clickHeader(const std::string &name, bool fold) {
    return pressUntil(name + ".header", name + (fold ? " folded" : " unfolded"),
                      folded(name, fold));
  }

  static bool allFolded(const GalleryState &s) {
    return s.value("folded.general") == "1" && s.value("folded.picture") == "1" &&
           s.value("folded.label") == "1" && s.value("folded.notes") == "1";
  }

  // A colour of the section "Label", by its place in the row.
  bool chooseColor(int index, const std::string &name) {
    for (int i = 0; i < 4; ++i) {
      const ScreenRect label = state().rect("label"), header = state().rect("label.header");
      pressAt(label.x + 35 + 13 + 34 * index, header.y + header.height + 6 + 17);
      if (pumpUntil([&] { return state().value("message") == name + " chosen."; }, 2)) return true;
      nudgePointer();
    }
    return waitFor(name,
                   [&](const GalleryState &s) { return s.value("message") == name + " chosen."; });
  }
};

TEST_F(InspectorJourney, AClickOnAHeaderFoldsAndTheColumnClosesUp) {
  open();
  const GalleryState before = state();
  ASSERT_TRUE(clickHeader("general", true));
  const GalleryState closed = state();
  EXPECT_EQ(closed.rect("general").height, 23);
  EXPECT_EQ(closed.value("text.general"), "General:Evening walk.png");
  const int gone = before.rect("general").height - 23;
  ASSERT_GT(gone, 50);
  for (const char *below : {"picture", "label", "notes"}) {
    EXPECT_EQ(closed.rect(below).y, before.rect(below).y - gone) << below;
    EXPECT_EQ(closed.rect(below).height, before.rect(below).height) << below;
  }
  ASSERT_TRUE(clickHeader("general", false));
  const GalleryState open = state();
  EXPECT_EQ(open.value("text.general"), "General");
  for (const char *each : {"general", "picture", "label", "notes"}) {
    EXPECT_EQ(open.rect(each).y, before.rect(each).y) << each;
    EXPECT_EQ(open.rect(each).height, before.rect(each).height) << each;
  }
}

TEST_F(InspectorJourney, TheTriangleFoldsAndUnfolds) {
  open();
  ASSERT_TRUE(pressUntil("picture.triangle", "folded", folded("picture", true)));
  EXPECT_EQ(state().value("text.picture"), "Picture:2400 x 1600");
  ASSERT_TRUE(pressUntil("picture.triangle", "unfolded", folded("picture", false)));
}

TEST_F(InspectorJourney, TheKeyboardFoldsAndUnfolds) {
  open();
  const auto focus = [](const std::string &name) {
    return [name](const GalleryState &s) { return s.value("focus") == name; };
  };
  ASSERT_TRUE(typeUntil("Tab", "the first triangle has the keyboard", focus("general")));
  ASSERT_TRUE(typeUntil("space", "folded with Space", folded("general", true)));
  ASSERT_TRUE(typeUntil("Tab", "the next triangle has it", focus("picture")));
  ASSERT_TRUE(typeUntil("Return", "folded with Return", folded("picture", true)));
  ASSERT_TRUE(typeUntil("Return", "unfolded with Return", folded("picture", false)));
  EXPECT_EQ(state().value("folded.general"), "1");
}

TEST_F(InspectorJourney, LockedSectionsAreFoldedByTheProgramOnly) {
  open();
  ASSERT_TRUE(pressUntil("Locked", "locked",
                         [](const GalleryState &s) { return s.value("setting.Locked") == "1"; }));
  const GalleryState before = state();
  pressAt(before.rect("general.header").midX(), before.rect("general.header").midY());
  pressAt(before.rect("picture.triangle").midX(), before.rect("picture.triangle").midY());
  // What comes later has arrived, so those have.
  ASSERT_TRUE(chooseColor(1, "Green"));
  EXPECT_EQ(state().value("folded.general"), "0");
  EXPECT_EQ(state().value("folded.picture"), "0");
  ASSERT_TRUE(pressUntil("Fold all", "the program folds", allFolded));
  ASSERT_TRUE(pressUntil("Locked", "unlocked",
                         [](const GalleryState &s) { return s.value("setting.Locked") == "0"; }));
  ASSERT_TRUE(clickHeader("general", false));
}

TEST_F(InspectorJourney, OtherSizesKeepWhatIsFolded) {
  open();
  ASSERT_TRUE(clickHeader("label", true));
  struct Size {
    int index;
    int headerHeight;
  };
  for (const Size &size : {Size{1, 17}, Size{2, 14}}) {
    ASSERT_TRUE(choose("Size", 1, "the size", [&](const GalleryState &s) {
      return s.number("setting.Size") == size.index;
    }));
    const GalleryState now = state();
    EXPECT_EQ(now.rect("general.header").height, size.headerHeight);
    EXPECT_EQ(now.rect("label").height, size.headerHeight);
    EXPECT_EQ(now.value("folded.label"), "1");
    EXPECT_EQ(now.value("folded.general"), "0");
  }
  ASSERT_TRUE(clickHeader("label", false));
  EXPECT_GT(state().rect("label").height, 40);
}

TEST_F(InspectorJourney, ASummaryTellsWhatIsChosen) {
  open();
  ASSERT_TRUE(chooseColor(3, "Red"));
  ASSERT_TRUE(clickHeader("label", true));
  EXPECT_EQ(state().value("text.label"), "Label:Red");
  ASSERT_TRUE(pressUntil("Summaries while folded", "no summaries",
                         [](const GalleryState &s) { return s.value("text.label") == "Label"; }));
}

TEST_F(InspectorJourney, AColumnThatIsTooHighScrollsUntilItIsFolded) {
  open();
  const GalleryState before = state();
  ASSERT_GT(before.number("columnheight"), before.grid.height);
  const ScreenRect grid = before.grid;
  xtest::movePointer(grid.midX(), grid.midY());
  for (int i = 0; i < 20 && state().number("scrolled") == 0; ++i) {
    xtest::pressButton(5);
    xtest::releaseButton(5);
    pumpUntil([&] { return state().number("scrolled") > 0; }, 0.4);
  }
  EXPECT_GT(state().number("scrolled"), 0);
  ASSERT_TRUE(pressUntil("Fold all", "all are folded", allFolded));
  EXPECT_TRUE(waitFor("the whole column is seen", [](const GalleryState &s) {
    return s.number("scrolled") == 0 && s.number("columnheight") <= s.grid.height;
  }));
}

}  // namespace ov::test
