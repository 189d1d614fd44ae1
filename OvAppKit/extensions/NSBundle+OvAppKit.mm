#import <OvAppKit/NSBitmapImageRep+OvAppKit.h>
#import <OvAppKit/NSBundle+OvAppKit.h>

#import "platform/ImageFileGuard.h"
#import "platform/ImageResources.h"

namespace {

NSBitmapImageRep *bitmapAtPath(NSString *path) {
  if (path == nil) return nil;
  return [[[NSBitmapImageRep alloc] initWithContentsOfFile:path] autorelease];
}

}  // namespace

@implementation NSBundle (NSBitmapImageRep_HXAppKitExtensions)

- (NSBitmapImageRep *)bitmapImageRepForResourceNamed:(NSString *)name ofType:(NSString *)type {
  if ([name length] == 0) return nil;
  return bitmapAtPath([self pathForResource:name ofType:type]);
}

- (NSBitmapImageRep *)bitmapImageRepForResourceNamed:(NSString *)name
                                              ofType:(NSString *)type
                                         inDirectory:(NSString *)directory {
  if ([name length] == 0) return nil;
  return bitmapAtPath([self pathForResource:name ofType:type inDirectory:directory]);
}

- (NSBitmapImageRep *)bitmapImageRepForResourceNamed:(NSString *)name
                                              ofType:(NSString *)type
                                         inDirectory:(NSString *)directory
                                     forLocalization:(NSString *)localization {
  if ([name length] == 0) return nil;
  return bitmapAtPath([self pathForResource:name
                                     ofType:type
                                inDirectory:directory
                            forLocalization:localization]);
}

@end

@implementation NSBundle (HXAppKitExtensions)

- (NSImage *)imageForResource:(NSString *)name {
  NSString *path = ov::ImageResources(self, nil).pathOf(name);
  return [OvNewImageByReferencingFile(path) autorelease];
}

@end
