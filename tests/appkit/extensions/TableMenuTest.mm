// Right clicks in tables, and columns by their index.

#import <OvAppKit/NSTableView+OvAppKit.h>

#import "LiveTest.h"
#import "TableHost.h"

using namespace ov::test;
using testing::ElementsAre;
using testing::IsEmpty;

/* Answers which events came through to it. */
@interface OvTestRightClickView : NSView {
 @public
  int rightClicks;
}
@end

@implementation OvTestRightClickView
- (void)rightMouseDown:(NSEvent *)event {
  (void)event;
  ++rightClicks;
}
@end

namespace {

class TableMenus : public LiveTest {
 protected:
  void SetUp() override {
    LiveTest::SetUp();
    window = showWindow(NSMakeSize(400, 260));
    host = [[[OvTestTableHost alloc] init] autorelease];
    table = [[[NSTableView alloc] initWithFrame:NSMakeRect(0, 0, 300, 200)] autorelease];
    [table setAllowsMultipleSelection:YES];
    [table setAllowsEmptySelection:YES];
    [table setColumnAutoresizingStyle:NSTableViewNoColumnAutoresizing];
    [table addTableColumn:column(@"x", 100)];
    [table addTableColumn:column(@"y", 100)];
    [table setDataSource:host];
    [table setDelegate:host];
    area = [[[OvTestRightClickView alloc] initWithFrame:NSMakeRect(0, 0, 400, 260)] autorelease];
    [[window contentView] addSubview:area];
    [area addSubview:table];
    [table reloadData];
    [table setFrame:NSMakeRect(0, 0, 300, 200)];
    pumpPending();
    host->calls.clear();
  }
  void TearDown() override {
    [table setDelegate:nil];
    [table setDataSource:nil];
    LiveTest::TearDown();
  }
  void select(std::initializer_list<NSUInteger> rows) {
    NSMutableIndexSet *set = [NSMutableIndexSet indexSet];
    for (NSUInteger row : rows) [set addIndex:row];
    [table selectRowIndexes:set byExtendingSelection:NO];
  }
  void askAll() {
    host->has = {"tableView:contextMenuForTableColumn:row:", "tableView:shouldSelectRow:",
                 "tableView:shouldSelectTableColumn:"};
  }
  NSEvent *rightPress(NSPoint point) { return mouseEvent(NSRightMouseDown, table, point); }

