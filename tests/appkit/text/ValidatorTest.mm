// The settings and the length rule.

#import <OvAppKit/OvAppKit.h>

#import "LiveTest.h"
#import "StringKinds.h"

using namespace ov::test;

// Remembers what it was told, in order.
@interface OvTestToldValidator : OvTextValidator {
 @public
  NSMutableArray *told;
}
@end

@implementation OvTestToldValidator
- (id)init {
  self = [super init];
  told = [[NSMutableArray alloc] init];
  // Set otherwise, so that being told the default shows.
  _maxLength = 7;
  _countAsByte = _moveNextKeyView = _allowToInputOverLength = YES;
  return self;
}
- (void)dealloc {
  [told release];
  [super dealloc];
}
- (void)setMaxLength:(uint32_t)length {
  [told addObject:@"maxLength"];
  [super setMaxLength:length];
}
- (void)setCountAsByte:(BOOL)flag {
  [told addObject:@"countAsByte"];
  [super setCountAsByte:flag];
}
- (void)setMoveNextKeyView:(BOOL)flag {
  [told addObject:@"moveNextKeyView"];
  [super setMoveNextKeyView:flag];
}
- (void)setAllowToInputOverLength:(BOOL)flag {
  [told addObject:@"allowToInputOverLength"];
  [super setAllowToInputOverLength:flag];
}
@end

// A rule of a host: everything has this verdict.
@interface OvTestVerdictValidator : OvTextValidator {
 @public
  int32_t verdict;
}
@end

@implementation OvTestVerdictValidator
- (int32_t)validateString:(NSString *)string {
  (void)string;
  return verdict;
}
@end

// A string that only says how long it is.
@interface OvTestLongString : NSString {
 @public
  NSUInteger length;
}
@end

@implementation OvTestLongString
- (NSUInteger)length {
  return length;
}
- (unichar)characterAtIndex:(NSUInteger)index {
  (void)index;
  return 'x';
}
@end

