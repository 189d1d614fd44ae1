#import "shell/GalleryControls.h"

#import "shell/GalleryStyle.h"

static void drawField(NSRect frame, CGFloat radius, BOOL highlighted, BOOL enabled) {
  NSBezierPath *path = GalleryRoundedPath(NSInsetRect(frame, 0.5, 0.5), radius);
  [highlighted ? GalleryColor(0xE7EEFB) : enabled ? GalleryPanelColor() : GalleryWindowColor() set];
  [path fill];
  [GalleryColor(0xC3CAD6) set];
  [path setLineWidth:1];
  [path stroke];
}

static NSColor *textColor(NSCell *cell) {
  return [cell isEnabled] ? GalleryTextColor() : GalleryColor(0xA5ADBA);
}

// A polyline through points of a flipped view.
static void strokeLine(NSPoint a, NSPoint b, NSPoint c, CGFloat width, NSColor *color) {
  NSBezierPath *path = [NSBezierPath bezierPath];
  [path moveToPoint:a];
  [path lineToPoint:b];
  [path lineToPoint:c];
  [path setLineWidth:width];
  [path setLineCapStyle:NSRoundLineCapStyle];
  [path setLineJoinStyle:NSRoundLineJoinStyle];
  [color set];
  [path stroke];
}

@implementation GalleryPopUpCell

- (void)drawWithFrame:(NSRect)frame inView:(NSView *)view {
  drawField(frame, 4, [self isHighlighted], [self isEnabled]);
  NSRect text = NSInsetRect(frame, 8, 0);
  text.size.width -= 14;
  [NSGraphicsContext saveGraphicsState];
  NSRectClip(text);
  GalleryDrawText([self titleOfSelectedItem] ?: @"", text, [self font], textColor(self),
                  NSLeftTextAlignment);
  [NSGraphicsContext restoreGraphicsState];
  const CGFloat x = NSMaxX(frame) - 13, y = NSMidY(frame), s = [view isFlipped] ? 1 : -1;
  strokeLine(NSMakePoint(x - 4, y - 2 * s), NSMakePoint(x, y + 2 * s),
             NSMakePoint(x + 4, y - 2 * s), 1.5, GalleryQuietTextColor());
}

@end

@implementation GalleryPopUp

+ (Class)cellClass {
  return [GalleryPopUpCell class];
}

- (BOOL)isOpaque {
  return NO;
}

@end

@implementation GalleryCheckBoxCell

- (void)drawWithFrame:(NSRect)frame inView:(NSView *)view {
  const NSRect box = NSMakeRect(NSMinX(frame) + 1, floor(NSMidY(frame) - 7), 14, 14);
  const BOOL on = [self state] == NSOnState;
  if (on && [self isEnabled]) {
    [GalleryAccentColor() set];
    [GalleryRoundedPath(box, 3) fill];
    const CGFloat x = NSMinX(box), y = NSMidY(box), s = [view isFlipped] ? 1 : -1;
    strokeLine(NSMakePoint(x + 3.5, y + 0.5 * s), NSMakePoint(x + 6, y + 3 * s),
               NSMakePoint(x + 10.5, y - 3 * s), 1.8, [NSColor whiteColor]);
  } else {
    drawField(box, 3, [self isHighlighted], [self isEnabled]);
  }
  NSRect text = frame;
  text.origin.x += 22;
  text.size.width -= 22;
  GalleryDrawText([self title], text, [self font], textColor(self), NSLeftTextAlignment);
}

@end

@implementation GalleryCheckBox

+ (Class)cellClass {
  return [GalleryCheckBoxCell class];
}

@end

@implementation GalleryButtonCell

- (void)drawWithFrame:(NSRect)frame inView:(NSView *)view {
  (void)view;
  drawField(frame, 4, [self isHighlighted], [self isEnabled]);
  GalleryDrawText([self title], frame, [self font], textColor(self), NSCenterTextAlignment);
  if (![self showsFirstResponder]) return;
  [GalleryAccentColor() set];
  [GalleryRoundedPath(NSInsetRect(frame, 1, 1), 4) stroke];
}

@end

@implementation GalleryButton

+ (Class)cellClass {
  return [GalleryButtonCell class];
}

- (BOOL)isOpaque {
  return NO;
}

@end

@implementation GallerySliderCell

static const CGFloat kKnobSize = 14;

- (void)drawBarInside:(NSRect)rect flipped:(BOOL)flipped {
  NSRect track = NSMakeRect(NSMinX(rect), floor(NSMidY(rect)) - 2, NSWidth(rect), 4);
  [GalleryColor(0xD5DBE5) set];
  [GalleryRoundedPath(track, 2) fill];
  track.size.width = NSMidX([self knobRectFlipped:flipped]) - NSMinX(track);
  [GalleryAccentColor() set];
  [GalleryRoundedPath(track, 2) fill];
}

