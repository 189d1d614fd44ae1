// Selecting by calls from the host: what changes, what is redisplayed, what is announced.

#import "GridTest.h"

using namespace ov::test;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class GridSelection : public GridTest {
 protected:
  void SetUp() override {
    GridTest::SetUp();
    grid = gridInWindow(9);  // 3 x 3
    [items has:{"matrixView:shouldSelectItemIndex:", "matrixView:didSelectItemIndex:",
                "matrixView:didSelectItemIndexes:"}];
    [grid setDelegate:items];
    journal().clear();
  }

  void select(std::initializer_list<NSUInteger> order) {
    [grid selectItemsWithIndexes:[NSIndexSet indexSet]];
    for (NSUInteger i : order) [grid selectItem:i byExtendingSelection:YES];
    journal().clear();
  }

  // The ends of the record.
  std::string ends() {
    return text([[grid _selectionInfo] firstSelectionIndex]) + " " +
           text([[grid _selectionInfo] lastSelectionIndex]);
  }

  // Nobody was asked or told: hosts may select what they like.
  void expectNoDelegate() {
    EXPECT_THAT(journal().of({"shouldSelect", "didSelect", "didSelectItems"}), IsEmpty());
  }

  OvTestGrid *grid = nil;
};

TEST_F(GridSelection, SelectingAnItemReplacesTheSelection) {
  select({1, 2});
  [grid selectItem:4 byExtendingSelection:NO];
  EXPECT_EQ(selection(grid), "4");
  EXPECT_EQ(ends(), "4 4");
  EXPECT_THAT(journal().of({"dirty"}),
              ElementsAre("dirty {65, 0, 129 x 64}", "dirty {65, 65, 64 x 64}"));
  EXPECT_EQ(journal().count("changed"), 1u);
  expectNoDelegate();
}

TEST_F(GridSelection, ExtendingAddsAnItem) {
  select({1});
  [grid selectItem:4 byExtendingSelection:YES];
  EXPECT_EQ(selection(grid), "1 4");
  EXPECT_EQ(ends(), "1 4");
  EXPECT_THAT(journal().of({"dirty"}), ElementsAre("dirty {65, 65, 64 x 64}"));
  EXPECT_EQ(journal().count("changed"), 1u);
  expectNoDelegate();
}

TEST_F(GridSelection, ExtendingByASelectedItemDoesNothing) {
  select({1, 4});
  [grid selectItem:1 byExtendingSelection:YES];
  EXPECT_EQ(selection(grid), "1 4");
  EXPECT_EQ(ends(), "1 4");
  EXPECT_THAT(journal().of({"dirty", "changed", "display"}), IsEmpty());
}

TEST_F(GridSelection, SelectingTheOnlySelectedItemAgainIsAnnounced) {
  select({4});
  [grid selectItem:4 byExtendingSelection:NO];
  EXPECT_EQ(selection(grid), "4");
  EXPECT_EQ(journal().count("changed"), 1u);
  select({1, 4});
  [grid selectItem:4 byExtendingSelection:NO];
  EXPECT_EQ(ends(), "4 4") << "it becomes the anchor";
}

TEST_F(GridSelection, ExtendingKeepsTheRecordAndItsAnchor) {
  id record = [grid _selectionInfo];
  [grid selectItem:4 byExtendingSelection:YES];
  [grid selectItem:2 byExtendingSelection:YES];
  [grid selectItem:7 byExtendingSelection:NO];
  EXPECT_EQ([grid _selectionInfo], record);
}

TEST_F(GridSelection, AChangeIsDisplayedThenAnnounced) {
  [grid selectItem:4 byExtendingSelection:NO];
  EXPECT_THAT(journal().of({"display", "changed"}), ElementsAre("display", "changed"));
  EXPECT_FALSE([grid needsDisplay]);
}

TEST_F(GridSelection, SelectingASetMakesItTheSelection) {
  select({1, 2});
  id record = [[[grid _selectionInfo] retain] autorelease];
  [grid selectItemsWithIndexes:indexes({2, 5, 8})];
  EXPECT_EQ(selection(grid), "2 5 8");
  EXPECT_EQ(ends(), "2 8") << "the lowest and the highest";
  EXPECT_NE([grid _selectionInfo], record);
  EXPECT_EQ(journal().count("changed"), 1u);
  EXPECT_THAT(journal().of({"display", "changed"}), ElementsAre("display", "changed"));
  expectNoDelegate();
  // 1 leaves, 5 and 8 come, 2 stays as it is.
  EXPECT_THAT(journal().of({"dirty"}),
              testing::UnorderedElementsAre("dirty {65, 0, 64 x 64}", "dirty {130, 65, 64 x 129}"));
}

