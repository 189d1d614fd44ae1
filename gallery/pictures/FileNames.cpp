#include "pictures/FileNames.h"

#include <fcntl.h>
#include <stdio.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

namespace gallery {

static constexpr std::size_t kLongestName = 255;  // bytes, on every common file system

std::string whyNotAFileName(std::string_view name) {
  if (name.empty()) return "A name cannot be empty.";
  if (name == "." || name == "..") {
    return "\u201c" + std::string(name) + "\u201d is the name of a folder.";
  }
  if (name.find('/') != name.npos) return "A name cannot contain \u201c/\u201d.";
  if (name.find('\0') != name.npos) return "A name cannot contain a null character.";
  if (name.size() > kLongestName) {
    return "A name cannot be longer than 255 bytes; this one has " + std::to_string(name.size()) +
           ".";
  }
  return {};
}

std::string_view extensionOf(std::string_view name) {
  const auto dot = name.rfind('.');
  return dot == name.npos || dot == 0 ? std::string_view() : name.substr(dot);
}

std::string nameOfCopy(std::string_view name, int number) {
  if (number == 0) return std::string(name);
  const std::string_view extension = extensionOf(name);
  std::string_view stem = name.substr(0, name.size() - extension.size());
  std::string suffix = " copy";
  if (number > 1) suffix += " " + std::to_string(number);
  suffix += extension;
  if (suffix.size() < kLongestName && stem.size() + suffix.size() > kLongestName) {
    std::size_t length = kLongestName - suffix.size();
    while (length > 0 && (stem[length] & 0xC0) == 0x80) --length;  // inside a UTF-8 character
    stem = stem.substr(0, length);
  }
  return std::string(stem) + suffix;
}

int renameWithoutReplacing(const std::string &from, const std::string &to) {
  if (renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0) return 0;
  if (errno != EINVAL && errno != ENOSYS) return errno;
  // The file system does not know the flag: a second link, which is refused for a name that
  // is taken, and then the first one away.
  if (link(from.c_str(), to.c_str()) != 0) return errno;
  return unlink(from.c_str()) == 0 ? 0 : errno;
}

}  // namespace gallery
