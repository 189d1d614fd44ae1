// OvVPTextField, OvVPComboBox and the date picker's classes: what they keep, announce and ask.

#import <OvAppKit/OvAppKit.h>

#import "FieldTest.h"

using namespace ov::test;

// Answers the controls' own two questions, and notes what it is told.
@interface OvTestFieldDelegate : NSObject {
 @public
  Lines lines;
  BOOL refusesBeginning;
  BOOL refusesEnding;
}
@end
#define NOTED(name)                              \
  -(void)name : (NSNotification *)notification { \
    lines.push_back(#name);                      \
    EXPECT_EQ([notification userInfo], nil);     \
  }
@implementation OvTestFieldDelegate
- (BOOL)textFieldShouldBeginEditing:(NSText *)editor {
  EXPECT_TRUE([editor isKindOfClass:[NSTextView class]]);
  lines.push_back("begin?");
  return !refusesBeginning;
}
- (BOOL)textFieldShouldEndEditing:(NSText *)editor {
  EXPECT_TRUE([editor isKindOfClass:[NSTextView class]]);
  lines.push_back("end?");
  return !refusesEnding;
}
- (BOOL)comboBoxShouldBeginEditing:(NSText *)editor {
  return [self textFieldShouldBeginEditing:editor];
}
- (BOOL)comboBoxShouldEndEditing:(NSText *)editor {
  return [self textFieldShouldEndEditing:editor];
}
NOTED(textFieldBecomeFirstResponder)
NOTED(textFieldResignFirstResponder)
NOTED(textFieldDidBeginEditing)
NOTED(textFieldDidEndEditing)
NOTED(textFieldDidChange)
NOTED(comboBoxBecomeFirstResponder)
NOTED(comboBoxResignFirstResponder)
NOTED(comboBoxDidBeginEditing)
NOTED(comboBoxDidEndEditing)
NOTED(comboBoxDidChange)
@end

// Has the two events only that it is named for, and only the first of the questions.
@interface OvTestBeginDelegate : NSObject {
 @public
  Lines lines;
  BOOL refuses;
}
@end
@implementation OvTestBeginDelegate
- (BOOL)textFieldShouldBeginEditing:(NSText *)editor {
  (void)editor;
  lines.push_back("begin?");
  return !refuses;
}
- (BOOL)comboBoxShouldBeginEditing:(NSText *)editor {
  return [self textFieldShouldBeginEditing:editor];
}
- (BOOL)control:(NSControl *)control textShouldEndEditing:(NSText *)editor {
  (void)control, (void)editor;
  lines.push_back("control end?");
  return NO;
}
NOTED(textFieldDidChange)
NOTED(comboBoxDidChange)
@end

// The platform's question about beginning, which is asked about ending, too.
@interface OvTestPlatformBeginDelegate : NSObject {
 @public
  Lines lines;
  BOOL refuses;
}
@end
@implementation OvTestPlatformBeginDelegate
- (BOOL)control:(NSControl *)control textShouldBeginEditing:(NSText *)editor {
  (void)control, (void)editor;
  lines.push_back("control begin?");
  return !refuses;
}
- (BOOL)control:(NSControl *)control textShouldEndEditing:(NSText *)editor {
  (void)control, (void)editor;
  lines.push_back("control end?");
  return NO;
}
@end

// Their end begins with the delegate's.
static int forgotten;
@interface OvTestDyingField : OvVPTextField
@end
@implementation OvTestDyingField
- (void)setDelegate:(id)newDelegate {
  if (newDelegate == nil && [self delegate] != nil) ++forgotten;
  [super setDelegate:newDelegate];
}
@end
@interface OvTestDyingBox : OvVPComboBox
@end
@implementation OvTestDyingBox
- (void)setDelegate:(id)newDelegate {
  if (newDelegate == nil && [self delegate] != nil) ++forgotten;
  [super setDelegate:newDelegate];
}
@end

// Drops its field when the editing of it ends.
@interface OvTestDroppingDelegate : NSObject {
 @public
  OvVPTextField *field;
}
@end
@implementation OvTestDroppingDelegate
- (void)textFieldDidEndEditing:(NSNotification *)notification {
  (void)notification;
  [field removeFromSuperview];
  [field release];
  field = nil;
}
@end

namespace {

NSDecimalNumber *number(NSString *text) { return [NSDecimalNumber decimalNumberWithString:text]; }

class VPField : public FieldTest {
 protected:
  void SetUp() override {
    FieldTest::SetUp();
    field = add<OvVPTextField>();
    box = add<OvVPComboBox>();
    last = add<NSTextField>();
    [field setNextKeyView:box];
    [box setNextKeyView:last];
    [last setNextKeyView:field];
    [window makeFirstResponder:nil];
    delegate = [[[OvTestFieldDelegate alloc] init] autorelease];
  }
  void TearDown() override {
    [field setDelegate:nil];
    [box setDelegate:nil];
    FieldTest::TearDown();
  }
  OvTestJournal *journalOf(id object) {
    OvTestJournal *journal = [[[OvTestJournal alloc] init] autorelease];
    [journal observe:object];
    return journal;
  }
  // A click of a person: both events are in the queue.
  void clickIn(NSView *view) {
    const NSPoint middle = NSMakePoint(8, 10);
    post(mouseEvent(NSLeftMouseDown, view, middle));
    post(mouseEvent(NSLeftMouseUp, view, middle));
    pumpPending();
  }
  Lines taken(OvTestJournal *journal) { return std::exchange(journal->lines, {}); }
  // Only the control's own, without what their names have in common.
  Lines own(OvTestJournal *journal) {
    Lines lines;
    for (const std::string &line : taken(journal)) {
      for (const std::string prefix : {"OvVPTextField", "OvVPComboBox"}) {
        if (line.starts_with(prefix)) lines.push_back(line.substr(prefix.size()));
      }
    }
    return lines;
  }

  OvVPTextField *field = nil;
  OvVPComboBox *box = nil;
  NSTextField *last = nil;
  OvTestFieldDelegate *delegate = nil;
};

// MARK: What they keep

TEST_F(VPField, BeginsWithNothingSet) {
  EXPECT_FALSE([field moveNextKeyView]);
  EXPECT_EQ([field minimum], nil);
  EXPECT_EQ([field maximum], nil);
  EXPECT_EQ([field formatter], nil);
  EXPECT_EQ([field delegate], nil);
  EXPECT_TRUE([field isEditable]);
  EXPECT_EQ([box formatter], nil);
}

TEST_F(VPField, RetainsItsNumbers) {
  NSDecimalNumber *small = [[NSDecimalNumber alloc] initWithString:@"123456.5"];
  NSDecimalNumber *large = [[NSDecimalNumber alloc] initWithString:@"-123456.5"];
  const NSUInteger smallCount = [small retainCount];
  const NSUInteger largeCount = [large retainCount];
  OvVPTextField *other = [[OvVPTextField alloc] initWithFrame:NSZeroRect];
  [other setMoveNextKeyView:YES];
  EXPECT_TRUE([other moveNextKeyView]);
  for (int i = 0; i < 2; ++i) {
    [other setMinimum:small];
    [other setMaximum:large];
  }
  EXPECT_EQ([other minimum], small);
  EXPECT_EQ([other maximum], large);
  EXPECT_EQ([small retainCount], smallCount + 1);
  EXPECT_EQ([large retainCount], largeCount + 1);
  [other setMinimum:nil];
  EXPECT_EQ([small retainCount], smallCount);
  [other setMinimum:small];
  [other release];
  EXPECT_EQ([small retainCount], smallCount);
  EXPECT_EQ([large retainCount], largeCount);
  [small release];
  [large release];
}

TEST_F(VPField, NamesAreTheirOwnValues) {
#define EXPECT_NAMED(name) EXPECT_STREQ([name UTF8String], #name)
  EXPECT_NAMED(OvVPTextFieldBecomeFirstResponderNotification);
  EXPECT_NAMED(OvVPTextFieldResignFirstResponderNotification);
  EXPECT_NAMED(OvVPTextFieldDidBeginEditingNotification);
  EXPECT_NAMED(OvVPTextFieldDidEndEditingNotification);
  EXPECT_NAMED(OvVPTextFieldDidChangeNotification);
  EXPECT_NAMED(OvVPTextFieldDidBecomeValidNotification);
  EXPECT_NAMED(OvVPTextFieldDidBecomeInvalidNotification);
  EXPECT_NAMED(OvVPComboBoxBecomeFirstResponderNotification);
  EXPECT_NAMED(OvVPComboBoxResignFirstResponderNotification);
  EXPECT_NAMED(OvVPComboBoxDidBeginEditingNotification);
  EXPECT_NAMED(OvVPComboBoxDidEndEditingNotification);
  EXPECT_NAMED(OvVPComboBoxDidChangeNotification);
}

TEST_F(VPField, TheDatePickerIsAFieldAndItsCellACell) {
  EXPECT_EQ([OvDatePicker superclass], [NSTextField class]);
  EXPECT_EQ([OvDatePickerCell superclass], [NSActionCell class]);
  OvDatePicker *picker = add<OvDatePicker>();
  EXPECT_TRUE([[picker cell] isMemberOfClass:[NSTextFieldCell class]]);
  [picker setStringValue:@"20.11."];
  NSTextField *plain = add<NSTextField>();
  [plain setStringValue:@"20.11."];
  [plain setFrame:[picker frame]];
  const Picture drawn = pictureOf(picker), expected = pictureOf(plain);
  ASSERT_EQ(drawn.width(), expected.width());
  int differing = 0;
  for (int y = 0; y < drawn.height(); ++y) {
    for (int x = 0; x < drawn.width(); ++x) differing += drawn.at(x, y) != expected.at(x, y);
  }
  EXPECT_EQ(differing, 0);
}

TEST_F(VPField, ArchivesAreThePlatformsAndLoseWhatIsNotArchived) {
  [field setStringValue:@"kept"];
  [field setMaximum:number(@"4")];
  [box addItemWithObjectValue:@"item"];
  for (const bool keyed : {true, false}) {
    for (NSControl *control : {(NSControl *)field, (NSControl *)box}) {
      NSData *data = keyed ? [NSKeyedArchiver archivedDataWithRootObject:control]
                           : [NSArchiver archivedDataWithRootObject:control];
      id read = keyed ? [NSKeyedUnarchiver unarchiveObjectWithData:data]
                      : [NSUnarchiver unarchiveObjectWithData:data];
      ASSERT_TRUE([read isMemberOfClass:[control class]]) << keyed;
      EXPECT_TRUE([[read stringValue] isEqual:[control stringValue]]);
      EXPECT_EQ([read delegate], nil);
      if (control == field) {
        EXPECT_EQ([read maximum], nil);
        EXPECT_FALSE([read moveNextKeyView]);
      } else {
        EXPECT_EQ([read numberOfItems], 1);
      }
    }
  }
}

TEST_F(VPField, ASequentialArchiveConnectsItsDelegate) {
  // The delegate is in the archive for another reason, too.
  [field setDelegate:(id)last];
  [box setDelegate:(id)last];
  NSArray *root = [NSArray arrayWithObjects:last, field, box, nil];
  NSArray *read =
      [NSUnarchiver unarchiveObjectWithData:[NSArchiver archivedDataWithRootObject:root]];
  ASSERT_EQ([read count], 3u);
  EXPECT_EQ([[read objectAtIndex:1] delegate], [read objectAtIndex:0]);
  EXPECT_EQ([[read objectAtIndex:2] delegate], [read objectAtIndex:0]);
  [[read objectAtIndex:1] setDelegate:nil];
  [[read objectAtIndex:2] setDelegate:nil];
}

// MARK: What they announce

TEST_F(VPField, AnEditingFromClickToTab) {
  OvTestJournal *journal = journalOf(field);
  clickIn(field);
  EXPECT_EQ(own(journal), (Lines{"ResignFirstResponder", "BecomeFirstResponder"}))
      << "the field's editor takes the focus while the field gets it";
  typeKeys(@"1");
  EXPECT_EQ(taken(journal), (Lines{"NSControlTextDidBeginEditing", "OvVPTextFieldDidBeginEditing",
                                   "NSControlTextDidChange", "OvVPTextFieldDidChange"}));
  typeKeys(@"2");
  EXPECT_EQ(own(journal), Lines{"DidChange"});
  typeKeys(@"\t");
  EXPECT_EQ(own(journal), Lines{"DidEndEditing"});
  EXPECT_TRUE(isEditing(box));
}

TEST_F(VPField, AnEditingOfAComboBoxFromClickToTab) {
  OvTestJournal *journal = journalOf(box);
  clickIn(box);
  EXPECT_EQ(own(journal), (Lines{"ResignFirstResponder", "BecomeFirstResponder"}));
  typeKeys(@"12");
  EXPECT_EQ(own(journal), (Lines{"DidBeginEditing", "DidChange", "DidChange"}));
  typeKeys(@"\t");
  EXPECT_EQ(own(journal), Lines{"DidEndEditing"});
  EXPECT_TRUE(isEditing(last));
}

TEST_F(VPField, LeavingWithoutTypingEndsAnEditing) {
  edit(field);
  OvTestJournal *journal = journalOf(field);
  [window makeFirstResponder:last];
  EXPECT_EQ(own(journal), Lines{"DidEndEditing"});
}

TEST_F(VPField, TabAndShiftTabWalkTheLoop) {
  OvTestJournal *fields = journalOf(field), *boxes = journalOf(box);
  edit(field);
  taken(fields);
  typeKeys(@"\t");
  EXPECT_EQ(own(fields), Lines{"DidEndEditing"});
  EXPECT_EQ(own(boxes), (Lines{"ResignFirstResponder", "BecomeFirstResponder"}));
  typeKeys(@"\x19");
  EXPECT_EQ(own(boxes), Lines{"DidEndEditing"});
  EXPECT_EQ(own(fields), (Lines{"ResignFirstResponder", "BecomeFirstResponder"}));
  EXPECT_TRUE(isEditing(field));
}

TEST_F(VPField, ReturnEndsAndTheFocusComesBack) {
  edit(field);
  OvTestJournal *journal = journalOf(field);
  typeKeys(@"1\r");
  EXPECT_EQ(own(journal), (Lines{"DidBeginEditing", "DidChange", "DidEndEditing"}));
  EXPECT_TRUE(isEditing(field));
  EXPECT_EQ(selectionOf(field), NSMakeRange(0, 1));
}

TEST_F(VPField, AValueSetWhileEditingIsNoChangeOfFocus) {
  for (NSTextField *each : {(NSTextField *)field, (NSTextField *)box}) {
    edit(each);
    OvTestJournal *journal = journalOf(each);
    [each setStringValue:@"1"];
    [each setObjectValue:@"2"];
    [each setIntValue:3];
    [each setIntegerValue:4];
    [each setFloatValue:5];
    [each setDoubleValue:6];
    EXPECT_EQ(taken(journal), Lines{}) << [[each description] UTF8String];
    EXPECT_TRUE(isEditing(each));
    EXPECT_EQ(textOf(each), "6");
    typeKeys(@"7");
    EXPECT_EQ(own(journal), (Lines{"DidBeginEditing", "DidChange"})) << "the platform begins anew";
    EXPECT_EQ(textOf(each), "7") << "over the selected text";
    [window makeFirstResponder:last];
    taken(journal);
    [window makeFirstResponder:each];
    EXPECT_EQ(own(journal), (Lines{"ResignFirstResponder", "BecomeFirstResponder"}))
        << "a later change is told again";
    [each setStringValue:@""];
  }
}

TEST_F(VPField, AValueSetWithoutEditingTellsNothing) {
  OvTestJournal *journal = journalOf(field);
  [field setStringValue:@"1"];
  [field setIntValue:2];
  EXPECT_EQ(taken(journal), Lines{});
}

TEST_F(VPField, AWindowThatBecomesKeyAgainTellsNothing) {
  edit(field);
  OvTestJournal *journal = journalOf(field);
  NSWindow *other = showWindow(NSMakeSize(50, 50));
  ASSERT_TRUE(pumpUntil([=] { return [other isKeyWindow]; }));
  [window makeKeyAndOrderFront:nil];
  ASSERT_TRUE(pumpUntil([=, this] { return [window isKeyWindow]; }));
  EXPECT_TRUE(isEditing(field));
  EXPECT_EQ(own(journal), Lines{});
}

TEST_F(VPField, AFieldThatCannotBeEditedGetsNoFocus) {
  OvTestJournal *journal = journalOf(field);
  [field setEnabled:NO];
  EXPECT_FALSE([field becomeFirstResponder]);
  [window makeFirstResponder:field];
  EXPECT_EQ(taken(journal), Lines{});
}

TEST_F(VPField, ValidityIsNeverAnnounced) {
  NotificationCount valid(OvVPTextFieldDidBecomeValidNotification, nil);
  NotificationCount invalid(OvVPTextFieldDidBecomeInvalidNotification, nil);
  [field setFormatter:[[[OvVPNumberFormatter alloc] init] autorelease]];
  edit(field);
  typeKeys(@"1a\t");
  EXPECT_EQ(valid.count() + invalid.count(), 0);
}

// MARK: The delegate

TEST_F(VPField, TheDelegateIsToldAndAsked) {
  [field setDelegate:delegate];
  clickIn(field);
  typeKeys(@"1\t");
  EXPECT_EQ(
      delegate->lines,
      (Lines{"textFieldResignFirstResponder", "textFieldBecomeFirstResponder", "begin?",
             "textFieldDidBeginEditing", "textFieldDidChange", "end?", "textFieldDidEndEditing"}));
}

TEST_F(VPField, TheDelegateOfAComboBoxIsToldAndAsked) {
  [box setDelegate:(id)delegate];
  clickIn(box);
  typeKeys(@"1\t");
  EXPECT_EQ(delegate->lines, (Lines{"comboBoxResignFirstResponder", "comboBoxBecomeFirstResponder",
                                    "begin?", "comboBoxDidBeginEditing", "comboBoxDidChange",
                                    "end?", "comboBoxDidEndEditing"}));
}

TEST_F(VPField, AnotherDelegateReplacesTheFirstForThisFieldAlone) {
  OvTestFieldDelegate *second = [[[OvTestFieldDelegate alloc] init] autorelease];
  OvVPTextField *sibling = add<OvVPTextField>();
  [sibling setDelegate:delegate];
  [field setDelegate:delegate];
  [field setDelegate:second];
  EXPECT_EQ([field delegate], second);
  edit(field);
  typeKeys(@"1");
  EXPECT_EQ(delegate->lines, Lines{});
  EXPECT_EQ(second->lines.size(), 5u) << "once each";
  edit(sibling);
  EXPECT_EQ(delegate->lines,
            (Lines{"textFieldResignFirstResponder", "textFieldBecomeFirstResponder"}));
  [field setDelegate:second];
  second->lines.clear();
  [window makeFirstResponder:field];
  EXPECT_EQ(second->lines.size(), 2u) << "set twice, told once";
  [sibling setDelegate:nil];
}

TEST_F(VPField, ADelegateIsToldOnlyWhatItHasMethodsFor) {
  OvTestBeginDelegate *partial = [[[OvTestBeginDelegate alloc] init] autorelease];
  [field setDelegate:partial];
  edit(field);
  typeKeys(@"1");
  EXPECT_EQ(partial->lines, (Lines{"begin?", "textFieldDidChange"}));
}

TEST_F(VPField, TheDelegateKeepsThePlatformsMessages) {
  OvTestControlDelegate *control = [[[OvTestControlDelegate alloc] init] autorelease];
  [field setDelegate:control];
  edit(field);
  typeKeys(@"1");
  EXPECT_EQ(control->lines, (Lines{"begin?", "begun", "changed 1"}));
  [field setDelegate:nil];
  control->lines.clear();
  typeKeys(@"2");
  EXPECT_EQ(control->lines, Lines{});
}

TEST_F(VPField, TheDelegateIsNotRetainedAndForgottenAtTheEnd) {
  const NSUInteger count = [delegate retainCount];
  forgotten = 0;
  NSTextField *dying = [[OvTestDyingField alloc] initWithFrame:NSZeroRect];
  NSTextField *dyingBox = [[OvTestDyingBox alloc] initWithFrame:NSZeroRect];
  for (NSTextField *each : {dying, dyingBox}) {
    [each setDelegate:(id)delegate];
    EXPECT_EQ([delegate retainCount], count);
    [each release];
  }
  EXPECT_EQ(forgotten, 2);
}

TEST_F(VPField, ARefusedBeginningTypesNothing) {
  delegate->refusesBeginning = YES;
  for (NSTextField *each : {(NSTextField *)field, (NSTextField *)box}) {
    [each setDelegate:(id)delegate];
    edit(each);
    delegate->lines.clear();
    typeKeys(@"1");
    EXPECT_EQ(textOf(each), "");
    EXPECT_EQ(delegate->lines, Lines{"begin?"});
  }
}

TEST_F(VPField, ARefusedEndKeepsTheFocus) {
  delegate->refusesEnding = YES;
  for (NSTextField *each : {(NSTextField *)field, (NSTextField *)box}) {
    delegate->refusesEnding = YES;
    [each setDelegate:(id)delegate];
    edit(each);
    typeKeys(@"1\t");
    EXPECT_TRUE(isEditing(each));
    EXPECT_EQ(delegate->lines.back(), "end?");
    delegate->refusesEnding = NO;
    typeKeys(@"\t");
    EXPECT_FALSE(isEditing(each));
  }
}

TEST_F(VPField, WhoDecidesOnlyBeginningDecidesEndingToo) {
  OvTestBeginDelegate *partial = [[[OvTestBeginDelegate alloc] init] autorelease];
  for (NSTextField *each : {(NSTextField *)field, (NSTextField *)box}) {
    partial->refuses = NO;
    [each setDelegate:(id)partial];
    edit(each);
    typeKeys(@"1");
    partial->lines.clear();
    partial->refuses = YES;
    typeKeys(@"\t");
    EXPECT_TRUE(isEditing(each));
    EXPECT_EQ(partial->lines, Lines{"begin?"}) << "not the platform's question about ending";
    partial->refuses = NO;
    typeKeys(@"\t");
    EXPECT_FALSE(isEditing(each));
  }
}

TEST_F(VPField, OtherwiseThePlatformsBeginningDecidesEnding) {
  OvTestPlatformBeginDelegate *control = [[[OvTestPlatformBeginDelegate alloc] init] autorelease];
  for (NSTextField *each : {(NSTextField *)field, (NSTextField *)box}) {
    control->refuses = NO;
    [each setDelegate:(id)control];
    edit(each);
    control->lines.clear();
    control->refuses = YES;
    typeKeys(@"\t");
    EXPECT_TRUE(isEditing(each));
    EXPECT_EQ(control->lines, Lines{"control begin?"});
    control->refuses = NO;
    typeKeys(@"\t");
    EXPECT_FALSE(isEditing(each));
  }
}

// MARK: Moving on

class VPMoving : public VPField {
 protected:
  void SetUp() override {
    VPField::SetUp();
    [field setMoveNextKeyView:YES];
    [field setMaximum:number(@"4")];
    [field setNextKeyView:last];
  }
};

TEST_F(VPMoving, TheFourthCharacterMovesTheFocus) {
  edit(field);
  OvTestJournal *journal = journalOf(field);
  typeKeys(@"123");
  EXPECT_TRUE(isEditing(field));
  own(journal);
  typeKeys(@"45");
  EXPECT_EQ(own(journal), (Lines{"DidEndEditing", "DidChange"})) << "it moves, then tells";
  EXPECT_TRUE(isEditing(last));
  EXPECT_STREQ([[field stringValue] UTF8String], "1234");
  EXPECT_EQ(textOf(last), "5");
}

TEST_F(VPMoving, NothingMovesUnlessToldTo) {
  [field setMoveNextKeyView:NO];
  edit(field);
  typeKeys(@"1234");
  EXPECT_TRUE(isEditing(field));
}

TEST_F(VPMoving, FiveAtOnceDoNotMoveIt) {
  edit(field);
  [editor(field) insertText:@"12345"];
  EXPECT_TRUE(isEditing(field));
  backspace();
  EXPECT_TRUE(isEditing(last)) << "any typing that makes it exactly four";
}

TEST_F(VPMoving, FiveAtOnceMoveItWhenAFormatterCutsThem) {
  OvVPNumberFormatter *digits = [[[OvVPNumberFormatter alloc] init] autorelease];
  [digits setMaximum:number(@"4")];
  [field setFormatter:digits];
  edit(field);
  [editor(field) insertText:@"12345"];
  EXPECT_TRUE(isEditing(last));
  EXPECT_STREQ([[field stringValue] UTF8String], "1234");
}

TEST_F(VPMoving, AFormattersHalvingDoesNotMatter) {
  OvVPNumberFormatter *digits = [[[OvVPNumberFormatter alloc] init] autorelease];
  [digits setMaximum:number(@"4")];
  [digits setCountAsByte:YES];
  [field setFormatter:digits];
  edit(field);
  typeKeys(@"123");
  EXPECT_TRUE(isEditing(field));
  EXPECT_EQ(textOf(field), "12");
}

TEST_F(VPMoving, WhatIsNoLengthNeverMovesIt) {
  NSArray *numbers = [NSArray
      arrayWithObjects:number(@"0"), number(@"-1"), number(@"-4"), number(@"1.5"), number(@"1e100"),
                       [NSDecimalNumber notANumber], [NSDecimalNumber maximumDecimalNumber],
                       [NSDecimalNumber minimumDecimalNumber], nil];
  for (NSDecimalNumber *each in numbers) {
    [field setMaximum:each];
    [field setStringValue:@""];
    edit(field);
    typeKeys(@"12");
    backspace();
    backspace();
    EXPECT_TRUE(isEditing(field)) << [[each description] UTF8String];
  }
  [field setMaximum:nil];
  typeKeys(@"1");
  EXPECT_TRUE(isEditing(field));
}

TEST_F(VPMoving, UnitsAreCounted) {
  edit(field);
  [editor(field) insertText:@"\U0001F600\U0001F600"];
  EXPECT_TRUE(isEditing(last));
}

TEST_F(VPMoving, ASetValueDoesNotMoveIt) {
  OvTestJournal *journal = journalOf(field);
  [field setStringValue:@"1234"];
  EXPECT_FALSE(isEditing(last));
  edit(field);
  taken(journal);
  [field setStringValue:@"5678"];
  EXPECT_TRUE(isEditing(field));
  EXPECT_EQ(taken(journal), Lines{});
}

TEST_F(VPMoving, StaysWithoutANextKeyView) {
  [field setNextKeyView:nil];
  edit(field);
  typeKeys(@"12345");
  EXPECT_TRUE(isEditing(field));
  EXPECT_EQ(textOf(field), "12345");
}

TEST_F(VPMoving, StaysWhenTheNextTakesNoKeys) {
  [last setEnabled:NO];
  edit(field);
  typeKeys(@"1234");
  EXPECT_TRUE(isEditing(field));
}

TEST_F(VPMoving, StaysWhenEditingMayNotEnd) {
  delegate->refusesEnding = YES;
  [field setDelegate:delegate];
  edit(field);
  typeKeys(@"1234");
  EXPECT_TRUE(isEditing(field));
  EXPECT_EQ(textOf(field), "1234");
  EXPECT_EQ(delegate->lines.back(), "textFieldDidChange");
  delegate->refusesEnding = NO;
}

TEST_F(VPMoving, GoesRoundALoopOfFields) {
  OvVPTextField *second = add<OvVPTextField>();
  [second setMoveNextKeyView:YES];
  [second setMaximum:number(@"2")];
  [field setMaximum:number(@"2")];
  [field setNextKeyView:second];
  [second setNextKeyView:field];
  edit(field);
  typeKeys(@"1234");
  EXPECT_TRUE(isEditing(field));
  EXPECT_STREQ([[second stringValue] UTF8String], "34");
  typeKeys(@"5");
  EXPECT_EQ(textOf(field), "5") << "its text is selected";
}

TEST_F(VPMoving, AComboBoxDoesNotMove) {
  edit(box);
  typeKeys(@"1234");
  EXPECT_TRUE(isEditing(box));
}

TEST_F(VPMoving, AFieldMayGoWhileItsFocusMoves) {
  OvVPTextField *going = [[OvVPTextField alloc] initWithFrame:nextFrame()];
  addField(going);
  OvTestDroppingDelegate *dropping = [[[OvTestDroppingDelegate alloc] init] autorelease];
  dropping->field = going;
  [going setMoveNextKeyView:YES];
  [going setMaximum:number(@"1")];
  [going setNextKeyView:last];
  [going setDelegate:dropping];
  edit(going);
  typeKeys(@"1");
  EXPECT_EQ(dropping->field, nil);
  EXPECT_TRUE(isEditing(last));
}

// MARK: The next key view of a window that is shown for the first time

TEST_F(FieldTest, AKeyViewChosenBeforeTheWindowIsShownStays) {
  NSWindow *fresh = makeWindow(NSMakeSize(240, 120));
  OvVPTextField *first = [[[OvVPTextField alloc] initWithFrame:nextFrame()] autorelease];
  NSTextField *between =
      [[[NSTextField alloc] initWithFrame:NSMakeRect(10, 40, 200, 22)] autorelease];
  NSTextField *chosen =
      [[[NSTextField alloc] initWithFrame:NSMakeRect(10, 10, 200, 22)] autorelease];
  [first setFrameOrigin:NSMakePoint(10, 80)];
  for (NSView *view : {(NSView *)first, (NSView *)between, (NSView *)chosen}) {
    [[fresh contentView] addSubview:view];
  }
  [first setNextKeyView:chosen];
  [first setMoveNextKeyView:YES];
  [first setMaximum:number(@"2")];
  show(fresh);
  ASSERT_NE([fresh initialFirstResponder], nil) << "the platform made its loop";
  EXPECT_EQ([first nextKeyView], chosen);
  EXPECT_EQ([between nextKeyView], chosen) << "the others are the platform's";
  [fresh makeFirstResponder:first];
  type(fresh, @"12");
  EXPECT_TRUE(isEditing(chosen)) << [[[fresh firstResponder] description] UTF8String];
  [fresh recalculateKeyViewLoop];
  EXPECT_EQ([first nextKeyView], between) << "a loop made on request is the platform's";
}

TEST_F(FieldTest, AKeyViewThatNobodyChoseIsThePlatforms) {
  NSWindow *fresh = makeWindow(NSMakeSize(240, 120));
  OvVPTextField *first =
      [[[OvVPTextField alloc] initWithFrame:NSMakeRect(10, 80, 200, 22)] autorelease];
  NSTextField *second =
      [[[NSTextField alloc] initWithFrame:NSMakeRect(10, 40, 200, 22)] autorelease];
  [[fresh contentView] addSubview:first];
  [[fresh contentView] addSubview:second];
  show(fresh);
  EXPECT_EQ([first nextKeyView], second);
}

}  // namespace
