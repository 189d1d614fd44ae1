// What the scroller draws with images, and when it draws again.

#include "platform/ScrollerTracking.h"
#import "scrolling/HXScroller+Private.h"
#include "support/GeometryBridge.h"

using ov::ScrollerArrow;
using ov::ScrollerArt;

@implementation HXScroller (HXScrollerDrawing)

#pragma mark Marking

// The platform would have the whole slot drawn.
- (void)setDoubleValue:(double)number {
  if (_appearance == HXScrollerAppearanceDefault) {
    [super setDoubleValue:number];
    return;
  }
  const double value = number > 0 ? fmin(number, 1) : 0;
  if (value == _doubleValue) return;
  _doubleValue = value;
  const ov::Rect knob = ov::fromNS([self rectForPart:NSScrollerKnob]);
  if (knob == _state->knob) return;
  [self _ovMark:ov::unite(_state->knob, knob)];
  _state->knob = knob;
}

- (void)_ovMark:(const ov::Rect &)rect {
  NSRect marked = [self bounds];
  if (_scFlags.isHorizontal) {
    marked.origin.x = rect.x;
    marked.size.width = rect.width;
  } else {
    marked.origin.y = rect.y;
    marked.size.height = rect.height;
  }
  [self setNeedsDisplayInRect:marked];
}

- (void)viewWillMoveToWindow:(NSWindow *)window {
  [super viewWillMoveToWindow:window];
  [self _ovFollowKeyStateOfWindow:window];
}

- (void)_ovFollowKeyStateOfWindow:(NSWindow *)window {
  NSNotificationCenter *center = [NSNotificationCenter defaultCenter];
  for (NSString *name in @[ NSWindowDidBecomeKeyNotification, NSWindowDidResignKeyNotification ]) {
    [center removeObserver:self name:name object:nil];
    if (window == nil) continue;
    [center addObserver:self selector:@selector(_ovKeyStateDidChange:) name:name object:window];
  }
}

- (void)_ovKeyStateDidChange:(NSNotification *)notification {
  (void)notification;
  if (_appearance != HXScrollerAppearanceDefault) [self setNeedsDisplay:YES];
}

#pragma mark Drawing

// The key for the present state of the scroller.
- (NSString *)_ovKeyForPushed:(BOOL)pushed {
  const BOOL enabled = [self isEnabled] && [[self window] isKeyWindow];
  return [[self class] _imageKeyForPartEnabled:enabled partPushed:pushed ? 1 : 0];
}

- (void)_ovDraw:(ScrollerArt)art inRect:(const ov::Rect &)rect forKey:(NSString *)key {
  HXDictionaryImageContainer *container = [self _ovContainerOf:art];
  if (![container containsImageForKey:key]) return;
  [container drawImageInRect:ov::toNS(rect) isFlipped:[self isFlipped] forKey:key];
}

// The platform leaves out arrows and knob of a disabled scroller, which have images here.
- (void)drawRect:(NSRect)rect {
  if (_appearance == HXScrollerAppearanceDefault) {
    [super drawRect:rect];
    return;
  }
  const NSRect slot = [self rectForPart:NSScrollerKnobSlot];
  const NSRect knob = [self rectForPart:NSScrollerKnob];
  _state->knob = ov::fromNS(knob);
  if (!NSIsEmptyRect(slot)) [self drawKnobSlotInRect:slot highlight:NO];
  [self drawKnob];
  // Those that stand beside what is drawn are not asked for, as while the knob is dragged.
  if ([self usableParts] == NSNoScrollerParts || _arrowsPosition == NSScrollerArrowsNone) return;
  const bool isWithinSlot = _scFlags.isHorizontal
                                ? NSMinX(rect) >= NSMinX(slot) && NSMaxX(rect) <= NSMaxX(slot)
                                : NSMinY(rect) >= NSMinY(slot) && NSMaxY(rect) <= NSMaxY(slot);
  if (isWithinSlot) return;
  const NSInteger pushed = [self _ovPushedArrow];
  [self drawArrow:NSScrollerDecrementArrow highlightPart:pushed];
  [self drawArrow:NSScrollerIncrementArrow highlightPart:pushed];
}

