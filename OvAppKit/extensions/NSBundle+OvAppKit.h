#import <AppKit/AppKit.h>

/** Bitmaps that are resources. The name, type, folder and language are those of the matching
    `pathForResource:…` methods. The answer is new and autoreleased; nil where there is no such
    resource, for an empty or nil name, and where `-[NSBitmapImageRep initWithContentsOfFile:]`
    refuses the file. */
@interface NSBundle (NSBitmapImageRep_HXAppKitExtensions)

- (NSBitmapImageRep *)bitmapImageRepForResourceNamed:(NSString *)name ofType:(NSString *)type;
- (NSBitmapImageRep *)bitmapImageRepForResourceNamed:(NSString *)name
                                              ofType:(NSString *)type
                                         inDirectory:(NSString *)directory;
- (NSBitmapImageRep *)bitmapImageRepForResourceNamed:(NSString *)name
                                              ofType:(NSString *)type
                                         inDirectory:(NSString *)directory
                                     forLocalization:(NSString *)localization;

@end

@interface NSBundle (HXAppKitExtensions)

/** The image of a name, with or without extension, as `pathForImageResource:` finds it: a new
    one at each call, autoreleased, which refers to its file. A file with "@2x" after the name
    and the same extension, of exactly twice as many pixels each way as the image has points, is
    a second representation for finer screens, and the size stays that of the first. nil where
    there is no such resource, for an empty or nil name, and for a file that
    `-[NSBitmapImageRep initWithContentsOfFile:]` would refuse as unsafe. */
- (NSImage *)imageForResource:(NSString *)name;

@end
