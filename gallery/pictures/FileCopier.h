// Copies files into a folder in the background.
//
//   FileCopier copier;
//   copier.add({"/media/camera/tree.jpg", "/home/me/Pictures"});
//   …from time to time, on the thread that owns it:
//   for (const FileCopier::Result &result : copier.takeResults()) …
//   FileCopier::Progress progress = copier.progress();
//
// A copy appears under its name only when it is complete, and never replaces a file: where
// "tree.jpg" exists it becomes "tree copy.jpg", "tree copy 2.jpg", …
#pragma once

#include <atomic>
#include <condition_variable>
#include <cstdint>
#include <deque>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace gallery {

class FileCopier {
 public:
  struct Job {
    std::string source;
    std::string folder;
  };
  struct Result {
    Job job;
    std::string name;   // of the copy; empty when it failed
    std::string error;  // why, as the system says it; empty when it did not
  };
  struct Progress {
    int files = 0;        // not finished yet
    double fraction = 1;  // of the bytes asked for since the copier was last idle
  };

  FileCopier() = default;
  // Gives up what is under way; nothing half-written stays.
  ~FileCopier();
  FileCopier(const FileCopier &) = delete;
  FileCopier &operator=(const FileCopier &) = delete;

  void add(Job job);
  std::vector<Result> takeResults();
  Progress progress();

 private:
  void run();
  Result copy(const Job &job);

  std::mutex mutex_;
  std::condition_variable wake_;
  std::deque<Job> jobs_;
  std::vector<Result> results_;
  int unfinished_ = 0;
  std::atomic<std::int64_t> bytesAsked_ = 0;
  std::atomic<std::int64_t> bytesDone_ = 0;
  std::atomic<bool> stopping_ = false;
  std::thread thread_;
};

}  // namespace gallery
