#import <OvFoundation/OvFoundation.h>

#include <gtest/gtest.h>

#include <vector>

// Counts itself, to see what is let go.
@interface CountedDate : NSDate {
  NSTimeInterval _time;
}
@end

static int countedDates = 0;

@implementation CountedDate
// The inherited designated initialiser is abstract, and -init calls it.
- (id)initWithTimeIntervalSinceReferenceDate:(NSTimeInterval)time {
  _time = time;
  ++countedDates;
  return self;
}
- (void)dealloc {
  --countedDates;
  [super dealloc];
}
- (NSTimeInterval)timeIntervalSinceReferenceDate {
  return _time;
}
- (id)copyWithZone:(NSZone *)zone {
  return [[CountedDate allocWithZone:zone] initWithTimeIntervalSinceReferenceDate:_time];
}
@end

// A dictionary that supports no more than it must.
@interface BareDictionary : NSDictionary
@end

@implementation BareDictionary
- (id)initWithObjects:(const id[])objects
              forKeys:(const id<NSCopying>[])keys
                count:(NSUInteger)count {
  return [super init];
}
- (NSUInteger)count {
  return 1;
}
- (id)objectForKey:(id)key {
  return [key isEqual:@"only"] ? @"value" : nil;
}
- (NSEnumerator *)keyEnumerator {
  return [@[ @"only" ] objectEnumerator];
}
@end

namespace {

class PropertyListCopy : public testing::Test {
 protected:
  NSAutoreleasePool *pool = [[NSAutoreleasePool alloc] init];
  ~PropertyListCopy() override { [pool release]; }

  id copy(id list, NSPropertyListMutabilityOptions option = NSPropertyListImmutable) {
    NSString *error = @"not set";
    id result = OvPropertyListDeepCopy(list, option, &error);
    EXPECT_EQ(result == nil, error != nil);
    problem = [error autorelease];
    return result;
  }

