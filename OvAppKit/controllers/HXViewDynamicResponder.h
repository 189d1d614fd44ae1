#import <OvAppKit/HXDynamicResponder.h>

/** A dynamic responder that follows a view from window to window: it leaves a window's chain
    when the view leaves the window and joins the next window's chain when the view arrives
    there, also when the view moves with a view around it.

      @interface ViewCommands : HXViewDynamicResponder
      @end

      ViewCommands *responder = [[ViewCommands alloc] initWithView:view ordering:10];
      [responder setEnabled:YES];
      [[otherWindow contentView] addSubview:view];   // [responder window] == otherWindow

    The view does not need to cooperate: its class is changed, see
    HXViewDynamicResponder_NSViewReplacer. */
@interface HXViewDynamicResponder : HXDynamicResponder {
  NSView *_view;
}

/** Disabled, in the window that the view is in, if any. The view is not retained; release the
    responder no later than the view. With nil the responder follows nothing. */
- (id)initWithView:(NSView *)view ordering:(NSInteger)ordering;

/** The view that the responder follows. */
- (NSView *)view;

/** The live responders that initWithView:ordering: made, not retained. Created on the first
    call, which may come from any thread. */
+ (NSHashTable *)_instanceTable;
/** The responders of the table whose view is this one, in the table's order: a new,
    autoreleased array. Finds the disabled ones, too. */
+ (NSArray *)_instancesForView:(NSView *)view;

/** Enters the responder into the instance table. The initialiser does. */
- (void)_didInitialized;
/** Takes the responder out of the instance table. dealloc does. */
- (void)_willDeallocate;

@end
