// The dictionary of values: it reads like any dictionary and reports every write.

#import "SettingsTest.h"

using namespace ov::test;

// Counts announcements of what is no key of key-value observation.
@interface OvTestValues : HXPropertyListControllerValues {
 @public
  int oddKeys;
}
@end

@implementation OvTestValues
- (void)willChangeValueForKey:(NSString *)key {
  if (![key isKindOfClass:[NSString class]]) ++oddKeys;
  [super willChangeValueForKey:key];
}
@end

// Gives the values up at the first change of "a".
@interface OvTestValuesDropper : NSObject
@end

@implementation OvTestValuesDropper
- (void)observeValueForKeyPath:(NSString *)keyPath
                      ofObject:(id)object
                        change:(NSDictionary *)change
                       context:(void *)context {
  (void)change, (void)context;
  [object removeObserver:self forKeyPath:keyPath];
  [object release];
}
@end

namespace {

class PropertyListValues : public SettingsTest {
 protected:
  void SetUp() override {
    SettingsTest::SetUp();
    observer = [[[OvTestSettingsObserver alloc] init] autorelease];
    observer->lines = &lines;
    values = [[[HXPropertyListControllerValues alloc] initWithDictionary:@{
      @"a" : @1,
      @"b" : @[ @2 ]
    }
                                                                delegate:observer] autorelease];
  }

  // The lines since the last call.
  Lines take() {
    Lines taken;
    taken.swap(lines);
    return taken;
  }

