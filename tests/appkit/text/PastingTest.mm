// Pasting, cutting and dropping pass the formatter, too: with the real pasteboard and real
// dragging sessions.

#import <OvAppKit/OvAppKit.h>

#import "FieldTest.h"

using namespace ov::test;

// A view from which a text can be dragged.
@interface OvTestTextSource : NSView {
 @public
  NSString *text;
}
@end
@implementation OvTestTextSource
- (void)mouseDragged:(NSEvent *)event {
  NSPasteboard *pasteboard = [NSPasteboard pasteboardWithName:NSDragPboard];
  [pasteboard declareTypes:[NSArray arrayWithObject:NSStringPboardType] owner:nil];
  [pasteboard setString:text forType:NSStringPboardType];
  NSImage *image = [[[NSImage alloc] initWithSize:NSMakeSize(4, 4)] autorelease];
  [self dragImage:image
               at:[self convertPoint:[event locationInWindow] fromView:nil]
           offset:NSZeroSize
            event:event
       pasteboard:pasteboard
           source:self
        slideBack:NO];
}
- (NSDragOperation)draggingSourceOperationMaskForLocal:(BOOL)local {
  (void)local;
  return NSDragOperationCopy;
}
@end

namespace {

class Pasting : public FieldTest {
 protected:
  void SetUp() override {
    FieldTest::SetUp();
    digits = [[[OvVPNumberFormatter alloc] init] autorelease];
    field = add<NSTextField>();
    [field setFormatter:digits];
  }
  void paste(NSString *text) {
    NSPasteboard *pasteboard = [NSPasteboard generalPasteboard];
    [pasteboard declareTypes:[NSArray arrayWithObject:NSStringPboardType] owner:nil];
    [pasteboard setString:text forType:NSStringPboardType];
    EXPECT_TRUE([[window firstResponder] tryToPerform:@selector(paste:) with:nil]);
  }

