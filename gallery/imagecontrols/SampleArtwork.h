// The gallery's own picture sets, which tell what they were last asked to draw.
#import <OvAppKit/OvAppKit.h>

#include <functional>

@interface SampleArtwork : HXImageControlImageContainer {
  HXImageControlImageVariation _drawnState;
  std::function<void()> _drawn;
}

// New ones, autoreleased. The button set has all pieces in all states; without an icon and an
// accessory if these are not wanted.
+ (SampleArtwork *)buttonWithIcon:(BOOL)icon accessory:(BOOL)accessory;
// One picture for each state, cut into nine.
+ (SampleArtwork *)plate;
// One picture with all states side by side, cut into nine each.
+ (SampleArtwork *)strip;

// The state of the frame that was drawn last, and what to call when it becomes another; nullptr
// once what that refers to is gone.
- (HXImageControlImageVariation)drawnState;
- (void)setDrawn:(std::function<void()>)drawn;

@end
