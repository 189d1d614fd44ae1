// A split view with an autosave name restores its layout and saves it from then on.

#import "SplitTest.h"

using namespace ov::test;
using testing::ElementsAre;

namespace {

class SplitAutosave : public SplitTest {
 protected:
  void SetUp() override {
    SplitTest::SetUp();
    for (NSString *name : {kName, kOther}) [OvSplitView removeLayoutUsingName:name];
  }
  void TearDown() override {
    for (OvSplitView *split : named) [split setLayoutAutosaveName:nil];
    for (NSString *name : {kName, kOther}) [OvSplitView removeLayoutUsingName:name];
    SplitTest::TearDown();
  }
  BOOL name(OvSplitView *split, NSString *layoutName) {
    named.push_back(split);
    return [split setLayoutAutosaveName:layoutName];
  }
  static id stored(NSString *layoutName) {
    return [[NSUserDefaults standardUserDefaults]
        objectForKey:[OvSplitView _userDefaultsKeyForName:layoutName]];
  }
  static bool isStored(OvSplitView *split, NSString *layoutName) {
    return [stored(layoutName) isEqual:[split stringWithSavedLayout]];
  }

  NSString *const kName = @"SplitAutosaveTest";
  NSString *const kOther = @"SplitAutosaveTest other";
  std::vector<OvSplitView *> named;
};

TEST_F(SplitAutosave, SavesAtEachResize) {
  OvSplitView *split = makeSplit({147, 147});
  EXPECT_TRUE(name(split, kName));
  EXPECT_TRUE([[split layoutAutosaveName] isEqual:kName]);
  EXPECT_EQ(stored(kName), nil) << "nothing has changed yet";
  [split setFrameSize:NSMakeSize(594, 200)];
  EXPECT_TRUE(isStored(split, kName));
  [split setSubviewAtIndex:0 isCollapsed:YES];
  EXPECT_TRUE(isStored(split, kName));
}

TEST_F(SplitAutosave, SavesAtEachStepOfADrag) {
  OvSplitView *split = makeSplit({147, 147});
  name(split, kName);
  delegate->has = {"splitViewWillResizeSubviews:"};
  int steps = 0;
  std::vector<CGFloat> distances;
  for (int i = 1; i <= 20; ++i) distances.push_back(3 * i);
  [split setDelegate:delegate];
  // Before each step the one before is stored.
  delegate->onLine = [&](const std::string &) {
    if (++steps > 1) {
      EXPECT_TRUE(isStored(split, kName)) << steps;
    }
  };
  drag(split, 0, distances);
  EXPECT_EQ(steps, 21);
  NSString *key = [OvSplitView _userDefaultsKeyForName:kName];
  NSUserDefaults *defaults = [NSUserDefaults standardUserDefaults];
  NSDictionary *persistent =
      [defaults persistentDomainForName:[[NSProcessInfo processInfo] processName]];
  EXPECT_TRUE([[persistent objectForKey:key] isEqual:[split stringWithSavedLayout]]);
  EXPECT_TRUE(isStored(split, kName));
}

// What a drag has saved is stored for good when it ends, however it ends.
TEST_F(SplitAutosave, ADragThatAnExceptionEndsIsStored) {
  OvSplitView *split = makeSplit({147, 147});
  name(split, kName);
  delegate->has = {"splitView:constrainSplitPosition:ofSubviewAt:"};
  int steps = 0;
  delegate->onLine = [&](const std::string &) {
    if (++steps == 3) [NSException raise:@"Test" format:@"in a drag"];
  };
  [split setDelegate:delegate];
  bool raised = false;
  @try {
    drag(split, 0, {10, 20, 30});
  } @catch (NSException *exception) {
    raised = true;
  }
  EXPECT_TRUE(raised);
  discardPending();
  delegate->onLine = nullptr;
  NSUserDefaults *defaults = [NSUserDefaults standardUserDefaults];
  EXPECT_FALSE([[defaults volatileDomainNames] containsObject:@"OvDeferredDefaults"]);
  EXPECT_FALSE([[defaults searchList] containsObject:@"OvDeferredDefaults"]);
  EXPECT_TRUE(isStored(split, kName));
  EXPECT_EQ(spans(split), "0+157 163+137");
}

TEST_F(SplitAutosave, RestoresAtOnce) {
  [makeSplit({98, 196}) saveLayoutUsingName:kName];
  OvSplitView *split = makeSplit({147, 147});
  EXPECT_TRUE(name(split, kName));
  EXPECT_EQ(spans(split), "0+98 104+196");
}

TEST_F(SplitAutosave, NameInUseIsRefused) {
  [makeSplit({98, 196}) saveLayoutUsingName:kName];
  OvSplitView *first = makeSplit({147, 147});
  OvSplitView *second = makeSplit({147, 147});
  EXPECT_TRUE(name(first, kName));
  EXPECT_FALSE(name(second, kName));
  EXPECT_EQ([second layoutAutosaveName], nil);
  EXPECT_EQ(spans(second), "0+147 153+147") << "does not restore";
  id before = stored(kName);
  [second setFrameSize:NSMakeSize(900, 100)];
  EXPECT_TRUE([stored(kName) isEqual:before]) << "does not save";
  EXPECT_TRUE(name(second, kOther));
  EXPECT_FALSE(name(second, kName));
  EXPECT_TRUE([[second layoutAutosaveName] isEqual:kOther]) << "keeps the one it had";
}

TEST_F(SplitAutosave, OwnNameAgainIsRefusedAndKept) {
  OvSplitView *split = makeSplit({147, 147});
  EXPECT_TRUE(name(split, kName));
  EXPECT_FALSE(name(split, kName));
  EXPECT_TRUE([[split layoutAutosaveName] isEqual:kName]);
  [split setFrameSize:NSMakeSize(594, 200)];
  EXPECT_TRUE(isStored(split, kName));
}

TEST_F(SplitAutosave, NilAndEmptyEndItAndKeepWhatIsStored) {
  for (NSString *none : {(NSString *)nil, @""}) {
    OvSplitView *split = makeSplit({147, 147});
    name(split, kName);
    [split setFrameSize:NSMakeSize(594, 200)];
    id before = stored(kName);
    EXPECT_TRUE([split setLayoutAutosaveName:none]);
    EXPECT_EQ([split layoutAutosaveName], nil);
    [split setFrameSize:NSMakeSize(300, 200)];
    EXPECT_TRUE([stored(kName) isEqual:before]);
    EXPECT_TRUE([split setLayoutAutosaveName:none]) << "again";
  }
}

TEST_F(SplitAutosave, AnotherNameFreesTheOldOne) {
  OvSplitView *split = makeSplit({147, 147});
  name(split, kName);
  [split setFrameSize:NSMakeSize(594, 200)];
  id before = stored(kName);
  EXPECT_TRUE(name(split, kOther));
  [split setFrameSize:NSMakeSize(300, 200)];
  EXPECT_TRUE([stored(kName) isEqual:before]);
  EXPECT_TRUE(isStored(split, kOther));
  EXPECT_TRUE(name(makeSplit({147, 147}), kName));
}

TEST_F(SplitAutosave, NameIsCopied) {
  OvSplitView *split = makeSplit({147, 147});
  NSMutableString *changing = [NSMutableString stringWithString:kName];
  name(split, changing);
  [changing setString:@"something else"];
  EXPECT_TRUE([[split layoutAutosaveName] isEqual:kName]);
}

TEST_F(SplitAutosave, DeathFreesTheNameAndKeepsTheLayout) {
  OvSplitView *split = [[OvSplitView alloc] initWithFrame:NSMakeRect(0, 0, 300, 200)];
  [split setLayoutAutosaveName:kName];
  [split setFrameSize:NSMakeSize(200, 200)];
  [split release];
  EXPECT_NE(stored(kName), nil);
  EXPECT_TRUE(name(makeSplit({147, 147}), kName));
}

TEST_F(SplitAutosave, ThePlatformsOwnNameIsIgnored) {
  OvSplitView *first = makeSplit({147, 147});
  name(first, kName);
  OvSplitView *second = makeSplit({147, 147});
  [second setAutosaveName:kName];
  EXPECT_EQ([second layoutAutosaveName], nil);
  [second setLayoutAutosaveName:nil];
  EXPECT_FALSE([second setLayoutAutosaveName:kName]) << "the first one has it";
  NSString *platformsKey = [@"NSSplitView Dividers " stringByAppendingString:kName];
  [first setFrameSize:NSMakeSize(594, 200)];
  [first adjustSubviews];
  EXPECT_EQ([[NSUserDefaults standardUserDefaults] objectForKey:platformsKey], nil);
}

TEST_F(SplitAutosave, OddNamesAreNames) {
  const unichar units[] = {'a', 0, 'b'};
  NSMutableString *longName = [NSMutableString string];
  for (int i = 0; i < 10000; ++i) [longName appendString:@"x"];
  NSArray *names = @[
    [[[NSString alloc] initWithCharacters:units length:3] autorelease], @" ", @"\n",
    [NSString stringWithUTF8String:"\xE6\x97\xA5"], longName
  ];
  for (NSString *odd in names) {
    OvSplitView *split = makeSplit({147, 147});
    EXPECT_TRUE(name(split, odd));
    EXPECT_TRUE([[split layoutAutosaveName] isEqual:odd]);
    [split setFrameSize:NSMakeSize(594, 200)];
    EXPECT_TRUE(isStored(split, odd)) << [names indexOfObject:odd];
    [split setLayoutAutosaveName:nil];
    [OvSplitView removeLayoutUsingName:odd];
  }
}

}  // namespace
