// Outlines: selected items, parents of rows, right clicks and drags.

#import <OvAppKit/NSOutlineView+OvAppKit.h>

#include <algorithm>

#import "LiveTest.h"
#import "TableHost.h"

using namespace ov::test;
using testing::ElementsAre;
using testing::IsEmpty;

/* Levels of any depth, without a data source. */
@interface OvTestLevels : NSOutlineView {
 @public
  std::vector<NSInteger> levels;
}
@end

@implementation OvTestLevels
- (NSInteger)numberOfRows {
  return std::max(static_cast<NSInteger>(levels.size()), [super numberOfRows]);
}
- (id)itemAtRow:(NSInteger)row {
  if (row < 0 || row >= static_cast<NSInteger>(levels.size())) return nil;
  return [NSNumber numberWithInteger:row];
}
- (NSInteger)levelForRow:(NSInteger)row {
  if (row < 0 || row >= static_cast<NSInteger>(levels.size())) return -1;
  return levels.at(row);
}
@end

namespace {

class Outlines : public LiveTest {
 protected:
  void SetUp() override {
    LiveTest::SetUp();
    window = showWindow(NSMakeSize(400, 260));
    host = [[[OvTestTableHost alloc] init] autorelease];
    outline = [[[NSOutlineView alloc] initWithFrame:NSMakeRect(0, 0, 300, 200)] autorelease];
    [outline setAllowsMultipleSelection:YES];
    [outline setAllowsEmptySelection:YES];
    [outline setColumnAutoresizingStyle:NSTableViewNoColumnAutoresizing];
    NSTableColumn *first = column(@"x", 150);
    [outline addTableColumn:first];
    [outline setOutlineTableColumn:first];
    [outline addTableColumn:column(@"y", 50)];
    [outline setDataSource:host];
    [outline setDelegate:host];
    [[window contentView] addSubview:outline];
    [outline reloadData];
    [outline expandItem:[outline itemAtRow:0]];
    [outline expandItem:[outline itemAtRow:2]];
    // a, a1, a2, a2x, a2y, a3, b
    [outline setFrame:NSMakeRect(0, 0, 300, 200)];
    pumpPending();
    host->calls.clear();
  }
  void TearDown() override {
    [outline setDelegate:nil];
    [outline setDataSource:nil];
    LiveTest::TearDown();
  }
  void select(std::initializer_list<NSUInteger> rows) {
    NSMutableIndexSet *set = [NSMutableIndexSet indexSet];
    for (NSUInteger row : rows) [set addIndex:row];
    [outline selectRowIndexes:set byExtendingSelection:NO];
  }
  NSEvent *rightPress(NSPoint point) { return mouseEvent(NSRightMouseDown, outline, point); }

