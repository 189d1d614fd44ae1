// The system font of a control's size.

#pragma once

#import <AppKit/AppKit.h>

namespace ov {

inline NSFont *systemFont(NSControlSize size) {
  return [NSFont systemFontOfSize:[NSFont systemFontSizeForControlSize:size]];
}

}  // namespace ov
