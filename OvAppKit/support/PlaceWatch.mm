#import "support/PlaceWatch.h"

namespace {

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

@implementation _OvPlaceWatch

- (id)initWithView:(NSView *)view target:(id)target action:(SEL)action {
  self = [super init];
  if (self == nil) return nil;
  _view = view;
  _target = target;
  _action = action;
  // After each event: what hides a view or takes its window away tells nobody.
  [[NSNotificationCenter defaultCenter] addObserver:self
                                           selector:@selector(lookAgain)
                                               name:NSApplicationDidUpdateNotification
                                             object:nil];
  [self settle];
  return self;
}

- (void)dealloc {
  [self stop];
  [super dealloc];
}

- (void)stop {
  [[NSNotificationCenter defaultCenter] removeObserver:self];
  _view = nil;
}

- (NSRect)place {
  return _place;
}

- (void)lookAgain {
  const NSRect before = _place;
  [self settle];
  if (_view != nil && !NSEqualRects(before, _place)) [_target performSelector:_action];
}

- (void)settle {
  if (_view == nil) return;
  [self followAncestors];
  _place = placeOnScreen(_view);
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
