// Scroll views from archives and interface files: which scrollers are replaced, and which of them
// tell of their tracking.

#import <GNUstepGUI/GSGormLoading.h>

#import "Coding.h"
#import "InterfaceFiles.h"
#import "ScrollViewTest.h"

using namespace ov::test;
using testing::ElementsAre;

@interface OvTestArchivedScroller : HXScroller
@end
@implementation OvTestArchivedScroller
@end

// A scroller of another class than the platform's own.
@interface OvTestForeignScroller : NSScroller
@end
@implementation OvTestForeignScroller
@end

// Sees what the initializers do, and has a content view that posts nothing by itself.
@interface OvTestSetUpScrollView : HXScrollView {
 @public
  std::vector<std::string> *setUp;
}
@end
@implementation OvTestSetUpScrollView
- (void)note:(const char *)what {
  if (setUp == nullptr) setUp = new std::vector<std::string>;
  setUp->push_back(what);
}
- (void)dealloc {
  delete setUp;
  [super dealloc];
}
- (void)_replaceScrollersIfNeeded {
  [self note:"replace"];
  [super _replaceScrollersIfNeeded];
}
- (void)_observeContentBounds {
  [self note:"observe"];
  [[self contentView] setPostsBoundsChangedNotifications:NO];
  [super _observeContentBounds];
}
@end

@interface OvTestScrollNibOwner : NSObject {
 @public
  HXScrollView *scroll;
}
@end
@implementation OvTestScrollNibOwner
- (void)setScroll:(HXScrollView *)view {
  scroll = view;
}
@end

