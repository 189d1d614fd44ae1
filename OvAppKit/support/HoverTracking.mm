#include "support/HoverTracking.h"

#include "platform/TrackingRects.h"
#import "support/PlaceWatch.h"

namespace {

// Tracking rectangles are looked at where the view can be seen, so one that is larger than any
// view follows all of the view's changes by itself.
constexpr CGFloat kFar = 1e6;

}  // namespace

// The rectangle is its own owner, and the view's list of them owns it: nothing is left behind
// when the view goes.
@interface _OvHoverRect : GSTrackingRect {
  NSView *_view;  // not retained: it owns this object
  _OvPlaceWatch *_watch;
  NSRect _place;  // where on the screen it was when last looked at
  BOOL _inside;
}
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
  _watch = [[_OvPlaceWatch alloc] initWithView:view target:self action:@selector(placeChanged)];
  if (!NSIsEmptyRect([_watch place])) [self placeChanged];
  return self;
}

- (void)dealloc {
  [_watch stop];
  [_watch release];
  [super dealloc];
}

// It has been taken out of the view's list.
- (void)invalidate {
  [super invalidate];
  [_watch stop];
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
  [_watch lookAgain];
  _inside = ov::isMouseInside(_view);
  [_view setNeedsDisplay:YES];
}

// The pointer is asked for only when the view has come to lie elsewhere.
- (void)placeChanged {
  const BOOL wasInside = _inside;
  const BOOL appeared = NSIsEmptyRect(_place);
  _place = [_watch place];
  _inside = ov::isMouseInside(_view);
  // What is in the window of a view that had been away may be from any time.
  if (_inside != wasInside || appeared) [_view setNeedsDisplay:YES];
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
