// Presses of an image button, with the pointer and the keyboard.

#import "ButtonTest.h"

using namespace ov::test;
using testing::Contains;

namespace {

class ImageButtonPress : public ImageButtonTest {
 protected:
  void SetUp() override {
    ImageButtonTest::SetUp();
    button = makeButton();
    artwork = [OvTestArtwork artworkWithVariations:{1, 2, 3, 4}];
    [button setImageContainer:artwork];
    receiver = [[[OvTestReceiver alloc] init] autorelease];
    [button setTarget:receiver];
    [button setAction:@selector(act:)];
  }

  // Presses at a place of the button and holds while the steps run; the last of them releases.
  bool holdAt(NSPoint place, std::vector<std::function<void()>> steps) {
    bool released = false;
    steps.back() = [&released, last = steps.back()] {
      released = true;
      last();
    };
    // The whole press is handled within one event.
    return runWithSteps(steps, [&] {
      post(mouseEvent(NSLeftMouseDown, button, place));
      pumpUntil([&] { return released; });
    });
  }
  std::function<void()> expectVariation(int variation, const char *when) {
    return [=, this] { EXPECT_EQ([artwork lastVariation], variation) << when; };
  }
  std::function<void()> moveTo(NSPoint place) {
    return [=, this] {
      warpPointer(button, place);
      post(mouseEvent(NSLeftMouseDragged, button, place));
    };
  }
  std::function<void()> releaseAt(NSPoint place) {
    return [=, this] { post(mouseEvent(NSLeftMouseUp, button, place)); };
  }
  void clickAt(NSPoint place) { EXPECT_TRUE(holdAt(place, {releaseAt(place)})); }
  // What was drawn since, by itself.
  std::vector<int> variationsDrawn() {
    std::vector<int> variations;
    for (const Drawn &each : artwork->drawn)
      if (each.part == Drawn::kFrame) variations.push_back(each.variation);
    return variations;
  }

