#import <OvAppKit/NSWorkspace+OvAppKit.h>

#import "LiveTest.h"

#include <filesystem>

#import "TemporaryFolder.h"
#import "TestWorkspace.h"

namespace {

class Applications : public ov::test::LiveTest {
 protected:
  void SetUp() override {
    LiveTest::SetUp();
    workspace->_applications = entries = [NSMutableArray array];
  }

  // A program on disk; nil leaves a key out.
  NSString *bundle(NSString *name, NSString *identifier, NSString *signature) {
    NSMutableDictionary *info = [NSMutableDictionary dictionary];
    if (identifier) [info setObject:identifier forKey:@"CFBundleIdentifier"];
    if (signature) [info setObject:signature forKey:@"CFBundleSignature"];
    const std::string path = folder / [name UTF8String];
    std::filesystem::create_directories(path + "/Resources");
    NSString *file = [NSString stringWithUTF8String:path.c_str()];
    EXPECT_TRUE([info
        writeToFile:[file stringByAppendingPathComponent:@"Resources/Info-gnustep.plist"]
         atomically:NO]);
    return file;
  }

  void launch(id identifier, id path) {
    NSMutableDictionary *entry = [NSMutableDictionary dictionary];
    if (identifier) [entry setObject:identifier forKey:@"NSApplicationBundleIdentifier"];
    if (path) [entry setObject:path forKey:@"NSApplicationPath"];
    [entries addObject:entry];
  }

  NSString *withIdentifier(NSString *identifier) {
    NSString *path = [workspace.get() launchedApplicationPathForIdentifier:identifier];
    EXPECT_EQ(!![workspace.get() isApplicationLaunchedForIdentifier:identifier], path != nil);
    return path;
  }
  NSString *withSignature(NSString *signature) {
    NSString *path = [workspace.get() launchedApplicationPathForSignature:signature];
    EXPECT_EQ(!![workspace.get() isApplicationLaunchedForSignature:signature], path != nil);
    return path;
  }

  TemporaryFolder folder;
  ov::test::Workspace workspace;
  NSMutableArray *entries = nil;
};

TEST_F(Applications, TheFirstOfAnIdentifierIsFound) {
  launch(@"net.example.a", @"/apps/A.app");
  launch(@"net.example.b", @"/apps/B.app");
  launch(@"net.example.b", @"/apps/Other B.app");
  EXPECT_STREQ([withIdentifier(@"net.example.b") UTF8String], "/apps/B.app");
  EXPECT_STREQ([withIdentifier(@"net.example.a") UTF8String], "/apps/A.app");
  EXPECT_EQ(withIdentifier(@"net.example.B"), nil) << "case counts";
  EXPECT_EQ(withIdentifier(@"net.example"), nil);
  EXPECT_EQ(withIdentifier(@""), nil);
}

TEST_F(Applications, AnEntryWithoutIdentifierHasThatOfItsBundle) {
  NSString *other = bundle(@"Other.app", @"net.example.other", nil);
  NSString *mixer = bundle(@"Mixer.app", @"net.example.mixer", nil);
  launch(nil, other);
  launch(nil, mixer);
  EXPECT_TRUE([withIdentifier(@"net.example.mixer") isEqualToString:mixer]);
  EXPECT_TRUE([withIdentifier(@"net.example.other") isEqualToString:other]);
}

TEST_F(Applications, AnEntrysOwnIdentifierCounts) {
  launch(@"net.example.told", bundle(@"A.app", @"net.example.written", nil));
  EXPECT_EQ(withIdentifier(@"net.example.written"), nil);
  EXPECT_NE(withIdentifier(@"net.example.told"), nil);
}

TEST_F(Applications, TheFirstOfASignatureIsFound) {
  launch(nil, bundle(@"A.app", nil, @"aaaa"));
  NSString *first = bundle(@"B.app", nil, @"bbbb");
  launch(nil, first);
  launch(nil, bundle(@"C.app", nil, @"bbbb"));
  EXPECT_TRUE([withSignature(@"bbbb") isEqualToString:first]);
  EXPECT_EQ(withSignature(@"BBBB"), nil);
  EXPECT_EQ(withSignature(@"bbb"), nil);
  EXPECT_EQ(withSignature(@""), nil);
}

TEST_F(Applications, NilFindsNothing) {
  launch(nil, bundle(@"Plain.app", nil, nil));
  launch(nil, nil);
  EXPECT_EQ(withIdentifier(nil), nil);
  EXPECT_EQ(withSignature(nil), nil);
}

TEST_F(Applications, OddEntriesArePassedOver) {
  launch(nil, nil);
  launch([NSNull null], [NSNull null]);
  launch([NSNumber numberWithInt:3], @"");
  launch(nil, @"/nothing/is/here.app");
  launch(nil, @"not/absolute.app");
  NSString *good = bundle(@"Good.app", @"net.example.good", @"good");
  launch(nil, good);
  EXPECT_TRUE([withIdentifier(@"net.example.good") isEqualToString:good]);
  EXPECT_TRUE([withSignature(@"good") isEqualToString:good]);
  EXPECT_EQ(withIdentifier(@"net.example.bad"), nil);
}

TEST_F(Applications, AMatchWithoutPathIsNotFound) {
  launch(@"net.example.a", nil);
  EXPECT_EQ(withIdentifier(@"net.example.a"), nil);
}

TEST_F(Applications, NoApplicationsAreNone) {
  workspace->_applications = nil;
  EXPECT_EQ(withIdentifier(@"net.example.a"), nil);
  EXPECT_EQ(withSignature(@"aaaa"), nil);
}

// This program is on the platform's own list.
TEST_F(Applications, ThePlatformsListIsAsked) {
  NSWorkspace *shared = [NSWorkspace sharedWorkspace];
  NSString *path = [[NSBundle mainBundle] bundlePath];
  bool listed = false;
  for (NSDictionary *entry in [shared launchedApplications]) {
    listed = listed || [[entry objectForKey:@"NSApplicationPath"] isEqualToString:path];
  }
  EXPECT_TRUE(listed) << [[[shared launchedApplications] description] UTF8String];
  EXPECT_FALSE([shared isApplicationLaunchedForIdentifier:@"net.example.never"]);
  EXPECT_FALSE([shared isApplicationLaunchedForSignature:@"nvr!"]);
}

}  // namespace
