// Patches of known colours above a run of all hues, and what is under the pointer.
#import <AppKit/AppKit.h>

#include <functional>

@class SampleView;

@interface ColorSample : NSView {
  SampleView *_sample;
  NSColor *_color;
  uint32_t _pixel[4];
  std::function<void()> _changed;
}
// Calls the function when there is another colour under the pointer.
- (id)initWithChange:(std::function<void()>)changed;

// "color=" as rrggbb, "pixel=" as red green blue alpha once the pointer was there, and
// "rect.patch0=" and so on with each patch's colour as its name.
- (NSArray *)statusLines;
@end
