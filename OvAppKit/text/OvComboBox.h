// OvComboBox: a combo box that judges its text with an OvTextValidator.
//
// It judges, mends, colours and announces exactly as OvTextField does, whose header tells it in
// full, also for input methods and undo. Only the names of its notifications and delegate
// methods differ, and it keeps its cell: what was editable stays so.
//
//   OvComboBox *box = [[OvComboBox alloc] initWithFrame:NSMakeRect(20, 20, 140, 21)];
//   [box addItemsWithObjectValues:[NSArray arrayWithObjects:@"100", @"200", nil]];
//
//   OvTextValidator *digits = [OvNumberTextValidator textValidator];
//   [digits setMaxLength:3];
//   [box setTextValidator:digits];
//
// The list, completion and the pop-up are NSComboBox's.

#import <AppKit/AppKit.h>
#import <OvAppKit/OvTextValidator.h>
#import <OvFoundation/OvDefines.h>

/** What the combo box tells, each posted to the default notification center, synchronously,
    with the combo box as object and without user info. A delegate that has the method named
    beside it when it is set is subscribed to it, in this order. See OvTextField.h for what
    each one means. */

/** comboBoxBecomeFirstResponder: */
OV_EXPORT NSString *const OvComboBoxBecomeFirstResponderNotification;
/** comboBoxResignFirstResponder: */
OV_EXPORT NSString *const OvComboBoxResignFirstResponderNotification;
/** comboBoxDidBeginEditing: */
OV_EXPORT NSString *const OvComboBoxDidBeginEditingNotification;
/** comboBoxDidEndEditing: */
OV_EXPORT NSString *const OvComboBoxDidEndEditingNotification;
/** comboBoxDidChange: */
OV_EXPORT NSString *const OvComboBoxDidChangeNotification;
/** comboBoxDidBecomeValid: */
OV_EXPORT NSString *const OvComboBoxDidBecomeValidNotification;
/** comboBoxDidBecomeInvalid: */
OV_EXPORT NSString *const OvComboBoxDidBecomeInvalidNotification;

/** Questions that a delegate may answer, asked whenever they arise. */
@interface NSObject (OvComboBoxDelegate)
/** Whether the first change may be made. Without it, NSComboBox's answer. */
- (BOOL)comboBoxShouldBeginEditing:(NSText *)textObject;
/** Whether the combo box may be left. It decides alone. */
- (BOOL)comboBoxShouldEndEditing:(NSText *)textObject;
@end

@interface OvComboBox : NSComboBox {
  OvTextValidator *_textValidator;
  BOOL _beInvalid;
  struct OvComboBoxState *_state;
}

/** A combo box with a plain OvTextValidator, set up by -_setup. */
- (id)initWithFrame:(NSRect)frame;

/** A combo box from an archive, keyed or sequential, is set up like a new one: the validator is
    not archived. */
- (id)initWithCoder:(NSCoder *)coder;
- (void)encodeWithCoder:(NSCoder *)coder;

/** Installs another plain validator: assign yours after the combo box has woken, not before. */
- (void)awakeFromNib;

/** Installs a new plain validator whose default colour is the combo box's text colour and whose
    alternative colour is red. Sent by the initialisers and -awakeFromNib. */
- (void)_setup;

/** The validator, retained. A different one takes over the default and the alternative colour
    of the one it replaces, whatever it had of its own. The text that is there is not judged
    again. nil turns judging off; the next validator then keeps its own colours. */
- (void)setTextValidator:(OvTextValidator *)validator;
- (OvTextValidator *)textValidator;

/** Whether the validator accepts the combo box's text; YES without a validator. */
- (BOOL)isValid;

/** The text's colour. Unlike NSComboBox's, it shows at once while the text is being edited. */
- (void)setTextColor:(NSColor *)color;

/** Sets the text from the program, judged as -[OvTextField setStringValue:] tells. */
- (void)setStringValue:(NSString *)string;

/** The delegate, not retained. Setting one takes the old one off all seven notifications and
    subscribes the new one to those it has a method for now; setting the same one again leaves
    it subscribed once. It goes on hearing NSComboBox's own notifications. */
- (void)setDelegate:(id)delegate;

/** The inherited answer; when it is YES, the Become or Resign notification is posted. */
- (BOOL)becomeFirstResponder;
- (BOOL)resignFirstResponder;

/** The delegate's comboBoxShouldBeginEditing:, else the inherited answer. */
- (BOOL)textShouldBeginEditing:(NSText *)textObject;

/** The delegate's comboBoxShouldEndEditing:; else, under allowToInputOverLength, whether the
    validator accepts the editor's text; else the inherited answer. */
- (BOOL)textShouldEndEditing:(NSText *)textObject;

/** The inherited method, then the DidBeginEditing or DidEndEditing notification. */
- (void)textDidBeginEditing:(NSNotification *)notification;
- (void)textDidEndEditing:(NSNotification *)notification;

/** The inherited method, then judging as -[OvTextField textDidChange:] tells, and last, always,
    DidChange. */
- (void)textDidChange:(NSNotification *)notification;

@end
