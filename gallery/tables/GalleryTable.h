// Table and outline views in the gallery's colours.
#import <AppKit/AppKit.h>

// A column that is called what it is titled. Its cells cannot be edited.
NSTableColumn *GalleryTableColumn(NSString *title, CGFloat width);

// The table with light lines and a light header, in a scroll view with a frame.
NSScrollView *GalleryTableScrollView(NSTableView *table);
