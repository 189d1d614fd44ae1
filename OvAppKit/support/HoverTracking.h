// Redraws a control as the mouse comes into it and leaves it.
//
// The platform keeps what setShowsBorderOnlyWhileMouseInside: is told and does nothing about
// it. A control whose looks depend on the mouse says so here once; from then on it is marked
// for display whenever "the mouse is inside" has another answer than before: the pointer came
// or went, or rested while the control was scrolled, moved, resized, hidden, disabled, put into
// another window, or its window moved or left the screen. The control itself asks where the
// mouse is when it draws.
//
//   - (void)setShowsBorderOnlyWhileMouseInside:(BOOL)flag {
//     [super setShowsBorderOnlyWhileMouseInside:flag];
//     ov::setHoverTracking(self, flag);
//   }
//
//   - (void)dealloc {
//     ov::setHoverTracking(self, NO);
//     [super dealloc];
//   }

#pragma once

#import <AppKit/AppKit.h>

namespace ov {

// Nothing else is asked of the view: no instance variable, no mouseEntered:, and it may be
// switched on before there is a window, or twice. What tracks belongs to the view and holds
// it not; it ends with NO, or at the latest with the view.
void setHoverTracking(NSView *view, BOOL flag);
BOOL isHoverTracking(NSView *view);

// Whether the real pointer lies in the part of the view that can be seen now: not while it is
// hidden or its window is not on screen. Other windows above it do not count.
BOOL isMouseInside(NSView *view);

}  // namespace ov
