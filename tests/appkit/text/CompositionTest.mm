// Text that an input method composes passes the formatter once, when it is committed. The
// input method is played by the messages that it sends to the live editor; the platform takes
// the selected range for the place in the whole text that is replaced.

#import <OvAppKit/OvAppKit.h>

#import "FieldTest.h"

using namespace ov::test;

namespace {

class Composing : public FieldTest {
 protected:
  void SetUp() override {
    FieldTest::SetUp();
    filter = [[[OvTestFilter alloc] init] autorelease];
    field = fieldWith(filter);
    [field setStringValue:@"12"];
    edit(field);
    ASSERT_FALSE([editor(field) hasMarkedText]);
  }
  void compose(NSString *text, NSRange replaced) {
    [editor(field) setMarkedText:text selectedRange:replaced];
  }

  OvTestFilter *filter = nil;
  NSTextField *field = nil;
};

TEST_F(Composing, NothingIsJudgedBeforeTheCommit) {
  NotificationCount changed(NSControlTextDidChangeNotification, field);
  compose(@"k", NSMakeRange(2, 0));
  compose(@"か", NSMakeRange(2, 1));
  compose(@"かn", NSMakeRange(2, 1));
  EXPECT_TRUE([editor(field) hasMarkedText]);
  EXPECT_EQ(textOf(field), "12かn");
  EXPECT_EQ(filter->edits, Lines{});
  EXPECT_EQ(changed.count(), 0);
}

TEST_F(Composing, UnmarkingIsJudgedAsOneEdit) {
  NotificationCount changed(NSControlTextDidChangeNotification, field);
  compose(@"k", NSMakeRange(2, 0));
  compose(@"か", NSMakeRange(2, 1));
  [editor(field) unmarkText];
  EXPECT_EQ(filter->edits, Lines{"12か|3 <- 12|2"});
  EXPECT_EQ(textOf(field), "12か");
  EXPECT_EQ(selectionOf(field), NSMakeRange(3, 0));
  EXPECT_FALSE([editor(field) hasMarkedText]);
  EXPECT_EQ(changed.count(), 1);
  typeKeys(@"x");
  EXPECT_EQ(filter->edits.back(), "12かx|4 <- 12か|3") << "typing goes on as ever";
}

TEST_F(Composing, InsertingIsJudgedAsOneEdit) {
  NotificationCount changed(NSControlTextDidChangeNotification, field);
  compose(@"か", NSMakeRange(2, 0));
  compose(@"", NSMakeRange(2, 1));
  compose(@"き", NSMakeRange(2, 0));
  [editor(field) insertText:@"9"];
  EXPECT_EQ(filter->edits, Lines{"12き9|4 <- 12|2"});
  EXPECT_EQ(textOf(field), "12き9");
  EXPECT_EQ(changed.count(), 1);
  typeKeys(@"x");
  EXPECT_EQ(filter->edits.back(), "12き9x|5 <- 12き9|4");
}

TEST_F(Composing, ARefusedCommitLeavesTheTextBeforeTheComposition) {
  for (const bool byInserting : {false, true}) {
    filter->rule = [](Edit &) -> BOOL { return NO; };
    NotificationCount changed(NSControlTextDidChangeNotification, field);
    compose(@"か", NSMakeRange(1, 1));
    EXPECT_EQ(textOf(field), "1か");
    if (byInserting) {
      [editor(field) insertText:@"x"];
    } else {
      [editor(field) unmarkText];
    }
    EXPECT_EQ(textOf(field), "12");
    EXPECT_EQ(selectionOf(field), NSMakeRange(2, 0));
    EXPECT_EQ(changed.count(), 0);
    [editor(field) unmarkText];
    EXPECT_EQ(textOf(field), "12");
    EXPECT_FALSE([editor(field) hasMarkedText]);
  }
}

TEST_F(Composing, AMendedCommitShowsWhatTheFormatterLeft) {
  filter->rule = [OvTestFilter digits]->rule;
  NotificationCount changed(NSControlTextDidChangeNotification, field);
  const int beeps = beepCount();
  [editor(field) setSelectedRange:NSMakeRange(1, 0)];
  compose(@"か3", NSMakeRange(1, 0));
  [editor(field) unmarkText];
  EXPECT_EQ(textOf(field), "132");
  EXPECT_EQ(selectionOf(field), NSMakeRange(1, 0)) << "where the selection was before";
  EXPECT_EQ(changed.count(), 1);
  EXPECT_EQ(beepCount(), beeps + 1);
}

TEST_F(Composing, ACommitIsUndoneAsOne) {
  [editor(field) setAllowsUndo:YES];
  NSUndoManager *undo = [editor(field) undoManager];
  for (const bool byInserting : {false, true}) {
    for (const bool mended : {false, true}) {
      SCOPED_TRACE(byInserting);
      filter->rule = mended ? [OvTestFilter digits]->rule : nullptr;
      [undo removeAllActions];
      compose(@"か", NSMakeRange(2, 0));
      if (byInserting) {
        [editor(field) insertText:@"4"];
      } else {
        compose(@"か4", NSMakeRange(2, 1));
        [editor(field) unmarkText];
      }
      pumpPending();
      ASSERT_EQ(textOf(field), mended ? "124" : "12か4");
      ASSERT_TRUE([undo canUndo]);
      [undo undo];
      EXPECT_EQ(textOf(field), "12");
      EXPECT_FALSE([undo canUndo]);
    }
  }
  [undo removeAllActions];
  [editor(field) setAllowsUndo:NO];
}

TEST_F(Composing, ACancelledCompositionIsNoEdit) {
  NotificationCount changed(NSControlTextDidChangeNotification, field);
  compose(@"か", NSMakeRange(2, 0));
  compose(@"", NSMakeRange(2, 1));
  [editor(field) unmarkText];
  EXPECT_EQ(textOf(field), "12");
  EXPECT_EQ(filter->edits, Lines{});
  EXPECT_EQ(changed.count(), 0);
}

TEST_F(Composing, ACompositionEndsWithItsEditing) {
  NSTextField *other = fieldWith(filter);
  compose(@"か", NSMakeRange(2, 0));
  edit(other);
  typeKeys(@"7");
  EXPECT_EQ(filter->edits, Lines{"7|1 <- |0"}) << "the same editor, another text";
  EXPECT_EQ(textOf(other), "7");
  edit(field);
  filter->edits.clear();
  typeKeys(@"8");
  EXPECT_EQ(filter->edits, Lines{"12か8|4 <- 12か|3"});
}

TEST_F(Composing, AnOrdinaryFieldHearsOfNoMoreThanThePlatformTells) {
  [field setFormatter:nil];
  NotificationCount changed(NSControlTextDidChangeNotification, field);
  compose(@"か", NSMakeRange(2, 0));
  [editor(field) unmarkText];
  EXPECT_EQ(textOf(field), "12か");
  EXPECT_EQ(changed.count(), 0);
  compose(@"き", NSMakeRange(3, 0));
  [editor(field) insertText:@"x"];
  EXPECT_EQ(textOf(field), "12かきx");
  EXPECT_EQ(changed.count(), 1);
}

TEST_F(Composing, ATextViewOfTheHostComposesAsBefore) {
  NSTextView *view = [[[NSTextView alloc] initWithFrame:nextFrame()] autorelease];
  addField(view);
  [window makeFirstResponder:view];
  [view setMarkedText:@"か" selectedRange:NSMakeRange(0, 0)];
  EXPECT_TRUE([view hasMarkedText]);
  [view unmarkText];
  EXPECT_FALSE([view hasMarkedText]);
  EXPECT_STREQ([[view string] UTF8String], "か");
}

// MARK: Moving on

class ComposingInMovingField : public FieldTest {
 protected:
  void SetUp() override {
    FieldTest::SetUp();
    field = add<OvVPTextField>();
    next = add<NSTextField>();
    [field setMoveNextKeyView:YES];
    [field setMaximum:[NSDecimalNumber decimalNumberWithString:@"2"]];
    [field setNextKeyView:next];
    edit(field);
  }
  OvVPTextField *field = nil;
  NSTextField *next = nil;
};

TEST_F(ComposingInMovingField, MovesWhenTheTextIsCommitted) {
  NotificationCount changed(OvVPTextFieldDidChangeNotification, field);
  [editor(field) setMarkedText:@"か" selectedRange:NSMakeRange(0, 0)];
  [editor(field) setMarkedText:@"かな" selectedRange:NSMakeRange(0, 1)];
  EXPECT_TRUE(isEditing(field));
  // What else may tell of a change meanwhile.
  [editor(field) didChangeText];
  EXPECT_EQ(changed.take(), 1);
  EXPECT_TRUE(isEditing(field));
  [editor(field) unmarkText];
  EXPECT_TRUE(isEditing(next));
  EXPECT_EQ(changed.take(), 1);
  EXPECT_STREQ([[field stringValue] UTF8String], "かな");
  EXPECT_EQ(textOf(next), "");
}

TEST_F(ComposingInMovingField, MovesWhenTheCommitIsInserted) {
  [editor(field) setMarkedText:@"か" selectedRange:NSMakeRange(0, 0)];
  [editor(field) insertText:@"な"];
  EXPECT_TRUE(isEditing(next));
  EXPECT_STREQ([[field stringValue] UTF8String], "かな");
}

TEST_F(ComposingInMovingField, AComboBoxTellsOfTheCommitToo) {
  OvVPComboBox *box = add<OvVPComboBox>();
  edit(box);
  NotificationCount changed(OvVPComboBoxDidChangeNotification, box);
  [editor(box) setMarkedText:@"か" selectedRange:NSMakeRange(0, 0)];
  EXPECT_EQ(changed.take(), 0);
  [editor(box) unmarkText];
  EXPECT_EQ(changed.take(), 1);
  EXPECT_EQ(textOf(box), "か");
}

TEST_F(ComposingInMovingField, MovesOnTheMendedTextOfACommit) {
  OvVPSjisFormatter *bytes = [[[OvVPSjisFormatter alloc] init] autorelease];
  [bytes setMaximum:[NSDecimalNumber decimalNumberWithString:@"4"]];
  [field setFormatter:bytes];
  [editor(field) setMarkedText:@"かなり" selectedRange:NSMakeRange(0, 0)];
  [editor(field) unmarkText];
  EXPECT_TRUE(isEditing(next));
  EXPECT_STREQ([[field stringValue] UTF8String], "かな");
}

}  // namespace
