#include "platform/ImageFileGuard.h"

#import "platform/FinerImages.h"
#include "platform/ImageHeaders.h"

BOOL OvIsSafeImageData(NSData *data) {
  if (data == nil) return NO;
  return ov::isSafeImage({static_cast<const uint8_t *>([data bytes]), [data length]});
}

NSData *OvSafeImageDataWithContentsOfFile(NSString *path) {
  if ([path length] == 0) return nil;
  NSDictionary *attributes = [[NSFileManager defaultManager] fileAttributesAtPath:path
                                                                     traverseLink:YES];
  if (![[attributes fileType] isEqualToString:NSFileTypeRegular]) return nil;
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
  if (OvSafeImageDataWithContentsOfFile(path) == nil) return nil;
  NSImage *image = [[NSImage alloc] initByReferencingFile:path];
  OvAddFinerRepresentation(image, path);
  return image;
}

NSImage *OvNewImageByReferencingURL(NSURL *url) {
  if ([url isFileURL]) return OvNewImageByReferencingFile([url path]);
  NSData *data = url ? [NSData dataWithContentsOfURL:url] : nil;
  return OvIsSafeImageData(data) ? [[NSImage alloc] initWithData:data] : nil;
}
