#include "MountedVolumes.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <utility>

namespace ov {
namespace {

std::optional<std::string> &givenTable() {
  static std::optional<std::string> text;
  return text;
}

std::vector<Mount> currentMounts() {
  if (const auto &given = givenTable()) return parseMountTable(*given);
  std::ifstream file("/proc/self/mountinfo", std::ios::binary);
  return parseMountTable(std::string(std::istreambuf_iterator<char>(file), {}));
}

// The absolute path without links, as far as the system can follow it; beyond that, as
// it stands. A volume whose server is gone cannot be followed into, but has its place.
std::filesystem::path resolved(const std::filesystem::path &path) {
  std::error_code error;
  std::filesystem::path known = std::filesystem::absolute(path, error).lexically_normal();
  if (error) return {};
  std::filesystem::path rest;
  for (;;) {
    const std::filesystem::path real = std::filesystem::canonical(known, error);
    if (!error) return rest.empty() ? real : real / rest;
    if (!known.has_relative_path()) return {};
    rest = rest.empty() ? known.filename() : known.filename() / rest;
    known = known.parent_path();
  }
}

bool runUmount(const std::string &point) {
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addopen(&actions, 0, "/dev/null", O_RDONLY, 0);
  posix_spawn_file_actions_addopen(&actions, 1, "/dev/null", O_WRONLY, 0);
  posix_spawn_file_actions_addopen(&actions, 2, "/dev/null", O_WRONLY, 0);
  std::string program = "umount", end = "--", place = point;
  char *const arguments[] = {program.data(), end.data(), place.data(), nullptr};
  pid_t process = 0;
  const int error = posix_spawn(&process, "/bin/umount", &actions, nullptr, arguments, environ);
  posix_spawn_file_actions_destroy(&actions);
  if (error) return false;
  // A host that ignores its children's ends gets ECHILD here; whether the volume is
  // gone is read from the table in any case.
  while (waitpid(process, nullptr, 0) < 0 && errno == EINTR) {
  }
  return true;
}

const Mount *mountWithID(const std::vector<Mount> &mounts, int id) {
  const auto found = std::ranges::find(mounts, id, &Mount::id);
  return found == mounts.end() ? nullptr : &*found;
}

}  // namespace

std::optional<Mount> mountAtPath(const std::string &path) {
  struct stat info;
  if (path.empty()) return std::nullopt;
  if (stat(path.c_str(), &info) != 0 && (errno == ENOENT || errno == ENOTDIR || errno == ELOOP)) {
    return std::nullopt;
  }
  const std::vector<Mount> mounts = currentMounts();
  const Mount *mount = mountCovering(mounts, resolved(path).native());
  return mount ? std::optional(*mount) : std::nullopt;
}

int unmount(int mountID) {
  const std::vector<Mount> mounts = currentMounts();
  const Mount *mount = mountID > 0 ? mountWithID(mounts, mountID) : nullptr;
  if (!mount) return ENODEV;
  // The system would not unmount the root but forbid writing to it.
  if (mount->point == "/") return EBUSY;
  // The system unmounts what is uppermost at a place, which may be another volume.
  const Mount *uppermost = mountCovering(mounts, mount->point);
  if (!uppermost || uppermost->id != mountID) return EBUSY;
  if (umount2(mount->point.c_str(), UMOUNT_NOFOLLOW) == 0) return 0;
  const int error = errno;
  if (error != EPERM) return error;
  if (runUmount(mount->point) && mountWithID(currentMounts(), mountID) == nullptr) return 0;
  return error;
}

void setMountTableText(std::optional<std::string> text) { givenTable() = std::move(text); }

}  // namespace ov
