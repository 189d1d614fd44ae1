#import <OvAppKit/HXSoundRepository.h>

#include <dlfcn.h>
#include <objc/runtime.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <chrono>
#include <filesystem>
#include <thread>

#import "LiveTest.h"
#include "Rights.h"
#include "TemporaryFolder.h"

namespace {

// The libraries of the user, the machine and the system, while it is set; and how often they
// were asked for.
NSArray *givenLibraries = nil;
int timesAsked = 0;

}  // namespace

// The library finds this function before the platform's, and so does the platform, which has
// questions of its own.
extern "C" __attribute__((visibility("default"))) NSArray *NSSearchPathForDirectoriesInDomains(
    NSSearchPathDirectory directory, NSSearchPathDomainMask domains, BOOL expand) {
  if (givenLibraries != nil && directory == 5 && domains == 11 && expand) {
    ++timesAsked;
    return givenLibraries;
  }
  static const auto real = reinterpret_cast<decltype(&NSSearchPathForDirectoriesInDomains)>(
      dlsym(RTLD_NEXT, "NSSearchPathForDirectoriesInDomains"));
  return real(directory, domains, expand);
}

static std::atomic<int> repositoriesMade = 0;

/* What making the repository is while the test lasts. */
@interface OvTestSlowObject : NSObject
@end

@implementation OvTestSlowObject
// Gives the other threads the time to make one of their own.
- (id)init {
  ++repositoriesMade;
  const auto end = std::chrono::steady_clock::now() + std::chrono::milliseconds(200);
  while (repositoriesMade == 1 && std::chrono::steady_clock::now() < end) {
    std::this_thread::yield();
  }
  return self;
}
@end

@interface OvTestFirstAsker : NSObject {
 @public
  std::atomic<bool> *_go;
  std::atomic<int> *_done;
  HXSoundRepository *_found;
}
- (void)ask:(id)unused;
@end

@implementation OvTestFirstAsker
- (void)ask:(id)unused {
  @autoreleasepool {
    while (!*_go) std::this_thread::yield();
    _found = [HXSoundRepository sharedSoundRepository];
    ++*_done;
  }
}
@end

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// Stands first, so that these are the process's first.
class SoundsFirstUse : public ov::test::LiveTest {};

TEST_F(SoundsFirstUse, MayComeFromAnyThread) {
  class_addMethod([HXSoundRepository class], @selector(init),
                  class_getMethodImplementation([OvTestSlowObject class], @selector(init)), "@@:");
  std::atomic<bool> go = false;
  std::atomic<int> done = 0;
  NSMutableArray *askers = [NSMutableArray array];
  for (int i = 0; i < 16; ++i) {
    OvTestFirstAsker *asker = [[[OvTestFirstAsker alloc] init] autorelease];
    asker->_go = &go;
    asker->_done = &done;
    [askers addObject:asker];
    [NSThread detachNewThreadSelector:@selector(ask:) toTarget:asker withObject:nil];
  }
  go = true;
  ASSERT_TRUE(ov::test::pumpUntil([&] { return done == 16; }));
  HXSoundRepository *shared = [HXSoundRepository sharedSoundRepository];
  EXPECT_NE(shared, nil);
  EXPECT_EQ(repositoriesMade, 1);
  for (OvTestFirstAsker *asker in askers) EXPECT_EQ(asker->_found, shared);
}

class Sounds : public ov::test::LiveTest {
 protected:
  void SetUp() override {
    LiveTest::SetUp();
    givenLibraries = @[ path("user"), path("local"), path("system") ];
  }
  void TearDown() override {
    givenLibraries = nil;
    LiveTest::TearDown();
  }

  NSString *path(const std::string &name) const {
    return [NSString stringWithUTF8String:(folder / name).c_str()];
  }

  void put(const std::string &name) {
    const std::filesystem::path file = folder / name;
    std::filesystem::create_directories(file.parent_path());
    setContents(file, "");
  }

  // Without the temporary folder in front.
  std::vector<std::string> sounds() {
    std::vector<std::string> result;
    const std::string start = folder / "";
    for (NSString *sound in [[HXSoundRepository sharedSoundRepository] soundFilePaths]) {
      const std::string full = [sound UTF8String];
      result.push_back(full.starts_with(start) ? full.substr(start.size()) : full);
    }
    return result;
  }

  TemporaryFolder folder;
};

TEST_F(Sounds, LibrariesOfAllDomainsAreAskedForOnce) {
  timesAsked = 0;
  sounds();
  EXPECT_EQ(timesAsked, 1);
}

