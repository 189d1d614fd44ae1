#import "TextViewTest.h"

namespace ov::test {

std::string text(NSString *string) {
  if (string == nil) return "nil";
  std::string units;
  for (NSUInteger i = 0; i < [string length]; i++) {
    const unichar c = [string characterAtIndex:i];
    if (c == '\n') {
      units += "\\n";
    } else if (c == '\r') {
      units += "\\r";
    } else if (c == '\t') {
      units += "\\t";
    } else if (c < 0x7F && c >= 0x20) {
      units += char(c);
    } else {
      units += "<" + std::to_string(c) + ">";
    }
  }
  return units;
}

std::string describe(NSNotification *notification) {
  NSString *name = [notification name];
  EXPECT_TRUE([name hasPrefix:@"OvTextView"]) << [name UTF8String];
  EXPECT_TRUE([name hasSuffix:@"Notification"]) << [name UTF8String];
  EXPECT_TRUE([[notification object] isKindOfClass:[OvTextView class]]);
  std::string line = [[name substringWithRange:NSMakeRange(10, [name length] - 22)] UTF8String];
  NSDictionary *info = [notification userInfo];
  if (info == nil) return line;
  EXPECT_EQ([info count], 1u);
  NSString *string = [info objectForKey:@"OvString"];
  if (string != nil) return line + " " + text(string);
  NSArray *strings = [info objectForKey:@"OvStrings"];
  EXPECT_GT([strings count], 0u);
  return line + " " + text([strings componentsJoinedByString:@"|"]);
}

NSString *repeated(NSString *part, NSUInteger times) {
  return [@"" stringByPaddingToLength:[part length] * times withString:part startingAtIndex:0];
}

NSString *unit(unichar character) { return [NSString stringWithFormat:@"%C", character]; }

void TextViewTest::SetUp() {
  LiveTest::SetUp();
  listener = ownListener_ = [[OvTestTextListener alloc] init];
}

// After the windows, whose views tell the listener that they are left.
void TextViewTest::TearDown() {
  LiveTest::TearDown();
  [ownListener_ release];
}

void TextViewTest::makeView() {
  window = makeWindow(NSMakeSize(400, 300));
  before = [[[NSTextField alloc] initWithFrame:NSMakeRect(10, 260, 200, 24)] autorelease];
  other = [[[NSTextField alloc] initWithFrame:NSMakeRect(10, 10, 200, 24)] autorelease];
  view = [[[OvTextView alloc] initWithFrame:NSMakeRect(10, 50, 380, 200)] autorelease];
  for (NSView *each : {(NSView *)before, (NSView *)view, (NSView *)other}) {
    [[window contentView] addSubview:each];
  }
  // The platform makes a loop of its own when the window gets the keyboard for the first time,
  // unless it knows where to begin.
  [window setInitialFirstResponder:before];
  [before setNextKeyView:view];
  [view setNextKeyView:other];
  [other setNextKeyView:before];
  show(window);
  ASSERT_TRUE([window makeFirstResponder:view]);
}

Lines TextViewTest::heard() {
  Lines lines;
  lines.swap(listener->heard);
  return lines;
}

void TextViewTest::typeText(NSString *characters, NSUInteger flags) {
  type(window, characters, flags);
}

NSColor *TextViewTest::colorAt(NSUInteger index) {
  return [[view textStorage] attribute:NSForegroundColorAttributeName
                               atIndex:index
                        effectiveRange:NULL];
}

}  // namespace ov::test

@implementation OvTestTextListener
- (void)note:(NSNotification *)notification from:(SEL)selector {
  heard.push_back(ov::test::describe(notification));
  // "textViewDidChange:" hears of OvTextViewDidChangeNotification.
  NSString *method = NSStringFromSelector(selector);
  NSString *expected = [NSString
      stringWithFormat:@"Ov%@%@Notification", @"T",
                       [[method substringToIndex:[method length] - 1] substringFromIndex:1]];
  EXPECT_TRUE([[notification name] isEqual:expected]) << [[notification name] UTF8String];
}
- (void)textViewBecomeFirstResponder:(NSNotification *)notification {
  [self note:notification from:_cmd];
}
- (void)textViewResignFirstResponder:(NSNotification *)notification {
  [self note:notification from:_cmd];
}
- (void)textViewDidBeginEditing:(NSNotification *)notification {
  [self note:notification from:_cmd];
}
- (void)textViewDidEndEditing:(NSNotification *)notification {
  [self note:notification from:_cmd];
}
- (void)textViewDidChange:(NSNotification *)notification {
  [self note:notification from:_cmd];
}
- (void)textViewDidBecomeValid:(NSNotification *)notification {
  [self note:notification from:_cmd];
}
- (void)textViewDidBecomeInvalid:(NSNotification *)notification {
  [self note:notification from:_cmd];
}
- (void)textViewDidReturn:(NSNotification *)notification {
  [self note:notification from:_cmd];
}
- (void)textViewWillPasteString:(NSNotification *)notification {
  [self note:notification from:_cmd];
}
@end

@implementation OvTestTextClient
- (BOOL)textViewShouldBeginEditing:(NSText *)text {
  heard.push_back("ShouldBegin");
  lastText = text;
  return shouldBegin;
}
- (BOOL)textViewShouldEndEditing:(NSText *)text {
  heard.push_back("ShouldEnd");
  lastText = text;
  return shouldEnd;
}
@end

@implementation OvTestChangeListener
- (void)textViewDidChange:(NSNotification *)notification {
  (void)notification;
  changes++;
}
@end
