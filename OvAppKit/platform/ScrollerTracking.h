// The steps of drawing and tracking that AppKit's scroller has and the platform's lacks, so that
// a subclass can override them and call super.
//
// The platform's scroller draws arrows one by one, knows no paging area (a press on the slot
// moves the knob to the pointer), and follows a press on an arrow with a cell that draws itself
// over whatever the scroller shows.
// Removable, one by one, as the platform's scroller gets them.

#pragma once

#import <AppKit/AppKit.h>

@interface NSScroller (OvScrollerTracking)

// Draws the arrow alone, pressed if highlightPart is its number.
- (void)drawArrow:(NSScrollerArrow)arrow highlightPart:(NSInteger)highlightPart;

// Turns pages until the button is released, for as long as the pointer is in the paging area
// that hitPart tells.
- (void)trackPagingArea:(NSEvent *)event;

// Sends the action at once, after the delay, and then with the period, while the pointer is on
// the part that was hit; until the button is released. An arrow is told by -highlight: when it
// is to show as pressed and when not, and turns pages if the Option key was down.
- (void)ov_repeatActionForEvent:(NSEvent *)event delay:(float)delay period:(float)period;

@end
