// Undo and redo of filtered typing.

#import "FieldTest.h"

using namespace ov::test;

namespace {

class TypingUndo : public FieldTest {
 protected:
  void SetUp() override {
    FieldTest::SetUp();
    filter = [OvTestFilter digits];
    field = fieldWith(filter);
    [field setStringValue:@"12"];
    edit(field);
    [editor(field) setAllowsUndo:YES];
    undo = [editor(field) undoManager];
    [undo removeAllActions];
  }
  void TearDown() override {
    [undo removeAllActions];
    [editor(field) setAllowsUndo:NO];
    FieldTest::TearDown();
  }

  OvTestFilter *filter = nil;
  NSTextField *field = nil;
  NSUndoManager *undo = nil;
};

TEST_F(TypingUndo, ARefusedEditIsNotRemembered) {
  ASSERT_NE(undo, nil);
  filter->rule = [](Edit &) -> BOOL { return NO; };
  typeKeys(@"3");
  backspace();
  EXPECT_FALSE([undo canUndo]);
  filter->rule = nullptr;
  typeKeys(@"4");
  filter->rule = [](Edit &) -> BOOL { return NO; };
  typeKeys(@"5");
  ASSERT_TRUE([undo canUndo]);
  [undo undo];
  EXPECT_EQ(textOf(field), "12");
  EXPECT_FALSE([undo canUndo]);
}

TEST_F(TypingUndo, AMendedEditIsTakenBackAsOne) {
  pumpPending();
  [editor(field) insertText:@"3a4"];
  pumpPending();
  ASSERT_EQ(textOf(field), "1234");
  NotificationCount changed(NSControlTextDidChangeNotification, field);
  filter->edits.clear();
  [undo undo];
  EXPECT_EQ(textOf(field), "12");
  EXPECT_FALSE([undo canUndo]);
  [undo redo];
  EXPECT_EQ(textOf(field), "1234");
  EXPECT_EQ(changed.count(), 2) << "each is a change";
  EXPECT_EQ(filter->edits, Lines{}) << "and none is judged";
}

TEST_F(TypingUndo, TextThatTheFormatterWouldNotLetInComesBack) {
  [editor(field) setString:@"abc"];
  [editor(field) setSelectedRange:NSMakeRange(3, 0)];
  typeKeys(@"4");
  ASSERT_EQ(textOf(field), "4");
  const int beeps = beepCount();
  [undo undo];
  EXPECT_EQ(textOf(field), "abc") << "it was there";
  EXPECT_EQ(beepCount(), beeps);
}

TEST_F(TypingUndo, TypingStillBecomesOneStep) {
  typeKeys(@"345");
  ASSERT_EQ(textOf(field), "12345");
  [undo undo];
  EXPECT_EQ(textOf(field), "12");
}

TEST_F(TypingUndo, AFieldWithoutSuchAFormatterUndoesTheSame) {
  [field setFormatter:nil];
  typeKeys(@"abc");
  ASSERT_EQ(textOf(field), "12abc");
  [undo undo];
  EXPECT_EQ(textOf(field), "12");
  [undo redo];
  EXPECT_EQ(textOf(field), "12abc");
}

TEST_F(TypingUndo, AMendingKeepsTheAttributesOfTheRest) {
  [field setAllowsEditingTextAttributes:YES];
  [editor(field) setRichText:YES];
  [[editor(field) textStorage] addAttribute:NSForegroundColorAttributeName
                                      value:[NSColor redColor]
                                      range:NSMakeRange(0, 1)];
  [editor(field) setSelectedRange:NSMakeRange(2, 0)];
  [editor(field) insertText:@"a3"];
  ASSERT_EQ(textOf(field), "123");
  NSTextStorage *storage = [editor(field) textStorage];
  const auto colourAt = [=](NSUInteger place) {
    return [storage attribute:NSForegroundColorAttributeName atIndex:place effectiveRange:nullptr];
  };
  EXPECT_TRUE([colourAt(0) isEqual:[NSColor redColor]]);
  EXPECT_FALSE([colourAt(1) isEqual:[NSColor redColor]]);
}

}  // namespace
