// Lines that are typed, pasted and left.

#import "GalleryProcess.h"
#include "XTest.h"

namespace ov::test {

class LinesJourney : public GalleryJourney {
 protected:
  // The text is empty and has the keyboard; nothing is logged yet.
  void open() {
    start({"-page", "lines"});
    waitFor("the lines", [](const GalleryState &s) { return s.value("page") == "lines"; });
    clickUntil("empty", "no text", [](const GalleryState &s) { return s.value("length") == "0"; });
    clickUntil("text", "the keyboard is in the text",
               [](const GalleryState &s) { return s.value("focus") == "text"; });
    clickUntil("clear", "an empty log",
               [](const GalleryState &s) { return s.value("log") == "0"; });
    clickUntil("text", "the keyboard is in the text",
               [](const GalleryState &s) { return s.value("focus") == "text"; });
  }

  bool waitForEvent(const std::string &event) {
    return waitFor(event, [&](const GalleryState &s) {
      return std::ranges::any_of(s.values, [&](const auto &value) {
        return value.first.starts_with("log.") && value.second == event;
      });
    });
  }

  bool waitForCaretLine(const std::string &text) {
    return waitFor("the caret is on \"" + text + "\"", [&](const GalleryState &s) {
      return s.value("message") == "The line at the caret: " + text;
    });
  }

  void type(const std::vector<const char *> &keys) {
    for (const char *key : keys) {
      const int length = state().number("length");
      typeKeys({key});
      waitFor(std::string("the key ") + key,
              [&](const GalleryState &s) { return s.number("length") == length + 1; });
    }
  }
};

TEST_F(LinesJourney, ReturnTellsOfTheLineThatItEnds) {
  open();
  type({"h", "i"});
  ASSERT_TRUE(waitForCaretLine("hi"));
  type({"Return"});
  ASSERT_TRUE(waitForEvent("DidReturn “hi”"));
  type({"Return"});
  ASSERT_TRUE(waitForEvent("DidReturn an empty line"));
  type({"y", "o"});
  ASSERT_TRUE(waitForCaretLine("yo"));
  EXPECT_EQ(state().value("lines"), "3");
  EXPECT_EQ(state().value("line"), "3");
  EXPECT_EQ(state().value("numbers"), "1 3");
}

TEST_F(LinesJourney, PasteTellsOfTheLinesThatCome) {
  open();
  ASSERT_TRUE(pasteOverAll(@"one\n\ntwo", "three lines", [](const GalleryState &s) {
    return s.value("length") == "8" && s.value("lines") == "3";
  }));
  ASSERT_TRUE(waitForEvent("WillPasteString 2 with text"));
  ASSERT_TRUE(waitForEvent(" “one”"));
  ASSERT_TRUE(waitForEvent(" “two”"));
  ASSERT_TRUE(waitForCaretLine("two"));
  EXPECT_EQ(state().value("lines"), "3");
}

TEST_F(LinesJourney, TabMovesOnWhenItIsTold) {
  open();
  type({"a", "Tab"});
  EXPECT_EQ(state().value("focus"), "text");
  ASSERT_TRUE(clickUntil("tab", "Tab moves on",
                         [](const GalleryState &s) { return s.value("tabmoveson") == "1"; }));
  ASSERT_TRUE(clickUntil("text", "the keyboard is in the text",
                         [](const GalleryState &s) { return s.value("focus") == "text"; }));
  const int length = state().number("length");
  typeKeys({"Tab"});
  ASSERT_TRUE(waitFor("the keyboard has left the text",
                      [](const GalleryState &s) { return s.value("focus") == "tab"; }));
  EXPECT_EQ(state().number("length"), length);
  ASSERT_TRUE(waitForEvent("DidEndEditing "));
  typeKeys({"Tab"});
  waitFor("the keyboard is back", [](const GalleryState &s) { return s.value("focus") == "text"; });
}

TEST_F(LinesJourney, TenThousandLinesAreNumberedToTheLast) {
  open();
  ASSERT_TRUE(clickUntil("insert", "10,000 lines",
                         [](const GalleryState &s) { return s.number("lines") >= 10001; }));
  const int lines = state().number("lines");
  ASSERT_TRUE(waitFor("the last numbers", [&](const GalleryState &s) {
    const std::string numbers = s.value("numbers");
    return numbers.ends_with(" " + std::to_string(lines));
  }));
  // Only those that can be seen, and each of them.
  EXPECT_GT(std::stoi(state().value("numbers")), lines - 60);
  const ScreenRect text = state().rect("text");
  pressAt(text.midX(), text.y + 30);
  waitFor("a line at the caret, as its number says", [](const GalleryState &s) {
    return s.value("message") ==
           "The line at the caret: This is line " + s.value("line") + " of 10000.";
  });
}

}  // namespace ov::test
