#include "platform/ToolTipRegions.h"

#include <algorithm>

#include "support/GeometryBridge.h"

// The parts of the platform's tip window that are used; looked up by name.
@interface NSObject (OvPlatformToolTips)
+ (id)tipsForView:(NSView *)view;
- (id)initWithObject:(id)object userData:(void *)userData;
@end

@interface NSObject (OvToolTipOwner)
- (NSString *)view:(NSView *)view
    stringForToolTip:(NSToolTipTag)tag
               point:(NSPoint)point
            userData:(void *)userData;
@end

@implementation _OvToolTipRegions

- (id)initWithView:(NSView *)view trackingRects:(ov::TrackingRects *)trackingRects {
  self = [super init];
  if (self != nil) {
    _view = view;
    _trackingRects = trackingRects;
  }
  return self;
}

- (NSToolTipTag)addRect:(NSRect)rect owner:(id)owner userData:(void *)userData {
  if (owner == nil || NSIsEmptyRect(rect)) return -1;
  ov::ToolTip tip;
  tip.tag = ++_lastTag;
  tip.rect = rect;
  tip.owner = owner;
  tip.userData = userData;
  if (![owner respondsToSelector:@selector(view:stringForToolTip:point:userData:)]) {
    tip.text = ov::adopt<NSString *>([[owner description] copy]);
    tip.owner = nil;
  }
  _tips.push_back(std::move(tip));
  if ([_view window] != nil && NSIntersectsRect(rect, [_view visibleRect])) {
    [self install:rect tag:_lastTag];
  }
  return _lastTag;
}

- (void)addGrid:(const ov::GridGeometry &)grid owner:(id)owner {
  _grid = grid;
  _gridOwner = owner;
  _gridTag = _lastTag + 1;
  _lastTag += static_cast<NSToolTipTag>(grid.items);
  [self visibleRectDidChange];
}

- (BOOL)removeTag:(NSToolTipTag)tag {
  const auto found = [self find:tag];
  if (found == _tips.end()) return NO;
  if (tag == _entered) [self endDisplay];
  _tips.erase(found);
  [self visibleRectDidChange];
  return YES;
}

- (void)removeAll {
  [self removeInstalled];
  [self endDisplay];
  _tips.clear();
  _gridOwner = nil;
  _grid = {};
}

- (std::vector<ov::ToolTip>::iterator)find:(NSToolTipTag)tag {
  const auto found = std::lower_bound(
      _tips.begin(), _tips.end(), tag,
      [](const ov::ToolTip &tip, NSToolTipTag wanted) { return tip.tag < wanted; });
  return found != _tips.end() && found->tag == tag ? found : _tips.end();
}

- (void)removeInstalled {
  for (NSTrackingRectTag tag : _installed) _trackingRects->remove(tag);
  _installed.clear();
}

- (void)install:(NSRect)rect tag:(NSToolTipTag)tag {
  const NSTrackingRectTag installed =
      _trackingRects->add(rect, self, reinterpret_cast<void *>(tag), false);
  if (installed != 0) _installed.push_back(installed);
}

- (void)visibleRectDidChange {
  [self removeInstalled];
  [self endDisplay];
  if (_view == nil || [_view window] == nil) return;
  const NSRect visible = [_view visibleRect];
  if (NSIsEmptyRect(visible)) return;
  // The pointer did not move, so no edge is crossed: the tip that has come to lie under
  // it is entered from here. The window knows where it saw the pointer last.
  NSPoint pointer = NSZeroPoint;
  NSToolTipTag under = 0;
  if (_pointerInside) {
    pointer = [[[_view window] valueForKey:@"lastPoint"] pointValue];
    pointer = [_view convertPoint:pointer fromView:nil];
  }
  const BOOL flipped = [_view isFlipped];
  const auto consider = [&](NSRect rect, NSToolTipTag tag) {
    [self install:rect tag:tag];
    if (_pointerInside && NSMouseInRect(pointer, NSIntersectionRect(rect, visible), flipped)) {
      under = tag;
    }
  };
  for (const ov::ToolTip &tip : _tips) {
    if (NSIntersectsRect(tip.rect, visible)) consider(tip.rect, tip.tag);
  }
  if (_gridOwner != nil) {
    const ov::IndexRange columns = _grid.columnsIn(ov::fromNS(visible));
    const ov::IndexRange rows = _grid.rowsIn(ov::fromNS(visible));
    for (ov::Index row = rows.location; row < rows.end(); ++row) {
      for (ov::Index column = columns.location; column < columns.end(); ++column) {
        const ov::Index item = _grid.itemAt(column, row);
        if (item == ov::kNoIndex) break;
        consider(ov::toNS(_grid.frameAt(column, row)), _gridTag + static_cast<NSToolTipTag>(item));
      }
    }
  }
  if (under != 0) [self enter:under at:pointer];
}

