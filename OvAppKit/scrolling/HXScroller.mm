#import <OvAppKit/HXDictionaryImageContainer.h>
#import <OvAppKit/HXScroller.h>

#include "platform/ScrollerTracking.h"
#include "scrolling/ScrollerPieces.h"
#include "support/GeometryBridge.h"

NSString *const HXScrollerPartName_DecrementArrow_MinEnd = @"DecrementArrow_MinEnd";
NSString *const HXScrollerPartName_DecrementArrow_MaxEnd_EndCap = @"DecrementArrow_MaxEnd_EndCap";
NSString *const HXScrollerPartName_DecrementArrow_MinEnd_EndCap = @"DecrementArrow_MinEnd_EndCap";
NSString *const HXScrollerPartName_IncrementArrow_MaxEnd = @"IncrementArrow_MaxEnd";
NSString *const HXScrollerPartName_IncrementArrow_MaxEnd_EndCap = @"IncrementArrow_MaxEnd_EndCap";
NSString *const HXScrollerPartName_IncrementArrow_MinEnd_EndCap = @"IncrementArrow_MinEnd_EndCap";
NSString *const HXScrollerPartName_KnobBody = @"KnobBody";
NSString *const HXScrollerPartName_KnobCap_MaxEnd = @"KnobCap_MaxEnd";
NSString *const HXScrollerPartName_KnobCap_MinEnd = @"KnobCap_MinEnd";
NSString *const HXScrollerPartName_EndCap_MaxEnd = @"EndCap_MaxEnd";
NSString *const HXScrollerPartName_EndCap_MinEnd = @"EndCap_MinEnd";
NSString *const HXScrollerPartName_KnobSlot = @"KnobSlot";

struct OvScrollerState {
  // Where the knob is on the screen, or will be by what is marked for drawing.
  ov::Rect knob;
  // An arrow is tracked, and the pointer has left it.
  bool pointerIsAway = false;
};

using ov::ScrollerArrow;
using ov::ScrollerArt;
using ov::ScrollerPart;

static_assert(static_cast<int>(ScrollerArrow::kIncrement) == NSScrollerIncrementArrow);
static_assert(static_cast<int>(ScrollerArrow::kDecrement) == NSScrollerDecrementArrow);
static_assert(static_cast<int>(ScrollerPart::kNone) == NSScrollerNoPart);
static_assert(static_cast<int>(ScrollerPart::kDecrementPage) == NSScrollerDecrementPage);
static_assert(static_cast<int>(ScrollerPart::kKnob) == NSScrollerKnob);
static_assert(static_cast<int>(ScrollerPart::kIncrementPage) == NSScrollerIncrementPage);
static_assert(static_cast<int>(ScrollerPart::kDecrementLine) == NSScrollerDecrementLine);
static_assert(static_cast<int>(ScrollerPart::kIncrementLine) == NSScrollerIncrementLine);
static_assert(static_cast<int>(ScrollerPart::kSlot) == NSScrollerKnobSlot);

// By ScrollerArt.
static NSString *const *const OvPartNames[ov::kScrollerArtCount] = {
    &HXScrollerPartName_DecrementArrow_MinEnd,
    &HXScrollerPartName_DecrementArrow_MaxEnd_EndCap,
    &HXScrollerPartName_DecrementArrow_MinEnd_EndCap,
    &HXScrollerPartName_IncrementArrow_MaxEnd,
    &HXScrollerPartName_IncrementArrow_MaxEnd_EndCap,
    &HXScrollerPartName_IncrementArrow_MinEnd_EndCap,
    &HXScrollerPartName_KnobBody,
    &HXScrollerPartName_KnobCap_MaxEnd,
    &HXScrollerPartName_KnobCap_MinEnd,
    &HXScrollerPartName_EndCap_MaxEnd,
    &HXScrollerPartName_EndCap_MinEnd,
    &HXScrollerPartName_KnobSlot,
};

static NSString *OvPartName(ScrollerArt art) { return *OvPartNames[static_cast<std::size_t>(art)]; }

// The states that the image of a part holds, from left to right.
static NSArray *OvStatesOf(ScrollerArt art) {
  switch (art) {
    case ScrollerArt::kKnobSlot:
      return @[ HXImageControlDefaultImageKey ];
    case ScrollerArt::kEndCapMaxEnd:
    case ScrollerArt::kEndCapMinEnd:
      return @[ HXImageControlDisabledImageKey, HXImageControlDefaultImageKey ];
    default:
      return @[
        HXImageControlDisabledImageKey, HXImageControlDefaultImageKey,
        HXImageControlAlternateImageKey
      ];
  }
}

