#import <OvFoundation/OvFoundation.h>

#include <gtest/gtest.h>

extern "C" BOOL HostInCWorks(void);

namespace {

TEST(HostInC, UsesTheLibrary) {
  @autoreleasepool {
    EXPECT_TRUE(HostInCWorks());
  }
}

class DictionaryDifferences : public testing::Test {
 protected:
  NSAutoreleasePool *pool = [[NSAutoreleasePool alloc] init];
  ~DictionaryDifferences() override { [pool release]; }
};

TEST_F(DictionaryDifferences, AreNewAndChangedEntries) {
  NSDictionary *mine = @{@"same" : @1, @"changed" : @2, @"new" : @[ @"x" ]};
  NSDictionary *other = @{@"same" : @1, @"changed" : @3, @"gone" : @4};
  NSDictionary *expected = @{@"changed" : @2, @"new" : @[ @"x" ]};
  EXPECT_TRUE([[mine differencesFromDictionary:other] isEqual:expected]);
}

TEST_F(DictionaryDifferences, ComparesByEquality) {
  NSDictionary *mine = @{@"a" : [NSMutableString stringWithString:@"x"], @"b" : @[ @1, @{} ]};
  NSDictionary *other = @{@"a" : @"x", @"b" : @[ @1, @{} ]};
  EXPECT_EQ(0u, [[mine differencesFromDictionary:other] count]);
}

TEST_F(DictionaryDifferences, AgainstNothingAreEverything) {
  NSDictionary *mine = @{@"a" : @1};
  EXPECT_TRUE([[mine differencesFromDictionary:nil] isEqual:mine]);
  EXPECT_TRUE([[mine differencesFromDictionary:@{}] isEqual:mine]);
  EXPECT_TRUE([[mine differencesFromDictionary:(NSDictionary *)@"text"] isEqual:mine]);
  EXPECT_EQ(0u, [[@{} differencesFromDictionary:mine] count]);
  EXPECT_EQ(0u, [[mine differencesFromDictionary:mine] count]);
}

TEST_F(DictionaryDifferences, AreAnImmutableDictionaryOfTheirOwn) {
  NSMutableDictionary *mine = [NSMutableDictionary dictionaryWithObject:@1 forKey:@"a"];
  NSDictionary *differences = [mine differencesFromDictionary:nil];
  [mine removeAllObjects];
  EXPECT_EQ(1u, [differences count]);
  EXPECT_FALSE([differences isKindOfClass:[NSMutableDictionary class]]);
}

}  // namespace
