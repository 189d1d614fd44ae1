// Drawing into an image as a flipped view would. The platform ignores an image's flipped
// flag, and its text and images ask the focused view which way is up; so the drawing is
// done in a view of a window that is never shown, and its pixels are taken over.
// Removable once -[NSImage lockFocus] honours -setFlipped:.

#pragma once

#import <AppKit/AppKit.h>

// An autoreleased image of `size` points, clear but for what draw(context) drew;
// the focused view is flipped as asked. nil for an empty size.
NSImage *OvImageDrawnByView(NSSize size, BOOL flipped, void (*draw)(void *context), void *context);
