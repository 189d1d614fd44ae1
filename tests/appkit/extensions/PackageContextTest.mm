#import <OvAppKit/HXPackageSerializationContext.h>

#import "LiveTest.h"

#include <filesystem>

#include "TemporaryFolder.h"

/* A folder in which a second file of a name gets another one, as in AppKit; this platform
   replaces the first. */
@interface OvTestFolder : NSFileWrapper
@end

@implementation OvTestFolder
- (NSString *)addRegularFileWithContents:(NSData *)data preferredFilename:(NSString *)name {
  if ([[self fileWrappers] objectForKey:name]) name = [@"1__" stringByAppendingString:name];
  return [super addRegularFileWithContents:data preferredFilename:name];
}
@end

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

NSFileWrapper *folderWrapper() {
  return [[[NSFileWrapper alloc] initDirectoryWithFileWrappers:nil] autorelease];
}

NSFileWrapper *fileWrapper(const char *text) {
  NSData *data = [NSData dataWithBytes:text length:strlen(text)];
  return [[[NSFileWrapper alloc] initRegularFileWithContents:data] autorelease];
}

void add(NSFileWrapper *child, NSString *name, NSFileWrapper *parent) {
  [child setPreferredFilename:name];
  [parent addFileWrapper:child];
}

std::vector<std::string> names(NSFileWrapper *folder) {
  std::vector<std::string> result;
  for (NSString *name in [folder fileWrappers]) result.push_back([name UTF8String]);
  return result;
}

NSFileWrapper *child(NSFileWrapper *folder, NSString *name) {
  return [[folder fileWrappers] objectForKey:name];
}

class PackageContext : public ov::test::LiveTest {
 protected:
  void SetUp() override {
    LiveTest::SetUp();
    root = folderWrapper();
    context = [[[HXPackageSerializationContext alloc] initWithFileWrapper:root] autorelease];
  }

  std::string packageInfo() {
    NSData *data = [child([context contentsDirectoryFileWrapper], @"PkgInfo") regularFileContents];
    return {static_cast<const char *>([data bytes]), [data length]};
  }

  NSFileWrapper *root = nil;
  HXPackageSerializationContext *context = nil;
};

TEST_F(PackageContext, HoldsWhatItWasGiven) {
  EXPECT_EQ([context rootDirectoryFileWrapper], root);
  EXPECT_EQ([context document], nil);
  NSDocument *document = [[[NSDocument alloc] init] autorelease];
  HXPackageSerializationContext *other =
      [[[HXPackageSerializationContext alloc] initWithFileWrapper:root
                                                         document:document] autorelease];
  EXPECT_EQ([other rootDirectoryFileWrapper], root);
  EXPECT_EQ([other document], document);
  EXPECT_THAT(names(root), IsEmpty()) << "nothing is made before it is asked for";
}

TEST_F(PackageContext, KeepsAndReleasesWhatItWasGiven) {
  const int before = [OvTestDeathCounter deaths];
  @autoreleasepool {
    id wrapper = [[OvTestDeathCounter alloc] init];
    id document = [[OvTestDeathCounter alloc] init];
    HXPackageSerializationContext *other =
        [[HXPackageSerializationContext alloc] initWithFileWrapper:wrapper document:document];
    [wrapper release];
    [document release];
    EXPECT_EQ([OvTestDeathCounter deaths], before);
    [other release];
  }
  EXPECT_EQ([OvTestDeathCounter deaths], before + 2);
}

TEST_F(PackageContext, FoldersAreMadeOnce) {
  NSFileWrapper *resources = [context resourcesDirectoryFileWrapper];
  NSFileWrapper *contents = [context contentsDirectoryFileWrapper];
  EXPECT_TRUE([contents isDirectory]);
  EXPECT_TRUE([resources isDirectory]);
  EXPECT_EQ(child(root, @"Contents"), contents);
  EXPECT_EQ(child(contents, @"Resources"), resources);
  EXPECT_STREQ([[contents preferredFilename] UTF8String], "Contents");
  EXPECT_STREQ([[resources preferredFilename] UTF8String], "Resources");
  EXPECT_THAT(names(root), ElementsAre("Contents"));
  EXPECT_THAT(names(contents), ElementsAre("Resources"));
  EXPECT_EQ([context contentsDirectoryFileWrapper], contents);
  EXPECT_EQ([context resourcesDirectoryFileWrapper], resources);
  EXPECT_THAT(names(root), ElementsAre("Contents"));
  EXPECT_THAT(names(contents), ElementsAre("Resources"));
}

