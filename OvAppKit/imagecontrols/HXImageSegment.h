// HXImageSegment: a picture, or a rectangle of it: a slice, or a tile of a strip. Segments of one
// picture share it; cutting copies no pixels.
//
//   HXImageSegment *strip = [[[HXImageSegment alloc] initWithPath:path] autorelease];
//   [container setImage:[strip imageSegmentWithRect:NSMakeRect(30, 0, 30, 20)]
//         forImagePart:HXImageControlImagePartIcon
//       imageVariation:HXImageControlImageVariationDisabled];

#import <AppKit/AppKit.h>

/** Does not change. For the main thread. */
@interface HXImageSegment : NSObject {
  NSImage *image_;
  NSRect rect_;
}

/** The whole image, with the size that it has now. It is retained. The rectangle of a nil image is
    the zero rectangle. */
- (id)initWithImage:(NSImage *)image;

/** A rectangle of the image, in points of the image's own coordinates. It is kept as it is: what it
    has outside of the image is not drawn, and the zero rectangle draws the whole image. */
- (id)initWithImage:(NSImage *)image rect:(NSRect)rect;

/** The whole picture in a file, which is read at once. The image is nil where there is none, a
    damaged one, or one that the platform cannot be trusted with. */
- (id)initWithPath:(NSString *)path;
- (id)initWithURL:(NSURL *)url;

/** nil if there was none. */
- (NSImage *)image;

/** In points of the image. */
- (NSRect)rect;

/** A new segment of the receiver's class, autoreleased, with the same image. `rect` is in the
    image's coordinates, not relative to the receiver's rectangle. */
- (id)imageSegmentWithRect:(NSRect)rect;

@end
