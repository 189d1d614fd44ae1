// What is typed into a field passes its formatter.
//
// A formatter may have
//
//   isPartialStringValid:proposedSelectedRange:originalString:originalSelectedRange:
//       errorDescription:
//
// which judges every edit before it is made. The platform never sends it. This category makes
// every NSTextField (so every secure field and combo box, too) that has such a formatter
// answer its editor's textView:shouldChangeTextInRange:replacementString: by asking it:
//
// - YES: the edit is made.
// - NO: the text becomes what the formatter left in the first argument and the selection what
//   it left in the second, in one step that can be undone and is told as a change; when that
//   is the text before the edit, nothing is changed or told. A formatter that leaves the
//   proposed string untouched refuses the edit. The delegate hears of every NO in
//   control:didFailToValidatePartialString:errorDescription:. Nothing beeps here.
//
// The edits are those of typing, pasting, cutting, deleting and dropping, with one range and
// a string. Text that an input method composes is judged when it is committed, as one edit
// since the composition began. Undo and redo bring back what was there and are not asked
// about. A field whose formatter has only NSFormatter's own method, or none, answers YES to
// everything and thus behaves as before; the platform asks the short
// isPartialStringValid:newEditingString:errorDescription: after a change, as ever.
//
// An NSTextField subclass with a textView:shouldChangeTextInRange:replacementString: of its
// own decides itself; by sending it to super it has the formatter asked. Removable once the
// platform asks formatters.

#pragma once

#import <AppKit/AppKit.h>

@interface NSTextField (OvPartialStringFilter)
- (BOOL)textView:(NSTextView *)editor
    shouldChangeTextInRange:(NSRange)range
          replacementString:(NSString *)replacement;

// After a drop the platform selects from its place to the caret. When a mended text has the
// caret before that place, such a range would be longer than any text; it becomes the caret.
- (NSRange)textView:(NSTextView *)editor
    willChangeSelectionFromCharacterRange:(NSRange)oldRange
                         toCharacterRange:(NSRange)range;
@end
