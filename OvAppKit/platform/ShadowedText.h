// Text with a shadow. The platform accepts NSShadowAttributeName and draws nothing for it; so
// the text is drawn in the shadow's colour first, moved by the shadow's offset. A blur is not
// drawn. Removable once the platform draws shadows.

#pragma once

#import <AppKit/AppKit.h>

// Draws a string that has one shadow for all of its text, or none. Focus must be locked;
// `flipped` says whether the focused view is.
void OvDrawShadowedString(NSAttributedString *string, NSRect frame, BOOL flipped);
