// The data source, the delegate and the data cell: what is asked of them when they are set,
// and reloading.

#import "GridTest.h"

using namespace ov::test;

namespace {

class GridCollaborators : public GridTest {};

struct Capability {
  const char *selector;
  bool (*isSet)(const HXMatrixViewFlags &);
};

// The macro only picks a bit; a bit field has no address.
#define BIT(name) [](const HXMatrixViewFlags &f) -> bool { return f.name; }

const Capability kSourceCapabilities[] = {
    {"matrixView:setObjectValue:forItemIndex:", BIT(dataSourceRespondsToSetObjectValue)},
    {"matrixView:contextMenuForCell:atItemIndex:", BIT(dataSourceRespondsToContextMenuForCell)},
    {"matrixView:writeItemsWithIndexes:toPasteboard:", BIT(dataSourceRespondsToWriteItems)},
    {"matrixView:dragImageForItemIndexes:", BIT(dataSourceRespondsToDragImage)},
    {"matrixView:draggingSourceOperationMaskForLocal:",
     BIT(dataSourceRespondsToDraggingSourceOperationMask)},
    {"matrixView:draggedImage:beganAt:", BIT(dataSourceRespondsToDraggedImageBeganAt)},
    {"matrixView:draggedImage:endedAt:operation:", BIT(dataSourceRespondsToDraggedImageEndedAt)},
    {"matrixView:draggedImage:movedTo:", BIT(dataSourceRespondsToDraggedImageMovedTo)},
    {"matrixView:validateDrop:proposedItemIndex:", BIT(dataSourceRespondsToValidateDrop)},
    {"matrixView:acceptDrop:itemIndex:", BIT(dataSourceRespondsToAcceptDrop)},
};

const Capability kDelegateCapabilities[] = {
    {"matrixView:cellClickedAtItemIndex:", BIT(delegateRespondsToCellClicked)},
    {"matrixView:cellDoubleClickedAtItemIndex:", BIT(delegateRespondsToCellDoubleClicked)},
    {"matrixViewWillStartDragSelection:", BIT(delegateRespondsToWillStartDragSelection)},
    {"matrixViewDidEndDragSelection:", BIT(delegateRespondsToDidEndDragSelection)},
    {"matrixView:shouldSelectItemIndex:", BIT(delegateRespondsToShouldSelectItem)},
    {"matrixView:didSelectItemIndex:", BIT(delegateRespondsToDidSelectItemIndex)},
    {"matrixView:didSelectItemIndexes:", BIT(delegateRespondsToDidSelectItemIndexes)},
    {"matrixView:shouldEditItemIndex:", BIT(delegateRespondsToShouldEditItem)},
    {"matrixView:toolTipAtItemIndex:", BIT(delegateRespondsToToolTipAtItemIndex)},
};
#undef BIT

int setBits(const HXMatrixViewFlags &flags) {
  int count = 0;
  for (const Capability &c : kSourceCapabilities) count += c.isSet(flags);
  for (const Capability &c : kDelegateCapabilities) count += c.isSet(flags);
  return count;
}

TEST_F(GridCollaborators, EachMethodOfADataSourceIsRememberedByItself) {
  for (const Capability &capability : kSourceCapabilities) {
    SCOPED_TRACE(capability.selector);
    OvTestGrid *grid = [[[OvTestGrid alloc] initWithFrame:NSZeroRect] autorelease];
    OvTestItems *source = newItems(3);
    [source has:{capability.selector}];
    [grid setDataSource:source];
    EXPECT_TRUE(capability.isSet([grid state].flags));
    EXPECT_EQ(setBits([grid state].flags), 1);
    [grid setDataSource:nil];
    EXPECT_EQ(setBits([grid state].flags), 0);
  }
}

TEST_F(GridCollaborators, EachMethodOfADelegateIsRememberedByItself) {
  for (const Capability &capability : kDelegateCapabilities) {
    SCOPED_TRACE(capability.selector);
    OvTestGrid *grid = [[[OvTestGrid alloc] initWithFrame:NSZeroRect] autorelease];
    OvTestItems *delegate = newItems(3);
    [delegate has:{capability.selector}];
    [grid setDelegate:delegate];
    EXPECT_TRUE(capability.isSet([grid state].flags));
    EXPECT_EQ(setBits([grid state].flags), 1);
    [grid setDelegate:nil];
    EXPECT_EQ(setBits([grid state].flags), 0);
  }
}

TEST_F(GridCollaborators, ADelegatesContextMenuSetsNoBit) {
  OvTestGrid *grid = [[[OvTestGrid alloc] initWithFrame:NSZeroRect] autorelease];
  OvTestItems *delegate = newItems(3);
  [delegate has:{"matrixView:contextMenuForCell:atItemIndex:"}];
  [grid setDelegate:delegate];
  EXPECT_EQ(setBits([grid state].flags), 0);
}

TEST_F(GridCollaborators, MethodsAreLookedForWhenTheObjectIsSet) {
  OvTestGrid *grid = makeGrid(3);
  [items has:{"matrixView:shouldSelectItemIndex:"}];
  EXPECT_FALSE([grid state].flags.delegateRespondsToShouldSelectItem);
  items->maySelect = [](NSUInteger) { return false; };
  EXPECT_TRUE([grid _shouldSelectItemIndex:1]);
  [grid setDelegate:items];
  EXPECT_FALSE([grid _shouldSelectItemIndex:1]);
}

TEST_F(GridCollaborators, DataSourceAndDelegateAreNotRetained) {
  OvTestGrid *grid = [[[OvTestGrid alloc] initWithFrame:NSZeroRect] autorelease];
  OvTestItems *both = newItems(3);
  NSUInteger before = [both retainCount];
  [grid setDataSource:both];
  [grid setDelegate:both];
  EXPECT_EQ([both retainCount], before);
  EXPECT_EQ([grid dataSource], both);
  EXPECT_EQ([grid delegate], both);
}

TEST_F(GridCollaborators, SettingADataSourceReloads) {
  OvTestGrid *grid = makeGrid(3);
  OvTestItems *other = newItems(5);
  journal().clear();
  [grid setDataSource:other];
  EXPECT_EQ(journal().count("reload"), 1u);
  EXPECT_EQ([grid numberOfItems], 5u);
  journal().clear();
  [grid setDataSource:other];
  EXPECT_EQ(journal().count("reload"), 1u) << "the same one again";
  [grid setDataSource:nil];
  EXPECT_EQ([grid numberOfItems], 0u);
  EXPECT_EQ([grid numberOfColumns], 0u);
}

TEST_F(GridCollaborators, SettingADelegateDoesNotReload) {
  OvTestGrid *grid = makeGrid(3);
  [grid setDelegate:newItems(9)];
  EXPECT_EQ(journal().count("reload"), 0u);
  EXPECT_EQ([grid numberOfItems], 3u);
}

TEST_F(GridCollaborators, TheToolTipManagerLivesWhileTheDelegateHasToolTips) {
  OvTestGrid *grid = makeGrid(3);
  OvTestItems *with = newItems(3);
  [with has:{"matrixView:toolTipAtItemIndex:"}];
  [grid setDelegate:with];
  id manager = [grid state].toolTipManager;
  EXPECT_TRUE([manager isMemberOfClass:[HXMatrixViewToolTipManager class]]);
  [grid setDelegate:with];
  EXPECT_EQ([grid state].toolTipManager, manager) << "one is enough";
  [grid setDelegate:newItems(3)];
  EXPECT_EQ([grid state].toolTipManager, nil);
  [grid setDelegate:with];
  EXPECT_NE([grid state].toolTipManager, nil);
  [grid setDelegate:nil];
  EXPECT_EQ([grid state].toolTipManager, nil);
}

TEST_F(GridCollaborators, TheDelegateIsNotSubscribedToTheSelectionNotification) {
  OvTestGrid *grid = makeGrid(3);
  [grid selectItem:1 byExtendingSelection:NO];
  EXPECT_EQ(journal().count("changed"), 1u);
  EXPECT_EQ(journal().count("subscribed"), 0u);
}

TEST_F(GridCollaborators, EditsAreNeverWrittenBack) {
  OvTestGrid *grid = gridInWindow(3);
  [items has:{"matrixView:setObjectValue:forItemIndex:"}];
  [grid setDataSource:items];
  EXPECT_TRUE([grid state].flags.dataSourceRespondsToSetObjectValue);
  [grid editItemAtIndex:1 withEvent:nil select:YES];
  [[grid window] makeFirstResponder:nil];
  EXPECT_EQ(journal().count("setObjectValue"), 0u);
}

TEST_F(GridCollaborators, TheDataCellsExtrasAreLookedForWhenItIsSet) {
  OvTestGrid *grid = makeGrid(3);
  struct {
    Class cell;
    bool hover, drop;
  } rows[] = {{[OvTestCell class], false, false},
              {[OvTestHoverCell class], true, false},
              {[OvTestDropCell class], false, true},
              {[OvTestFullCell class], true, true}};
  for (auto &row : rows) {
    [grid setDataCell:[[[row.cell alloc] init] autorelease]];
    EXPECT_EQ([grid state].flags.dataCellRespondsToSetMouseOrvered, row.hover);
    EXPECT_EQ([grid state].flags.dataCellRespondsToSetProposedDragOperation, row.drop);
  }
  [grid setDataCell:nil];
  EXPECT_EQ([grid state].flags.dataCellRespondsToSetMouseOrvered, 0u);
  EXPECT_EQ([grid state].flags.dataCellRespondsToSetProposedDragOperation, 0u);
}

class GridReload : public GridTest {};

TEST_F(GridReload, TakesTheCountAndLaysOut) {
  OvTestGrid *grid = makeGrid(7);
  items->count = 10;
  [grid reloadData];
  EXPECT_EQ([grid numberOfItems], 10u);
  EXPECT_EQ([grid numberOfColumns], 3u);
  EXPECT_EQ([grid numberOfRows], 4u);
  EXPECT_EQ([grid frame], NSMakeRect(0, 0, 200, 4 * 64 + 3));
}

TEST_F(GridReload, NotingAChangeOfTheCountIsTheSame) {
  OvTestGrid *grid = makeGrid(7);
  [grid selectItem:2 byExtendingSelection:NO];
  NotificationCount changes(HXMatrixViewSelectionDidChangeNotification, grid);
  items->count = 10;
  [grid noteNumberOfItemsChanged];
  EXPECT_EQ([grid numberOfItems], 10u);
  EXPECT_EQ(selection(grid), "");
  EXPECT_EQ(changes.count(), 1);
}

TEST_F(GridReload, HappensWhenAnInterfaceFileWakesTheGrid) {
  OvTestGrid *grid = makeGrid(7);
  items->count = 2;
  [grid awakeFromNib];
  EXPECT_EQ([grid numberOfItems], 2u);
}

TEST_F(GridReload, SizesTheViewThenMarksAllOfItForDisplay) {
  OvTestGrid *grid = gridInWindow(7);
  items->count = 30;
  [grid reloadData];
  Lines steps = journal().of({"count", "sizeToFit", "dirty"});
  ASSERT_GE(steps.size(), 3u);
  EXPECT_EQ(steps[0], "count");
  EXPECT_EQ(steps.back(), "dirty " + text([grid bounds]));
}

TEST_F(GridReload, AnEmptySelectionIsLeftAlone) {
  OvTestGrid *grid = makeGrid(7);
  id record = [grid _selectionInfo];
  NotificationCount changes(HXMatrixViewSelectionDidChangeNotification, grid);
  [grid reloadData];
  EXPECT_EQ(changes.count(), 0);
  EXPECT_EQ([grid _selectionInfo], record);
}

TEST_F(GridReload, ASelectionIsReplacedByAnEmptyOneAndAnnouncedOnce) {
  OvTestGrid *grid = makeGrid(7);
  [grid selectItemsWithIndexes:indexes({1, 3})];
  id record = [[[grid _selectionInfo] retain] autorelease];
  NotificationCount changes(HXMatrixViewSelectionDidChangeNotification, grid);
  [grid reloadData];
  EXPECT_EQ(changes.count(), 1);
  EXPECT_EQ(selection(grid), "");
  EXPECT_NE([grid _selectionInfo], record);
  EXPECT_EQ([record count], 2u) << "the old record is not emptied";
  EXPECT_EQ([[grid _selectionInfo] firstSelectionIndex], (NSUInteger)NSNotFound);
}

TEST_F(GridReload, AnnouncesAfterEverythingElse) {
  OvTestGrid *grid = makeGrid(7);
  [grid selectItem:1 byExtendingSelection:NO];
  journal().clear();
  [grid reloadData];
  EXPECT_EQ(journal().all().back(), "changed");
  EXPECT_EQ(journal().count("changed"), 1u);
}

TEST_F(GridReload, TheNotificationComesFromTheViewWithoutUserInfo) {
  EXPECT_STREQ([HXMatrixViewSelectionDidChangeNotification UTF8String],
               "HXMatrixViewSelectionDidChange");
  OvTestGrid *grid = makeGrid(7);
  NotificationCount changes(HXMatrixViewSelectionDidChangeNotification, nil);
  [grid selectItem:1 byExtendingSelection:NO];
  EXPECT_EQ(changes.count(), 1);
  EXPECT_EQ(changes.lastObject(), grid);
  EXPECT_EQ(changes.lastUserInfo(), nil);
}

}  // namespace