TEST_F(PackageContext, ContentsAloneAreEmpty) {
  EXPECT_THAT(names([context contentsDirectoryFileWrapper]), IsEmpty());
}

TEST_F(PackageContext, FoldersThatAreThereAreUsed) {
  NSFileWrapper *contents = folderWrapper();
  NSFileWrapper *resources = folderWrapper();
  add(fileWrapper("kept"), @"old", resources);
  add(resources, @"Resources", contents);
  add(contents, @"Contents", root);
  EXPECT_EQ([context contentsDirectoryFileWrapper], contents);
  EXPECT_EQ([context resourcesDirectoryFileWrapper], resources);
  EXPECT_THAT(names(resources), ElementsAre("old"));
}

TEST_F(PackageContext, OtherNamesAreLeftAlone) {
  add(folderWrapper(), @"contents", root);
  EXPECT_NE([context contentsDirectoryFileWrapper], child(root, @"contents"));
  EXPECT_THAT(names(root), UnorderedElementsAre("contents", "Contents"));
}

TEST_F(PackageContext, PackageInfoIsTheStringInUTF8) {
  [context addPackageInfoFile:@"APPL?é😀"];
  EXPECT_EQ(packageInfo(), "APPL?é😀");
  EXPECT_TRUE([child([context contentsDirectoryFileWrapper], @"PkgInfo") isRegularFile]);
  EXPECT_THAT(names([context contentsDirectoryFileWrapper]), ElementsAre("PkgInfo"));
}

TEST_F(PackageContext, TheLastPackageInfoCounts) {
  [context addPackageInfoFile:@"first, and longer"];
  [context addPackageInfoFile:@"second"];
  EXPECT_EQ(packageInfo(), "second");
  EXPECT_THAT(names([context contentsDirectoryFileWrapper]), ElementsAre("PkgInfo"));
}

TEST_F(PackageContext, ThereIsNoSecondPackageInfo) {
  add([[[OvTestFolder alloc] initDirectoryWithFileWrappers:nil] autorelease], @"Contents", root);
  [context addPackageInfoFile:@"first"];
  [context addPackageInfoFile:@"second"];
  EXPECT_EQ(packageInfo(), "second");
  EXPECT_THAT(names([context contentsDirectoryFileWrapper]), ElementsAre("PkgInfo"));
}

TEST_F(PackageContext, OddStringsAsPackageInfo) {
  [context addPackageInfoFile:nil];
  EXPECT_THAT(names(root), IsEmpty());
  [context addPackageInfoFile:@""];
  EXPECT_NE(child([context contentsDirectoryFileWrapper], @"PkgInfo"), nil);
  EXPECT_EQ(packageInfo(), "");
  const unichar withNul[] = {'a', 0, 'b'};
  [context addPackageInfoFile:[NSString stringWithCharacters:withNul length:3]];
  EXPECT_EQ(packageInfo(), std::string("a\0b", 3));
  NSMutableString *half = [NSMutableString stringWithString:@"\U0001F600"];
  [half deleteCharactersInRange:NSMakeRange(1, 1)];
  ov::test::LogCapture log;
  [context addPackageInfoFile:half];
  EXPECT_THAT(log.lines(),
              ElementsAre("[HXPackageSerializationContext] The package information has no UTF-8."));
  EXPECT_EQ(packageInfo(), std::string("a\0b", 3)) << "the old one stays";
}

TEST_F(PackageContext, WithoutRootThereIsNothing) {
  ov::test::LogCapture log;
  for (HXPackageSerializationContext *empty in @[
         [[[HXPackageSerializationContext alloc] initWithFileWrapper:nil] autorelease],
         [[[HXPackageSerializationContext alloc] init] autorelease]
       ]) {
    EXPECT_EQ([empty rootDirectoryFileWrapper], nil);
    EXPECT_EQ([empty contentsDirectoryFileWrapper], nil);
    EXPECT_EQ([empty resourcesDirectoryFileWrapper], nil);
    [empty addPackageInfoFile:@"APPL????"];
  }
  EXPECT_THAT(log.lines(), IsEmpty());
}

