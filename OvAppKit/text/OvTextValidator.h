// OvTextValidator: a rule that tells how a text stands against it, and mends one that broke it.
//
// A text field, combo box or text view asks its validator after every change of its text. The
// base class limits the length; its subclasses add digits only (OvNumberTextValidator), letters
// only (OvAlphabetTextValidator), no colon (OvPathTextValidator), or count bytes instead of
// characters (OvSjisTextValidator).
//
//   OvTextValidator *validator = [OvNumberTextValidator textValidator];
//   [validator setMaxLength:4];
//   [validator validateString:@"123"];                   // OvTextIsValid, 0
//   [validator validateString:@"1234"];                  // OvTextIsFull, 100
//   [validator validateString:@"12345"];                 // OvTextIsTooLong, -1
//   [validator validateString:@"12a"];                   // OvTextIsForbidden, -100
//   [validator validStringFromInvalidString:@"12a34"];   // "12"
//
// A character is a UTF-16 code unit here: one outside the basic plane, an emoji for example,
// counts as two, and a cut may fall between its two halves. The answer of a cut is as long as
// the limit says whatever kind of string it is made from.
//
// A validator keeps nothing between two questions but its settings. A text of 10 MB is judged
// in time proportional to its length, without being copied.

#import <AppKit/AppKit.h>
#include <stdint.h>

/** What validateString: answers. A text is valid when the answer is 0 or more. */
enum {
  /** Valid and shorter than the limit, or there is no limit. */
  OvTextIsValid = 0,
  /** Valid, and exactly as long as the limit allows. */
  OvTextIsFull = 100,
  /** Longer than the limit. */
  OvTextIsTooLong = -1,
  /** There is a character that the rule forbids. */
  OvTextIsForbidden = -100
};

@interface OvTextValidator : NSObject {
  uint32_t _maxLength;
  BOOL _countAsByte;
  BOOL _moveNextKeyView;
  BOOL _allowToInputOverLength;
  NSColor *_defaultTextColor;
  NSColor *_altTextColor;
}

/** A new, autoreleased validator of the receiving class, without a limit, with every flag NO
    and without colours. It is set up through the setters, so that a subclass that overrides
    one hears of it: maxLength, countAsByte, moveNextKeyView, allowToInputOverLength. */
+ (id)textValidator;

/** The limit, in characters (in bytes for OvSjisTextValidator). Default 0: no limit. */
- (void)setMaxLength:(uint32_t)length;
- (uint32_t)maxLength;

/** Whether every character counts as two, the bytes of a full-width one. Default NO.
    OvSjisTextValidator, which counts bytes, does not look at it.

    With an odd limit a text can never be exactly full: with a limit of 5, two characters are
    valid and three too long. This is intended. */
- (void)setCountAsByte:(BOOL)flag;
- (BOOL)countAsByte;

/** Tells the owning text field or combo box to move the keyboard to its next key view once
    the text is full, and not to beep when it cuts. Default NO. A text view ignores it. */
- (void)setMoveNextKeyView:(BOOL)flag;
- (BOOL)moveNextKeyView;

/** Tells the owning control to keep an invalid text, in the alternative colour and with a
    beep, instead of mending it. Default NO. */
- (void)setAllowToInputOverLength:(BOOL)flag;
- (BOOL)allowToInputOverLength;

/** The text's colour while it is valid. Retained; default nil until an owner sets it. Setting
    the colour that is there changes nothing. */
- (void)setDefaultTextColor:(NSColor *)color;
- (NSColor *)defaultTextColor;

/** The colour of an invalid text that is kept. Retained; default nil until an owner sets it.
    Setting the colour that is there changes nothing. */
- (void)setAltTextColor:(NSColor *)color;
- (NSColor *)altTextColor;

@end

/** The rule, as owning controls use it. A subclass of yours overrides the first and the third
    method and calls super for the length. */
@interface OvTextValidator (OvTextValidation)

/** How a text stands: OvTextIsValid (0), OvTextIsFull (100), OvTextIsTooLong (-1) or
    OvTextIsForbidden (-100). The base class looks at the length alone; without a limit it
    answers 0 for everything. nil counts as the empty string. Lengths are compared in 32 bits,
    the doubled length of countAsByte too. */
- (int32_t)validateString:(NSString *)string;

/** Whether validateString: answers 0 or more; it is sent to the receiver, so that a
    subclass's rule applies. */
- (BOOL)validString:(NSString *)string;

/** What should replace a text for which validateString: answered a negative number. The base
    class cuts to the number of characters that fit and never looks at them; a text that is not
    longer comes back itself, nil too.

    Without a limit nothing fits, and every text is cut to the empty string. This is deliberate,
    and so a number validator without a limit clears the whole text on the first letter. */
- (NSString *)validStringFromInvalidString:(NSString *)string;

/** The number of characters that fit: 0 when there is no limit, half the limit (rounded down)
    with countAsByte, else the limit. */
- (uint32_t)_maxLengthForSubstring;

@end
