#include "support/HoverTracking.h"

#include <vector>

#include "platform/TrackingRects.h"

namespace {

// Tracking rectangles are looked at where the view can be seen, so one that is larger than any
// view follows all of the view's changes by itself.
constexpr CGFloat kFar = 1e6;

// The part of a view that can be seen, on the screen; empty while none can.
NSRect placeOnScreen(NSView *view) {
  NSWindow *window = [view window];
  if (![window isVisible]) return NSZeroRect;
  const NSRect visible = [view visibleRect];
  if (NSIsEmptyRect(visible)) return NSZeroRect;
  NSRect place = [view convertRect:visible toView:nil];
  place.origin = [window convertBaseToScreen:place.origin];
  return place;
}

}  // namespace

// The rectangle is its own owner, and the view's list of them owns it: nothing is left behind
// when the view goes.
@interface _OvHoverRect : GSTrackingRect {
  NSView *_view;                    // not retained: it owns this object
  std::vector<NSView *> _observed;  // the view and those around it; only compared
  NSRect _place;                    // where on the screen it was when last looked at
  BOOL _inside;
}
- (void)lookAgain;
@end

@implementation _OvHoverRect

- (id)initWithRect:(NSRect)rect
               tag:(NSTrackingRectTag)aTag
             owner:(id)view
          userData:(void *)data
            inside:(BOOL)flag {
  self = [super initWithRect:rect tag:aTag owner:self userData:data inside:flag];
  if (self == nil) return nil;
  _view = view;
  // After each event: what hides a view or takes its window away tells nobody.
  [[NSNotificationCenter defaultCenter] addObserver:self
                                           selector:@selector(lookAgain)
                                               name:NSApplicationDidUpdateNotification
                                             object:nil];
  [self lookAgain];
  return self;
}

- (void)dealloc {
  [[NSNotificationCenter defaultCenter] removeObserver:self];
  [super dealloc];
}

// It has been taken out of the view's list.
- (void)invalidate {
  [super invalidate];
  [[NSNotificationCenter defaultCenter] removeObserver:self];
  _view = nil;
}

- (void)mouseEntered:(NSEvent *)event {
  (void)event;
  [self pointerMoved];
}

- (void)mouseExited:(NSEvent *)event {
  (void)event;
  [self pointerMoved];
}

- (void)pointerMoved {
  [self lookAgain];
  _inside = ov::isMouseInside(_view);
  [_view setNeedsDisplay:YES];
}

// The pointer is asked for only when the view has come to lie elsewhere.
- (void)lookAgain {
  if (_view == nil) return;
  [self followAncestors];
  const NSRect place = placeOnScreen(_view);
  if (NSEqualRects(place, _place)) return;
  const BOOL wasInside = _inside;
  const BOOL appeared = NSIsEmptyRect(_place);
  _place = place;
  _inside = ov::isMouseInside(_view);
  // What is in the window of a view that had been away may be from any time.
  if (_inside != wasInside || appeared) [_view setNeedsDisplay:YES];
}

// A timer may scroll or move the view, too, with no event after it.
- (void)followAncestors {
  size_t depth = 0;
  NSView *view = _view;
  while (view != nil && depth < _observed.size() && _observed[depth] == view) {
    view = [view superview];
    depth++;
  }
  if (view == nil && depth == _observed.size()) return;
  NSNotificationCenter *center = [NSNotificationCenter defaultCenter];
  [center removeObserver:self name:NSViewFrameDidChangeNotification object:nil];
  [center removeObserver:self name:NSViewBoundsDidChangeNotification object:nil];
  _observed.clear();
  for (view = _view; view != nil; view = [view superview]) {
    _observed.push_back(view);
    [center addObserver:self
               selector:@selector(lookAgain)
                   name:NSViewFrameDidChangeNotification
                 object:view];
    [center addObserver:self
               selector:@selector(lookAgain)
                   name:NSViewBoundsDidChangeNotification
                 object:view];
  }
}

@end

namespace ov {

void setHoverTracking(NSView *view, BOOL flag) {
  if (view == nil) return;
  TrackingRects rects(view);
  GSTrackingRect *tracking = rects.find([_OvHoverRect class]);
  if ((tracking != nil) == (flag != NO)) return;
  if (flag) {
    rects.add(NSMakeRect(-kFar, -kFar, 2 * kFar, 2 * kFar), view, nullptr, false,
              [_OvHoverRect class]);
  } else {
    rects.remove([tracking tag]);
  }
}

BOOL isHoverTracking(NSView *view) { return TrackingRects(view).find([_OvHoverRect class]) != nil; }

BOOL isMouseInside(NSView *view) {
  NSWindow *window = [view window];
  if (![window isVisible]) return NO;
  const NSPoint pointer = [window mouseLocationOutsideOfEventStream];
  return NSMouseInRect([view convertPoint:pointer fromView:nil], [view visibleRect],
                       [view isFlipped]);
}

}  // namespace ov
