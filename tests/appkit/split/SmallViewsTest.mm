// The simple view, the flipped container and the tab view without a border.

#import <OvAppKit/OvBorderlessTabView.h>
#import <OvAppKit/OvFlippedView.h>
#import <OvAppKit/OvSimpleView.h>

#include <functional>

#import "Coding.h"
#import "InterfaceFiles.h"
#import "LiveTest.h"

using namespace ov::test;

// Counts how often it is marked for drawing.
@interface OvTestSimpleView : OvSimpleView {
 @public
  int marked;
}
@end

@implementation OvTestSimpleView
- (void)setNeedsDisplay:(BOOL)flag {
  if (flag) ++marked;
  [super setNeedsDisplay:flag];
}
@end

namespace {

class SimpleView : public LiveTest {
 protected:
  void SetUp() override {
    LiveTest::SetUp();
    window = makeWindow(NSMakeSize(200, 120));
    view = [[[OvTestSimpleView alloc] initWithFrame:NSMakeRect(20, 30, 100, 60)] autorelease];
    [[window contentView] addSubview:view];
  }

  int marksOf(const std::function<void()> &change) {
    view->marked = 0;
    change();
    return view->marked;
  }

  NSWindow *window;
  OvTestSimpleView *view;
};

NSColor *color(int red, int green, int blue) {
  return [NSColor colorWithDeviceRed:red green:green blue:blue alpha:1];
}

TEST_F(SimpleView, StartsAsAPlaceholderThatDrawsNothing) {
  EXPECT_FALSE([view isHidden]);
  EXPECT_EQ([view label], nil);
  EXPECT_EQ([view image], nil);
  EXPECT_TRUE([[view labelColor] isEqual:[NSColor darkGrayColor]]);
  EXPECT_TRUE([[view labelFont] isEqual:[NSFont boldSystemFontOfSize:24]]);
  EXPECT_EQ([view labelFontSize], 24);
  EXPECT_TRUE([[view fillColor] isEqual:[NSColor whiteColor]]);
  EXPECT_FALSE([view fillRect]);
  EXPECT_TRUE([[view frameColor] isEqual:[NSColor grayColor]]);
  EXPECT_FALSE([view strokeRect]);
  EXPECT_EQ([view frameLineWidth], 1);
  EXPECT_EQ([[view valueForKey:@"savedOrigin"] pointValue], NSZeroPoint);
  [window setBackgroundColor:color(0, 0, 1)];
  EXPECT_EQ(pictureOf([window contentView]).count(NSMakeRect(20, 30, 100, 60), kBlue), 6000);
}

TEST_F(SimpleView, SettersKeepAndRedrawOnlyWhatIsNew) {
  NSColor *red = color(1, 0, 0);
  NSFont *font = [NSFont systemFontOfSize:10];
  NSString *label = [NSString stringWithFormat:@"%d", 7];
  const auto twice = [&](const std::function<void()> &set) {
    EXPECT_EQ(marksOf(set), 1);
    EXPECT_EQ(marksOf(set), 0) << "the same once more";
  };
  twice([&] { [view setLabel:label]; });
  EXPECT_EQ([view label], label);
  twice([&] { [view setLabelColor:red]; });
  EXPECT_EQ([view labelColor], red);
  twice([&] { [view setLabelFont:font]; });
  EXPECT_EQ([view labelFont], font);
  twice([&] { [view setLabelFontSize:9]; });
  EXPECT_EQ([view labelFontSize], 9);
  EXPECT_EQ([view labelFont], font) << "the size is a number and nothing more";
  twice([&] { [view setFillColor:red]; });
  EXPECT_EQ([view fillColor], red);
  twice([&] { [view setFillRect:YES]; });
  EXPECT_TRUE([view fillRect]);
  twice([&] { [view setFrameColor:red]; });
  EXPECT_EQ([view frameColor], red);
  twice([&] { [view setStrokeRect:YES]; });
  EXPECT_TRUE([view strokeRect]);
  twice([&] { [view setFrameLineWidth:3.5F]; });
  EXPECT_EQ([view frameLineWidth], 3.5F);
  NSImage *image = [[[NSImage alloc] initWithSize:NSMakeSize(4, 4)] autorelease];
  [view setFillRect:NO];
  twice([&] { [view setImage:image]; });
  EXPECT_EQ([view image], image);
}

TEST_F(SimpleView, OwnsItsObjects) {
  NSUInteger before = 0;
  NSColor *red = [[NSColor colorWithCalibratedRed:1 green:0 blue:0 alpha:1] retain];
  @autoreleasepool {
    before = [red retainCount];
    OvSimpleView *other = [[OvSimpleView alloc] initWithFrame:NSZeroRect];
    [other setFillColor:red];
    [other setFrameColor:red];
    [other setLabelColor:red];
    EXPECT_EQ([red retainCount], before + 3);
    [other release];
  }
  EXPECT_EQ([red retainCount], before);
  [red release];
}

TEST_F(SimpleView, AnImageSwitchesFillingOff) {
  NSImage *image = [[[NSImage alloc] initWithSize:NSMakeSize(4, 4)] autorelease];
  [view setFillRect:YES];
  [view setImage:image];
  EXPECT_FALSE([view fillRect]);
  [view setFillRect:YES];
  [view setImage:image];
  EXPECT_FALSE([view fillRect]) << "also when it is the same image";
  [view setImage:nil];
  EXPECT_FALSE([view fillRect]) << "taking it away fills nothing";
  [view setFillRect:YES];
  [view setImage:nil];
  EXPECT_TRUE([view fillRect]);
}

TEST_F(SimpleView, HidesByMovingAway) {
  EXPECT_EQ(marksOf([&] { [view setHidden:YES]; }), 1);
  EXPECT_TRUE([view isHidden]);
  EXPECT_EQ([view frame], NSMakeRect(1000000, 1000000, 100, 60));
  EXPECT_EQ([view superview], [window contentView]);
  [view setFrameOrigin:NSMakePoint(5, 5)];
  EXPECT_EQ(marksOf([&] { [view setHidden:YES]; }), 1) << "marked though nothing changed";
  EXPECT_EQ([view frame].origin, NSMakePoint(5, 5));
  [view setHidden:NO];
  EXPECT_EQ([view frame], NSMakeRect(20, 30, 100, 60)) << "wherever it was moved meanwhile";
  EXPECT_FALSE([view isHidden]);
  EXPECT_EQ(marksOf([&] { [view setHidden:NO]; }), 1);
}

TEST_F(SimpleView, SubviewsHearNothingOfHiding) {
  NSView *inner = [[[NSView alloc] initWithFrame:NSMakeRect(0, 0, 5, 5)] autorelease];
  [view addSubview:inner];
  [view setHidden:YES];
  EXPECT_FALSE([inner isHiddenOrHasHiddenAncestor] && [inner isHidden]);
  EXPECT_FALSE([inner isHidden]);
}

TEST_F(SimpleView, FillsItsBounds) {
  [view setFillColor:color(1, 0, 0)];
  [view setFillRect:YES];
  EXPECT_EQ(pictureOf(view).count([view bounds], kRed), 6000);
}

TEST_F(SimpleView, StretchesTheImageUpright) {
  NSImage *image = [[[NSImage alloc] initWithSize:NSMakeSize(10, 10)] autorelease];
  [image lockFocus];
  [color(1, 0, 0) set];
  NSRectFill(NSMakeRect(0, 5, 10, 5));
  [color(0, 1, 0) set];
  NSRectFill(NSMakeRect(0, 0, 10, 5));
  [image unlockFocus];
  [view setImage:image];
  const Picture picture = pictureOf(view);
  EXPECT_EQ(picture.at(50, 5), kRed) << "the image's top at the top";
  EXPECT_EQ(picture.at(2, 28), kRed);
  EXPECT_EQ(picture.at(97, 55), kGreen);
}

// The columns and rows of a picture that hold something dark.
NSRect inkOf(const Picture &picture) {
  int left = picture.width(), right = -1, top = picture.height(), bottom = -1;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      if (picture.at(x, y).brightness() > 100) continue;
      left = std::min(left, x), right = std::max(right, x);
      top = std::min(top, y), bottom = std::max(bottom, y);
    }
  }
  return right < 0 ? NSZeroRect : NSMakeRect(left, top, right - left + 1, bottom - top + 1);
}

