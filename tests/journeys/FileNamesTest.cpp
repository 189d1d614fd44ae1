#include <gtest/gtest.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <fstream>

#include "TemporaryFolder.h"
#include "pictures/FileNames.h"

namespace gallery {
namespace {

TEST(FileNames, SaysWhyANameIsIllegal) {
  for (const char *name : {"a", "a.png", "...", "\u6728.png", " "}) {
    EXPECT_EQ(whyNotAFileName(name), "") << name;
  }
  EXPECT_EQ(whyNotAFileName(std::string(255, 'x')), "");
  EXPECT_NE(whyNotAFileName(std::string(256, 'x')), "");
  EXPECT_NE(whyNotAFileName(""), "");
  EXPECT_NE(whyNotAFileName("."), "");
  EXPECT_NE(whyNotAFileName(".."), "");
  EXPECT_NE(whyNotAFileName("a/b"), "");
  EXPECT_NE(whyNotAFileName(std::string("a\0b", 3)), "");
}

struct CopyName {
  const char *name;
  int number;
  const char *expected;
};

class NameOfCopy : public ::testing::TestWithParam<CopyName> {};

TEST_P(NameOfCopy, IsAsExpected) {
  EXPECT_EQ(nameOfCopy(GetParam().name, GetParam().number), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Names, NameOfCopy,
                         ::testing::Values(CopyName{"x.png", 0, "x.png"},
                                           CopyName{"x.png", 1, "x copy.png"},
                                           CopyName{"x.png", 2, "x copy 2.png"},
                                           CopyName{"x", 1, "x copy"},
                                           CopyName{"x.tar.gz", 3, "x.tar copy 3.gz"},
                                           // A leading dot begins no extension.
                                           CopyName{".png", 1, ".png copy"}));

TEST(FileNames, ShortenLongNamesAtWholeCharacters) {
  std::string name;
  while (name.size() + 3 + 4 <= 255) name += "\u6728";  // three bytes each
  const std::string copy = nameOfCopy(name + ".png", 12);
  EXPECT_LE(copy.size(), 255u);
  EXPECT_TRUE(copy.ends_with("\u6728 copy 12.png"));
}

TEST(FileNames, RenamingNeverReplaces) {
  const TemporaryFolder folder;
  std::ofstream(folder / "a") << "first";
  std::ofstream(folder / "b") << "second";
  EXPECT_EQ(renameWithoutReplacing(folder / "a", folder / "b"), EEXIST);
  EXPECT_EQ(folder.contents("a"), "first");
  EXPECT_EQ(folder.contents("b"), "second");
  EXPECT_EQ(renameWithoutReplacing(folder / "a", folder / "c"), 0);
  EXPECT_EQ(folder.contents("c"), "first");
  EXPECT_FALSE(std::filesystem::exists(folder / "a"));
  EXPECT_EQ(renameWithoutReplacing(folder / "a", folder / "d"), ENOENT);
}

}  // namespace
}  // namespace gallery
