// Pop-up menus: where they open, what closes them, and what is chosen.

#import "LiveTest.h"

#import <GNUstepGUI/GSDisplayServer.h>

#import "XTest.h"

#include "platform/MenuPopUp.h"

using namespace ov::test;
using testing::ElementsAre;
using testing::IsEmpty;

@interface OvTestMenuTarget : NSObject {
 @public
  std::vector<std::string> chosen;
  std::vector<std::string> refused;
  NSMenu *menu;
  BOOL visibleInAction;
}
- (void)choose:(id)item;
@end

@implementation OvTestMenuTarget
- (void)choose:(id)item {
  chosen.push_back([[item title] UTF8String]);
  visibleInAction = [[menu window] isVisible] || [menu isTransient];
}
- (BOOL)validateMenuItem:(id)item {
  return std::find(refused.begin(), refused.end(), [[item title] UTF8String]) == refused.end();
}
@end

@interface OvTestMenuSupplier : NSObject {
 @public
  int asked;
  int items;
}
@end

@implementation OvTestMenuSupplier
- (void)menuNeedsUpdate:(NSMenu *)menu {
  asked++;
  while ([menu numberOfItems] > 0) [menu removeItemAtIndex:0];
  for (int i = 0; i < items; i++) {
    [menu addItemWithTitle:[NSString stringWithFormat:@"Made %d", i]
                    action:@selector(choose:)
             keyEquivalent:@""];
  }
}
@end

// Pops a menu up where it is pressed.
@interface OvTestPopUpView : NSView {
 @public
  NSMenu *shown;
  int presses;
  int keys;
}
@end

@implementation OvTestPopUpView
- (void)mouseDown:(NSEvent *)event {
  presses++;
  ov::popUpMenu(shown, event, self, nil);
}
- (BOOL)acceptsFirstResponder {
  return YES;
}
- (void)keyDown:(NSEvent *)event {
  (void)event;
  keys++;
}
@end

namespace {

// What a person does while a menu is open: each act waits for what must have come about.
struct Act {
  std::function<bool()> when;
  std::function<void()> act;
};

class MenuPopUp : public LiveTest {
 protected:
  void SetUp() override {
    LiveTest::SetUp();
    target_ = [[OvTestMenuTarget alloc] init];
    NSWindow *window = showWindow(NSMakeSize(300, 200));
    view_ = [[[OvTestPopUpView alloc] initWithFrame:NSMakeRect(0, 0, 300, 200)] autorelease];
    [[window contentView] addSubview:view_];
    // Away from where menus open.
    warpPointer(view_, NSMakePoint(290, 190));
    menu_ = menuOf(@[ @"One", @"Two", @"Three" ]);
    view_->shown = menu_;
    target_->menu = menu_;
  }
  void TearDown() override {
    LiveTest::TearDown();
    [target_ release];
  }

  NSMenu *menuOf(NSArray *titles) {
    NSMenu *menu = [[[NSMenu alloc] initWithTitle:@""] autorelease];
    for (NSString *title in titles) {
      if ([title isEqual:@"-"]) {
        [menu addItem:[NSMenuItem separatorItem]];
        continue;
      }
      [[menu addItemWithTitle:title action:@selector(choose:) keyEquivalent:@""] setTarget:target_];
    }
    return menu;
  }
  NSMenu *submenuAt(NSInteger index, NSArray *titles) {
    NSMenu *submenu = menuOf(titles);
    [menu_ setSubmenu:submenu forItem:[menu_ itemAtIndex:index]];
    return submenu;
  }

  NSEvent *pressAt(NSPoint point) { return mouseEvent(NSLeftMouseDown, view_, point); }

  // Pops the menu up at a place in the view while the acts are played; answers whether all were
  // before the menu closed. One that stays open is closed in the end.
  bool popUp(NSPoint point, const std::vector<Act> &acts, NSFont *font = nil) {
    return popUp(pressAt(point), acts, font);
  }
  bool popUp(NSEvent *event, const std::vector<Act> &acts, NSFont *font = nil) {
    return play(acts, [&] { ov::popUpMenu(menu_, event, view_, font); });
  }
  bool play(const std::vector<Act> &acts, const std::function<void()> &call) {
    size_t next = 0;
    int idle = 0;
    auto tick = [&] {
      if (next < acts.size() && acts[next].when()) {
        acts[next++].act();
        idle = 0;
      } else if (++idle > 200) {
        post(keyEvent([view_ window], @"\x1b"));
      }
    };
    runWithSteps({tick}, call, 0.02);
    return next == acts.size() && idle <= 200;
  }