namespace {

template <typename View = HXScrollView>
View *makeWith(Class viewClass, Class verticalClass, Class horizontalClass) {
  View *scroll = [[[viewClass alloc] initWithFrame:NSMakeRect(10, 20, 200, 150)] autorelease];
  if (verticalClass) {
    [scroll setVerticalScroller:[[verticalClass new] autorelease]];
    [scroll setHasVerticalScroller:YES];
  }
  if (horizontalClass) {
    [scroll setHorizontalScroller:[[horizontalClass new] autorelease]];
    [scroll setHasHorizontalScroller:YES];
  }
  [scroll setDocumentView:[[[OvTestDocument alloc] initWithFrame:NSMakeRect(0, 0, 600, 500)]
                              autorelease]];
  return scroll;
}

class ScrollViewArchive : public ScrollViewTest, public testing::WithParamInterface<Coding> {
 protected:
  HXScrollView *read(Class verticalClass, Class horizontalClass) {
    return roundTrip(makeWith([HXScrollView class], verticalClass, horizontalClass), GetParam());
  }
};

INSTANTIATE_TEST_SUITE_P(Codings, ScrollViewArchive,
                         testing::Values(Coding::keyed, Coding::sequential), codingName);

TEST_P(ScrollViewArchive, OtherScrollersAreReplacedByOursWhichTell) {
  HXScrollView *scroll = read([NSScroller class], [OvTestForeignScroller class]);
  for (NSScroller *scroller in @[ [scroll horizontalScroller], [scroll verticalScroller] ]) {
    EXPECT_EQ([scroller class], [HXScroller class]);
    EXPECT_EQ([(HXScroller *)scroller delegate], scroll);
    EXPECT_EQ([(HXScroller *)scroller appearance], HXScrollerAppearanceDefault);
  }
  EXPECT_EQ(layoutFault(scroll), "");
  host(scroll);
  EXPECT_TRUE(dragKnob([scroll verticalScroller], { 10, 20, 30 }));
  EXPECT_TRUE(dragKnob([scroll horizontalScroller], { 10, 20, 30 }));
  EXPECT_THAT([delegate summary],
              ElementsAre("will v 2", "scroll...", "did v 2", "will h 2", "scroll...", "did h 2"));
}

TEST_P(ScrollViewArchive, ReplacedOnesLieAndStandAsThoseBefore) {
  HXScrollView *written = makeWith([HXScrollView class], [NSScroller class], [NSScroller class]);
  HXScrollView *scroll = roundTrip(written, GetParam());
  EXPECT_EQ([[scroll verticalScroller] frame], [[written verticalScroller] frame]);
  EXPECT_EQ([[scroll horizontalScroller] frame], [[written horizontalScroller] frame]);
  EXPECT_TRUE([[scroll verticalScroller] isEnabled]);
  EXPECT_TRUE([[scroll horizontalScroller] isEnabled]);
  EXPECT_EQ([[scroll verticalScroller] knobProportion],
            [[written verticalScroller] knobProportion]);
  EXPECT_EQ([[scroll horizontalScroller] knobProportion],
            [[written horizontalScroller] knobProportion]);
  EXPECT_EQ([[scroll verticalScroller] floatValue], 0);
  EXPECT_EQ([[scroll contentView] frame], [[written contentView] frame]);
  EXPECT_EQ([[scroll documentView] frame], [[written documentView] frame]);
}

TEST_P(ScrollViewArchive, OursStayAndTellOfTheContentOnly) {
  HXScrollView *scroll = read([HXScroller class], [OvTestArchivedScroller class]);
  EXPECT_EQ([[scroll verticalScroller] class], [HXScroller class]);
  EXPECT_EQ([[scroll horizontalScroller] class], [OvTestArchivedScroller class]);
  EXPECT_EQ([(HXScroller *)[scroll verticalScroller] delegate], nil);
  EXPECT_EQ([(HXScroller *)[scroll horizontalScroller] delegate], nil);
  EXPECT_EQ(layoutFault(scroll), "");
  host(scroll);
  EXPECT_TRUE(dragKnob([scroll verticalScroller], { 10, 20, 30 }));
  EXPECT_TRUE(dragKnob([scroll horizontalScroller], { 10, 20, 30 }));
  EXPECT_THAT([delegate summary], ElementsAre("scroll..."));
}

TEST_P(ScrollViewArchive, WhatTellsNowTellsNoMoreAfterAnother) {
  HXScrollView *scroll = read([NSScroller class], [NSScroller class]);
  scroll = roundTrip(scroll, GetParam());
  EXPECT_EQ([(HXScroller *)[scroll verticalScroller] delegate], nil);
  EXPECT_EQ(layoutFault(scroll), "");
}

TEST_P(ScrollViewArchive, EachScrollerGoesByItsOwnClass) {
  HXScrollView *scroll = read([NSScroller class], [HXScroller class]);
  EXPECT_EQ([(HXScroller *)[scroll verticalScroller] delegate], scroll);
  EXPECT_EQ([(HXScroller *)[scroll horizontalScroller] delegate], nil);
  scroll = read([HXScroller class], [NSScroller class]);
  EXPECT_EQ([(HXScroller *)[scroll verticalScroller] delegate], nil);
  EXPECT_EQ([(HXScroller *)[scroll horizontalScroller] delegate], scroll);
}

TEST_P(ScrollViewArchive, AMissingScrollerIsNotMade) {
  HXScrollView *scroll = read([NSScroller class], Nil);
  EXPECT_EQ([scroll horizontalScroller], nil);
  EXPECT_FALSE([scroll hasHorizontalScroller]);
  EXPECT_EQ([(HXScroller *)[scroll verticalScroller] delegate], scroll);
  EXPECT_EQ(layoutFault(scroll), "");
  scroll = read(Nil, Nil);
  EXPECT_EQ([scroll horizontalScroller], nil);
  EXPECT_EQ([scroll verticalScroller], nil);
  EXPECT_EQ(layoutFault(scroll), "");
}

TEST_P(ScrollViewArchive, ScrollersThatComeLaterTellNothing) {
  HXScrollView *written = makeWith([HXScrollView class], [NSScroller class], [NSScroller class]);
  [written setAutohidesScrollers:YES];
  [[written documentView] setFrameSize:NSMakeSize(50, 50)];
  [written reflectScrolledClipView:[written contentView]];
  ASSERT_FALSE([written hasVerticalScroller]);
  HXScrollView *scroll = roundTrip(written, GetParam());
  EXPECT_EQ([scroll verticalScroller], nil);
  // Sequential archives do not tell that scrollers hide.
  [scroll setAutohidesScrollers:YES];
  [[scroll documentView] setFrameSize:NSMakeSize(600, 500)];
  ASSERT_TRUE([scroll hasVerticalScroller]);
  EXPECT_EQ([[scroll verticalScroller] class], [HXScroller class]);
  EXPECT_EQ([(HXScroller *)[scroll verticalScroller] delegate], nil);
  EXPECT_EQ(layoutFault(scroll), "");
}

TEST_P(ScrollViewArchive, HiddenOnesOfTheArchiveHideAgain) {
  HXScrollView *written = makeWith([HXScrollView class], [NSScroller class], [NSScroller class]);
  [[written documentView] setFrameSize:NSMakeSize(50, 50)];
  [written setAutohidesScrollers:YES];
  ASSERT_TRUE([written hasVerticalScroller]);
  HXScrollView *scroll = roundTrip(written, GetParam());
  [scroll setAutohidesScrollers:YES];
  [[scroll documentView] setFrameSize:NSMakeSize(50, 40)];
  EXPECT_FALSE([scroll hasVerticalScroller]);
  EXPECT_FALSE([scroll hasHorizontalScroller]);
  EXPECT_EQ(layoutFault(scroll), "");
  [[scroll documentView] setFrameSize:NSMakeSize(600, 500)];
  EXPECT_EQ([[scroll verticalScroller] class], [HXScroller class]);
  EXPECT_EQ([[scroll horizontalScroller] class], [HXScroller class]);
  EXPECT_EQ(layoutFault(scroll), "");
}

TEST_P(ScrollViewArchive, TheDelegateIsNotInIt) {
  HXScrollView *written = makeWith([HXScrollView class], [NSScroller class], [NSScroller class]);
  [written setDelegate:delegate];
  HXScrollView *scroll = roundTrip(written, GetParam());
  EXPECT_EQ([scroll delegate], nil);
  [written setDelegate:nil];
}

TEST_P(ScrollViewArchive, EverythingIsSetUpOnce) {
  OvTestSetUpScrollView *written = makeWith<OvTestSetUpScrollView>(
      [OvTestSetUpScrollView class], [NSScroller class], [NSScroller class]);
  EXPECT_THAT(*written->setUp, ElementsAre("replace", "observe"));
  EXPECT_TRUE([[written contentView] postsBoundsChangedNotifications]);
  OvTestSetUpScrollView *scroll = roundTrip(written, GetParam());
  EXPECT_THAT(*scroll->setUp, ElementsAre("replace", "observe"));
  EXPECT_TRUE([[scroll contentView] postsBoundsChangedNotifications]);
  host(scroll);
  EXPECT_TRUE(dragKnob([scroll verticalScroller], { 10 }));
  EXPECT_THAT(delegate->lines, ElementsAre("will v 2", "scroll", "did v 2"));
}

TEST_P(ScrollViewArchive, DamagedOnesAreSurvived) {
  HXScrollView *written = makeWith([HXScrollView class], [NSScroller class], [NSScroller class]);
  [[written contentView] removeFromSuperview];
  bool refused = false;
  @try {
    HXScrollView *scroll = roundTrip(written, GetParam());
    EXPECT_EQ([scroll contentView], nil);
    EXPECT_FALSE([scroll isVerticalScrollerTraking]);
    EXPECT_EQ([[scroll verticalScroller] class], [HXScroller class]);
  } @catch (NSException *exception) {
    EXPECT_EQ(std::string([[exception name] UTF8String]), "NSInvalidArgumentException");
    refused = true;
  }
  EXPECT_EQ(refused, GetParam() == Coding::keyed) << "by the platform";
}

// MARK: Interface files

class ScrollViewFile : public ScrollViewTest {
 protected:
  HXScrollView *fromXib(NSString *attributes, NSString *scrollerClass) {
    NSString *objects = [NSString
        stringWithFormat:
            @"<scrollView id=\"s1\" customClass=\"HXScrollView\" %@>"
            @"<rect key=\"frame\" x=\"10\" y=\"20\" width=\"200\" height=\"150\"/>"
            @"<clipView key=\"contentView\" id=\"c1\">"
            @"<rect key=\"frame\" x=\"1\" y=\"1\" width=\"180\" height=\"130\"/><subviews>"
            @"<customView id=\"d1\" customClass=\"OvTestDocument\">"
            @"<rect key=\"frame\" x=\"0\" y=\"0\" width=\"600\" height=\"500\"/></customView>"
            @"</subviews></clipView>"
            @"<scroller key=\"horizontalScroller\" horizontal=\"YES\" id=\"h1\"%@>"
            @"<rect key=\"frame\" x=\"1\" y=\"132\" width=\"180\" height=\"16\"/></scroller>"
            @"<scroller key=\"verticalScroller\" horizontal=\"NO\" id=\"v1\"%@>"
            @"<rect key=\"frame\" x=\"182\" y=\"1\" width=\"16\" height=\"130\"/></scroller>"
            @"</scrollView>",
            attributes, scrollerClass, scrollerClass];
    EXPECT_TRUE(loadXib(owner, @{@"scroll" : @"s1"}, objects));
    return owner->scroll;
  }

