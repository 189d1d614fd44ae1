#import <OvAppKit/OvAppKit.h>

#include <memory>

#include "pictures/FileCopier.h"
#import "pictures/PictureGrid.h"
#import "pictures/ThumbnailCache.h"
#import "shell/GalleryPage.h"

@class PictureFolder, PictureItem;

@interface PicturesPage : GalleryPage {
  NSScrollView *_scroll;
  HXMatrixView *_grid;
  PictureFolder *_folder;
  NSArray *_items;  // what the grid shows; the folder may be ahead of it for a moment
  ThumbnailCache *_cache;
  CGFloat _cellWidth;
  BOOL _hoverTracking;
  std::unique_ptr<gallery::FileCopier> _copier;
  NSTimer *_progressTimer;
  NSMutableArray *_copiedNames;
  NSMutableArray *_copyProblems;
  NSUInteger _menuIndex;
  NSUInteger _loadingCount;  // thumbnails asked for since none was on its way
  BOOL _dropProposed;        // files are over the grid, or were the last time
}
- (PictureItem *)itemAtIndex:(NSUInteger)index;
- (void)useGridOfClass:(Class)gridClass;
- (void)loadVisibleThumbnails;
- (void)describeSelection;
// Shows what the folder holds now, and selects the files with these paths.
- (void)showFolderSelectingPaths:(NSSet *)paths;
- (NSSet *)selectedPaths;
@end

// Renaming, copying, dragging out, dropping in, and the context menu.
@interface PicturesPage (Files) <PictureGridEditing>
- (void)writePaths:(NSArray *)paths toPasteboard:(NSPasteboard *)pasteboard;
// Copies files into the folder; what is not a picture is left out and told of.
- (void)copyFilesIn:(NSArray *)paths;
@end
