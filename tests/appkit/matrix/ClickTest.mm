// The click rules: what a press and release select, with each modifier, under each veto.

#import "GridTest.h"

using namespace ov::test;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class GridClick : public GridTest {
 protected:
  void SetUp() override {
    GridTest::SetUp();
    grid = gridInWindow(14, NSMakeSize(260, 260), true);  // 4 columns, 2 in the last row
    [items has:{"matrixView:shouldSelectItemIndex:", "matrixView:didSelectItemIndex:",
                "matrixView:didSelectItemIndexes:", "matrixView:cellClickedAtItemIndex:"}];
    [grid setDelegate:items];
    ASSERT_EQ([grid numberOfColumns], 4u);
    journal().clear();
  }

  void select(std::initializer_list<NSUInteger> order) {
    [grid selectItemsWithIndexes:[NSIndexSet indexSet]];
    for (NSUInteger i : order) [grid selectItem:i byExtendingSelection:YES];
    journal().clear();
  }

  void clickItem(NSUInteger index, NSUInteger flags = 0) {
    journal().clear();
    click(grid, middle(grid, index), flags);
  }

  void clickNowhere(NSUInteger flags = 0) {
    journal().clear();
    click(grid, NSMakePoint(200, 240), flags);
  }

  void refuse(std::set<NSUInteger> refused) {
    items->maySelect = [refused](NSUInteger i) { return !refused.contains(i); };
  }

  std::string ends() {
    return text([[grid _selectionInfo] firstSelectionIndex]) + " " +
           text([[grid _selectionInfo] lastSelectionIndex]);
  }

  // Notices and announcements in their order.
  Lines told() { return journal().of({"didSelect", "didSelectItems", "changed", "clicked"}); }
  Lines marked() { return journal().of({"dirtyItem", "dirtyItems"}); }

  OvTestGrid *grid = nil;
};

TEST_F(GridClick, SelectsAnItem) {
  clickItem(5);
  EXPECT_EQ(selection(grid), "5");
  EXPECT_EQ(ends(), "5 5");
  EXPECT_THAT(journal().of({"shouldSelect"}), ElementsAre("shouldSelect 5"));
  EXPECT_EQ(journal().count("changed"), 1u);
  EXPECT_THAT(journal().of({"didSelect", "didSelectItems"}), ElementsAre("didSelect 5"));
  EXPECT_EQ(journal().all().back(), "clicked 5") << "after everything else";
  EXPECT_EQ(journal().count("clicked"), 1u);
}

TEST_F(GridClick, ReplacesTheSelection) {
  select({1, 2});
  id record = [[[grid _selectionInfo] retain] autorelease];
  clickItem(5);
  EXPECT_EQ(selection(grid), "5");
  EXPECT_NE([grid _selectionInfo], record);
  EXPECT_THAT(marked(), testing::Contains("dirtyItems 1 2"));
  EXPECT_THAT(marked(), testing::Contains("dirtyItem 5"));
  EXPECT_THAT(told(), testing::UnorderedElementsAre("didSelect 5", "changed", "clicked 5"));
}

TEST_F(GridClick, OnTheOnlySelectedItemChangesNothing) {
  select({5});
  id record = [grid _selectionInfo];
  clickItem(5);
  EXPECT_EQ([grid _selectionInfo], record);
  EXPECT_THAT(told(), ElementsAre("clicked 5"));
  EXPECT_THAT(marked(), IsEmpty());
}

TEST_F(GridClick, OnOneOfSeveralSelectedItemsKeepsItAlone) {
  select({1, 5, 6});
  clickItem(5);
  EXPECT_EQ(selection(grid), "5");
  EXPECT_EQ(ends(), "5 5");
  EXPECT_THAT(told(), ElementsAre("changed", "clicked 5")) << "it was selected before";
  EXPECT_THAT(journal().of({"shouldSelect"}), IsEmpty());
  EXPECT_THAT(marked(), ElementsAre("dirtyItems 1 6"));
}

TEST_F(GridClick, ARefusedItemChangesNothing) {
  select({1, 2});
  refuse({5});
  clickItem(5);
  EXPECT_EQ(selection(grid), "1 2");
  EXPECT_THAT(told(), ElementsAre("clicked 5")) << "the click is told all the same";
}

