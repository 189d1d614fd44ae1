// Takes rows that are dragged onto it.
#import <AppKit/AppKit.h>

// The pasteboard type of the rows.
extern NSString *const GalleryRowsType;

@interface TrashView : NSView {
  BOOL _inside;
  BOOL _refuses;
}
// A closed trash takes nothing.
- (void)setRefuses:(BOOL)flag;
@end