TEST_F(Sounds, EachFolderIsSortedOnItsOwn) {
  for (const char *name :
       {"system/Sounds/alpha.wav", "local/Sounds/ping 10.wav", "local/Sounds/Ping 9.wav",
        "local/Sounds/ping 1.aiff", "user/Sounds/zeta.wav", "user/Sounds/beta.wav"}) {
    put(name);
  }
  EXPECT_THAT(sounds(), ElementsAre("user/Sounds/beta.wav", "user/Sounds/zeta.wav",
                                    "local/Sounds/ping 1.aiff", "local/Sounds/Ping 9.wav",
                                    "local/Sounds/ping 10.wav", "system/Sounds/alpha.wav"));
}

TEST_F(Sounds, TheOrderOfTheLibrariesIsThePlatforms) {
  put("user/Sounds/a.wav");
  put("system/Sounds/a.wav");
  givenLibraries = @[ path("system"), path("user") ];
  EXPECT_THAT(sounds(), ElementsAre("system/Sounds/a.wav", "user/Sounds/a.wav"));
}

TEST_F(Sounds, TheSameNameIsListedOfEachFolder) {
  put("user/Sounds/a.wav");
  put("local/Sounds/a.wav");
  put("local/Sounds/a.au");
  EXPECT_THAT(sounds(),
              ElementsAre("user/Sounds/a.wav", "local/Sounds/a.au", "local/Sounds/a.wav"));
}

TEST_F(Sounds, OnlySoundFilesAreListed) {
  for (const char *name : {"a.wav", "b.txt", "c", "wav", "d.WAV", ".wav", "e.wav.txt", "f.txt.wav",
                           "inner/g.wav", "h.wav~"}) {
    put(std::string("user/Sounds/") + name);
  }
  EXPECT_THAT(sounds(), ElementsAre("user/Sounds/a.wav", "user/Sounds/f.txt.wav"));
}

TEST_F(Sounds, EveryTypeOfThePlatformCounts) {
  for (NSString *type in [NSSound soundUnfilteredFileTypes]) {
    put(std::string("user/Sounds/a.") + [type UTF8String]);
  }
  EXPECT_EQ(sounds().size(), [[NSSound soundUnfilteredFileTypes] count]);
  EXPECT_GT(sounds().size(), 3u);
}

TEST_F(Sounds, FoldersThatCannotBeReadArePassedOver) {
  put("user/Sounds");  // a file
  put("system/Sounds/a.wav");
  ov::test::LogCapture log;
  EXPECT_THAT(sounds(), ElementsAre("system/Sounds/a.wav"));
  EXPECT_THAT(log.lines(), IsEmpty());
}

TEST_F(Sounds, FoldersThatMayNotBeReadArePassedOver) {
  put("user/Sounds/a.wav");
  put("system/Sounds/b.wav");
  chmod((folder / "user/Sounds").c_str(), 0);
  chmod(folder.path().c_str(), 0755);
  // root may read everything, unless it gives up the right to
  const pid_t child = fork();
  if (child == 0) {
    if (!ov::test::giveUpRights()) _exit(2);
    _exit(sounds() == std::vector<std::string>{"system/Sounds/b.wav"} ? 0 : 1);
  }
  int status = 0;
  waitpid(child, &status, 0);
  chmod((folder / "user/Sounds").c_str(), 0755);
  EXPECT_EQ(WEXITSTATUS(status), 0);
}

TEST_F(Sounds, NoSoundsAreAnEmptyList) {
  EXPECT_THAT(sounds(), IsEmpty());
  EXPECT_NE([[HXSoundRepository sharedSoundRepository] soundFilePaths], nil);
  std::filesystem::create_directories(folder / "user/Sounds");
  EXPECT_THAT(sounds(), IsEmpty());
  givenLibraries = [NSArray array];
  EXPECT_THAT(sounds(), IsEmpty());
}

TEST_F(Sounds, TheFoldersAreReadEachTime) {
  put("user/Sounds/a.wav");
  EXPECT_EQ(sounds().size(), 1u);
  put("user/Sounds/b.wav");
  EXPECT_EQ(sounds().size(), 2u);
}

TEST_F(Sounds, TheListIsImmutable) {
  put("user/Sounds/a.wav");
  NSArray *list = [[HXSoundRepository sharedSoundRepository] soundFilePaths];
  EXPECT_FALSE([list isKindOfClass:[NSMutableArray class]]);
}

TEST_F(Sounds, ThePlatformsOwnFoldersAreListed) {
  givenLibraries = nil;
  for (const std::string &sound : sounds()) {
    EXPECT_TRUE(std::filesystem::exists(sound)) << sound;
    EXPECT_EQ(std::filesystem::path(sound).parent_path().filename(), "Sounds");
  }
  EXPECT_EQ([HXSoundRepository sharedSoundRepository], [HXSoundRepository sharedSoundRepository]);
}

}  // namespace