  HXScrollView *fromGorm(id object) {
    GormFile file;
    file.add(@"Scroll", object);
    file.outlet(@"NSOwner", @"scroll", @"Scroll");
    EXPECT_TRUE(file.load(owner));
    return owner->scroll;
  }

  void expectToTell(HXScrollView *scroll) {
    ASSERT_EQ([scroll class], [HXScrollView class]);
    EXPECT_EQ(layoutFault(scroll), "");
    host(scroll);
    EXPECT_TRUE(dragKnob([scroll verticalScroller], { 10, 20, 30 }));
    EXPECT_TRUE(dragKnob([scroll horizontalScroller], { 10, 20, 30 }));
    EXPECT_THAT([delegate summary], ElementsAre("will v 2", "scroll...", "did v 2", "will h 2",
                                                "scroll...", "did h 2"));
  }

  OvTestScrollNibOwner *owner = [[[OvTestScrollNibOwner alloc] init] autorelease];
};

TEST_F(ScrollViewFile, AXibHasScrollersOfThePlatform) { expectToTell(fromXib(@"", @"")); }

TEST_F(ScrollViewFile, AXibMayHaveOurs) {
  HXScrollView *scroll = fromXib(@"", @" customClass=\"HXScroller\"");
  ASSERT_EQ([[scroll verticalScroller] class], [HXScroller class]);
  EXPECT_EQ([(HXScroller *)[scroll verticalScroller] delegate], nil);
  EXPECT_EQ([(HXScroller *)[scroll horizontalScroller] delegate], nil);
  EXPECT_EQ(layoutFault(scroll), "");
  host(scroll);
  EXPECT_TRUE(dragKnob([scroll verticalScroller], { 10, 20 }));
  EXPECT_THAT([delegate summary], ElementsAre("scroll..."));
}

TEST_F(ScrollViewFile, AXibMayHaveOneDirectionOnly) {
  HXScrollView *scroll = fromXib(@"hasHorizontalScroller=\"NO\"", @"");
  EXPECT_EQ([(HXScroller *)[scroll verticalScroller] delegate], scroll);
  EXPECT_EQ([scroll horizontalScroller], nil);
  EXPECT_EQ(layoutFault(scroll), "");
}

TEST_F(ScrollViewFile, AXibMayHideThem) {
  HXScrollView *scroll = fromXib(@"autohidesScrollers=\"YES\" borderType=\"none\"", @"");
  EXPECT_TRUE([scroll autohidesScrollers]);
  EXPECT_TRUE([scroll hasVerticalScroller]);
  [[scroll documentView] setFrameSize:NSMakeSize(10, 10)];
  EXPECT_FALSE([scroll hasVerticalScroller]);
  EXPECT_EQ(layoutFault(scroll), "");
}

// So the platform's editor writes views that are to be of another class.
TEST_F(ScrollViewFile, AGormFileHasAScrollViewOfThePlatform) {
  NSScrollView *written =
      makeWith<NSScrollView>([NSScrollView class], [NSScroller class], [NSScroller class]);
  expectToTell(fromGorm([[[GSViewTemplate alloc] initWithObject:written
                                                      className:@"HXScrollView"
                                                 superClassName:@"NSScrollView"] autorelease]));
}

TEST_F(ScrollViewFile, AGormFileHasOursWithScrollersOfThePlatform) {
  expectToTell(fromGorm(makeWith([HXScrollView class], [NSScroller class], [NSScroller class])));
}

TEST_F(ScrollViewFile, AGormFileMayHaveOurs) {
  HXScrollView *scroll =
      fromGorm(makeWith([HXScrollView class], [HXScroller class], [HXScroller class]));
  EXPECT_EQ([[scroll verticalScroller] class], [HXScroller class]);
  EXPECT_EQ([(HXScroller *)[scroll verticalScroller] delegate], nil);
  EXPECT_EQ(layoutFault(scroll), "");
}

TEST_F(ScrollViewFile, AKeyedArchiveOfThePlatformsScrollViewIsReadAsOurs) {
  NSScrollView *written =
      makeWith<NSScrollView>([NSScrollView class], [NSScroller class], [NSScroller class]);
  expectToTell(roundTripAs(written, [NSScrollView class], [HXScrollView class], Coding::keyed));
}

TEST_F(ScrollViewFile, ANibFileHasScrollersOfThePlatform) {
  HXScrollView *written = makeWith([HXScrollView class], [NSScroller class], [NSScroller class]);
  NSData *data = nibData(@"OvTestScrollNibOwner", @{@"scroll" : written}, @[ written ]);
  ASSERT_TRUE(loadInterface(@"nib", data, owner));
  expectToTell(owner->scroll);
}

}  // namespace
