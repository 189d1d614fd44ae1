// Which pieces are drawn where, in which state.

#import "ScrollerTest.h"

using namespace ov::test;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class ScrollerDrawing : public ScrollerTest {
 protected:
  void SetUp() override {
    ScrollerTest::SetUp();
    window = showWindow(NSMakeSize(240, 240));
  }

  OvTestScroller *themed(bool horizontal, CGFloat length = 148, int theme = 1) {
    OvTestScroller *scroller = makeScroller(window, horizontal, length);
    [scroller setAppearance:theme];
    setRecordingParts(scroller);
    return scroller;
  }

  // The platform's scroller, as large.
  NSScroller *beside(NSRect frame) {
    const NSRect moved = NSOffsetRect(frame, 30, 30);
    return addScroller(window, [[[NSScroller alloc] initWithFrame:moved] autorelease]);
  }

  // Two views drawn alike, pixel by pixel.
  static void expectSame(NSView *a, NSView *b) {
    // The platform's scrollers leave the line around them to what lies below.
    [[a window] display];
    const Picture one = pictureOf(a);
    const Picture other = pictureOf(b);
    ASSERT_EQ(one.width(), other.width());
    for (int y = 0; y < one.height(); ++y) {
      for (int x = 0; x < one.width(); ++x) {
        ASSERT_EQ(one.at(x, y), other.at(x, y)) << x << ", " << y;
      }
    }
  }

  NSWindow *window;
};

struct Piece {
  NSString *part;
  int arrow;  // whose it is, or -1
  CGFloat start;
  CGFloat length;
};

// In a scroller that is 148 long.
std::vector<Piece> piecesOf(int arrow, int configuration) {
  const Piece bothAtMin[] = {{HXScrollerPartName_DecrementArrow_MinEnd, 1, 0, 10},
                             {HXScrollerPartName_IncrementArrow_MinEnd_EndCap, 0, 10, 14}};
  const Piece bothAtMax[] = {{HXScrollerPartName_IncrementArrow_MaxEnd, 0, 138, 10},
                             {HXScrollerPartName_DecrementArrow_MaxEnd_EndCap, 1, 124, 14}};
  if (arrow == 1) {
    switch (configuration) {
      case 1:
        return {{HXScrollerPartName_DecrementArrow_MinEnd_EndCap, 1, 0, 14}};
      case 3:
        return {{HXScrollerPartName_EndCap_MinEnd, -1, 0, 3}};
      case 2:
      case 4:
        return {std::begin(bothAtMin), std::end(bothAtMin)};
      default:
        return {};
    }
  }
  switch (configuration) {
    case 1:
      return {{HXScrollerPartName_IncrementArrow_MaxEnd_EndCap, 0, 134, 14}};
    case 2:
      return {{HXScrollerPartName_EndCap_MaxEnd, -1, 145, 3}};
    case 3:
    case 4:
      return {std::begin(bothAtMax), std::end(bothAtMax)};
    default:
      return {};
  }
}

Lines expectedArrow(int arrow, int configuration, int highlightPart, bool horizontal,
                    bool enabled = true) {
  Lines lines;
  for (const Piece &piece : piecesOf(arrow, configuration)) {
    const bool pushed = piece.arrow >= 0 && piece.arrow == highlightPart;
    const NSRect rect = horizontal ? NSMakeRect(piece.start, 0, piece.length, 18)
                                   : NSMakeRect(0, piece.start, 18, piece.length);
    lines.push_back(std::string([piece.part UTF8String]) +
                    (!enabled ? " disabled "
                     : pushed ? " alternate "
                              : " default ") +
                    text(rect));
  }
  return lines;
}

TEST_F(ScrollerDrawing, ArrowsByConfiguration) {
  for (const bool horizontal : {false, true}) {
    for (const int theme : kThemes) {
      OvTestScroller *scroller = themed(horizontal, 148, theme);
      for (const int configuration : {1, 2, 3, 4, 0, 5, -1}) {
        [OvTestScroller setArrows:configuration];
        for (const int arrow : {0, 1}) {
          for (const int highlightPart : {0, 1, -1, 2, 7}) {
            SCOPED_TRACE(testing::Message()
                         << (horizontal ? "horizontal" : "vertical") << ", arrow " << arrow
                         << ", configuration " << configuration << ", pushed " << highlightPart);
            [scroller drawArrow:static_cast<NSScrollerArrow>(arrow) highlightPart:highlightPart];
            EXPECT_EQ(takeJournal(),
                      expectedArrow(arrow, configuration, highlightPart, horizontal));
          }
        }
      }
    }
  }
}

