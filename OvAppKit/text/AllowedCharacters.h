// The rule of the validators that know a set of allowed characters.

#pragma once

#import <Foundation/Foundation.h>

#include <bitset>

#import "support/Retained.h"

namespace ov {

// Units are looked at one by one, as a scanner of the platform does: of a character outside
// the basic plane neither half is ever a member.
class AllowedCharacters {
 public:
  explicit AllowedCharacters(NSCharacterSet *set);

  // Whether there is nothing else in the string: what a scanner's run would be, without the
  // price of a scanner.
  bool makeUp(NSString *string) const;

  // The run that a scanner finds at the start: it passes over white space and line breaks. The
  // empty string when there is none, and for nil.
  NSString *runAtStart(NSString *string) const;

 private:
  Retained<NSCharacterSet *> set_;
  std::bitset<0x10000> members_;
};

}  // namespace ov
