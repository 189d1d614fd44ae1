#import <AppKit/AppKit.h>

@class CIImage;

@interface NSImage (QEDrawingExtensions)

/** Draws the whole image into a rectangle of the focused view, upright in flipped views, too.
    The answer is the rectangle that it was drawn into.

      [image drawInRect:[self bounds]
             atPosition:1
                 scaled:YES
              operation:NSCompositeSourceOver
               fraction:1];

      position 1: centred        position 2: max y edge      any other: stretched
      +--------------+           +--------------+            +--------------+
      |              |           |   ########   |            |##############|
      |   ########   |           |   ########   |            |##############|
      |   ########   |           |              |            |##############|
      |              |           |              |            |##############|
      +--------------+           +--------------+            +--------------+

    `scaled` (exactly 1) makes the image as large as fits, smaller or larger than it is, in its
    proportions; the factor is a number of single precision. Otherwise it keeps its size and may
    be larger than the rectangle. The width and height are rounded down to whole points, and so
    is the origin, except that y at position 2 is not, deliberately: the image touches the max y
    edge. A stretched image fills `rect` as it is.

    Nothing is drawn where the image or the answer has no area; for the factor, a side of the image
    without length does not count. The answer is the zero rectangle, and nothing is drawn, where a
    number is not finite or becomes too large. `operation` and `fraction` (0 transparent, 1
    opaque) are those of `drawInRect:fromRect:…`. Without focus there is only the answer. */
- (NSRect)drawInRect:(NSRect)rect
          atPosition:(int)position
              scaled:(BOOL)scaled
           operation:(NSCompositingOperation)operation
            fraction:(float)fraction;

@end

@interface NSImage (HXAppKitExtensions)

/** The image of a name, from a bundle or that of a class, as the shared HXImageManager finds it:
    one that has the name already, or that of the bundle's file, which has it from then on. nil
    where there is none; without a bundle or class, only the first is looked for. */
+ (NSImage *)imageNamed:(NSString *)name inBundleForClass:(Class)aClass;
+ (NSImage *)imageNamed:(NSString *)name inBundle:(NSBundle *)bundle;

/** Whether an image can be made of a file, by the extension of its path, or else by its type
    code (which the platform has for no file). The file itself is not looked at: it may not be
    there, or damaged. */
+ (BOOL)canInitWithPath:(NSString *)path;

/** Whether it is among the extensions of `imageFileTypes`, which is asked once in the life of the
    process. Case counts. NO for an empty or nil extension, without asking. */
+ (BOOL)canInitWithPathExtension:(NSString *)extension;

/** Whether a type code in its apostrophes ("'PICT'") is among the `imageFileTypes`, asked once in
    the life of the process. NO for an empty or nil one, without asking. */
+ (BOOL)canInitWithHFSFileType:(NSString *)type;

/** An image of the size of the Core Image image, with one representation, which draws it. nil,
    with the receiver released, for nil, and where the platform cannot make the representation:
    it declares NSCIImageRep, but has no Core Image so far. */
- (id)initWithCIImage:(CIImage *)image;
/** The same, autoreleased. */
+ (id)imageWithCIImage:(CIImage *)image;

@end
