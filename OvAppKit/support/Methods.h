// Methods as functions and back. Through an untyped pointer: IMP's own type fits no method.

#pragma once

#import <Foundation/Foundation.h>

namespace ov {

template <typename Function>
Function *asFunction(IMP method) {
  return reinterpret_cast<Function *>(reinterpret_cast<void *>(method));
}

template <typename Function>
IMP asMethod(Function *function) {
  return reinterpret_cast<IMP>(reinterpret_cast<void *>(function));
}

}  // namespace ov
