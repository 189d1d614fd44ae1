// A table and an outline with context menus, and rows that are dragged to a trash.

#import <OvAppKit/OvAppKit.h>

#include <algorithm>

#import "shell/GalleryControls.h"
#import "shell/GalleryPage.h"
#import "shell/GallerySettings.h"
#import "shell/GalleryStage.h"
#import "tables/GalleryTable.h"
#import "tables/TrashView.h"

static const CGFloat kTrashHeight = 56;

@interface TablesPage : GalleryPage {
  OvTableView *_table;
  NSOutlineView *_outline;
  TrashView *_trash;
  NSButton *_closed;
  NSButton *_bringBack;
  NSMutableArray *_rows;
  NSMutableDictionary *_tree;  // arrays of names by the names of their groups
  NSArray *_dragged;
}
- (void)layOut:(NSSize)size;
@end

@implementation TablesPage

+ (void)load {
  [GalleryPage addPageClass:self];
}

+ (int)position {
  return 94;
}

+ (NSString *)name {
  return @"tables";
}

+ (NSString *)title {
  return @"Tables";
}

+ (NSString *)summary {
  return @"Context menus in a table and an outline; rows that can be dragged to a trash.";
}

- (void)dealloc {
  if (_view) [static_cast<GalleryStage *>(_view) setLayout:nullptr];
  for (NSTableView *table in [NSArray arrayWithObjects:_table, _outline, nil]) {
    [table setDelegate:nil];
    [table setDataSource:nil];
  }
  [_rows release];
  [_tree release];
  [_dragged release];
  [super dealloc];
}

- (NSView *)makeView {
  GalleryStage *stage = [GalleryStage stageWithLayout:[self](NSSize size) { [self layOut:size]; }];
  _rows = [[NSMutableArray alloc] init];
  _tree = [[NSMutableDictionary alloc] init];
  [self fillRows];
  _table = [[[GalleryTable alloc] initWithFrame:NSMakeRect(0, 0, 100, 100)] autorelease];
  [_table addTableColumn:GalleryTableColumn(@"Town", 240)];
  [_table addTableColumn:GalleryTableColumn(@"Height", 100)];
  _outline = [[[GalleryOutline alloc] initWithFrame:NSMakeRect(0, 0, 100, 100)] autorelease];
  [_outline addTableColumn:GalleryTableColumn(@"Instrument", 240)];
  [_outline setOutlineTableColumn:[[_outline tableColumns] objectAtIndex:0]];
  for (NSTableView *table in @[ _table, _outline ]) {
    [table setDataSource:static_cast<id>(self)];
    [table setDelegate:static_cast<id>(self)];
    [stage addSubview:GalleryTableScrollView(table)];
    [table reloadData];
  }
  _trash = [[[TrashView alloc] initWithFrame:NSZeroRect] autorelease];
  [stage addSubview:_trash];
  [_outline expandItem:[[self childrenOf:nil] objectAtIndex:0]];
  return stage;
}

// The table and the outline side by side, the trash below both.
- (void)layOut:(NSSize)size {
  const CGFloat gap = GalleryLargeMargin;
  const CGFloat width = floor((size.width - 3 * gap) / 2);
  const CGFloat height =
      std::max<CGFloat>(0, size.height - GalleryLargeMargin - 2 * GalleryMargin - kTrashHeight);
  [[_table enclosingScrollView] setFrame:NSMakeRect(gap, GalleryLargeMargin, width, height)];
  [[_outline enclosingScrollView]
      setFrame:NSMakeRect(2 * gap + width, GalleryLargeMargin, width, height)];
  for (NSTableView *table in @[ _table, _outline ]) [table sizeLastColumnToFit];
  [_trash setFrame:NSMakeRect(gap, GalleryLargeMargin + height + GalleryMargin,
                              size.width - 2 * gap, kTrashHeight)];
}

