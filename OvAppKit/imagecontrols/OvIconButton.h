#import <AppKit/AppKit.h>

/** What icon buttons have. */
@protocol OvIconButton <NSObject>
- (void)setHighlightImage:(NSImage *)image;
- (NSImage *)highlightImage;
@end

/** A button without border that shows nothing but its image and, while it is pressed, another
    one instead of being darkened.

      OvIconButton *button = [[OvIconButton alloc] initWithFrame:NSMakeRect(10, 10, 24, 24)];
      [button setImage:icon];
      [button setHighlightImage:pressedIcon];
      [button setTarget:self];
      [button setAction:@selector(act:)];

    A new button, from code or from an archive, gets an OvIconButtonCell in place of the cell that
    it has. Only the title, the menu, the control size and the action of the former cell come
    along, deliberately: an archived button comes back without its target and its image, which
    are set in awakeFromNib. (Where the platform connects targets after it has read the
    interface file, a target stays.) */
@interface OvIconButton : NSButton

- (id)initWithFrame:(NSRect)frame;
- (id)initWithCoder:(NSCoder *)coder;

/** Drawn while the button is pressed, scaled into the bounds; retained. nil (at first): the
    button looks the same while it is pressed. */
- (void)setHighlightImage:(NSImage *)image;
- (NSImage *)highlightImage;

/** Called once by the initialisers: `_setupButtonCell`, no border, only the image, no
    highlighting by the platform. */
- (void)_setup;
/** Replaces the cell. */
- (void)_setupButtonCell;

@end
