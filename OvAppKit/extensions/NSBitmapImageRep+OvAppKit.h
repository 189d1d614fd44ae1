#import <AppKit/AppKit.h>
#import <OvFoundation/OvDefines.h>

#include <stdint.h>

/* One pixel of a bitmap. (0, 0) is the first pixel of the first row of the data.

     NSBitmapImageRep *bitmap = …;
     uint32_t samples[5] = {0};
     HXGetPixelFromBitmapImageRep(bitmap, samples, 3, 4);

   A bitmap that answers `colorAtX:y:` or `getPixel:atX:y:` is asked for it. From one that does
   not, 8-bit integer samples are read, with alpha that is multiplied in, or none; of any other
   layout one line in the log tells, and there is no answer. Nor is there one (and no line) for
   a nil bitmap, and for a place outside: that a bitmap without those methods and without
   `pixelsWide` and `pixelsHigh` contains the place, the caller must know. */

/** The colour of a pixel, autoreleased, or nil. The platform's own method divides the
    components by alpha; those that are read here are given as they are stored, in device RGB,
    the only colour space that is read. Where alpha is 0, and the platform's components are not
    numbers, they are 0. */
OV_EXPORT NSColor *HXGetColorFromBitmapImageRep(NSBitmapImageRep *bitmap, int x, int y);

/** The samples of a pixel as they are stored, in the order in which they are stored, of any
    colour space. `pixel` has room for as many as the bitmap has samples per pixel; elements
    for which there is no sample stay as they are, all of them where nothing can be read. */
OV_EXPORT void HXGetPixelFromBitmapImageRep(NSBitmapImageRep *bitmap, uint32_t *pixel, int x,
                                            NSInteger y);

@interface NSBitmapImageRep (HXAppKitExtensions)

/** Reads the whole file. nil, with the receiver released, for a nil path, a file that cannot
    be read, one that is no bitmap, and one that the platform cannot be trusted with: TIFF with
    samples other than 8 or 16 bits (or 1, where a pixel is one sample), pictures without
    pixels, with more than 2²⁷ of them, or with a side of more than 32,767, and GIF without
    colours. */
- (id)initWithContentsOfFile:(NSString *)path;
/** The same for what is at a URL. */
- (id)initWithContentsOfURL:(NSURL *)url;

/** A new image of that size in points, autoreleased, with the bitmap drawn over the whole of
    it, smoothly and with no regard for its proportions. nil for a size that is empty, not
    finite, or larger than 8,192 points on a side. */
- (NSImage *)imageWithSize:(NSSize)size;

@end