TEST_F(GridClick, OnEmptySpaceDeselectsEverything) {
  select({1, 2});
  clickNowhere();
  EXPECT_EQ(selection(grid), "");
  EXPECT_THAT(told(), ElementsAre("changed")) << "no item was clicked";
  clickNowhere();
  EXPECT_THAT(told(), IsEmpty());
}

TEST_F(GridClick, OnEmptySpaceDeselectsWithEveryModifier) {
  for (NSUInteger flags : {kShift, kCommand, kOption, kShift | kCommand}) {
    select({1, 2});
    clickNowhere(flags);
    EXPECT_EQ(selection(grid), "") << flags;
  }
}

TEST_F(GridClick, OnEmptySpaceKeepsTheSelectionThatMayNotBeEmpty) {
  select({1, 2});
  [grid setAllowsEmptySelection:NO];
  clickNowhere();
  EXPECT_EQ(selection(grid), "1 2");
  EXPECT_THAT(told(), IsEmpty());
}

TEST_F(GridClick, WithCommandTogglesAnItem) {
  select({1, 2});
  id record = [grid _selectionInfo];
  clickItem(5, kCommand);
  EXPECT_EQ(selection(grid), "1 2 5");
  EXPECT_EQ(ends(), "1 5");
  EXPECT_EQ([grid _selectionInfo], record) << "edited in place";
  EXPECT_THAT(told(), testing::UnorderedElementsAre("didSelect 5", "changed", "clicked 5"));
  EXPECT_THAT(marked(), ElementsAre("dirtyItem 5"));
  clickItem(2, kCommand);
  EXPECT_EQ(selection(grid), "1 5");
  EXPECT_THAT(told(), ElementsAre("changed", "clicked 2")) << "no notice of a removal";
  EXPECT_THAT(journal().of({"shouldSelect"}), IsEmpty());
  EXPECT_THAT(marked(), ElementsAre("dirtyItem 2"));
}

TEST_F(GridClick, WithCommandMayLeaveNothingSelected) {
  select({1});
  [grid setAllowsEmptySelection:NO];
  clickItem(1, kCommand);
  EXPECT_EQ(selection(grid), "");
}

TEST_F(GridClick, WithCommandOnARefusedItemChangesNothing) {
  select({1});
  refuse({5});
  clickItem(5, kCommand);
  EXPECT_EQ(selection(grid), "1");
  EXPECT_THAT(told(), ElementsAre("clicked 5"));
}

TEST_F(GridClick, WithShiftOnAnEmptySelectionSelectsTheItem) {
  id record = [grid _selectionInfo];
  clickItem(5, kShift);
  EXPECT_EQ(selection(grid), "5");
  EXPECT_EQ(ends(), "5 5");
  EXPECT_EQ([grid _selectionInfo], record);
  EXPECT_THAT(told(), testing::UnorderedElementsAre("didSelect 5", "changed", "clicked 5"));
  EXPECT_THAT(marked(), ElementsAre("dirtyItem 5"));
  select({});
  refuse({5});
  clickItem(5, kShift);
  EXPECT_EQ(selection(grid), "");
  EXPECT_THAT(told(), ElementsAre("clicked 5"));
}

TEST_F(GridClick, WithShiftSelectsTheBlockFromTheAnchor) {
  clickItem(5);
  clickItem(10, kShift);
  EXPECT_EQ(selection(grid), "5 6 9 10");
  EXPECT_EQ(ends(), "5 10");
  EXPECT_THAT(journal().of({"shouldSelect"}),
              ElementsAre("shouldSelect 6", "shouldSelect 9", "shouldSelect 10"));
  EXPECT_THAT(told(),
              testing::UnorderedElementsAre("didSelectItems 6 9 10", "changed", "clicked 10"));
  EXPECT_THAT(marked(), ElementsAre("dirtyItems 6 9 10"));
  // From the same anchor to the other side.
  clickItem(0, kShift);
  EXPECT_EQ(selection(grid), "0 1 4 5");
  EXPECT_EQ(text([[grid _selectionInfo] firstSelectionIndex]), "5");
  EXPECT_THAT(marked(), ElementsAre("dirtyItems 0 1 4", "dirtyItems 6 9 10"));
}