// nil for what has no images.
static NSString *OvAppearanceName(int appearance) {
  if (appearance == HXScrollerAppearanceMetal) return @"HXScroller_Metal";
  return appearance == HXScrollerAppearanceBlack ? @"HXScroller_Black" : nil;
}

@implementation HXScroller

#pragma mark Creating

- (id)initWithFrame:(NSRect)frame {
  self = [super initWithFrame:frame];
  if (self != nil) _state = new OvScrollerState;
  return self;
}

- (id)initWithCoder:(NSCoder *)coder {
  self = [super initWithCoder:coder];
  if (self != nil) _state = new OvScrollerState;
  return self;
}

- (void)dealloc {
  [self _ovFollowKeyStateOfWindow:nil];
  [_imageContainers release];
  delete _state;
  [super dealloc];
}

#pragma mark Attributes

- (void)setAppearance:(int)appearance {
  if (appearance == _appearance) return;
  _appearance = appearance;
  [_imageContainers release];
  _imageContainers = [[HXScroller _imageContainersForAppearance:appearance
                                                        isHoriz:_scFlags.isHorizontal] retain];
  [self setNeedsDisplay:YES];
}

- (int)appearance {
  return _appearance;
}

- (void)setDelegate:(id)anObject {
  delegate = anObject;
}

- (id)delegate {
  return delegate;
}

- (BOOL)isEnabled {
  return _scFlags.isEnabled ? YES : NO;
}

- (BOOL)isOpaque {
  return _appearance == HXScrollerAppearanceDefault ? [super isOpaque] : NO;
}

// The platform forgets the part that is being tracked, and nothing scrolls any more until the mouse
// is released. A scroll view lays its scrollers out while the knob is dragged if the document
// grows.

- (void)setFrame:(NSRect)frame {
  const NSScrollerPart tracked = _hitPart;
  [super setFrame:frame];
  _hitPart = tracked;
}

- (void)setFrameSize:(NSSize)size {
  const NSScrollerPart tracked = _hitPart;
  [super setFrameSize:size];
  _hitPart = tracked;
}

#pragma mark Images

+ (BOOL)isCompatibleWithOverlayScrollers {
  return self == [HXScroller class];
}

+ (NSString *)_imageKeyForPartEnabled:(BOOL)enabled partPushed:(int)pushed {
  if (!enabled) return HXImageControlDisabledImageKey;
  return pushed == 1 ? HXImageControlAlternateImageKey : HXImageControlDefaultImageKey;
}

+ (NSString *)_imageResourceNameForPartName:(NSString *)partName
                                 appearance:(int)appearance
                                    isHoriz:(BOOL)horizontal {
  NSString *name = OvAppearanceName(appearance);
  if (name == nil) return nil;
  return [NSString stringWithFormat:@"%@_%@_%@", name, partName, horizontal ? @"H" : @"V"];
}

+ (NSDictionary *)_imageContainersForAppearance:(int)appearance isHoriz:(BOOL)horizontal {
  if (OvAppearanceName(appearance) == nil) return nil;
  NSBundle *bundle = [NSBundle bundleForClass:self];
  NSMutableDictionary *containers =
      [NSMutableDictionary dictionaryWithCapacity:ov::kScrollerArtCount];
  for (std::size_t i = 0; i < ov::kScrollerArtCount; ++i) {
    const auto art = static_cast<ScrollerArt>(i);
    NSString *resource = [self _imageResourceNameForPartName:OvPartName(art)
                                                  appearance:appearance
                                                     isHoriz:horizontal];
    if (resource == nil) continue;
    HXDictionaryImageContainer *container =
        [[HXDictionaryImageContainer alloc] initWithImageResourceName:resource
                                                             keyArray:OvStatesOf(art)
                                                             inBundle:bundle];
    [containers setObject:container forKey:OvPartName(art)];
    [container release];
  }
  return containers;
}

- (HXDictionaryImageContainer *)_ovContainerOf:(ScrollerArt)art {
  return [_imageContainers objectForKey:OvPartName(art)];
}

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

#pragma mark Parts

