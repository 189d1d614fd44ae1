// What the validated text field, combo box and text view share: asking the validator, mending
// or colouring, telling of a change between valid and invalid once, and waiting for an input
// method to commit. Each control has one:
//
//   const ov::ValidatedEditingRules kRules = {
//       .didChange = &OvTextFieldDidChangeNotification,
//       .didBecomeValid = &OvTextFieldDidBecomeValidNotification,
//       .didBecomeInvalid = &OvTextFieldDidBecomeInvalidNotification,
//       .followsMoveNextKeyView = true};
//
//   struct OvTextFieldState { ov::ValidatedEditing editing; };   // behind the trailing pointer
//   _state = new OvTextFieldState{{self, &_textValidator, &_beInvalid, kRules}};
//
// A control calls it from these methods:
//
//   _setup                    installPlainValidator()
//   setTextValidator:         setValidator()
//   isValid                   accepts([self stringValue])
//   textDidChange:            textDidChange(editor), which posts DidChange last
//   setStringValue:           the string that judgeSetString() answers
//   textShouldEndEditing:     commitComposition(editor), then its own questions
//   textDidEndEditing:        endComposition(editor), before the inherited method
//
// For a text view the editor is the control itself; its -unmarkText must tell of a change.
// A field says YES to -_ovAnnouncesUnmarkedText, for the same reason.

#pragma once

#import <AppKit/AppKit.h>
#import <OvAppKit/OvTextValidator.h>

// What a control answers to; its own overrides apply.
@protocol OvValidatedControl
- (void)setTextValidator:(OvTextValidator *)validator;
- (NSColor *)textColor;
- (void)setTextColor:(NSColor *)color;
@end

namespace ov {

// What differs from one kind of control to the next.
struct ValidatedEditingRules {
  // By the address of their exported names, which have their values once the library is loaded.
  NSString *const *didChange = nullptr;
  NSString *const *didBecomeValid = nullptr;
  NSString *const *didBecomeInvalid = nullptr;
  // Whether the validator's moveNextKeyView counts: it moves the keyboard once the text is full,
  // and silences mending.
  bool followsMoveNextKeyView = false;
  // Whether a text set by the program that is kept although invalid beeps.
  bool beepsWhenSet = false;
};

class ValidatedEditing {
 public:
  // The control owns this object and the variables. The rules must outlive it.
  ValidatedEditing(id control, OvTextValidator **validator, BOOL *beInvalid,
                   const ValidatedEditingRules &rules);
  ValidatedEditing(const ValidatedEditing &) = delete;
  ValidatedEditing &operator=(const ValidatedEditing &) = delete;

  // A plain validator with the control's text colour, and red.
  void installPlainValidator();
  // Carries the held validator's colours into a different one and retains that one.
  void setValidator(OvTextValidator *validator);
  // True without a validator.
  bool accepts(NSString *string) const;

  // Judges what was typed, unless an input method is composing, and posts DidChange last.
  void textDidChange(NSText *editor);
  // Answers what to set: the string itself (an empty one for nil), or as the validator mends it.
  NSString *judgeSetString(NSString *string);
  // Before editing may end: text that an input method is composing is committed, which is a
  // change like any other, except that it does not move the keyboard.
  void commitComposition(NSText *editor);
  // Editing ends unasked: the same, and only the change of validity is told.
  void endComposition(NSText *editor);

 private:
  void judgeTyped(NSText *editor);
  void mark(OvTextValidator *validator, bool valid, bool beeps);
  void moveToNextKeyView();
  void post(NSString *name);

  NSView<OvValidatedControl> *control_;
  OvTextValidator **validator_;
  BOOL *beInvalid_;
  const ValidatedEditingRules &rules_;
  bool keyboardStays_ = false;
};

}  // namespace ov
