#include "FaultyCalls.h"

#include <dlfcn.h>
#include <fcntl.h>
#include <spawn.h>
#include <sys/mount.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>

FaultyCalls &faultyCalls() {
  static FaultyCalls calls;
  return calls;
}

namespace {

// -1 with errno when there is an error, as the system answers.
int answer(int error) {
  if (!error) return 0;
  errno = error;
  return -1;
}

}  // namespace

extern "C" {

__attribute__((visibility("default"))) int rename(const char *from, const char *to) noexcept {
  if (faultyCalls().beforeRename) {
    if (const int error = faultyCalls().beforeRename(from, to)) return answer(error);
  }
  const int result = int(syscall(SYS_renameat2, AT_FDCWD, from, AT_FDCWD, to, 0));
  if (result == 0 && faultyCalls().afterRename) faultyCalls().afterRename();
  return result;
}

__attribute__((visibility("default"))) int fsync(int fd) {
  if (faultyCalls().beforeFlush) {
    if (const int error = faultyCalls().beforeFlush(fd)) return answer(error);
  }
  return int(syscall(SYS_fsync, fd));
}

__attribute__((visibility("default"))) int umount2(const char *point, int flags) noexcept {
  if (faultyCalls().unmount) return answer(faultyCalls().unmount(point));
  return int(syscall(SYS_umount2, point, flags));
}

__attribute__((visibility("default"))) int posix_spawn(pid_t *process, const char *path,
                                                       const posix_spawn_file_actions_t *actions,
                                                       const posix_spawnattr_t *attributes,
                                                       char *const arguments[],
                                                       char *const environment[]) {
  if (faultyCalls().spawn) {
    const int error = faultyCalls().spawn(path, arguments[2]);
    if (error) return error;
    path = "/bin/true";
  }
  const auto real = reinterpret_cast<decltype(&posix_spawn)>(dlsym(RTLD_NEXT, "posix_spawn"));
  return real(process, path, actions, attributes, arguments, environment);
}

}  // extern "C"