- (ov::ScrollerState)_ovScrollerState {
  ov::ScrollerState state;
  state.bounds = ov::fromNS([self bounds]);
  state.horizontal = _scFlags.isHorizontal;
  if (_arrowsPosition != NSScrollerArrowsNone) state.configuration = [[self class] _arrowsConfig];
  // All states of a part are equally large.
  for (std::size_t i = 0; i < ov::kScrollerArtCount; ++i) {
    HXDictionaryImageContainer *container = [self _ovContainerOf:static_cast<ScrollerArt>(i)];
    state.art[i] = ov::fromNS([container imageSizeForKey:HXImageControlDefaultImageKey]);
  }
  state.value = _doubleValue;
  state.proportion = _knobProportion;
  return state;
}

- (NSRect)rectForPart:(NSScrollerPart)part {
  if (_appearance == HXScrollerAppearanceDefault) return [super rectForPart:part];
  return ov::toNS(ov::rectForPart(ov::layOutScroller([self _ovScrollerState]),
                                  static_cast<ScrollerPart>(part)));
}

- (NSUsableScrollerParts)usableParts {
  if (_appearance == HXScrollerAppearanceDefault) return [super usableParts];
  switch (ov::layOutScroller([self _ovScrollerState]).room) {
    case ov::ScrollerRoom::kNothing:
      return NSNoScrollerParts;
    case ov::ScrollerRoom::kArrows:
      return NSOnlyScrollerArrows;
    case ov::ScrollerRoom::kAll:
      break;
  }
  return NSAllScrollerParts;
}

- (NSScrollerPart)testPart:(NSPoint)windowPoint {
  if (_appearance != HXScrollerAppearanceDefault) {
    const ov::ScrollerState state = [self _ovScrollerState];
    const NSPoint point = [self convertPoint:windowPoint fromView:nil];
    return static_cast<NSScrollerPart>(
        ov::partAtPoint(ov::layOutScroller(state), state, ov::fromNS(point)));
  }
  const NSScrollerPart part = [super testPart:windowPoint];
  const NSRect knob = [self rectForPart:NSScrollerKnob];
  if (part != NSScrollerKnobSlot || NSIsEmptyRect(knob)) return part;
  const NSPoint point = [self convertPoint:windowPoint fromView:nil];
  const bool isBefore = _scFlags.isHorizontal ? point.x < NSMinX(knob) : point.y < NSMinY(knob);
  return isBefore ? NSScrollerDecrementPage : NSScrollerIncrementPage;
}

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

// A stretch of the scroller, with what images show that are thicker than it.
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
  const ov::KnobPieces pieces =
      ov::placeKnobPieces(ov::fromNS([self rectForPart:NSScrollerKnob]),
                          sizeOf(ScrollerArt::kKnobBody), sizeOf(ScrollerArt::kKnobCapMinEnd),
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

#pragma mark Tracking

- (NSScrollerPart)_ovWillTrack {
  // Whoever hears of it may let the scroller go.
  [self retain];
  const NSScrollerPart part = [self hitPart];
  if ([delegate respondsToSelector:@selector(scroller:willTrackPart:)]) {
    [delegate scroller:self willTrackPart:part];
  }
  return part;
}

- (void)_ovDidTrackPart:(NSScrollerPart)part {
  if ([delegate respondsToSelector:@selector(scroller:didTrackPart:)]) {
    [delegate scroller:self didTrackPart:part];
  }
  [self autorelease];
}

- (void)trackKnob:(NSEvent *)event {
  const NSScrollerPart part = [self _ovWillTrack];
  if (_appearance != HXScrollerAppearanceDefault) {
    // The platform sets this, too, but shows nothing before the pointer moves.
    _hitPart = NSScrollerKnob;
    [self _ovMark:ov::fromNS([self rectForPart:NSScrollerKnob])];
    [self displayIfNeeded];
  }
  [super trackKnob:event];
  [self _ovDidTrackPart:part];
}

- (void)trackScrollButtons:(NSEvent *)event {
  // The platform sends all that is not the knob here.
  if (_hitPart == NSScrollerDecrementPage || _hitPart == NSScrollerIncrementPage) {
    [self trackPagingArea:event];
    return;
  }
  const NSScrollerPart part = [self _ovWillTrack];
  if (_appearance == HXScrollerAppearanceDefault) {
    [super trackScrollButtons:event];
  } else {
    // The platform's own would draw its arrows over the images.
    [self ov_repeatActionForEvent:event delay:0.3F period:0.03F];
  }
  [self _ovDidTrackPart:part];
}

- (void)trackPagingArea:(NSEvent *)event {
  const NSScrollerPart part = [self _ovWillTrack];
  [super trackPagingArea:event];
  [self _ovDidTrackPart:part];
}

@end
