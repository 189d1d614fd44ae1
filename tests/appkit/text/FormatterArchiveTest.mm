// Copies have the settings, archives the class.

#import <OvAppKit/OvAppKit.h>

#import "LiveTest.h"

using namespace ov::test;

namespace {

class FormatterArchive : public LiveTest {
 protected:
  OvVPPathFormatter *settled() {
    OvVPPathFormatter *formatter = [[[OvVPPathFormatter alloc] init] autorelease];
    [formatter setAllowPeriodAtTheHead:NO];
    [formatter setMinimum:[NSDecimalNumber one]];
    [formatter setMaximum:[NSDecimalNumber decimalNumberWithString:@"12"]];
    [formatter setCountAsByte:YES];
    // Not the inverse of the valid one.
    [formatter setInvalidCharacterSet:[NSCharacterSet characterSetWithCharactersInString:@":/"]];
    return formatter;
  }

  void expectNew(id object, Class made) {
    ASSERT_EQ([object class], made);
    OvVPFormatter *restored = object;
    OvVPFormatter *fresh = [[[made alloc] init] autorelease];
    EXPECT_EQ([restored maximum], nil);
    EXPECT_EQ([restored minimum], nil);
    EXPECT_FALSE([restored countAsByte]);
    for (unichar unit : {u'1', u'a', u':', u'あ'}) {
      EXPECT_EQ([[restored validCharacterSet] characterIsMember:unit],
                [[fresh validCharacterSet] characterIsMember:unit]);
      EXPECT_EQ([[restored invalidCharacterSet] characterIsMember:unit],
                [[fresh invalidCharacterSet] characterIsMember:unit]);
    }
    if (made == [OvVPPathFormatter class]) EXPECT_TRUE([object allowPeriodAtTheHead]);
  }
};

TEST_F(FormatterArchive, ACopyHasTheSettings) {
  OvVPPathFormatter *original = settled();
  OvVPPathFormatter *copy = [original copy];
  EXPECT_NE(copy, original);
  EXPECT_EQ([copy class], [OvVPPathFormatter class]);
  EXPECT_FALSE([copy allowPeriodAtTheHead]);
  EXPECT_EQ([copy minimum], [original minimum]);
  EXPECT_EQ([copy maximum], [original maximum]);
  EXPECT_TRUE([copy countAsByte]);
  EXPECT_EQ([copy validCharacterSet], [original validCharacterSet]);
  EXPECT_EQ([copy invalidCharacterSet], [original invalidCharacterSet]);
  // And keeps them for itself.
  [original setMaximum:nil];
  EXPECT_EQ([[copy maximum] intValue], 12);
  [copy release];
}

TEST_F(FormatterArchive, ACopyOfOneWithoutSetsHasNone) {
  OvVPNumberFormatter *original = [[[OvVPNumberFormatter alloc] init] autorelease];
  [original setValidCharacterSet:nil];
  OvVPNumberFormatter *copy = [[original copy] autorelease];
  EXPECT_EQ([copy validCharacterSet], nil);
  EXPECT_EQ([copy invalidCharacterSet], nil);
}

TEST_F(FormatterArchive, CopyAndOriginalOwnTheirAttributes) {
  const int before = [OvTestDeathCounter deaths];
  @autoreleasepool {
    OvVPFormatter *original = [[OvVPFormatter alloc] init];
    id minimum = [[OvTestDeathCounter alloc] init];
    id maximum = [[OvTestDeathCounter alloc] init];
    [original setMinimum:minimum];
    [original setMaximum:maximum];
    [minimum release];
    [maximum release];
    OvVPFormatter *copy = [original copy];
    [original release];
    EXPECT_EQ([OvTestDeathCounter deaths], before);
    EXPECT_EQ([copy minimum], minimum);
    [copy release];
  }
  EXPECT_EQ([OvTestDeathCounter deaths], before + 2);
}

TEST_F(FormatterArchive, ACellIsCopiedWithItsFormatter) {
  NSTextFieldCell *cell = [[NSTextFieldCell alloc] initTextCell:@""];
  [cell setFormatter:settled()];
  NSTextFieldCell *copy = [cell copy];
  [cell release];
  drainPool();
  EXPECT_FALSE([[copy formatter] allowPeriodAtTheHead]);
  EXPECT_EQ([[[copy formatter] maximum] intValue], 12);
  [copy release];
}

TEST_F(FormatterArchive, WhatWasArchivedIsAsNew) {
  for (Class made : {[OvVPFormatter class],
                     [OvVPNumberFormatter class],
                     [OvVPAlphabetFormatter class],
                     [OvVPPathFormatter class],
                     [OvVPSjisFormatter class]}) {
    OvVPFormatter *original = [[[made alloc] init] autorelease];
    [original setMaximum:[NSDecimalNumber one]];
    [original setMinimum:[NSDecimalNumber one]];
    [original setCountAsByte:YES];
    if (made == [OvVPPathFormatter class]) {
      [(OvVPPathFormatter *)original setAllowPeriodAtTheHead:NO];
    }
    NSData *keyed = [NSKeyedArchiver archivedDataWithRootObject:original];
    expectNew([NSKeyedUnarchiver unarchiveObjectWithData:keyed], made);
    NSData *sequential = [NSArchiver archivedDataWithRootObject:original];
    expectNew([NSUnarchiver unarchiveObjectWithData:sequential], made);
  }
}

TEST_F(FormatterArchive, AFieldKeepsTheClassOfItsFormatter) {
  NSTextField *field = [[[NSTextField alloc] initWithFrame:NSMakeRect(0, 0, 90, 22)] autorelease];
  [[field cell] setFormatter:[[[OvVPNumberFormatter alloc] init] autorelease]];
  [field setStringValue:@"12"];
  NSData *keyed = [NSKeyedArchiver archivedDataWithRootObject:field];
  NSTextField *restored = [NSKeyedUnarchiver unarchiveObjectWithData:keyed];
  expectNew([[restored cell] formatter], [OvVPNumberFormatter class]);
  NSData *sequential = [NSArchiver archivedDataWithRootObject:field];
  restored = [NSUnarchiver unarchiveObjectWithData:sequential];
  expectNew([[restored cell] formatter], [OvVPNumberFormatter class]);
  EXPECT_TRUE([[restored stringValue] isEqual:@"12"]);
}

}  // namespace