  // Conditions.
  std::function<bool()> open() {
    return [this] { return [menu_ isTransient] && [[menu_ window] isVisible]; };
  }
  std::function<bool()> highlighted(NSMenu *menu, NSInteger index) {
    return [=] { return [(NSMenuView *)[menu menuRepresentation] highlightedItemIndex] == index; };
  }
  std::function<bool()> highlighted(NSInteger index) { return highlighted(menu_, index); }
  // What was posted has been taken out of the queue.
  std::function<bool()> settled() {
    return [] {
      return [NSApp nextEventMatchingMask:NSAnyEventMask
                                untilDate:[NSDate distantPast]
                                   inMode:NSEventTrackingRunLoopMode
                                  dequeue:NO] == nil;
    };
  }

  // Acts.
  std::function<void()> pointAt(NSMenu *menu, NSInteger index) {
    return [=, this] { warp(placeOf(menu, index)); };
  }
  std::function<void()> pointAt(NSInteger index) { return pointAt(menu_, index); }
  std::function<void()> pointOutside() {
    return [this] { warp(screenPoint(view_, NSMakePoint(280, 180))); };
  }
  std::function<void()> postMouse(NSEventType type) {
    return [=, this] { post(mouseEvent(type, view_, NSMakePoint(5, 5))); };
  }
  std::function<void()> postKey(NSString *key) {
    return [=, this] { post(keyEvent([view_ window], key)); };
  }
  std::function<void()> postKey(unichar key) {
    return postKey([NSString stringWithCharacters:&key length:1]);
  }
  std::function<void()> look(std::function<void()> at) { return at; }

  NSPoint placeOf(NSMenu *menu, NSInteger index) {
    NSMenuView *view = [menu menuRepresentation];
    NSRect rect = [view convertRect:[view rectOfItemAtIndex:index] toView:nil];
    return [[menu window] convertBaseToScreen:NSMakePoint(NSMidX(rect), std::floor(NSMidY(rect)))];
  }
  void warp(NSPoint place) {
    [GSServerForWindow([view_ window]) setMouseLocation:place onScreen:0];
  }
  NSPoint topLeft() {
    NSRect frame = [[menu_ window] frame];
    return NSMakePoint(NSMinX(frame), NSMaxY(frame));
  }

