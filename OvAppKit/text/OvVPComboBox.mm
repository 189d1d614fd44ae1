#import "text/OvVPComboBox.h"

#include "platform/Composition.h"
#include "support/DelegateSubscription.h"
#include "text/FieldFocus.h"

NSString *const OvVPComboBoxBecomeFirstResponderNotification =
    @"OvVPComboBoxBecomeFirstResponderNotification";
NSString *const OvVPComboBoxResignFirstResponderNotification =
    @"OvVPComboBoxResignFirstResponderNotification";
NSString *const OvVPComboBoxDidBeginEditingNotification =
    @"OvVPComboBoxDidBeginEditingNotification";
NSString *const OvVPComboBoxDidEndEditingNotification = @"OvVPComboBoxDidEndEditingNotification";
NSString *const OvVPComboBoxDidChangeNotification = @"OvVPComboBoxDidChangeNotification";

@interface NSObject (OvVPComboBoxDelegate)
- (BOOL)comboBoxShouldBeginEditing:(NSText *)editor;
- (BOOL)comboBoxShouldEndEditing:(NSText *)editor;
@end

namespace {

const ov::DelegateEvent kEvents[] = {
    {&OvVPComboBoxBecomeFirstResponderNotification, "comboBoxBecomeFirstResponder:"},
    {&OvVPComboBoxResignFirstResponderNotification, "comboBoxResignFirstResponder:"},
    {&OvVPComboBoxDidBeginEditingNotification, "comboBoxDidBeginEditing:"},
    {&OvVPComboBoxDidEndEditingNotification, "comboBoxDidEndEditing:"},
    {&OvVPComboBoxDidChangeNotification, "comboBoxDidChange:"},
};

void post(NSString *name, id component) {
  [[NSNotificationCenter defaultCenter] postNotificationName:name object:component];
}

}  // namespace

@implementation OvVPComboBox

- (id)initWithFrame:(NSRect)frame {
  return [super initWithFrame:frame];
}

- (void)dealloc {
  [self setDelegate:nil];
  [super dealloc];
}

- (void)setDelegate:(id)delegate {
  ov::unsubscribeDelegate([self delegate], self, kEvents);
  [super setDelegate:delegate];
  ov::subscribeDelegate([self delegate], self, kEvents);
}

- (BOOL)becomeFirstResponder {
  const BOOL became = [super becomeFirstResponder];
  if (became && !ov::isRestartingEditor(self)) {
    post(OvVPComboBoxBecomeFirstResponderNotification, self);
  }
  return became;
}

- (BOOL)resignFirstResponder {
  const BOOL resigned = [super resignFirstResponder];
  if (resigned && !ov::isRestartingEditor(self)) {
    post(OvVPComboBoxResignFirstResponderNotification, self);
  }
  return resigned;
}

- (void)setStringValue:(NSString *)string {
  const ov::EditorRestart restart(self);
  [super setStringValue:string];
}

OV_RESTARTING_VALUE_SETTERS

- (BOOL)textShouldBeginEditing:(NSText *)editor {
  const id delegate = [self delegate];
  if ([delegate respondsToSelector:@selector(comboBoxShouldBeginEditing:)]) {
    return [delegate comboBoxShouldBeginEditing:editor];
  }
  return [super textShouldBeginEditing:editor];
}

- (BOOL)textShouldEndEditing:(NSText *)editor {
  const id delegate = [self delegate];
  if ([delegate respondsToSelector:@selector(comboBoxShouldEndEditing:)]) {
    return [delegate comboBoxShouldEndEditing:editor];
  }
  return [self textShouldBeginEditing:editor];
}

- (void)textDidBeginEditing:(NSNotification *)notification {
  [super textDidBeginEditing:notification];
  post(OvVPComboBoxDidBeginEditingNotification, self);
}

- (void)textDidEndEditing:(NSNotification *)notification {
  [super textDidEndEditing:notification];
  post(OvVPComboBoxDidEndEditingNotification, self);
}

- (BOOL)_ovAnnouncesUnmarkedText {
  return YES;
}

- (void)textDidChange:(NSNotification *)notification {
  [super textDidChange:notification];
  post(OvVPComboBoxDidChangeNotification, self);
}

@end