- (void)fillRows {
  [_rows setArray:@[
    @[ @"La Paz", @"3,640 m" ], @[ @"Lhasa", @"3,656 m" ], @[ @"Quito", @"2,850 m" ],
    @[ @"Addis Ababa", @"2,355 m" ], @[ @"Mexico City", @"2,240 m" ], @[ @"Sana'a", @"2,250 m" ],
    @[ @"Nairobi", @"1,795 m" ], @[ @"Denver", @"1,609 m" ]
  ]];
  [_tree setDictionary:@{
    @"Woodwinds" : @[ @"Flute", @"Oboe", @"Clarinet", @"Bassoon" ],
    @"Brass" : @[ @"Horn", @"Trumpet", @"Trombone", @"Tuba" ],
    @"Strings" : @[ @"Violin", @"Viola", @"Cello", @"Double bass" ]
  }];
}

- (NSView *)keyView {
  return _table;
}

- (void)didShow {
  [self setMessage:@"Right-click a row for its menu; select rows, and drag them to the trash."
           warning:NO];
}

- (void)fillSettings:(GallerySettings *)settings {
  [settings addColumn:@"Trash"];
  _closed = [settings addCheckBox:@"The trash is closed"
                               on:NO
                          changed:[self](BOOL on) {
                            [_trash setRefuses:on];
                            [self changed];
                          }];
  _bringBack = [settings addButton:@"Bring all rows back" pressed:[self] { [self bringBack:nil]; }];
}

- (void)bringBack:(id)sender {
  (void)sender;
  [self fillRows];
  [self rowsChanged:@"All rows are back."];
}

- (void)rowsChanged:(NSString *)message {
  for (NSTableView *table in @[ _table, _outline ]) {
    [table deselectAll:nil];
    [table reloadData];
    [[table enclosingScrollView] setNeedsDisplay:YES];
  }
  [self setMessage:message warning:NO];
}

- (void)deleteRows:(NSArray *)rows {
  [_rows removeObjectsInArray:rows];
  const NSUInteger count = [rows count];
  [self rowsChanged:count == 1 ? [[[rows lastObject] objectAtIndex:0]
                                     stringByAppendingString:@" is deleted."]
                               : [NSString stringWithFormat:@"%lu rows are deleted.",
                                                            static_cast<unsigned long>(count)]];
}

- (void)deleteItems:(NSArray *)items {
  for (id item in items) {
    for (id group in [_tree allKeys]) {
      NSMutableArray *names = [[[_tree objectForKey:group] mutableCopy] autorelease];
      [names removeObject:item];
      [_tree setObject:names forKey:group];
    }
    [_tree removeObjectForKey:item];
  }
  [self rowsChanged:[[items componentsJoinedByString:@", "]
                        stringByAppendingString:[items count] == 1 ? @" is deleted."
                                                                   : @" are deleted."]];
}

#pragma mark Context menus

- (NSMenu *)menuTitled:(NSString *)title {
  NSMenu *menu = [[[NSMenu alloc] initWithTitle:@""] autorelease];
  NSMenuItem *head = [[[NSMenuItem alloc] initWithTitle:title
                                                   font:[NSFont boldSystemFontOfSize:12]
                                                 action:NULL
                                          keyEquivalent:@""] autorelease];
  [head setEnabled:NO];
  [menu setAutoenablesItems:NO];
  [menu addItem:head];
  return menu;
}

- (void)addItem:(NSString *)title action:(SEL)action toMenu:(NSMenu *)menu {
  NSMenuItem *item = [[[NSMenuItem alloc] initWithTitle:title
                                            controlSize:NSSmallControlSize
                                                 action:action
                                          keyEquivalent:@""] autorelease];
  [item setTarget:self];
  [menu addItem:item];
}

- (NSMenu *)emptyPlaceMenu {
  NSMenu *menu = [self menuTitled:@"No row"];
  [self addItem:@"Bring all rows back" action:@selector(bringBack:) toMenu:menu];
  return menu;
}

