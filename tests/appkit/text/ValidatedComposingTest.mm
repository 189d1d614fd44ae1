// Validated controls while an input method composes in their editor.

#import "ValidatedControlTest.h"

using namespace ov::test;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

template <typename Kind>
class ValidatedComposing : public ValidatedControlTest<Kind> {
 protected:
  // As an input method does; the platform's range is of the text, not of the marked part.
  void compose(NSString *text) {
    const NSUInteger end = [[this->editor() string] length];
    [this->editor() setMarkedText:text selectedRange:NSMakeRange(end, 0)];
  }
};
TYPED_TEST_SUITE(ValidatedComposing, ControlKinds, KindName);

TYPED_TEST(ValidatedComposing, NothingIsCutBeforeTheCommit) {
  this->validate([OvTextValidator class], 3);
  this->edit();
  type(this->window, @"a");
  this->heard();
  this->compose(@"kanji");
  EXPECT_EQ(this->typed(), "akanji");
  // An input method, or a platform, that tells of each step.
  [this->editor() didChangeText];
  EXPECT_EQ(this->typed(), "akanji");
  EXPECT_THAT(this->heard(), ElementsAre("DidChange"));
  const int beeps = beepCount();
  [this->editor() unmarkText];
  EXPECT_EQ(this->typed(), "aka");
  EXPECT_EQ(beepCount(), beeps + 1);
  EXPECT_THAT(this->heard(), ElementsAre("DidChange"));
}

TYPED_TEST(ValidatedComposing, AnInsertionCommits) {
  this->validate([OvTextValidator class], 3);
  this->edit();
  this->compose(@"k");
  [this->editor() insertText:@"anji"];
  EXPECT_EQ(this->typed(), "kan");
  EXPECT_THAT(this->heard(), ElementsAre("DidBeginEditing", "DidChange"));
  // And typing goes on being judged.
  type(this->window, @"z");
  EXPECT_EQ(this->typed(), "kan");
}

TYPED_TEST(ValidatedComposing, TheKeyboardMovesWithTheCommit) {
  [this->validate([OvTextValidator class], 3) setMoveNextKeyView:YES];
  this->edit();
  this->compose(@"abc");
  [this->editor() didChangeText];
  EXPECT_TRUE(this->isEditing());
  [this->editor() unmarkText];
  EXPECT_TRUE(this->isEditingOther());
  EXPECT_EQ(this->value(), "abc");
}

TYPED_TEST(ValidatedComposing, LeavingCommitsAndMends) {
  [this->validate([OvTextValidator class], 3) setMoveNextKeyView:YES];
  this->edit();
  this->compose(@"abcdef");
  type(this->window, @"\t");
  EXPECT_TRUE(this->isEditingOther());
  EXPECT_EQ(this->value(), "abc");
}

TYPED_TEST(ValidatedComposing, LeavingWithAFullTextGoesWhereItWasGoing) {
  [this->validate([OvTextValidator class], 3) setMoveNextKeyView:YES];
  auto *third = this->newControl(NSMakeRect(20, 45, 160, 22));
  [[this->window contentView] addSubview:third];
  this->edit();
  this->compose(@"abc");
  EXPECT_TRUE([this->window makeFirstResponder:third]);
  EXPECT_NE([third currentEditor], nil);
  EXPECT_EQ(this->value(), "abc");
}

TYPED_TEST(ValidatedComposing, AnInvalidTextIsNotLeft) {
  [this->validate([OvTextValidator class], 3) setAllowToInputOverLength:YES];
  this->edit();
  this->compose(@"abcdef");
  EXPECT_THAT(this->heard(), IsEmpty());
  EXPECT_FALSE([this->window makeFirstResponder:this->other]);
  EXPECT_TRUE(this->isEditing());
  EXPECT_THAT(this->heard(), Contains("DidBecomeInvalid"));
  EXPECT_TRUE([this->shownColor() isEqual:[NSColor redColor]]);
}

TYPED_TEST(ValidatedComposing, AnEndWithoutAQuestionIsJudgedToo) {
  this->validate([OvTextValidator class], 3);
  this->edit();
  this->compose(@"abcdef");
  [this->window endEditingFor:this->control];
  EXPECT_EQ(this->value(), "abc");
  EXPECT_THAT(this->heard(), ElementsAre("DidEndEditing"));
}

TYPED_TEST(ValidatedComposing, SettingTheTextEndsTheComposition) {
  this->validate([OvTextValidator class], 3);
  this->edit();
  this->compose(@"abcdef");
  [this->control setStringValue:@"xy"];
  EXPECT_EQ(this->typed(), "xy");
  type(this->window, @"12345");
  EXPECT_EQ(this->typed(), "123");
}

}  // namespace