  OvTestMenuTarget *target_;
  OvTestPopUpView *view_;
  NSMenu *menu_;
};

TEST_F(MenuPopUp, OpensWithItsCornerAtTheEvent) {
  NSPoint seen = NSZeroPoint;
  ASSERT_TRUE(popUp(NSMakePoint(30, 150),
                    {{open(), look([&] { seen = topLeft(); })}, {open(), postKey(@"\x1b")}}));
  EXPECT_EQ(seen, screenPoint(view_, NSMakePoint(30, 150)));
  EXPECT_FALSE([menu_ isTransient]);
  EXPECT_FALSE([[menu_ window] isVisible]);
}

TEST_F(MenuPopUp, AnEventWithoutWindowLiesOnTheScreen) {
  NSEvent *event = [NSEvent mouseEventWithType:NSLeftMouseDown
                                      location:NSMakePoint(333, 444)
                                 modifierFlags:0
                                     timestamp:0
                                  windowNumber:0
                                       context:nil
                                   eventNumber:0
                                    clickCount:1
                                      pressure:0];
  NSPoint seen = NSZeroPoint;
  ASSERT_TRUE(
      popUp(event, {{open(), look([&] { seen = topLeft(); })}, {open(), postKey(@"\x1b")}}));
  EXPECT_EQ(seen, NSMakePoint(333, 444));
}

TEST_F(MenuPopUp, AClickOpensAndAnotherOneChooses) {
  EXPECT_TRUE(popUp(NSMakePoint(30, 150), {{open(), postMouse(NSLeftMouseUp)},
                                           {settled(), pointAt(1)},
                                           {highlighted(1), postMouse(NSLeftMouseDown)},
                                           {settled(), postMouse(NSLeftMouseUp)}}));
  EXPECT_THAT(target_->chosen, ElementsAre("Two"));
  EXPECT_FALSE(target_->visibleInAction) << "the menu is closed when the action is sent";
  EXPECT_EQ([(NSMenuView *)[menu_ menuRepresentation] highlightedItemIndex], -1);
}

TEST_F(MenuPopUp, PressDragAndReleaseChooses) {
  EXPECT_TRUE(popUp(NSMakePoint(30, 150), {{open(), pointAt(0)},
                                           {highlighted(0), pointAt(2)},
                                           {highlighted(2), postMouse(NSLeftMouseUp)}}));
  EXPECT_THAT(target_->chosen, ElementsAre("Three"));
}

TEST_F(MenuPopUp, TheReleaseOfTheOpeningClickChoosesNothingUnderTheRestingPointer) {
  // The pointer lies where an item comes to lie.
  warpPointer(view_, NSMakePoint(60, 100));
  EXPECT_TRUE(popUp(NSMakePoint(30, 150),
                    {{open(), postMouse(NSLeftMouseUp)}, {settled(), postKey(@"\x1b")}}));
  EXPECT_THAT(target_->chosen, IsEmpty());
}

TEST_F(MenuPopUp, AReleaseThatIsPendingLeavesItOpen) {
  post(mouseEvent(NSLeftMouseUp, view_, NSMakePoint(30, 150)));
  EXPECT_TRUE(popUp(NSMakePoint(30, 150), {{settled(), look([] {})},
                                           {open(), pointAt(0)},
                                           {highlighted(0), postMouse(NSLeftMouseUp)}}));
  EXPECT_THAT(target_->chosen, ElementsAre("One"));
}

TEST_F(MenuPopUp, ADragThatEndsOutsideChoosesNothing) {
  EXPECT_TRUE(popUp(NSMakePoint(30, 150), {{open(), pointAt(0)},
                                           {highlighted(0), pointOutside()},
                                           {highlighted(-1), postMouse(NSLeftMouseUp)}}));
  EXPECT_FALSE([menu_ isTransient]);
  EXPECT_THAT(target_->chosen, IsEmpty());
}

TEST_F(MenuPopUp, APressOutsideClosesIt) {
  EXPECT_TRUE(popUp(NSMakePoint(30, 150), {{open(), postMouse(NSLeftMouseUp)},
                                           {settled(), pointAt(0)},
                                           {highlighted(0), pointOutside()},
                                           {highlighted(-1), postMouse(NSLeftMouseDown)}}));
  EXPECT_THAT(target_->chosen, IsEmpty());
  EXPECT_EQ(view_->presses, 0) << "nobody else gets that press";
}

TEST_F(MenuPopUp, EscapeClosesIt) {
  [[view_ window] makeFirstResponder:view_];
  EXPECT_TRUE(
      popUp(NSMakePoint(30, 150), {{open(), pointAt(1)}, {highlighted(1), postKey(@"\x1b")}}));
  pumpPending();
  EXPECT_THAT(target_->chosen, IsEmpty());
  EXPECT_EQ(view_->keys, 0) << "nobody else gets that key";
}

TEST_F(MenuPopUp, KeysGoThroughIt) {
  menu_ = menuOf(@[ @"One", @"-", @"Two", @"Three" ]);
  target_->refused = {"Two"};
  EXPECT_TRUE(popUp(NSMakePoint(30, 150), {{open(), postKey(NSDownArrowFunctionKey)},
                                           {highlighted(0), postKey(NSUpArrowFunctionKey)},
                                           {settled(), postKey(NSDownArrowFunctionKey)},
                                           {highlighted(3), postKey(NSDownArrowFunctionKey)},
                                           {settled(), postKey(NSUpArrowFunctionKey)},
                                           {highlighted(0), postKey(NSDownArrowFunctionKey)},
                                           {highlighted(3), postKey(@"\r")}}));
  EXPECT_THAT(target_->chosen, ElementsAre("Three"));
}

TEST_F(MenuPopUp, UpStartsAtTheLastItemAndSpaceChooses) {
  EXPECT_TRUE(popUp(NSMakePoint(30, 150),
                    {{open(), postKey(NSUpArrowFunctionKey)}, {highlighted(2), postKey(@" ")}}));
  EXPECT_THAT(target_->chosen, ElementsAre("Three"));
}

TEST_F(MenuPopUp, ItemsAreValidatedAndDisabledOnesNotChosen) {
  target_->refused = {"Two"};
  BOOL enabled = YES;
  EXPECT_TRUE(popUp(NSMakePoint(30, 150),
                    {{open(), look([&] { enabled = [[menu_ itemAtIndex:1] isEnabled]; })},
                     {open(), pointAt(0)},
                     {highlighted(0), pointAt(1)},
                     {highlighted(-1), postMouse(NSLeftMouseUp)},
                     {settled(), postMouse(NSLeftMouseDown)},
                     {settled(), postMouse(NSLeftMouseUp)},
                     // It is still open.
                     {settled(), pointAt(2)},
                     {highlighted(2), postMouse(NSLeftMouseUp)}}));
  EXPECT_FALSE(enabled);
  EXPECT_THAT(target_->chosen, ElementsAre("Three"));
}

TEST_F(MenuPopUp, SubmenusOpenUnderThePointer) {
  NSMenu *submenu = submenuAt(1, @[ @"Deep", @"Deeper" ]);
  BOOL visible = NO;
  EXPECT_TRUE(popUp(NSMakePoint(30, 150),
                    {{open(), pointAt(1)},
                     {highlighted(1), look([&] { visible = [[submenu window] isVisible]; })},
                     // A click on the item that opens it chooses nothing.
                     {settled(), postMouse(NSLeftMouseUp)},
                     {settled(), pointAt(submenu, 1)},
                     {highlighted(submenu, 1), postMouse(NSLeftMouseUp)}}));
  EXPECT_TRUE(visible);
  EXPECT_THAT(target_->chosen, ElementsAre("Deeper"));
  EXPECT_FALSE([submenu isTransient]);
  EXPECT_FALSE([[submenu window] isVisible]);
  EXPECT_EQ([menu_ attachedMenu], nil);
}

TEST_F(MenuPopUp, SubmenusCloseBehindThePointer) {
  NSMenu *submenu = submenuAt(1, @[ @"Deep", @"Deeper" ]);
  BOOL visible = YES;
  EXPECT_TRUE(popUp(NSMakePoint(30, 150),
                    {{open(), pointAt(1)},
                     {highlighted(1), pointAt(submenu, 0)},
                     {highlighted(submenu, 0), pointAt(0)},
                     {highlighted(0), look([&] { visible = [[submenu window] isVisible]; })},
                     {open(), postMouse(NSLeftMouseUp)}}));
  EXPECT_FALSE(visible);
  EXPECT_THAT(target_->chosen, ElementsAre("One"));
}

TEST_F(MenuPopUp, APointerThatStopsOnAnotherItemLeavesTheSubmenu) {
  NSMenu *submenu = submenuAt(1, @[ @"Deep", @"Deeper" ]);
  auto toTheRight = [&] {
    NSPoint place = placeOf(menu_, 0);
    warp(NSMakePoint(place.x + 12, place.y));
  };
  EXPECT_TRUE(popUp(NSMakePoint(30, 150), {{open(), pointAt(1)},
                                           {[=] { return [submenu isTransient]; }, toTheRight},
                                           {highlighted(0), postMouse(NSLeftMouseUp)}}));
  EXPECT_THAT(target_->chosen, ElementsAre("One"));
}

TEST_F(MenuPopUp, ThePointerOpensTheSubmenuOfAnItemThatTheKeysHaveReached) {
  NSMenu *submenu = submenuAt(0, @[ @"Deep", @"Deeper" ]);
  EXPECT_TRUE(
      popUp(NSMakePoint(30, 150), {{open(), postKey(NSDownArrowFunctionKey)},
                                   {highlighted(0), pointAt(0)},
                                   {[=] { return [submenu isTransient]; }, pointAt(submenu, 0)},
                                   {highlighted(submenu, 0), postMouse(NSLeftMouseUp)}}));
  EXPECT_THAT(target_->chosen, ElementsAre("Deep"));
}

TEST_F(MenuPopUp, SubmenusByKeys) {
  NSMenu *submenu = submenuAt(0, @[ @"Deep", @"Deeper" ]);
  EXPECT_TRUE(
      popUp(NSMakePoint(30, 150), {{open(), postKey(NSDownArrowFunctionKey)},
                                   {highlighted(0), postKey(NSRightArrowFunctionKey)},
                                   {highlighted(submenu, 0), postKey(NSLeftArrowFunctionKey)},
                                   {[=] { return ![submenu isTransient]; }, postKey(@"\r")},
                                   {highlighted(submenu, 0), postKey(NSDownArrowFunctionKey)},
                                   {highlighted(submenu, 1), postKey(@"\r")}}));
  EXPECT_THAT(target_->chosen, ElementsAre("Deeper"));
}

TEST_F(MenuPopUp, StaysOnTheScreenWithItsSubmenus) {
  NSMenu *submenu = submenuAt(1, @[ @"Deep", @"Deeper" ]);
  NSRect screen = [[[view_ window] screen] visibleFrame];
  NSRect seen = NSZeroRect;
  NSRect below = NSZeroRect;
  NSPoint corner = viewPoint(view_, NSMakePoint(NSMaxX(screen) - 4, NSMinY(screen) + 3));
  EXPECT_TRUE(popUp(corner, {{open(), look([&] { seen = [[menu_ window] frame]; })},
                             {open(), pointAt(1)},
                             {highlighted(1), look([&] { below = [[submenu window] frame]; })},
                             {open(), postKey(@"\x1b")}}));
  EXPECT_TRUE(NSContainsRect(screen, seen)) << seen << " in " << screen;
  EXPECT_EQ(NSMaxX(seen), NSMaxX(screen));
  EXPECT_EQ(NSMinY(seen), NSMinY(screen));
  EXPECT_TRUE(NSContainsRect(screen, below)) << below << " in " << screen;
  EXPECT_LT(NSMinX(below), NSMinX(seen)) << "the submenu opens to the left";
}

TEST_F(MenuPopUp, ItemsTakeTheFontForAsLongAsItIsOpen) {
  NSMenuView *items = [menu_ menuRepresentation];
  NSFont *former = [[[items menuItemCellForItemAtIndex:0] font] retain];
  [menu_ sizeToFit];
  NSSize formerSize = [items frame].size;
  NSFont *large = [NSFont menuFontOfSize:[former pointSize] * 2];
  NSFont *seen = nil;
  NSSize size = NSZeroSize;
  EXPECT_TRUE(popUp(NSMakePoint(30, 150),
                    {{open(), look([&] {
                        seen = [[items menuItemCellForItemAtIndex:2] font];
                        size = [items frame].size;
                      })},
                     {open(), postKey(@"\x1b")}},
                    large));
  EXPECT_EQ(seen, large);
  EXPECT_GT(size.width, formerSize.width);
  EXPECT_GT(size.height, formerSize.height);
  EXPECT_EQ([[items menuItemCellForItemAtIndex:0] font], former);
  EXPECT_EQ([items font], former);
  [menu_ sizeToFit];
  EXPECT_EQ([items frame].size, formerSize);
  [former release];
}

TEST_F(MenuPopUp, TheDelegateSuppliesItems) {
  OvTestMenuSupplier *supplier = [[[OvTestMenuSupplier alloc] init] autorelease];
  supplier->items = 2;
  menu_ = menuOf(@[]);
  [menu_ setDelegate:(id)supplier];
  NSFont *font = [NSFont boldSystemFontOfSize:17];
  NSFont *seen = nil;
  EXPECT_TRUE(popUp(NSMakePoint(30, 150),
                    {{open(), look([&] {
                        NSMenuView *items = [menu_ menuRepresentation];
                        seen = [[items menuItemCellForItemAtIndex:1] font];
                      })},
                     {open(), postKey(@"\x1b")}},
                    font));
  EXPECT_GT(supplier->asked, 0);
  EXPECT_EQ([menu_ numberOfItems], 2);
  EXPECT_EQ(seen, font);

  supplier->items = 0;
  supplier->asked = 0;
  NotificationCount began(NSMenuDidBeginTrackingNotification, nil);
  ov::popUpMenu(menu_, pressAt(NSMakePoint(30, 150)), view_, nil);
  EXPECT_GT(supplier->asked, 0);
  EXPECT_EQ(began.count(), 0) << "nothing opens when there are none";
  EXPECT_FALSE([menu_ isTransient]);
  [menu_ setDelegate:nil];
}

TEST_F(MenuPopUp, NothingOpensWithoutMenuItemsOrEvent) {
  NotificationCount began(NSMenuDidBeginTrackingNotification, nil);
  NSEvent *event = pressAt(NSMakePoint(30, 150));
  ov::popUpMenu(nil, event, view_, nil);
  ov::popUpMenu(menuOf(@[]), event, view_, nil);
  ov::popUpMenu(menu_, nil, view_, nil);
  EXPECT_EQ(began.count(), 0);
}

TEST_F(MenuPopUp, NeedsNoView) {
  EXPECT_TRUE(play({{open(), pointAt(0)}, {highlighted(0), postMouse(NSLeftMouseUp)}},
                   [&] { ov::popUpMenu(menu_, pressAt(NSMakePoint(30, 150)), nil, nil); }));
  EXPECT_THAT(target_->chosen, ElementsAre("One"));
}

TEST_F(MenuPopUp, AnOpenMenuIsNotOpenedAgain) {
  NSRect before = NSZeroRect;
  NSRect after = NSZeroRect;
  EXPECT_TRUE(popUp(NSMakePoint(30, 150), {{open(), look([&] {
                                              before = [[menu_ window] frame];
                                              ov::popUpMenu(menu_, pressAt(NSMakePoint(90, 90)),
                                                            view_, nil);
                                              after = [[menu_ window] frame];
                                            })},
                                           {open(), postKey(@"\x1b")}}));
  EXPECT_EQ(before, after);
}

TEST_F(MenuPopUp, TellsOfItsBeginningAndEnd) {
  NotificationCount began(NSMenuDidBeginTrackingNotification, menu_);
  NotificationCount ended(NSMenuDidEndTrackingNotification, menu_);
  int endedWhileOpen = -1;
  EXPECT_TRUE(popUp(NSMakePoint(30, 150), {{open(), look([&] { endedWhileOpen = ended.count(); })},
                                           {open(), postKey(@"\x1b")}}));
  EXPECT_EQ(began.count(), 1);
  EXPECT_EQ(endedWhileOpen, 0);
  EXPECT_EQ(ended.count(), 1);
}

TEST_F(MenuPopUp, WhoReplacedThePlatformsMethodGetsTheCall) {
  MenuInterceptor interceptor;
  NSFont *font = [NSFont boldSystemFontOfSize:19];
  NSEvent *event = pressAt(NSMakePoint(30, 150));
  ov::popUpMenu(menu_, event, view_, font);
  EXPECT_EQ(interceptor.count(), 1);
  EXPECT_EQ(interceptor.menu(), menu_);
  EXPECT_EQ(interceptor.event(), event);
  EXPECT_EQ(interceptor.view(), view_);
  EXPECT_EQ(interceptor.font(), font);
}

TEST_F(MenuPopUp, RealClicks) {
  ASSERT_TRUE(xtest::isAvailable());
  warpPointer(view_, NSMakePoint(30, 150));
  pumpPending();
  auto press = [] { xtest::pressButton(); };
  auto release = [] { xtest::releaseButton(); };
  auto shown = [&] {
    EXPECT_TRUE(pumpUntil([&] { return view_->presses > 0; }));
    EXPECT_FALSE([menu_ isTransient]);
  };
  // A click opens it, a click on an item chooses.
  EXPECT_TRUE(play(
      {{open(), release}, {settled(), pointAt(1)}, {highlighted(1), press}, {settled(), release}},
      [&] {
        press();
        shown();
      }));
  EXPECT_THAT(target_->chosen, ElementsAre("Two"));

  // A press opens it, a release on an item chooses.
  view_->presses = 0;
  warpPointer(view_, NSMakePoint(30, 150));
  pumpPending();
  EXPECT_TRUE(play({{open(), pointAt(2)}, {highlighted(2), release}}, [&] {
    press();
    shown();
  }));
  EXPECT_THAT(target_->chosen, ElementsAre("Two", "Three"));

  // A click on the bare screen closes it.
  view_->presses = 0;
  warpPointer(view_, NSMakePoint(30, 150));
  pumpPending();
  EXPECT_TRUE(
      play({{open(), release},
            {settled(), [&] { warp(NSMakePoint(1200, 20)); }},
            {[&] { return NSEqualPoints([NSEvent mouseLocation], NSMakePoint(1200, 20)); }, press}},
           [&] {
             press();
             shown();
           }));
  release();
  EXPECT_EQ(target_->chosen.size(), 2u);
}

}  // namespace
