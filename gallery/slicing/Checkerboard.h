// The grey squares that stand for nothing behind a picture.
#import <AppKit/AppKit.h>

void GalleryDrawCheckerboard(NSRect rect);
