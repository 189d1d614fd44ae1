// Tables and outlines with context menus, and rows that are dragged to a trash.

#import <OvAppKit/OvAppKit.h>

#import "shell/GalleryControls.h"
#import "shell/GalleryPage.h"
#import "shell/GallerySettings.h"
#import "shell/GalleryStyle.h"

static NSString *const kRowsType = @"GalleryTableRows";

// Takes rows by deleting them.
@interface TrashView : NSView {
  BOOL _inside;
  BOOL _refuses;
}
- (void)setRefuses:(BOOL)flag;
@end

@implementation TrashView

- (id)initWithFrame:(NSRect)frame {
  self = [super initWithFrame:frame];
  if (self) [self registerForDraggedTypes:@[ kRowsType ]];
  return self;
}

- (void)setRefuses:(BOOL)flag {
  _refuses = flag;
  [self setNeedsDisplay:YES];
}

- (void)setInside:(BOOL)flag {
  _inside = flag;
  [self setNeedsDisplay:YES];
}

- (NSDragOperation)draggingEntered:(id<NSDraggingInfo>)info {
  (void)info;
  if (_refuses) return NSDragOperationNone;
  [self setInside:YES];
  return NSDragOperationDelete;
}

- (NSDragOperation)draggingUpdated:(id<NSDraggingInfo>)info {
  (void)info;
  return _refuses ? NSDragOperationNone : NSDragOperationDelete;
}

- (void)draggingExited:(id<NSDraggingInfo>)info {
  (void)info;
  [self setInside:NO];
}

- (BOOL)performDragOperation:(id<NSDraggingInfo>)info {
  (void)info;
  [self setInside:NO];
  return !_refuses;
}

- (void)drawRect:(NSRect)rect {
  (void)rect;
  const NSRect box = NSInsetRect([self bounds], 1, 1);
  [_inside ? GalleryColor(0xFBE3E1) : GalleryWindowColor() set];
  [GalleryRoundedPath(box, 8) fill];
  [_inside ? GalleryWarningColor() : GalleryLineColor() set];
  [GalleryRoundedPath(box, 8) stroke];
  GalleryDrawText(_refuses ? @"The trash is closed" : @"Drop rows here to delete them", box,
                  GalleryFont(12), GalleryQuietTextColor(), NSCenterTextAlignment);
}

@end

@interface TablesPage : GalleryPage {
  OvFlippedView *_canvas;
  OvTableView *_table;
  NSOutlineView *_outline;
  TrashView *_trash;
  NSMutableArray *_rows;
  NSArray *_dragged;
  NSDictionary *_tree;
}
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
  [_table setDelegate:nil];
  [_table setDataSource:nil];
  [_outline setDelegate:nil];
  [_outline setDataSource:nil];
  [_rows release];
  [_dragged release];
  [_tree release];
  [_canvas release];
  [super dealloc];
}

- (NSScrollView *)scrollViewWithTable:(NSTableView *)table frame:(NSRect)frame {
  NSScrollView *scroll = [[[GalleryScrollView alloc] initWithFrame:frame] autorelease];
  [scroll setHasHorizontalScroller:NO];
  [scroll setBorderType:NSLineBorder];
  [table setBackgroundColor:GalleryPanelColor()];
  [table setDrawsGrid:NO];
  [table setRowHeight:24];
  [scroll setDocumentView:table];
  return scroll;
}

- (NSTableColumn *)columnNamed:(NSString *)name width:(CGFloat)width {
  NSTableColumn *column = [[[NSTableColumn alloc] initWithIdentifier:name] autorelease];
  [[column headerCell] setStringValue:name];
  [column setWidth:width];
  [column setEditable:NO];
  [[column dataCell] setFont:GalleryFont(12)];
  return column;
}

- (NSView *)makeView {
  _rows = [[NSMutableArray alloc] init];
  [self fillRows];
  _tree = [@{
    @"Woodwinds" : @[ @"Flute", @"Oboe", @"Clarinet", @"Bassoon" ],
    @"Brass" : @[ @"Horn", @"Trumpet", @"Trombone", @"Tuba" ],
    @"Strings" : @[ @"Violin", @"Viola", @"Cello", @"Double bass" ]
  } retain];
  _canvas = [[OvFlippedView alloc] initWithFrame:NSMakeRect(0, 0, 942, 420)];
  _table = [[[OvTableView alloc] initWithFrame:NSMakeRect(0, 0, 420, 260)] autorelease];
  [_table addTableColumn:[self columnNamed:@"Town" width:220]];
  [_table addTableColumn:[self columnNamed:@"Height" width:160]];
  [_table setAllowsMultipleSelection:YES];
  [_table setDataSource:self];
  [_table setDelegate:self];
  [_canvas addSubview:[self scrollViewWithTable:_table frame:NSMakeRect(20, 20, 430, 280)]];
  _outline = [[[NSOutlineView alloc] initWithFrame:NSMakeRect(0, 0, 420, 280)] autorelease];
  NSTableColumn *column = [self columnNamed:@"Instrument" width:400];
  [_outline addTableColumn:column];
  [_outline setOutlineTableColumn:column];
  [_outline setAllowsMultipleSelection:YES];
  [_outline setDataSource:self];
  [_outline setDelegate:self];
  [_canvas addSubview:[self scrollViewWithTable:_outline frame:NSMakeRect(480, 20, 430, 370)]];
  _trash = [[[TrashView alloc] initWithFrame:NSMakeRect(20, 316, 430, 74)] autorelease];
  [_canvas addSubview:_trash];
  [_table reloadData];
  [_outline reloadData];
  [_outline expandItem:@"Brass"];
  return _canvas;
}

