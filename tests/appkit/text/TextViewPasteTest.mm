// Pasting tells the lines that are about to come.

#import "TextViewTest.h"

using namespace ov::test;
using ::testing::ElementsAre;

namespace {

class TextViewPaste : public TextViewTest {
 protected:
  void SetUp() override {
    TextViewTest::SetUp();
    makeView();
    [view setDelegate:listener];
  }
  void copyToPasteboard(NSString *string) {
    NSPasteboard *pasteboard = [NSPasteboard generalPasteboard];
    [pasteboard declareTypes:@[ NSStringPboardType ] owner:nil];
    ASSERT_TRUE([pasteboard setString:string forType:NSStringPboardType]);
  }
};

TEST_F(TextViewPaste, TellsTheLinesBeforeTheTextIsInserted) {
  copyToPasteboard(@"one\r\ntwo\n\nthree");
  [view paste:nil];
  EXPECT_EQ(string(), "one\\r\\ntwo\\n\\nthree");
  EXPECT_THAT(heard(),
              ElementsAre("WillPasteString one|two|three", "DidBeginEditing", "DidChange"));
}

TEST_F(TextViewPaste, TextWithoutAFilledLineComesWithoutLines) {
  for (NSString *empty : {@"\n\r\n", @"\r"}) {
    copyToPasteboard(empty);
    [view paste:nil];
    EXPECT_EQ(heard().at(0), "WillPasteString");
  }
}

TEST_F(TextViewPaste, ReplacesTheSelection) {
  [view setString:@"abc"];
  [view setSelectedRange:NSMakeRange(1, 1)];
  copyToPasteboard(@"X");
  [view paste:nil];
  EXPECT_EQ(string(), "aXc");
}

TEST_F(TextViewPaste, OtherTypesAreNotTold) {
  NSPasteboard *pasteboard = [NSPasteboard generalPasteboard];
  [pasteboard declareTypes:@[ @"OvTestType" ] owner:nil];
  [pasteboard setData:[NSData data] forType:@"OvTestType"];
  [view paste:nil];
  EXPECT_THAT(heard(), ElementsAre());
  EXPECT_EQ(string(), "");
}

TEST_F(TextViewPaste, PastedTextIsJudgedAsAWhole) {
  [[view textValidator] setMaxLength:4];
  copyToPasteboard(@"one\ntwo");
  [view paste:nil];
  EXPECT_EQ(string(), "one\\n");
  EXPECT_EQ(heard().at(0), "WillPasteString one|two");
}

TEST_F(TextViewPaste, AViewThatIsNotEditableStillTells) {
  [view setEditable:NO];
  copyToPasteboard(@"one");
  [view paste:nil];
  EXPECT_EQ(string(), "");
  EXPECT_THAT(heard(), ElementsAre("WillPasteString one"));
}

// The lines are those of OvTextViewGetIndexedLineString().
TEST_F(TextViewPaste, TellsTheSameLinesAsTheFunctions) {
  Random random;
  SCOPED_TRACE(random.describe());
  NSArray *parts = @[ @"a", @"bc", @"\n", @"\r", @"あ", @"😀" ];
  for (int round = 0; round < 10; round++) {
    NSMutableString *text = [NSMutableString stringWithString:@"a"];
    for (int64_t i = random.integer(1, 80); i > 0; i--) {
      [text appendString:[parts objectAtIndex:NSUInteger(random.integer(0, 5))]];
    }
    NSMutableArray *lines = [NSMutableArray array];
    for (uint32_t i = 0; i < OvTextViewGetLineCount(text); i++) {
      NSString *line = OvTextViewGetIndexedLineString(text, i);
      if (line != nil) [lines addObject:line];
    }
    copyToPasteboard(text);
    NotificationCount count(OvTextViewWillPasteStringNotification, view);
    [view paste:nil];
    EXPECT_EQ(count.count(), 1);
    EXPECT_TRUE([[count.lastUserInfo() objectForKey:@"OvStrings"] isEqual:lines]);
  }
}

// So many lines that looking each one up from the start would take minutes.
TEST_F(TextViewPaste, ABigTextIsGoneThroughOnce) {
  [view setEditable:NO];  // laying it out is the platform's affair
  copyToPasteboard(repeated(@"0123456789\n", 300000));
  NotificationCount count(OvTextViewWillPasteStringNotification, view);
  [view paste:nil];
  EXPECT_EQ([[count.lastUserInfo() objectForKey:@"OvStrings"] count], 300000u);
}

// The platform's layout crashes for that much behind a text of a few characters.
TEST_F(TextViewPaste, ALargeTextBehindAShortOneIsLaidOut) {
  show(window);
  for (NSUInteger lines : {12000, 400000}) {
    [view setString:@"first\nsecond"];
    [view display];
    copyToPasteboard(repeated(@"\nA line of some characters", lines));
    [view paste:nil];
    [view display];
    NSLayoutManager *layout = [view layoutManager];
    const NSUInteger length = [[view string] length];
    ASSERT_EQ(length, 12 + 26 * lines);
    const NSUInteger last = [layout glyphRangeForCharacterRange:NSMakeRange(length - 1, 1)
                                           actualCharacterRange:NULL]
                                .location;
    EXPECT_EQ([layout characterIndexForGlyphAtIndex:last], length - 1);
    const CGFloat height = NSHeight([layout lineFragmentRectForGlyphAtIndex:0 effectiveRange:NULL]);
    const NSRect end = [layout lineFragmentRectForGlyphAtIndex:last effectiveRange:NULL];
    EXPECT_NEAR(NSMaxY(end) / height, lines + 2, 1) << "every line has its place";
  }
}

TEST_F(TextViewPaste, AnEmptyStringIsTold) {
  copyToPasteboard(@"");
  [view paste:nil];
  EXPECT_EQ(string(), "");
  EXPECT_EQ(heard().at(0), "WillPasteString");
}

}  // namespace
