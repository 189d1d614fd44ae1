// HXImagePopUpButton: a pop-up button, or a menu that is pulled down, whose look comes from an
// image container instead of the platform's bezel and arrow.
//
//   HXImageControlImageContainer *art = [[HXImageControlImageContainer alloc]
//       initWithStrechableImageResourceNamePrefix:@"Plate" leftCap:8 topCap:8];
//   [art setImageWithPath:[[NSBundle mainBundle] pathForImageResource:@"Arrow"]
//            forImagePart:HXImageControlImagePartAccessory
//          imageVariation:HXImageControlImageVariationDefault];
//   HXImagePopUpButton *sizes =
//       [[HXImagePopUpButton alloc] initWithFrame:NSMakeRect(20, 20, 140, 24) pullsDown:NO];
//   [sizes addItemsWithTitles:[NSArray arrayWithObjects:@"Small", @"Large", nil]];
//   [sizes setImageContainer:art];
//   [art release];
//   [sizes setTarget:self];
//   [sizes setAction:@selector(chooseSize:)];
//
// Without a container it is a plain NSPopUpButton.

#import <AppKit/AppKit.h>
#import <OvAppKit/HXImageControlImageContainer.h>

@class HXImagePopUpButtonCell;

/** For the main thread. The menu opens where the platform's pop-up button opens it, and follows the
    mouse and the keys as there: Space opens it, the arrow keys go through it, Space and Return
    choose, Escape closes it. With a container the button looks pressed while the menu is open, and
    the platform's focus ring is drawn over the artwork while the button has the keyboard.

    The container is not archived: a button from an archive, keyed or sequential, or from an
    interface file has none until it is set, in -awakeFromNib, say. With a cell of another class
    than HXImagePopUpButtonCell in the archive the button takes no container; a xib that names no
    class for the cell gets the right one. */
@interface HXImagePopUpButton : NSPopUpButton

/** HXImagePopUpButtonCell. */
+ (Class)cellClass;

/** The button's cell if it is an HXImagePopUpButtonCell, else nil. */
- (HXImagePopUpButtonCell *)imagePopUpButtonCell;

/** The artwork, retained by the cell. Default nil: the platform's look. Another container than the
    one that is there is handed to the cell, marks the button for display, and sets
    `showsBorderOnlyWhileMouseInside` to whether it has a MouseOver picture of the center: only then
    the button redraws when the pointer enters or leaves. The one that is there already changes
    nothing, even when it has got new pictures since. Nothing happens, and the getter answers nil,
    while the cell is no HXImagePopUpButtonCell. */
- (void)setImageContainer:(HXImageControlImageContainer *)container;
- (HXImageControlImageContainer *)imageContainer;

/** Besides what it means to the platform: YES makes the button redraw when the pointer enters or
    leaves it. */
- (void)setShowsBorderOnlyWhileMouseInside:(BOOL)flag;

@end