TEST_F(PackageContext, AFileAsRootHasNoFolders) {
  NSFileWrapper *file = fileWrapper("text");
  context = [[[HXPackageSerializationContext alloc] initWithFileWrapper:file] autorelease];
  ov::test::LogCapture log;
  EXPECT_EQ([context contentsDirectoryFileWrapper], nil);
  EXPECT_THAT(log.lines(), ElementsAre("[HXPackageSerializationContext] There is no folder for "
                                       "\"Contents\"."));
  EXPECT_EQ([context resourcesDirectoryFileWrapper], nil);
  [context addPackageInfoFile:@"APPL????"];
  EXPECT_EQ([file regularFileContents], [file regularFileContents]);
  EXPECT_TRUE([file isRegularFile]);
}

TEST_F(PackageContext, WhatIsNoFolderIsLeftAlone) {
  NSFileWrapper *contents = fileWrapper("mine");
  add(contents, @"Contents", root);
  {
    ov::test::LogCapture log;
    EXPECT_EQ([context contentsDirectoryFileWrapper], nil);
    EXPECT_THAT(log.lines(),
                ElementsAre("[HXPackageSerializationContext] \"Contents\" is not a folder."));
  }
  EXPECT_EQ([context resourcesDirectoryFileWrapper], nil);
  [context addPackageInfoFile:@"APPL????"];
  EXPECT_THAT(names(root), ElementsAre("Contents"));
  EXPECT_EQ(child(root, @"Contents"), contents);

  [root removeFileWrapper:contents];
  add(fileWrapper("mine"), @"Resources", [context contentsDirectoryFileWrapper]);
  EXPECT_EQ([context resourcesDirectoryFileWrapper], nil);
  EXPECT_TRUE([child([context contentsDirectoryFileWrapper], @"Resources") isRegularFile]);
}

TEST_F(PackageContext, WritesThePackage) {
  TemporaryFolder folder;
  [context addPackageInfoFile:@"first"];
  [context addPackageInfoFile:@"APPL????"];
  NSData *picture = [@"picture" dataUsingEncoding:NSUTF8StringEncoding];
  [[context resourcesDirectoryFileWrapper] addRegularFileWithContents:picture
                                                    preferredFilename:@"cover.png"];
  NSString *path = [NSString stringWithUTF8String:(folder / "My.package").c_str()];
  ASSERT_TRUE([root writeToFile:path atomically:NO updateFilenames:NO]);

  std::vector<std::string> written;
  const std::filesystem::path package = folder / "My.package";
  for (const auto &entry : std::filesystem::recursive_directory_iterator(package)) {
    written.push_back(entry.path().lexically_relative(package).string());
  }
  EXPECT_THAT(written, UnorderedElementsAre("Contents", "Contents/PkgInfo", "Contents/Resources",
                                            "Contents/Resources/cover.png"));
  EXPECT_EQ(contentsOf(package / "Contents/PkgInfo"), "APPL????");
  EXPECT_EQ(contentsOf(package / "Contents/Resources/cover.png"), "picture");

  // What is read is gone on with.
  NSFileWrapper *read = [[[NSFileWrapper alloc] initWithPath:path] autorelease];
  context = [[[HXPackageSerializationContext alloc] initWithFileWrapper:read] autorelease];
  EXPECT_THAT(names([context resourcesDirectoryFileWrapper]), ElementsAre("cover.png"));
  EXPECT_EQ(packageInfo(), "APPL????");
  [context addPackageInfoFile:@"BNDL????"];
  EXPECT_THAT(names([context contentsDirectoryFileWrapper]),
              UnorderedElementsAre("PkgInfo", "Resources"));
  NSString *again = [NSString stringWithUTF8String:(folder / "Again.package").c_str()];
  ASSERT_TRUE([read writeToFile:again atomically:NO updateFilenames:NO]);
  EXPECT_EQ(contentsOf(folder / "Again.package/Contents/PkgInfo"), "BNDL????");
}

}  // namespace
