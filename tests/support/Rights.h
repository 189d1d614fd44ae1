// Giving up the rights of root, which may read and write everything. For a child process: the
// files stay its own, and so do the folders above them.

#pragma once

#include <linux/capability.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace ov::test {

// Answers whether that worked; it does for everybody.
inline bool giveUpRights() {
  __user_cap_header_struct header = {_LINUX_CAPABILITY_VERSION_3, 0};
  __user_cap_data_struct none[2] = {};
  return syscall(SYS_capset, &header, none) == 0;
}

}  // namespace ov::test
