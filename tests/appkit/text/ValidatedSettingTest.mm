// A validated text field or combo box whose text, validator and delegate the program sets.

#import "ValidatedControlTest.h"

using namespace ov::test;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

// How a delegate was set, and whether the validator was there.
static std::vector<std::string> letGo;

static void noteDelegate(id delegate, OvTextValidator *validator) {
  letGo.push_back(std::string(delegate == nil ? "nil" : "one") + ", " +
                  (validator != nil ? "with" : "without") + " a validator");
}

@interface OvTestMortalField : OvTextField
@end
@implementation OvTestMortalField
- (void)setDelegate:(id)aDelegate {
  noteDelegate(aDelegate, _textValidator);
  [super setDelegate:aDelegate];
}
@end

@interface OvTestMortalBox : OvComboBox
@end
@implementation OvTestMortalBox
- (void)setDelegate:(id)aDelegate {
  noteDelegate(aDelegate, _textValidator);
  [super setDelegate:aDelegate];
}
@end

namespace {

template <typename Kind>
struct MortalOf;
template <>
struct MortalOf<TextFieldKind> {
  using Control = OvTestMortalField;
};
template <>
struct MortalOf<ComboBoxKind> {
  using Control = OvTestMortalBox;
};

template <typename Kind>
class ValidatedSetting : public ValidatedControlTest<Kind> {
 protected:
  // The names of the delegate's methods, in order.
  static std::vector<std::string> methodNames() {
    std::vector<std::string> names;
    for (const std::string &suffix : kEventSuffixes) {
      names.push_back(Kind::kMethodPrefix + suffix + ":");
    }
    return names;
  }

  void hearEverything(OvTestFieldDelegate *delegate) {
    const auto names = methodNames();
    delegate->methods = {names.begin(), names.end()};
  }