TEST_F(GridSelection, SelectingTheSameSetDoesNothing) {
  select({1, 2});
  id record = [grid _selectionInfo];
  [grid selectItemsWithIndexes:indexes({1, 2})];
  EXPECT_EQ([grid _selectionInfo], record);
  EXPECT_THAT(journal().of({"dirty", "display", "changed"}), IsEmpty());
}

TEST_F(GridSelection, SelectingASetCopiesIt) {
  NSMutableIndexSet *set = [NSMutableIndexSet indexSetWithIndex:3];
  [grid selectItemsWithIndexes:set];
  [set addIndex:4];
  EXPECT_EQ(selection(grid), "3");
}

TEST_F(GridSelection, IndexesAreNotChecked) {
  [grid selectItemsWithIndexes:indexes({3, 1000})];
  EXPECT_EQ(selection(grid), "3 1000");
  [grid selectItem:2000 byExtendingSelection:YES];
  EXPECT_EQ(selection(grid), "3 1000 2000");
  [grid display];
}

TEST_F(GridSelection, SelectingAll) {
  [grid selectAll:nil];
  EXPECT_EQ([grid numberOfSelectedItems], 9u);
  EXPECT_EQ(ends(), "0 8");
  EXPECT_TRUE(journal().has("dirty " + text([grid bounds]))) << "nothing was selected before";
  EXPECT_THAT(journal().of({"display", "changed"}), ElementsAre("display", "changed"));
  expectNoDelegate();
  journal().clear();
  [grid selectAll:nil];
  EXPECT_THAT(journal().of({"dirty", "display", "changed"}), IsEmpty());
}

TEST_F(GridSelection, SelectingAllKeepsTheAnchorAndMarksTheOthers) {
  select({3, 4});
  id record = [grid _selectionInfo];
  [grid selectAll:grid];
  EXPECT_EQ([grid numberOfSelectedItems], 9u);
  EXPECT_EQ(ends(), "3 4");
  EXPECT_EQ([grid _selectionInfo], record);
  EXPECT_FALSE(journal().has("dirtyItems 3 4"));
  EXPECT_TRUE(journal().has("dirtyItems 0 1 2 5 6 7 8"));
  EXPECT_EQ(journal().count("changed"), 1u);
}

TEST_F(GridSelection, SelectingAllNeedsMultipleSelection) {
  [grid setAllowsMultipleSelection:NO];
  [grid selectAll:nil];
  EXPECT_EQ(selection(grid), "");
  EXPECT_EQ(journal().count("changed"), 0u);
}

TEST_F(GridSelection, SelectingAllOfNothing) {
  items->count = 0;
  [grid reloadData];
  journal().clear();
  [grid selectAll:nil];
  EXPECT_EQ(journal().count("changed"), 0u);
}

TEST_F(GridSelection, SelectingAllComparesCountsOnly) {
  // As many selected as there are items, though not the same ones: nothing happens.
  [grid selectItemsWithIndexes:indexRange(100, 9)];
  journal().clear();
  [grid selectAll:nil];
  EXPECT_EQ([grid numberOfSelectedItems], 9u);
  EXPECT_FALSE([grid isItemSelected:0]);
  EXPECT_EQ(journal().count("changed"), 0u);
}

TEST_F(GridSelection, DeselectingAll) {
  select({3, 4});
  id record = [[[grid _selectionInfo] retain] autorelease];
  [grid deselectAll:nil];
  EXPECT_EQ(selection(grid), "");
  EXPECT_EQ(ends(), "none none");
  EXPECT_NE([grid _selectionInfo], record);
  EXPECT_THAT(journal().of({"dirty"}), ElementsAre("dirty {0, 65, 129 x 64}"));
  EXPECT_THAT(journal().of({"display", "changed"}), ElementsAre("display", "changed"));
  expectNoDelegate();
  journal().clear();
  [grid deselectAll:nil];
  EXPECT_THAT(journal().of({"dirty", "changed"}), IsEmpty());
}

TEST_F(GridSelection, DeselectingEveryItemMarksTheWholeView) {
  [grid selectAll:nil];
  journal().clear();
  [grid deselectAll:nil];
  EXPECT_TRUE(journal().has("dirty " + text([grid bounds])));
}

TEST_F(GridSelection, DeselectingAllNeedsTheEmptySelection) {
  select({3});
  [grid setAllowsEmptySelection:NO];
  journal().clear();
  [grid deselectAll:nil];
  EXPECT_EQ(selection(grid), "3");
  EXPECT_EQ(journal().count("changed"), 0u);
}

