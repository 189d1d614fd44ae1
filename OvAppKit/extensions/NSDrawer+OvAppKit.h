#import <AppKit/AppKit.h>

@interface NSDrawer (QEAlphaExtensions)

/** How opaque the drawer's own window is, from 0 to 1; a value that is not a number is
    ignored. Where the platform does not tell which window that is, nothing happens. */
- (void)setAlphaValue:(CGFloat)alpha;

@end
