// What is typed passes the formatter: judging, mending, refusing.

#import <OvAppKit/OvAppKit.h>

#import "FieldTest.h"

using namespace ov::test;

// A field that decides by itself, with or without asking what it inherits.
@interface OvTestOwnField : NSTextField {
 @public
  int asked;
  BOOL asksSuper;
}
@end
@interface NSTextField (OvTestFilterAsDelegate)
- (BOOL)textView:(NSTextView *)editor
    shouldChangeTextInRange:(NSRange)range
          replacementString:(NSString *)replacement;
@end
@implementation OvTestOwnField
- (BOOL)textView:(NSTextView *)editor
    shouldChangeTextInRange:(NSRange)range
          replacementString:(NSString *)replacement {
  ++asked;
  return !asksSuper || [super textView:editor
                           shouldChangeTextInRange:range
                                 replacementString:replacement];
}
@end

namespace {

class Typing : public FieldTest {
 protected:
  void SetUp() override {
    FieldTest::SetUp();
    filter = [OvTestFilter digits];
    field = fieldWith(filter);
  }
  NotificationCount changes() { return {NSControlTextDidChangeNotification, field}; }

  OvTestFilter *filter = nil;
  NSTextField *field = nil;
};

TEST_F(Typing, EveryEditIsJudgedBeforeItIsMade) {
  edit(field);
  typeKeys(@"12");
  [editor(field) setSelectedRange:NSMakeRange(0, 1)];
  typeKeys(@"7");
  backspace();
  forwardDelete();
  EXPECT_EQ(filter->edits,
            (Lines{"1|1 <- |0", "12|2 <- 1|1", "72|1 <- 12|0+1", "2|0 <- 72|1", "|0 <- 2|0"}));
  EXPECT_EQ(textOf(field), "");
}

TEST_F(Typing, AnAcceptedEditIsThePlatformsOwn) {
  edit(field);
  const auto changed = changes();
  typeKeys(@"12");
  EXPECT_EQ(textOf(field), "12");
  EXPECT_EQ(selectionOf(field), NSMakeRange(2, 0));
  EXPECT_EQ(changed.count(), 2);
  typeKeys(@"\r");
  EXPECT_STREQ([[field stringValue] UTF8String], "12");
}

TEST_F(Typing, WhatAnAcceptingFormatterLeavesIsNotLookedAt) {
  filter->rule = [](Edit &edit) -> BOOL {
    edit.text = @"other";
    edit.selection = NSMakeRange(0, 5);
    return YES;
  };
  edit(field);
  typeKeys(@"x");
  EXPECT_EQ(textOf(field), "x");
  EXPECT_EQ(selectionOf(field), NSMakeRange(1, 0));
}

TEST_F(Typing, AMendedEditShowsTextAndSelectionOfTheFormatter) {
  filter->rule = [](Edit &edit) -> BOOL {
    edit.text = @"abcdef";
    edit.selection = NSMakeRange(1, 3);
    return NO;
  };
  edit(field);
  const auto changed = changes();
  const int beeps = beepCount();
  typeKeys(@"x");
  EXPECT_EQ(textOf(field), "abcdef");
  EXPECT_EQ(selectionOf(field), NSMakeRange(1, 3));
  EXPECT_EQ(changed.count(), 1) << "a mended edit is a change";
  EXPECT_EQ(beepCount(), beeps) << "only formatters beep";
  EXPECT_EQ(filter->edits.size(), 1u) << "mending is not judged again";
  typeKeys(@"\r");
  EXPECT_STREQ([[field stringValue] UTF8String], "abcdef");
}

TEST_F(Typing, ARefusedEditChangesNothing) {
  filter->rule = [](Edit &) -> BOOL { return NO; };
  [field setStringValue:@"12"];
  edit(field, NSMakeRange(0, 1));
  const auto changed = changes();
  typeKeys(@"3");
  backspace();
  forwardDelete();
  EXPECT_EQ(textOf(field), "12");
  EXPECT_EQ(selectionOf(field), NSMakeRange(0, 1));
  EXPECT_EQ(changed.count(), 0);
}

TEST_F(Typing, TheTextBeforeTheEditMovesOnlyTheSelection) {
  filter->rule = [](Edit &edit) -> BOOL {
    edit.text = [NSMutableString stringWithString:edit.original];
    edit.selection = NSMakeRange(0, 2);
    return NO;
  };
  [field setStringValue:@"123"];
  edit(field);
  const auto changed = changes();
  typeKeys(@"4");
  EXPECT_EQ(textOf(field), "123");
  EXPECT_EQ(selectionOf(field), NSMakeRange(0, 2));
  EXPECT_EQ(changed.count(), 0);
}

TEST_F(Typing, AFormatterMayInsistOnTheProposedText) {
  filter->rule = [](Edit &edit) -> BOOL {
    edit.text = [NSMutableString stringWithString:edit.text];
    edit.selection = NSMakeRange(0, 0);
    return NO;
  };
  edit(field);
  typeKeys(@"x");
  EXPECT_EQ(textOf(field), "x");
  EXPECT_EQ(selectionOf(field), NSMakeRange(0, 0));
}

TEST_F(Typing, OneBeepForEachRefusal) {
  edit(field);
  const int beeps = beepCount();
  typeKeys(@"1a2b");
  EXPECT_EQ(textOf(field), "12");
  EXPECT_EQ(beepCount(), beeps + 2);
}

TEST_F(Typing, SpellingsOfOneCharacterAreDifferentTexts) {
  const unichar marks[] = {'e', 0x0301, 0x0327, 'e', 0x0327, 0x0301};
  NSString *before = [NSString stringWithCharacters:marks length:3];
  NSString *after = [NSString stringWithCharacters:marks + 3 length:3];
  ASSERT_TRUE([before isEqualToString:after]) << "to the platform they are one text";
  filter->rule = [=](Edit &edit) -> BOOL {
    edit.text = after;
    edit.selection = NSMakeRange(3, 0);
    return NO;
  };
  [field setStringValue:before];
  edit(field);
  typeKeys(@"x");
  EXPECT_EQ(textOf(field), [after UTF8String]);
}

TEST_F(Typing, LoneHalvesOfPairsAndNulArriveWhole) {
  edit(field);
  filter->rule = nullptr;
  const unichar units[] = {0xD83D, 0, 0xDE00};
  NSMutableString *odd = [NSMutableString string];
  [odd appendString:[NSString stringWithCharacters:units length:3]];
  [editor(field) insertText:@"ab"];
  ASSERT_EQ([[editor(field) string] length], 2u);
  filter->rule = [&](Edit &edit) -> BOOL {
    edit.text = odd;
    edit.selection = NSMakeRange(1, 1);
    return NO;
  };
  typeKeys(@"x");
  EXPECT_EQ([[editor(field) string] length], [odd length]);
  filter->rule = [](Edit &edit) -> BOOL {
    edit.text = @"";
    edit.selection = NSMakeRange(0, 0);
    return NO;
  };
  typeKeys(@"y");
  EXPECT_EQ([[editor(field) string] length], 0u);
}

TEST_F(Typing, AMillionUnitsAreMended) {
  edit(field);
  NSString *million = [@"" stringByPaddingToLength:1000000 withString:@"1a" startingAtIndex:0];
  [editor(field) insertText:million];
  EXPECT_EQ([[editor(field) string] length], 500000u);
}

// MARK: Whose formatter is asked

TEST_F(Typing, TheDelegateHearsOfEveryRefusal) {
  OvTestControlDelegate *delegate = [[[OvTestControlDelegate alloc] init] autorelease];
  [field setDelegate:(id)delegate];
  edit(field);
  typeKeys(@"1a");
  filter->rule = [](Edit &edit) -> BOOL {
    edit.error = @"why not";
    return NO;
  };
  typeKeys(@"2");
  [window makeFirstResponder:nil];
  EXPECT_EQ(delegate->lines, (Lines{"begin?", "begun", "changed 1", "failed 1a: nil",
                                    "failed 12: why not", "end?", "valid? 1", "ended"}))
      << "and everything else is asked and told as ever";
  [field setDelegate:nil];
}

TEST_F(Typing, TheShortFormGoesTheWayOfThePlatform) {
  OvTestShortFilter *shortForm = [[[OvTestShortFilter alloc] init] autorelease];
  [field setFormatter:shortForm];
  edit(field);
  const auto changed = changes();
  typeKeys(@"1a2");
  EXPECT_EQ(shortForm->asked, 3) << "after each change";
  EXPECT_EQ(changed.count(), 3);
  EXPECT_EQ(textOf(field), "12");
  EXPECT_EQ(selectionOf(field), NSMakeRange(2, 0));
  [editor(field) setSelectedRange:NSMakeRange(0, 0)];
  typeKeys(@"b");
  EXPECT_EQ(textOf(field), "12");
  EXPECT_EQ(selectionOf(field), NSMakeRange(2, 0)) << "the platform puts the caret at the end";
}

TEST_F(Typing, OtherFormattersAndNoneLetEverythingPass) {
  NSNumberFormatter *numbers = [[[NSNumberFormatter alloc] init] autorelease];
  NSFormatter *plain = [[[OvTestPlainFormatter alloc] init] autorelease];
  for (NSFormatter *formatter : {(NSFormatter *)numbers, plain, (NSFormatter *)nil}) {
    [field setFormatter:formatter];
    [field setStringValue:@""];
    edit(field);
    NotificationCount changed(NSControlTextDidChangeNotification, field);
    typeKeys(@"1a2");
    backspace();
    EXPECT_EQ(textOf(field), "1a") << [[formatter description] UTF8String];
    EXPECT_EQ(selectionOf(field), NSMakeRange(2, 0));
    EXPECT_EQ(changed.count(), 4);
    EXPECT_TRUE([field textView:editor(field)
        shouldChangeTextInRange:NSMakeRange(0, 1)
              replacementString:@"x"]);
    [editor(field) setString:@"1"];
    [window makeFirstResponder:nil];
  }
}

TEST_F(Typing, AttributesAndUnknownPlacesAreNoEdits) {
  filter->rule = [](Edit &) -> BOOL { return NO; };
  [field setStringValue:@"12"];
  edit(field);
  EXPECT_TRUE([editor(field) shouldChangeTextInRange:NSMakeRange(0, 1) replacementString:nil]);
  EXPECT_TRUE([editor(field) shouldChangeTextInRange:NSMakeRange(NSNotFound, 0)
                                   replacementString:nil]);
  EXPECT_TRUE([editor(field) shouldChangeTextInRange:NSMakeRange(NSNotFound, 0)
                                   replacementString:@"x"]);
  EXPECT_TRUE([editor(field) shouldChangeTextInRange:NSMakeRange(1, 2) replacementString:@"x"]);
  const NSRange endless = {1, NSUIntegerMax};
  EXPECT_TRUE([editor(field) shouldChangeTextInRange:endless replacementString:@"x"]);
  EXPECT_EQ(filter->edits, Lines{});
}

TEST_F(Typing, AFieldsOwnDecisionWins) {
  OvTestOwnField *own = add<OvTestOwnField>();
  [own setFormatter:filter];
  edit(own);
  typeKeys(@"a");
  EXPECT_EQ(own->asked, 1);
  EXPECT_EQ(textOf(own), "a");
  EXPECT_EQ(filter->edits, Lines{});
  own->asksSuper = YES;
  typeKeys(@"b");
  EXPECT_EQ(filter->edits, Lines{"ab|2 <- a|1"});
  EXPECT_EQ(textOf(own), "");
}

TEST_F(Typing, ComboBoxesSecureFieldsAndSubclassesFilterToo) {
  for (NSTextField *each :
       {(NSTextField *)add<NSComboBox>(), (NSTextField *)add<NSSecureTextField>(),
        (NSTextField *)add<OvDatePicker>()}) {
    filter->edits.clear();
    [each setFormatter:filter];
    edit(each);
    NotificationCount changed(NSControlTextDidChangeNotification, each);
    const int beeps = beepCount();
    typeKeys(@"1a2");
    EXPECT_EQ(textOf(each), "12");
    EXPECT_EQ(beepCount(), beeps + 1);
    EXPECT_EQ(changed.count(), 2);
    EXPECT_EQ(filter->edits, (Lines{"1|1 <- |0", "1a|2 <- 1|1", "12|2 <- 1|1"}));
    typeKeys(@"\t");
    EXPECT_STREQ([[each stringValue] UTF8String], "12") << [[each description] UTF8String];
  }
}

TEST_F(Typing, ACompletingComboBoxCompletesWhatWasMended) {
  NSComboBox *box = add<NSComboBox>();
  [box addItemWithObjectValue:@"1234"];
  [box setCompletes:YES];
  [box setFormatter:filter];
  edit(box);
  typeKeys(@"1");
  EXPECT_EQ(textOf(box), "1234");
  EXPECT_EQ(selectionOf(box), NSMakeRange(1, 3));
  typeKeys(@"x");
  EXPECT_EQ(textOf(box), "1") << "typed over the completion";
}

// MARK: The formatters of the library

TEST_F(Typing, DigitsStopAtFour) {
  OvVPNumberFormatter *digits = [[[OvVPNumberFormatter alloc] init] autorelease];
  [digits setMaximum:[NSDecimalNumber decimalNumberWithString:@"4"]];
  [field setFormatter:digits];
  [field setStringValue:@"123"];
  edit(field);
  NotificationCount full(OvVPFormatterBufferIsFull, digits);
  const int beeps = beepCount();
  typeKeys(@"4");
  EXPECT_EQ(full.count(), 1);
  EXPECT_EQ(textOf(field), "1234");
  EXPECT_EQ(beepCount(), beeps);
  typeKeys(@"5");
  EXPECT_EQ(textOf(field), "1234");
  EXPECT_EQ(selectionOf(field), NSMakeRange(4, 0));
  EXPECT_EQ(beepCount(), beeps + 1);
  EXPECT_EQ(full.count(), 1);
  [editor(field) setSelectedRange:NSMakeRange(1, 0)];
  typeKeys(@"9");
  EXPECT_EQ(textOf(field), "1923") << "the first four of the proposed text";
  EXPECT_EQ(selectionOf(field), NSMakeRange(1, 0)) << "where the selection began";
}

TEST_F(Typing, PathsLoseColonsAndTheirLeadingPeriod) {
  OvVPPathFormatter *path = [[[OvVPPathFormatter alloc] init] autorelease];
  [path setAllowPeriodAtTheHead:NO];
  [field setFormatter:path];
  edit(field);
  typeKeys(@".");
  EXPECT_EQ(textOf(field), "");
  [editor(field) insertText:@"..x"];
  EXPECT_EQ(textOf(field), ".x") << "one period for each edit";
  EXPECT_EQ(selectionOf(field), NSMakeRange(0, 0));
  [path setAllowPeriodAtTheHead:YES];
  [editor(field) setSelectedRange:NSMakeRange(2, 0)];
  typeKeys(@"y:");
  EXPECT_EQ(textOf(field), ".xy");
}

TEST_F(Typing, BytesAreCounted) {
  OvVPSjisFormatter *bytes = [[[OvVPSjisFormatter alloc] init] autorelease];
  [bytes setMaximum:[NSDecimalNumber decimalNumberWithString:@"4"]];
  [field setFormatter:bytes];
  edit(field);
  [editor(field) insertText:@"aあいう"];
  EXPECT_EQ(textOf(field), "aあ");
  EXPECT_EQ(selectionOf(field), NSMakeRange(0, 0));
}

// MARK: Bad formatters

TEST_F(Typing, ANilTextRefusesTheEdit) {
  filter->rule = [](Edit &edit) -> BOOL {
    edit.text = nil;
    edit.selection = NSMakeRange(0, 1);
    return NO;
  };
  [field setStringValue:@"12"];
  edit(field);
  const auto changed = changes();
  typeKeys(@"3");
  EXPECT_EQ(textOf(field), "12");
  EXPECT_EQ(selectionOf(field), NSMakeRange(2, 0));
  EXPECT_EQ(changed.count(), 0);
}

TEST_F(Typing, AnObjectThatIsNoTextRefusesTheEdit) {
  OvTestControlDelegate *delegate = [[[OvTestControlDelegate alloc] init] autorelease];
  [field setDelegate:(id)delegate];
  filter->rule = [](Edit &edit) -> BOOL {
    edit.text = (NSString *)[NSNumber numberWithInt:1];
    edit.error = (NSString *)[NSNumber numberWithInt:2];
    return NO;
  };
  edit(field);
  typeKeys(@"3");
  EXPECT_EQ(textOf(field), "");
  EXPECT_EQ(delegate->lines.back(), "failed 3: nil");
  [field setDelegate:nil];
}

TEST_F(Typing, ASelectionOutsideTheTextBecomesTheCaretBeforeTheEdit) {
  for (NSRange range : {NSMakeRange(NSNotFound, 0), NSMakeRange(9, 0), NSMakeRange(0, 9),
                        NSRange{1, NSUIntegerMax}, NSRange{NSUIntegerMax, NSUIntegerMax}}) {
    [field setFormatter:nil];
    [field setStringValue:@"12"];
    [field setFormatter:filter];
    filter->rule = [=](Edit &edit) -> BOOL {
      edit.text = @"abc";
      edit.selection = range;
      return NO;
    };
    edit(field, NSMakeRange(1, 1));
    typeKeys(@"3");
    EXPECT_EQ(textOf(field), "abc");
    EXPECT_EQ(selectionOf(field), NSMakeRange(1, 0)) << range;
  }
}

TEST_F(Typing, AFormatterThatRaisesLeavesTheFieldAsItWas) {
  filter->rule = [](Edit &) -> BOOL {
    [NSException raise:NSGenericException format:@"no"];
    return YES;
  };
  edit(field);
  bool raised = false;
  @try {
    [editor(field) insertText:@"1"];
  } @catch (NSException *exception) {
    raised = true;
  }
  EXPECT_TRUE(raised) << "it is the host's to hear of";
  EXPECT_EQ(textOf(field), "");
  filter->rule = nullptr;
  typeKeys(@"2");
  EXPECT_EQ(textOf(field), "2");
  EXPECT_EQ(filter->edits.size(), 2u) << "the formatter is asked again";
}

TEST_F(Typing, AFormatterThatTypesItselfIsNotAskedAboutThat) {
  for (const BOOL answer : {YES, NO}) {
    filter->edits.clear();
    filter->rule = [&](Edit &edit) -> BOOL {
      [editor(field) insertText:@"own"];
      edit.text = @"mended";
      return answer;
    };
    edit(field);
    [editor(field) setString:@""];
    typeKeys(@"1");
    EXPECT_EQ(textOf(field), "own") << "the edit that was judged is no longer possible";
    EXPECT_EQ(filter->edits.size(), 1u);
  }
}

TEST_F(Typing, AFormatterThatSetsTheFieldIsObeyed) {
  filter->rule = [&](Edit &edit) -> BOOL {
    [field setStringValue:@"set"];
    edit.text = @"mended";
    return NO;
  };
  edit(field);
  typeKeys(@"1");
  EXPECT_EQ(textOf(field), "set");
}

TEST_F(Typing, AFormatterMayEndTheEditingOrTheField) {
  NSTextField *other = add<NSTextField>();
  filter->rule = [&](Edit &edit) -> BOOL {
    [window makeFirstResponder:other];
    edit.text = @"mended";
    return NO;
  };
  edit(field);
  typeKeys(@"1");
  EXPECT_TRUE(isEditing(other));
  EXPECT_EQ(textOf(other), "");
  EXPECT_EQ(textOf(field), "");

  NSSecureTextField *secret = add<NSSecureTextField>();
  [secret setFormatter:filter];
  filter->rule = [&](Edit &edit) -> BOOL {
    [secret setFormatter:nil];
    [window makeFirstResponder:nil];
    [secret removeFromSuperview];
    edit.text = @"mended";
    return NO;
  };
  edit(secret);
  typeKeys(@"1");
  EXPECT_EQ([secret superview], nil);
}

}  // namespace
