// Layouts as property lists and in the user defaults, whole and damaged.

#import "SplitTest.h"

#include <cmath>
#include <limits>

using namespace ov::test;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

class SavedLayout : public SplitTest {
 protected:
  void SetUp() override {
    SplitTest::SetUp();
    [OvSplitView removeLayoutUsingName:kName];
  }
  void TearDown() override {
    [OvSplitView removeLayoutUsingName:kName];
    SplitTest::TearDown();
  }

  static NSDictionary *entry(id frame, id collapsed) {
    NSMutableDictionary *entry = [NSMutableDictionary dictionary];
    if (frame != nil) [entry setObject:frame forKey:@"Subview Frame"];
    if (collapsed != nil) [entry setObject:collapsed forKey:@"Subview Collapsed"];
    return entry;
  }
  static NSDictionary *layout(NSArray *entries, id version = @1, id vertical = nil) {
    NSMutableDictionary *layout = [NSMutableDictionary dictionaryWithObject:version
                                                                     forKey:@"Format Version"];
    if (vertical != nil) [layout setObject:vertical forKey:@"SplitView IsVertical"];
    if (entries != nil) [layout setObject:entries forKey:@"Subviews"];
    return layout;
  }

  // A view of one pane that keeps the frames it is given.
  OvSplitView *makeUnlaid(NSDictionary *saved) {
    OvSplitView *split = [[[OvSplitView alloc] initWithFrame:NSMakeRect(0, 0, 0, 0)] autorelease];
    [split addSubview:[[[NSView alloc] initWithFrame:NSZeroRect] autorelease]];
    [split setLayoutFromString:saved];
    return split;
  }

  NSString *const kName = @"SavedLayoutTest";
  NSString *const kKey = @"OvSplitView layout SavedLayoutTest";
  NSNumber *const kYes = [NSNumber numberWithBool:YES];
  NSNumber *const kNo = [NSNumber numberWithBool:NO];
};

TEST_F(SavedLayout, IsADictionaryOfWhatThereIs) {
  OvSplitView *split = makeSplit({96, 96, 96});
  [split setSubviewAtIndex:1 isCollapsed:YES];
  NSMutableDictionary *saved = [split stringWithSavedLayout];
  EXPECT_EQ([saved count], 3U);
  EXPECT_EQ([[saved objectForKey:@"Format Version"] intValue], 1);
  EXPECT_EQ([[saved objectForKey:@"SplitView IsVertical"] boolValue], YES);
  NSArray *entries = [saved objectForKey:@"Subviews"];
  ASSERT_EQ([entries count], 3U);
  const char *frames[] = {"{{0, 0}, {144, 200}}", "{{1000000, 1000000}, {96, 200}}",
                          "{{156, 0}, {144, 200}}"};
  for (NSUInteger i = 0; i < 3; ++i) {
    NSDictionary *one = [entries objectAtIndex:i];
    EXPECT_EQ([one count], 2U);
    EXPECT_STREQ([[one objectForKey:@"Subview Frame"] UTF8String], frames[i]);
    EXPECT_EQ([[one objectForKey:@"Subview Collapsed"] boolValue], i == 1);
  }
  [saved removeAllObjects];  // it is the caller's
  EXPECT_EQ([[split stringWithSavedLayout] count], 3U);
  [split setVertical:NO];
  EXPECT_EQ([[[split stringWithSavedLayout] objectForKey:@"SplitView IsVertical"] boolValue], NO);
  EXPECT_EQ([[[makeSplit({}) stringWithSavedLayout] objectForKey:@"Subviews"] count], 0U);
}

// Whatever the platform's own reader is set to; and by the view to the last digit.
TEST_F(SavedLayout, RectanglesAreReadByThePlatform) {
  OvSplitView *split = makeSplit({147, 147});
  Random random;
  SCOPED_TRACE(random.describe());
  NSUserDefaults *defaults = [NSUserDefaults standardUserDefaults];
  for (BOOL compatible : {NO, YES}) {
    [defaults setBool:compatible forKey:@"GSMacOSXCompatible"];
    [[NSNotificationCenter defaultCenter] postNotificationName:NSUserDefaultsDidChangeNotification
                                                        object:defaults];
    for (int i = 0; i < 500; ++i) {
      const NSRect frame = NSMakeRect(random.real(-2e6, 2e6), random.real(-1, 1) / 3,
                                      random.real(0, 5000), random.integer(0, 5000));
      [pane(split, 0) setFrame:frame];
      NSString *text = [[[[split stringWithSavedLayout] objectForKey:@"Subviews"] objectAtIndex:0]
          objectForKey:@"Subview Frame"];
      const NSRect read = NSRectFromString(text);
      // It is not exact itself.
      for (auto [a, b] :
           {std::pair(read.origin.x, frame.origin.x), std::pair(read.origin.y, frame.origin.y),
            std::pair(read.size.width, frame.size.width),
            std::pair(read.size.height, frame.size.height)}) {
        ASSERT_NEAR(a, b, std::abs(b) * 4 * std::numeric_limits<CGFloat>::epsilon())
            << [text UTF8String];
      }
      NSDictionary *saved = [split stringWithSavedLayout];
      OvSplitView *other = makeUnlaid(saved);
      ASSERT_EQ([pane(other, 0) frame], frame) << [text UTF8String];
    }
  }
  [defaults removeObjectForKey:@"GSMacOSXCompatible"];
}

