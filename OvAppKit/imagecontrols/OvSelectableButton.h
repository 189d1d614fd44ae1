#import <OvAppKit/OvIconButton.h>

/** An icon button with a menu, which is the button's `menu`. Pressing it shows the menu at once:

      OvSelectableButton *button = [[OvSelectableButton alloc] initWithFrame:frame];
      [button setImage:icon];
      [button setMenu:choices];

    or, when it may be pushed in, only when the mouse is held still for half a second; a click
    before sends the action, and a drag goes to the button's `mouseDragged:`.

      [button setAllowPushIn:YES];
      [button setTarget:self];
      [button setAction:@selector(act:)];

    The menu appears at the middle of the left edge, or, of one that may be pushed in, below the
    left edge: at the max y corner of the bounds. Without a menu it is an ordinary button. */
@interface OvSelectableButton : OvIconButton <OvIconButton> {
  BOOL _allowPushIn;
}

- (id)initWithFrame:(NSRect)frame;

/** Whether a quick click acts in place of showing the menu. NO at first. */
- (void)setAllowPushIn:(BOOL)flag;
- (BOOL)allowPushIn;

/** Sends the action of a quick click straight to the target, with the button as its argument, and
    not through the responders: without a target, or with one that has no such method, nothing is
    sent. A disabled button ignores the press. */
- (void)mouseDown:(NSEvent *)event;

/** Down arrow opens the menu, and so does Space unless the button may be pushed in; everything else
    is a button's: Space clicks. */
- (void)keyDown:(NSEvent *)event;

@end
