// OvVPComboBox: a combo box that leaves judging what is typed to its formatter, and tells its
// delegate of focus, editing and changes.
//
//   OvVPComboBox *size = [[OvVPComboBox alloc] initWithFrame:frame];
//   [size setFormatter:[[[OvVPNumberFormatter alloc] init] autorelease]];
//   [size addItemWithObjectValue:@"12"];
//   [size setDelegate:self];                     // comboBoxDidChange: and so on
//
// The combo box makes no formatter and sets none up.

#import <AppKit/AppKit.h>
#import <OvFoundation/OvDefines.h>

/** Posted, synchronously, with the combo box as object and no user info; the value of each is
    its own name. The delegate observes those whose method it has when it is set:

    BecomeFirstResponder   comboBoxBecomeFirstResponder:
    ResignFirstResponder   comboBoxResignFirstResponder:
    DidBeginEditing        comboBoxDidBeginEditing:
    DidEndEditing          comboBoxDidEndEditing:
    DidChange              comboBoxDidChange:

    A combo box that gets the focus posts Resign and then Become, and none of the two when the
    focus leaves, like OvVPTextField. Choosing an item is not typing and posts nothing here;
    the platform's own notifications tell of it. */
OV_EXPORT NSString *const OvVPComboBoxBecomeFirstResponderNotification;
OV_EXPORT NSString *const OvVPComboBoxResignFirstResponderNotification;
OV_EXPORT NSString *const OvVPComboBoxDidBeginEditingNotification;
OV_EXPORT NSString *const OvVPComboBoxDidEndEditingNotification;
OV_EXPORT NSString *const OvVPComboBoxDidChangeNotification;

@interface OvVPComboBox : NSComboBox

/** A combo box as the platform makes it. */
- (id)initWithFrame:(NSRect)frame;

/** The object that is told and asked. Not retained; nil by default. The old delegate stops
    observing all five notifications of this combo box, the new one observes those whose
    method it has now; the platform's own messages to it go on.

    It is asked, if it has the methods, each with the field editor as argument:

    - (BOOL)comboBoxShouldBeginEditing:(NSText *)editor;
    - (BOOL)comboBoxShouldEndEditing:(NSText *)editor; */
- (void)setDelegate:(id)delegate;

/** The inherited method, and when it answers YES, the notification. A value set while the
    combo box is edited starts the editor anew, which is no change of focus: nothing is
    posted. */
- (BOOL)becomeFirstResponder;
- (BOOL)resignFirstResponder;

/** The delegate's comboBoxShouldBeginEditing:, otherwise the inherited answer. */
- (BOOL)textShouldBeginEditing:(NSText *)editor;

/** The delegate's comboBoxShouldEndEditing:, otherwise this combo box's own answer to
    -textShouldBeginEditing:. Deliberately not the inherited -textShouldEndEditing:: an edit
    may end whenever one may begin, see OvVPTextField. */
- (BOOL)textShouldEndEditing:(NSText *)editor;

/** The inherited method, then the notification. */
- (void)textDidBeginEditing:(NSNotification *)notification;
- (void)textDidEndEditing:(NSNotification *)notification;
- (void)textDidChange:(NSNotification *)notification;

/** The inherited method: nothing is posted. */
- (void)setStringValue:(NSString *)string;

@end
