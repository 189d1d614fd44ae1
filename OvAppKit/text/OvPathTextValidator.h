#import <OvAppKit/OvTextValidator.h>

/** No colon (":", U+003A) anywhere, for a component of a path; "/" is allowed. Length is
    judged first, by the base class.

    A colon counts even when a combining mark follows it: it is a byte in the file's name all
    the same.

    validStringFromInvalidString: cuts to the length and drops every colon: "a:b::c" becomes
    "abc". nil becomes the empty string. */
@interface OvPathTextValidator : OvTextValidator
@end
