#import <OvAppKit/HXMatrixView.h>
#import <OvAppKit/HXMatrixViewMouseTrackingManager.h>

#import "matrix/HXMatrixViewManagers+Private.h"

@implementation HXMatrixViewMouseTrackingManager

- (id)initWithMatrixView:(HXMatrixView *)matrixView {
  self = [super init];
  if (self == nil) return nil;
  _matrixView = matrixView;
  _trackingTagTable = NSCreateHashTable(NSObjectHashCallBacks, 128);
  _mouseOveredItemIndex = NSNotFound;
  [self resetAllTrackingRegions];

  NSNotificationCenter *center = [NSNotificationCenter defaultCenter];
  [_matrixView setPostsFrameChangedNotifications:YES];
  [center addObserver:self
             selector:@selector(matrixViewFrameDidChange:)
                 name:NSViewFrameDidChangeNotification
               object:_matrixView];
  NSScrollView *scrollView = [_matrixView enclosingScrollView];
  if (scrollView != nil) {
    [[scrollView contentView] setPostsBoundsChangedNotifications:YES];
    [center addObserver:self
               selector:@selector(scrollViewContentBoundsDidChange:)
                   name:NSViewBoundsDidChangeNotification
                 object:[scrollView contentView]];
  }
  return self;
}

- (void)dealloc {
  [[NSNotificationCenter defaultCenter] removeObserver:self];
  [self removeAllTrackingRegions];
  NSFreeHashTable(_trackingTagTable);
  [super dealloc];
}

- (void)_matrixViewWillDeallocate {
  [[NSNotificationCenter defaultCenter] removeObserver:self];
  [self removeAllTrackingRegions];
  _matrixView = nil;
  _mouseOveredItemIndex = NSNotFound;
}

- (void)_trackRect:(NSRect)rect itemIndex:(NSUInteger)index {
  if (NSIsEmptyRect(rect)) return;
  const NSTrackingRectTag tag = [_matrixView addTrackingRect:rect
                                                       owner:self
                                                    userData:reinterpret_cast<void *>(index)
                                                assumeInside:YES];
  if (tag != 0) NSHashInsert(_trackingTagTable, [NSNumber numberWithInteger:tag]);
}

- (void)resetAllTrackingRegions {
  [self removeAllTrackingRegions];
  if ([_matrixView window] == nil) return;
  NSScrollView *scrollView = [_matrixView enclosingScrollView];
  if (scrollView == nil) {
    const NSUInteger count = [_matrixView numberOfItems];
    for (NSUInteger i = 0; i < count; ++i) {
      [self _trackRect:[_matrixView frameOfCellAtItemIndex:i] itemIndex:i];
    }
    return;
  }
  const NSRect visible = [scrollView documentVisibleRect];
  const NSRange columns = [_matrixView columnsInRect:visible];
  const NSRange rows = [_matrixView rowsInRect:visible];
  for (NSUInteger row = rows.location; row < NSMaxRange(rows); ++row) {
    for (NSUInteger column = columns.location; column < NSMaxRange(columns); ++column) {
      const NSUInteger index = [_matrixView itemIndexAtColumn:column row:row];
      if (index == NSNotFound) continue;
      const NSRect frame = [_matrixView frameOfCellAtColumn:column row:row];
      [self _trackRect:NSIntersectionRect(frame, visible) itemIndex:index];
    }
  }
}

- (void)removeAllTrackingRegions {
  NSHashEnumerator tags = NSEnumerateHashTable(_trackingTagTable);
  while (NSNumber *tag = (NSNumber *)NSNextHashEnumeratorItem(&tags)) {
    [_matrixView removeTrackingRect:[tag integerValue]];
  }
  NSEndHashTableEnumeration(&tags);
  NSResetHashTable(_trackingTagTable);
}

- (NSUInteger)mouseOveredItemIndex {
  return _mouseOveredItemIndex;
}

- (void)mouseEntered:(NSEvent *)event {
  [self _setMouseOveredItemIndex:reinterpret_cast<NSUInteger>([event userData])];
}

- (void)mouseExited:(NSEvent *)event {
  if (reinterpret_cast<NSUInteger>([event userData]) != _mouseOveredItemIndex) return;
  [self _setMouseOveredItemIndex:NSNotFound];
}

- (void)matrixViewFrameDidChange:(NSNotification *)notification {
  (void)notification;
  [self _followPointer];
}

- (void)scrollViewContentBoundsDidChange:(NSNotification *)notification {
  (void)notification;
  [self _followPointer];
}

- (void)_followPointer {
  [self resetAllTrackingRegions];
  NSUInteger index = NSNotFound;
  NSWindow *window = [_matrixView window];
  if (window != nil) {
    const NSPoint location = [window mouseLocationOutsideOfEventStream];
    index = [_matrixView itemIndexAtPoint:[_matrixView convertPoint:location fromView:nil]];
  }
  [self _setMouseOveredItemIndex:index];
}

- (void)_setMouseOveredItemIndex:(NSUInteger)index {
  if (index == _mouseOveredItemIndex) return;
  const NSUInteger previous = _mouseOveredItemIndex;
  _mouseOveredItemIndex = index;
  if (previous != NSNotFound) [_matrixView setNeedsDisplayAtItemIndex:previous];
  if (index != NSNotFound) [_matrixView setNeedsDisplayAtItemIndex:index];
  [self _mouseOveredItemDidChange];
}

- (void)_mouseOveredItemDidChange {
}

@end
