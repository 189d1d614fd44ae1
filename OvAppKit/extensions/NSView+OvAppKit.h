#import <AppKit/AppKit.h>

#include <stdint.h>

@interface NSView (HXAppKitExtensions)

/* The subviews are those of the moment of the call: removing one of them may remove others, or
   add new ones, which stay. */

/** Sends `removeFromSuperview` to every subview. */
- (void)removeAllSubviews;
/** Sends `removeFromSuperviewWithoutNeedingDisplay` to every subview. */
- (void)removeAllSubviewsWithoutNeedingDisplay;
/** Sends `removeFromSuperview` to every subview of the class or a class derived from it. */
- (void)removeSubviewsKindOfClass:(Class)aClass;

/** What the view shows at a point, in its own coordinates, rounded down; it reads the pixels
    of the window as they were drawn last, whether or not that is on screen.

    The answer is `HXGetColorFromBitmapImageRep`'s. nil where nothing can be read: outside the
    visible part of the view, in a view without a window, and for a point with a coordinate
    that is not a finite number. */
- (NSColor *)colorAtPoint:(NSPoint)point;

/** The samples there, 0 to 255 each and as they are stored: red, green and blue multiplied
    by alpha. Alpha stays 0 where the bitmap has three samples; all four are 0 where nothing
    can be read. A NULL pointer is left out. */
- (void)getRed:(uint32_t *)red
         green:(uint32_t *)green
          blue:(uint32_t *)blue
         alpha:(uint32_t *)alpha
       atPoint:(NSPoint)point;

@end