TEST_F(SimpleView, CentresTheLabel) {
  [view setFillRect:YES];
  [view setLabel:@"HHH"];
  [view setLabelColor:color(0, 0, 0)];
  [view setLabelFont:[NSFont boldSystemFontOfSize:18]];
  const NSRect ink = inkOf(pictureOf(view));
  ASSERT_FALSE(NSIsEmptyRect(ink));
  EXPECT_NEAR(NSMidX(ink), 50, 2);
  EXPECT_NEAR(NSMidY(ink), 30, 6);
  [view setLabelFontSize:60];
  EXPECT_EQ(inkOf(pictureOf(view)), ink) << "drawn in the font that it has";
  [view setLabelColor:nil];
  EXPECT_EQ(inkOf(pictureOf(view)), ink) << "black without a colour";
}

TEST_F(SimpleView, ALabelThatIsTooWideStartsAtZero) {
  [view setFillRect:YES];
  [view setLabel:@"HHHHHHHHHHHHHHHHHHHH"];
  [view setLabelColor:color(0, 0, 0)];
  const NSRect ink = inkOf(pictureOf(view));
  EXPECT_LT(NSMinX(ink), 5);
  EXPECT_NEAR(NSMidY(ink), 30, 6);
  // At 0, not at where the bounds begin.
  [view setBoundsOrigin:NSMakePoint(-40, 0)];
  [view setFillRect:NO];
  [view setFillRect:YES];
  EXPECT_NEAR(NSMinX(inkOf(pictureOf(view))), 40, 5);
}

