#import <AppKit/AppKit.h>

/** The platform's split view with two additions: a double click on a divider goes to the
    delegate, and a pane counts as collapsed as soon as it cannot be seen.

      HXSplitView *split = [[HXSplitView alloc] initWithFrame:frame];
      [split setDelegate:self];   // - (void)splitViewDidDoubleClickSplitter:

    Dividers are dragged by the platform. For panes that collapse and for saved layouts see
    OvSplitView. */
@interface HXSplitView : NSSplitView

/** A second or further click on a divider is sent to the delegate, if it has
    splitViewDidDoubleClickSplitter:, and goes no further in either case. Any other click is
    the platform's. */
- (void)mouseDown:(NSEvent *)event;

/** YES for an empty frame (so for nil) and for one that lies outside the bounds of the
    split view. */
- (BOOL)isSubviewCollapsed:(NSView *)subview;

@end

/** What an HXSplitView tells its delegate beside the platform's own messages. Optional. */
@interface NSObject (HXSplitViewDelegate)
- (void)splitViewDidDoubleClickSplitter:(NSSplitView *)splitView;
@end
