#import <OvAppKit/OvBorderlessTabView.h>

#import <GNUstepGUI/GSTheme.h>

#include "support/GraphicsGuards.h"

@interface GSTheme (OvBorderlessTabView)
- (NSRect)tabViewBackgroundRectForBounds:(NSRect)bounds tabViewType:(NSTabViewType)type;
@end

@implementation OvBorderlessTabView

- (void)_drawBorder:(NSRect)border inRect:(NSRect)rect {
  (void)border;
  (void)rect;
}

// The row of tabs. Where it meets the items' views the platform draws a line, which belongs
// to the border.
- (NSRect)_ovRectOfTabs {
  static const CGFloat kLine = 1;
  const NSTabViewType type = [self tabViewType];
  const NSRect bounds = [self bounds];
  const NSRect items = [[GSTheme theme] tabViewBackgroundRectForBounds:bounds tabViewType:type];
  NSRect tabs = bounds;
  if ((type == NSTopTabsBezelBorder) == [self isFlipped]) {
    tabs.size.height = NSMinY(items) - NSMinY(bounds) - kLine;
  } else {
    tabs.origin.y = NSMaxY(items) + kLine;
    tabs.size.height = NSMaxY(bounds) - NSMaxY(items) - kLine;
  }
  return tabs;
}

// The platform has no step of its own for the border: the theme draws tabs and border at
// once, so all but the tabs is clipped away.
- (void)drawRect:(NSRect)rect {
  const NSTabViewType type = [self tabViewType];
  if (type != NSTopTabsBezelBorder && type != NSBottomTabsBezelBorder) {
    // Drawing is also what selects the first item.
    if ([self selectedTabViewItem] == nil && [self numberOfTabViewItems] > 0) {
      [self selectFirstTabViewItem:nil];
    }
    return;
  }
  ov::GraphicsStateScope scope;
  NSRectClip([self _ovRectOfTabs]);
  [super drawRect:rect];
}

@end
