// What an image button shows in each of its states: the live side of the tables of the rules.

#import "ButtonTest.h"

using namespace ov::test;
using testing::ElementsAre;
using testing::IsEmpty;

@interface OvTestPlainSubcell : HXImageButtonCell
@end
@implementation OvTestPlainSubcell
@end

namespace {

constexpr HXImageControlImagePart kCenter = HXImageControlImagePartCenter;

class ImageButtonState : public ImageButtonTest {};

TEST_F(ImageButtonState, ANewOneHasNothingOfItsOwn) {
  HXImageButton *button =
      [[[HXImageButton alloc] initWithFrame:NSMakeRect(1, 2, 30, 20)] autorelease];
  EXPECT_EQ([button frame], NSMakeRect(1, 2, 30, 20));
  EXPECT_EQ([button delegate], nil);
  EXPECT_EQ([button imageContainer], nil);
  EXPECT_EQ([HXImageButton cellClass], [HXImageButtonCell class]);
  EXPECT_TRUE([[button cell] isMemberOfClass:[HXImageButtonCell class]]);
  EXPECT_EQ([button imageButtonCell], [button cell]);
  EXPECT_FALSE([button showsBorderOnlyWhileMouseInside]);

  EXPECT_EQ([[[[HXImageButtonCell alloc] init] autorelease] imageContainer], nil);
  EXPECT_EQ([[[[HXImageButtonCell alloc] initTextCell:@"a"] autorelease] imageContainer], nil);
  EXPECT_EQ([[[[HXImageButtonCell alloc] initImageCell:nil] autorelease] imageContainer], nil);
  EXPECT_EQ([NSButton cellClass], [NSButtonCell class]) << "plain buttons keep theirs";
}

TEST_F(ImageButtonState, TheDelegateIsNotRetained) {
  HXImageButton *button = makeButton();
  OvTestDeathCounter *delegate = [[OvTestDeathCounter alloc] init];
  int before = [OvTestDeathCounter deaths];
  [button setDelegate:delegate];
  EXPECT_EQ([button delegate], delegate);
  [delegate release];
  EXPECT_EQ([OvTestDeathCounter deaths], before + 1);
  [button setDelegate:nil];
  EXPECT_EQ([button delegate], nil);
}

TEST_F(ImageButtonState, OnlyAnImageButtonCellTakesAContainer) {
  HXImageButton *button = makeButton();
  OvTestArtwork *artwork = [OvTestArtwork artworkWithVariations:{3}];
  [button setCell:[[[NSButtonCell alloc] initTextCell:@""] autorelease]];
  [button setNeedsDisplay:NO];
  [button setImageContainer:artwork];
  EXPECT_EQ([button imageButtonCell], nil);
  EXPECT_EQ([button imageContainer], nil);
  EXPECT_FALSE([button needsDisplay]);
  EXPECT_FALSE([button showsBorderOnlyWhileMouseInside]);

  OvTestPlainSubcell *subcell = [[[OvTestPlainSubcell alloc] initTextCell:@""] autorelease];
  [button setCell:subcell];
  EXPECT_EQ([button imageButtonCell], subcell);
  [button setImageContainer:artwork];
  EXPECT_EQ([subcell imageContainer], artwork);
  EXPECT_EQ([button imageContainer], artwork);
}

TEST_F(ImageButtonState, ANewContainerRedrawsAndSaysWhetherThePointerMatters) {
  HXImageButton *button = makeButton();
  pictureOf(button);
  [button setNeedsDisplay:NO];
  [button setImageContainer:[OvTestArtwork artworkWithVariations:{1, 2, 4}]];
  EXPECT_TRUE([button needsDisplay]);
  EXPECT_FALSE([button showsBorderOnlyWhileMouseInside]);

  [button setNeedsDisplay:NO];
  [button setImageContainer:[OvTestArtwork artworkWithVariations:{3}]];
  EXPECT_TRUE([button needsDisplay]);
  EXPECT_TRUE([button showsBorderOnlyWhileMouseInside]);

  // An edge for the pointer is not enough: the center decides.
  OvTestArtwork *edges = [OvTestArtwork artworkWithVariations:{}];
  [edges setColor:kRed
                size:NSMakeSize(2, 2)
             forPart:HXImageControlImagePartLeft
      imageVariation:HXImageControlImageVariationMouseOver];
  [button setImageContainer:edges];
  EXPECT_FALSE([button showsBorderOnlyWhileMouseInside]);

  [button setImageContainer:[OvTestArtwork artworkWithVariations:{3}]];
  [button setNeedsDisplay:NO];
  [button setImageContainer:nil];
  EXPECT_EQ([button imageContainer], nil);
  EXPECT_TRUE([button needsDisplay]);
  EXPECT_FALSE([button showsBorderOnlyWhileMouseInside]);
}

TEST_F(ImageButtonState, TheSameContainerChangesNothing) {
  HXImageButton *button = makeButton();
  OvTestArtwork *artwork = [OvTestArtwork artworkWithVariations:{}];
  [button setImageContainer:artwork];
  pictureOf(button);
  [button setNeedsDisplay:NO];
  [artwork setColor:kGreen
                size:NSMakeSize(4, 4)
             forPart:kCenter
      imageVariation:HXImageControlImageVariationMouseOver];
  NSUInteger regions = [[button valueForKey:@"tracking_rects"] count];
  [button setImageContainer:artwork];
  EXPECT_FALSE([button needsDisplay]);
  EXPECT_FALSE([button showsBorderOnlyWhileMouseInside]);
  EXPECT_EQ([[button valueForKey:@"tracking_rects"] count], regions);

  [button setShowsBorderOnlyWhileMouseInside:YES];
  [button setNeedsDisplay:NO];
  [button setImageContainer:artwork];
  EXPECT_TRUE([button showsBorderOnlyWhileMouseInside]);
  EXPECT_FALSE([button needsDisplay]);
}

TEST_F(ImageButtonState, TheCellOwnsItsContainer) {
  int before = [OvTestDeathCounter deaths];
  HXImageButtonCell *cell = [[HXImageButtonCell alloc] initTextCell:@""];
  // Any object will do: nothing is drawn.
  id container = [[OvTestDeathCounter alloc] init];
  [cell setImageContainer:container];
  [cell setImageContainer:container];
  [container release];
  EXPECT_EQ([OvTestDeathCounter deaths], before);

  HXImageButtonCell *copy = [cell copy];
  EXPECT_EQ([copy imageContainer], container);
  [cell release];
  EXPECT_EQ([OvTestDeathCounter deaths], before) << "the copy shares it";
  [copy release];
  EXPECT_EQ([OvTestDeathCounter deaths], before + 1);

  cell = [[HXImageButtonCell alloc] initTextCell:@""];
  container = [[OvTestDeathCounter alloc] init];
  [cell setImageContainer:container];
  [container release];
  [cell setImageContainer:nil];
  EXPECT_EQ([OvTestDeathCounter deaths], before + 2);
  [cell release];
}

struct State {
  bool enabled, highlighted, on, byImage, inside, pushedArt, overArt;
};

std::string nameOf(const State &s) {
  std::string name = s.enabled ? "enabled" : "disabled";
  if (s.highlighted) name += ", highlighted";
  if (s.on) name += ", on";
  if (s.byImage) name += ", shown by image";
  if (s.inside) name += ", pointer inside";
  if (s.pushedArt) name += ", with pushed artwork";
  if (s.overArt) name += ", with artwork for the pointer";
  return name;
}

// Written down here a second time, as a person would say it.
ov::test::Drawn expectedFrame(const State &s, std::string *title) {
  int variation;
  bool alternate = false;
  if (!s.enabled) {
    variation = s.on ? 1 : 4;
    alternate = s.on;
  } else if (s.byImage && s.on) {
    if (!s.highlighted) {
      variation = 1;
      alternate = true;
    } else if (s.inside) {
      variation = s.pushedArt ? 2 : 1;
      alternate = true;
    } else {
      variation = 0;
    }
  } else if (s.highlighted) {
    variation = s.inside && s.pushedArt ? 2 : 1;
    alternate = true;
  } else {
    variation = s.inside && s.overArt ? 3 : 0;
  }
  *title = alternate ? "B" : "A";
  return {Drawn::kFrame, variation, NSMakeRect(0, 0, 100, 20), true};
}

TEST_F(ImageButtonState, EveryStateShowsItsVariationAndTitle) {
  HXImageButton *button = makeButton();
  OvTestImageCell *cell = rememberTitles(button);
  [cell setTitle:@"A"];
  [cell setAlternateTitle:@"B"];

  for (bool inside : {false, true}) {
    if (inside)
      movePointerTo(button, NSMakePoint(50, 10));
    else
      movePointerAway(button);
    for (unsigned bits = 0; bits < 64; bits++) {
      State state{(bits & 1) != 0, (bits & 2) != 0,  (bits & 4) != 0, (bits & 8) != 0,
                  inside,          (bits & 16) != 0, (bits & 32) != 0};
      std::vector<int> variations = {1, 4};
      if (state.pushedArt) variations.push_back(2);
      if (state.overArt) variations.push_back(3);
      OvTestArtwork *artwork = [OvTestArtwork artworkWithVariations:variations];
      [cell setImageContainer:artwork];
      [cell setShowsStateBy:state.byImage ? NSChangeGrayCellMask | NSContentsCellMask
                                          : NSContentsCellMask | NSChangeBackgroundCellMask];
      [cell setEnabled:state.enabled];
      [cell setState:state.on ? NSOnState : NSOffState];
      [cell setHighlighted:state.highlighted];

      cell->titles.clear();
      Picture picture = pictureOf(button);
      std::string title;
      Drawn expected = expectedFrame(state, &title);
      EXPECT_THAT(artwork->drawn, ElementsAre(expected)) << nameOf(state);
      EXPECT_THAT(cell->titles, ElementsAre(title)) << nameOf(state);
      EXPECT_TRUE(near(picture.at(97, 17), kVariationColors[expected.variation]))
          << nameOf(state) << " " << picture.at(97, 17);
      [cell setHighlighted:NO];
    }
  }
}

TEST_F(ImageButtonState, TheMixedStateIsNotOn) {
  HXImageButton *button = makeButton();
  [button setImageContainer:[OvTestArtwork artworkWithVariations:{1, 4}]];
  [button setAllowsMixedState:YES];
  [[button cell] setShowsStateBy:NSChangeGrayCellMask];
  [button setState:NSMixedState];
  ASSERT_EQ([button state], NSMixedState);
  EXPECT_EQ(variationOf(button), 0);
  [button setEnabled:NO];
  EXPECT_EQ(variationOf(button), 4);
}

TEST_F(ImageButtonState, ThePointerCountsUpToTheEdges) {
  HXImageButton *button = makeButton();
  [button setImageContainer:[OvTestArtwork artworkWithVariations:{3}]];
  struct {
    NSPoint point;
    int variation;
  } rows[] = {{{1, 1}, 3},   {{99, 19}, 3},  {{99, 1}, 3},  {{1, 19}, 3},
              {{-1, 10}, 0}, {{101, 10}, 0}, {{50, -1}, 0}, {{50, 21}, 0}};
  for (const auto &row : rows) {
    movePointerTo(button, row.point);
    EXPECT_EQ(variationOf(button), row.variation) << row.point;
  }
}

TEST_F(ImageButtonState, TheCellLooksAtItsOwnFrame) {
  // As one of several cells of a view.
  HXImageButton *button = makeButton();
  OvTestArtwork *artwork = [OvTestArtwork artworkWithVariations:{3}];
  [button setImageContainer:artwork];
  movePointerTo(button, NSMakePoint(75, 10));
  artwork->drawn.clear();
  [button lockFocus];
  [[button cell] drawInteriorWithFrame:NSMakeRect(0, 0, 50, 20) inView:button];
  [[button cell] drawInteriorWithFrame:NSMakeRect(50, 0, 50, 20) inView:button];
  [button unlockFocus];
  EXPECT_THAT(artwork->drawn,
              ElementsAre(Drawn{Drawn::kFrame, 0, NSMakeRect(0, 0, 50, 20), true},
                          Drawn{Drawn::kFrame, 3, NSMakeRect(50, 0, 50, 20), true}));
}

TEST_F(ImageButtonState, OutsideOfAWindowThePointerIsOutside) {
  HXImageButton *button = makeButton();
  OvTestArtwork *artwork = [OvTestArtwork artworkWithVariations:{3}];
  HXImageButton *loose =
      [[[HXImageButton alloc] initWithFrame:NSMakeRect(-500, -500, 2000, 2000)] autorelease];
  [loose setImageContainer:artwork];
  // Drawn for another view, as a print-out or a drag image is.
  [button lockFocus];
  [[loose cell] drawInteriorWithFrame:NSMakeRect(-500, -500, 2000, 2000) inView:loose];
  [button unlockFocus];
  EXPECT_EQ([artwork lastVariation], 0);
}

// MARK: Titles

TEST_F(ImageButtonState, AnEmptyAlternateTitleGivesWayToTheOrdinary) {
  HXImageButton *button = makeButton();
  [button setImageContainer:[OvTestArtwork artworkWithVariations:{1}]];
  OvTestImageCell *cell = rememberTitles(button);
  [cell setTitle:@"A"];
  [cell setHighlighted:YES];
  pictureOf(button);
  EXPECT_THAT(cell->titles, ElementsAre("A"));
}

TEST_F(ImageButtonState, WithoutAnyTitleNothingIsWritten) {
  HXImageButton *button = makeButton();
  [button setImageContainer:[OvTestArtwork artworkWithVariations:{}]];
  OvTestImageCell *cell = rememberTitles(button);
  [cell setTitle:@""];
  Picture picture = pictureOf(button);
  EXPECT_THAT(cell->titles, IsEmpty());
  EXPECT_EQ(picture.count(NSMakeRect(0, 0, 100, 20), kWhite), 2000);
}

TEST_F(ImageButtonState, ThePlainTitleIsShortenedInTheMiddle) {
  HXImageButton *button = makeButton();
  [button setImageContainer:[OvTestArtwork artworkWithVariations:{}]];
  OvTestImageCell *cell = rememberTitles(button);
  cell->hidesAttributedTitles = YES;
  for (NSControlSize size : {NSRegularControlSize, NSSmallControlSize, NSMiniControlSize}) {
    [cell setControlSize:size];
    NSFont *font = [NSFont systemFontOfSize:[NSFont systemFontSizeForControlSize:size]];
    NSDictionary *attributes = @{NSFontAttributeName : font};

    [cell setTitle:@"Short"];
    pictureOf(button);
    EXPECT_TRUE([cell->lastTitle
        isEqual:[[[NSAttributedString alloc] initWithString:@"Short"
                                                 attributes:attributes] autorelease]])
        << "the font is the only attribute";

    [cell setTitle:@"A long title that does not fit at all, up to its very end Z"];
    pictureOf(button);
    NSString *drawn = [cell->lastTitle string];
    EXPECT_TRUE([drawn hasPrefix:@"A"]) << [drawn UTF8String];
    EXPECT_TRUE([drawn hasSuffix:@"Z"]) << [drawn UTF8String];
    EXPECT_LT([drawn length], [[cell title] length]);
    EXPECT_LE([drawn sizeWithAttributes:attributes].width,
              NSWidth([cell titleRectForBounds:[button bounds]]));
    EXPECT_EQ(cell->lastTitleRect, [cell titleRectForBounds:[button bounds]]);
  }
}

TEST_F(ImageButtonState, OddTitlesAreDrawn) {
  HXImageButton *button = makeButton();
  [button setImageContainer:[OvTestArtwork artworkWithVariations:{1}]];
  const unichar half[] = {0xD800, 'a', 0};
  NSString *odd[] = {[NSString stringWithCharacters:half length:3],
                     [@"" stringByPaddingToLength:100000 withString:@"long " startingAtIndex:0],
                     @"a\nb\tc", nil};
  for (NSString *title : odd) {
    for (BOOL hides : {NO, YES}) {
      OvTestImageCell *cell = rememberTitles(button);
      cell->hidesAttributedTitles = hides;
      [cell setTitle:title];
      [cell setAlternateTitle:title];
      pictureOf(button);
      EXPECT_EQ([(OvTestArtwork *)[button imageContainer] lastVariation], 0);
    }
  }
}

TEST_F(ImageButtonState, AnImageOnlyButtonHasNoTitle) {
  HXImageButton *button = makeButton();
  [button setImageContainer:[OvTestArtwork artworkWithVariations:{}]];
  OvTestImageCell *cell = rememberTitles(button);
  [cell setTitle:@"A"];
  [cell setImagePosition:NSImageOnly];
  pictureOf(button);
  EXPECT_THAT(cell->titles, IsEmpty());
}

TEST_F(ImageButtonState, WithoutRoomThereIsNoTitle) {
  HXImageButton *button = makeButton();
  OvTestArtwork *artwork = [OvTestArtwork artworkWithVariations:{}];
  [artwork setColor:kRed
                size:NSMakeSize(100, 10)
             forPart:HXImageControlImagePartIcon
      imageVariation:HXImageControlImageVariationDefault];
  [button setImageContainer:artwork];
  for (BOOL hides : {NO, YES}) {
    OvTestImageCell *cell = rememberTitles(button);
    cell->hidesAttributedTitles = hides;
    [cell setTitle:@"A"];
    [cell setImagePosition:NSImageLeft];
    pictureOf(button);
    EXPECT_THAT(cell->titles, IsEmpty());
  }
}

}  // namespace