  HXImageButton *button;
  OvTestArtwork *artwork;
  OvTestReceiver *receiver;
};

constexpr NSPoint kInside{50, 10};
constexpr NSPoint kOutside{150, 10};

TEST_F(ImageButtonPress, ShowsWhereThePointerIsWhileItIsHeld) {
  movePointerTo(button, kInside);
  pumpUntil([&] { return [artwork lastVariation] == 3; });
  EXPECT_TRUE(holdAt(kInside, {expectVariation(2, "pressed"), moveTo(kOutside), [] {},
                               expectVariation(0, "outside"), moveTo(kInside), [] {},
                               expectVariation(2, "inside again"), releaseAt(kInside)}));
  EXPECT_EQ(receiver->actions, 1);
  EXPECT_EQ(receiver->sender, button);
  EXPECT_FALSE([[button cell] isHighlighted]);
  EXPECT_TRUE(pumpUntil([&] { return [artwork lastVariation] == 3; })) << "under the pointer";
}

TEST_F(ImageButtonPress, WithoutPushedArtworkIsHighlighted) {
  artwork = [OvTestArtwork artworkWithVariations:{1, 3}];
  [button setImageContainer:artwork];
  movePointerTo(button, kInside);
  EXPECT_TRUE(holdAt(kInside, {expectVariation(1, "pressed"), releaseAt(kInside)}));
  EXPECT_EQ(receiver->actions, 1);
}

TEST_F(ImageButtonPress, AReleaseOutsideSendsNothing) {
  movePointerTo(button, kInside);
  EXPECT_TRUE(holdAt(kInside, {moveTo(kOutside), [] {}, releaseAt(kOutside)}));
  EXPECT_EQ(receiver->actions, 0);
  EXPECT_TRUE(pumpUntil([&] { return [artwork lastVariation] == 0; }));
}

TEST_F(ImageButtonPress, ADisabledOneSendsNothing) {
  [button setEnabled:NO];
  pumpPending();
  artwork->drawn.clear();
  post(mouseEvent(NSLeftMouseDown, button, kInside));
  post(mouseEvent(NSLeftMouseUp, button, kInside));
  pumpPending();
  EXPECT_EQ(receiver->actions, 0);
  EXPECT_EQ(variationOf(button), 4);
}

TEST_F(ImageButtonPress, APressOutsideOfItsBoundsIsIgnored) {
  // As another view may hand one on. It would wait for a release if it were tracked.
  for (NSPoint place : {NSMakePoint(-1, 10), NSMakePoint(100, 10), NSMakePoint(50, -1),
                        NSMakePoint(50, 20), kOutside})
    [button mouseDown:mouseEvent(NSLeftMouseDown, button, place)];
  EXPECT_EQ(receiver->actions, 0);
  EXPECT_FALSE([[button cell] isHighlighted]);
}

TEST_F(ImageButtonPress, OnlyTypesWithABackgroundShowTheirStateByTheImage) {
  struct {
    NSButtonType type;
    bool shows;
  } rows[] = {{NSMomentaryLightButton, false},
              {NSMomentaryPushInButton, false},
              {NSMomentaryChangeButton, false},
              {NSPushOnPushOffButton, true},
              {NSOnOffButton, true},
              {NSToggleButton, false},
              {NSSwitchButton, false},
              {NSRadioButton, false}};
  for (const auto &row : rows) {
    [button setButtonType:row.type];
    EXPECT_EQ(([[button cell] showsStateBy] & NSChangeGrayCellMask) != 0, row.shows) << row.type;
  }
}

TEST_F(ImageButtonPress, ATogglePushesInAndOut) {
  [button setButtonType:NSPushOnPushOffButton];
  clickAt(kInside);
  EXPECT_EQ([button state], NSOnState);
  EXPECT_TRUE(pumpUntil([&] { return [artwork lastVariation] == 1; })) << "shows that it is on";
  clickAt(kInside);
  EXPECT_EQ([button state], NSOffState);
  EXPECT_TRUE(pumpUntil([&] { return [artwork lastVariation] == 0; }));
  EXPECT_EQ(receiver->actions, 2);

  [button setState:NSOnState];
  EXPECT_TRUE(pumpUntil([&] { return [artwork lastVariation] == 1; })) << "set by the program";
}

TEST_F(ImageButtonPress, AMomentaryOneStaysAsItWas) {
  for (NSButtonType type : {NSMomentaryLightButton, NSMomentaryPushInButton}) {
    [button setButtonType:type];
    ASSERT_EQ([[button cell] showsStateBy] & NSChangeGrayCellMask, 0);
    clickAt(kInside);
    EXPECT_TRUE(pumpUntil([&] { return [artwork lastVariation] == 0; }));
  }
  EXPECT_EQ(receiver->actions, 2);
}

// MARK: Keyboard

TEST_F(ImageButtonPress, SpaceShowsThePressAndSendsTheAction) {
  ASSERT_TRUE([[button window] makeFirstResponder:button]);
  pumpPending();
  artwork->drawn.clear();
  type([button window], @" ");
  EXPECT_EQ(receiver->actions, 1);
  EXPECT_THAT(variationsDrawn(), Contains(1));
  EXPECT_TRUE(pumpUntil([&] { return [artwork lastVariation] == 0; }));
}

TEST_F(ImageButtonPress, ReturnAsItsKeyEquivalentPressesIt) {
  [button setKeyEquivalent:@"\r"];
  [button setKeyEquivalentModifierMask:0];
  [[button window] makeFirstResponder:nil];
  pumpPending();
  artwork->drawn.clear();
  type([button window], @"\r");
  EXPECT_EQ(receiver->actions, 1);
  EXPECT_THAT(variationsDrawn(), Contains(1));
  EXPECT_TRUE(pumpUntil([&] { return [artwork lastVariation] == 0; }));
}

TEST_F(ImageButtonPress, AKeyEquivalentShowsThePress) {
  [button setKeyEquivalent:@"k"];
  [button setKeyEquivalentModifierMask:NSCommandKeyMask];
  pumpPending();
  artwork->drawn.clear();
  EXPECT_TRUE([button performKeyEquivalent:keyEvent([button window], @"k", NSCommandKeyMask)]);
  EXPECT_EQ(receiver->actions, 1);
  EXPECT_THAT(variationsDrawn(), Contains(1));
  EXPECT_FALSE([button performKeyEquivalent:keyEvent([button window], @"j", NSCommandKeyMask)]);
  [button setEnabled:NO];
  EXPECT_FALSE([button performKeyEquivalent:keyEvent([button window], @"k", NSCommandKeyMask)]);
  EXPECT_EQ(receiver->actions, 1);
}

TEST_F(ImageButtonPress, PerformClickShowsThePushedArtworkUnderThePointer) {
  movePointerTo(button, kInside);
  artwork->drawn.clear();
  [button performClick:nil];
  EXPECT_EQ(receiver->actions, 1);
  EXPECT_THAT(variationsDrawn(), Contains(2));
  EXPECT_FALSE([[button cell] isHighlighted]);
  EXPECT_TRUE(pumpUntil([&] { return [artwork lastVariation] == 3; }));
}

TEST_F(ImageButtonPress, PerformClickWorksWithoutAWindow) {
  [[button retain] autorelease];
  [button removeFromSuperview];
  [button performClick:nil];
  EXPECT_EQ(receiver->actions, 1);
}

TEST_F(ImageButtonPress, ATitleThatItsCellGetsShowsItself) {
  // One that was never drawn without its artwork.
  HXImageButton *other =
      [[[HXImageButton alloc] initWithFrame:NSMakeRect(150, 30, 50, 20)] autorelease];
  [other setImageContainer:artwork];
  [[button superview] addSubview:other];
  ASSERT_TRUE(pumpUntil([=] { return ![other needsDisplay]; }));
  [[other cell] setTitle:@"New"];
  EXPECT_TRUE([other needsDisplay]);
}

// Where the two pictures differ.
std::vector<std::pair<int, int>> differences(const Picture &a, const Picture &b) {
  std::vector<std::pair<int, int>> places;
  for (int y = 0; y < a.height(); y++)
    for (int x = 0; x < a.width(); x++)
      if (!near(a.at(x, y), b.at(x, y))) places.push_back({x, y});
  return places;
}

TEST_F(ImageButtonPress, ShowsTheFocusWhereAPlainButtonShowsIt) {
  NSButton *plain = [[[NSButton alloc] initWithFrame:NSMakeRect(40, 80, 100, 20)] autorelease];
  [plain setTitle:@""];
  [[button superview] addSubview:plain];
  for (BOOL bordered : {YES, NO}) {
    std::vector<std::pair<int, int>> rings[2];
    int which = 0;
    for (NSButton *each : {(NSButton *)button, plain}) {
      [each setBordered:bordered];
      [[button window] makeFirstResponder:nil];
      Picture without = pictureOf(each);
      ASSERT_TRUE([[button window] makeFirstResponder:each]);
      rings[which++] = differences(without, pictureOf(each));
    }
    EXPECT_GT(rings[0].size(), 100u) << "a ring can be seen";
    EXPECT_EQ(rings[0], rings[1]);
  }
  EXPECT_TRUE([button acceptsFirstResponder]);
  [button setEnabled:NO];
  EXPECT_EQ([button acceptsFirstResponder], ([plain setEnabled:NO], [plain acceptsFirstResponder]));
}

}  // namespace
