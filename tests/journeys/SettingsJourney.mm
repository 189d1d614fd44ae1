// Settings that are edited, saved, taken back, and there again when the gallery starts again.

#import "GalleryProcess.h"
#include "XTest.h"

namespace ov::test {

namespace fs = std::filesystem;

class SettingsJourney : public GalleryJourney {
 protected:
  // Without what an earlier journey, or the same one, has saved.
  void SetUp() override {
    GalleryJourney::SetUp();
    NSArray *folders =
        NSSearchPathForDirectoriesInDomains(NSLibraryDirectory, NSUserDomainMask, YES);
    NSString *folder = [[folders objectAtIndex:0] stringByAppendingPathComponent:@"Preferences"];
    for (const char *name : {"home", "work"}) {
      fs::remove(fs::path([folder fileSystemRepresentation]) /
                 (std::string("org.ovappkit.gallery.") + name + ".plist"));
    }
  }

  void open() {
    start({"-page", "settings"});
    waitFor("the form", [](const GalleryState &s) { return s.value("page") == "settings"; });
  }

  bool clickField(const std::string &name) {
    return clickUntil(name, "the keyboard is in " + name,
                      [&](const GalleryState &s) { return s.value("focus") == name; });
  }

  // What is in the field goes when the first key comes: editing starts with all selected.
  bool replaceText(const std::string &name, const std::string &text) {
    if (!clickField(name)) return false;
    return pasteOverAll([NSString stringWithUTF8String:text.c_str()], name + " is " + text,
                        [&](const GalleryState &s) { return s.value("text." + name) == text; });
  }

  bool waitForUnsaved(bool unsaved) {
    return waitFor(unsaved ? "unsaved" : "saved", [&](const GalleryState &s) {
      return s.value("mark") == (unsaved ? "● Unsaved changes" : "Everything is saved") &&
             s.number("cansave") == unsaved;
    });
  }

  bool save() {
    return clickUntil("save", "saved", [](const GalleryState &s) { return !s.number("cansave"); });
  }

  static bool holds(const GalleryState &s, const std::string &text) {
    return s.value("file").find(text) != std::string::npos;
  }
};

TEST_F(SettingsJourney, AnEditIsMarkedSavedAndThereAgainNextTime) {
  open();
  EXPECT_EQ(state().value("file"), "There is no file yet.");
  ASSERT_TRUE(save());
  ASSERT_TRUE(replaceText("author", "Grace"));
  ASSERT_TRUE(waitForUnsaved(true));
  EXPECT_EQ(state().value("value.author"), "Grace");
  EXPECT_FALSE(holds(state(), "Grace"));
  ASSERT_TRUE(save());
  ASSERT_TRUE(waitForUnsaved(false));
  // Nothing that equals its default.
  ASSERT_TRUE(waitFor("the file", [](const GalleryState &s) {
    return holds(s, "<key>author</key>") && holds(s, "<string>Grace</string>") &&
           !holds(s, "folder") && !holds(s, "zoom") && !holds(s, "backup");
  }));
  sendSignal(SIGTERM);
  ASSERT_EQ(waitForExit(), 0);

  open();
  EXPECT_EQ(state().value("text.author"), "Grace");
  waitForUnsaved(false);
  // A value that returns to its default leaves the file.
  ASSERT_TRUE(clickUntil("defaults", "the defaults", [](const GalleryState &s) {
    return s.value("text.author") == "Anonymous";
  }));
  ASSERT_TRUE(waitForUnsaved(true));
  EXPECT_TRUE(holds(state(), "Grace"));
  ASSERT_TRUE(save());
  waitFor("an empty file",
          [](const GalleryState &s) { return !holds(s, "author") && holds(s, "plist"); });
}

TEST_F(SettingsJourney, RevertTakesEditsBack) {
  open();
  ASSERT_TRUE(replaceText("folder", "Letters"));
  ASSERT_TRUE(save());
  ASSERT_TRUE(replaceText("folder", "Drafts"));
  ASSERT_TRUE(clickUntil("backup", "a backup",
                         [](const GalleryState &s) { return s.value("value.backup") == "1"; }));
  ASSERT_TRUE(waitForUnsaved(true));
  ASSERT_TRUE(clickUntil("revert", "what was saved", [](const GalleryState &s) {
    return s.value("text.folder") == "Letters" && s.value("value.backup") == "0";
  }));
  waitForUnsaved(false);
}

TEST_F(SettingsJourney, TypingCountsAtOnce) {
  open();
  ASSERT_TRUE(save());
  ASSERT_TRUE(replaceText("author", "Ada"));
  ASSERT_TRUE(typeText("m", "text.author"));
  waitFor("the value", [](const GalleryState &s) { return s.value("value.author") == "Adam"; });
  waitForUnsaved(true);
}

TEST_F(SettingsJourney, ControlsFollowTheProgramAndEachOther) {
  open();
  ASSERT_TRUE(clickUntil("program", "zoom 150", [](const GalleryState &s) {
    return s.value("value.zoom") == "150" && s.value("zoomtext") == "150";
  }));
  const ScreenRect zoom = state().rect("zoom");
  bool moved = false;
  for (int i = 0; i < 5 && !moved; ++i) {
    pressAt(zoom.x + zoom.width - 12, zoom.midY());
    moved = pumpUntil([&] { return state().number("value.zoom") > 350; }, 2);
    nudgePointer();
  }
  ASSERT_TRUE(moved);
  EXPECT_EQ(state().value("zoomtext"), state().value("value.zoom"));
  EXPECT_EQ(state().number("value.zoom") % 5, 0);
}

TEST_F(SettingsJourney, EditsGoAlongToAnotherStore) {
  open();
  ASSERT_TRUE(replaceText("author", "Grace"));
  ASSERT_TRUE(save());
  const std::string home = state().value("path");
  ASSERT_TRUE(clickUntil("store", "the other store",
                         [&](const GalleryState &s) { return s.value("path") != home; }));
  EXPECT_EQ(state().value("text.author"), "Grace");
  ASSERT_TRUE(waitForUnsaved(true));
  EXPECT_EQ(state().value("file"), "There is no file yet.");
  ASSERT_TRUE(save());
  waitFor("the other file", [](const GalleryState &s) { return holds(s, "Grace"); });
}

}  // namespace ov::test
