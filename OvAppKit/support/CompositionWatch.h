// Tells whether an input method is composing in a control's editor, and when what it composed
// was committed without anybody being told.
//
// The platform's input methods commit by key events, which need none of this. A client of the
// text input messages may compose in the text itself: -setMarkedText:selectedRange: and
// -unmarkText change it without a -textDidChange:, and -insertText:, which should put an end to
// the marking, leaves it behind. So the watch looks at the edits of the text storage.

#pragma once

#import <AppKit/AppKit.h>

#include <functional>

@interface _OvCompositionWatch : NSObject {
  id _control;
  NSTextView *_editor;
  NSRange _lastEdit;
  BOOL _pending;
  std::function<void(NSText *)> _committed;
}

// For a control that is the editor itself, or the editor's delegate while it is edited.
// `committed` is called in a turn of the run loop of its own.
- (id)initWithControl:(id)control committed:(std::function<void(NSText *)>)committed;

// The control is going away.
- (void)invalidate;

// Watches the editor. The same one again changes nothing.
- (void)watch:(NSText *)editor;
// Editing starts: what was left marked by others is no composition.
- (void)start:(NSText *)editor;

// For -textDidChange:. Takes away marking that has been left behind.
- (BOOL)isComposing:(NSText *)editor;

// Commits what is marked. Answers whether anything was composed since the last answer, or since
// a text that was not being composed changed.
- (BOOL)commit:(NSText *)editor;

@end
