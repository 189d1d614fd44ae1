// A press, what it remembers, double clicks, rubber bands and the release.

#import "GridTest.h"

using namespace ov::test;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class GridPress : public GridTest {
 protected:
  void SetUp() override {
    GridTest::SetUp();
    grid = gridInWindow(14, NSMakeSize(260, 260), true);  // 4 columns
    [items has:{"matrixView:shouldSelectItemIndex:", "matrixView:didSelectItemIndex:",
                "matrixView:didSelectItemIndexes:", "matrixView:cellClickedAtItemIndex:",
                "matrixView:cellDoubleClickedAtItemIndex:", "matrixView:shouldEditItemIndex:",
                "matrixViewWillStartDragSelection:", "matrixViewDidEndDragSelection:"}];
    [grid setDelegate:items];
    journal().clear();
  }
  OvTestGrid *grid = nil;
};

TEST_F(GridPress, RemembersWhereAndHow) {
  [grid setBand:NSMakeRect(1, 2, 3, 4)];
  press(grid, NSMakePoint(70, 80), kOption);
  GridState s = [grid state];
  EXPECT_EQ([grid mouseDownFlags], kOption);
  EXPECT_EQ([grid mouseDownLocation], NSMakePoint(70, 80));
  EXPECT_EQ(s.mouseDownItemIndex, 5u);
  EXPECT_TRUE(s.mouseDowned);
  EXPECT_FALSE(s.mouseDragged);
  EXPECT_FALSE(s.draggingRefused);
  EXPECT_EQ(s.rubberBandFrame, NSZeroRect);
  EXPECT_EQ(s.rubberBandColumns, NSMakeRange(0, 0));
  EXPECT_EQ(s.rubberBandRows, NSMakeRange(0, 0));
  release(grid, NSMakePoint(70, 80));
  s = [grid state];
  EXPECT_FALSE(s.mouseDowned);
  EXPECT_EQ(s.selectionInfoBeforeMouseDown, nil);
}

TEST_F(GridPress, InAGapIsOnNoItem) {
  press(grid, NSMakePoint(64.5, 10));
  EXPECT_EQ([grid state].mouseDownItemIndex, (NSUInteger)NSNotFound);
  release(grid, NSMakePoint(64.5, 10));
}

TEST_F(GridPress, KeepsACopyOfTheSelection) {
  [grid selectItemsWithIndexes:indexes({1, 2})];
  press(grid, NSMakePoint(70, 80));
  HXMatrixViewSelectionInfo *copy = [grid state].selectionInfoBeforeMouseDown;
  EXPECT_NE(copy, [grid _selectionInfo]);
  EXPECT_EQ(text([copy selectionIndexes]), "1 2");
  EXPECT_EQ([copy firstSelectionIndex], 1u);
  EXPECT_EQ([copy lastSelectionIndex], 2u);
  release(grid, NSMakePoint(70, 80));
}

TEST_F(GridPress, TakesTheKeyboardAndEndsEditingElsewhere) {
  NSTextField *field = [[[NSTextField alloc] initWithFrame:NSMakeRect(0, 0, 50, 20)] autorelease];
  [[[grid window] contentView] addSubview:field];
  [[grid window] makeFirstResponder:field];
  ASSERT_NE([field currentEditor], nil);
  press(grid, NSMakePoint(200, 200));
  EXPECT_EQ([[grid window] firstResponder], grid);
  EXPECT_EQ([field currentEditor], nil);
  release(grid, NSMakePoint(200, 200));
}

TEST_F(GridPress, EndsTheGridsOwnEditing) {
  [grid editItemAtIndex:3 withEvent:nil select:YES];
  ASSERT_EQ([grid editedItemIndex], 3u);
  press(grid, middle(grid, 8));
  EXPECT_EQ([grid editedItemIndex], (NSUInteger)NSNotFound);
  EXPECT_EQ([[grid window] firstResponder], grid);
  release(grid, middle(grid, 8));
}

// --- Double clicks -----------------------------------------------------------------------

