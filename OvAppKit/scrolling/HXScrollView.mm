#import <OvAppKit/HXScrollView.h>

#import <OvAppKit/HXScroller.h>

#include "scrolling/NeededScrollers.h"
#include "support/GeometryBridge.h"
#include "support/Retained.h"

namespace {

// A scroller keeps neither its target nor its delegate, and may outlive the scroll view.
void forget(HXScrollView *view, NSScroller *scroller) {
  if ([scroller target] == view) [scroller setTarget:nil];
  if ([scroller isKindOfClass:[HXScroller class]] && [(HXScroller *)scroller delegate] == view) {
    [(HXScroller *)scroller setDelegate:nil];
  }
}

bool needsReplacement(NSScroller *scroller) {
  return scroller != nil && ![scroller isKindOfClass:[HXScroller class]];
}

ov::Retained<HXScroller *> makeReplacement(NSScroller *old, HXScrollView *view) {
  HXScroller *scroller = [[HXScroller alloc] initWithFrame:[old frame]];
  [scroller setDelegate:view];
  return ov::adopt(scroller);
}

}  // namespace

@implementation HXScrollView

+ (Class)_horizontalScrollerClass {
  return [HXScroller class];
}

+ (Class)_verticalScrollerClass {
  return [HXScroller class];
}

- (id)initWithFrame:(NSRect)frame {
  self = [super initWithFrame:frame];
  [self _replaceScrollersIfNeeded];
  [self _observeContentBounds];
  return self;
}

- (id)initWithCoder:(NSCoder *)coder {
  self = [super initWithCoder:coder];
  [self _replaceScrollersIfNeeded];
  [self _observeContentBounds];
  return self;
}

- (void)dealloc {
  [[NSNotificationCenter defaultCenter] removeObserver:self];
  forget(self, [self horizontalScroller]);
  forget(self, [self verticalScroller]);
  [super dealloc];
}

- (void)setDelegate:(id)anObject {
  delegate = anObject;
}

- (id)delegate {
  return delegate;
}

// MARK: Scrollers

- (void)_replaceScrollersIfNeeded {
  if (NSScroller *old = [self horizontalScroller]; needsReplacement(old)) {
    [self setHorizontalScroller:makeReplacement(old, self).get()];
  }
  if (NSScroller *old = [self verticalScroller]; needsReplacement(old)) {
    [self setVerticalScroller:makeReplacement(old, self).get()];
  }
}

// The platform keeps a scroller that it is given out of sight until it is told anew that the
// scroll view has scrollers, which it may have been told already. While the scroll view is being
// decoded there is no content view, and the platform shows the scrollers itself.
- (void)_ovShowScroller:(NSScroller *)scroller {
  if (scroller == nil || [self contentView] == nil) return;
  [self addSubview:scroller];
  [self tile];
}

- (void)setHorizontalScroller:(NSScroller *)scroller {
  const auto old = ov::retain([self horizontalScroller]);
  [super setHorizontalScroller:scroller];
  if (old.get() != scroller) forget(self, old.get());
  if ([self hasHorizontalScroller]) [self _ovShowScroller:scroller];
}

- (void)setVerticalScroller:(NSScroller *)scroller {
  const auto old = ov::retain([self verticalScroller]);
  [super setVerticalScroller:scroller];
  if (old.get() != scroller) forget(self, old.get());
  if ([self hasVerticalScroller]) [self _ovShowScroller:scroller];
}

// The platform would make a scroller of its own class here, and does not ask for another.
- (void)setHasHorizontalScroller:(BOOL)flag {
  if (flag && ![self hasHorizontalScroller] && [self horizontalScroller] == nil) {
    const Class scrollerClass = [[self class] _horizontalScrollerClass];
    // Wider than high, which makes it a horizontal one.
    const NSRect frame = NSMakeRect(0, 0, NSWidth([self bounds]), [scrollerClass scrollerWidth]);
    [self setHorizontalScroller:ov::adopt([[scrollerClass alloc] initWithFrame:frame]).get()];
  }
  [super setHasHorizontalScroller:flag];
}

- (void)setHasVerticalScroller:(BOOL)flag {
  if (flag && ![self hasVerticalScroller] && [self verticalScroller] == nil) {
    const Class scrollerClass = [[self class] _verticalScrollerClass];
    const NSRect frame = NSMakeRect(0, 0, [scrollerClass scrollerWidth], NSHeight([self bounds]));
    [self setVerticalScroller:ov::adopt([[scrollerClass alloc] initWithFrame:frame]).get()];
  }
  [super setHasVerticalScroller:flag];
}

