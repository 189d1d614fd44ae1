// Collapsing, and how the panes share the space.

#import <OvAppKit/OvSplitView.h>

#include <cstdlib>

#import "split/OvSplitView+Private.h"
#include "split/ThicknessDistribution.h"
#include "support/Retained.h"

static void post(NSString *name, OvSplitView *splitView, NSDictionary *userInfo = nil) {
  [[NSNotificationCenter defaultCenter] postNotificationName:name
                                                      object:splitView
                                                    userInfo:userInfo];
}

@implementation OvSplitView (OvSplitViewLayout)

#pragma mark Collapsing

- (NSView *)_ovSubviewAtIndex:(uint32_t)index {
  NSArray *panes = [self subviews];
  return index < [panes count] ? [panes objectAtIndex:index] : nil;
}

- (void)setSubview:(NSView *)subview isCollapsed:(BOOL)flag {
  const BOOL collapse = flag ? YES : NO;
  if (subview == nil || [self isSubviewCollapsed:subview] == collapse) return;
  const NSUInteger index = [[self subviews] indexOfObjectIdenticalTo:subview];
  if (collapse && index == NSNotFound) return;
  // Observers may remove the pane, or the view.
  const auto keptView = ov::retain(self);
  const auto keptPane = ov::retain(subview);
  NSDictionary *userInfo =
      [NSDictionary dictionaryWithObjectsAndKeys:subview, @"OvSubview",
                                                 [NSNumber numberWithUnsignedInt:(unsigned)index],
                                                 @"OvSubviewIndex", nil];
  if (collapse) {
    [_collapsedSubviews addObject:subview];
    post(OvSplitViewSubviewWillCollapseNotification, self, userInfo);
  } else {
    [_collapsedSubviews removeObjectIdenticalTo:subview];
    post(OvSplitViewSubviewWillExpandNotification, self, userInfo);
  }
  [self resizeSubviewsWithOldSize:[self bounds].size];
  post(collapse ? OvSplitViewSubviewDidCollapseNotification
                : OvSplitViewSubviewDidExpandNotification,
       self, userInfo);
}

- (void)setSubviewAtIndex:(uint32_t)index isCollapsed:(BOOL)flag {
  [self setSubview:[self _ovSubviewAtIndex:index] isCollapsed:flag];
}

- (BOOL)isSubviewCollapsed:(NSView *)subview {
  return [_collapsedSubviews count] > 0 && subview != nil &&
         [_collapsedSubviews indexOfObjectIdenticalTo:subview] != NSNotFound;
}

- (BOOL)isSubviewCollapsedAtIndex:(uint32_t)index {
  return [self isSubviewCollapsed:[self _ovSubviewAtIndex:index]];
}

- (void)_collapsedSubviewsToOffscreen {
  for (NSView *pane in [[_collapsedSubviews copy] autorelease]) {
    if ([pane superview] == self) {
      [pane setFrameOrigin:NSMakePoint(OvOffscreen, OvOffscreen)];
    } else {
      // It was removed since, and may stand somewhere else.
      [_collapsedSubviews removeObjectIdenticalTo:pane];
    }
  }
}

#pragma mark Resizing

- (void)resizeSubviewsWithOldSize:(NSSize)oldSize {
  if (_state == nullptr) return;  // the initialiser of a superclass is still at work
  _state->resizing = false;
  _state->marked.clear();
  const auto kept = ov::retain(self);
  post(NSSplitViewWillResizeSubviewsNotification, self);
  if ([_delegate respondsToSelector:@selector(splitView:resizeSubviewsWithOldSize:)]) {
    [_delegate splitView:self resizeSubviewsWithOldSize:oldSize];
  } else {
    [self adjustSubviews];
  }
  [self _updateDividers];
  [self _collapsedSubviewsToOffscreen];
  post(NSSplitViewDidResizeSubviewsNotification, self);
}

// The platform lays out at a change of the origin, too.
- (void)setFrame:(NSRect)frame {
  if (NSEqualSizes(frame.size, [self frame].size)) {
    [self setFrameOrigin:frame.origin];
  } else {
    if (_state != nullptr) _state->resizing = true;
    [super setFrame:frame];
    if (_state != nullptr) _state->resizing = false;
  }
}

- (void)setFrameSize:(NSSize)size {
  if (_state != nullptr) _state->resizing = true;
  [super setFrameSize:size];
  if (_state != nullptr) _state->resizing = false;
}

// The platform lays out once more at the first display, without notifications or dividers.
- (void)_adjustSubviews:(NSSize)oldSize {
  (void)oldSize;
}

#pragma mark Sharing the space

- (void)adjustSubviews {
  // A copy: expanding a pane tells others, who may add or remove some.
  NSArray *panes = [self subviews];
  const NSUInteger count = [panes count];
  if (count == 0) return;
  const BOOL vertical = [self isVertical];
  std::vector<std::uint32_t> wishes;
  wishes.reserve(count);
  ov::Index firstShown = ov::kNoIndex;
  for (NSView *pane in panes) {
    if ([self isSubviewCollapsed:pane]) {
      wishes.push_back(0);
      continue;
    }
    if (firstShown == ov::kNoIndex) firstShown = wishes.size();
    wishes.push_back(ov::wishOf(ov::alongAxis([pane frame].size, vertical)));
  }

  const std::vector<std::uint32_t> shares =
      ov::distributeThickness(wishes,
                              ov::availableThickness(ov::alongAxis([self frame].size, vertical),
                                                     count, [self dividerThickness]),
                              firstShown, [] { return rand(); });

  [self _ovApplyShares:shares to:panes];
}

- (void)_updateSubviewsWithThicknesses:(NSArray *)thicknesses {
  std::vector<std::uint32_t> shares;
  shares.reserve([thicknesses count]);
  for (NSNumber *thickness in thicknesses) shares.push_back([thickness unsignedIntValue]);
  [self _ovApplyShares:shares to:[self subviews]];
}

- (void)_ovApplyShares:(const std::vector<std::uint32_t> &)shares to:(NSArray *)panes {
  if (shares.size() != [panes count]) return;
  const BOOL vertical = [self isVertical];
  const NSSize size = [self frame].size;
  const std::vector<ov::AxisSpan> spans =
      ov::placePanes(shares, ov::alongAxis(size, vertical), [self dividerThickness]);
  for (NSUInteger i = 0; i < spans.size(); ++i) {
    if (shares[i] == 0) continue;
    NSView *pane = [panes objectAtIndex:i];
    if ([self isSubviewCollapsed:pane]) [self _ovExpandForSpace:pane];
    if (!(spans[i].length > 0)) continue;
    const NSRect frame =
        ov::rectOnAxis(spans[i].origin, spans[i].length, ov::acrossAxis(size, vertical), vertical);
    if (NSEqualRects(frame, [pane frame])) continue;
    [pane setFrame:frame];
    [pane setNeedsDisplay:YES];
    _state->marked.push_back(pane);
  }
}

// An observer that collapses the pane again at once brings us back here; it is not expanded
// a second time then.
- (void)_ovExpandForSpace:(NSView *)pane {
  if (_state->expandingForSpace) return;
  _state->expandingForSpace = true;
  [self setSubview:pane isCollapsed:NO];
  _state->expandingForSpace = false;
}

@end
