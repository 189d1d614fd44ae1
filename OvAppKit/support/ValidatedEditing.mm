#import "support/ValidatedEditing.h"

#include "platform/Composition.h"
#include "support/Retained.h"

namespace ov {

namespace {

NSTextView *textView(NSText *text) {
  return [text isKindOfClass:[NSTextView class]] ? static_cast<NSTextView *>(text) : nil;
}

// A field editor goes on to say that it has marked text after some commits.
bool isComposingIn(NSTextView *editor) {
  return [editor isFieldEditor] ? isComposing(editor) : static_cast<bool>([editor hasMarkedText]);
}

// Undoing the refused edit would bring its text back, and the platform keeps ranges for it
// that the mended text need not have.
void forgetUndo(NSTextView *editor) {
  [[editor undoManager] removeAllActionsWithTarget:[editor textStorage]];
}

}  // namespace

ValidatedEditing::ValidatedEditing(id control, OvTextValidator **validator, BOOL *beInvalid,
                                   const ValidatedEditingRules &rules)
    : control_(control), validator_(validator), beInvalid_(beInvalid), rules_(rules) {}

void ValidatedEditing::installPlainValidator() {
  [control_ setTextValidator:[OvTextValidator textValidator]];
  [*validator_ setDefaultTextColor:[control_ textColor]];
  [*validator_ setAltTextColor:[NSColor redColor]];
}

void ValidatedEditing::setValidator(OvTextValidator *validator) {
  if (validator == *validator_) return;
  if (*validator_ != nil) {
    [validator setDefaultTextColor:[*validator_ defaultTextColor]];
    [validator setAltTextColor:[*validator_ altTextColor]];
  }
  OvReplaceRetained(validator_, validator);
}

bool ValidatedEditing::accepts(NSString *string) const {
  return *validator_ == nil || [*validator_ validString:string];
}

void ValidatedEditing::textDidChange(NSText *editor) {
  // Whoever hears of the change may take the control away.
  const Retained<id> keepsControl = retain<id>(control_);
  if (!isComposingIn(textView(editor))) judgeTyped(editor);
  post(*rules_.didChange);
}

NSString *ValidatedEditing::judgeSetString(NSString *string) {
  if (string == nil) string = @"";
  const Retained<OvTextValidator *> held = retain(*validator_);
  OvTextValidator *validator = held.get();
  if (validator == nil) return string;

  const int32_t result = [validator validateString:string];
  if ([validator allowToInputOverLength]) {
    mark(validator, result >= 0, rules_.beepsWhenSet);
    return string;
  }
  if (result == OvTextIsFull) {
    if (rules_.followsMoveNextKeyView && [validator moveNextKeyView]) moveToNextKeyView();
  } else if (result < 0) {
    return [validator validStringFromInvalidString:[[string copy] autorelease]];
  }
  return string;
}

void ValidatedEditing::commitComposition(NSText *text) {
  NSTextView *editor = textView(text);
  if (!isComposingIn(editor)) return;
  const Retained<id> keepsControl = retain<id>(control_);
  keyboardStays_ = true;
  [editor unmarkText];
  keyboardStays_ = false;
}

void ValidatedEditing::endComposition(NSText *text) {
  NSTextView *editor = textView(text);
  if (!takeComposition(editor)) return;
  const Retained<id> keepsControl = retain<id>(control_);
  keyboardStays_ = true;
  [editor unmarkText];
  judgeTyped(editor);
  keyboardStays_ = false;
}

void ValidatedEditing::judgeTyped(NSText *editor) {
  const Retained<OvTextValidator *> held = retain(*validator_);
  OvTextValidator *validator = held.get();
  if (validator == nil) return;

  const int32_t result = [validator validateString:[editor string]];
  if ([validator allowToInputOverLength]) {
    mark(validator, result >= 0, true);
    return;
  }
  const bool moves = rules_.followsMoveNextKeyView && [validator moveNextKeyView];
  if (result == OvTextIsFull) {
    if (moves && !keyboardStays_) moveToNextKeyView();
  } else if (result < 0) {
    // The editor's string is the one that is about to change.
    NSString *refused = [[[editor string] copy] autorelease];
    NSString *mended = [validator validStringFromInvalidString:refused];
    [editor setString:mended != nil ? mended : @""];
    forgetUndo(textView(editor));
    if (!moves) NSBeep();
  }
}

void ValidatedEditing::mark(OvTextValidator *validator, bool valid, bool beeps) {
  if (!valid && beeps) NSBeep();
  [control_ setTextColor:valid ? [validator defaultTextColor] : [validator altTextColor]];
  if (static_cast<bool>(*beInvalid_) == !valid) return;
  *beInvalid_ = valid ? NO : YES;
  post(valid ? *rules_.didBecomeValid : *rules_.didBecomeInvalid);
}

void ValidatedEditing::moveToNextKeyView() {
  NSView *next = [control_ nextKeyView];
  // No first responder at all would mean the window: the keyboard would be lost.
  if (next != nil) [[control_ window] makeFirstResponder:next];
}

void ValidatedEditing::post(NSString *name) {
  [[NSNotificationCenter defaultCenter] postNotificationName:name object:control_];
}

}  // namespace ov
