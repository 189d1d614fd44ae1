#import "platform/ImageDrawing.h"

void OvDrawWholeImage(NSImage *image, NSRect destination, NSCompositingOperation operation,
                      CGFloat fraction) {
  if (NSIsEmptyRect(destination) || [NSGraphicsContext currentContext] == nil) return;
  const NSSize size = [image size];
  if (!(size.width > 0) || !(size.height > 0)) return;
  [image drawInRect:destination
            fromRect:NSMakeRect(0, 0, size.width, size.height)
           operation:operation
            fraction:fraction
      respectFlipped:YES
               hints:nil];
}

void OvDrawImagePart(NSImage *image, NSRect destination, NSRect source, BOOL flipped) {
  if (NSIsEmptyRect(destination) || [NSGraphicsContext currentContext] == nil) return;
  const NSSize size = [image size];
  if (!(size.width > 0) || !(size.height > 0) || NSIsEmptyRect(source)) return;
  if (flipped) source.origin.y = size.height - NSMaxY(source);
  [image drawInRect:destination
            fromRect:source
           operation:NSCompositeSourceOver
            fraction:1
      respectFlipped:YES
               hints:nil];
}
