#import <AppKit/AppKit.h>

/** A cell with several images under keys, of which it shows one, unscaled, at the origin of its
    frame. The rest of the frame is left alone.

      HXMultiImageCell *cell = [[[HXMultiImageCell alloc] init] autorelease];
      [cell registerImage:closed forKey:@"closed"];
      [cell registerImage:open forKey:@"open"];
      [cell setImageWithKey:@"closed"];

    HXMultiImageButton uses it, with the keys that are declared there. */
@interface HXMultiImageCell : NSActionCell {
  NSMutableDictionary *_images;
  BOOL _drawsWhenDisabled;
}

// MARK: Creating

/** A cell without images. The image of `initImageCell:` is shown, and under no key. */
- (id)init;
- (id)initTextCell:(NSString *)text;
- (id)initImageCell:(NSImage *)image;

/** A cell from an archive, keyed or sequential, and a cell into one: what the platform's cell
    keeps, the images and `drawsWhenDisabled`. Images are kept with their pixels, in all their
    resolutions, wherever they came from; their names are not. What an archive has that is no
    image is left out. */
- (id)initWithCoder:(NSCoder *)coder;
- (void)encodeWithCoder:(NSCoder *)coder;

/** A copy has a table of its own with the same images. */
- (id)copyWithZone:(NSZone *)zone;

// MARK: Images

/** Keeps the image, retained, under the key, in place of the former one; nil: removes the key.
    The image that is shown stays. Nothing happens for a nil key. */
- (void)registerImage:(NSImage *)image forKey:(NSString *)key;
/** Removes the key. The name of the method stays as it is written, deliberately. */
- (void)unregistImageForKey:(NSString *)key;
/** nil where there is none. */
- (NSImage *)imageForKey:(NSString *)key;

/** Shows the image of the key. Shows none where there is none. */
- (void)setImageWithKey:(NSString *)key;

// MARK: Drawing

/** Whether the image is drawn while the cell is disabled, too. NO at first. */
- (void)setDrawsWhenDisabled:(BOOL)flag;
- (BOOL)drawsWhenDisabled;

/** Draws the image at the frame's origin in its own size, upright also in flipped views, where
    the origin is the top left. */
- (void)drawInteriorWithFrame:(NSRect)frame inView:(NSView *)view;

@end
