// The settings of the formatters and what they do with an edit.

#import <OvAppKit/OvAppKit.h>
#import <objc/runtime.h>

#import "LiveTest.h"
#import "StringKinds.h"

#include <optional>

using namespace ov::test;

namespace {

NSDecimalNumber *number(NSString *digits) {
  return [NSDecimalNumber decimalNumberWithString:digits];
}

// What a formatter made of an edit.
struct Outcome {
  bool accepted;
  std::u16string text;
  NSRange selection;
  int notifications;
  int beeps;

  bool operator==(const Outcome &) const = default;
};

void PrintTo(const Outcome &outcome, std::ostream *out) {
  *out << (outcome.accepted ? "accepted " : "refused ") << ::testing::PrintToString(outcome.text)
       << " selection " << outcome.selection.location << "+" << outcome.selection.length << ", "
       << outcome.notifications << " notifications, " << outcome.beeps << " beeps";
}

constexpr NSRange kProposed = {77, 3};

Outcome edit(OvVPFormatter *formatter, NSString *text, NSUInteger caret) {
  NotificationCount full(OvVPFormatterBufferIsFull, formatter);
  const int beeps = beepCount();
  NSString *const untouched = @"untouched";
  NSString *error = untouched;
  NSString *original = @"original";
  NSRange selection = kProposed;
  NSString *proposed = text;
  const bool accepted = [formatter isPartialStringValid:&proposed
                                  proposedSelectedRange:&selection
                                         originalString:original
                                  originalSelectedRange:NSMakeRange(caret, 1)
                                       errorDescription:&error];
  EXPECT_EQ(error, untouched);
  if (accepted) EXPECT_EQ(proposed, text) << "an accepted text is left alone";
  if (full.count() > 0) {
    EXPECT_EQ(full.lastObject(), formatter);
    EXPECT_EQ(full.lastUserInfo(), nil);
  }
  return {accepted, unitsOf(proposed), selection, full.count(), beepCount() - beeps};
}

Outcome accepted(std::u16string text, int notifications = 0) {
  return {true, std::move(text), kProposed, notifications, 0};
}

Outcome refused(std::u16string text, NSUInteger caret, int notifications = 0) {
  return {false, std::move(text), NSMakeRange(caret, 0), notifications, 1};
}

struct EditRow {
  NSString *formatter;
  NSString *maximum;
  bool asBytes;
  std::u16string text;
  NSUInteger caret;
  Outcome outcome;
  bool allowPeriod = true;
};

void PrintTo(const EditRow &row, std::ostream *out) {
  *out << [row.formatter UTF8String] << ", maximum "
       << (row.maximum != nil ? [row.maximum UTF8String] : "none")
       << (row.asBytes ? " bytes, " : ", ") << ::testing::PrintToString(row.text);
}

class FormatterEdit : public LiveTest, public ::testing::WithParamInterface<EditRow> {};

TEST_P(FormatterEdit, IsAcceptedOrMended) {
  const EditRow &row = GetParam();
  OvVPFormatter *formatter = [[[NSClassFromString(row.formatter) alloc] init] autorelease];
  if (row.maximum != nil) [formatter setMaximum:number(row.maximum)];
  [formatter setCountAsByte:row.asBytes];
  if (!row.allowPeriod) [(OvVPPathFormatter *)formatter setAllowPeriodAtTheHead:NO];
  for (StringKind kind : stringKinds()) {
    NSString *text = makeString(row.text, kind);
    if (text == nil) continue;
    SCOPED_TRACE(nameOf(kind));
    EXPECT_EQ(edit(formatter, text, row.caret), row.outcome);
  }
}

NSString *const kBase = @"OvVPFormatter";
NSString *const kNumber = @"OvVPNumberFormatter";
NSString *const kAlphabet = @"OvVPAlphabetFormatter";
NSString *const kPath = @"OvVPPathFormatter";
NSString *const kSjis = @"OvVPSjisFormatter";
NSString *const kMany = @"99999999999999999999999";

const EditRow kEditRows[] = {
    // No sets and no maximum: everything goes.
    {kBase, nil, false, u"any: thing あ", 0, accepted(u"any: thing あ")},
    {kBase, nil, false, u"", 0, accepted(u"")},
    {kBase, @"4", false, u"abc", 0, accepted(u"abc")},
    {kBase, @"4", false, u"abcd", 3, accepted(u"abcd", 1)},
    {kBase, @"4", false, u"abcde", 4, refused(u"abcd", 4)},
    {kBase, @"4", false, u"abcde", 2, refused(u"abcd", 2)},
    {kBase, @"4", false, u"abcdefgh", 7, refused(u"abcd", 4)},
    {kBase, @"4", false, u"abcde", NSNotFound, refused(u"abcd", 4)},
    {kBase, @"4", true, u"a", 0, accepted(u"a")},
    {kBase, @"4", true, u"ab", 0, accepted(u"ab", 1)},
    {kBase, @"4", true, u"abc", 9, refused(u"ab", 2)},
    {kBase, @"7", true, u"abc", 0, accepted(u"abc")},
    {kBase, @"7", true, u"abcd", 9, refused(u"abc", 3)},
    {kBase, @"3.5", false, u"abcd", 9, refused(u"abc", 3)},
    {kBase, @"0.3", false, u"a", 9, refused(u"", 0)},
    {kBase, @"0.3", false, u"", 9, accepted(u"")},
    {kBase, @"0", false, u"abcd", 0, accepted(u"abcd")},
    {kBase, @"-4", false, u"abcdef", 0, accepted(u"abcdef")},
    {kBase, @"NaN", false, u"abcd", 0, accepted(u"abcd")},
    {kBase, kMany, false, u"abcd", 0, accepted(u"abcd")},
    {kBase, kMany, true, u"abcd", 0, accepted(u"abcd")},
    // 2 to the power of 32, and 4 more.
    {kBase, @"4294967300", false, u"abcde", 0, accepted(u"abcde")},
    {kBase, @"2", false, u"a😀", 9, refused(u"a\xD83D", 2)},
    {kBase, @"3", false, u"\xFEFF\xFFFE\xFEFFz", 9, refused(u"\xFEFF\xFFFE\xFEFF", 3)},

    {kNumber, @"4", false, u"1234", 3, accepted(u"1234", 1)},
    {kNumber, @"4", false, u"12345", 4, refused(u"1234", 4)},
    {kNumber, nil, false, u"1a2b3", 0, refused(u"123", 0)},
    {kNumber, nil, false, u"1a2b3", 9, refused(u"123", 3)},
    {kNumber, @"0", false, u"1a", 1, refused(u"1", 1)},
    {kNumber, @"-1", false, u"1a", 1, refused(u"1", 1)},
    // Exactly full after the letter is gone: announced, and refused all the same.
    {kNumber, @"4", false, u"12a34", 2, refused(u"1234", 2, 1)},
    {kNumber, @"4", false, u"12a345", 2, refused(u"1234", 2)},
    {kNumber, nil, false, u"abc", 3, refused(u"", 0)},
    {kNumber, nil, false, u"", 0, accepted(u"")},
    // The ASCII digits only.
    {kNumber, nil, false, u"1２\u0663", 1, refused(u"1", 1)},
    {kNumber, nil, false, u"1 2\n", 1, refused(u"12", 1)},
    {kNumber, nil, false, u"1😀2", 1, refused(u"12", 1)},
    {kNumber, nil, false, u"1\xD83D\u0301\uFEFF2", 1, refused(u"12", 1)},
    {kNumber, nil, false, std::u16string(u"1\0002", 3), 1, refused(u"12", 1)},

    {kAlphabet, nil, false, u"ABCXYZabcxyz", 0, accepted(u"ABCXYZabcxyz")},
    {kAlphabet, nil, false, u"a1é b", 1, refused(u"ab", 1)},
    {kAlphabet, @"2", false, u"ab", 1, accepted(u"ab", 1)},

    {kPath, nil, false, u"a/b.c", 1, accepted(u"a/b.c")},
    {kPath, nil, false, u"a:b::c", 2, refused(u"abc", 2)},
    {kPath, nil, false, u":\u0301", 2, refused(u"\u0301", 1)},
    {kPath, nil, false, u".a", 1, accepted(u".a")},
    {kPath, @"2", false, u"a:b", 1, refused(u"ab", 1, 1)},
    {kPath, nil, false, u".", 0, refused(u"", 0), false},
    {kPath, nil, false, u"..x", 3, refused(u".x", 0), false},
    // The rest is not looked at in the same edit.
    {kPath, @"1", false, u".:ab", 3, refused(u":ab", 0), false},
    {kPath, nil, false, u".\xDE00", 3, refused(u"\xDE00", 0), false},
    {kPath, nil, false, u".\xFEFFz", 3, refused(u"\xFEFFz", 0), false},
    {kPath, nil, false, u"a.", 1, accepted(u"a."), false},
    {kPath, nil, false, u"", 1, accepted(u""), false},
    {kPath, @"3", false, u"a:bcd", 9, refused(u"abc", 3), false},

    {kSjis, nil, false, u"aあいう", 0, accepted(u"aあいう")},
    {kSjis, @"0", false, u"aあいう", 0, accepted(u"aあいう")},
    {kSjis, @"-2", false, u"aあいう", 0, accepted(u"aあいう")},
    {kSjis, @"NaN", false, u"aあいう", 0, accepted(u"aあいう")},
    {kSjis, kMany, false, u"aあいう", 0, accepted(u"aあいう")},
    // Full, and never announced.
    {kSjis, @"2", false, u"あ", 0, accepted(u"あ")},
    {kSjis, @"2", false, u"ab", 0, accepted(u"ab")},
    {kSjis, @"2", false, u"aあ", 1, refused(u"a", 1)},
    {kSjis, @"2", false, u"aあ", 0, refused(u"a", 0)},
    {kSjis, @"4", false, u"aあいう", 4, refused(u"aあ", 2)},
    {kSjis, @"5", false, u"aあいう", 4, refused(u"aあい", 3)},
    {kSjis, @"4", true, u"aあいう", 4, refused(u"aあ", 2)},
    {kSjis, @"3.5", false, u"abcd", 4, refused(u"abc", 3)},
    {kSjis, @"1", false, u"あ", 4, refused(u"", 0)},
    {kSjis, @"3", false, u"😀😀", 4, refused(u"😀\xD83D", 3)},
    {kSjis, @"4", false, u"①～", 4, accepted(u"①～")},
    {kSjis, @"9", false, u"", 4, accepted(u"")},
};

INSTANTIATE_TEST_SUITE_P(Table, FormatterEdit, ::testing::ValuesIn(kEditRows));

class Formatter : public LiveTest {};

TEST_F(Formatter, BeginsWithoutSettings) {
  OvVPFormatter *formatter = [[[OvVPFormatter alloc] init] autorelease];
  EXPECT_EQ([formatter validCharacterSet], nil);
  EXPECT_EQ([formatter invalidCharacterSet], nil);
  EXPECT_EQ([formatter minimum], nil);
  EXPECT_EQ([formatter maximum], nil);
  EXPECT_FALSE([formatter countAsByte]);
  OvVPSjisFormatter *sjis = [[[OvVPSjisFormatter alloc] init] autorelease];
  EXPECT_EQ([sjis validCharacterSet], nil);
  EXPECT_EQ([sjis invalidCharacterSet], nil);
  EXPECT_TRUE([[[[OvVPPathFormatter alloc] init] autorelease] allowPeriodAtTheHead]);
  EXPECT_EQ([OvVPFormatter superclass], [NSFormatter class]);
  for (NSString *name in @[ kNumber, kAlphabet, kPath, kSjis ]) {
    EXPECT_EQ([NSClassFromString(name) superclass], [OvVPFormatter class]);
  }
}

TEST_F(Formatter, EachKindHasItsSets) {
  OvVPFormatter *digits = [[[OvVPNumberFormatter alloc] init] autorelease];
  OvVPFormatter *letters = [[[OvVPAlphabetFormatter alloc] init] autorelease];
  OvVPFormatter *path = [[[OvVPPathFormatter alloc] init] autorelease];
  for (unsigned u = 0; u <= 0xFFFF; ++u) {
    const unichar unit = static_cast<unichar>(u);
    const bool digit = u >= '0' && u <= '9';
    const bool letter = (u >= 'A' && u <= 'Z') || (u >= 'a' && u <= 'z');
    ASSERT_EQ([[digits validCharacterSet] characterIsMember:unit], digit) << u;
    ASSERT_EQ([[digits invalidCharacterSet] characterIsMember:unit], !digit) << u;
    ASSERT_EQ([[letters validCharacterSet] characterIsMember:unit], letter) << u;
    ASSERT_EQ([[letters invalidCharacterSet] characterIsMember:unit], !letter) << u;
    ASSERT_EQ([[path validCharacterSet] characterIsMember:unit], u != ':') << u;
    ASSERT_EQ([[path invalidCharacterSet] characterIsMember:unit], u == ':') << u;
  }
}

TEST_F(Formatter, TheInvalidSetFollowsTheValidOne) {
  OvVPFormatter *formatter = [[[OvVPFormatter alloc] init] autorelease];
  NSCharacterSet *vowels = [NSCharacterSet characterSetWithCharactersInString:@"aeiou"];
  NSCharacterSet *x = [NSCharacterSet characterSetWithCharactersInString:@"x"];
  [formatter setValidCharacterSet:vowels];
  EXPECT_EQ([formatter validCharacterSet], vowels);
  EXPECT_FALSE([[formatter invalidCharacterSet] characterIsMember:'a']);
  EXPECT_TRUE([[formatter invalidCharacterSet] characterIsMember:'b']);
  EXPECT_EQ(edit(formatter, @"abe", 1), refused(u"ae", 1));
  // The other way round nothing follows, …
  [formatter setInvalidCharacterSet:x];
  EXPECT_EQ([formatter validCharacterSet], vowels);
  EXPECT_EQ(edit(formatter, @"abx", 1), refused(u"ab", 1));
  // … and the set that is there already is not set again.
  [formatter setValidCharacterSet:vowels];
  EXPECT_EQ([formatter invalidCharacterSet], x);
  [formatter setValidCharacterSet:nil];
  EXPECT_EQ([formatter validCharacterSet], nil);
  EXPECT_EQ([formatter invalidCharacterSet], nil);
  EXPECT_EQ(edit(formatter, @"abx", 1), accepted(u"abx"));
}

TEST_F(Formatter, RetainsItsAttributesAndLeavesTheSameOnesAlone) {
  const int before = [OvTestDeathCounter deaths];
  OvVPFormatter *formatter = [[OvVPFormatter alloc] init];
  id objects[3];
  for (id &object : objects) object = [[OvTestDeathCounter alloc] init];
  for (int round = 0; round < 2; ++round) {
    [formatter setInvalidCharacterSet:objects[0]];
    [formatter setMinimum:objects[1]];
    [formatter setMaximum:objects[2]];
  }
  for (id object : objects) {
    EXPECT_EQ([object retainCount], 2U);
    [object release];
  }
  EXPECT_EQ([formatter minimum], objects[1]);
  EXPECT_EQ([formatter maximum], objects[2]);
  [formatter setMinimum:nil];
  EXPECT_EQ([OvTestDeathCounter deaths], before + 1);
  [formatter release];
  EXPECT_EQ([OvTestDeathCounter deaths], before + 3);
}

TEST_F(Formatter, ReleasesItsValidSet) {
  OvVPFormatter *formatter = [[OvVPFormatter alloc] init];
  NSCharacterSet *set = [[NSCharacterSet characterSetWithCharactersInString:@"q"] retain];
  const NSUInteger before = [set retainCount];
  [formatter setValidCharacterSet:set];
  EXPECT_EQ([set retainCount], before + 1);
  [formatter release];
  drainPool();
  EXPECT_LE([set retainCount], before);
  [set release];
}

TEST_F(Formatter, TheValueIsTheString) {
  OvVPFormatter *formatter = [[[OvVPNumberFormatter alloc] init] autorelease];
  NSMutableString *text = [NSMutableString stringWithString:@"abc"];
  EXPECT_EQ([formatter stringForObjectValue:text], text);
  EXPECT_EQ([formatter stringForObjectValue:nil], nil);
  EXPECT_EQ([formatter stringForObjectValue:[NSNumber numberWithInt:3]], nil);
  EXPECT_EQ([formatter stringForObjectValue:[NSDate date]], nil);
  EXPECT_TRUE([formatter isValidObject:nil]);
  EXPECT_TRUE([formatter isValidObject:[NSNumber numberWithInt:3]]);

  NSString *const untouched = @"untouched";
  NSString *error = untouched;
  id value = nil;
  EXPECT_TRUE([formatter getObjectValue:&value forString:text errorDescription:&error]);
  EXPECT_TRUE([value isEqual:@"abc"]);
  [text setString:@"changed"];
  EXPECT_TRUE([value isEqual:@"abc"]) << "it is a string of its own";
  EXPECT_TRUE([formatter getObjectValue:&value forString:nil errorDescription:nullptr]);
  EXPECT_TRUE([value isEqual:@""]);
  EXPECT_TRUE([formatter getObjectValue:nullptr forString:@"x" errorDescription:&error]);
  EXPECT_EQ(error, untouched);
}

TEST_F(Formatter, NoPointersAndNoTextAreTolerated) {
  for (NSString *name in @[ kBase, kNumber, kAlphabet, kPath, kSjis ]) {
    OvVPFormatter *formatter = [[[NSClassFromString(name) alloc] init] autorelease];
    [formatter setMaximum:number(@"2")];
    if ([name isEqual:kPath]) [(OvVPPathFormatter *)formatter setAllowPeriodAtTheHead:NO];
    NSString *none = nil;
    NSRange selection = kProposed;
    const int beeps = beepCount();
    for (NSString **proposed : {static_cast<NSString **>(nullptr), &none}) {
      EXPECT_TRUE([formatter isPartialStringValid:proposed
                            proposedSelectedRange:&selection
                                   originalString:nil
                            originalSelectedRange:NSMakeRange(0, 0)
                                 errorDescription:nullptr]);
    }
    EXPECT_EQ(selection, kProposed);
    EXPECT_EQ(beepCount(), beeps);
    for (NSString *text in @[ @"1234", @".:ab" ]) {
      NSString *proposed = text;
      EXPECT_FALSE([formatter isPartialStringValid:&proposed
                             proposedSelectedRange:nullptr
                                    originalString:nil
                             originalSelectedRange:NSMakeRange(0, 0)
                                  errorDescription:nullptr]);
      EXPECT_LT([proposed length], 4U);
    }
  }
}

TEST_F(Formatter, TheNotificationIsItsOwnNameAndComesBeforeTheCut) {
  EXPECT_TRUE([OvVPFormatterBufferIsFull isEqual:@"OvVPFormatterBufferIsFull"]);
  // Every edit that leaves the text full says so again.
  OvVPFormatter *formatter = [[[OvVPFormatter alloc] init] autorelease];
  [formatter setMaximum:number(@"2")];
  NotificationCount full(OvVPFormatterBufferIsFull, formatter);
  for (NSString *text in @[ @"ab", @"cd", @"abc", @"a" ]) edit(formatter, text, 0);
  EXPECT_EQ(full.count(), 2);
}

// Else the platform would filter, and announce, each edit twice.
TEST_F(Formatter, LeavesTheShortFormToThePlatform) {
  const SEL shortForm = @selector(isPartialStringValid:newEditingString:errorDescription:);
  for (NSString *name in @[ kBase, kNumber, kAlphabet, kPath, kSjis ]) {
    EXPECT_EQ(class_getMethodImplementation(NSClassFromString(name), shortForm),
              class_getMethodImplementation([NSFormatter class], shortForm));
  }
}

}  // namespace