static NSString *nameOrCount(NSArray *names) {
  return [names count] == 1
             ? [names lastObject]
             : [NSString stringWithFormat:@"%lu rows", static_cast<unsigned long>([names count])];
}

- (NSArray *)selectedRows {
  return [_rows objectsAtIndexes:[_table selectedRowIndexes]];
}

- (NSMenu *)tableView:(NSTableView *)table
    contextMenuForTableColumn:(NSTableColumn *)column
                          row:(NSInteger)row {
  (void)table;
  if (row < 0 || !column) return [self emptyPlaceMenu];
  NSMutableArray *names = [NSMutableArray array];
  for (NSArray *selected in [self selectedRows]) [names addObject:[selected objectAtIndex:0]];
  NSMenu *menu = [self menuTitled:nameOrCount(names)];
  [self addItem:@"Move to the top" action:@selector(moveRowsToTop:) toMenu:menu];
  [self addItem:@"Delete" action:@selector(deleteSelectedRows:) toMenu:menu];
  return menu;
}

- (void)moveRowsToTop:(id)sender {
  (void)sender;
  NSArray *rows = [self selectedRows];
  [_rows removeObjectsInArray:rows];
  [_rows replaceObjectsInRange:NSMakeRange(0, 0) withObjectsFromArray:rows];
  [self rowsChanged:[[[rows objectAtIndex:0] objectAtIndex:0]
                        stringByAppendingString:@" is at the top."]];
}

- (void)deleteSelectedRows:(id)sender {
  (void)sender;
  [self deleteRows:[self selectedRows]];
}

- (NSMenu *)outlineView:(NSOutlineView *)outline
    contextMenuForTableColumn:(NSTableColumn *)column
                       byItem:(id)item {
  (void)outline;
  if (!item || !column) return [self emptyPlaceMenu];
  NSMenu *menu = [self menuTitled:nameOrCount([_outline selectedItems])];
  [self addItem:@"Tell its place" action:@selector(tellPlace:) toMenu:menu];
  [self addItem:@"Delete" action:@selector(deleteSelectedItems:) toMenu:menu];
  return menu;
}

- (void)tellPlace:(id)sender {
  (void)sender;
  NSInteger index = 0;
  const NSInteger row = [_outline selectedRow];
  id parent = [_outline parentItemForRow:row childIndex:&index];
  [self setMessage:[NSString stringWithFormat:@"%@ is number %ld of %@.", [_outline itemAtRow:row],
                                              static_cast<long>(index + 1),
                                              parent ?: @"the top level"]
           warning:NO];
}

- (void)deleteSelectedItems:(id)sender {
  (void)sender;
  [self deleteItems:[_outline selectedItems]];
}

#pragma mark The table's data

- (NSInteger)numberOfRowsInTableView:(NSTableView *)table {
  (void)table;
  return static_cast<NSInteger>([_rows count]);
}

- (id)tableView:(NSTableView *)table
    objectValueForTableColumn:(NSTableColumn *)column
                          row:(NSInteger)row {
  (void)table;
  const NSUInteger part = [[column identifier] isEqualToString:@"Town"] ? 0 : 1;
  return [[_rows objectAtIndex:row] objectAtIndex:part];
}

- (BOOL)dragObjects:(NSArray *)objects withPasteboard:(NSPasteboard *)pasteboard {
  [_dragged release];
  _dragged = [objects retain];
  [pasteboard declareTypes:@[ GalleryRowsType ] owner:nil];
  return [pasteboard setString:@"rows" forType:GalleryRowsType];
}

- (BOOL)tableView:(NSTableView *)table
    writeRowsWithIndexes:(NSIndexSet *)indexes
            toPasteboard:(NSPasteboard *)pasteboard {
  (void)table;
  return [self dragObjects:[_rows objectsAtIndexes:indexes] withPasteboard:pasteboard];
}

