#import <OvAppKit/NSWorkspace+OvAppKit.h>
#import <OvFoundation/OvFoundation.h>

#import "LiveTest.h"

#include <errno.h>
#include <objc/runtime.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

#include "FaultyCalls.h"
#include "TemporaryFolder.h"
#import "TestWorkspace.h"

static OvVolumeRef givenVolume = 0;

/* What stands for the file manager's own method. */
@interface OvTestVolumeTeller : NSObject
@end

@implementation OvTestVolumeTeller
- (OvVolumeRef)volumeRefWithPath:(NSString *)path {
  (void)path;
  return givenVolume;
}
@end

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

NSString *const kOnlyTheRoot = @"1 0 8:1 / / rw - ext4 /dev/sda1 rw\n";

class Volumes : public ov::test::LiveTest {
 protected:
  void SetUp() override {
    LiveTest::SetUp();
    workspace->_mountPoints = [NSArray array];
    // Whatever happens, nothing of the machine is unmounted.
    faultyCalls().unmount = [this](const std::string &point) {
      unmounted.push_back(point);
      return error;
    };
    faultyCalls().spawn = [](auto &, auto &) { return ENOENT; };
    OvSetMountTableText(kOnlyTheRoot);
  }
  void TearDown() override {
    OvSetMountTableText(nil);
    LiveTest::TearDown();
  }

  NSString *path(const std::string &name) const {
    return [NSString stringWithUTF8String:(folder / name).c_str()];
  }

  // The temporary folder's "share" is a mount of this type.
  void mountShare(NSString *type) {
    std::filesystem::create_directories(folder / "share/inner");
    OvSetMountTableText([kOnlyTheRoot
        stringByAppendingFormat:@"7 1 0:9 / %@ rw - %@ source rw\n", path("share"), type]);
  }

  BOOL canUnmount(NSString *path) {
    return [workspace.get() isUnmountableDeviceOrNetworkVolumeAtPath:path];
  }
  BOOL unmount(NSString *path) {
    return [workspace.get() unmountAndEjectDeviceOrNetworkVolumeAtPath:path];
  }

  TemporaryFolder folder;
  FaultyCallsScope scope;
  ov::test::Workspace workspace;
  std::vector<std::string> unmounted;
  int error = 0;
};

NSString *withNul(NSString *path) {
  const unichar nul = 0;
  return [[path stringByAppendingString:[NSString stringWithCharacters:&nul length:1]]
      stringByAppendingString:@"x"];
}

NSString *withHalf(NSString *path) {
  NSMutableString *string = [NSMutableString stringWithFormat:@"%@\U0001F600", path];
  [string deleteCharactersInRange:NSMakeRange([string length] - 1, 1)];
  return string;
}

TEST_F(Volumes, AnUnmountableOneIsEjected) {
  workspace->_unmountable = YES;
  for (const BOOL answer : {YES, NO}) {
    workspace->_ejects = answer;
    EXPECT_TRUE(canUnmount(@"/media/disk"));
    EXPECT_EQ(unmount(@"/media/disk"), answer);
  }
  EXPECT_THAT(workspace.ejected(), ElementsAre("/media/disk", "/media/disk"));
  EXPECT_THAT(unmounted, IsEmpty());
}

TEST_F(Volumes, AnUnmountableOneOfAnotherMachineIsEjected) {
  mountShare(@"nfs");
  workspace->_unmountable = YES;
  workspace->_ejects = NO;
  EXPECT_FALSE(unmount(path("share")));
  EXPECT_EQ(workspace.ejected().size(), 1u);
  EXPECT_THAT(unmounted, IsEmpty());
}

TEST_F(Volumes, ARemovableOneIsEjectedAtItsMountPoint) {
  workspace->_removable = YES;
  workspace->_ejects = YES;
  workspace->_mountPoints = [NSArray arrayWithObjects:@"/", @"/media/stick", nil];
  EXPECT_TRUE(canUnmount(@"/media/stick"));
  EXPECT_TRUE(unmount(@"/media/stick"));
  EXPECT_THAT(workspace.ejected(), ElementsAre("/media/stick"));
  for (NSString *other in
       @[ @"/media/stick/folder", @"/media", @"/media/stick2", @"/media/stic" ]) {
    EXPECT_FALSE(canUnmount(other)) << [other UTF8String];
    EXPECT_FALSE(unmount(other)) << [other UTF8String];
  }
  EXPECT_EQ(workspace.ejected().size(), 1u);
}

