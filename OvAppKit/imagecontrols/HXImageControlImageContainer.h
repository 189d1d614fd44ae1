// HXImageControlImageContainer: the pictures of a control, by piece and by state.
//
// A control asks its container to draw a state into a rectangle. The container finds its pictures
// by their names:
//
//   Button-default.png, Button-default-left.png, … Button-disabled-right-bottom.png:
//     art = [[HXImageControlImageContainer alloc]
//         initWithSeparatedImageResourceNamePrefix:@"Button" inBundle:bundle];
//
//   Plate-default.png, Plate-highlighted.png, …, each cut into nine:
//     art = [[HXImageControlImageContainer alloc]
//         initWithStrechableImageResourceNamePrefix:@"Plate" leftCap:8 topCap:8 inBundle:bundle];
//
//   [button setImageContainer:art];
//
// Only Default pictures are needed: a state without one of its own shows that of Default.

#import <OvAppKit/HXImageControlConstants.h>

@class HXImageControlImageResourceNameSuffixRegistry, HXImageSegment;

/** For the main thread.

    Nothing here reports an error: a picture that is missing, damaged or not to be trusted leaves
    its place empty, and nothing is drawn there.

    "Strechable" in the selectors is spelled so deliberately. */
@interface HXImageControlImageContainer : NSObject {
  HXImageSegment *imageSegments_[11][5];
  struct OvImageContainerState *_state;
}

/** The naming scheme of the pictures. Every initialiser below that loads by name asks the class of
    the object that is made, so that a subclass may answer a registry of its own. The one of this
    class is shared: changing it changes the names for all containers made afterwards. */
+ (HXImageControlImageResourceNameSuffixRegistry *)imageResourceNameSuffixRegistry;

/** Without pictures. */
- (id)init;

/** One picture for each piece and state, each named with both suffixes. A nil bundle is the main
    bundle, here and below; so is that of the short forms. */
- (id)initWithSeparatedImageResourceNamePrefix:(NSString *)prefix;
- (id)initWithSeparatedImageResourceNamePrefix:(NSString *)prefix inBundle:(NSBundle *)bundle;

/** One picture for each state, named with the suffix of the state only, and cut into nine pieces as
    by `setStrechableImage:…`. */
- (id)initWithStrechableImageResourceNamePrefix:(NSString *)prefix
                                        leftCap:(CGFloat)leftCap
                                         topCap:(CGFloat)topCap;
- (id)initWithStrechableImageResourceNamePrefix:(NSString *)prefix
                                        leftCap:(CGFloat)leftCap
                                         topCap:(CGFloat)topCap
                                       inBundle:(NSBundle *)bundle;

/** One picture of just this name that shows `count` states side by side, equally wide; `variations`
    says which, from left to right. Each is the center of its state. */
- (id)initWithTiledImageResourceName:(NSString *)name
                     imageVariations:(const int32_t *)variations
                               count:(NSUInteger)count;
- (id)initWithTiledImageResourceName:(NSString *)name
                     imageVariations:(const int32_t *)variations
                               count:(NSUInteger)count
                            inBundle:(NSBundle *)bundle;

/** The same, each state cut into nine pieces. */
- (id)initWithTiledStrechableImageResourceName:(NSString *)name
                                       leftCap:(CGFloat)leftCap
                                        topCap:(CGFloat)topCap
                               imageVariations:(const int32_t *)variations
                                         count:(NSUInteger)count;
- (id)initWithTiledStrechableImageResourceName:(NSString *)name
                                       leftCap:(CGFloat)leftCap
                                        topCap:(CGFloat)topCap
                               imageVariations:(const int32_t *)variations
                                         count:(NSUInteger)count
                                      inBundle:(NSBundle *)bundle;

// MARK: Pictures

/** Retained; nil takes the picture away. Nothing happens for what is no part or variation, here and
    below. Controls that show the container are not told: mark them for display. */
- (void)setImage:(HXImageSegment *)segment
      forImagePart:(HXImageControlImagePart)part
    imageVariation:(HXImageControlImageVariation)variation;
