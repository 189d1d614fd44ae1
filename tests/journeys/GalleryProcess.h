// The gallery as a process of its own, driven with the real pointer and keyboard, and seen
// through its status file and the files on disk.

#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <map>
#include <string>
#include <vector>

#import "LiveTest.h"

namespace ov::test {

// In pixels from the top left of the screen.
struct ScreenRect {
  int x = 0;
  int y = 0;
  int width = 0;
  int height = 0;
  int midX() const { return x + width / 2; }
  int midY() const { return y + height / 2; }
};

// What the gallery's window shows.
struct GalleryState {
  std::map<std::string, std::string> values;
  std::map<std::string, ScreenRect> items;  // the visible ones
  std::map<std::string, ScreenRect> rows;   // of the page list
  std::map<std::string, ScreenRect> rects;  // of the page's controls
  ScreenRect grid;                          // its visible part
  ScreenRect window;                        // its content
  std::vector<std::string> selected;

  std::string value(const std::string &key) const;
  int number(const std::string &key) const;
  // A line of the page's log: 0 is the newest.
  std::string logged(int back) const;
  // Of a control; empty if there is none.
  ScreenRect rect(const std::string &name) const;
};

class GalleryJourney : public LiveTest {
 protected:
  void SetUp() override;
  void TearDown() override;

  // A folder of this test's own with generated pictures p00.png, p01.png, …
  void makePictures(int count);
  const std::filesystem::path &folder() const { return folder_; }
  std::filesystem::path statusFile() const { return root_ / "status"; }
  std::filesystem::path root() const { return root_; }

  // Starts the gallery on the folder and waits for its window.
  void start(const std::vector<std::string> &more = {});
  // Runs it to its end and answers its exit status.
  int run(const std::vector<std::string> &arguments);
  // The exit status of the running gallery, once it ends by itself.
  int waitForExit();
  void sendSignal(int number);

  GalleryState state() const;
  // Waits until the state is as described; the test fails if that does not come about.
  bool waitFor(const std::string &what, const std::function<bool(const GalleryState &)> &is);
  // Types a character at a time, and each again that the platform loses: after each, the value
  // of the key is one character longer, or the keyboard has left the place that "focus" told.
  bool typeText(const std::string &text, const std::string &valueKey);
  // A click as long as a finger's: a text view waits for ever for a release that comes with the
  // press.
  void pressAt(int x, int y);
  // Clicks so, again and again, until the state is as described: the first click in a window that
  // has just come up may do no more than bring it to the front.
  bool clickUntil(const std::string &rectName, const std::string &what,
                  const std::function<bool(const GalleryState &)> &is);
  // The same with patience, for what a second click would undo.
  bool pressUntil(const std::string &rectName, const std::string &what,
                  const std::function<bool(const GalleryState &)> &is, int clicks = 1);
  // Types the key, with the same patience.
  bool typeUntil(const char *key, const std::string &what,
                 const std::function<bool(const GalleryState &)> &is);
  // Opens a pop-up button and takes the item so many below the one that is chosen.
  bool choose(const std::string &popUp, int itemsBelow, const std::string &what,
              const std::function<bool(const GalleryState &)> &is);
  // With the menu's key, to the end of the program.
  void quit();
  // As if the gallery had never been used.
  void forgetDefaults();
  // Puts the text on the general pasteboard and presses the keys for Select All and Paste, again
  // if the state is not as described: every program of the machine shares that pasteboard.
  bool pasteOverAll(NSString *text, const std::string &what,
                    const std::function<bool(const GalleryState &)> &is);
  bool waitForSelection(const std::vector<std::string> &names);

  // With modifier keys by their X11 names held down.
  void clickAt(int x, int y, const std::vector<const char *> &modifiers = {}, int clicks = 1);
  void clickItem(const std::string &name, const std::vector<const char *> &modifiers = {},
                 int clicks = 1);
  void typeKeys(const std::vector<const char *> &keys,
                const std::vector<const char *> &modifiers = {});
  // Brings the pointer over a control until the state is as described.
  bool hoverUntil(const std::string &rectName, const std::string &what,
                  const std::function<bool(const GalleryState &)> &is);
  // Takes hold of a control in its middle, and answers where.
  ScreenRect grasp(const std::string &rectName);
  // Moves the pointer there in a few steps, as a hand does.
  void glide(int fromX, int fromY, int toX, int toY);

  void nudgePointer();

  std::vector<std::string> filesInFolder() const;

 private:
  void bringToFront();
  void launch(const std::vector<std::string> &arguments);

  std::filesystem::path root_;
  std::filesystem::path folder_;
  NSTask *task_ = nil;
  int nudge_ = 1;
};

}  // namespace ov::test
