// HXImageButton: a push button or toggle whose look comes from an image container instead of the
// platform's bezel, and which can drop a menu down when it is pressed.
//
//   HXImageControlImageContainer *art = [[HXImageControlImageContainer alloc]
//       initWithStrechableImageResourceNamePrefix:@"Plate" leftCap:8 topCap:8];
//   HXImageButton *button = [[HXImageButton alloc] initWithFrame:NSMakeRect(20, 20, 120, 24)];
//   [button setTitle:@"Send"];
//   [button setImageContainer:art];
//   [art release];
//   [button setTarget:self];
//   [button setAction:@selector(send:)];
//
//   A toggle that shows by its image that it is on:
//     [button setButtonType:NSPushOnPushOffButton];
//
//   A menu, filled when it is needed:
//     [button setMenu:menu];
//     [button setDelegate:self];     // imageButton:willPopUpMenu:
//
// Without a container it is a plain NSButton.

#import <AppKit/AppKit.h>
#import <OvAppKit/HXImageControlImageContainer.h>

@class HXImageButtonCell;

/** For the main thread. Space and key equivalents press the button as they do any other, and the
    platform's focus ring is drawn over the artwork while the button has the keyboard. */
@interface HXImageButton : NSButton {
  id delegate;
}

/** HXImageButtonCell. */
+ (Class)cellClass;

/** A button without a delegate and without a container. */
- (id)initWithFrame:(NSRect)frame;

/** A button from an archive, keyed or sequential, or from an interface file. Neither the delegate
    nor the container is archived: both are nil, and set in -awakeFromNib, say. With a cell of
    another class than HXImageButtonCell in the archive the button takes no container; a xib that
    names no class for the cell gets the right one. */
- (id)initWithCoder:(NSCoder *)coder;

/** Asked before the menu is shown, see HXImageButtonDelegate. Not retained: a delegate that dies
    sets nil first. Default nil. */
- (void)setDelegate:(id)delegate;
- (id)delegate;

/** The button's cell if it is an HXImageButtonCell, else nil. */
- (HXImageButtonCell *)imageButtonCell;

/** The artwork, retained by the cell. Default nil: the platform's look. Another container than the
    one that is there is handed to the cell, marks the button for display, and sets
    `showsBorderOnlyWhileMouseInside` to whether it has a MouseOver picture of the center: only then
    the button redraws when the pointer enters or leaves. The one that is there already changes
    nothing, even when it has got new pictures since. Nothing happens, and the getter answers nil,
    while the cell is no HXImageButtonCell. */
- (void)setImageContainer:(HXImageControlImageContainer *)container;
- (HXImageControlImageContainer *)imageContainer;

/** Besides what it means to the platform: YES makes the button redraw when the pointer enters or
    leaves it. */
- (void)setShowsBorderOnlyWhileMouseInside:(BOOL)flag;

/** The inherited answer: the button's menu, or nil. Override it for a menu that is made when it is
    needed. */
- (NSMenu *)menuForEvent:(NSEvent *)event;

/** Always NO: the menu is never shown as a context menu. */
- (BOOL)_allowsContextMenus;

/** A press. One outside of the bounds is ignored. Without a menu (see -menuForEvent:) the button is
    tracked as usual, and sends its action. With one, nothing happens while the button is disabled;
    otherwise

    - the cell is highlighted,
    - the delegate gets imageButton:willPopUpMenu:,
    - the menu pops up 5 points below the button, at its left edge, with the menu font in the size
      of the cell's control size,
    - and when it has closed, the highlight goes.

    The button's action is never sent then. */
- (void)mouseDown:(NSEvent *)event;

/** Does nothing: no menu, and nobody else gets the event. */
- (void)rightMouseDown:(NSEvent *)event;

@end

/** What the delegate may have. */
@interface NSObject (HXImageButtonDelegate)
/** The button is about to show its menu, whose items may still be changed. */
- (void)imageButton:(HXImageButton *)button willPopUpMenu:(NSMenu *)menu;
@end
