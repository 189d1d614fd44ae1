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
    one at each call, autoreleased. nil where there is no such resource, for an empty or nil name,
    and for a file that holds no picture, a damaged one, or one that
    `-[NSBitmapImageRep initWithContentsOfFile:]` would refuse as unsafe. */
- (NSImage *)imageForResource:(NSString *)name;

@end
