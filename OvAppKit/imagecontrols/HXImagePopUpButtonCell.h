// HXImagePopUpButtonCell: a pop-up button's cell that draws its face from an image container, in
// the variation that its state asks for. HXImagePopUpButton uses it.
//
//   +-----------------------------------+
//   | title                     [arrow] |     the frame is drawn first, then the accessory as the
//   +-----------------------------------+     arrow, then the title
//
// Without a container it is a plain NSPopUpButtonCell.

#import <AppKit/AppKit.h>
#import <OvAppKit/HXImageControlImageContainer.h>

/** For the main thread. Rectangles are in the coordinates of the control view, in points. The menu,
    its items, the selection and the action are the platform's. */
@interface HXImagePopUpButtonCell : NSPopUpButtonCell {
  HXImageControlImageContainer *imageContainer_;
}

/** The artwork, retained. Default nil. It is not archived; a copy of the cell shares it. The cell
    does not redraw by itself: HXImagePopUpButton does. */
- (void)setImageContainer:(HXImageControlImageContainer *)container;
- (HXImageControlImageContainer *)imageContainer;

/** Draws the container's frame, the accessory unless the cell's arrowPosition is NSPopUpNoArrow,
   and the title; then the platform's focus ring while the view has the keyboard. The inherited
   drawing without a container; nothing for an empty frame.

    The title is that of the selected item, or of the first one where the menu is pulled down: the
    inherited attributedTitle; or, in the variation Highlighted, the attributedAlternateTitle unless
    it is empty. If there is none, the plain -title is drawn in the system font of the control size,
    shortened at its end to the width of the title's rectangle (an image button shortens in the
    middle; the difference is deliberate). There is no icon: the part Icon is not drawn. */
- (void)drawWithFrame:(NSRect)frame inView:(NSView *)view;

/** As the platform's; with a container, the cell is highlighted while its menu is open. */
- (void)attachPopUpWithFrame:(NSRect)frame inView:(NSView *)view;
- (void)dismissPopUp;

/** The inherited rectangle; with a container, only as much of it as lies before the arrow, or in
   the bounds. A longer title is cut there: by words, or as the cell's lineBreakMode says. */
- (NSRect)titleRectForBounds:(NSRect)bounds;

/** The accessory's rectangle, in the size of its Default picture. With NSPopUpArrowAtCenter it is
    centered in height, rounded down, and as far from the right as from the minimum y. With
    NSPopUpArrowAtBottom it lies at the maximum y, and as far from the right as from the minimum y.
    The zero rectangle with NSPopUpNoArrow and any other position, without a container and without
   an accessory. */
- (NSRect)arrowRectForBounds:(NSRect)bounds;

// MARK: For subclasses

/** The variation that is drawn; a HXImageControlImageVariation.

    | the cell is                               | variation   |
    |-------------------------------------------|-------------|
    | disabled, on or not                       | Disabled    |
    | on and shows it                           | Highlighted |
    | on and shows it, pressed, pointer inside  | Highlighted |
    | on and shows it, pressed, pointer outside | Default     |
    | pressed                                   | Highlighted |
    | pointer inside                            | MouseOver   |
    | pointer outside                           | Default     |

    A cell shows that it is on if its showsStateBy has NSChangeGrayCellMask. The pointer is where it
    is now, not where an event was; it is inside when it lies in the part of the frame that can be
    seen, and outside of a view without window. Deliberately unlike an image button, a pop-up button
    never asks for MousePushed, does not look which pictures there are (the container shows Default
    for one that is missing), and shows Disabled also while it is on. */
- (int32_t)_imageVariationWithFrame:(NSRect)frame inView:(NSView *)view;

/** Draws the container's frame in a rectangle of the focused view. */
- (void)_drawInteriorWithFrame:(NSRect)frame
                        inView:(NSView *)view
                imageVariation:(int32_t)variation;

/** Draws the part Accessory in a rectangle of the focused view. */
- (void)_drawAccessoryWithFrame:(NSRect)frame
                         inView:(NSView *)view
                 imageVariation:(int32_t)variation;

@end
