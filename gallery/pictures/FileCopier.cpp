#include "pictures/FileCopier.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <utility>

#include "pictures/FileNames.h"

namespace gallery {
namespace {

class Descriptor {
 public:
  explicit Descriptor(int number) : number_(number) {}
  ~Descriptor() {
    if (number_ >= 0) close(number_);
  }
  Descriptor(const Descriptor &) = delete;
  Descriptor &operator=(const Descriptor &) = delete;
  int number() const { return number_; }
  // Closing is where some file systems first report a write that failed.
  int closeNow() {
    const int result = close(number_);
    number_ = -1;
    return result;
  }

 private:
  int number_;
};

std::string lastError() { return std::strerror(errno); }

bool writeAll(int file, const char *bytes, ssize_t count) {
  while (count > 0) {
    const ssize_t written = write(file, bytes, static_cast<std::size_t>(count));
    if (written < 0) {
      if (errno == EINTR) continue;
      return false;
    }
    bytes += written;
    count -= written;
  }
  return true;
}

std::int64_t sizeOf(const std::string &path) {
  struct stat info;
  return stat(path.c_str(), &info) == 0 ? info.st_size : 0;
}

}  // namespace

FileCopier::~FileCopier() {
  {
    const std::lock_guard lock(mutex_);
    stopping_ = true;
  }
  wake_.notify_all();
  if (thread_.joinable()) thread_.join();
}

void FileCopier::add(Job job) {
  const std::lock_guard lock(mutex_);
  if (unfinished_ == 0) bytesAsked_ = bytesDone_ = 0;
  bytesAsked_ += sizeOf(job.source);
  ++unfinished_;
  jobs_.push_back(std::move(job));
  if (!thread_.joinable()) thread_ = std::thread([this] { run(); });
  wake_.notify_one();
}

std::vector<FileCopier::Result> FileCopier::takeResults() {
  const std::lock_guard lock(mutex_);
  return std::exchange(results_, {});
}

FileCopier::Progress FileCopier::progress() {
  const std::lock_guard lock(mutex_);
  const auto asked = static_cast<double>(bytesAsked_);
  const auto done = static_cast<double>(bytesDone_);
  if (unfinished_ == 0) return {};
  return {unfinished_, asked > 0 ? std::min(done / asked, 1.0) : 0};
}

void FileCopier::run() {
  std::unique_lock lock(mutex_);
  while (true) {
    wake_.wait(lock, [this] { return stopping_ || !jobs_.empty(); });
    if (stopping_) return;
    const Job job = std::move(jobs_.front());
    jobs_.pop_front();
    lock.unlock();
    Result result = copy(job);
    lock.lock();
    results_.push_back(std::move(result));
    --unfinished_;
  }
}

FileCopier::Result FileCopier::copy(const Job &job) {
  const auto failed = [&](std::string why) { return Result{job, {}, std::move(why)}; };
  // Not blocking: a pipe without a writer would hold the thread for ever.
  Descriptor source(open(job.source.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
  if (source.number() < 0) return failed(lastError());
  struct stat info;
  if (fstat(source.number(), &info) != 0) return failed(lastError());
  if (!S_ISREG(info.st_mode)) return failed("it is not a file");

  std::string temporary = job.folder + "/.copying-XXXXXX";
  Descriptor target(mkostemp(temporary.data(), O_CLOEXEC));
  if (target.number() < 0) return failed(lastError());
  const auto abandoned = [&](std::string why) {
    unlink(temporary.c_str());
    return failed(std::move(why));
  };

  std::array<char, 256 * 1024> buffer;
  while (true) {
    if (stopping_) return abandoned("the gallery was closed");
    const ssize_t count = read(source.number(), buffer.data(), buffer.size());
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return abandoned(lastError());
    if (count == 0) break;
    if (!writeAll(target.number(), buffer.data(), count)) return abandoned(lastError());
    bytesDone_ += count;
  }
  if (fchmod(target.number(), info.st_mode & 0666) != 0) return abandoned(lastError());
  if (target.closeNow() != 0) return abandoned(lastError());

  const std::string name = job.source.substr(job.source.rfind('/') + 1);
  for (int number = 0; number < 10000; ++number) {
    const std::string candidate = nameOfCopy(name, number);
    const int error = renameWithoutReplacing(temporary, job.folder + "/" + candidate);
    if (error == 0) return Result{job, candidate, {}};
    if (error != EEXIST) return abandoned(std::strerror(error));
  }
  return abandoned("there are too many copies of it");
}

}  // namespace gallery
