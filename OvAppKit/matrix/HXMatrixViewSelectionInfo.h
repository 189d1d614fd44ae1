#import <Foundation/Foundation.h>

/** A selection: a set of item indexes with two remembered ends.

    The first index is the anchor, the one selected into an empty selection; the last index
    is the one added most recently. Either is NSNotFound when there is none. */
@interface HXMatrixViewSelectionInfo : NSObject {
  NSMutableIndexSet *_selectionIndexes;
  NSUInteger _firstSelectionIndex;
  NSUInteger _lastSelectionIndex;
  NSUInteger _changeCount;
}

/** An empty selection. */
- (id)init;
/** One item, which is both ends. */
- (id)initWithSelectionIndex:(NSUInteger)index;
/** A copy of the set; its lowest index is the first, its highest the last. */
- (id)initWithSelectionIndexes:(NSIndexSet *)indexes;
/** A copy of the set, with the ends as given. */
- (id)initWithSelectionIndexes:(NSIndexSet *)indexes
           firstSelectionIndex:(NSUInteger)first
            lastSelectionIndex:(NSUInteger)last;
/** A copy of another selection. */
- (id)initWithSelectionInfo:(HXMatrixViewSelectionInfo *)info;

/** The set itself, not a copy. */
- (NSMutableIndexSet *)selectionIndexes;
- (NSUInteger)count;
- (BOOL)containsIndex:(NSUInteger)index;

/** Adds an index; it becomes the last, and the first if there was none. */
- (void)addIndex:(NSUInteger)index;
/** Adds a set; its highest index becomes the last, its lowest the first if there was
    none. An empty set changes nothing. */
- (void)addIndexes:(NSIndexSet *)indexes;
/** Adds a range. An end that there was none of becomes the lowest (highest) selected
    index; unlike -addIndexes:, an existing last index is kept, on purpose. */
- (void)addIndexesInRange:(NSRange)range;

/** Remove indexes; an end that is no longer selected becomes the lowest (highest)
    remaining index, or NSNotFound. */
- (void)removeIndex:(NSUInteger)index;
- (void)removeIndexes:(NSIndexSet *)indexes;
- (void)removeIndexesInRange:(NSRange)range;
- (void)removeAllIndexes;

- (void)setFirstSelectionIndex:(NSUInteger)index;
- (NSUInteger)firstSelectionIndex;
- (void)setLastSelectionIndex:(NSUInteger)index;
- (NSUInteger)lastSelectionIndex;

@end
