// Filling in the validated form.

#import "GalleryProcess.h"
#include "XTest.h"

namespace ov::test {

class FormJourney : public GalleryJourney {
 protected:
  void open() {
    start({"-page", "form"});
    waitFor("the form", [](const GalleryState &s) { return s.value("page") == "form"; });
  }

  bool clickField(const std::string &name) {
    return clickUntil(name, "the keyboard is in " + name,
                      [&](const GalleryState &s) { return s.value("focus") == name; });
  }

  bool waitForText(const std::string &name, const std::string &text) {
    return waitFor(name + " holds \"" + text + "\"",
                   [&](const GalleryState &s) { return s.value("text." + name) == text; });
  }

  bool waitForFocus(const std::string &name) {
    return waitFor("the keyboard is in " + name,
                   [&](const GalleryState &s) { return s.value("focus") == name; });
  }

  bool paste(NSString *text, const std::string &name, const std::string &result) {
    return pasteOverAll(text, name + " holds \"" + result + "\"",
                        [&](const GalleryState &s) { return s.value("text." + name) == result; });
  }

  // The events in the log from a number on, as "name title".
  std::vector<std::string> eventsFrom(int first) const {
    std::vector<std::string> events;
    const GalleryState s = state();
    for (int i = first; i < s.number("log"); ++i) {
      events.push_back(s.value("log." + std::to_string(i)));
    }
    return events;
  }
};

TEST_F(FormJourney, AFullMemberNumberMovesOnToTheNextField) {
  open();
  ASSERT_TRUE(clickField("member"));
  ASSERT_TRUE(typeText("4711", "text.member"));
  ASSERT_TRUE(waitForFocus("roman"));
  EXPECT_EQ(state().value("text.member"), "4711");
  ASSERT_TRUE(typeText("Hana", "text.roman"));
  waitForText("roman", "Hana");
}

TEST_F(FormJourney, LettersAreRefusedInANumber) {
  open();
  ASSERT_TRUE(clickField("postal"));
  ASSERT_TRUE(typeText("12", "text.postal"));
  const int before = state().number("log");
  typeKeys({"x"});
  ASSERT_TRUE(waitFor("the letter has been judged",
                      [&](const GalleryState &s) { return s.number("log") > before; }));
  EXPECT_EQ(state().value("text.postal"), "12");
  EXPECT_EQ(state().value("color.postal"), "text");
  ASSERT_TRUE(typeText("3", "text.postal"));

  ASSERT_TRUE(clickField("code"));
  ASSERT_TRUE(typeText("12345", "text.code"));
  typeKeys({"x"});
  const int refused = state().number("log");
  ASSERT_TRUE(typeText("6", "text.code"));
  ASSERT_TRUE(waitForFocus("folder"));
  EXPECT_EQ(state().value("text.code"), "123456");
  EXPECT_THAT(eventsFrom(refused), ::testing::Contains("OvVPFormatterBufferIsFull Access code"));
}

TEST_F(FormJourney, AMemoThatIsTooLongTurnsRedAndIsNotLeft) {
  open();
  ASSERT_TRUE(clickField("memo"));
  ASSERT_TRUE(typeText("abcdefghijklmnopqrst", "text.memo"));
  EXPECT_EQ(state().value("color.memo"), "text");
  const int before = state().number("log");
  ASSERT_TRUE(typeText("uv", "text.memo"));
  ASSERT_TRUE(waitFor("the memo is red", [](const GalleryState &s) {
    return s.value("color.memo") == "red" && s.value("warning") == "1";
  }));
  const auto count = [&](const std::string &event) {
    const auto events = eventsFrom(before);
    return std::ranges::count(events, event);
  };
  EXPECT_EQ(count("OvTextFieldDidBecomeInvalid Memo"), 1);
  // Tab goes nowhere; the next key comes into the memo all the same.
  typeKeys({"Tab"});
  ASSERT_TRUE(typeText("w", "text.memo"));
  EXPECT_EQ(state().value("focus"), "memo");
  for (const char *shorter :
       {"abcdefghijklmnopqrstuv", "abcdefghijklmnopqrstu", "abcdefghijklmnopqrst"}) {
    typeKeys({"BackSpace"});
    ASSERT_TRUE(waitForText("memo", shorter));
  }
  ASSERT_TRUE(waitFor("the memo is not red", [](const GalleryState &s) {
    return s.value("color.memo") == "text" && s.value("warning") == "0";
  }));
  EXPECT_EQ(count("OvTextFieldDidBecomeValid Memo"), 1);
  typeKeys({"Tab"});
  waitForFocus("path");
}

TEST_F(FormJourney, APastedNameIsCutBetweenCharactersAtSixteenBytes) {
  open();
  ASSERT_TRUE(clickField("name"));
  // One byte, then two each: eight of them would make seventeen.
  ASSERT_TRUE(paste(@"aあいうえおかきくけこ", "name", "aあいうえおかき"));
  EXPECT_EQ(state().value("hint.name"), "15 of 16 bytes in Shift-JIS");
  ASSERT_TRUE(typeText("z", "text.name"));
  waitFor("the counter", [](const GalleryState &s) {
    return s.value("hint.name") == "16 of 16 bytes in Shift-JIS";
  });
}

TEST_F(FormJourney, AFileNameTakesNoLeadingPeriodAndNoColon) {
  open();
  ASSERT_TRUE(clickField("path"));
  typeKeys({"period"});
  ASSERT_TRUE(typeText("a", "text.path"));
  ASSERT_TRUE(paste(@"a:b:c", "path", "abc"));
}

TEST_F(FormJourney, AComboBoxOffersItsChoicesAndRefusesAColon) {
  open();
  ASSERT_TRUE(clickField("folder"));
  // Its arrow, then the second line of the list below.
  const ScreenRect box = state().rect("folder");
  bool chosen = false;
  for (int i = 0; i < 5 && !chosen; ++i) {
    pressAt(box.x + box.width - 9, box.midY());
    nudgePointer();
    pumpUntil([] { return false; }, 0.5);
    pressAt(box.x + 30, box.y + box.height + 27);
    chosen = pumpUntil([&] { return state().value("text.folder") == "Letters"; }, 2);
  }
  ASSERT_TRUE(chosen) << state().value("text.folder");
  ASSERT_TRUE(clickField("folder"));
  ASSERT_TRUE(paste(@"Letters:2", "folder", "Letters2"));
}

TEST_F(FormJourney, TabGoesThroughTheWholeFormAndBack) {
  open();
  ASSERT_TRUE(clickField("postal"));
  for (const char *next : {"member", "roman", "name", "memo", "path", "code", "folder", "currency",
                           "fill", "empty", "postal"}) {
    typeKeys({"Tab"});
    ASSERT_TRUE(waitForFocus(next));
  }
  for (const char *previous : {"empty", "fill", "currency"}) {
    typeKeys({"Tab"}, {"Shift_L"});
    ASSERT_TRUE(waitForFocus(previous));
  }
}

TEST_F(FormJourney, TheExampleIsTakenAndTheLogIsCleared) {
  open();
  ASSERT_TRUE(clickUntil("fill", "the example", [](const GalleryState &s) {
    return s.value("text.name") == "Анна Ким" && s.value("text.currency") == "JPY";
  }));
  EXPECT_EQ(state().value("text.member"), "4711");
  EXPECT_EQ(state().value("hint.name"), "15 of 16 bytes in Shift-JIS");
  ASSERT_GT(state().number("log"), 0);
  ASSERT_TRUE(clickUntil("clear", "an empty log",
                         [](const GalleryState &s) { return s.number("log") == 0; }));
  ASSERT_TRUE(clickUntil("empty", "empty fields", [](const GalleryState &s) {
    return s.value("text.name").empty() && s.value("text.postal").empty();
  }));
  EXPECT_EQ(state().value("hint.name"), "0 of 16 bytes in Shift-JIS");
}

}  // namespace ov::test
