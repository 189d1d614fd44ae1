#import "platform/NamedImages.h"

#include "platform/ImageFileGuard.h"
#include "platform/ImageResources.h"

namespace {

// Asking for the image would look for its file, and read that.
bool isTaken(NSString *name) {
  NSImage *probe = [[NSImage alloc] initWithSize:NSZeroSize];
  const bool taken = ![probe setName:name];
  [probe setName:nil];
  [probe release];
  return taken;
}

}  // namespace

NSImage *OvImageNamed(NSString *name) {
  if (name == nil) return nil;
  if (!isTaken(name)) {
    if (!ov::isResourceName(name)) return nil;
    NSString *path = [[NSBundle mainBundle] pathForImageResource:name];
    if (path != nil && OvSafeImageDataWithContentsOfFile(path) == nil) return nil;
  }
  return [NSImage imageNamed:name];
}

NSImage *OvImageOfResource(NSBundle *bundle, NSString *name) {
  if (bundle == nil) return nil;
  NSString *path = ov::ImageResources(bundle, nil).pathOf(name);
  return [OvNewImageByReferencingFile(path) autorelease];
}
