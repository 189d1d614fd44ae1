// A text view that is its own delegate stops hearing of its own changes.
//
// The platform's text view observes itself: it fits its size to its text when its frame has
// changed, and looks at the spelling of what was typed. When the delegate is replaced it takes
// the old one off every notification of the view. Where the old delegate is the view, that
// includes those two.

#pragma once

#import <AppKit/AppKit.h>

namespace ov {

// Makes the view hear of them again. To be called when its delegate was the view itself and
// has been replaced, and only then: it would hear of everything twice.
void restoreTextViewObservers(NSTextView *view);

}  // namespace ov
