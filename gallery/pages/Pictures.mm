// The grid on a folder of pictures: selected, renamed, dragged out, dropped in.

#import "pages/Pictures.h"

#include <algorithm>

#import "pictures/PictureCell.h"
#import "pictures/PictureFolder.h"
#import "pictures/PictureItem.h"
#import "shell/GalleryApplication.h"
#import "shell/GalleryControls.h"
#import "shell/GalleryStyle.h"

static const CGFloat kFirstCellWidth = 178;
static const CGFloat kFirstSpacing = 8;
static const std::size_t kThumbnailMemory = 96 << 20;

@implementation PicturesPage

+ (void)load {
  [GalleryPage addPageClass:self];
}

+ (int)position {
  return 10;
}

+ (NSString *)name {
  return @"pictures";
}

+ (NSString *)title {
  return @"Pictures";
}

+ (NSString *)summary {
  return @"A grid of files. Double-click a picture to rename it, drag pictures out, "
         @"or drop some in.";
}

- (id)init {
  self = [super init];
  if (!self) return nil;
  _cache = [[ThumbnailCache alloc] initWithLimit:kThumbnailMemory];
  _cellWidth = kFirstCellWidth;
  NSString *path = GalleryFolderOption() ?: PictureDefaultFolder();
  _folder = [[PictureFolder alloc] initWithPath:path];
  _items = [[_folder items] retain];
  _menuIndex = NSNotFound;
  NSNotificationCenter *center = [NSNotificationCenter defaultCenter];
  [center addObserver:self
             selector:@selector(folderDidChange:)
                 name:PictureFolderDidChangeNotification
               object:_folder];
  [center addObserver:self
             selector:@selector(thumbnailsDidLoad:)
                 name:ThumbnailCacheDidLoadNotification
               object:_cache];
  return self;
}

- (void)dealloc {
  [[NSNotificationCenter defaultCenter] removeObserver:self];
  [NSObject cancelPreviousPerformRequestsWithTarget:self];
  [_copiedNames release];
  [_copyProblems release];
  [_items release];
  [_grid setDataSource:nil];
  [_grid setDelegate:nil];
  [_grid release];
  [_scroll release];
  [self close];
  [_folder release];
  [_cache release];
  [super dealloc];
}

- (NSView *)makeView {
  _scroll = [[GalleryScrollView alloc] initWithFrame:NSMakeRect(0, 0, 400, 300)];
  [[_scroll contentView] setPostsBoundsChangedNotifications:YES];
  [[NSNotificationCenter defaultCenter] addObserver:self
                                           selector:@selector(visibleAreaChanged:)
                                               name:NSViewBoundsDidChangeNotification
                                             object:[_scroll contentView]];
  [self useGridOfClass:[PictureGrid class]];
  return _scroll;
}

- (NSView *)keyView {
  return _grid;
}

- (void)didShow {
  [self loadVisibleThumbnails];
  [self describeSelection];
}

- (void)close {
  [_progressTimer invalidate];
  _progressTimer = nil;
  _copier.reset();
  [_folder close];
  [_cache close];
}

- (BOOL)isSettled {
  return [_cache outstanding] == 0;
}

- (double)progress {
  if (_progressTimer) return std::min(0.999, _copier->progress().fraction);
  const NSUInteger left = [_cache outstanding];
  if (left == 0 || _loadingCount == 0) return 1;
  return 1 - static_cast<double>(left) / static_cast<double>(_loadingCount);
}

- (PictureItem *)itemAtIndex:(NSUInteger)index {
  return index < [_items count] ? [_items objectAtIndex:index] : nil;
}

#pragma mark The grid

