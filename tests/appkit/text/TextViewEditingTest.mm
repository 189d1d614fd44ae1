// What is typed into a text view, and set from the program, is judged and told.

#import "TextViewTest.h"

using namespace ov::test;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

// A rule of its own, and one whose mended text is no better.
@interface OvTestNoXValidator : OvTextValidator
@end
@implementation OvTestNoXValidator
- (int32_t)validateString:(NSString *)string {
  return [string rangeOfString:@"x"].length > 0 ? -100 : [super validateString:string];
}
- (NSString *)validStringFromInvalidString:(NSString *)string {
  return [string stringByReplacingOccurrencesOfString:@"x" withString:@"y"];
}
@end

@interface OvTestStubbornValidator : OvTextValidator {
 @public
  int asked;
}
@end
@implementation OvTestStubbornValidator
- (int32_t)validateString:(NSString *)string {
  (void)string;
  asked++;
  return -1;
}
- (NSString *)validStringFromInvalidString:(NSString *)string {
  (void)string;
  return nil;
}
@end

namespace {

class TextViewEditing : public TextViewTest {
 protected:
  void SetUp() override {
    TextViewTest::SetUp();
    makeView();
  }
  OvTextValidator *limit(uint32_t length, BOOL keep = NO) {
    OvTextValidator *validator = [OvTextValidator textValidator];
    [validator setMaxLength:length];
    [validator setAllowToInputOverLength:keep];
    [view setTextValidator:validator];
    return validator;
  }
};

TEST_F(TextViewEditing, ANewViewHasAPlainValidatorWithItsColours) {
  OvTextValidator *validator = [view textValidator];
  ASSERT_TRUE([validator isMemberOfClass:[OvTextValidator class]]);
  EXPECT_EQ([validator maxLength], 0u);
  EXPECT_FALSE([validator allowToInputOverLength]);
  EXPECT_NE([validator defaultTextColor], nil);
  EXPECT_TRUE([[validator defaultTextColor] isEqual:[view textColor]]);
  EXPECT_TRUE([[validator altTextColor] isEqual:[NSColor redColor]]);
  EXPECT_FALSE([view tabToResignFirstResponder]);
  EXPECT_EQ([view delegate], nil);
  EXPECT_EQ([view myDelegate], nil);
  EXPECT_TRUE([view isValid]);
}

TEST_F(TextViewEditing, WakingInstallsAFreshValidator) {
  OvTextValidator *mine = limit(3);
  [mine setAltTextColor:[NSColor greenColor]];
  [view setTextColor:[NSColor blueColor]];
  [view awakeFromNib];
  EXPECT_NE([view textValidator], mine);
  EXPECT_EQ([[view textValidator] maxLength], 0u);
  EXPECT_TRUE([[[view textValidator] defaultTextColor] isEqual:[NSColor blueColor]]);
  EXPECT_TRUE([[[view textValidator] altTextColor] isEqual:[NSColor redColor]]);
}

TEST_F(TextViewEditing, ANewValidatorTakesOverTheColours) {
  [[view textValidator] setDefaultTextColor:[NSColor blueColor]];
  [[view textValidator] setAltTextColor:[NSColor greenColor]];
  OvTextValidator *next = [OvTextValidator textValidator];
  [next setDefaultTextColor:[NSColor redColor]];
  [view setTextValidator:next];
  EXPECT_EQ([view textValidator], next);
  EXPECT_TRUE([[next defaultTextColor] isEqual:[NSColor blueColor]]);
  EXPECT_TRUE([[next altTextColor] isEqual:[NSColor greenColor]]);
  [view setTextValidator:next];
  EXPECT_TRUE([[next defaultTextColor] isEqual:[NSColor blueColor]]) << "the same one again";
}

TEST_F(TextViewEditing, KeepsItsValidatorAndLetsGoOfTheOldOne) {
  OvTextValidator *validator = [[OvTextValidator alloc] init];
  [view setTextValidator:validator];
  EXPECT_EQ([validator retainCount], 2u);
  [view setTextValidator:[OvTextValidator textValidator]];
  EXPECT_EQ([validator retainCount], 1u);
  [validator release];
}

TEST_F(TextViewEditing, TellsOfEveryStepInOrder) {
  OvTestTextClient *client = [[[OvTestTextClient alloc] init] autorelease];
  client->shouldBegin = client->shouldEnd = YES;
  listener = client;
  [window makeFirstResponder:nil];
  [view setDelegate:client];
  [window makeFirstResponder:view];
  EXPECT_THAT(heard(), ElementsAre("BecomeFirstResponder"));
  typeText(@"a");
  EXPECT_THAT(heard(), ElementsAre("ShouldBegin", "DidBeginEditing", "DidChange"));
  EXPECT_EQ(client->lastText, view);
  typeText(@"b");
  EXPECT_THAT(heard(), ElementsAre("DidChange"));
  client->lastText = nil;
  [window makeFirstResponder:other];
  EXPECT_THAT(heard(), ElementsAre("ShouldEnd", "DidEndEditing", "ResignFirstResponder ab"));
  EXPECT_EQ(client->lastText, view);
}

TEST_F(TextViewEditing, ARefusedBeginningChangesNothing) {
  OvTestTextClient *client = [[[OvTestTextClient alloc] init] autorelease];
  listener = client;
  [view setDelegate:client];
  typeText(@"a");
  EXPECT_THAT(heard(), ElementsAre("ShouldBegin"));
  EXPECT_EQ(string(), "");
}

TEST_F(TextViewEditing, WithoutTheQuestionsEditingBeginsAndEnds) {
  [view setDelegate:listener];
  typeText(@"a");
  EXPECT_EQ(string(), "a");
  EXPECT_TRUE([window makeFirstResponder:other]);
  EXPECT_THAT(heard(), ElementsAre("DidBeginEditing", "DidChange", "DidEndEditing",
                                   "ResignFirstResponder a"));
}

TEST_F(TextViewEditing, ARefusedEndKeepsTheFocus) {
  OvTestTextClient *client = [[[OvTestTextClient alloc] init] autorelease];
  client->shouldBegin = YES;
  listener = client;
  [view setDelegate:client];
  EXPECT_FALSE([window makeFirstResponder:other]);
  EXPECT_EQ([window firstResponder], view);
  EXPECT_THAT(heard(), ElementsAre("ShouldEnd"));
}

TEST_F(TextViewEditing, TheEndIsUpToTheValidatorOtherwise) {
  [view setDelegate:listener];
  for (BOOL keep : {NO, YES}) {
    limit(3, keep);
    [[view textStorage] replaceCharactersInRange:NSMakeRange(0, [[view string] length])
                                      withString:@"abcd"];
    EXPECT_FALSE([view textShouldEndEditing:view]) << "keep " << keep;
    EXPECT_FALSE([window makeFirstResponder:other]) << "keep " << keep;
    [[view textStorage] replaceCharactersInRange:NSMakeRange(0, 1) withString:@""];
    EXPECT_TRUE([view textShouldEndEditing:view]) << "keep " << keep;
  }
  [view setTextValidator:nil];
  EXPECT_FALSE([view textShouldEndEditing:view]) << "no validator, no end";
  EXPECT_FALSE([window makeFirstResponder:other]);
  EXPECT_TRUE([view isValid]);
}

TEST_F(TextViewEditing, TheClientsAnswerGoesBeforeTheValidators) {
  OvTestTextClient *client = [[[OvTestTextClient alloc] init] autorelease];
  client->shouldEnd = YES;
  [view setDelegate:client];
  limit(1);
  [[view textStorage] replaceCharactersInRange:NSMakeRange(0, 0) withString:@"abcd"];
  EXPECT_TRUE([window makeFirstResponder:other]);
}

TEST_F(TextViewEditing, WithoutAClientNothingIsJudgedOrTold) {
  std::vector<std::unique_ptr<NotificationCount>> counts;
  for (NSString *name in @[
         OvTextViewDidBeginEditingNotification, OvTextViewDidEndEditingNotification,
         OvTextViewDidChangeNotification, OvTextViewDidBecomeInvalidNotification
       ]) {
    counts.push_back(std::make_unique<NotificationCount>(name, view));
  }
  for (BOOL keep : {NO, YES}) {
    [view setString:@""];
    limit(2, keep);
    const int beeps = beepCount();
    typeText(@"abcd");
    EXPECT_EQ(string(), "abcd");
    EXPECT_EQ(beepCount(), beeps);
    EXPECT_TRUE([colorAt(0) isEqual:[[view textValidator] defaultTextColor]]);
  }
  EXPECT_TRUE([window makeFirstResponder:other]) << "although the text is invalid";
  for (const auto &count : counts) EXPECT_EQ(count->count(), 0);
}

TEST_F(TextViewEditing, CutsWhatIsTooLongWithABeep) {
  [view setDelegate:listener];
  limit(3);
  int beeps = beepCount();
  typeText(@"abc");
  EXPECT_EQ(beepCount(), beeps);
  EXPECT_EQ([window firstResponder], view) << "a full text does not move the focus";
  heard();
  typeText(@"d");
  EXPECT_EQ(string(), "abc");
  EXPECT_EQ(beepCount(), beeps + 1);
  EXPECT_THAT(heard(), ElementsAre("DidChange")) << "once, and after the cut";
  EXPECT_TRUE([view isValid]);
}

TEST_F(TextViewEditing, BeepsAndStaysEvenIfTheValidatorWouldMoveOn) {
  [view setDelegate:listener];
  [limit(2) setMoveNextKeyView:YES];
  int beeps = beepCount();
  typeText(@"ab");
  EXPECT_EQ([window firstResponder], view);
  typeText(@"c");
  EXPECT_EQ(string(), "ab");
  EXPECT_EQ(beepCount(), beeps + 1);
  [view setString:@"xy"];
  EXPECT_EQ([window firstResponder], view);
}

TEST_F(TextViewEditing, EveryRuleMendsInItsOwnWay) {
  [view setDelegate:listener];
  [view setTextValidator:[OvTestNoXValidator textValidator]];
  typeText(@"axb");
  EXPECT_EQ(string(), "ayb");
}

TEST_F(TextViewEditing, AValidatorThatCannotMendDoesNotHang) {
  [view setDelegate:listener];
  OvTestStubbornValidator *stubborn = [OvTestStubbornValidator textValidator];
  [view setTextValidator:stubborn];
  typeText(@"a");
  EXPECT_EQ(string(), "");
  EXPECT_LE(stubborn->asked, 3);
  EXPECT_THAT(heard(), ElementsAre("DidBeginEditing", "DidChange"));
  [view setString:@"b"];
  EXPECT_EQ(string(), "b");
}

TEST_F(TextViewEditing, KeepsWhatIsInvalidInTheOtherColour) {
  [view setDelegate:listener];
  OvTextValidator *validator = limit(3, YES);
  int beeps = beepCount();
  typeText(@"abc");
  EXPECT_EQ(beepCount(), beeps);
  EXPECT_THAT(heard(), ElementsAre("DidBeginEditing", "DidChange", "DidChange", "DidChange"));
  typeText(@"d");
  EXPECT_EQ(string(), "abcd");
  EXPECT_EQ(beepCount(), beeps + 1);
  EXPECT_THAT(heard(), ElementsAre("DidBecomeInvalid", "DidChange"));
  EXPECT_FALSE([view isValid]);
  for (NSUInteger i = 0; i < 4; i++) EXPECT_TRUE([colorAt(i) isEqual:[NSColor redColor]]) << i;
  typeText(@"e");
  EXPECT_EQ(beepCount(), beeps + 2) << "on every change";
  EXPECT_THAT(heard(), ElementsAre("DidChange")) << "but it became invalid once";
  EXPECT_TRUE([colorAt(4) isEqual:[NSColor redColor]]);
  EXPECT_FALSE([window makeFirstResponder:other]);
  typeText(@"\x7f");
  EXPECT_THAT(heard(), ElementsAre("DidChange"));
  typeText(@"\x7f");
  EXPECT_THAT(heard(), ElementsAre("DidBecomeValid", "DidChange"));
  EXPECT_EQ(string(), "abc");
  for (NSUInteger i = 0; i < 3; i++) {
    EXPECT_TRUE([colorAt(i) isEqual:[validator defaultTextColor]]) << i;
  }
  typeText(@"\x7f");
  EXPECT_THAT(heard(), ElementsAre("DidChange"));
}

TEST_F(TextViewEditing, SettingAValidTextTellsNothing) {
  [view setDelegate:listener];
  limit(3);
  [view setString:@"abc"];
  EXPECT_EQ(string(), "abc");
  EXPECT_THAT(heard(), IsEmpty());
}

TEST_F(TextViewEditing, SettingATooLongTextLeavesItWhole) {
  limit(3);
  int beeps = beepCount();
  [view setString:@"abcdef"];
  EXPECT_EQ(string(), "abcdef");
  EXPECT_EQ(beepCount(), beeps);
  EXPECT_FALSE([view isValid]);
  EXPECT_TRUE([colorAt(0) isEqual:[[view textValidator] defaultTextColor]]);
}

// Twice: first as the validator mends it, then as it is.
TEST_F(TextViewEditing, ATooLongTextIsSetTwice) {
  limit(3);
  NotificationCount edits(NSTextStorageDidProcessEditingNotification, [view textStorage]);
  [view setString:@"abcdef"];
  EXPECT_EQ(edits.take(), 2);
  [view setString:@"abc"];
  EXPECT_EQ(edits.take(), 1);
}

TEST_F(TextViewEditing, SettingAnInvalidTextThatIsKeptTellsTheTransition) {
  [view setDelegate:listener];
  OvTextValidator *validator = limit(3, YES);
  int beeps = beepCount();
  [view setString:@"abcd"];
  EXPECT_EQ(beepCount(), beeps + 1);
  EXPECT_EQ(string(), "abcd");
  EXPECT_THAT(heard(), ElementsAre("DidBecomeInvalid"));
  EXPECT_TRUE([colorAt(3) isEqual:[NSColor redColor]]);
  [view setString:@"efghi"];
  EXPECT_EQ(beepCount(), beeps + 2);
  EXPECT_THAT(heard(), IsEmpty());
  [view setString:@"abc"];
  EXPECT_EQ(beepCount(), beeps + 2);
  EXPECT_THAT(heard(), ElementsAre("DidBecomeValid"));
  EXPECT_TRUE([colorAt(2) isEqual:[validator defaultTextColor]]);
  [view setString:@"ab"];
  EXPECT_THAT(heard(), IsEmpty());
}

TEST_F(TextViewEditing, ATextIsSetWithoutAValidator) {
  [view setTextValidator:nil];
  [view setString:@"abc"];
  EXPECT_EQ(string(), "abc");
}

TEST_F(TextViewEditing, NilEmptiesTheView) {
  [view setString:@"abc"];
  [view setString:nil];
  EXPECT_EQ(string(), "");
}

TEST_F(TextViewEditing, TellsItsLines) {
  [view setString:@"a\r\nb"];
  EXPECT_EQ([view lineCount], 3u);
  EXPECT_EQ(text([view stringAtLineIndex:0]), "a");
  EXPECT_EQ([view stringAtLineIndex:1], nil);
  EXPECT_EQ(text([view stringAtLineIndex:2]), "b");
  EXPECT_EQ([view stringAtLineIndex:3], nil);
  [view setString:@""];
  EXPECT_EQ([view lineCount], 1u);
  EXPECT_EQ([view stringAtLineIndex:0], nil);
}

TEST_F(TextViewEditing, HalfAnEmojiStays) {
  [view setDelegate:listener];
  limit(2);
  typeText(@"a");
  [view insertText:@"😀"];
  EXPECT_EQ([[view string] length], 2u);
  EXPECT_EQ([[view string] characterAtIndex:1], 0xD83D);
  [view setString:unit(0xDC00)];
  EXPECT_EQ([[view string] length], 1u);
}

TEST_F(TextViewEditing, NothingIsJudgedWhileAnInputMethodComposes) {
  [view setDelegate:listener];
  limit(3);
  typeText(@"ab");
  heard();
  int beeps = beepCount();
  [view setMarkedText:@"kana" selectedRange:NSMakeRange(2, 0)];
  ASSERT_TRUE([view hasMarkedText]);
  [view didChangeText];
  EXPECT_EQ(string(), "abkana");
  EXPECT_EQ(beepCount(), beeps);
  EXPECT_THAT(heard(), ElementsAre("DidChange"));
  [view unmarkText];
  EXPECT_EQ(string(), "abk") << "committed";
  EXPECT_EQ(beepCount(), beeps + 1);
  EXPECT_THAT(heard(), ElementsAre("DidChange"));
  [view unmarkText];
  EXPECT_THAT(heard(), IsEmpty()) << "there is nothing to commit";
}

TEST_F(TextViewEditing, InsertedTextCommitsAComposition) {
  [view setDelegate:listener];
  limit(3);
  // Behind what was composed, and in its place.
  for (NSRange selection : {NSMakeRange(1, 0), NSMakeRange(0, 1)}) {
    [view setString:@""];
    [view setMarkedText:@"k" selectedRange:NSMakeRange(0, 0)];
    ASSERT_TRUE([view hasMarkedText]);
    [view setSelectedRange:selection];
    [view insertText:@"abcd"];
    EXPECT_FALSE([view hasMarkedText]);
    EXPECT_EQ([[view string] length], 3u);
  }
}

TEST_F(TextViewEditing, AMarkBeyondTheTextDoesNotStopTheTyping) {
  [view setDelegate:listener];
  [view setString:@"abcdef"];
  [view setMarkedText:@"" selectedRange:NSMakeRange(0, 6)];
  ASSERT_TRUE([view hasMarkedText]);
  ASSERT_EQ(string(), "");
  typeText(@"xy");
  EXPECT_EQ(string(), "xy");
}

TEST_F(TextViewEditing, UndoKnowsNothingOfWhatWasRefused) {
  [view setAllowsUndo:YES];
  [view setDelegate:listener];
  limit(3);
  typeText(@"abcd");
  EXPECT_EQ(string(), "abc");
  [[view undoManager] undo];
  pumpPending();
  EXPECT_LE([[view string] length], 3u);
  EXPECT_TRUE([view isValid]);
  [[view undoManager] redo];
  pumpPending();
  EXPECT_TRUE([view isValid]);
  typeText(@"\x7f");
  typeText(@"\x7f");
  typeText(@"z");
  pumpPending();
  EXPECT_TRUE([view isValid]);
  EXPECT_TRUE([[view undoManager] canUndo]) << "what comes later can be undone";
}

TEST_F(TextViewEditing, UndoWorksWhileNothingIsMended) {
  [view setAllowsUndo:YES];
  [view setDelegate:listener];
  limit(10);
  typeText(@"ab");
  [[view undoManager] undo];
  EXPECT_LT([[view string] length], 2u);
}

TEST_F(TextViewEditing, UndoAfterANewTextDoesNothing) {
  [view setAllowsUndo:YES];
  typeText(@"abc");
  [view setString:@"x"];
  [[view undoManager] undo];
  EXPECT_EQ(string(), "x");
}

}  // namespace
