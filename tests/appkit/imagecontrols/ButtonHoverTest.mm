// An image button under the pointer, and how it forgets it.

#import "ButtonTest.h"

using namespace ov::test;

namespace {

constexpr NSPoint kInside{50, 10};
constexpr NSPoint kOutside{150, 60};

class ImageButtonHover : public ImageButtonTest {
 protected:
  void SetUp() override {
    ImageButtonTest::SetUp();
    button = makeButton();
    artwork = [OvTestArtwork artworkWithVariations:{1, 2, 3, 4}];
    [button setImageContainer:artwork];
    pumpPending();
  }

  // Waits until the button has drawn itself so; it is never told to from here.
  bool comesToShow(int variation) {
    return pumpUntil([=, this] { return [artwork lastVariation] == variation; }, 2);
  }
  void hover() {
    movePointerTo(button, kInside);
    ASSERT_TRUE(comesToShow(3));
  }

  HXImageButton *button;
  OvTestArtwork *artwork;
};

TEST_F(ImageButtonHover, FollowsThePointer) {
  for (int i = 0; i < 3; i++) {
    hover();
    movePointerTo(button, kOutside);
    EXPECT_TRUE(comesToShow(0));
  }
}

TEST_F(ImageButtonHover, FollowsThePointerOutOfTheWindow) {
  hover();
  movePointerAway(button);
  EXPECT_TRUE(comesToShow(0));
}

TEST_F(ImageButtonHover, WithoutArtworkForItNothingIsDrawnAnew) {
  for (HXImageControlImageContainer *other :
       {(HXImageControlImageContainer *)[OvTestArtwork artworkWithVariations:{1}],
        (HXImageControlImageContainer *)nil}) {
    [button setImageContainer:artwork];
    [button setImageContainer:other];
    pumpPending();
    [button setNeedsDisplay:NO];
    if (other != nil) ((OvTestArtwork *)other)->drawn.clear();
    movePointerTo(button, kInside);
    movePointerTo(button, kOutside);
    pumpPending();
    if (other != nil) {
      EXPECT_EQ([(OvTestArtwork *)other lastVariation], -1);
    }
    EXPECT_EQ([[button valueForKey:@"tracking_rects"] count], 0u);
  }
}

TEST_F(ImageButtonHover, ScrollsOutFromUnderThePointer) {
  NSWindow *window = [button window];
  OvTestGround *ground = groundOf(button);
  [[ground retain] autorelease];
  [ground removeFromSuperview];
  ground->flipped = YES;
  [ground setFrameSize:NSMakeSize(280, 900)];
  [button setFrameOrigin:NSMakePoint(40, 60)];
  NSScrollView *scroll = scrollView(window, ground);
  [ground scrollPoint:NSZeroPoint];
  pumpPending();
  hover();
  [ground scrollPoint:NSMakePoint(0, 50)];
  EXPECT_TRUE(comesToShow(0)) << "scrolled away";
  [ground scrollPoint:NSMakePoint(0, 0)];
  EXPECT_TRUE(comesToShow(3)) << "and back";

  // Half out of sight: the pointer is in its frame, but on what covers it.
  [ground scrollPoint:NSMakePoint(0, 70)];
  EXPECT_TRUE(comesToShow(0));
  NSPoint hidden = NSMakePoint(50, 5);
  ASSERT_FALSE(NSPointInRect(hidden, [button visibleRect]));
  movePointerTo(button, hidden);
  [button setNeedsDisplay:YES];
  artwork->drawn.clear();
  EXPECT_TRUE(comesToShow(0));
  (void)scroll;
}

TEST_F(ImageButtonHover, MovesOutFromUnderThePointer) {
  hover();
  [button setFrameOrigin:NSMakePoint(40, 100)];
  EXPECT_TRUE(comesToShow(0));
  [button setFrameOrigin:NSMakePoint(40, 30)];
  EXPECT_TRUE(comesToShow(3));
  [button setFrameSize:NSMakeSize(20, 20)];
  EXPECT_TRUE(comesToShow(0)) << "smaller";
}

TEST_F(ImageButtonHover, AnAncestorMovesItAway) {
  hover();
  [groundOf(button) setFrameOrigin:NSMakePoint(0, 80)];
  EXPECT_TRUE(comesToShow(0));
}

TEST_F(ImageButtonHover, HiddenItForgetsThePointer) {
  hover();
  [button setHidden:YES];
  movePointerTo(groundOf(button), NSMakePoint(250, 150));
  artwork->drawn.clear();
  [button setHidden:NO];
  EXPECT_TRUE(comesToShow(0));
  hover();
  [groundOf(button) setHidden:YES];
  movePointerAway(button);
  artwork->drawn.clear();
  [groundOf(button) setHidden:NO];
  EXPECT_TRUE(comesToShow(0)) << "hidden with its superview";
}

TEST_F(ImageButtonHover, DisabledItShowsThat) {
  hover();
  [button setEnabled:NO];
  EXPECT_TRUE(comesToShow(4));
  movePointerTo(button, kOutside);
  [button setEnabled:YES];
  EXPECT_TRUE(comesToShow(0));
  movePointerTo(button, kInside);
  EXPECT_TRUE(comesToShow(3));
}

TEST_F(ImageButtonHover, LeavingItsWindowItForgetsThePointer) {
  hover();
  OvTestGround *ground = groundOf(button);
  [[button retain] autorelease];
  [button removeFromSuperview];
  movePointerTo(ground, NSMakePoint(250, 150));
  artwork->drawn.clear();
  [ground addSubview:button];
  EXPECT_TRUE(comesToShow(0));
  hover();

  NSWindow *other = showWindow(NSMakeSize(300, 200));
  [other setFrameOrigin:NSMakePoint(600, 400)];
  [button removeFromSuperview];
  artwork->drawn.clear();
  [[other contentView] addSubview:button];
  EXPECT_TRUE(comesToShow(0)) << "in another window";
  movePointerTo(button, kInside);
  EXPECT_TRUE(comesToShow(3)) << "where it follows the pointer as well";
  movePointerAway(button);
  EXPECT_TRUE(comesToShow(0));
}

TEST_F(ImageButtonHover, AnotherContainerTurnsItOffAndOn) {
  hover();
  OvTestArtwork *plain = [OvTestArtwork artworkWithVariations:{1}];
  [button setImageContainer:plain];
  EXPECT_TRUE(pumpUntil([&] { return [plain lastVariation] == 0; }));
  artwork->drawn.clear();
  [button setImageContainer:artwork];
  EXPECT_TRUE(comesToShow(3)) << "the pointer is still there";
  movePointerTo(button, kOutside);
  EXPECT_TRUE(comesToShow(0));
}

TEST_F(ImageButtonHover, APanelThatKeepsAllEventsForItselfLeavesNothingBehind) {
  hover();
  NSPanel *panel = [[[NSPanel alloc] initWithContentRect:NSMakeRect(700, 500, 100, 100)
                                               styleMask:NSTitledWindowMask
                                                 backing:NSBackingStoreBuffered
                                                   defer:NO] autorelease];
  [panel setReleasedWhenClosed:NO];
  EXPECT_TRUE(runWithSteps({[&] { warpPointer(button, NSMakePoint(600, 400)); }, [] {}, [] {},
                            [&] {
                              [NSApp stopModal];
                              post(mouseEvent(NSMouseMoved, [panel contentView], NSZeroPoint));
                            }},
                           [&] { [NSApp runModalForWindow:panel]; }));
  [panel orderOut:nil];
  EXPECT_TRUE(comesToShow(0));
}

TEST_F(ImageButtonHover, AMenuLeavesNothingBehind) {
  NSMenu *menu = [[[NSMenu alloc] initWithTitle:@""] autorelease];
  [menu addItemWithTitle:@"One" action:NULL keyEquivalent:@""];
  [button setMenu:menu];
  hover();
  EXPECT_TRUE(runWithSteps({[&] { EXPECT_EQ([artwork lastVariation], 2); },
                            [&] { warpPointer(button, NSMakePoint(600, 400)); }, [] {},
                            [&] { post(keyEvent([button window], @"\033")); }},
                           [&] { press(button, kInside); }));
  EXPECT_TRUE(comesToShow(0));
}

TEST_F(ImageButtonHover, DiesUnderThePointer) {
  hover();
  HXImageButton *dying = [[HXImageButton alloc] initWithFrame:NSMakeRect(150, 100, 50, 20)];
  OvTestGround *ground = groundOf(button);
  [dying setImageContainer:artwork];
  [ground addSubview:dying];
  movePointerTo(dying, NSMakePoint(10, 10));
  [dying removeFromSuperview];
  [dying release];
  movePointerTo(ground, NSMakePoint(250, 20));
  movePointerTo(button, kInside);
  EXPECT_TRUE(comesToShow(3));
}

TEST_F(ImageButtonHover, TheHostMayTurnItOffAndOn) {
  hover();
  [button setShowsBorderOnlyWhileMouseInside:NO];
  pumpPending();
  artwork->drawn.clear();
  movePointerTo(button, kOutside);
  pumpPending();
  EXPECT_EQ([artwork lastVariation], -1);
  [button setShowsBorderOnlyWhileMouseInside:YES];
  movePointerTo(button, kInside);
  EXPECT_TRUE(comesToShow(3));
}

}  // namespace
