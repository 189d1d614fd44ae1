// Image pop-up buttons in use: the menu by mouse and by keys, and the pointer that comes and goes.

#import "ImagePopUpTest.h"

#import <GNUstepGUI/GSDisplayServer.h>

using namespace ov::test;

namespace {

class ImagePopUpUse : public ImagePopUpTest {
 protected:
  void SetUp() override {
    ImagePopUpTest::SetUp();
    button = makePopUp();
    cell = cellOf(button);
    artwork = [OvTestArtwork artworkWithVariations:{1, 2, 3, 4}];
    [button setImageContainer:artwork];
    receiver = [[[OvTestReceiver alloc] init] autorelease];
    [button setTarget:receiver];
    [button setAction:@selector(act:)];
    pumpPending();
  }
  NSMenuView *items() { return [[button menu] menuRepresentation]; }
  bool isOpen() { return [[items() window] isVisible]; }
  void pointAtItem(NSInteger index) {
    NSRect rect = [items() convertRect:[items() rectOfItemAtIndex:index] toView:nil];
    NSPoint place = [[items() window] convertBaseToScreen:NSMakePoint(NSMidX(rect), NSMidY(rect))];
    [GSServerForWindow([button window]) setMouseLocation:place onScreen:0];
  }
  bool comesToShow(int variation) {
    return pumpUntil([=, this] { return [artwork lastVariation] == variation; }, 2);
  }