TEST_F(SavedLayout, RectanglesOfThePlatformAreRead) {
  OvSplitView *split = makeSplit({147, 147});
  [split setLayoutFromString:layout(@[
           entry(@"{x = 0; y = 0; width = 100; height = 200}", kNo),
           entry(@"{{106, 0}, {194, 200}}", kNo)
         ])];
  EXPECT_EQ(spans(split), "0+100 106+194");
}

TEST_F(SavedLayout, ComesBackAsItWas) {
  OvSplitView *split = makeSplit({48, 96, 144});
  [split setSubviewAtIndex:2 isCollapsed:YES];
  NSDictionary *saved = [split stringWithSavedLayout];
  [split setVertical:NO];
  [split setSubviewAtIndex:2 isCollapsed:NO];
  [split setSubviewAtIndex:0 isCollapsed:YES];
  delegate->has = {"splitViewWillExpandSubview:", "splitViewDidExpandSubview:",
                   "splitViewWillCollapseSubview:", "splitViewDidCollapseSubview:"};
  [split setDelegate:delegate];
  journal().clear();
  [split setLayoutFromString:saved];
  EXPECT_TRUE([split isVertical]);
  EXPECT_THAT(journal(),
              ElementsAre("willExpand 0", "didExpand 0", "willCollapse 2", "didCollapse 2"));
  EXPECT_FALSE([split isSubviewCollapsedAtIndex:0]);
  EXPECT_TRUE([split isSubviewCollapsedAtIndex:2]);
}

// Each change of a state lays out, with what the panes have then.
TEST_F(SavedLayout, PaneAfterPaneIsSet) {
  OvSplitView *split = makeSplit({48, 96, 144});
  OvSplitView *other = makeSplit({48, 96, 144});
  for (OvSplitView *each : {split, other}) [each setSubviewAtIndex:1 isCollapsed:YES];
  srand(1);
  [split setLayoutFromString:layout(@[
           entry(@"{{0, 0}, {30, 10}}", kYes), entry(@"{{0, 0}, {20, 10}}", kNo),
           entry(@"{{0, 0}, {70, 10}}", kNo)
         ])];
  srand(1);
  [pane(other, 0) setFrame:NSMakeRect(0, 0, 30, 10)];
  [other setSubviewAtIndex:0 isCollapsed:YES];
  [pane(other, 1) setFrame:NSMakeRect(0, 0, 20, 10)];
  [other setSubviewAtIndex:1 isCollapsed:NO];
  [pane(other, 2) setFrame:NSMakeRect(0, 0, 70, 10)];
  [other resizeSubviewsWithOldSize:[other bounds].size];
  EXPECT_EQ(spans(split), spans(other));
}

TEST_F(SavedLayout, FramesAreProportions) {
  OvSplitView *split = makeSplit({98, 196});
  NSDictionary *saved = [split stringWithSavedLayout];
  [split setFrameSize:NSMakeSize(594, 100)];
  [pane(split, 0) setFrame:NSMakeRect(0, 0, 10, 10)];
  [split setLayoutFromString:saved];
  EXPECT_EQ([split frame].size, NSMakeSize(594, 100));
  EXPECT_EQ([pane(split, 0) frame], NSMakeRect(0, 0, 196, 100));
  EXPECT_EQ([pane(split, 1) frame], NSMakeRect(202, 0, 392, 100));
  EXPECT_THAT(dividers(split), ElementsAre(NSMakeRect(196, 0, 6, 100)));
}

TEST_F(SavedLayout, OfThreePanesSetsTheFirstTwo) {
  NSDictionary *saved = [makeSplit({48, 96, 144}) stringWithSavedLayout];
  OvSplitView *split = makeSplit({147, 147});
  [split setLayoutFromString:saved];
  EXPECT_EQ(spans(split), "0+98 104+196");
}

