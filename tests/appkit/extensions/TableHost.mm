#import "TableHost.h"

#include <functional>
#include <sstream>

#import "Events.h"
#import "RunLoop.h"

static std::string Name(id object) { return [[object description] UTF8String] ?: "nil"; }
static std::string Id(NSTableColumn *column) { return Name([column identifier]); }

@implementation OvTestTableHost

- (id)init {
  self = [super init];
  if (self == nil) return nil;
  rows = 6;
  menu = [[NSMenu alloc] initWithTitle:@"host"];
  allowsRow = allowsColumn = writes = YES;
  mask = NSDragOperationLink;
  values = [[NSMutableArray alloc] init];
  return self;
}

- (void)dealloc {
  [menu release];
  [values release];
  [super dealloc];
}

- (BOOL)respondsToSelector:(SEL)selector {
  static const std::set<std::string> optional = {
      "tableView:contextMenuForTableColumn:row:",
      "tableView:shouldSelectRow:",
      "tableView:shouldSelectTableColumn:",
      "tableView:draggingSourceOperationMaskForLocal:",
      "tableView:draggedImage:beganAt:",
      "tableView:draggedImage:endedAt:operation:",
      "tableView:draggedImage:movedTo:",
      "tableView:writeRowsWithIndexes:toPasteboard:",
      "tableViewDidEndDraggingToTrash:",
      "outlineView:contextMenuForTableColumn:byItem:",
      "outlineView:shouldSelectItem:",
      "outlineView:shouldSelectTableColumn:",
      "outlineView:draggingSourceOperationMaskForLocal:",
      "outlineView:draggedImage:beganAt:",
      "outlineView:draggedImage:endedAt:operation:",
      "outlineView:draggedImage:movedTo:",
      "outlineView:writeItems:toPasteboard:",
  };
  const std::string name = sel_getName(selector);
  if (optional.count(name) > 0 && has.count(name) == 0) return NO;
  return [super respondsToSelector:selector];
}

- (int)countOf:(const std::string &)call {
  int count = 0;
  for (const std::string &each : calls) count += each == call;
  return count;
}

- (void)note:(const std::string &)call {
  calls.push_back(call);
}

#pragma mark Table

- (NSInteger)numberOfRowsInTableView:(NSTableView *)table {
  (void)table;
  return rows;
}

- (id)tableView:(NSTableView *)table
    objectValueForTableColumn:(NSTableColumn *)column
                          row:(NSInteger)row {
  (void)table;
  return [NSString stringWithFormat:@"%@%ld", [column identifier], static_cast<long>(row)];
}

- (void)tableView:(NSTableView *)table
    setObjectValue:(id)value
    forTableColumn:(NSTableColumn *)column
               row:(NSInteger)row {
  (void)table, (void)column;
  [values addObject:[NSString stringWithFormat:@"%@ in %ld", value, static_cast<long>(row)]];
}

- (NSMenu *)tableView:(NSTableView *)table
    contextMenuForTableColumn:(NSTableColumn *)column
                          row:(NSInteger)row {
  (void)table;
  [self note:"menu " + Id(column) + " " + std::to_string(row)];
  return menu;
}

- (BOOL)tableView:(NSTableView *)table shouldSelectRow:(NSInteger)row {
  (void)table;
  [self note:"row " + std::to_string(row)];
  return allowsRow;
}

- (BOOL)tableView:(NSTableView *)table shouldSelectTableColumn:(NSTableColumn *)column {
  (void)table;
  [self note:"column " + Id(column)];
  return allowsColumn;
}

- (NSDragOperation)tableView:(NSTableView *)table
    draggingSourceOperationMaskForLocal:(BOOL)isLocal {
  (void)table;
  [self note:isLocal ? "mask local" : "mask foreign"];
  return mask;
}

- (void)tableView:(NSTableView *)table draggedImage:(NSImage *)image beganAt:(NSPoint)point {
  (void)table, (void)image;
  [self note:"began " + Name(NSStringFromPoint(point))];
}

- (void)tableView:(NSTableView *)table
     draggedImage:(NSImage *)image
          endedAt:(NSPoint)point
        operation:(NSDragOperation)operation {
  (void)table, (void)image;
  [self note:"ended " + Name(NSStringFromPoint(point)) + " " + std::to_string(operation)];
  calls.push_back("operation " + std::to_string(operation));
}

- (void)tableView:(NSTableView *)table draggedImage:(NSImage *)image movedTo:(NSPoint)point {
  (void)table, (void)image;
  [self note:"moved " + Name(NSStringFromPoint(point))];
}

- (BOOL)tableView:(NSTableView *)table
    writeRowsWithIndexes:(NSIndexSet *)indexes
            toPasteboard:(NSPasteboard *)pasteboard {
  (void)table, (void)indexes;
  [self note:"write"];
  [pasteboard declareTypes:@[ NSStringPboardType ] owner:nil];
  return writes && [pasteboard setString:@"rows" forType:NSStringPboardType];
}

- (void)tableViewDidEndDraggingToTrash:(NSNotification *)notification {
  [self note:std::string("trash") + ([notification userInfo] == nil ? "" : " with information")];
}

#pragma mark Outline

- (NSArray *)childrenOf:(id)item {
  if (item == nil) return @[ @"a", @"b" ];
  if ([item isEqual:@"a"]) return @[ @"a1", @"a2", @"a3" ];
  if ([item isEqual:@"a2"]) return @[ @"a2x", @"a2y" ];
  return @[];
}

