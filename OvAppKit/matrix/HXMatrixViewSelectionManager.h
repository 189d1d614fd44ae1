#import <AppKit/AppKit.h>

@class HXMatrixView, HXMatrixViewSelectionInfo;

/** Holds a grid's four selection behaviours (see HXMatrixView). */
@interface HXMatrixViewSelectionManager : NSObject {
  HXMatrixView *_matrixView;
  int32_t _selectionBehavior;
  int32_t _alternateSelectionBehavior;
  int32_t _selectionBehaviorForDragging;
  int32_t _alternateSelectionBehaviorForDragging;
  HXMatrixViewSelectionInfo *_selectionInfo;
  HXMatrixViewSelectionInfo *_selectionInfoBeforeMouseDown;
}

/** The view is not retained. Behaviours: rectangular, alternate linear, for clicks and for
    dragging. */
- (id)initWithMatrixView:(HXMatrixView *)matrixView;

- (void)setMultipleSelectionBehavior:(int)behavior;
- (int)multipleSelectionBehavior;
- (void)setAlternateMultipleSelectionBehavior:(int)behavior;
- (int)alternateMultipleSelectionBehavior;
- (void)setMultipleSelectionBehaviorForDragging:(int)behavior;
- (int)multipleSelectionBehaviorForDragging;
- (void)setAlternateMultipleSelectionBehaviorForDragging:(int)behavior;
- (int)alternateMultipleSelectionBehaviorForDragging;

/** Do nothing; the view applies the selection rules itself. */
- (void)mouseDown:(NSEvent *)event;
- (void)mouseUp:(NSEvent *)event;
- (void)mouseDragged:(NSEvent *)event;
- (void)mouseClicked:(NSEvent *)event;

@end
