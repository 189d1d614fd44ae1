// What the tests of the controls with whole images share.

#pragma once

#import <OvAppKit/OvAppKit.h>

#include <string>
#include <vector>

#import "LiveTest.h"

// Journals what is asked of it and sent to it.
@interface OvTestMultiButton : HXMultiImageButton {
 @public
  std::vector<std::string> *events;  // of the fixture
  int marks;                         // for display
  int drawings;
}
- (void)act:(id)sender;
@end

// Answers a menu, and maybe a view for it.
@interface OvTestMenuDelegate : NSObject {
 @public
  NSMenu *menu;
  HXMultiImageButton *asked;
}
@end
@interface OvTestMenuViewDelegate : OvTestMenuDelegate {
 @public
  NSView *view;
}
@end

namespace ov::test {

// An image of one colour.
NSImage *filledImage(NSSize size, NSColor *color);
// The upper half red, the lower half blue, as a person sees it.
NSImage *redOverBlue(NSSize size);

// That an event opens a menu as the press that it is made from, which was a double click.
void expectLike(NSEvent *press, NSEvent *opening);

inline constexpr NSSize kImageSize = {10, 6};

// Tests of buttons with four images: green at rest, red pressed, blue under the mouse, black
// disabled.
class MultiImageTest : public LiveTest {
 protected:
  void SetUp() override;
  void TearDown() override;

  // In a window on the screen.
  OvTestMultiButton *makeButton();
  // Not in a window.
  OvTestMultiButton *newButton();

  // Which of the images the button shows.
  std::string shown(HXMultiImageButton *button);
  // The events that the button has taken since the last call.
  std::vector<std::string> takeEvents();

  // A place in the button and one outside, in its coordinates.
  static constexpr NSPoint kInside = {15, 10};
  static constexpr NSPoint kOutside = {60, 10};

  void postDrag(NSView *view, NSPoint point) { post(mouseEvent(NSLeftMouseDragged, view, point)); }
  void postRelease(NSView *view, NSPoint point) { post(mouseEvent(NSLeftMouseUp, view, point)); }

 private:
  std::vector<std::string> events_;
  std::vector<OvTestMultiButton *> buttons_;
};

}  // namespace ov::test
