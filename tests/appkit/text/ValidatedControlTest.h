// What the tests of the validated text field and combo box share. The same tests run over both
// classes:
//
//   TYPED_TEST_SUITE(Typing, ov::test::ControlKinds, ov::test::KindName);

#pragma once

#import <OvAppKit/OvAppKit.h>

#include <set>
#include <string>
#include <vector>

#import "LiveTest.h"

// Answers to the methods it is told to have, and writes down those it is sent.
@interface OvTestFieldDelegate : NSObject {
 @public
  std::set<std::string> methods;
  std::vector<std::string> heard;
  BOOL answer;
  BOOL removesControl;  // when it hears of something
}
@end

// Writes down a control's notifications by what follows the class's name.
@interface OvTestFieldObserver : NSObject {
 @public
  std::vector<std::string> heard;
  size_t prefix;
  BOOL withUserInfo;
}
@end

namespace ov::test {

struct TextFieldKind {
  using Control = OvTextField;
  static constexpr const char *kPrefix = "OvTextField";
  static constexpr const char *kMethodPrefix = "textField";
  static std::vector<NSString *> notifications() {
    return {OvTextFieldBecomeFirstResponderNotification,
            OvTextFieldResignFirstResponderNotification,
            OvTextFieldDidBeginEditingNotification,
            OvTextFieldDidEndEditingNotification,
            OvTextFieldDidChangeNotification,
            OvTextFieldDidBecomeValidNotification,
            OvTextFieldDidBecomeInvalidNotification};
  }
};

struct ComboBoxKind {
  using Control = OvComboBox;
  static constexpr const char *kPrefix = "OvComboBox";
  static constexpr const char *kMethodPrefix = "comboBox";
  static std::vector<NSString *> notifications() {
    return {OvComboBoxBecomeFirstResponderNotification,
            OvComboBoxResignFirstResponderNotification,
            OvComboBoxDidBeginEditingNotification,
            OvComboBoxDidEndEditingNotification,
            OvComboBoxDidChangeNotification,
            OvComboBoxDidBecomeValidNotification,
            OvComboBoxDidBecomeInvalidNotification};
  }
};

using ControlKinds = ::testing::Types<TextFieldKind, ComboBoxKind>;

struct KindName {
  template <typename Kind>
  static std::string GetName(int) {
    return Kind::kMethodPrefix;
  }
};

// The suffixes of the notifications, in the order in which a delegate is subscribed.
inline const std::vector<std::string> kEventSuffixes = {
    "BecomeFirstResponder", "ResignFirstResponder", "DidBeginEditing", "DidEndEditing", "DidChange",
    "DidBecomeValid",       "DidBecomeInvalid"};

inline std::string utf8(NSString *string) {
  const char *bytes = string != nil ? [string UTF8String] : nullptr;
  return bytes != nullptr ? bytes : "(nil)";
}

// A window with the control above a plain text field, each the other's next key view.
template <typename Kind>
class ValidatedControlTest : public LiveTest {
 protected:
  using Control = typename Kind::Control;
  using Log = std::vector<std::string>;

  void SetUp() override {
    LiveTest::SetUp();
    window = showWindow(NSMakeSize(240, 120));
    control = newControl(NSMakeRect(20, 70, 160, 22));
    other = [[[NSTextField alloc] initWithFrame:NSMakeRect(20, 20, 160, 22)] autorelease];
    [[window contentView] addSubview:control];
    [[window contentView] addSubview:other];
    [control setNextKeyView:other];
    [other setNextKeyView:control];
    observer = [[[OvTestFieldObserver alloc] init] autorelease];
    observer->prefix = strlen(Kind::kPrefix);
    for (NSString *name : Kind::notifications()) {
      [[NSNotificationCenter defaultCenter] addObserver:observer
                                               selector:@selector(note:)
                                                   name:name
                                                 object:control];
    }
    delegate = [[[OvTestFieldDelegate alloc] init] autorelease];
  }

  void TearDown() override {
    EXPECT_FALSE(observer->withUserInfo);
    [[NSNotificationCenter defaultCenter] removeObserver:observer];
    [control setDelegate:nil];
    LiveTest::TearDown();
  }

  // What a host makes: ready to be typed into.
  static Control *newControl(NSRect frame) {
    Control *made = [[[Control alloc] initWithFrame:frame] autorelease];
    [made setEditable:YES];
    [made setSelectable:YES];
    [made setBezeled:YES];
    [made setDrawsBackground:YES];
    return made;
  }

  static Class controlClass() {
    using Made = typename Kind::Control;
    return [Made class];
  }

  OvTextValidator *validate(Class ruleClass, uint32_t maxLength) {
    OvTextValidator *validator = [ruleClass textValidator];
    [validator setMaxLength:maxLength];
    [control setTextValidator:validator];
    return validator;
  }

  // Gives the control the keyboard and forgets what was heard of that.
  void edit() {
    ASSERT_TRUE([window makeFirstResponder:control]);
    heard();
  }

  NSTextView *editor() {
    return static_cast<NSTextView *>([window fieldEditor:NO forObject:control]);
  }
  bool isEditing() { return [control currentEditor] != nil; }
  bool isEditingOther() { return [other currentEditor] != nil; }
  std::string typed() { return utf8([editor() string]); }
  std::string value() { return utf8([control stringValue]); }

  NSColor *shownColor() {
    return [[editor() textStorage] attribute:NSForegroundColorAttributeName
                                     atIndex:0
                              effectiveRange:NULL];
  }

  // What the control has told since the last question.
  Log heard() { return std::exchange(observer->heard, {}); }

  NSWindow *window = nil;
  Control *control = nil;
  NSTextField *other = nil;
  OvTestFieldObserver *observer = nil;
  OvTestFieldDelegate *delegate = nil;
};

}  // namespace ov::test
