#import <AppKit/AppKit.h>

/** Items in a font of their own.

      NSMenuItem *item = [[NSMenuItem alloc] initWithTitle:@"Details"
                                             controlSize:NSSmallControlSize
                                                  action:@selector(showDetails:)
                                           keyEquivalent:@""];

    An attributed title also sets `title`, to its string, and stays until another title or
    attributed title is set; a nil one leaves the title as it is. Menus and pop-up buttons show
    its fonts and colours, and rows grow to its height. Archives keep the title alone. A nil
    title or key equivalent counts as an empty one. */
@interface NSMenuItem (HXAppKitExtensions)

/** An item with neither target nor submenu. */
- (id)initWithAttributedTitle:(NSAttributedString *)title
                       action:(SEL)action
                keyEquivalent:(NSString *)keyEquivalent;

/** The title in a font; a nil font is that of menus. */
- (id)initWithTitle:(NSString *)title
               font:(NSFont *)font
             action:(SEL)action
      keyEquivalent:(NSString *)keyEquivalent;

/** The title in the system font of the size for a control size. */
- (id)initWithTitle:(NSString *)title
        controlSize:(NSControlSize)controlSize
             action:(SEL)action
      keyEquivalent:(NSString *)keyEquivalent;

/** Replaces the attributed title, with all its attributes, by `title` in that font; a nil font
    is that of menus. A title that is set later is plain: set the font after it. */
- (void)setFont:(NSFont *)font;

/** The same with the system font of the size for a control size. */
- (void)setControlSize:(NSControlSize)controlSize;

@end
