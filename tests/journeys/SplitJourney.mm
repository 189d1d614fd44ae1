// Arranging the three panes of a mail program.

#import "GalleryProcess.h"
#include "XTest.h"

namespace ov::test {

class SplitJourney : public GalleryJourney {
 protected:
  void SetUp() override {
    GalleryJourney::SetUp();
    forgetDefaults();
  }

  // The first click in a new window may do no more than bring it to the front.
  void open() {
    start({"-page", "panes"});
    waitFor("the panes", [](const GalleryState &s) { return s.value("page") == "panes"; });
    clickUntil("letters", "the keyboard is in the letters",
               [](const GalleryState &s) { return s.value("focus") == "letters"; });
  }

  void reopen() {
    quit();
    open();
  }

  // Takes hold of a divider.
  void grasp(const std::string &divider) {
    const ScreenRect rect = GalleryJourney::grasp(divider);
    x_ = rect.midX();
    y_ = rect.midY();
  }

  void moveTo(int x, int y) {
    glide(x_, y_, x, y);
    x_ = x;
    y_ = y;
  }

  // Moves a divider so far, and once more if the platform has lost the press.
  bool drag(const std::string &divider, int dx, int dy, const std::string &what,
            const std::function<bool(const GalleryState &)> &is) {
    for (int i = 0; i < 3 && !is(state()); ++i) {
      const ScreenRect before = state().rect(divider);
      grasp(divider);
      moveTo(x_ + dx, y_ + dy);
      nudgePointer();
      nudgePointer();
      pumpUntil([&] { return is(state()); }, 2);
      xtest::releaseButton();
      const auto moved = [&] {
        const ScreenRect now = state().rect(divider);
        return now.x != before.x || now.y != before.y;
      };
      if (pumpUntil(moved, 3)) break;
      nudgePointer();
    }
    return waitFor(what, is);
  }

  bool waitForPane(const std::string &name, bool collapsed, const std::string &setting) {
    return waitFor(name + (collapsed ? " is" : " is not") + " collapsed, and the setting says so",
                   [&](const GalleryState &s) {
                     return s.number("collapsed." + name) == collapsed &&
                            s.number("setting." + setting) == !collapsed;
                   });
  }

  static std::function<bool(const GalleryState &)> dividerAt(const std::string &name, int x) {
    return [name, x](const GalleryState &s) { return std::abs(s.rect(name).x - x) <= 1; };
  }

  static std::function<bool(const GalleryState &)> has(const std::string &key, int value) {
    return [key, value](const GalleryState &s) { return s.value(key) == std::to_string(value); };
  }

