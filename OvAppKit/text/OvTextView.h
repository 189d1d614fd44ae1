// OvTextView: a text view whose text a validator judges, that tells of the lines that are
// ended, left and pasted, and that Tab can leave.
//
//   OvTextView *view = [[OvTextView alloc] initWithFrame:frame];
//   OvTextValidator *validator = [OvTextValidator textValidator];
//   [validator setMaxLength:140];
//   [view setTextValidator:validator];
//   [view setTabToResignFirstResponder:YES];
//   [view setDelegate:self];      // without a delegate nothing is validated
//   [scrollView setDocumentView:view];
//
//   - (void)textViewDidReturn:(NSNotification *)notification {
//     NSString *line = [[notification userInfo] objectForKey:@"OvString"];  // nil: empty
//   }
//
// Set the validator once the view has woken from its interface file: waking installs a fresh
// one. OvTextViewLines.h has the functions that tell the lines of any string.
//
// While an input method composes (the view has marked text), nothing is judged, cut or
// coloured, and Return, Enter and Tab go to the input method. The text is judged when it is
// committed, by -insertText:, by -unmarkText or by leaving the view; each commit posts DidChange.
//
// Each view needs a layout manager of its own: of several views that share one, only the first
// that is given a delegate has one.
//
// The view uses the main thread only.

#import <AppKit/AppKit.h>
#import <OvAppKit/OvTextValidator.h>
#import <OvFoundation/OvDefines.h>

#include <stdint.h>

/** Every notification has the view as object and its own name as value. The client's delegate
    is made an observer of those whose method it has, in this order. They have no user info
    unless stated. */

/** The view has become first responder. Once per gain, however often the platform says so.
    textViewBecomeFirstResponder: */
OV_EXPORT NSString *const OvTextViewBecomeFirstResponderNotification;
/** The view is no longer first responder. User info: "OvString", the text of the line that
    holds the insertion point (the start of the selection); none when that line is empty.
    textViewResignFirstResponder: */
OV_EXPORT NSString *const OvTextViewResignFirstResponderNotification;
/** The first change since the view became first responder is about to be made.
    textViewDidBeginEditing: */
OV_EXPORT NSString *const OvTextViewDidBeginEditingNotification;
/** The view is left, whether or not something was changed. textViewDidEndEditing: */
OV_EXPORT NSString *const OvTextViewDidEndEditingNotification;
/** The user has changed the text, and it has been judged and mended. setString: does not post
    it. textViewDidChange: */
OV_EXPORT NSString *const OvTextViewDidChangeNotification;
/** A text that was kept although it is invalid has become valid. textViewDidBecomeValid: */
OV_EXPORT NSString *const OvTextViewDidBecomeValidNotification;
/** The text has become invalid and is kept. textViewDidBecomeInvalid: */
OV_EXPORT NSString *const OvTextViewDidBecomeInvalidNotification;
/** Return or Enter was pressed and changed the text. User info: "OvString", the text of the
    line that this ended; none when that line is empty, and when no line was ended because the
    validator took the line feed away again. textViewDidReturn: */
OV_EXPORT NSString *const OvTextViewDidReturnNotification;
/** Text from the general pasteboard is about to be inserted. User info: "OvStrings", an array
    of its lines that are not empty; none when there are none. textViewWillPasteString: */
OV_EXPORT NSString *const OvTextViewWillPasteStringNotification;

struct OvTextViewState;

@interface OvTextView : NSTextView {
  OvTextValidator *_textValidator;
  BOOL _beInvalid;
  BOOL _tabToResignFirstResponder;
  id _myDelegate;
  struct OvTextViewState *_state;
}

/** Each installs a new OvTextValidator without a limit. So does awakeFromNib, which replaces
    one that was set earlier. The validator, the delegate and tabToResignFirstResponder are not
    archived. The platform's sequential archives (NSArchiver) do not hold the text either,
    keyed ones do. */
- (id)initWithFrame:(NSRect)frameRect textContainer:(NSTextContainer *)container;
- (id)initWithCoder:(NSCoder *)coder;
- (void)encodeWithCoder:(NSCoder *)coder;
- (void)awakeFromNib;

/** Judges the text. Retained; never nil until nil is set. A new validator takes over the
    colours of the one it replaces: those it brought are lost, which is deliberate. The first
    one has the view's text colour for valid text and red for invalid text that is kept. nil
    accepts every text, but see setDelegate:. The text that is there is not judged again. */
- (void)setTextValidator:(OvTextValidator *)validator;
- (OvTextValidator *)textValidator;

/** Whether the validator accepts the text; YES without one. */
- (BOOL)isValid;

/** OvTextViewGetLineCount() of the text, and OvTextViewGetIndexedLineString(). */
- (uint32_t)lineCount;
- (NSString *)stringAtLineIndex:(uint32_t)index;

/** Whether Tab and Back-Tab move the keyboard to the next or previous key view and insert
    nothing. Default NO. They do so whether or not the text is editable; the keyboard stays
    where it is when the end of editing is refused, or there is nowhere to go. During the key's
    handling isFieldEditor answers YES. */
- (void)setTabToResignFirstResponder:(BOOL)flag;
- (BOOL)tabToResignFirstResponder;

/** The client's delegate, not retained. The view itself becomes the platform's delegate, and
    is what `delegate` answers; myDelegate answers the client's. nil clears both: without a
    client, typing is not validated and neither begin, end nor change of editing is posted.

    Two questions are asked directly, with the text object, if the client has the method:

        - (BOOL)textViewShouldBeginEditing:(NSText *)text;   otherwise YES
        - (BOOL)textViewShouldEndEditing:(NSText *)text;     otherwise whether the validator
                                                             accepts the text, and NO without
                                                             a validator, which is deliberate

    The platform's other questions to a text view's delegate go to the view, not to the client. */
- (void)setDelegate:(id)delegate;

/** Subscribes the client to the notifications, and no more. setDelegate: uses it. */
- (void)setMyDelegate:(id)delegate;
- (id)myDelegate;

/** Sets the text, whether or not there is a delegate. A validator that allows over-long input
    keeps an invalid text with a beep, in its alternative colour, and notifications tell of the
    transition. One that does not has no effect in the end: the mended text is set and then,
    deliberately, the text passed in. nil empties the view. No DidChange is posted. What could
    be undone before is forgotten, since it would not fit the new text. */
- (void)setString:(NSString *)string;

@end

/** What the user does. */
@interface OvTextView (OvTextViewEvents)

/** Posts WillPasteString when the general pasteboard has a string, then pastes. */
- (void)paste:(id)sender;

/** Return and Enter both insert a line feed and post DidReturn; while nothing is being
    composed, and only when the text is editable and the change allowed. A view
    that is not editable passes the key on as it is. Tab and Back-Tab: see
    setTabToResignFirstResponder:. */
- (void)keyDown:(NSEvent *)event;

@end
