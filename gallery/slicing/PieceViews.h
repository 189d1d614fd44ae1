// What becomes of a picture: its pieces, apart from each other; the frame that they make, in any
// size; and the states of a strip.
#import <AppKit/AppKit.h>

#include <functional>

@class HXDictionaryImageContainer, HXImageControlImageContainer;

// The pieces in their natural sizes, magnified, with room between them.
@interface PiecesView : NSView {
  HXImageControlImageContainer *_container;
}
- (void)setContainer:(HXImageControlImageContainer *)container;
@end

// The frame, which is resized at its corner.
@interface ComposedFrameView : NSView {
  HXImageControlImageContainer *_container;
  NSSize _size;
  BOOL _upsideUp;
  BOOL _resizing;
  std::function<void(NSSize size)> _resized;
}
- (void)setContainer:(HXImageControlImageContainer *)container;
- (void)setComposedSize:(NSSize)size;
- (NSSize)composedSize;
// Whether y grows upward in the view. The frame looks the same.
- (void)setUpsideUp:(BOOL)flag;
// nullptr once what it refers to is gone.
- (void)setResized:(std::function<void(NSSize size)>)resized;
- (NSRect)handle;
@end

// The tiles of a strip, side by side with room between them.
@interface TilesView : NSView {
  HXDictionaryImageContainer *_tiles;
  NSArray *_keys;
}
- (void)setImage:(NSImage *)image count:(NSUInteger)count;
@end
