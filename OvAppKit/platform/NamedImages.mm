#import "platform/NamedImages.h"

#include "platform/ImageFileGuard.h"

namespace {

bool isResourceName(NSString *name) {
  NSString *base = [[name lastPathComponent] stringByDeletingPathExtension];
  return [base length] > 0 && ![base isEqualToString:@"/"];
}

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
    if (!isResourceName(name)) return nil;
    NSString *path = [[NSBundle mainBundle] pathForImageResource:name];
    if (path != nil && OvSafeImageDataWithContentsOfFile(path) == nil) return nil;
  }
  return [NSImage imageNamed:name];
}

NSImage *OvImageOfResource(NSBundle *bundle, NSString *name) {
  if (!isResourceName(name)) return nil;
  return [OvNewImageByReferencingFile([bundle pathForImageResource:name]) autorelease];
}
