// The application's delegate: makes the window, and ends the program properly.
#import <AppKit/AppKit.h>

#include "shell/GalleryOptions.h"

@class GalleryWindow, GalleryStatusFile;

@interface GalleryApplication : NSObject {
  gallery::Options _options;
  GalleryWindow *_window;
  GalleryStatusFile *_statusFile;
  NSFileHandle *_signals;
}
- (id)initWithOptions:(const gallery::Options &)options;
@end

// The folder given on the command line, or nil.
NSString *GalleryFolderOption();
