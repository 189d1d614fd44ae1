// What the Pictures page does with files.

#include <cerrno>
#include <cstring>

#import "pages/Pictures.h"
#include "pictures/FileNames.h"
#import "pictures/PictureFolder.h"
#import "pictures/PictureItem.h"

// With the null characters that a string's C form would end at.
static std::string bytesOf(NSString *text) {
  NSData *data = [text dataUsingEncoding:NSUTF8StringEncoding];
  return std::string(static_cast<const char *>([data bytes]), [data length]);
}

static NSString *stringOf(const std::string &bytes) {
  return [NSString stringWithUTF8String:bytes.c_str()] ?: @"?";
}

@implementation PicturesPage (Files)

#pragma mark Renaming

- (void)refuseName:(NSString *)name because:(NSString *)reason {
  NSBeep();
  [self setMessage:[NSString stringWithFormat:@"\u201c%@\u201d was not renamed. %@", name, reason]
           warning:YES];
}

- (void)matrixViewDidCancelEditing:(HXMatrixView *)grid {
  (void)grid;
  [self changed];
}

- (void)matrixView:(HXMatrixView *)grid didEditItemIndex:(NSUInteger)index text:(NSString *)text {
  (void)grid;
  PictureItem *item = [[[self itemAtIndex:index] retain] autorelease];
  if (!item || [text isEqualToString:[item stem]]) return [self changed];
  const std::string path = [item path];
  const std::string folder = path.substr(0, path.rfind('/') + 1);
  const std::string extension = std::string(gallery::extensionOf(path.substr(folder.size())));
  const std::string typed = bytesOf(text);
  // The extension may be typed, too.
  const std::string name = gallery::extensionOf(typed) == extension ? typed : typed + extension;
  std::string reason = gallery::whyNotAFileName(typed);
  if (reason.empty()) reason = gallery::whyNotAFileName(name);
  if (!reason.empty()) return [self refuseName:[item name] because:stringOf(reason)];
  if (folder + name == path) return [self changed];

  const int error = gallery::renameWithoutReplacing(path, folder + name);
  if (error == EEXIST) {
    return [self
        refuseName:[item name]
           because:[NSString stringWithFormat:@"There is already a file named \u201c%@\u201d.",
                                              stringOf(name)]];
  }
  if (error) return [self refuseName:[item name] because:stringOf(std::strerror(error))];
  NSMutableSet *selected = [[[self selectedPaths] mutableCopy] autorelease];
  if ([item pathString]) [selected removeObject:[item pathString]];
  [selected addObject:stringOf(folder + name)];
  [_folder refresh];
  [self showFolderSelectingPaths:selected];
  [self setMessage:[NSString stringWithFormat:@"\u201c%@\u201d is now named \u201c%@\u201d.",
                                              [item name], stringOf(name)]
           warning:NO];
}

#pragma mark Out

- (NSArray *)pathsAtIndexes:(NSIndexSet *)indexes {
  NSMutableArray *paths = [NSMutableArray array];
  for (NSUInteger i = [indexes firstIndex]; i != NSNotFound;
       i = [indexes indexGreaterThanIndex:i]) {
    // A name that is not UTF-8 cannot be told to another program.
    if (NSString *path = [[self itemAtIndex:i] pathString]) [paths addObject:path];
  }
  return paths;
}

- (void)writePaths:(NSArray *)paths toPasteboard:(NSPasteboard *)pasteboard {
  [pasteboard declareTypes:@[ NSFilenamesPboardType, NSStringPboardType ] owner:nil];
  [pasteboard setPropertyList:paths forType:NSFilenamesPboardType];
  [pasteboard setString:[paths componentsJoinedByString:@"\n"] forType:NSStringPboardType];
}

- (BOOL)matrixView:(HXMatrixView *)grid
    writeItemsWithIndexes:(NSIndexSet *)indexes
             toPasteboard:(NSPasteboard *)pasteboard {
  (void)grid;
  NSArray *paths = [self pathsAtIndexes:indexes];
  if ([paths count] == 0) return NO;
  [self writePaths:paths toPasteboard:pasteboard];
  return YES;
}

- (NSDragOperation)matrixView:(HXMatrixView *)grid draggingSourceOperationMaskForLocal:(BOOL)local {
  (void)grid, (void)local;
  return NSDragOperationCopy;
}

- (void)copySelection {
  NSArray *paths = [self pathsAtIndexes:[_grid selectedItemIndexes]];
  if ([paths count] == 0) return NSBeep();
  [self writePaths:paths toPasteboard:[NSPasteboard generalPasteboard]];
}

#pragma mark In

- (NSDragOperation)matrixView:(HXMatrixView *)grid
                 validateDrop:(id<NSDraggingInfo>)info
            proposedItemIndex:(NSUInteger)index {
  // The files go into the folder, wherever in the grid they are dropped.
  if (index != NSNotFound || [info draggingSource] == grid) return NSDragOperationNone;
  NSPasteboard *pasteboard = [info draggingPasteboard];
  if (![[pasteboard types] containsObject:NSFilenamesPboardType]) return NSDragOperationNone;
  const NSDragOperation operation = [info draggingSourceOperationMask] & NSDragOperationCopy;
  _dropProposed = operation != NSDragOperationNone;
  [self changed];
  return operation;
}

- (BOOL)matrixView:(HXMatrixView *)grid
        acceptDrop:(id<NSDraggingInfo>)info
         itemIndex:(NSUInteger)index {
  (void)grid, (void)index;
  _dropProposed = NO;
  id paths = [[info draggingPasteboard] propertyListForType:NSFilenamesPboardType];
  if (![paths isKindOfClass:[NSArray class]]) return NO;
  [self copyFilesIn:paths];
  return YES;
}

