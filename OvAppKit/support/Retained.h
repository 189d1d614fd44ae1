// Ownership of Objective-C objects for locals and private C++ state. Instance variables
// that the interface promises stay plain; OvReplaceRetained() sets those.

#pragma once

#import <Foundation/Foundation.h>

#include <utility>

namespace ov {

template <typename T>
class Retained {
 public:
  Retained() = default;
  Retained(const Retained& other) : object_([other.object_ retain]) {}
  Retained(Retained&& other) noexcept : object_(std::exchange(other.object_, nil)) {}
  Retained& operator=(Retained other) noexcept {
    std::swap(object_, other.object_);
    return *this;
  }
  ~Retained() { [object_ release]; }

  T get() const { return object_; }

 private:
  template <typename U>
  friend Retained<U> adopt(U object);

  explicit Retained(T object) : object_(object) {}

  T object_ = nil;
};

// Takes over a reference that the caller owns.
template <typename T>
[[nodiscard]] Retained<T> adopt(T object) {
  return Retained<T>(object);
}

// Adds a reference of its own.
template <typename T>
[[nodiscard]] Retained<T> retain(T object) {
  return adopt(static_cast<T>([object retain]));
}

}  // namespace ov

// Sets a retained instance variable; an object that is there already is left alone.
template <typename T>
void OvReplaceRetained(T* variable, T object) {
  if (*variable == object) return;
  T old = *variable;
  *variable = [object retain];
  [old release];
}
