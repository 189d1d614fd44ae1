// Editing an item in place with the window's own editor.

#import "GridTest.h"

using namespace ov::test;
using testing::ElementsAre;

@interface OvTestEditingGrid : OvTestGrid {
 @public
  std::vector<std::string> edited;
}
@end

@implementation OvTestEditingGrid
- (void)textDidEndEditing:(NSNotification *)notification {
  ov::test::journal().add("textDidEnd");
  edited.push_back([[[notification object] string] UTF8String]);
  [super textDidEndEditing:notification];
}
@end

namespace {

class GridEditing : public GridTest {
 protected:
  void SetUp() override {
    GridTest::SetUp();
    NSWindow *window = showWindow(NSMakeSize(260, 260));
    items = newItems(14);
    grid = [[[OvTestEditingGrid alloc] initWithFrame:NSMakeRect(0, 0, 260, 260)] autorelease];
    [grid setAutoFitHorizentally:NO];
    OvTestCell *cell = [[[OvTestCell alloc] initTextCell:@""] autorelease];
    [cell setEditable:YES];
    [cell setSelectable:YES];
    [grid setDataCell:cell];
    [grid setDataSource:items];
    [grid setDelegate:items];
    [[window contentView] addSubview:grid];
    pumpPending();
    journal().clear();
  }
  NSText *editor() { return [[grid window] fieldEditor:NO forObject:grid]; }
  bool isEditing() { return [[grid window] firstResponder] == (NSResponder *)editor(); }
  // The editor's clip view must not stay behind: it would cover the cell and swallow clicks.
  size_t leftOver() { return [[grid subviews] count]; }

  void expectEnded() {
    EXPECT_EQ([grid editedItemIndex], (NSUInteger)NSNotFound);
    EXPECT_EQ(leftOver(), 0u);
    EXPECT_FALSE(isEditing());
    EXPECT_GE(grid->edited.size(), 1u);
  }

