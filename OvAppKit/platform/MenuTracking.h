// Follows pointer and keyboard through a menu that is on the screen, and its submenus.
//
// The platform's own loop ends with the first release of a button, whatever came before, and
// does not look at keys.

#pragma once

#import <AppKit/AppKit.h>

#include "support/Retained.h"

namespace ov {

struct MenuChoice {
  Retained<NSMenu *> menu;  // nil when nothing was chosen
  NSInteger index = -1;
};

class MenuTracking {
 public:
  // The menu must have been shown as a transient one.
  MenuTracking(NSMenu *menu, NSEvent *opening);

  // Returns when something was chosen or the menu should close. Submenus may be open then.
  MenuChoice run();

 private:
  struct Place {
    NSMenu *menu = nil;  // the one under the pointer
    NSInteger index = -1;
  };

  void handle(NSEvent *event);
  void follow(NSPoint pointer);
  void released();
  void keyPressed(NSEvent *event);
  void choose(NSMenu *menu, NSInteger index);
  void step(NSInteger direction);
  void openSubmenu();
  Place placeOf(NSPoint pointer) const;
  // The last open submenu, or the menu itself.
  NSMenu *innermost() const;

  NSMenu *menu_;
  MenuChoice choice_;
  NSPoint openedAt_;
  NSPoint pointer_;
  bool openingClick_;     // its release is still to come
  bool visited_ = false;  // the pointer has been on an item
  bool done_ = false;
  bool waiting_ = false;  // for the pointer to show where it goes
  int patience_ = 0;      // how often the pointer may yet pass over others on its way to a submenu
};

}  // namespace ov