- (void)fillRows {
  [_rows setArray:@[
    @[ @"La Paz", @"3,640 m" ], @[ @"Lhasa", @"3,656 m" ], @[ @"Quito", @"2,850 m" ],
    @[ @"Addis Ababa", @"2,355 m" ], @[ @"Mexico City", @"2,240 m" ], @[ @"Sana'a", @"2,250 m" ],
    @[ @"Nairobi", @"1,795 m" ], @[ @"Denver", @"1,609 m" ]
  ]];
}

- (NSView *)keyView {
  return _table;
}

- (void)fillSettings:(GallerySettings *)settings {
  [settings addColumn:@"Trash"];
  [settings addCheckBox:@"Closed" on:NO changed:[self](BOOL on) { [_trash setRefuses:on]; }];
  [settings addButton:@"Bring all rows back"
              pressed:[self] {
                [self fillRows];
                [_table reloadData];
                [self changed];
              }];
}

#pragma mark Context menus

- (NSMenu *)menuNamed:(NSString *)title {
  NSMenu *menu = [[[NSMenu alloc] initWithTitle:@""] autorelease];
  NSMenuItem *head = [[[NSMenuItem alloc] initWithTitle:title
                                                   font:GalleryBoldFont(12)
                                                 action:@selector(menuChosen:)
                                          keyEquivalent:@""] autorelease];
  NSMenuItem *small = [[[NSMenuItem alloc] initWithTitle:@"In a small font"
                                             controlSize:NSMiniControlSize
                                                  action:@selector(menuChosen:)
                                           keyEquivalent:@""] autorelease];
  for (NSMenuItem *item in @[ head, small ]) {
    [item setTarget:self];
    [menu addItem:item];
  }
  return menu;
}

- (void)menuChosen:(id)sender {
  [self setMessage:[[sender title] stringByAppendingString:@" chosen."] warning:NO];
}

- (NSMenu *)tableView:(NSTableView *)table
    contextMenuForTableColumn:(NSTableColumn *)column
                          row:(NSInteger)row {
  (void)table, (void)column;
  if (row < 0) return [self menuNamed:@"Nothing under the pointer"];
  return [self menuNamed:[[_rows objectAtIndex:row] objectAtIndex:0]];
}

- (NSMenu *)outlineView:(NSOutlineView *)outline
    contextMenuForTableColumn:(NSTableColumn *)column
                       byItem:(id)item {
  (void)outline, (void)column;
  return [self menuNamed:item ?: @"Nothing under the pointer"];
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

- (BOOL)tableView:(NSTableView *)table
     writeRowsWithIndexes:(NSIndexSet *)indexes
             toPasteboard:(NSPasteboard *)pasteboard {
  (void)table;
  [_dragged release];
  _dragged = [[_rows objectsAtIndexes:indexes] retain];
  [pasteboard declareTypes:@[ kRowsType ] owner:nil];
  return [pasteboard setString:@"rows" forType:kRowsType];
}

- (void)tableViewDidEndDraggingToTrash:(NSNotification *)notification {
  (void)notification;
  [_rows removeObjectsInArray:_dragged];
  [_table deselectAll:nil];
  [_table reloadData];
  [self setMessage:[NSString stringWithFormat:@"%lu rows deleted.",
                                              static_cast<unsigned long>([_dragged count])]
           warning:NO];
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

- (void)outlineViewSelectionDidChange:(NSNotification *)notification {
  (void)notification;
  NSInteger index = 0;
  id parent = [_outline parentItemForRow:[_outline selectedRow] childIndex:&index];
  [self setMessage:[NSString stringWithFormat:@"%lu chosen; the first is child %ld of %@.",
                                              static_cast<unsigned long>(
                                                  [[_outline selectedItems] count]),
                                              static_cast<long>(index), parent ?: @"the top"]
           warning:NO];
}

- (NSArray *)statusLines {
  NSMutableArray *lines = [NSMutableArray array];
  for (NSUInteger i = 0; i < [_rows count]; ++i) {
    NSString *name = [[_rows objectAtIndex:i] objectAtIndex:0];
    [lines addObject:GalleryStatusLine(@"item", _table, [_table rectOfRow:i], name)];
    if ([_table isRowSelected:i]) [lines addObject:[@"selected=" stringByAppendingString:name]];
  }
  [lines addObject:GalleryStatusLine(@"trash", _trash, [_trash bounds], @"")];
  [lines addObject:GalleryStatusLine(@"grid", _canvas, [_canvas bounds], @"")];
  return lines;
}

@end
