// OvBorderlessTabView: a tab view without a border.
//
//   OvBorderlessTabView *tabs = [[OvBorderlessTabView alloc] initWithFrame:frame];
//   [tabs addTabViewItem:item];
//
// The tabs look and behave as in every tab view. What a tab view draws round its items' views
// is left out: the view below shows there. A tab view of a type without tabs draws nothing.

#import <AppKit/AppKit.h>

@interface OvBorderlessTabView : NSTabView

/** Draws nothing. It stands in the place of the method with which a platform's tab view may
    draw its border. */
- (void)_drawBorder:(NSRect)border inRect:(NSRect)rect;

/** Draws the tabs, if there are any at the top or at the bottom. Tabs at the left and at the
    right, which the platform has not, are drawn like no tabs. */
- (void)drawRect:(NSRect)rect;

@end
