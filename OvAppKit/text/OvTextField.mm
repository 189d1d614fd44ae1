#import "text/OvTextField.h"

#import <OvAppKit/OvTextFieldCell.h>

#include "platform/Composition.h"
#include "support/DelegateSubscription.h"
#include "support/Retained.h"
#include "support/ValidatedEditing.h"
#include "text/FieldFocus.h"

NSString *const OvTextFieldBecomeFirstResponderNotification =
    @"OvTextFieldBecomeFirstResponderNotification";
NSString *const OvTextFieldResignFirstResponderNotification =
    @"OvTextFieldResignFirstResponderNotification";
NSString *const OvTextFieldDidBeginEditingNotification = @"OvTextFieldDidBeginEditingNotification";
NSString *const OvTextFieldDidEndEditingNotification = @"OvTextFieldDidEndEditingNotification";
NSString *const OvTextFieldDidChangeNotification = @"OvTextFieldDidChangeNotification";
NSString *const OvTextFieldDidBecomeValidNotification = @"OvTextFieldDidBecomeValidNotification";
NSString *const OvTextFieldDidBecomeInvalidNotification =
    @"OvTextFieldDidBecomeInvalidNotification";

namespace {

const ov::DelegateEvent kEvents[] = {
    {&OvTextFieldBecomeFirstResponderNotification, "textFieldBecomeFirstResponder:"},
    {&OvTextFieldResignFirstResponderNotification, "textFieldResignFirstResponder:"},
    {&OvTextFieldDidBeginEditingNotification, "textFieldDidBeginEditing:"},
    {&OvTextFieldDidEndEditingNotification, "textFieldDidEndEditing:"},
    {&OvTextFieldDidChangeNotification, "textFieldDidChange:"},
    {&OvTextFieldDidBecomeValidNotification, "textFieldDidBecomeValid:"},
    {&OvTextFieldDidBecomeInvalidNotification, "textFieldDidBecomeInvalid:"},
};

const ov::ValidatedEditingRules kRules = {
    .didChange = &OvTextFieldDidChangeNotification,
    .didBecomeValid = &OvTextFieldDidBecomeValidNotification,
    .didBecomeInvalid = &OvTextFieldDidBecomeInvalidNotification,
    .followsMoveNextKeyView = true};

void post(NSString *name, id component) {
  [[NSNotificationCenter defaultCenter] postNotificationName:name object:component];
}

}  // namespace

struct OvTextFieldState {
  ov::ValidatedEditing editing;
};

@interface OvTextField () <OvValidatedControl>
- (ov::ValidatedEditing &)_ovEditing;
- (OvTextFieldCell *)_ovEmbossCell;
@end

@implementation OvTextField

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
  [self _setupCell];
  [self _ovEditing].installPlainValidator();
}

- (void)_setupCell {
  NSCell *old = [self cell];
  const auto cell =
      ov::adopt([[OvTextFieldCell allocWithZone:[self zone]] initTextCell:[old title]]);
  [cell.get() setMenu:[old menu]];
  [cell.get() setControlSize:[old controlSize]];
  // They are the cell's, and would go with the old one.
  const SEL action = [self action];
  const id target = [self target];
  [self setCell:cell.get()];
  [self setAction:action];
  [self setTarget:target];
}

// The inherited initialisers already send messages that need it.
- (ov::ValidatedEditing &)_ovEditing {
  if (_state == nullptr)
    _state = new OvTextFieldState{{self, &_textValidator, &_beInvalid, kRules}};
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

#pragma mark Embossing

// A host may have set a cell of another class.
- (OvTextFieldCell *)_ovEmbossCell {
  id cell = [self cell];
  return [cell isKindOfClass:[OvTextFieldCell class]] ? cell : nil;
}

- (void)setEmboss:(BOOL)flag {
  [[self _ovEmbossCell] setEmboss:flag];
  [self setNeedsDisplay:YES];
}

- (BOOL)isEmboss {
  return [[self _ovEmbossCell] isEmboss];
}

- (void)setEmbossOffset:(NSSize)offset {
  [[self _ovEmbossCell] setEmbossOffset:offset];
  [self setNeedsDisplay:YES];
}

- (NSSize)embossOffset {
  return [[self _ovEmbossCell] embossOffset];
}

- (void)setEmbossColor:(NSColor *)color {
  [[self _ovEmbossCell] setEmbossColor:color];
  [self setNeedsDisplay:YES];
}

- (NSColor *)embossColor {
  return [[self _ovEmbossCell] embossColor];
}

#pragma mark Focus

- (BOOL)becomeFirstResponder {
  if (![super becomeFirstResponder]) return NO;
  if (!ov::isRestartingEditor(self)) post(OvTextFieldBecomeFirstResponderNotification, self);
  return YES;
}

- (BOOL)resignFirstResponder {
  if (![super resignFirstResponder]) return NO;
  if (!ov::isRestartingEditor(self)) post(OvTextFieldResignFirstResponderNotification, self);
  return YES;
}

- (void)_setUpKeyViewLoopWithNextKeyView:(NSView *)view {
  if (!ov::keepsNextKeyView(self)) [super _setUpKeyViewLoopWithNextKeyView:view];
}

#pragma mark Editing

- (BOOL)textShouldBeginEditing:(NSText *)textObject {
  const id delegate = [self delegate];
  if ([delegate respondsToSelector:@selector(textFieldShouldBeginEditing:)]) {
    return [delegate textFieldShouldBeginEditing:textObject];
  }
  return [super textShouldBeginEditing:textObject];
}

- (BOOL)textShouldEndEditing:(NSText *)textObject {
  [self _ovEditing].commitComposition(textObject);
  const id delegate = [self delegate];
  if ([delegate respondsToSelector:@selector(textFieldShouldEndEditing:)]) {
    return [delegate textFieldShouldEndEditing:textObject];
  }
  if ([_textValidator allowToInputOverLength]) {
    return [_textValidator validString:[textObject string]];
  }
  return [super textShouldEndEditing:textObject];
}

- (void)textDidBeginEditing:(NSNotification *)notification {
  [super textDidBeginEditing:notification];
  post(OvTextFieldDidBeginEditingNotification, self);
}

- (void)textDidEndEditing:(NSNotification *)notification {
  [self _ovEditing].endComposition([notification object]);
  [super textDidEndEditing:notification];
  post(OvTextFieldDidEndEditingNotification, self);
}

- (BOOL)_ovAnnouncesUnmarkedText {
  return YES;
}

- (void)textDidChange:(NSNotification *)notification {
  [super textDidChange:notification];
  [self _ovEditing].textDidChange([notification object]);
}

@end
