#import <OvFoundation/HXRuntime.h>

#import <objc/runtime.h>

#include <stdlib.h>

// The method in the class's own table; NULL if the class at most inherits one.
static Method OwnMethod(Class cls, SEL selector) {
  unsigned int count = 0;
  Method *methods = class_copyMethodList(cls, &count);
  Method found = NULL;
  for (unsigned int i = 0; i < count && !found; ++i) {
    if (sel_isEqual(method_getName(methods[i]), selector)) found = methods[i];
  }
  free(methods);
  return found;
}

Class HXClassImplementingMethod(Class cls, SEL selector) {
  if (!selector) return Nil;
  while (cls && !OwnMethod(cls, selector)) cls = class_getSuperclass(cls);
  return cls;
}

// The method that the class answers the selector with, found in the tables alone:
// asking the run time may make a class add a method on demand.
static Method MethodOfClass(Class cls, SEL selector) {
  Class implementer = HXClassImplementingMethod(cls, selector);
  return implementer ? OwnMethod(implementer, selector) : NULL;
}

BOOL HXDuplicateInstanceMethodWithSelector(Class cls, SEL selector, SEL newSelector) {
  Method method = MethodOfClass(cls, selector);
  if (!method || !newSelector || OwnMethod(cls, newSelector)) return NO;
  return class_addMethod(cls, newSelector, method_getImplementation(method),
                         method_getTypeEncoding(method));
}

BOOL HXReplaceMethodImplementationWithSelectorOnClass(Class target, SEL targetSelector,
                                                      Class source, SEL sourceSelector) {
  Method replacement = MethodOfClass(source, sourceSelector);
  if (!target || !targetSelector || !replacement) return NO;
  IMP implementation = method_getImplementation(replacement);
  Method own = OwnMethod(target, targetSelector);
  if (own) {
    method_setImplementation(own, implementation);
    return YES;
  }
  // The platform's class_replaceMethod would overwrite the ancestor's method here.
  Method inherited = MethodOfClass(target, targetSelector);
  return class_addMethod(target, targetSelector, implementation,
                         method_getTypeEncoding(inherited ? inherited : replacement));
}
