// Where the dividers are, with the cursor and the tool tip over them.

#import <OvAppKit/OvSplitView.h>

#include <algorithm>
#include <span>

#include "platform/DisplayMarks.h"
#import "split/OvSplitView+Private.h"
#include "split/ThicknessDistribution.h"
#include "support/Retained.h"

@implementation OvSplitView (OvSplitViewDividers)

- (void)_updateDividers {
  if (_state == nullptr) return;  // the initialiser of a superclass is still at work
  NSArray *panes = [self subviews];
  const BOOL vertical = [self isVertical];
  std::vector<ov::Scalar> thicknesses;
  thicknesses.reserve([panes count]);
  for (NSView *pane in panes) {
    const bool collapsed = [self isSubviewCollapsed:pane];
    thicknesses.push_back(collapsed ? 0 : ov::alongAxis([pane frame].size, vertical));
  }
  const CGFloat thickness = [self dividerThickness];
  const CGFloat across = ov::acrossAxis([self frame].size, vertical);
  const std::vector<float> origins = ov::dividerOrigins(thicknesses, thickness);
  {
    ov::DisplayMarks marks(self);
    std::size_t marked = 0;  // panes up to here
    std::size_t before = 0;  // marked panes that were met
    for (std::size_t i = 0; i < origins.size(); ++i) {
      const NSRect divider = ov::rectOnAxis(origins[i], thickness, across, vertical);
      if (![self _ovStoreDivider:divider atIndex:i]) continue;
      marks.add(divider);
      for (std::size_t k = std::max(marked, i); k < i + 2; ++k) {
        NSView *pane = [panes objectAtIndex:k];
        // The layout has marked some already, in the same order.
        const auto rest =
            std::span(_state->marked).subspan(std::min(before, _state->marked.size()));
        const auto found = std::ranges::find(rest, pane);
        if (found == rest.end()) {
          marks.add(pane);
        } else {
          before += static_cast<std::size_t>(found - rest.begin()) + 1;
        }
      }
      marked = i + 2;
    }
  }
  _state->marked.clear();
  while ([_dividers count] > origins.size()) [_dividers removeLastObject];
  [self _resetToolTipRect];
  [self _ovCursorRectsDidChange];
}

// NO if it is there already.
- (BOOL)_ovStoreDivider:(NSRect)frame atIndex:(NSUInteger)index {
  while ([_dividers count] <= index) [_dividers addObject:[NSValue valueWithRect:NSZeroRect]];
  if (NSEqualRects(frame, [[_dividers objectAtIndex:index] rectValue])) return NO;
  [_dividers replaceObjectAtIndex:index withObject:[NSValue valueWithRect:frame]];
  return YES;
}

- (void)_setDividerAtIndex:(uint32_t)index toDistanceFromBase:(float)distance {
  const BOOL vertical = [self isVertical];
  const NSRect frame = ov::rectOnAxis(distance, [self dividerThickness],
                                      ov::acrossAxis([self frame].size, vertical), vertical);
  if (![self _ovStoreDivider:frame atIndex:index]) return;
  [self setNeedsDisplayInRect:frame];
  NSArray *panes = ov::subviewsOf(self);
  for (NSUInteger pane = index; pane <= NSUInteger{index} + 1 && pane < [panes count]; ++pane) {
    [[panes objectAtIndex:pane] setNeedsDisplay:YES];
  }
}

- (float)_ovOriginOfDivider:(NSInteger)index {
  const NSRect frame = [[_dividers objectAtIndex:(NSUInteger)index] rectValue];
  return static_cast<float>(ov::alongAxis(frame.origin, [self isVertical]));
}

- (NSInteger)_dividerIndexUnderMouse:(NSPoint)point {
  const CGFloat position = ov::alongAxis(point, [self isVertical]);
  const NSInteger count = (NSInteger)[_dividers count];
  for (NSInteger i = 0; i < count; ++i) {
    const float origin = [self _ovOriginOfDivider:i];
    if (origin <= position && position < origin + [self dividerThickness]) return i;
  }
  return NSNotFound;
}

