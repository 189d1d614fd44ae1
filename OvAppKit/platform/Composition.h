// Text that an input method is still composing in a field.
//
// The platform puts such text straight into the editor (setMarkedText:selectedRange:) and
// neither asks nor tells the field; when it is committed by unmarkText, nobody is told
// either, and after a commit by insertText: the editor goes on to say that it has marked text.
// So the text before a composition is remembered here, and the field is told of its end.
// Removable once the platform tells fields of marked text.

#pragma once

#import <AppKit/AppKit.h>

#include <optional>

#include "support/Retained.h"

namespace ov {

// What the editor of a field held before the composition began.
struct Composition {
  Retained<NSString *> text;
  NSRange selection;
};

// Whether text is being composed in the editor for the field that it now edits. Not so any more
// while the committed text is judged and announced.
bool isComposing(NSTextView *editor);

// Whether the editor is inside setMarkedText:selectedRange:.
bool isSettingMarkedText(NSTextView *editor);

// Ends the composition, and answers what was there before it; nothing without one.
std::optional<Composition> takeComposition(NSTextView *editor);

}  // namespace ov

@interface NSTextField (OvComposition)
// Sent when composed text has been committed by unmarkText and may be judged.
- (void)_ovEditorDidUnmarkText:(NSTextView *)editor;
// Whether a commit by unmarkText is announced as a change when no formatter filters typing.
// NO, as the platform has it; YES for fields that act on every change.
- (BOOL)_ovAnnouncesUnmarkedText;
@end
