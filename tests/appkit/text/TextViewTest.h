// What the text view's tests share: clients that write down what they hear, a second view to
// leave for, and colours.

#pragma once

#import <OvAppKit/OvAppKit.h>

#include <string>
#include <vector>

#import "LiveTest.h"

namespace ov::test {

using Lines = std::vector<std::string>;

std::string text(NSString *string);
// "Become", "Resign line", "DidReturn", "WillPaste one|two": what a notification says.
std::string describe(NSNotification *notification);
NSString *repeated(NSString *part, NSUInteger times);
// A character that is half of one, or not printable.
NSString *unit(unichar character);

}  // namespace ov::test

// Hears all nine notifications.
@interface OvTestTextListener : NSObject {
 @public
  ov::test::Lines heard;
}
@end

// Answers the two questions, too, and writes them down.
@interface OvTestTextClient : OvTestTextListener {
 @public
  BOOL shouldBegin;
  BOOL shouldEnd;
  id lastText;
}
@end

// Hears of changes alone, and counts them.
@interface OvTestChangeListener : NSObject {
 @public
  int changes;
}
@end

namespace ov::test {

class TextViewTest : public LiveTest {
 protected:
  void SetUp() override;
  void TearDown() override;

  // In a window with the keyboard, before `other` and after `before` in the loop of key views.
  void makeView();
  // What the client heard since the last call.
  Lines heard();
  void typeText(NSString *characters, NSUInteger flags = 0);
  std::string string() { return text([view string]); }
  NSColor *colorAt(NSUInteger index);

  NSWindow *window = nil;
  OvTextView *view = nil;
  NSTextField *before = nil;
  NSTextField *other = nil;
  // A test may put another one here.
  OvTestTextListener *listener = nil;

 private:
  OvTestTextListener *ownListener_ = nil;
};

}  // namespace ov::test
