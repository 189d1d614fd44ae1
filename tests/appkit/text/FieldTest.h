// A window with fields to type into, formatters made in the test, and a record of what
// happened in order.

#pragma once

#import "LiveTest.h"

#include <functional>
#include <string>
#include <vector>

using Lines = std::vector<std::string>;

// One edit as a formatter sees it. What the rule leaves in text and selection is handed back.
struct Edit {
  NSString *text;
  NSRange selection;
  NSString *original;
  NSRange originalSelection;
  NSString *error = nil;
};

// Judges edits by a rule and records them: "proposed|caret <- original|selection".
@interface OvTestFilter : NSFormatter {
 @public
  std::function<BOOL(Edit &)> rule;
  Lines edits;
}
// Accepts digits only, mends everything else, and beeps as formatters do.
+ (OvTestFilter *)digits;
@end

// Has the short method only: takes everything but digits out.
@interface OvTestShortFilter : NSFormatter {
 @public
  int asked;
}
@end

// Has neither.
@interface OvTestPlainFormatter : NSFormatter
@end

// Writes down every notification whose object is the one given.
@interface OvTestJournal : NSObject {
 @public
  Lines lines;
}
- (void)observe:(id)object;
@end

// The platform's questions to a delegate, answered and recorded in a journal of its own.
@interface OvTestControlDelegate : NSObject {
 @public
  Lines lines;
}
@end

class FieldTest : public ov::test::LiveTest {
 protected:
  void SetUp() override;

  // In the window, one below the other, not edited.
  template <typename Field>
  Field *add() {
    Field *field = [[[Field alloc] initWithFrame:nextFrame()] autorelease];
    addField(field);
    return field;
  }
  NSTextField *fieldWith(NSFormatter *formatter);
  NSRect nextFrame();
  void addField(NSView *field);

  // The keyboard goes to the field, with the caret at the end of its text.
  void edit(NSTextField *field);
  void edit(NSTextField *field, NSRange selection);
  NSTextView *editor(NSTextField *field);
  bool isEditing(NSTextField *field) { return editor(field) != nil; }
  std::string textOf(NSTextField *field);
  NSRange selectionOf(NSTextField *field) { return [editor(field) selectedRange]; }

  // Keys through the queue.
  void typeKeys(NSString *characters) { ov::test::type(window, characters); }
  void backspace() { typeKeys(@"\x7f"); }
  void forwardDelete();

  NSWindow *window = nil;

 private:
  int fields_ = 0;
};