  OvTestEditingGrid *grid = nil;
};

TEST_F(GridEditing, SetsTheCellUpAndStartsTheEditor) {
  [grid selectItem:5 byExtendingSelection:NO];
  journal().clear();
  [grid editItemAtIndex:5 withEvent:nil select:YES];
  EXPECT_EQ([grid editedItemIndex], 5u);
  Lines steps = journal().of({"highlighted", "value", "value=", "edit"});
  ASSERT_GE(steps.size(), 4u);
  EXPECT_EQ(Lines(steps.begin(), steps.begin() + 4),
            (Lines{"highlighted 1", "value 5", "value= item 5", "edit {65, 65, 64 x 64}"}));
  EXPECT_TRUE(isEditing());
  EXPECT_EQ([editor() delegate], grid);
  EXPECT_STREQ([[editor() string] UTF8String], "item 5");
  EXPECT_EQ([editor() selectedRange], NSMakeRange(0, 6));
  EXPECT_EQ(leftOver(), 1u) << "the editor lives in the grid";
}

TEST_F(GridEditing, AnItemThatIsNotSelectedIsNotHighlighted) {
  [grid editItemAtIndex:5 withEvent:nil select:NO];
  EXPECT_EQ(journal().of({"highlighted"}).front(), "highlighted 0");
  EXPECT_EQ([editor() selectedRange].length, 0u) << "nor is its text selected";
}

TEST_F(GridEditing, ACellThatDrawsDropsIsToldThereIsNone) {
  OvTestDropCell *cell = [[[OvTestDropCell alloc] initTextCell:@""] autorelease];
  [cell setEditable:YES];
  [grid setDataCell:cell];
  [grid setDropOperation:NSDragOperationMove at:5];
  journal().clear();
  [grid editItemAtIndex:5 withEvent:nil select:YES];
  EXPECT_EQ(journal().of({"proposed"}).front(), "proposed 0");
}

TEST_F(GridEditing, EndsWithReturn) {
  [grid editItemAtIndex:5 withEvent:nil select:YES];
  type([grid window], @"new\r");
  expectEnded();
  EXPECT_EQ(grid->edited.front(), "new");
  EXPECT_EQ([[grid window] firstResponder], grid);
}

TEST_F(GridEditing, EndsWithTab) {
  [grid editItemAtIndex:5 withEvent:nil select:YES];
  type([grid window], @"x\t");
  expectEnded();
  EXPECT_EQ(grid->edited.front(), "x");
}

TEST_F(GridEditing, EndsWithAClickOnAnotherItem) {
  [grid editItemAtIndex:5 withEvent:nil select:YES];
  type([grid window], @"x");
  click(grid, middle(grid, 2));
  expectEnded();
  EXPECT_EQ(grid->edited.front(), "x");
  EXPECT_EQ([[grid window] firstResponder], grid);
  EXPECT_EQ(selection(grid), "2") << "and the click counts";
}

TEST_F(GridEditing, EndsWithAClickOnTheSameItemAfterTheEditorIsGone) {
  [grid editItemAtIndex:5 withEvent:nil select:YES];
  type([grid window], @"x\r");
  click(grid, middle(grid, 5));
  EXPECT_EQ(selection(grid), "5") << "nothing covers the cell";
}

TEST_F(GridEditing, EndsWhenAnotherFieldTakesTheKeyboard) {
  NSTextField *field = [[[NSTextField alloc] initWithFrame:NSMakeRect(0, 0, 50, 20)] autorelease];
  [[[grid window] contentView] addSubview:field];
  [grid editItemAtIndex:5 withEvent:nil select:YES];
  [[grid window] makeFirstResponder:field];
  EXPECT_EQ([grid editedItemIndex], (NSUInteger)NSNotFound);
  EXPECT_EQ(leftOver(), 0u);
  EXPECT_NE([field currentEditor], nil) << "the field has the keyboard";
}

TEST_F(GridEditing, EndsWhenTheWindowEndsIt) {
  [grid editItemAtIndex:5 withEvent:nil select:YES];
  [[grid window] endEditingFor:nil];
  expectEnded();
  EXPECT_EQ([[grid window] firstResponder], grid);
}

TEST_F(GridEditing, EndsWhenTheGridTakesTheKeyboard) {
  [grid editItemAtIndex:5 withEvent:nil select:YES];
  [[grid window] makeFirstResponder:grid];
  expectEnded();
  EXPECT_EQ([[grid window] firstResponder], grid);
}

TEST_F(GridEditing, MovesOnToAnotherItem) {
  [grid editItemAtIndex:5 withEvent:nil select:YES];
  type([grid window], @"a");
  [grid editItemAtIndex:6 withEvent:nil select:YES];
  EXPECT_EQ([grid editedItemIndex], 6u);
  EXPECT_TRUE(isEditing());
  EXPECT_STREQ([[editor() string] UTF8String], "item 6");
  EXPECT_EQ(leftOver(), 1u);
  type([grid window], @"b\r");
  expectEnded();
  EXPECT_EQ(grid->edited.back(), "b");
}

TEST_F(GridEditing, ManyTimes) {
  for (NSUInteger i = 0; i < 10; i++) {
    [grid editItemAtIndex:i withEvent:nil select:YES];
    EXPECT_EQ([grid editedItemIndex], i);
    type([grid window], i % 2 ? @"y\r" : @"y\t");
    EXPECT_EQ(leftOver(), 0u);
  }
}

TEST_F(GridEditing, StartsWithTheEventOfADoubleClick) {
  NSEvent *down = mouseEvent(NSLeftMouseDown, grid, middle(grid, 5), 0, 2);
  post(mouseEvent(NSLeftMouseUp, grid, middle(grid, 5), 0, 2));
  [grid editItemAtIndex:5 withEvent:down select:YES];
  EXPECT_TRUE(isEditing());
  EXPECT_EQ([editor() selectedRange], NSMakeRange(0, 6));
}

TEST_F(GridEditing, AGridOutsideAnyWindowOnlyRemembersTheItem) {
  OvTestGrid *loose = makeGrid(5);
  [loose editItemAtIndex:2 withEvent:nil select:YES];
  [loose removeFromSuperview];
  SUCCEED();
}

TEST_F(GridEditing, RemovingTheGridWhileEditing) {
  [grid editItemAtIndex:5 withEvent:nil select:YES];
  NSWindow *window = [grid window];
  [[grid retain] autorelease];
  [grid removeFromSuperview];
  pumpPending();
  EXPECT_NE([window firstResponder], (NSResponder *)grid);
  EXPECT_EQ([grid editedItemIndex], (NSUInteger)NSNotFound);
}

TEST_F(GridEditing, ReloadingWhileEditingSurvives) {
  [grid editItemAtIndex:5 withEvent:nil select:YES];
  items->count = 3;
  [grid reloadData];
  type([grid window], @"x\r");
  expectEnded();
}

// --- Context menus ------------------------------------------------------------------------------

class GridContextMenu : public GridTest {
 protected:
  void SetUp() override {
    GridTest::SetUp();
    grid = gridInWindow(9, NSMakeSize(200, 200), true);
    menu = [[[NSMenu alloc] initWithTitle:@"items"] autorelease];
  }
  NSMenu *menuAt(NSPoint point) {
    journal().clear();
    return [grid menuForEvent:mouseEvent(NSRightMouseDown, grid, point)];
  }
  static constexpr const char *kMenu = "matrixView:contextMenuForCell:atItemIndex:";
  OvTestGrid *grid = nil;
  NSMenu *menu = nil;
};

TEST_F(GridContextMenu, TheDataSourceIsLookedAtAndTheDelegateAsked) {
  OvTestItems *source = newItems(9), *delegate = newItems(9);
  [source has:{kMenu}];
  [delegate has:{kMenu}];
  source->menu = [[[NSMenu alloc] initWithTitle:@"source"] retain];
  delegate->menu = [menu retain];
  [grid setDataSource:source];
  [grid setDelegate:delegate];
  EXPECT_EQ(menuAt(middle(grid, 4)), menu);
  EXPECT_THAT(journal().of({"menu"}), ElementsAre("menu 4"));
  EXPECT_EQ(delegate->view, grid);
  EXPECT_EQ(delegate->cell, [grid dataCell]);
}

TEST_F(GridContextMenu, ADelegateAloneIsNotAsked) {
  OvTestItems *delegate = newItems(9);
  [delegate has:{kMenu}];
  delegate->menu = [menu retain];
  [grid setDelegate:delegate];
  NSMenu *own = [[[NSMenu alloc] initWithTitle:@"own"] autorelease];
  [grid setMenu:own];
  EXPECT_EQ(menuAt(middle(grid, 4)), own) << "the view's";
  EXPECT_EQ(journal().count("menu"), 0u);
}

TEST_F(GridContextMenu, WithoutADelegateThereIsNone) {
  OvTestItems *source = newItems(9);
  [source has:{kMenu}];
  [grid setDataSource:source];
  [grid setDelegate:nil];
  EXPECT_EQ(menuAt(middle(grid, 4)), nil);
}

TEST_F(GridContextMenu, SelectsTheItemUnderIt) {
  [items has:{"matrixView:shouldSelectItemIndex:", "matrixView:didSelectItemIndex:"}];
  [grid setDelegate:items];
  [grid selectItemsWithIndexes:indexes({0, 1})];
  menuAt(middle(grid, 4));
  EXPECT_EQ(selection(grid), "4");
  EXPECT_EQ(journal().count("changed"), 1u);
  EXPECT_EQ(journal().count("didSelect"), 0u);
  items->maySelect = [](NSUInteger i) { return i != 7; };
  menuAt(middle(grid, 7));
  EXPECT_EQ(selection(grid), "4") << "a refused item stays as it is";
}

TEST_F(GridContextMenu, ASelectedItemKeepsTheSelection) {
  [grid selectItemsWithIndexes:indexes({0, 4})];
  menuAt(middle(grid, 4));
  EXPECT_EQ(selection(grid), "0 4");
  EXPECT_EQ(journal().count("changed"), 0u);
}

TEST_F(GridContextMenu, EmptySpaceDeselectsAndAsksForNoItem) {
  [items has:{kMenu}];
  items->menu = [menu retain];
  [grid setDataSource:items];
  [grid setDelegate:items];
  [grid selectItemsWithIndexes:indexes({0, 4})];
  EXPECT_EQ(menuAt(NSMakePoint(64.5, 10)), menu);
  EXPECT_EQ(selection(grid), "");
  EXPECT_THAT(journal().of({"menu"}), ElementsAre("menu none"));
}

TEST_F(GridContextMenu, EmptySpaceKeepsASelectionThatMayNotBeEmpty) {
  [grid selectItemsWithIndexes:indexes({0, 4})];
  [grid setAllowsEmptySelection:NO];
  menuAt(NSMakePoint(64.5, 10));
  EXPECT_EQ(selection(grid), "0 4");
}

TEST_F(GridContextMenu, OpensWithTheRightButton) {
  [items has:{kMenu}];
  items->menu = [menu retain];
  [menu addItemWithTitle:@"open" action:NULL keyEquivalent:@""];
  [grid setDataSource:items];
  [grid setDelegate:items];
  MenuInterceptor interceptor;
  [NSApp sendEvent:mouseEvent(NSRightMouseDown, grid, middle(grid, 4))];
  EXPECT_EQ(interceptor.count(), 1);
  EXPECT_EQ(interceptor.menu(), menu);
  EXPECT_EQ(interceptor.view(), grid);
}

}  // namespace
