// The controller's values, its store and its defaults.

#import "SettingsTest.h"

using namespace ov::test;

namespace {

NSDictionary *badDictionary() {
  return @{@"good" : @1, @"bad" : [NSURL URLWithString:@"http://localhost/"]};
}

NSDictionary *nested() {
  return @{@"list" : @[ @{@"text" : [NSMutableString stringWithString:@"t"]} ]};
}

class PropertyListController : public SettingsTest {};

// MARK: Creating

TEST_F(PropertyListController, IsMadeWithNothing) {
  HXPropertyListController *made[] = {
      [[[HXPropertyListController alloc] init] autorelease],
      [[[HXPropertyListController alloc] initWithPropertyList:nil] autorelease],
      controllerWith(nil, nil)};
  for (HXPropertyListController *controller : made) {
    EXPECT_EQ([controller propertyList], nil);
    EXPECT_EQ([controller initialValues], nil);
    EXPECT_TRUE([controller appliesImmediately]);
    EXPECT_TRUE([[controller values] isMemberOfClass:[HXPropertyListControllerValues class]]);
    EXPECT_EQ([[controller values] count], 0u);
    EXPECT_EQ([[controller values] delegate], controller);
    EXPECT_TRUE([controller hasUnsavedChanges]);
  }
}

TEST_F(PropertyListController, StoredValuesOverrideTheDefaults) {
  HXPropertyList *store = storeHolding(@{@"b" : @3, @"c" : @4});
  HXPropertyListController *controller = controllerWith(store, @{@"a" : @1, @"b" : @2});
  EXPECT_TRUE(same([controller values], (@{@"a" : @1, @"b" : @3, @"c" : @4})));
  EXPECT_EQ([controller propertyList], store);
  EXPECT_TRUE(same([controller initialValues], (@{@"a" : @1, @"b" : @2})));
  EXPECT_FALSE([controller hasUnsavedChanges]);
  EXPECT_TRUE(same([controller valueForKeyPath:@"values.b"], @3));
  EXPECT_EQ([controller valueForKeyPath:@"values.x"], nil);

  controller = [[[HXPropertyListController alloc] initWithPropertyList:store] autorelease];
  EXPECT_TRUE(same([controller values], (@{@"b" : @3, @"c" : @4})));
}

TEST_F(PropertyListController, RetainsTheStoreAndCopiesTheDefaults) {
  int deaths = [OvTestDeathCounter deaths];
  NSMutableDictionary *defaults = [NSMutableDictionary dictionaryWithObject:@1 forKey:@"a"];
  HXPropertyList *store = [[HXPropertyList alloc] initWithPath:path()];
  NSUInteger count = [store retainCount];
  HXPropertyListController *controller =
      [[HXPropertyListController alloc] initWithPropertyList:store initialValues:defaults];
  EXPECT_EQ([store retainCount], count + 1);
  [defaults setObject:@2 forKey:@"a"];
  EXPECT_TRUE(same([controller initialValues], @{@"a" : @1}));
  EXPECT_FALSE([[controller initialValues] isKindOfClass:[NSMutableDictionary class]]);
  drainPool();
  [controller release];
  drainPool();
  EXPECT_EQ([store retainCount], count);
  [store release];
  EXPECT_EQ([OvTestDeathCounter deaths], deaths);
}

TEST_F(PropertyListController, AnArchiveBringsAnEmptyOne) {
  HXPropertyListController *controller = controllerWith(nil, @{@"a" : @1});
  [controller setAppliesImmediately:NO];
  for (HXPropertyListController *copy in @[
         [NSUnarchiver unarchiveObjectWithData:[NSArchiver archivedDataWithRootObject:controller]],
         [NSKeyedUnarchiver
             unarchiveObjectWithData:[NSKeyedArchiver archivedDataWithRootObject:controller]]
       ]) {
    EXPECT_TRUE([copy isMemberOfClass:[HXPropertyListController class]]);
    EXPECT_TRUE([copy appliesImmediately]);
    EXPECT_TRUE([copy hasUnsavedChanges]);
    EXPECT_EQ([copy initialValues], nil);
    // It is as good as a new one.
    [copy setPropertyList:storeHolding(@{@"b" : @2})];
    [copy setInitialValues:@{@"a" : @1}];
    EXPECT_TRUE(same([copy values], (@{@"a" : @1, @"b" : @2})));
    EXPECT_FALSE([copy hasUnsavedChanges]);
    EXPECT_FALSE([copy isEditing]);
    NSTextField *editor = [[[NSTextField alloc] initWithFrame:NSZeroRect] autorelease];
    [copy objectDidBeginEditing:editor];
    EXPECT_TRUE([copy isEditing]);
    [copy objectDidEndEditing:editor];
    EXPECT_FALSE([copy isEditing]);
  }
}

TEST_F(PropertyListController, EditsReachNeitherTheStoreNorTheDefaults) {
  HXPropertyList *store = storeHolding(nested());
  HXPropertyListController *controller = controllerWith(
      store,
      @{@"kept" : [NSMutableArray arrayWithObject:@1]});
  [[[[controller values] objectForKey:@"list"] objectAtIndex:0] setObject:@"new" forKey:@"text"];
  [[[controller values] objectForKey:@"kept"] addObject:@2];
  EXPECT_TRUE(same([store values], nested()));
  EXPECT_TRUE(same([controller initialValues], @{@"kept" : @[ @1 ]}));
  EXPECT_TRUE([controller hasUnsavedChanges]);
  [controller save:nil];
  // Nor does an edit after the save.
  [[[controller values] objectForKey:@"kept"] addObject:@3];
  EXPECT_TRUE(same([[store values] objectForKey:@"kept"], (@[ @1, @2 ])));
}

TEST_F(PropertyListController, AppliesImmediatelyIsOnlyKept) {
  HXPropertyListController *controller = controllerWith(storeHolding(@{@"a" : @1}), nil);
  for (BOOL applies : {NO, YES}) {
    [controller setAppliesImmediately:applies];
    EXPECT_EQ([controller appliesImmediately], applies);
    [[controller values] setObject:@2 forKey:@"a"];
    EXPECT_TRUE(same(stored(), @{@"a" : @1}));
  }
}

TEST_F(PropertyListController, PublishesItsKeys) {
  HXPropertyListController *controller = controllerWith(nil, nil);
  EXPECT_TRUE(same([controller _keyValueBindingAccessPoints], @[ @"values" ]));
  EXPECT_TRUE(same([controller _controllerKeys], (@[ @"values", @"hasUnappliedChanges" ])));
  EXPECT_TRUE(same([controller _modelAndProxyKeys], (@[ @"values", @"propertyList" ])));
  // Published, but there is no such property.
  EXPECT_FALSE([controller respondsToSelector:@selector(hasUnappliedChanges)]);
}

TEST_F(PropertyListController, LeavesNothingBehind) {
  int deaths = [OvTestDeathCounter deaths];
  HXPropertyList *store = [[HXPropertyList alloc] initWithPath:path()];
  HXPropertyListController *controller =
      [[HXPropertyListController alloc] initWithPropertyList:store initialValues:nil];
  OvTestDeathCounter *value = [[OvTestDeathCounter alloc] init];
  [[controller values] setObject:value forKey:@"k"];
  [value release];
  drainPool();
  [controller release];
  drainPool();
  EXPECT_EQ([OvTestDeathCounter deaths], deaths + 1);
  [[store values] setObject:@1 forKey:@"a"];
  EXPECT_TRUE([store saveChanges]) << "which the controller must not hear of any more";
  [store release];
}

TEST_F(PropertyListController, ItsValuesMayOutliveIt) {
  HXPropertyListController *controller = [[HXPropertyListController alloc] init];
  HXPropertyListControllerValues *values = [[controller values] retain];
  drainPool();
  [controller release];
  drainPool();
  EXPECT_EQ([values delegate], nil);
  [values setObject:@1 forKey:@"a"];
  EXPECT_EQ([values count], 1u);
  [values release];
}

// MARK: Unsaved changes

TEST_F(PropertyListController, HasUnsavedChangesWhenSavingWouldChangeTheStore) {
  HXPropertyListController *controller = controllerWith(
      storeHolding(
          @{@"b" : @3}),
      @{@"a" : @1,
        @"b" : @2});
  EXPECT_FALSE([controller hasUnsavedChanges]);
  [[controller values] setObject:@5 forKey:@"a"];
  EXPECT_TRUE([controller hasUnsavedChanges]);
  [[controller values] setObject:@1 forKey:@"a"];
  EXPECT_FALSE([controller hasUnsavedChanges]) << "the default again, and {b: 3} is stored";
  [[controller values] setObject:@2 forKey:@"b"];
  EXPECT_TRUE([controller hasUnsavedChanges]) << "which would remove b";
  [[controller values] setObject:@3 forKey:@"b"];
  EXPECT_FALSE([controller hasUnsavedChanges]);
  [[controller values] setObject:@"new" forKey:@"c"];
  EXPECT_TRUE([controller hasUnsavedChanges]);
}

TEST_F(PropertyListController, HasUnsavedChangesWhileNothingWasEverStored) {
  HXPropertyListController *controller = controllerWith(nil, @{@"a" : @1});
  EXPECT_TRUE([controller hasUnsavedChanges]) << "without a store, always";
  [controller save:nil];
  EXPECT_TRUE([controller hasUnsavedChanges]);
  controller = controllerWith(storeHolding(nil), @{@"a" : @1});
  EXPECT_TRUE([controller hasUnsavedChanges]) << "the file was never written";
  [controller save:nil];
  EXPECT_FALSE([controller hasUnsavedChanges]);
  EXPECT_TRUE(same(stored(), @{}));
}

// An empty dictionary that was stored is not the same as none.
TEST_F(PropertyListController, AnEmptyStoreIsAStore) {
  HXPropertyListController *controller = controllerWith(storeHolding(@{}), nil);
  EXPECT_FALSE([controller hasUnsavedChanges]);
  [controller setPropertyList:storeHolding(nil, "other.plist")];
  EXPECT_TRUE([controller hasUnsavedChanges]);
}

TEST_F(PropertyListController, HearsOfASaveByOthers) {
  HXPropertyList *store = storeHolding(@{@"a" : @1});
  OvTestController *controller = [[[OvTestController alloc] initWithPropertyList:store
                                                                   initialValues:nil] autorelease];
  [[controller values] setObject:@2 forKey:@"a"];
  EXPECT_TRUE([controller hasUnsavedChanges]);
  Lines lines;
  controller->lines = &lines;
  [[store values] setObject:@2 forKey:@"a"];
  EXPECT_TRUE([store saveChanges]);
  EXPECT_FALSE([controller hasUnsavedChanges]);
  EXPECT_EQ(lines, (Lines{"will hasUnsavedChanges", "did hasUnsavedChanges"}));
  // The notification itself is not read.
  [[controller values] setObject:@3 forKey:@"a"];
  [controller propertyListDidSaveValues:nil];
  EXPECT_TRUE([controller hasUnsavedChanges]);
}

TEST_F(PropertyListController, StoredValuesAreKeptAsTheyWere) {
  OvTestStore *store = [[[OvTestStore alloc] initWithPath:path()] autorelease];
  store->answeredValues = [[NSMutableDictionary alloc] init];
  NSMutableDictionary *serialized = [NSMutableDictionary dictionary];
  store->answeredSerializedValues = [serialized retain];
  HXPropertyListController *controller = controllerWith(store, nil);
  EXPECT_FALSE([controller hasUnsavedChanges]);
  [serialized setObject:@1 forKey:@"a"];
  EXPECT_FALSE([controller hasUnsavedChanges]) << "a copy was taken";
  [controller propertyListDidSaveValues:nil];
  EXPECT_TRUE([controller hasUnsavedChanges]);
}

TEST_F(PropertyListController, AStoreThatAnswersNoDictionaryHasNone) {
  for (id answer : { (id) nil, (id) @"text", (id) @[ @"a" ], (id)[NSNull null] }) {
    OvTestStore *store = [[[OvTestStore alloc] initWithPath:path()] autorelease];
    LogCapture log;
    store->answeredValues = [[NSMutableDictionary alloc] initWithObjectsAndKeys:@1, @"a", nil];
    store->answeredSerializedValues = [answer retain];
    HXPropertyListController *controller = controllerWith(store, @{@"b" : @2});
    EXPECT_TRUE([controller hasUnsavedChanges]);
    [controller propertyListDidSaveValues:nil];
    EXPECT_TRUE([controller hasUnsavedChanges]);
    [store->answeredValues release];
    store->answeredValues = [answer retain];
    controller = controllerWith(store, @{@"b" : @2});
    EXPECT_TRUE(same([controller values], @{@"b" : @2}));
    [controller revert:nil];
    EXPECT_TRUE(same([controller values], @{@"b" : @2}));
    [controller setPropertyList:nil];
    [controller setPropertyList:store];
    EXPECT_TRUE(same([controller values], @{@"b" : @2}));
    EXPECT_TRUE(log.lines().empty());
  }
}

// MARK: Copies

TEST_F(PropertyListController, ClonesAreDeep) {
  HXPropertyListController *controller = controllerWith(nil, nil);
  NSDictionary *fixed = [controller _deepImmutableCloneFromDictionary:nested()];
  EXPECT_TRUE(same(fixed, nested()));
  NSArray *list = [fixed objectForKey:@"list"];
  NSString *text = [[list objectAtIndex:0] objectForKey:@"text"];
  EXPECT_FALSE([fixed isKindOfClass:[NSMutableDictionary class]]);
  EXPECT_FALSE([list isKindOfClass:[NSMutableArray class]]);
  EXPECT_FALSE([[list objectAtIndex:0] isKindOfClass:[NSMutableDictionary class]]);
  EXPECT_FALSE([text isKindOfClass:[NSMutableString class]]);

  NSDictionary *source = nested();
  NSMutableDictionary *loose = [controller _deepMutableCloneFromDictionary:source];
  text = [[[loose objectForKey:@"list"] objectAtIndex:0] objectForKey:@"text"];
  EXPECT_FALSE([text isKindOfClass:[NSMutableString class]]) << "only containers can be changed";
  [[[loose objectForKey:@"list"] objectAtIndex:0] setObject:@1 forKey:@"text"];
  [[loose objectForKey:@"list"] addObject:@2];
  [loose setObject:@3 forKey:@"more"];
  EXPECT_TRUE(same(source, nested()));
}

TEST_F(PropertyListController, ClonesKeepFractionsOfSecondsAndLargeNumbers) {
  NSDictionary *exact = @{
    @"date" : [NSDate dateWithTimeIntervalSinceReferenceDate:0.123456],
    @"large" : @(9007199254740993LL),
    @"real" : @0.1,
    @"data" : [NSData dataWithBytes:"\0x" length:2],
  };
  HXPropertyListController *controller = controllerWith(storeHolding(exact), nil);
  EXPECT_TRUE(same([controller _deepImmutableCloneFromDictionary:exact], exact));
  EXPECT_TRUE(same([controller _deepMutableCloneFromDictionary:exact], exact));
  // This one cannot be stored, but copied.
  NSDictionary *largest = @{@"k" : @(18446744073709551615ULL)};
  EXPECT_TRUE(same([controller _deepMutableCloneFromDictionary:largest], largest));
  EXPECT_TRUE(same([controller values], exact));
  [[controller values] setObject:@1 forKey:@"more"];
  [controller save:nil];
  EXPECT_EQ([[stored() objectForKey:@"date"] timeIntervalSinceReferenceDate], 0.123456);
  EXPECT_EQ([[stored() objectForKey:@"large"] longLongValue], 9007199254740993LL);
}

TEST_F(PropertyListController, AFailedCopyIsNilWithTwoLines) {
  HXPropertyListController *controller = controllerWith(nil, nil);
  {
    LogCapture log;
    EXPECT_EQ([controller _deepImmutableCloneFromDictionary:badDictionary()], nil);
    EXPECT_TRUE(tellsOfFailedCopy(log, "immutable"));
    EXPECT_EQ(log.lines().size(), 2u);
  }
  {
    LogCapture log;
    EXPECT_EQ([controller _deepMutableCloneFromDictionary:badDictionary()], nil);
    EXPECT_TRUE(tellsOfFailedCopy(log, "mutable"));
    EXPECT_EQ(log.lines().size(), 2u);
  }
  LogCapture log;
  NSMutableArray *endless = [NSMutableArray array];
  id itself = endless;
  [endless addObject:itself];
  EXPECT_EQ([controller _deepMutableCloneFromDictionary:@{@"k" : endless}], nil);
  [endless removeAllObjects];
  EXPECT_EQ([controller _deepImmutableCloneFromDictionary:@{@1 : @2}], nil);
  EXPECT_EQ([controller _deepImmutableCloneFromDictionary:nil], nil);
  EXPECT_EQ(log.lines().size(), 6u);
  EXPECT_EQ([controller _deepImmutableCloneFromDictionary:(id) @[]], nil);
  EXPECT_EQ(log.lines().back(), "[HXPropertyListController] Failed to create deep immutable copy.");
}

TEST_F(PropertyListController, DefaultsThatCannotBeCopiedAreNone) {
  LogCapture log;
  HXPropertyListController *controller = controllerWith(storeHolding(
                                                            @{@"b" : @3}),
                                                        badDictionary());
  EXPECT_TRUE(tellsOfFailedCopy(log, "immutable"));
  EXPECT_EQ(log.lines().size(), 2u);
  EXPECT_EQ([controller initialValues], nil);
  EXPECT_TRUE(same([controller values], @{@"b" : @3}));
  [controller setInitialValues:@{@"a" : @1}];
  [controller setInitialValues:badDictionary()];
  EXPECT_TRUE(tellsOfFailedCopy(log, "immutable", 2));
  EXPECT_EQ([controller initialValues], nil);
  EXPECT_TRUE(same([controller values], @{@"b" : @3}));
}

TEST_F(PropertyListController, StoredValuesThatCannotBeCopiedAreNone) {
  HXPropertyList *store = storeHolding(nil);
  [[store values] addEntriesFromDictionary:badDictionary()];
  LogCapture log;
  HXPropertyListController *controller = controllerWith(store, @{@"a" : @1});
  EXPECT_TRUE(tellsOfFailedCopy(log, "mutable"));
  EXPECT_EQ(log.lines().size(), 2u);
  EXPECT_TRUE(same([controller values], @{@"a" : @1}));
  [controller setPropertyList:nil];
  [controller setPropertyList:store];
  EXPECT_TRUE(tellsOfFailedCopy(log, "mutable", 2));
  EXPECT_TRUE(same([controller values], @{@"a" : @1}));
}

// Or else a save would remove from the file what could not be read from the memory.
TEST_F(PropertyListController, InsteadOfStoredValuesThatCannotBeCopiedTheFileCounts) {
  HXPropertyList *store = storeHolding(@{@"b" : @3});
  [[store values] addEntriesFromDictionary:badDictionary()];
  LogCapture log;
  HXPropertyListController *controller = controllerWith(store, @{@"a" : @1});
  EXPECT_TRUE(tellsOfFailedCopy(log, "mutable"));
  EXPECT_EQ(log.lines().size(), 2u);
  EXPECT_TRUE(same([controller values], (@{@"a" : @1, @"b" : @3})));
  [controller save:nil];
  EXPECT_TRUE(same(stored(), @{@"b" : @3}));
}

// MARK: Differences

TEST_F(PropertyListController, DifferencesAreWhatTheDefaultsDoNotSay) {
  HXPropertyListController *controller = controllerWith(nil, @{@"a" : @1, @"b" : @[ @2 ]});
  EXPECT_TRUE(same([controller _differencesFromInitialValue], @{}));
  [[controller values] setObject:@5 forKey:@"a"];
  [[controller values] setObject:@"x" forKey:@"c"];
  EXPECT_TRUE(same([controller _differencesFromInitialValue], (@{@"a" : @5, @"c" : @"x"})));
  [[[controller values] objectForKey:@"b"] addObject:@3];
  EXPECT_TRUE(same([[controller _differencesFromInitialValue] objectForKey:@"b"], (@[ @2, @3 ])));
  controller = controllerWith(nil, nil);
  EXPECT_EQ([controller _differencesFromInitialValue], [controller values]);
}

// MARK: Another store, other defaults

TEST_F(PropertyListController, EditsSurviveAnotherStore) {
  HXPropertyListController *controller = controllerWith(
      storeHolding(
          @{@"b" : @3}),
      @{@"a" : @1,
        @"b" : @2,
        @"c" : @7});
  HXPropertyListControllerValues *values = [controller values];
  [values setObject:@5 forKey:@"a"];
  HXPropertyList *other = storeHolding(@{@"a" : @8, @"c" : @9}, "other.plist");
  [controller setPropertyList:other];
  EXPECT_EQ([controller propertyList], other);
  EXPECT_EQ([controller values], values);
  EXPECT_TRUE(same(values, (@{@"a" : @5, @"b" : @3, @"c" : @9})));
  EXPECT_TRUE([controller hasUnsavedChanges]);
  EXPECT_TRUE(same(stored("other.plist"), (@{@"a" : @8, @"c" : @9})));
  [controller save:nil];
  EXPECT_FALSE([controller hasUnsavedChanges]);
  EXPECT_TRUE(same(stored("other.plist"), (@{@"a" : @5, @"b" : @3, @"c" : @9})));
  EXPECT_TRUE(same(stored(), @{@"b" : @3})) << "the old store is left alone";
}

TEST_F(PropertyListController, AnUneditedControllerTakesOverAnotherStore) {
  HXPropertyListController *controller = controllerWith(storeHolding(@{}), @{@"a" : @1});
  [controller setPropertyList:storeHolding(@{@"a" : @2}, "other.plist")];
  EXPECT_TRUE(same([controller values], @{@"a" : @2}));
  EXPECT_FALSE([controller hasUnsavedChanges]);
  [controller setPropertyList:nil];
  EXPECT_TRUE(same([controller values], @{@"a" : @2})) << "which differs from the default";
  EXPECT_TRUE([controller hasUnsavedChanges]);
}

TEST_F(PropertyListController, WithoutDefaultsAllValuesGoToAnotherStore) {
  HXPropertyListController *controller = controllerWith(storeHolding(@{@"a" : @1}), nil);
  [controller setPropertyList:storeHolding(@{@"a" : @2, @"b" : @3}, "other.plist")];
  EXPECT_TRUE(same([controller values], (@{@"a" : @1, @"b" : @3})));
}

TEST_F(PropertyListController, HearsOfSavesOfItsOwnStoreOnly) {
  HXPropertyList *first = storeHolding(@{}), *second = storeHolding(@{}, "other.plist");
  HXPropertyListController *controller = controllerWith(first, nil);
  [controller setPropertyList:second];
  [[controller values] setObject:@1 forKey:@"a"];
  [[second values] setObject:@1 forKey:@"a"];
  Lines lines;
  OvTestController *watched = [[[OvTestController alloc] initWithPropertyList:first
                                                                initialValues:nil] autorelease];
  [watched setPropertyList:second];
  watched->lines = &lines;
  EXPECT_TRUE([first saveChanges]);
  EXPECT_EQ(lines, Lines{});
  EXPECT_TRUE([second saveChanges]);
  EXPECT_EQ(lines, (Lines{"will hasUnsavedChanges", "did hasUnsavedChanges"}));
  EXPECT_FALSE([controller hasUnsavedChanges]);
  lines.clear();
  [watched setPropertyList:nil];
  lines.clear();
  EXPECT_TRUE([second saveChanges]);
  EXPECT_EQ(lines, Lines{});
}

TEST_F(PropertyListController, EditsSurviveOtherDefaults) {
  HXPropertyListController *controller = controllerWith(
      storeHolding(
          @{@"b" : @3}),
      @{@"a" : @1,
        @"b" : @2,
        @"gone" : @0});
  HXPropertyListControllerValues *values = [controller values];
  NSDictionary *defaults = @{@"a" : @10, @"b" : @20, @"new" : @30};
  [controller setInitialValues:defaults];
  EXPECT_EQ([controller values], values);
  EXPECT_TRUE(same([controller initialValues], defaults));
  EXPECT_TRUE(same(values, (@{@"a" : @10, @"b" : @3, @"new" : @30})));
  EXPECT_FALSE([controller hasUnsavedChanges]);
  [controller setInitialValues:nil];
  EXPECT_EQ([controller initialValues], nil);
  EXPECT_TRUE(same(values, @{@"b" : @3}));
  [controller setInitialValues:@{@"b" : @3, @"c" : @4}];
  EXPECT_TRUE(same(values, (@{@"b" : @3, @"c" : @4})));
  EXPECT_TRUE([controller hasUnsavedChanges]) << "b is a default now and would not be stored";
}

TEST_F(PropertyListController, OtherDefaultsAreCopied) {
  HXPropertyListController *controller = controllerWith(nil, nil);
  NSMutableArray *list = [NSMutableArray arrayWithObject:@1];
  [controller setInitialValues:@{@"list" : list}];
  [list addObject:@2];
  EXPECT_TRUE(same([controller initialValues], @{@"list" : @[ @1 ]}));
  [[[controller values] objectForKey:@"list"] addObject:@3];
  EXPECT_TRUE(same([controller initialValues], @{@"list" : @[ @1 ]}));
  EXPECT_TRUE(same([controller values], (@{@"list" : @[ @1, @3 ]})));
}

TEST_F(PropertyListController, AnEditThatCannotBeCopiedSurvivesTheLossOfTheDefaults) {
  HXPropertyListController *controller = controllerWith(nil, @{@"a" : @1});
  [[controller values] addEntriesFromDictionary:badDictionary()];
  LogCapture log;
  [controller setInitialValues:nil];
  EXPECT_TRUE(tellsOfFailedCopy(log, "mutable"));
  EXPECT_TRUE(same([controller values], badDictionary()));
}

TEST_F(PropertyListController, TheSameStoreOrDefaultsChangeNothing) {
  HXPropertyList *store = storeHolding(@{});
  OvTestController *controller = [[[OvTestController alloc] initWithPropertyList:store
                                                                   initialValues:@{
                                                                     @"a" : @1
                                                                   }] autorelease];
  Lines lines;
  controller->lines = &lines;
  [[store values] setObject:@9 forKey:@"a"];
  [controller setPropertyList:store];
  [controller setInitialValues:[controller initialValues]];
  EXPECT_TRUE(same([controller values], @{@"a" : @1}));
  EXPECT_EQ(lines, Lines{});
}

// MARK: Announcements

TEST_F(PropertyListController, AnnouncesInOrder) {
  OvTestController *controller = [[[OvTestController alloc] initWithPropertyList:storeHolding(@{})
                                                                   initialValues:@{
                                                                     @"a" : @1
                                                                   }] autorelease];
  Lines lines;
  controller->lines = &lines;
  const Lines edited = {"will hasUnsavedChanges", "did hasUnsavedChanges"};
  const Lines replaced = {"will values", "will hasUnsavedChanges", "did hasUnsavedChanges",
                          "did values"};
  const Lines reverted = {"will hasUnsavedChanges", "will values", "will hasUnsavedChanges",
                          "did hasUnsavedChanges",  "did values",  "did hasUnsavedChanges"};
  auto linesOf = [&](const std::function<void()> &action) {
    lines.clear();
    action();
    return lines;
  };
  EXPECT_EQ(linesOf([&] { [[controller values] setObject:@2 forKey:@"a"]; }), edited);
  EXPECT_EQ(linesOf([&] { [[controller values] removeObjectForKey:@"absent"]; }), edited);
  EXPECT_EQ(
      linesOf([&] { [controller propertyListControllerValues:nil didChangeValuesForKeys:nil]; }),
      edited);
  EXPECT_EQ(linesOf([&] { [controller save:nil]; }),
            (Lines{"will hasUnsavedChanges", "will hasUnsavedChanges", "did hasUnsavedChanges",
                   "did hasUnsavedChanges"}));
  EXPECT_EQ(linesOf([&] { [controller revert:nil]; }), reverted);
  EXPECT_EQ(linesOf([&] { [controller revertToInitialValues:nil]; }), reverted);
  EXPECT_EQ(linesOf([&] { [controller setInitialValues:nil]; }), replaced);
  EXPECT_EQ(linesOf([&] { [controller setPropertyList:nil]; }), replaced);
  // Nothing is replaced, and it is announced all the same.
  EXPECT_EQ(
      linesOf([&] { [controller revertToInitialValues:nil]; }),
      (Lines{"will hasUnsavedChanges", "will values", "did values", "did hasUnsavedChanges"}));
  EXPECT_EQ(linesOf([&] { [controller save:nil]; }), edited);
}

// MARK: Reverting

TEST_F(PropertyListController, RevertThrowsEditsAway) {
  HXPropertyList *store = storeHolding(@{@"b" : @3});
  HXPropertyListController *controller = controllerWith(store, @{@"a" : @1, @"b" : @2});
  HXPropertyListControllerValues *values = [controller values];
  [values setDictionary:@{@"a" : @7, @"x" : @8}];
  [[store values] setObject:@9 forKey:@"a"];
  [controller revert:@"any sender"];
  EXPECT_EQ([controller values], values);
  EXPECT_TRUE(same(values, (@{@"a" : @1, @"b" : @3})));
  EXPECT_TRUE(same([store values], @{@"b" : @3})) << "its changes are discarded, too";
  EXPECT_FALSE([controller hasUnsavedChanges]);
  EXPECT_TRUE(same(stored(), @{@"b" : @3}));

  [controller setInitialValues:nil];
  [values setDictionary:@{@"a" : @7}];
  [controller revert:nil];
  EXPECT_TRUE(same(values, @{@"b" : @3}));
}

TEST_F(PropertyListController, RevertWithoutAStoreLeavesTheDefaultsOrNothing) {
  HXPropertyListController *controller = controllerWith(nil, @{@"a" : @1});
  [[controller values] setDictionary:@{@"x" : @8}];
  [controller revert:nil];
  EXPECT_TRUE(same([controller values], @{@"a" : @1}));
  controller = controllerWith(nil, nil);
  [[controller values] setDictionary:@{@"x" : @8}];
  [controller revert:nil];
  EXPECT_TRUE(same([controller values], @{}));
}

TEST_F(PropertyListController, RevertToInitialValuesIsAnEdit) {
  HXPropertyListController *controller = controllerWith(
      storeHolding(
          @{@"b" : @3,
            @"c" : @4}),
      @{@"a" : @1,
        @"b" : @2});
  [controller revertToInitialValues:@"any sender"];
  EXPECT_TRUE(same([controller values], (@{@"a" : @1, @"b" : @2})));
  EXPECT_TRUE([controller hasUnsavedChanges]);
  EXPECT_TRUE(same([[controller propertyList] values], (@{@"b" : @3, @"c" : @4})));
  EXPECT_TRUE(same(stored(), (@{@"b" : @3, @"c" : @4})));
  [controller save:nil];
  EXPECT_TRUE(same(stored(), @{}));
  EXPECT_FALSE([controller hasUnsavedChanges]);
}

TEST_F(PropertyListController, RevertToInitialValuesWithoutDefaultsLeavesTheValues) {
  HXPropertyListController *controller = controllerWith(storeHolding(@{@"b" : @3}), nil);
  [[controller values] setObject:@1 forKey:@"a"];
  [controller revertToInitialValues:nil];
  EXPECT_TRUE(same([controller values], (@{@"a" : @1, @"b" : @3})));
}

// The values against a plain model, over random edits and actions.
TEST_F(PropertyListController, FollowsAModel) {
  Random random;
  SCOPED_TRACE(random.describe());
  NSArray *names = @[ @"a", @"b", @"c", @"d" ];
  auto someValues = [&] {
    NSMutableDictionary *some = [NSMutableDictionary dictionary];
    for (NSString *name in names) {
      if (random.oneIn(2)) [some setObject:@(random.integer(0, 2)) forKey:name];
    }
    return some;
  };
  NSDictionary *defaults = someValues(), *onDisk = someValues();
  HXPropertyListController *controller = controllerWith(storeHolding(onDisk), defaults);
  NSMutableDictionary *model = [NSMutableDictionary dictionaryWithDictionary:defaults];
  [model addEntriesFromDictionary:onDisk];
  for (int step = 0; step < 400; ++step) {
    SCOPED_TRACE(step);
    NSDictionary *edits = [model differencesFromDictionary:defaults];
    NSString *name = [names objectAtIndex:NSUInteger(random.integer(0, 3))];
    switch (random.integer(0, 6)) {
      case 0:
        [[controller values] removeObjectForKey:name];
        [model removeObjectForKey:name];
        break;
      case 1:
        [controller save:nil];
        onDisk = edits;
        break;
      case 2:
        [controller revert:nil];
        [model setDictionary:defaults];
        [model addEntriesFromDictionary:onDisk];
        break;
      case 3:
        [controller revertToInitialValues:nil];
        [model setDictionary:defaults];
        break;
      case 4:
        defaults = someValues();
        [controller setInitialValues:defaults];
        [model setDictionary:defaults];
        [model addEntriesFromDictionary:edits];
        break;
      default: {
        NSNumber *value = @(random.integer(0, 2));
        [[controller values] setObject:value forKey:name];
        [model setObject:value forKey:name];
      }
    }
    ASSERT_TRUE(same([controller values], model));
    ASSERT_TRUE(same(stored(), onDisk));
    ASSERT_EQ(bool([controller hasUnsavedChanges]),
              ![[model differencesFromDictionary:defaults] isEqual:onDisk]);
  }
}

}  // namespace
