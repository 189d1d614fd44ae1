// What the split view's tests share: panes that count what is done to them, a delegate that
// can be told which methods it has, and one journal for all of them, so that a test can ask
// for the order across objects.

#pragma once

#import <OvAppKit/HXSplitView.h>
#import <OvAppKit/OvSplitView.h>

#include <functional>
#include <initializer_list>
#include <set>
#include <string>
#include <vector>

#import "LiveTest.h"

namespace ov::test {

using Lines = std::vector<std::string>;

// What happened, in order: "willCollapse 1".
Lines &journal();
// The lines whose first word is one of these, in order.
Lines journalOf(std::initializer_list<const char *> words);

// "{106, 0, 50 x 200}"
std::string text(NSRect rect);
std::string text(CGFloat number);

inline constexpr CGFloat kParked = 1000000;

}  // namespace ov::test

// The class's own methods that the tests look at or send.
@interface OvSplitView (OvTested)
+ (NSString *)_userDefaultsKeyForName:(NSString *)name;
- (void)_ovSetupCursorsForSystemVersion:(int)version;
- (NSInteger)_dividerIndexUnderMouse:(NSPoint)point;
- (void)_updateSubviewsWithThicknesses:(NSArray *)thicknesses;
- (void)_updateDividers;
- (NSString *)view:(NSView *)view
    stringForToolTip:(NSToolTipTag)tag
               point:(NSPoint)point
            userData:(void *)userData;
@end

@interface OvTestPane : NSView {
 @public
  int framesSet;
  int drawn;
  int marked;
}
@end

// Answers and keeps a journal; has only the methods that it was told to have.
//
// Journal: "can 0", "min 0 100", "max 0 300", "position 0 150", "minSize 0 140",
// "maxSize 0 260", "double 1 flags", "resize 300 x 200", and of the notifications
// "willCollapse 1" with the index, "willResize".
@interface OvTestSplitDelegate : NSObject {
 @public
  std::set<std::string> has;
  std::set<NSInteger> collapsible;  // pane indexes
  CGFloat minCoordinate, maxCoordinate, minSize, maxSize;
  std::vector<CGFloat> positions;  // answers in turn; the proposed ones after that
  // Called with each notification's and question's line.
  std::function<void(const std::string &)> onLine;
}
// For what a delegate observes by itself: "own".
- (void)ownNotice:(NSNotification *)notification;
@end

// The same two limits and positions, in single precision.
@interface OvTestFloatDelegate : NSObject
@end

namespace ov::test {

class SplitTest : public LiveTest {
 protected:
  void SetUp() override;
  void TearDown() override;

  // A split view of 300 x 200, or 200 x 300 if it is horizontal, with panes of these
  // thicknesses laid out in it, in a window that is not on screen.
  OvSplitView *makeSplit(std::initializer_list<CGFloat> thicknesses, bool vertical = true);
  OvSplitView *makeSplit(const std::vector<CGFloat> &thicknesses, bool vertical = true,
                         CGFloat own = 300);

  NSView *pane(OvSplitView *split, NSUInteger index);
  // Origin and size along the axis: "0+100 106+194".
  std::string spans(OvSplitView *split);
  std::vector<NSRect> dividers(OvSplitView *split);
  NSCursor *currentCursor(OvSplitView *split);
  // The cursors of the cursor rectangles that are set up, and the rectangles in the view.
  std::vector<std::pair<NSCursor *, NSRect>> cursorRects(NSView *view);

  // A point of the divider, and as far from there along the axis.
  NSPoint onDivider(OvSplitView *split, NSUInteger index, CGFloat along = 0);
  // Presses a divider, drags by each distance from the place of the press, and releases.
  // All events wait before the press is sent.
  void drag(OvSplitView *split, NSUInteger index, std::initializer_list<CGFloat> distances);
  void drag(OvSplitView *split, NSUInteger index, const std::vector<CGFloat> &distances);

  OvTestSplitDelegate *delegate = nil;
  // Called before the press of a drag, when all else is ready.
  std::function<void()> beforePress;
};

}  // namespace ov::test
