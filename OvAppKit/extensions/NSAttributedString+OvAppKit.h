#import <AppKit/AppKit.h>

/** Strings with one attribute; of a mutable string, too.

      [[[NSAttributedString alloc] initWithString:name font:[NSFont smallSystemFont]] autorelease]

    A nil string counts as an empty one. */
@interface NSAttributedString (HXAppKitExtensions)

/** The string with `NSFontAttributeName`, and with no attribute for a nil font. */
- (id)initWithString:(NSString *)string font:(NSFont *)font;

/** The string with `NSParagraphStyleAttributeName`: the default paragraph style but for these
    two. */
- (id)initWithString:(NSString *)string
           alignment:(NSTextAlignment)alignment
       lineBreakMode:(NSLineBreakMode)lineBreakMode;

@end
