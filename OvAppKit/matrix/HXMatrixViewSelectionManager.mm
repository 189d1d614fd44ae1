#import <OvAppKit/HXMatrixViewSelectionManager.h>

#import <OvAppKit/HXMatrixView.h>
#import <OvAppKit/HXMatrixViewSelectionInfo.h>

@implementation HXMatrixViewSelectionManager

- (id)initWithMatrixView:(HXMatrixView *)matrixView {
  self = [super init];
  if (self != nil) {
    _matrixView = matrixView;
    _selectionBehavior = HXMatrixViewRectangularSelection;
    _alternateSelectionBehavior = HXMatrixViewLinearSelection;
    _selectionBehaviorForDragging = HXMatrixViewRectangularSelection;
    _alternateSelectionBehaviorForDragging = HXMatrixViewLinearSelection;
    _selectionInfo = [[HXMatrixViewSelectionInfo alloc] init];
  }
  return self;
}

- (void)dealloc {
  [_selectionInfo release];
  [_selectionInfoBeforeMouseDown release];
  [super dealloc];
}

- (void)setMultipleSelectionBehavior:(int)behavior {
  _selectionBehavior = behavior;
}

- (int)multipleSelectionBehavior {
  return _selectionBehavior;
}

- (void)setAlternateMultipleSelectionBehavior:(int)behavior {
  _alternateSelectionBehavior = behavior;
}

- (int)alternateMultipleSelectionBehavior {
  return _alternateSelectionBehavior;
}

- (void)setMultipleSelectionBehaviorForDragging:(int)behavior {
  _selectionBehaviorForDragging = behavior;
}

- (int)multipleSelectionBehaviorForDragging {
  return _selectionBehaviorForDragging;
}

- (void)setAlternateMultipleSelectionBehaviorForDragging:(int)behavior {
  _alternateSelectionBehaviorForDragging = behavior;
}

- (int)alternateMultipleSelectionBehaviorForDragging {
  return _alternateSelectionBehaviorForDragging;
}

- (void)mouseDown:(NSEvent *)event {
  (void)event;
}

- (void)mouseUp:(NSEvent *)event {
  (void)event;
}

- (void)mouseDragged:(NSEvent *)event {
  (void)event;
}

- (void)mouseClicked:(NSEvent *)event {
  (void)event;
}

@end
