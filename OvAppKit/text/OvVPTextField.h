// OvVPTextField: a text field that leaves judging what is typed to its formatter, and tells
// its delegate of focus, editing and changes.
//
//   OvVPNumberFormatter *digits = [[[OvVPNumberFormatter alloc] init] autorelease];
//   [digits setMaximum:[NSDecimalNumber decimalNumberWithString:@"4"]];
//
//   OvVPTextField *year = [[OvVPTextField alloc] initWithFrame:frame];
//   [year setFormatter:digits];                  // stops typing at four digits
//   [year setMaximum:[digits maximum]];          // and at four digits
//   [year setMoveNextKeyView:YES];               // the focus moves on
//   [year setNextKeyView:month];
//   [year setDelegate:self];                     // textFieldDidChange: and so on
//
// The field makes no formatter and sets none up. Formatters of any kind work, and without
// one everything may be typed. docs/text-fields.md tells how typing passes a formatter.

#import <AppKit/AppKit.h>
#import <OvFoundation/OvDefines.h>

/** Posted, synchronously, with the field as object and no user info; the value of each is
    its own name. The delegate observes those whose method it has when it is set:

    BecomeFirstResponder   textFieldBecomeFirstResponder:
    ResignFirstResponder   textFieldResignFirstResponder:
    DidBeginEditing        textFieldDidBeginEditing:
    DidEndEditing          textFieldDidEndEditing:
    DidChange              textFieldDidChange:

    The field hands the focus on to its window's field editor while it takes it. So a field
    that gets the focus posts Resign and then Become, and none of the two when the focus
    leaves: DidEndEditing tells of that, whether or not something was typed. */
OV_EXPORT NSString *const OvVPTextFieldBecomeFirstResponderNotification;
OV_EXPORT NSString *const OvVPTextFieldResignFirstResponderNotification;
OV_EXPORT NSString *const OvVPTextFieldDidBeginEditingNotification;
OV_EXPORT NSString *const OvVPTextFieldDidEndEditingNotification;
OV_EXPORT NSString *const OvVPTextFieldDidChangeNotification;

/** Names for a host's own use; their values are their names. The field never posts them and
    never makes a delegate observe them. */
OV_EXPORT NSString *const OvVPTextFieldDidBecomeValidNotification;
OV_EXPORT NSString *const OvVPTextFieldDidBecomeInvalidNotification;

@interface OvVPTextField : NSTextField {
  BOOL _moveNextKeyView;
  NSDecimalNumber *_minimum;
  NSDecimalNumber *_maximum;
}

/** A field as the platform makes it: it does not move the focus and has neither minimum nor
    maximum. These three are not archived. */
- (id)initWithFrame:(NSRect)frame;

// MARK: Moving on

/** Whether typing moves the focus to -nextKeyView when it makes the text exactly as long as
    the maximum; NO by default. Longer text does not move it, nor does a text set by the
    program, or one that an input method is still composing: it counts when it is committed.
    The focus stays when there is no next key view, or when editing may not end.

    A next key view set before the window is shown for the first time is kept, although the
    platform makes a key view loop of its own then when the window has no initial first
    responder. */
- (void)setMoveNextKeyView:(BOOL)flag;
- (BOOL)moveNextKeyView;

/** Kept for the host and not used by the field. Retained; nil by default. */
- (void)setMinimum:(NSDecimalNumber *)number;
- (NSDecimalNumber *)minimum;

/** The length at which the focus moves on, in UTF-16 units. Retained; nil by default. nil, 0,
    negative numbers and "not a number" never move it, a number with a fraction is never
    met. It does not limit typing and is independent of a formatter's maximum. */
- (void)setMaximum:(NSDecimalNumber *)number;
- (NSDecimalNumber *)maximum;

// MARK: Delegate

/** The object that is told and asked. Not retained; nil by default. The old delegate stops
    observing all five notifications of this field, the new one observes those whose method
    it has now; the platform's own messages to it go on.

    It is asked, if it has the methods, each with the field editor as argument:

    - (BOOL)textFieldShouldBeginEditing:(NSText *)editor;
    - (BOOL)textFieldShouldEndEditing:(NSText *)editor; */
- (void)setDelegate:(id)delegate;

/** The inherited method, and when it answers YES, the notification. A value set while the
    field is edited starts the editor anew, which is no change of focus: nothing is posted. */
- (BOOL)becomeFirstResponder;
- (BOOL)resignFirstResponder;

/** The delegate's textFieldShouldBeginEditing:, otherwise the inherited answer. */
- (BOOL)textShouldBeginEditing:(NSText *)editor;

/** The delegate's textFieldShouldEndEditing:, otherwise this field's own answer to
    -textShouldBeginEditing:. Deliberately not the inherited -textShouldEndEditing:: an edit
    may end whenever one may begin. So a delegate that has textFieldShouldBeginEditing: alone
    decides both, and the platform's control:textShouldEndEditing: and control:isValidObject:
    are not asked. */
- (BOOL)textShouldEndEditing:(NSText *)editor;

/** The inherited method, then the notification; -textDidChange: moves the focus in between. */
- (void)textDidBeginEditing:(NSNotification *)notification;
- (void)textDidEndEditing:(NSNotification *)notification;
- (void)textDidChange:(NSNotification *)notification;

/** The inherited method: nothing is posted and the focus does not move on. */
- (void)setStringValue:(NSString *)string;

@end
