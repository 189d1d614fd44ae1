#import "shell/GalleryWindow.h"

#import "shell/GalleryControls.h"
#import "shell/GalleryPage.h"
#import "shell/GalleryPageList.h"
#import "shell/GallerySettings.h"
#import "shell/GalleryStyle.h"

static const CGFloat kSidebarWidth = 196;
static const CGFloat kProgressWidth = 160;

// Tells its owner to lay out when its size changes, in whichever way that came about.
@interface GalleryRootView : GalleryBox {
 @public
  GalleryWindow *_owner;
}
@end

@interface GalleryWindow ()
- (void)layOut;
@end

@implementation GalleryRootView

- (void)resizeSubviewsWithOldSize:(NSSize)oldSize {
  (void)oldSize;
  [_owner layOut];
}

@end

@implementation GalleryWindow

- (id)initWithPages:(NSArray *)pages {
  self = [super init];
  if (!self) return nil;
  _pages = [pages retain];
  _window = [[NSWindow alloc] initWithContentRect:NSMakeRect(100, 100, 1180, 780)
                                        styleMask:NSTitledWindowMask | NSClosableWindowMask |
                                                  NSMiniaturizableWindowMask | NSResizableWindowMask
                                          backing:NSBackingStoreBuffered
                                            defer:NO];
  [_window setReleasedWhenClosed:NO];
  [_window setTitle:@"Gallery"];
  [_window setMinSize:NSMakeSize(1180, 560)];
  [_window setBackgroundColor:GalleryWindowColor()];
  [self makeViews];
  [_window center];
  [[NSNotificationCenter defaultCenter] addObserver:self
                                           selector:@selector(pageDidChange:)
                                               name:GalleryPageDidChangeNotification
                                             object:nil];
  return self;
}

- (void)dealloc {
  [[NSNotificationCenter defaultCenter] removeObserver:self];
  [_list setDataSource:nil];
  [_list setDelegate:nil];
  static_cast<GalleryRootView *>(_root)->_owner = nil;
  [_pages release];
  [_window release];
  [super dealloc];
}

- (void)makeViews {
  GalleryRootView *root =
      static_cast<GalleryRootView *>([GalleryRootView boxWithFill:GalleryWindowColor() border:nil]);
  [root setFrame:[[_window contentView] frame]];
  root->_owner = self;
  _root = root;

  _sidebar = [GalleryBox boxWithFill:GallerySidebarColor() border:nil];
  _brand = GalleryLabel(@"OvAppKit", GalleryBoldFont(15), GalleryTextColor());
  _list = GalleryMakePageList();
  [_list setDataSource:self];
  [_list setDelegate:self];
  [_sidebar addSubview:_brand];
  [_sidebar addSubview:_list];

  _title = GalleryLabel(@" ", GalleryBoldFont(18), GalleryTextColor());
  _summary = GalleryLabel(@" ", GalleryFont(12), GalleryQuietTextColor());
  _frame = [GalleryBox boxWithFill:GalleryPanelColor() border:GalleryLineColor()];
  _message = GalleryLabel(@" ", GalleryFont(11), GalleryQuietTextColor());
  _progress = [[[GalleryProgressBar alloc] initWithFrame:NSZeroRect] autorelease];
  for (NSView *view in @[ _sidebar, _title, _summary, _frame, _message, _progress ]) {
    [root addSubview:view];
  }
  [_window setContentView:root];
  [_list reloadData];
}

- (void)layOut {
  const NSSize size = [_root bounds].size;
  [_sidebar setFrame:NSMakeRect(0, 0, kSidebarWidth, size.height)];
  [_brand setFrameOrigin:NSMakePoint(GalleryLargeMargin, GalleryLargeMargin)];
  [_list setFrame:NSMakeRect(GalleryMargin, 56, kSidebarWidth - 2 * GalleryMargin,
                             MAX(0, size.height - 56 - GalleryMargin))];
  [[[_list tableColumns] lastObject] setWidth:kSidebarWidth - 2 * GalleryMargin];

  const CGFloat x = kSidebarWidth + GalleryLargeMargin;
  const CGFloat width = MAX(0, size.width - x - GalleryLargeMargin);
  [_title setFrame:NSMakeRect(x, GalleryLargeMargin - 4, width, 26)];
  [_summary setFrame:NSMakeRect(x, 43, width, 18)];

  const BOOL hasSettings = [[[_page settings] subviews] count] > 0;
  const CGFloat settingsHeight = hasSettings ? [GallerySettings height] : 0;
  const CGFloat settingsY = size.height - GalleryLargeMargin - settingsHeight;
  [[_page settings] setFrame:NSMakeRect(x, settingsY, width, settingsHeight)];
  const CGFloat messageY = settingsY - (hasSettings ? GalleryMargin : 0) - 18;
  [_message setFrame:NSMakeRect(x, messageY, MAX(0, width - kProgressWidth), 18)];
  [_progress setFrame:NSMakeRect(x + width - kProgressWidth, messageY + 6, kProgressWidth, 6)];
  [_frame setFrame:NSMakeRect(x, 72, width, MAX(2, messageY - GallerySmallMargin - 72))];
  [[_page view] setFrame:NSInsetRect([_frame bounds], 1, 1)];
}

