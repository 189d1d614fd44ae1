#include "Supervisor.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cctype>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <string_view>

namespace ov::test {

namespace fs = std::filesystem;

namespace {

constexpr const char* kFolderVariable = "OV_TEST_FOLDER";

std::string runningTestFile(const std::string& folder) { return folder + "/running-test"; }

// --gtest_filter=X is GTEST_FILTER=X to GoogleTest.
void moveFlagsToEnvironment(int argc, char** argv) {
  for (int i = 1; i < argc; i++) {
    std::string_view word = argv[i];
    if (!word.starts_with("--gtest_")) {
      std::fprintf(stderr, "Ignored: %s\n", argv[i]);
      continue;
    }
    word.remove_prefix(2);
    size_t equals = word.find('=');
    std::string name(word.substr(0, equals));
    for (char& c : name) c = static_cast<char>(std::toupper(c));
    std::string value = equals == word.npos ? "1" : std::string(word.substr(equals + 1));
    setenv(name.c_str(), value.c_str(), 1);
  }
}

// The platform's configuration, except that the user's folders are ours.
void writeConfiguration(const std::string& folder) {
  const char* given = std::getenv("GNUSTEP_CONFIG_FILE");
  std::ifstream in(given ? given : "/etc/GNUstep/GNUstep.conf");
  std::string path = folder + "/GNUstep.conf";
  std::ofstream out(path);
  for (std::string line; std::getline(in, line);) {
    if (line.starts_with("GNUSTEP_USER_DEFAULTS_DIR=")) continue;
    if (line.starts_with("GNUSTEP_USER_DIR_LIBRARY=")) continue;
    out << line << '\n';
  }
  out << "GNUSTEP_USER_DEFAULTS_DIR=" << folder << "/Defaults\n";
  out << "GNUSTEP_USER_DIR_LIBRARY=" << folder << "/Library\n";
  fs::create_directories(folder + "/Defaults");
  fs::create_directories(folder + "/Library");
  setenv("GNUSTEP_CONFIG_FILE", path.c_str(), 1);
}

int exitCodeFor(int waitStatus, const std::string& folder) {
  std::string test;
  std::ifstream(runningTestFile(folder)) >> test;
  if (WIFSIGNALED(waitStatus)) {
    int signal = WTERMSIG(waitStatus);
    std::fprintf(stderr, "\n[ CRASHED  ] %s: signal %d (%s)\n", test.c_str(), signal,
                 strsignal(signal));
    return 128 + signal;
  }
  int code = WEXITSTATUS(waitStatus);
  if (code > 1) std::fprintf(stderr, "\n[ DIED     ] %s: exit status %d\n", test.c_str(), code);
  return code;
}

}  // namespace

const std::string& privateFolder() {
  static const std::string folder =
      std::getenv(kFolderVariable) ? std::getenv(kFolderVariable) : "";
  return folder;
}

void noteRunningTest(const std::string& name) {
  std::ofstream(runningTestFile(privateFolder())) << name;
}

bool isSupervisedChild(int argc, char** argv, int* status) {
  if (!privateFolder().empty()) return true;
  for (int i = 1; i < argc; i++) {
    if (std::strcmp(argv[i], "--gtest_list_tests") == 0) return true;
  }

  moveFlagsToEnvironment(argc, argv);
  std::string folder = (fs::temp_directory_path() / "ov-test-XXXXXX").string();
  if (!mkdtemp(folder.data())) {
    std::perror("mkdtemp");
    *status = 2;
    return false;
  }
  setenv(kFolderVariable, folder.c_str(), 1);
  writeConfiguration(folder);
  // The platform frees little at exit, and the sanitizer would list all of it.
  setenv("ASAN_OPTIONS", "detect_leaks=0", 0);

  pid_t parent = getpid();
  pid_t child = fork();
  if (child == 0) {
    // Whoever kills the parent at a time limit has killed the child too.
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (getppid() != parent) _exit(2);
    int null = open("/dev/null", O_RDONLY);
    dup2(null, 0);
    execl("/proc/self/exe", argv[0], static_cast<char*>(nullptr));
    std::perror("exec");
    _exit(2);
  }
  if (child < 0) {
    std::perror("fork");
    *status = 2;
    return false;
  }
  int waitStatus = 0;
  while (waitpid(child, &waitStatus, 0) < 0 && errno == EINTR) {
  }
  *status = exitCodeFor(waitStatus, folder);
  std::error_code ignored;
  fs::remove_all(folder, ignored);
  return false;
}

}  // namespace ov::test
