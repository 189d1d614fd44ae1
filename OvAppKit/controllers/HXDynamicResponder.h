#import <AppKit/AppKit.h>

/** A responder that joins a window's responder chain while it is enabled. It stands between
    the window and the window's controller, or the application where there is none, and so
    receives the actions and keys that nothing in the window has taken. A window's dynamic
    responders stand in ascending order of their ordering.

      @interface Inspector : HXDynamicResponder
      - (void)copyStyle:(id)sender;      // an action that a menu item sends to nil
      @end

      Inspector *inspector = [[Inspector alloc] initWithWindow:window ordering:10];
      [inspector setEnabled:YES];
      //  first responder → … → window → inspector → window controller → application

    A chain does not retain its responders; whoever made one keeps it. When a window is
    deallocated, or another controller takes it over, its responders are taken care of: their
    window becomes nil, or they go on standing before the new controller.

    To be used on the main thread. */
@interface HXDynamicResponder : NSResponder {
  NSWindow *_window;
  NSInteger _ordering;
  BOOL _enabled;
}

/** No window, ordering 0, disabled. */
- (id)init;
/** Disabled: it joins no chain before setEnabled: YES. The window is not retained and may be
    nil. */
- (id)initWithWindow:(NSWindow *)window ordering:(NSInteger)ordering;

/** The window whose chain the responder is in while it is enabled. Not retained. An enabled
    responder leaves the old window's chain before the change and joins the new one's after
    it; nil stands for no chain. The same window changes nothing. */
- (void)setWindow:(NSWindow *)window;
- (NSWindow *)window;

/** The place among the window's dynamic responders; lower values stand nearer to the window.
    Default 0. A responder that joins goes before those of equal ordering.

    Changing the ordering of a responder in a chain puts all of the window's dynamic
    responders in order again, by _rearrangeDynamicResponders, which reverses those of equal
    ordering. The same value changes nothing. */
- (void)setOrdering:(NSInteger)ordering;
- (NSInteger)ordering;

/** Whether the responder is in its window's chain. Default NO. The same value changes
    nothing. */
- (void)setEnabled:(BOOL)flag;
- (BOOL)enabled;

/** The order of the receiver's ordering and the other's: ascending when the receiver's is
    lower. nil counts as ordering 0. */
- (NSComparisonResult)compareOrdering:(HXDynamicResponder *)other;

@end
