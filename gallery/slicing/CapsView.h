// A picture, magnified, with the lines along which it is cut: they can be dragged, and another
// picture can be dropped.
#import <AppKit/AppKit.h>

#include <functional>

@interface CapsView : NSView {
  NSImage *_image;
  CGFloat _leftCap;
  CGFloat _topCap;
  std::function<void(CGFloat leftCap, CGFloat topCap)> _capsMoved;
  std::function<void(NSString *path)> _fileDropped;
  int _dragged;
  BOOL _dropping;
}

// In points of the picture.
- (void)setImage:(NSImage *)image leftCap:(CGFloat)leftCap topCap:(CGFloat)topCap;
// nullptr once what they refer to is gone.
- (void)setCapsMoved:(std::function<void(CGFloat leftCap, CGFloat topCap)>)moved;
- (void)setFileDropped:(std::function<void(NSString *path)>)dropped;

// Where the lines at the left cap and at the top cap can be taken hold of.
- (NSRect)leftCapHandle;
- (NSRect)topCapHandle;

@end
