#include "platform/MenuPopUp.h"

#import <GNUstepGUI/GSDisplayServer.h>
#include <dlfcn.h>
#include <objc/runtime.h>

#include <vector>

#include "platform/MenuPlacement.h"
#include "platform/MenuTracking.h"
#include "support/GeometryBridge.h"
#include "support/Methods.h"
#include "support/Retained.h"

namespace {

using PopUp = void(id, SEL, NSMenu *, NSEvent *, NSView *);
using PopUpWithFont = void(id, SEL, NSMenu *, NSEvent *, NSView *, NSFont *);

void *libraryOf(const void *address) {
  Dl_info info;
  return dladdr(address, &info) != 0 ? info.dli_fbase : nullptr;
}

// The class method that a host has put into the place of the platform's, or null.
template <typename Function>
Function *replaced(SEL message) {
  Function *method = ov::asFunction<Function>(
      method_getImplementation(class_getClassMethod([NSMenu class], message)));
  const bool isPlatforms =
      libraryOf(reinterpret_cast<const void *>(method)) == libraryOf([NSMenu class]);
  return isPlatforms ? nullptr : method;
}

// Gives the menu's items a font for as long as it exists.
class MenuFontScope {
 public:
  MenuFontScope(NSMenu *menu, NSFont *font) : view_([menu menuRepresentation]) {
    if (font == nil) return;
    former_ = ov::retain([view_ font]);
    // Those that the menu's delegate adds take the view's.
    [view_ setFont:font];
    for (NSInteger i = 0; i < [menu numberOfItems]; ++i) {
      NSMenuItemCell *cell = [view_ menuItemCellForItemAtIndex:i];
      cells_.push_back({ov::retain(cell), ov::retain([cell font])});
      [cell setFont:font];
      [cell setNeedsSizing:YES];
    }
    [view_ setNeedsSizing:YES];
  }
  ~MenuFontScope() {
    if (former_.get() == nil) return;
    [view_ setFont:former_.get()];
    for (const CellFont &each : cells_) {
      [each.cell.get() setFont:each.font.get()];
      [each.cell.get() setNeedsSizing:YES];
    }
    [view_ setNeedsSizing:YES];
  }
  MenuFontScope(const MenuFontScope &) = delete;
  MenuFontScope &operator=(const MenuFontScope &) = delete;

 private:
  struct CellFont {
    ov::Retained<NSMenuItemCell *> cell;
    ov::Retained<NSFont *> font;
  };
  NSMenuView *view_;
  ov::Retained<NSFont *> former_;
  std::vector<CellFont> cells_;
};

NSScreen *screenAt(NSPoint place) {
  for (NSScreen *screen in [NSScreen screens]) {
    if (NSMouseInRect(place, [screen frame], NO)) return screen;
  }
  return [NSScreen mainScreen];
}

void placeAt(NSMenu *menu, NSPoint corner) {
  NSWindow *window = [menu window];
  const NSRect screen = [screenAt(corner) visibleFrame];
  const ov::Rect frame =
      ov::menuFrame(ov::fromNS(corner), ov::fromNS([window frame].size), ov::fromNS(screen));
  [window setFrameOrigin:ov::toNS(frame).origin];
}

ov::MenuChoice showAndTrack(NSMenu *menu, NSEvent *event) {
  NSWindow *under = [event window];
  const NSPoint location = [event locationInWindow];
  const NSPoint corner = under != nil ? [under convertBaseToScreen:location] : location;
  ov::MenuChoice choice;
  GSDisplayServer *server = GSCurrentServer();
  NSNotificationCenter *center = [NSNotificationCenter defaultCenter];
  @try {
    [menu displayTransient];  // asks the delegate for items, and validates them
    if ([menu numberOfItems] > 0) {
      [menu sizeToFit];
      placeAt(menu, corner);
      [center postNotificationName:NSMenuDidBeginTrackingNotification object:menu];
      // Clicks beside all of the application's windows come here, too.
      [server capturemouse:static_cast<int>([[menu window] windowNumber])];
      choice = ov::MenuTracking(menu, event).run();
      [center postNotificationName:NSMenuDidEndTrackingNotification object:menu];
    }
  } @finally {
    [server releasemouse];
    [(NSMenuView *)[menu menuRepresentation] detachSubmenu];
    [menu closeTransient];
  }
  return choice;
}

}  // namespace

namespace ov {

void popUpMenu(NSMenu *menu, NSEvent *event, NSView *view, NSFont *font) {
  if (menu == nil || event == nil) return;
  const SEL plain = @selector(popUpContextMenu:withEvent:forView:);
  if (PopUp *method = font == nil ? replaced<PopUp>(plain) : nullptr) {
    method([NSMenu class], plain, menu, event, view);
    return;
  }
  const SEL withFont = @selector(popUpContextMenu:withEvent:forView:withFont:);
  if (PopUpWithFont *method = replaced<PopUpWithFont>(withFont)) {
    method([NSMenu class], withFont, menu, event, view, font);
    return;
  }
  const bool mayHaveItems = [menu numberOfItems] > 0 || [menu delegate] != nil;
  const bool isBar = [(NSMenuView *)[menu menuRepresentation] isHorizontal];
  if (!mayHaveItems || isBar || [menu isTransient]) return;
  const auto menuAlive = retain(menu);
  MenuChoice choice;
  {
    const MenuFontScope fonts(menu, font);
    choice = showAndTrack(menu, event);
  }
  [choice.menu.get() performActionForItemAtIndex:choice.index];
}

}  // namespace ov
