#import "platform/PartialStringFilter.h"

#include <algorithm>

#include "platform/Composition.h"
#include "support/Retained.h"

namespace {

// A text with its selection.
struct Content {
  NSString *text;
  NSRange selection;
};

struct Verdict {
  bool accepted;
  Content content;  // what the field is to hold
};

// The editors whose edit is being judged or mended: what happens to them meanwhile is the
// formatter's or ours, and is not judged again.
class Judging {
 public:
  explicit Judging(NSTextView *editor) : editor_(editor), outer_(innermost) { innermost = this; }
  ~Judging() { innermost = outer_; }
  Judging(const Judging &) = delete;
  Judging &operator=(const Judging &) = delete;

  static bool isActive(NSTextView *editor) {
    for (const Judging *scope = innermost; scope != nullptr; scope = scope->outer_) {
      if (scope->editor_ == editor) return true;
    }
    return false;
  }

 private:
  static Judging *innermost;
  NSTextView *editor_;
  Judging *outer_;
};
Judging *Judging::innermost = nullptr;

bool filtersTyping(NSFormatter *formatter) {
  const SEL selector =
      @selector(isPartialStringValid:
               proposedSelectedRange:originalString:originalSelectedRange:errorDescription:);
  return formatter != nil && [formatter respondsToSelector:selector] &&
         [formatter methodForSelector:selector] != [NSFormatter instanceMethodForSelector:selector];
}

// Unit by unit; the platform's equality takes different spellings of a character for the same.
bool same(NSString *a, NSString *b) {
  return [a length] == [b length] && [a compare:b options:NSLiteralSearch] == NSOrderedSame;
}

NSString *copyOf(NSString *string) { return [[string copy] autorelease]; }

bool liesIn(NSRange range, NSString *text) {
  const NSUInteger length = [text length];
  return range.location <= length && range.length <= length - range.location;
}

// The caret as our formatters place it: where the selection began, at most at the end.
NSRange caretBefore(const Content &original, NSString *text) {
  return NSMakeRange(std::min(original.selection.location, [text length]), 0);
}

Verdict judge(NSTextField *field, NSFormatter *formatter, const Content &proposed,
              const Content &original) {
  NSString *text = proposed.text;
  NSRange selection = proposed.selection;
  NSString *error = nil;
  if ([formatter isPartialStringValid:&text
                proposedSelectedRange:&selection
                       originalString:original.text
                originalSelectedRange:original.selection
                     errorDescription:&error]) {
    return {true, proposed};
  }
  const id delegate = [field delegate];
  if ([delegate respondsToSelector:@selector(control:
                                       didFailToValidatePartialString:errorDescription:)]) {
    // Only what it calls an error is one.
    [delegate control:field
        didFailToValidatePartialString:proposed.text
                      errorDescription:[error isKindOfClass:[NSString class]] ? error : nil];
  }
  if (text == proposed.text || ![text isKindOfClass:[NSString class]]) return {false, original};
  text = copyOf(text);
  if (!liesIn(selection, text)) selection = caretBefore(original, text);
  return {false, {text, selection}};
}

// Where two texts differ: the part of the first, and what the second has there.
std::pair<NSRange, NSString *> difference(NSString *before, NSString *after) {
  const NSUInteger shorter = std::min([before length], [after length]);
  NSUInteger head = 0;
  while (head < shorter && [before characterAtIndex:head] == [after characterAtIndex:head]) ++head;
  NSUInteger tail = 0;
  while (tail < shorter - head && [before characterAtIndex:[before length] - tail - 1] ==
                                      [after characterAtIndex:[after length] - tail - 1]) {
    ++tail;
  }
  NSMutableString *inserted = [[after mutableCopy] autorelease];
  [inserted deleteCharactersInRange:NSMakeRange([after length] - tail, tail)];
  [inserted deleteCharactersInRange:NSMakeRange(0, head)];
  return {NSMakeRange(head, [before length] - head - tail), inserted};
}

// Brings the editor to the content, as one edit of the original that can be undone.
void apply(NSTextView *editor, const Content &content, NSString *original) {
  {
    const Judging scope(editor);
    const auto composed = difference([editor string], original);
    if (composed.first.length > 0 || [composed.second length] > 0) {
      // What was composed was never an edit.
      [editor replaceCharactersInRange:composed.first withString:composed.second];
    }
    if (same(content.text, original)) {
      [editor setSelectedRange:content.selection];
      return;
    }
    const auto change = difference(original, content.text);
    if (![editor shouldChangeTextInRange:change.first replacementString:change.second]) return;
    [editor replaceCharactersInRange:change.first withString:change.second];
    [editor setSelectedRange:content.selection];
  }
  [editor didChangeText];
}

bool isEditedBy(NSTextView *editor, NSTextField *field, NSString *text) {
  return static_cast<id>([editor delegate]) == field && same([editor string], text);
}

}  // namespace

