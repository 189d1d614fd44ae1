#import <AppKit/AppKit.h>

/** A panel whose delegate sees mouse buttons and keys go down before the panel's views do, and
    may keep them.

      - (BOOL)keyDown:(NSEvent *)event inWindow:(NSWindow *)window {
        if (![[event characters] isEqualToString:@"\033"]) return NO;
        [window orderOut:nil];
        return YES;
      }

    It becomes key and main also without a title bar. */
@interface OvMouseKeyPanel : NSPanel

/** YES, whatever the style of the panel. */
- (BOOL)canBecomeMainWindow;
/** YES, whatever the style of the panel. */
- (BOOL)canBecomeKeyWindow;

/** Asks the delegate first: `mouseDown:inWindow:` for the left and the right mouse button going
    down, `keyDown:inWindow:` for a key going down. Where it has the method and answers YES the
    event goes no further. Every other event is handled as usual. */
- (void)sendEvent:(NSEvent *)event;

@end

@interface NSObject (OvMouseKeyPanelDelegate)

/** YES keeps the event from the panel. `window` is the panel. */
- (BOOL)mouseDown:(NSEvent *)event inWindow:(NSWindow *)window;
/** YES keeps the event from the panel. `window` is the panel. */
- (BOOL)keyDown:(NSEvent *)event inWindow:(NSWindow *)window;

@end
