// The two grids of the Pictures page: each kind of grid, with edited names told to its data
// source.
#import <OvAppKit/OvAppKit.h>

@protocol PictureGridEditing
// A name was typed for an item, and editing has ended.
- (void)matrixView:(HXMatrixView *)grid didEditItemIndex:(NSUInteger)index text:(NSString *)text;
// Editing has ended, and what was typed does not count.
- (void)matrixViewDidCancelEditing:(HXMatrixView *)grid;
// The Edit menu's commands.
- (void)copySelection;
- (void)pasteFiles;
@end

@interface PictureGrid : HXMatrixView {
  BOOL _editingCancelled;
}
@end

@interface PictureGridWithOtherRules : OvMatrixView {
  BOOL _editingCancelled;
}
@end
