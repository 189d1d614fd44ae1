// Rows that are dragged: what the data source is asked and told, and the trash.

#import <OvAppKit/NSTableView+OvAppKit.h>
#import <OvAppKit/OvTableView.h>

#import "LiveTest.h"
#import "TableHost.h"

using namespace ov::test;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

/* Takes drops for a whole window. */
@interface OvTestWindowTrash : NSObject {
 @public
  BOOL performs;
  int performed;
}
@end

@implementation OvTestWindowTrash
- (NSDragOperation)draggingEntered:(id<NSDraggingInfo>)info {
  (void)info;
  return NSDragOperationDelete;
}
- (BOOL)performDragOperation:(id<NSDraggingInfo>)info {
  (void)info;
  ++performed;
  return performs;
}
@end

namespace {

template <class Table>
class DraggedRows : public LiveTest {
 protected:
  void SetUp() override {
    LiveTest::SetUp();
    window = showWindow(NSMakeSize(400, 200));
    host = [[[OvTestTableHost alloc] init] autorelease];
    host->has = {"tableView:writeRowsWithIndexes:toPasteboard:",
                 "tableView:draggedImage:beganAt:",
                 "tableView:draggedImage:movedTo:",
                 "tableView:draggedImage:endedAt:operation:",
                 "tableView:draggingSourceOperationMaskForLocal:",
                 "tableViewDidEndDraggingToTrash:"};
    table = [[[Table alloc] initWithFrame:NSMakeRect(0, 0, 200, 160)] autorelease];
    [table addTableColumn:column(@"x", 200)];
    [table setDataSource:host];
    [table setDelegate:host];
    [[window contentView] addSubview:table];
    [table reloadData];
    [table selectRowIndexes:[NSIndexSet indexSetWithIndex:2] byExtendingSelection:NO];
    trash = [[[OvTestTrash alloc] initWithFrame:NSMakeRect(240, 0, 100, 160)] autorelease];
    [trash registerForDraggedTypes:@[ NSStringPboardType ]];
    trash->answer = NSDragOperationDelete;
    trash->performs = YES;
    [[window contentView] addSubview:trash];
    pumpPending();
    host->calls.clear();
  }
  void TearDown() override {
    [table setDelegate:nil];
    [table setDataSource:nil];
    LiveTest::TearDown();
  }

  DragStop overTrash(CGFloat x = 50) { return {trash, NSMakePoint(x, 80)}; }
  DragStop outside() { return {table, NSMakePoint(600, 300)}; }
  DragStop inWindow() { return {[window contentView], NSMakePoint(370, 190)}; }
  bool drag(const std::vector<DragStop> &stops) {
    return dragRows(table, cellPoint(table, 2, 0), stops);
  }