  // Posts every notification of the control once.
  void postAll() {
    for (NSString *name : Kind::notifications()) {
      [[NSNotificationCenter defaultCenter] postNotificationName:name object:this->control];
    }
  }
};
TYPED_TEST_SUITE(ValidatedSetting, ControlKinds, KindName);

TYPED_TEST(ValidatedSetting, TheNotificationsAreNamedAfterThemselves) {
  std::vector<std::string> names;
  for (NSString *name : TypeParam::notifications()) names.push_back([name UTF8String]);
  std::vector<std::string> expected;
  for (const std::string &suffix : kEventSuffixes) {
    expected.push_back(TypeParam::kPrefix + suffix + "Notification");
  }
  EXPECT_EQ(names, expected);
}

TYPED_TEST(ValidatedSetting, TheFirstValidatorHasTheControlsColourAndRed) {
  OvTextValidator *validator = [this->control textValidator];
  EXPECT_EQ([validator maxLength], 0u);
  EXPECT_FALSE([validator allowToInputOverLength]);
  EXPECT_TRUE([[validator defaultTextColor] isEqual:[this->control textColor]]);
  EXPECT_TRUE([[validator altTextColor] isEqual:[NSColor redColor]]);
}

TYPED_TEST(ValidatedSetting, TheNextValidatorTakesOverTheColours) {
  [[this->control textValidator] setDefaultTextColor:[NSColor blueColor]];
  [[this->control textValidator] setAltTextColor:[NSColor greenColor]];
  OvTextValidator *next = [OvTextValidator textValidator];
  [next setAltTextColor:[NSColor yellowColor]];
  [this->control setTextValidator:next];
  EXPECT_EQ([this->control textValidator], next);
  EXPECT_TRUE([[next defaultTextColor] isEqual:[NSColor blueColor]]);
  EXPECT_TRUE([[next altTextColor] isEqual:[NSColor greenColor]]);
  // The one that is there changes nothing.
  [next setAltTextColor:[NSColor yellowColor]];
  [this->control setTextValidator:next];
  EXPECT_TRUE([[next altTextColor] isEqual:[NSColor yellowColor]]);
  // After none, it keeps its own.
  [this->control setTextValidator:nil];
  OvTextValidator *third = [OvTextValidator textValidator];
  [third setAltTextColor:[NSColor brownColor]];
  [this->control setTextValidator:third];
  EXPECT_TRUE([[third altTextColor] isEqual:[NSColor brownColor]]);
  EXPECT_EQ([third defaultTextColor], nil);
}

TYPED_TEST(ValidatedSetting, TheValidatorIsRetainedAndReleased) {
  NSAutoreleasePool *pool = [[NSAutoreleasePool alloc] init];
  OvTextValidator *validator = [[OvTextValidator alloc] init];
  [this->control setTextValidator:validator];
  const NSUInteger held = [validator retainCount];
  [this->control setTextValidator:validator];
  EXPECT_EQ([validator retainCount], held);
  [this->control setTextValidator:nil];
  EXPECT_EQ([validator retainCount], held - 1);
  [validator release];
  [pool release];
}

TYPED_TEST(ValidatedSetting, AnOverlongStringIsCutInSilence) {
  this->validate([OvNumberTextValidator class], 3);
  const int beeps = beepCount();
  [this->control setStringValue:@"12a45"];
  EXPECT_EQ(this->value(), "12");
  [this->control setStringValue:@"12345"];
  EXPECT_EQ(this->value(), "123");
  [this->control setStringValue:@"9"];
  EXPECT_EQ(this->value(), "9");
  EXPECT_EQ(beepCount(), beeps);
  EXPECT_THAT(this->heard(), IsEmpty());
  EXPECT_EQ([[this->control textValidator] validateString:@"9"], 0);
}

TYPED_TEST(ValidatedSetting, AKeptStringIsMarkedInSilence) {
  OvTextValidator *validator = this->validate([OvTextValidator class], 3);
  [validator setAllowToInputOverLength:YES];
  [validator setMoveNextKeyView:YES];
  [validator setDefaultTextColor:[NSColor blueColor]];
  const int beeps = beepCount();
  [this->control setStringValue:@"abcd"];
  EXPECT_EQ(this->value(), "abcd");
  EXPECT_TRUE([[this->control textColor] isEqual:[NSColor redColor]]);
  EXPECT_THAT(this->heard(), ElementsAre("DidBecomeInvalid"));
  EXPECT_FALSE([this->control isValid]);
  [this->control setStringValue:@"abcde"];
  EXPECT_THAT(this->heard(), IsEmpty());
  [this->control setStringValue:@"abc"];
  EXPECT_TRUE([[this->control textColor] isEqual:[NSColor blueColor]]);
  EXPECT_THAT(this->heard(), ElementsAre("DidBecomeValid"));
  EXPECT_FALSE(this->isEditingOther()) << "moveNextKeyView is not looked at";
  [this->control setStringValue:@"a"];
  EXPECT_THAT(this->heard(), IsEmpty());
  EXPECT_EQ(beepCount(), beeps);
}

TYPED_TEST(ValidatedSetting, AFullStringMovesTheKeyboardFirst) {
  [this->validate([OvNumberTextValidator class], 3) setMoveNextKeyView:YES];
  [this->control setStringValue:@"12"];
  EXPECT_FALSE(this->isEditingOther());
  [this->control setStringValue:@"123"];
  EXPECT_TRUE(this->isEditingOther());
  EXPECT_EQ(this->value(), "123");
  // Also out of the control itself, whose edit ends with what was typed.
  this->edit();
  type(this->window, @"4");
  this->heard();
  [this->control setStringValue:@"567"];
  EXPECT_TRUE(this->isEditingOther());
  EXPECT_EQ(this->value(), "567");
  EXPECT_THAT(this->heard(), ElementsAre("DidEndEditing"));
}

TYPED_TEST(ValidatedSetting, SettingWhileEditingIsNoChangeOfFocus) {
  this->validate([OvNumberTextValidator class], 3);
  this->edit();
  type(this->window, @"1");
  this->heard();
  [this->control setStringValue:@"4567"];
  EXPECT_THAT(this->heard(), IsEmpty());
  ASSERT_TRUE(this->isEditing());
  EXPECT_EQ(this->typed(), "456");
  EXPECT_EQ([this->editor() selectedRange], NSMakeRange(0, 3));
  type(this->window, @"7");
  EXPECT_EQ(this->typed(), "7");
  type(this->window, @"\t");
  EXPECT_EQ(this->value(), "7");
  // The other setters are not judged, and no change of focus either.
  this->edit();
  [this->control setIntegerValue:12345];
  [this->control setObjectValue:@"x"];
  [this->control setDoubleValue:1];
  [this->control setFloatValue:1];
  [this->control setIntValue:1];
  EXPECT_THAT(this->heard(), IsEmpty());
  EXPECT_TRUE(this->isEditing());
}

TYPED_TEST(ValidatedSetting, NothingSetIsEmpty) {
  [this->control setStringValue:@"abc"];
  [this->control setStringValue:nil];
  EXPECT_EQ(this->value(), "");
  [this->control setTextValidator:nil];
  [this->control setStringValue:nil];
  EXPECT_EQ(this->value(), "");
}

TYPED_TEST(ValidatedSetting, WithoutAValidatorEverythingIsSet) {
  this->validate([OvTextValidator class], 1);
  [this->control setTextValidator:nil];
  [this->control setStringValue:@"abc"];
  EXPECT_EQ(this->value(), "abc");
  EXPECT_TRUE([this->control isValid]);
}

TYPED_TEST(ValidatedSetting, ADelegateHearsAllInOrder) {
  this->hearEverything(this->delegate);
  [this->control setDelegate:this->delegate];
  EXPECT_EQ((id)[this->control delegate], (id)this->delegate);
  this->postAll();
  EXPECT_THAT(this->delegate->heard, ElementsAreArray(this->methodNames()));
}

TYPED_TEST(ValidatedSetting, ADelegateHearsWhatItHasAMethodFor) {
  const std::string method = this->methodNames()[4];
  this->delegate->methods = {method};
  [this->control setDelegate:this->delegate];
  this->postAll();
  EXPECT_THAT(this->delegate->heard, ElementsAre(method));
}

TYPED_TEST(ValidatedSetting, TheSameDelegateAgainHearsOnce) {
  this->hearEverything(this->delegate);
  [this->control setDelegate:this->delegate];
  [this->control setDelegate:this->delegate];
  this->postAll();
  EXPECT_THAT(this->delegate->heard, ElementsAreArray(this->methodNames()));
}

TYPED_TEST(ValidatedSetting, AnotherDelegateTakesOver) {
  this->hearEverything(this->delegate);
  [this->control setDelegate:this->delegate];
  // Though it has no methods any more, it is taken off.
  this->delegate->methods.clear();
  OvTestFieldDelegate *next = [[[OvTestFieldDelegate alloc] init] autorelease];
  this->hearEverything(next);
  [this->control setDelegate:next];
  this->hearEverything(this->delegate);
  this->postAll();
  EXPECT_THAT(this->delegate->heard, IsEmpty());
  EXPECT_THAT(next->heard, ElementsAreArray(this->methodNames()));
  next->heard.clear();
  [this->control setDelegate:nil];
  this->postAll();
  EXPECT_THAT(next->heard, IsEmpty());
}

TYPED_TEST(ValidatedSetting, AnotherControlsEventsAreNotHeard) {
  this->hearEverything(this->delegate);
  [this->control setDelegate:this->delegate];
  auto *second = this->newControl(NSZeroRect);
  for (NSString *name : TypeParam::notifications()) {
    [[NSNotificationCenter defaultCenter] postNotificationName:name object:second];
  }
  EXPECT_THAT(this->delegate->heard, IsEmpty());
}

TYPED_TEST(ValidatedSetting, TheDelegateIsNotRetainedAndGoesBeforeTheValidator) {
  const NSUInteger count = [this->delegate retainCount];
  this->hearEverything(this->delegate);
  NSAutoreleasePool *pool = [[NSAutoreleasePool alloc] init];
  using Mortal = typename MortalOf<TypeParam>::Control;
  Mortal *mortal = [[Mortal alloc] initWithFrame:NSMakeRect(0, 0, 50, 22)];
  [mortal setDelegate:this->delegate];
  EXPECT_EQ([this->delegate retainCount], count);
  letGo.clear();
  [mortal release];
  [pool release];
  ASSERT_THAT(letGo, testing::Not(IsEmpty()));
  EXPECT_EQ(letGo.front(), "nil, with a validator");
}

TYPED_TEST(ValidatedSetting, WakingInstallsAnotherPlainValidator) {
  OvTextValidator *mine = this->validate([OvNumberTextValidator class], 3);
  [mine setAltTextColor:[NSColor greenColor]];
  [this->control setTextColor:[NSColor blueColor]];
  [this->control awakeFromNib];
  OvTextValidator *validator = [this->control textValidator];
  EXPECT_NE(validator, mine);
  EXPECT_TRUE([validator isMemberOfClass:[OvTextValidator class]]);
  EXPECT_EQ([validator maxLength], 0u);
  EXPECT_TRUE([[validator altTextColor] isEqual:[NSColor redColor]]);
  EXPECT_TRUE([[validator defaultTextColor] isEqual:[this->control textColor]]);
}

}  // namespace