TEST_F(Volumes, AnUnknownFileSystemIsNotEjected) {
  workspace->_known = NO;
  workspace->_unmountable = YES;
  workspace->_removable = YES;
  workspace->_mountPoints = [NSArray arrayWithObject:path("")];
  EXPECT_FALSE(canUnmount(path("")));
  EXPECT_FALSE(unmount(path("")));
  EXPECT_THAT(workspace.ejected(), IsEmpty());
}

TEST_F(Volumes, TheRootStays) {
  workspace->_unmountable = YES;
  workspace->_removable = YES;
  workspace->_ejects = YES;
  workspace->_mountPoints = [NSArray arrayWithObject:@"/"];
  std::filesystem::create_symlink("/", folder / "link");
  for (NSString *root in @[ @"/", @"//", @"/.", @"/..", @"/tmp/..", @"/./", path("link") ]) {
    EXPECT_FALSE(canUnmount(root)) << [root UTF8String];
    EXPECT_FALSE(unmount(root)) << [root UTF8String];
  }
  EXPECT_FALSE(
      [workspace.get() unmountAndEjectDeviceOrNetworkVolumeAtURL:[NSURL fileURLWithPath:@"/"]]);
  EXPECT_THAT(workspace.ejected(), IsEmpty());
  EXPECT_THAT(unmounted, IsEmpty());
}

TEST_F(Volumes, ARootOfAnotherMachineStays) {
  OvSetMountTableText(@"5 0 0:9 / / rw - nfs4 source rw\n");
  for (NSString *place in @[ @"/", path("") ]) {
    ov::test::LogCapture log;
    EXPECT_TRUE(canUnmount(place)) << "it is a volume of another machine";
    EXPECT_FALSE(unmount(place));
    EXPECT_THAT(log.lines(), ElementsAre("FAILED: FSUnmountVolumeSync(); Error Code: 16"));
  }
  EXPECT_THAT(unmounted, IsEmpty());
}

TEST_F(Volumes, AMissingProgramIsAnAnswer) {
  mountShare(@"ext4");
  workspace->_unmountable = YES;
  workspace->_ejects = YES;
  workspace->_failure = [NSException exceptionWithName:NSInvalidArgumentException
                                                reason:@"no such program"
                                              userInfo:nil];
  ov::test::LogCapture log;
  EXPECT_FALSE(unmount(path("share"))) << "it is still there";
  workspace->_beforeAnswer = [] { OvSetMountTableText(kOnlyTheRoot); };
  EXPECT_TRUE(unmount(path("share"))) << "only the ejecting went wrong";
  const char *line = "unmountAndEjectDeviceAtPath: no such program";
  EXPECT_THAT(log.lines(), ElementsAre(line, line));
}

TEST_F(Volumes, OneOfAnotherMachineIsUnmounted) {
  mountShare(@"nfs");
  ov::test::LogCapture log;
  EXPECT_TRUE(canUnmount(path("share")));
  EXPECT_THAT(unmounted, IsEmpty()) << "asking changes nothing";
  EXPECT_TRUE(unmount(path("share")));
  EXPECT_THAT(unmounted, ElementsAre(folder / "share"));
  EXPECT_THAT(workspace.ejected(), IsEmpty());
  EXPECT_THAT(log.lines(), IsEmpty());
}

TEST_F(Volumes, AnyPathOnItNamesIt) {
  mountShare(@"cifs");
  std::filesystem::create_symlink(folder / "share/inner", folder / "link");
  for (const char *place : {"share/inner", "share/", "link", "share/inner/../inner"}) {
    unmounted.clear();
    EXPECT_TRUE(canUnmount(path(place))) << place;
    EXPECT_TRUE(unmount(path(place))) << place;
    EXPECT_THAT(unmounted, ElementsAre(folder / "share")) << place;
  }
}

