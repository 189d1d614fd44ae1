// Image pop-up buttons: what is drawn where, in which order and with which title.

#import "ImagePopUpTest.h"
#import "StringKinds.h"

#import <OvFoundation/NSString+OvFoundation.h>

using namespace ov::test;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

namespace {

class ImagePopUpDrawing : public ImagePopUpTest {
 protected:
  void SetUp() override {
    ImagePopUpTest::SetUp();
    make(true);
  }
  void make(bool flipped) {
    button = makePopUp(flipped);
    cell = cellOf(button);
    artwork = [OvTestArtwork artworkWithVariations:{1, 2, 3, 4}];
    addPart(HXImageControlImagePartAccessory, NSMakeSize(8, 8));
    [button setImageContainer:artwork];
  }
  void addPart(HXImageControlImagePart part, NSSize size) {
    [artwork setImage:blackOverYellow(size)
          forImagePart:part
        imageVariation:HXImageControlImageVariationDefault];
  }
  std::vector<std::string> draw() {
    cell->steps.clear();
    artwork->drawn.clear();
    pictureOf(button);
    return cell->steps;
  }

  OvTestPopUpButton *button;
  OvTestPopUpCell *cell;
  OvTestArtwork *artwork;
};

TEST_F(ImagePopUpDrawing, FrameThenArrowThenTitle) {
  EXPECT_THAT(draw(), ElementsAre("frame", "accessory", "One"));
  const NSRect bounds = NSMakeRect(0, 0, 100, 20);
  EXPECT_THAT(artwork->drawn, ElementsAre(Drawn{Drawn::kFrame, 0, bounds, true},
                                          Drawn{10, 0, NSMakeRect(86, 6, 8, 8), true}));
  EXPECT_EQ(cell->lastTitleRect, [cell titleRectForBounds:bounds]);
  EXPECT_FALSE(NSIsEmptyRect(cell->lastTitleRect));
}

TEST_F(ImagePopUpDrawing, TheStateGoesToAllPieces) {
  [button setEnabled:NO];
  draw();
  EXPECT_THAT(artwork->drawn, ElementsAre(Drawn{Drawn::kFrame, 4, NSMakeRect(0, 0, 100, 20), true},
                                          Drawn{10, 4, NSMakeRect(86, 6, 8, 8), true}));
}

TEST_F(ImagePopUpDrawing, UprightInBothKindsOfViews) {
  for (bool flipped : {true, false}) {
    make(flipped);
    [button setTitle:@""];
    [cell setArrowPosition:NSPopUpArrowAtBottom];
    draw();
    EXPECT_THAT(artwork->drawn,
                ElementsAre(Drawn{Drawn::kFrame, 0, NSMakeRect(0, 0, 100, 20), flipped},
                            Drawn{10, 0, NSMakeRect(80, 12, 8, 8), flipped}));
    Picture picture = pictureOf(button);
    EXPECT_EQ(picture.at(2, 10), kWhite);
    // The maximum y is the visible bottom of a flipped view.
    const int top = flipped ? 12 : 0;
    EXPECT_EQ(picture.at(84, top + 1), kBlack) << "flipped " << flipped;
    EXPECT_EQ(picture.at(84, top + 6), kYellow) << "flipped " << flipped;
    EXPECT_EQ(picture.at(78, top + 4), kWhite);
    EXPECT_EQ(picture.at(90, top + 4), kWhite);
  }
}

TEST_F(ImagePopUpDrawing, EachStateShowsItsArtwork) {
  auto shows = [&](const Pixel &color) { return pictureOf(button).at(2, 10) == color; };
  EXPECT_TRUE(shows(kVariationColors[0]));
  [cell setHighlighted:YES];
  EXPECT_TRUE(shows(kVariationColors[1]));
  [cell setHighlighted:NO];
  [button setEnabled:NO];
  EXPECT_TRUE(shows(kVariationColors[4]));
  [button setEnabled:YES];
  movePointerTo(button, NSMakePoint(50, 10));
  EXPECT_TRUE(pumpUntil([&] { return shows(kVariationColors[3]); }));
}

TEST_F(ImagePopUpDrawing, WithoutAnArrow) {
  [cell setArrowPosition:NSPopUpNoArrow];
  EXPECT_THAT(draw(), ElementsAre("frame", "One"));
  [cell setArrowPosition:NSPopUpArrowAtCenter];
  [artwork removeAllImagesForImageKey:HXImageControlImagePartAccessory];
  EXPECT_THAT(draw(), ElementsAre("frame", "One"));
  addPart(HXImageControlImagePartAccessory, NSMakeSize(8, 8));
  EXPECT_THAT(draw(), ElementsAre("frame", "accessory", "One"));
  [artwork setImage:[[[HXImageSegment alloc] initWithImage:nil] autorelease]
        forImagePart:HXImageControlImagePartAccessory
      imageVariation:HXImageControlImageVariationDefault];
  EXPECT_THAT(draw(), ElementsAre("frame", "One")) << "an arrow without area";
}

TEST_F(ImagePopUpDrawing, ThereIsNoIcon) {
  addPart(HXImageControlImagePartIcon, NSMakeSize(10, 10));
  draw();
  for (const Drawn &each : artwork->drawn) EXPECT_NE(each.part, HXImageControlImagePartIcon);
  EXPECT_EQ(artwork->drawn.size(), 2u);
}

TEST_F(ImagePopUpDrawing, TheTitleIsThatOfTheSelectedItem) {
  [button selectItemAtIndex:2];
  EXPECT_THAT(draw(), ElementsAre("frame", "accessory", "Three"));
  const CGFloat wide = NSWidth(cell->lastTitleRect);
  [button selectItemAtIndex:1];
  [button synchronizeTitleAndSelectedItem];
  EXPECT_THAT(draw(), ElementsAre("frame", "accessory", "Two"));
  EXPECT_LT(NSWidth(cell->lastTitleRect), wide) << "with room for just that";
  EXPECT_TRUE([[cell->lastTitle attribute:NSFontAttributeName atIndex:0
                           effectiveRange:NULL] isEqual:[cell font]]);
}

TEST_F(ImagePopUpDrawing, AMenuThatIsPulledDownShowsItsFirstItem) {
  [button setPullsDown:YES];
  EXPECT_THAT(draw(), ElementsAre("frame", "accessory", "One"));
}

TEST_F(ImagePopUpDrawing, HighlightedItShowsTheAlternateTitle) {
  [cell setAlternateTitle:@"Other"];
  EXPECT_THAT(draw(), ElementsAre("frame", "accessory", "One"));
  [cell setHighlighted:YES];
  EXPECT_THAT(draw(), ElementsAre("frame", "accessory", "Other"));
  [cell setAlternateTitle:@""];
  EXPECT_THAT(draw(), ElementsAre("frame", "accessory", "One")) << "unless that is empty";
  // In every other state the ordinary one.
  [cell setAlternateTitle:@"Other"];
  [button setEnabled:NO];
  EXPECT_THAT(draw(), ElementsAre("frame", "accessory", "One"));
}

TEST_F(ImagePopUpDrawing, OnAndShownItHasTheAlternateTitle) {
  [cell setAlternateTitle:@"Other"];
  [cell setShowsStateBy:NSChangeGrayCellMask];
  [cell setState:NSOnState];
  EXPECT_THAT(draw(), ElementsAre("frame", "accessory", "Other"));
  [cell setHighlighted:YES];
  EXPECT_THAT(draw(), ElementsAre("frame", "accessory", "One")) << "variation 0";
}

TEST_F(ImagePopUpDrawing, WithoutAttributedTitlesThePlainOneIsDrawn) {
  cell->hidesAttributedTitles = YES;
  for (NSControlSize size : {NSRegularControlSize, NSSmallControlSize, NSMiniControlSize}) {
    [cell setControlSize:size];
    draw();
    NSDictionary *attributes = [cell->lastTitle attributesAtIndex:0 effectiveRange:NULL];
    EXPECT_EQ([attributes count], 1u);
    NSFont *font = [attributes objectForKey:NSFontAttributeName];
    EXPECT_TRUE(
        [font isEqual:[NSFont systemFontOfSize:[NSFont systemFontSizeForControlSize:size]]]);
  }
}

TEST_F(ImagePopUpDrawing, ThePlainTitleIsShortenedAtItsEnd) {
  cell->hidesAttributedTitles = YES;
  [cell setFont:[NSFont systemFontOfSize:5]];  // the title's rectangle is by this font
  NSString *title = @"A long title that ends somewhere";
  [button addItemWithTitle:title];
  [button selectItemWithTitle:title];
  draw();
  const CGFloat width = NSWidth([cell titleRectForBounds:[button bounds]]);
  NSString *expected = [title truncateControlStringWithDrawingWidth:static_cast<float>(width)
                                                          truncCode:0
                                                        controlSize:[cell controlSize]];
  EXPECT_LT([expected length], [title length]);
  EXPECT_TRUE([expected hasPrefix:@"A lon"]);
  EXPECT_TRUE([[cell->lastTitle string] isEqualToString:expected])
      << [[cell->lastTitle string] UTF8String];
}

TEST_F(ImagePopUpDrawing, NoRoomForTheTitleIsNoTitle) {
  cell->hasNoTitleRect = YES;
  EXPECT_THAT(draw(), ElementsAre("frame", "accessory"));
}

TEST_F(ImagePopUpDrawing, WithoutItemsThereIsNoTitle) {
  [button removeAllItems];
  EXPECT_THAT(draw(), ElementsAre("frame", "accessory"));
  [cell setHighlighted:YES];
  EXPECT_THAT(draw(), ElementsAre("frame", "accessory"));
  [cell setHighlighted:NO];
  [button setPullsDown:YES];
  EXPECT_THAT(draw(), ElementsAre("frame", "accessory"));
  [button setPullsDown:NO];
  [button addItemsWithTitles:@[ @"Back", @"Again" ]];
  [button selectItemAtIndex:-1];
  draw();
  [button selectItemAtIndex:1];
  EXPECT_THAT(draw(), ElementsAre("frame", "accessory", "Again"));
}

TEST_F(ImagePopUpDrawing, OddTitles) {
  const unichar nulInside[] = {'a', 0, 'b'};
  NSString *nul = [NSString stringWithCharacters:nulInside length:3];
  NSString *lone = makeString(u"\xD83D", StringKind::Immutable);
  NSMutableString *huge = [NSMutableString string];
  for (int i = 0; i < 4000; i++) [huge appendString:@"long "];
  for (NSString *title in @[ @"", nul, lone, huge, @"\n", @"日本語" ]) {
    [button removeAllItems];
    [[button menu] addItemWithTitle:title action:NULL keyEquivalent:@""];
    [button selectItemAtIndex:0];
    for (BOOL hides : {NO, YES}) {
      cell->hidesAttributedTitles = hides;
      draw();
      ASSERT_GE(cell->steps.size(), 2u);
    }
    cell->hidesAttributedTitles = NO;
  }
}

TEST_F(ImagePopUpDrawing, ALongTitleEndsBeforeTheArrow) {
  [artwork setColor:kRed
                size:NSMakeSize(8, 8)
             forPart:HXImageControlImagePartAccessory
      imageVariation:HXImageControlImageVariationDefault];
  for (NSString *title in
       @[ @"A long title that ends somewhere", @"Oneverylongwordthatendssomewhere" ]) {
    for (NSLineBreakMode mode : {NSLineBreakByWordWrapping, NSLineBreakByTruncatingTail}) {
      [cell setLineBreakMode:mode];
      [button addItemWithTitle:title];
      [button selectItemWithTitle:title];
      [cell setArrowPosition:NSPopUpArrowAtCenter];
      draw();
      EXPECT_LE(NSMaxX(cell->lastTitleRect), 86);
      EXPECT_EQ(cell->lastTitleRect, [cell titleRectForBounds:[button bounds]]);
      Picture picture = pictureOf(button);
      EXPECT_EQ(picture.count(NSMakeRect(86, 6, 8, 8), kRed), 64) << [title UTF8String];
      EXPECT_EQ(picture.count(NSMakeRect(94, 0, 6, 20), kWhite), 120);
      EXPECT_LT(picture.count(NSMakeRect(0, 0, 60, 20), kWhite), 1200) << "its beginning shows";
      [cell setArrowPosition:NSPopUpNoArrow];
      draw();
      EXPECT_LE(NSMaxX(cell->lastTitleRect), 100);
    }
  }
  [button setFrameSize:NSMakeSize(12, 20)];
  [cell setArrowPosition:NSPopUpArrowAtCenter];
  EXPECT_THAT(draw(), ElementsAre("frame", "accessory")) << "no room is left";
}

TEST_F(ImagePopUpDrawing, ATransparentCellShowsNothing) {
  [cell setTransparent:YES];
  EXPECT_THAT(draw(), IsEmpty());
}

TEST_F(ImagePopUpDrawing, AnEmptyFrameShowsNothing) {
  cell->steps.clear();
  [button lockFocus];
  [cell drawWithFrame:NSZeroRect inView:button];
  [button unlockFocus];
  EXPECT_THAT(cell->steps, IsEmpty());
}

TEST_F(ImagePopUpDrawing, AContainerWithoutADefaultCenterShowsTitleAndArrow) {
  [artwork removeAllImagesForImageKey:HXImageControlImagePartCenter];
  EXPECT_THAT(draw(), ElementsAre("frame", "accessory", "One"));
}

TEST_F(ImagePopUpDrawing, AnyViewCanShowTheCell) {
  OvTestGround *ground = groundOf(button);
  HXImagePopUpButtonCell *alone = [[[HXImagePopUpButtonCell alloc] initTextCell:@"x"
                                                                      pullsDown:NO] autorelease];
  [alone setImageContainer:artwork];
  artwork->drawn.clear();
  [ground lockFocus];
  [alone drawWithFrame:NSMakeRect(10, 100, 80, 21) inView:ground];
  [ground unlockFocus];
  EXPECT_THAT(artwork->drawn,
              ElementsAre(Drawn{Drawn::kFrame, 0, NSMakeRect(10, 100, 80, 21), false},
                          Drawn{10, 0, NSMakeRect(76, 106, 8, 8), false}));
}

TEST_F(ImagePopUpDrawing, WithoutContainerItLooksLikeThePlatforms) {
  NSPopUpButton *plain = [[[NSPopUpButton alloc] initWithFrame:[button frame]
                                                     pullsDown:NO] autorelease];
  [plain addItemsWithTitles:@[ @"One", @"Two", @"Three" ]];
  [button setImageContainer:nil];
  OvTestGround *ground = groundOf(button);
  auto expectSame = [&](const char *what) {
    [[button retain] autorelease];
    Picture ours = pictureOf(ground);
    [button removeFromSuperview];
    [ground addSubview:plain];
    Picture theirs = pictureOf(ground);
    [plain removeFromSuperview];
    [ground addSubview:button];
    int different = 0;
    for (int y = 0; y < ours.height(); y++)
      for (int x = 0; x < ours.width(); x++) different += ours.at(x, y) != theirs.at(x, y);
    EXPECT_EQ(different, 0) << what;
  };
  cell->steps.clear();
  expectSame("at rest");
  for (NSPopUpButton *each : {(NSPopUpButton *)button, plain}) [each selectItemAtIndex:2];
  expectSame("another item");
  for (NSPopUpButton *each : {(NSPopUpButton *)button, plain}) [[each cell] setHighlighted:YES];
  expectSame("highlighted");
  for (NSPopUpButton *each : {(NSPopUpButton *)button, plain}) [each setEnabled:NO];
  expectSame("disabled");
  for (NSPopUpButton *each : {(NSPopUpButton *)button, plain}) [each removeAllItems];
  expectSame("empty");
  EXPECT_THAT(cell->steps, Not(Contains("frame")));
  EXPECT_THAT(cell->steps, Not(Contains("accessory")));
}

TEST_F(ImagePopUpDrawing, TheFocusIsDrawnWhereThePlatformDrawsIt) {
  [button setTitle:@""];
  [button removeAllItems];
  [artwork removeAllImagesForImageKey:HXImageControlImagePartAccessory];
  NSPopUpButton *plain = [[[NSPopUpButton alloc] initWithFrame:NSMakeRect(40, 80, 100, 20)
                                                     pullsDown:NO] autorelease];
  [groundOf(button) addSubview:plain];
  auto changed = [&](NSView *view) {
    [[view window] makeFirstResponder:nil];
    Picture without = pictureOf(view);
    EXPECT_TRUE([[view window] makeFirstResponder:view]);
    Picture with = pictureOf(view);
    std::vector<std::pair<int, int>> places;
    for (int y = 0; y < with.height(); y++)
      for (int x = 0; x < with.width(); x++)
        if (with.at(x, y) != without.at(x, y)) places.emplace_back(x, y);
    return places;
  };
  auto reach = [](const std::vector<std::pair<int, int>> &places) {
    NSRect all = NSZeroRect;
    for (auto [x, y] : places) all = NSUnionRect(all, NSMakeRect(x, y, 1, 1));
    return all;
  };
  const auto ours = changed(button);
  const auto theirs = changed(plain);
  ASSERT_THAT(theirs, Not(IsEmpty()));
  EXPECT_EQ(reach(ours), reach(theirs));
  [cell setFocusRingType:NSFocusRingTypeNone];
  EXPECT_THAT(changed(button), IsEmpty());
}

}  // namespace
