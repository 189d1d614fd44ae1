#include "platform/ButtonArchiving.h"

namespace {

// The platform's, and its bit for the border.
NSString *const kFlagsKey = @"NSButtonFlags2";
constexpr int kBorderOnlyWhileMouseInside = 0x8;

NSString *const kImagePositionKey = @"OvImagePosition";

}  // namespace

namespace ov {

void encodeLostParts(NSButtonCell *cell, NSCoder *coder) {
  if (![coder allowsKeyedCoding] || [cell image] != nil) return;
  [coder encodeInt:static_cast<int>([cell imagePosition]) forKey:kImagePositionKey];
}

void decodeLostParts(NSButtonCell *cell, NSCoder *coder) {
  if (![coder allowsKeyedCoding]) return;
  if ([coder containsValueForKey:kFlagsKey] &&
      ([coder decodeIntForKey:kFlagsKey] & kBorderOnlyWhileMouseInside) != 0)
    [cell setShowsBorderOnlyWhileMouseInside:YES];
  if ([coder containsValueForKey:kImagePositionKey])
    [cell setImagePosition:static_cast<NSCellImagePosition>(
                               [coder decodeIntForKey:kImagePositionKey])];
}

}  // namespace ov
