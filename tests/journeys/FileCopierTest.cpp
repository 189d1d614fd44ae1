#include <gmock/gmock.h>
#include <sys/stat.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <thread>

#include "TemporaryFolder.h"
#include "pictures/FileCopier.h"

namespace gallery {
namespace {

// The results of so many jobs, in the order of the jobs.
std::vector<FileCopier::Result> resultsOf(FileCopier &copier, std::size_t count) {
  std::vector<FileCopier::Result> all;
  const auto limit = std::chrono::steady_clock::now() + std::chrono::seconds(20);
  while (all.size() < count && std::chrono::steady_clock::now() < limit) {
    for (FileCopier::Result &result : copier.takeResults()) all.push_back(std::move(result));
    std::this_thread::yield();
  }
  EXPECT_EQ(all.size(), count);
  all.resize(count);
  return all;
}

TEST(FileCopier, CopiesUnderANameThatIsFree) {
  const TemporaryFolder from, to;
  const std::string bytes(700000, 'q');
  std::ofstream(from / "x.png") << bytes;
  std::ofstream(to / "x.png") << "there before";
  FileCopier copier;
  copier.add({from / "x.png", to.path()});
  copier.add({from / "x.png", to.path()});
  const auto results = resultsOf(copier, 2);
  EXPECT_EQ(results[0].name, "x copy.png");
  EXPECT_EQ(results[1].name, "x copy 2.png");
  EXPECT_EQ(to.contents("x.png"), "there before");
  EXPECT_EQ(to.contents("x copy.png"), bytes);
  EXPECT_EQ(to.contents("x copy 2.png"), bytes);
  EXPECT_EQ(copier.progress().files, 0);
}

TEST(FileCopier, TellsWhyACopyFailedAndLeavesNothingBehind) {
  const TemporaryFolder from, to;
  std::filesystem::create_directory(from / "folder.png");
  ASSERT_EQ(mkfifo((from / "pipe.png").c_str(), 0600), 0);
  std::ofstream(from / "x.png") << "x";
  FileCopier copier;
  copier.add({from / "missing.png", to.path()});
  copier.add({from / "folder.png", to.path()});
  copier.add({from / "pipe.png", to.path()});
  copier.add({from / "x.png", to / "no such folder"});
  for (const auto &result : resultsOf(copier, 4)) {
    EXPECT_NE(result.error, "") << result.job.source;
    EXPECT_EQ(result.name, "");
  }
  EXPECT_TRUE(std::filesystem::is_empty(to.path()));
}

TEST(FileCopier, GivesUpWhenItGoes) {
  const TemporaryFolder from, to;
  std::ofstream(from / "big.png") << std::string(64 << 20, 'b');
  {
    FileCopier copier;
    for (int i = 0; i < 50; ++i) copier.add({from / "big.png", to.path()});
  }
  // Whole copies or none, and no temporary ones.
  for (const auto &entry : std::filesystem::directory_iterator(to.path())) {
    EXPECT_EQ(entry.file_size(), 64u << 20) << entry.path();
    EXPECT_NE(entry.path().filename().string()[0], '.');
  }
}

}  // namespace
}  // namespace gallery
