#include "pictures/ThumbnailLoader.h"

#include <algorithm>
#include <utility>

namespace gallery {

ThumbnailLoader::~ThumbnailLoader() {
  {
    const std::lock_guard lock(mutex_);
    stopping_ = true;
  }
  wake_.notify_all();
  if (thread_.joinable()) thread_.join();
}

void ThumbnailLoader::want(std::vector<ThumbnailKey> keys) {
  const std::lock_guard lock(mutex_);
  const auto isOnItsWay = [&](const ThumbnailKey &key) {
    return (busy_ && key == current_) ||
           std::ranges::any_of(results_, [&](const Result &r) { return r.key == key; });
  };
  std::erase_if(keys, isOnItsWay);
  wanted_.assign(keys.begin(), keys.end());
  if (wanted_.empty()) return;
  if (!thread_.joinable()) thread_ = std::thread([this] { run(); });
  wake_.notify_one();
}

std::vector<ThumbnailLoader::Result> ThumbnailLoader::takeResults() {
  const std::lock_guard lock(mutex_);
  return std::exchange(results_, {});
}

std::size_t ThumbnailLoader::outstanding() {
  const std::lock_guard lock(mutex_);
  return wanted_.size() + results_.size() + (busy_ ? 1 : 0);
}

void ThumbnailLoader::run() {
  std::unique_lock lock(mutex_);
  while (true) {
    wake_.wait(lock, [this] { return stopping_ || !wanted_.empty(); });
    if (stopping_) return;
    current_ = std::move(wanted_.front());
    wanted_.pop_front();
    busy_ = true;
    const ThumbnailKey key = current_;
    lock.unlock();
    Thumbnail thumbnail =
        decodeThumbnail(key.path, key.boxWidth, key.boxHeight, [this] { return stopping_.load(); });
    lock.lock();
    busy_ = false;
    results_.push_back({key, std::move(thumbnail)});
  }
}

}  // namespace gallery
