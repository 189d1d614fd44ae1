// The menu of an image button.

#import "ButtonTest.h"

#include <functional>

using namespace ov::test;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {
using Told = std::function<void(HXImageButton *, NSMenu *)>;
}

@interface OvTestMenuDelegate : NSObject {
 @public
  std::vector<NSMenu *> menus;
  Told told;
}
@end
@implementation OvTestMenuDelegate
- (void)imageButton:(HXImageButton *)button willPopUpMenu:(NSMenu *)menu {
  menus.push_back(menu);
  if (told) told(button, menu);
}
@end

/* Makes its menu when it is asked. */
@interface OvTestMenuButton : HXImageButton {
 @public
  int asked;
}
@end
@implementation OvTestMenuButton
- (NSMenu *)menuForEvent:(NSEvent *)event {
  asked++;
  NSMenu *menu = [[[NSMenu alloc] initWithTitle:@""] autorelease];
  [menu addItemWithTitle:@"Fresh" action:NULL keyEquivalent:@""];
  return menu;
}
@end

namespace {

constexpr NSPoint kInside{50, 10};

class ImageButtonMenu : public ImageButtonTest {
 protected:
  void SetUp() override {
    ImageButtonTest::SetUp();
    receiver = [[[OvTestReceiver alloc] init] autorelease];
    delegate = [[[OvTestMenuDelegate alloc] init] autorelease];
    menu = [[[NSMenu alloc] initWithTitle:@""] autorelease];
    for (NSString *title in @[ @"One", @"Two", @"Three" ]) {
      NSMenuItem *item = (NSMenuItem *)[menu addItemWithTitle:title
                                                       action:@selector(act:)
                                                keyEquivalent:@""];
      [item setTarget:receiver];
    }
  }

  HXImageButton *makeMenuButton(bool flippedGround = false) {
    HXImageButton *button = makeButton(flippedGround);
    [button setImageContainer:[OvTestArtwork artworkWithVariations:{1, 2, 3, 4}]];
    [button setMenu:menu];
    [button setDelegate:delegate];
    [button setTarget:receiver];
    [button setAction:@selector(act:)];
    return button;
  }

