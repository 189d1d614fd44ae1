#import <AppKit/AppKit.h>

@interface NSScreen (HXAppKitExtensions)

/** The screen's frame without the strip of the menu bar: on the main screen, while the menu
    bar is visible, 22 points less high; the origin stays, so that the top edge comes down.
    On every other screen, the frame.

    The 22 points are deliberate wherever the menu really is: windows keep the same places
    everywhere. A nil screen answers the zero rectangle. */
- (NSRect)frameByExcludingMenuBar;

@end
