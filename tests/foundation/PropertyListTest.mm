#import <OvFoundation/OvFoundation.h>

#include <gtest/gtest.h>

#include <sys/stat.h>

#include <cmath>
#include <functional>
#include <vector>

#include "LogCapture.h"
#include "RandomSeed.h"
#include "TemporaryFolder.h"

// Counts the notifications, and saves again from within the first if told to.
@interface SaveObserver : NSObject {
 @public
  int count;
  id lastObject;
  id lastUserInfo;
  NSDictionary *serializedThen;
  HXPropertyList *savesAgain;
}
- (void)didSave:(NSNotification *)notification;
@end

@implementation SaveObserver
- (void)didSave:(NSNotification *)notification {
  ++count;
  lastObject = [notification object];
  lastUserInfo = [notification userInfo];
  serializedThen = [lastObject _serializedValues];
  HXPropertyList *list = savesAgain;
  savesAgain = nil;
  [list saveChanges];
}
@end

static int livePropertyLists = 0;

@interface CountedPropertyList : HXPropertyList
@end

@implementation CountedPropertyList
- (id)initWithPath:(NSString *)path {
  ++livePropertyLists;
  return [super initWithPath:path];
}
- (void)dealloc {
  --livePropertyLists;
  [super dealloc];
}
@end

namespace {

// Half a character, which the platform makes only by cutting.
NSString *halfACharacter() {
  NSMutableString *half = [NSMutableString stringWithString:@"\U0001F600"];
  [half deleteCharactersInRange:NSMakeRange(1, 1)];
  return half;
}

class PropertyList : public testing::Test {
 protected:
  PropertyList() {
    [[NSNotificationCenter defaultCenter] addObserver:observer
                                             selector:@selector(didSave:)
                                                 name:HXPropertyListDidSaveValuesNotification
                                               object:nil];
  }
  ~PropertyList() override {
    [[NSNotificationCenter defaultCenter] removeObserver:observer];
    [observer release];
    [pool release];
  }

  NSString *path(const std::string &name = "list.plist") const {
    return [NSString stringWithUTF8String:(folder / name).c_str()];
  }
  HXPropertyList *open() { return [HXPropertyList propertyListWithPath:path()]; }
  void store(NSDictionary *values) { [values writeToFile:path() atomically:NO]; }
  NSDictionary *stored() { return [NSDictionary dictionaryWithContentsOfFile:path()]; }

  // The one line that was logged, as a check that it is one.
  std::string logged() {
    EXPECT_EQ(1u, log.lines().size());
    return log.lines().empty() ? "" : log.lines().back();
  }