// A grid of another class in place of the present one, set up alike.
- (void)useGridOfClass:(Class)gridClass {
  NSIndexSet *selected = [[[_grid selectedItemIndexes] retain] autorelease];
  HXMatrixView *old = _grid;
  HXMatrixView *grid = [[gridClass alloc] initWithFrame:[[_scroll contentView] bounds]];
  [grid setAutoFitHorizentally:old ? [old autoFitHorizentally] : NO];
  [grid setCellSize:[PictureCell cellSizeForWidth:_cellWidth]];
  [grid
      setIntercellSpacing:old ? [old intercellSpacing] : NSMakeSize(kFirstSpacing, kFirstSpacing)];
  [grid setDataCell:[[[PictureCell alloc] initWithCache:_cache] autorelease]];
  [grid setBackgroundColor:old ? [old backgroundColor] : GalleryPanelColor()];
  [grid setGridColor:old ? [old gridColor] : GalleryLineColor()];
  if (old) {
    [grid setGridStyleMask:[old gridStyleMask]];
    [grid setGridLineWidth:[old gridLineWidth]];
    [grid setGridShadow:[old gridShadow]];
    [grid setMultipleSelectionBehavior:[old multipleSelectionBehavior]];
    [grid setAlternateMultipleSelectionBehavior:[old alternateMultipleSelectionBehavior]];
    [grid setMultipleSelectionBehaviorForDragging:[old multipleSelectionBehaviorForDragging]];
    [grid setAlternateMultipleSelectionBehaviorForDragging:
              [old alternateMultipleSelectionBehaviorForDragging]];
    [grid setAllowsBeginDragging:[old allowsBeginDragging]];
  }
  NSNotificationCenter *center = [NSNotificationCenter defaultCenter];
  [center removeObserver:self name:HXMatrixViewSelectionDidChangeNotification object:old];
  [old setMouseTrackingEnabled:NO];
  [old setDataSource:nil];
  [old setDelegate:nil];

  const BOOL tracking = old ? _hoverTracking : YES;
  _grid = grid;
  [_scroll setDocumentView:grid];
  [grid setAutoresizingMask:NSViewWidthSizable | NSViewHeightSizable];
  [grid setDataSource:self];
  [grid setDelegate:self];
  _hoverTracking = tracking;
  [grid setMouseTrackingEnabled:tracking];
  [grid registerForDraggedTypes:@[ NSFilenamesPboardType ]];
  [center addObserver:self
             selector:@selector(selectionDidChange:)
                 name:HXMatrixViewSelectionDidChangeNotification
               object:grid];
  [grid setAllowsEmptySelection:old ? [old allowsEmptySelection] : YES];
  [grid setAllowsMultipleSelection:old ? [old allowsMultipleSelection] : YES];
  if ([selected count] > 0) [grid selectItemsWithIndexes:selected];
  [[grid window] makeFirstResponder:grid];
  [old release];
  [self visibleAreaChanged:nil];
}

- (NSUInteger)numberOfItemsInMatrixView:(HXMatrixView *)grid {
  (void)grid;
  return [_items count];
}

- (id)matrixView:(HXMatrixView *)grid
    objectValueForCell:(NSCell *)cell
           atItemIndex:(NSUInteger)index {
  (void)grid, (void)cell;
  return [self itemAtIndex:index];
}

- (NSString *)matrixView:(HXMatrixView *)grid toolTipAtItemIndex:(NSUInteger)index {
  (void)grid;
  PictureItem *item = [self itemAtIndex:index];
  if (!item) return nil;
  NSString *details = [_cache problemOfItem:item];
  const NSSize size = [_cache pixelSizeOfItem:item];
  if (!details && size.width > 0) {
    details = [NSString stringWithFormat:@"%d \u00d7 %d pixels", static_cast<int>(size.width),
                                         static_cast<int>(size.height)];
  }
  // The platform's tip is a little too narrow for its text now and then, and would wrap it.
  NSArray *lines =
      @[ [item name], details ?: @"Being read\u2026", PictureFileSize([item size]), @"" ];
  return [[lines componentsJoinedByString:@"\u00a0\u00a0\n"]
      stringByTrimmingCharactersInSet:[NSCharacterSet newlineCharacterSet]];
}

#pragma mark The folder

- (NSSet *)selectedPaths {
  NSMutableSet *paths = [NSMutableSet set];
  NSIndexSet *selected = [_grid selectedItemIndexes];
  for (NSUInteger i = [selected firstIndex]; i != NSNotFound;
       i = [selected indexGreaterThanIndex:i]) {
    if (NSString *path = [[self itemAtIndex:i] pathString]) [paths addObject:path];
  }
  return paths;
}

- (void)showFolderSelectingPaths:(NSSet *)paths {
  [_items release];
  _items = [[_folder items] retain];
  [_grid reloadData];
  NSMutableIndexSet *selected = [NSMutableIndexSet indexSet];
  NSUInteger index = 0;
  for (PictureItem *item in _items) {
    NSString *path = [item pathString];
    if (path && [paths containsObject:path]) [selected addIndex:index];
    ++index;
  }
  if ([selected count] > 0) [_grid selectItemsWithIndexes:selected];
  [self visibleAreaChanged:nil];
  [self describeSelection];
}

// A name that is being typed is not taken away: the grid is reloaded when it is finished.
- (void)folderDidChange:(NSNotification *)notification {
  (void)notification;
  [NSObject cancelPreviousPerformRequestsWithTarget:self
                                           selector:@selector(folderDidChange:)
                                             object:nil];
  if ([_grid editedItemIndex] != NSNotFound || [_grid inDragSelection]) {
    [self performSelector:@selector(folderDidChange:) withObject:nil afterDelay:0.2];
  } else {
    [self showFolderSelectingPaths:[self selectedPaths]];
  }
}

#pragma mark Thumbnails

- (void)visibleAreaChanged:(NSNotification *)notification {
  (void)notification;
  [self loadVisibleThumbnails];
  [self changed];
}

