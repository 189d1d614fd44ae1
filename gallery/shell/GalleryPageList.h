// The list of pages at the left of the window.
#import <AppKit/AppKit.h>

@interface GalleryPageList : NSTableView
@end

// A page list with one column, ready to be given a data source.
GalleryPageList *GalleryMakePageList();
