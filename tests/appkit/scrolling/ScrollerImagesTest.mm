// Names, keys and containers of the images, and how they look on the screen.

#import "ScrollerTest.h"

using namespace ov::test;

// Says that its images are elsewhere; nobody asks.
@interface OvTestOwnImages : HXScroller
@end

@implementation OvTestOwnImages
+ (NSDictionary *)_imageContainersForAppearance:(int)appearance isHoriz:(BOOL)horizontal {
  (void)appearance;
  (void)horizontal;
  return [NSDictionary dictionary];
}
@end

namespace {

class ScrollerImages : public ScrollerTest {};

TEST_F(ScrollerImages, PartNamesAreTheirOwnText) {
  const char *const texts[] = {"DecrementArrow_MinEnd",
                               "DecrementArrow_MaxEnd_EndCap",
                               "DecrementArrow_MinEnd_EndCap",
                               "IncrementArrow_MaxEnd",
                               "IncrementArrow_MaxEnd_EndCap",
                               "IncrementArrow_MinEnd_EndCap",
                               "KnobBody",
                               "KnobCap_MaxEnd",
                               "KnobCap_MinEnd",
                               "EndCap_MaxEnd",
                               "EndCap_MinEnd",
                               "KnobSlot"};
  ASSERT_EQ([partNames() count], std::size(texts));
  for (NSUInteger i = 0; i < std::size(texts); ++i) {
    EXPECT_STREQ([[partNames() objectAtIndex:i] UTF8String], texts[i]);
  }
}

TEST_F(ScrollerImages, ResourceNames) {
  const auto name = [](NSString *part, int appearance, BOOL horizontal) -> std::string {
    NSString *answer = [HXScroller _imageResourceNameForPartName:part
                                                      appearance:appearance
                                                         isHoriz:horizontal];
    return answer == nil ? "nil" : [answer UTF8String];
  };
  EXPECT_EQ(name(HXScrollerPartName_KnobBody, 1, NO), "HXScroller_Metal_KnobBody_V");
  EXPECT_EQ(name(HXScrollerPartName_KnobBody, 1, YES), "HXScroller_Metal_KnobBody_H");
  EXPECT_EQ(name(HXScrollerPartName_EndCap_MinEnd, 2, NO), "HXScroller_Black_EndCap_MinEnd_V");
  EXPECT_EQ(name(HXScrollerPartName_EndCap_MinEnd, 2, YES), "HXScroller_Black_EndCap_MinEnd_H");
  for (const int other : {0, 3, -1}) EXPECT_EQ(name(HXScrollerPartName_KnobBody, other, NO), "nil");
}

TEST_F(ScrollerImages, Keys) {
  EXPECT_EQ([HXScroller _imageKeyForPartEnabled:YES partPushed:0], HXImageControlDefaultImageKey);
  EXPECT_EQ([HXScroller _imageKeyForPartEnabled:YES partPushed:1], HXImageControlAlternateImageKey);
  EXPECT_EQ([HXScroller _imageKeyForPartEnabled:YES partPushed:2], HXImageControlDefaultImageKey);
  EXPECT_EQ([HXScroller _imageKeyForPartEnabled:YES partPushed:-1], HXImageControlDefaultImageKey);
  for (const int pushed : {0, 1, 2}) {
    EXPECT_EQ([HXScroller _imageKeyForPartEnabled:NO partPushed:pushed],
              HXImageControlDisabledImageKey);
  }
}

TEST_F(ScrollerImages, OnlyTheClassItselfMayLieOverTheContent) {
  EXPECT_TRUE([HXScroller isCompatibleWithOverlayScrollers]);
  EXPECT_FALSE([OvTestScroller isCompatibleWithOverlayScrollers]);
}

TEST_F(ScrollerImages, AContainerForEachPart) {
  const PartImages images;
  for (const int theme : kThemes) {
    for (const BOOL horizontal : {NO, YES}) {
      PartImages::requests().clear();
      NSDictionary *containers = [OvTestScroller _imageContainersForAppearance:theme
                                                                       isHoriz:horizontal];
      EXPECT_EQ([containers count], 12u);
      std::set<std::string> names;
      for (const auto &[bundle, name] : PartImages::requests()) {
        EXPECT_EQ(bundle, [NSBundle bundleForClass:[OvTestScroller class]]);
        EXPECT_NE(bundle, [NSBundle bundleForClass:[HXScroller class]]);
        names.insert(name);
      }
      for (NSString *part in partNames()) {
        NSString *name = [HXScroller _imageResourceNameForPartName:part
                                                        appearance:theme
                                                           isHoriz:horizontal];
        EXPECT_EQ(names.erase([name UTF8String]), 1u) << [name UTF8String];
        HXDictionaryImageContainer *container = [containers objectForKey:part];
        EXPECT_TRUE([container isMemberOfClass:[HXDictionaryImageContainer class]]);
        const bool isSlot = [part isEqual:HXScrollerPartName_KnobSlot];
        const bool isCap = [part hasPrefix:@"EndCap"];
        EXPECT_TRUE([container containsImageForKey:HXImageControlDefaultImageKey]);
        EXPECT_EQ([container containsImageForKey:HXImageControlDisabledImageKey], !isSlot);
        EXPECT_EQ([container containsImageForKey:HXImageControlAlternateImageKey],
                  !isSlot && !isCap);
        EXPECT_FALSE([container containsImageForKey:HXImageControlMouseOverImageKey]);
        EXPECT_EQ([container imageSizeForKey:HXImageControlDefaultImageKey],
                  sizeOfPart(part, horizontal));
      }
      EXPECT_TRUE(names.empty());
    }
  }
  for (const int other : {0, 3, -1}) {
    EXPECT_EQ([HXScroller _imageContainersForAppearance:other isHoriz:NO], nil);
  }
}

TEST_F(ScrollerImages, AMissingImageLeavesTheContainerEmpty) {
  // The test's own bundle has none.
  NSDictionary *containers = [OvTestScroller _imageContainersForAppearance:1 isHoriz:NO];
  for (HXDictionaryImageContainer *container in [containers allValues]) {
    EXPECT_FALSE([container containsImageForKey:HXImageControlDefaultImageKey]);
  }
}

TEST_F(ScrollerImages, TheAppearanceDecides) {
  const PartImages images;
  NSWindow *window = showWindow(NSMakeSize(240, 240));
  OvTestScroller *scroller = makeScroller(window, true, 148);
  EXPECT_EQ([scroller appearance], HXScrollerAppearanceDefault);
  EXPECT_EQ([scroller delegate], nil);
  EXPECT_EQ([scroller valueForKey:@"imageContainers"], nil);
  scroller->isMarking = true;
  [scroller setAppearance:HXScrollerAppearanceDefault];
  EXPECT_TRUE(journal().empty()) << "what it has already";

  [scroller setAppearance:HXScrollerAppearanceMetal];
  EXPECT_EQ(takeJournal(), Lines{"marked 0 0 148 18"});
  EXPECT_EQ([scroller appearance], HXScrollerAppearanceMetal);
  EXPECT_FALSE([scroller isOpaque]);
  NSDictionary *metal = [scroller valueForKey:@"imageContainers"];
  EXPECT_EQ([metal count], 12u);
  EXPECT_EQ(PartImages::requests().size(), 12u);
  [scroller setAppearance:HXScrollerAppearanceMetal];
  EXPECT_EQ([scroller valueForKey:@"imageContainers"], metal);
  EXPECT_TRUE(journal().empty());
  EXPECT_EQ(PartImages::requests().size(), 12u);
  // Drawing asks for none.
  [scroller display];
  [scroller setFloatValue:0.1F];
  [scroller display];
  EXPECT_EQ(PartImages::requests().size(), 12u);

  journal().clear();
  [scroller setAppearance:HXScrollerAppearanceBlack];
  EXPECT_EQ(takeJournal(), Lines{"marked 0 0 148 18"});
  EXPECT_NE([scroller valueForKey:@"imageContainers"], metal);
  EXPECT_NE(PartImages::requests().back().second.find("HXScroller_Black_"), std::string::npos);
  [scroller setAppearance:HXScrollerAppearanceDefault];
  EXPECT_EQ(takeJournal(), Lines{"marked 0 0 148 18"});
  EXPECT_EQ([scroller valueForKey:@"imageContainers"], nil);
  EXPECT_TRUE([scroller isOpaque]);
}

TEST_F(ScrollerImages, AreAlwaysThoseOfTheClassItself) {
  const PartImages images;
  OvTestOwnImages *scroller =
      [[[OvTestOwnImages alloc] initWithFrame:NSMakeRect(0, 0, 18, 148)] autorelease];
  [scroller setAppearance:HXScrollerAppearanceBlack];
  EXPECT_EQ([[scroller valueForKey:@"imageContainers"] count], 12u);
  for (const auto &[bundle, name] : PartImages::requests()) {
    EXPECT_EQ(bundle, [NSBundle bundleForClass:[HXScroller class]]) << name;
    EXPECT_TRUE(name.ends_with("_V"));
  }
}

TEST_F(ScrollerImages, StayWhenTheScrollerTurns) {
  const PartImages images;
  OvTestScroller *scroller =
      [[[OvTestScroller alloc] initWithFrame:NSMakeRect(0, 0, 18, 148)] autorelease];
  [scroller setAppearance:HXScrollerAppearanceMetal];
  NSDictionary *vertical = [scroller valueForKey:@"imageContainers"];
  [scroller setFrame:NSMakeRect(0, 0, 148, 18)];
  EXPECT_EQ([scroller valueForKey:@"imageContainers"], vertical);
  [scroller setAppearance:HXScrollerAppearanceBlack];
  EXPECT_TRUE(PartImages::requests().back().second.ends_with("_H"));
}

TEST_F(ScrollerImages, GoWithTheScroller) {
  HXScroller *scroller = [[HXScroller alloc] initWithFrame:NSMakeRect(0, 0, 18, 148)];
  [scroller setAppearance:HXScrollerAppearanceMetal];
  [scroller setValue:@{@"x" : [[[OvTestDeathCounter alloc] init] autorelease]}
              forKey:@"imageContainers"];
  const int before = [OvTestDeathCounter deaths];
  drainPool();
  EXPECT_EQ([OvTestDeathCounter deaths], before);
  [scroller release];
  drainPool();
  EXPECT_EQ([OvTestDeathCounter deaths], before + 1);
}

// The pixels of a tile: its colour, and the mark at its visual top left.
void expectTile(const Picture &picture, NSRect rect, NSString *part, int state) {
  const Pixel color = PartImages::color(part, state);
  const int x = static_cast<int>(NSMinX(rect)), y = static_cast<int>(NSMinY(rect));
  const int right = static_cast<int>(NSMaxX(rect)) - 1;
  const int bottom = static_cast<int>(NSMaxY(rect)) - 1;
  SCOPED_TRACE(testing::Message() << [part UTF8String] << " " << rect);
  EXPECT_EQ(picture.at(x, y), kBlack);
  EXPECT_EQ(picture.at(right, y), color);
  EXPECT_EQ(picture.at(x, bottom), color);
  EXPECT_EQ(picture.at(right, bottom), color);
}

TEST_F(ScrollerImages, LieUprightInFlippedAndOtherScrollers) {
  const PartImages images;
  NSWindow *window = showWindow(NSMakeSize(240, 240));
  for (const int theme : kThemes) {
    for (const bool horizontal : {false, true}) {
      for (const bool unflipped : {false, true}) {
        for (const bool enabled : {false, true}) {
          [OvTestScroller setArrows:4];
          OvTestScroller *scroller = makeScroller(window, horizontal, 148);
          scroller->unflipped = unflipped;
          [scroller setAppearance:theme];
          [scroller setEnabled:enabled];
          const Picture picture = pictureOf(scroller);
          const auto place = [&](CGFloat start, NSString *part) {
            const NSSize size = sizeOfPart(part, horizontal);
            NSRect rect = horizontal ? NSMakeRect(start, 0, size.width, size.height)
                                     : NSMakeRect(0, start, size.width, size.height);
            if (unflipped) rect.origin.y = NSHeight([scroller bounds]) - NSMaxY(rect);
            expectTile(picture, rect, part, enabled ? 1 : 0);
          };
          place(0, HXScrollerPartName_DecrementArrow_MinEnd);
          place(10, HXScrollerPartName_IncrementArrow_MinEnd_EndCap);
          place(138, HXScrollerPartName_IncrementArrow_MaxEnd);
          place(124, HXScrollerPartName_DecrementArrow_MaxEnd_EndCap);
          // In the middle: the body, over the slot.
          const Pixel body = PartImages::color(HXScrollerPartName_KnobBody, enabled ? 1 : 0);
          EXPECT_EQ(horizontal ? picture.at(80, 13) : picture.at(13, 80), body) << unflipped;
          // Beside the body, and beyond the knob: the slot.
          const Pixel slot = PartImages::color(HXScrollerPartName_KnobSlot, 0);
          EXPECT_EQ(horizontal ? picture.at(75, 17) : picture.at(17, 75), slot);
          EXPECT_EQ(horizontal ? picture.at(118, 12) : picture.at(12, 118), slot);
          [scroller removeFromSuperview];
        }
      }
    }
  }
}

TEST_F(ScrollerImages, PushedOnesAreTheThirdState) {
  const PartImages images;
  [OvTestScroller setArrows:1];
  OvTestScroller *scroller = makeScroller(showWindow(NSMakeSize(240, 240)), false, 148);
  [scroller setAppearance:HXScrollerAppearanceMetal];
  [scroller setValue:@5 forKey:@"hitPart"];
  const Picture picture = pictureOf(scroller);
  expectTile(picture, NSMakeRect(0, 134, 18, 14), HXScrollerPartName_IncrementArrow_MaxEnd_EndCap,
             2);
  expectTile(picture, NSMakeRect(0, 0, 18, 14), HXScrollerPartName_DecrementArrow_MinEnd_EndCap, 1);
}

TEST_F(ScrollerImages, ShowWhatLiesBelowWhereTheyAreTransparent) {
  NSWindow *window = showWindow(NSMakeSize(240, 240));
  [window setBackgroundColor:[NSColor colorWithDeviceRed:0 green:0 blue:1 alpha:1]];
  OvTestScroller *scroller = makeScroller(window, false, 148);
  [scroller setAppearance:HXScrollerAppearanceMetal];
  setRecordingParts(scroller);
  EXPECT_EQ(pictureOf(scroller).count([scroller bounds], kBlue), 18 * 148);
}

// The library's own images.
class ScrollerThemes : public ScrollerTest, public testing::WithParamInterface<int> {
 protected:
  void SetUp() override {
    ScrollerTest::SetUp();
    window = showWindow(NSMakeSize(240, 240));
    [window setBackgroundColor:[NSColor colorWithDeviceRed:0 green:0 blue:1 alpha:1]];
  }

