#import <OvAppKit/HXImageManager.h>
#import <OvAppKit/NSImage+OvAppKit.h>

#include <bit>

#include "extensions/ImagePlacement.h"
#import "platform/ImageDrawing.h"
#include "support/GeometryBridge.h"

// What the platform's class has where there is Core Image.
@interface NSCIImageRep (OvCoreImage)
+ (id)imageRepWithCIImage:(CIImage *)image;
@end

namespace {

ov::ImagePosition positionOf(int number) {
  switch (number) {
    case 1:
      return ov::ImagePosition::Centered;
    case 2:
      return ov::ImagePosition::MaxY;
    default:
      return ov::ImagePosition::Stretched;
  }
}

// The file types that are type codes in apostrophes, or those that are not.
NSSet *fileTypes(bool quoted) {
  NSMutableSet *types = [[NSMutableSet alloc] init];
  for (NSString *type in [NSImage imageFileTypes]) {
    if ([type hasPrefix:@"'"] == quoted) [types addObject:type];
  }
  return types;
}

}  // namespace

@implementation NSImage (QEDrawingExtensions)

- (NSRect)drawInRect:(NSRect)rect
          atPosition:(int)position
              scaled:(BOOL)scaled
           operation:(NSCompositingOperation)operation
            fraction:(float)fraction {
  // A host may pass any byte as a BOOL, and only one of them means "scaled".
  const bool scales = std::bit_cast<unsigned char>(scaled) == 1;
  const NSRect destination = ov::toNS(
      ov::placeImage(ov::fromNS([self size]), ov::fromNS(rect), positionOf(position), scales));
  OvDrawWholeImage(self, destination, operation, fraction);
  return destination;
}

@end

@implementation NSImage (HXAppKitExtensions)

+ (NSImage *)imageNamed:(NSString *)name inBundleForClass:(Class)aClass {
  return [self imageNamed:name inBundle:[NSBundle bundleForClass:aClass]];
}

+ (NSImage *)imageNamed:(NSString *)name inBundle:(NSBundle *)bundle {
  return [[HXImageManager sharedImageManager] imageNamed:name inBundle:bundle];
}

+ (BOOL)canInitWithPath:(NSString *)path {
  if ([path length] == 0) return NO;
  if ([self canInitWithPathExtension:[path pathExtension]]) return YES;
  return [self canInitWithHFSFileType:NSHFSTypeOfFile(path)];
}

+ (BOOL)canInitWithPathExtension:(NSString *)extension {
  if ([extension length] == 0) return NO;
  static NSSet *const extensions = fileTypes(false);
  return [extensions containsObject:extension];
}

+ (BOOL)canInitWithHFSFileType:(NSString *)type {
  if ([type length] == 0) return NO;
  static NSSet *const types = fileTypes(true);
  return [types containsObject:type];
}

- (id)initWithCIImage:(CIImage *)image {
  NSImageRep *representation = nil;
  if (image != nil && [NSCIImageRep respondsToSelector:@selector(imageRepWithCIImage:)]) {
    representation = [NSCIImageRep imageRepWithCIImage:image];
  }
  if (representation == nil) {
    [self release];
    return nil;
  }
  self = [self initWithSize:[representation size]];
  [self addRepresentation:representation];
  return self;
}

+ (id)imageWithCIImage:(CIImage *)image {
  return [[[self alloc] initWithCIImage:image] autorelease];
}

@end
