// OvSimpleView: a placeholder or decoration. It can fill itself with a colour, show a stretched
// image, show a centred label and stroke a frame, in this order, each on request:
//
//   OvSimpleView *empty = [[OvSimpleView alloc] initWithFrame:frame];
//   [empty setFillColor:[NSColor whiteColor]];
//   [empty setFillRect:YES];
//   [empty setLabel:@"No selection"];
//
// It hides itself by moving off-screen: it stays in its superview and keeps its size.
//
// Every setter does nothing when it is given what the view has already, the same object or an
// equal number; otherwise it redraws the view. Objects are retained.

#import <AppKit/AppKit.h>

@interface OvSimpleView : NSView {
  BOOL _hidden;
  NSPoint _savedOrigin;
  NSString *_label;
  NSColor *_labelColor;
  NSFont *_labelFont;
  float _labelFontSize;
  NSImage *_image;
  NSColor *_fillColor;
  BOOL _fillRect;
  NSColor *_frameColor;
  BOOL _strokeRect;
  float _frameLineWidth;
}

/** A view that draws nothing yet: no label, no image, neither filled nor framed. */
- (id)initWithFrame:(NSRect)frame;

/** A view from an archive or an interface file, keyed or sequential, has its frame and its
    subviews; its attributes are not archived and are those of a new one. An interface file may
    say that the view is hidden. A view that is archived while it is hidden is archived at the
    origin that it would return to, and comes back shown. */
- (id)initWithCoder:(NSCoder *)coder;
- (void)encodeWithCoder:(NSCoder *)coder;

/** Whether the view is hidden. NO by default. Hiding remembers the frame's origin and moves the
    view to (1000000, 1000000); showing moves it back to the origin it had when it was hidden,
    wherever it was moved in between. This replaces the platform's hiding: its subviews do not
    hear of it, and the view keeps drawing, out of sight. The view is marked for drawing in
    every case. */
- (void)setHidden:(BOOL)flag;
- (BOOL)isHidden;

/** The text in the middle; nil, the default, for none. A text wider than the view starts at
    x = 0. */
- (void)setLabel:(NSString *)label;
- (NSString *)label;

/** The label's colour; dark grey by default, black for nil. */
- (void)setLabelColor:(NSColor *)color;
- (NSColor *)labelColor;

/** The label's font; the bold system font of 24 points by default. For nil it is that of the
    platform's strings. */
- (void)setLabelFont:(NSFont *)font;
- (NSFont *)labelFont;

/** A number in points that is kept and nothing more, 24 by default: deliberately, the label is
    drawn in labelFont, whatever its size. */
- (void)setLabelFontSize:(float)size;
- (float)labelFontSize;

/** An image that is stretched over the bounds; nil, the default, for none. An image and filling
    exclude each other: whenever this method ends with an image, filling is switched off, also
    when the same image was given. Taking the image away does not switch it on again. */
- (void)setImage:(NSImage *)image;
- (NSImage *)image;

/** The colour of the bounds if fillRect is YES; white by default. nil fills nothing. */
- (void)setFillColor:(NSColor *)color;
- (NSColor *)fillColor;
- (void)setFillRect:(BOOL)flag;
- (BOOL)fillRect;

/** The colour of a line along the bounds if strokeRect is YES; grey by default. nil strokes
    nothing. */
- (void)setFrameColor:(NSColor *)color;
- (NSColor *)frameColor;
- (void)setStrokeRect:(BOOL)flag;
- (BOOL)strokeRect;

/** The line's width in points, 1 by default. The line is centred on the edge of the bounds:
    its outer half is clipped, so that half of the width is seen. */
- (void)setFrameLineWidth:(float)width;
- (float)frameLineWidth;

/** Fills, draws the image, the label and the frame, as far as the view has them. */
- (void)drawRect:(NSRect)rect;

@end
