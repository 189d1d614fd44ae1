// A user default that changes often for a while.
//
// Each change of a default makes the platform tell all who observe the defaults, among them
// its own fonts, themes and colours, which read theirs anew: some 150 us, more than a step of
// a drag takes. While one of these exists, its value is what everybody reads under its key;
// its end stores the last one for good.

#pragma once

#import <Foundation/Foundation.h>

#include "support/Retained.h"

@class _OvDeferredDomain;

namespace ov {

class DeferredDefault {
 public:
  DeferredDefault();
  ~DeferredDefault();
  DeferredDefault(const DeferredDefault &) = delete;
  DeferredDefault &operator=(const DeferredDefault &) = delete;

  void set(NSString *key, id value);

 private:
  void store() const;

  Retained<_OvDeferredDomain *> domain_;
};

}  // namespace ov
