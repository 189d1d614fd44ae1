#import <OvFoundation/OvPropertyListCopy.h>

#include <vector>

const NSUInteger OvPropertyListMaximumDepth = 512;
const NSUInteger OvPropertyListMaximumCount = 1 << 22;

namespace {

class Copier {
 public:
  explicit Copier(NSPropertyListMutabilityOptions option)
      : mutableContainers_(option != NSPropertyListImmutable),
        mutableLeaves_(option == NSPropertyListMutableContainersAndLeaves) {}

  // Owned by the caller; nil when there is a problem.
  id copy(id node, NSUInteger depth) {
    if (++count_ > OvPropertyListMaximumCount)
      return fail(@"The property list holds too many objects.");
    if ([node isKindOfClass:[NSString class]] || [node isKindOfClass:[NSData class]]) {
      return mutableLeaves_ ? [node mutableCopy] : [node copy];
    }
    if ([node isKindOfClass:[NSNumber class]] || [node isKindOfClass:[NSDate class]]) {
      return [node copy];
    }
    const bool isArray = [node isKindOfClass:[NSArray class]];
    if (!isArray && ![node isKindOfClass:[NSDictionary class]]) {
      return fail([NSString stringWithFormat:@"%@ is not an object of a property list.",
                                             node ? NSStringFromClass([node class]) : @"nil"]);
    }
    if (depth >= OvPropertyListMaximumDepth) {
      return fail(@"The property list is nested too deeply, or contains itself.");
    }
    return isArray ? copyArray(node, depth) : copyDictionary(node, depth);
  }

  NSString *problem() const { return problem_; }

 private:
  // Objects that are let go of together.
  struct Owned {
    std::vector<id> objects;
    ~Owned() {
      for (id object : objects) [object release];
    }
  };

  id copyArray(NSArray *array, NSUInteger depth) {
    Owned items;
    const NSUInteger count = [array count];
    for (NSUInteger i = 0; i < count; ++i) {
      id item = copy([array objectAtIndex:i], depth + 1);
      if (!item) return nil;
      items.objects.push_back(item);
    }
    Class made = mutableContainers_ ? [NSMutableArray class] : [NSArray class];
    return [[made alloc] initWithObjects:items.objects.data() count:items.objects.size()];
  }

  id copyDictionary(NSDictionary *dictionary, NSUInteger depth) {
    Owned keys, values;
    // An enumerator, since a subclass may not support fast enumeration.
    NSEnumerator *enumerator = [dictionary keyEnumerator];
    while (id key = [enumerator nextObject]) {
      if (![key isKindOfClass:[NSString class]]) {
        return fail([NSString stringWithFormat:@"%@ is not a key of a property list.",
                                               NSStringFromClass([key class])]);
      }
      id value = copy([dictionary objectForKey:key], depth + 1);
      if (!value) return nil;
      values.objects.push_back(value);
      keys.objects.push_back([key copy]);
    }
    Class made = mutableContainers_ ? [NSMutableDictionary class] : [NSDictionary class];
    return [[made alloc] initWithObjects:values.objects.data()
                                 forKeys:keys.objects.data()
                                   count:keys.objects.size()];
  }

  id fail(NSString *problem) {
    problem_ = problem;
    return nil;
  }

  const bool mutableContainers_;
  const bool mutableLeaves_;
  NSUInteger count_ = 0;
  NSString *problem_ = nil;
};

}  // namespace

id OvPropertyListDeepCopy(id propertyList, NSPropertyListMutabilityOptions option,
                          NSString **error) {
  Copier copier(option);
  id copy = copier.copy(propertyList, 0);
  if (error) *error = [copier.problem() copy];
  return [copy autorelease];
}