TEST_F(ScrollerDrawing, PushingOneArrowLeavesItsNeighbour) {
  [OvTestScroller setArrows:3];
  OvTestScroller *scroller = themed(false);
  [scroller drawArrow:NSScrollerIncrementArrow highlightPart:0];
  EXPECT_THAT(takeJournal(), ElementsAre("IncrementArrow_MaxEnd alternate 0 138 18 10",
                                         "DecrementArrow_MaxEnd_EndCap default 0 124 18 14"));
  [scroller drawArrow:NSScrollerDecrementArrow highlightPart:0];
  EXPECT_THAT(takeJournal(), ElementsAre("EndCap_MinEnd default 0 0 18 3"));
}

TEST_F(ScrollerDrawing, ArrowsThatAreNoneDrawNothing) {
  OvTestScroller *scroller = themed(false);
  [scroller drawArrow:2 highlightPart:0];
  [scroller drawArrow:NSNotFound highlightPart:0];
  EXPECT_THAT(takeJournal(), IsEmpty());
}

// The platform's own way to have an arrow drawn.
TEST_F(ScrollerDrawing, ThePlatformsFlagPushesTheArrow) {
  [OvTestScroller setArrows:4];
  OvTestScroller *scroller = themed(false);
  for (const int arrow : {0, 1}) {
    [scroller drawArrow:static_cast<NSScrollerArrow>(arrow) highlight:YES];
    EXPECT_EQ(takeJournal(), expectedArrow(arrow, 4, arrow, false));
    [scroller drawArrow:static_cast<NSScrollerArrow>(arrow) highlight:NO];
    EXPECT_EQ(takeJournal(), expectedArrow(arrow, 4, -1, false));
  }
}

TEST_F(ScrollerDrawing, AKnobInThreePieces) {
  OvTestScroller *vertical = themed(false);
  vertical->knob = NSMakeRect(1, 50, 18, 40);
  [vertical drawKnob];
  EXPECT_THAT(takeJournal(),
              ElementsAre("KnobBody default 2 55 16 31", "KnobCap_MinEnd default 3 50 14 6",
                          "KnobCap_MaxEnd default 4 85 12 5"));
  OvTestScroller *horizontal = themed(true);
  horizontal->knob = NSMakeRect(50, 1, 40, 18);
  [horizontal drawKnob];
  EXPECT_THAT(takeJournal(),
              ElementsAre("KnobBody default 55 2 31 16", "KnobCap_MinEnd default 50 3 6 14",
                          "KnobCap_MaxEnd default 85 4 5 12"));
}

TEST_F(ScrollerDrawing, PiecesAreToldWhetherTheScrollerIsFlipped) {
  OvTestScroller *scroller = themed(false);
  scroller->unflipped = true;
  [scroller drawRect:[scroller bounds]];
  const Lines lines = takeJournal();
  EXPECT_EQ(lines.size(), 6u);
  for (const std::string &line : lines) EXPECT_THAT(line, testing::EndsWith(" unflipped"));
}

TEST_F(ScrollerDrawing, TheKnobIsPushedWhileItIsHit) {
  OvTestScroller *scroller = themed(false);
  for (const int part : {0, 1, 2, 3, 4, 5, 6}) {
    [scroller setValue:@(part) forKey:@"hitPart"];
    [scroller drawKnob];
    const Lines lines = takeJournal();
    ASSERT_EQ(lines.size(), 3u);
    for (const std::string &line : lines) {
      EXPECT_THAT(line, testing::HasSubstr(part == 2 ? " alternate " : " default ")) << part;
    }
  }
}

TEST_F(ScrollerDrawing, TheSlotIsAsThickAsItsImageAndNeverDisabled) {
  for (const BOOL flag : {NO, YES}) {
    OvTestScroller *scroller = themed(false);
    [scroller drawKnobSlotInRect:NSMakeRect(1, 2, 30, 40) highlight:flag];
    EXPECT_THAT(takeJournal(), ElementsAre("KnobSlot default 1 2 18 40"));
    [scroller setEnabled:NO];
    [scroller drawKnobSlotInRect:NSMakeRect(1, 2, 30, 40) highlight:flag];
    EXPECT_THAT(takeJournal(), ElementsAre("KnobSlot default 1 2 18 40"));
    scroller = themed(true);
    [scroller drawKnobSlotInRect:NSMakeRect(1, 2, 30, 40) highlight:flag];
    EXPECT_THAT(takeJournal(), ElementsAre("KnobSlot default 1 2 30 18"));
  }
}