TEST_F(GridClick, WithShiftABlockWorksInEveryDirection) {
  struct {
    NSUInteger anchor, clicked;
    const char *expected;
  } rows[] = {{5, 2, "1 2 5 6"},
              {6, 1, "1 2 5 6"},
              {9, 6, "5 6 9 10"},
              {10, 5, "5 6 9 10"},
              {0, 13, "0 1 4 5 8 9 12 13"},
              {13, 2, "1 2 5 6 9 10 13"}};
  for (auto &row : rows) {
    clickItem(row.anchor);
    clickItem(row.clicked, kShift);
    EXPECT_EQ(selection(grid), row.expected) << row.anchor << " to " << row.clicked;
  }
}

TEST_F(GridClick, WithShiftAndOptionSelectsTheRange) {
  clickItem(5);
  clickItem(10, kShift | kOption);
  EXPECT_EQ(selection(grid), "5 6 7 8 9 10");
  clickItem(7, kShift | kOption);
  // From the item selected last, which is 10, back to 7.
  EXPECT_EQ(selection(grid), "7 8 9 10");
}

TEST_F(GridClick, LinearSelectionStartsFromTheItemSelectedLast) {
  [grid setMultipleSelectionBehavior:HXMatrixViewLinearSelection];
  select({2, 7});
  clickItem(4, kShift);
  EXPECT_EQ(selection(grid), "4 5 6 7") << "and 2 goes";
  select({2, 7});
  clickItem(9, kShift);
  EXPECT_EQ(selection(grid), "7 8 9");
}

TEST_F(GridClick, BehavioursCanBeExchanged) {
  [grid setMultipleSelectionBehavior:HXMatrixViewLinearSelection];
  [grid setAlternateMultipleSelectionBehavior:HXMatrixViewRectangularSelection];
  clickItem(5);
  clickItem(10, kShift);
  EXPECT_EQ(selection(grid), "5 6 7 8 9 10");
  clickItem(5);
  clickItem(10, kShift | kOption);
  EXPECT_EQ(selection(grid), "5 6 9 10");
}

TEST_F(GridClick, AnUnknownBehaviourSelectsNothing) {
  [grid setMultipleSelectionBehavior:2];
  EXPECT_EQ([grid _itemIndexesForMouseDownItemIndex:3 mouseDownFlags:0], nil);
  clickItem(5);
  clickItem(10, kShift);
  EXPECT_EQ(selection(grid), "") << "what is outside of nothing goes";
  EXPECT_THAT(told(), ElementsAre("changed", "clicked 10"));
}

TEST_F(GridClick, WithShiftOneAcceptedItemBringsTheRefusedOnesIn) {
  clickItem(5);
  refuse({6, 9});
  clickItem(10, kShift);
  EXPECT_EQ(selection(grid), "5 6 9 10");
  EXPECT_THAT(journal().of({"didSelect", "didSelectItems"}), ElementsAre("didSelectItems 10"));
  EXPECT_THAT(marked(), testing::Contains("dirtyItems 10"));
}

TEST_F(GridClick, WithShiftAndAllRefusedNothingIsAddedButTheRestGoes) {
  select({5, 0});
  refuse({6, 9, 10});
  clickItem(10, kShift);
  EXPECT_EQ(selection(grid), "5");
  EXPECT_THAT(told(), ElementsAre("changed", "clicked 10"));
  EXPECT_THAT(marked(), testing::Contains("dirtyItems 0"));
}

TEST_F(GridClick, WithShiftNothingNewAndNothingGoneIsNoChange) {
  select({5});
  refuse({6, 9, 10});
  clickItem(10, kShift);
  EXPECT_EQ(selection(grid), "5");
  EXPECT_THAT(told(), ElementsAre("clicked 10"));
  EXPECT_THAT(marked(), IsEmpty());
  select({5, 6});
  clickItem(6, kShift);
  EXPECT_THAT(told(), ElementsAre("clicked 6"));
}

