// Return, Enter and Tab, and who has the keyboard.

#import "TextViewTest.h"

using namespace ov::test;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

// Refuses every change.
@interface OvTestClosedTextView : OvTextView
@end
@implementation OvTestClosedTextView
- (BOOL)shouldChangeTextInRange:(NSRange)range replacementString:(NSString *)string {
  (void)range, (void)string;
  return NO;
}
@end

// Takes the keys that nobody below it wants.
@interface OvTestKeyCatcher : NSView {
 @public
  Lines keys;
}
@end
@implementation OvTestKeyCatcher
- (void)keyDown:(NSEvent *)event {
  keys.push_back(text([event characters]));
}
@end

// Asks, in the middle of leaving, whether the view is a field editor; lets go of the view.
@interface OvTestMeddler : NSObject {
 @public
  OvTextView *view;
  BOOL wasFieldEditor;
  BOOL shouldEnd;
  BOOL empties;
  BOOL removes;
  int ends;
}
@end
@implementation OvTestMeddler
- (BOOL)textViewShouldEndEditing:(NSText *)text {
  wasFieldEditor = [text isFieldEditor];
  ends++;
  return shouldEnd;
}
- (void)textViewDidChange:(NSNotification *)notification {
  (void)notification;
  if (empties) [view setString:@""];
  if (removes) {
    [view setDelegate:nil];
    [view removeFromSuperview];
  }
}
@end