  NSWindow *window = nil;
  OvTestRightClickView *area = nil;
  NSTableView *table = nil;
  OvTestTableHost *host = nil;
};

TEST_F(TableMenus, ColumnsByTheirIndex) {
  EXPECT_TRUE([[[table tableColumnAtColumn:0] identifier] isEqual:@"x"]);
  EXPECT_TRUE([[[table tableColumnAtColumn:1] identifier] isEqual:@"y"]);
  for (NSInteger index : {NSInteger(-1), NSInteger(2), NSInteger(NSNotFound), NSIntegerMin}) {
    EXPECT_EQ([table tableColumnAtColumn:index], nil) << index;
  }
  [table moveColumn:0 toColumn:1];
  EXPECT_TRUE([[[table tableColumnAtColumn:0] identifier] isEqual:@"y"]);
  EXPECT_EQ([[[[NSTableView alloc] initWithFrame:NSZeroRect] autorelease] tableColumnAtColumn:0],
            nil);
}

TEST_F(TableMenus, ARightClickSelectsTheRowAndShowsTheHostsMenu) {
  askAll();
  select({0, 1});
  MenuInterceptor menus;
  rightClick(table, cellPoint(table, 3, 1));
  EXPECT_EQ(selectedRows(table), "3");
  EXPECT_THAT(host->calls, ElementsAre("row 3", "column y", "menu y 3"));
  ASSERT_EQ(menus.count(), 1);
  EXPECT_EQ(menus.menu(), host->menu);
  EXPECT_EQ(menus.view(), table);
}

TEST_F(TableMenus, ASelectedRowKeepsTheWholeSelection) {
  askAll();
  select({1, 3, 4});
  MenuInterceptor menus;
  rightClick(table, cellPoint(table, 3, 0));
  EXPECT_EQ(selectedRows(table), "1 3 4");
  EXPECT_THAT(host->calls, ElementsAre("menu x 3"));
  EXPECT_EQ(menus.count(), 1);
}

TEST_F(TableMenus, ARefusedRowOrColumnLeavesTheSelectionAndTheMenu) {
  askAll();
  select({0});
  for (bool row : {true, false}) {
    host->allowsRow = !row;
    host->allowsColumn = row;
    host->calls.clear();
    EXPECT_EQ([table menuForEvent:rightPress(cellPoint(table, 2, 1))], host -> menu);
    EXPECT_EQ(selectedRows(table), "0");
    EXPECT_EQ(host->calls.front(), "row 2");
    EXPECT_EQ(host->calls.back(), "menu y 2");
    if (!row) {
      EXPECT_THAT(host->calls, ElementsAre("row 2", "column y", "menu y 2"));
    }
  }
}

TEST_F(TableMenus, EachQuestionIsOptional) {
  struct {
    const char *method;
    bool selects;
  } const rows[] = {{"tableView:shouldSelectRow:", false},
                    {"tableView:shouldSelectTableColumn:", false},
                    {"", true}};
  host->allowsRow = host->allowsColumn = NO;
  for (const auto &row : rows) {
    SCOPED_TRACE(row.method);
    host->has = {row.method};
    select({0});
    EXPECT_EQ([table menuForEvent:rightPress(cellPoint(table, 2, 0))], nil);
    EXPECT_EQ(selectedRows(table), row.selects ? "2" : "0");
  }
}

TEST_F(TableMenus, NothingUnderThePointerClearsTheSelection) {
  askAll();
  struct {
    const char *name;
    NSPoint point;
    const char *call;
  } const places[] = {{"below the last row", NSMakePoint(50, 190), "menu x -1"},
                      {"beside the last column", NSMakePoint(290, 8), "menu nil 0"},
                      {"beside both", NSMakePoint(290, 190), "menu nil -1"}};
  for (const auto &place : places) {
    SCOPED_TRACE(place.name);
    select({1, 2});
    host->calls.clear();
    EXPECT_EQ([table menuForEvent:rightPress(place.point)], host -> menu);
    EXPECT_EQ(selectedRows(table), "");
    EXPECT_THAT(host->calls, ElementsAre(place.call));
  }
}

TEST_F(TableMenus, WithoutAHostsMenuItIsThatOfTheView) {
  MenuInterceptor menus;
  rightClick(table, cellPoint(table, 3, 0));
  EXPECT_EQ(menus.count(), 0);
  // A click without a menu goes on to the next responder, as ever.
  EXPECT_EQ(area->rightClicks, 1);
  EXPECT_EQ(selectedRows(table), "3");

  NSMenu *own = [[[NSMenu alloc] initWithTitle:@"own"] autorelease];
  [table setMenu:own];
  rightClick(table, cellPoint(table, 4, 0));
  ASSERT_EQ(menus.count(), 1);
  EXPECT_EQ(menus.menu(), own);
  EXPECT_EQ(area->rightClicks, 1);

  // A host that answers no menu has the last word.
  host->has = {"tableView:contextMenuForTableColumn:row:"};
  [host->menu release];
  host->menu = nil;
  EXPECT_EQ([table menuForEvent:rightPress(cellPoint(table, 4, 0))], nil);
}

TEST_F(TableMenus, TablesWithNothingInThem) {
  host->has = {"tableView:contextMenuForTableColumn:row:"};
  host->rows = 0;
  [table reloadData];
  EXPECT_EQ([table menuForEvent:rightPress(NSMakePoint(5, 5))], host -> menu);
  EXPECT_EQ(host->calls.back(), "menu nil -1");
  NSTableView *bare = [[[NSTableView alloc] initWithFrame:NSMakeRect(0, 0, 50, 50)] autorelease];
  EXPECT_EQ([bare menuForEvent:rightPress(NSMakePoint(5, 5))], nil);
  [bare setDataSource:host];
  EXPECT_EQ([bare menuForEvent:rightPress(NSMakePoint(5, 5))], host -> menu);
  // The platform looks at the first column of a table that loses its data source.
  [bare addTableColumn:column(@"x", 10)];
  [bare setDataSource:nil];
}

TEST_F(TableMenus, NoEventIsNoClick) {
  askAll();
  select({1});
  NSMenu *own = [[[NSMenu alloc] initWithTitle:@"own"] autorelease];
  [table setMenu:own];
  EXPECT_EQ([table menuForEvent:nil], own);
  EXPECT_EQ(selectedRows(table), "1");
  EXPECT_THAT(host->calls, IsEmpty());
}

TEST_F(TableMenus, ASelectionThatMustNotBeEmptyStays) {
  [table setAllowsEmptySelection:NO];
  select({2});
  [table menuForEvent:rightPress(NSMakePoint(290, 190))];
  EXPECT_EQ(selectedRows(table), "2");
}

TEST_F(TableMenus, LeftClicksAreThePlatforms) {
  const auto leftClick = [&](NSPoint point, NSUInteger flags) {
    post(mouseEvent(NSLeftMouseDown, table, point, flags));
    post(mouseEvent(NSLeftMouseUp, table, point, flags));
    pumpPending();
  };
  bringToFront(window);
  leftClick(cellPoint(table, 1, 0), 0);
  EXPECT_EQ(selectedRows(table), "1");
  leftClick(cellPoint(table, 3, 1), NSShiftKeyMask);
  EXPECT_EQ(selectedRows(table), "1 3");
  leftClick(cellPoint(table, 5, 1), 0);
  EXPECT_EQ(selectedRows(table), "5");
  EXPECT_THAT(host->calls, IsEmpty());
}

TEST_F(TableMenus, CellsAreEditedAsEver) {
  bringToFront(window);
  select({2});
  [table editColumn:0 row:2 withEvent:nil select:YES];
  ASSERT_TRUE([[window firstResponder] isKindOfClass:[NSTextView class]]);
  type(window, @"new\r");
  EXPECT_TRUE(pumpUntil([&] { return [host->values count] > 0; }));
  EXPECT_TRUE([[host->values objectAtIndex:0] isEqual:@"new in 2"]);
}

}  // namespace
