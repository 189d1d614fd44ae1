#import <OvAppKit/HXMatrixViewSelectionInfo.h>

#include <algorithm>

// NSNotFound stands for no item; the platform's sets raise when it is put into one.
static bool OvIsItemIndex(NSUInteger index) { return index < NSNotFound; }

static NSRange OvItemRange(NSRange range) {
  if (!OvIsItemIndex(range.location)) return NSMakeRange(0, 0);
  return NSMakeRange(range.location, std::min(range.length, static_cast<NSUInteger>(NSNotFound) -
                                                                1 - range.location));
}

@implementation HXMatrixViewSelectionInfo

- (id)init {
  return [self initWithSelectionIndexes:nil
                    firstSelectionIndex:NSNotFound
                     lastSelectionIndex:NSNotFound];
}

- (id)initWithSelectionIndex:(NSUInteger)index {
  self = [self init];
  if (self != nil) [self addIndex:index];
  return self;
}

- (id)initWithSelectionIndexes:(NSIndexSet *)indexes {
  const BOOL any = [indexes count] > 0;
  return [self initWithSelectionIndexes:indexes
                    firstSelectionIndex:any ? [indexes firstIndex] : NSNotFound
                     lastSelectionIndex:any ? [indexes lastIndex] : NSNotFound];
}

- (id)initWithSelectionIndexes:(NSIndexSet *)indexes
           firstSelectionIndex:(NSUInteger)first
            lastSelectionIndex:(NSUInteger)last {
  self = [super init];
  if (self != nil) {
    _selectionIndexes = indexes != nil ? [indexes mutableCopy] : [[NSMutableIndexSet alloc] init];
    _firstSelectionIndex = first;
    _lastSelectionIndex = last;
  }
  return self;
}

- (id)initWithSelectionInfo:(HXMatrixViewSelectionInfo *)info {
  if (info == nil) return [self init];
  return [self initWithSelectionIndexes:[info selectionIndexes]
                    firstSelectionIndex:[info firstSelectionIndex]
                     lastSelectionIndex:[info lastSelectionIndex]];
}

- (void)dealloc {
  [_selectionIndexes release];
  [super dealloc];
}

- (NSUInteger)_ovChangeCount {
  return _changeCount;
}

- (NSMutableIndexSet *)selectionIndexes {
  return _selectionIndexes;
}

- (NSUInteger)count {
  return [_selectionIndexes count];
}

- (BOOL)containsIndex:(NSUInteger)index {
  return OvIsItemIndex(index) && [_selectionIndexes containsIndex:index];
}

- (void)addIndex:(NSUInteger)index {
  if (!OvIsItemIndex(index)) return;
  ++_changeCount;
  [_selectionIndexes addIndex:index];
  if (_firstSelectionIndex == NSNotFound) _firstSelectionIndex = index;
  _lastSelectionIndex = index;
}

- (void)addIndexes:(NSIndexSet *)indexes {
  if ([indexes count] == 0) return;
  ++_changeCount;
  [_selectionIndexes addIndexes:indexes];
  if (_firstSelectionIndex == NSNotFound) _firstSelectionIndex = [indexes firstIndex];
  _lastSelectionIndex = [indexes lastIndex];
}

- (void)addIndexesInRange:(NSRange)range {
  const NSRange items = OvItemRange(range);
  if (items.length == 0) return;
  ++_changeCount;
  [_selectionIndexes addIndexesInRange:items];
  if (_firstSelectionIndex == NSNotFound) _firstSelectionIndex = [_selectionIndexes firstIndex];
  if (_lastSelectionIndex == NSNotFound) _lastSelectionIndex = [_selectionIndexes lastIndex];
}

- (void)removeIndex:(NSUInteger)index {
  if (!OvIsItemIndex(index)) return;
  ++_changeCount;
  [_selectionIndexes removeIndex:index];
  if (_firstSelectionIndex == index) _firstSelectionIndex = [_selectionIndexes firstIndex];
  if (_lastSelectionIndex == index) _lastSelectionIndex = [_selectionIndexes lastIndex];
}

- (void)removeIndexes:(NSIndexSet *)indexes {
  if (indexes == nil) return;
  if (indexes == _selectionIndexes) {
    [self removeAllIndexes];
    return;
  }
  [_selectionIndexes removeIndexes:indexes];
  [self _mendEnds];
}

- (void)removeIndexesInRange:(NSRange)range {
  [_selectionIndexes removeIndexesInRange:OvItemRange(range)];
  [self _mendEnds];
}

- (void)_mendEnds {
  ++_changeCount;
  if (![self containsIndex:_firstSelectionIndex]) {
    _firstSelectionIndex = [_selectionIndexes firstIndex];
  }
  if (![self containsIndex:_lastSelectionIndex]) {
    _lastSelectionIndex = [_selectionIndexes lastIndex];
  }
}

- (void)removeAllIndexes {
  ++_changeCount;
  [_selectionIndexes removeAllIndexes];
  _firstSelectionIndex = NSNotFound;
  _lastSelectionIndex = NSNotFound;
}

- (void)setFirstSelectionIndex:(NSUInteger)index {
  ++_changeCount;
  _firstSelectionIndex = index;
}

- (NSUInteger)firstSelectionIndex {
  return _firstSelectionIndex;
}

- (void)setLastSelectionIndex:(NSUInteger)index {
  ++_changeCount;
  _lastSelectionIndex = index;
}

- (NSUInteger)lastSelectionIndex {
  return _lastSelectionIndex;
}

@end
