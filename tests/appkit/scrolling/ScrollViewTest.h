// What the scroll view's tests share: a delegate that can be told which methods it has and keeps
// a journal, and a hand that works the scrollers.

#pragma once

#import <OvAppKit/HXScrollView.h>
#import <OvAppKit/HXScroller.h>

#include <functional>
#include <set>
#include <string>
#include <vector>

#import "LiveTest.h"

// Lines: "will v 2", "scroll", "did h 4" with the direction of the scroller and the part.
@interface OvTestScrollDelegate : NSObject {
 @public
  std::set<std::string> lacks;
  std::vector<std::string> lines;
  // Called with each line.
  std::function<void(const std::string &)> onLine;
  // Of the last call.
  id lastScroller;
  HXScrollView *lastView;
}
// The lines, a row of equal ones as one: "scroll..." for several.
- (std::vector<std::string>)summary;
- (int)scrolls;
@end

// A document of any size, flipped, which can have the keyboard.
@interface OvTestDocument : NSView
@end

namespace ov::test {

class ScrollViewTest : public LiveTest {
 protected:
  void SetUp() override;
  void TearDown() override;

  // One of 200 x 150 with a document of 600 x 500 and both scrollers, in front. The scrollers
  // are those that the scroll view makes itself.
  HXScrollView *makeScroll();
  // The same one from an archive that has scrollers of the platform.
  HXScrollView *makeRelayingScroll();
  // Puts it into a window in front; it hears of `delegate` from now on.
  void host(HXScrollView *scroll);

  // Works a scroller with the mouse: presses the knob and moves it by each of these distances
  // along the scroller; or presses a place for a moment. Answers whether all of it happened.
  bool dragKnob(NSScroller *scroller, const std::vector<CGFloat> &distances);
  bool pressAt(NSScroller *scroller, NSPoint point);
  bool pressPart(NSScroller *scroller, NSScrollerPart part);
  NSPoint middleOf(NSScroller *scroller, NSScrollerPart part);

  CGFloat scrolledDown(NSScrollView *scroll) { return [[scroll contentView] bounds].origin.y; }
  CGFloat scrolledRight(NSScrollView *scroll) { return [[scroll contentView] bounds].origin.x; }

  OvTestScrollDelegate *delegate = nil;
};

// Whether scroller and content lie beside each other inside of the scroll view, and the scrollers
// that there should be show. Tells what is wrong, or "".
std::string layoutFault(NSScrollView *scroll);

}  // namespace ov::test