  OvVPNumberFormatter *digits = nil;
  NSTextField *field = nil;
};

TEST_F(Pasting, LettersAreTakenOutOfWhatIsPasted) {
  edit(field);
  NotificationCount changed(NSControlTextDidChangeNotification, field);
  const int beeps = beepCount();
  paste(@"1a2b3");
  EXPECT_EQ(textOf(field), "123");
  EXPECT_EQ(selectionOf(field), NSMakeRange(0, 0)) << "where the selection began";
  EXPECT_EQ(beepCount(), beeps + 1);
  EXPECT_EQ(changed.count(), 1);
}

TEST_F(Pasting, TheMiddleOfAText) {
  [field setStringValue:@"12"];
  edit(field, NSMakeRange(1, 0));
  paste(@"7b8");
  EXPECT_EQ(textOf(field), "1782");
  EXPECT_EQ(selectionOf(field), NSMakeRange(1, 0));
}

TEST_F(Pasting, GoodTextIsThePlatformsPaste) {
  [field setStringValue:@"12"];
  edit(field, NSMakeRange(0, 1));
  const int beeps = beepCount();
  paste(@"789");
  EXPECT_EQ(textOf(field), "7892");
  EXPECT_EQ(selectionOf(field), NSMakeRange(3, 0));
  EXPECT_EQ(beepCount(), beeps);
}

TEST_F(Pasting, NothingGoodPastedChangesNothing) {
  [field setStringValue:@"12"];
  edit(field);
  NotificationCount changed(NSControlTextDidChangeNotification, field);
  paste(@"abc");
  EXPECT_EQ(textOf(field), "12");
  EXPECT_EQ(changed.count(), 0);
}

TEST_F(Pasting, EveryKindOfField) {
  for (NSTextField *each :
       {(NSTextField *)add<NSComboBox>(), (NSTextField *)add<NSSecureTextField>(),
        (NSTextField *)add<OvVPTextField>(), (NSTextField *)add<OvVPComboBox>()}) {
    [each setFormatter:digits];
    edit(each);
    const int beeps = beepCount();
    paste(@"1a2b3");
    EXPECT_EQ(textOf(each), "123") << [[each description] UTF8String];
    EXPECT_EQ(beepCount(), beeps + 1);
    [window makeFirstResponder:nil];
  }
}

TEST_F(Pasting, FiveMoveTheFocusOnlyWhenCutToFour) {
  OvVPTextField *moving = add<OvVPTextField>();
  OvVPTextField *next = add<OvVPTextField>();
  [moving setMoveNextKeyView:YES];
  [moving setMaximum:[NSDecimalNumber decimalNumberWithString:@"4"]];
  [moving setNextKeyView:next];
  edit(moving);
  paste(@"12345");
  EXPECT_TRUE(isEditing(moving));
  [editor(moving) setString:@""];
  [moving setFormatter:digits];
  [digits setMaximum:[moving maximum]];
  paste(@"12345");
  EXPECT_TRUE(isEditing(next));
  EXPECT_STREQ([[moving stringValue] UTF8String], "1234");
  EXPECT_EQ(textOf(next), "");
}

TEST_F(Pasting, ExactlyFourPastedMoveTheFocus) {
  OvVPTextField *moving = add<OvVPTextField>();
  NSTextField *next = add<NSTextField>();
  [moving setMoveNextKeyView:YES];
  [moving setMaximum:[NSDecimalNumber decimalNumberWithString:@"4"]];
  [moving setNextKeyView:next];
  edit(moving);
  paste(@"1234");
  EXPECT_TRUE(isEditing(next));
  EXPECT_STREQ([[moving stringValue] UTF8String], "1234");
  EXPECT_EQ(textOf(next), "");
}

TEST_F(Pasting, APlainFieldPastesAnything) {
  NSTextField *plain = add<NSTextField>();
  edit(plain);
  NotificationCount changed(NSControlTextDidChangeNotification, plain);
  paste(@"1a2b3");
  EXPECT_EQ(textOf(plain), "1a2b3");
  EXPECT_EQ(selectionOf(plain), NSMakeRange(5, 0));
  EXPECT_EQ(changed.count(), 1);
}

TEST_F(Pasting, TheShortFormMendsAfterThePaste) {
  OvTestShortFilter *shortForm = [[[OvTestShortFilter alloc] init] autorelease];
  [field setFormatter:shortForm];
  edit(field);
  paste(@"1a2b3");
  EXPECT_EQ(textOf(field), "123");
  EXPECT_EQ(shortForm->asked, 1);
  EXPECT_EQ(selectionOf(field), NSMakeRange(3, 0));
}

TEST_F(Pasting, CuttingIsAnEdit) {
  OvTestFilter *filter = [[[OvTestFilter alloc] init] autorelease];
  [field setFormatter:filter];
  [field setStringValue:@"1234"];
  edit(field, NSMakeRange(1, 2));
  EXPECT_TRUE([[window firstResponder] tryToPerform:@selector(cut:) with:nil]);
  EXPECT_EQ(filter->edits, Lines{"14|1 <- 1234|1+2"});
  EXPECT_EQ(textOf(field), "14");
  EXPECT_STREQ([[[NSPasteboard generalPasteboard] stringForType:NSStringPboardType] UTF8String],
               "23");
  filter->rule = [](Edit &) -> BOOL { return NO; };
  [editor(field) setSelectedRange:NSMakeRange(0, 1)];
  EXPECT_TRUE([[window firstResponder] tryToPerform:@selector(cut:) with:nil]);
  EXPECT_EQ(textOf(field), "14");
}

// MARK: Dropping

class Dropping : public Pasting {
 protected:
  void SetUp() override {
    Pasting::SetUp();
    source = [[[OvTestTextSource alloc] initWithFrame:NSMakeRect(10, 10, 60, 40)] autorelease];
    addField(source);
  }
  // Onto the right end of the field, or its left one.
  void drop(NSString *text, NSTextField *target, bool atTheEnd = true) {
    source->text = text;
    const NSPoint place = NSMakePoint(atTheEnd ? NSWidth([target bounds]) - 30 : 6, 11);
    EXPECT_TRUE(dragThrough(source, NSMakePoint(20, 20), {{target, place}, {target, place}}));
    pumpPending();
  }
  OvTestTextSource *source = nil;
};

TEST_F(Dropping, WhatIsDroppedIsMended) {
  [field setStringValue:@"9"];
  edit(field);
  NotificationCount changed(NSControlTextDidChangeNotification, field);
  const int beeps = beepCount();
  drop(@"1a2b3", field);
  EXPECT_TRUE(isEditing(field));
  EXPECT_EQ(textOf(field), "9123");
  EXPECT_EQ(changed.count(), 1);
  EXPECT_EQ(beepCount(), beeps + 1);
}

TEST_F(Dropping, GoodTextIsThePlatformsDrop) {
  [field setStringValue:@"9"];
  edit(field);
  drop(@"12", field, false);
  EXPECT_EQ(textOf(field), "129");
  EXPECT_EQ(selectionOf(field), NSMakeRange(0, 2)) << "what was dropped is selected";
}

TEST_F(Dropping, APlainFieldTakesAnything) {
  NSTextField *plain = add<NSTextField>();
  [plain setStringValue:@"x"];
  edit(plain);
  drop(@"1a", plain);
  EXPECT_EQ(textOf(plain), "x1a");
  EXPECT_EQ(selectionOf(plain), NSMakeRange(1, 2));
}

TEST_F(Dropping, ACaretBeforeThePlaceOfTheDropIsNoEndlessSelection) {
  edit(field);
  [editor(field) setString:@"abcdef"];
  drop(@"12", field);
  EXPECT_EQ(textOf(field), "12");
  EXPECT_EQ(selectionOf(field), NSMakeRange(2, 0));
}

}  // namespace
