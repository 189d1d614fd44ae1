#include "MountTable.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <ranges>

namespace ov {
namespace {

std::string_view nextField(std::string_view &line) {
  const std::size_t start = std::min(line.find_first_not_of(' '), line.size());
  line.remove_prefix(start);
  const std::size_t end = std::min(line.find(' '), line.size());
  const std::string_view field = line.substr(0, end);
  line.remove_prefix(end);
  return field;
}

bool readNumber(std::string_view field, int &number) {
  const auto [end, error] = std::from_chars(field.data(), field.data() + field.size(), number);
  return error == std::errc() && end == field.data() + field.size();
}

bool isOctal(char c) { return c >= '0' && c <= '7'; }

// Spaces, tabs, line ends and backslashes stand as a backslash and three octal digits.
std::string unescaped(std::string_view field) {
  std::string text;
  text.reserve(field.size());
  for (std::size_t i = 0; i < field.size(); ++i) {
    if (field[i] == '\\' && i + 3 < field.size() && isOctal(field[i + 1]) &&
        isOctal(field[i + 2]) && isOctal(field[i + 3])) {
      text += char((field[i + 1] - '0') * 64 + (field[i + 2] - '0') * 8 + (field[i + 3] - '0'));
      i += 3;
    } else {
      text += field[i];
    }
  }
  return text;
}

// 36 35 98:0 /root /mount/point rw,noatime [optional fields] - type source superoptions
bool readMount(std::string_view line, Mount &mount) {
  if (!readNumber(nextField(line), mount.id) || !readNumber(nextField(line), mount.parent)) {
    return false;
  }
  nextField(line);  // device
  nextField(line);  // root
  mount.point = unescaped(nextField(line));
  std::string_view field = nextField(line);  // options
  while (!field.empty() && field != "-") field = nextField(line);
  mount.type = unescaped(nextField(line));
  mount.source = unescaped(nextField(line));
  return !mount.type.empty() && mount.point.starts_with('/');
}

const Mount *mountAt(const std::vector<Mount> &mounts, std::string_view point, const Mount *below) {
  const auto isKnown = [&](int id) {
    return std::ranges::any_of(mounts, [id](const Mount &mount) { return mount.id == id; });
  };
  for (const Mount &mount : std::views::reverse(mounts)) {
    if (mount.point != point || &mount == below) continue;
    // The table of a changed root begins with mounts whose parent it does not show.
    if (below ? mount.parent == below->id : mount.parent == mount.id || !isKnown(mount.parent)) {
      return &mount;
    }
  }
  return nullptr;
}

// What is mounted over what, at one place.
const Mount *topmostAt(const std::vector<Mount> &mounts, std::string_view point,
                       const Mount *below) {
  for (std::size_t step = 0; step < mounts.size(); ++step) {
    const Mount *next = mountAt(mounts, point, below);
    if (!next) break;
    below = next;
  }
  return below;
}

}  // namespace

std::vector<Mount> parseMountTable(std::string_view text) {
  std::vector<Mount> mounts;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    Mount mount;
    if (readMount(text.substr(0, end), mount)) mounts.push_back(std::move(mount));
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return mounts;
}

const Mount *mountCovering(const std::vector<Mount> &mounts, std::string_view path) {
  if (!path.starts_with('/')) return nullptr;
  // The way the kernel goes: from the root down, stepping onto whatever is mounted at
  // each folder of the volume reached so far.
  const Mount *mount = topmostAt(mounts, "/", nullptr);
  std::string place;
  while (!path.empty()) {
    const std::size_t start = std::min(path.find_first_not_of('/'), path.size());
    path.remove_prefix(start);
    const std::size_t end = std::min(path.find('/'), path.size());
    if (end == 0) break;
    place += '/';
    place += path.substr(0, end);
    path.remove_prefix(end);
    mount = topmostAt(mounts, place, mount);
  }
  return mount;
}

bool isNetworkMount(const Mount &mount) {
  static constexpr std::array<std::string_view, 39> types = {
      "9p",          "acfs",           "afs",           "auristorfs",     "beegfs",
      "ceph",        "cifs",           "coda",          "davfs",          "davfs2",
      "fuse.ceph",   "fuse.ceph-fuse", "fuse.cifs",     "fuse.curlftpfs", "fuse.davfs",
      "fuse.davfs2", "fuse.glusterfs", "fuse.goofys",   "fuse.mfs",       "fuse.nfs",
      "fuse.rclone", "fuse.s3fs",      "fuse.smbnetfs", "fuse.sshfs",     "fuse.webdavfs",
      "gfs",         "gfs2",           "glusterfs",     "gpfs",           "lustre",
      "ncp",         "ncpfs",          "nfs",           "nfs3",           "nfs4",
      "ocfs2",       "pvfs2",          "smb3",          "smbfs"};
  if (std::ranges::find(types, std::string_view(mount.type)) != types.end()) return true;
  const bool madeByAProgram = mount.type == "fuse" || mount.type.starts_with("fuse.");
  return madeByAProgram && mount.source.find("://") != std::string::npos;
}

}  // namespace ov
