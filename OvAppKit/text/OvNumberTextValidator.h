#import <OvAppKit/OvTextValidator.h>

/** Decimal digits only, those of every script: full-width and Arabic-Indic ones as well as
    ASCII. (OvVPNumberFormatter, deliberately, knows the ASCII digits only.) A sign, a decimal
    point, a separator or white space is forbidden. Length is judged first, by the base class:
    what is too long and wrong is too long.

    validStringFromInvalidString: cuts to the length and answers the leading run of digits:
    "12a34" becomes "12", "a12" the empty string. White space and line breaks before the run
    are dropped (" 12x" becomes "12"), although they make a text invalid. nil becomes the
    empty string. */
@interface OvNumberTextValidator : OvTextValidator
@end
