// Saving when the system fails, or ends the process in the middle of it.

#import <OvFoundation/OvFoundation.h>

#include <gtest/gtest.h>

#include <errno.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include "FaultyCalls.h"
#include "LogCapture.h"
#include "TemporaryFolder.h"

namespace {

void die() { kill(getpid(), SIGKILL); }

struct Moment {
  const char *name;
  void (*prepare)();
  bool isSaved;  // afterwards the file holds the new values
};

void PrintTo(const Moment &moment, std::ostream *out) { *out << moment.name; }

class KilledWhileSaving : public testing::TestWithParam<Moment> {
 protected:
  ~KilledWhileSaving() override { [pool release]; }

  HXPropertyList *open() {
    return [HXPropertyList
        propertyListWithPath:[NSString stringWithUTF8String:(folder / "list.plist").c_str()]];
  }

  // Saves {a: 2} in a process that dies.
  void saveAndDie() {
    const pid_t child = fork();
    if (child == 0) {
      HXPropertyList *list = open();
      // Long enough for a limit on the size of files to strike.
      NSString *filler = [@"" stringByPaddingToLength:100'000 withString:@"x" startingAtIndex:0];
      [[list values] setDictionary:@{@"a" : @2, @"filler" : filler}];
      GetParam().prepare();
      [list saveChanges];
      _exit(0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_TRUE(WIFSIGNALED(status)) << "the process was to be killed";
  }

  NSAutoreleasePool *pool = [[NSAutoreleasePool alloc] init];
  TemporaryFolder folder;
  LogCapture log;
};

TEST_P(KilledWhileSaving, LeavesAWholeFile) {
  HXPropertyList *list = open();
  [[list values] setObject:@1 forKey:@"a"];
  ASSERT_TRUE([list saveChanges]);

  saveAndDie();
  list = open();
  EXPECT_TRUE([[[list values] objectForKey:@"a"] isEqual:GetParam().isSaved ? @2 : @1]);
  EXPECT_TRUE(log.lines().empty());

  // The next save finds nothing in its way and leaves nothing of the dead process.
  [[list values] setDictionary:@{@"a" : @3}];
  EXPECT_TRUE([list saveChanges]);
  EXPECT_EQ(std::vector<std::string>{"list.plist"}, folder.names());
  EXPECT_TRUE([[open() values] isEqual:@{@"a" : @3}]);
}

// With a foreign file in the way, which is never to be lost.
TEST_P(KilledWhileSaving, LosesNoForeignFile) {
  setContents(folder / "list.plist", "rubbish");
  saveAndDie();
  const bool isMoved = std::filesystem::exists(folder / "list.plist.corrupt") &&
                       !contentsOf(folder / "list.plist.corrupt").empty();
  EXPECT_EQ("rubbish", contentsOf(folder / (isMoved ? "list.plist.corrupt" : "list.plist")));

  HXPropertyList *list = open();
  [[list values] setDictionary:@{@"a" : @3}];
  EXPECT_TRUE([list saveChanges]);
  bool isKept = false;
  for (const auto &name : folder.names()) isKept |= contentsOf(folder / name) == "rubbish";
  EXPECT_TRUE(isKept);
  EXPECT_TRUE([[open() values] isEqual:@{@"a" : @3}]);
}

INSTANTIATE_TEST_SUITE_P(, KilledWhileSaving,
                         testing::Values(Moment{"InTheMiddleOfWriting",
                                                [] {
                                                  signal(SIGXFSZ, SIG_DFL);
                                                  const rlimit limits[] = {{4096, 4096}, {0, 0}};
                                                  setrlimit(RLIMIT_FSIZE, &limits[0]);
                                                  setrlimit(RLIMIT_CORE, &limits[1]);
                                                },
                                                false},
                                         Moment{"BeforeItIsOnTheDisk",
                                                [] {
                                                  faultyCalls().beforeFlush = [](int) {
                                                    die();
                                                    return 0;
                                                  };
                                                },
                                                false},
                                         Moment{"BeforeTheRename",
                                                [] {
                                                  faultyCalls().beforeRename = [](auto &from,
                                                                                  auto &) {
                                                    if (from.find(".saving-") != std::string::npos)
                                                      die();
                                                    return 0;
                                                  };
                                                },
                                                false},
                                         Moment{"BeforeTheFirstRename",
                                                [] {
                                                  faultyCalls().beforeRename = [](auto &, auto &) {
                                                    die();
                                                    return 0;
                                                  };
                                                },
                                                false},
                                         Moment{"AfterTheRename",
                                                [] { faultyCalls().afterRename = die; }, true}),
                         [](const auto &info) { return info.param.name; });

class FailingSave : public testing::Test {
 protected:
  FailingSave() {
    [[list values] setObject:@1 forKey:@"a"];
    [list saveChanges];
    [[list values] setObject:@2 forKey:@"a"];
    [[NSNotificationCenter defaultCenter] addObserver:received
                                             selector:@selector(addObject:)
                                                 name:HXPropertyListDidSaveValuesNotification
                                               object:list];
  }
  ~FailingSave() override {
    [[NSNotificationCenter defaultCenter] removeObserver:received];
    [pool release];
  }

  void expectRefusal(const char *reason) {
    EXPECT_FALSE([list saveChanges]);
    EXPECT_EQ(0u, [received count]);
    ASSERT_EQ(1u, log.lines().size());
    EXPECT_EQ("[HXPropertyList] " + (folder / "list.plist") + " was not saved. " + reason,
              log.lines()[0]);
    EXPECT_TRUE([[list values] isEqual:@{@"a" : @2}]);
    EXPECT_TRUE([[list _serializedValues] isEqual:@{@"a" : @1}]);
    EXPECT_EQ(std::vector<std::string>{"list.plist"}, folder.names());

    faultyCalls() = {};
    EXPECT_TRUE([list saveChanges]) << "when the fault is gone";
    EXPECT_EQ(1u, [received count]);
  }

  NSAutoreleasePool *pool = [[NSAutoreleasePool alloc] init];
  TemporaryFolder folder;
  LogCapture log;
  FaultyCallsScope scope;
  NSMutableArray *received = [NSMutableArray array];
  HXPropertyList *list = [HXPropertyList
      propertyListWithPath:[NSString stringWithUTF8String:(folder / "list.plist").c_str()]];
};

TEST_F(FailingSave, TellsOfAFullDisk) {
  faultyCalls().beforeFlush = [](int) { return ENOSPC; };
  expectRefusal("No space left on device");
}

TEST_F(FailingSave, TellsNothingOfChangesThatItDoesNotReplace) {
  setContents(folder / "list.plist", "{theirs = 1;}");
  faultyCalls().beforeFlush = [](int) { return EIO; };
  expectRefusal("Input/output error");
}

TEST_F(FailingSave, TellsOfARefusedRename) {
  faultyCalls().beforeRename = [](auto &, auto &) { return EACCES; };
  expectRefusal("Permission denied");
}

}  // namespace
