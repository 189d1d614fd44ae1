#import <OvAppKit/NSEvent+OvAppKit.h>

#import "LiveTest.h"

namespace {

class KeyEvent : public ov::test::LiveTest {
 protected:
  NSEvent *key(NSEventType type, NSUInteger flags, BOOL repeat) {
    NSWindow *window = makeWindow(NSMakeSize(50, 50));
    return [NSEvent keyEventWithType:type
                            location:NSMakePoint(3, 4)
                       modifierFlags:flags
                           timestamp:12.5
                        windowNumber:[window windowNumber]
                             context:[window graphicsContext]
                          characters:@"a"
         charactersIgnoringModifiers:@"b"
                           isARepeat:repeat
                             keyCode:38];
  }
};

TEST_F(KeyEvent, ACopyDiffersInItsCharactersOnly) {
  struct {
    NSEventType type;
    NSUInteger flags;
    BOOL repeat;
  } const rows[] = {{NSKeyDown, NSShiftKeyMask | NSCommandKeyMask, YES}, {NSKeyUp, 0, NO}};
  for (const auto &row : rows) {
    NSEvent *event = key(row.type, row.flags, row.repeat);
    NSEvent *copy = [event copyKeyEventWithChars:@"xyz"];
    EXPECT_NE(copy, event);
    EXPECT_EQ([copy type], row.type);
    EXPECT_EQ([copy locationInWindow], NSMakePoint(3, 4));
    EXPECT_EQ([copy modifierFlags], row.flags);
    EXPECT_EQ([copy timestamp], 12.5);
    EXPECT_EQ([copy windowNumber], [event windowNumber]);
    EXPECT_EQ([copy context], [event context]);
    EXPECT_EQ([copy isARepeat], row.repeat);
    EXPECT_EQ([copy keyCode], 38);
    EXPECT_TRUE([[copy characters] isEqualToString:@"xyz"]);
    EXPECT_TRUE([[copy charactersIgnoringModifiers] isEqualToString:@"xyz"]);
    EXPECT_TRUE([[event characters] isEqualToString:@"a"]);
    [copy release];
  }
}

TEST_F(KeyEvent, TheCallerOwnsTheCopy) {
  NSEvent *event = key(NSKeyDown, 0, NO);
  NSEvent *copy = [event copyKeyEventWithChars:@"x"];
  drainPool();
  EXPECT_EQ([copy retainCount], 1u);
  EXPECT_TRUE([[copy characters] isEqualToString:@"x"]);
  [copy release];
}

TEST_F(KeyEvent, LaterChangesOfTheStringDoNotCount) {
  NSMutableString *chars = [NSMutableString stringWithString:@"x"];
  NSEvent *copy = [[key(NSKeyDown, 0, NO) copyKeyEventWithChars:chars] autorelease];
  [chars appendString:@"y"];
  EXPECT_TRUE([[copy characters] isEqualToString:@"x"]);
}

TEST_F(KeyEvent, AnyStringWillDo) {
  const unichar half = 0xD83D;
  NSString *lone = [NSString stringWithFormat:@"%C", half];
  for (NSString *chars in @[
         @"", @"\0", lone, [@"" stringByPaddingToLength:100000 withString:@"long" startingAtIndex:0]
       ]) {
    NSEvent *copy = [[key(NSKeyDown, 0, NO) copyKeyEventWithChars:chars] autorelease];
    EXPECT_TRUE([[copy characters] isEqualToString:chars]);
  }
  NSEvent *copy = [[key(NSKeyDown, 0, NO) copyKeyEventWithChars:nil] autorelease];
  EXPECT_TRUE([[copy characters] isEqualToString:@""]);
  EXPECT_TRUE([[copy charactersIgnoringModifiers] isEqualToString:@""]);
}

TEST_F(KeyEvent, OtherEventsHaveNoCopy) {
  NSWindow *window = makeWindow(NSMakeSize(50, 50));
  NSEvent *mouse = ov::test::mouseEvent(NSLeftMouseDown, [window contentView], NSMakePoint(1, 1));
  EXPECT_EQ([mouse copyKeyEventWithChars:@"x"], nil);
  EXPECT_EQ([key(NSFlagsChanged, NSShiftKeyMask, NO) copyKeyEventWithChars:@"x"], nil);
}

}  // namespace
