// What a new grid is like.

#import "GridTest.h"

using namespace ov::test;

namespace {

class GridInitialState : public GridTest {};

void expectInitialState(const GridState &s) {
  EXPECT_EQ(s.dataSource, nil);
  EXPECT_EQ(s.delegate, nil);
  EXPECT_EQ(s.intercellSpacing, NSMakeSize(1, 1));
  EXPECT_EQ(s.cellSize, NSMakeSize(64, 64));
  EXPECT_EQ(s.dataCell, nil);
  EXPECT_TRUE([s.selectionManager isMemberOfClass:[HXMatrixViewSelectionManager class]]);
  EXPECT_TRUE([s.selectionInfo isMemberOfClass:[HXMatrixViewSelectionInfo class]]);
  EXPECT_EQ([s.selectionInfo count], 0u);
  EXPECT_EQ(s.selectionInfoBeforeMouseDown, nil);
  EXPECT_EQ(s.backgroundColor, nil);
  EXPECT_EQ(s.gridColor, nil);
  EXPECT_EQ(s.gridStyleMask, 0u);
  EXPECT_EQ(s.gridLineWidth, 1);
  EXPECT_EQ(s.gridShadow, nil);
  EXPECT_EQ(s.numberOfItems, 0u);
  EXPECT_EQ(s.numberOfColumns, 0u);
  EXPECT_EQ(s.numberOfRows, 0u);
  EXPECT_EQ(s.mouseDownFlags, 0u);
  EXPECT_EQ(s.mouseDownLocation, NSZeroPoint);
  EXPECT_EQ(s.mouseDownItemIndex, (NSUInteger)NSNotFound);
  EXPECT_FALSE(s.mouseDowned);
  EXPECT_FALSE(s.mouseDragged);
  EXPECT_FALSE(s.draggingRefused);
  EXPECT_EQ(s.rubberBandFrame, NSZeroRect);
  EXPECT_EQ(s.rubberBandColumns, NSMakeRange(0, 0));
  EXPECT_EQ(s.rubberBandRows, NSMakeRange(0, 0));
  EXPECT_EQ(s.draggingLocationItemIndex, (NSUInteger)NSNotFound);
  EXPECT_EQ(s.draggingDestinationItemIndex, (NSUInteger)NSNotFound);
  EXPECT_EQ(s.proposedDragOperation, 0u);
  EXPECT_EQ(s.editedItemIndex, (NSUInteger)NSNotFound);
  EXPECT_EQ(s.toolTipManager, nil);
  EXPECT_EQ(s.mouseTrackingManager, nil);
}

void expectInitialFlags(const HXMatrixViewFlags &f) {
  EXPECT_EQ(f.RESERVED, 0u);
  EXPECT_EQ(f.inDragSelection, 0u);
  EXPECT_EQ(f.dataCellRespondsToSetMouseOrvered, 0u);
  EXPECT_EQ(f.dataCellRespondsToSetProposedDragOperation, 0u);
  EXPECT_EQ(f.delegateRespondsToToolTipAtItemIndex, 0u);
  EXPECT_EQ(f.delegateRespondsToShouldEditItem, 0u);
  EXPECT_EQ(f.delegateRespondsToDidSelectItemIndexes, 0u);
  EXPECT_EQ(f.delegateRespondsToDidSelectItemIndex, 0u);
  EXPECT_EQ(f.delegateRespondsToShouldSelectItem, 0u);
  EXPECT_EQ(f.delegateRespondsToDidEndDragSelection, 0u);
  EXPECT_EQ(f.delegateRespondsToWillStartDragSelection, 0u);
  EXPECT_EQ(f.delegateRespondsToCellDoubleClicked, 0u);
  EXPECT_EQ(f.delegateRespondsToCellClicked, 0u);
  EXPECT_EQ(f.dataSourceRespondsToAcceptDrop, 0u);
  EXPECT_EQ(f.dataSourceRespondsToValidateDrop, 0u);
  EXPECT_EQ(f.dataSourceRespondsToDraggedImageMovedTo, 0u);
  EXPECT_EQ(f.dataSourceRespondsToDraggedImageEndedAt, 0u);
  EXPECT_EQ(f.dataSourceRespondsToDraggedImageBeganAt, 0u);
  EXPECT_EQ(f.dataSourceRespondsToDraggingSourceOperationMask, 0u);
  EXPECT_EQ(f.dataSourceRespondsToDragImage, 0u);
  EXPECT_EQ(f.dataSourceRespondsToWriteItems, 0u);
  EXPECT_EQ(f.dataSourceRespondsToContextMenuForCell, 0u);
  EXPECT_EQ(f.dataSourceRespondsToSetObjectValue, 0u);
  EXPECT_EQ(f.autoFitHorizentally, 1u);
  EXPECT_EQ(f.allowsBeginDragging, 1u);
  EXPECT_EQ(f.allowsEmptySelection, 1u);
  EXPECT_EQ(f.allowsMultipleSelection, 1u);
}

TEST_F(GridInitialState, EveryVariableHasItsInitialValue) {
  OvTestGrid *grid = [[[OvTestGrid alloc] initWithFrame:NSMakeRect(10, 20, 300, 200)] autorelease];
  expectInitialState([grid state]);
  expectInitialFlags([grid state].flags);
  EXPECT_EQ([grid frame], NSMakeRect(10, 20, 300, 200));
}

TEST_F(GridInitialState, InitIsTheSameWithAnEmptyFrame) {
  OvTestGrid *grid = [[[OvTestGrid alloc] init] autorelease];
  expectInitialState([grid state]);
  expectInitialFlags([grid state].flags);
  EXPECT_EQ([grid frame], NSZeroRect);
}

TEST_F(GridInitialState, GettersAnswerTheInitialValues) {
  HXMatrixView *grid = [[[HXMatrixView alloc] initWithFrame:NSMakeRect(0, 0, 9, 9)] autorelease];
  EXPECT_EQ([grid cellSize], NSMakeSize(64, 64));
  EXPECT_EQ([grid intercellSpacing], NSMakeSize(1, 1));
  EXPECT_EQ([grid gridLineWidth], 1);
  EXPECT_TRUE([grid autoFitHorizentally]);
  EXPECT_TRUE([grid allowsBeginDragging]);
  EXPECT_TRUE([grid allowsEmptySelection]);
  EXPECT_TRUE([grid allowsMultipleSelection]);
  EXPECT_FALSE([grid mouseTrackingEnabled]);
  EXPECT_FALSE([grid inDragSelection]);
  EXPECT_EQ([grid editedItemIndex], (NSUInteger)NSNotFound);
  EXPECT_EQ([grid numberOfSelectedItems], 0u);
  EXPECT_EQ([grid multipleSelectionBehavior], 0);
  EXPECT_EQ([grid alternateMultipleSelectionBehavior], 1);
  EXPECT_EQ([grid multipleSelectionBehaviorForDragging], 0);
  EXPECT_EQ([grid alternateMultipleSelectionBehaviorForDragging], 1);
}

TEST_F(GridInitialState, TheOriginIsAtTheTopLeft) { EXPECT_TRUE([makeGrid(3) isFlipped]); }

TEST_F(GridInitialState, AManagerServesTheViewThatMadeIt) {
  OvTestGrid *grid = makeGrid(3);
  [grid setMultipleSelectionBehavior:7];
  EXPECT_EQ(
      [(HXMatrixViewSelectionManager *)[grid state].selectionManager multipleSelectionBehavior], 7);
}

TEST_F(GridInitialState, TheOtherGridStartsTheSameWay) {
  OvMatrixView *grid = [[[OvMatrixView alloc] initWithFrame:NSMakeRect(0, 0, 9, 9)] autorelease];
  EXPECT_TRUE([grid isKindOfClass:[HXMatrixView class]]);
  EXPECT_EQ([grid cellSize], NSMakeSize(64, 64));
  EXPECT_TRUE([grid autoFitHorizentally]);
}

}  // namespace
