// HXImageButtonCell: a button's cell that draws its frame, icon and accessory from an image
// container, in the variation that its state asks for. HXImageButton uses it.
//
//   +----------------------------------------+
//   |  [icon]  title             [accessory] |     the frame is drawn first, then the title,
//   +----------------------------------------+     the icon and the accessory
//
// Without a container it is a plain NSButtonCell, but for what is said at isOpaque,
// drawBezelWithFrame:inView: and highlight:withFrame:inView:.

#import <AppKit/AppKit.h>
#import <OvAppKit/HXImageControlImageContainer.h>

/** For the main thread. Rectangles are in the coordinates of the control view, in points. */
@interface HXImageButtonCell : NSButtonCell {
  HXImageControlImageContainer *imageContainer_;
}

/** The artwork, retained. Default nil. It is not archived, but the imagePosition of its icon is,
    keyed or sequential; a copy of the cell shares it. The cell
    does not redraw by itself: HXImageButton does. */
- (void)setImageContainer:(HXImageControlImageContainer *)container;
- (HXImageControlImageContainer *)imageContainer;

/** As the platform's, except that the types which show by their background that they are on
    (NSPushOnPushOffButton, NSOnOffButton) show it by their image, too: showsStateBy gets
    NSChangeGrayCellMask. */
- (void)setButtonType:(NSButtonType)type;

/** Always NO: artwork may be transparent. */
- (BOOL)isOpaque;

/** Draws nothing, with or without a container. */
- (void)drawBezelWithFrame:(NSRect)frame inView:(NSView *)view;

/** Draws the container's frame, the title, the icon and the accessory; as the platform does without
    a container. A transparent cell draws nothing.

    The variation, and the title that goes with it:

    | the cell is                                  | variation     | title     |
    |----------------------------------------------|---------------|-----------|
    | disabled, on                                 | Highlighted   | alternate |
    | disabled                                     | Disabled      | ordinary  |
    | on and shows it                              | Highlighted   | alternate |
    | on and shows it, pressed, pointer inside     | MousePushed * | alternate |
    | on and shows it, pressed, pointer outside    | Default       | ordinary  |
    | pressed, pointer inside                      | MousePushed * | alternate |
    | pressed, pointer outside                     | Highlighted   | alternate |
    | pointer inside                               | MouseOver **  | ordinary  |
    | pointer outside                              | Default       | ordinary  |

    *  Highlighted if the container has no MousePushed picture of the center.
    ** Default if it has no MouseOver picture of the center.

    A cell shows that it is on if its showsStateBy has NSChangeGrayCellMask. The pointer is where
    it is now, not where an event was; it is inside when it lies in the part of the frame that can
    be seen, and outside of a view without window.

    An empty alternate title gives way to the ordinary one. If that is empty as well, the plain
    -title is drawn in the system font of the control size, shortened in the middle to the width of
    the title's rectangle. There is no title with NSImageOnly. */
- (void)drawInteriorWithFrame:(NSRect)frame inView:(NSView *)view;

/** With a container, highlights the cell or not and marks the view for display, which picks the
    variation. Without one it only draws the interior, deliberately: the highlight stays as it
    is. */
- (void)highlight:(BOOL)flag withFrame:(NSRect)frame inView:(NSView *)view;

/** The icon's rectangle, in the size of its Default picture; the inherited answer if the container
    has no icon. It lies by the cell's imagePosition: centered with NSImageOnly and NSImageOverlaps
    and where there is no room for a title, else at that side of the inherited title rectangle.
    Pressed, it moves by a point. The zero rectangle with NSNoImage. */
- (NSRect)imageRectForBounds:(NSRect)bounds;

/** The inherited rectangle, less the room for an icon that is beside, above or below. */
- (NSRect)titleRectForBounds:(NSRect)bounds;

/** The accessory's rectangle, in the size of its Default picture: centered in height, and as far
    from the right as from the top. The zero rectangle without an accessory. */
- (NSRect)accessoryRectForBounds:(NSRect)bounds;

@end
