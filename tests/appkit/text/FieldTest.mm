#import "FieldTest.h"

using namespace ov::test;

static std::string described(NSString *text, NSRange selection) {
  std::string line = text == nil ? "nil" : [text UTF8String];
  line += "|" + std::to_string(selection.location);
  if (selection.length > 0) line += "+" + std::to_string(selection.length);
  return line;
}

static NSString *digitsOf(NSString *text) {
  NSMutableString *digits = [NSMutableString string];
  for (NSUInteger i = 0; i < [text length]; ++i) {
    const unichar unit = [text characterAtIndex:i];
    if (unit >= '0' && unit <= '9') [digits appendFormat:@"%C", unit];
  }
  return digits;
}

@implementation OvTestPlainFormatter
- (NSString *)stringForObjectValue:(id)value {
  return [value isKindOfClass:[NSString class]] ? value : nil;
}
- (BOOL)getObjectValue:(id *)value
             forString:(NSString *)string
      errorDescription:(NSString **)error {
  (void)error;
  *value = [NSString stringWithString:string];
  return YES;
}
@end

@implementation OvTestFilter
+ (OvTestFilter *)digits {
  OvTestFilter *filter = [[[self alloc] init] autorelease];
  filter->rule = [](Edit &edit) -> BOOL {
    NSString *digits = digitsOf(edit.text);
    if ([digits length] == [edit.text length]) return YES;
    NSBeep();
    edit.text = digits;
    edit.selection = NSMakeRange(std::min([digits length], edit.originalSelection.location), 0);
    return NO;
  };
  return filter;
}
- (NSString *)stringForObjectValue:(id)value {
  return [value isKindOfClass:[NSString class]] ? value : nil;
}
- (BOOL)getObjectValue:(id *)value
             forString:(NSString *)string
      errorDescription:(NSString **)error {
  (void)error;
  *value = [NSString stringWithString:string];
  return YES;
}
- (BOOL)isPartialStringValid:(NSString **)text
       proposedSelectedRange:(NSRange *)selection
              originalString:(NSString *)original
       originalSelectedRange:(NSRange)originalSelection
            errorDescription:(NSString **)error {
  edits.push_back(described(*text, *selection) + " <- " + described(original, originalSelection));
  if (!rule) return YES;
  Edit edit = {*text, *selection, original, originalSelection};
  const BOOL accepted = rule(edit);
  *text = edit.text;
  *selection = edit.selection;
  if (error != nullptr) *error = edit.error;
  return accepted;
}
@end

@implementation OvTestShortFilter
- (NSString *)stringForObjectValue:(id)value {
  return [value isKindOfClass:[NSString class]] ? value : nil;
}
- (BOOL)getObjectValue:(id *)value
             forString:(NSString *)string
      errorDescription:(NSString **)error {
  (void)error;
  *value = [NSString stringWithString:string];
  return YES;
}
- (BOOL)isPartialStringValid:(NSString *)text
            newEditingString:(NSString **)mended
            errorDescription:(NSString **)error {
  (void)error;
  ++asked;
  NSString *digits = digitsOf(text);
  if ([digits length] == [text length]) return YES;
  *mended = digits;
  return NO;
}
@end

@implementation OvTestJournal
- (void)observe:(id)object {
  [[NSNotificationCenter defaultCenter] addObserver:self
                                           selector:@selector(note:)
                                               name:nil
                                             object:object];
}
- (void)note:(NSNotification *)notification {
  NSString *name = [notification name];
  // The views' own geometry is of no interest.
  if ([name hasPrefix:@"NSView"]) return;
  if ([name hasSuffix:@"Notification"]) name = [name substringToIndex:[name length] - 12];
  lines.push_back([name UTF8String]);
}
- (void)dealloc {
  [[NSNotificationCenter defaultCenter] removeObserver:self];
  [super dealloc];
}
@end

@implementation OvTestControlDelegate
- (BOOL)control:(NSControl *)control textShouldBeginEditing:(NSText *)editor {
  (void)control, (void)editor;
  lines.push_back("begin?");
  return YES;
}
- (BOOL)control:(NSControl *)control textShouldEndEditing:(NSText *)editor {
  (void)control, (void)editor;
  lines.push_back("end?");
  return YES;
}
- (BOOL)control:(NSControl *)control isValidObject:(id)object {
  (void)control;
  lines.push_back("valid? " + std::string([[object description] UTF8String]));
  return YES;
}
- (BOOL)control:(NSControl *)control
               textView:(NSTextView *)editor
    doCommandBySelector:(SEL)command {
  (void)control, (void)editor;
  lines.push_back("command " + std::string(sel_getName(command)));
  return NO;
}
- (void)control:(NSControl *)control
    didFailToValidatePartialString:(NSString *)string
                  errorDescription:(NSString *)error {
  (void)control;
  lines.push_back("failed " + std::string([string UTF8String]) + ": " +
                  (error == nil ? "nil" : [error UTF8String]));
}
- (void)controlTextDidBeginEditing:(NSNotification *)notification {
  (void)notification;
  lines.push_back("begun");
}
- (void)controlTextDidChange:(NSNotification *)notification {
  NSText *editor = [[notification userInfo] objectForKey:@"NSFieldEditor"];
  lines.push_back("changed " + std::string([[editor string] UTF8String]));
}
- (void)controlTextDidEndEditing:(NSNotification *)notification {
  (void)notification;
  lines.push_back("ended");
}
@end

void FieldTest::SetUp() {
  LiveTest::SetUp();
  window = showWindow(NSMakeSize(240, 200));
}

NSRect FieldTest::nextFrame() { return NSMakeRect(10, 170 - 30 * fields_++, 200, 22); }

void FieldTest::addField(NSView *field) { [[window contentView] addSubview:field]; }

NSTextField *FieldTest::fieldWith(NSFormatter *formatter) {
  NSTextField *field = add<NSTextField>();
  [field setFormatter:formatter];
  return field;
}

void FieldTest::edit(NSTextField *field) {
  edit(field, NSMakeRange([[field stringValue] length], 0));
}

void FieldTest::edit(NSTextField *field, NSRange selection) {
  if (!isEditing(field)) [window makeFirstResponder:field];
  ASSERT_TRUE(isEditing(field));
  [editor(field) setSelectedRange:selection];
}

NSTextView *FieldTest::editor(NSTextField *field) { return (NSTextView *)[field currentEditor]; }

std::string FieldTest::textOf(NSTextField *field) {
  NSString *text = isEditing(field) ? [editor(field) string] : [field stringValue];
  return [text UTF8String];
}

void FieldTest::forwardDelete() {
  typeKeys([NSString stringWithFormat:@"%C", static_cast<unichar>(NSDeleteFunctionKey)]);
}
