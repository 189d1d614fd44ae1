// What is drawn again after a change, and what the scroller says of itself.

#import "ScrollerTest.h"

using namespace ov::test;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

// The slot is 100 long, from 14 on, and the knob 50.
class ScrollerMarks : public ScrollerTest {
 protected:
  void SetUp() override {
    ScrollerTest::SetUp();
    window = showWindow(NSMakeSize(240, 240));
    scroller = make(false);
  }

  OvTestScroller *make(bool horizontal) {
    OvTestScroller *made = makeScroller(window, horizontal, 128);
    [made setAppearance:HXScrollerAppearanceMetal];
    setRecordingParts(made);
    [made setFloatValue:0];
    [window display];
    journal().clear();
    made->isMarking = true;
    return made;
  }

  NSWindow *window;
  OvTestScroller *scroller;
};

TEST_F(ScrollerMarks, AMovedKnobMarksWhereItWasAndIs) {
  [scroller setFloatValue:0.2F];
  EXPECT_THAT(takeJournal(), ElementsAre("marked 0 14 18 60"));
  // Nothing was drawn meanwhile; what it leaves is marked already.
  [scroller setFloatValue:0.4F];
  EXPECT_THAT(takeJournal(), ElementsAre("marked 0 24 18 60"));
  [scroller setDoubleValue:0.4000001];
  EXPECT_THAT(takeJournal(), IsEmpty()) << "by less than a point";
  OvTestScroller *horizontal = make(true);
  [horizontal setFloatValue:1];
  EXPECT_THAT(takeJournal(), ElementsAre("marked 14 0 100 18"));
}

TEST_F(ScrollerMarks, TheDrawnPartHasSlotAndKnobOnly) {
  [scroller setFloatValue:0.2F];
  [scroller displayIfNeeded];
  EXPECT_THAT(takeJournal(),
              ElementsAre("marked 0 14 18 60", "KnobSlot default 0 14 18 100",
                          "KnobBody default 1 29 16 41", "KnobCap_MinEnd default 2 24 14 6",
                          "KnobCap_MaxEnd default 3 69 12 5"));
}

// As a scroll view does it.
TEST_F(ScrollerMarks, AValueFromAScrollViewMarksTheKnobToo) {
  [scroller setFloatValue:0.2F knobProportion:0.5];
  EXPECT_THAT(takeJournal(), ElementsAre("marked 0 14 18 60"));
  [scroller setFloatValue:0.2F knobProportion:0.5];
  EXPECT_THAT(takeJournal(), IsEmpty());
  EXPECT_FLOAT_EQ([scroller floatValue], 0.2F);
}

TEST_F(ScrollerMarks, ANewProportionMarksTheSlot) {
  [scroller setKnobProportion:0.25];
  EXPECT_THAT(takeJournal(), ElementsAre("marked 0 14 18 100"));
}

TEST_F(ScrollerMarks, OddValuesCountAsTheNearestEnd) {
  [scroller setFloatValue:7];
  EXPECT_EQ([scroller floatValue], 1);
  [scroller setFloatValue:-7];
  EXPECT_EQ([scroller floatValue], 0);
  [scroller setDoubleValue:1];
  [scroller setDoubleValue:NAN];
  EXPECT_EQ([scroller doubleValue], 0);
  [scroller setDoubleValue:INFINITY];
  EXPECT_EQ([scroller doubleValue], 1);
}

TEST_F(ScrollerMarks, FollowTheKeyWindow) {
  ASSERT_TRUE([window isKeyWindow]);
  NSWindow *other = showWindow(NSMakeSize(100, 100));
  ASSERT_TRUE(pumpUntil([&] { return [other isKeyWindow]; }));
  EXPECT_THAT(journal(), testing::Contains("marked 0 0 18 128"));
  EXPECT_THAT(journal(), testing::Contains("KnobBody disabled 1 19 16 41")) << "drawn at once";
  journal().clear();
  [window makeKeyAndOrderFront:nil];
  ASSERT_TRUE(pumpUntil([&] { return [window isKeyWindow]; }));
  pumpPending();
  EXPECT_THAT(journal(), testing::Contains("marked 0 0 18 128"));
  EXPECT_THAT(journal(), testing::Contains("KnobBody default 1 19 16 41"));
}

TEST_F(ScrollerMarks, FollowTheWindowTheyAreIn) {
  NSNotificationCenter *center = [NSNotificationCenter defaultCenter];
  const auto tell = [&](NSWindow *about) {
    journal().clear();
    [center postNotificationName:NSWindowDidResignKeyNotification object:about];
    return takeJournal();
  };
  NSWindow *other = makeWindow(NSMakeSize(200, 200));
  EXPECT_THAT(tell(other), IsEmpty());
  [[other contentView] addSubview:scroller];
  EXPECT_THAT(tell(window), IsEmpty());
  EXPECT_THAT(tell(other), ElementsAre("marked 0 0 18 128"));
  [scroller setAppearance:HXScrollerAppearanceDefault];
  EXPECT_THAT(tell(other), IsEmpty()) << "the platform's looks the same";
  [scroller setAppearance:HXScrollerAppearanceMetal];
  [[scroller retain] autorelease];
  [scroller removeFromSuperview];
  EXPECT_THAT(tell(other), IsEmpty());
}

TEST_F(ScrollerMarks, AScrollerThatDiedHearsNothing) {
  HXScroller *other = [[HXScroller alloc] initWithFrame:NSMakeRect(0, 0, 18, 99)];
  [other setAppearance:HXScrollerAppearanceMetal];
  // As if the window went without telling.
  [other viewWillMoveToWindow:window];
  [other release];
  for (NSString *name in @[ NSWindowDidResignKeyNotification, NSWindowDidBecomeKeyNotification ]) {
    [[NSNotificationCenter defaultCenter] postNotificationName:name object:window];
  }
}

TEST_F(ScrollerMarks, EnabledIsWhatWasSet) {
  HXScroller *plain = [[[HXScroller alloc] initWithFrame:NSMakeRect(0, 0, 30, 128)] autorelease];
  EXPECT_FALSE([plain isEnabled]);
  EXPECT_EQ([plain frame].size, NSMakeSize([NSScroller scrollerWidth], 128));
  [plain setEnabled:YES];
  EXPECT_TRUE([plain isEnabled]);
  [plain setKnobProportion:1];
  EXPECT_FALSE([plain isEnabled]);
  [plain setKnobProportion:0.5];
  EXPECT_TRUE([plain isEnabled]);
}

TEST_F(ScrollerMarks, DelegatesAreNotRetained) {
  OvTestDeathCounter *delegate = [[OvTestDeathCounter alloc] init];
  [scroller setDelegate:delegate];
  EXPECT_EQ([scroller delegate], delegate);
  const int before = [OvTestDeathCounter deaths];
  [delegate release];
  EXPECT_EQ([OvTestDeathCounter deaths], before + 1);
  [scroller setDelegate:nil];
  EXPECT_EQ([scroller delegate], nil);
}

TEST_F(ScrollerMarks, ArrowsStandAsThePlatformsDo) {
  NSUserDefaults *defaults = [NSUserDefaults standardUserDefaults];
  EXPECT_EQ([HXScroller _arrowsConfig], 3);
  EXPECT_EQ([NSScroller _arrowsConfig], 3);
  [defaults setBool:NO forKey:@"GSScrollerArrowsSameEnd"];
  EXPECT_EQ([HXScroller _arrowsConfig], 1);
  [defaults removeObjectForKey:@"GSScrollerArrowsSameEnd"];
}

}  // namespace
