#import <OvAppKit/NSBitmapImageRep+OvAppKit.h>

#import "platform/FinerImages.h"

void OvAddFinerRepresentation(NSImage *image, NSString *path) {
  if (image == nil || [path length] == 0) return;
  NSString *name = [[path stringByDeletingPathExtension] stringByAppendingString:@"@2x"];
  NSString *finer = [name stringByAppendingPathExtension:[path pathExtension]];
  NSBitmapImageRep *bitmap = [[[NSBitmapImageRep alloc] initWithContentsOfFile:finer] autorelease];
  const NSSize size = [image size];
  if ([bitmap pixelsWide] != 2 * size.width || [bitmap pixelsHigh] != 2 * size.height) return;
  [bitmap setSize:size];
  [image addRepresentation:bitmap];
}