TEST_F(GridClick, WithShiftTheBlocksHighestItemIsTheLast) {
  select({10});
  clickItem(5, kShift);
  EXPECT_EQ(selection(grid), "5 6 9 10");
  EXPECT_EQ(ends(), "10 10");
}

TEST_F(GridClick, ShiftOutweighsCommand) {
  clickItem(5);
  clickItem(10, kShift | kCommand);
  EXPECT_EQ(selection(grid), "5 6 9 10");
}

TEST_F(GridClick, OptionAloneIsAPlainClick) {
  select({1, 2});
  clickItem(5, kOption);
  EXPECT_EQ(selection(grid), "5");
}

TEST_F(GridClick, ModifiersExtendEvenWhenMultipleSelectionIsOff) {
  [grid setAllowsMultipleSelection:NO];
  clickItem(5);
  clickItem(10, kShift);
  EXPECT_EQ(selection(grid), "5 6 9 10");
  clickItem(0, kCommand);
  EXPECT_EQ(selection(grid), "0 5 6 9 10");
}

TEST_F(GridClick, TheModifiersOfThePressCount) {
  select({1});
  press(grid, middle(grid, 5), kCommand);
  release(grid, middle(grid, 5), 0);
  EXPECT_EQ(selection(grid), "1 5");
}

TEST_F(GridClick, TheItemOfThePressCounts) {
  press(grid, middle(grid, 5));
  release(grid, middle(grid, 10));
  EXPECT_EQ(selection(grid), "5");
}

TEST_F(GridClick, ThePressAloneSelectsNothing) {
  press(grid, middle(grid, 5));
  EXPECT_EQ(selection(grid), "");
  EXPECT_EQ(journal().count("changed"), 0u);
  release(grid, middle(grid, 5));
  EXPECT_EQ(selection(grid), "5");
}

TEST_F(GridClick, WithoutDelegateMethodsNobodyIsTold) {
  [grid setDelegate:newItems(14)];
  clickItem(5);
  clickItem(10, kShift);
  clickItem(1, kCommand);
  EXPECT_EQ(selection(grid), "1 5 6 9 10");
  EXPECT_THAT(journal().of({"didSelect", "didSelectItems", "clicked", "shouldSelect"}), IsEmpty());
}

TEST_F(GridClick, ADelegateOfSingleItemsHearsEachOfABlock) {
  OvTestItems *single = newItems(14);
  [single has:{"matrixView:didSelectItemIndex:"}];
  [grid setDelegate:single];
  clickItem(5);
  clickItem(10, kShift);
  EXPECT_THAT(journal().of({"didSelect"}),
              ElementsAre("didSelect 6", "didSelect 9", "didSelect 10"));
}

// --- The set of a rubber band --------------------------------------------------------------

class GridBandSet : public GridTest {
 protected:
  void SetUp() override {
    GridTest::SetUp();
    grid = gridInWindow(14, NSMakeSize(260, 260));
  }
  std::string set(NSRange columns, NSRange rows, NSUInteger flags = 0) {
    return text([grid _itemIndexesForMouseDraggedColumns:columns rows:rows mouseDownFlags:flags]);
  }
  OvTestGrid *grid = nil;
};

TEST_F(GridBandSet, RectangularIsTheBlock) {
  EXPECT_EQ(set({1, 2}, {1, 2}), "5 6 9 10");
  EXPECT_EQ(set({1, 3}, {2, 2}), "9 10 11 13") << "the last row holds two";
  EXPECT_EQ(set({0, 0}, {1, 2}), "");
}

TEST_F(GridBandSet, LinearIsTheRangeFromTheFirstToTheLastCell) {
  EXPECT_EQ(set({1, 2}, {1, 2}, kOption), "5 6 7 8 9 10");
  EXPECT_EQ(set({1, 2}, {0, 1}, kOption), "1 2");
  EXPECT_EQ(set({0, 0}, {0, 1}, kOption), "");
  EXPECT_EQ(set({0, 1}, {0, 0}, kOption), "");
  EXPECT_EQ(set({1, 3}, {2, 2}, kOption), "9 10 11 12 13") << "to the last item";
  EXPECT_EQ(set({2, 2}, {3, 1}, kOption), "") << "neither end is an item";
}

