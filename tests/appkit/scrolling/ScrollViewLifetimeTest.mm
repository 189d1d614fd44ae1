// What lives longer than what: content views and scrollers without their scroll view, delegates
// that let go of it, documents that go.

#import "ScrollViewTest.h"

using namespace ov::test;
using testing::ElementsAre;

static int scrollViewDeaths;

@interface OvTestMortalScrollView : HXScrollView
@end
@implementation OvTestMortalScrollView
- (void)dealloc {
  scrollViewDeaths++;
  [super dealloc];
}
@end

namespace {

class ScrollViewLifetime : public ScrollViewTest {
 protected:
  void SetUp() override {
    ScrollViewTest::SetUp();
    scrollViewDeaths = 0;
  }

  // In a window, owned by it alone. Its scrollers tell.
  HXScrollView *makeMortal() {
    HXScrollView *scroll =
        [[OvTestMortalScrollView alloc] initWithFrame:NSMakeRect(10, 20, 200, 150)];
    @autoreleasepool {
      [scroll setHasVerticalScroller:YES];
      [scroll setHasHorizontalScroller:YES];
      [(HXScroller *)[scroll verticalScroller] setDelegate:scroll];
      [(HXScroller *)[scroll horizontalScroller] setDelegate:scroll];
      [scroll setDocumentView:[[[OvTestDocument alloc] initWithFrame:NSMakeRect(0, 0, 600, 500)]
                                  autorelease]];
      host(scroll);
      [scroll release];
    }
    return scroll;
  }
};

TEST_F(ScrollViewLifetime, AContentViewThatStaysHasNoObserver) {
  HXScrollView *scroll = makeMortal();
  NSClipView *content = [[scroll contentView] retain];
  [scroll removeFromSuperview];
  drainPool();
  ASSERT_EQ(scrollViewDeaths, 1);
  [content scrollToPoint:NSMakePoint(10, 20)];
  EXPECT_EQ([content bounds].origin, NSMakePoint(10, 20));
  [content release];
  EXPECT_THAT(delegate->lines, ElementsAre());
}

TEST_F(ScrollViewLifetime, ScrollersThatStayTellNobody) {
  HXScrollView *scroll = makeMortal();
  NSWindow *window = [scroll window];
  HXScroller *scroller = [(HXScroller *)[scroll verticalScroller] retain];
  [scroll removeFromSuperview];
  drainPool();
  ASSERT_EQ(scrollViewDeaths, 1);
  EXPECT_EQ([scroller delegate], nil);
  EXPECT_EQ([scroller target], nil);
  [[window contentView] addSubview:scroller];
  EXPECT_TRUE(dragKnob(scroller, {10}));
  EXPECT_THAT(delegate->lines, ElementsAre());
  [scroller removeFromSuperview];
  [scroller release];
}

TEST_F(ScrollViewLifetime, NoOtherNotificationComesAfterwards) {
  HXScrollView *scroll = makeMortal();
  [[NSNotificationCenter defaultCenter] addObserver:scroll
                                           selector:@selector(contentBoundsDidChange:)
                                               name:@"OvTestOther"
                                             object:nil];
  [scroll removeFromSuperview];
  drainPool();
  ASSERT_EQ(scrollViewDeaths, 1);
  [[NSNotificationCenter defaultCenter] postNotificationName:@"OvTestOther" object:nil];
}

class ScrollViewLettingGo : public ScrollViewLifetime,
                            public testing::WithParamInterface<std::pair<const char *, bool>> {};

INSTANTIATE_TEST_SUITE_P(Calls, ScrollViewLettingGo,
                         testing::Values(std::pair{"will v 2", true}, std::pair{"scroll", true},
                                         std::pair{"did v 2", true}, std::pair{"will v 5", false},
                                         std::pair{"did v 5", false}),
                         [](const auto &info) {
                           std::string name = info.param.first;
                           std::erase(name, ' ');
                           return name;
                         });

// The delegate closes what it was told of.
TEST_P(ScrollViewLettingGo, TheScrollViewLivesUntilTheEventIsOver) {
  const auto [line, drag] = GetParam();
  HXScrollView *scroll = makeMortal();
  NSScroller *scroller = [scroll verticalScroller];
  bool gone = false;
  delegate->onLine = [&, line = std::string(line)](const std::string &told) {
    if (told != line) return;
    gone = true;
    @autoreleasepool {
      [scroll removeFromSuperview];
    }
    EXPECT_EQ(scrollViewDeaths, 0);
  };
  @autoreleasepool {
    if (drag) {
      dragKnob(scroller, {10, 20});
    } else {
      pressPart(scroller, NSScrollerIncrementLine);
    }
  }
  delegate->onLine = nullptr;
  EXPECT_TRUE(gone);
  drainPool();
  EXPECT_EQ(scrollViewDeaths, 1);
}

// Nobody is told before the content scrolls.
TEST_F(ScrollViewLifetime, AScrollViewWhoseScrollersTellNothingLivesAsLong) {
  HXScrollView *scroll = makeMortal();
  NSScroller *scroller = [scroll verticalScroller];
  [(HXScroller *)scroller setDelegate:nil];
  bool gone = false;
  delegate->onLine = [&](const std::string &) {
    gone = true;
    @autoreleasepool {
      [scroll removeFromSuperview];
    }
    EXPECT_EQ(scrollViewDeaths, 0);
  };
  @autoreleasepool {
    dragKnob(scroller, {10, 20});
  }
  delegate->onLine = nullptr;
  EXPECT_TRUE(gone);
  drainPool();
  EXPECT_EQ(scrollViewDeaths, 1);
}

TEST_F(ScrollViewLifetime, TheDelegateMayGoInItsOwnCall) {
  HXScrollView *scroll = makeMortal();
  for (const char *line : {"will v 2", "scroll", "did v 2"}) {
    SCOPED_TRACE(line);
    [scroll setDelegate:nil];
    auto *mortal = [[OvTestScrollDelegate alloc] init];
    [scroll setDelegate:mortal];
    bool gone = false;
    mortal->onLine = [&gone, scroll, mortal, line = std::string(line)](const std::string &told) {
      if (told != line || gone) return;
      gone = true;
      [scroll setDelegate:nil];
      [mortal autorelease];
    };
    const CGFloat step = scrolledDown(scroll) > 0 ? -30 : 30;
    EXPECT_TRUE(dragKnob([scroll verticalScroller], { step }));
    EXPECT_TRUE(gone);
  }
}

TEST_F(ScrollViewLifetime, ScrollersAreWorkedWithoutADocument) {
  HXScrollView *scroll = makeMortal();
  [scroll setDocumentView:nil];
  NSScroller *scroller = [scroll verticalScroller];
  const NSRect bounds = [[scroll contentView] bounds];
  for (int i = 0; i < 3; ++i) [scroller sendAction:[scroller action] to:[scroller target]];
  EXPECT_EQ([[scroll contentView] bounds], bounds);
}

TEST_F(ScrollViewLifetime, TheDocumentMayGoWhileTheKnobIsDragged) {
  HXScrollView *scroll = makeMortal();
  delegate->onLine = [&](const std::string &line) {
    if (line == "scroll") [scroll setDocumentView:nil];
  };
  EXPECT_TRUE(dragKnob([scroll verticalScroller], { 10, 20, 30 }));
  delegate->onLine = nullptr;
  EXPECT_EQ([scroll documentView], nil);
  EXPECT_FALSE([[scroll verticalScroller] isEnabled]);
  EXPECT_EQ(delegate->lines.back(), "did v 2");
}

TEST_F(ScrollViewLifetime, TheScrollerMayGoWhileItIsTracked) {
  HXScrollView *scroll = makeMortal();
  const auto scroller = [[[scroll verticalScroller] retain] autorelease];
  delegate->onLine = [&](const std::string &line) {
    if (line == "scroll") [scroll setVerticalScroller:nil];
  };
  EXPECT_TRUE(dragKnob(scroller, {10, 20, 30}));
  delegate->onLine = nullptr;
  EXPECT_EQ(delegate->lines, (std::vector<std::string>{"will v 2", "scroll"}));
  EXPECT_FALSE([scroll isVerticalScrollerTraking]);
}

TEST_F(ScrollViewLifetime, ScrollViewsDieWithWhatTheyMade) {
  HXScrollView *scroll = makeMortal();
  const auto scroller = [[scroll verticalScroller] retain];
  EXPECT_EQ([scroller superview], scroll);
  [scroll removeFromSuperview];
  drainPool();
  EXPECT_EQ(scrollViewDeaths, 1);
  EXPECT_EQ([scroller retainCount], 1u) << "nobody else keeps it";
  [scroller release];
}

}  // namespace
