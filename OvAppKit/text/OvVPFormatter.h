// OvVPFormatter: mends what is typed into a field, edit by edit.
//
// A formatter is asked about every edit of the field it is attached to. This one takes the
// forbidden characters out of the proposed text, cuts it at a limit, puts the caret back to
// where the selection began before the edit, beeps, and refuses the edit in favour of the
// mended text. It converts nothing: the value of a field is the string itself.
//
//   OvVPFormatter *formatter = [[OvVPNumberFormatter alloc] init];
//   [formatter setMaximum:[NSDecimalNumber decimalNumberWithString:@"4"]];
//   [[field cell] setFormatter:formatter];                // typing "12a3" leaves "123"
//   [formatter release];
//
// Where a validator (OvTextValidator) judges a finished text, and leaves it to the field what
// to do, a formatter acts by itself.
//
// A copy has the settings of its original. Archives keep the class only: a formatter that was
// read from an archive or an interface file is as after init, to be set up by its owner.

#import <AppKit/AppKit.h>
#import <OvFoundation/OvDefines.h>

/** Posted, synchronously, by each edit that leaves the text exactly as long as the maximum
    allows, before anything is decided about the edit. The object is the formatter; there is no
    user info. OvVPSjisFormatter does not post it. */
OV_EXPORT NSString *const OvVPFormatterBufferIsFull;

@interface OvVPFormatter : NSFormatter {
  NSCharacterSet *_validCharacterSet;
  NSCharacterSet *_invalidCharacterSet;
  NSDecimalNumber *_minimum;
  NSDecimalNumber *_maximum;
  BOOL _countAsByte;
}

/** The characters that may be typed. Retained; default nil, anything. Setting it sets the
    invalid set to its inverse (nil for nil); setting the set that is there changes nothing. */
- (void)setValidCharacterSet:(NSCharacterSet *)set;
- (NSCharacterSet *)validCharacterSet;

/** The characters that are taken out of every text. Retained; default nil, none. Setting it
    leaves the valid set as it is. A pair of surrogates is one character. */
- (void)setInvalidCharacterSet:(NSCharacterSet *)set;
- (NSCharacterSet *)invalidCharacterSet;

/** Kept for the owner; no rule reads it. Retained; default nil. */
- (void)setMinimum:(NSDecimalNumber *)minimum;
- (NSDecimalNumber *)minimum;

/** The limit, in UTF-16 code units (in bytes for OvVPSjisFormatter). Retained; default nil.
    No limit when it is nil, 0, negative or not a number. */
- (void)setMaximum:(NSDecimalNumber *)maximum;
- (NSDecimalNumber *)maximum;

/** Whether every character counts as two, which halves the maximum. Default NO. With an odd
    maximum the text is never exactly full: 7 allows 3 characters, and nothing is posted. This
    is intended. */
- (void)setCountAsByte:(BOOL)flag;
- (BOOL)countAsByte;

/** YES, always. */
- (BOOL)isValidObject:(id)object;

/** The object itself when it is a string, else nil. */
- (NSString *)stringForObjectValue:(id)object;

/** Stores an equal string (the empty one for nil) and answers YES. `error` is never written. */
- (BOOL)getObjectValue:(id *)object
             forString:(NSString *)string
      errorDescription:(NSString **)error;

/** The edit filter. `proposed` and `proposedRange` are the text and the selection that the
    edit would make, `originalRange` the selection before it. YES accepts both as they are. On
    NO `proposed` holds the mended text, autoreleased, and `proposedRange` an empty range where
    the selection began before the edit, or at the text's end when that is nearer; there was
    one beep. `error` is never written. Null pointers, and nil for a text, are tolerated: there
    is nothing to mend, or nowhere to put it. */
- (BOOL)isPartialStringValid:(NSString **)proposed
       proposedSelectedRange:(NSRange *)proposedRange
              originalString:(NSString *)original
       originalSelectedRange:(NSRange)originalRange
            errorDescription:(NSString **)error;

@end