// Slot, knob, then both calls for the arrows.
Lines wholeScroller(int configuration, int pushed, bool enabled, bool knobIsPushed = false) {
  const CGFloat starts[] = {0, 14, 24, 3, 24};
  const CGFloat ends[] = {148, 134, 145, 124, 124};
  const CGFloat start = starts[configuration], length = ends[configuration] - start;
  Lines lines = {"KnobSlot default " + text(NSMakeRect(0, start, 18, length))};
  const std::string state = !enabled ? " disabled " : knobIsPushed ? " alternate " : " default ";
  const CGFloat knobLength = std::floor(length / 2);
  const CGFloat knob = start + std::floor((length - knobLength) / 2);
  lines.push_back("KnobBody" + state + text(NSMakeRect(1, knob + 5, 16, knobLength - 9)));
  lines.push_back("KnobCap_MinEnd" + state + text(NSMakeRect(2, knob, 14, 6)));
  lines.push_back("KnobCap_MaxEnd" + state + text(NSMakeRect(3, knob + knobLength - 5, 12, 5)));
  for (const int arrow : {1, 0}) {
    for (const std::string &line : expectedArrow(arrow, configuration, pushed, false, enabled)) {
      lines.push_back(line);
    }
  }
  return lines;
}

TEST_F(ScrollerDrawing, AWholeScroller) {
  OvTestScroller *scroller = themed(false);
  for (const int configuration : {1, 2, 3, 4, 0}) {
    [OvTestScroller setArrows:configuration];
    [scroller drawRect:[scroller bounds]];
    EXPECT_EQ(takeJournal(), wholeScroller(configuration, -1, true));
    [scroller setValue:@4 forKey:@"hitPart"];
    [scroller drawRect:[scroller bounds]];
    EXPECT_EQ(takeJournal(), wholeScroller(configuration, 1, true));
    [scroller setValue:@5 forKey:@"hitPart"];
    [scroller drawRect:[scroller bounds]];
    EXPECT_EQ(takeJournal(), wholeScroller(configuration, 0, true));
    [scroller setValue:@2 forKey:@"hitPart"];
    [scroller drawRect:[scroller bounds]];
    EXPECT_EQ(takeJournal(), wholeScroller(configuration, -1, true, true));
    [scroller setValue:@0 forKey:@"hitPart"];
  }
}

TEST_F(ScrollerDrawing, DisabledItShowsAllButTheSlotDisabled) {
  OvTestScroller *scroller = themed(false);
  [scroller setEnabled:NO];
  for (const int configuration : {1, 2, 3, 4}) {
    [OvTestScroller setArrows:configuration];
    // Not even what is pressed looks so.
    for (const int part : {0, 2, 4, 5}) {
      [scroller setValue:@(part) forKey:@"hitPart"];
      [scroller drawRect:[scroller bounds]];
      EXPECT_EQ(takeJournal(), wholeScroller(configuration, -1, false));
    }
  }
}

TEST_F(ScrollerDrawing, WithoutKeyWindowItShowsAllButTheSlotDisabled) {
  OvTestScroller *scroller = themed(false);
  [scroller drawRect:[scroller bounds]];
  EXPECT_EQ(takeJournal(), wholeScroller(1, -1, true));
  showWindow(NSMakeSize(100, 100));
  ASSERT_TRUE(pumpUntil([&] { return ![window isKeyWindow]; }));
  journal().clear();
  EXPECT_TRUE([scroller isEnabled]);
  [scroller drawRect:[scroller bounds]];
  EXPECT_EQ(takeJournal(), wholeScroller(1, -1, false));
  [scroller retain];
  [scroller removeFromSuperview];
  [scroller drawRect:[scroller bounds]];
  EXPECT_EQ(takeJournal(), wholeScroller(1, -1, false)) << "without window";
  [scroller release];
}

TEST_F(ScrollerDrawing, WhatHasNoImageIsNotDrawnAndTakesNoRoom) {
  OvTestScroller *scroller = themed(false);
  NSMutableArray *names = [NSMutableArray arrayWithArray:partNames()];
  [names removeObject:HXScrollerPartName_DecrementArrow_MinEnd];
  [names removeObject:HXScrollerPartName_KnobCap_MinEnd];
  [names removeObject:HXScrollerPartName_KnobSlot];
  setRecordingParts(scroller, names);
  [OvTestScroller setArrows:2];
  scroller->knob = NSMakeRect(0, 50, 18, 40);
  [scroller drawRect:[scroller bounds]];
  EXPECT_THAT(takeJournal(),
              ElementsAre("KnobBody default 1 49 16 37", "KnobCap_MaxEnd default 3 85 12 5",
                          "IncrementArrow_MinEnd_EndCap default 0 0 18 14",
                          "EndCap_MaxEnd default 0 145 18 3"));
  EXPECT_EQ([scroller rectForPart:NSScrollerIncrementLine], NSMakeRect(0, 0, 18, 14));
  EXPECT_EQ([scroller rectForPart:NSScrollerDecrementLine], NSZeroRect);
}

