#import "platform/ImageDrawing.h"

#import "platform/DeviceSpace.h"
#include "platform/SliceSampling.h"
#include "platform/SourceClipping.h"
#include "support/GeometryBridge.h"

namespace {

// Of one that has several representations, as if all were equally fine.
ov::Size pixelsOf(NSImage *image, NSSize size) {
  NSArray *representations = [image representations];
  NSImageRep *any = [representations count] > 0 ? [representations objectAtIndex:0] : nil;
  const NSInteger wide = any ? [any pixelsWide] : 0;
  const NSInteger high = any ? [any pixelsHigh] : 0;
  if (wide <= 0 || high <= 0) return ov::fromNS(size);
  return {static_cast<ov::Scalar>(wide), static_cast<ov::Scalar>(high)};
}

void draw(NSImage *image, NSRect destination, NSRect source, BOOL flipped,
          NSCompositingOperation operation, CGFloat fraction) {
  NSGraphicsContext *context = [NSGraphicsContext currentContext];
  if (context == nil) return;
  const NSSize size = image ? [image size] : NSZeroSize;
  auto drawing = ov::clipSource(ov::fromNS(size), ov::fromNS(source), ov::fromNS(destination));
  if (!drawing) return;
  if (flipped) drawing->source.y = size.height - drawing->source.maxY();
  const ov::SliceSampling sampling =
      ov::sampleSlice(drawing->destination, drawing->source,
                      {ov::fromNS(size), pixelsOf(image, size)}, ov::deviceTransform(context));
  if (sampling.clips) {
    [context saveGraphicsState];
    NSRectClip(ov::toNS(drawing->destination));
  }
  [image drawInRect:ov::toNS(sampling.destination)
            fromRect:ov::toNS(sampling.source)
           operation:operation
            fraction:fraction
      respectFlipped:YES
               hints:nil];
  if (sampling.clips) [context restoreGraphicsState];
}

}  // namespace

void OvDrawWholeImage(NSImage *image, NSRect destination, NSCompositingOperation operation,
                      CGFloat fraction) {
  draw(image, destination, NSZeroRect, NO, operation, fraction);
}

void OvDrawImagePart(NSImage *image, NSRect destination, NSRect source, BOOL flipped) {
  draw(image, destination, source, flipped, NSCompositeSourceOver, 1);
}
