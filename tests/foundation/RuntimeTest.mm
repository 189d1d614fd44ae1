#import <OvFoundation/OvFoundation.h>
#import <objc/runtime.h>

#include <gtest/gtest.h>

// Every test patches classes of its own, since a patch stays.
@interface RuntimeMessages : NSObject
- (int)value;
- (int)other;
- (int)added;
@end

@implementation RuntimeMessages
- (int)value {
  return 0;
}
- (int)other {
  return 0;
}
- (int)added {
  return 0;
}
@end

#define RUNTIME_CLASS(NAME, SUPER) \
  @interface NAME : SUPER          \
  @end

RUNTIME_CLASS(LookupParent, NSObject)
@implementation LookupParent
- (int)value {
  return 1;
}
@end
RUNTIME_CLASS(LookupChild, LookupParent)
@implementation LookupChild
- (int)other {
  return 2;
}
@end

RUNTIME_CLASS(DuplicateParent, NSObject)
@implementation DuplicateParent
- (int)value {
  return 1;
}
@end
RUNTIME_CLASS(DuplicateChild, DuplicateParent)
@implementation DuplicateChild
@end
RUNTIME_CLASS(DuplicateGrandchild, DuplicateChild)
@implementation DuplicateGrandchild
- (int)value {
  return 3;
}
@end

RUNTIME_CLASS(ReplaceParent, NSObject)
@implementation ReplaceParent
- (int)value {
  return 1;
}
- (int)other {
  return 11;
}
@end
RUNTIME_CLASS(ReplaceChild, ReplaceParent)
@implementation ReplaceChild
- (int)other {
  return 12;
}
@end
RUNTIME_CLASS(ReplaceGrandchild, ReplaceChild)
@implementation ReplaceGrandchild
@end
RUNTIME_CLASS(ReplaceSibling, ReplaceParent)
@implementation ReplaceSibling
@end
RUNTIME_CLASS(ReplaceSource, NSObject)
@implementation ReplaceSource
- (int)value {
  return 100;
}
- (int)other {
  return 200;
}
@end
RUNTIME_CLASS(ReplaceSourceChild, ReplaceSource)
@implementation ReplaceSourceChild
@end

RUNTIME_CLASS(WrapParent, NSObject)
@implementation WrapParent
- (int)value {
  return 1;
}
@end
RUNTIME_CLASS(WrapChild, WrapParent)
@implementation WrapChild
@end
RUNTIME_CLASS(WrapSource, RuntimeMessages)
@implementation WrapSource
- (int)value {
  return 10 + [self added];
}
@end

