#include "platform/MenuTracking.h"

#include <cmath>

#include "platform/MenuPlacement.h"
#include "support/GeometryBridge.h"

namespace {

// Less is a click, not a drag.
constexpr CGFloat kDragDistance = 4;
// A pointer that goes to the right by more than this per step is on its way to the submenu.
constexpr CGFloat kTowardsSubmenu = 2;
constexpr int kPatience = 10;
// How often the pointer is looked at, in seconds.
constexpr NSTimeInterval kStep = 0.02;

bool canBeChosen(NSMenu *menu, NSInteger index) {
  if (index < 0 || index >= [menu numberOfItems]) return false;
  NSMenuItem *item = (NSMenuItem *)[menu itemAtIndex:index];
  return [item isEnabled] && ![item isSeparatorItem];
}

NSMenu *openSubmenuOf(NSMenu *menu) {
  NSMenu *submenu = [menu attachedMenu];
  return [submenu isTransient] ? submenu : nil;
}

// Its item stays highlighted, which the platform does not see to.
void closeSubmenu(NSMenu *submenu) {
  NSMenu *menu = [submenu supermenu];
  NSMenuView *view = [menu menuRepresentation];
  [view detachSubmenu];
  [view setHighlightedItemIndex:[menu indexOfItemWithSubmenu:submenu]];
}

bool isPress(NSEventType type) {
  return type == NSLeftMouseDown || type == NSRightMouseDown || type == NSOtherMouseDown;
}

bool isRelease(NSEventType type) {
  return type == NSLeftMouseUp || type == NSRightMouseUp || type == NSOtherMouseUp;
}

}  // namespace

