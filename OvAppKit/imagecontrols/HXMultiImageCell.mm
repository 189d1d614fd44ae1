#import <OvAppKit/HXMultiImageCell.h>

#import "platform/ArchivableImage.h"
#import "platform/ImageDrawing.h"

namespace {

constexpr NSUInteger kCapacity = 4;

NSMutableDictionary *newTable() { return [[NSMutableDictionary alloc] initWithCapacity:kCapacity]; }

// An archive may hold anything.
NSMutableDictionary *newTableOfImagesIn(id archived) {
  NSMutableDictionary *table = newTable();
  if (![archived isKindOfClass:[NSDictionary class]]) return table;
  for (id key in archived) {
    id image = [archived objectForKey:key];
    if ([key isKindOfClass:[NSString class]] && [image isKindOfClass:[NSImage class]]) {
      [table setObject:image forKey:key];
    }
  }
  return table;
}

}  // namespace

@implementation HXMultiImageCell

- (id)init {
  return [self initTextCell:@""];
}

- (id)initTextCell:(NSString *)text {
  self = [super initTextCell:text];
  if (self != nil && _images == nil) _images = newTable();
  return self;
}

- (id)initImageCell:(NSImage *)image {
  self = [super initImageCell:image];
  if (self != nil && _images == nil) _images = newTable();
  return self;
}

- (void)dealloc {
  [_images release];
  [super dealloc];
}

- (id)copyWithZone:(NSZone *)zone {
  HXMultiImageCell *copy = [super copyWithZone:zone];
  copy->_images = [_images mutableCopyWithZone:zone];
  return copy;
}

- (id)initWithCoder:(NSCoder *)coder {
  self = [super initWithCoder:coder];
  if (self == nil) return nil;
  id images;
  if ([coder allowsKeyedCoding]) {
    images = [coder decodeObjectForKey:@"images"];
    _drawsWhenDisabled = [coder decodeBoolForKey:@"drawsWhenDisabled"];
  } else {
    images = [coder decodeObject];
    signed char flag = 0;
    [coder decodeValueOfObjCType:"c" at:&flag];
    _drawsWhenDisabled = flag != 0;
  }
  [_images release];
  _images = newTableOfImagesIn(images);
  return self;
}

- (void)encodeWithCoder:(NSCoder *)coder {
  NSMutableDictionary *images = [NSMutableDictionary dictionaryWithCapacity:kCapacity];
  // The one that is shown is the same as one of the others after decoding, too.
  NSImage *const shown = _cell_image;
  NSImage *archivedShown = nil;
  for (NSString *key in _images) {
    NSImage *image = [_images objectForKey:key];
    NSImage *archived = image == shown ? archivedShown : nil;
    if (archived == nil) archived = OvArchivableImage(image);
    if (image == shown) archivedShown = archived;
    [images setObject:archived forKey:key];
  }
  if (archivedShown == nil) archivedShown = OvArchivableImage(shown);

  @try {
    _cell_image = archivedShown;
    [super encodeWithCoder:coder];
  } @finally {
    _cell_image = shown;
  }
  if ([coder allowsKeyedCoding]) {
    [coder encodeObject:images forKey:@"images"];
    [coder encodeBool:_drawsWhenDisabled forKey:@"drawsWhenDisabled"];
  } else {
    [coder encodeObject:images];
    const signed char flag = _drawsWhenDisabled ? 1 : 0;
    [coder encodeValueOfObjCType:"c" at:&flag];
  }
}

- (void)registerImage:(NSImage *)image forKey:(NSString *)key {
  if (key == nil) return;
  if (image == nil) {
    [_images removeObjectForKey:key];
  } else {
    [_images setObject:image forKey:key];
  }
}

- (void)unregistImageForKey:(NSString *)key {
  [self registerImage:nil forKey:key];
}

- (NSImage *)imageForKey:(NSString *)key {
  return key != nil ? [_images objectForKey:key] : nil;
}

- (void)setImageWithKey:(NSString *)key {
  [self setImage:[self imageForKey:key]];
}

- (void)setDrawsWhenDisabled:(BOOL)flag {
  _drawsWhenDisabled = flag;
}

- (BOOL)drawsWhenDisabled {
  return _drawsWhenDisabled;
}

- (void)drawInteriorWithFrame:(NSRect)frame inView:(NSView *)view {
  (void)view;
  NSImage *image = [self image];
  if (image == nil || (!_drawsWhenDisabled && ![self isEnabled])) return;
  const NSSize size = [image size];
  OvDrawWholeImage(image, NSMakeRect(frame.origin.x, frame.origin.y, size.width, size.height),
                   NSCompositeSourceOver, 1);
}

@end