TEST_F(SimpleView, TheFrameIsHalfSeen) {
  [view setFillRect:YES];
  [view setFrameColor:color(1, 0, 0)];
  [view setFrameLineWidth:8];
  [view setStrokeRect:YES];
  const Picture picture = pictureOf(view);
  EXPECT_EQ(picture.at(50, 3), kRed);
  EXPECT_EQ(picture.at(3, 30), kRed);
  EXPECT_EQ(picture.at(96, 30), kRed);
  EXPECT_EQ(picture.at(50, 56), kRed);
  EXPECT_EQ(picture.at(50, 5), kWhite) << "four of the eight points lie outside";
  EXPECT_EQ(picture.at(5, 30), kWhite);
}

TEST_F(SimpleView, DrawsInItsOrder) {
  NSImage *image = [[[NSImage alloc] initWithSize:NSMakeSize(2, 2)] autorelease];
  [image lockFocus];
  [color(0, 0, 1) set];
  NSRectFill(NSMakeRect(0, 0, 2, 2));
  [image unlockFocus];
  [view setImage:image];
  [view setFillColor:color(1, 0, 0)];
  [view setFillRect:YES];
  [view setLabel:@"HHH"];
  [view setLabelColor:color(0, 0, 0)];
  [view setFrameColor:color(0, 1, 0)];
  [view setFrameLineWidth:8];
  [view setStrokeRect:YES];
  const Picture picture = pictureOf(view);
  EXPECT_EQ(picture.at(10, 10), kBlue) << "the image on the fill";
  EXPECT_GT(picture.count([view bounds], kBlack, 60), 20) << "the label on the image";
  EXPECT_EQ(picture.at(1, 30), kGreen) << "the frame last";
}

TEST_F(SimpleView, SurvivesEmptyAndMissingThings) {
  [view setImage:[[[NSImage alloc] initWithSize:NSZeroSize] autorelease]];
  [view setLabel:@""];
  [view setLabelFont:nil];
  [view setFillColor:nil];
  [view setFillRect:YES];
  [view setFrameColor:nil];
  [view setStrokeRect:YES];
  [view setFrameLineWidth:-1];
  pictureOf(view);
  [view setFrameColor:color(1, 0, 0)];
  EXPECT_EQ(pictureOf(view).count([view bounds], kRed), 0) << "no line is that thin";
  [view setLabel:@"x"];
  [view setFrameSize:NSZeroSize];
  [[window contentView] display];
}

class SmallViewArchive : public LiveTest, public testing::WithParamInterface<Coding> {};

INSTANTIATE_TEST_SUITE_P(Codings, SmallViewArchive,
                         testing::Values(Coding::keyed, Coding::sequential), codingName);

