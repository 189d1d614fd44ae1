// The gallery's window: pages at the left, the page with its message and settings at the
// right.
#import <AppKit/AppKit.h>

@class GalleryBox, GalleryPage, GalleryPageList, GalleryProgressBar;

@interface GalleryWindow : NSObject {
  NSWindow *_window;
  NSArray *_pages;
  GalleryPage *_page;
  NSView *_root;
  GalleryBox *_sidebar;
  NSTextField *_brand;
  GalleryPageList *_list;
  NSTextField *_title;
  NSTextField *_summary;
  GalleryBox *_frame;
  NSTextField *_message;
  GalleryProgressBar *_progress;
}

- (id)initWithPages:(NSArray *)pages;
- (NSWindow *)window;
- (NSArray *)pages;
- (GalleryPage *)page;

// Shows a page; the first one if the name is unknown. The title of a page does as well.
- (void)showPageNamed:(NSString *)name;
- (void)showPage:(GalleryPage *)page;
- (void)showPageFromMenu:(id)sender;
- (void)orderFront;

// The window's part of the status file.
- (NSArray *)statusLines;

@end
