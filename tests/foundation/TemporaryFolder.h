#ifndef OV_TEMPORARY_FOLDER_H
#define OV_TEMPORARY_FOLDER_H

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

/// A new folder that goes with its contents.
class TemporaryFolder {
 public:
  TemporaryFolder() {
    std::string name = (std::filesystem::temp_directory_path() / "ov-test-XXXXXX").string();
    if (!mkdtemp(name.data())) std::abort();
    path_ = std::filesystem::canonical(name);
  }
  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  TemporaryFolder(const TemporaryFolder &) = delete;

  const std::filesystem::path &path() const { return path_; }
  std::string operator/(const std::string &name) const { return (path_ / name).string(); }

  /// The names of what is in it, in order, hidden ones included.
  std::vector<std::string> names() const {
    std::vector<std::string> names;
    for (const auto &entry : std::filesystem::directory_iterator(path_)) {
      names.push_back(entry.path().filename().string());
    }
    std::sort(names.begin(), names.end());
    return names;
  }

 private:
  std::filesystem::path path_;
};

inline std::string contentsOf(const std::string &path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

inline void setContents(const std::string &path, const std::string &bytes) {
  std::ofstream file(path, std::ios::binary);
  file << bytes;
}

#endif
