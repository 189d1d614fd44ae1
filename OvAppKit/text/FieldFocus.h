// What the announcing fields and combo boxes share about the keyboard focus.
//
// When a value is set while a field is edited, the platform ends the editor silently and
// makes the field first responder again. That is no change of focus, but the field is asked
// to resign and to become as if it were. The setter says so with a scope, and the two
// responder methods post nothing while it lasts:
//
//   - (BOOL)becomeFirstResponder {
//     const BOOL became = [super becomeFirstResponder];
//     if (became && !ov::isRestartingEditor(self)) … post …
//     return became;
//   }
//
//   - (void)setStringValue:(NSString *)string {
//     const ov::EditorRestart restart(self);
//     [super setStringValue:string];
//   }
//
//   OV_RESTARTING_VALUE_SETTERS                  // and the platform's other five
//
// A field whose nextKeyView matters keeps it when the platform makes its own loop of key
// views, as it does when a window without an initial first responder becomes key for the
// first time:
//
//   - (void)_setUpKeyViewLoopWithNextKeyView:(NSView *)view {
//     if (!ov::keepsNextKeyView(self)) [super _setUpKeyViewLoopWithNextKeyView:view];
//   }

#pragma once

#import <AppKit/AppKit.h>

namespace ov {

// On the stack, on the main thread, around the inherited setter.
class EditorRestart {
 public:
  explicit EditorRestart(NSControl *control);
  ~EditorRestart();
  EditorRestart(const EditorRestart &) = delete;
  EditorRestart &operator=(const EditorRestart &) = delete;

 private:
  friend bool isRestartingEditor(NSControl *control);
  NSControl *control_;
  EditorRestart *outer_;
};

bool isRestartingEditor(NSControl *control);

// Whether the view that follows was chosen by the host: one that is there before the window
// has its initial first responder. Once it has one, a loop is made only on request.
bool keepsNextKeyView(NSView *view);

}  // namespace ov

// The platform's method that the loop is made with; declared to be overridden.
@interface NSControl (OvKeyViewLoop)
- (void)_setUpKeyViewLoopWithNextKeyView:(NSView *)view;
@end

// The value setters besides -setStringValue:, which restart the editor, too.
#define OV_RESTARTING_VALUE_SETTERS           \
  -(void)setObjectValue : (id)value {         \
    const ov::EditorRestart restart(self);    \
    [super setObjectValue:value];             \
  }                                           \
  -(void)setIntValue : (int)value {           \
    const ov::EditorRestart restart(self);    \
    [super setIntValue:value];                \
  }                                           \
  -(void)setIntegerValue : (NSInteger)value { \
    const ov::EditorRestart restart(self);    \
    [super setIntegerValue:value];            \
  }                                           \
  -(void)setFloatValue : (float)value {       \
    const ov::EditorRestart restart(self);    \
    [super setFloatValue:value];              \
  }                                           \
  -(void)setDoubleValue : (double)value {     \
    const ov::EditorRestart restart(self);    \
    [super setDoubleValue:value];             \
  }
