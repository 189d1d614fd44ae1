#import "text/OvComboBox.h"

#include "platform/Composition.h"
#include "support/DelegateSubscription.h"
#include "support/Retained.h"
#include "support/ValidatedEditing.h"
#include "text/FieldFocus.h"

NSString *const OvComboBoxBecomeFirstResponderNotification =
    @"OvComboBoxBecomeFirstResponderNotification";
NSString *const OvComboBoxResignFirstResponderNotification =
    @"OvComboBoxResignFirstResponderNotification";
NSString *const OvComboBoxDidBeginEditingNotification = @"OvComboBoxDidBeginEditingNotification";
NSString *const OvComboBoxDidEndEditingNotification = @"OvComboBoxDidEndEditingNotification";
NSString *const OvComboBoxDidChangeNotification = @"OvComboBoxDidChangeNotification";
NSString *const OvComboBoxDidBecomeValidNotification = @"OvComboBoxDidBecomeValidNotification";
NSString *const OvComboBoxDidBecomeInvalidNotification = @"OvComboBoxDidBecomeInvalidNotification";

namespace {

const ov::DelegateEvent kEvents[] = {
    {&OvComboBoxBecomeFirstResponderNotification, "comboBoxBecomeFirstResponder:"},
    {&OvComboBoxResignFirstResponderNotification, "comboBoxResignFirstResponder:"},
    {&OvComboBoxDidBeginEditingNotification, "comboBoxDidBeginEditing:"},
    {&OvComboBoxDidEndEditingNotification, "comboBoxDidEndEditing:"},
    {&OvComboBoxDidChangeNotification, "comboBoxDidChange:"},
    {&OvComboBoxDidBecomeValidNotification, "comboBoxDidBecomeValid:"},
    {&OvComboBoxDidBecomeInvalidNotification, "comboBoxDidBecomeInvalid:"},
};

const ov::ValidatedEditingRules kRules = {
    .didChange = &OvComboBoxDidChangeNotification,
    .didBecomeValid = &OvComboBoxDidBecomeValidNotification,
    .didBecomeInvalid = &OvComboBoxDidBecomeInvalidNotification,
    .followsMoveNextKeyView = true};

void post(NSString *name, id component) {
  [[NSNotificationCenter defaultCenter] postNotificationName:name object:component];
}

}  // namespace

struct OvComboBoxState {
  ov::ValidatedEditing editing;
};

@interface OvComboBox () <OvValidatedControl>
- (ov::ValidatedEditing &)_ovEditing;
@end

@implementation OvComboBox

- (id)initWithFrame:(NSRect)frame {
  self = [super initWithFrame:frame];
  if (self != nil) [self _setup];
  return self;
}

- (id)initWithCoder:(NSCoder *)coder {
  self = [super initWithCoder:coder];
  if (self != nil) [self _setup];
  return self;
}

- (void)encodeWithCoder:(NSCoder *)coder {
  [super encodeWithCoder:coder];
}

- (void)awakeFromNib {
  [self _setup];
}

- (void)dealloc {
  [self setDelegate:nil];
  delete _state;
  _state = nullptr;
  [_textValidator release];
  _textValidator = nil;
  [super dealloc];
}

- (void)_setup {
  [self _ovEditing].installPlainValidator();
}

// The inherited initialisers already send messages that need it.
- (ov::ValidatedEditing &)_ovEditing {
  if (_state == nullptr) _state = new OvComboBoxState{{self, &_textValidator, &_beInvalid, kRules}};
  return _state->editing;
}

#pragma mark Attributes

- (void)setTextValidator:(OvTextValidator *)validator {
  [self _ovEditing].setValidator(validator);
}

- (OvTextValidator *)textValidator {
  return _textValidator;
}

- (BOOL)isValid {
  return [self _ovEditing].accepts([self stringValue]);
}

// The platform colours the cell alone, which shows only once editing has ended.
- (void)setTextColor:(NSColor *)color {
  [super setTextColor:color];
  [[self currentEditor] setTextColor:color];
}

- (void)setStringValue:(NSString *)string {
  // Whoever hears of the judgement may take the control away.
  const auto alive = ov::retain(self);
  NSString *judged = [self _ovEditing].judgeSetString(string);
  const ov::EditorRestart restart(self);
  [super setStringValue:judged];
}

OV_RESTARTING_VALUE_SETTERS

- (void)setDelegate:(id)delegate {
  ov::unsubscribeDelegate([self delegate], self, kEvents);
  [super setDelegate:delegate];
  ov::subscribeDelegate([self delegate], self, kEvents);
}

#pragma mark Focus

- (BOOL)becomeFirstResponder {
  if (![super becomeFirstResponder]) return NO;
  if (!ov::isRestartingEditor(self)) post(OvComboBoxBecomeFirstResponderNotification, self);
  return YES;
}

- (BOOL)resignFirstResponder {
  if (![super resignFirstResponder]) return NO;
  if (!ov::isRestartingEditor(self)) post(OvComboBoxResignFirstResponderNotification, self);
  return YES;
}

- (void)_setUpKeyViewLoopWithNextKeyView:(NSView *)view {
  if (!ov::keepsNextKeyView(self)) [super _setUpKeyViewLoopWithNextKeyView:view];
}

#pragma mark Editing

- (BOOL)textShouldBeginEditing:(NSText *)textObject {
  const id delegate = [self delegate];
  if ([delegate respondsToSelector:@selector(comboBoxShouldBeginEditing:)]) {
    return [delegate comboBoxShouldBeginEditing:textObject];
  }
  return [super textShouldBeginEditing:textObject];
}

- (BOOL)textShouldEndEditing:(NSText *)textObject {
  [self _ovEditing].commitComposition(textObject);
  const id delegate = [self delegate];
  if ([delegate respondsToSelector:@selector(comboBoxShouldEndEditing:)]) {
    return [delegate comboBoxShouldEndEditing:textObject];
  }
  if ([_textValidator allowToInputOverLength]) {
    return [_textValidator validString:[textObject string]];
  }
  return [super textShouldEndEditing:textObject];
}

- (void)textDidBeginEditing:(NSNotification *)notification {
  [super textDidBeginEditing:notification];
  post(OvComboBoxDidBeginEditingNotification, self);
}

- (void)textDidEndEditing:(NSNotification *)notification {
  [self _ovEditing].endComposition([notification object]);
  [super textDidEndEditing:notification];
  post(OvComboBoxDidEndEditingNotification, self);
}

- (BOOL)_ovAnnouncesUnmarkedText {
  return YES;
}

- (void)textDidChange:(NSNotification *)notification {
  [super textDidChange:notification];
  [self _ovEditing].textDidChange([notification object]);
}

@end