TEST_F(SavedLayout, OfTwoPanesLeavesTheThird) {
  NSDictionary *saved = [makeSplit({98, 196}) stringWithSavedLayout];
  OvSplitView *split = makeSplit({96, 96, 96}, true, 402);
  ASSERT_EQ(spans(split), "0+130 136+130 272+130");
  [split setLayoutFromString:saved];
  // 98, 196 and 130 of 424; there are 390.
  EXPECT_NEAR(NSWidth([pane(split, 2) frame]), 119, 1);
}

TEST_F(SavedLayout, OfAnotherVersionChangesNothingButIsFollowedByALayout) {
  OvSplitView *split = makeSplit({147, 147});
  NSArray *entries = @[ entry(@"{{0, 0}, {10, 10}}", kYes), entry(@"{{0, 0}, {10, 10}}", kYes) ];
  for (id argument : {
         (id) layout(entries, @2, kNo), (id)layout(entries, @0, kNo), (id)layout(entries, @"", kNo),
             (id)layout(entries, @[], kNo), (id)layout(entries, [NSNull null], kNo), (id) @{},
             (id)entries, (id) @"Format Version", (id) @1, (id)[NSNull null], (id)nil
       }) {
    NotificationCount did(NSSplitViewDidResizeSubviewsNotification, split);
    [split setLayoutFromString:argument];
    EXPECT_EQ(did.count(), 1);
    EXPECT_TRUE([split isVertical]);
    EXPECT_EQ(spans(split), "0+147 153+147");
    EXPECT_FALSE([split isSubviewCollapsedAtIndex:0]);
  }
}

TEST_F(SavedLayout, NumbersMayBeText) {
  OvSplitView *split = makeSplit({147, 147});
  [split setLayoutFromString:layout(
                                 @[
                                   entry(@"{{0, 0}, {98, 10}}", @"0"),
                                   entry(@"{{0, 0}, {196, 10}}", @"NO")
                                 ],
                                 @"1", @"YES")];
  EXPECT_EQ(spans(split), "0+98 104+196");
}

TEST_F(SavedLayout, WhatCannotBeReadIsLeftOut) {
  NSDate *date = [NSDate date];
  NSData *data = [NSData dataWithBytes:"x" length:1];
  const unichar halves[] = {0xD800, '1', 0xDC00};
  NSString *broken = [NSString stringWithCharacters:halves length:3];
  // Each with a frame that would change the layout if it were read.
  const std::vector<id> odd = {
    entry(nil, nil),
    entry(@"", nil),
    entry(@"{{0, 0}, {10}}", nil),
    entry(@"{{nan, 0}, {10, 10}}", nil),
    entry(@"{{0, 0}, {inf, 10}}", nil),
    entry(@"{{0, 0}, {1e999, 10}}", nil),
    entry(broken, nil),
    entry(@7, nil),
    entry(@[ @"{{0, 0}, {10, 10}}" ], nil),
    entry(data, nil),
    entry(date, date),
    entry(nil, @[]),
    entry(nil, @{}),
    entry(nil, [NSNull null]),
    [[@"{{0, 0}, {10, 10}}{{" stringByPaddingToLength:100000 withString:@"{"
                                      startingAtIndex:0] description],
    @1,
    @"{{0, 0}, {10, 10}}",
    @[],
    [NSNull null],
    data
  };
  for (id one : odd) {
    OvSplitView *split = makeSplit({147, 147});
    [split setLayoutFromString:layout(@[ one, one ])];
    EXPECT_EQ(spans(split), "0+147 153+147") << [[one description] UTF8String];
    EXPECT_FALSE([split isSubviewCollapsedAtIndex:0]);
    EXPECT_TRUE([split isVertical]) << "no orientation, no change";
  }
  for (id entries : odd) {
    OvSplitView *split = makeSplit({147, 147});
    [split setLayoutFromString:[NSDictionary
                                   dictionaryWithObjectsAndKeys:@1, @"Format Version", entries,
                                                                @"Subviews", entries,
                                                                @"SplitView IsVertical", nil]];
    EXPECT_EQ(dividers(split).size(), 1U);
  }
  // The readable half of an entry counts.
  OvSplitView *split = makeSplit({147, 147});
  [split setLayoutFromString:layout(@[ entry(@[], kYes), entry(@"{{0, 0}, {5, 5}}", date) ])];
  EXPECT_TRUE([split isSubviewCollapsedAtIndex:0]);
  EXPECT_EQ([pane(split, 1) frame], NSMakeRect(6, 0, 294, 200));
}

