// OvTextFieldCell: a text field's cell that can draw its text embossed, with a light shadow
// below and to the right of it.
//
//   OvTextFieldCell *cell = [[OvTextFieldCell alloc] initTextCell:@"Status"];
//   [cell setEmboss:YES];

#import <AppKit/AppKit.h>

@interface OvTextFieldCell : NSTextFieldCell {
  NSShadow *__embossParams;
  BOOL __isEmboss;
}

/** A cell that is not embossed, with the shadow of __setup. The emboss attributes are not
    archived: a cell from an archive starts with those of a new one. A copy of a cell has a
    shadow of its own with the same values. */
- (id)initTextCell:(NSString *)string;
- (id)initImageCell:(NSImage *)image;

/** Makes the shadow: blur radius 0, device white 1.0 with alpha 0.8, offset (1, -1); and turns
    embossing off. The initialisers send it. */
- (void)__setup;

/** Whether the text is drawn embossed: only when it is exactly YES. Default NO. A cell does not
    redraw by itself; OvTextField does. */
- (void)setEmboss:(BOOL)flag;
- (BOOL)isEmboss;

/** Where the shadow lies, in points from the text. Default (1, -1): to the right and, since a
    negative height is downward on the screen, below, whether or not the view is flipped. */
- (void)setEmbossOffset:(NSSize)offset;
- (NSSize)embossOffset;

/** The shadow's colour, retained by the shadow. Default device white with alpha 0.8. Nothing is
    drawn for nil. */
- (void)setEmbossColor:(NSColor *)color;
- (NSColor *)embossColor;

/** Draws as NSTextFieldCell does, unless embossed. An embossed text, the cell's attributed string
    with the shadow over all of it, is drawn in the frame inset by 2 points from the left and
    right and 1 point from the top and bottom; so it stands where the embossed drawing puts it and
    not where the plain drawing would. While the text is being edited, the editor covers it. */
- (void)drawInteriorWithFrame:(NSRect)frame inView:(NSView *)view;

@end