  NSString *problem = nil;
};

NSDictionary *sample() {
  return @{
    @"text" : [NSMutableString stringWithString:@"a"],
    @"number" : @1.5,
    @"yes" : @(YES),
    @"date" : [NSDate dateWithTimeIntervalSinceReferenceDate:0.25],
    @"data" : [NSMutableData dataWithBytes:"\0x" length:2],
    @"list" : [NSMutableArray arrayWithObject:[NSMutableDictionary dictionary]],
    @"" : @{},
  };
}

TEST_F(PropertyListCopy, IsEqualWhateverCanChange) {
  for (int option = 0; option <= 2; ++option) {
    EXPECT_TRUE([copy(sample(), option) isEqual:sample()]);
  }
}

TEST_F(PropertyListCopy, ImmutableThroughout) {
  NSDictionary *list = copy(sample());
  EXPECT_FALSE([list isKindOfClass:[NSMutableDictionary class]]);
  EXPECT_FALSE([[list objectForKey:@"text"] isKindOfClass:[NSMutableString class]]);
  EXPECT_FALSE([[list objectForKey:@"data"] isKindOfClass:[NSMutableData class]]);
  NSArray *inner = [list objectForKey:@"list"];
  EXPECT_FALSE([inner isKindOfClass:[NSMutableArray class]]);
  EXPECT_FALSE([[inner objectAtIndex:0] isKindOfClass:[NSMutableDictionary class]]);
}

TEST_F(PropertyListCopy, MutableContainersHoldImmutableLeaves) {
  NSDictionary *list = copy(sample(), NSPropertyListMutableContainers);
  EXPECT_TRUE([list isKindOfClass:[NSMutableDictionary class]]);
  EXPECT_TRUE([[list objectForKey:@""] isKindOfClass:[NSMutableDictionary class]]);
  EXPECT_FALSE([[list objectForKey:@"text"] isKindOfClass:[NSMutableString class]]);
  EXPECT_FALSE([[list objectForKey:@"data"] isKindOfClass:[NSMutableData class]]);
  NSMutableArray *inner = [list objectForKey:@"list"];
  EXPECT_TRUE([inner isKindOfClass:[NSMutableArray class]]);
  EXPECT_TRUE([[inner objectAtIndex:0] isKindOfClass:[NSMutableDictionary class]]);
}

TEST_F(PropertyListCopy, MutableLeavesToo) {
  NSDictionary *list = copy(sample(), NSPropertyListMutableContainersAndLeaves);
  EXPECT_TRUE([[list objectForKey:@"text"] isKindOfClass:[NSMutableString class]]);
  EXPECT_TRUE([[list objectForKey:@"data"] isKindOfClass:[NSMutableData class]]);
}

TEST_F(PropertyListCopy, DoesNotFollowTheOriginal) {
  NSMutableString *text = [NSMutableString stringWithString:@"before"];
  NSMutableArray *array = [NSMutableArray arrayWithObject:text];
  NSArray *immutable = copy(array);
  NSMutableArray *changeable = copy(array, NSPropertyListMutableContainers);
  [text setString:@"after"];
  [array addObject:@1];
  EXPECT_TRUE([immutable isEqual:@[ @"before" ]]);
  [changeable addObject:@2];
  EXPECT_EQ(2u, [array count]);
  EXPECT_TRUE([changeable isEqual:(@[ @"before", @2 ])]);
}

TEST_F(PropertyListCopy, LeafAtTheTopWillDo) {
  EXPECT_TRUE([copy(@"x") isEqual:@"x"]);
  EXPECT_TRUE([copy(@3) isEqual:@3]);
}

TEST_F(PropertyListCopy, TakesWhatASubclassMustOffer) {
  BareDictionary *bare = [[[BareDictionary alloc] init] autorelease];
  EXPECT_TRUE([copy(bare) isEqual:@{@"only" : @"value"}]);
}

TEST_F(PropertyListCopy, RefusesOtherObjects) {
  for (id other : std::vector<id>{nil, [NSNull null], [NSObject class],
                                  [NSURL URLWithString:@"http://a"], [NSSet set]}) {
    EXPECT_TRUE(copy(other) == nil);
    EXPECT_TRUE(problem != nil);
  }
  EXPECT_TRUE(copy(@{@"a" : @[ @1, [NSNull null] ]}) == nil);
  EXPECT_TRUE([problem isEqual:@"NSNull is not an object of a property list."])
      << [problem UTF8String];
  EXPECT_TRUE(copy(@{@1 : @"a"}) == nil);
  EXPECT_TRUE([problem hasSuffix:@"is not a key of a property list."]) << [problem UTF8String];
}

TEST_F(PropertyListCopy, ErrorNeedNotBeAskedFor) {
  EXPECT_TRUE(OvPropertyListDeepCopy([NSNull null], NSPropertyListImmutable, NULL) == nil);
  EXPECT_TRUE(OvPropertyListDeepCopy(@1, NSPropertyListImmutable, NULL) != nil);
}

id nested(NSUInteger depth) {
  id list = @"x";
  for (NSUInteger i = 0; i < depth; ++i) list = i % 2 ? (id) @[ list ] : (id) @{@"k" : list};
  return list;
}

TEST_F(PropertyListCopy, StopsAtTheDeepestNesting) {
  EXPECT_TRUE(
      [copy(nested(OvPropertyListMaximumDepth)) isEqual:nested(OvPropertyListMaximumDepth)]);
  EXPECT_TRUE(copy(nested(OvPropertyListMaximumDepth + 1)) == nil);
  EXPECT_TRUE(copy(nested(10000)) == nil);
}

TEST_F(PropertyListCopy, RefusesAListInItself) {
  NSMutableArray *array = [NSMutableArray array];
  NSMutableDictionary *dictionary = [NSMutableDictionary dictionaryWithObject:array forKey:@"a"];
  [array addObject:dictionary];
  EXPECT_TRUE(copy(array) == nil);
  EXPECT_TRUE(copy(dictionary) == nil);
  [array removeAllObjects];
}

TEST_F(PropertyListCopy, RefusesAListThatMultiplies) {
  id list = @"x";
  for (int i = 0; i < 60; ++i) list = @[ list, list ];
  EXPECT_TRUE(copy(list) == nil);
  EXPECT_TRUE([problem isEqual:@"The property list holds too many objects."]);
}

TEST_F(PropertyListCopy, KeepsNothingOfWhatFails) {
  countedDates = 0;
  @autoreleasepool {
    CountedDate *date =
        [[[CountedDate alloc] initWithTimeIntervalSinceReferenceDate:1] autorelease];
    NSArray *list = @[ date, @{@"a" : date}, @[ date ], [NSNull null] ];
    EXPECT_TRUE(copy(list) == nil);
    EXPECT_EQ(1, countedDates);
    copy(@[ date, @{@"a" : date} ]);
    EXPECT_EQ(3, countedDates);
  }
  EXPECT_EQ(0, countedDates);
}

}  // namespace
