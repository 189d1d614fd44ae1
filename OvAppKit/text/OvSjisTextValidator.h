#import <OvAppKit/OvTextValidator.h>

/** Limits the bytes that a text takes in a multibyte encoding: one for ASCII and half-width
    characters, two for the others. `maxLength` is in bytes; `countAsByte` has no effect.

    The encoding is the process's own (+[NSString defaultCStringEncoding]) when that is a
    multibyte one of the kind, EUC-JP for example, and else Shift-JIS; the process's encoding is
    never changed. Shift-JIS is counted by the table of code page 932, because it has what
    Japanese users type: circled digits, the wave dashes U+301C and U+FF5E, the minus signs
    U+2212 and U+FF0D are two bytes each; half-width kana, the yen sign (U+00A5) and the
    overline (U+203E) one.

    What the encoding does not have is not forbidden; each UTF-16 unit of it counts as the one
    byte of a substitute, so an emoji is two, one for each half. Because every unit counts for
    itself, the whole is always the sum of its parts: what validStringFromInvalidString: cuts
    to the limit is within the limit. */
@interface OvSjisTextValidator : OvTextValidator

/** The inherited answers, by bytes. OvTextIsForbidden (-100) only when there are no bytes to
    count: for nil, unless there is no limit, and on a system without any such encoding. */
- (int32_t)validateString:(NSString *)string;

/** The longest beginning of an over-long text that is within the limit: a character whose two
    bytes would straddle it is dropped whole.

    The method is for over-long texts only. Deliberately, the empty string and one that does
    not reach the limit raise an NSRangeException. nil answers nil. */
- (NSString *)validStringFromInvalidString:(NSString *)string;

/** Whether the string can be converted to the encoding *without* loss: the name says the
    reverse. This sense is deliberate. NO for nil. */
- (BOOL)isLossyString:(NSString *)string;

@end
