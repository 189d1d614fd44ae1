// The transformation from user to device space. The platform has no graphics port that converts;
// the context knows its transformation.

#pragma once

#import <AppKit/AppKit.h>

#include "extensions/PixelAlignment.h"

namespace ov {

// Without a transformation (nothing is drawn to, or only to a printer's stream), user space is the
// device.
Affine deviceTransform(NSGraphicsContext *context);

}  // namespace ov
