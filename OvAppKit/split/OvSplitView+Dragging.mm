// The mouse: the divider's own loop from press to release, and double clicks.

#import <OvAppKit/OvSplitView.h>

#include <chrono>

#import "split/DelegateConstraint.h"
#include "split/DividerDrag.h"
#import "split/OvSplitView+Private.h"
#include "support/Retained.h"

namespace {

using Clock = std::chrono::steady_clock;

// A step that takes longer than an eye forgives lets positions pile up that the pointer has
// left already.
constexpr std::chrono::milliseconds kLag{50};

// What is fixed when the divider is pressed.
struct PressedDivider {
  NSInteger index = 0;
  ov::Retained<NSView *> before;
  ov::Retained<NSView *> behind;
  BOOL vertical = NO;
  CGFloat across = 0;
  float thickness = 0;
  float grab = 0;  // from the pointer to the divider's origin
  bool mayCollapseBefore = false;
  bool mayCollapseBehind = false;
  ov::DragLimits limits;
};

struct DragProgress {
  float position = 1000000;  // of the divider
  bool late = false;         // the last step that was taken took too long
};

// What lasts as long as a drag does, also one that an exception ends.
class DragScope {
 public:
  DragScope(OvSplitViewState *state, bool saves) : state_(state), saves_(saves) {
    [state_->toolTips mousePressed];
    if (saves_) state_->dragSaves = std::make_unique<ov::DeferredDefault>();
  }
  ~DragScope() {
    if (saves_) state_->dragSaves.reset();
    [state_->toolTips mouseReleased];
  }
  DragScope(const DragScope &) = delete;
  DragScope &operator=(const DragScope &) = delete;

 private:
  OvSplitViewState *state_;
  bool saves_;
};

}  // namespace

@implementation OvSplitView (OvSplitViewDragging)

- (void)mouseDown:(NSEvent *)event {
  if (_mouseLocked) return;
  const NSPoint point = [self convertPoint:[event locationInWindow] fromView:nil];
  const NSInteger index = [self _dividerIndexUnderMouse:point];
  // Panes may have been removed without a layout since.
  if (index == NSNotFound || (NSUInteger)index + 1 >= [[self subviews] count]) return;
  if ([event clickCount] >= 2) {
    if ([_delegate respondsToSelector:@selector(splitView:
                                          didDoubleClickInDivider:withModifierFlag:)]) {
      [_delegate splitView:self
          didDoubleClickInDivider:index
                 withModifierFlag:static_cast<uint32_t>([event modifierFlags])];
    }
    return;
  }
  [self _ovDragDivider:index withEvent:event];
}

- (BOOL)_ovMayCollapse:(NSView *)pane {
  return [_delegate respondsToSelector:@selector(splitView:canCollapseSubview:)] &&
         [_delegate splitView:self canCollapseSubview:pane];
}

- (PressedDivider)_ovPressDivider:(NSInteger)index at:(float)pointer {
  NSArray *panes = [self subviews];
  PressedDivider pressed;
  pressed.index = index;
  pressed.before = ov::retain<NSView *>([panes objectAtIndex:(NSUInteger)index]);
  pressed.behind = ov::retain<NSView *>([panes objectAtIndex:(NSUInteger)index + 1]);
  pressed.vertical = [self isVertical];
  pressed.across = ov::acrossAxis([self frame].size, pressed.vertical);
  pressed.thickness = static_cast<float>([self dividerThickness]);

  const float divider = [self _ovOriginOfDivider:index];
  float min = divider;
  if (![self isSubviewCollapsed:pressed.before.get()]) {
    min = static_cast<float>(ov::alongAxis([pressed.before.get() frame].origin, pressed.vertical));
  }
  float max = divider + pressed.thickness;
  if (![self isSubviewCollapsed:pressed.behind.get()]) {
    const NSRect frame = [pressed.behind.get() frame];
    max = static_cast<float>(ov::alongAxis(frame.origin, pressed.vertical) +
                             ov::alongAxis(frame.size, pressed.vertical));
  }
  pressed.mayCollapseBefore = [self _ovMayCollapse:pressed.before.get()];
  pressed.mayCollapseBehind = [self _ovMayCollapse:pressed.behind.get()];
  const float low =
      ov::askConstraint(self, @selector(splitView:constrainMinCoordinate:ofSubviewAt:), min, index);
  const float high =
      ov::askConstraint(self, @selector(splitView:constrainMaxCoordinate:ofSubviewAt:), max, index);
  pressed.limits = ov::dragLimits(min, max, low, high);
  pressed.grab = divider - pointer;
  return pressed;
}

