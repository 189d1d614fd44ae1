#import <OvFoundation/OvVolume.h>

#include "MountedVolumes.h"

int OvUnmountVolume(OvVolumeRef volume) { return ov::unmount(volume); }

void OvSetMountTableText(NSString *text) {
  ov::setMountTableText(text ? std::optional<std::string>([text UTF8String]) : std::nullopt);
}
