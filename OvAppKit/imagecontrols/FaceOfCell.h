// What the two buttons that are drawn from images ask of their cells.

#pragma once

#import <AppKit/AppKit.h>

#import <OvAppKit/HXImageControlImageContainer.h>

#include "imagecontrols/VariationChoice.h"

namespace ov {

// What -setImageContainer: of either button does: the cell, if there is one, gets another
// container, and the button shows it, and follows the mouse if the container has a picture for
// that.
void setImageContainerOfButton(NSButton *button, id cell, HXImageControlImageContainer *container);

// The state that a variation is chosen by. The pointer is inside when it is now in the part of
// the frame that can be seen, whatever the last event said; and never without a window.
ButtonState stateOfCell(NSButtonCell *cell, NSRect frame, NSView *view);

// The title to draw, which is never empty: the alternate one or, when that is not meant or is
// empty, the ordinary one. When that is empty, too, the plain title in the system font, shortened
// to `width` by a truncation code of -truncateControlStringWithDrawingWidth:…. nil for nothing.
NSAttributedString *titleOfCell(NSButtonCell *cell, FaceTitle which, CGFloat width, int truncCode);

}  // namespace ov