 private:
  int x_ = 0;
  int y_ = 0;
};

TEST_F(SplitJourney, OneGestureGoesPastTheThresholdAndBack) {
  open();
  const int left = state().grid.x;
  const ScreenRect divider = state().rect("divider0");
  const int grip = divider.midX() - divider.x;
  grasp("divider0");
  // The pointer is within the limit, which is 120 points, but not past half of it.
  moveTo(left + 80 + grip, divider.midY());
  EXPECT_TRUE(waitFor("the pane is held at its least width",
                      [](const GalleryState &s) { return s.rect("folders").width == 120; }));
  moveTo(left + 30 + grip, divider.midY());
  EXPECT_TRUE(waitForPane("folders", true, "Show folders"));
  EXPECT_EQ(state().rect("divider0").x, left);
  moveTo(left + 170 + grip, divider.midY());
  EXPECT_TRUE(waitForPane("folders", false, "Show folders"));
  EXPECT_TRUE(waitFor("the divider is where the pointer is", dividerAt("divider0", left + 170)));
  xtest::releaseButton();
  nudgePointer();
  // The panes take clicks again.
  clickUntil("folders", "the keyboard is in the folders",
             [](const GalleryState &s) { return s.value("focus") == "folders"; });
  const GalleryState after = state();
  EXPECT_NEAR(after.rect("folders").width, 170, 1);
  EXPECT_EQ(after.rect("letters").x, after.rect("folders").x + after.rect("folders").width + 7);
}

TEST_F(SplitJourney, APaneThatIsLeftCollapsedIsDraggedOutAgain) {
  open();
  const int left = state().grid.x;
  const int wide = state().rect("folders").width;
  ASSERT_TRUE(drag("divider0", -wide + 20, 0, "collapsed", has("collapsed.folders", 1)));
  EXPECT_TRUE(waitForPane("folders", true, "Show folders"));
  EXPECT_EQ(state().rect("divider0").x, left);
  EXPECT_EQ(state().rect("letters").x, left + 7);
  ASSERT_TRUE(drag("divider0", 150, 0, "dragged out", dividerAt("divider0", left + 150)));
  EXPECT_TRUE(waitForPane("folders", false, "Show folders"));
  EXPECT_NEAR(state().rect("folders").width, 150, 1);
}

// Its divider goes to the far edge, where it must still be within reach.
TEST_F(SplitJourney, TheLastPaneIsDraggedOutAgain) {
  open();
  const ScreenRect grid = state().grid;
  const int edge = grid.x + grid.width;
  ASSERT_TRUE(drag("divider1", edge - 20 - state().rect("divider1").x, 0, "collapsed",
                   has("collapsed.message", 1)));
  ASSERT_TRUE(waitFor("the divider is at the edge", dividerAt("divider1", edge - 7)));
  ASSERT_TRUE(drag("divider1", -250, 0, "dragged out", dividerAt("divider1", edge - 7 - 250)));
  EXPECT_TRUE(waitForPane("message", false, "Show message"));
}

TEST_F(SplitJourney, ADoubleClickCollapsesAndExpands) {
  open();
  ASSERT_TRUE(pressUntil("divider1", "collapsed", has("collapsed.message", 1), 2));
  EXPECT_TRUE(waitForPane("message", true, "Show message"));
  ASSERT_TRUE(pressUntil("divider1", "expanded", has("collapsed.message", 0), 2));
  EXPECT_TRUE(waitForPane("message", false, "Show message"));
}

TEST_F(SplitJourney, TheCheckBoxesCollapseAndExpand) {
  open();
  ASSERT_TRUE(pressUntil("Show folders", "collapsed", has("collapsed.folders", 1)));
  ASSERT_TRUE(pressUntil("Show message", "collapsed", has("collapsed.message", 1)));
  // The letters have what the two dividers leave.
  EXPECT_EQ(state().rect("letters").width, state().grid.width - 14);
  ASSERT_TRUE(pressUntil("Show folders", "expanded", has("collapsed.folders", 0)));
  EXPECT_TRUE(waitForPane("folders", false, "Show folders"));
  EXPECT_TRUE(waitForPane("message", true, "Show message"));
}

TEST_F(SplitJourney, ALockedDividerNeitherMovesNorCollapses) {
  open();
  ASSERT_TRUE(pressUntil("Lock the dividers", "locked", has("locked", 1)));
  const int place = state().rect("divider0").x;
  grasp("divider0");
  const ScreenRect divider = state().rect("divider0");
  moveTo(divider.midX() + 60, divider.midY());
  xtest::releaseButton();
  clickAt(divider.midX(), divider.midY(), {}, 2);
  ASSERT_TRUE(pressUntil("Lock the dividers", "unlocked", has("locked", 0)));
  EXPECT_EQ(state().rect("divider0").x, place);
  EXPECT_EQ(state().number("collapsed.folders"), 0);
  EXPECT_TRUE(drag("divider0", 60, 0, "it moves again", dividerAt("divider0", place + 60)));
}

TEST_F(SplitJourney, TheLayoutIsThereAfterARestart) {
  open();
  const int place = state().rect("divider1").x;
  ASSERT_TRUE(drag("divider1", -50, 0, "moved", dividerAt("divider1", place - 50)));
  const int wide = state().rect("folders").width;
  ASSERT_TRUE(drag("divider0", -wide + 20, 0, "collapsed", has("collapsed.folders", 1)));
  const GalleryState before = state();
  reopen();
  EXPECT_TRUE(waitForPane("folders", true, "Show folders"));
  EXPECT_NEAR(state().rect("divider1").x, before.rect("divider1").x, 2);
  EXPECT_NEAR(state().rect("letters").width, before.rect("letters").width, 2);
}

TEST_F(SplitJourney, ANamedLayoutIsSavedRestoredAfterARestartAndForgotten) {
  open();
  EXPECT_EQ(state().value("enabled.Restore"), "0");
  const int place = state().rect("divider0").x;
  ASSERT_TRUE(drag("divider0", 40, 0, "moved", dividerAt("divider0", place + 40)));
  ASSERT_TRUE(pressUntil("Save", "saved", has("enabled.Restore", 1)));
  ASSERT_TRUE(drag("divider0", -60, 0, "changed", dividerAt("divider0", place - 20)));
  // The names are independent.
  ASSERT_TRUE(choose("Name", 1, "another name", has("setting.Name", 1)));
  EXPECT_EQ(state().value("enabled.Restore"), "0");

  reopen();
  EXPECT_NEAR(state().rect("divider0").x, place - 20, 2);
  ASSERT_EQ(state().value("enabled.Restore"), "1");
  ASSERT_TRUE(pressUntil("Restore", "restored", [&](const GalleryState &s) {
    return std::abs(s.rect("divider0").x - (place + 40)) <= 2;
  }));
  EXPECT_EQ(state().value("message"), "The layout is restored.");
  ASSERT_TRUE(pressUntil("Forget", "forgotten", has("enabled.Restore", 0)));

  reopen();
  EXPECT_EQ(state().value("enabled.Restore"), "0");
  EXPECT_EQ(state().value("enabled.Forget"), "0");
}

TEST_F(SplitJourney, StackedPanesCollapseUpward) {
  open();
  ASSERT_TRUE(choose("Panes are", 1, "stacked", has("vertical", 0)));
  const GalleryState before = state();
  EXPECT_EQ(before.value("setting.Panes are"), "1");
  EXPECT_EQ(before.rect("folders").width, before.grid.width);
  EXPECT_EQ(before.rect("letters").y, before.rect("divider0").y + 7);
  ASSERT_TRUE(drag("divider0", 0, -before.rect("folders").height + 10, "collapsed",
                   has("collapsed.folders", 1)));
  EXPECT_EQ(state().rect("letters").y, before.grid.y + 7);
  reopen();
  EXPECT_EQ(state().value("vertical"), "0");
  EXPECT_EQ(state().value("setting.Panes are"), "1");
  EXPECT_TRUE(waitForPane("folders", true, "Show folders"));
}

}  // namespace ov::test