- (void)tableViewDidEndDraggingToTrash:(NSNotification *)notification {
  (void)notification;
  [self deleteRows:_dragged];
}

- (void)tableViewSelectionDidChange:(NSNotification *)notification {
  (void)notification;
  [self changed];
}

#pragma mark The outline's data

- (NSArray *)childrenOf:(id)item {
  if (!item) return [[_tree allKeys] sortedArrayUsingSelector:@selector(compare:)];
  return [_tree objectForKey:item] ?: @[];
}

- (NSInteger)outlineView:(NSOutlineView *)outline numberOfChildrenOfItem:(id)item {
  (void)outline;
  return static_cast<NSInteger>([[self childrenOf:item] count]);
}

- (BOOL)outlineView:(NSOutlineView *)outline isItemExpandable:(id)item {
  (void)outline;
  return [_tree objectForKey:item] != nil;
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

- (BOOL)outlineView:(NSOutlineView *)outline
         writeItems:(NSArray *)items
       toPasteboard:(NSPasteboard *)pasteboard {
  (void)outline;
  return [self dragObjects:items withPasteboard:pasteboard];
}

- (NSDragOperation)outlineView:(NSOutlineView *)outline
    draggingSourceOperationMaskForLocal:(BOOL)isLocal {
  (void)outline;
  return isLocal ? NSDragOperationDelete : NSDragOperationNone;
}

- (void)outlineView:(NSOutlineView *)outline
       draggedImage:(NSImage *)image
            endedAt:(NSPoint)point
          operation:(NSDragOperation)operation {
  (void)outline, (void)image, (void)point;
  if (operation == NSDragOperationDelete) [self deleteItems:_dragged];
}

- (void)outlineViewSelectionDidChange:(NSNotification *)notification {
  (void)notification;
  [self changed];
}

- (NSArray *)statusLines {
  NSMutableArray *lines = [NSMutableArray array];
  for (NSUInteger i = 0; i < [_rows count]; ++i) {
    NSString *name = [[_rows objectAtIndex:i] objectAtIndex:0];
    [lines addObject:GalleryStatusLine([@"rect.town." stringByAppendingString:name], _table,
                                       [_table rectOfRow:i], @"")];
  }
  NSMutableArray *names = [NSMutableArray array];
  for (NSArray *row in _rows) [names addObject:[row objectAtIndex:0]];
  [lines addObject:[@"towns=" stringByAppendingString:[names componentsJoinedByString:@","]]];
  [names removeAllObjects];
  for (NSArray *row in [self selectedRows]) [names addObject:[row objectAtIndex:0]];
  [lines addObject:[@"chosentowns=" stringByAppendingString:[names componentsJoinedByString:@","]]];
  [names removeAllObjects];
  for (NSInteger i = 0; i < [_outline numberOfRows]; ++i) {
    NSString *name = [_outline itemAtRow:i];
    [names addObject:name];
    [lines addObject:GalleryStatusLine([@"rect.item." stringByAppendingString:name], _outline,
                                       [_outline rectOfRow:i], @"")];
  }
  [lines addObject:[@"instruments=" stringByAppendingString:[names componentsJoinedByString:@","]]];
  [lines
      addObject:[@"choseninstruments=" stringByAppendingString:[[_outline selectedItems]
                                                                   componentsJoinedByString:@","]]];
  for (NSView *view in @[ _trash, _closed, _bringBack ]) {
    NSString *key = view == _trash    ? @"rect.trash"
                    : view == _closed ? @"rect.closed"
                                      : @"rect.bringback";
    [lines addObject:GalleryStatusLine(key, view, [view bounds], @"")];
  }
  [lines addObject:[NSString stringWithFormat:@"isclosed=%d", [_closed state] == NSOnState]];
  NSScrollView *scroll = [_table enclosingScrollView];
  [lines addObject:GalleryStatusLine(@"rect.table", scroll, [scroll bounds], @"")];
  return lines;
}

@end
