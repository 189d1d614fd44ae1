#import "text/FieldFocus.h"

namespace ov {

namespace {
EditorRestart *innermost = nullptr;
}

EditorRestart::EditorRestart(NSControl *control) : control_(control), outer_(innermost) {
  innermost = this;
}

EditorRestart::~EditorRestart() { innermost = outer_; }

bool isRestartingEditor(NSControl *control) {
  for (const EditorRestart *scope = innermost; scope != nullptr; scope = scope->outer_) {
    if (scope->control_ == control) return true;
  }
  return false;
}

bool keepsNextKeyView(NSView *view) {
  return [view nextKeyView] != nil && [[view window] initialFirstResponder] == nil;
}

}  // namespace ov
