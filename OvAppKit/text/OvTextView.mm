#import <OvAppKit/OvTextView.h>
#import <OvAppKit/OvTextViewLines.h>

#import "platform/TextViewObservers.h"
#import "support/DelegateSubscription.h"
#import "text/OvTextView+Private.h"

NSString *const OvTextViewBecomeFirstResponderNotification =
    @"OvTextViewBecomeFirstResponderNotification";
NSString *const OvTextViewResignFirstResponderNotification =
    @"OvTextViewResignFirstResponderNotification";
NSString *const OvTextViewDidBeginEditingNotification = @"OvTextViewDidBeginEditingNotification";
NSString *const OvTextViewDidEndEditingNotification = @"OvTextViewDidEndEditingNotification";
NSString *const OvTextViewDidChangeNotification = @"OvTextViewDidChangeNotification";
NSString *const OvTextViewDidBecomeValidNotification = @"OvTextViewDidBecomeValidNotification";
NSString *const OvTextViewDidBecomeInvalidNotification = @"OvTextViewDidBecomeInvalidNotification";
NSString *const OvTextViewDidReturnNotification = @"OvTextViewDidReturnNotification";
NSString *const OvTextViewWillPasteStringNotification = @"OvTextViewWillPasteStringNotification";

static const ov::DelegateEvent kEvents[] = {
    {&OvTextViewBecomeFirstResponderNotification, "textViewBecomeFirstResponder:"},
    {&OvTextViewResignFirstResponderNotification, "textViewResignFirstResponder:"},
    {&OvTextViewDidBeginEditingNotification, "textViewDidBeginEditing:"},
    {&OvTextViewDidEndEditingNotification, "textViewDidEndEditing:"},
    {&OvTextViewDidChangeNotification, "textViewDidChange:"},
    {&OvTextViewDidBecomeValidNotification, "textViewDidBecomeValid:"},
    {&OvTextViewDidBecomeInvalidNotification, "textViewDidBecomeInvalid:"},
    {&OvTextViewDidReturnNotification, "textViewDidReturn:"},
    {&OvTextViewWillPasteStringNotification, "textViewWillPasteString:"},
};

static const ov::ValidatedEditingRules kRules = {
    .didChange = &OvTextViewDidChangeNotification,
    .didBecomeValid = &OvTextViewDidBecomeValidNotification,
    .didBecomeInvalid = &OvTextViewDidBecomeInvalidNotification,
    .beepsWhenSet = true};

// What a client may implement to be asked.
@interface NSObject (OvTextViewDelegate)
- (BOOL)textViewShouldBeginEditing:(NSText *)text;
- (BOOL)textViewShouldEndEditing:(NSText *)text;
@end

@interface OvTextView () <OvValidatedControl>
- (void)_setup;
- (void)_ovMakeState;
- (void)_ovForgetUndo;
@end

@implementation OvTextView

- (id)initWithFrame:(NSRect)frameRect textContainer:(NSTextContainer *)container {
  self = [super initWithFrame:frameRect textContainer:container];
  if (self == nil) return nil;
  [self _ovMakeState];
  [self _setup];
  return self;
}

- (id)initWithCoder:(NSCoder *)coder {
  self = [super initWithCoder:coder];
  if (self == nil) return nil;
  [self _ovMakeState];
  // A view that was its own delegate in the archive had a client that is not there. One that
  // was archived as a plain text view may bring its delegate along.
  id archived = _myDelegate != nil ? _myDelegate : [self delegate];
  [self setDelegate:archived == self ? nil : archived];
  [self _setup];
  return self;
}

- (void)encodeWithCoder:(NSCoder *)coder {
  [super encodeWithCoder:coder];
}

- (void)awakeFromNib {
  [self _setup];
}

- (void)_ovMakeState {
  _state = new OvTextViewState{.editing = {self, &_textValidator, &_beInvalid, kRules}};
}

- (void)_setup {
  _state->editing.installPlainValidator();
}

- (void)dealloc {
  [self setDelegate:nil];
  [self _ovForgetUndo];
  delete _state;
  _state = nullptr;
  [_textValidator release];
  [super dealloc];
}

#pragma mark Attributes

- (void)setTextValidator:(OvTextValidator *)validator {
  _state->editing.setValidator(validator);
}

- (OvTextValidator *)textValidator {
  return _textValidator;
}

- (BOOL)isValid {
  return _state->editing.accepts([self string]);
}

- (uint32_t)lineCount {
  return OvTextViewGetLineCount([self string]);
}

- (NSString *)stringAtLineIndex:(uint32_t)index {
  return OvTextViewGetIndexedLineString([self string], index);
}

// The platform looks for both in the layout manager, and crashes without one.
- (NSColor *)textColor {
  return [self layoutManager] != nil ? [super textColor] : nil;
}