TEST_F(GridBandSet, EachDraggingBehaviourIsItsOwn) {
  [grid setMultipleSelectionBehavior:7];
  [grid setAlternateMultipleSelectionBehavior:7];
  EXPECT_EQ(set({1, 2}, {1, 2}), "5 6 9 10");
  EXPECT_EQ(set({1, 2}, {1, 2}, kOption), "5 6 7 8 9 10");
  [grid setMultipleSelectionBehaviorForDragging:1];
  [grid setAlternateMultipleSelectionBehaviorForDragging:0];
  EXPECT_EQ(set({1, 2}, {1, 2}), "5 6 7 8 9 10");
  EXPECT_EQ(set({1, 2}, {1, 2}, kOption), "5 6 9 10");
  [grid setMultipleSelectionBehaviorForDragging:9];
  NSIndexSet *none = [grid _itemIndexesForMouseDraggedColumns:NSMakeRange(1, 2)
                                                         rows:NSMakeRange(1, 2)
                                               mouseDownFlags:0];
  EXPECT_NE(none, nil) << "empty, not missing";
  EXPECT_EQ([none count], 0u);
}

class GridBandCombination : public GridTest {
 protected:
  void SetUp() override {
    GridTest::SetUp();
    grid = gridInWindow(14, NSMakeSize(260, 260));
    [items has:{"matrixView:shouldSelectItemIndex:"}];
    [grid setDelegate:items];
    before = [[[HXMatrixViewSelectionInfo alloc] initWithSelectionIndexes:indexes({1, 5})
                                                      firstSelectionIndex:5
                                                       lastSelectionIndex:1] autorelease];
  }
  HXMatrixViewSelectionInfo *combine(std::initializer_list<NSUInteger> covered, NSUInteger flags) {
    journal().clear();
    return [grid _selectionInfoForMouseDraggedItemIndexes:indexes(covered)
                             selectionInfoBeforeMouseDown:before
                                           mouseDownFlags:flags];
  }
  static std::string state(HXMatrixViewSelectionInfo *info) {
    return text([info selectionIndexes]) + " | " + text([info firstSelectionIndex]) + " " +
           text([info lastSelectionIndex]);
  }
  OvTestGrid *grid = nil;
  HXMatrixViewSelectionInfo *before = nil;
};

TEST_F(GridBandCombination, ShiftAdds) {
  EXPECT_EQ(state(combine({5, 6, 9}, kShift)), "1 5 6 9 | 5 9");
  EXPECT_THAT(journal().of({"shouldSelect"}), ElementsAre("shouldSelect 6", "shouldSelect 9"));
  items->maySelect = [](NSUInteger i) { return i != 6; };
  EXPECT_EQ(state(combine({5, 6, 9}, kShift)), "1 5 9 | 5 9");
  EXPECT_EQ(state(combine({}, kShift)), "1 5 | 5 1");
}

TEST_F(GridBandCombination, CommandToggles) {
  EXPECT_EQ(state(combine({5, 6}, kCommand)), "1 6 | 1 6");
  EXPECT_THAT(journal().of({"shouldSelect"}), ElementsAre("shouldSelect 6"));
  items->maySelect = [](NSUInteger) { return false; };
  EXPECT_EQ(text([combine({5, 6}, kCommand) selectionIndexes]), "1");
}

TEST_F(GridBandCombination, ShiftOutweighsCommandHereToo) {
  EXPECT_EQ(text([combine({5, 6}, kShift | kCommand) selectionIndexes]), "1 5 6");
}

TEST_F(GridBandCombination, OtherwiseTheBandIsTheSelection) {
  EXPECT_EQ(state(combine({5, 6, 9}, 0)), "5 6 9 | 5 9");
  EXPECT_EQ(state(combine({}, 0)), " | none none");
}

TEST_F(GridBandCombination, WhatIsSelectedNowNeedsNoPermission) {
  items->maySelect = [](NSUInteger) { return false; };
  [grid selectItemsWithIndexes:indexes({6})];
  EXPECT_EQ(text([combine({5, 6, 9}, 0) selectionIndexes]), "6")
      << "5 was selected at the press, 6 is now";
}

