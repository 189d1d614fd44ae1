// What happens while a user types into a validated text field or combo box.

#import "ValidatedControlTest.h"

using namespace ov::test;
using testing::ElementsAre;
using testing::IsEmpty;

// Takes vowels only, at most as many as the base allows.
@interface OvTestVowelValidator : OvTextValidator
@end

@implementation OvTestVowelValidator
- (int32_t)validateString:(NSString *)string {
  const int32_t result = [super validateString:string];
  if (result < 0) return result;
  NSCharacterSet *others =
      [[NSCharacterSet characterSetWithCharactersInString:@"aeiou"] invertedSet];
  return [string rangeOfCharacterFromSet:others].length == 0 ? result : -100;
}
- (NSString *)validStringFromInvalidString:(NSString *)string {
  NSString *cut = [super validStringFromInvalidString:string];
  return [cut length] > 0 && [self validString:cut] ? cut : nil;
}
@end

namespace {

NSString *const kBackspace = @"\x7f";
NSString *const kTab = @"\t";
NSString *const kBacktab = @"\x19";

template <typename Kind>
class ValidatedTyping : public ValidatedControlTest<Kind> {
 protected:
  void clickInto() {
    NSView *control = this->control;
    const NSPoint place = NSMakePoint(10, 10);
    post(mouseEvent(NSLeftMouseDown, control, place));
    post(mouseEvent(NSLeftMouseUp, control, place));
    EXPECT_TRUE(pumpUntil([&] { return this->isEditing(); }));
    pumpPending();
  }
};
TYPED_TEST_SUITE(ValidatedTyping, ControlKinds, KindName);

TYPED_TEST(ValidatedTyping, ANewControlTakesEverything) {
  EXPECT_TRUE([[this->control textValidator] isMemberOfClass:[OvTextValidator class]]);
  this->edit();
  const int beeps = beepCount();
  type(this->window, @"a:1 ");
  EXPECT_EQ(this->typed(), "a:1 ");
  EXPECT_THAT(this->heard(),
              ElementsAre("DidBeginEditing", "DidChange", "DidChange", "DidChange", "DidChange"));
  EXPECT_EQ(beepCount(), beeps);
  EXPECT_TRUE([this->control isValid]);
}

TYPED_TEST(ValidatedTyping, AWholeEditTellsItsEventsInOrder) {
  this->validate([OvNumberTextValidator class], 3);
  this->clickInto();
  EXPECT_THAT(this->heard(), ElementsAre("ResignFirstResponder", "BecomeFirstResponder"));
  type(this->window, @"1");
  EXPECT_THAT(this->heard(), ElementsAre("DidBeginEditing", "DidChange"));
  type(this->window, @"x");
  EXPECT_THAT(this->heard(), ElementsAre("DidChange"));
  EXPECT_EQ(this->typed(), "1");
  type(this->window, kTab);
  EXPECT_THAT(this->heard(), ElementsAre("DidEndEditing"));
  EXPECT_TRUE(this->isEditingOther());
  EXPECT_EQ(this->value(), "1");
}

TYPED_TEST(ValidatedTyping, TabAndBacktabGoRoundTheKeyViews) {
  this->edit();
  type(this->window, kTab);
  EXPECT_TRUE(this->isEditingOther());
  type(this->window, kTab);
  EXPECT_TRUE(this->isEditing());
  type(this->window, kBacktab);
  EXPECT_TRUE(this->isEditingOther());
  // The end is told though nothing was typed.
  EXPECT_THAT(this->heard(), ElementsAre("DidEndEditing", "ResignFirstResponder",
                                         "BecomeFirstResponder", "DidEndEditing"));
}

TYPED_TEST(ValidatedTyping, WhatIsTooLongIsCutWithABeep) {
  this->validate([OvTextValidator class], 3);
  this->edit();
  const int beeps = beepCount();
  type(this->window, @"abc");
  EXPECT_EQ(beepCount(), beeps);
  EXPECT_TRUE(this->isEditing()) << "exactly full does not move on without moveNextKeyView";
  type(this->window, @"d");
  EXPECT_EQ(this->typed(), "abc");
  EXPECT_EQ(beepCount(), beeps + 1);
  EXPECT_EQ([this->editor() selectedRange], NSMakeRange(3, 0));
  EXPECT_THAT(this->heard(),
              ElementsAre("DidBeginEditing", "DidChange", "DidChange", "DidChange", "DidChange"));
}

TYPED_TEST(ValidatedTyping, MendingLeavesTheColourAlone) {
  OvTextValidator *validator = this->validate([OvTextValidator class], 1);
  [validator setDefaultTextColor:[NSColor greenColor]];
  [this->control setTextColor:[NSColor blueColor]];
  this->edit();
  type(this->window, @"ab");
  EXPECT_EQ(this->typed(), "a");
  EXPECT_TRUE([this->shownColor() isEqual:[NSColor blueColor]]);
  EXPECT_TRUE([[this->control textColor] isEqual:[NSColor blueColor]]);
}

TYPED_TEST(ValidatedTyping, ALetterInANumberIsRemovedWithABeep) {
  this->validate([OvNumberTextValidator class], 3);
  this->edit();
  const int beeps = beepCount();
  type(this->window, @"1a2");
  EXPECT_EQ(this->typed(), "12");
  EXPECT_EQ(beepCount(), beeps + 1);
}

TYPED_TEST(ValidatedTyping, ANumberWithoutALimitIsClearedByTheFirstLetter) {
  this->validate([OvNumberTextValidator class], 0);
  this->edit();
  type(this->window, @"12a");
  EXPECT_EQ(this->typed(), "");
}

TYPED_TEST(ValidatedTyping, TheThirdDigitMovesTheKeyboardOn) {
  [this->validate([OvNumberTextValidator class], 3) setMoveNextKeyView:YES];
  this->edit();
  const int beeps = beepCount();
  type(this->window, @"1a2");
  EXPECT_EQ(this->typed(), "12");
  EXPECT_EQ(beepCount(), beeps) << "moveNextKeyView silences mending";
  EXPECT_TRUE(this->isEditing());
  this->heard();
  type(this->window, @"3");
  EXPECT_TRUE(this->isEditingOther());
  EXPECT_EQ(this->value(), "123");
  EXPECT_THAT(this->heard(), ElementsAre("DidEndEditing", "DidChange"));
  type(this->window, @"4");
  EXPECT_EQ(utf8([this->other stringValue]), "4");
  EXPECT_EQ(this->value(), "123");
}

TYPED_TEST(ValidatedTyping, WithoutANextKeyViewTheKeyboardStays) {
  [this->validate([OvNumberTextValidator class], 2) setMoveNextKeyView:YES];
  [this->control setNextKeyView:nil];
  this->edit();
  type(this->window, @"12");
  EXPECT_TRUE(this->isEditing());
  EXPECT_EQ(this->typed(), "12");
  [this->control setNextKeyView:this->other];
}

TYPED_TEST(ValidatedTyping, TheNextKeyViewChosenBeforeTheWindowIsShownCounts) {
  NSWindow *later = this->makeWindow(NSMakeSize(200, 160));
  auto *first = this->newControl(NSMakeRect(20, 110, 120, 22));
  NSTextField *between =
      [[[NSTextField alloc] initWithFrame:NSMakeRect(20, 70, 120, 22)] autorelease];
  NSTextField *chosen =
      [[[NSTextField alloc] initWithFrame:NSMakeRect(20, 20, 120, 22)] autorelease];
  for (NSView *view : {(NSView *)first, (NSView *)between, (NSView *)chosen}) {
    [[later contentView] addSubview:view];
  }
  [first setNextKeyView:chosen];
  OvTextValidator *validator = [OvNumberTextValidator textValidator];
  [validator setMaxLength:1];
  [validator setMoveNextKeyView:YES];
  [first setTextValidator:validator];
  this->show(later);
  [later makeFirstResponder:first];
  type(later, @"1");
  EXPECT_NE([chosen currentEditor], nil);
}

TYPED_TEST(ValidatedTyping, AnOverlongMemoIsKeptAndMarked) {
  OvTextValidator *validator = this->validate([OvTextValidator class], 3);
  [validator setAllowToInputOverLength:YES];
  [validator setMoveNextKeyView:YES];  // not looked at
  [validator setDefaultTextColor:[NSColor blueColor]];
  this->edit();
  int beeps = beepCount();
  type(this->window, @"abc");
  EXPECT_TRUE(this->isEditing());
  EXPECT_TRUE([this->shownColor() isEqual:[NSColor blueColor]]);
  EXPECT_EQ(beepCount(), beeps);
  this->heard();

  type(this->window, @"d");
  EXPECT_EQ(this->typed(), "abcd");
  EXPECT_EQ(beepCount(), beeps + 1);
  EXPECT_TRUE([this->shownColor() isEqual:[NSColor redColor]]) << "in the editor, at once";
  EXPECT_TRUE([[this->control textColor] isEqual:[NSColor redColor]]);
  EXPECT_THAT(this->heard(), ElementsAre("DidBecomeInvalid", "DidChange"));
  EXPECT_FALSE([this->control isValid]);

  type(this->window, @"e");
  EXPECT_EQ(beepCount(), beeps + 2);
  EXPECT_TRUE([[[this->editor() typingAttributes] objectForKey:NSForegroundColorAttributeName]
      isEqual:[NSColor redColor]]);
  EXPECT_THAT(this->heard(), ElementsAre("DidChange"));

  beeps = beepCount();
  type(this->window, kTab);
  EXPECT_TRUE(this->isEditing()) << "it cannot be left while it is too long";
  EXPECT_FALSE([this->window makeFirstResponder:this->other]);
  EXPECT_THAT(this->heard(), IsEmpty());

  type(this->window, kBackspace);
  EXPECT_EQ(this->typed(), "abcd");
  EXPECT_THAT(this->heard(), ElementsAre("DidChange"));
  type(this->window, kBackspace);
  EXPECT_THAT(this->heard(), ElementsAre("DidBecomeValid", "DidChange"));
  EXPECT_TRUE([this->shownColor() isEqual:[NSColor blueColor]]);
  EXPECT_TRUE([this->control isValid]);
  type(this->window, kTab);
  EXPECT_TRUE(this->isEditingOther());
  EXPECT_THAT(this->heard(), ElementsAre("DidEndEditing"));
}

TYPED_TEST(ValidatedTyping, AnotherFieldDoesNotInheritTheColour) {
  OvTextValidator *validator = this->validate([OvTextValidator class], 1);
  [validator setAllowToInputOverLength:YES];
  this->edit();
  type(this->window, @"ab");
  ASSERT_TRUE([this->shownColor() isEqual:[NSColor redColor]]);
  [validator setMaxLength:5];
  ASSERT_TRUE([this->window makeFirstResponder:this->other]);
  type(this->window, @"x");
  EXPECT_FALSE([this->shownColor() isEqual:[NSColor redColor]]);
}

TYPED_TEST(ValidatedTyping, ForbiddenCharactersAreMarkedToo) {
  OvTextValidator *validator = this->validate([OvNumberTextValidator class], 0);
  [validator setAllowToInputOverLength:YES];
  this->edit();
  type(this->window, @"1x");
  EXPECT_EQ(this->typed(), "1x");
  EXPECT_TRUE([this->shownColor() isEqual:[NSColor redColor]]);
}

TYPED_TEST(ValidatedTyping, ASubclassOfAValidatorDecides) {
  this->validate([OvTestVowelValidator class], 3);
  this->edit();
  const int beeps = beepCount();
  type(this->window, @"ae");
  EXPECT_EQ(this->typed(), "ae");
  EXPECT_TRUE([this->control isValid]);
  type(this->window, @"z");
  EXPECT_EQ(this->typed(), "") << "it answers nothing to replace the text";
  EXPECT_EQ(beepCount(), beeps + 1);
}

TYPED_TEST(ValidatedTyping, WithoutAValidatorNothingIsJudged) {
  [this->control setTextValidator:nil];
  this->edit();
  type(this->window, @"abc");
  EXPECT_EQ(this->typed(), "abc");
  EXPECT_THAT(this->heard(), ElementsAre("DidBeginEditing", "DidChange", "DidChange", "DidChange"));
  EXPECT_TRUE([this->control isValid]);
  EXPECT_TRUE([this->control textShouldEndEditing:this->editor()]);
}

TYPED_TEST(ValidatedTyping, UndoDoesNotBringBackWhatWasRefused) {
  [[this->control cell] setAllowsUndo:YES];
  this->validate([OvTextValidator class], 3);
  this->edit();
  ASSERT_TRUE([this->editor() allowsUndo]);
  type(this->window, @"abcd");
  ASSERT_EQ(this->typed(), "abc");
  NSUndoManager *undo = [this->editor() undoManager];
  while ([undo canUndo]) {
    [undo undo];
    EXPECT_TRUE([[this->control textValidator] validString:[this->editor() string]])
        << this->typed();
    EXPECT_NE(this->typed(), "d");
  }
  type(this->window, @"x");
  EXPECT_EQ(this->typed().find('d'), std::string::npos);
}

TYPED_TEST(ValidatedTyping, TheDelegateMayRefuseTheFirstChange) {
  this->delegate->methods = {std::string(TypeParam::kMethodPrefix) + "ShouldBeginEditing:"};
  this->delegate->answer = NO;
  [this->control setDelegate:this->delegate];
  this->edit();
  type(this->window, @"a");
  EXPECT_EQ(this->typed(), "");
  EXPECT_THAT(this->heard(), IsEmpty());
  this->delegate->answer = YES;
  type(this->window, @"a");
  EXPECT_EQ(this->typed(), "a");
  // A control that nobody may change asks the delegate all the same: its answer alone counts.
  EXPECT_TRUE([this->control textShouldBeginEditing:this->editor()]);
  [this->control setDelegate:nil];
  [[this->control cell] setEditable:NO];
  EXPECT_FALSE([this->control textShouldBeginEditing:this->editor()]) << "the inherited answer";
}

TYPED_TEST(ValidatedTyping, TheDelegateAloneDecidesAboutLeaving) {
  OvTextValidator *validator = this->validate([OvTextValidator class], 1);
  [validator setAllowToInputOverLength:YES];
  this->delegate->methods = {std::string(TypeParam::kMethodPrefix) + "ShouldEndEditing:",
                             "control:textShouldEndEditing:"};
  this->delegate->answer = YES;
  [this->control setDelegate:this->delegate];
  this->edit();
  type(this->window, @"ab");
  // Invalid, yet left.
  EXPECT_TRUE([this->window makeFirstResponder:this->other]);
  EXPECT_THAT(this->delegate->heard,
              ElementsAre(std::string(TypeParam::kMethodPrefix) + "ShouldEndEditing:"));
  // Valid, yet not left.
  this->delegate->answer = NO;
  [validator setMaxLength:5];
  this->edit();
  EXPECT_FALSE([this->window makeFirstResponder:this->other]);
  this->delegate->answer = YES;
}

TYPED_TEST(ValidatedTyping, WithoutTheDelegateTheInheritedAnswerCounts) {
  this->validate([OvTextValidator class], 1);
  this->delegate->methods = {"control:textShouldEndEditing:"};
  this->delegate->answer = NO;
  [this->control setDelegate:this->delegate];
  this->edit();
  EXPECT_FALSE([this->control textShouldEndEditing:this->editor()]);
  this->delegate->answer = YES;
  EXPECT_TRUE([this->control textShouldEndEditing:this->editor()]);
  // Where invalid text is kept, the validator comes first.
  [[this->control textValidator] setAllowToInputOverLength:YES];
  this->delegate->answer = NO;
  EXPECT_TRUE([this->control textShouldEndEditing:this->editor()]);
}

TYPED_TEST(ValidatedTyping, ABigTextIsCutInOneGo) {
  this->validate([OvTextValidator class], 5);
  this->edit();
  NSString *big = [@"" stringByPaddingToLength:10 * 1024 * 1024
                                    withString:@"0123456789"
                               startingAtIndex:0];
  [this->editor() insertText:big];
  EXPECT_EQ(this->typed(), "01234");
}

TYPED_TEST(ValidatedTyping, OddCharactersAreSurvived) {
  const unichar odd[] = {0xD83D, 0xDE00, 0xD83D, 0, 'a', 0xDE00};
  NSString *string = [NSString stringWithCharacters:odd length:6];
  for (Class ruleClass : {[OvTextValidator class],
                          [OvNumberTextValidator class],
                          [OvAlphabetTextValidator class],
                          [OvPathTextValidator class],
                          [OvSjisTextValidator class]}) {
    for (uint32_t length = 0; length < 7; length++) {
      this->validate(ruleClass, length);
      this->edit();
      [this->editor() insertText:string != nil ? string : @"\U0001F600"];
      if (length > 0) EXPECT_LE([[this->editor() string] length], length);
      [this->control setStringValue:string];
      [this->window makeFirstResponder:this->other];
      [this->control setStringValue:@""];
    }
  }
}

TYPED_TEST(ValidatedTyping, AListenerMayTakeTheControlAway) {
  OvTextValidator *validator = this->validate([OvTextValidator class], 1);
  [validator setAllowToInputOverLength:YES];
  this->delegate->methods = {std::string(TypeParam::kMethodPrefix) + "DidBecomeInvalid:"};
  this->delegate->removesControl = YES;
  [this->control setDelegate:this->delegate];
  this->edit();
  type(this->window, @"ab");
  EXPECT_EQ([this->control superview], nil);
  EXPECT_FALSE(this->isEditing());
}

}  // namespace
