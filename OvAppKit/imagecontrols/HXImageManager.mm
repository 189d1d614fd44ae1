#import <OvAppKit/HXImageManager.h>

#import "platform/NamedImages.h"
#include "support/Retained.h"

namespace {

HXImageManager *sharedManager = nil;

// An image that shows nothing may have the name; one that another manager prefers keeps it.
void giveName(NSImage *image, NSString *name) {
  if ([image setName:name]) return;
  NSImage *holder = OvImageNamed(name);
  if ([holder isValid]) return;
  [holder setName:nil];
  [image setName:name];
}

}  // namespace

@implementation HXImageManager

+ (id)sharedImageManager {
  if (sharedManager == nil) sharedManager = [[self alloc] init];
  return sharedManager;
}

+ (void)setSharedImageManager:(HXImageManager *)manager {
  OvReplaceRetained(&sharedManager, manager);
}

- (NSImage *)imageNamed:(NSString *)name {
  return OvImageNamed(name);
}

- (NSImage *)imageNamed:(NSString *)name inBundle:(NSBundle *)bundle {
  NSImage *image = [self imageNamed:name];
  if ([image isValid]) return image;
  image = OvImageOfResource(bundle, name);
  if (image != nil) giveName(image, name);
  return image;
}

@end
