#import <OvAppKit/HXDictionaryImageContainer.h>
#import <OvAppKit/HXScroller.h>

#include "platform/ScrollerTracking.h"
#import "scrolling/HXScroller+Private.h"
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
    // The platform shows nothing before the pointer moves.
    [self _ovMark:ov::fromNS([self rectForPart:NSScrollerKnob])];
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
