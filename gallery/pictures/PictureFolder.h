// The picture files of a folder, kept up to date.
#import <AppKit/AppKit.h>

#include <string>

@class PictureItem;

// Posted, with the folder as the object, when files have come, gone or changed.
extern NSString *const PictureFolderDidChangeNotification;

@interface PictureFolder : NSObject {
  std::string _path;
  NSArray *_items;
  NSString *_problem;
  NSFileHandle *_watch;
}

// Lists the folder and begins to watch it. A folder without pictures of its own shows those
// of the folders below it, a few levels deep.
- (id)initWithPath:(NSString *)path;

// Stops watching. To be sent before the last release.
- (void)close;

- (const std::string &)path;
// PictureItems in the order of their names.
- (NSArray *)items;
// Why the folder cannot be read, or nil.
- (NSString *)problem;

// Lists the folder again; posts the notification if something is different.
- (void)refresh;

@end

// The folder to show when none is asked for: the user's pictures, else the pictures that
// come with the platform.
NSString *PictureDefaultFolder();

// Whether a file's name has the extension of a picture.
BOOL PictureIsPictureName(NSString *name);
