#import "pictures/PictureFolder.h"

#include <dirent.h>
#include <sys/inotify.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <cerrno>
#include <cstring>
#include <set>
#include <vector>

#include "pictures/FileNames.h"
#import "pictures/PictureItem.h"
#include "pictures/ThumbnailDecoder.h"

NSString *const PictureFolderDidChangeNotification = @"PictureFolderDidChangeNotification";

static const NSTimeInterval kRefreshDelay = 0.15;  // collects the events of one change
static const std::size_t kMostFilesBelow = 5000;
static const int kLevelsBelow = 4;

static bool isPictureName(std::string_view name) {
  static const std::set<std::string> known = [] {
    const std::vector<std::string> all = gallery::readableExtensions();
    return std::set<std::string>(all.begin(), all.end());
  }();
  std::string extension(gallery::extensionOf(name));
  if (extension.empty()) return false;
  for (char &c : extension) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return known.contains(extension.substr(1));
}

struct FoundFile {
  std::string path;
  struct stat info;
};

// The pictures of one folder; its own folders are added to a list. The answer is an error
// number, or 0.
static int listFolder(const std::string &folder, std::vector<FoundFile> &files,
                      std::vector<std::string> &folders) {
  DIR *directory = opendir(folder.c_str());
  if (!directory) return errno;
  while (const dirent *entry = readdir(directory)) {
    const std::string name = entry->d_name;
    if (name[0] == '.') continue;
    FoundFile file{folder + "/" + name, {}};
    if (stat(file.path.c_str(), &file.info) != 0) continue;
    // A link to a folder may lead back up.
    if (S_ISDIR(file.info.st_mode) && entry->d_type != DT_LNK) folders.push_back(file.path);
    if (S_ISREG(file.info.st_mode) && isPictureName(name)) files.push_back(std::move(file));
  }
  closedir(directory);
  return 0;
}

static void listBelow(std::vector<std::string> folders, int levels, std::vector<FoundFile> &files) {
  while (!folders.empty() && levels-- > 0 && files.size() < kMostFilesBelow) {
    std::vector<std::string> next;
    for (const std::string &folder : folders) listFolder(folder, files, next);
    folders = std::move(next);
  }
  if (files.size() > kMostFilesBelow) files.resize(kMostFilesBelow);
}

static NSComparisonResult byName(id a, id b, void *) {
  const NSComparisonResult result = [[a name] compare:[b name]
                                              options:NSCaseInsensitiveSearch | NSNumericSearch];
  return result != NSOrderedSame ? result : [[a name] compare:[b name]];
}

@implementation PictureFolder

- (id)initWithPath:(NSString *)path {
  self = [super init];
  if (!self) return nil;
  _path = [path fileSystemRepresentation];
  _items = [[self list] retain];
  [self watch];
  return self;
}

- (void)dealloc {
  [_items release];
  [_problem release];
  [super dealloc];
}

- (void)close {
  [[NSNotificationCenter defaultCenter] removeObserver:self];
  [NSObject cancelPreviousPerformRequestsWithTarget:self];
  [_watch closeFile];
  [_watch release];
  _watch = nil;
}

- (const std::string &)path {
  return _path;
}

- (NSArray *)items {
  return _items;
}

- (NSString *)problem {
  return _problem;
}

- (NSArray *)list {
  std::vector<FoundFile> files;
  std::vector<std::string> folders;
  const int error = listFolder(_path, files, folders);
  [_problem release];
  _problem = error ? [[NSString alloc] initWithUTF8String:std::strerror(error)] : nil;
  if (files.empty()) listBelow(std::move(folders), kLevelsBelow, files);
  NSMutableArray *items = [NSMutableArray array];
  for (const FoundFile &file : files) {
    const struct timespec time = file.info.st_mtim;
    [items addObject:[[[PictureItem alloc] initWithPath:file.path
                                               modified:time.tv_sec * 1000000000LL + time.tv_nsec
                                                   size:file.info.st_size] autorelease]];
  }
  [items sortUsingFunction:byName context:nullptr];
  return items;
}

static BOOL sameItems(NSArray *a, NSArray *b) {
  if ([a count] != [b count]) return NO;
  for (NSUInteger i = 0; i < [a count]; ++i) {
    PictureItem *x = [a objectAtIndex:i], *y = [b objectAtIndex:i];
    if ([x path] != [y path] || [x modified] != [y modified] || [x size] != [y size]) return NO;
  }
  return YES;
}

- (void)refresh {
  NSArray *items = [self list];
  if (sameItems(items, _items)) return;
  [_items release];
  _items = [items retain];
  [[NSNotificationCenter defaultCenter] postNotificationName:PictureFolderDidChangeNotification
                                                      object:self];
}

#pragma mark Watching

- (void)watch {
  const int file = inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
  if (file < 0) return;
  if (inotify_add_watch(file, _path.c_str(),
                        IN_CREATE | IN_CLOSE_WRITE | IN_DELETE | IN_MOVED_FROM | IN_MOVED_TO |
                            IN_DELETE_SELF | IN_MOVE_SELF | IN_ONLYDIR) < 0) {
    close(file);
    return;
  }
  _watch = [[NSFileHandle alloc] initWithFileDescriptor:file closeOnDealloc:YES];
  [[NSNotificationCenter defaultCenter] addObserver:self
                                           selector:@selector(folderChanged:)
                                               name:NSFileHandleDataAvailableNotification
                                             object:_watch];
  [_watch waitForDataInBackgroundAndNotify];
}

- (void)folderChanged:(NSNotification *)notification {
  (void)notification;
  alignas(inotify_event) std::array<char, 4096> events;
  while (read([_watch fileDescriptor], events.data(), events.size()) > 0) {
    // Which file it was does not matter: the folder is listed as a whole.
  }
  [_watch waitForDataInBackgroundAndNotify];
  [NSObject cancelPreviousPerformRequestsWithTarget:self selector:@selector(refresh) object:nil];
  [self performSelector:@selector(refresh) withObject:nil afterDelay:kRefreshDelay];
}

@end

static BOOL hasPictures(NSString *path) {
  PictureFolder *folder = [[PictureFolder alloc] initWithPath:path];
  const BOOL result = [[folder items] count] > 0;
  [folder close];
  [folder release];
  return result;
}

NSString *PictureDefaultFolder() {
  NSMutableArray *candidates = [NSMutableArray array];
  [candidates addObjectsFromArray:NSSearchPathForDirectoriesInDomains(NSPicturesDirectory,
                                                                      NSUserDomainMask, YES)];
  [candidates addObject:[NSHomeDirectory() stringByAppendingPathComponent:@"Pictures"]];
  for (NSString *library in NSSearchPathForDirectoriesInDomains(NSLibraryDirectory,
                                                                NSAllDomainsMask, YES)) {
    [candidates addObject:[library stringByAppendingPathComponent:@"Images"]];
  }
  for (NSString *path in candidates) {
    if (hasPictures(path)) return path;
  }
  return NSHomeDirectory();
}

BOOL PictureIsPictureName(NSString *name) { return isPictureName([name UTF8String] ?: ""); }