  Picture drawn(bool horizontal, int hitPart = 0, bool enabled = true, CGFloat length = 148) {
    OvTestScroller *scroller = makeScroller(window, horizontal, length);
    [scroller setAppearance:GetParam()];
    [scroller setEnabled:enabled];
    [scroller setValue:@(hitPart) forKey:@"hitPart"];
    const Picture picture = pictureOf(scroller);
    EXPECT_EQ(picture.count([scroller bounds], kBlue), 0) << "the images leave nothing open";
    [scroller removeFromSuperview];
    return picture;
  }

  // In a stretch of a vertical scroller.
  static int differences(const Picture &a, const Picture &b, int from = 0, int to = 148) {
    int count = 0;
    for (int y = from; y < to; ++y) {
      for (int x = 0; x < 18; ++x) count += !near(a.at(x, y), b.at(x, y));
    }
    return count;
  }

  NSWindow *window;
};

INSTANTIATE_TEST_SUITE_P(Both, ScrollerThemes, testing::ValuesIn(kThemes), [](const auto &info) {
  return info.param == HXScrollerAppearanceMetal ? "metal" : "black";
});

TEST_P(ScrollerThemes, AHorizontalScrollerIsAVerticalOneTurned) {
  for (const int configuration : {1, 2, 3, 4}) {
    [OvTestScroller setArrows:configuration];
    for (const int hitPart : {0, 2, 4, 5}) {
      const Picture vertical = drawn(false, hitPart);
      const Picture horizontal = drawn(true, hitPart);
      int different = 0;
      for (int y = 0; y < 148; ++y) {
        for (int x = 0; x < 18; ++x) different += !near(vertical.at(x, y), horizontal.at(y, x));
      }
      EXPECT_EQ(different, 0) << configuration << " " << hitPart;
    }
  }
}

TEST_P(ScrollerThemes, StatesAreSeen) {
  // An arrow, 18 long, and 5 of the slot's end at each end; the knob in the middle.
  [OvTestScroller setArrows:1];
  const Picture normal = drawn(false);
  const Picture pushedKnob = drawn(false, 2);
  EXPECT_GT(differences(normal, pushedKnob, 60, 90), 100);
  EXPECT_EQ(differences(normal, pushedKnob, 0, 23), 0);
  EXPECT_EQ(differences(normal, pushedKnob, 125, 148), 0);
  const Picture pushedUp = drawn(false, 4);
  EXPECT_GT(differences(normal, pushedUp, 0, 18), 100);
  EXPECT_EQ(differences(normal, pushedUp, 23, 148), 0);
  const Picture pushedDown = drawn(false, 5);
  EXPECT_GT(differences(normal, pushedDown, 130, 148), 100);
  EXPECT_EQ(differences(normal, pushedDown, 0, 125), 0);
  const Picture disabled = drawn(false, 0, false);
  EXPECT_GT(differences(normal, disabled, 0, 18), 50);
  EXPECT_GT(differences(normal, disabled, 60, 90), 50);
  EXPECT_GT(differences(normal, disabled, 130, 148), 50);
  // Between arrow and knob there is slot, which has one state.
  EXPECT_EQ(differences(normal, disabled, 24, 46), 0);
}

TEST_P(ScrollerThemes, ShortOnesAreFilledToo) {
  for (const int configuration : {0, 1, 2, 3, 4}) {
    [OvTestScroller setArrows:configuration];
    for (CGFloat length = 19; length < 110; length += 7) drawn(false, 0, true, length);
  }
}

}  // namespace
