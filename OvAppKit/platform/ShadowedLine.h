// Lines with a shadow. The platform accepts an NSShadow in the graphics state and draws
// nothing for it; so the shadow is stroked first, as a few lines that grow wider and
// fainter around the offset. Removable once the platform draws shadows.

#pragma once

#import <AppKit/AppKit.h>

// Strokes a straight line in the current colour, `width` points wide, over its shadow
// (nil for none). Focus must be locked; `flipped` says whether the focused view is.
void OvStrokeShadowedLine(NSPoint from, NSPoint to, CGFloat width, NSColor *color, NSShadow *shadow,
                          BOOL flipped);