  OvTestPopUpButton *button;
  OvTestPopUpCell *cell;
  OvTestArtwork *artwork;
  OvTestReceiver *receiver;
};

TEST_F(ImagePopUpUse, APressOpensTheMenuOverTheButtonAndAReleaseChooses) {
  movePointerTo(button, NSMakePoint(50, 10));
  NSRect menuFrame = NSZeroRect;
  NSRect selected = NSZeroRect;
  post(mouseEvent(NSLeftMouseDown, button, NSMakePoint(50, 10)));
  int shownWhileOpen = -1;
  EXPECT_TRUE(runWithSteps({[&] {
                              menuFrame = [[items() window] frame];
                              selected = [items() convertRect:[items() rectOfItemAtIndex:0]
                                                       toView:nil];
                              selected.origin =
                                  [[items() window] convertBaseToScreen:selected.origin];
                              pointAtItem(2);
                            },
                            [&] {
                              if ([items() highlightedItemIndex] != 2 || [button needsDisplay])
                                return;
                              shownWhileOpen = [artwork lastVariation];
                              post(mouseEvent(NSLeftMouseUp, button, NSMakePoint(50, 10)));
                            }},
                           [&] { pumpUntil([&] { return receiver->actions > 0; }); }));
  EXPECT_EQ(shownWhileOpen, 1) << "it is pressed while its menu is open";
  EXPECT_FALSE([cell isHighlighted]);
  // Where the platform puts it: the selected item over the button.
  const NSPoint middle = screenPoint(button, NSMakePoint(50, 10));
  EXPECT_TRUE(NSPointInRect(middle, menuFrame)) << middle << " in " << menuFrame;
  EXPECT_TRUE(NSPointInRect(middle, selected)) << middle << " in " << selected;
  EXPECT_EQ(receiver->actions, 1);
  EXPECT_EQ(receiver->sender, button);
  EXPECT_EQ([button indexOfSelectedItem], 2);
  EXPECT_FALSE(isOpen());
  cell->steps.clear();
  pictureOf(button);
  EXPECT_EQ(cell->steps.back(), "Three");
}

TEST_F(ImagePopUpUse, WithoutContainerTheMenuHighlightsNothing) {
  [button setImageContainer:nil];
  [cell attachPopUpWithFrame:[button bounds] inView:button];
  EXPECT_TRUE(isOpen());
  EXPECT_FALSE([cell isHighlighted]);
  [cell setHighlighted:YES];
  [cell dismissPopUp];
  EXPECT_FALSE(isOpen());
  EXPECT_TRUE([cell isHighlighted]);
}

TEST_F(ImagePopUpUse, ADisabledOneOpensNothing) {
  [button setEnabled:NO];
  post(mouseEvent(NSLeftMouseDown, button, NSMakePoint(50, 10)));
  post(mouseEvent(NSLeftMouseUp, button, NSMakePoint(50, 10)));
  pumpPending();
  EXPECT_FALSE(isOpen());
  EXPECT_EQ(receiver->actions, 0);
}

TEST_F(ImagePopUpUse, AnEmptyOneBeepsAsThePlatforms) {
  [button removeAllItems];
  const int before = beepCount();
  post(mouseEvent(NSLeftMouseDown, button, NSMakePoint(50, 10)));
  post(mouseEvent(NSLeftMouseUp, button, NSMakePoint(50, 10)));
  EXPECT_TRUE(pumpUntil([=] { return beepCount() > before; }));
}

TEST_F(ImagePopUpUse, KeysOpenTheMenuAndChoose) {
  NSWindow *window = [button window];
  ASSERT_TRUE([button acceptsFirstResponder]);
  ASSERT_TRUE([window makeFirstResponder:button]);
  const unichar down = NSDownArrowFunctionKey;
  const unichar up = NSUpArrowFunctionKey;
  type(window, @" ");
  ASSERT_TRUE(pumpUntil([&] { return isOpen(); }));
  EXPECT_TRUE(comesToShow(1));
  type(window, [NSString stringWithCharacters:&down length:1]);
  type(window, [NSString stringWithCharacters:&down length:1]);
  type(window, [NSString stringWithCharacters:&up length:1]);
  type(window, @"\r");
  EXPECT_TRUE(pumpUntil([&] { return !isOpen(); }));
  EXPECT_EQ([button indexOfSelectedItem], 1);
  EXPECT_EQ(receiver->actions, 1);
  cell->steps.clear();
  EXPECT_TRUE(pumpUntil([&] { return ![button needsDisplay]; }));
  pictureOf(button);
  EXPECT_EQ(cell->steps.back(), "Two");

  type(window, @" ");
  ASSERT_TRUE(pumpUntil([&] { return isOpen(); }));
  type(window, @"\x1b");
  EXPECT_TRUE(pumpUntil([&] { return !isOpen(); }));
  EXPECT_EQ(receiver->actions, 1) << "Escape chooses nothing";
  EXPECT_TRUE(comesToShow(0));
}

TEST_F(ImagePopUpUse, AnotherSelectionIsDrawn) {
  EXPECT_TRUE(pumpUntil([&] { return ![button needsDisplay]; }));
  cell->steps.clear();
  [button selectItemAtIndex:2];
  EXPECT_TRUE(pumpUntil([&] { return !cell->steps.empty() && cell->steps.back() == "Three"; }));
}

TEST_F(ImagePopUpUse, ThePointerComesAndGoes) {
  for (int i = 0; i < 2; i++) {
    movePointerTo(button, NSMakePoint(50, 10));
    EXPECT_TRUE(comesToShow(3));
    movePointerAway(button);
    EXPECT_TRUE(comesToShow(0));
  }
  movePointerTo(button, NSMakePoint(50, 10));
  EXPECT_TRUE(comesToShow(3));
  [button setFrameOrigin:NSMakePoint(40, 120)];
  EXPECT_TRUE(comesToShow(0));
}

TEST_F(ImagePopUpUse, WithoutMouseOverArtworkNothingIsDrawnAnew) {
  OvTestArtwork *plain = [OvTestArtwork artworkWithVariations:{1}];
  [button setImageContainer:plain];
  EXPECT_TRUE(pumpUntil([&] { return [plain lastVariation] == 0; }));
  plain->drawn.clear();
  movePointerTo(button, NSMakePoint(50, 10));
  movePointerAway(button);
  EXPECT_EQ([plain lastVariation], -1);
}

TEST_F(ImagePopUpUse, DiesUnderThePointerWithItsMenuOpen) {
  movePointerTo(button, NSMakePoint(50, 10));
  EXPECT_TRUE(comesToShow(3));
  [cell attachPopUpWithFrame:[button bounds] inView:button];
  EXPECT_TRUE(isOpen());
  OvTestGround *ground = groundOf(button);
  [button removeFromSuperview];
  drainPool();
  movePointerTo(ground, NSMakePoint(200, 150));
  pumpPending();
}

}  // namespace