TEST_F(GridPress, ADoubleClickOnACellThatIsNotEditableIsTold) {
  for (NSInteger clicks : {1, 2, 3, 4}) {
    journal().clear();
    press(grid, middle(grid, 5), 0, clicks);
    EXPECT_EQ(journal().count("doubleClicked"), clicks % 2 == 0 ? 1u : 0u) << clicks;
    EXPECT_THAT(journal().of({"shouldEdit", "editItem"}), IsEmpty());
    release(grid, middle(grid, 5), 0, clicks);
  }
}

TEST_F(GridPress, ADoubleClickOnNoItemIsNotTold) {
  [[grid dataCell] setEditable:YES];
  press(grid, NSMakePoint(64.5, 10), 0, 2);
  EXPECT_THAT(journal().of({"doubleClicked", "shouldEdit", "editItem"}), IsEmpty());
  release(grid, NSMakePoint(64.5, 10), 0, 2);
}

TEST_F(GridPress, ADoubleClickEditsAnEditableCell) {
  [[grid dataCell] setEditable:YES];
  // The platform's editor runs a loop of its own until the button is up.
  post(mouseEvent(NSLeftMouseUp, grid, middle(grid, 5), 0, 2));
  press(grid, middle(grid, 5), 0, 2);
  EXPECT_THAT(journal().of({"shouldEdit", "editItem", "doubleClicked"}),
              ElementsAre("shouldEdit 5", "editItem 5 select"));
  EXPECT_EQ([grid editedItemIndex], 5u);
  NSText *editor = [[grid window] fieldEditor:NO forObject:grid];
  EXPECT_EQ([editor selectedRange], NSMakeRange(0, 6)) << "item 5";
  EXPECT_EQ([editor delegate], grid);
}

TEST_F(GridPress, ARefusedEditIsADoubleClick) {
  [[grid dataCell] setEditable:YES];
  items->mayEdit = [](NSUInteger) { return false; };
  press(grid, middle(grid, 5), 0, 2);
  EXPECT_THAT(journal().of({"shouldEdit", "editItem", "doubleClicked"}),
              ElementsAre("shouldEdit 5", "doubleClicked 5"));
  release(grid, middle(grid, 5), 0, 2);
}

TEST_F(GridPress, WithoutAVetoAnEditableCellIsEdited) {
  [[grid dataCell] setEditable:YES];
  OvTestItems *quiet = newItems(14);
  [grid setDelegate:quiet];
  post(mouseEvent(NSLeftMouseUp, grid, middle(grid, 5), 0, 2));
  press(grid, middle(grid, 5), 0, 2);
  EXPECT_EQ([grid editedItemIndex], 5u);
}

// --- Rubber bands --------------------------------------------------------------------------

TEST_F(GridPress, ADragSelectsWhatItsBandCovers) {
  press(grid, NSMakePoint(66, 66));
  dragTo(grid, NSMakePoint(140, 140));
  EXPECT_EQ([grid state].rubberBandFrame, NSMakeRect(66, 66, 74, 74));
  EXPECT_EQ([grid state].rubberBandColumns, NSMakeRange(1, 2));
  EXPECT_EQ([grid state].rubberBandRows, NSMakeRange(1, 2));
  EXPECT_TRUE([grid state].mouseDragged);
  EXPECT_EQ(selection(grid), "5 6 9 10");
  EXPECT_THAT(journal().of({"didSelect", "didSelectItems", "changed"}),
              ElementsAre("didSelectItems 5 6 9 10", "changed"));
  release(grid, NSMakePoint(140, 140));
  EXPECT_EQ(selection(grid), "5 6 9 10");
  EXPECT_EQ([grid state].rubberBandFrame, NSZeroRect);
  EXPECT_EQ(journal().count("clicked"), 0u) << "a drag is no click";
}

TEST_F(GridPress, ABandMayBeDrawnInAnyDirection) {
  press(grid, NSMakePoint(140, 140));
  dragTo(grid, NSMakePoint(66, 66));
  EXPECT_EQ([grid state].rubberBandFrame, NSMakeRect(66, 66, 74, 74));
  EXPECT_EQ(selection(grid), "5 6 9 10");
  release(grid, NSMakePoint(66, 66));
}