TEST_F(ScrollerDrawing, AStateWithoutImageIsNotDrawn) {
  OvTestScroller *scroller = themed(false);
  setRecordingParts(scroller, partNames(), @[ HXImageControlAlternateImageKey ]);
  [scroller drawArrow:NSScrollerIncrementArrow highlightPart:0];
  EXPECT_THAT(takeJournal(), IsEmpty());
  [scroller drawArrow:NSScrollerIncrementArrow highlightPart:1];
  EXPECT_EQ(takeJournal(), expectedArrow(0, 1, 1, false));
  setRecordingParts(scroller, partNames(), @[ HXImageControlDefaultImageKey ]);
  [scroller drawKnobSlotInRect:[scroller bounds] highlight:NO];
  EXPECT_THAT(takeJournal(), IsEmpty());
}

// The parts that remain do not lie over each other.
TEST_F(ScrollerDrawing, TooShortForItsParts) {
  struct {
    int configuration;
    CGFloat length;
    NSUsableScrollerParts parts;
    size_t drawn;  // slot, knob of three, and arrows
  } const rows[] = {
      {1, 46, NSAllScrollerParts, 6},   {1, 45, NSOnlyScrollerArrows, 3},
      {1, 28, NSOnlyScrollerArrows, 2}, {1, 27, NSNoScrollerParts, 1},
      {2, 45, NSAllScrollerParts, 7},   {2, 44, NSOnlyScrollerArrows, 4},
      {2, 26, NSNoScrollerParts, 1},    {3, 44, NSOnlyScrollerArrows, 4},
      {3, 26, NSNoScrollerParts, 1},    {4, 66, NSAllScrollerParts, 8},
      {4, 65, NSOnlyScrollerArrows, 5}, {4, 47, NSNoScrollerParts, 1},
      {1, 19, NSNoScrollerParts, 1},
  };
  for (const auto &row : rows) {
    for (const bool horizontal : {false, true}) {
      SCOPED_TRACE(testing::Message() << row.configuration << " " << row.length);
      [OvTestScroller setArrows:row.configuration];
      OvTestScroller *scroller = themed(horizontal, row.length);
      EXPECT_EQ([scroller usableParts], row.parts);
      [scroller drawRect:[scroller bounds]];
      EXPECT_EQ(takeJournal().size(), row.drawn);
    }
  }
}

TEST_F(ScrollerDrawing, WithoutAnySizeItSurvives) {
  for (const int configuration : {0, 1, 2, 3, 4}) {
    [OvTestScroller setArrows:configuration];
    OvTestScroller *scroller = themed(false);
    for (const NSSize size : {NSMakeSize(0, 0), NSMakeSize(18, 0), NSMakeSize(18, 1)}) {
      [scroller setFrameSize:size];
      [scroller drawRect:[scroller bounds]];
      pictureOf([window contentView]);
      EXPECT_EQ([scroller rectForPart:NSScrollerKnob], NSZeroRect);
    }
  }
}

TEST_F(ScrollerDrawing, ArrowsThatTheHostTookAwayAreNotDrawn) {
  OvTestScroller *scroller = themed(false);
  [scroller setArrowsPosition:NSScrollerArrowsNone];
  [scroller drawRect:[scroller bounds]];
  EXPECT_EQ(takeJournal(), wholeScroller(0, -1, true));
}

TEST_F(ScrollerDrawing, AnUnknownAppearanceDrawsNothing) {
  [window setBackgroundColor:[NSColor colorWithDeviceRed:0 green:0 blue:1 alpha:1]];
  for (const int appearance : {3, -1, 77}) {
    for (const bool horizontal : {false, true}) {
      OvTestScroller *scroller = makeScroller(window, horizontal, 148);
      [scroller setAppearance:appearance];
      EXPECT_EQ([scroller appearance], appearance);
      EXPECT_EQ([scroller valueForKey:@"imageContainers"], nil);
      EXPECT_FALSE([scroller isOpaque]);
      EXPECT_EQ(pictureOf(scroller).count([scroller bounds], kBlue), 18 * 148);
      [scroller lockFocus];
      [scroller drawArrow:NSScrollerIncrementArrow highlightPart:0];
      [scroller drawArrow:NSScrollerDecrementArrow highlight:YES];
      [scroller drawKnob];
      [scroller drawKnobSlotInRect:[scroller bounds] highlight:YES];
      [scroller unlockFocus];
      EXPECT_EQ(Picture(pictureOf(scroller)).count([scroller bounds], kBlue), 18 * 148);
      [scroller removeFromSuperview];
    }
  }
}

