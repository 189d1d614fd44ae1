// Methods as functions and back, and in each other's place.

#pragma once

#import <Foundation/Foundation.h>
#include <objc/runtime.h>

namespace ov {

// Through an untyped pointer: IMP's own type fits no method.
template <typename Function>
Function *asFunction(IMP method) {
  return reinterpret_cast<Function *>(reinterpret_cast<void *>(method));
}

template <typename Function>
IMP asMethod(Function *function) {
  return reinterpret_cast<IMP>(reinterpret_cast<void *>(function));
}

// For +load: without a message, since nothing is to be initialized while libraries load.
inline void exchangeMethods(const char *className, SEL ours, SEL platforms) {
  Class where = objc_getClass(className);
  method_exchangeImplementations(class_getInstanceMethod(where, ours),
                                 class_getInstanceMethod(where, platforms));
}

}  // namespace ov
