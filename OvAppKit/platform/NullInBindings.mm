#include "platform/NullInBindings.h"

#import <OvFoundation/HXRuntime.h>

@interface OvNullInBindings : NSObject
@end

// What becomes methods of the platform's bindings.
@implementation OvNullInBindings

- (id)transformValue:(id)value withOptions:(NSDictionary *)options {
  if (value == [NSNull null]) value = nil;
  return [(OvNullInBindings *)self ov_transformValue:value withOptions:options];
}

// Stands for the platform's own method, which has this name in its class.
- (id)ov_transformValue:(id)value withOptions:(NSDictionary *)options {
  (void)options;
  return value;
}

@end

namespace ov {

void showNothingForNull() {
  // Private to the platform, and there only since its bindings are made so.
  Class binding = NSClassFromString(@"GSKeyValueBinding");
  const SEL name = @selector(transformValue:withOptions:);
  if (!HXDuplicateInstanceMethodWithSelector(binding, name,
                                             @selector(ov_transformValue:withOptions:))) {
    return;
  }
  HXReplaceMethodImplementationWithSelectorOnClass(binding, name, [OvNullInBindings class], name);
}

}  // namespace ov