namespace {

class TextViewKeys : public TextViewTest {
 protected:
  void SetUp() override {
    TextViewTest::SetUp();
    makeView();
    [view setDelegate:listener];
  }
  // What was told apart from the beginning of editing and the changes.
  Lines told() {
    Lines lines = heard();
    std::erase(lines, "DidBeginEditing");
    std::erase(lines, "DidChange");
    return lines;
  }
  void start(NSString *string, NSRange selection) {
    [view setString:string];
    [view setSelectedRange:selection];
    heard();
  }
  void becomeKeyAgain() {
    NSWindow *second = showWindow(NSMakeSize(100, 100));
    show(window);
    [second orderOut:nil];
  }
};

NSString *const kReturn = @"\r";
NSString *const kEnter = @"\x03";
NSString *const kBackTab = @"\x19";

TEST_F(TextViewKeys, ReturnEndsALineAndTellsIt) {
  typeText(@"hello");
  heard();
  typeText(kReturn);
  EXPECT_EQ(string(), "hello\\n");
  EXPECT_THAT(heard(), ElementsAre("DidChange", "DidReturn hello"));
  typeText(kReturn);
  EXPECT_EQ(string(), "hello\\n\\n");
  EXPECT_THAT(heard(), ElementsAre("DidChange", "DidReturn"));
}

TEST_F(TextViewKeys, EnterDoesTheSame) {
  typeText(@"hello");
  heard();
  typeText(kEnter);
  EXPECT_EQ(string(), "hello\\n");
  EXPECT_THAT(heard(), ElementsAre("DidChange", "DidReturn hello"));
}

TEST_F(TextViewKeys, TheKeypadsEnterToo) {
  typeText(@"a");
  typeText(kEnter, NSNumericPadKeyMask);
  typeText(kReturn, NSShiftKeyMask);
  typeText(kReturn, NSAlternateKeyMask);
  EXPECT_EQ(string(), "a\\n\\n\\n");
  EXPECT_THAT(told(), ElementsAre("DidReturn a", "DidReturn", "DidReturn"));
}

TEST_F(TextViewKeys, ReturnInAnEmptyViewEndsAnEmptyLine) {
  typeText(kReturn);
  EXPECT_EQ(string(), "\\n");
  EXPECT_THAT(told(), ElementsAre("DidReturn"));
}

TEST_F(TextViewKeys, ReturnTellsTheLineBeforeTheInsertionPoint) {
  start(@"one\ntwo\rthree", NSMakeRange(10, 0));
  typeText(kReturn);
  EXPECT_EQ(string(), "one\\ntwo\\rth\\nree");
  EXPECT_THAT(told(), ElementsAre("DidReturn th"));
  start(@"one\ntwo", NSMakeRange(4, 0));
  typeText(kReturn);
  EXPECT_THAT(told(), ElementsAre("DidReturn")) << "at the start of a line";
  start(@"one", NSMakeRange(0, 0));
  typeText(kReturn);
  EXPECT_THAT(told(), ElementsAre("DidReturn")) << "at the start of the text";
  start(@"one", NSMakeRange(1, 0));
  typeText(kReturn);
  EXPECT_THAT(told(), ElementsAre("DidReturn o"));
}

TEST_F(TextViewKeys, ReturnReplacesTheSelection) {
  start(@"one\ntwo three", NSMakeRange(7, 3));
  typeText(kReturn);
  EXPECT_EQ(string(), "one\\ntwo\\nree");
  EXPECT_THAT(told(), ElementsAre("DidReturn two"));
  start(@"one\ntwo", NSMakeRange(0, 7));
  typeText(kReturn);
  EXPECT_EQ(string(), "\\n");
  EXPECT_THAT(told(), ElementsAre("DidReturn"));
}

TEST_F(TextViewKeys, AReturnThatTheValidatorTakesAwayEndsNoLine) {
  [[view textValidator] setMaxLength:5];
  typeText(@"hello");
  heard();
  typeText(kReturn);
  EXPECT_EQ(string(), "hello");
  EXPECT_THAT(heard(), ElementsAre("DidChange", "DidReturn"));
  start(@"hello", NSMakeRange(2, 0));
  typeText(kReturn);
  EXPECT_EQ(string(), "he\\nll") << "cut at the end";
  EXPECT_THAT(told(), ElementsAre("DidReturn he"));
}

TEST_F(TextViewKeys, ARefusedReturnEndsNoLine) {
  OvTestClosedTextView *closed =
      [[[OvTestClosedTextView alloc] initWithFrame:NSMakeRect(10, 40, 300, 100)] autorelease];
  [[window contentView] addSubview:closed];
  [closed setDelegate:listener];
  [window makeFirstResponder:closed];
  heard();
  for (NSString *before : {@"", @"a", @"a\nb", @"\n"}) {
    [closed setString:before];
    for (NSUInteger place = 0; place <= [before length]; place++) {
      [closed setSelectedRange:NSMakeRange(place, 0)];
      typeText(kReturn);
      EXPECT_EQ(text([closed string]), text(before));
    }
  }
  EXPECT_THAT(heard(), IsEmpty());
}

TEST_F(TextViewKeys, AViewThatIsNotEditableTakesNoReturn) {
  start(@"abc", NSMakeRange(3, 0));
  [view setEditable:NO];
  typeText(kReturn);
  typeText(kEnter);
  EXPECT_EQ(string(), "abc");
  EXPECT_THAT(heard(), IsEmpty());
}

// To a button that is waiting for Return, for example.
TEST_F(TextViewKeys, AViewThatIsNotEditablePassesReturnOnAsItIs) {
  OvTestKeyCatcher *catcher =
      [[[OvTestKeyCatcher alloc] initWithFrame:NSMakeRect(10, 50, 380, 200)] autorelease];
  [[window contentView] addSubview:catcher];
  [[view retain] autorelease];
  [view removeFromSuperview];
  [catcher addSubview:view];
  [view setEditable:NO];
  [window makeFirstResponder:view];
  typeText(kReturn);
  EXPECT_THAT(catcher->keys, ElementsAre("\\r"));
}

TEST_F(TextViewKeys, ReturnSurvivesAClientThatEmptiesTheView) {
  OvTestMeddler *meddler = [[[OvTestMeddler alloc] init] autorelease];
  meddler->view = view;
  meddler->empties = YES;
  [view setDelegate:meddler];
  NotificationCount returns(OvTextViewDidReturnNotification, view);
  start(@"abc", NSMakeRange(3, 0));
  typeText(kReturn);
  EXPECT_EQ(string(), "");
  EXPECT_EQ(returns.count(), 1);
  EXPECT_EQ([returns.lastUserInfo() count], 0u);
}

TEST_F(TextViewKeys, ReturnSurvivesAClientThatRemovesTheView) {
  OvTestMeddler *meddler = [[OvTestMeddler alloc] init];
  meddler->view = view;
  meddler->removes = YES;
  [view setDelegate:meddler];
  drainPool();  // now the window alone keeps the view
  typeText(kReturn);
  EXPECT_EQ([window firstResponder], window);
  [meddler release];
}

TEST_F(TextViewKeys, ComposingKeepsReturnEnterAndTab) {
  [view setTabToResignFirstResponder:YES];
  for (NSString *key : {kReturn, kEnter, @"\t", kBackTab}) {
    start(@"", NSMakeRange(0, 0));
    [view setMarkedText:@"k" selectedRange:NSMakeRange(0, 0)];
    ASSERT_TRUE([view hasMarkedText]);
    typeText(key);
    EXPECT_EQ([window firstResponder], view);
    EXPECT_THAT(told(), IsEmpty()) << text(key);
    [view unmarkText];
  }
}

TEST_F(TextViewKeys, KeysOfNoneOrSeveralCharactersPass) {
  [view keyDown:keyEvent(window, @"")];
  EXPECT_EQ(string(), "");
  [view keyDown:keyEvent(window, @"\r\r")];
  [view keyDown:keyEvent(window, @"\t\t")];
  EXPECT_THAT(told(), IsEmpty());
  [view setString:@""];
  typeText(@"あ");
  EXPECT_EQ(text([view string]), "<12354>");
}

TEST_F(TextViewKeys, TabInsertsATab) {
  typeText(@"a\tb");
  EXPECT_EQ(string(), "a\\tb");
  typeText(kBackTab);
  EXPECT_EQ(string(), "a\\tb");
  EXPECT_EQ([window firstResponder], view);
}

TEST_F(TextViewKeys, TabLeavesWhenToldTo) {
  [view setTabToResignFirstResponder:YES];
  EXPECT_TRUE([view tabToResignFirstResponder]);
  typeText(@"ab");
  heard();
  typeText(@"\t");
  EXPECT_EQ([other currentEditor], (NSText *)[window firstResponder]);
  EXPECT_EQ(string(), "ab");
  EXPECT_THAT(heard(), ElementsAre("DidEndEditing", "ResignFirstResponder ab"));
  EXPECT_FALSE([view isFieldEditor]);
}

TEST_F(TextViewKeys, BackTabLeavesTheOtherWay) {
  [view setTabToResignFirstResponder:YES];
  typeText(kBackTab, NSShiftKeyMask);
  EXPECT_EQ([before currentEditor], (NSText *)[window firstResponder]);
  EXPECT_EQ(string(), "");
  [window makeFirstResponder:view];
  typeText(kBackTab);
  EXPECT_EQ([before currentEditor], (NSText *)[window firstResponder]);
}

TEST_F(TextViewKeys, TabComesBackThroughTheLoop) {
  [view setTabToResignFirstResponder:YES];
  [window makeFirstResponder:before];
  heard();
  typeText(@"\t");
  EXPECT_EQ([window firstResponder], view);
  EXPECT_THAT(heard(), ElementsAre("BecomeFirstResponder"));
  typeText(@"\t");
  EXPECT_NE([window firstResponder], view);
  typeText(kBackTab, NSShiftKeyMask);
  EXPECT_EQ([window firstResponder], view);
}

TEST_F(TextViewKeys, ARefusedEndKeepsTheTabHere) {
  OvTestMeddler *meddler = [[[OvTestMeddler alloc] init] autorelease];
  [view setDelegate:meddler];
  [view setTabToResignFirstResponder:YES];
  typeText(@"\t");
  EXPECT_EQ([window firstResponder], view);
  EXPECT_EQ(meddler->ends, 1);
  EXPECT_EQ(string(), "");
  EXPECT_TRUE(meddler->wasFieldEditor);
  EXPECT_FALSE([view isFieldEditor]);
  meddler->shouldEnd = YES;
  typeText(@"\t");
  EXPECT_EQ(meddler->ends, 2) << "asked once";
  EXPECT_NE([window firstResponder], view);
}

TEST_F(TextViewKeys, AFieldEditorStaysOne) {
  [view setFieldEditor:YES];
  [view setTabToResignFirstResponder:YES];
  typeText(@"\t");
  EXPECT_TRUE([view isFieldEditor]);
  EXPECT_EQ(string(), "");
}

TEST_F(TextViewKeys, TabWithNowhereToGoStays) {
  [view setTabToResignFirstResponder:YES];
  [view setNextKeyView:nil];
  typeText(@"\t");
  EXPECT_EQ([window firstResponder], view);
  EXPECT_EQ(string(), "");
}

TEST_F(TextViewKeys, TabLeavesAViewThatIsNotEditable) {
  [view setTabToResignFirstResponder:YES];
  [view setEditable:NO];
  typeText(@"\t");
  EXPECT_EQ([other currentEditor], (NSText *)[window firstResponder]);
}

TEST_F(TextViewKeys, BecomingIsToldOncePerGain) {
  [window makeFirstResponder:other];
  heard();
  [window makeFirstResponder:view];
  EXPECT_THAT(heard(), ElementsAre("BecomeFirstResponder"));
  typeText(@"ab");
  becomeKeyAgain();
  typeText(@"c");
  EXPECT_THAT(heard(), ElementsAre("DidBeginEditing", "DidChange", "DidChange", "DidChange"));
  [window makeFirstResponder:other];
  EXPECT_THAT(heard(), ElementsAre("DidEndEditing", "ResignFirstResponder abc"));
  [window makeFirstResponder:view];
  EXPECT_THAT(heard(), ElementsAre("BecomeFirstResponder"));
}

TEST_F(TextViewKeys, AViewThatCannotBecomeFirstResponderSaysNothing) {
  [window makeFirstResponder:other];
  [view setSelectable:NO];
  heard();
  [window makeFirstResponder:view];
  EXPECT_THAT(heard(), IsEmpty());
}

TEST_F(TextViewKeys, BecomingIsToldInTheNextWindow) {
  [[view retain] autorelease];
  [view removeFromSuperview];
  heard();
  NSWindow *second = showWindow(NSMakeSize(400, 300));
  [[second contentView] addSubview:view];
  [second makeFirstResponder:view];
  EXPECT_THAT(heard(), ElementsAre("BecomeFirstResponder"));
}

TEST_F(TextViewKeys, BecomingIsToldAfterTheWindowDied) {
  OvTextView *survivor =
      [[[OvTextView alloc] initWithFrame:NSMakeRect(10, 10, 50, 50)] autorelease];
  [survivor setDelegate:listener];
  @autoreleasepool {
    NSWindow *mortal = [[NSWindow alloc] initWithContentRect:NSMakeRect(50, 50, 200, 200)
                                                   styleMask:NSTitledWindowMask
                                                     backing:NSBackingStoreBuffered
                                                       defer:NO];
    [mortal setReleasedWhenClosed:NO];
    [[mortal contentView] addSubview:survivor];
    [mortal makeFirstResponder:survivor];
    [mortal release];
  }
  heard();
  [[window contentView] addSubview:survivor];
  [window makeFirstResponder:survivor];
  EXPECT_THAT(heard(), testing::Contains("BecomeFirstResponder"));
}

struct LeavingCase {
  const char *name;
  const char *string;
  NSRange selection;
  const char *told;
};

TEST_F(TextViewKeys, LeavingTellsTheLineOfTheInsertionPoint) {
  const LeavingCase cases[] = {
      {"first line", "one\ntwo", {1, 0}, "ResignFirstResponder one"},
      {"at the break", "one\ntwo", {3, 0}, "ResignFirstResponder one"},
      {"after the break", "one\ntwo", {4, 0}, "ResignFirstResponder two"},
      {"at the end", "one\ntwo", {7, 0}, "ResignFirstResponder two"},
      {"between return and line feed", "one\r\ntwo", {4, 0}, "ResignFirstResponder"},
      {"empty line", "one\n", {4, 0}, "ResignFirstResponder"},
      {"empty text", "", {0, 0}, "ResignFirstResponder"},
      {"selection starts before", "one\ntwo", {2, 4}, "ResignFirstResponder one"},
  };
  for (const LeavingCase &row : cases) {
    SCOPED_TRACE(row.name);
    [window makeFirstResponder:view];
    start([NSString stringWithUTF8String:row.string], row.selection);
    [window makeFirstResponder:other];
    EXPECT_THAT(heard(), ElementsAre("DidEndEditing", row.told));
  }
}

}  // namespace