- (NSWindow *)window {
  return _window;
}

- (NSArray *)pages {
  return _pages;
}

- (GalleryPage *)page {
  return _page;
}

- (void)showPageNamed:(NSString *)name {
  for (GalleryPage *page in _pages) {
    if ([[[page class] name] caseInsensitiveCompare:name] == NSOrderedSame ||
        [[[page class] title] caseInsensitiveCompare:name] == NSOrderedSame) {
      [self showPage:page];
      return;
    }
  }
  if ([name length] > 0) NSLog(@"There is no page named \"%@\".", name);
  if ([_pages count] > 0) [self showPage:[_pages objectAtIndex:0]];
}

- (void)showPage:(GalleryPage *)page {
  if (page == _page) return;
  [_window endEditingFor:nil];
  [_page willHide];
  [[_page view] removeFromSuperview];
  [[_page settings] removeFromSuperview];
  _page = page;
  [_title setStringValue:[[page class] title]];
  [_summary setStringValue:[[page class] summary]];
  [_frame addSubview:[page view]];
  [_root addSubview:[page settings]];
  [self layOut];
  [_root setNeedsDisplay:YES];
  [_list selectRowIndexes:[NSIndexSet indexSetWithIndex:[_pages indexOfObjectIdenticalTo:page]]
      byExtendingSelection:NO];
  [_window makeFirstResponder:[page keyView]];
  [page didShow];
  [page changed];
}

- (void)showPageFromMenu:(id)sender {
  [self showPage:[_pages objectAtIndex:[sender tag]]];
}

- (void)orderFront {
  [_window makeKeyAndOrderFront:self];
}

- (void)pageDidChange:(NSNotification *)notification {
  if ([notification object] != _page) return;
  [_message
      setTextColor:[_page messageIsWarning] ? GalleryWarningColor() : GalleryQuietTextColor()];
  [_message setStringValue:[_page message]];
  [_message setNeedsDisplay:YES];
  [_progress setProgress:[_page progress]];
}

- (NSArray *)statusLines {
  NSMutableArray *lines = [NSMutableArray array];
  [lines addObject:[@"page=" stringByAppendingString:[[_page class] name]]];
  [lines addObject:[@"message=" stringByAppendingString:[_page message]]];
  [lines addObject:[NSString stringWithFormat:@"warning=%d", [_page messageIsWarning]]];
  [lines
      addObject:[NSString stringWithFormat:@"key=%d", [_window isKeyWindow] && [NSApp isActive]]];
  [lines addObject:[NSString stringWithFormat:@"settled=%d", [_page isSettled]]];
  [lines addObject:GalleryStatusLine(@"window", _root, [_root bounds], @"")];
  NSInteger row = 0;
  for (GalleryPage *page in _pages) {
    [lines
        addObject:GalleryStatusLine(@"row", _list, [_list rectOfRow:row++], [[page class] name])];
  }
  [lines addObjectsFromArray:[[_page settings] statusLines]];
  [lines addObjectsFromArray:[_page statusLines]];
  return lines;
}

#pragma mark The list

- (NSInteger)numberOfRowsInTableView:(NSTableView *)table {
  (void)table;
  return static_cast<NSInteger>([_pages count]);
}

- (id)tableView:(NSTableView *)table
    objectValueForTableColumn:(NSTableColumn *)column
                          row:(NSInteger)row {
  (void)table, (void)column;
  return [[[_pages objectAtIndex:row] class] shortTitle];
}

- (void)tableViewSelectionDidChange:(NSNotification *)notification {
  (void)notification;
  const NSInteger row = [_list selectedRow];
  [_list setNeedsDisplay:YES];
  if (row >= 0) [self showPage:[_pages objectAtIndex:row]];
}

@end