// Where scrollers hide by themselves, the platform decides on each of them by the room that there
// was before the other one came or went, and again from the beginning after that: a document that
// fits without scrollers, but not beside them, sends it round and round. So the platform is told
// that they do not hide, while it is decided here.
- (void)reflectScrolledClipView:(NSClipView *)clipView {
  if (clipView == nil || clipView != [self contentView] || ![self autohidesScrollers]) {
    [super reflectScrolledClipView:clipView];
    return;
  }
  [super setAutohidesScrollers:NO];
  @try {
    [self _ovShowNeededScrollers];
    [super reflectScrolledClipView:clipView];
  } @finally {
    [super setAutohidesScrollers:YES];
  }
}

- (void)_ovShowNeededScrollers {
  NSClipView *content = [self contentView];
  const auto sizeWith = [&](BOOL scrollers) {
    return [[self class] contentSizeForFrameSize:[self frame].size
                           hasHorizontalScroller:scrollers
                             hasVerticalScroller:scrollers
                                      borderType:[self borderType]];
  };
  const NSSize without = sizeWith(NO);
  const NSSize with = sizeWith(YES);
  const NSSize taken =
      [content convertSize:NSMakeSize(without.width - with.width, without.height - with.height)
                  fromView:self];
  NSSize room = [content bounds].size;
  if ([self hasVerticalScroller]) room.width += taken.width;
  if ([self hasHorizontalScroller]) room.height += taken.height;
  const ov::NeededScrollers needed = ov::neededScrollers(
      ov::fromNS([[content documentView] frame].size), ov::fromNS(room), ov::fromNS(taken));
  [self setHasVerticalScroller:needed.vertical];
  [self setHasHorizontalScroller:needed.horizontal];
}

// The platform draws a line along each scroller that the scroll view says it has, and asks none for
// its frame where that has been taken out; on 32 bits such a message breaks the stack.
- (void)drawRect:(NSRect)rect {
  const BOOL hadHorizontal = _hasHorizScroller, hadVertical = _hasVertScroller;
  @try {
    _hasHorizScroller = hadHorizontal && _horizScroller != nil;
    _hasVertScroller = hadVertical && _vertScroller != nil;
    [super drawRect:rect];
  } @finally {
    _hasHorizScroller = hadHorizontal;
    _hasVertScroller = hadVertical;
  }
}

// MARK: Scrolling by hand

- (BOOL)isHorizontalScrollerTraking {
  return [[self horizontalScroller] hitPart] != NSScrollerNoPart;
}

- (BOOL)isVerticalScrollerTraking {
  return [[self verticalScroller] hitPart] != NSScrollerNoPart;
}

- (void)_observeContentBounds {
  NSClipView *content = [self contentView];
  if (content == nil) return;
  [content setPostsBoundsChangedNotifications:YES];
  [[NSNotificationCenter defaultCenter] addObserver:self
                                           selector:@selector(contentBoundsDidChange:)
                                               name:NSViewBoundsDidChangeNotification
                                             object:content];
}

// An observation goes by the address of the content view, where another one may lie later.
- (void)willRemoveSubview:(NSView *)view {
  if (view == [self contentView]) {
    [[NSNotificationCenter defaultCenter] removeObserver:self
                                                    name:NSViewBoundsDidChangeNotification
                                                  object:view];
  }
  [super willRemoveSubview:view];
}

// The delegate may let go of the scroll view, while scroller and content view are at work for it
// until the event is over.
- (void)contentBoundsDidChange:(NSNotification *)notification {
  (void)notification;
  if (![delegate respondsToSelector:@selector(scrollViewDidScrollContent:)]) return;
  if (![self isHorizontalScrollerTraking] && ![self isVerticalScrollerTraking]) return;
  [[self retain] autorelease];
  [delegate scrollViewDidScrollContent:self];
}

- (void)scroller:(HXScroller *)scroller willTrackPart:(NSScrollerPart)part {
  [[self retain] autorelease];
  if ([delegate respondsToSelector:@selector(scroller:inScrollView:willTrackPart:)]) {
    [delegate scroller:scroller inScrollView:self willTrackPart:part];
  }
}

- (void)scroller:(HXScroller *)scroller didTrackPart:(NSScrollerPart)part {
  if ([delegate respondsToSelector:@selector(scroller:inScrollView:didTrackPart:)]) {
    [delegate scroller:scroller inScrollView:self didTrackPart:part];
  }
}

@end
