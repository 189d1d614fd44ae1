// Decodes thumbnails on a thread of its own, the most wanted first.
#pragma once

#include <atomic>
#include <condition_variable>
#include <cstdint>
#include <deque>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "pictures/ThumbnailDecoder.h"

namespace gallery {

// A version of a file's contents, at a size.
struct ThumbnailKey {
  std::string path;
  std::int64_t modified = 0;  // nanoseconds
  int boxWidth = 0;
  int boxHeight = 0;
  bool operator==(const ThumbnailKey &) const = default;
};

class ThumbnailLoader {
 public:
  struct Result {
    ThumbnailKey key;
    Thumbnail thumbnail;
  };

  ThumbnailLoader() = default;
  ~ThumbnailLoader();
  ThumbnailLoader(const ThumbnailLoader &) = delete;
  ThumbnailLoader &operator=(const ThumbnailLoader &) = delete;

  // What is wanted now, in this order. It replaces what was wanted before; only the file
  // being read at this moment is read to its end.
  void want(std::vector<ThumbnailKey> keys);
  std::vector<Result> takeResults();
  // Wanted and not taken yet.
  std::size_t outstanding();

 private:
  void run();

  std::mutex mutex_;
  std::condition_variable wake_;
  std::deque<ThumbnailKey> wanted_;
  std::vector<Result> results_;
  ThumbnailKey current_;
  bool busy_ = false;
  std::atomic<bool> stopping_ = false;
  std::thread thread_;
};

}  // namespace gallery
