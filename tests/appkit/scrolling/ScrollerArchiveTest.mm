// Scrollers from archives and interface files.

#import "Coding.h"
#import "InterfaceFiles.h"
#import "ScrollerTest.h"

using namespace ov::test;

@interface OvTestScrollerOwner : NSObject {
 @public
  HXScroller *scroller;
}
@end

@implementation OvTestScrollerOwner
- (void)setScroller:(HXScroller *)object {
  scroller = object;
}
- (void)scrolled:(id)sender {
  (void)sender;
}
@end

namespace {

class ScrollerArchive : public ScrollerTest, public testing::WithParamInterface<Coding> {};

TEST_P(ScrollerArchive, HasTheDefaultAppearanceAndNoDelegate) {
  const PartImages images;
  for (const NSRect frame : {NSMakeRect(5, 6, 18, 148), NSMakeRect(5, 6, 148, 18)}) {
    for (const BOOL enabled : {NO, YES}) {
      HXScroller *scroller = [[[HXScroller alloc] initWithFrame:frame] autorelease];
      [scroller setAppearance:HXScrollerAppearanceBlack];
      [scroller setDelegate:NSApp];
      [scroller setAction:@selector(scrolled:)];
      [scroller setKnobProportion:0.25];
      [scroller setFloatValue:0.75F];
      [scroller setEnabled:enabled];
      HXScroller *copy = roundTrip(scroller, GetParam());
      ASSERT_TRUE([copy isMemberOfClass:[HXScroller class]]);
      EXPECT_EQ([copy appearance], HXScrollerAppearanceDefault);
      EXPECT_EQ([copy delegate], nil);
      EXPECT_EQ([copy valueForKey:@"imageContainers"], nil);
      EXPECT_EQ([copy frame], frame);
      EXPECT_TRUE(sel_isEqual([copy action], @selector(scrolled:)));
      EXPECT_EQ([copy hitPart], static_cast<NSScrollerPart>(NSScrollerNoPart));
      if (GetParam() == Coding::keyed) {
        // The platform does not keep these in sequential archives.
        EXPECT_FLOAT_EQ([copy floatValue], 0.75F);
        EXPECT_FLOAT_EQ(static_cast<float>([copy knobProportion]), 0.25F);
      } else {
        // … and this not in keyed ones, where the proportion enables.
        EXPECT_EQ([copy isEnabled], enabled);
      }
      // It is as good as new.
      [copy setAppearance:HXScrollerAppearanceMetal];
      EXPECT_EQ([[copy valueForKey:@"imageContainers"] count], 12u);
      NSWindow *window = makeWindow(NSMakeSize(200, 200));
      [[window contentView] addSubview:copy];
      [copy setFloatValue:0.5F];
      pictureOf(copy);
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Both, ScrollerArchive, testing::Values(Coding::keyed, Coding::sequential),
                         codingName);

class ScrollerInterfaceFile : public ScrollerTest {};

TEST_F(ScrollerInterfaceFile, AnXMLFileMakesOne) {
  NSString *objects =
      @"<scroller id=\"s1\" customClass=\"HXScroller\" horizontal=\"NO\" doubleValue=\"0.5\" "
      @"knobProportion=\"0.25\">"
      @"<rect key=\"frame\" x=\"5.0\" y=\"6.0\" width=\"18\" height=\"120\"/></scroller>";
  OvTestScrollerOwner *owner = [[[OvTestScrollerOwner alloc] init] autorelease];
  ASSERT_TRUE(loadXib(owner, @{@"scroller" : @"s1"}, objects));
  ASSERT_TRUE([owner->scroller isMemberOfClass:[HXScroller class]]);
  EXPECT_EQ([owner->scroller frame].size, NSMakeSize(18, 120));
  EXPECT_EQ([owner->scroller appearance], HXScrollerAppearanceDefault);
  EXPECT_EQ([owner->scroller delegate], nil);
  [owner->scroller setAppearance:HXScrollerAppearanceMetal];
  EXPECT_EQ([owner->scroller appearance], HXScrollerAppearanceMetal);
}

}  // namespace
