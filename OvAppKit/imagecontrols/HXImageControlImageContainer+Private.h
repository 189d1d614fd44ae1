#pragma once

#import <OvAppKit/HXImageControlImageContainer.h>
#import <OvAppKit/HXImageSegment.h>

#import "imagecontrols/ComposedFrames.h"

struct OvImageContainerState {
  ov::ComposedFrames frames;
};

namespace ov {

inline constexpr HXImageControlImagePart kImagePartCount = 11;
inline constexpr HXImageControlImageVariation kImageVariationCount = 5;

}  // namespace ov