// The number of the arrow that shows as pressed, or -1.
- (NSInteger)_ovPushedArrow {
  if (_state->pointerIsAway) return -1;
  if (_hitPart == NSScrollerIncrementLine) return NSScrollerIncrementArrow;
  return _hitPart == NSScrollerDecrementLine ? NSScrollerDecrementArrow : -1;
}

- (void)drawArrow:(NSScrollerArrow)arrow highlight:(BOOL)flag {
  const auto number = static_cast<NSInteger>(arrow);
  const NSInteger pushed = [self _ovPushedArrow];
  // The other arrow has pieces beside this one; how they look only the press tells.
  [self drawArrow:arrow highlightPart:flag ? number : pushed == number ? -1 : pushed];
}

- (void)drawArrow:(NSScrollerArrow)arrow highlightPart:(NSInteger)highlightPart {
  if (_appearance == HXScrollerAppearanceDefault) {
    [super drawArrow:arrow highlightPart:highlightPart];
    return;
  }
  if (arrow != NSScrollerIncrementArrow && arrow != NSScrollerDecrementArrow) return;
  const ov::ArrowPieces pieces =
      ov::arrowPieces(static_cast<ScrollerArrow>(arrow), [[self class] _arrowsConfig]);
  ov::PieceSizes sizes;
  NSString *keys[std::tuple_size_v<ov::PieceSizes>];
  for (std::size_t i = 0; i < pieces.count; ++i) {
    const ov::ArrowPiece &piece = pieces.pieces[i];
    keys[i] = [self _ovKeyForPushed:piece.arrow.has_value() &&
                                    static_cast<NSInteger>(*piece.arrow) == highlightPart];
    sizes[i] = ov::fromNS([[self _ovContainerOf:piece.art] imageSizeForKey:keys[i]]);
  }
  const std::array<ov::Rect, 2> places =
      ov::placeArrowPieces(pieces, sizes, ov::fromNS([self bounds]), _scFlags.isHorizontal);
  for (std::size_t i = 0; i < pieces.count; ++i) {
    [self _ovDraw:pieces.pieces[i].art inRect:places[i] forKey:keys[i]];
  }
}

- (void)drawKnob {
  if (_appearance == HXScrollerAppearanceDefault) {
    [super drawKnob];
    return;
  }
  const NSRect knob = [self rectForPart:NSScrollerKnob];
  if (NSIsEmptyRect(knob)) return;
  NSString *key = [self _ovKeyForPushed:[self hitPart] == NSScrollerKnob];
  const auto sizeOf = [&](ScrollerArt art) {
    return ov::fromNS([[self _ovContainerOf:art] imageSizeForKey:key]);
  };
  const ov::KnobPieces pieces = ov::placeKnobPieces(
      ov::fromNS(knob), sizeOf(ScrollerArt::kKnobBody), sizeOf(ScrollerArt::kKnobCapMinEnd),
      sizeOf(ScrollerArt::kKnobCapMaxEnd), _scFlags.isHorizontal);
  [self _ovDraw:ScrollerArt::kKnobBody inRect:pieces.body forKey:key];
  [self _ovDraw:ScrollerArt::kKnobCapMinEnd inRect:pieces.minCap forKey:key];
  [self _ovDraw:ScrollerArt::kKnobCapMaxEnd inRect:pieces.maxCap forKey:key];
}

- (void)drawKnobSlotInRect:(NSRect)slotRect highlight:(BOOL)flag {
  if (_appearance == HXScrollerAppearanceDefault) {
    [super drawKnobSlotInRect:slotRect highlight:flag];
    return;
  }
  const NSSize image =
      [[self _ovContainerOf:ScrollerArt::kKnobSlot] imageSizeForKey:HXImageControlDefaultImageKey];
  [self _ovDraw:ScrollerArt::kKnobSlot
         inRect:ov::placeSlot(ov::fromNS(slotRect), ov::fromNS(image), _scFlags.isHorizontal)
         forKey:HXImageControlDefaultImageKey];
}

// The platform draws the arrow at once, into whatever has the focus.
- (void)highlight:(BOOL)flag {
  if (_appearance == HXScrollerAppearanceDefault) {
    [super highlight:flag];
    return;
  }
  _state->pointerIsAway = !flag;
  [self setNeedsDisplay:YES];
}

@end
