// The mounts of this process, and ending one: the system's side of OvVolume.h.

#ifndef OV_MOUNTED_VOLUMES_H
#define OV_MOUNTED_VOLUMES_H

#include <optional>
#include <string>

#include "MountTable.h"

namespace ov {

/// The mount that what is at the path lies on; none where there is nothing.
std::optional<Mount> mountAtPath(const std::string &path);

/// 0, or an errno.
int unmount(int mountID);

/// Stands for the system's list of mounts; nothing brings that back.
void setMountTableText(std::optional<std::string> text);

}  // namespace ov

#endif
