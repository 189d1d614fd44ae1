#import <OvAppKit/OvSimpleView.h>

#include "platform/ImageDrawing.h"
#include "support/Retained.h"

// Far beyond every screen.
static const CGFloat OvParkedPlace = 1000000;

@implementation OvSimpleView

- (id)initWithFrame:(NSRect)frame {
  self = [super initWithFrame:frame];
  if (self != nil) [self _ovSetDefaults];
  return self;
}

- (id)initWithCoder:(NSCoder *)coder {
  self = [super initWithCoder:coder];
  if (self != nil) [self _ovSetDefaults];
  return self;
}

// Nobody could find a view again that an archive has parked.
- (void)encodeWithCoder:(NSCoder *)coder {
  const NSPoint origin = _frame.origin;
  if (_hidden) _frame.origin = _savedOrigin;
  @try {
    [super encodeWithCoder:coder];
  } @finally {
    _frame.origin = origin;
  }
}

- (void)_ovSetDefaults {
  [self setLabelColor:[NSColor darkGrayColor]];
  [self setLabelFont:[NSFont boldSystemFontOfSize:24]];
  [self setLabelFontSize:24];
  [self setFillColor:[NSColor whiteColor]];
  [self setFrameColor:[NSColor grayColor]];
  [self setFrameLineWidth:1];
}

- (void)dealloc {
  [_label release];
  [_labelColor release];
  [_labelFont release];
  [_image release];
  [_fillColor release];
  [_frameColor release];
  [super dealloc];
}

#pragma mark Hiding

- (void)setHidden:(BOOL)flag {
  const BOOL hidden = flag ? YES : NO;
  if (hidden != _hidden) {
    _hidden = hidden;
    if (hidden) {
      _savedOrigin = [self frame].origin;
      [self setFrameOrigin:NSMakePoint(OvParkedPlace, OvParkedPlace)];
    } else {
      [self setFrameOrigin:_savedOrigin];
    }
  }
  [self setNeedsDisplay:YES];
}

- (BOOL)isHidden {
  return _hidden;
}

#pragma mark Attributes

- (void)_ovReplace:(id *)variable by:(id)object {
  if (*variable == object) return;
  OvReplaceRetained(variable, object);
  [self setNeedsDisplay:YES];
}

- (void)_ovSetFlag:(BOOL *)variable to:(BOOL)flag {
  const BOOL value = flag ? YES : NO;
  if (*variable == value) return;
  *variable = value;
  [self setNeedsDisplay:YES];
}

- (void)_ovSetNumber:(float *)variable to:(float)number {
  if (*variable == number) return;
  *variable = number;
  [self setNeedsDisplay:YES];
}

- (void)setLabel:(NSString *)label {
  [self _ovReplace:&_label by:label];
}

- (NSString *)label {
  return _label;
}

- (void)setLabelColor:(NSColor *)color {
  [self _ovReplace:&_labelColor by:color];
}

- (NSColor *)labelColor {
  return _labelColor;
}

- (void)setLabelFont:(NSFont *)font {
  [self _ovReplace:&_labelFont by:font];
}

- (NSFont *)labelFont {
  return _labelFont;
}

- (void)setLabelFontSize:(float)size {
  [self _ovSetNumber:&_labelFontSize to:size];
}

- (float)labelFontSize {
  return _labelFontSize;
}

- (void)setImage:(NSImage *)image {
  [self _ovReplace:&_image by:image];
  if (_image != nil && _fillRect) [self setFillRect:NO];
}

- (NSImage *)image {
  return _image;
}

- (void)setFillColor:(NSColor *)color {
  [self _ovReplace:&_fillColor by:color];
}

- (NSColor *)fillColor {
  return _fillColor;
}

- (void)setFillRect:(BOOL)flag {
  [self _ovSetFlag:&_fillRect to:flag];
}

- (BOOL)fillRect {
  return _fillRect;
}

- (void)setFrameColor:(NSColor *)color {
  [self _ovReplace:&_frameColor by:color];
}

- (NSColor *)frameColor {
  return _frameColor;
}

- (void)setStrokeRect:(BOOL)flag {
  [self _ovSetFlag:&_strokeRect to:flag];
}

- (BOOL)strokeRect {
  return _strokeRect;
}

- (void)setFrameLineWidth:(float)width {
  [self _ovSetNumber:&_frameLineWidth to:width];
}

- (float)frameLineWidth {
  return _frameLineWidth;
}

#pragma mark Drawing

- (void)drawRect:(NSRect)rect {
  (void)rect;
  const NSRect bounds = [self bounds];
  if (_fillRect && _fillColor != nil) {
    [_fillColor set];
    NSRectFill(bounds);
  }
  OvDrawWholeImage(_image, bounds, NSCompositeSourceOver, 1);
  [self _ovDrawLabelInRect:bounds];
  // The platform draws a line of a negative width all over the view.
  if (_strokeRect && _frameColor != nil && _frameLineWidth >= 0) {
    [_frameColor set];
    NSBezierPath *path = [NSBezierPath bezierPathWithRect:bounds];
    [path setLineWidth:_frameLineWidth];
    [path stroke];
  }
}

- (void)_ovDrawLabelInRect:(NSRect)bounds {
  if (_label == nil) return;
  NSMutableDictionary *attributes =
      [NSMutableDictionary dictionaryWithObject:_labelColor ?: [NSColor blackColor]
                                         forKey:NSForegroundColorAttributeName];
  if (_labelFont != nil) [attributes setObject:_labelFont forKey:NSFontAttributeName];
  const NSSize size = [_label sizeWithAttributes:attributes];
  // A label that does not fit begins at 0 and not at the bounds' own edge; deliberately.
  const CGFloat x =
      size.width >= NSWidth(bounds) ? 0 : NSMinX(bounds) + NSWidth(bounds) * 0.5 - size.width * 0.5;
  const CGFloat y = NSMinY(bounds) + NSHeight(bounds) * 0.5 - size.height * 0.5;
  [_label drawAtPoint:NSMakePoint(x, y) withAttributes:attributes];
}

@end
