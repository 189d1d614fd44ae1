// Inserting some hundred thousand characters at once after a text of a few crashes the
// platform: its layout manager lets a short run of characters grow by whatever is inserted,
// and counts the characters of a run in 18 bits. After a large change it is told that the
// whole text has changed, which makes it begin anew with runs of a length that it allows.
// Removable once the platform splits what it adds to a short run.

#import <AppKit/AppKit.h>
#import <GNUstepGUI/GSLayoutManager.h>

#include "support/Methods.h"

// As long as the platform lets a run become in other places.
static const NSUInteger kLongestRun = 16384;

// The platform's method by another name, and ours by the platform's, once exchanged.
@interface GSLayoutManager (OvLargeInsertions)
- (void)_ovInvalidateGlyphsForCharacterRange:(NSRange)range
                              changeInLength:(int)change
                        actualCharacterRange:(NSRange *)actual;
@end

@implementation GSLayoutManager (OvLargeInsertions)

- (void)_ovInvalidateGlyphsForCharacterRange:(NSRange)range
                              changeInLength:(int)change
                        actualCharacterRange:(NSRange *)actual {
  if (range.length > kLongestRun) range = NSMakeRange(0, [[self textStorage] length]);
  [self _ovInvalidateGlyphsForCharacterRange:range
                              changeInLength:change
                        actualCharacterRange:actual];
}

@end

@interface _OvLargeInsertionsBridge : NSObject
@end

@implementation _OvLargeInsertionsBridge

+ (void)load {
  ov::exchangeMethods(
      "GSLayoutManager",
      @selector(_ovInvalidateGlyphsForCharacterRange:changeInLength:actualCharacterRange:),
      @selector(invalidateGlyphsForCharacterRange:changeInLength:actualCharacterRange:));
}

@end
