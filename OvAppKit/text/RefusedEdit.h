// How the formatters refuse an edit.

#pragma once

#import <AppKit/AppKit.h>

namespace ov {

// Hands the mended text and an empty selection back, with a beep. The caret is never past the
// end. Answers NO, as the formatter should.
inline BOOL refuseEdit(NSString **proposed, NSRange *selection, NSString *mended,
                       NSUInteger caret) {
  if (proposed != nullptr) *proposed = mended;
  if (selection != nullptr) *selection = NSMakeRange(MIN([mended length], caret), 0);
  NSBeep();
  return NO;
}

}  // namespace ov
