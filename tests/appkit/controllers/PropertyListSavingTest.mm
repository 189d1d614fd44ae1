// Saving: what is written, and what is left when it cannot be.

#include <signal.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <limits>

#include "FaultyCalls.h"
#include "Rights.h"
#import "SettingsTest.h"

using namespace ov::test;

// Releases a controller when its store has been saved.
@interface OvTestDropper : NSObject {
  HXPropertyListController *owned;
}
- (void)dropAfterSave:(HXPropertyListController *)controller;
@end

@implementation OvTestDropper
- (void)dropAfterSave:(HXPropertyListController *)controller {
  owned = controller;
  [[NSNotificationCenter defaultCenter] addObserver:self
                                           selector:@selector(drop)
                                               name:HXPropertyListDidSaveValuesNotification
                                             object:[controller propertyList]];
}
- (void)drop {
  [[NSNotificationCenter defaultCenter] removeObserver:self];
  [owned release];
}
@end

namespace {

class PropertyListSaving : public SettingsTest {
 protected:
  void SetUp() override {
    SettingsTest::SetUp();
    store = storeHolding(@{@"b" : @3});
    controller = controllerWith(store, @{@"a" : @1, @"b" : @2});
  }

  HXPropertyListControllerValues *values() { return [controller values]; }

  // What a failed save leaves: the old file, and the edits.
  void expectUnsaved() {
    EXPECT_TRUE(same(stored(), @{@"b" : @3}));
    EXPECT_TRUE(same([values() objectForKey:@"a"], @5));
    EXPECT_TRUE([controller hasUnsavedChanges]);
    EXPECT_EQ(folder.names(), Lines{"list.plist"});
  }

