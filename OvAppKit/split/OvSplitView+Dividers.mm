// Where the dividers are, with the cursor and the tool tip over them.

#import <OvAppKit/OvSplitView.h>

#include <algorithm>

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
  const std::vector<float> origins = ov::dividerOrigins(thicknesses, [self dividerThickness]);
  // All at once: a hundred panes would be marked twice each, and every mark goes up the
  // hierarchy.
  NSRect changed = NSZeroRect;
  std::size_t marked = 0;  // panes up to here
  for (std::size_t i = 0; i < origins.size(); ++i) {
    const NSRect divider = [self _ovFrameOfDividerAt:origins[i]];
    if (![self _ovStoreDivider:divider atIndex:i]) continue;
    changed = NSUnionRect(changed, divider);
    for (std::size_t k = std::max(marked, i); k < i + 2; ++k) {
      NSView *pane = [panes objectAtIndex:k];
      if (std::ranges::find(_state->marked, pane) == _state->marked.end())
        [pane setNeedsDisplay:YES];
    }
    marked = i + 2;
  }
  _state->marked.clear();
  if (!NSIsEmptyRect(changed)) [self setNeedsDisplayInRect:changed];
  while ([_dividers count] > origins.size()) [_dividers removeLastObject];
  [self _resetToolTipRect];
  [self _ovCursorRectsDidChange];
}

- (NSRect)_ovFrameOfDividerAt:(float)distance {
  const BOOL vertical = [self isVertical];
  return ov::rectOnAxis(distance, [self dividerThickness],
                        ov::acrossAxis([self frame].size, vertical), vertical);
}

// NO if it is there already.
- (BOOL)_ovStoreDivider:(NSRect)frame atIndex:(NSUInteger)index {
  while ([_dividers count] <= index) [_dividers addObject:[NSValue valueWithRect:NSZeroRect]];
  if (NSEqualRects(frame, [[_dividers objectAtIndex:index] rectValue])) return NO;
  [_dividers replaceObjectAtIndex:index withObject:[NSValue valueWithRect:frame]];
  return YES;
}

- (void)_setDividerAtIndex:(uint32_t)index toDistanceFromBase:(float)distance {
  const NSRect frame = [self _ovFrameOfDividerAt:distance];
  if (![self _ovStoreDivider:frame atIndex:index]) return;
  [self setNeedsDisplayInRect:frame];
  NSArray *panes = [self subviews];
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
// in the middle of a resize, when the dividers are the old ones.
- (void)resetCursorRects {
  [self discardCursorRects];
  if (_state == nullptr || _state->resizing) return;
  for (NSValue *divider in _dividers) {
    [self addCursorRect:[divider rectValue] cursor:_currentCursor];
  }
  // It also sends this when the view was scrolled or uncovered.
  if (!NSEqualRects([self visibleRect], _state -> tipsVisibleRect)) [self _ovInstallToolTips];
}

// The window sets the rectangles up again with one of its next events, and only if it is
// key; a pointer that moves before must not meet the old ones.
- (void)_ovCursorRectsDidChange {
  if (_state == nullptr || [self window] == nil) return;
  [[self window] invalidateCursorRectsForView:self];
  [self resetCursorRects];
}

#pragma mark Tool tips

- (void)_resetToolTipRect {
  [self removeAllToolTips];
  for (NSValue *divider in _dividers) {
    [self addToolTipRect:[divider rectValue] owner:self userData:nullptr];
  }
  _state->tipsVisibleRect = [self visibleRect];
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
