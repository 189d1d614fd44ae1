// OvTextField: a text field that judges its text with an OvTextValidator.
//
// After each change of its text, typed or set, the field asks its validator. Depending on the
// validator's settings it mends what broke the rule at once, with a beep, or keeps it, shows it
// in another colour and refuses to be left until it is right:
//
//   OvTextField *field = [[OvTextField alloc] initWithFrame:NSMakeRect(20, 20, 120, 22)];
//   [field setEditable:YES];          // see -initWithFrame: why these are needed
//   [field setSelectable:YES];
//   [field setBezeled:YES];
//   [field setDrawsBackground:YES];
//
//   OvTextValidator *digits = [OvNumberTextValidator textValidator];
//   [digits setMaxLength:3];
//   [digits setMoveNextKeyView:YES];  // on to the next field with the third digit
//   [field setTextValidator:digits];
//   [field setNextKeyView:nextField];
//
//   OvTextValidator *memo = [OvTextValidator textValidator];
//   [memo setMaxLength:140];
//   [memo setAllowToInputOverLength:YES];  // red instead of cut
//   [memoField setTextValidator:memo];
//   [memoField setDelegate:self];          // textFieldDidBecomeInvalid: and its like
//
// OvComboBox does the same in everything that concerns judging.
//
// Input methods. While an input method composes in the editor, nothing is cut, coloured or
// judged and the keyboard stays. What it commits is judged then, and textFieldDidChange: posted,
// whether by -insertText: or by -unmarkText. A composition that is under way when the field is
// about to be left is committed first, and does not move the keyboard. When editing ends without
// a question (-[NSWindow endEditingFor:]), the text is still judged, without a DidChange.
// Whenever -textDidChange: arrives, DidChange is posted, composing or not.
//
// Undo. A mended text is put into the editor in place of the refused one, with the caret at its
// end, and the editor forgets its undo: undoing cannot bring the refused text back.

#import <AppKit/AppKit.h>
#import <OvAppKit/OvTextValidator.h>
#import <OvFoundation/OvDefines.h>

/** What the field tells, each posted to the default notification center, synchronously, with
    the field as object and without user info. A delegate that has the method named beside it
    when it is set is subscribed to it, in this order. */

/** textFieldBecomeFirstResponder: The field took the keyboard. Since its editor takes it over
    at once, gaining the keyboard posts Resign and then Become; losing it posts neither, see
    DidEndEditing. */
OV_EXPORT NSString *const OvTextFieldBecomeFirstResponderNotification;
/** textFieldResignFirstResponder: */
OV_EXPORT NSString *const OvTextFieldResignFirstResponderNotification;
/** textFieldDidBeginEditing: The first change is about to happen. */
OV_EXPORT NSString *const OvTextFieldDidBeginEditingNotification;
/** textFieldDidEndEditing: The field was left, whether or not its text had changed. */
OV_EXPORT NSString *const OvTextFieldDidEndEditingNotification;
/** textFieldDidChange: The user changed the text, which has been judged and perhaps mended. */
OV_EXPORT NSString *const OvTextFieldDidChangeNotification;
/** textFieldDidBecomeValid: Under allowToInputOverLength, an invalid text has become valid. */
OV_EXPORT NSString *const OvTextFieldDidBecomeValidNotification;
/** textFieldDidBecomeInvalid: Under allowToInputOverLength, a valid text has become invalid. */
OV_EXPORT NSString *const OvTextFieldDidBecomeInvalidNotification;

/** Questions that a delegate may answer, asked whenever they arise. NSTextField's own delegate
    methods (control:textShouldEndEditing:, controlTextDidChange: and so on) work as usual. */
@interface NSObject (OvTextFieldDelegate)
/** Whether the first change may be made. Without it, NSTextField's answer. */
- (BOOL)textFieldShouldBeginEditing:(NSText *)textObject;
/** Whether the field may be left. It decides alone: neither the validator nor NSTextField is
    asked then. */
- (BOOL)textFieldShouldEndEditing:(NSText *)textObject;
@end

@interface OvTextField : NSTextField {
  OvTextValidator *_textValidator;
  BOOL _beInvalid;
  struct OvTextFieldState *_state;
}