  NSAutoreleasePool *pool = [[NSAutoreleasePool alloc] init];
  SaveObserver *observer = [[SaveObserver alloc] init];
  TemporaryFolder folder;
  LogCapture log;
};

TEST_F(PropertyList, NameOfTheNotificationIsItsValue) {
  EXPECT_TRUE(
      [HXPropertyListDidSaveValuesNotification isEqual:@"HXPropertyListDidSaveValuesNotification"]);
}

TEST_F(PropertyList, IsEmptyWithoutAFile) {
  HXPropertyList *list = open();
  EXPECT_TRUE([[list path] isEqual:path()]);
  EXPECT_TRUE([[list values] isKindOfClass:[NSMutableDictionary class]]);
  EXPECT_EQ(0u, [[list values] count]);
  EXPECT_TRUE([list _serializedValues] == nil);
  EXPECT_TRUE(folder.names().empty());
  EXPECT_TRUE(log.lines().empty());
}

TEST_F(PropertyList, ReadsWhatIsStored) {
  store(@{@"a" : @{@"b" : @[ @1 ]}});
  HXPropertyList *list = open();
  EXPECT_TRUE([[list values] isEqual:stored()]);
  EXPECT_TRUE([[list _serializedValues] isEqual:stored()]);
  // Values can be changed at every level, the serialized ones at none.
  [[[[list values] objectForKey:@"a"] objectForKey:@"b"] addObject:@2];
  EXPECT_FALSE([[list _serializedValues] isKindOfClass:[NSMutableDictionary class]]);
  EXPECT_TRUE([[list _serializedValues] isEqual:stored()]);
}

TEST_F(PropertyList, SavesAndSaysSo) {
  HXPropertyList *list = open();
  [[list values] setObject:@"red" forKey:@"ink"];
  EXPECT_TRUE([list saveChanges]);
  EXPECT_EQ(1, observer->count);
  EXPECT_TRUE(observer->lastObject == list);
  EXPECT_TRUE(observer->lastUserInfo == nil);
  EXPECT_TRUE([observer->serializedThen isEqual:@{@"ink" : @"red"}]);
  EXPECT_TRUE([stored() isEqual:@{@"ink" : @"red"}]);
  EXPECT_TRUE([[list _serializedValues] isEqual:@{@"ink" : @"red"}]);
  EXPECT_EQ(std::vector<std::string>{"list.plist"}, folder.names());
  EXPECT_TRUE(log.lines().empty());
  // What is changed later is not serialized yet.
  [[list values] setObject:@"blue" forKey:@"ink"];
  EXPECT_TRUE([[list _serializedValues] isEqual:@{@"ink" : @"red"}]);
}

TEST_F(PropertyList, SavingNothingIsSaving) {
  HXPropertyList *list = open();
  EXPECT_TRUE([list saveChanges]);
  EXPECT_EQ(1, observer->count);
  EXPECT_TRUE([[list _serializedValues] isEqual:@{}]);
  EXPECT_TRUE([[open() _serializedValues] isEqual:@{}]);
}

TEST_F(PropertyList, MakesItsFolders) {
  HXPropertyList *list = [HXPropertyList propertyListWithPath:path("a/b/list.plist")];
  EXPECT_TRUE([list saveChanges]);
  EXPECT_TRUE(std::filesystem::exists(folder / "a/b/list.plist"));
}

TEST_F(PropertyList, ObserverMaySaveAgain) {
  HXPropertyList *list = open();
  observer->savesAgain = list;
  EXPECT_TRUE([list saveChanges]);
  EXPECT_EQ(2, observer->count);
}

TEST_F(PropertyList, DiscardingReturnsToTheFile) {
  store(@{@"a" : @1, @"b" : @{@"c" : @2}});
  HXPropertyList *list = open();
  NSMutableDictionary *values = [list values];
  [values setObject:@9 forKey:@"new"];
  [values removeObjectForKey:@"a"];
  [[values objectForKey:@"b"] setObject:@3 forKey:@"c"];
  [list discardChanges];
  EXPECT_TRUE([list values] == values);
  EXPECT_TRUE([values isEqual:stored()]);
  EXPECT_EQ(0, observer->count);
}

TEST_F(PropertyList, DiscardingAfterASaveReturnsToWhatWasSaved) {
  HXPropertyList *list = open();
  [[list values] setObject:@1 forKey:@"a"];
  [list saveChanges];
  [[list values] setObject:@2 forKey:@"a"];
  [list discardChanges];
  EXPECT_TRUE([[list values] isEqual:@{@"a" : @1}]);
}

TEST_F(PropertyList, DiscardingWithoutAFileLeavesNothing) {
  HXPropertyList *list = open();
  [[list values] setObject:@1 forKey:@"a"];
  [list discardChanges];
  EXPECT_EQ(0u, [[list values] count]);
  [list saveChanges];
  std::filesystem::remove(folder / "list.plist");
  [list discardChanges];
  EXPECT_TRUE([list _serializedValues] == nil);
  EXPECT_TRUE(log.lines().empty());
}

TEST_F(PropertyList, DiscardingPicksUpWhatOthersWrote) {
  HXPropertyList *list = open();
  store(@{@"theirs" : @1});
  [list discardChanges];
  EXPECT_TRUE([[list values] isEqual:@{@"theirs" : @1}]);
  EXPECT_TRUE([[list _serializedValues] isEqual:@{@"theirs" : @1}]);
}

TEST_F(PropertyList, SavingReplacesWhatOthersWroteAndSaysSo) {
  HXPropertyList *list = open();
  store(@{@"theirs" : @1});
  [[list values] setObject:@1 forKey:@"mine"];
  EXPECT_TRUE([list saveChanges]);
  EXPECT_TRUE([stored() isEqual:@{@"mine" : @1}]);
  EXPECT_EQ("[HXPropertyList] " + (folder / "list.plist") +
                " was changed by someone else; their changes are replaced.",
            logged());
  EXPECT_TRUE([list saveChanges]) << "and only once";
  EXPECT_EQ(1u, log.lines().size());
}

TEST_F(PropertyList, SavingMakesADeletedFileAgain) {
  store(@{@"a" : @1});
  HXPropertyList *list = open();
  std::filesystem::remove(folder / "list.plist");
  EXPECT_TRUE([list saveChanges]);
  EXPECT_TRUE([stored() isEqual:@{@"a" : @1}]);
  EXPECT_TRUE(log.lines().empty());
}

struct Foreign {
  const char *name;
  std::string contents;
};

void PrintTo(const Foreign &row, std::ostream *out) { *out << row.name; }

class ForeignFile : public PropertyList, public testing::WithParamInterface<Foreign> {};

TEST_P(ForeignFile, IsReportedAndMovedAsideBySaving) {
  setContents(folder / "list.plist", GetParam().contents);
  HXPropertyList *list = open();
  EXPECT_EQ(0u, [[list values] count]);
  EXPECT_TRUE([list _serializedValues] == nil);
  EXPECT_EQ(0u, logged().find("[HXPropertyList] " + (folder / "list.plist") +
                              " is not a property list of settings: "))
      << logged();
  EXPECT_TRUE(GetParam().contents == contentsOf(folder / "list.plist"));

  log.lines().clear();
  [[list values] setObject:@1 forKey:@"a"];
  EXPECT_TRUE([list saveChanges]);
  EXPECT_EQ("[HXPropertyList] What " + (folder / "list.plist") + " held before is kept in " +
                (folder / "list.plist.corrupt") + ".",
            logged());
  EXPECT_TRUE(GetParam().contents == contentsOf(folder / "list.plist.corrupt"));
  EXPECT_TRUE([stored() isEqual:@{@"a" : @1}]);
  EXPECT_EQ(1, observer->count);
  EXPECT_TRUE([list saveChanges]);
  EXPECT_EQ(2u, folder.names().size()) << "a good file is not moved";
}

const std::string xmlStart =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">\n";

INSTANTIATE_TEST_SUITE_P(
    , ForeignFile,
    testing::Values(Foreign{"Empty", ""}, Foreign{"Word", "hello"}, Foreign{"Text", "Dear all,\n"},
                    Foreign{"Array", "(1, 2)"}, Foreign{"Blanks", " \n\n"},
                    Foreign{"Zeros", std::string(1000, '\0')},
                    Foreign{"Image", "\x89PNG\r\n\x1a\n" + std::string(20, '\0')},
                    Foreign{"CutShort", "{a = b; c = "},
                    Foreign{"XmlArray", xmlStart + "<array/></plist>"},
                    Foreign{"XmlCutShort", xmlStart + "<dict><key>a</key>"},
                    Foreign{"XmlInItsFirstLines", xmlStart.substr(0, 50)},
                    Foreign{"NotUtf8", "{a = \"\xff\xfe\xfd\"; \xc3"},
                    Foreign{"BinaryRubbish", "bplist00garbage"},
                    Foreign{
                        "BinaryInItself",
                        std::string("bplist00\xA1\0\x08\0\0\0\0\0\0\1\1", 19) +
                            std::string("\0\0\0\0\0\0\0\1\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\xA", 24)},
                    Foreign{"DeepBraces", std::string(1'000'000, '(')},
                    Foreign{"DeepXml",
                            [] {
                              std::string text = xmlStart;
                              for (int i = 0; i < 300'000; ++i) text += "<array>";
                              return text;
                            }()}),
    [](const auto &info) { return info.param.name; });

TEST_F(PropertyList, FileThatBecomesForeignIsMovedAsideToo) {
  store(@{@"a" : @1});
  HXPropertyList *list = open();
  setContents(folder / "list.plist", "rubbish");
  EXPECT_TRUE([list saveChanges]);
  EXPECT_EQ("rubbish", contentsOf(folder / "list.plist.corrupt"));
  EXPECT_TRUE([stored() isEqual:@{@"a" : @1}]);
}

TEST_F(PropertyList, ForeignFileThatIsMendedIsNotMovedAside) {
  setContents(folder / "list.plist", "rubbish");
  HXPropertyList *list = open();
  store(@{@"a" : @1});
  EXPECT_TRUE([list saveChanges]);
  EXPECT_EQ(std::vector<std::string>{"list.plist"}, folder.names());
}

TEST_F(PropertyList, DiscardingKeepsWhatIsKnownOfAFileThatBecomesForeign) {
  store(@{@"a" : @1});
  HXPropertyList *list = open();
  [[list values] setObject:@2 forKey:@"a"];
  setContents(folder / "list.plist", "rubbish");
  [list discardChanges];
  EXPECT_TRUE([[list values] isEqual:@{@"a" : @1}]);
  EXPECT_TRUE([[list _serializedValues] isEqual:@{@"a" : @1}]);
  EXPECT_EQ("rubbish", contentsOf(folder / "list.plist"));
  EXPECT_EQ(1u, log.lines().size());
}

TEST_F(PropertyList, WhatCannotBeReadIsLeftAlone) {
  std::filesystem::create_directory(folder / "list.plist");
  HXPropertyList *list = open();
  EXPECT_EQ("[HXPropertyList] " + (folder / "list.plist") + " cannot be read: Is a directory.",
            logged());
  log.lines().clear();
  EXPECT_FALSE([list saveChanges]);
  EXPECT_EQ("[HXPropertyList] " + (folder / "list.plist") +
                " was not saved. What is there cannot be read: Is a directory.",
            logged());
  EXPECT_EQ(0, observer->count);
  std::filesystem::remove(folder / "list.plist");
  EXPECT_TRUE([list saveChanges]) << "it is gone";
}

TEST_F(PropertyList, PipeDoesNotHoldUp) {
  mkfifo((folder / "list.plist").c_str(), 0600);
  HXPropertyList *list = open();
  EXPECT_FALSE([list saveChanges]);
  EXPECT_TRUE(std::filesystem::is_fifo(folder / "list.plist"));
}

TEST_F(PropertyList, PermissionsAndLinksStay) {
  store(@{@"a" : @1});
  chmod((folder / "list.plist").c_str(), 0640);
  std::filesystem::create_symlink("list.plist", folder / "link.plist");
  HXPropertyList *list = [HXPropertyList propertyListWithPath:path("link.plist")];
  [[list values] setObject:@2 forKey:@"a"];
  EXPECT_TRUE([list saveChanges]);
  EXPECT_TRUE([stored() isEqual:@{@"a" : @2}]);
  EXPECT_TRUE(std::filesystem::is_symlink(folder / "link.plist"));
  struct stat info = {};
  stat((folder / "list.plist").c_str(), &info);
  EXPECT_EQ(0640u, info.st_mode & 07777);
  EXPECT_TRUE(log.lines().empty());
}

// Values that the platform's writers are known to spoil come back as they were.
TEST_F(PropertyList, EveryValueComesBack) {
  NSString *emoji = @"\U0001F600";
  const unichar odd[] = {'a', 0, 1, 0x1B, 0xFFFF, 0xFFFE, 'b'};
  NSDictionary *rows = @{
    @"yes" : @(YES),
    @"large" : [NSNumber numberWithUnsignedLongLong:~0ULL],
    @"small" : [NSNumber numberWithLongLong:LLONG_MIN],
    @"third" : @(1.0 / 3),
    @"float" : [NSNumber numberWithFloat:0.1f],
    @"infinite" : @(INFINITY),
    @"far away" : [NSDate dateWithTimeIntervalSinceReferenceDate:1e20],
    @"long ago" : [NSDate dateWithTimeIntervalSinceReferenceDate:-1e15],
    @"moment" : [NSDate dateWithTimeIntervalSinceReferenceDate:12345.678],
    @"data" : [NSData dataWithBytes:"\0\1" length:2],
    @"no data" : [NSData data],
    @"emoji" : emoji,
    @"odd" : [NSString stringWithCharacters:odd length:7],
    @"markup" : @"<&>\"' \r\n\t ",
    @"empty" : @"",
    @"nested" : @{@"" : @[ @{}, @[], emoji ], emoji : @1},
  };
  for (NSString *name in rows) {
    SCOPED_TRACE([name UTF8String]);
    HXPropertyList *list = open();
    [[list values] setDictionary:@{name : [rows objectForKey:name]}];
    EXPECT_TRUE([list saveChanges]);
    EXPECT_TRUE([[open() values] isEqual:[list values]]);
    EXPECT_TRUE([[open() _serializedValues] isEqual:[list _serializedValues]]);
  }
}

TEST_F(PropertyList, ValuesThatCannotBeStoredAreRefused) {
  NSMutableArray *itself = [NSMutableArray array];
  [itself addObject:@{@"a" : itself}];
  const std::vector<std::pair<id, std::string>> rows = {
      {[NSNull null], "NSNull is not an object of a property list."},
      {[NSURL URLWithString:@"http://a"], "NSURL is not an object of a property list."},
      {@[ [NSSet set] ], "is not an object of a property list."},
      {@{@1 : @"a"}, "is not a key of a property list."},
      {itself, "The property list is nested too deeply, or contains itself."},
      {halfACharacter(), "A value would not survive being written."},
      {@(NAN), "A value would not survive being written."},
  };
  store(@{@"old" : @1});
  for (const auto &[value, problem] : rows) {
    log.lines().clear();
    HXPropertyList *list = open();
    [[list values] setObject:value forKey:@"a"];
    EXPECT_FALSE([list saveChanges]) << problem;
    EXPECT_EQ(0u, logged().find("[HXPropertyList] " + (folder / "list.plist") + " was not saved. "))
        << logged();
    EXPECT_TRUE(logged().ends_with(problem)) << logged();
    EXPECT_TRUE([[list values] objectForKey:@"a"] == value);
    EXPECT_TRUE([[list _serializedValues] isEqual:@{@"old" : @1}]);
  }
  EXPECT_TRUE([stored() isEqual:@{@"old" : @1}]);
  EXPECT_EQ(0, observer->count);
  [itself removeAllObjects];
}

TEST_F(PropertyList, PathsAreMadeAbsolute) {
  const auto old = std::filesystem::current_path();
  std::filesystem::current_path(folder.path());
  HXPropertyList *list = [HXPropertyList propertyListWithPath:@"list.plist"];
  std::filesystem::current_path(old);
  EXPECT_TRUE([[list path] isEqual:path()]);
  EXPECT_TRUE([list saveChanges]);
  EXPECT_TRUE(std::filesystem::exists(folder / "list.plist"));
  EXPECT_TRUE([[[HXPropertyList propertyListWithPath:@"~/x.plist"] path]
      isEqual:[NSHomeDirectory() stringByAppendingPathComponent:@"x.plist"]]);
}

TEST_F(PropertyList, NamedListLiesInThePreferences) {
  NSString *library = [NSSearchPathForDirectoriesInDomains(NSLibraryDirectory, NSUserDomainMask,
                                                           YES) objectAtIndex:0];
  NSString *expected =
      [library stringByAppendingPathComponent:@"Preferences/com.example.Paint.plist"];
  EXPECT_TRUE([[[HXPropertyList propertyListWithName:@"com.example.Paint"] path] isEqual:expected]);
  EXPECT_TRUE(
      [[[HXPropertyList propertyListWithName:@"com.example.Paint.plist"] path] isEqual:expected]);
}

TEST_F(PropertyList, WhatIsNoPathOrNameMakesNoList) {
  const unichar zero[] = {'/', 'a', 0, 'b'};
  NSString *withNul = [NSString stringWithCharacters:zero length:4];
  NSString *withHalf = [@"/a" stringByAppendingString:halfACharacter()];
  for (NSString *path : std::vector<NSString *> { nil, @"", withNul, withHalf, (NSString *)@1 }) {
    log.lines().clear();
    EXPECT_TRUE([HXPropertyList propertyListWithPath:path] == nil);
    EXPECT_EQ("[HXPropertyList] A property list needs the path of a file.", logged());
  }
  for (NSString *name : std::vector<NSString *> { nil, @"", @"a/b", @"../a", (NSString *)@1 }) {
    log.lines().clear();
    EXPECT_TRUE([HXPropertyList propertyListWithName:name] == nil);
    EXPECT_TRUE(logged().ends_with("cannot be the name of a property list."));
  }
  log.lines().clear();
  EXPECT_TRUE([[[HXPropertyList alloc] init] autorelease] == nil);
}

TEST_F(PropertyList, NothingIsLeftBehind) {
  livePropertyLists = 0;
  @autoreleasepool {
    CountedPropertyList *list = [CountedPropertyList propertyListWithPath:path()];
    EXPECT_EQ(1, livePropertyLists);
    [[list values] setObject:@1 forKey:@"a"];
    [list saveChanges];
    [list discardChanges];
    [CountedPropertyList propertyListWithPath:nil];
    [[[CountedPropertyList alloc] init] autorelease];
    EXPECT_EQ(1, livePropertyLists);
  }
  EXPECT_EQ(0, livePropertyLists);
}

TEST_F(PropertyList, WritesBackWhatARandomListHolds) {
  const unsigned seed = testSeed();
  SCOPED_TRACE(testing::Message() << "OV_TEST_SEED=" << seed);
  std::mt19937 random(seed);
  std::function<id(int)> value = [&](int depth) -> id {
    switch (random() % (depth < 3 ? 8 : 6)) {
      case 0:
        return @(int(random()));
      case 1:
        return @(double(random()) / 7);
      case 2:
        return [NSDate dateWithTimeIntervalSinceReferenceDate:double(random()) / 3];
      case 3:
        return [NSData dataWithBytes:"random data" length:random() % 12];
      case 4:
        return @(random() % 2 == 0);
      case 5: {
        const unichar units[] = {unichar(random() % 0xD800), unichar(random() % 128), 0xD83D,
                                 0xDE00};
        return [NSString stringWithCharacters:units length:random() % 3 == 0 ? 4 : random() % 3];
      }
      case 6: {
        NSMutableArray *array = [NSMutableArray array];
        for (auto count = random() % 4; count > 0; --count) [array addObject:value(depth + 1)];
        return array;
      }
      default: {
        NSMutableDictionary *dictionary = [NSMutableDictionary dictionary];
        for (auto count = random() % 4; count > 0; --count) {
          [dictionary setObject:value(depth + 1)
                         forKey:[NSString stringWithFormat:@"%u \u3042", unsigned(random() % 9)]];
        }
        return dictionary;
      }
    }
  };
  HXPropertyList *list = open();
  for (int round = 0; round < 200; ++round) {
    @autoreleasepool {
      [[list values] setObject:value(0)
                        forKey:[NSString stringWithFormat:@"k%u", unsigned(random() % 8)]];
      ASSERT_TRUE([list saveChanges]) << [[[list values] description] UTF8String];
      ASSERT_TRUE([[open() values] isEqual:[list values]]);
    }
  }
}

// Damaged files of every kind are read without a crash, and never lost.
TEST_F(PropertyList, DamagedFilesAreKept) {
  const unsigned seed = testSeed();
  SCOPED_TRACE(testing::Message() << "OV_TEST_SEED=" << seed);
  std::mt19937 random(seed);
  NSDictionary *values = @{@"a" : @[ @1, @2.5, [NSDate date] ], @"b" : @{@"c" : @"text"}};
  for (int round = 0; round < 300; ++round) {
    @autoreleasepool {
      const NSPropertyListFormat formats[] = {NSPropertyListXMLFormat_v1_0,
                                              NSPropertyListBinaryFormat_v1_0,
                                              NSPropertyListOpenStepFormat};
      NSData *data = [NSPropertyListSerialization dataWithPropertyList:values
                                                                format:formats[round % 3]
                                                               options:0
                                                                 error:NULL];
      std::string bytes(static_cast<const char *>([data bytes]), [data length]);
      for (auto count = 1 + random() % 3; count > 0; --count)
        bytes[random() % bytes.size()] = char(random());
      if (random() % 3 == 0) bytes.resize(random() % bytes.size());
      std::filesystem::remove(folder / "list.plist.corrupt");
      setContents(folder / "list.plist", bytes);
      HXPropertyList *list = open();
      const bool isForeign = [list _serializedValues] == nil;
      ASSERT_TRUE([list saveChanges] || !isForeign);
      if (isForeign) ASSERT_TRUE(bytes == contentsOf(folder / "list.plist.corrupt"));
    }
  }
}

}  // namespace