TEST_F(GridPress, TheDelegateIsToldOfTheFirstStepAndTheEnd) {
  press(grid, NSMakePoint(66, 66));
  EXPECT_FALSE([grid inDragSelection]);
  dragTo(grid, NSMakePoint(80, 80));
  EXPECT_TRUE([grid inDragSelection]);
  EXPECT_EQ([grid state].flags.inDragSelection, 1u);
  dragTo(grid, NSMakePoint(90, 90));
  EXPECT_EQ(journal().count("willStartBand"), 1u);
  EXPECT_EQ(journal().count("didEndBand"), 0u);
  release(grid, NSMakePoint(90, 90));
  EXPECT_EQ(journal().count("didEndBand"), 1u);
  EXPECT_FALSE([grid inDragSelection]);
  EXPECT_EQ(items->view, grid);
}

TEST_F(GridPress, TheNoticesAreSentOnlyToThoseWhoHaveThem) {
  [grid setDelegate:newItems(14)];
  journal().clear();
  [grid willStartDragSelection];
  [grid didEndDragSelection];
  EXPECT_THAT(journal().of({"willStartBand", "didEndBand"}), IsEmpty());
  [grid setDelegate:items];
  [grid willStartDragSelection];
  [grid didEndDragSelection];
  EXPECT_THAT(journal().of({"willStartBand", "didEndBand"}),
              ElementsAre("willStartBand", "didEndBand"));
  EXPECT_FALSE([grid inDragSelection]) << "only the notices";
}

TEST_F(GridPress, StepsThatCoverTheSameCellsAskNothing) {
  press(grid, NSMakePoint(66, 66));
  dragTo(grid, NSMakePoint(80, 80));
  journal().clear();
  dragTo(grid, NSMakePoint(90, 90));
  EXPECT_THAT(journal().of({"shouldSelect", "didSelect", "didSelectItems", "changed"}), IsEmpty());
  EXPECT_EQ([grid state].rubberBandFrame, NSMakeRect(66, 66, 24, 24));
  release(grid, NSMakePoint(90, 90));
}

TEST_F(GridPress, EachStepAnnouncesOnlyWhatIsNew) {
  press(grid, NSMakePoint(66, 66));
  dragTo(grid, NSMakePoint(80, 80));
  journal().clear();
  dragTo(grid, NSMakePoint(140, 80));
  EXPECT_THAT(journal().of({"didSelectItems", "changed"}),
              ElementsAre("didSelectItems 6", "changed"));
  EXPECT_TRUE(journal().has("dirtyItems 6"));
  journal().clear();
  dragTo(grid, NSMakePoint(80, 80));
  EXPECT_THAT(journal().of({"didSelectItems", "changed"}), ElementsAre("changed"));
  EXPECT_TRUE(journal().has("dirtyItems 6"));
  EXPECT_EQ(selection(grid), "5");
  release(grid, NSMakePoint(80, 80));
}

TEST_F(GridPress, DraggingBackUndoesTheBand) {
  [grid selectItemsWithIndexes:indexes({1, 5})];
  for (NSUInteger flags : {kShift, kCommand}) {
    press(grid, NSMakePoint(66, 66), flags);
    dragTo(grid, NSMakePoint(140, 140), flags);
    EXPECT_EQ(selection(grid), flags == kShift ? "1 5 6 9 10" : "1 6 9 10");
    dragTo(grid, NSMakePoint(66, 66), flags);
    EXPECT_EQ(selection(grid), "1 5");
    release(grid, NSMakePoint(66, 66), flags);
    EXPECT_EQ(selection(grid), "1 5");
  }
}

TEST_F(GridPress, TheModifiersOfThePressHoldForTheWholeDrag) {
  [grid selectItemsWithIndexes:indexes({1})];
  press(grid, NSMakePoint(66, 66), kShift);
  dragTo(grid, NSMakePoint(140, 140), 0);
  EXPECT_EQ(selection(grid), "1 5 6 9 10");
  release(grid, NSMakePoint(140, 140), 0);
}