TEST_F(Volumes, WhatLeadsAwayFromItDoesNotNameIt) {
  mountShare(@"nfs");
  std::filesystem::create_symlink(folder.path(), folder / "share/out");
  std::filesystem::create_directory(folder / "share2");
  for (const char *place : {"", "share/..", "share/out", "share2"}) {
    EXPECT_FALSE(canUnmount(path(place))) << place;
    EXPECT_FALSE(unmount(path(place))) << place;
  }
  EXPECT_THAT(unmounted, IsEmpty());
}

TEST_F(Volumes, AVolumeThatLiesOnAShareIsNotTheShare) {
  mountShare(@"nfs");
  OvSetMountTableText([kOnlyTheRoot stringByAppendingFormat:@"7 1 0:9 / %@ rw - nfs source rw\n"
                                                            @"8 7 0:10 / %@ rw - tmpfs none rw\n",
                                                            path("share"), path("share/inner")]);
  EXPECT_FALSE(unmount(path("share/inner")));
  EXPECT_THAT(unmounted, IsEmpty());
}

TEST_F(Volumes, AFailureIsTold) {
  mountShare(@"nfs");
  ov::test::LogCapture log;
  error = EBUSY;
  EXPECT_FALSE(unmount(path("share")));
  error = EPERM;
  EXPECT_FALSE(unmount(path("share")));
  EXPECT_THAT(log.lines(), ElementsAre("FAILED: FSUnmountVolumeSync(); Error Code: 16",
                                       "FAILED: FSUnmountVolumeSync(); Error Code: 1"));
}

TEST_F(Volumes, TheFileManagersVolumeIsUnmounted) {
  mountShare(@"nfs");
  const SEL selector = @selector(volumeRefWithPath:);
  const Method method = class_getInstanceMethod([NSFileManager class], selector);
  const IMP real = method_setImplementation(
      method, class_getMethodImplementation([OvTestVolumeTeller class], selector));
  {
    ov::test::LogCapture log;
    givenVolume = 0;
    EXPECT_FALSE(unmount(path("share")));
    EXPECT_THAT(log.lines(), IsEmpty()) << "there is no volume to unmount";
    givenVolume = 99;
    EXPECT_FALSE(unmount(path("share")));
    EXPECT_THAT(log.lines(), ElementsAre("FAILED: FSUnmountVolumeSync(); Error Code: 19"));
    EXPECT_THAT(unmounted, IsEmpty());
    givenVolume = 7;
    EXPECT_TRUE(unmount(path("share")));
    EXPECT_EQ(unmounted.size(), 1u);
  }
  method_setImplementation(method, real);
}

TEST_F(Volumes, ALocalOneStays) {
  mountShare(@"ext4");
  ov::test::LogCapture log;
  EXPECT_FALSE(canUnmount(path("share")));
  EXPECT_FALSE(unmount(path("share")));
  EXPECT_THAT(unmounted, IsEmpty());
  EXPECT_THAT(workspace.ejected(), IsEmpty());
  EXPECT_THAT(log.lines(), IsEmpty());
}

TEST_F(Volumes, NothingNamesNone) {
  mountShare(@"nfs");
  workspace->_known = NO;
  ov::test::LogCapture log;
  for (NSString *nothing :
       std::vector<NSString *>{nil, @"", path("missing"), path("share/missing"),
                               withNul(path("share")), withHalf(path("share"))}) {
    EXPECT_FALSE(canUnmount(nothing)) << [nothing length];
    EXPECT_FALSE(unmount(nothing)) << [nothing length];
  }
  OvSetMountTableText(@"");
  EXPECT_FALSE(unmount(path("share")));
  EXPECT_THAT(unmounted, IsEmpty());
  EXPECT_THAT(log.lines(), IsEmpty());
}

// The platform would look at the path up to there, which may be a mount point.
TEST_F(Volumes, OddPathsDoNotReachThePlatform) {
  workspace->_unmountable = YES;
  for (NSString *odd :
       std::vector<NSString *>{nil, @"", withNul(@"/media/disk"), withHalf(@"/media/disk")}) {
    EXPECT_FALSE(canUnmount(odd)) << [odd length];
    EXPECT_FALSE(unmount(odd)) << [odd length];
  }
  EXPECT_THAT(workspace.asked(), IsEmpty());
  EXPECT_THAT(workspace.ejected(), IsEmpty());
}