  FaultyCallsScope scope;
  HXPropertyList *store = nil;
  HXPropertyListController *controller = nil;
};

TEST_F(PropertyListSaving, WritesOnlyWhatDiffersFromTheDefaults) {
  [controller save:@"any sender"];
  EXPECT_TRUE(same(stored(), @{@"b" : @3}));
  [values() setObject:@7 forKey:@"a"];
  [controller save:nil];
  EXPECT_TRUE(same(stored(), (@{@"a" : @7, @"b" : @3})));
  EXPECT_TRUE(same([store values], (@{@"a" : @7, @"b" : @3})));
  [values() setObject:@2 forKey:@"b"];
  [controller save:nil];
  EXPECT_TRUE(same(stored(), @{@"a" : @7})) << "b has its default value again";
  [values() setObject:@1 forKey:@"a"];
  [controller save:nil];
  EXPECT_TRUE(same(stored(), @{}));
  EXPECT_FALSE([controller hasUnsavedChanges]);
}

TEST_F(PropertyListSaving, RemovesDefaultsThatWereStored) {
  store = storeHolding(@{@"a" : @1, @"b" : @3}, "other.plist");
  controller = controllerWith(store, @{@"a" : @1, @"b" : @2});
  EXPECT_TRUE([controller hasUnsavedChanges]);
  [controller save:nil];
  EXPECT_TRUE(same(stored("other.plist"), @{@"b" : @3}));
}

TEST_F(PropertyListSaving, ReplacesWhatTheStoreWasToldDirectly) {
  [[store values] setObject:@9 forKey:@"direct"];
  [controller save:nil];
  EXPECT_TRUE(same([store values], @{@"b" : @3}));
}

TEST_F(PropertyListSaving, TheCopyInTheStoreCanBeChanged) {
  [values() setObject:@[ @{@"k" : @1} ] forKey:@"deep"];
  [controller save:nil];
  NSMutableDictionary *inner = [[[store values] objectForKey:@"deep"] objectAtIndex:0];
  [inner setObject:@2 forKey:@"k"];
  EXPECT_TRUE(same([inner objectForKey:@"k"], @2));
  EXPECT_TRUE(same([values() objectForKey:@"deep"], @[ @{@"k" : @1} ]));
}

TEST_F(PropertyListSaving, MakesTheFileAndItsFolder) {
  controller = controllerWith([HXPropertyList propertyListWithPath:path("new/list.plist")], nil);
  [values() setObject:@1 forKey:@"a"];
  [controller save:nil];
  EXPECT_TRUE(same(stored("new/list.plist"), @{@"a" : @1}));
  EXPECT_FALSE([controller hasUnsavedChanges]);
}

TEST_F(PropertyListSaving, IsRememberedByTheNextController) {
  [values() setObject:@"ü \"<&>" forKey:@"a"];
  [controller save:nil];
  HXPropertyListController *next = controllerWith(
      [HXPropertyList propertyListWithPath:path()],
      @{@"a" : @1,
        @"b" : @2});
  EXPECT_TRUE(same([next values], (@{@"a" : @"ü \"<&>", @"b" : @3})));
  EXPECT_FALSE([next hasUnsavedChanges]);
}

TEST_F(PropertyListSaving, TwoControllersOfOneStoreBothHearOfIt) {
  HXPropertyListController *other = controllerWith(store, @{@"a" : @1, @"b" : @2});
  [values() setObject:@7 forKey:@"a"];
  [controller save:nil];
  EXPECT_FALSE([controller hasUnsavedChanges]);
  EXPECT_TRUE([other hasUnsavedChanges]) << "saving it would remove a";
  [other revert:nil];
  EXPECT_TRUE(same([other values], (@{@"a" : @7, @"b" : @3})));
  EXPECT_FALSE([other hasUnsavedChanges]);
}

// MARK: Values that cannot be stored

TEST_F(PropertyListSaving, LeavesOutWhatIsNoPropertyList) {
  [values() setObject:[NSURL URLWithString:@"http://localhost/"] forKey:@"bad"];
  [values() setObject:@5 forKey:@"a"];
  LogCapture log;
  [controller save:nil];
  EXPECT_TRUE(tellsOfFailedCopy(log, "mutable"));
  EXPECT_EQ(log.lines().size(), 2u);
  EXPECT_TRUE(same(stored(), (@{@"a" : @5, @"b" : @3}))) << "the rest is saved";
  EXPECT_TRUE([values() objectForKey:@"bad"] != nil);
  EXPECT_TRUE([controller hasUnsavedChanges]);
  [values() removeObjectForKey:@"bad"];
  EXPECT_FALSE([controller hasUnsavedChanges]);
}

TEST_F(PropertyListSaving, KeepsWhatIsStoredUnderTheKeyOfABadValue) {
  [values() setObject:[NSURL URLWithString:@"http://localhost/"] forKey:@"b"];
  [values() setObject:@5 forKey:@"a"];
  [values() setObject:@1 forKey:@7];
  LogCapture log;
  [controller save:nil];
  EXPECT_EQ(log.lines().size(), 2u);
  EXPECT_TRUE(same(stored(), (@{@"a" : @5, @"b" : @3})));
}

// Not even that way a default value comes into the store.
TEST_F(PropertyListSaving, KeepsNoDefaultUnderTheKeyOfABadValue) {
  store = storeHolding(@{@"b" : @2}, "other.plist");
  controller = controllerWith(store, @{@"b" : @2});
  [values() setObject:[NSURL URLWithString:@"http://localhost/"] forKey:@"b"];
  LogCapture log;
  [controller save:nil];
  EXPECT_TRUE(same(stored("other.plist"), @{}));
}

TEST_F(PropertyListSaving, KeepsTheFileWhenAValueWouldNotComeBack) {
  const unichar half = 0xD83D;
  NSMutableString *loneHalf = [NSMutableString stringWithString:@"x"];
  [loneHalf appendFormat:@"%C", half];
  [values() setObject:@5 forKey:@"a"];
  for (id value : { (id) loneHalf, (id) @(std::numeric_limits<double>::quiet_NaN()) }) {
    [values() setObject:value forKey:@"c"];
    LogCapture log;
    [controller save:nil];
    expectUnsaved();
    EXPECT_EQ(log.lines().size(), 1u);
  }
  [values() removeObjectForKey:@"c"];
  [controller save:nil];
  EXPECT_TRUE(same(stored(), (@{@"a" : @5, @"b" : @3})));
}

// MARK: When the system fails

TEST_F(PropertyListSaving, AFullDiskLeavesTheOldFile) {
  [values() setObject:@5 forKey:@"a"];
  LogCapture log;
  faultyCalls().beforeFlush = [](int) { return ENOSPC; };
  [controller save:nil];
  faultyCalls() = {};
  EXPECT_EQ(log.lines(), Lines{"[HXPropertyList] " + (folder / "list.plist") +
                               " was not saved. No space left on device"});
  expectUnsaved();
  [controller save:nil];
  EXPECT_TRUE(same(stored(), (@{@"a" : @5, @"b" : @3}))) << "when there is room again";
  EXPECT_FALSE([controller hasUnsavedChanges]);
}

TEST_F(PropertyListSaving, ARefusedRenameLeavesTheOldFile) {
  [values() setObject:@5 forKey:@"a"];
  LogCapture log;
  faultyCalls().beforeRename = [](auto &, auto &) { return EACCES; };
  [controller save:nil];
  faultyCalls() = {};
  EXPECT_EQ(log.lines().size(), 1u);
  expectUnsaved();
  [controller revert:nil];
  EXPECT_TRUE(same(values(), (@{@"a" : @1, @"b" : @3})));
  EXPECT_FALSE([controller hasUnsavedChanges]);
}

// In a process of its own, which has no right to everything.
TEST_F(PropertyListSaving, AReadOnlyFolderLeavesTheOldFile) {
  [values() setObject:@5 forKey:@"a"];
  chmod(folder.path().c_str(), 0555);
  const pid_t child = fork();
  if (child == 0) {
    if (!ov::test::giveUpRights()) _exit(2);
    LogCapture log;
    [controller save:nil];
    const bool isReported = log.lines() == Lines{"[HXPropertyList] " + (folder / "list.plist") +
                                                 " was not saved. Permission denied"};
    const bool isKept =
        [controller hasUnsavedChanges] && [[[controller values] objectForKey:@"a"] isEqual:@5];
    _exit(!isReported ? 3 : isKept ? 0 : 4);
  }
  int status = -1;
  waitpid(child, &status, 0);
  chmod(folder.path().c_str(), 0755);
  EXPECT_EQ(status, 0);
  expectUnsaved();
}

TEST_F(PropertyListSaving, AKillBeforeTheRenameLeavesTheOldFile) {
  [values() setObject:@5 forKey:@"a"];
  const pid_t child = fork();
  if (child == 0) {
    faultyCalls().beforeRename = [](auto &, auto &) {
      kill(getpid(), SIGKILL);
      return 0;
    };
    [controller save:nil];
    _exit(0);
  }
  int status = 0;
  waitpid(child, &status, 0);
  EXPECT_TRUE(WIFSIGNALED(status));
  EXPECT_TRUE(same(stored(), @{@"b" : @3}));
  // What the dead process left is in nobody's way.
  [controller save:nil];
  EXPECT_TRUE(same(stored(), (@{@"a" : @5, @"b" : @3})));
  EXPECT_EQ(folder.names(), Lines{"list.plist"});
}

TEST_F(PropertyListSaving, ACorruptFileIsKeptAside) {
  setContents(folder / "broken.plist", "{ not a list");
  LogCapture log;
  controller = controllerWith(
      [HXPropertyList propertyListWithPath:path("broken.plist")],
      @{@"a" : @1});
  EXPECT_TRUE(same(values(), @{@"a" : @1}));
  EXPECT_TRUE([controller hasUnsavedChanges]);
  [values() setObject:@5 forKey:@"a"];
  [controller save:nil];
  EXPECT_TRUE(same(stored("broken.plist"), @{@"a" : @5}));
  EXPECT_EQ(contentsOf(folder / "broken.plist.corrupt"), "{ not a list");
}

// MARK: Another program

TEST_F(PropertyListSaving, SaysThatItReplacesWhatAnotherProgramWrote) {
  [values() setObject:@5 forKey:@"a"];
  setContents(folder / "list.plist", "{ theirs = 1; }");
  LogCapture log;
  [controller save:nil];
  EXPECT_EQ(log.lines(), Lines{"[HXPropertyList] " + (folder / "list.plist") +
                               " was changed by someone else; their changes are replaced."});
  EXPECT_TRUE(same(stored(), (@{@"a" : @5, @"b" : @3})));
  EXPECT_FALSE([controller hasUnsavedChanges]);
}

TEST_F(PropertyListSaving, RevertTakesOverWhatAnotherProgramWrote) {
  [values() setObject:@5 forKey:@"a"];
  setContents(folder / "list.plist", "{ theirs = 1; }");
  [controller revert:nil];
  EXPECT_TRUE(same(values(), (@{@"a" : @1, @"b" : @2, @"theirs" : @"1"})));
  EXPECT_FALSE([controller hasUnsavedChanges]);
}

// MARK: Observers

// Who hears of the save drops the controller.
TEST_F(PropertyListSaving, TheControllerMayGoWhileItSaves) {
  drainPool();
  controller = [[HXPropertyListController alloc]
      initWithPropertyList:[HXPropertyList propertyListWithPath:path()]
             initialValues:nil];
  OvTestDropper *dropper = [[[OvTestDropper alloc] init] autorelease];
  [dropper dropAfterSave:controller];
  HXPropertyListController *saved = controller;
  [saved save:nil];
  EXPECT_FALSE([saved hasUnsavedChanges]) << "it lives as long as the call's pool";
}

}  // namespace