TEST_P(SmallViewArchive, ASimpleViewComesBackWithItsFrame) {
  OvSimpleView *view = [[[OvSimpleView alloc] initWithFrame:NSMakeRect(1, 2, 30, 40)] autorelease];
  [view addSubview:[[[NSView alloc] initWithFrame:NSMakeRect(3, 3, 3, 3)] autorelease]];
  OvSimpleView *copy = roundTrip(view, GetParam());
  ASSERT_TRUE([copy isMemberOfClass:[OvSimpleView class]]);
  EXPECT_EQ([copy frame], NSMakeRect(1, 2, 30, 40));
  EXPECT_EQ([[copy subviews] count], 1u);
  EXPECT_EQ([copy labelFontSize], 24);
  EXPECT_TRUE([[copy fillColor] isEqual:[NSColor whiteColor]]);
  EXPECT_FALSE([copy isHidden]);
}

TEST_P(SmallViewArchive, AHiddenOneComesBackShownAtItsPlace) {
  OvSimpleView *view = [[[OvSimpleView alloc] initWithFrame:NSMakeRect(1, 2, 30, 40)] autorelease];
  [view setHidden:YES];
  OvSimpleView *copy = roundTrip(view, GetParam());
  EXPECT_EQ([copy frame], NSMakeRect(1, 2, 30, 40));
  EXPECT_FALSE([copy isHidden]);
  EXPECT_EQ([view frame].origin, NSMakePoint(1000000, 1000000)) << "untouched by it";
}

TEST_P(SmallViewArchive, TheOthersComeBackAsWhatTheyAre) {
  OvFlippedView *flipped =
      [[[OvFlippedView alloc] initWithFrame:NSMakeRect(1, 2, 30, 40)] autorelease];
  OvFlippedView *copy = roundTrip(flipped, GetParam());
  ASSERT_TRUE([copy isMemberOfClass:[OvFlippedView class]]);
  EXPECT_TRUE([copy isFlipped]);
  EXPECT_EQ([copy frame], NSMakeRect(1, 2, 30, 40));
  OvBorderlessTabView *tabs =
      [[[OvBorderlessTabView alloc] initWithFrame:NSMakeRect(0, 0, 90, 80)] autorelease];
  NSTabViewItem *item = [[[NSTabViewItem alloc] initWithIdentifier:@"one"] autorelease];
  [item setLabel:@"One"];
  [tabs addTabViewItem:item];
  OvBorderlessTabView *tabsCopy = roundTrip(tabs, GetParam());
  ASSERT_TRUE([tabsCopy isMemberOfClass:[OvBorderlessTabView class]]);
  EXPECT_EQ([tabsCopy numberOfTabViewItems], 1);
}

class SimpleViewInterfaceFile : public LiveTest {};

}  // namespace

@interface OvTestSimpleOwner : NSObject {
 @public
  OvSimpleView *simple;
}
@end

@implementation OvTestSimpleOwner
- (void)setSimple:(OvSimpleView *)view {
  simple = view;
}
@end