  OvTestReceiver *receiver;
  OvTestMenuDelegate *delegate;
  NSMenu *menu;
};

TEST_F(ImageButtonMenu, OpensFivePointsBelowTheButton) {
  MenuInterceptor menus;
  for (bool flipped : {false, true}) {
    HXImageButton *button = makeMenuButton(flipped);
    NSView *ground = [button superview];
    ASSERT_EQ([ground isFlipped], flipped);
    press(button, kInside);
    EXPECT_EQ(menus.menu(), menu);
    EXPECT_EQ(menus.view(), button);
    NSPoint expected = flipped ? NSMakePoint(40, 55) : NSMakePoint(40, 25);
    EXPECT_EQ(menus.location(), [ground convertPoint:expected toView:nil]);
    // Whichever way the superview is flipped, below is below.
    NSPoint corner = [button convertPoint:NSMakePoint(0, 20) toView:nil];
    EXPECT_EQ(menus.location(), NSMakePoint(corner.x, corner.y - 5));
  }
  EXPECT_EQ(menus.count(), 2);
  EXPECT_EQ(receiver->actions, 0);
}

TEST_F(ImageButtonMenu, OpensBelowAButtonInAScrolledView) {
  MenuInterceptor menus;
  HXImageButton *button = makeMenuButton(true);
  NSWindow *window = [button window];
  OvTestGround *ground = groundOf(button);
  [[ground retain] autorelease];
  [ground removeFromSuperview];
  [ground setFrameSize:NSMakeSize(600, 600)];
  scrollView(window, ground);
  [ground scrollPoint:NSMakePoint(17, 20)];
  ASSERT_EQ([ground visibleRect].origin, NSMakePoint(17, 20));
  press(button, kInside);
  EXPECT_EQ(menus.location(), [ground convertPoint:NSMakePoint(40, 55) toView:nil]);
}

TEST_F(ImageButtonMenu, TheEventIsThePressAtAnotherPlace) {
  MenuInterceptor menus;
  HXImageButton *button = makeMenuButton();
  NSWindow *window = [button window];
  NSEvent *event = [NSEvent mouseEventWithType:NSLeftMouseDown
                                      location:[button convertPoint:kInside toView:nil]
                                 modifierFlags:NSShiftKeyMask | NSAlternateKeyMask
                                     timestamp:12.5
                                  windowNumber:[window windowNumber]
                                       context:[window graphicsContext]
                                   eventNumber:4711
                                    clickCount:3
                                      pressure:0.5];
  [button mouseDown:event];
  NSEvent *given = menus.event();
  ASSERT_NE(given, nil);
  EXPECT_EQ([given type], static_cast<NSUInteger>(NSLeftMouseDown));
  EXPECT_EQ([given modifierFlags], NSUInteger { NSShiftKeyMask | NSAlternateKeyMask });
  EXPECT_EQ([given timestamp], 12.5);
  EXPECT_EQ([given windowNumber], [window windowNumber]);
  EXPECT_EQ([given context], [event context]);
  EXPECT_EQ([given eventNumber], 4711);
  EXPECT_EQ([given clickCount], 3);
  EXPECT_EQ([given pressure], 0.5f);
}

TEST_F(ImageButtonMenu, ItsFontFollowsTheControlSize) {
  MenuInterceptor menus;
  HXImageButton *button = makeMenuButton();
  for (NSControlSize size : {NSRegularControlSize, NSSmallControlSize, NSMiniControlSize}) {
    [[button cell] setControlSize:size];
    press(button, kInside);
    NSFont *expected = [NSFont menuFontOfSize:[NSFont systemFontSizeForControlSize:size]];
    EXPECT_TRUE([menus.font() isEqual:expected]);
    EXPECT_EQ([menus.font() pointSize], [NSFont systemFontSizeForControlSize:size]);
  }
}

TEST_F(ImageButtonMenu, TheDelegateIsToldFirst) {
  MenuInterceptor menus;
  HXImageButton *button = makeMenuButton();
  pictureOf(button);
  [button setNeedsDisplay:NO];
  delegate->told = [&](HXImageButton *sender, NSMenu *) {
    EXPECT_EQ(sender, button);
    EXPECT_EQ(menus.count(), 0);
    EXPECT_TRUE([[button cell] isHighlighted]);
    EXPECT_TRUE([button needsDisplay]);
  };
  press(button, kInside);
  EXPECT_THAT(delegate->menus, ElementsAre(menu));
  EXPECT_EQ(menus.count(), 1);
  EXPECT_FALSE([[button cell] isHighlighted]);
  EXPECT_TRUE([button needsDisplay]);
  EXPECT_EQ(receiver->actions, 0);
  EXPECT_EQ([button state], NSOffState);
}

TEST_F(ImageButtonMenu, ADelegateMayDoWithoutTheMethod) {
  MenuInterceptor menus;
  HXImageButton *button = makeMenuButton();
  for (id each : {(id)receiver, (id)nil}) {
    [button setDelegate:each];
    press(button, kInside);
  }
  EXPECT_EQ(menus.count(), 2);
}

TEST_F(ImageButtonMenu, TheMenuMayBeMadeForTheEvent) {
  MenuInterceptor menus;
  HXImageButton *button = makeMenuButton();
  OvTestMenuButton *own =
      [[[OvTestMenuButton alloc] initWithFrame:NSMakeRect(150, 30, 50, 20)] autorelease];
  [[button superview] addSubview:own];
  press(own, NSMakePoint(25, 10));
  EXPECT_EQ(own->asked, 1);
  EXPECT_TRUE([[(NSMenuItem *)[menus.menu() itemAtIndex:0] title] isEqualToString:@"Fresh"]);
}

TEST_F(ImageButtonMenu, ADisabledButtonShowsNone) {
  MenuInterceptor menus;
  HXImageButton *button = makeMenuButton();
  [button setEnabled:NO];
  press(button, kInside);
  EXPECT_EQ(menus.count(), 0);
  EXPECT_THAT(delegate->menus, IsEmpty());
  EXPECT_FALSE([[button cell] isHighlighted]);
}

TEST_F(ImageButtonMenu, APressOutsideShowsNone) {
  MenuInterceptor menus;
  HXImageButton *button = makeMenuButton();
  [button mouseDown:mouseEvent(NSLeftMouseDown, button, NSMakePoint(100, 10))];
  [button mouseDown:mouseEvent(NSLeftMouseDown, button, NSMakePoint(50, -1))];
  EXPECT_EQ(menus.count(), 0);
  EXPECT_THAT(delegate->menus, IsEmpty());
}

TEST_F(ImageButtonMenu, ARightPressDoesNothingAtAll) {
  MenuInterceptor menus;
  HXImageButton *button = makeMenuButton();
  [NSApp sendEvent:mouseEvent(NSRightMouseDown, button, kInside)];
  [NSApp sendEvent:mouseEvent(NSRightMouseUp, button, kInside)];
  EXPECT_EQ(menus.count(), 0);
  EXPECT_EQ(groundOf(button)->rightPresses, 0) << "nobody else gets it";
  EXPECT_THAT(delegate->menus, IsEmpty());
  EXPECT_EQ(receiver->actions, 0);
  EXPECT_FALSE([button _allowsContextMenus]);

  [NSApp sendEvent:mouseEvent(NSRightMouseDown, [button superview], NSMakePoint(5, 5))];
  EXPECT_EQ(groundOf(button)->rightPresses, 1) << "the ground counts";
}

TEST_F(ImageButtonMenu, TheDelegateMayTakeTheButtonAway) {
  MenuInterceptor menus;
  HXImageButton *button = makeMenuButton();
  HXImageButtonCell *cell = [[[button imageButtonCell] retain] autorelease];
  [button retain];
  drainPool();
  delegate = [[[OvTestMenuDelegate alloc] init] autorelease];
  [button setDelegate:delegate];
  [button setMenu:[[[NSMenu alloc] initWithTitle:@""] autorelease]];
  delegate->told = [](HXImageButton *sender, NSMenu *) {
    [sender setDelegate:nil];
    [sender setMenu:nil];
    [sender setCell:[[[HXImageButtonCell alloc] initTextCell:@""] autorelease]];
    [sender removeFromSuperview];
    [sender release];
  };
  [button mouseDown:mouseEvent(NSLeftMouseDown, button, kInside)];
  EXPECT_FALSE([cell isHighlighted]);
}

TEST_F(ImageButtonMenu, ADelegateThatRaisesLeavesNoHighlight) {
  MenuInterceptor menus;
  HXImageButton *button = makeMenuButton();
  delegate->told = [](HXImageButton *, NSMenu *) {
    [NSException raise:NSGenericException format:@"on purpose"];
  };
  bool raised = false;
  @try {
    [button mouseDown:mouseEvent(NSLeftMouseDown, button, kInside)];
  } @catch (NSException *) {
    raised = true;
  }
  EXPECT_TRUE(raised);
  EXPECT_FALSE([[button cell] isHighlighted]);
  EXPECT_EQ(menus.count(), 0);
}

TEST_F(ImageButtonMenu, WithoutAContainerItIsShownToo) {
  MenuInterceptor menus;
  HXImageButton *button = makeMenuButton();
  [button setImageContainer:nil];
  press(button, kInside);
  EXPECT_EQ(menus.count(), 1);
  EXPECT_FALSE([[button cell] isHighlighted]);
}

TEST_F(ImageButtonMenu, TheButtonLooksPressedWhileItIsOpen) {
  HXImageButton *button = makeMenuButton();
  auto *artwork = (OvTestArtwork *)[button imageContainer];
  movePointerAway(button);
  pumpPending();
  artwork->drawn.clear();
  NSRect place = NSZeroRect;
  bool all = runWithSteps({[] {},
                           [&] {
                             EXPECT_EQ([artwork lastVariation], 1) << "drawn anew";
                             place = [[[menu menuRepresentation] window] frame];
                           },
                           [&] { post(keyEvent([button window], @"\033")); }},
                          [&] { press(button, kInside); });
  EXPECT_TRUE(all);
  NSPoint corner = [[button window]
      convertBaseToScreen:[[button superview] convertPoint:NSMakePoint(40, 25) toView:nil]];
  EXPECT_NEAR(NSMinX(place), corner.x, 1);
  EXPECT_NEAR(NSMaxY(place), corner.y, 1);
  EXPECT_EQ(receiver->actions, 0);
  EXPECT_TRUE(pumpUntil([&] { return [artwork lastVariation] == 0; }));
}

TEST_F(ImageButtonMenu, ChoosingAnItemSendsItsActionAlone) {
  HXImageButton *button = makeMenuButton();
  unichar down = NSDownArrowFunctionKey;
  NSString *arrow = [NSString stringWithCharacters:&down length:1];
  bool all = runWithSteps({[&] { post(keyEvent([button window], arrow)); },
                           [&] { post(keyEvent([button window], @"\r")); }},
                          [&] { press(button, kInside); });
  EXPECT_TRUE(all);
  EXPECT_EQ(receiver->actions, 1);
  EXPECT_EQ(receiver->sender, [menu itemAtIndex:0]);
  EXPECT_FALSE([[button cell] isHighlighted]);
}

}  // namespace