- (void)pasteFiles {
  id paths = [[NSPasteboard generalPasteboard] propertyListForType:NSFilenamesPboardType];
  if (![paths isKindOfClass:[NSArray class]]) return NSBeep();
  [self copyFilesIn:paths];
}

- (void)copyFilesIn:(NSArray *)paths {
  if (!_copier) {
    _copier = std::make_unique<gallery::FileCopier>();
    _copiedNames = [[NSMutableArray alloc] init];
    _copyProblems = [[NSMutableArray alloc] init];
  }
  for (NSString *path in paths) {
    NSString *name = [path lastPathComponent];
    if (PictureIsPictureName(name)) {
      _copier->add({[path fileSystemRepresentation], [_folder path]});
    } else {
      [_copyProblems
          addObject:[NSString stringWithFormat:@"\u201c%@\u201d is not a picture.", name]];
    }
  }
  if (_progressTimer) return;
  _progressTimer = [NSTimer scheduledTimerWithTimeInterval:0.05
                                                    target:self
                                                  selector:@selector(showCopyProgress:)
                                                  userInfo:nil
                                                   repeats:YES];
  [[NSRunLoop currentRunLoop] addTimer:_progressTimer forMode:NSEventTrackingRunLoopMode];
}

- (void)showCopyProgress:(NSTimer *)timer {
  const gallery::FileCopier::Progress progress = _copier->progress();
  for (const auto &result : _copier->takeResults()) {
    if (result.error.empty()) {
      [_copiedNames addObject:stringOf(result.job.folder + "/" + result.name)];
    } else {
      NSString *name = [stringOf(result.job.source) lastPathComponent];
      [_copyProblems addObject:[NSString stringWithFormat:@"\u201c%@\u201d was not copied: %@.",
                                                          name, stringOf(result.error)]];
    }
  }
  if (progress.files > 0) {
    [self setMessage:[NSString stringWithFormat:@"Copying %d %@\u2026 %d %%", progress.files,
                                                progress.files == 1 ? @"file" : @"files",
                                                static_cast<int>(progress.fraction * 100)]
             warning:NO];
    return;
  }
  [timer invalidate];
  _progressTimer = nil;
  [self reportCopies];
}

- (void)reportCopies {
  const int count = static_cast<int>([_copiedNames count]);
  if (count > 0) {
    [_folder refresh];
    [self showFolderSelectingPaths:[NSSet setWithArray:_copiedNames]];
    [_grid scrollItemToVisible:[[_grid selectedItemIndexes] firstIndex]];
  }
  NSString *copied =
      [NSString stringWithFormat:@"%d %@ copied.", count, count == 1 ? @"picture" : @"pictures"];
  NSMutableArray *sentences = [NSMutableArray arrayWithObject:copied];
  [sentences addObjectsFromArray:_copyProblems];
  const BOOL failed = [_copyProblems count] > 0;
  if (failed) NSBeep();
  [self setMessage:[sentences componentsJoinedByString:@" "] warning:failed];
  [_copiedNames removeAllObjects];
  [_copyProblems removeAllObjects];
}

#pragma mark Context menu

// Asked of the data source whether it exists, and sent to the delegate: the page is both.
- (NSMenu *)matrixView:(HXMatrixView *)grid
    contextMenuForCell:(NSCell *)cell
           atItemIndex:(NSUInteger)index {
  (void)grid, (void)cell;
  _menuIndex = index;
  NSMenu *menu = [[[NSMenu alloc] initWithTitle:@""] autorelease];
  if (index != NSNotFound) {
    [menu addItemWithTitle:@"Open" action:@selector(openPicture:) keyEquivalent:@""];
    [menu addItemWithTitle:@"Rename" action:@selector(renamePicture:) keyEquivalent:@""];
    [menu addItemWithTitle:@"Copy Path" action:@selector(copyPath:) keyEquivalent:@""];
    [menu addItemWithTitle:@"Show in File Viewer"
                    action:@selector(revealPicture:)
             keyEquivalent:@""];
    [menu addItem:[NSMenuItem separatorItem]];
  }
  [menu addItemWithTitle:@"Select All" action:@selector(selectEverything:) keyEquivalent:@""];
  for (NSMenuItem *item in [menu itemArray]) [item setTarget:self];
  return menu;
}

- (void)selectEverything:(id)sender {
  [_grid selectAll:sender];
}

- (void)renamePicture:(id)sender {
  (void)sender;
  [_grid scrollItemToVisible:_menuIndex];
  [_grid editItemAtIndex:_menuIndex withEvent:nil select:YES];
  [self changed];
}

- (void)copyPath:(id)sender {
  (void)sender;
  NSString *path = [[self itemAtIndex:_menuIndex] pathString];
  if (!path) return NSBeep();
  NSPasteboard *pasteboard = [NSPasteboard generalPasteboard];
  [pasteboard declareTypes:@[ NSStringPboardType ] owner:nil];
  [pasteboard setString:path forType:NSStringPboardType];
  [self setMessage:[NSString stringWithFormat:@"Copied: %@", path] warning:NO];
}

- (void)openPicture:(id)sender {
  (void)sender;
  PictureItem *item = [self itemAtIndex:_menuIndex];
  NSString *path = [item pathString];
  if (path && [[NSWorkspace sharedWorkspace] openFile:path]) return;
  [self setMessage:[NSString
                       stringWithFormat:@"No application could open \u201c%@\u201d.", [item name]]
           warning:YES];
}

- (void)revealPicture:(id)sender {
  (void)sender;
  NSString *path = [[self itemAtIndex:_menuIndex] pathString];
  if (path && [[NSWorkspace sharedWorkspace] selectFile:path inFileViewerRootedAtPath:@""]) return;
  [self setMessage:@"There is no file viewer." warning:YES];
}

@end
