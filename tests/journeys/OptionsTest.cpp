#include <gmock/gmock.h>

#include "shell/GalleryOptions.h"

namespace gallery {
namespace {

using ::testing::ElementsAre;

TEST(GalleryOptions, TakesItsOwnWordsOutAndLeavesThePlatformsPairs) {
  const Options options = parseOptions({"Gallery", "-page", "million", "-NSFont", "Sans",
                                        "/pictures", "-statusfile", "/s", "-snapshot", "-odd"});
  EXPECT_EQ(options.page, "million");
  EXPECT_EQ(options.folder, "/pictures");
  EXPECT_EQ(options.statusFile, "/s");
  EXPECT_EQ(options.snapshot, "-odd");
  EXPECT_THAT(options.platformArguments, ElementsAre("Gallery", "-NSFont", "Sans"));
}

TEST(GalleryOptions, LeavesNothingThatThePlatformWouldOpenAsADocument) {
  // A key without its value gets an empty one; stray words are folders; the last one counts.
  EXPECT_THAT(parseOptions({"Gallery", "a", "", "-", "b", "-key"}).platformArguments,
              ElementsAre("Gallery", "-key", ""));
  EXPECT_EQ(parseOptions({"Gallery", "a", "", "b"}).folder, "b");
  EXPECT_EQ(parseOptions({"Gallery", "-folder", "c"}).folder, "c");
  EXPECT_TRUE(parseOptions({}).platformArguments.empty());
}

}  // namespace
}  // namespace gallery
