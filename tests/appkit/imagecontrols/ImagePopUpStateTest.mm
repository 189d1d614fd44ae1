// Image pop-up buttons: cell and container, the choice of the variation, the arrow's place.

#import "ImagePopUpTest.h"

using namespace ov::test;

namespace {

class ImagePopUp : public ImagePopUpTest {};

TEST_F(ImagePopUp, HasACellOfItsOwn) {
  EXPECT_EQ([HXImagePopUpButton cellClass], [HXImagePopUpButtonCell class]);
  for (HXImagePopUpButton *button :
       {[[HXImagePopUpButton alloc] initWithFrame:NSMakeRect(0, 0, 80, 20)],
        [[HXImagePopUpButton alloc] initWithFrame:NSMakeRect(0, 0, 80, 20) pullsDown:YES],
        [[HXImagePopUpButton alloc] init]}) {
    EXPECT_TRUE([[button cell] isMemberOfClass:[HXImagePopUpButtonCell class]]);
    EXPECT_EQ([button imagePopUpButtonCell], [button cell]);
    EXPECT_EQ([button imageContainer], nil);
    [button release];
  }
  // The platform's own class keeps its cell.
  EXPECT_EQ([NSPopUpButton cellClass], [NSPopUpButtonCell class]);
}

TEST_F(ImagePopUp, ACellOfAnotherClassTakesNoContainer) {
  OvTestPopUpButton *button = makePopUp();
  [button setCell:[[[NSPopUpButtonCell alloc] initTextCell:@"x" pullsDown:NO] autorelease]];
  EXPECT_EQ([button imagePopUpButtonCell], nil);
  button->marks = 0;
  [button setImageContainer:[OvTestArtwork artworkWithVariations:{3}]];
  EXPECT_EQ([button imageContainer], nil);
  EXPECT_EQ(button->marks, 0);
  EXPECT_FALSE([button showsBorderOnlyWhileMouseInside]);
}

TEST_F(ImagePopUp, ACellOfASubclassDoes) {
  OvTestPopUpButton *button = makePopUp();
  EXPECT_TRUE([[button cell] isMemberOfClass:[OvTestPopUpCell class]]);
  EXPECT_EQ([button imagePopUpButtonCell], [button cell]);
}

TEST_F(ImagePopUp, AContainerMarksAndTurnsHoveringOnAndOff) {
  OvTestPopUpButton *button = makePopUp();
  OvTestArtwork *over = [OvTestArtwork artworkWithVariations:{1, 3}];
  OvTestArtwork *plain = [OvTestArtwork artworkWithVariations:{1, 2, 4}];
  button->marks = 0;
  [button setImageContainer:over];
  EXPECT_EQ([button imageContainer], over);
  EXPECT_EQ([[button imagePopUpButtonCell] imageContainer], over);
  EXPECT_GT(button->marks, 0);
  EXPECT_TRUE([button showsBorderOnlyWhileMouseInside]);

  button->marks = 0;
  [button setImageContainer:plain];
  EXPECT_EQ([button imageContainer], plain);
  EXPECT_GT(button->marks, 0);
  EXPECT_FALSE([button showsBorderOnlyWhileMouseInside]);
  EXPECT_EQ([[button valueForKey:@"tracking_rects"] count], 0u);

  [button setImageContainer:over];
  button->marks = 0;
  [button setImageContainer:nil];
  EXPECT_EQ([button imageContainer], nil);
  EXPECT_GT(button->marks, 0);
  EXPECT_FALSE([button showsBorderOnlyWhileMouseInside]);
}

TEST_F(ImagePopUp, TheSameContainerChangesNothing) {
  OvTestPopUpButton *button = makePopUp();
  OvTestArtwork *artwork = [OvTestArtwork artworkWithVariations:{1}];
  [button setImageContainer:artwork];
  [artwork setColor:kGreen
                size:NSMakeSize(4, 4)
             forPart:HXImageControlImagePartCenter
      imageVariation:HXImageControlImageVariationMouseOver];
  button->marks = 0;
  const NSUInteger kept = [artwork retainCount];
  [button setImageContainer:artwork];
  EXPECT_EQ([artwork retainCount], kept);
  EXPECT_EQ(button->marks, 0);
  EXPECT_FALSE([button showsBorderOnlyWhileMouseInside]);
  [button setImageContainer:nil];
  button->marks = 0;
  [button setImageContainer:nil];
  EXPECT_EQ(button->marks, 0);
}

TEST_F(ImagePopUp, OnlyAMouseOverCenterCounts) {
  OvTestPopUpButton *button = makePopUp();
  OvTestArtwork *artwork = [OvTestArtwork artworkWithVariations:{1}];
  [artwork setColor:kGreen
                size:NSMakeSize(4, 4)
             forPart:HXImageControlImagePartAccessory
      imageVariation:HXImageControlImageVariationMouseOver];
  [button setImageContainer:artwork];
  EXPECT_FALSE([button showsBorderOnlyWhileMouseInside]);
}

TEST_F(ImagePopUp, TheCellKeepsItsContainer) {
  const int before = [OvTestDeathCounter deaths];
  @autoreleasepool {
    HXImagePopUpButtonCell *cell = [[HXImagePopUpButtonCell alloc] initTextCell:@"x" pullsDown:NO];
    EXPECT_EQ([cell imageContainer], nil);
    auto *first = (HXImageControlImageContainer *)[[OvTestDeathCounter alloc] init];
    auto *second = (HXImageControlImageContainer *)[[OvTestDeathCounter alloc] init];
    [cell setImageContainer:first];
    [first release];
    EXPECT_EQ([OvTestDeathCounter deaths], before);
    [cell setImageContainer:second];
    [second release];
    EXPECT_EQ([OvTestDeathCounter deaths], before + 1);
    [cell setImageContainer:second];
    EXPECT_EQ([OvTestDeathCounter deaths], before + 1);
    EXPECT_EQ([cell imageContainer], second);
    [cell release];
  }
  EXPECT_EQ([OvTestDeathCounter deaths], before + 2);
}

TEST_F(ImagePopUp, ACopyOfTheCellSharesTheContainer) {
  const int before = [OvTestDeathCounter deaths];
  @autoreleasepool {
    HXImagePopUpButtonCell *cell = [[HXImagePopUpButtonCell alloc] initTextCell:@"x" pullsDown:NO];
    auto *container = (HXImageControlImageContainer *)[[OvTestDeathCounter alloc] init];
    [cell setImageContainer:container];
    [container release];
    HXImagePopUpButtonCell *copy = [cell copy];
    EXPECT_EQ([copy imageContainer], container);
    [copy setImageContainer:nil];
    EXPECT_EQ([OvTestDeathCounter deaths], before);
    EXPECT_EQ([cell imageContainer], container);
    [cell setImageContainer:nil];
  }
  EXPECT_EQ([OvTestDeathCounter deaths], before + 1);
}

// ---- The variation

struct StateRow {
  const char *name;
  bool enabled;
  bool showsState;
  bool on;
  bool highlighted;
  bool inside;
  int variation;
};

std::ostream &operator<<(std::ostream &out, const StateRow &row) { return out << row.name; }

class ImagePopUpVariation : public ImagePopUpTest, public testing::WithParamInterface<StateRow> {};

TEST_P(ImagePopUpVariation, FollowsTheStateAndThePointer) {
  const StateRow &row = GetParam();
  OvTestPopUpButton *button = makePopUp();
  HXImagePopUpButtonCell *cell = [button imagePopUpButtonCell];
  [button setImageContainer:[OvTestArtwork artworkWithVariations:{1, 2, 3, 4}]];
  [button setEnabled:row.enabled];
  [cell setShowsStateBy:row.showsState ? NSChangeGrayCellMask : NSContentsCellMask];
  [cell setState:row.on ? NSOnState : NSOffState];
  [cell setHighlighted:row.highlighted];
  if (row.inside) movePointerTo(button, NSMakePoint(50, 10));
  EXPECT_EQ([cell _imageVariationWithFrame:[button bounds] inView:button], row.variation);
  EXPECT_EQ(shownBy(button), row.variation);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ImagePopUpVariation,
    testing::Values(StateRow{"at rest", true, false, false, false, false, 0},
                    StateRow{"under the pointer", true, false, false, false, true, 3},
                    StateRow{"pressed, pointer outside", true, false, false, true, false, 1},
                    // Never MousePushed.
                    StateRow{"pressed, pointer inside", true, false, false, true, true, 1},
                    StateRow{"on without showing it", true, false, true, false, false, 0},
                    StateRow{"on without showing it, pressed", true, false, true, true, false, 1},
                    StateRow{"on", true, true, true, false, false, 1},
                    StateRow{"on under the pointer", true, true, true, false, true, 1},
                    StateRow{"on, pressed, pointer inside", true, true, true, true, true, 1},
                    StateRow{"on, pressed, pointer outside", true, true, true, true, false, 0},
                    StateRow{"off", true, true, false, false, false, 0},
                    StateRow{"off, pressed", true, true, false, true, false, 1},
                    StateRow{"disabled", false, false, false, false, false, 4},
                    StateRow{"disabled, on", false, true, true, false, false, 4},
                    StateRow{"disabled, on, pressed, pointer inside", false, true, true, true, true,
                             4}));

TEST_F(ImagePopUp, WhatTheContainerHasDoesNotMatter) {
  OvTestPopUpButton *button = makePopUp();
  [button setImageContainer:[OvTestArtwork artworkWithVariations:{}]];
  movePointerTo(button, NSMakePoint(50, 10));
  EXPECT_EQ(shownBy(button), 3);
  // The container shows Default for it.
  EXPECT_EQ(pictureOf(button).at(2, 10), kWhite);
  [[button cell] setHighlighted:YES];
  EXPECT_EQ(shownBy(button), 1);
  [button setEnabled:NO];
  EXPECT_EQ(shownBy(button), 4);
}

TEST_F(ImagePopUp, ThePointerIsInsideTheFrameThatIsDrawn) {
  OvTestPopUpButton *button = makePopUp();
  HXImagePopUpButtonCell *cell = [button imagePopUpButtonCell];
  [cell setImageContainer:[OvTestArtwork artworkWithVariations:{3}]];
  movePointerTo(button, NSMakePoint(50, 10));
  EXPECT_EQ([cell _imageVariationWithFrame:NSMakeRect(0, 0, 40, 20) inView:button], 0);
  EXPECT_EQ([cell _imageVariationWithFrame:NSMakeRect(40, 0, 40, 20) inView:button], 3);
  EXPECT_EQ([cell _imageVariationWithFrame:NSMakeRect(40, 0, 40, 20) inView:nil], 0);
  [[button retain] autorelease];
  [button removeFromSuperview];
  EXPECT_EQ([cell _imageVariationWithFrame:[button bounds] inView:button], 0);
}

// ---- The arrow

struct ArrowRow {
  const char *name;
  NSUInteger position;
  NSRect bounds;
  NSSize accessory;
  NSRect expected;
};

std::ostream &operator<<(std::ostream &out, const ArrowRow &row) { return out << row.name; }

class ImagePopUpArrow : public ImagePopUpTest, public testing::WithParamInterface<ArrowRow> {};

TEST_P(ImagePopUpArrow, Lies) {
  const ArrowRow &row = GetParam();
  HXImagePopUpButtonCell *cell = [[[HXImagePopUpButtonCell alloc] initTextCell:@"x"
                                                                     pullsDown:NO] autorelease];
  OvTestArtwork *artwork = [OvTestArtwork artworkWithVariations:{}];
  [artwork setColor:kBlack
                size:row.accessory
             forPart:HXImageControlImagePartAccessory
      imageVariation:HXImageControlImageVariationDefault];
  [cell setImageContainer:artwork];
  [cell setArrowPosition:static_cast<NSPopUpArrowPosition>(row.position)];
  EXPECT_EQ([cell arrowRectForBounds:row.bounds], row.expected);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ImagePopUpArrow,
    testing::Values(
        ArrowRow{"none", NSPopUpNoArrow, {{0, 0}, {100, 20}}, {8, 8}, {{0, 0}, {0, 0}}},
        ArrowRow{"center", NSPopUpArrowAtCenter, {{0, 0}, {100, 20}}, {8, 8}, {{86, 6}, {8, 8}}},
        ArrowRow{"center, rounded down",
                 NSPopUpArrowAtCenter,
                 {{10, 5}, {100, 21}},
                 {12, 8},
                 {{92, 11}, {12, 8}}},
        ArrowRow{"center, too tall",
                 NSPopUpArrowAtCenter,
                 {{0, 0}, {100, 9}},
                 {8, 12},
                 {{94, -2}, {8, 12}}},
        ArrowRow{"bottom", NSPopUpArrowAtBottom, {{0, 0}, {100, 20}}, {8, 8}, {{80, 12}, {8, 8}}},
        ArrowRow{"bottom, not rounded",
                 NSPopUpArrowAtBottom,
                 {{10, 5}, {100, 20.5}},
                 {12, 8},
                 {{85.5, 17.5}, {12, 8}}},
        ArrowRow{"no such position", 3, {{0, 0}, {100, 20}}, {8, 8}, {{0, 0}, {0, 0}}}));

TEST_F(ImagePopUp, ThereIsNoArrowWithoutContainerOrAccessory) {
  HXImagePopUpButtonCell *cell = [[[HXImagePopUpButtonCell alloc] initTextCell:@"x"
                                                                     pullsDown:NO] autorelease];
  EXPECT_EQ([cell arrowPosition], NSPopUpArrowAtCenter);
  EXPECT_EQ([cell arrowRectForBounds:NSMakeRect(0, 0, 100, 20)], NSZeroRect);
  OvTestArtwork *artwork = [OvTestArtwork artworkWithVariations:{}];
  [cell setImageContainer:artwork];
  EXPECT_EQ([cell arrowRectForBounds:NSMakeRect(0, 0, 100, 20)], NSZeroRect);
  // One for another state only is none.
  [artwork setColor:kBlack
                size:NSMakeSize(8, 8)
             forPart:HXImageControlImagePartAccessory
      imageVariation:HXImageControlImageVariationHighlighted];
  EXPECT_EQ([cell arrowRectForBounds:NSMakeRect(0, 0, 100, 20)], NSZeroRect);
}

}  // namespace