TEST_F(ScrollerDrawing, TheDefaultAppearanceIsThePlatforms) {
  for (const bool horizontal : {false, true}) {
    for (const CGFloat length : {148., 60., 40., 25.}) {
      const NSRect frame =
          horizontal ? NSMakeRect(20, 20, length, 18) : NSMakeRect(20, 20, 18, length);
      HXScroller *ours =
          addScroller(window, [[[HXScroller alloc] initWithFrame:frame] autorelease]);
      NSScroller *platforms = beside(frame);
      EXPECT_TRUE([ours isOpaque]);
      EXPECT_EQ([ours usableParts], [platforms usableParts]);
      for (const int part : {0, 1, 2, 3, 4, 5, 6}) {
        EXPECT_EQ([ours rectForPart:static_cast<NSScrollerPart>(part)],
                  [platforms rectForPart:static_cast<NSScrollerPart>(part)]);
        [ours setValue:@(part) forKey:@"hitPart"];
        [platforms setValue:@(part) forKey:@"hitPart"];
        expectSame(ours, platforms);
      }
      [ours setEnabled:NO];
      [platforms setEnabled:NO];
      expectSame(ours, platforms);
      // Themed in between.
      [ours setAppearance:HXScrollerAppearanceMetal];
      [ours setAppearance:HXScrollerAppearanceDefault];
      [ours setEnabled:YES];
      [platforms setEnabled:YES];
      expectSame(ours, platforms);
      [ours removeFromSuperview];
      [platforms removeFromSuperview];
    }
  }
}

TEST_F(ScrollerDrawing, TheDefaultAppearancesStepsAreThePlatforms) {
  const NSRect frame = NSMakeRect(20, 20, 18, 148);
  HXScroller *ours = addScroller(window, [[[HXScroller alloc] initWithFrame:frame] autorelease]);
  NSScroller *platforms = beside(frame);
  const auto drawn = [](NSScroller *scroller, const std::function<void()> &draw) {
    [[scroller window] display];
    [scroller lockFocus];
    draw();
    NSBitmapImageRep *rep =
        [[[NSBitmapImageRep alloc] initWithFocusedViewRect:[scroller bounds]] autorelease];
    [scroller unlockFocus];
    return Picture(rep);
  };
  const auto expectAlike = [&](const std::function<void()> &a, const std::function<void()> &b) {
    const Picture one = drawn(ours, a);
    const Picture another = drawn(platforms, b);
    for (int y = 0; y < 148; ++y) {
      for (int x = 0; x < 18; ++x) ASSERT_EQ(one.at(x, y), another.at(x, y)) << x << ", " << y;
    }
  };
  for (const int arrow : {0, 1}) {
    const auto which = static_cast<NSScrollerArrow>(arrow);
    for (const int pushed : {0, 1, -1}) {
      expectAlike([&] { [ours drawArrow:which highlightPart:pushed]; },
                  [&] { [platforms drawArrow:which highlight:pushed == arrow]; });
    }
    for (const BOOL flag : {NO, YES}) {
      expectAlike([&] { [ours drawArrow:which highlight:flag]; },
                  [&] { [platforms drawArrow:which highlight:flag]; });
      // As the platform does it after a press.
      [ours setValue:@(arrow == 0 ? 5 : 4) forKey:@"hitPart"];
      [platforms setValue:@(arrow == 0 ? 5 : 4) forKey:@"hitPart"];
      expectAlike([&] { [ours highlight:flag]; }, [&] { [platforms highlight:flag]; });
      [ours setValue:@0 forKey:@"hitPart"];
      [platforms setValue:@0 forKey:@"hitPart"];
    }
  }
  expectAlike([&] { [ours drawKnob]; }, [&] { [platforms drawKnob]; });
  for (const BOOL flag : {NO, YES}) {
    expectAlike([&] { [ours drawKnobSlotInRect:NSMakeRect(2, 9, 12, 40) highlight:flag]; },
                [&] { [platforms drawKnobSlotInRect:NSMakeRect(2, 9, 12, 40) highlight:flag]; });
  }
}

}  // namespace