TEST_F(SavedLayout, ImpossibleSizesAreSurvived) {
  LogCapture log;  // the platform complains of negative sizes
  for (NSString *frame :
       {@"{{0, 0}, {-50, -50}}", @"{{1e308, -1e308}, {1e308, 1e308}}", @"{{0, 0}, {0, 0}}",
        @"{{0, 0}, {4294967296, 1}}", @"{{5e-324, 0}, {5e-324, 1}}"}) {
    OvSplitView *split = makeSplit({147, 147});
    [split setLayoutFromString:layout(@[ entry(frame, kNo), entry(frame, kNo) ])];
    [split setFrameSize:NSMakeSize(400, 100)];
    EXPECT_THAT(dividers(split), SizeIs(1));
    for (NSUInteger i = 0; i < 2; ++i) {
      EXPECT_LE(NSWidth([pane(split, i) frame]), 400) << [frame UTF8String];
    }
  }
}

TEST_F(SavedLayout, AMillionEntriesAreSurvived) {
  NSMutableArray *entries = [NSMutableArray arrayWithCapacity:1000000];
  NSDictionary *one = entry(@"{{0, 0}, {10, 10}}", kNo);
  for (int i = 0; i < 1000000; ++i) [entries addObject:one];
  OvSplitView *split = makeSplit({48, 96, 144});
  [split setLayoutFromString:layout(entries)];
  EXPECT_EQ(spans(split), "0+96 102+96 204+96");
}

TEST_F(SavedLayout, IsStoredUnderItsName) {
  OvSplitView *split = makeSplit({98, 196});
  EXPECT_TRUE([[OvSplitView _userDefaultsKeyForName:@"A"] isEqual:@"OvSplitView layout A"]);
  EXPECT_FALSE([split setLayoutUsingName:kName]) << "nothing stored";
  [split saveLayoutUsingName:kName];
  id stored = [[NSUserDefaults standardUserDefaults] objectForKey:kKey];
  EXPECT_TRUE([stored isEqual:[split stringWithSavedLayout]]);
  OvSplitView *other = makeSplit({147, 147});
  EXPECT_TRUE([other setLayoutUsingName:kName]);
  EXPECT_EQ(spans(other), "0+98 104+196");
  [OvSplitView removeLayoutUsingName:kName];
  EXPECT_EQ([[NSUserDefaults standardUserDefaults] objectForKey:kKey], nil);
  EXPECT_FALSE([other setLayoutUsingName:kName]);
}

TEST_F(SavedLayout, SurvivesTheFileOfTheDefaults) {
  OvSplitView *split = makeSplit({98, 196});
  [split setSubviewAtIndex:1 isCollapsed:YES];
  id saved = [split stringWithSavedLayout];
  for (NSPropertyListFormat format : {NSPropertyListXMLFormat_v1_0, NSPropertyListBinaryFormat_v1_0,
                                      NSPropertyListOpenStepFormat, NSPropertyListGNUstepFormat}) {
    NSString *error = nil;
    NSData *data = [NSPropertyListSerialization dataFromPropertyList:saved
                                                              format:format
                                                    errorDescription:&error];
    ASSERT_NE(data, nil) << format;
    id read = [NSPropertyListSerialization propertyListFromData:data
                                               mutabilityOption:NSPropertyListImmutable
                                                         format:nullptr
                                               errorDescription:&error];
    OvSplitView *other = makeSplit({147, 147});
    [other setLayoutFromString:read];
    EXPECT_TRUE([other isSubviewCollapsedAtIndex:1]) << format;
    EXPECT_EQ([pane(other, 1) frame].size, NSMakeSize(196, 200)) << format;
  }
}

TEST_F(SavedLayout, AnyStoredValueIsSurvived) {
  NSUserDefaults *defaults = [NSUserDefaults standardUserDefaults];
  for (id value : { (id) @"text", (id) @1, (id) @[ @1 ], (id) @{@"Format Version" : @"one"} }) {
    [defaults setObject:value forKey:kKey];
    OvSplitView *split = makeSplit({147, 147});
    EXPECT_TRUE([split setLayoutUsingName:kName]) << "there is one";
    EXPECT_EQ(spans(split), "0+147 153+147");
  }
}

TEST_F(SavedLayout, NilAndEmptyNames) {
  OvSplitView *split = makeSplit({147, 147});
  [split saveLayoutUsingName:nil];
  EXPECT_FALSE([split setLayoutUsingName:nil]);
  [OvSplitView removeLayoutUsingName:nil];
  [split saveLayoutUsingName:@""];
  EXPECT_NE([[NSUserDefaults standardUserDefaults] objectForKey:@"OvSplitView layout "], nil);
  EXPECT_TRUE([split setLayoutUsingName:@""]);
  [OvSplitView removeLayoutUsingName:@""];
  EXPECT_FALSE([split setLayoutUsingName:@""]);
}

}  // namespace