namespace {

int value(Class cls) { return [(RuntimeMessages *)[[[cls alloc] init] autorelease] value]; }
int other(Class cls) { return [(RuntimeMessages *)[[[cls alloc] init] autorelease] other]; }
int added(Class cls) { return [(RuntimeMessages *)[[[cls alloc] init] autorelease] added]; }

class Runtime : public testing::Test {
 protected:
  NSAutoreleasePool *pool = [[NSAutoreleasePool alloc] init];
  ~Runtime() override { [pool release]; }
};

TEST_F(Runtime, FindsTheClassThatImplements) {
  EXPECT_TRUE(HXClassImplementingMethod([LookupParent class], @selector(value)) ==
              [LookupParent class]);
  EXPECT_TRUE(HXClassImplementingMethod([LookupChild class], @selector(value)) ==
              [LookupParent class]);
  EXPECT_TRUE(HXClassImplementingMethod([LookupChild class], @selector(other)) ==
              [LookupChild class]);
  EXPECT_TRUE(HXClassImplementingMethod([LookupParent class], @selector(other)) == Nil);
  EXPECT_TRUE(HXClassImplementingMethod([LookupChild class], @selector(retain)) ==
              [NSObject class]);
}

TEST_F(Runtime, TypesOfASelectorDoNotCount) {
  for (const char *types : {"i16@0:8", "v20@0:8i16", "d16@0:8"}) {
    SEL typed = sel_registerTypedName("value", types);
    EXPECT_TRUE(HXClassImplementingMethod([LookupChild class], typed) == [LookupParent class]);
  }
}

TEST_F(Runtime, NothingIsFoundForNothing) {
  EXPECT_TRUE(HXClassImplementingMethod(Nil, @selector(value)) == Nil);
  EXPECT_TRUE(HXClassImplementingMethod([LookupChild class], NULL) == Nil);
  EXPECT_FALSE(HXDuplicateInstanceMethodWithSelector(Nil, @selector(value), @selector(added)));
  EXPECT_FALSE(HXDuplicateInstanceMethodWithSelector([LookupChild class], NULL, @selector(added)));
  EXPECT_FALSE(HXDuplicateInstanceMethodWithSelector([LookupChild class], @selector(value), NULL));
  EXPECT_FALSE(HXDuplicateInstanceMethodWithSelector([LookupChild class], @selector(added),
                                                     @selector(value)));
  EXPECT_FALSE(HXReplaceMethodImplementationWithSelectorOnClass(
      Nil, @selector(value), [LookupChild class], @selector(value)));
  EXPECT_FALSE(HXReplaceMethodImplementationWithSelectorOnClass(
      [LookupChild class], NULL, [LookupChild class], @selector(value)));
  EXPECT_FALSE(HXReplaceMethodImplementationWithSelectorOnClass(
      [LookupChild class], @selector(value), Nil, @selector(value)));
  EXPECT_FALSE(HXReplaceMethodImplementationWithSelectorOnClass(
      [LookupChild class], @selector(value), [LookupChild class], NULL));
  EXPECT_FALSE(HXReplaceMethodImplementationWithSelectorOnClass(
      [LookupChild class], @selector(value), [LookupChild class], @selector(added)));
  EXPECT_EQ(1, value([LookupChild class]));
}

TEST_F(Runtime, DuplicatesWhatIsInherited) {
  EXPECT_FALSE([DuplicateChild instancesRespondToSelector:@selector(added)]);
  EXPECT_TRUE(HXDuplicateInstanceMethodWithSelector([DuplicateChild class], @selector(value),
                                                    @selector(added)));
  EXPECT_EQ(1, added([DuplicateChild class]));
  EXPECT_EQ(1, added([DuplicateGrandchild class]));
  EXPECT_FALSE([DuplicateParent instancesRespondToSelector:@selector(added)]);
  EXPECT_TRUE(HXClassImplementingMethod([DuplicateGrandchild class], @selector(added)) ==
              [DuplicateChild class]);
  Method original = class_getInstanceMethod([DuplicateParent class], @selector(value));
  Method copy = class_getInstanceMethod([DuplicateChild class], @selector(added));
  EXPECT_STREQ(method_getTypeEncoding(original), method_getTypeEncoding(copy));

  // Once more changes nothing; a subclass may override what it inherits.
  EXPECT_FALSE(HXDuplicateInstanceMethodWithSelector([DuplicateChild class], @selector(value),
                                                     @selector(added)));
  EXPECT_TRUE(HXDuplicateInstanceMethodWithSelector([DuplicateGrandchild class], @selector(value),
                                                    @selector(added)));
  EXPECT_EQ(1, added([DuplicateChild class]));
  EXPECT_EQ(3, added([DuplicateGrandchild class]));
}

TEST_F(Runtime, ReplacesOnlyInTheClass) {
  // The methods have been called, so the run time has its tables filled.
  EXPECT_EQ(1, value([ReplaceChild class]) * value([ReplaceGrandchild class]) *
                   value([ReplaceParent class]));
  EXPECT_EQ(12, other([ReplaceGrandchild class]));

  // An inherited method.
  EXPECT_TRUE(HXReplaceMethodImplementationWithSelectorOnClass(
      [ReplaceChild class], @selector(value), [ReplaceSourceChild class], @selector(value)));
  EXPECT_EQ(100, value([ReplaceChild class]));
  EXPECT_EQ(100, value([ReplaceGrandchild class]));
  EXPECT_EQ(1, value([ReplaceParent class]));
  EXPECT_EQ(1, value([ReplaceSibling class]));

  // Its own method, with another selector of the source.
  EXPECT_TRUE(HXReplaceMethodImplementationWithSelectorOnClass(
      [ReplaceChild class], @selector(other), [ReplaceSource class], @selector(value)));
  EXPECT_EQ(100, other([ReplaceChild class]));
  EXPECT_EQ(100, other([ReplaceGrandchild class]));
  EXPECT_EQ(11, other([ReplaceParent class]));
  EXPECT_EQ(11, other([ReplaceSibling class]));
  EXPECT_EQ(200, other([ReplaceSource class]));

  // Again, by a selector with types of its own.
  EXPECT_TRUE(HXReplaceMethodImplementationWithSelectorOnClass(
      [ReplaceChild class], sel_registerTypedName("value", "i16@0:8"), [ReplaceSource class],
      @selector(other)));
  EXPECT_EQ(200, value([ReplaceChild class]));
  EXPECT_EQ(1, value([ReplaceParent class]));

  // One that it does not have.
  EXPECT_TRUE(HXReplaceMethodImplementationWithSelectorOnClass(
      [ReplaceChild class], @selector(added), [ReplaceSource class], @selector(value)));
  EXPECT_EQ(100, added([ReplaceChild class]));
  EXPECT_FALSE([ReplaceParent instancesRespondToSelector:@selector(added)]);
}

TEST_F(Runtime, NewBodyCanCallTheOldOne) {
  EXPECT_TRUE(
      HXDuplicateInstanceMethodWithSelector([WrapChild class], @selector(value), @selector(added)));
  EXPECT_TRUE(HXReplaceMethodImplementationWithSelectorOnClass(
      [WrapChild class], @selector(value), [WrapSource class], @selector(value)));
  EXPECT_EQ(11, value([WrapChild class]));
  EXPECT_EQ(1, value([WrapParent class]));
}

}  // namespace
