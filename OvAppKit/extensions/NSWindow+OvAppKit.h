#import <AppKit/AppKit.h>

/* Frames and points are in points of the screen; y grows upwards. The platform may still keep
   a titled window from leaving the screen. */

/** Placing a window at a corner or in the middle of a screen.

      [window moveToTopRightOfScreen:[window screen]];

    What is placed is the frame, decorations included, within the screen's
    `frameByExcludingMenuBar`; the window's size is never changed, also where it is larger than
    the screen. A nil screen, which has no corners, leaves the window where it is. */
@interface NSWindow (HXAppKitExtensions)

- (void)moveToTopLeftOfScreen:(NSScreen *)screen;
- (void)moveToBottomLeftOfScreen:(NSScreen *)screen;
- (void)moveToTopRightOfScreen:(NSScreen *)screen;
- (void)moveToBottomRightOfScreen:(NSScreen *)screen;
/** Halves of points are kept: the origin is not rounded. */
- (void)moveToCenterOfScreen:(NSScreen *)screen;

@end

/** Top left corners measured downwards from the top of the window's own screen, the whole of
    it with the menu bar. x is that of the platform. */
@interface NSWindow (QEOldCoordinatesConversionExtensions)

/** Where the frame's top left corner is. A window that is on no screen is measured from
    y = 0. */
- (NSPoint)frameTopLeftPoint;

/** Moves the frame's top left corner there: what `frameTopLeftPoint` answered puts the window
    back. A point with a coordinate that is not a finite number is ignored. */
- (void)setFrameTopLeftPointWithFlipped:(NSPoint)point;

@end

@interface NSWindow (QEResizeExtensions)

/** Gives the frame a size, keeping its top **right** corner: the window grows and shrinks
    to the left and downwards. The corner is deliberate; elsewhere it is the left one.

    With `animate`, the platform may come to the new frame only while the run loop runs. A size
    with a side that is negative or not a finite number is ignored. */
- (void)resizeWindowTo:(NSSize)size display:(BOOL)display animate:(BOOL)animate;

/** What the frame has beside its content: its size less that of the content view's bounds. So
    it counts the toolbar, and it follows a content view whose bounds are scaled. */
- (NSSize)sizeWithoutContent;
- (CGFloat)widthWithoutContent;
- (CGFloat)heightWithoutContent;

@end

@interface NSWindow (QEToolbarExtensions)

/** The height in points that the toolbar takes from the content; 0 without one, and while it
    is hidden. */
- (CGFloat)toolbarHeight;

@end