namespace {

class Validator : public LiveTest {};

TEST_F(Validator, IsMadeOfTheReceiversClassWithoutLimit) {
  for (Class made : {[OvTextValidator class],
                     [OvNumberTextValidator class],
                     [OvAlphabetTextValidator class],
                     [OvPathTextValidator class],
                     [OvSjisTextValidator class]}) {
    OvTextValidator *validator = [made textValidator];
    EXPECT_EQ([validator class], made);
    EXPECT_EQ([validator maxLength], 0U);
    EXPECT_FALSE([validator countAsByte]);
    EXPECT_FALSE([validator moveNextKeyView]);
    EXPECT_FALSE([validator allowToInputOverLength]);
    EXPECT_EQ([validator defaultTextColor], nil);
    EXPECT_EQ([validator altTextColor], nil);
    EXPECT_EQ([made superclass],
              made == [OvTextValidator class] ? [NSObject class] : [OvTextValidator class]);
  }
}

TEST_F(Validator, IsSetUpThroughItsSettersInTheirOrder) {
  OvTestToldValidator *validator = [OvTestToldValidator textValidator];
  NSArray *order = @[ @"maxLength", @"countAsByte", @"moveNextKeyView", @"allowToInputOverLength" ];
  EXPECT_TRUE([validator->told isEqual:order]);
  EXPECT_EQ([validator maxLength], 0U);
  EXPECT_FALSE([validator countAsByte] || [validator moveNextKeyView] ||
               [validator allowToInputOverLength]);
}

TEST_F(Validator, DiesWithThePoolThatItWasMadeInAndWithItsColours) {
  const int before = [OvTestDeathCounter deaths];
  @autoreleasepool {
    OvTextValidator *validator = [OvTextValidator textValidator];
    NSColor *colour = (NSColor *)[[OvTestDeathCounter alloc] init];
    NSColor *other = (NSColor *)[[OvTestDeathCounter alloc] init];
    [validator setDefaultTextColor:colour];
    [validator setAltTextColor:other];
    [colour release];
    [other release];
    EXPECT_EQ([OvTestDeathCounter deaths], before);
  }
  EXPECT_EQ([OvTestDeathCounter deaths], before + 2);
}

TEST_F(Validator, KeepsItsSettings) {
  OvTextValidator *validator = [OvTextValidator textValidator];
  [validator setMaxLength:UINT32_MAX];
  [validator setCountAsByte:YES];
  EXPECT_EQ([validator maxLength], UINT32_MAX);
  EXPECT_TRUE([validator countAsByte]);
  EXPECT_FALSE([validator moveNextKeyView]);
  [validator setMoveNextKeyView:YES];
  EXPECT_TRUE([validator moveNextKeyView]);
  EXPECT_FALSE([validator allowToInputOverLength]);
  [validator setAllowToInputOverLength:YES];
  EXPECT_TRUE([validator allowToInputOverLength]);
}

TEST_F(Validator, RetainsAColourAndLeavesTheSameOneAlone) {
  OvTextValidator *validator = [OvTextValidator textValidator];
  const int before = [OvTestDeathCounter deaths];
  NSColor *colour = (NSColor *)[[OvTestDeathCounter alloc] init];
  [validator setDefaultTextColor:colour];
  [validator setAltTextColor:colour];
  EXPECT_EQ([colour retainCount], 3U);
  [validator setDefaultTextColor:colour];
  [validator setAltTextColor:colour];
  EXPECT_EQ([colour retainCount], 3U);
  EXPECT_EQ([validator defaultTextColor], colour);
  EXPECT_EQ([validator altTextColor], colour);
  [colour release];
  [validator setDefaultTextColor:[NSColor redColor]];
  EXPECT_EQ([OvTestDeathCounter deaths], before);
  [validator setAltTextColor:nil];
  EXPECT_EQ([OvTestDeathCounter deaths], before + 1);
  EXPECT_EQ([validator altTextColor], nil);
}

TEST_F(Validator, TheVerdictsHaveTheirNumbers) {
  EXPECT_EQ(OvTextIsValid, 0);
  EXPECT_EQ(OvTextIsFull, 100);
  EXPECT_EQ(OvTextIsTooLong, -1);
  EXPECT_EQ(OvTextIsForbidden, -100);
}

struct LengthRow {
  const char *name;
  uint32_t limit;
  bool asBytes;
  NSUInteger length;
  int verdict;
  NSUInteger kept;
};

void PrintTo(const LengthRow &row, std::ostream *out) { *out << row.name; }

class LengthRule : public LiveTest, public ::testing::WithParamInterface<LengthRow> {};

TEST_P(LengthRule, JudgesAndCuts) {
  const LengthRow &row = GetParam();
  OvTextValidator *validator = [OvTextValidator textValidator];
  [validator setMaxLength:row.limit];
  [validator setCountAsByte:row.asBytes];
  const std::u16string units(row.length, u'あ');
  for (StringKind kind : stringKinds()) {
    NSString *string = makeString(units, kind);
    if (string == nil) continue;
    SCOPED_TRACE(nameOf(kind));
    EXPECT_EQ([validator validateString:string], row.verdict);
    EXPECT_EQ([validator validString:string], row.verdict >= 0);
    NSString *cut = [validator validStringFromInvalidString:string];
    EXPECT_EQ(unitsOf(cut), units.substr(0, row.kept));
    if (row.kept == row.length) EXPECT_EQ(cut, string);
  }
}

const LengthRow kLengthRows[] = {
    {"empty without limit", 0, false, 0, 0, 0},
    {"anything without limit", 0, false, 9, 0, 0},
    {"anything without limit, doubled", 0, true, 9, 0, 0},
    {"empty", 3, false, 0, 0, 0},
    {"below", 3, false, 2, 0, 2},
    {"full", 3, false, 3, 100, 3},
    {"one beyond", 3, false, 4, -1, 3},
    {"far beyond", 3, false, 2000, -1, 3},
    {"below, doubled", 10, true, 4, 0, 4},
    {"full, doubled", 10, true, 5, 100, 5},
    {"beyond, doubled", 10, true, 6, -1, 5},
    {"odd limit, doubled", 5, true, 2, 0, 2},
    {"odd limit, doubled, is never full", 5, true, 3, -1, 2},
    {"limit of one, doubled", 1, true, 1, -1, 0},
    {"largest limit", UINT32_MAX, false, 5, 0, 5},
    {"largest limit, doubled", UINT32_MAX, true, 5, 0, 5},
};

INSTANTIATE_TEST_SUITE_P(Table, LengthRule, ::testing::ValuesIn(kLengthRows));

TEST_F(Validator, NoStringIsAnEmptyOne) {
  OvTextValidator *validator = [OvTextValidator textValidator];
  EXPECT_EQ([validator validateString:nil], 0);
  EXPECT_EQ([validator validStringFromInvalidString:nil], nil);
  [validator setMaxLength:2];
  EXPECT_EQ([validator validateString:nil], 0);
  EXPECT_TRUE([validator validString:nil]);
  EXPECT_EQ([validator validStringFromInvalidString:nil], nil);
}

TEST_F(Validator, LengthsAreComparedIn32Bits) {
  OvTextValidator *validator = [OvTextValidator textValidator];
  OvTestLongString *string = [[[OvTestLongString alloc] init] autorelease];
  [validator setMaxLength:2];
  string->length = 0x7FFFFFFF;
  EXPECT_EQ([validator validateString:string], -1);
  [validator setCountAsByte:YES];
  EXPECT_EQ([validator validateString:string], -1);
  // Doubled, these wrap round to 0 and to 2.
  string->length = 0x80000000U;
  EXPECT_EQ([validator validateString:string], 0);
  string->length = 0x80000001U;
  EXPECT_EQ([validator validateString:string], 100);
}

TEST_F(Validator, TheCharactersThatFitAreTheLimitOrHalfOfIt) {
  OvTextValidator *validator = [OvTextValidator textValidator];
  const struct {
    uint32_t limit, whole, half;
  } rows[] = {{0, 0, 0}, {1, 1, 0}, {5, 5, 2}, {6, 6, 3}, {UINT32_MAX, UINT32_MAX, 0x7FFFFFFF}};
  for (const auto &row : rows) {
    [validator setMaxLength:row.limit];
    [validator setCountAsByte:NO];
    EXPECT_EQ([validator _maxLengthForSubstring], row.whole);
    [validator setCountAsByte:YES];
    EXPECT_EQ([validator _maxLengthForSubstring], row.half);
  }
}

TEST_F(Validator, AsksTheRuleOfItsSubclass) {
  OvTestVerdictValidator *validator = [OvTestVerdictValidator textValidator];
  for (int32_t verdict : {0, 100, 1, -1, -100, INT32_MIN}) {
    validator->verdict = verdict;
    EXPECT_EQ([validator validString:@"x"], verdict >= 0) << verdict;
  }
}

TEST_F(Validator, ACutBetweenTheHalvesOfAPairHasTheLengthOfTheLimit) {
  const std::u16string units = u"a😀😀";
  for (StringKind kind : stringKinds()) {
    NSString *string = makeString(units, kind);
    if (string == nil) continue;
    SCOPED_TRACE(nameOf(kind));
    for (uint32_t limit = 1; limit < units.size(); ++limit) {
      OvTextValidator *validator = [OvTextValidator textValidator];
      [validator setMaxLength:limit];
      NSString *cut = [validator validStringFromInvalidString:string];
      EXPECT_EQ(unitsOf(cut), units.substr(0, limit));
      EXPECT_EQ([validator validateString:cut], 100);
    }
  }
  OvTextValidator *validator = [OvTextValidator textValidator];
  [validator setMaxLength:2];
  EXPECT_EQ([[validator validStringFromInvalidString:@"a😀"] length], 2U) << "a literal";
}

}  // namespace
