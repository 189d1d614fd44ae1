#import <Foundation/Foundation.h>

/* Where these methods speak of characters, the two halves of a surrogate pair are
   one character, and a half that stands alone is one of its own. */

@interface NSString (OvCharacterSets)

/** Whether at least one character of the receiver belongs to the set. NO for nil. */
- (BOOL)containsCharacterInSet:(NSCharacterSet *)set;

/** The receiver without the characters that belong to the set; the others keep
    their order. A combining mark is a character: it stays when the letter before it
    goes. With nil, a copy of the receiver. */
- (NSString *)stringByDeletingAllOccurrencesOfCharactersInSet:(NSCharacterSet *)set;

@end

@interface NSString (OvNaturalOrder)

/** The order in which a person would list the receiver and `other`: case does not
    count, and runs of digits (of any script) are numbers that sort by their value,
    whatever their length and leading zeros: "Item 2" before "item 10". Letters
    outside ASCII follow the order of their codes, not that of a language.

    Only identical strings are the same: those that agree so far ("A01" and "a1") are
    put in the order of their codes. The order is total, fit for
    `sortedArrayUsingSelector:`. nil, and what is not a string, comes before every
    string. */
- (NSComparisonResult)naturalCompare:(NSString *)other;

@end

@interface NSString (OvTruncation)

/** The receiver, or what of it can be drawn within `width` points in a control of
    size `controlSize` (AppKit's NSControlSize: 0 regular, 1 small, 2 mini) when the
    rest is replaced by an ellipsis (U+2026). The font is the system font in the size
    for such a control.

    With the code 16384 (0x4000) the ellipsis stands in the middle, with 0, and every
    other code, at the end. Surrogate pairs, letters with their marks, and characters
    that a joiner or a modifier of skin colour makes one, are not cut in two.

    The receiver itself is returned when it fits, and always for an infinite width.
    When not one character fits beside it, the answer is the ellipsis alone, even if
    that is too wide; the empty string for a width that is 0, negative or not a number.

    Where there is no AppKit, or no application object to ask for fonts, the width is
    estimated: 12, 10 or 8 points for the size of the font by control size, and 0.6 of
    that for a character below U+1100, all of it for others, nothing for a mark. */
- (NSString *)truncateControlStringWithDrawingWidth:(float)width
                                          truncCode:(int)truncCode
                                        controlSize:(NSUInteger)controlSize;

@end