@implementation NSTextField (OvPartialStringFilter)

- (BOOL)textView:(NSTextView *)editor
    shouldChangeTextInRange:(NSRange)range
          replacementString:(NSString *)replacement {
  if (replacement == nil || Judging::isActive(editor) || ov::isSettingMarkedText(editor)) {
    return YES;
  }
  const std::optional<ov::Composition> composition = ov::takeComposition(editor);
  NSFormatter *formatter = [[[self formatter] retain] autorelease];
  if (!filtersTyping(formatter)) return YES;
  NSUndoManager *undo = [editor undoManager];
  if ([undo isUndoing] || [undo isRedoing]) return YES;
  NSString *present = copyOf([editor string]);
  if (!liesIn(range, present)) return YES;

  // Whatever happens to the field meanwhile, these live on: a secure field's editor ends with
  // its editing.
  [[self retain] autorelease];
  [[editor retain] autorelease];
  NSMutableString *text = [[present mutableCopy] autorelease];
  [text replaceCharactersInRange:range withString:replacement];
  const Content proposed = {copyOf(text), NSMakeRange(range.location + [replacement length], 0)};
  const Content original = composition ? Content{composition->text.get(), composition->selection}
                                       : Content{present, [editor selectedRange]};
  Verdict verdict;
  {
    const Judging scope(editor);
    verdict = judge(self, formatter, proposed, original);
  }
  if (!isEditedBy(editor, self, present)) return NO;
  if (verdict.accepted && !composition) return YES;
  apply(editor, verdict.content, original.text);
  return NO;
}

- (NSRange)textView:(NSTextView *)editor
    willChangeSelectionFromCharacterRange:(NSRange)oldRange
                         toCharacterRange:(NSRange)range {
  (void)oldRange;
  NSString *text = [editor string];
  if (liesIn(range, text)) return range;
  return NSMakeRange(std::min(NSMaxRange(range), [text length]), 0);
}

@end

@implementation NSTextField (OvComposition)

- (void)_ovEditorDidUnmarkText:(NSTextView *)editor {
  const std::optional<ov::Composition> composition = ov::takeComposition(editor);
  NSFormatter *formatter = [[[self formatter] retain] autorelease];
  const bool filters = filtersTyping(formatter);
  if (!composition || (!filters && ![self _ovAnnouncesUnmarkedText])) return;
  NSString *present = copyOf([editor string]);
  const Content original = {composition->text.get(), composition->selection};
  if (same(present, original.text)) return;

  [[self retain] autorelease];
  [[editor retain] autorelease];
  Verdict verdict = {true, {present, [editor selectedRange]}};
  if (filters) {
    const Judging scope(editor);
    verdict = judge(self, formatter, verdict.content, original);
  }
  if (isEditedBy(editor, self, present)) apply(editor, verdict.content, original.text);
}

- (BOOL)_ovAnnouncesUnmarkedText {
  return NO;
}

@end