namespace {

TEST_F(SimpleViewInterfaceFile, AnXMLFileMakesOne) {
  NSString *objects = @"<customView id=\"v1\" customClass=\"OvSimpleView\"><rect key=\"frame\" "
                      @"x=\"5.0\" y=\"6.0\" width=\"30\" height=\"20\"/></customView>";
  OvTestSimpleOwner *owner = [[[OvTestSimpleOwner alloc] init] autorelease];
  ASSERT_TRUE(loadXib(owner, @{@"simple" : @"v1"}, objects));
  ASSERT_TRUE([owner->simple isMemberOfClass:[OvSimpleView class]]);
  EXPECT_EQ([owner->simple frame].size, NSMakeSize(30, 20));
  EXPECT_EQ([owner->simple labelFontSize], 24);
}

TEST(FlippedView, StartsAtTheTop) {
  @autoreleasepool {
    OvFlippedView *view = [[[OvFlippedView alloc] initWithFrame:NSZeroRect] autorelease];
    EXPECT_TRUE([view isFlipped]);
  }
}

class BorderlessTabs : public LiveTest {
 protected:
  // A tab view on blue, whose items' views leave a margin.
  template <class T>
  T *makeTabs(NSTabViewType type) {
    NSWindow *window = makeWindow(NSMakeSize(220, 160));
    [window setBackgroundColor:color(0, 0, 1)];
    T *tabs = [[[T alloc] initWithFrame:NSMakeRect(10, 10, 200, 140)] autorelease];
    [tabs setTabViewType:type];
    for (NSString *title in @[ @"One", @"Two" ]) {
      NSTabViewItem *item = [[[NSTabViewItem alloc] initWithIdentifier:title] autorelease];
      [item setLabel:title];
      [tabs addTabViewItem:item];
    }
    [[window contentView] addSubview:tabs];
    return tabs;
  }
};

TEST_F(BorderlessTabs, DrawsTabsAndNoBorder) {
  for (NSTabViewType type : {NSTopTabsBezelBorder, NSBottomTabsBezelBorder}) {
    NSTabView *bordered = makeTabs<NSTabView>(type);
    NSTabView *bare = makeTabs<OvBorderlessTabView>(type);
    const Picture with = pictureOf([[bordered window] contentView]);
    const Picture without = pictureOf([[bare window] contentView]);
    // The half without the tabs: all of it shows what lies below.
    const NSRect half = NSMakeRect(10, type == NSTopTabsBezelBorder ? 80 : 10, 200, 70);
    EXPECT_EQ(without.count(half, kBlue), 200 * 70);
    EXPECT_LT(with.count(half, kBlue), 200 * 70);
    // Beside the last tab: no line of the border is left.
    EXPECT_EQ(without.count(NSMakeRect(160, 10, 50, 140), kBlue), 50 * 140);
    // The tabs: they are drawn as everywhere.
    const NSRect tabs = NSMakeRect(14, type == NSTopTabsBezelBorder ? 13 : 134, 60, 10);
    EXPECT_LT(without.count(tabs, kBlue), 500);
    for (int y = 0; y < 10; ++y) {
      for (int x = 0; x < 60; ++x) {
        const int px = static_cast<int>(NSMinX(tabs)) + x, py = static_cast<int>(NSMinY(tabs)) + y;
        ASSERT_EQ(without.at(px, py), with.at(px, py)) << px << ", " << py;
      }
    }
  }
}

TEST_F(BorderlessTabs, DrawsNothingWithoutTabs) {
  for (NSTabViewType type :
       {NSNoTabsBezelBorder, NSNoTabsLineBorder, NSNoTabsNoBorder, NSLeftTabsBezelBorder}) {
    NSTabView *tabs = makeTabs<OvBorderlessTabView>(type);
    EXPECT_EQ(pictureOf([[tabs window] contentView]).count(NSMakeRect(0, 0, 220, 160), kBlue),
              220 * 160);
    EXPECT_NE([tabs selectedTabViewItem], nil) << "an item is shown all the same";
  }
}

TEST_F(BorderlessTabs, TheStepForTheBorderDrawsNothing) {
  OvBorderlessTabView *tabs = makeTabs<OvBorderlessTabView>(NSTopTabsBezelBorder);
  [[tabs window] display];
  [tabs lockFocus];
  [color(1, 0, 0) set];
  NSRectFill([tabs bounds]);
  [color(0, 1, 0) set];
  [tabs _drawBorder:[tabs bounds] inRect:[tabs bounds]];
  NSBitmapImageRep *seen =
      [[[NSBitmapImageRep alloc] initWithFocusedViewRect:[tabs bounds]] autorelease];
  [tabs unlockFocus];
  EXPECT_EQ(Picture(seen).count([tabs bounds], kRed), 200 * 140);
}

TEST_F(BorderlessTabs, AClickChoosesATab) {
  OvBorderlessTabView *tabs = makeTabs<OvBorderlessTabView>(NSTopTabsBezelBorder);
  show([tabs window]);
  [tabs display];
  NSTabViewItem *second = [tabs tabViewItemAtIndex:1];
  for (int x = 4; x < 190 && [tabs selectedTabViewItem] != second; x += 6) {
    click(tabs, NSMakePoint(x, 8));
  }
  EXPECT_EQ([tabs selectedTabViewItem], second);
}

}  // namespace
