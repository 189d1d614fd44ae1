#import <AppKit/AppKit.h>

@class HXMatrixView;

/** Follows which item of a grid the pointer is over. The view has one while mouse tracking
    is enabled. */
@interface HXMatrixViewMouseTrackingManager : NSObject {
  HXMatrixView *_matrixView;
  NSHashTable *_trackingTagTable;
  NSUInteger _mouseOveredItemIndex;
}

/** Installs the regions, and follows the view's frame and, if it lies in a scroll view now,
    the scrolling. The view is not retained. */
- (id)initWithMatrixView:(HXMatrixView *)matrixView;

/** Removes the regions and installs one per item cell: for every item, or in a scroll view
    for the visible part of each visible one. Installs none while the view has no window. */
- (void)resetAllTrackingRegions;
- (void)removeAllTrackingRegions;

/** The item under the pointer, or NSNotFound. */
- (NSUInteger)mouseOveredItemIndex;

/** The pointer comes onto, or leaves, the item whose index is the event's user data. */
- (void)mouseEntered:(NSEvent *)event;
- (void)mouseExited:(NSEvent *)event;

/** Reinstall the regions and look where the pointer is now. */
- (void)matrixViewFrameDidChange:(NSNotification *)notification;
- (void)scrollViewContentBoundsDidChange:(NSNotification *)notification;

/** Redisplays the item that was under the pointer and the one that is; then calls the
    second method, which does nothing and is there to be overridden. */
- (void)_setMouseOveredItemIndex:(NSUInteger)index;
- (void)_mouseOveredItemDidChange;

@end
