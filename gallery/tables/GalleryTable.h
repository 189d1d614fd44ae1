// Table and outline views in the gallery's colours.
#import <OvAppKit/OvAppKit.h>

// Both draw their selected rows in a light colour.
@interface GalleryTable : OvTableView
@end

// Draws its triangles in the middle of the rows' height, not at their top.
@interface GalleryOutline : NSOutlineView
@end

// A column that is called what it is titled. Its cells cannot be edited.
NSTableColumn *GalleryTableColumn(NSString *title, CGFloat width);

// The table with light lines and a light header, in a scroll view with a frame.
NSScrollView *GalleryTableScrollView(NSTableView *table);
