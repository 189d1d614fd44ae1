// Draws every page to a PNG file.
#import <AppKit/AppKit.h>

@class GalleryWindow;

// Shows each page in turn, waits until it has loaded, and writes DIR/<page name>.png. A page
// that does not finish loading in time is drawn as it is, and told of. NO when a file could
// not be written.
BOOL GalleryWriteSnapshots(GalleryWindow *window, NSString *directory);
