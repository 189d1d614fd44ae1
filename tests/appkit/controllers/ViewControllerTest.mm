// Views that are loaded when they are first asked for, and objects that are released once.

#import <OvAppKit/OvAppKit.h>

#include <algorithm>

#import "LiveTest.h"
#import "NibFiles.h"

using namespace ov::test;

// Asks for its view while that is being loaded.
@interface EagerController : HXViewController {
 @public
  NSView *seenWhenAwake;
  int awakenings;
}
@end
@implementation EagerController
- (void)awakeFromNib {
  awakenings++;
  seenWhenAwake = [self view];
}
@end

namespace {

struct Format {
  const char *name;
  void (*write)(NSString *, const NibContents &);
};
std::ostream &operator<<(std::ostream &out, const Format &format) { return out << format.name; }

class NibTest : public LiveTest {
 protected:
  void TearDown() override {
    for (NSString *file in [[NSFileManager defaultManager] directoryContentsAtPath:nibFolder()]) {
      if (![file hasPrefix:@"OvTest"]) continue;
      NSString *path = [nibFolder() stringByAppendingPathComponent:file];
      [[NSFileManager defaultManager] removeFileAtPath:path handler:nil];
    }
    LiveTest::TearDown();
  }
  NSString *newName() {
    static int number = 0;
    return [NSString stringWithFormat:@"OvTest%d", ++number];
  }
  // From here on the counters count what the controller does.
  void settle() {
    drainPool();
    [[NSBundle mainBundle] cleanPathCache];
  }
  static std::string line(const char *text, NSString *name) {
    return text + std::to_string(static_cast<int>(reinterpret_cast<intptr_t>(name)));
  }
  static long count(const LogCapture &log, const std::string &line) {
    return std::count(log.lines().begin(), log.lines().end(), line);
  }
};

class ViewController : public NibTest, public ::testing::WithParamInterface<Format> {
 protected:
  // A file for this test alone: the platform remembers what it has found. The caller owns the
  // name.
  NSString *newFile(const NibContents &contents = {}) {
    NSString *name = [newName() retain];
    GetParam().write(name, contents);
    settle();
    return name;
  }
};

TEST_P(ViewController, LoadsItsViewOnceWhenAsked) {
  NSString *name = newFile();
  const int alive = [NibView alive], awake = [NibView awakenings];
  LogCapture log;
  HXViewController *controller = [[HXViewController alloc] initWithViewNibName:name];
  EXPECT_EQ([NibView alive], alive) << "nothing is loaded yet";
  NSView *view = [controller view];
  ASSERT_TRUE([view isKindOfClass:[NibView class]]);
  EXPECT_EQ([NibView alive], alive + 1);
  EXPECT_EQ([[view subviews] count], 1u);
  EXPECT_EQ([view frame].size, NSMakeSize(200, 100));
  EXPECT_EQ([controller view], view);
  EXPECT_EQ([NibView alive], alive + 1);
  EXPECT_EQ([NibView awakenings], awake + 1);
  EXPECT_EQ(count(log, line("Nib not found named: ", name)), 0);
  EXPECT_EQ(count(log, line("Failed to load nib named: ", name)), 0);
  [controller release];
  [name release];
}

TEST_P(ViewController, ReleasesEveryTopLevelObjectOnce) {
  NSString *name = newFile();
  const int alive = [NibView alive], deaths = [NibView deaths];
  const int companions = [NibCompanion alive], companionDeaths = [NibCompanion deaths];
  HXViewController *controller = [[HXViewController alloc] initWithViewNibName:name];
  [controller view];
  drainPool();
  EXPECT_EQ([NibView alive], alive + 1);
  EXPECT_EQ([NibCompanion alive], companions + 1);
  EXPECT_EQ([controller retainCount], 1u) << "the file does not keep its owner";
  [controller release];
  drainPool();
  EXPECT_EQ([NibView alive], alive);
  EXPECT_EQ([NibView deaths], deaths + 1);
  EXPECT_EQ([NibCompanion alive], companions);
  EXPECT_EQ([NibCompanion deaths], companionDeaths + 1);
  EXPECT_EQ([name retainCount], 1u);
  [name release];
}

TEST_P(ViewController, AViewInAWindowLivesOn) {
  NSString *name = newFile();
  const int alive = [NibView alive];
  NSWindow *window = makeWindow(NSMakeSize(200, 100));
  HXViewController *controller = [[HXViewController alloc] initWithViewNibName:name];
  NSView *view = [controller view];
  [[window contentView] addSubview:view];
  [controller release];
  drainPool();
  EXPECT_EQ([NibView alive], alive + 1);
  EXPECT_EQ([view window], window);
  [view removeFromSuperview];
  drainPool();
  EXPECT_EQ([NibView alive], alive);
  [name release];
}

TEST_P(ViewController, AnUnconnectedOutletIsNilAndNoFailure) {
  NSString *name = newFile({.connected = false});
  const int alive = [NibView alive];
  LogCapture log;
  HXViewController *controller = [[HXViewController alloc] initWithViewNibName:name];
  EXPECT_EQ([controller view], nil);
  EXPECT_EQ([NibView alive], alive + 1);
  EXPECT_EQ(count(log, line("Failed to load nib named: ", name)), 0);
  [controller release];
  drainPool();
  EXPECT_EQ([NibView alive], alive);
  [name release];
}

TEST_P(ViewController, MayBeAskedWhileItLoads) {
  NSString *name = newFile();
  const int alive = [NibView alive];
  EagerController *controller = [[EagerController alloc] initWithViewNibName:name];
  NSView *view = [controller view];
  EXPECT_NE(view, nil);
  EXPECT_GE(controller->awakenings, 1);
  EXPECT_EQ(controller->seenWhenAwake, view);
  EXPECT_EQ([NibView alive], alive + 1);
  [controller release];
  [name release];
}

TEST_P(ViewController, SurvivesAViewThatRaises) {
  NSString *name = newFile({.viewClass = @"NibRaisingView"});
  LogCapture log;
  HXViewController *controller = [[HXViewController alloc] initWithViewNibName:name];
  EXPECT_EQ([controller view], nil);
  EXPECT_EQ([controller view], nil);
  EXPECT_EQ(count(log, line("Failed to load nib named: ", name)), 1);
  [controller release];
  drainPool();
  [name release];
}

INSTANTIATE_TEST_SUITE_P(Formats, ViewController,
                         ::testing::Values(Format{"xib", writeXib}, Format{"gorm", writeGorm},
                                           Format{"nib", writeNib}),
                         [](const auto &info) { return info.param.name; });

class ViewControllerFailure : public NibTest {
 protected:
  // Asks twice for the view of a file that cannot be loaded.
  void expectFailure(NSString *name, const char *text) {
    LogCapture log;
    HXViewController *controller = [[HXViewController alloc] initWithViewNibName:name];
    EXPECT_EQ([controller view], nil);
    EXPECT_EQ(count(log, line(text, name)), 1);
    EXPECT_EQ([controller view], nil);
    EXPECT_EQ(count(log, line(text, name)), 1) << "logged again";
    [controller release];
    drainPool();
  }
};

TEST_F(ViewControllerFailure, AXibWithoutStandInsKeepsItsViewAsWell) {
  NSString *name = [newName() retain];
  writeXib(name, {.standIns = false});
  settle();
  const int alive = [NibView alive];
  LogCapture log;
  HXViewController *controller = [[HXViewController alloc] initWithViewNibName:name];
  NSView *view = [controller view];
  drainPool();
  EXPECT_EQ([NibView alive], alive + 1);
  EXPECT_EQ([controller view], view);
  EXPECT_EQ(count(log, line("Failed to load nib named: ", name)), 0);
  [controller release];
  drainPool();
  EXPECT_EQ([NibView alive], alive);
  [name release];
}

TEST_F(ViewControllerFailure, AMissingFileIsLoggedOnce) {
  expectFailure(@"OvTestThereIsNoSuchFile", "Nib not found named: ");
  expectFailure(@"", "Nib not found named: ");
  expectFailure(nil, "Nib not found named: ");
  expectFailure(@"../../nowhere/OvTest", "Nib not found named: ");
}

TEST_F(ViewControllerFailure, ADamagedFileIsLoggedOnce) {
  struct {
    const char *name;
    NSString *file;
    std::string bytes;
  } rows[] = {
      {"xib: no XML", @".xib", "this is no interface"},
      {"xib: cut off", @".xib", "<document type=\"com.apple.InterfaceBuilder3.Cocoa.XIB\"><obj"},
      {"xib: empty", @".xib", ""},
      {"xib: no objects", @".xib",
       "<document type=\"com.apple.InterfaceBuilder3.Cocoa.XIB\" version=\"3.0\"><objects/>"
       "</document>"},
      {"gorm: no archive", @".gorm/objects.gorm", "this is no interface"},
      {"gorm: empty", @".gorm/objects.gorm", ""},
      {"gorm: without its file", @".gorm/data.classes", "{ }"},
      {"nib: no archive", @".nib/keyedobjects.nib", "this is no interface"},
      {"nib: another archive", @".nib/keyedobjects.nib",
       "<?xml version=\"1.0\"?><plist version=\"1.0\"><dict/></plist>"},
      {"nib: empty", @".nib/keyedobjects.nib", ""},
      {"nib: an empty folder", @".nib/other", ""},
  };
  for (auto &row : rows) {
    SCOPED_TRACE(row.name);
    NSString *name = newName();
    writeNibBytes([name stringByAppendingString:row.file], [NSData dataWithBytes:row.bytes.data()
                                                                          length:row.bytes.size()]);
    [[NSBundle mainBundle] cleanPathCache];
    expectFailure([[name copy] autorelease], "Failed to load nib named: ");
  }
}

TEST_F(ViewControllerFailure, AControllerThatIsNeverAskedLoadsNothing) {
  LogCapture log;
  [[[HXViewController alloc] initWithViewNibName:@"OvTestThereIsNoSuchFile"] release];
  EXPECT_TRUE(log.lines().empty());
}

}  // namespace
