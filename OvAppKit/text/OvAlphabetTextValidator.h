#import <OvAppKit/OvTextValidator.h>

/** The letters A to Z and a to z only, no accented or full-width ones. Length is judged first,
    by the base class: what is too long and wrong is too long.

    validStringFromInvalidString: cuts to the length and answers the leading run of letters:
    "ab1cd" becomes "ab", "1ab" the empty string. White space and line breaks before the run
    are dropped (" ab1" becomes "ab"), although they make a text invalid. nil becomes the
    empty string. */
@interface OvAlphabetTextValidator : OvTextValidator
@end