/** A field with a plain OvTextValidator, which lets everything pass, set up by -_setup.

    The set-up replaces the field's cell by a new OvTextFieldCell, and a new cell is neither
    editable nor selectable, has no bezel and draws no background. This is deliberate, and holds
    for a field from an archive or an interface file too: of the cell that was there, only the
    title, menu, control size, target and action are taken over. So turn on what you need, in
    code or in your -awakeFromNib:

      [field setEditable:YES];
      [field setSelectable:YES];
      [field setBezeled:YES];
      [field setDrawsBackground:YES]; */
- (id)initWithFrame:(NSRect)frame;

/** A field from an archive, keyed or sequential, is set up like a new one: the validator and
    the emboss attributes are not archived. */
- (id)initWithCoder:(NSCoder *)coder;
- (void)encodeWithCoder:(NSCoder *)coder;

/** Sets the field up once more, with another cell and another plain validator: assign a
    validator after the field has woken, not before. */
- (void)awakeFromNib;

/** -_setupCell, then a new plain validator whose default colour is the field's text colour and
    whose alternative colour is red. Sent by the initialisers and -awakeFromNib. */
- (void)_setup;

/** Replaces the cell by a new OvTextFieldCell with the title, menu and control size of the old
    one. The field keeps its target and action. */
- (void)_setupCell;

/** The validator, retained. A different one takes over the default and the alternative colour
    of the one it replaces, whatever it had of its own. The text that is there is not judged
    again. nil turns judging off; the next validator then keeps its own colours. */
- (void)setTextValidator:(OvTextValidator *)validator;
- (OvTextValidator *)textValidator;

/** Whether the validator accepts the field's text; YES without a validator. */
- (BOOL)isValid;

/** The text's colour. Unlike NSTextField's, it shows at once while the text is being edited. */
- (void)setTextColor:(NSColor *)color;

/** Sets the text from the program. The validator is asked first, nothing beeps, and no
    DidChange is posted:

    - mending (allowToInputOverLength NO): an invalid text is set as the validator mends it; a
      text that is exactly full first gives the keyboard to the next key view, if the validator
      says moveNextKeyView, whether or not the field had the keyboard;
    - keeping (allowToInputOverLength YES): the text is set as it is, in the default or the
      alternative colour, and DidBecomeValid or DidBecomeInvalid is posted on a transition.

    nil counts as the empty string. While the field is being edited, editing goes on with the
    new text, all of it selected: no focus notification is posted for that. */
- (void)setStringValue:(NSString *)string;

/** The delegate, not retained. Setting one takes the old one off all seven notifications and
    subscribes the new one to those it has a method for now; setting the same one again leaves
    it subscribed once. */
- (void)setDelegate:(id)delegate;

/** The emboss attributes of the field's OvTextFieldCell, see there. With a cell of another class
    in its place they do nothing and answer NO, no offset and nil. */
- (void)setEmboss:(BOOL)flag;
- (BOOL)isEmboss;
- (void)setEmbossOffset:(NSSize)offset;
- (NSSize)embossOffset;
- (void)setEmbossColor:(NSColor *)color;
- (NSColor *)embossColor;

/** The inherited answer; when it is YES, the Become or Resign notification is posted. */
- (BOOL)becomeFirstResponder;
- (BOOL)resignFirstResponder;

/** The delegate's textFieldShouldBeginEditing:, else the inherited answer. */
- (BOOL)textShouldBeginEditing:(NSText *)textObject;

/** The delegate's textFieldShouldEndEditing:; else, under allowToInputOverLength, whether the
    validator accepts the editor's text, so that a field with an invalid text is not left; else
    the inherited answer. */
- (BOOL)textShouldEndEditing:(NSText *)textObject;

/** The inherited method, then the DidBeginEditing or DidEndEditing notification. */
- (void)textDidBeginEditing:(NSNotification *)notification;
- (void)textDidEndEditing:(NSNotification *)notification;

/** The inherited method; then the validator judges the editor's text:

    - mending: an invalid text is replaced by the mended one, with a beep unless the validator
      says moveNextKeyView; with moveNextKeyView a text that is exactly full gives the keyboard
      to the next key view. Without a next key view, the keyboard stays where it is;
    - keeping: an invalid text beeps at each change and shows in the alternative colour, a valid
      one in the default colour; a transition is posted once. moveNextKeyView is not looked at.

    Last, always, DidChange. */
- (void)textDidChange:(NSNotification *)notification;

@end