- (void)setImageWithPath:(NSString *)path
            forImagePart:(HXImageControlImagePart)part
          imageVariation:(HXImageControlImageVariation)variation;

/** Cuts a picture into up to nine pieces. The caps are in points; a negative one counts as 0. The
    right cap is as wide as the left one, the bottom cap as tall as the top one.

       leftCap > 0, topCap > 0      only leftCap > 0     only topCap > 0     neither
        +--+--------+--+            +--+--------+--+     +--------------+    +--------------+
        |LT|   T    |RT|            |  |        |  |     |      T       |    |              |
        +--+--------+--+            |  |        |  |     +--------------+    |              |
        |L |   C    | R|            |L |   C    | R|     |      C       |    |      C       |
        +--+--------+--+            |  |        |  |     +--------------+    |              |
        |LB|   B    |RB|            |  |        |  |     |      B       |    |              |
        +--+--------+--+            +--+--------+--+     +--------------+    +--------------+

    The state loses all that it had before, its icon and accessory, too. A nil segment only does
    that. */
- (void)setStrechableImage:(HXImageSegment *)segment
                   leftCap:(CGFloat)leftCap
                    topCap:(CGFloat)topCap
         forImageVariation:(HXImageControlImageVariation)variation;
- (void)setStrechableImageWithPath:(NSString *)path
                           leftCap:(CGFloat)leftCap
                            topCap:(CGFloat)topCap
                 forImageVariation:(HXImageControlImageVariation)variation;

- (void)removeAllImages;
/** All variations of a part; the name says "key", deliberately. */
- (void)removeAllImagesForImageKey:(HXImageControlImagePart)part;
- (void)removeAllImagesForImageVariation:(HXImageControlImageVariation)variation;

/** Whether the Default picture of the part is there; others do not count. */
- (BOOL)containsImageForImagePart:(HXImageControlImagePart)part;

/** Whether this very picture is there. */
- (BOOL)containsImageVariation:(HXImageControlImageVariation)variation
                  forImagePart:(HXImageControlImagePart)part;

/** The size of the part's Default picture, in points; the zero size if there is none. */
- (NSSize)imageSizeForImagePart:(HXImageControlImagePart)part;

@end

@interface HXImageControlImageContainer (HXImageControlImageContainerDrawing)

/** Draws a frame into the focused view: edges and corners in their own thickness, stretched along
    the sides, then the center, stretched over the rest. `flipped` is the view's `isFlipped`.

    Which pieces there are, and how large they are, is told by the Default pictures whatever the
    state; each piece is then drawn in the state, or else in Default. Nothing is drawn without a
    Default center. The right bottom corner is drawn with the size of the left bottom one,
    deliberately: corners are made in equal sizes.

    Where two pieces meet within a device pixel, both end at its nearer boundary, so that nothing
    shows between them; the edges of `rect` stay where they are.

    Every piece is drawn by `drawImageInRect:isFlipped:imagePart:imageVariation:`, which a subclass
    may override; so are `imageSizeForImagePart:` and the `containsImage…` methods asked each time.
    Where none of them is overridden, a frame that was drawn before in its size is drawn as one
    picture, until one of its images changes: another segment, another size or other
    representations of an image, `recache`, drawing between `lockFocus` and `unlockFocus`. Pixels
    that are changed in a representation need `recache`, as the platform wants it. The pictures of
    a container take 4 megabytes at most, those of all containers 8. */
- (void)drawImageInRect:(NSRect)rect
              isFlipped:(BOOL)flipped
         imageVariation:(HXImageControlImageVariation)variation;

/** Draws one piece, stretched to the rectangle and upright, in any view; Default stands in for a
    state that is not there. Nothing is drawn if the rectangle is empty or not finite. The image
    object is left flipped as `flipped` says. */
- (void)drawImageInRect:(NSRect)rect
              isFlipped:(BOOL)flipped
              imagePart:(HXImageControlImagePart)part
         imageVariation:(HXImageControlImageVariation)variation;

@end
