#import <AppKit/AppKit.h>

/** The cell of an OvIconButton: a button cell that may have a separate image for being pressed,
    in place of the platform's highlighting.

      [cell setHighlightImage:pressed];   // fills the cell's frame while it is highlighted */
@interface OvIconButtonCell : NSButtonCell {
  NSImage *_highlightImage;
}

/** Drawn in place of the ordinary interior while the cell is highlighted, scaled into the whole
    frame; retained. nil (at first): the ordinary interior. It goes with a copy of the cell, and
    not into an archive. */
- (void)setHighlightImage:(NSImage *)image;
- (NSImage *)highlightImage;

@end
