#import <OvAppKit/HXImageSegment.h>

#import "platform/ImageFileGuard.h"

@implementation HXImageSegment

- (id)init {
  return [self initWithImage:nil];
}

- (id)initWithImage:(NSImage *)image {
  const NSSize size = image ? [image size] : NSZeroSize;
  return [self initWithImage:image rect:NSMakeRect(0, 0, size.width, size.height)];
}

- (id)initWithImage:(NSImage *)image rect:(NSRect)rect {
  self = [super init];
  if (self == nil) return nil;
  image_ = [image retain];
  rect_ = rect;
  return self;
}

- (id)initWithPath:(NSString *)path {
  NSImage *image = OvNewImageByReferencingFile(path);
  self = [self initWithImage:image];
  [image release];
  return self;
}

- (id)initWithURL:(NSURL *)url {
  NSImage *image = OvNewImageByReferencingURL(url);
  self = [self initWithImage:image];
  [image release];
  return self;
}

- (void)dealloc {
  [image_ release];
  [super dealloc];
}

- (NSImage *)image {
  return image_;
}

- (NSRect)rect {
  return rect_;
}

- (id)imageSegmentWithRect:(NSRect)rect {
  return [[[[self class] alloc] initWithImage:image_ rect:rect] autorelease];
}

@end
