#import "platform/Composition.h"

#include "support/Methods.h"

namespace {

// Only one text is composed at a time: there is one keyboard.
struct Current {
  NSTextView *editor = nil;        // not retained, and only compared
  ov::Retained<NSView *> session;  // the editor's superview is a new one for each editing
  ov::Composition before;
};
Current current;
NSTextView *marking = nil;

NSTextField *fieldOf(NSTextView *editor) {
  const id delegate = [editor isFieldEditor] ? static_cast<id>([editor delegate]) : nil;
  return [delegate isKindOfClass:[NSTextField class]] ? delegate : nil;
}

class Marking {
 public:
  explicit Marking(NSTextView *editor) : outer_(marking) { marking = editor; }
  ~Marking() { marking = outer_; }
  Marking(const Marking &) = delete;
  Marking &operator=(const Marking &) = delete;

 private:
  NSTextView *outer_;
};

}  // namespace

namespace ov {

bool isComposing(NSTextView *editor) {
  return editor != nil && editor == current.editor && [editor superview] == current.session.get();
}

bool isSettingMarkedText(NSTextView *editor) { return editor != nil && editor == marking; }

std::optional<Composition> takeComposition(NSTextView *editor) {
  const bool composing = isComposing(editor);
  if (editor != current.editor) return std::nullopt;
  const Current ended = std::exchange(current, {});
  if (!composing) return std::nullopt;
  return ended.before;
}

}  // namespace ov

// The platform's methods by other names, and ours by the platform's, once exchanged.
@interface NSTextView (OvComposition)
- (void)_ovSetMarkedText:(id)text selectedRange:(NSRange)range;
- (void)_ovUnmarkText;
@end

@implementation NSTextView (OvComposition)

- (void)_ovSetMarkedText:(id)text selectedRange:(NSRange)range {
  if (fieldOf(self) != nil && !ov::isComposing(self)) {
    current.editor = self;
    current.session = ov::retain([self superview]);
    current.before.text = ov::adopt<NSString *>([[self string] copy]);
    current.before.selection = [self selectedRange];
  }
  const Marking scope(self);
  [self _ovSetMarkedText:text selectedRange:range];
}

- (void)_ovUnmarkText {
  NSTextField *field = fieldOf(self);
  const NSUInteger length = [[self string] length];
  if (field != nil && [self hasMarkedText] && NSMaxRange([self markedRange]) > length) {
    // The platform would change attributes at a place that is gone.
    const Marking scope(self);
    [self _ovSetMarkedText:@"" selectedRange:NSMakeRange(length, 0)];
  }
  const bool composing = ov::isComposing(self);
  [self _ovUnmarkText];
  if (composing) [field _ovEditorDidUnmarkText:self];
}

@end

@interface _OvCompositionBridge : NSObject
@end

@implementation _OvCompositionBridge

+ (void)load {
  ov::exchangeMethods("NSTextView", @selector(_ovSetMarkedText:selectedRange:),
                      @selector(setMarkedText:selectedRange:));
  ov::exchangeMethods("NSTextView", @selector(_ovUnmarkText), @selector(unmarkText));
}

@end
