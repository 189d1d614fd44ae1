#import <OvFoundation/OvFoundation.h>

#include <gtest/gtest.h>

#include <errno.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <vector>

#include "FaultyCalls.h"
#include "TemporaryFolder.h"

namespace {

class Volume : public testing::Test {
 protected:
  ~Volume() override {
    OvSetMountTableText(nil);
    [pool release];
  }

  NSString *path(const std::string &name) const {
    return [NSString stringWithUTF8String:(folder / name).c_str()];
  }

  // The temporary folder's "share" is a mount of this type.
  void mountShare(const char *type) {
    std::filesystem::create_directories(folder / "share/inner");
    OvSetMountTableText([NSString
        stringWithFormat:@"1 0 8:1 / / rw - ext4 /dev/sda1 rw\n7 1 0:9 / %@ rw - %s source rw\n",
                         path("share"), type]);
  }

  BOOL isNetwork(NSString *path) {
    return [[NSFileManager defaultManager] isNetworkVolumeAtPath:path];
  }
  OvVolumeRef volume(NSString *path) {
    return [[NSFileManager defaultManager] volumeRefWithPath:path];
  }

  NSAutoreleasePool *pool = [[NSAutoreleasePool alloc] init];
  TemporaryFolder folder;
  FaultyCallsScope scope;
};

TEST_F(Volume, NetworkVolumeIsToldByItsMount) {
  mountShare("nfs4");
  EXPECT_TRUE(isNetwork(path("share")));
  EXPECT_TRUE(isNetwork(path("share/inner")));
  EXPECT_FALSE(isNetwork(path("")));
  EXPECT_EQ(7, volume(path("share/inner")));
  EXPECT_EQ(1, volume(path("")));
  mountShare("ext4");
  EXPECT_FALSE(isNetwork(path("share")));
}

TEST_F(Volume, LinksAreFollowed) {
  mountShare("cifs");
  std::filesystem::create_symlink(folder / "share/inner", folder / "link");
  std::filesystem::create_symlink(folder.path(), folder / "share/out");
  EXPECT_TRUE(isNetwork(path("link")));
  EXPECT_FALSE(isNetwork(path("share/out")));
  EXPECT_TRUE(isNetwork(path("share/out/share")));
  EXPECT_TRUE(isNetwork(path("share/inner/../inner")));
}

TEST_F(Volume, RelativePathStartsAtTheCurrentFolder) {
  mountShare("nfs");
  const auto old = std::filesystem::current_path();
  std::filesystem::current_path(folder / "share");
  EXPECT_TRUE(isNetwork(@"inner"));
  EXPECT_FALSE(isNetwork(@".."));
  std::filesystem::current_path(old);
}

TEST_F(Volume, NothingHasNoVolume) {
  mountShare("nfs");
  std::filesystem::create_symlink("nowhere", folder / "share/dangling");
  setContents(folder / "share/file", "x");
  const unichar half = 0xD83D, zero = 0;
  NSMutableString *broken = [NSMutableString stringWithString:@"\U0001F600"];
  [broken deleteCharactersInRange:NSMakeRange(1, 1)];
  EXPECT_EQ(half, [broken characterAtIndex:0]);
  NSString *withNul = [path("share") stringByAppendingString:[NSString stringWithCharacters:&zero
                                                                                     length:1]];
  for (NSString *nothing :
       std::vector<NSString *>{nil, @"", path("share/missing"), path("share/dangling"),
                               path("share/file/x"), broken, withNul}) {
    EXPECT_FALSE(isNetwork(nothing)) << [nothing length];
    EXPECT_EQ(0, volume(nothing)) << [nothing length];
  }
}

TEST_F(Volume, VolumeThatCannotBeEnteredStillHasItsPlace) {
  mountShare("nfs");
  chmod((folder / "share").c_str(), 0);
  chmod(folder.path().c_str(), 0755);
  const pid_t child = fork();
  if (child == 0) {
    if (geteuid() == 0 && setuid(65534) != 0) _exit(2);
    _exit(isNetwork(path("share/inner")) && volume(path("share/inner")) == 7 ? 0 : 1);
  }
  int status = 0;
  waitpid(child, &status, 0);
  chmod((folder / "share").c_str(), 0755);
  EXPECT_EQ(0, WEXITSTATUS(status));
}

TEST_F(Volume, SystemTableCoversEveryPath) {
  OvSetMountTableText(nil);
  EXPECT_GT(volume(@"/proc/self"), 0);
  EXPECT_NE(volume(@"/proc/self"), volume(path("")));
  EXPECT_FALSE(isNetwork(@"/proc/self"));
}

TEST_F(Volume, EmptyTableHasNoVolumes) {
  OvSetMountTableText(@"");
  EXPECT_EQ(0, volume(path("")));
  EXPECT_FALSE(isNetwork(path("")));
}

TEST_F(Volume, UnmountsAtTheMountPoint) {
  mountShare("nfs");
  std::vector<std::string> unmounted;
  faultyCalls().unmount = [&](const std::string &point) {
    unmounted.push_back(point);
    return 0;
  };
  EXPECT_EQ(0, OvUnmountVolume(7));
  EXPECT_EQ(std::vector<std::string>{folder / "share"}, unmounted);
}

TEST_F(Volume, UnmountTellsTheSystemsError) {
  mountShare("nfs");
  faultyCalls().unmount = [](auto &) { return EBUSY; };
  faultyCalls().spawn = [](auto &, auto &) {
    ADD_FAILURE() << "no help is asked for when the volume is in use";
    return ENOENT;
  };
  EXPECT_EQ(EBUSY, OvUnmountVolume(7));
}

TEST_F(Volume, UnknownVolumeCannotBeUnmounted) {
  mountShare("nfs");
  faultyCalls().unmount = [](auto &) {
    ADD_FAILURE() << "nothing may be unmounted";
    return 0;
  };
  EXPECT_EQ(ENODEV, OvUnmountVolume(0));
  EXPECT_EQ(ENODEV, OvUnmountVolume(-7));
  EXPECT_EQ(ENODEV, OvUnmountVolume(8));
}

TEST_F(Volume, BuriedVolumeIsBusy) {
  OvSetMountTableText(
      @"1 0 8:1 / / rw - ext4 a rw\n2 1 0:5 / /m rw - nfs s rw\n3 2 0:6 / /m rw - tmpfs t rw\n");
  faultyCalls().unmount = [](auto &) {
    ADD_FAILURE() << "the volume above it would be unmounted";
    return 0;
  };
  EXPECT_EQ(EBUSY, OvUnmountVolume(2));
}

TEST_F(Volume, RootIsAlwaysBusy) {
  for (NSString *type in @[ @"ext4", @"nfs" ]) {
    OvSetMountTableText([NSString stringWithFormat:@"5 0 8:1 / / rw - %@ source rw\n", type]);
    faultyCalls().unmount = [](auto &) {
      ADD_FAILURE() << "nothing could be written any more";
      return 0;
    };
    faultyCalls().spawn = [](auto &, auto &) {
      ADD_FAILURE() << "nor may the program be asked";
      return 0;
    };
    EXPECT_EQ(EBUSY, OvUnmountVolume(volume(path(""))));
  }
}

TEST_F(Volume, UserIsHelpedByTheProgram) {
  mountShare("nfs");
  faultyCalls().unmount = [](auto &) { return EPERM; };
  std::string asked;
  faultyCalls().spawn = [&](const std::string &program, const std::string &point) {
    asked = program + " " + point;
    OvSetMountTableText(@"1 0 8:1 / / rw - ext4 a rw\n");  // gone
    return 0;
  };
  EXPECT_EQ(0, OvUnmountVolume(7));
  EXPECT_EQ("/bin/umount " + (folder / "share"), asked);

  mountShare("nfs");
  faultyCalls().spawn = [](auto &, auto &) { return 0; };  // does not help
  EXPECT_EQ(EPERM, OvUnmountVolume(7));
  faultyCalls().spawn = [](auto &, auto &) { return ENOENT; };  // is not there
  EXPECT_EQ(EPERM, OvUnmountVolume(7));
}

// A real volume, in a world of mounts of the test's own. Where the system does not
// give it one, an ordinary user is refused, and that is what can be seen then.
TEST_F(Volume, RealVolumeIsUnmounted) {
  OvSetMountTableText(nil);
  std::filesystem::create_directory(folder / "real mount");
  const std::string point = folder / "real mount";
  const pid_t child = fork();
  if (child == 0) {
    const bool isAlone = unshare(CLONE_NEWUSER | CLONE_NEWNS) == 0 &&
                         mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
                         mount("none", point.c_str(), "tmpfs", 0, nullptr) == 0;
    if (!isAlone) {
      faultyCalls().spawn = [](auto &, auto &) { return ENOENT; };
      if (geteuid() == 0 && setuid(65534) != 0) _exit(10);
      _exit(OvUnmountVolume(volume(@"/proc")) == EPERM ? 0 : 11);
    }
    const OvVolumeRef ref = volume(path("real mount"));
    if (ref == 0 || ref == volume(path(""))) _exit(1);
    setContents(point + "/file", "x");
    const int busy = chdir(point.c_str());
    if (busy != 0 || OvUnmountVolume(ref) != EBUSY) _exit(2);
    if (chdir("/") != 0 || OvUnmountVolume(ref) != 0) _exit(3);
    if (std::filesystem::exists(point + "/file")) _exit(4);
    if (OvUnmountVolume(ref) != ENODEV) _exit(5);
    if (volume(path("real mount")) != volume(path(""))) _exit(6);
    _exit(0);
  }
  int status = 0;
  waitpid(child, &status, 0);
  EXPECT_TRUE(WIFEXITED(status));
  EXPECT_EQ(0, WEXITSTATUS(status));
}

}  // namespace
