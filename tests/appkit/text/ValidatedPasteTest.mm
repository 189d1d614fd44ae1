// Pasting into validated controls, with the real pasteboard.

#import "ValidatedControlTest.h"

using namespace ov::test;
using testing::ElementsAre;

namespace {

template <typename Kind>
class ValidatedPaste : public ValidatedControlTest<Kind> {
 protected:
  void paste(NSString *string) {
    NSPasteboard *pasteboard = [NSPasteboard generalPasteboard];
    [pasteboard declareTypes:@[ NSStringPboardType ] owner:nil];
    ASSERT_TRUE([pasteboard setString:string forType:NSStringPboardType]);
    [this->editor() paste:nil];
  }
};
TYPED_TEST_SUITE(ValidatedPaste, ControlKinds, KindName);

TYPED_TEST(ValidatedPaste, WhatIsPastedIsMended) {
  this->validate([OvNumberTextValidator class], 4);
  this->edit();
  const int beeps = beepCount();
  this->paste(@"12x34");
  EXPECT_EQ(this->typed(), "12");
  EXPECT_EQ(beepCount(), beeps + 1);
  EXPECT_THAT(this->heard(), ElementsAre("DidBeginEditing", "DidChange"));
  this->paste(@"345678");
  EXPECT_EQ(this->typed(), "1234");
}

TYPED_TEST(ValidatedPaste, AFullPasteMovesTheKeyboardOn) {
  [this->validate([OvNumberTextValidator class], 3) setMoveNextKeyView:YES];
  this->edit();
  this->paste(@"123");
  EXPECT_TRUE(this->isEditingOther());
  EXPECT_EQ(this->value(), "123");
}

TYPED_TEST(ValidatedPaste, AnOverlongPasteIsMarkedOnce) {
  [this->validate([OvTextValidator class], 3) setAllowToInputOverLength:YES];
  this->edit();
  this->paste(@"abcdefgh");
  EXPECT_EQ(this->typed(), "abcdefgh");
  EXPECT_TRUE([this->shownColor() isEqual:[NSColor redColor]]);
  EXPECT_THAT(this->heard(), ElementsAre("DidBeginEditing", "DidBecomeInvalid", "DidChange"));
}

}  // namespace
