#import <OvAppKit/HXDictionaryImageContainer.h>
#import <OvAppKit/NSBundle+OvAppKit.h>

#include <cstring>

#import "platform/ImageDrawing.h"
#include "support/Retained.h"

namespace {

BOOL holdsRect(id object) {
  return [object isKindOfClass:[NSValue class]] &&
         std::strcmp([object objCType], @encode(NSRect)) == 0;
}

NSRect rectOrZero(id object) { return holdsRect(object) ? [object rectValue] : NSZeroRect; }

NSImage *imageOrNil(id object) { return [object isKindOfClass:[NSImage class]] ? object : nil; }

NSImage *resource(id name, NSBundle *bundle) {
  if (![name isKindOfClass:[NSString class]]) return nil;
  return [bundle ?: [NSBundle mainBundle] imageForResource:name];
}

// The rectangles of pictures that stand side by side.
NSDictionary *tiles(NSImage *image, NSArray *keys) {
  NSMutableDictionary *rects = [NSMutableDictionary dictionary];
  const NSSize size = image ? [image size] : NSZeroSize;
  const NSUInteger count = [keys count];
  for (NSUInteger i = 0; i < count; ++i) {
    const double width = static_cast<double>(size.width) / static_cast<double>(count);
    const NSRect rect = NSMakeRect(i * width, 0, width, size.height);
    [rects setObject:[NSValue valueWithRect:rect] forKey:[keys objectAtIndex:i]];
  }
  return rects;
}

}  // namespace

@interface HXDictionaryImageContainer ()
- (id)_objectForKey:(NSString *)key;
@end

@implementation HXDictionaryImageContainer

- (id)initWithImageDictionary:(NSDictionary *)images {
  self = [super init];
  if (self == nil) return nil;
  _imageDictionary = [images retain];
  return self;
}

- (id)initWithImage:(NSImage *)image rectDictionary:(NSDictionary *)rects {
  self = [super init];
  if (self == nil) return nil;
  _image = [image retain];
  _rectDictionary = [rects retain];
  return self;
}

- (id)initWithImageResourceNameDictionary:(NSDictionary *)names {
  return [self initWithImageResourceNameDictionary:names inBundle:[NSBundle mainBundle]];
}

- (id)initWithImageResourceNameDictionary:(NSDictionary *)names inBundle:(NSBundle *)bundle {
  NSMutableDictionary *images = [NSMutableDictionary dictionary];
  for (id key in names) {
    NSImage *image = resource([names objectForKey:key], bundle);
    if (image) [images setObject:image forKey:key];
  }
  return [self initWithImageDictionary:images];
}

- (id)initWithImageResourceNamePrefix:(NSString *)prefix suffixDictionary:(NSDictionary *)suffixes {
  return [self initWithImageResourceNamePrefix:prefix
                              suffixDictionary:suffixes
                                      inBundle:[NSBundle mainBundle]];
}

- (id)initWithImageResourceNamePrefix:(NSString *)prefix
                     suffixDictionary:(NSDictionary *)suffixes
                             inBundle:(NSBundle *)bundle {
  NSMutableDictionary *names = [NSMutableDictionary dictionary];
  for (id key in suffixes) {
    id suffix = [suffixes objectForKey:key];
    if (![suffix isKindOfClass:[NSString class]]) continue;
    [names setObject:[prefix ?: @"" stringByAppendingString:suffix] forKey:key];
  }
  return [self initWithImageResourceNameDictionary:names inBundle:bundle];
}

- (id)initWithImage:(NSImage *)image keyArray:(NSArray *)keys {
  return [self initWithImage:image rectDictionary:tiles(image, keys)];
}

- (id)initWithImageResourceName:(NSString *)name rectDictionary:(NSDictionary *)rects {
  return [self initWithImageResourceName:name rectDictionary:rects inBundle:[NSBundle mainBundle]];
}

- (id)initWithImageResourceName:(NSString *)name
                 rectDictionary:(NSDictionary *)rects
                       inBundle:(NSBundle *)bundle {
  return [self initWithImage:resource(name, bundle) rectDictionary:rects];
}

- (id)initWithImageResourceName:(NSString *)name keyArray:(NSArray *)keys {
  return [self initWithImageResourceName:name keyArray:keys inBundle:[NSBundle mainBundle]];
}

- (id)initWithImageResourceName:(NSString *)name
                       keyArray:(NSArray *)keys
                       inBundle:(NSBundle *)bundle {
  return [self initWithImage:resource(name, bundle) keyArray:keys];
}

- (void)dealloc {
  [_imageDictionary release];
  [_image release];
  [_rectDictionary release];
  [super dealloc];
}

// An image in the one mode, a rectangle in the other; whatever the host put there.
- (id)_objectForKey:(NSString *)key {
  if (key == nil) return nil;
  if (_imageDictionary) return [_imageDictionary objectForKey:key];
  return _image ? [_rectDictionary objectForKey:key] : nil;
}

- (BOOL)containsImageForKey:(NSString *)key {
  return [self _objectForKey:key] != nil;
}

- (NSSize)imageSizeForKey:(NSString *)key {
  id object = [self _objectForKey:key];
  if (_imageDictionary == nil) return rectOrZero(object).size;
  NSImage *image = imageOrNil(object);
  return image ? [image size] : NSZeroSize;
}

- (void)drawImageInRect:(NSRect)rect isFlipped:(BOOL)flipped forKey:(NSString *)key {
  id object = [self _objectForKey:key];
  if (_imageDictionary == nil && !holdsRect(object)) return;
  // A host's image may change the dictionary while it is drawn.
  const auto image = ov::retain(_imageDictionary ? imageOrNil(object) : _image);
  const NSRect source = _imageDictionary ? NSZeroRect : rectOrZero(object);
  [image.get() setFlipped:flipped];
  OvDrawImagePart(image.get(), rect, source, flipped);
}

@end
