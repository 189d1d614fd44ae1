#import "platform/NamedImages.h"

#include "platform/ImageFileGuard.h"
#import "platform/ImageResources.h"

namespace {

NSString *pathOfImage(NSBundle *bundle, NSString *name) {
  ov::ImageResources resources(bundle, nil);
  resources.listFirst();
  return resources.pathOf(name);
}

// Asking for the image would look for its file, and read that.
bool isTaken(NSString *name) {
  NSImage *probe = [[NSImage alloc] initWithSize:NSZeroSize];
  const bool taken = ![probe setName:name];
  [probe setName:nil];
  [probe release];
  return taken;
}

// The platform has a second name for some of its own images, under which there is no file.
bool mayBeAlias(NSString *name) {
  for (NSString *start in @[ @"NS", @"GS", @"common_", @"GNUstep", @"Apple" ]) {
    if ([name hasPrefix:start]) return true;
  }
  return false;
}

}  // namespace

NSImage *OvImageNamed(NSString *name) {
  if (name == nil) return nil;
  if (!isTaken(name)) {
    NSString *path = pathOfImage([NSBundle mainBundle], name);
    if (path == nil && !mayBeAlias(name)) return nil;
    if (path != nil && OvSafeImageDataWithContentsOfFile(path) == nil) return nil;
  }
  return [NSImage imageNamed:name];
}

NSImage *OvImageOfResource(NSBundle *bundle, NSString *name) {
  if (bundle == nil) return nil;
  return [OvNewImageByReferencingFile(pathOfImage(bundle, name)) autorelease];
}