  NSWindow *window = nil;
  NSOutlineView *outline = nil;
  OvTestTableHost *host = nil;
};

TEST_F(Outlines, ASelectedItemTakesTwoRows) {
  ASSERT_EQ([outline numberOfRows], 7);
  select({});
  EXPECT_EQ([outline selectedItem], nil);
  select({3});
  EXPECT_EQ([outline selectedItem], nil);
  select({1, 3});
  EXPECT_NE([outline selectedItem], nil);
  EXPECT_EQ([outline selectedItem], [outline itemAtRow:[outline selectedRow]]);
}

TEST_F(Outlines, SelectedItemsAreInTheOrderOfTheRows) {
  select({});
  EXPECT_TRUE([[outline selectedItems] isEqual:@[]]);
  select({3});
  EXPECT_TRUE([[outline selectedItems] isEqual:@[ @"a2x" ]]);
  select({6, 0, 4});
  NSArray *items = [outline selectedItems];
  NSArray *expected = @[ @"a", @"a2y", @"b" ];
  EXPECT_TRUE([items isEqual:expected]);
  EXPECT_FALSE([items isKindOfClass:[NSMutableArray class]]);
  // It is of its own moment.
  select({1});
  EXPECT_TRUE([items isEqual:expected]);
}

TEST_F(Outlines, RowsWithoutAnItemAreLeftOut) {
  OvTestLevels *odd = [[[OvTestLevels alloc] initWithFrame:NSMakeRect(0, 0, 10, 10)] autorelease];
  [odd addTableColumn:column(@"x", 10)];
  [odd setOutlineTableColumn:[[odd tableColumns] objectAtIndex:0]];
  [odd setAllowsMultipleSelection:YES];
  [odd setDataSource:host];
  [odd reloadData];
  ASSERT_EQ([odd numberOfRows], 2);
  odd->levels = {0};
  [odd selectAll:nil];
  ASSERT_EQ([odd numberOfSelectedRows], 2);
  NSArray *expected = @[ @0 ];
  EXPECT_TRUE([[odd selectedItems] isEqual:expected]);
  [odd setDataSource:nil];
}

TEST_F(Outlines, ParentsAndChildIndexes) {
  struct {
    NSInteger row;
    NSString *parent;
    NSInteger index;
  } const rows[] = {
      {0, nil, 0},   {1, @"a", 0}, {2, @"a", 1}, {3, @"a2", 0},
      {4, @"a2", 1}, {5, @"a", 2},  // the third child, whatever lies between
      {6, nil, 1},   {-1, nil, 0}, {-5, nil, 0}, {NSIntegerMin, nil, 0},
  };
  for (const auto &row : rows) {
    SCOPED_TRACE(row.row);
    NSInteger index = 77;
    id parent = [outline parentItemForRow:row.row childIndex:&index];
    EXPECT_TRUE(parent == row.parent || [parent isEqual:row.parent]);
    EXPECT_EQ(index, row.index);
    EXPECT_EQ([outline parentItemForRow:row.row childIndex:NULL], parent);
  }
}

TEST_F(Outlines, RowsThatAreNotThere) {
  for (NSInteger row : {NSInteger(7), NSInteger(9), NSIntegerMax}) {
    NSInteger index = 77;
    EXPECT_EQ([outline parentItemForRow:row childIndex:&index], nil);
    EXPECT_EQ(index, 0);
  }
  NSOutlineView *bare = [[[NSOutlineView alloc] initWithFrame:NSZeroRect] autorelease];
  NSInteger index = 77;
  EXPECT_EQ([bare parentItemForRow:0 childIndex:&index], nil);
  EXPECT_EQ(index, 0);
  EXPECT_TRUE([[bare selectedItems] isEqual:@[]]);
}

TEST_F(Outlines, ParentsAreThoseOfAPlainSearch) {
  OvTestLevels *tree = [[[OvTestLevels alloc] initWithFrame:NSZeroRect] autorelease];
  Random random;
  SCOPED_TRACE(random.describe());
  for (int round = 0; round < 50; ++round) {
    // Each row is at most one level deeper than the one above.
    tree->levels.assign(1, 0);
    std::vector<NSInteger> parents(1, -1), children(1, 0);
    std::vector<NSInteger> path(1, 0), counts(1, 1);
    for (NSInteger row = 1; row < 60; ++row) {
      const NSInteger depth = static_cast<NSInteger>(path.size());
      const NSInteger level = random.integer(0, depth);
      path.resize(level);
      if (level < depth) {
        counts.resize(level + 1);
      } else {
        counts.push_back(0);
      }
      tree->levels.push_back(level);
      parents.push_back(level == 0 ? -1 : path.back());
      children.push_back(counts.back()++);
      path.push_back(row);
    }
    for (NSInteger row = 0; row < 60; ++row) {
      NSInteger index = -1;
      id parent = [tree parentItemForRow:row childIndex:&index];
      ASSERT_EQ(parent == nil ? -1 : [parent integerValue], parents[row]) << row;
      ASSERT_EQ(index, children[row]) << row;
    }
  }
}

TEST_F(Outlines, ARightClickSelectsTheItemAndShowsTheHostsMenu) {
  host->has = {"outlineView:contextMenuForTableColumn:byItem:", "outlineView:shouldSelectItem:",
               "outlineView:shouldSelectTableColumn:"};
  select({0, 1});
  MenuInterceptor menus;
  rightClick(outline, cellPoint(outline, 4, 1));
  EXPECT_EQ(selectedRows(outline), "4");
  EXPECT_THAT(host->calls, ElementsAre("item a2y", "column y", "menu y a2y"));
  ASSERT_EQ(menus.count(), 1);
  EXPECT_EQ(menus.menu(), host->menu);
  host->calls.clear();
  select({2, 4});
  rightClick(outline, cellPoint(outline, 4, 1));
  EXPECT_EQ(selectedRows(outline), "2 4");
  EXPECT_THAT(host->calls, ElementsAre("menu y a2y"));
  host->calls.clear();
  host->allowsColumn = NO;
  rightClick(outline, cellPoint(outline, 5, 1));
  EXPECT_EQ(selectedRows(outline), "2 4");
  EXPECT_EQ(host->calls.back(), "menu y a3");
  host->allowsColumn = YES;
  host->allowsRow = NO;
  rightClick(outline, cellPoint(outline, 5, 1));
  EXPECT_EQ(selectedRows(outline), "2 4");
  rightClick(outline, NSMakePoint(290, 190));
  EXPECT_EQ(selectedRows(outline), "");
  EXPECT_EQ(host->calls.back(), "menu nil nil");
}

TEST_F(Outlines, TheMethodsOfTablesAreNotAsked) {
  host->has = {
      "tableView:contextMenuForTableColumn:row:", "tableView:shouldSelectRow:",
      "tableView:shouldSelectTableColumn:",       "tableView:draggingSourceOperationMaskForLocal:",
      "tableView:draggedImage:beganAt:",          "tableView:draggedImage:endedAt:operation:",
      "tableView:draggedImage:movedTo:"};
  EXPECT_EQ([outline menuForEvent:rightPress(cellPoint(outline, 4, 1))], nil);
  EXPECT_EQ(selectedRows(outline), "4");
  NSMenu *own = [[[NSMenu alloc] initWithTitle:@"own"] autorelease];
  [outline setMenu:own];
  EXPECT_EQ([outline menuForEvent:rightPress(cellPoint(outline, 4, 1))], own);
  EXPECT_EQ([outline menuForEvent:nil], own);
  EXPECT_EQ([outline draggingSourceOperationMaskForLocal:YES], 16u);
  EXPECT_EQ([outline draggingSourceOperationMaskForLocal:NO], 1u);
  [outline draggedImage:nil beganAt:NSZeroPoint];
  [outline draggedImage:nil movedTo:NSZeroPoint];
  [outline draggedImage:nil endedAt:NSZeroPoint operation:1];
  EXPECT_THAT(host->calls, IsEmpty());
}

TEST_F(Outlines, TheDataSourceAnswersForDrags) {
  host->has = {
      "outlineView:draggingSourceOperationMaskForLocal:", "outlineView:draggedImage:beganAt:",
      "outlineView:draggedImage:endedAt:operation:", "outlineView:draggedImage:movedTo:"};
  EXPECT_EQ([outline draggingSourceOperationMaskForLocal:YES], NSDragOperationLink);
  EXPECT_EQ([outline draggingSourceOperationMaskForLocal:NO], NSDragOperationLink);
  [outline draggedImage:nil beganAt:NSMakePoint(1, 2)];
  [outline draggedImage:nil movedTo:NSMakePoint(3, 4)];
  [outline draggedImage:nil endedAt:NSMakePoint(5, 6) operation:NSDragOperationMove];
  EXPECT_THAT(host->calls, ElementsAre("mask local", "mask foreign", "outline began {x = 1; y = 2}",
                                       "outline moved {x = 3; y = 4}",
                                       "outline ended {x = 5; y = 6} 16", "operation 16"));
}

TEST_F(Outlines, ARealDrag) {
  host->has = {"outlineView:writeItems:toPasteboard:",
               "outlineView:draggedImage:endedAt:operation:"};
  OvTestTrash *place =
      [[[OvTestTrash alloc] initWithFrame:NSMakeRect(310, 0, 80, 200)] autorelease];
  [place registerForDraggedTypes:@[ NSStringPboardType ]];
  place->answer = NSDragOperationMove;
  place->performs = YES;
  [[window contentView] addSubview:place];
  pumpPending();
  select({4});
  const NSPoint from = cellPoint(outline, 4, 1);
  EXPECT_TRUE(
      dragRows(outline, from, {{place, NSMakePoint(30, 90)}, {place, NSMakePoint(40, 90)}}));
  EXPECT_EQ(place->performed, 1);
  EXPECT_EQ(host->calls.back(), "operation 16");
  EXPECT_TRUE(dragRows(outline, from,
                       {{place, NSMakePoint(40, 90)},
                        {outline, NSMakePoint(700, 300)},
                        {outline, NSMakePoint(700, 300)}}));
  EXPECT_EQ(host->calls.back(), "operation 0");
}

TEST_F(Outlines, LeftClicksAreThePlatforms) {
  bringToFront(window);
  post(mouseEvent(NSLeftMouseDown, outline, cellPoint(outline, 3, 1)));
  post(mouseEvent(NSLeftMouseUp, outline, cellPoint(outline, 3, 1)));
  pumpPending();
  EXPECT_EQ(selectedRows(outline), "3");
  [outline collapseItem:[outline itemAtRow:0]];
  EXPECT_EQ([outline numberOfRows], 2);
}

}  // namespace
