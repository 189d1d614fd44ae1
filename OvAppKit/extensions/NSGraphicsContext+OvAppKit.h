#import <AppKit/AppKit.h>

/** Geometry that falls on whole device pixels, for lines and images that shall be crisp.

      NSGraphicsContext *context = [NSGraphicsContext currentContext];
      NSRectFill([context alignRect:slot]);

    A value in user space is converted to the device, each component rounded down there, and
    converted back. The device's origin is at the bottom left: in a flipped view "down" is still
    towards the bottom of the screen, so that the point (1.3, 2.7) comes to (1, 3) in a flipped
    view and to (1, 2) in another one.

    Meant for drawing, with the receiver as the current context. A value with a component that
    is not a finite number, and a context whose transformation cannot be inverted, give the
    value back as it is. */
@interface NSGraphicsContext (HXAppKitExtensions)

- (NSPoint)alignPoint:(NSPoint)point;

/** Never longer than the given size; a negative side stays negative. */
- (NSSize)alignSize:(NSSize)size;

/** The origin and the size are rounded down each, so that the rectangle never grows, and its
    far edges may lie up to two pixels short. Where the axes are turned by other than right
    angles, nothing falls on pixels: the box around the turned rectangle is rounded, and the box
    around that one comes back. */
- (NSRect)alignRect:(NSRect)rect;

@end