- (NSRect)knobRectFlipped:(BOOL)flipped {
  const NSRect track = [self trackRect];
  const double span = [self maxValue] - [self minValue];
  const double place = span > 0 ? ([self doubleValue] - [self minValue]) / span : 0;
  return NSMakeRect(NSMinX(track) + round((NSWidth(track) - kKnobSize) * place),
                    floor(NSMidY(track)) - kKnobSize / 2, kKnobSize, kKnobSize);
}

- (void)drawKnob:(NSRect)rect {
  NSBezierPath *knob = [NSBezierPath bezierPathWithOvalInRect:NSInsetRect(rect, 0.75, 0.75)];
  [[NSColor whiteColor] set];
  [knob fill];
  [GalleryColor(0x9AA5B8) set];
  [knob setLineWidth:1.25];
  [knob stroke];
}

- (void)drawKnob {
  [self drawKnob:[self knobRectFlipped:[[self controlView] isFlipped]]];
}

@end

@implementation GallerySlider

+ (Class)cellClass {
  return [GallerySliderCell class];
}

- (id)initWithFrame:(NSRect)frame {
  self = [super initWithFrame:frame];
  [[self cell] setBordered:NO];
  [[self cell] setBezeled:NO];
  return self;
}

- (BOOL)isOpaque {
  return NO;
}

@end

@implementation GalleryProgressBar

- (id)initWithFrame:(NSRect)frame {
  self = [super initWithFrame:frame];
  if (self) _progress = 1;
  return self;
}

- (void)setProgress:(double)progress {
  if (progress == _progress) return;
  _progress = progress;
  [self setNeedsDisplay:YES];
}

- (void)drawRect:(NSRect)rect {
  (void)rect;
  if (_progress >= 1) return;
  NSRect bar = [self bounds];
  const CGFloat radius = NSHeight(bar) / 2;
  [GalleryLineColor() set];
  [GalleryRoundedPath(bar, radius) fill];
  bar.size.width = MAX(NSHeight(bar), NSWidth(bar) * _progress);
  [GalleryAccentColor() set];
  [GalleryRoundedPath(bar, radius) fill];
}

@end

@implementation GalleryScroller

- (BOOL)isOpaque {
  return NO;
}

// The whole length is the track: there are no arrows.
- (NSRect)rectForPart:(NSScrollerPart)part {
  const NSRect bounds = [self bounds];
  const BOOL vertical = NSHeight(bounds) > NSWidth(bounds);
  const CGFloat length = vertical ? NSHeight(bounds) : NSWidth(bounds);
  const CGFloat knob = MAX(24, floor(length * [self knobProportion]));
  const CGFloat place = floor((length - knob) * [self doubleValue]);
  if (part == NSScrollerKnobSlot) return bounds;
  if (part != NSScrollerKnob || knob >= length) return NSZeroRect;
  return vertical ? NSMakeRect(0, place, NSWidth(bounds), knob)
                  : NSMakeRect(place, 0, knob, NSHeight(bounds));
}

- (void)drawRect:(NSRect)rect {
  [GalleryWindowColor() set];
  NSRectFill(rect);
  NSRect knob = [self rectForPart:NSScrollerKnob];
  if (NSIsEmptyRect(knob)) return;
  knob = NSHeight([self bounds]) > NSWidth([self bounds]) ? NSInsetRect(knob, 5, 2)
                                                          : NSInsetRect(knob, 2, 5);
  [GalleryColor([self hitPart] == NSScrollerKnob ? 0x8D99AE : 0xBCC5D3) set];
  [GalleryRoundedPath(knob, 4) fill];
}

@end

@implementation GalleryScrollView

// The platform would draw black lines beside the scrollers.
- (void)drawRect:(NSRect)rect {
  [GalleryWindowColor() set];
  NSRectFill(rect);
}

- (id)initWithFrame:(NSRect)frame {
  self = [super initWithFrame:frame];
  if (!self) return nil;
  // The platform makes scrollers of its own class unless there are some already.
  [self setVerticalScroller:[[[GalleryScroller alloc] initWithFrame:NSMakeRect(0, 0, 18, 100)]
                                autorelease]];
  [self setHorizontalScroller:[[[GalleryScroller alloc] initWithFrame:NSMakeRect(0, 0, 100, 18)]
                                  autorelease]];
  [self setAutohidesScrollers:YES];
  [self setHasVerticalScroller:YES];
  [self setHasHorizontalScroller:YES];
  [self setBorderType:NSNoBorder];
  [self setDrawsBackground:YES];
  [self setBackgroundColor:GalleryPanelColor()];
  return self;
}

@end