namespace ov {

MenuTracking::MenuTracking(NSMenu *menu, NSEvent *opening)
    : menu_(menu),
      openedAt_([NSEvent mouseLocation]),
      pointer_(openedAt_),
      openingClick_(isPress([opening type])) {}

MenuChoice MenuTracking::run() {
  constexpr NSUInteger kMask = NSLeftMouseDownMask | NSLeftMouseUpMask | NSLeftMouseDraggedMask |
                               NSRightMouseDownMask | NSRightMouseUpMask | NSRightMouseDraggedMask |
                               NSOtherMouseDownMask | NSOtherMouseUpMask | NSOtherMouseDraggedMask |
                               NSMouseMovedMask | NSKeyDownMask | NSKeyUpMask | NSScrollWheelMask |
                               NSAppKitDefinedMask;
  follow(pointer_);
  while (!done_) {
    @autoreleasepool {
      NSEvent *event = [NSApp nextEventMatchingMask:kMask
                                          untilDate:[NSDate dateWithTimeIntervalSinceNow:kStep]
                                             inMode:NSEventTrackingRunLoopMode
                                            dequeue:YES];
      const NSPoint pointer = [NSEvent mouseLocation];
      // While it rests, the keyboard may have gone elsewhere.
      if (waiting_ || !NSEqualPoints(pointer, pointer_)) follow(pointer);
      if ([menu_ isPartlyOffScreen]) [menu_ shiftOnScreen];
      if (event != nil) handle(event);
    }
  }
  return choice_;
}

void MenuTracking::handle(NSEvent *event) {
  const NSEventType type = [event type];
  if (type == NSAppKitDefined) {
    // Windows learn in this way where they lie.
    [[event window] sendEvent:event];
  } else if (type == NSKeyDown) {
    keyPressed(event);
  } else if (isPress(type)) {
    openingClick_ = false;
    if (placeOf(pointer_).menu == nil) done_ = true;
  } else if (isRelease(type)) {
    released();
  }
}

void MenuTracking::released() {
  const bool opening = openingClick_;
  openingClick_ = false;
  if (opening && std::fabs(pointer_.x - openedAt_.x) < kDragDistance &&
      std::fabs(pointer_.y - openedAt_.y) < kDragDistance) {
    return;  // a click, which leaves the menu open even where an item came to lie under it
  }
  const Place place = placeOf(pointer_);
  if (place.menu != nil) {
    choose(place.menu, place.index);
  } else if (!opening || visited_) {
    done_ = true;
  }
}

void MenuTracking::choose(NSMenu *menu, NSInteger index) {
  if (!canBeChosen(menu, index) || [[menu itemAtIndex:index] hasSubmenu]) return;
  choice_ = {retain(menu), index};
  done_ = true;
}

MenuTracking::Place MenuTracking::placeOf(NSPoint pointer) const {
  Place place;
  for (NSMenu *menu = menu_; menu != nil; menu = openSubmenuOf(menu)) {
    NSWindow *window = [menu window];
    if (!NSMouseInRect(pointer, [window frame], NO)) continue;
    NSMenuView *view = [menu menuRepresentation];
    const NSPoint inWindow = [window convertScreenToBase:pointer];
    place = {menu, [view indexOfItemAtPoint:[view convertPoint:inWindow fromView:nil]]};
  }
  return place;
}

NSMenu *MenuTracking::innermost() const {
  NSMenu *menu = menu_;
  while (NSMenu *submenu = openSubmenuOf(menu)) menu = submenu;
  return menu;
}

void MenuTracking::follow(NSPoint pointer) {
  const CGFloat rightward = pointer.x - pointer_.x;
  pointer_ = pointer;
  waiting_ = false;
  const Place place = placeOf(pointer);
  if (place.menu == nil) {
    [[innermost() menuRepresentation] setHighlightedItemIndex:-1];
    return;
  }
  NSMenuView *view = [place.menu menuRepresentation];
  const NSInteger index = canBeChosen(place.menu, place.index) ? place.index : -1;
  visited_ = visited_ || index != -1;
  if (index == [view highlightedItemIndex]) {
    NSMenu *submenu = openSubmenuOf(place.menu);
    if (submenu != nil) {
      // Back from one of its items, or from a submenu of it.
      [[submenu menuRepresentation] detachSubmenu];
      [[submenu menuRepresentation] setHighlightedItemIndex:-1];
    } else {
      openSubmenu();  // the keyboard got here first
    }
    return;
  }
  if (openSubmenuOf(place.menu) != nil && rightward > kTowardsSubmenu && patience_ > 0) {
    patience_--;
    waiting_ = true;
    return;
  }
  [view detachSubmenu];
  [view setHighlightedItemIndex:index];
  openSubmenu();
}

// The highlighted item's of the innermost menu, if it has one.
void MenuTracking::openSubmenu() {
  NSMenu *menu = innermost();
  NSMenuView *view = [menu menuRepresentation];
  const NSInteger index = [view highlightedItemIndex];
  if (!canBeChosen(menu, index) || ![[menu itemAtIndex:index] hasSubmenu]) return;
  [view attachSubmenuForItemAtIndex:index];
  patience_ = kPatience;
  NSWindow *window = [[[menu itemAtIndex:index] submenu] window];
  const NSRect frame =
      toNS(submenuFrame(fromNS([window frame]), fromNS([[menu window] frame]),
                        fromNS([([[menu window] screen] ?: [NSScreen mainScreen]) visibleFrame])));
  [window setFrameOrigin:frame.origin];
}

void MenuTracking::keyPressed(NSEvent *event) {
  NSString *characters = [event charactersIgnoringModifiers];
  if ([characters length] == 0) return;
  NSMenu *menu = innermost();
  switch ([characters characterAtIndex:0]) {
    case 0x1b:
      done_ = true;
      break;
    case NSDownArrowFunctionKey:
      step(1);
      break;
    case NSUpArrowFunctionKey:
      step(-1);
      break;
    case NSRightArrowFunctionKey:
      openSubmenu();
      if (innermost() != menu) step(1);
      break;
    case NSLeftArrowFunctionKey:
      if (menu != menu_) closeSubmenu(menu);
      break;
    case NSCarriageReturnCharacter:
    case NSNewlineCharacter:
    case NSEnterCharacter:
    case ' ': {
      const NSInteger index = [(NSMenuView *)[menu menuRepresentation] highlightedItemIndex];
      choose(menu, index);
      if (!done_) openSubmenu();
      if (innermost() != menu) step(1);
      break;
    }
    default:
      break;
  }
}

// To the next item that can be chosen; stays where there is none.
void MenuTracking::step(NSInteger direction) {
  NSMenu *menu = innermost();
  NSMenuView *view = [menu menuRepresentation];
  const NSInteger from = [view highlightedItemIndex];
  NSInteger index = from == -1 && direction < 0 ? [menu numberOfItems] : from;
  do {
    index += direction;
    if (index < 0 || index >= [menu numberOfItems]) return;
  } while (!canBeChosen(menu, index));
  [view setHighlightedItemIndex:index];
}

}  // namespace ov
