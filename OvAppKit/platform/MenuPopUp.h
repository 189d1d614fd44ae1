// Pops a menu up where an event lies.
//
// The platform's +popUpContextMenu:withEvent:forView:withFont: looks at neither the event's
// location nor the font: the menu opens centred under the pointer. The release of the click
// that opened it closes it, Escape does not, and it may lie half outside the screen.
// Removable once the platform's method does what it promises.

#pragma once

#import <AppKit/AppKit.h>

namespace ov {

// The menu's top left corner comes to lie at the event's location in its window (on the
// screen, for an event without a window), moved onto the screen where it would leave it.
// Returns when the menu has closed, after the action of the chosen item was sent. A nil font
// leaves the items theirs; the view is the one the menu is for. Items are validated first.
// Does nothing without a menu, items or an event, or for a menu that is open already.
//
// Press, drag and release on an item chooses it. So do a click that opens the menu and a
// second one on an item, or the arrow keys and Return. A press outside and Escape close it.
//
// Whoever has replaced the platform's class method (a host with menus of its own, a test that
// looks on) gets the call instead, with the very same arguments; without a font, the form that
// takes none comes first.
void popUpMenu(NSMenu *menu, NSEvent *event, NSView *view, NSFont *font);

}  // namespace ov