TEST_F(GridBandCombination, TheRecordsAreNotTouched) {
  HXMatrixViewSelectionInfo *result = combine({5, 6, 9}, kShift);
  EXPECT_NE(result, before);
  EXPECT_NE([result selectionIndexes], [before selectionIndexes]);
  EXPECT_EQ(state(before), "1 5 | 5 1");
  EXPECT_EQ(selection(grid), "");
}

// --- The other grid -------------------------------------------------------------------------

class OtherGrid : public GridTest {
 protected:
  void SetUp() override {
    GridTest::SetUp();
    NSWindow *window = showWindow(NSMakeSize(260, 260));
    items = newItems(14);
    grid = [[[OvTestOvGrid alloc] initWithFrame:NSMakeRect(0, 0, 260, 260)] autorelease];
    [grid setAutoFitHorizentally:NO];
    [grid setDataSource:items];
    [grid setDelegate:items];
    [[window contentView] addSubview:grid];
  }
  OvTestOvGrid *grid = nil;
};

TEST_F(OtherGrid, LinearShiftClicksExtendFromTheLowestItem) {
  [grid setMultipleSelectionBehavior:1];
  [grid selectItemsWithIndexes:indexes({4, 8})];
  click(grid, middle(grid, 6), kShift);
  EXPECT_EQ(selection(grid), "4 5 6");
  [grid selectItemsWithIndexes:indexes({4, 8})];
  click(grid, middle(grid, 2), kShift);
  EXPECT_EQ(selection(grid), "2 3 4 5 6 7 8");
  [grid selectItemsWithIndexes:indexes({4, 8})];
  click(grid, middle(grid, 4), kShift);
  EXPECT_EQ(selection(grid), "4") << "the lowest itself";
  [grid selectItemsWithIndexes:indexes({4})];
  [grid selectItem:8 byExtendingSelection:YES];
  [grid selectItem:6 byExtendingSelection:YES];
  click(grid, middle(grid, 2), kShift);
  EXPECT_EQ(selection(grid), "2 3 4 5 6") << "to the item selected last";
  [grid selectItemsWithIndexes:indexes({4, 8})];
  click(grid, middle(grid, 12), kShift);
  EXPECT_EQ(selection(grid), "4 5 6 7 8 9 10 11 12");
}

TEST_F(OtherGrid, OptionChoosesTheAlternateRule) {
  [grid selectItemsWithIndexes:indexes({4, 8})];
  click(grid, middle(grid, 6), kShift | kOption);
  EXPECT_EQ(selection(grid), "4 5 6");
}

TEST_F(OtherGrid, OtherBehavioursAreAsEver) {
  click(grid, middle(grid, 5));
  click(grid, middle(grid, 10), kShift);
  EXPECT_EQ(selection(grid), "5 6 9 10");
  [grid setMultipleSelectionBehavior:3];
  EXPECT_EQ([grid _itemIndexesForMouseDownItemIndex:3 mouseDownFlags:0], nil);
}

TEST_F(OtherGrid, AShiftBandToggles) {
  HXMatrixViewSelectionInfo *before =
      [[[HXMatrixViewSelectionInfo alloc] initWithSelectionIndexes:indexes({1, 5})] autorelease];
  auto combined = [&](NSUInteger flags) {
    return text([[grid _selectionInfoForMouseDraggedItemIndexes:indexes({5, 6})
                                   selectionInfoBeforeMouseDown:before
                                                 mouseDownFlags:flags] selectionIndexes]);
  };
  EXPECT_EQ(combined(kShift), "1 6");
  EXPECT_EQ(combined(kCommand), "1 6");
  EXPECT_EQ(combined(kShift | kCommand), "1 6");
  EXPECT_EQ(combined(0), "5 6");
}

TEST_F(OtherGrid, AShiftDragTogglesWithTheMouse) {
  [grid setAllowsBeginDragging:NO];
  [grid selectItemsWithIndexes:indexes({1, 5})];
  press(grid, NSMakePoint(66, 66), kShift);
  dragTo(grid, NSMakePoint(150, 80), kShift);
  release(grid, NSMakePoint(150, 80), kShift);
  EXPECT_EQ(selection(grid), "1 6");
}

}  // namespace
