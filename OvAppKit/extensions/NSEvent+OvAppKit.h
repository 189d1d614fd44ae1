#import <AppKit/AppKit.h>

@interface NSEvent (QEAppKitExtensions)

/** A new event like the receiver, a key going down or up, with other characters, both as its
    characters and as those that ignore modifiers: its type, place, modifier flags, time,
    window, context, repeat flag and key code stay.

    The caller owns the answer. It keeps a copy of the string; nil counts as the empty string.
    Answers nil for an event of another type, changed modifier keys included. */
- (NSEvent *)copyKeyEventWithChars:(NSString *)chars;

@end
