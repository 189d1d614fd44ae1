#include "platform/ImageFileGuard.h"

#include "platform/ImageHeaders.h"

namespace {

// As the most pixels without compression.
constexpr unsigned long long kMostBytes = 4 * ov::kMostImagePixels;

NSImage *newImage(NSData *data) __attribute__((ns_returns_retained));
NSImage *newImage(NSData *data) {
  if (data == nil) return nil;
  NSImage *image = [NSImage alloc];
  @try {
    return [image initWithData:data];
  } @catch (NSException *) {
    // Some damage is met with an exception: a JPEG without pixels, less than four bytes.
    [image release];
    return nil;
  }
}

}  // namespace

BOOL OvIsSafeImageData(NSData *data) {
  if (data == nil) return NO;
  return ov::isSafeImage({static_cast<const uint8_t *>([data bytes]), [data length]});
}

NSData *OvSafeImageDataWithContentsOfFile(NSString *path) {
  if ([path length] == 0) return nil;
  NSDictionary *attributes = [[NSFileManager defaultManager] fileAttributesAtPath:path
                                                                     traverseLink:YES];
  if (![[attributes fileType] isEqualToString:NSFileTypeRegular]) return nil;
  // Without a size are also files of the system that make their content up, and may wait for it.
  const unsigned long long size = [attributes fileSize];
  if (size == 0 || size > kMostBytes) return nil;
  NSData *data = [NSData dataWithContentsOfFile:path];
  return OvIsSafeImageData(data) ? data : nil;
}

NSBitmapImageRep *OvInitBitmapWithData(NSBitmapImageRep *bitmap, NSData *data) {
  if (!OvIsSafeImageData(data)) {
    [bitmap release];
    return nil;
  }
  // A TIFF that fails releases the bitmap and answers it all the same. With a reference of
  // ours it lives on, and the one that is missing tells.
  [bitmap retain];
  const NSUInteger references = [bitmap retainCount];
  NSBitmapImageRep *result = [bitmap initWithData:data];
  if (result == bitmap && [bitmap retainCount] < references) result = nil;
  [bitmap release];
  return result;
}

NSImage *OvNewImageByReferencingFile(NSString *path) {
  return newImage(OvSafeImageDataWithContentsOfFile(path));
}

NSImage *OvNewImageByReferencingURL(NSURL *url) {
  if ([url isFileURL]) return OvNewImageByReferencingFile([url path]);
  NSData *data = url ? [NSData dataWithContentsOfURL:url] : nil;
  return OvIsSafeImageData(data) ? newImage(data) : nil;
}
