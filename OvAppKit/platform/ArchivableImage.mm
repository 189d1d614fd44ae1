#import "platform/ArchivableImage.h"

#import "platform/ImageDrawing.h"

namespace {

NSBitmapImageRep *drawnBitmap(NSImage *image) {
  const NSSize size = [image size];
  const NSRect bounds = NSMakeRect(0, 0, size.width, size.height);
  if (NSIsEmptyRect(bounds)) return nil;
  NSImage *canvas = [[[NSImage alloc] initWithSize:size] autorelease];
  [canvas lockFocus];
  OvDrawWholeImage(image, bounds, NSCompositeCopy, 1);
  NSBitmapImageRep *bitmap = [[NSBitmapImageRep alloc] initWithFocusedViewRect:bounds];
  [canvas unlockFocus];
  return [bitmap autorelease];
}

}  // namespace

NSImage *OvArchivableImage(NSImage *image) {
  if (image == nil) return nil;
  NSImage *result = [[[NSImage alloc] initWithSize:[image size]] autorelease];
  for (NSImageRep *each in [image representations]) {
    if ([each isKindOfClass:[NSBitmapImageRep class]]) [result addRepresentation:each];
  }
  if ([[result representations] count] == 0 && [[image representations] count] > 0) {
    [result addRepresentation:drawnBitmap(image)];
  }
  [result setBackgroundColor:[image backgroundColor]];
  [result setFlipped:[image isFlipped]];
  [result setScalesWhenResized:[image scalesWhenResized]];
  return result;
}
