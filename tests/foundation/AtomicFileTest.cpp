#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

#include "AtomicFile.h"
#include "FaultyCalls.h"
#include "TemporaryFolder.h"

namespace {

using Names = std::vector<std::string>;
using ov::OldFile;

int write(const std::string &path, const std::string &bytes, OldFile old = OldFile::isReplaced) {
  return ov::replaceFile(path, bytes, old).error;
}

mode_t modeOf(const std::string &path) {
  struct stat info = {};
  lstat(path.c_str(), &info);
  return info.st_mode & 07777;
}

class AtomicFile : public testing::Test {
 protected:
  TemporaryFolder folder;
  FaultyCallsScope scope;
  const std::string file = folder / "file";
};

TEST_F(AtomicFile, WritesWhatItReads) {
  std::string bytes(1'000'000, 'x');
  bytes[17] = '\0';
  const auto written = ov::replaceFile(file, bytes, OldFile::isReplaced);
  EXPECT_EQ(0, written.error);
  const auto read = ov::readPlainFile(file);
  EXPECT_EQ(0, read.error);
  EXPECT_TRUE(bytes == read.bytes);
  EXPECT_TRUE(written.stamp == read.stamp);
  EXPECT_TRUE(written.stamp == ov::stampOfFile(file));
  EXPECT_EQ(Names{"file"}, folder.names());
}

TEST_F(AtomicFile, StampTellsFilesApart) {
  EXPECT_TRUE(ov::FileStamp() == ov::stampOfFile(file));
  write(file, "one");
  const auto first = ov::stampOfFile(file);
  write(file, "two");
  EXPECT_FALSE(first == ov::stampOfFile(file));
}

TEST_F(AtomicFile, MakesMissingFolders) {
  EXPECT_EQ(0, write(folder / "a/b/file", "x"));
  EXPECT_EQ("x", contentsOf(folder / "a/b/file"));
}

TEST_F(AtomicFile, KeepsPermissions) {
  for (const mode_t mode : {0600, 0664, 0751, 0604}) {
    setContents(file, "old");
    chmod(file.c_str(), mode);
    EXPECT_EQ(0, write(file, "new"));
    EXPECT_EQ(mode, modeOf(file));
  }
}

TEST_F(AtomicFile, NewFileFollowsTheMask) {
  const mode_t old = umask(027);
  EXPECT_EQ(0, write(file, "new"));
  umask(old);
  EXPECT_EQ(0640u, modeOf(file));
}

TEST_F(AtomicFile, FollowsLinks) {
  setContents(file, "old");
  std::filesystem::create_symlink("file", folder / "relative");
  std::filesystem::create_symlink(folder / "relative", folder / "chain");
  EXPECT_EQ(0, write(folder / "chain", "new"));
  EXPECT_EQ("new", contentsOf(file));
  EXPECT_EQ((Names{"chain", "file", "relative"}), folder.names());
  EXPECT_TRUE(std::filesystem::is_symlink(folder / "chain"));
}

TEST_F(AtomicFile, MakesWhatALinkLeadsTo) {
  std::filesystem::create_symlink("deep/file", folder / "link");
  EXPECT_EQ(0, write(folder / "link", "new"));
  EXPECT_EQ("new", contentsOf(folder / "deep/file"));
}

TEST_F(AtomicFile, CircleOfLinksIsAnError) {
  std::filesystem::create_symlink("b", folder / "a");
  std::filesystem::create_symlink("a", folder / "b");
  EXPECT_EQ(ELOOP, write(folder / "a", "x"));
  EXPECT_EQ(ELOOP, ov::readPlainFile(folder / "a").error);
}

TEST_F(AtomicFile, OnlyPlainFilesAreReadAndReplaced) {
  std::filesystem::create_directory(folder / "folder");
  EXPECT_EQ(EISDIR, write(folder / "folder", "x"));
  EXPECT_EQ(EISDIR, ov::readPlainFile(folder / "folder").error);
  mkfifo((folder / "pipe").c_str(), 0600);
  EXPECT_EQ(EINVAL, write(folder / "pipe", "x"));
  EXPECT_EQ(EINVAL, ov::readPlainFile(folder / "pipe").error);
  EXPECT_EQ(ENOENT, ov::readPlainFile(folder / "nothing").error);
  EXPECT_EQ((Names{"folder", "pipe"}), folder.names());
}

TEST_F(AtomicFile, FolderOfAFileIsAnError) {
  setContents(file, "old");
  EXPECT_EQ(ENOTDIR, write(file + "/below", "x"));
  EXPECT_EQ("old", contentsOf(file));
}

TEST_F(AtomicFile, LongestNamesWork) {
  const std::string name(255, 'n');
  EXPECT_EQ(0, write(folder / name, "x"));
  EXPECT_EQ(Names{name}, folder.names());
  EXPECT_EQ(ENAMETOOLONG, write(folder / (name + "n"), "x"));
}

TEST_F(AtomicFile, MovesTheOldFileAsideToAFreeName) {
  setContents(file, "first");
  setContents(folder / "file.corrupt", "taken");
  auto written = ov::replaceFile(file, "second", OldFile::movesAside);
  EXPECT_EQ(0, written.error);
  EXPECT_EQ(folder / "file.corrupt-2", written.movedOldTo);
  written = ov::replaceFile(file, "third", OldFile::movesAside);
  EXPECT_EQ(folder / "file.corrupt-3", written.movedOldTo);
  EXPECT_EQ("taken", contentsOf(folder / "file.corrupt"));
  EXPECT_EQ("first", contentsOf(folder / "file.corrupt-2"));
  EXPECT_EQ("second", contentsOf(folder / "file.corrupt-3"));
  EXPECT_EQ("third", contentsOf(file));
}

TEST_F(AtomicFile, NothingToMoveAsideIsNoError) {
  const auto written = ov::replaceFile(file, "x", OldFile::movesAside);
  EXPECT_EQ(0, written.error);
  EXPECT_EQ("", written.movedOldTo);
}

TEST_F(AtomicFile, FailedFlushLeavesTheOldFile) {
  setContents(file, "old");
  faultyCalls().beforeFlush = [](int) { return ENOSPC; };
  EXPECT_EQ(ENOSPC, write(file, "new"));
  EXPECT_EQ("old", contentsOf(file));
  EXPECT_EQ(Names{"file"}, folder.names());
}

TEST_F(AtomicFile, FileSystemWithoutFlushingWillDo) {
  faultyCalls().beforeFlush = [](int) { return EINVAL; };
  EXPECT_EQ(0, write(file, "new"));
  EXPECT_EQ("new", contentsOf(file));
}

TEST_F(AtomicFile, FailedRenameLeavesTheOldFile) {
  setContents(file, "old");
  faultyCalls().beforeRename = [](auto &, auto &) { return EIO; };
  EXPECT_EQ(EIO, write(file, "new"));
  EXPECT_EQ(EIO, write(file, "new", OldFile::movesAside));
  EXPECT_EQ("old", contentsOf(file));
  EXPECT_EQ(Names{"file"}, folder.names());
}

TEST_F(AtomicFile, FailedRenameBringsBackWhatWasMovedAside) {
  setContents(file, "old");
  faultyCalls().beforeRename = [](const std::string &from, auto &) {
    return from.find(".saving-") == std::string::npos ? 0 : EIO;
  };
  const auto written = ov::replaceFile(file, "new", OldFile::movesAside);
  EXPECT_EQ(EIO, written.error);
  EXPECT_EQ("", written.movedOldTo);
  EXPECT_EQ("old", contentsOf(file));
  EXPECT_EQ(Names{"file"}, folder.names());
}

TEST_F(AtomicFile, FullDiskLeavesTheOldFile) {
  setContents(file, "old");
  // A limit on the size of files stands for the end of the disk.
  rlimit old = {};
  getrlimit(RLIMIT_FSIZE, &old);
  const auto oldHandler = std::signal(SIGXFSZ, SIG_IGN);
  const rlimit small = {4096, old.rlim_max};
  setrlimit(RLIMIT_FSIZE, &small);
  const int error = write(file, std::string(100'000, 'x'));
  setrlimit(RLIMIT_FSIZE, &old);
  std::signal(SIGXFSZ, oldHandler);
  EXPECT_EQ(EFBIG, error);
  EXPECT_EQ("old", contentsOf(file));
  EXPECT_EQ(Names{"file"}, folder.names());
}

TEST_F(AtomicFile, RemovesDraftsOfDeadWritersOnly) {
  const std::string dead = folder / ".file.saving-00000001",
                    alive = folder / ".file.saving-00000002",
                    other = folder / ".other.saving-00000003";
  for (const auto &path : {dead, alive, other}) setContents(path, "half");
  const int writer = open(alive.c_str(), O_RDONLY);
  ASSERT_EQ(0, flock(writer, LOCK_EX));
  EXPECT_EQ(0, write(file, "new"));
  close(writer);
  EXPECT_EQ((Names{".file.saving-00000002", ".other.saving-00000003", "file"}), folder.names());
}

// Writers in several processes at once, and a reader that must always see one of their files.
TEST_F(AtomicFile, ManyWritersLeaveAWholeFile) {
  constexpr int writers = 4, rounds = 50;
  constexpr std::size_t size = 50'000;
  std::vector<pid_t> children;
  for (int child = 0; child < writers; ++child) {
    const pid_t process = fork();
    if (process == 0) {
      for (int round = 0; round < rounds; ++round) {
        if (write(file, std::string(size, char('a' + child))) != 0) _exit(1);
      }
      _exit(0);
    }
    children.push_back(process);
  }
  while (!children.empty()) {
    const auto read = ov::readPlainFile(file);
    if (read.error == 0) {
      ASSERT_EQ(size, read.bytes.size());
      ASSERT_EQ(std::string::npos, read.bytes.find_first_not_of(read.bytes[0]));
    }
    int status = 0;
    if (waitpid(children.back(), &status, WNOHANG) > 0) {
      EXPECT_TRUE(WIFEXITED(status));
      EXPECT_EQ(0, WEXITSTATUS(status));
      children.pop_back();
    }
  }
  EXPECT_EQ(Names{"file"}, folder.names());
}

// What an ordinary user may do; the tests may be run by root, to whom all is allowed.
int statusAsOrdinaryUser(const std::filesystem::path &folder, const std::function<int()> &action) {
  chmod(folder.c_str(), 0777);
  const pid_t process = fork();
  if (process == 0) {
    if (geteuid() == 0 && (setgid(65534) != 0 || setuid(65534) != 0)) _exit(255);
    _exit(action());
  }
  int status = 0;
  waitpid(process, &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

TEST_F(AtomicFile, ReadOnlyFileStays) {
  setContents(file, "old");
  chmod(file.c_str(), 0444);
  EXPECT_EQ(EACCES, statusAsOrdinaryUser(folder.path(), [&] { return write(file, "new"); }));
  EXPECT_EQ("old", contentsOf(file));
}

TEST_F(AtomicFile, ReadOnlyFolderIsAnError) {
  std::filesystem::create_directory(folder / "closed");
  chmod((folder / "closed").c_str(), 0555);
  EXPECT_EQ(EACCES, statusAsOrdinaryUser(folder.path(),
                                         [&] { return write(folder / "closed/file", "new"); }));
}

TEST_F(AtomicFile, FileOfSecretsCannotBeRead) {
  setContents(file, "old");
  chmod(file.c_str(), 0);
  EXPECT_EQ(EACCES,
            statusAsOrdinaryUser(folder.path(), [&] { return ov::readPlainFile(file).error; }));
}

}  // namespace