TEST_F(Volumes, AFileURLNamesItsPath) {
  workspace->_unmountable = YES;
  workspace->_ejects = YES;
  for (NSString *text in @[ @"file:///media/my%20disk", @"file:///media/my%20disk/" ]) {
    NSURL *url = [NSURL URLWithString:text];
    EXPECT_TRUE([workspace.get() isUnmountableDeviceOrNetworkVolumeAtURL:url]);
    EXPECT_TRUE([workspace.get() unmountAndEjectDeviceOrNetworkVolumeAtURL:url]);
  }
  EXPECT_THAT(workspace.ejected(), ElementsAre("/media/my disk", "/media/my disk"));
}

TEST_F(Volumes, OtherURLsNameNothing) {
  workspace->_unmountable = YES;
  workspace->_ejects = YES;
  for (NSURL *url : std::vector<NSURL *>{
           nil, [NSURL URLWithString:@"http://example.net/media/disk"],
           [NSURL URLWithString:@"smb://example.net/media/disk"],
           [NSURL URLWithString:@"/media/disk"], [NSURL URLWithString:@"file:///media/disk%00x"],
           [NSURL fileURLWithPath:withNul(@"/media/disk")]}) {
    EXPECT_FALSE([workspace.get() isUnmountableDeviceOrNetworkVolumeAtURL:url])
        << [[url description] UTF8String];
    EXPECT_FALSE([workspace.get() unmountAndEjectDeviceOrNetworkVolumeAtURL:url]);
  }
  EXPECT_THAT(workspace.asked(), IsEmpty());
  EXPECT_THAT(workspace.ejected(), IsEmpty());
}

TEST_F(Volumes, ThePlatformsOwnWorkspaceAnswers) {
  NSWorkspace *shared = [NSWorkspace sharedWorkspace];
  for (NSString *place : std::vector<NSString *>{nil, @"", @"/", @"/proc", path(""),
                                                 path("missing"), withNul(@"/"), withHalf(@"/")}) {
    EXPECT_FALSE([shared isUnmountableDeviceOrNetworkVolumeAtPath:place]) << [place length];
    EXPECT_FALSE([shared unmountAndEjectDeviceOrNetworkVolumeAtPath:place]) << [place length];
  }
  EXPECT_THAT(unmounted, IsEmpty());
}

void writeText(const std::string &file, const std::string &text) { std::ofstream(file) << text; }

// A world of mounts and, where that takes it, of users of this process's own.
bool leaveTheWorld() {
  const auto user = std::to_string(geteuid());
  const auto group = std::to_string(getegid());
  if (unshare(CLONE_NEWNS) != 0) {
    if (unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0) return false;
    writeText("/proc/self/setgroups", "deny");
    writeText("/proc/self/uid_map", "0 " + user + " 1");
    writeText("/proc/self/gid_map", "0 " + group + " 1");
  }
  return ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
}

// A real volume, in a world of mounts of the test's own, which the list gives another type.
// Where the system gives it none, an ordinary user is refused, and that is what can be seen.
TEST_F(Volumes, ARealOneIsUnmounted) {
  mountShare(@"nfs");
  faultyCalls().unmount = nullptr;
  const std::string point = folder / "share";
  const pid_t child = fork();
  if (child == 0) {
    const bool isAlone =
        leaveTheWorld() && ::mount("none", point.c_str(), "tmpfs", 0, nullptr) == 0;
    if (!isAlone) {
      if (geteuid() == 0 && setuid(65534) != 0) _exit(10);
      _exit(unmount(path("share")) ? 11 : 0);
    }
    writeText(point + "/file", "x");
    if (mkdir((point + "/inner").c_str(), 0755) != 0) _exit(1);
    if (chdir(point.c_str()) != 0 || unmount(path("share/inner"))) _exit(5);
    if (!std::filesystem::exists(point + "/file")) _exit(2);
    if (chdir("/") != 0 || !unmount(path("share/inner"))) _exit(3);
    if (std::filesystem::exists(point + "/file")) _exit(4);
    _exit(0);
  }
  int status = 0;
  waitpid(child, &status, 0);
  EXPECT_TRUE(WIFEXITED(status));
  EXPECT_EQ(0, WEXITSTATUS(status));
}

}  // namespace
