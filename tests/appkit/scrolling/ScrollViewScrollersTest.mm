// The scrollers of a scroll view: of which class they are, and that they work.

#import <OvAppKit/OvAppKit.h>

#import "ScrollViewTest.h"

using namespace ov::test;
using testing::ElementsAre;

@interface OvTestOtherScroller : HXScroller
@end
@implementation OvTestOtherScroller
@end

@interface OvTestOtherScrollView : HXScrollView
@end
@implementation OvTestOtherScrollView
+ (Class)_verticalScrollerClass {
  return [OvTestOtherScroller class];
}
@end

// Knows no class of scrollers.
@interface OvTestNoScrollerClassView : HXScrollView
@end
@implementation OvTestNoScrollerClassView
+ (Class)_verticalScrollerClass {
  return Nil;
}
@end

namespace {

class ScrollViewScrollers : public ScrollViewTest {
 protected:
  HXScrollView *bare(Class viewClass = [HXScrollView class]) {
    return [[[viewClass alloc] initWithFrame:NSMakeRect(0, 0, 200, 150)] autorelease];
  }
  void setDocument(NSScrollView *scroll, NSSize size) {
    [scroll
        setDocumentView:[[[OvTestDocument alloc]
                            initWithFrame:NSMakeRect(0, 0, size.width, size.height)] autorelease]];
  }
};

TEST_F(ScrollViewScrollers, ANewScrollViewHasNone) {
  HXScrollView *scroll = bare();
  EXPECT_EQ([scroll horizontalScroller], nil);
  EXPECT_EQ([scroll verticalScroller], nil);
  EXPECT_FALSE([scroll hasHorizontalScroller]);
  EXPECT_FALSE([scroll hasVerticalScroller]);
  EXPECT_FALSE([scroll isHorizontalScrollerTraking]);
  EXPECT_FALSE([scroll isVerticalScrollerTraking]);
  EXPECT_EQ([scroll delegate], nil);
}

TEST_F(ScrollViewScrollers, TheClassesAreAnswered) {
  EXPECT_EQ([HXScrollView _horizontalScrollerClass], [HXScroller class]);
  EXPECT_EQ([HXScrollView _verticalScrollerClass], [HXScroller class]);
}

TEST_F(ScrollViewScrollers, ThoseItMakesAreOursWithoutDelegate) {
  HXScrollView *scroll = bare();
  [scroll setHasVerticalScroller:YES];
  EXPECT_EQ([scroll horizontalScroller], nil);
  [scroll setHasHorizontalScroller:YES];
  for (NSScroller *scroller in @[ [scroll horizontalScroller], [scroll verticalScroller] ]) {
    EXPECT_EQ([scroller class], [HXScroller class]);
    EXPECT_EQ([(HXScroller *)scroller delegate], nil);
    EXPECT_EQ([scroller hitPart], NSScrollerNoPart);
  }
  EXPECT_EQ(layoutFault(scroll), "");
}

TEST_F(ScrollViewScrollers, TheySpanTheScrollView) {
  HXScrollView *scroll = bare();
  [scroll setHasVerticalScroller:YES];
  [scroll setHasHorizontalScroller:YES];
  const CGFloat thickness = [NSScroller scrollerWidth];
  EXPECT_EQ(NSWidth([[scroll verticalScroller] frame]), thickness);
  EXPECT_EQ(NSHeight([[scroll verticalScroller] frame]), 150);
  EXPECT_EQ(NSHeight([[scroll horizontalScroller] frame]), thickness);
  EXPECT_GT(NSWidth([[scroll horizontalScroller] frame]), 170);
}

// Images are chosen for the direction that a scroller has when it gets its appearance.
TEST_F(ScrollViewScrollers, AHorizontalOneLiesFromTheStart) {
  HXScrollView *scroll = bare();
  [scroll setHasHorizontalScroller:YES];
  NSScroller *scroller = [scroll horizontalScroller];
  EXPECT_EQ([scroller floatValue], 0) << "those that stand begin at 1 on this platform";
}

TEST_F(ScrollViewScrollers, TheSameOneComesBack) {
  HXScrollView *scroll = bare();
  [scroll setHasVerticalScroller:YES];
  NSScroller *scroller = [scroll verticalScroller];
  [scroll setHasVerticalScroller:NO];
  EXPECT_EQ([scroller superview], nil);
  EXPECT_EQ(layoutFault(scroll), "");
  EXPECT_EQ([scroll contentSize], NSMakeSize(200, 150));
  [scroll setHasVerticalScroller:YES];
  EXPECT_EQ([scroll verticalScroller], scroller);
  EXPECT_EQ(layoutFault(scroll), "");
  [scroll setHasVerticalScroller:YES];
  EXPECT_EQ([scroll verticalScroller], scroller);
  EXPECT_EQ(layoutFault(scroll), "");
}

TEST_F(ScrollViewScrollers, ASubclassChoosesItsOwn) {
  HXScrollView *scroll = bare([OvTestOtherScrollView class]);
  [scroll setHasVerticalScroller:YES];
  [scroll setHasHorizontalScroller:YES];
  EXPECT_EQ([[scroll verticalScroller] class], [OvTestOtherScroller class]);
  EXPECT_EQ([[scroll horizontalScroller] class], [HXScroller class]);
  EXPECT_EQ(layoutFault(scroll), "");
}

TEST_F(ScrollViewScrollers, WithoutAClassThePlatformsIsMade) {
  HXScrollView *scroll = bare([OvTestNoScrollerClassView class]);
  [scroll setHasVerticalScroller:YES];
  EXPECT_EQ([[scroll verticalScroller] class], [NSScroller class]);
  EXPECT_EQ(layoutFault(scroll), "");
}

TEST_F(ScrollViewScrollers, ThoseThatComeAndGoByThemselvesAreOurs) {
  HXScrollView *scroll = bare();
  [scroll setAutohidesScrollers:YES];
  setDocument(scroll, NSMakeSize(100, 100));
  EXPECT_EQ([scroll verticalScroller], nil);
  [[scroll documentView] setFrameSize:NSMakeSize(100, 400)];
  ASSERT_TRUE([scroll hasVerticalScroller]);
  NSScroller *scroller = [scroll verticalScroller];
  EXPECT_EQ([scroller class], [HXScroller class]);
  EXPECT_EQ([(HXScroller *)scroller delegate], nil);
  EXPECT_TRUE([scroller isEnabled]);
  EXPECT_FALSE([scroll hasHorizontalScroller]);
  EXPECT_EQ(layoutFault(scroll), "");
  [[scroll documentView] setFrameSize:NSMakeSize(400, 100)];
  EXPECT_FALSE([scroll hasVerticalScroller]);
  EXPECT_EQ([[scroll horizontalScroller] class], [HXScroller class]);
  EXPECT_EQ(layoutFault(scroll), "");
  [[scroll documentView] setFrameSize:NSMakeSize(400, 400)];
  EXPECT_EQ([scroll verticalScroller], scroller);
  EXPECT_EQ(layoutFault(scroll), "");
}

// The platform's own decision never ends here.
TEST_F(ScrollViewScrollers, ADocumentThatFitsWithoutThemOnlyHasNone) {
  HXScrollView *scroll = bare();
  [scroll setAutohidesScrollers:YES];
  setDocument(scroll, NSMakeSize(100, 400));
  ASSERT_TRUE([scroll hasVerticalScroller]);
  ASSERT_FALSE([scroll hasHorizontalScroller]);
  [[scroll documentView] setFrameSize:NSMakeSize(190, 140)];
  EXPECT_FALSE([scroll hasVerticalScroller]);
  EXPECT_FALSE([scroll hasHorizontalScroller]);
  setDocument(scroll, NSMakeSize(600, 500));
  EXPECT_TRUE([scroll hasVerticalScroller]);
  EXPECT_TRUE([scroll hasHorizontalScroller]);
  [[scroll documentView] setFrameSize:NSMakeSize(200, 150)];
  EXPECT_FALSE([scroll hasVerticalScroller]);
  EXPECT_FALSE([scroll hasHorizontalScroller]);
  EXPECT_TRUE([scroll autohidesScrollers]);
  EXPECT_EQ(layoutFault(scroll), "");
}

TEST_F(ScrollViewScrollers, OneThatComesCallsForTheOther) {
  HXScrollView *scroll = bare();
  [scroll setAutohidesScrollers:YES];
  setDocument(scroll, NSMakeSize(190, 151));
  EXPECT_TRUE([scroll hasVerticalScroller]);
  EXPECT_TRUE([scroll hasHorizontalScroller]);
  EXPECT_TRUE([[scroll verticalScroller] isEnabled]);
  EXPECT_TRUE([[scroll horizontalScroller] isEnabled]);
  [scroll setFrameSize:NSMakeSize(209, 150)];
  EXPECT_TRUE([scroll hasVerticalScroller]);
  EXPECT_FALSE([scroll hasHorizontalScroller]);
  EXPECT_EQ(layoutFault(scroll), "");
  // Nor does it matter which way up a document is.
  [scroll setDocumentView:[[[NSView alloc] initWithFrame:NSMakeRect(0, 0, 191, 151)] autorelease]];
  EXPECT_TRUE([scroll hasVerticalScroller]);
  EXPECT_TRUE([scroll hasHorizontalScroller]);
  [[scroll documentView] setFrameSize:NSMakeSize(205, 145)];
  EXPECT_FALSE([scroll hasVerticalScroller]);
  EXPECT_FALSE([scroll hasHorizontalScroller]);
}

TEST_F(ScrollViewScrollers, AScaledDocumentHidesThemByItsOwnMeasure) {
  HXScrollView *scroll = bare();
  [scroll setAutohidesScrollers:YES];
  setDocument(scroll, NSMakeSize(50, 140));
  ASSERT_FALSE([scroll hasVerticalScroller]);
  [[scroll contentView] scaleUnitSquareToSize:NSMakeSize(2, 2)];
  ASSERT_TRUE([scroll hasVerticalScroller]);
  EXPECT_FALSE([scroll hasHorizontalScroller]);
  [[scroll documentView] setFrameSize:NSMakeSize(90.4, 140)];
  EXPECT_FALSE([scroll hasHorizontalScroller]) << "90.5 lie beside the vertical one";
  [[scroll documentView] setFrameSize:NSMakeSize(91, 140)];
  EXPECT_TRUE([scroll hasHorizontalScroller]);
  [[scroll documentView] setFrameSize:NSMakeSize(105, 60)];
  EXPECT_FALSE([scroll hasVerticalScroller]);
  EXPECT_TRUE([scroll hasHorizontalScroller]) << "there are 100";
  [[scroll documentView] setFrameSize:NSMakeSize(100, 75)];
  EXPECT_FALSE([scroll hasVerticalScroller]);
  EXPECT_FALSE([scroll hasHorizontalScroller]);
}

TEST_F(ScrollViewScrollers, TheyScroll) {
  HXScrollView *scroll = makeScroll();
  EXPECT_TRUE(dragKnob([scroll verticalScroller], { 30 }));
  const CGFloat down = scrolledDown(scroll);
  EXPECT_GT(down, 50);
  EXPECT_EQ(scrolledRight(scroll), 0);
  EXPECT_TRUE(dragKnob([scroll horizontalScroller], { 30 }));
  EXPECT_GT(scrolledRight(scroll), 50);
  EXPECT_EQ(scrolledDown(scroll), down);
}

TEST_F(ScrollViewScrollers, OneInstalledLaterIsLeftAsItIs) {
  HXScrollView *scroll = makeScroll();
  NSScroller *plain = [[NSScroller new] autorelease];
  [scroll setVerticalScroller:plain];
  EXPECT_EQ([scroll verticalScroller], plain);
  HXScroller *ours = [[HXScroller new] autorelease];
  [scroll setHorizontalScroller:ours];
  EXPECT_EQ([scroll horizontalScroller], ours);
  EXPECT_EQ([ours delegate], nil);
  OvTestScrollDelegate *other = [[OvTestScrollDelegate new] autorelease];
  HXScroller *told = [[HXScroller new] autorelease];
  [told setDelegate:other];
  [scroll setHorizontalScroller:told];
  EXPECT_EQ([told delegate], other);
}

TEST_F(ScrollViewScrollers, OneInstalledLaterShowsAndWorksAtOnce) {
  HXScrollView *scroll = makeScroll();
  [[scroll documentView] scrollPoint:NSMakePoint(100, 200)];
  const double value = [[scroll verticalScroller] floatValue];
  const double proportion = [[scroll verticalScroller] knobProportion];
  HXScroller *scroller = [[HXScroller new] autorelease];
  [scroll setVerticalScroller:scroller];
  EXPECT_EQ(layoutFault(scroll), "");
  EXPECT_EQ([scroller floatValue], value);
  EXPECT_EQ([scroller knobProportion], proportion);
  EXPECT_EQ(scrolledDown(scroll), 200);
  EXPECT_TRUE(dragKnob(scroller, {200}));
  EXPECT_EQ(scrolledDown(scroll), 500 - [scroll contentSize].height);
}

TEST_F(ScrollViewScrollers, OneInstalledLaterStaysHiddenWithTheOthers) {
  HXScrollView *scroll = bare();
  HXScroller *scroller = [[HXScroller new] autorelease];
  [scroll setVerticalScroller:scroller];
  EXPECT_EQ([scroller superview], nil);
  EXPECT_EQ(layoutFault(scroll), "");
  [scroll setHasVerticalScroller:YES];
  EXPECT_EQ([scroll verticalScroller], scroller);
  EXPECT_EQ(layoutFault(scroll), "");
}

TEST_F(ScrollViewScrollers, TheOneBeforeForgetsTheScrollView) {
  HXScrollView *scroll = makeRelayingScroll();
  const auto old = [[(HXScroller *)[scroll verticalScroller] retain] autorelease];
  ASSERT_EQ([old delegate], scroll);
  [scroll setVerticalScroller:[[HXScroller new] autorelease]];
  EXPECT_EQ([old delegate], nil);
  EXPECT_EQ([old target], nil);
  EXPECT_EQ([old superview], nil);
  // What is not the scroll view stays.
  const auto other = [[(HXScroller *)[scroll horizontalScroller] retain] autorelease];
  [other setDelegate:delegate];
  [other setTarget:delegate];
  [scroll setHorizontalScroller:nil];
  EXPECT_EQ([other delegate], delegate);
  EXPECT_EQ([other target], delegate);
}

TEST_F(ScrollViewScrollers, TheSameOneInstalledAgainStays) {
  HXScrollView *scroll = makeRelayingScroll();
  const auto scroller = (HXScroller *)[scroll verticalScroller];
  [scroll setVerticalScroller:scroller];
  EXPECT_EQ([scroll verticalScroller], scroller);
  EXPECT_EQ([scroller delegate], scroll);
  EXPECT_EQ(layoutFault(scroll), "");
}

TEST_F(ScrollViewScrollers, WithoutScrollersNothingIsTracked) {
  HXScrollView *scroll = makeScroll();
  [scroll setVerticalScroller:nil];
  [scroll setHorizontalScroller:nil];
  EXPECT_FALSE([scroll isHorizontalScrollerTraking]);
  EXPECT_FALSE([scroll isVerticalScrollerTraking]);
  [[scroll documentView] scrollPoint:NSMakePoint(100, 200)];
  [scroll setHasVerticalScroller:NO];
  [scroll setHasVerticalScroller:YES];
  EXPECT_EQ([[scroll verticalScroller] class], [HXScroller class]);
}

TEST_F(ScrollViewScrollers, ReplacingLeavesOursAlone) {
  HXScrollView *scroll = makeScroll();
  NSScroller *scroller = [scroll verticalScroller];
  [scroll _replaceScrollersIfNeeded];
  EXPECT_EQ([scroll verticalScroller], scroller);
  EXPECT_EQ([(HXScroller *)scroller delegate], nil);
}

// Whoever sends it later gets what happens at the beginning.
TEST_F(ScrollViewScrollers, ReplacingTakesOverTheFrameOnly) {
  HXScrollView *scroll = makeScroll();
  NSScroller *plain = [[NSScroller new] autorelease];
  [scroll setVerticalScroller:plain];
  [plain setToolTip:@"Old"];
  [plain setAction:@selector(stopModal)];
  [plain setTarget:NSApp];
  const NSRect frame = [plain frame];
  [scroll setHorizontalScroller:nil];
  [scroll _replaceScrollersIfNeeded];
  const auto scroller = (HXScroller *)[scroll verticalScroller];
  ASSERT_EQ([scroller class], [HXScroller class]);
  EXPECT_EQ([scroller delegate], scroll);
  EXPECT_EQ([scroller appearance], HXScrollerAppearanceDefault);
  EXPECT_EQ([scroller frame], frame);
  EXPECT_EQ([scroller toolTip], nil);
  EXPECT_EQ([scroller target], scroll);
  EXPECT_NE([scroller action], @selector(stopModal));
  EXPECT_EQ([scroll horizontalScroller], nil);
  EXPECT_EQ([plain superview], nil);
  EXPECT_EQ(layoutFault(scroll), "");
}

TEST_F(ScrollViewScrollers, OddSizesAreSurvived) {
  LogCapture log;  // the platform tells of negative ones
  HXScrollView *scroll = makeScroll();
  for (NSSize size : {NSMakeSize(0, 0), NSMakeSize(1, 1), NSMakeSize(17, 300), NSMakeSize(300, 17),
                      NSMakeSize(-5, -5), NSMakeSize(100000, 3), NSMakeSize(3, 100000)}) {
    [scroll setFrameSize:size];
    [scroll display];
    EXPECT_EQ([[scroll verticalScroller] class], [HXScroller class]);
  }
  HXScrollView *tiny = [[[HXScrollView alloc] initWithFrame:NSZeroRect] autorelease];
  [tiny setHasVerticalScroller:YES];
  [tiny setHasHorizontalScroller:YES];
  [tiny setFrameSize:NSMakeSize(200, 150)];
  EXPECT_EQ(layoutFault(tiny), "");
  [scroll setFrameSize:NSMakeSize(200, 150)];
  EXPECT_EQ(layoutFault(scroll), "");
  EXPECT_TRUE(dragKnob([scroll verticalScroller], { 20 }));
  EXPECT_GT(scrolledDown(scroll), 0);
}

TEST_F(ScrollViewScrollers, ScrollersInThemesWork) {
  HXScrollView *scroll = makeRelayingScroll();
  for (int appearance :
       {+HXScrollerAppearanceMetal, +HXScrollerAppearanceBlack, 77, +HXScrollerAppearanceDefault}) {
    [(HXScroller *)[scroll verticalScroller] setAppearance:appearance];
    [scroll display];
    EXPECT_EQ(layoutFault(scroll), "");
  }
}

// MARK: Headers and rulers

TEST_F(ScrollViewScrollers, HeadersStayAboveTheirColumns) {
  HXScrollView *scroll = bare();
  [scroll setHasVerticalScroller:YES];
  [scroll setHasHorizontalScroller:YES];
  NSTableView *table = [[[NSTableView alloc] initWithFrame:NSMakeRect(0, 0, 600, 500)] autorelease];
  for (NSString *name in @[ @"a", @"b", @"c" ]) {
    NSTableColumn *column = [[[NSTableColumn alloc] initWithIdentifier:name] autorelease];
    [column setWidth:250];
    [table addTableColumn:column];
  }
  [scroll setDocumentView:table];
  host(scroll);
  ASSERT_TRUE(dragKnob([scroll horizontalScroller], { 40 }));
  const CGFloat right = scrolledRight(scroll);
  EXPECT_GT(right, 50);
  EXPECT_EQ([(NSView *)[[table headerView] superview] bounds].origin.x, right);
  EXPECT_GT([delegate scrolls], 0);
  EXPECT_EQ(layoutFault(scroll), "");
  // A header that scrolls alone is no content.
  delegate->lines.clear();
  [(NSClipView *)[[table headerView] superview] scrollToPoint:NSMakePoint(10, 0)];
  EXPECT_THAT(delegate->lines, ElementsAre());
  [scroll setVerticalScroller:[[HXScroller new] autorelease]];
  EXPECT_EQ([[table headerView] window], [scroll window]);
  EXPECT_EQ(layoutFault(scroll), "");
}

TEST_F(ScrollViewScrollers, RulersStay) {
  HXScrollView *scroll = makeScroll();
  [scroll setHasVerticalRuler:YES];
  [scroll setRulersVisible:YES];
  [scroll setVerticalScroller:[[HXScroller new] autorelease]];
  EXPECT_EQ([[scroll horizontalRulerView] superview], scroll);
  EXPECT_EQ([[scroll verticalRulerView] superview], scroll);
  EXPECT_EQ(layoutFault(scroll), "");
  EXPECT_TRUE(dragKnob([scroll verticalScroller], { 30 }));
  EXPECT_GT([delegate scrolls], 0);
}

}  // namespace
