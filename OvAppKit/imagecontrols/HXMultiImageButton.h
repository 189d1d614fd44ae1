// HXMultiImageButton: a small control of up to four images.
//
//   HXMultiImageButton *close = [[HXMultiImageButton alloc] initWithFrame:frame];
//   [close setImagesNamedWithPrefix:@"Close"];   // Close_default, Close_alternate, …
//   [close setTarget:self];
//   [close setAction:@selector(close:)];
//   [close setTrackingEnabled:YES];              // before or after it is in a window
//
//   at rest                                               default
//   pressed, the mouse inside                             alternate
//   pressed, the mouse outside                            default
//   the mouse over it, or released inside, with tracking  mouse-over
//   disabled                                              disabled
//
// An image that is missing is no error: there is nothing to see in that state. So tracking
// without a mouse-over image blanks the button under the mouse, deliberately.

#import <AppKit/AppKit.h>
#import <OvAppKit/HXMultiImageCell.h>
#import <OvFoundation/OvDefines.h>

/** The keys of the images in the button's cell, and what follows the prefix in their names:
    "_default", "_alternate", "_mouseover" and "_disabled". */
OV_EXPORT NSString *const HXMultiImageButtonDefaultImageKey;
OV_EXPORT NSString *const HXMultiImageButtonAlternateImageKey;
OV_EXPORT NSString *const HXMultiImageButtonMouseOverImageKey;
OV_EXPORT NSString *const HXMultiImageButtonDisabledImageKey;

/** A control that shows one of its images, whole and unscaled, at the origin of its bounds, and
    sends its action when the mouse is released inside. Its cell is an HXMultiImageCell; with a
    cell of another class it is a plain control.

    Space, Return and Enter press the button that has the keyboard, as `performClick:` does. One
    that got it from the keyboard (Tab) is framed by dots. */
@interface HXMultiImageButton : NSControl {
  id delegate;
  int64_t _lastTrackingTag;
  BOOL _trackMouseMove;
  struct HXMultiImageButtonState *_state;
}

// MARK: Creating

/** The class of the cell of new buttons, HXMultiImageCell at first and again after nil. It is
    this class's own, and not that of all controls. */
+ (Class)cellClass;
+ (void)setCellClass:(Class)cellClass;

/** A button without delegate, which does not track the mouse. It has the images whose prefix is
    "HXMultiImageButton", the library's own unless the application has some of that name, and
    shows the default one; its cell draws when disabled, too. */
- (id)initWithFrame:(NSRect)frame;

/** The images are put back to rest in a button from an archive that was pressed or under the
    mouse; it does not track the mouse. */
- (id)initWithCoder:(NSCoder *)coder;

/** The cell, if it is of this class, otherwise nil; everything below does nothing, or what a
    plain control does, in that case. */
- (HXMultiImageCell *)multiImageCell;

// MARK: Images

/** Take the four images named by the prefix and the endings above, as `+[NSImage imageNamed:]`
    finds them, or NSImage's `imageNamed:inBundle:`. A name without an image removes the image
    that was there. What is shown stays. */
- (void)setImagesNamedWithPrefix:(NSString *)prefix;
- (void)setImagesNamedWithPrefix:(NSString *)prefix inBundle:(NSBundle *)bundle;

/** The default image, which is shown at once. */
- (void)setImage:(NSImage *)image;
/** Other images; what is shown stays. */
- (void)setAlternateImage:(NSImage *)image;
- (void)setMouseOverImage:(NSImage *)image;
- (void)setDisabledImage:(NSImage *)image;

/** Shows the default or the disabled image at once. */
- (void)setEnabled:(BOOL)flag;

// MARK: A menu instead of the action

/** Not retained. */
- (void)setDelegate:(id)object;
- (id)delegate;

// MARK: Tracking the mouse

/** Whether the button shows its mouse-over image under the mouse, also after a release. NO at
    first.

    Tracking uses one tracking rectangle over the bounds and the frame-change notifications of
    the button and its superview; turning tracking off turns both notifications off, the
    superview's too, deliberately. When the button goes from under a resting mouse (moved,
    scrolled, hidden, out of its window) it shows its default image again, or the disabled one. */
- (void)setTrackingEnabled:(BOOL)flag;
- (BOOL)trackingEnabled;

/** Lays the tracking rectangle over the bounds as they are now. */
- (void)frameDidChange:(NSNotification *)notification;

/** Starts the tracking that an interface file asked for. */
- (void)awakeFromNib;

/** Show the mouse-over or the default image of an enabled button. */
- (void)mouseEntered:(NSEvent *)event;
- (void)mouseExited:(NSEvent *)event;

// MARK: Clicks

/** Follows the mouse until it is released, and sends the action if that is inside; or shows the
    delegate's menu, whose top left is 3 points below the origin of the button's frame, and sends
    no action. (Below is y + 3 in a window whose content view is flipped, deliberately.) A
    disabled button ignores it. */
- (void)mouseDown:(NSEvent *)event;

/** Does what a click in the button does. */
- (void)performClick:(id)sender;

@end

/** What a delegate may have methods for. */
@interface NSObject (HXMultiImageButtonDelegate)
/** A menu to pop up at a press, in place of the action; nil for an ordinary click. */
- (NSMenu *)menuForPopUp:(HXMultiImageButton *)button;
/** The view that the menu is shown for: the button where there is no such method. */
- (NSView *)targetViewForPopUp:(HXMultiImageButton *)button;
@end
