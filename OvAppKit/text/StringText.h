// A string as the text of the line rules.

#pragma once

#import <Foundation/Foundation.h>

#include "text/LineSplitting.h"

namespace ov {

// The string must outlive this, unchanged. nil is an empty text.
class StringText final : public TextUnits {
 public:
  explicit StringText(NSString *string) : TextUnits([string length]), string_(string) {}

  void copy(std::size_t start, std::span<char16_t> block) const override;

 private:
  NSString *string_;
};

// A part of the string, autoreleased; nil for an empty part.
NSString *lineString(NSString *string, LineExtent extent);

}  // namespace ov
