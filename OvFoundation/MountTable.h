// The kernel's list of mounted volumes, and which of them a path lies on.

#ifndef OV_MOUNT_TABLE_H
#define OV_MOUNT_TABLE_H

#include <string>
#include <string_view>
#include <vector>

namespace ov {

struct Mount {
  int id = 0;      ///< unique while the volume is mounted
  int parent = 0;  ///< the mount that this one's mount point lies on
  std::string point;
  std::string type;
  std::string source;
};

/// Reads the form of /proc/self/mountinfo. Lines that are not of that form are
/// passed over.
std::vector<Mount> parseMountTable(std::string_view text);

/// The mount that an absolute path without links lies on; null when the table does
/// not say. It is the one with the longest mount point, unless that one is buried:
/// a later mount may cover it, or a folder above it.
const Mount *mountCovering(const std::vector<Mount> &mounts, std::string_view path);

/// Whether the volume lies on another machine, by its type and, for file systems
/// that programs make and that give no type of their own, by a source that is an address.
bool isNetworkMount(const Mount &mount);

}  // namespace ov

#endif
