#import <OvAppKit/OvMatrixView.h>

#import <OvAppKit/HXMatrixViewSelectionInfo.h>

@implementation OvMatrixView

- (HXMatrixViewSelectionInfo *)_selectionInfoForMouseDraggedItemIndexes:(NSIndexSet *)indexes
                                           selectionInfoBeforeMouseDown:
                                               (HXMatrixViewSelectionInfo *)info
                                                         mouseDownFlags:(NSUInteger)flags {
  if (flags & NSShiftKeyMask) flags = (flags & ~NSUInteger{NSShiftKeyMask}) | NSCommandKeyMask;
  return [super _selectionInfoForMouseDraggedItemIndexes:indexes
                            selectionInfoBeforeMouseDown:info
                                          mouseDownFlags:flags];
}

- (NSIndexSet *)_itemIndexesForMouseDownItemIndex:(NSUInteger)index
                                   mouseDownFlags:(NSUInteger)flags {
  const int behavior = flags & NSAlternateKeyMask ? [self alternateMultipleSelectionBehavior]
                                                  : [self multipleSelectionBehavior];
  const NSUInteger lowest = [[_selectionInfo selectionIndexes] firstIndex];
  if (behavior == HXMatrixViewLinearSelection && lowest <= index) {
    return [NSIndexSet indexSetWithIndexesInRange:NSMakeRange(lowest, index - lowest + 1)];
  }
  return [super _itemIndexesForMouseDownItemIndex:index mouseDownFlags:flags];
}

@end
