#include <gtest/gtest.h>

#include <string>

#include "MountTable.h"

namespace {

constexpr const char *table =
    "21 1 8:1 / / rw,relatime shared:1 - ext4 /dev/sda1 rw\n"
    "22 21 0:4 / /proc rw - proc proc rw\n"
    "30 21 0:40 / /mnt/share rw,relatime shared:5 master:2 - nfs4 server:/export rw,vers=4.2\n"
    "31 30 8:2 / /mnt/share/local rw - ext4 /dev/sdb1 rw\n"
    "32 21 0:41 / /mnt/with\\040space\\011and\\134slash rw - cifs //server/s rw\n"
    "33 21 0:42 / /home/me/ssh rw - fuse.sshfs me@host:/ rw\n"
    "not a mount\n"
    "34 21 0:43 / /no-separator rw\n"
    "35 21 0:44 / /mnt/\\303\\241 rw - nfs s:/a rw\n";

struct Row {
  const char *name;
  std::string path;
  int id;
};

void PrintTo(const Row &row, std::ostream *out) { *out << row.path; }

class MountCovering : public testing::TestWithParam<Row> {};

TEST_P(MountCovering, IsThisMount) {
  const auto mounts = ov::parseMountTable(table);
  const ov::Mount *mount = ov::mountCovering(mounts, GetParam().path);
  EXPECT_EQ(GetParam().id, mount ? mount->id : 0);
}

INSTANTIATE_TEST_SUITE_P(
    , MountCovering,
    testing::Values(Row{"Root", "/", 21}, Row{"BelowRoot", "/etc/fstab", 21},
                    Row{"MountPoint", "/mnt/share", 30}, Row{"TrailingSlash", "/mnt/share/", 30},
                    Row{"DoubledSlash", "//mnt//share//x", 30}, Row{"Below", "/mnt/share/a/b", 30},
                    Row{"SameBeginning", "/mnt/share2", 21}, Row{"Above", "/mnt", 21},
                    Row{"MountInMount", "/mnt/share/local/x", 31},
                    Row{"EscapedCharacters", "/mnt/with space\tand\\slash/x", 32},
                    Row{"EscapedBytes", "/mnt/\xC3\xA1/x", 35}, Row{"Ssh", "/home/me/ssh/x", 33},
                    Row{"BrokenLine", "/no-separator", 21}, Row{"Relative", "mnt/share", 0},
                    Row{"Empty", "", 0}),
    [](const auto &info) { return info.param.name; });

TEST(MountTable, LaterMountBuriesWhatLiesBelow) {
  const auto mounts = ov::parseMountTable(
      "1 0 8:1 / / rw - ext4 a rw\n"
      "2 1 0:5 / /mnt/share rw - nfs s:/ rw\n"
      "3 1 8:2 / /mnt rw - ext4 b rw\n"
      "4 3 0:6 / /mnt/top rw - tmpfs t rw\n"
      "5 4 0:7 / /mnt/top rw - cifs //s/t rw\n");
  EXPECT_EQ(3, ov::mountCovering(mounts, "/mnt/share")->id) << "the folder above was mounted over";
  EXPECT_EQ(5, ov::mountCovering(mounts, "/mnt/top/x")->id) << "the same place was mounted over";
}

TEST(MountTable, RootMayBeMountedOver) {
  const auto mounts = ov::parseMountTable(
      "1 1 0:1 / / rw - rootfs rootfs rw\n"
      "2 1 8:1 / / rw - ext4 a rw\n"
      "3 2 0:5 / /x rw - nfs s:/ rw\n");
  EXPECT_EQ(2, ov::mountCovering(mounts, "/etc")->id);
  EXPECT_EQ(3, ov::mountCovering(mounts, "/x")->id);
}

TEST(MountTable, ChangedRootShowsNoRootMount) {
  const auto mounts = ov::parseMountTable("40 27 0:5 / /data rw - nfs s:/ rw\n");
  EXPECT_EQ(40, ov::mountCovering(mounts, "/data/x")->id);
  EXPECT_EQ(nullptr, ov::mountCovering(mounts, "/etc"));
}

TEST(MountTable, EmptyTableCoversNothing) {
  EXPECT_TRUE(ov::parseMountTable("").empty());
  EXPECT_EQ(nullptr, ov::mountCovering({}, "/"));
}

TEST(MountTable, MountsThatNameEachOtherAsParentEnd) {
  const auto mounts =
      ov::parseMountTable("1 2 0:1 / / rw - ext4 a rw\n2 1 0:2 / / rw - ext4 b rw\n");
  EXPECT_EQ(nullptr, ov::mountCovering(mounts, "/"));
}

struct Kind {
  const char *type;
  const char *source;
  bool isNetwork;
};

void PrintTo(const Kind &kind, std::ostream *out) { *out << kind.type << " " << kind.source; }

class NetworkMount : public testing::TestWithParam<Kind> {};

TEST_P(NetworkMount, IsToldByItsType) {
  ov::Mount mount;
  mount.type = GetParam().type;
  mount.source = GetParam().source;
  EXPECT_EQ(GetParam().isNetwork, ov::isNetworkMount(mount));
}

INSTANTIATE_TEST_SUITE_P(Yes, NetworkMount,
                         testing::Values(Kind{"nfs", "s:/", true}, Kind{"nfs4", "s:/", true},
                                         Kind{"cifs", "//s/x", true}, Kind{"smb3", "//s/x", true},
                                         Kind{"smbfs", "//s/x", true},
                                         Kind{"fuse.sshfs", "me@host:", true},
                                         Kind{"afs", "", true}, Kind{"9p", "host", true},
                                         Kind{"ceph", "", true}, Kind{"glusterfs", "", true},
                                         Kind{"fuse.glusterfs", "", true},
                                         Kind{"davfs", "https://s/", true}, Kind{"ncpfs", "", true},
                                         Kind{"fuse", "https://server/dav", true},
                                         Kind{"fuse.some", "s3://bucket", true}));

INSTANTIATE_TEST_SUITE_P(
    No, NetworkMount,
    testing::Values(Kind{"ext4", "/dev/sda1", false}, Kind{"tmpfs", "tmpfs", false},
                    Kind{"autofs", "systemd-1", false}, Kind{"fuseblk", "/dev/sdb1", false},
                    Kind{"fuse.gvfsd-fuse", "gvfsd-fuse", false}, Kind{"overlay", "x://y", false},
                    Kind{"nfsd", "nfsd", false}, Kind{"", "", false}));

}  // namespace
