#import "platform/ImageDrawing.h"

#include "platform/SourceClipping.h"
#include "support/GeometryBridge.h"

namespace {

void draw(NSImage *image, NSRect destination, NSRect source, BOOL flipped,
          NSCompositingOperation operation, CGFloat fraction) {
  if ([NSGraphicsContext currentContext] == nil) return;
  const NSSize size = image ? [image size] : NSZeroSize;
  auto drawing = ov::clipSource(ov::fromNS(size), ov::fromNS(source), ov::fromNS(destination));
  if (!drawing) return;
  if (flipped) drawing->source.y = size.height - drawing->source.maxY();
  [image drawInRect:ov::toNS(drawing->destination)
            fromRect:ov::toNS(drawing->source)
           operation:operation
            fraction:fraction
      respectFlipped:YES
               hints:nil];
}

}  // namespace

void OvDrawWholeImage(NSImage *image, NSRect destination, NSCompositingOperation operation,
                      CGFloat fraction) {
  draw(image, destination, NSZeroRect, NO, operation, fraction);
}

void OvDrawImagePart(NSImage *image, NSRect destination, NSRect source, BOOL flipped) {
  draw(image, destination, source, flipped, NSCompositeSourceOver, 1);
}