- (NSInteger)outlineView:(NSOutlineView *)outline numberOfChildrenOfItem:(id)item {
  (void)outline;
  return static_cast<NSInteger>([[self childrenOf:item] count]);
}

- (BOOL)outlineView:(NSOutlineView *)outline isItemExpandable:(id)item {
  (void)outline;
  return [[self childrenOf:item] count] > 0;
}

- (id)outlineView:(NSOutlineView *)outline child:(NSInteger)index ofItem:(id)item {
  (void)outline;
  return [[self childrenOf:item] objectAtIndex:index];
}

- (id)outlineView:(NSOutlineView *)outline
    objectValueForTableColumn:(NSTableColumn *)column
                       byItem:(id)item {
  (void)outline, (void)column;
  return item;
}

- (NSMenu *)outlineView:(NSOutlineView *)outline
    contextMenuForTableColumn:(NSTableColumn *)column
                       byItem:(id)item {
  (void)outline;
  [self note:"menu " + Id(column) + " " + Name(item)];
  return menu;
}

- (BOOL)outlineView:(NSOutlineView *)outline shouldSelectItem:(id)item {
  (void)outline;
  [self note:"item " + Name(item)];
  return allowsRow;
}

- (BOOL)outlineView:(NSOutlineView *)outline shouldSelectTableColumn:(NSTableColumn *)column {
  (void)outline;
  [self note:"column " + Id(column)];
  return allowsColumn;
}

- (NSDragOperation)outlineView:(NSOutlineView *)outline
    draggingSourceOperationMaskForLocal:(BOOL)isLocal {
  (void)outline;
  [self note:isLocal ? "mask local" : "mask foreign"];
  return mask;
}

- (void)outlineView:(NSOutlineView *)outline draggedImage:(NSImage *)image beganAt:(NSPoint)point {
  (void)outline, (void)image;
  [self note:"outline began " + Name(NSStringFromPoint(point))];
}

- (void)outlineView:(NSOutlineView *)outline
       draggedImage:(NSImage *)image
            endedAt:(NSPoint)point
          operation:(NSDragOperation)operation {
  (void)outline, (void)image;
  [self note:"outline ended " + Name(NSStringFromPoint(point)) + " " + std::to_string(operation)];
  calls.push_back("operation " + std::to_string(operation));
}

- (void)outlineView:(NSOutlineView *)outline draggedImage:(NSImage *)image movedTo:(NSPoint)point {
  (void)outline, (void)image;
  [self note:"outline moved " + Name(NSStringFromPoint(point))];
}

- (BOOL)outlineView:(NSOutlineView *)outline
         writeItems:(NSArray *)items
       toPasteboard:(NSPasteboard *)pasteboard {
  (void)outline, (void)items;
  [self note:"write"];
  [pasteboard declareTypes:@[ NSStringPboardType ] owner:nil];
  return [pasteboard setString:@"rows" forType:NSStringPboardType];
}

@end

@implementation OvTestTrash

- (NSDragOperation)draggingEntered:(id<NSDraggingInfo>)info {
  (void)info;
  return answer;
}

- (NSDragOperation)draggingUpdated:(id<NSDraggingInfo>)info {
  (void)info;
  return answer;
}

- (BOOL)performDragOperation:(id<NSDraggingInfo>)info {
  (void)info;
  ++performed;
  return performs;
}

@end

namespace ov::test {

NSTableColumn *column(NSString *identifier, CGFloat width) {
  NSTableColumn *column = [[[NSTableColumn alloc] initWithIdentifier:identifier] autorelease];
  [[column headerCell] setStringValue:identifier];
  [column setWidth:width];
  return column;
}

NSPoint cellPoint(NSTableView *table, NSInteger row, NSInteger column) {
  const NSRect cell = [table frameOfCellAtColumn:column row:row];
  return NSMakePoint(NSMidX(cell), NSMidY(cell));
}

std::string selectedRows(NSTableView *table) {
  std::ostringstream out;
  NSIndexSet *rows = [table selectedRowIndexes];
  for (NSUInteger row = [rows firstIndex]; row != NSNotFound;
       row = [rows indexGreaterThanIndex:row]) {
    out << (out.tellp() > 0 ? " " : "") << row;
  }
  return out.str();
}

bool dragRows(NSTableView *table, NSPoint from, const std::vector<DragStop> &stops) {
  bringToFront([table window]);
  warpPointer(table, from);
  pumpPending();
  std::vector<std::function<void()>> steps;
  steps.push_back(
      [=] { post(mouseEvent(NSLeftMouseDragged, table, NSMakePoint(from.x + 8, from.y))); });
  for (const DragStop &stop : stops) {
    steps.push_back([stop] { warpPointer(stop.view, stop.point); });
  }
  const DragStop last = stops.back();
  steps.push_back([=] { post(mouseEvent(NSLeftMouseUp, last.view, last.point)); });
  const bool done = runWithSteps(steps, [&] { press(table, from); }, 0.1);
  discardPending();
  return done;
}

void rightClick(NSView *view, NSPoint point) {
  bringToFront([view window]);
  post(mouseEvent(NSRightMouseDown, view, point));
  post(mouseEvent(NSRightMouseUp, view, point));
  pumpPending();
}

}  // namespace ov::test
