// The lines of a string.
//
//   uint32_t count = OvTextViewGetLineCount(text);
//   NSString *third = OvTextViewGetIndexedLineString(text, 2);  // nil when it is empty
//
// A line is what lies between line breaks. Each carriage return (U+000D) and each line feed
// (U+000A) is one break by itself, so "a\r\nb" has three lines, the second of them empty.
// Lines and characters are counted from 0, characters in UTF-16 units. An empty line is
// answered as nil, never as an empty string: callers take it for an absent line. A nil string
// is taken for an empty one.
//
// The string is read in blocks, and only as far as the answer needs; no copy of it is made.

#import <Foundation/Foundation.h>
#import <OvFoundation/OvDefines.h>

#include <stdint.h>

/** The number of lines: one more than there are breaks, so 1 for an empty string. */
OV_EXPORT uint32_t OvTextViewGetLineCount(NSString *string);

/** The index of the line that holds a character: the number of breaks before the location.
    The break itself belongs to the line that it ends. A location at or past the end is on the
    last line. */
OV_EXPORT uint32_t OvTextViewGetLineIndexFromLocation(NSString *string, uint32_t location);

/** The text of a line, without its break; nil when the line is empty or does not exist. */
OV_EXPORT NSString *OvTextViewGetIndexedLineString(NSString *string, uint32_t index);

/** The text between the last break before the location and the location, which need not be
    the end of the line: "cd" for "ab\ncdef" at 5. nil when that is empty; a location past the
    end is taken for the end. A location in the middle of a character's two units keeps the
    first of them. */
OV_EXPORT NSString *OvTextViewGetLineStringFromReturnCode(NSString *string, uint32_t location);
