// The screen in small, with a window that moves as it does, and a button at each place where
// the window can be put.
#import "shell/GalleryStyle.h"

#include <functional>

enum class ScreenPlace { TopLeft, TopRight, Centre, BottomLeft, BottomRight };

@interface ScreenMap : NSView {
  NSWindow *_shown;
  NSArray *_buttons;
  std::function<void(ScreenPlace)> _pressed;
}

- (id)initWithWindow:(NSWindow *)window pressed:(std::function<void(ScreenPlace)>)pressed;
- (NSArray *)buttons;

// In the screen's proportions.
- (CGFloat)heightForWidth:(CGFloat)width;
- (CGFloat)widthForHeight:(CGFloat)height;

// "rect.topleft=" and so on: where the buttons are.
- (NSArray *)statusLines;

@end
