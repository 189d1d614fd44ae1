// Writes what the window shows to a file, so that a test that drives the gallery from
// outside can see it: one "key=value" per line, replaced as a whole shortly after each
// change.
#import <AppKit/AppKit.h>

@class GalleryWindow;

@interface GalleryStatusFile : NSObject {
  GalleryWindow *_window;
  NSString *_path;
  NSString *_written;
}
// Neither is nil. The window is retained.
- (id)initWithPath:(NSString *)path window:(GalleryWindow *)window;
@end
