// What the Helpers page shows of the colours, the fonts and the placing of images.
#import <AppKit/AppKit.h>

// The house colours with their names.
@interface ColorList : NSView
+ (CGFloat)height;
@end

// A line in each of the system's fonts.
@interface FontList : NSView
+ (CGFloat)height;
@end

// An image in a rectangle, which is the view.
@interface PlacedImage : NSView {
  NSImage *_image;
  int _position;
  BOOL _scaled;
  NSRect _drawn;
}
// 1 and YES at first.
- (void)setPosition:(int)position;
- (void)setScaled:(BOOL)flag;
// Where the image was drawn last, in the view's coordinates.
- (NSRect)drawnRect;
@end