TEST_F(GridSelection, GivingUpMultipleSelectionKeepsTheItemSelectedLast) {
  select({2, 7, 4});
  id record = [[[grid _selectionInfo] retain] autorelease];
  [grid setAllowsMultipleSelection:NO];
  EXPECT_FALSE([grid allowsMultipleSelection]);
  EXPECT_EQ(selection(grid), "4");
  EXPECT_EQ(ends(), "4 4");
  EXPECT_NE([grid _selectionInfo], record);
  EXPECT_EQ(journal().count("changed"), 1u);
  EXPECT_EQ(journal().count("display"), 0u) << "it is displayed with the next event";
  EXPECT_TRUE(journal().has("dirtyItems 2 7"));
  EXPECT_EQ(journal().count("dirty"), 1u);
  expectNoDelegate();
}

TEST_F(GridSelection, GivingUpMultipleSelectionOfOneItemChangesNothing) {
  select({2});
  [grid setAllowsMultipleSelection:NO];
  [grid setAllowsMultipleSelection:YES];
  EXPECT_EQ(selection(grid), "2");
  EXPECT_THAT(journal().of({"dirty", "changed"}), IsEmpty());
}

TEST_F(GridSelection, GivingUpTheEmptySelectionSelectsTheFirstItem) {
  id record = [[[grid _selectionInfo] retain] autorelease];
  [grid setAllowsEmptySelection:NO];
  EXPECT_FALSE([grid allowsEmptySelection]);
  EXPECT_EQ(selection(grid), "0");
  EXPECT_EQ(ends(), "0 0");
  EXPECT_NE([grid _selectionInfo], record);
  EXPECT_THAT(journal().of({"dirty"}), ElementsAre("dirty {0, 0, 64 x 64}"));
  EXPECT_EQ(journal().count("changed"), 1u);
  EXPECT_EQ(journal().count("display"), 0u);
  expectNoDelegate();
}

TEST_F(GridSelection, GivingUpTheEmptySelectionWithASelectionOrWithoutItemsChangesNothing) {
  select({5});
  [grid setAllowsEmptySelection:NO];
  EXPECT_EQ(selection(grid), "5");
  [grid setAllowsEmptySelection:YES];
  items->count = 0;
  [grid reloadData];
  journal().clear();
  [grid setAllowsEmptySelection:NO];
  EXPECT_EQ(selection(grid), "");
  EXPECT_EQ(journal().count("changed"), 0u);
}

TEST_F(GridSelection, Asking) {
  select({2, 7});
  EXPECT_EQ([grid numberOfSelectedItems], 2u);
  EXPECT_TRUE([grid isItemSelected:7]);
  EXPECT_FALSE([grid isItemSelected:3]);
  EXPECT_FALSE([grid isItemSelected:NSNotFound]);
  NSIndexSet *set = [grid selectedItemIndexes];
  [grid selectItem:3 byExtendingSelection:NO];
  EXPECT_EQ(text(set), "2 7") << "a copy";
}

// --- The delegate's say ------------------------------------------------------------------

TEST_F(GridSelection, WithoutAVetoEveryItemMayBeSelected) {
  OvTestItems *quiet = newItems(9);
  [grid setDelegate:quiet];
  EXPECT_TRUE([grid _shouldSelectItemIndex:3]);
  EXPECT_TRUE([grid _shouldSelectItemIndex:NSNotFound]);
  [grid _didSelectItemIndex:3];
  [grid _didSelectItemIndexes:indexes({1, 2})];
  EXPECT_THAT(journal().of({"didSelect", "didSelectItems"}), IsEmpty());
}

TEST_F(GridSelection, TheDelegateMayRefuse) {
  items->maySelect = [](NSUInteger i) { return i != 3; };
  EXPECT_FALSE([grid _shouldSelectItemIndex:3]);
  EXPECT_TRUE([grid _shouldSelectItemIndex:4]);
  EXPECT_EQ(items->view, grid);
}

TEST_F(GridSelection, SeveralItemsAreToldAtOnceOrOneByOne) {
  [grid _didSelectItemIndexes:indexes({5, 1, 3})];
  EXPECT_THAT(journal().all(), ElementsAre("didSelectItems 1 3 5"));
  journal().clear();
  [grid _didSelectItemIndex:4];
  EXPECT_THAT(journal().all(), ElementsAre("didSelect 4"));
  OvTestItems *single = newItems(9);
  [single has:{"matrixView:didSelectItemIndex:"}];
  [grid setDelegate:single];
  journal().clear();
  [grid _didSelectItemIndexes:indexes({5, 1, 3})];
  EXPECT_THAT(journal().all(), ElementsAre("didSelect 1", "didSelect 3", "didSelect 5"));
  OvTestItems *several = newItems(9);
  [several has:{"matrixView:didSelectItemIndexes:"}];
  [grid setDelegate:several];
  journal().clear();
  [grid _didSelectItemIndex:4];
  EXPECT_THAT(journal().all(), IsEmpty());
}

}  // namespace