TEST_F(GridPress, OptionDragsLinearly) {
  press(grid, NSMakePoint(66, 66), kOption);
  dragTo(grid, NSMakePoint(140, 140), kOption);
  EXPECT_EQ(selection(grid), "5 6 7 8 9 10");
  release(grid, NSMakePoint(140, 140), kOption);
}

TEST_F(GridPress, RefusedItemsStayOut) {
  items->maySelect = [](NSUInteger i) { return i != 6; };
  press(grid, NSMakePoint(66, 66));
  dragTo(grid, NSMakePoint(140, 140));
  EXPECT_EQ(selection(grid), "5 9 10");
  release(grid, NSMakePoint(140, 140));
}

TEST_F(GridPress, EachStepDisplaysBeforeItAnnounces) {
  press(grid, NSMakePoint(66, 66));
  journal().clear();
  dragTo(grid, NSMakePoint(80, 80));
  Lines steps = journal().of({"autoscroll", "didSelectItems", "display", "changed"});
  EXPECT_THAT(steps, ElementsAre("autoscroll", "didSelectItems 5", "display", "changed"));
  release(grid, NSMakePoint(80, 80));
}

TEST_F(GridPress, AnAppearingBandIsMarkedWhole) {
  press(grid, NSMakePoint(200, 200));
  journal().clear();
  dragTo(grid, NSMakePoint(230, 220));
  EXPECT_THAT(journal().of({"dirty"}), testing::Contains("dirty {200, 200, 30 x 20}"));
  release(grid, NSMakePoint(230, 220));
}

TEST_F(GridPress, AMovingBandMarksAStripPerEdge) {
  press(grid, NSMakePoint(200, 200));
  dragTo(grid, NSMakePoint(230, 220));
  journal().clear();
  dragTo(grid, NSMakePoint(240, 220));
  EXPECT_THAT(journal().of({"dirty"}), ElementsAre("dirty {229, 199, 12 x 22}"));
  journal().clear();
  dragTo(grid, NSMakePoint(240, 250));
  EXPECT_THAT(journal().of({"dirty"}), ElementsAre("dirty {199, 219, 42 x 32}"));
  journal().clear();
  dragTo(grid, NSMakePoint(240, 250));
  EXPECT_THAT(journal().of({"dirty"}), IsEmpty());
  dragTo(grid, NSMakePoint(200, 200));
  EXPECT_THAT(journal().of({"dirty"}), ElementsAre("dirty {200, 200, 40 x 50}"))
      << "one that disappears is marked whole";
  release(grid, NSMakePoint(200, 200));
}

TEST_F(GridPress, TheReleaseErasesTheBand) {
  press(grid, NSMakePoint(200, 200));
  dragTo(grid, NSMakePoint(230, 220));
  journal().clear();
  release(grid, NSMakePoint(230, 220));
  EXPECT_THAT(journal().of({"dirty"}), ElementsAre("dirty {200, 200, 30 x 20}"));
  EXPECT_EQ([grid state].rubberBandFrame, NSZeroRect);
  EXPECT_FALSE([grid state].mouseDragged);
}

TEST_F(GridPress, TheBandLeavesNoPixelBehind) {
  [grid setBackgroundColor:[NSColor blueColor]];
  [grid display];
  Picture before = pictureOf(grid);
  press(grid, NSMakePoint(200, 200));
  for (NSPoint p : {NSMakePoint(250, 250), NSMakePoint(150, 255), NSMakePoint(120, 120),
                    NSMakePoint(220, 150), NSMakePoint(204, 203)}) {
    dragTo(grid, p);
  }
  release(grid, NSMakePoint(204, 203));
  [grid displayIfNeeded];
  [grid lockFocus];
  NSBitmapImageRep *rep = [[NSBitmapImageRep alloc] initWithFocusedViewRect:[grid bounds]];
  [grid unlockFocus];
  Picture after(rep);
  [rep release];
  NSRect all = NSMakeRect(0, 0, after.width(), after.height());
  EXPECT_EQ(after.count(all, kBlue), before.count(all, kBlue));
}

