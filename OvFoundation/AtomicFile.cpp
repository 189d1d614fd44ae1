#include "AtomicFile.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <new>
#include <random>
#include <system_error>
#include <utility>

namespace ov {
namespace {

class Descriptor {
 public:
  explicit Descriptor(int fd = -1) : fd_(fd) {}
  Descriptor(const Descriptor &) = delete;
  Descriptor &operator=(const Descriptor &) = delete;
  Descriptor(Descriptor &&other) noexcept : fd_(std::exchange(other.fd_, -1)) {}
  Descriptor &operator=(Descriptor &&other) noexcept {
    std::swap(fd_, other.fd_);
    return *this;
  }
  ~Descriptor() {
    if (fd_ >= 0) close(fd_);
  }
  int get() const { return fd_; }
  explicit operator bool() const { return fd_ >= 0; }

 private:
  int fd_;
};

FileStamp stampOf(const struct stat &info) {
  return {std::uint64_t(info.st_dev), std::uint64_t(info.st_ino), std::int64_t(info.st_size),
          std::int64_t(info.st_mtim.tv_sec), std::int64_t(info.st_mtim.tv_nsec)};
}

// Where a chain of links ends, be there a file or not.
int followLinks(std::filesystem::path &path) {
  for (int step = 0; step < 40; ++step) {
    std::error_code error;
    const auto target = std::filesystem::read_symlink(path, error);
    if (error) return 0;
    path = path.parent_path() / target;
  }
  return ELOOP;
}

// The file that is being written. Its writer holds a lock on it, so that a file
// without one is known to be left over.
struct Draft {
  Descriptor file;
  std::string path;
};

std::string draftPrefix(const std::filesystem::path &target) {
  constexpr std::size_t longestName = 200;
  return "." + target.filename().string().substr(0, longestName) + ".saving-";
}

void removeLeftOverDrafts(const std::filesystem::path &folder, const std::string &prefix) {
  DIR *entries = opendir(folder.c_str());
  if (!entries) return;
  const int directory = dirfd(entries);
  while (const dirent *entry = directory >= 0 ? readdir(entries) : nullptr) {
    if (!std::string_view(entry->d_name).starts_with(prefix)) continue;
    const Descriptor file(
        openat(directory, entry->d_name, O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    struct stat info;
    if (file && fstat(file.get(), &info) == 0 && S_ISREG(info.st_mode) &&
        info.st_uid == geteuid() && flock(file.get(), LOCK_EX | LOCK_NB) == 0) {
      unlinkat(directory, entry->d_name, 0);
    }
  }
  closedir(entries);
}

int openDraft(const std::filesystem::path &folder, const std::string &prefix, mode_t mode,
              Draft &draft) {
  std::random_device random;
  for (int attempt = 0; attempt < 100; ++attempt) {
    std::array<char, 16> suffix;
    std::snprintf(suffix.data(), suffix.size(), "%08x", random());
    draft.path = (folder / (prefix + suffix.data())).string();
    draft.file = Descriptor();  // closed now, not after the next open has set errno
    draft.file = Descriptor(
        open(draft.path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, mode));
    if (!draft.file) {
      if (errno == EEXIST || errno == EINTR) continue;
      return errno;
    }
    // Another process may have taken it for left over before it was locked.
    const bool isTaken = flock(draft.file.get(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
    struct stat info;
    if (!isTaken && fstat(draft.file.get(), &info) == 0 && info.st_nlink > 0) return 0;
    unlink(draft.path.c_str());
  }
  return EEXIST;
}

int writeAll(int fd, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t count = write(fd, bytes.data(), bytes.size());
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return errno;
    bytes.remove_prefix(std::size_t(count));
  }
  return 0;
}

int toDisk(int fd) {
  while (fsync(fd) != 0) {
    // Some file systems have nothing to flush and say so.
    if (errno == EINVAL || errno == ENOTSUP) return 0;
    if (errno != EINTR) return errno;
  }
  return 0;
}

int fillDraft(const Draft &draft, std::string_view bytes, const struct stat *old) {
  if (old) {
    mode_t mode = old->st_mode & 07777;
    // Owner first: changing it takes the set-id bits away.
    if (fchown(draft.file.get(), old->st_uid, old->st_gid) != 0) mode &= 0777;
    if (fchmod(draft.file.get(), mode) != 0) return errno;
  }
  if (const int error = writeAll(draft.file.get(), bytes)) return error;
  return toDisk(draft.file.get());
}

// Takes a free name with an empty file and renames the old file over that.
int moveAside(const std::string &target, std::string &movedTo) {
  for (int number = 1; number <= 1000; ++number) {
    std::string name = target + ".corrupt";
    if (number > 1) name += "-" + std::to_string(number);
    const Descriptor place(open(name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
    if (!place) {
      if (errno == EEXIST) continue;
      return errno;
    }
    if (rename(target.c_str(), name.c_str()) != 0) {
      const int error = errno;
      unlink(name.c_str());
      return error;
    }
    movedTo = std::move(name);
    return 0;
  }
  return EEXIST;
}

int putInPlace(const Draft &draft, const std::string &target, bool setsOldAside,
               Replacement &result) {
  if (setsOldAside) {
    if (const int error = moveAside(target, result.movedOldTo)) return error;
  }
  if (rename(draft.path.c_str(), target.c_str()) == 0) return 0;
  const int error = errno;
  if (!result.movedOldTo.empty()) {
    rename(result.movedOldTo.c_str(), target.c_str());
    result.movedOldTo.clear();
  }
  return error;
}

Replacement replace(std::filesystem::path target, std::string_view bytes, OldFile old) {
  Replacement result;
  if ((result.error = followLinks(target))) return result;
  const std::filesystem::path folder = target.has_parent_path() ? target.parent_path() : ".";
  std::error_code failure;
  std::filesystem::create_directories(folder, failure);
  if (failure) {
    result.error = failure.value();
    return result;
  }

  struct stat info;
  const bool exists = lstat(target.c_str(), &info) == 0;
  if (exists && !S_ISREG(info.st_mode)) {
    result.error = S_ISDIR(info.st_mode) ? EISDIR : EINVAL;
  } else if (exists ? faccessat(AT_FDCWD, target.c_str(), W_OK, AT_EACCESS) != 0
                    : errno != ENOENT) {
    result.error = errno;
  }
  if (result.error) return result;

  const std::string prefix = draftPrefix(target);
  removeLeftOverDrafts(folder, prefix);
  Draft draft;
  // Never more open than the old file, not even while it is being written.
  const mode_t mode = exists ? info.st_mode & 0700 : 0666;
  if ((result.error = openDraft(folder, prefix, mode, draft))) return result;
  result.error = fillDraft(draft, bytes, exists ? &info : nullptr);
  if (!result.error) {
    result.error = putInPlace(draft, target.string(), exists && old == OldFile::movesAside, result);
  }
  if (result.error) {
    unlink(draft.path.c_str());
    return result;
  }
  if (fstat(draft.file.get(), &info) == 0) result.stamp = stampOf(info);
  // The new name itself must reach the disk too. If that cannot be asked for, the
  // contents are none the worse.
  const Descriptor entries(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (entries) toDisk(entries.get());
  return result;
}

}  // namespace

FileStamp stampOfFile(const std::string &path) {
  struct stat info;
  return stat(path.c_str(), &info) == 0 ? stampOf(info) : FileStamp();
}

FileContents readPlainFile(const std::string &path) try {
  FileContents contents;
  // Opening a pipe must not wait for its writer.
  const Descriptor file(open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
  struct stat info;
  if (!file || fstat(file.get(), &info) != 0) {
    contents.error = errno;
    return contents;
  }
  contents.stamp = stampOf(info);
  if (!S_ISREG(info.st_mode)) {
    contents.error = S_ISDIR(info.st_mode) ? EISDIR : EINVAL;
    return contents;
  }
  contents.bytes.reserve(std::size_t(info.st_size));
  std::array<char, 65536> block;
  for (;;) {
    const ssize_t count = read(file.get(), block.data(), block.size());
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) contents.error = errno;
    if (count <= 0) return contents;
    contents.bytes.append(block.data(), std::size_t(count));
  }
} catch (const std::bad_alloc &) {
  return {ENOMEM, {}, {}};
} catch (const std::length_error &) {
  return {EFBIG, {}, {}};
}

Replacement replaceFile(const std::string &path, std::string_view bytes, OldFile old) try {
  return replace(path, bytes, old);
} catch (const std::bad_alloc &) {
  return {ENOMEM, {}, {}};
} catch (const std::exception &) {
  return {EIO, {}, {}};
}

}  // namespace ov
