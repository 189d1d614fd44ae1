#import "MultiImageTest.h"

#import "../extensions/ImageFiles.h"

using namespace ov::test;
using testing::ElementsAre;
using testing::IsEmpty;

// Has images of its own, and remembers what was asked.
@interface OvTestThemedManager : HXImageManager {
 @public
  NSImage *image;
  std::vector<std::string> asked;
}
@end
@implementation OvTestThemedManager
- (NSImage *)imageNamed:(NSString *)name {
  asked.push_back([name UTF8String]);
  return image;
}
@end

// Answers which bundle and name it was asked for.
@interface OvTestRecordingManager : HXImageManager {
 @public
  NSString *name;
  NSBundle *bundle;
  NSImage *image;
}
@end
@implementation OvTestRecordingManager
- (NSImage *)imageNamed:(NSString *)aName inBundle:(NSBundle *)aBundle {
  name = aName;
  bundle = aBundle;
  return image;
}
@end

@interface OvTestMortalManager : HXImageManager
@end
@implementation OvTestMortalManager
static int dead = 0;
- (void)dealloc {
  dead++;
  [super dealloc];
}
@end

namespace {

class ImageManager : public LiveTest {
 protected:
  void SetUp() override {
    LiveTest::SetUp();
    put(@"OvTestPlain.png", encoded(NSPNGFileType));
    bundle = [[NSBundle bundleWithPath:folder.path(@"Test.bundle")] retain];
    ASSERT_NE(bundle, nil);
  }
  void TearDown() override {
    for (NSString *name in @[ @"OvTestPlain", @"OvTestPlain.png", @"OvTestTaken" ]) forget(name);
    [HXImageManager setSharedImageManager:nil];
    [bundle release];
    LiveTest::TearDown();
  }

  void put(NSString *name, NSData *data, NSString *inBundle = @"Test.bundle") {
    NSString *resources = [inBundle stringByAppendingPathComponent:@"Resources"];
    folder.write([resources stringByAppendingPathComponent:name], data);
  }
  void forget(NSString *name) {
    NSImage *image = [NSImage imageNamed:name];
    [image setName:nil];
  }
  NSImage *find(NSString *name) {
    return [[HXImageManager sharedImageManager] imageNamed:name inBundle:bundle];
  }