TEST_F(GridPress, ADragWithoutAPressDoesNothing) {
  [grid mouseDragged:mouseEvent(NSLeftMouseDragged, grid, NSMakePoint(140, 140))];
  EXPECT_EQ(selection(grid), "");
  EXPECT_FALSE([grid inDragSelection]);
  EXPECT_EQ(journal().count("willStartBand"), 0u);
  EXPECT_EQ(journal().count("autoscroll"), 0u);
  [grid mouseUp:mouseEvent(NSLeftMouseUp, grid, NSMakePoint(140, 140))];
}

TEST_F(GridPress, AReleaseWithoutAPressIsNoClick) {
  [grid mouseUp:mouseEvent(NSLeftMouseUp, grid, middle(grid, 5))];
  EXPECT_EQ(selection(grid), "");
  EXPECT_EQ(journal().count("clicked"), 0u);
}

// --- The band in a scroll view ----------------------------------------------------------------

class GridBandInScrollView : public GridTest {};

TEST_F(GridBandInScrollView, IsClampedToTheVisiblePart) {
  OvTestGrid *grid = gridInScrollView(60, NSMakeSize(220, 200), true);
  [grid scrollPoint:NSMakePoint(0, 100)];
  NSRect visible = [[grid enclosingScrollView] documentVisibleRect];
  auto band = [&](CGFloat x, CGFloat y) {
    return [grid _rubberBandRectWithMouseDownPoint:NSMakePoint(50, 150)
                                 mouseDraggedPoint:NSMakePoint(x, y)];
  };
  EXPECT_EQ(band(80, 190), NSMakeRect(50, 150, 30, 40));
  EXPECT_EQ(band(20, 130), NSMakeRect(20, 130, 30, 20));
  EXPECT_EQ(band(80, 5000), NSMakeRect(50, 150, 30, NSMaxY(visible) - 150));
  EXPECT_EQ(band(80, 0), NSMakeRect(50, 100, 30, 50));
  EXPECT_EQ(band(-40, 190), NSMakeRect(0, 150, 50, 40));
  EXPECT_EQ(band(5000, 5000), NSMakeRect(50, 150, NSMaxX(visible) - 50, NSMaxY(visible) - 150));
}

TEST_F(GridBandInScrollView, IsNotClampedWithoutOne) {
  OvTestGrid *grid = gridInWindow(60);
  EXPECT_EQ([grid _rubberBandRectWithMouseDownPoint:NSMakePoint(50, 50)
                                  mouseDraggedPoint:NSMakePoint(-100, 5000)],
            NSMakeRect(-100, 50, 150, 4950));
}

TEST_F(GridBandInScrollView, ScrollsWhileThePointerRestsOutside) {
  OvTestGrid *grid = gridInScrollView(60, NSMakeSize(220, 200), true);
  NSScrollView *scroll = [grid enclosingScrollView];
  press(grid, NSMakePoint(10, 10));
  NSRect visible = [scroll documentVisibleRect];
  dragTo(grid, NSMakePoint(100, NSMaxY(visible) + 20));
  // No further event comes from the mouse; the shared manager repeats this one.
  CGFloat bottom = NSMaxY([grid bounds]);
  EXPECT_TRUE(pumpUntil([&] { return NSMaxY([scroll documentVisibleRect]) == bottom; }));
  EXPECT_TRUE(pumpUntil([&] { return [grid numberOfSelectedItems] >= 38; }))
      << [grid numberOfSelectedItems];
  EXPECT_TRUE([grid isItemSelected:57]) << "the last row";
  EXPECT_FALSE([grid isItemSelected:59]) << "the third column";
  EXPECT_TRUE([[[HXAutoScrollManager sharedManager] valueForKey:@"timer"] isValid]);
  release(grid, NSMakePoint(100, 100));
  EXPECT_EQ([[HXAutoScrollManager sharedManager] valueForKey:@"timer"], nil);
  EXPECT_EQ([[HXAutoScrollManager sharedManager] valueForKey:@"event"], nil);
}

}  // namespace