// The visible ones first, then a screen below and a screen above.
- (void)loadVisibleThumbnails {
  const NSRect visible = [_scroll documentVisibleRect];
  const CGFloat width = NSWidth(visible), height = NSHeight(visible);
  const NSRect areas[] = {visible, NSOffsetRect(visible, 0, height),
                          NSOffsetRect(visible, 0, -height), NSOffsetRect(visible, width, 0),
                          NSOffsetRect(visible, -width, 0)};
  NSMutableArray *wanted = [NSMutableArray array];
  for (const NSRect &area : areas) {
    NSIndexSet *indexes = [_grid itemIndexesAtColumns:[_grid columnsInRect:area]
                                                 rows:[_grid rowsInRect:area]];
    for (NSUInteger i = [indexes firstIndex]; i != NSNotFound;
         i = [indexes indexGreaterThanIndex:i]) {
      if (PictureItem *item = [self itemAtIndex:i]) [wanted addObject:item];
    }
  }
  [_cache loadItems:wanted box:[PictureCell thumbnailBoxForWidth:_cellWidth]];
  const NSUInteger left = [_cache outstanding];
  _loadingCount = left == 0 ? 0 : std::max(_loadingCount, left);
}

- (void)thumbnailsDidLoad:(NSNotification *)notification {
  (void)notification;
  [_grid setNeedsDisplayInRect:[_grid visibleRect]];
  if ([_cache outstanding] > 0) {
    [self changed];  // the bar has moved
    return;
  }
  _loadingCount = 0;
  [self describeSelection];
  [self changed];
}

#pragma mark What is shown below

- (void)selectionDidChange:(NSNotification *)notification {
  (void)notification;
  [self describeSelection];
}

- (void)describeSelection {
  if (_progressTimer) return;  // the line shows the progress
  if ([_folder problem]) {
    [self
        setMessage:[NSString stringWithFormat:@"%s: %@", [_folder path].c_str(), [_folder problem]]
           warning:YES];
    return;
  }
  NSIndexSet *selected = [_grid selectedItemIndexes];
  const int count = static_cast<int>([_items count]);
  NSString *folder =
      [[NSString stringWithUTF8String:[_folder path].c_str()] stringByAbbreviatingWithTildeInPath];
  if ([selected count] == 0) {
    [self setMessage:[NSString stringWithFormat:@"%d %@ in %@", count,
                                                count == 1 ? @"picture" : @"pictures", folder]
             warning:NO];
    return;
  }
  std::int64_t bytes = 0;
  for (NSUInteger i = [selected firstIndex]; i != NSNotFound;
       i = [selected indexGreaterThanIndex:i]) {
    bytes += [[self itemAtIndex:i] size];
  }
  [self setMessage:[NSString stringWithFormat:@"%d of %d selected, %@",
                                              static_cast<int>([selected count]), count,
                                              PictureFileSize(bytes)]
           warning:NO];
}

- (NSArray *)statusLines {
  NSMutableArray *lines = [NSMutableArray array];
  [lines addObject:[NSString stringWithFormat:@"items=%d", static_cast<int>([_items count])]];
  [lines addObject:[NSString
                       stringWithFormat:@"columns=%d", static_cast<int>([_grid numberOfColumns])]];
  [lines
      addObject:[NSString stringWithFormat:@"loading=%d", static_cast<int>([_cache outstanding])]];
  [lines addObject:[NSString stringWithFormat:@"scrolled=%d", static_cast<int>(NSMinY(
                                                                  [_scroll documentVisibleRect]))]];
  [lines addObject:[NSString stringWithFormat:@"drop=%d", _dropProposed]];
  PictureItem *edited = [self itemAtIndex:[_grid editedItemIndex]];
  [lines addObject:[@"editing=" stringByAppendingString:edited ? [edited name] : @""]];
  [lines addObject:GalleryStatusLine(@"grid", _grid, [_grid visibleRect], @"")];
  NSIndexSet *visible = [_grid itemIndexesAtColumns:[_grid columnsInRect:[_grid visibleRect]]
                                               rows:[_grid rowsInRect:[_grid visibleRect]]];
  for (NSUInteger i = [visible firstIndex]; i != NSNotFound;
       i = [visible indexGreaterThanIndex:i]) {
    if (PictureItem *item = [self itemAtIndex:i]) {
      [lines addObject:GalleryStatusLine(@"item", _grid, [_grid frameOfCellAtItemIndex:i],
                                         [item name])];
    }
  }
  NSIndexSet *selected = [_grid selectedItemIndexes];
  for (NSUInteger i = [selected firstIndex]; i != NSNotFound;
       i = [selected indexGreaterThanIndex:i]) {
    if (PictureItem *item = [self itemAtIndex:i]) {
      [lines addObject:[@"selected=" stringByAppendingString:[item name]]];
    }
  }
  return lines;
}

@end