  NSWindow *window = nil;
  Table *table = nil;
  OvTestTableHost *host = nil;
  OvTestTrash *trash = nil;
};

using TableDrags = DraggedRows<NSTableView>;
using TrashDrags = DraggedRows<OvTableView>;

TEST_F(TableDrags, TheDataSourceSaysWhatMayBeDone) {
  EXPECT_EQ([table draggingSourceOperationMaskForLocal:YES], NSDragOperationLink);
  EXPECT_EQ([table draggingSourceOperationMaskForLocal:NO], NSDragOperationLink);
  EXPECT_THAT(host->calls, ElementsAre("mask local", "mask foreign"));
  host->has.clear();
  [table setDraggingSourceOperationMask:NSDragOperationLink forLocal:YES];
  EXPECT_EQ([table draggingSourceOperationMaskForLocal:YES], 16u);
  EXPECT_EQ([table draggingSourceOperationMaskForLocal:NO], 1u);
  [table setDataSource:nil];
  EXPECT_EQ([table draggingSourceOperationMaskForLocal:YES], 16u);
}

TEST_F(TableDrags, TheDataSourceHearsOfADrag) {
  [table draggedImage:nil beganAt:NSMakePoint(1, 2)];
  [table draggedImage:nil movedTo:NSMakePoint(3, 4)];
  [table draggedImage:nil endedAt:NSMakePoint(5, 6) operation:NSDragOperationLink];
  EXPECT_THAT(host->calls, ElementsAre("began {x = 1; y = 2}", "moved {x = 3; y = 4}",
                                       "ended {x = 5; y = 6} 2", "operation 2"));
  host->calls.clear();
  host->has.clear();
  [table draggedImage:nil beganAt:NSMakePoint(1, 2)];
  [table draggedImage:nil movedTo:NSMakePoint(3, 4)];
  [table draggedImage:nil endedAt:NSMakePoint(5, 6) operation:NSDragOperationLink];
  EXPECT_THAT(host->calls, IsEmpty());
}

TEST_F(TableDrags, ADropIsToldAsItWas) {
  host->mask = NSDragOperationMove;
  trash->answer = NSDragOperationMove;
  EXPECT_TRUE(drag({overTrash(), overTrash(60)}));
  EXPECT_EQ(trash->performed, 1);
  EXPECT_EQ(host->calls.at(0), "write");
  EXPECT_EQ(host->calls.at(1).substr(0, 5), "began");
  EXPECT_EQ(host->calls.at(2), "mask local");
  EXPECT_EQ(host->calls.at(3).substr(0, 5), "moved");
  EXPECT_EQ(host->calls.back(), "operation 16");
}

TEST_F(TableDrags, ADropOnNothingIsNone) {
  host->mask = NSDragOperationMove;
  trash->answer = NSDragOperationMove;
  EXPECT_TRUE(drag({overTrash(), overTrash(60), outside(), outside()}));
  EXPECT_EQ(host->calls.back(), "operation 0");
  EXPECT_EQ(trash->performed, 0);
}

TEST_F(TableDrags, ATableWithoutHelpersIsDraggedAsEver) {
  host->has = {"tableView:writeRowsWithIndexes:toPasteboard:"};
  trash->answer = NSDragOperationMove;
  EXPECT_TRUE(drag({overTrash(), overTrash(60)}));
  EXPECT_EQ(trash->performed, 1);
  EXPECT_THAT(host->calls, ElementsAre("write"));
  EXPECT_EQ(selectedRows(table), "2");
}

TEST_F(TrashDrags, OnlyDeletionIsAllowed) {
  EXPECT_EQ([table draggingSourceOperationMaskForLocal:YES], 32u);
  EXPECT_EQ([table draggingSourceOperationMaskForLocal:NO], 32u);
  EXPECT_THAT(host->calls, IsEmpty());
}

TEST_F(TrashDrags, DeletionIsPosted) {
  NotificationCount posted(OvTableViewDidEndDraggingToTrashNotification, table);
  [table draggedImage:nil endedAt:NSZeroPoint operation:NSDragOperationDelete];
  EXPECT_EQ(posted.count(), 1);
  EXPECT_EQ(posted.lastObject(), table);
  EXPECT_EQ(posted.lastUserInfo(), nil);
  EXPECT_THAT(host->calls, ElementsAre("trash"));
  for (NSDragOperation operation :
       {NSDragOperation(0), NSDragOperation(1), NSDragOperation(16), NSDragOperation(33),
        static_cast<NSDragOperation>(NSDragOperationEvery)}) {
    [table draggedImage:nil endedAt:NSZeroPoint operation:operation];
  }
  EXPECT_EQ(posted.count(), 1);
  // Its value is its name.
  EXPECT_TRUE([OvTableViewDidEndDraggingToTrashNotification
      isEqual:@"OvTableViewDidEndDraggingToTrashNotification"]);
}

TEST_F(TrashDrags, TheDelegateOfTheMomentHears) {
  OvTestTableHost *other = [[[OvTestTableHost alloc] init] autorelease];
  other->has = {"tableViewDidEndDraggingToTrash:"};
  const auto end = [&] {
    [table draggedImage:nil endedAt:NSZeroPoint operation:NSDragOperationDelete];
  };
  [table setDelegate:other];
  end();
  EXPECT_EQ([host countOf:"trash"], 0);
  EXPECT_EQ([other countOf:"trash"], 1);
  // The same one again hears once.
  [table setDelegate:other];
  end();
  EXPECT_EQ([other countOf:"trash"], 2);
  [table setDelegate:nil];
  EXPECT_EQ([table delegate], nil);
  end();
  EXPECT_EQ([other countOf:"trash"], 2);
  // One without the method is a delegate all the same.
  host->has.clear();
  [table setDelegate:host];
  EXPECT_EQ([table delegate], host);
  end();
  EXPECT_EQ([host countOf:"trash"], 0);
}

TEST_F(TrashDrags, AnotherTablesDragsAreNotHeard) {
  OvTableView *other = [[[OvTableView alloc] initWithFrame:NSMakeRect(0, 0, 10, 10)] autorelease];
  [other draggedImage:nil endedAt:NSZeroPoint operation:NSDragOperationDelete];
  EXPECT_EQ([host countOf:"trash"], 0);
}

TEST_F(TrashDrags, TheDelegateIsForgottenWithTheTable) {
  OvTestTableHost *delegate = [[OvTestTableHost alloc] init];
  delegate->has = {"tableViewDidEndDraggingToTrash:"};
  const NSUInteger count = [delegate retainCount];
  OvTableView *brief = [[OvTableView alloc] initWithFrame:NSMakeRect(0, 0, 10, 10)];
  [brief setDelegate:delegate];
  EXPECT_EQ([delegate retainCount], count);
  [brief release];
  // A notification for whatever comes to lie at its address does not reach the delegate.
  [[NSNotificationCenter defaultCenter]
      postNotificationName:OvTableViewDidEndDraggingToTrashNotification
                    object:nil];
  [delegate release];
}

TEST_F(TrashDrags, RowsOnTheTrash) {
  EXPECT_TRUE(drag({overTrash(), overTrash(60)}));
  EXPECT_EQ(trash->performed, 1);
  EXPECT_EQ([host countOf:"trash"], 1);
  // The table's end of the drag is the notification; the data source does not hear of it.
  EXPECT_EQ([host countOf:"operation 32"], 0);
  EXPECT_EQ([host countOf:"mask local"], 0);
}

TEST_F(TrashDrags, RowsOnNothing) {
  EXPECT_TRUE(drag({outside(), outside()}));
  EXPECT_EQ([host countOf:"trash"], 0);
  // The trash has taken them on the way, which the platform remembers.
  EXPECT_TRUE(drag({overTrash(), overTrash(60), outside(), outside()}));
  EXPECT_EQ([host countOf:"trash"], 0);
  EXPECT_EQ(trash->performed, 0);
}

TEST_F(TrashDrags, RowsElsewhereInTheWindow) {
  EXPECT_TRUE(drag({overTrash(), inWindow(), inWindow()}));
  EXPECT_EQ([host countOf:"trash"], 0);
  EXPECT_EQ(trash->performed, 0);
}

TEST_F(TrashDrags, RowsOnAViewThatRefuses) {
  trash->answer = NSDragOperationNone;
  EXPECT_TRUE(drag({overTrash(), overTrash(60)}));
  EXPECT_EQ(trash->performed, 0);
  EXPECT_EQ([host countOf:"trash"], 0);
  trash->answer = NSDragOperationMove;
  EXPECT_TRUE(drag({overTrash(), overTrash(60)}));
  EXPECT_EQ([host countOf:"trash"], 0);
}

TEST_F(TrashDrags, RowsOnATrashThatFails) {
  trash->performs = NO;
  EXPECT_TRUE(drag({overTrash(), overTrash(60)}));
  EXPECT_EQ(trash->performed, 1);
  EXPECT_EQ([host countOf:"trash"], 0);
  // And one that works again is believed again.
  trash->performs = YES;
  EXPECT_TRUE(drag({overTrash(), overTrash(60)}));
  EXPECT_EQ([host countOf:"trash"], 1);
}

TEST_F(TrashDrags, AWindowsDelegateMayBeTheTrash) {
  OvTestWindowTrash *delegate = [[[OvTestWindowTrash alloc] init] autorelease];
  [window registerForDraggedTypes:@[ NSStringPboardType ]];
  [window setDelegate:static_cast<id>(delegate)];
  EXPECT_TRUE(drag({inWindow(), inWindow()}));
  EXPECT_EQ(delegate->performed, 1);
  EXPECT_EQ([host countOf:"trash"], 0);
  delegate->performs = YES;
  EXPECT_TRUE(drag({inWindow(), inWindow()}));
  EXPECT_EQ(delegate->performed, 2);
  EXPECT_EQ([host countOf:"trash"], 1);
  [window setDelegate:nil];
}

TEST_F(TrashDrags, AnUnarchivedTableTellsItsDelegate) {
  for (bool keyed : {true, false}) {
    SCOPED_TRACE(keyed ? "keyed" : "sequential");
    OvTableView *plain = [[[OvTableView alloc] initWithFrame:NSMakeRect(0, 0, 90, 40)] autorelease];
    [plain addTableColumn:column(@"x", 50)];
    NSData *data = keyed ? [NSKeyedArchiver archivedDataWithRootObject:plain]
                         : [NSArchiver archivedDataWithRootObject:plain];
    OvTableView *copy = keyed ? [NSKeyedUnarchiver unarchiveObjectWithData:data]
                              : [NSUnarchiver unarchiveObjectWithData:data];
    ASSERT_TRUE([copy isKindOfClass:[OvTableView class]]);
    EXPECT_EQ([copy numberOfColumns], 1);
    [copy setDelegate:host];
    host->calls.clear();
    [copy draggedImage:nil endedAt:NSZeroPoint operation:NSDragOperationDelete];
    EXPECT_THAT(host->calls, ElementsAre("trash"));
    [copy setDelegate:nil];
  }
}

}  // namespace
