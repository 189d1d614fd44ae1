#import "text/OvVPTextField.h"

#include "platform/Composition.h"
#include "support/DelegateSubscription.h"
#include "support/Retained.h"
#include "text/FieldFocus.h"

NSString *const OvVPTextFieldBecomeFirstResponderNotification =
    @"OvVPTextFieldBecomeFirstResponderNotification";
NSString *const OvVPTextFieldResignFirstResponderNotification =
    @"OvVPTextFieldResignFirstResponderNotification";
NSString *const OvVPTextFieldDidBeginEditingNotification =
    @"OvVPTextFieldDidBeginEditingNotification";
NSString *const OvVPTextFieldDidEndEditingNotification = @"OvVPTextFieldDidEndEditingNotification";
NSString *const OvVPTextFieldDidChangeNotification = @"OvVPTextFieldDidChangeNotification";
NSString *const OvVPTextFieldDidBecomeValidNotification =
    @"OvVPTextFieldDidBecomeValidNotification";
NSString *const OvVPTextFieldDidBecomeInvalidNotification =
    @"OvVPTextFieldDidBecomeInvalidNotification";

@interface NSObject (OvVPTextFieldDelegate)
- (BOOL)textFieldShouldBeginEditing:(NSText *)editor;
- (BOOL)textFieldShouldEndEditing:(NSText *)editor;
@end

namespace {

const ov::DelegateEvent kEvents[] = {
    {&OvVPTextFieldBecomeFirstResponderNotification, "textFieldBecomeFirstResponder:"},
    {&OvVPTextFieldResignFirstResponderNotification, "textFieldResignFirstResponder:"},
    {&OvVPTextFieldDidBeginEditingNotification, "textFieldDidBeginEditing:"},
    {&OvVPTextFieldDidEndEditingNotification, "textFieldDidEndEditing:"},
    {&OvVPTextFieldDidChangeNotification, "textFieldDidChange:"},
};

void post(NSString *name, id component) {
  [[NSNotificationCenter defaultCenter] postNotificationName:name object:component];
}

}  // namespace

@implementation OvVPTextField

- (id)initWithFrame:(NSRect)frame {
  return [super initWithFrame:frame];
}

- (void)dealloc {
  [self setDelegate:nil];
  [_minimum release];
  [_maximum release];
  [super dealloc];
}

- (void)setMoveNextKeyView:(BOOL)flag {
  _moveNextKeyView = flag;
}

- (BOOL)moveNextKeyView {
  return _moveNextKeyView;
}

- (void)setMinimum:(NSDecimalNumber *)number {
  OvReplaceRetained(&_minimum, number);
}

- (NSDecimalNumber *)minimum {
  return _minimum;
}

- (void)setMaximum:(NSDecimalNumber *)number {
  OvReplaceRetained(&_maximum, number);
}

- (NSDecimalNumber *)maximum {
  return _maximum;
}

- (void)setDelegate:(id)delegate {
  ov::unsubscribeDelegate([self delegate], self, kEvents);
  [super setDelegate:delegate];
  ov::subscribeDelegate([self delegate], self, kEvents);
}

- (BOOL)becomeFirstResponder {
  const BOOL became = [super becomeFirstResponder];
  if (became && !ov::isRestartingEditor(self)) {
    post(OvVPTextFieldBecomeFirstResponderNotification, self);
  }
  return became;
}

- (BOOL)resignFirstResponder {
  const BOOL resigned = [super resignFirstResponder];
  if (resigned && !ov::isRestartingEditor(self)) {
    post(OvVPTextFieldResignFirstResponderNotification, self);
  }
  return resigned;
}

- (void)setStringValue:(NSString *)string {
  const ov::EditorRestart restart(self);
  [super setStringValue:string];
}

OV_RESTARTING_VALUE_SETTERS

- (void)_setUpKeyViewLoopWithNextKeyView:(NSView *)view {
  if (!ov::keepsNextKeyView(self)) [super _setUpKeyViewLoopWithNextKeyView:view];
}

- (BOOL)textShouldBeginEditing:(NSText *)editor {
  const id delegate = [self delegate];
  if ([delegate respondsToSelector:@selector(textFieldShouldBeginEditing:)]) {
    return [delegate textFieldShouldBeginEditing:editor];
  }
  return [super textShouldBeginEditing:editor];
}

- (BOOL)textShouldEndEditing:(NSText *)editor {
  const id delegate = [self delegate];
  if ([delegate respondsToSelector:@selector(textFieldShouldEndEditing:)]) {
    return [delegate textFieldShouldEndEditing:editor];
  }
  return [self textShouldBeginEditing:editor];
}

- (void)textDidBeginEditing:(NSNotification *)notification {
  [super textDidBeginEditing:notification];
  post(OvVPTextFieldDidBeginEditingNotification, self);
}

- (void)textDidEndEditing:(NSNotification *)notification {
  [super textDidEndEditing:notification];
  post(OvVPTextFieldDidEndEditingNotification, self);
}

- (BOOL)_ovAnnouncesUnmarkedText {
  return YES;
}

- (void)textDidChange:(NSNotification *)notification {
  // Moving on may let the host drop the field.
  const auto alive = ov::retain(self);
  [super textDidChange:notification];
  [self _moveFocusWhenFull:[notification object]];
  post(OvVPTextFieldDidChangeNotification, self);
}

- (void)_moveFocusWhenFull:(NSTextView *)editor {
  if (!_moveNextKeyView || [_maximum doubleValue] <= 0 || ov::isComposing(editor)) return;
  NSString *text = [editor string];
  if (text == nil || static_cast<double>([text length]) != [_maximum doubleValue]) return;
  NSView *next = [self nextKeyView];
  if (next != nil) [[self window] makeFirstResponder:next];
}

@end