  Lines lines;
  OvTestSettingsObserver *observer = nil;
  HXPropertyListControllerValues *values = nil;
};

TEST_F(PropertyListValues, AreAnOrdinaryDictionary) {
  NSDictionary *plain = @{@"a" : @1, @"b" : @[ @2 ]};
  EXPECT_EQ([values count], 2u);
  EXPECT_TRUE(same([values objectForKey:@"b"], @[ @2 ]));
  EXPECT_EQ([values objectForKey:@"c"], nil);
  EXPECT_TRUE([values isEqual:plain]);
  EXPECT_TRUE([plain isEqual:values]);
  EXPECT_TRUE([values isEqualToDictionary:plain]);
  EXPECT_FALSE([values isEqual:@{@"a" : @1}]);
  EXPECT_FALSE([values isEqual:@"a"]);
  EXPECT_TRUE([values isEqual:values]);
  EXPECT_EQ([values hash], [plain hash]);
  EXPECT_TRUE(same([[values keyEnumerator] allObjects], [values allKeys]));
  EXPECT_TRUE(same([[values objectEnumerator] allObjects], [values allValues]));
  EXPECT_EQ([[values allKeys] count], 2u);
  EXPECT_TRUE(
      same([NSSet setWithArray:[values allValues]], [NSSet setWithArray:[plain allValues]]));
  EXPECT_TRUE(same([values allKeysForObject:@1], @[ @"a" ]));
  EXPECT_TRUE(
      same([values objectsForKeys:@[ @"a", @"x" ] notFoundMarker:@"none"], @[ @1, @"none" ]));
  EXPECT_TRUE(same([values valueForKey:@"a"], @1));
  EXPECT_TRUE(same([values valueForKey:@"@count"], @2));
  NSMutableSet *keys = [NSMutableSet set];
  for (id key in values) [keys addObject:key];
  EXPECT_TRUE(same(keys, [NSSet setWithArray:[plain allKeys]]));
  EXPECT_EQ(take(), Lines{}) << "reading is no change";
}

TEST_F(PropertyListValues, DescribeThemselvesAsADictionary) {
  // The one description needs texts for values, and the order of keys is nobody's promise.
  [values setDictionary:@{@"x" : @"3"}];
  NSMutableDictionary *plain = [NSMutableDictionary dictionaryWithDictionary:values];
  EXPECT_TRUE(same([values description], [plain description]));
  EXPECT_TRUE(
      same([values descriptionInStringsFileFormat], [plain descriptionInStringsFileFormat]));
  EXPECT_TRUE(same([values descriptionWithLocale:nil], [plain descriptionWithLocale:nil]));
  EXPECT_TRUE(same([values descriptionWithLocale:nil indent:2], [plain descriptionWithLocale:nil
                                                                                      indent:2]));
}

TEST_F(PropertyListValues, SortTheirKeysByValue) {
  [values setDictionary:@{@"x" : @3, @"y" : @1, @"z" : @2}];
  EXPECT_TRUE(
      same([values keysSortedByValueUsingSelector:@selector(compare:)], @[ @"y", @"z", @"x" ]));
}

TEST_F(PropertyListValues, AreWrittenToFiles) {
  EXPECT_TRUE([values writeToFile:path() atomically:YES]);
  EXPECT_TRUE(same([NSDictionary dictionaryWithContentsOfFile:path()], values));
  EXPECT_TRUE([values writeToURL:[NSURL fileURLWithPath:path("other")] atomically:YES]);
  EXPECT_TRUE(same([NSDictionary dictionaryWithContentsOfFile:path("other")], values));
}

TEST_F(PropertyListValues, ReportAValueThatIsSet) {
  [values setObject:@5 forKey:@"a"];
  EXPECT_EQ(take(), Lines{"report a"});
  [values setObject:@6 forKey:@"new"];
  EXPECT_EQ(take(), Lines{"report new"});
  EXPECT_TRUE(same(values, (@{@"a" : @5, @"b" : @[ @2 ], @"new" : @6})));
}

TEST_F(PropertyListValues, ReportAKeyThatIsRemovedEvenIfItWasAbsent) {
  [values removeObjectForKey:@"a"];
  EXPECT_EQ(take(), Lines{"report a"});
  [values removeObjectForKey:@"absent"];
  EXPECT_EQ(take(), Lines{"report absent"});
  EXPECT_TRUE(same(values, @{@"b" : @[ @2 ]}));
}

TEST_F(PropertyListValues, ReportAllKeysOfAnAddedDictionary) {
  [values addEntriesFromDictionary:@{@"a" : @1, @"c" : @3}];
  EXPECT_EQ(take(), Lines{"report a,c"});
  EXPECT_TRUE(same(values, (@{@"a" : @1, @"b" : @[ @2 ], @"c" : @3})));
  [values addEntriesFromDictionary:@{}];
  EXPECT_EQ(take(), Lines{"report "});
}

TEST_F(PropertyListValues, ReportTheArrayOfRemovedKeysUnchanged) {
  NSArray *keys = @[ @"b", @"absent", @"b" ];
  [values removeObjectsForKeys:keys];
  EXPECT_EQ(take(), Lines{"report absent,b,b"});
  EXPECT_EQ(observer->lastKeys, keys);
  EXPECT_TRUE(same(values, @{@"a" : @1}));
}

TEST_F(PropertyListValues, ReportTheKeysHeldBeforeTheyAllGo) {
  [values removeAllObjects];
  EXPECT_EQ(take(), Lines{"report a,b"});
  EXPECT_EQ([values count], 0u);
  [values removeAllObjects];
  EXPECT_EQ(take(), Lines{"report "});
}

TEST_F(PropertyListValues, ReportOldAndNewKeysOfAReplacementOnce) {
  [values setDictionary:@{@"b" : @7, @"c" : @8}];
  EXPECT_EQ(take(), Lines{"report a,b,c"});
  EXPECT_TRUE(same(values, (@{@"b" : @7, @"c" : @8})));
}

TEST_F(PropertyListValues, ReportWhatComesThroughKeyValueCodingOnce) {
  [values setValue:@5 forKey:@"a"];
  EXPECT_EQ(take(), Lines{"report a"});
  [values setValue:nil forKey:@"a"];
  EXPECT_EQ(take(), Lines{"report a"});
  EXPECT_EQ([values objectForKey:@"a"], nil);
}

// With an observer the platform changes the object's class; nothing may come twice.
TEST_F(PropertyListValues, AnnounceEachChangeToObserversOnce) {
  [values addObserver:observer forKeyPath:@"a" options:0 context:NULL];
  [values setObject:@5 forKey:@"a"];
  EXPECT_EQ(take(), (Lines{"a", "report a"}));
  [values setValue:@6 forKey:@"a"];
  EXPECT_EQ(take(), (Lines{"a", "report a"}));
  [values setValue:nil forKey:@"a"];
  EXPECT_EQ(take(), (Lines{"a", "report a"}));
  [values addEntriesFromDictionary:@{@"a" : @1, @"b" : @2}];
  EXPECT_EQ(take(), (Lines{"a", "report a,b"}));
  [values removeObjectsForKeys:@[ @"a", @"a" ]];
  EXPECT_EQ(take(), (Lines{"a", "report a,a"}));
  [values setDictionary:@{@"a" : @7}];
  EXPECT_EQ(take(), (Lines{"a", "report a,b"}));
  [values removeAllObjects];
  EXPECT_EQ(take(), (Lines{"a", "report a"}));
  [values setObject:@1 forKey:@"b"];
  EXPECT_EQ(take(), Lines{"report b"});
  [values removeObserver:observer forKeyPath:@"a"];
  [values setObject:@1 forKey:@"a"];
  EXPECT_EQ(take(), Lines{"report a"});
}

TEST_F(PropertyListValues, BadInputChangesNothingAndTellsNobody) {
  NSDictionary *before = [NSDictionary dictionaryWithDictionary:values];
  NSMutableDictionary *untyped = values;
  id notADictionary = @[ @1 ];
  LogCapture log;
  [untyped setObject:nil forKey:@"a"];
  [untyped setObject:@1 forKey:nil];
  [untyped removeObjectForKey:nil];
  [untyped addEntriesFromDictionary:notADictionary];
  [untyped setDictionary:notADictionary];
  [untyped removeObjectsForKeys:(id) @"a"];
  [untyped setValue:@1 forKey:nil];
  EXPECT_EQ(log.lines(),
            (Lines{"[HXPropertyListControllerValues] A value cannot be nil.",
                   "[HXPropertyListControllerValues] A key cannot be nil.",
                   "[HXPropertyListControllerValues] A key cannot be nil.",
                   "[HXPropertyListControllerValues] Entries can only be taken from a dictionary.",
                   "[HXPropertyListControllerValues] Entries can only be taken from a dictionary.",
                   "[HXPropertyListControllerValues] Keys come in an array.",
                   "[HXPropertyListControllerValues] A key cannot be nil."}));
  EXPECT_EQ(take(), Lines{});
  EXPECT_TRUE(same(values, before));
}

TEST_F(PropertyListValues, NilIsAnEmptyDictionary) {
  LogCapture log;
  [values addEntriesFromDictionary:nil];
  EXPECT_EQ(take(), Lines{"report "});
  EXPECT_EQ([values count], 2u);
  EXPECT_EQ([values objectForKey:nil], nil);
  [values setDictionary:nil];
  EXPECT_EQ(take(), Lines{"report a,b"});
  EXPECT_EQ([values count], 0u);
  values = [[[HXPropertyListControllerValues alloc] initWithDictionary:nil
                                                              delegate:observer] autorelease];
  EXPECT_EQ([values count], 0u);
  EXPECT_TRUE(log.lines().empty());
}

TEST_F(PropertyListValues, TakeStrangeKeys) {
  const unichar half = 0xD83D;
  NSMutableString *loneHalf = [NSMutableString stringWithString:@"x"];
  [loneHalf appendFormat:@"%C", half];
  NSString *nul = [NSString stringWithFormat:@"a%Cb", (unichar)0];
  [values addObserver:observer forKeyPath:@"a" options:0 context:NULL];
  NSArray *keys = @[ loneHalf, nul, @"", @"@count", @"a.b", @7, [NSNull null] ];
  [values setDelegate:nil];  // who could not write these down
  [values removeAllObjects];
  for (id key in keys) [values setObject:@1 forKey:key];
  EXPECT_EQ([values count], [keys count]);
  for (id key in keys) EXPECT_TRUE(same([values objectForKey:key], @1));
  [values removeObserver:observer forKeyPath:@"a"];
}

TEST_F(PropertyListValues, AnnounceOnlyKeysThatAreStrings) {
  OvTestValues *odd = [[[OvTestValues alloc] initWithCapacity:0 delegate:observer] autorelease];
  [odd setObject:@1 forKey:@7];
  EXPECT_EQ(odd->oddKeys, 0);
  EXPECT_EQ(take(), Lines{"report 7"});
}

TEST_F(PropertyListValues, MayBeGivenUpByAnObserver) {
  int deaths = [OvTestDeathCounter deaths];
  OvTestDeathCounter *content = [[OvTestDeathCounter alloc] init];
  values = [[HXPropertyListControllerValues alloc] initWithCapacity:0 delegate:observer];
  [values setObject:content forKey:@"content"];
  [content release];
  take();
  id dropper = [[[OvTestValuesDropper alloc] init] autorelease];
  [values addObserver:dropper forKeyPath:@"a" options:0 context:NULL];
  [values setObject:@1 forKey:@"a"];
  EXPECT_EQ([OvTestDeathCounter deaths], deaths) << "they live as long as the call's pool";
  EXPECT_EQ(take(), Lines{"report a"});
}

TEST_F(PropertyListValues, TheirOwnContentsCanBeSetOrAdded) {
  NSDictionary *before = [NSDictionary dictionaryWithDictionary:values];
  [values setDictionary:values];
  EXPECT_TRUE(same(values, before));
  [values addEntriesFromDictionary:values];
  EXPECT_TRUE(same(values, before));
  [values removeObjectsForKeys:[values allKeys]];
  EXPECT_EQ([values count], 0u);
}

TEST_F(PropertyListValues, CopiesAreOrdinaryDictionaries) {
  for (id copy in @[
         [[values copy] autorelease], [[values mutableCopy] autorelease],
         [NSUnarchiver unarchiveObjectWithData:[NSArchiver archivedDataWithRootObject:values]],
         [NSKeyedUnarchiver
             unarchiveObjectWithData:[NSKeyedArchiver archivedDataWithRootObject:values]]
       ]) {
    EXPECT_TRUE(same(copy, values));
    EXPECT_FALSE([copy isKindOfClass:[HXPropertyListControllerValues class]]);
  }
  id mutableCopy = [[values mutableCopy] autorelease];
  [mutableCopy setObject:@5 forKey:@"a"];
  EXPECT_TRUE(same([values objectForKey:@"a"], @1));
  EXPECT_EQ(take(), Lines{});
}

TEST_F(PropertyListValues, InheritedInitialisersWork) {
  Class made = [HXPropertyListControllerValues class];
  id x[] = { @1 }, k[] = {@"k"};
  NSDictionary *expected = @{@"k" : @1};
  EXPECT_EQ([[made dictionary] count], 0u);
  EXPECT_EQ([[made dictionaryWithCapacity:5] count], 0u);
  EXPECT_TRUE(same([made dictionaryWithDictionary:expected], expected));
  EXPECT_TRUE(same([made dictionaryWithObject:@1 forKey:@"k"], expected));
  EXPECT_TRUE(same([made dictionaryWithObjects:x forKeys:k count:1], expected));
  EXPECT_TRUE(same([[[made alloc] initWithObjectsAndKeys:@1, @"k", nil] autorelease], expected));
  HXPropertyListControllerValues *one = [[[made alloc] init] autorelease];
  [one setObject:@1 forKey:@"k"];
  EXPECT_TRUE([one isMemberOfClass:made]);
  EXPECT_TRUE(same(one, expected));
  EXPECT_EQ([one delegate], nil);
}

TEST_F(PropertyListValues, MayHaveManyEntriesOrAHugeCapacity) {
  values = [[[HXPropertyListControllerValues alloc] initWithCapacity:32
                                                            delegate:observer] autorelease];
  EXPECT_EQ([values delegate], observer);
  for (int i = 0; i < 10'000; ++i) [values setObject:@(i) forKey:[@(i) stringValue]];
  EXPECT_EQ([values count], 10'000u);
  EXPECT_TRUE(same([values objectForKey:@"9999"], @9999));
  EXPECT_EQ(take().size(), 10'000u);
  values = [[[HXPropertyListControllerValues alloc] initWithCapacity:NSUIntegerMax
                                                            delegate:nil] autorelease];
  [values setObject:@1 forKey:@"a"];
  EXPECT_EQ([values count], 1u);
}

TEST_F(PropertyListValues, TheDelegateNeedNotHaveTheMethodAndIsNotRetained) {
  [values setDelegate:@"no such method"];
  [values setObject:@5 forKey:@"a"];
  EXPECT_TRUE(same([values objectForKey:@"a"], @5));
  [values setDelegate:nil];
  [values setObject:@6 forKey:@"a"];
  EXPECT_EQ(take(), Lines{});
  int deaths = [OvTestDeathCounter deaths];
  OvTestDeathCounter *delegate = [[OvTestDeathCounter alloc] init];
  [values setDelegate:delegate];
  [delegate release];
  EXPECT_EQ([OvTestDeathCounter deaths], deaths + 1);
  [values setDelegate:nil];
}

TEST_F(PropertyListValues, ReleaseWhatTheyHold) {
  int deaths = [OvTestDeathCounter deaths];
  drainPool();
  values = [[HXPropertyListControllerValues alloc] initWithCapacity:0 delegate:nil];
  OvTestDeathCounter *value = [[OvTestDeathCounter alloc] init];
  [values setObject:value forKey:@"k"];
  [value release];
  drainPool();
  EXPECT_EQ([OvTestDeathCounter deaths], deaths);
  [values release];
  drainPool();
  EXPECT_EQ([OvTestDeathCounter deaths], deaths + 1);
}

}  // namespace