#pragma mark Cursor

// The platform sends this after a move of the view as well, without discarding first; and
// in the middle of a resize, when the dividers are the old ones. Those are left until they
// are invalidated: the window passes over a view that has none.
- (void)resetCursorRects {
  if (_state != nullptr && _state->resizing) return;
  [self discardCursorRects];
  if (_state == nullptr) return;
  for (NSValue *divider in _dividers) {
    [self addCursorRect:[divider rectValue] cursor:_currentCursor];
  }
  // It also sends this when the view was scrolled or uncovered.
  if (!NSEqualRects([self visibleRect], _state -> tipsVisibleRect)) [self _ovInstallToolTips];
}

// At once: a cursor that is not the right one any more would be seen, and the window looks
// at the place of the pointer only if it is key.
- (void)_ovCursorRectsDidChange {
  if (_state == nullptr || [self window] == nil) return;
  [[self window] invalidateCursorRectsForView:self];
  [self resetCursorRects];
}

#pragma mark Tool tips

- (void)_resetToolTipRect {
  [self removeAllToolTips];
  _state->tipsVisibleRect = [self visibleRect];
  const SEL adding = @selector(addToolTipRect:owner:userData:);
  if (![self _ovHasToolTips] &&
      [self methodForSelector:adding] == [OvSplitView instanceMethodForSelector:adding])
    return;
  for (NSValue *divider in _dividers) {
    [self addToolTipRect:[divider rectValue] owner:self userData:nullptr];
  }
}

// Without a text nothing is installed at each resize, unless a subclass supplies texts.
- (BOOL)_ovHasToolTips {
  const SEL question = @selector(view:stringForToolTip:point:userData:);
  return [self toolTip] != nil ||
         [self methodForSelector:question] != [OvSplitView instanceMethodForSelector:question];
}

- (NSString *)view:(NSView *)view
    stringForToolTip:(NSToolTipTag)tag
               point:(NSPoint)point
            userData:(void *)userData {
  (void)view;
  (void)tag;
  (void)point;
  (void)userData;
  return [self toolTip];
}

// The platform's list of tool tips loses some, and takes long for many; see ToolTipRegions.

- (NSToolTipTag)addToolTipRect:(NSRect)rect owner:(id)owner userData:(void *)userData {
  if (_state == nullptr) return [super addToolTipRect:rect owner:owner userData:userData];
  if (owner == self && ![self _ovHasToolTips]) return 0;
  return [_state->toolTips addRect:rect owner:owner userData:userData];
}

- (void)removeToolTip:(NSToolTipTag)tag {
  if (_state == nullptr || ![_state->toolTips removeTag:tag]) [super removeToolTip:tag];
}

- (void)removeAllToolTips {
  if (_state == nullptr) return [super removeAllToolTips];
  [_state->toolTips removeAll];
}

- (NSTrackingRectTag)addTrackingRect:(NSRect)rect
                               owner:(id)owner
                            userData:(void *)userData
                        assumeInside:(BOOL)flag {
  if (_state == nullptr) {
    return [super addTrackingRect:rect owner:owner userData:userData assumeInside:flag];
  }
  return _state->trackingRects.add(rect, owner, userData, flag);
}

- (void)removeTrackingRect:(NSTrackingRectTag)tag {
  if (_state == nullptr) return [super removeTrackingRect:tag];
  _state->trackingRects.remove(tag);
}

- (void)viewDidMoveToWindow {
  [super viewDidMoveToWindow];
  if (_state != nullptr) [self _ovInstallToolTips];
}

- (void)_ovInstallToolTips {
  _state->tipsVisibleRect = [self visibleRect];
  [_state->toolTips visibleRectDidChange];
}

@end
