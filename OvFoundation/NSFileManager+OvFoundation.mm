#import <OvFoundation/NSFileManager+OvFoundation.h>

#include "MountedVolumes.h"
#import "SystemPath.h"

@implementation NSFileManager (OvVolumes)

- (BOOL)isNetworkVolumeAtPath:(NSString *)path {
  const auto mount = ov::mountAtPath(SystemPath(path));
  return mount && ov::isNetworkMount(*mount);
}

- (OvVolumeRef)volumeRefWithPath:(NSString *)path {
  const auto mount = ov::mountAtPath(SystemPath(path));
  return mount ? mount->id : 0;
}

@end