  ImageFolder folder;
  NSBundle *bundle = nil;
};

TEST_F(ImageManager, IsShared) {
  HXImageManager *first = [HXImageManager sharedImageManager];
  EXPECT_TRUE([first isMemberOfClass:[HXImageManager class]]);
  EXPECT_EQ([HXImageManager sharedImageManager], first);
  EXPECT_EQ([OvTestThemedManager sharedImageManager], first) << "there is only one";
  [HXImageManager setSharedImageManager:nil];
  EXPECT_TRUE(
      [[OvTestThemedManager sharedImageManager] isMemberOfClass:[OvTestThemedManager class]])
      << "made of the class that is asked";
}

TEST_F(ImageManager, IsReplaced) {
  const int before = dead;
  {
    OvTestMortalManager *manager = [[OvTestMortalManager alloc] init];
    [HXImageManager setSharedImageManager:manager];
    [manager release];
    EXPECT_EQ([HXImageManager sharedImageManager], manager);
    [HXImageManager setSharedImageManager:manager];
    drainPool();
    EXPECT_EQ(dead, before) << "retained, also when it is set twice";
  }
  [HXImageManager setSharedImageManager:[[[HXImageManager alloc] init] autorelease]];
  drainPool();
  EXPECT_EQ(dead, before + 1);
  HXImageManager *second = [HXImageManager sharedImageManager];
  EXPECT_TRUE([second isMemberOfClass:[HXImageManager class]]);
}

TEST_F(ImageManager, FindsImagesThatHaveTheName) {
  HXImageManager *manager = [HXImageManager sharedImageManager];
  NSImage *image = filledImage(kImageSize, [NSColor redColor]);
  ASSERT_TRUE([image setName:@"OvTestTaken"]);
  EXPECT_EQ([manager imageNamed:@"OvTestTaken"], image);
  EXPECT_EQ([manager imageNamed:@"OvTestTaken" inBundle:bundle], image);
  EXPECT_EQ([manager imageNamed:@"OvTestTaken" inBundle:nil], image);
  EXPECT_EQ([manager imageNamed:@"NSApplicationIcon"], [NSImage imageNamed:@"NSApplicationIcon"]);
}

TEST_F(ImageManager, FindsTheBundlesFileAndNamesIt) {
  EXPECT_EQ([NSImage imageNamed:@"OvTestPlain"], nil);
  NSImage *image = find(@"OvTestPlain");
  ASSERT_NE(image, nil);
  EXPECT_EQ([image size], NSMakeSize(4, 2));
  EXPECT_EQ(pictureOfImage(image).at(0, 0), kRed);
  EXPECT_TRUE([[image name] isEqual:@"OvTestPlain"]);
  EXPECT_EQ([NSImage imageNamed:@"OvTestPlain"], image);
  drainPool();
  EXPECT_EQ([NSImage imageNamed:@"OvTestPlain"], image) << "the name keeps it";
  EXPECT_EQ(find(@"OvTestPlain"), image) << "the same from then on";
  EXPECT_EQ([[HXImageManager sharedImageManager] imageNamed:@"OvTestPlain" inBundle:nil], image);
  NSImage *longName = find(@"OvTestPlain.png");
  EXPECT_EQ([longName size], NSMakeSize(4, 2));
  EXPECT_EQ([NSImage imageNamed:@"OvTestPlain.png"], longName);
}

TEST_F(ImageManager, LoadsTheFileAgainWhereTheNameBelongsToAnInvalidImage) {
  NSImage *invalid = [[NSImage alloc] initWithSize:NSMakeSize(9, 9)];
  ASSERT_TRUE([invalid setName:@"OvTestPlain"]);
  ASSERT_FALSE([invalid isValid]);
  NSImage *image = find(@"OvTestPlain");
  EXPECT_NE(image, invalid);
  EXPECT_EQ([image size], NSMakeSize(4, 2));
  EXPECT_EQ([NSImage imageNamed:@"OvTestPlain"], image);
  EXPECT_TRUE([[image name] isEqual:@"OvTestPlain"]);
  EXPECT_EQ([invalid name], nil);
  [invalid release];
}

TEST_F(ImageManager, AnInvalidImageKeepsItsNameWhereThereIsNoFile) {
  NSImage *invalid = [[[NSImage alloc] initWithSize:NSMakeSize(9, 9)] autorelease];
  ASSERT_TRUE([invalid setName:@"OvTestTaken"]);
  EXPECT_EQ(find(@"OvTestTaken"), nil);
  EXPECT_EQ([NSImage imageNamed:@"OvTestTaken"], invalid);
}

TEST_F(ImageManager, WhatIsNowhereIsNil) {
  LogCapture log;
  HXImageManager *manager = [HXImageManager sharedImageManager];
  for (NSString *name : {static_cast<NSString *>(nil), @"", @".", @"..", @"/", @"//", @".png",
                         @"\0", @"OvTestOther", @"OvTestOther.png", @"../OvTestOther"}) {
    SCOPED_TRACE(name == nil ? "nil" : [name UTF8String]);
    EXPECT_EQ([manager imageNamed:name], nil);
    EXPECT_EQ([manager imageNamed:name inBundle:bundle], nil);
    EXPECT_EQ([manager imageNamed:name inBundle:nil], nil);
    EXPECT_EQ([NSImage imageNamed:name inBundle:bundle], nil);
  }
  EXPECT_THAT(log.lines(), IsEmpty());
}

TEST_F(ImageManager, ANameThatNoFileCanHaveMayBeAnImagesAllTheSame) {
  NSImage *image = filledImage(kImageSize, [NSColor redColor]);
  ASSERT_TRUE([image setName:@"."]);
  EXPECT_EQ([[HXImageManager sharedImageManager] imageNamed:@"."], image);
  [image setName:nil];
}

TEST_F(ImageManager, OverridingOneLookUpChangesBoth) {
  OvTestThemedManager *manager = [[[OvTestThemedManager alloc] init] autorelease];
  NSImage *themed = filledImage(kImageSize, [NSColor redColor]);
  manager->image = themed;
  EXPECT_EQ([manager imageNamed:@"OvTestPlain" inBundle:bundle], themed);
  EXPECT_THAT(manager->asked, ElementsAre("OvTestPlain"));
  EXPECT_EQ([themed name], nil);
  manager->image = [[[NSImage alloc] initWithSize:kImageSize] autorelease];
  NSImage *image = [manager imageNamed:@"OvTestPlain" inBundle:bundle];
  EXPECT_EQ([image size], NSMakeSize(4, 2)) << "its image is not valid";
  EXPECT_EQ([NSImage imageNamed:@"OvTestPlain"], image);
}

TEST_F(ImageManager, AValidImageKeepsItsNameFromAManagerThatDoesNotKnowIt) {
  NSImage *other = filledImage(kImageSize, [NSColor redColor]);
  ASSERT_TRUE([other setName:@"OvTestPlain"]);
  OvTestThemedManager *manager = [[[OvTestThemedManager alloc] init] autorelease];
  NSImage *image = [manager imageNamed:@"OvTestPlain" inBundle:bundle];
  EXPECT_EQ([image size], NSMakeSize(4, 2));
  EXPECT_EQ([NSImage imageNamed:@"OvTestPlain"], other);
}

TEST_F(ImageManager, IsAskedByTheLookUpsOfImages) {
  OvTestRecordingManager *manager = [[[OvTestRecordingManager alloc] init] autorelease];
  manager->image = filledImage(kImageSize, [NSColor redColor]);
  [HXImageManager setSharedImageManager:manager];
  EXPECT_EQ([NSImage imageNamed:@"a" inBundle:bundle], manager -> image);
  EXPECT_TRUE([manager->name isEqual:@"a"]);
  EXPECT_EQ(manager->bundle, bundle);
  EXPECT_EQ([NSImage imageNamed:@"b" inBundleForClass:[HXImageManager class]], manager -> image);
  EXPECT_TRUE([manager->name isEqual:@"b"]);
  EXPECT_EQ(manager->bundle, [NSBundle bundleForClass:[HXImageManager class]]);
  EXPECT_EQ([NSImage imageNamed:@"c" inBundleForClass:[OvTestRecordingManager class]],
            manager -> image);
  EXPECT_EQ(manager->bundle, [NSBundle mainBundle]);
  [NSImage imageNamed:@"d" inBundleForClass:Nil];
  EXPECT_EQ(manager->bundle, nil);
}

TEST_F(ImageManager, UnsafeAndBrokenFilesAreNoImages) {
  NSString *hostile = @"Hostile.bundle";  // a bundle knows the files that it began with
  NSData *whole = encoded(NSTIFFFileType);
  put(@"OvTestBroken.png", [@"no picture" dataUsingEncoding:NSUTF8StringEncoding], hostile);
  put(@"OvTestCoarse.tiff", grayTIFF(2, 1), hostile);
  put(@"OvTestEmpty.png", headerOfPNG(0, 0), hostile);
  put(@"OvTestHuge.png", headerOfPNG(20000, 20000), hostile);
  put(@"OvTestNothing.png", [NSData data], hostile);
  put(@"OvTestCut.tiff", [whole subdataWithRange:NSMakeRange(0, [whole length] / 2)], hostile);
  put(@"OvTestWhole.tiff", whole, hostile);
  NSBundle *fresh = [NSBundle bundleWithPath:folder.path(hostile)];
  for (NSString *name in @[
         @"OvTestBroken", @"OvTestCoarse", @"OvTestEmpty", @"OvTestHuge", @"OvTestNothing",
         @"OvTestCut"
       ]) {
    SCOPED_TRACE([name UTF8String]);
    ASSERT_NE([fresh pathForImageResource:name], nil);
    LogCapture log;
    NSImage *image = [[HXImageManager sharedImageManager] imageNamed:name inBundle:fresh];
    EXPECT_EQ(image, nil);
    EXPECT_EQ([NSImage imageNamed:name], nil);
    EXPECT_LT(log.lines().size(), 10u);
  }
  NSImage *image = [NSImage imageNamed:@"OvTestWhole" inBundle:fresh];
  EXPECT_EQ([image size], NSMakeSize(4, 2));
  [image setName:nil];
}

// The program's own pictures are as little to be trusted.
TEST_F(ImageManager, UnsafeFilesOfTheApplicationAreNoImagesEither) {
  NSString *resources = [[NSBundle mainBundle] resourcePath];
  NSString *coarse = [resources stringByAppendingPathComponent:@"OvTestMainCoarse.tiff"];
  NSString *good = [resources stringByAppendingPathComponent:@"OvTestMainGood.png"];
  NSFileManager *files = [NSFileManager defaultManager];
  [files createDirectoryAtPath:resources withIntermediateDirectories:YES attributes:nil error:NULL];
  ASSERT_TRUE([grayTIFF(2, 1) writeToFile:coarse atomically:NO]);
  ASSERT_TRUE([encoded(NSPNGFileType) writeToFile:good atomically:NO]);
  // The bundle knows the files that it began with; this is how the platform lets it forget them.
  NSBundle *main = [NSBundle mainBundle];
  if ([main respondsToSelector:@selector(cleanPathCache)]) {
    [main performSelector:@selector(cleanPathCache)];
  }
  ASSERT_NE([main pathForImageResource:@"OvTestMainCoarse"], nil);
  HXImageManager *manager = [HXImageManager sharedImageManager];
  EXPECT_EQ([manager imageNamed:@"OvTestMainCoarse"], nil);
  NSImage *image = [manager imageNamed:@"OvTestMainGood"];
  EXPECT_EQ([image size], NSMakeSize(4, 2));
  EXPECT_EQ([manager imageNamed:@"OvTestMainGood"], image);
  [image setName:nil];
  [files removeFileAtPath:coarse handler:nil];
  [files removeFileAtPath:good handler:nil];
}

TEST_F(ImageManager, ThousandsOfNamesAndFilesDoNoHarm) {
  constexpr int kFiles = 2000;
  for (int i = 0; i < kFiles; i++) {
    put([NSString stringWithFormat:@"OvTestMany%d.png", i],
        i % 2 ? encoded(NSPNGFileType) : headerOfPNG(0, 0), @"Many.bundle");
  }
  NSBundle *fresh = [NSBundle bundleWithPath:folder.path(@"Many.bundle")];
  LogCapture log;
  int found = 0;
  for (int i = 0; i < kFiles; i += 20) {
    @autoreleasepool {
      for (int offset : {0, 1}) {
        NSString *name = [NSString stringWithFormat:@"OvTestMany%d", i + offset];
        NSImage *image = [NSImage imageNamed:name inBundle:fresh];
        found += image != nil;
        [image setName:nil];
      }
    }
  }
  EXPECT_EQ(found, kFiles / 20);
  EXPECT_LT(log.lines().size(), 10u);
}

}  // namespace