- (void)_ovDragDivider:(NSInteger)index withEvent:(NSEvent *)event {
  // The delegate and observers may remove panes, or the view.
  const auto kept = ov::retain(self);
  const BOOL vertical = [self isVertical];
  const auto positionOf = [&](NSEvent *at) {
    const NSPoint point = [self convertPoint:[at locationInWindow] fromView:nil];
    return static_cast<float>(ov::alongAxis(point, vertical));
  };
  const PressedDivider pressed = [self _ovPressDivider:index at:positionOf(event)];
  const NSUInteger mask = NSLeftMouseUpMask | NSLeftMouseDraggedMask;
  {
    // A drag in a drag, by a delegate that posts events, saves as the first one does.
    const DragScope scope(_state, _autosaveName != nil && _state->dragSaves == nullptr);
    DragProgress progress;
    do {
      @autoreleasepool {
        [self _ovDrag:pressed to:positionOf(event) + pressed.grab progress:progress];
        if (![self _ovStillHas:pressed]) break;
        // Drawing takes place in here, once no further position waits.
        event = [[[self window] nextEventMatchingMask:mask
                                            untilDate:[NSDate distantFuture]
                                               inMode:NSEventTrackingRunLoopMode
                                              dequeue:YES] retain];
      }
      [event autorelease];
    } while ([event type] == NSLeftMouseDragged);
  }
  [self _resetToolTipRect];
  [self _ovCursorRectsDidChange];
}

- (BOOL)_ovStillHas:(const PressedDivider &)pressed {
  return [self window] != nil && [pressed.before.get() superview] == self &&
         [pressed.behind.get() superview] == self && (NSUInteger)pressed.index < [_dividers count];
}

- (void)_ovDrag:(const PressedDivider &)pressed
             to:(float)pointer
       progress:(DragProgress &)progress {
  const Clock::time_point start = Clock::now();
  NSView *before = pressed.before.get();
  NSView *behind = pressed.behind.get();
  const float wanted = ov::askConstraint(
      self, @selector(splitView:constrainSplitPosition:ofSubviewAt:), pointer, pressed.index);
  const ov::DragStep step =
      ov::dragStep(pressed.limits, pressed.mayCollapseBefore, pressed.mayCollapseBehind, wanted);
  if (progress.late && [self _ovMayLeaveOut:step of:pressed]) return;

  if (step.behindFirst) [self setSubview:behind isCollapsed:step.collapsesBehind];
  [self setSubview:before isCollapsed:step.collapsesBefore];
  if (!step.behindFirst) [self setSubview:behind isCollapsed:step.collapsesBehind];

  float position = step.position;
  if (step.held == ov::DragStep::Held::kAtLow) {
    position = ov::askConstraint(self, @selector(splitView:constrainMinSize:ofSubviewAt:), position,
                                 pressed.index);
  } else if (step.held == ov::DragStep::Held::kAtHigh) {
    position = ov::askConstraint(self, @selector(splitView:constrainMaxSize:ofSubviewAt:), position,
                                 pressed.index);
  }
  if (position != progress.position && [self _ovStillHas:pressed]) {
    [self _ovMove:pressed to:position];
    progress.position = position;
  }
  progress.late = Clock::now() - start > kLag;
}

- (void)_ovMove:(const PressedDivider &)pressed to:(float)position {
  NSNotificationCenter *center = [NSNotificationCenter defaultCenter];
  [center postNotificationName:NSSplitViewWillResizeSubviewsNotification object:self];
  [self _setDividerAtIndex:static_cast<uint32_t>(pressed.index) toDistanceFromBase:position];
  const ov::DragLimits &limits = pressed.limits;
  const float end = position + pressed.thickness;
  [self _ovPlace:pressed.before.get() of:pressed from:limits.min length:position - limits.min];
  [self _ovPlace:pressed.behind.get() of:pressed from:end length:limits.max - end];
  [center postNotificationName:NSSplitViewDidResizeSubviewsNotification object:self];
}

// A view that lags behind the pointer leaves out positions on the way to one that waits
// already, as long as they cross no limit.
- (BOOL)_ovMayLeaveOut:(const ov::DragStep &)step of:(const PressedDivider &)pressed {
  return step.held == ov::DragStep::Held::kNowhere && !step.collapsesBefore &&
         !step.collapsesBehind && ![self isSubviewCollapsed:pressed.before.get()] &&
         ![self isSubviewCollapsed:pressed.behind.get()] &&
         [[self window] nextEventMatchingMask:NSLeftMouseDraggedMask
                                    untilDate:[NSDate distantPast]
                                       inMode:NSEventTrackingRunLoopMode
                                      dequeue:NO] != nil;
}

- (void)_ovPlace:(NSView *)pane
              of:(const PressedDivider &)pressed
            from:(float)origin
          length:(float)length {
  if ([self isSubviewCollapsed:pane]) {
    [pane setFrameOrigin:NSMakePoint(OvOffscreen, OvOffscreen)];
    return;
  }
  const NSRect frame = ov::rectOnAxis(origin, length, pressed.across, pressed.vertical);
  if (NSEqualRects(frame, [pane frame])) return;
  [pane setFrame:frame];
  [pane setNeedsDisplay:YES];
}

@end
