// The one choice of the encoding in which the byte-counting rules count.

#pragma once

#import <Foundation/Foundation.h>

#include <optional>

#include "text/ByteWidths.h"

namespace ov {

// The longest beginning of a string within a limit of bytes. None when there is nothing to
// count by: a nil string, or a system without a multibyte encoding.
std::optional<ByteFit> fitBytes(NSString *string, double limit);

// Whether the encoding has every unit of the string. NO for nil.
bool isEncodable(NSString *string);

}  // namespace ov