- (void)setTextColor:(NSColor *)color {
  if ([self layoutManager] != nil) [super setTextColor:color];
}

- (void)setTabToResignFirstResponder:(BOOL)flag {
  if (_tabToResignFirstResponder != flag) _tabToResignFirstResponder = flag;
}

- (BOOL)tabToResignFirstResponder {
  return _tabToResignFirstResponder;
}

#pragma mark Delegate

- (void)setDelegate:(id)delegate {
  // Views that share a layout manager share a delegate on the platform, which hands the one
  // that is its own delegate on to the others. They would outlive it.
  if (delegate != self && [delegate isKindOfClass:[OvTextView class]] &&
      [self layoutManager] != nil && [delegate layoutManager] == [self layoutManager]) {
    return;
  }
  const BOOL wasOwnDelegate = [self delegate] == self;
  [super setDelegate:delegate != nil ? self : nil];
  if (wasOwnDelegate) ov::restoreTextViewObservers(self);
  [self setMyDelegate:delegate];
}

- (void)setMyDelegate:(id)delegate {
  ov::unsubscribeDelegate(_myDelegate, self, kEvents);
  _myDelegate = delegate;
  ov::subscribeDelegate(_myDelegate, self, kEvents);
}

- (id)myDelegate {
  return _myDelegate;
}

#pragma mark Editing

- (BOOL)textShouldBeginEditing:(NSText *)text {
  if ([_myDelegate respondsToSelector:@selector(textViewShouldBeginEditing:)]) {
    return [_myDelegate textViewShouldBeginEditing:text];
  }
  return YES;
}

- (BOOL)textShouldEndEditing:(NSText *)text {
  _state->editing.commitComposition(text);
  if ([_myDelegate respondsToSelector:@selector(textViewShouldEndEditing:)]) {
    return [_myDelegate textViewShouldEndEditing:text];
  }
  return [_textValidator validString:[text string]];
}

- (void)textDidBeginEditing:(NSNotification *)notification {
  (void)notification;
  // Without a text of its own, a view hears of every text there is.
  if ([self layoutManager] == nil) return;
  [self _ovPost:OvTextViewDidBeginEditingNotification userInfo:nil];
}

- (void)textDidEndEditing:(NSNotification *)notification {
  if ([self layoutManager] == nil) return;
  _state->editing.commitComposition([notification object]);
  [self _ovPost:OvTextViewDidEndEditingNotification userInfo:nil];
}

- (void)textDidChange:(NSNotification *)notification {
  if ([self layoutManager] == nil) return;
  _state->editing.textDidChange([notification object]);
}

- (void)setString:(NSString *)string {
  if (string == nil) string = @"";
  NSString *judged = _state != nullptr ? _state->editing.judgeSetString(string) : string;
  if ([self layoutManager] == nil) return;  // there is nothing that could hold it
  // In vain, and meant so: the whole string follows.
  if (judged != string) [super setString:judged != nil ? judged : @""];
  [super setString:string];
  [self _ovForgetUndo];
}

// What an input method inserts puts an end to its composing. The platform leaves the text
// marked, and would not let it be judged any more.
- (void)insertText:(id)text {
  if ([self hasMarkedText] && NSMaxRange([self markedRange]) <= [[self string] length]) {
    [super unmarkText];
  }
  [super insertText:text];
}

// Committing a composition this way is a change that the platform tells nobody of.
- (void)unmarkText {
  const BOOL marked = [self hasMarkedText];
  const NSUInteger length = [[self string] length];
  if (marked && NSMaxRange([self markedRange]) > length) {
    // The platform would change attributes at a place that is gone.
    [self setMarkedText:@"" selectedRange:NSMakeRange(length, 0)];
  }
  [super unmarkText];
  if (marked && [self delegate] == self) [self didChangeText];
}

- (void)didChangeText {
  _state->changes++;
  [super didChangeText];
}

- (void)_ovPost:(NSString *)name userInfo:(NSDictionary *)userInfo {
  [[NSNotificationCenter defaultCenter] postNotificationName:name object:self userInfo:userInfo];
}

- (void)_ovPost:(NSString *)name line:(NSString *)line {
  [self _ovPost:name userInfo:line != nil ? @{@"OvString" : line} : nil];
}

#pragma mark Undo

- (BOOL)shouldChangeTextInRange:(NSRange)range replacementString:(NSString *)string {
  const BOOL allowed = [super shouldChangeTextInRange:range replacementString:string];
  if (allowed && [self allowsUndo]) _state->undoManager = ov::retain([self undoManager]);
  return allowed;
}

// The platform's undo acts on ranges of the text storage, which the undo manager does not
// retain: once the text was replaced, or has died with its view, undoing would crash.
- (void)_ovForgetUndo {
  if (_state == nullptr) return;
  [_state->undoManager.get() removeAllActionsWithTarget:[self textStorage]];
}

@end
