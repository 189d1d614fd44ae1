// Replacing a file so that at every moment, also after a crash, the old contents or
// the new ones stand under its name, whole.

#ifndef OV_ATOMIC_FILE_H
#define OV_ATOMIC_FILE_H

#include <cstdint>
#include <string>
#include <string_view>

namespace ov {

/// Tells one state of a file from another. All zeros: there is no file.
struct FileStamp {
  std::uint64_t device = 0;
  std::uint64_t inode = 0;
  std::int64_t size = 0;
  std::int64_t seconds = 0;
  std::int64_t nanoseconds = 0;
  friend bool operator==(const FileStamp &, const FileStamp &) = default;
};

/// The state of the file that the path leads to; all zeros when it cannot be seen.
FileStamp stampOfFile(const std::string &path);

struct FileContents {
  int error = 0;  ///< 0, or an errno; EINVAL for what is not a plain file
  std::string bytes;
  FileStamp stamp;
};

FileContents readPlainFile(const std::string &path);

/// What becomes of the file that stands under the name.
enum class OldFile {
  isReplaced,
  movesAside,  ///< it becomes NAME.corrupt, NAME.corrupt-2, …, whichever is free
};

struct Replacement {
  int error = 0;  ///< 0, or an errno; then the old file stands as it was
  FileStamp stamp;
  std::string movedOldTo;
};

/// Writes the bytes beside the file, to the disk, and renames the result to the
/// file's name. Links are followed, so that a linked file stays linked; missing
/// folders are made; the permissions and, where the system allows it, the owner of
/// an existing file are kept. A file that its user may not write is not replaced,
/// nor is anything but a plain file. What an earlier process left beside the file
/// when it was killed is removed.
Replacement replaceFile(const std::string &path, std::string_view bytes, OldFile old);

}  // namespace ov

#endif
