// HXDictionaryImageContainer: pictures by key, each an image of its own or a rectangle of one image
// that all share. Keys for the states of a control are HXImageControlDefaultImageKey and its like.
//
//   Three states side by side in Knob.png:
//     NSArray *states = [NSArray arrayWithObjects:HXImageControlDisabledImageKey,
//         HXImageControlDefaultImageKey, HXImageControlAlternateImageKey, nil];
//     knob = [[HXDictionaryImageContainer alloc] initWithImageResourceName:@"Knob"
//                                                                 keyArray:states
//                                                                 inBundle:bundle];
//     [knob drawImageInRect:rect isFlipped:[self isFlipped]
//                    forKey:HXImageControlDefaultImageKey];

#import <OvAppKit/HXImageControlConstants.h>

/** For the main thread. Nothing here reports an error: what is missing, or of another class than it
    should be, is not drawn. */
@interface HXDictionaryImageContainer : NSObject {
  NSDictionary *_imageDictionary;
  NSImage *_image;
  NSDictionary *_rectDictionary;
}

/** Images by key. The dictionary is retained, not copied. */
- (id)initWithImageDictionary:(NSDictionary *)images;

/** Rectangles (NSValue) of one image, in points, by key; the zero rectangle is the whole image.
    Both are retained. */
- (id)initWithImage:(NSImage *)image rectDictionary:(NSDictionary *)rects;

/** Images that are found in a bundle by the names that the dictionary has for the keys; one that is
    not found is left out. The main bundle is asked in the short forms, here and below, and for
    nil. */
- (id)initWithImageResourceNameDictionary:(NSDictionary *)names;
- (id)initWithImageResourceNameDictionary:(NSDictionary *)names inBundle:(NSBundle *)bundle;

/** Images whose names are the prefix and the suffix that the dictionary has for the key. */
- (id)initWithImageResourceNamePrefix:(NSString *)prefix suffixDictionary:(NSDictionary *)suffixes;
- (id)initWithImageResourceNamePrefix:(NSString *)prefix
                     suffixDictionary:(NSDictionary *)suffixes
                             inBundle:(NSBundle *)bundle;

/** An image that shows as many pictures side by side as there are keys, equally wide; the keys from
    left to right. */
- (id)initWithImage:(NSImage *)image keyArray:(NSArray *)keys;

/** One image that is found in a bundle. */
- (id)initWithImageResourceName:(NSString *)name rectDictionary:(NSDictionary *)rects;
- (id)initWithImageResourceName:(NSString *)name
                 rectDictionary:(NSDictionary *)rects
                       inBundle:(NSBundle *)bundle;
- (id)initWithImageResourceName:(NSString *)name keyArray:(NSArray *)keys;
- (id)initWithImageResourceName:(NSString *)name
                       keyArray:(NSArray *)keys
                       inBundle:(NSBundle *)bundle;

/** Whether there is an object for the key; with rectangles, NO for every key if the image is nil.
 */
- (BOOL)containsImageForKey:(NSString *)key;

/** In points; the zero size for what is not there. */
- (NSSize)imageSizeForKey:(NSString *)key;

/** Draws into the focused view, stretched to the rectangle and upright; nothing if that is empty.
    `flipped` is the view's `isFlipped`, and the image object is left flipped as it says. */
- (void)drawImageInRect:(NSRect)rect isFlipped:(BOOL)flipped forKey:(NSString *)key;

@end