- (id)platformTips {
  // The view takes the object along when it goes.
  _view->_rFlags.has_tooltips = 1;
  return [NSClassFromString(@"GSToolTips") tipsForView:_view];
}

- (NSEvent *)event:(NSEventType)type tag:(NSToolTipTag)tag at:(NSPoint)point data:(void *)data {
  return [NSEvent enterExitEventWithType:type
                                location:point
                           modifierFlags:0
                               timestamp:0
                            windowNumber:[[_view window] windowNumber]
                                 context:nil
                             eventNumber:0
                          trackingNumber:tag
                                userData:data];
}

- (void)enter:(NSToolTipTag)tag at:(NSPoint)point {
  // Whoever supplies the text may change the tool tips meanwhile; the tip that comes to lie
  // under the pointer waits for the pointer to move.
  if (_asking || _pressed) return;
  // The platform asks this object for the text while it handles the event.
  id provider =
      [[NSClassFromString(@"GSTTProvider") alloc] initWithObject:self
                                                        userData:reinterpret_cast<void *>(tag)];
  if (provider == nil) return;
  _entered = tag;
  _asking = YES;
  const auto alive = ov::retain(self);
  [[self platformTips] mouseEntered:[self event:NSMouseEntered tag:tag at:point data:provider]];
  _asking = NO;
  [provider release];
  if (_entered != tag) {
    // It was taken away while its text was asked for.
    _entered = tag;
    [self endDisplay];
  }
}

- (void)endDisplay {
  if (_entered == 0 || _view == nil) return;
  [[self platformTips] mouseExited:[self event:NSMouseExited
                                           tag:_entered
                                            at:NSZeroPoint
                                          data:nullptr]];
  _entered = 0;
}

- (void)mouseEntered:(NSEvent *)event {
  [self endDisplay];
  _pointerInside = YES;
  [self enter:reinterpret_cast<NSToolTipTag>([event userData]) at:[event locationInWindow]];
}

- (void)mouseExited:(NSEvent *)event {
  // Between neighbours the new tip may be entered before the old one is left.
  if (reinterpret_cast<NSToolTipTag>([event userData]) != _entered) return;
  [self endDisplay];
  _pointerInside = NO;
}

- (void)mousePressed {
  [self endDisplay];
  _pointerInside = NO;
  _pressed = YES;
}

- (void)mouseReleased {
  _pressed = NO;
}

- (NSString *)view:(NSView *)view
    stringForToolTip:(NSToolTipTag)platformTag
               point:(NSPoint)point
            userData:(void *)userData {
  (void)platformTag;
  const NSToolTipTag tag = reinterpret_cast<NSToolTipTag>(userData);
  if (_gridOwner != nil && tag >= _gridTag &&
      tag < _gridTag + static_cast<NSToolTipTag>(_grid.items)) {
    return [_gridOwner view:view
           stringForToolTip:tag
                      point:point
                   userData:reinterpret_cast<void *>(tag - _gridTag)];
  }
  const auto found = [self find:tag];
  if (found == _tips.end()) return nil;
  if (found->owner == nil) return found->text.get();
  return [found->owner view:view stringForToolTip:tag point:point userData:found->userData];
}

- (void)viewWillDeallocate {
  [self endDisplay];
  [self removeAll];
  _view = nil;
}

@end
