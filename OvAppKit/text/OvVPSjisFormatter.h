#import <OvAppKit/OvVPFormatter.h>

/** Limits the bytes that the text takes in a multibyte encoding, counted as
    OvSjisTextValidator counts them; `maximum` is in bytes. An edit that goes beyond is cut to
    the longest beginning within the limit, so that no character is split. The character sets
    and `countAsByte` have no effect, and OvVPFormatterBufferIsFull is not posted. */
@interface OvVPSjisFormatter : OvVPFormatter
@end
