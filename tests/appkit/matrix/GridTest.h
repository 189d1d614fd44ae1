// What the grid's tests share: a data source and delegate that can be told which methods it
// has, cells and a grid that write down what is asked of them, and one journal for all of
// them, so that a test can ask for the order across objects.

#pragma once

#import <OvAppKit/HXAutoScrollManager.h>
#import <OvAppKit/HXMatrixView.h>
#import <OvAppKit/HXMatrixViewMouseTrackingManager.h>
#import <OvAppKit/HXMatrixViewSelectionInfo.h>
#import <OvAppKit/HXMatrixViewSelectionManager.h>
#import <OvAppKit/HXMatrixViewToolTipManager.h>
#import <OvAppKit/OvMatrixView.h>

#include <functional>
#include <initializer_list>
#include <set>
#include <string>
#include <vector>

#import "LiveTest.h"

namespace ov::test {

using Lines = std::vector<std::string>;

// What happened, in order: "draw 3 {0, 65, 64 x 64}".
class Journal {
 public:
  void add(std::string line) { lines_.push_back(std::move(line)); }
  void clear() { lines_.clear(); }
  const Lines &all() const { return lines_; }
  // The lines whose first word is one of these; all of these words' lines in their order.
  Lines of(std::initializer_list<const char *> words) const;
  size_t count(const char *word) const { return of({word}).size(); }
  bool has(const std::string &line) const;

 private:
  Lines lines_;
};
Journal &journal();

std::string text(NSRect rect);
std::string text(NSPoint point);
std::string text(CGFloat length);
std::string text(NSUInteger index);  // "none" for NSNotFound
std::string text(NSIndexSet *set);   // "1 2 5", "" for an empty set, "nil"
NSIndexSet *indexes(std::initializer_list<NSUInteger> list);
NSIndexSet *indexRange(NSUInteger location, NSUInteger length);

inline constexpr NSUInteger kShift = NSShiftKeyMask;
inline constexpr NSUInteger kOption = NSAlternateKeyMask;
inline constexpr NSUInteger kCommand = NSCommandKeyMask;

}  // namespace ov::test

// A data source and delegate. It has exactly the optional methods that it was told to have.
// Journal: "count", "value 3", "shouldSelect 3", "didSelect 3", "didSelectItems 1 2",
// "clicked 3", "doubleClicked 3", "shouldEdit 3", "willStartBand", "didEndBand",
// "toolTip 3", "menu 3", "write 1 2", "dragImage 1 2", "mask local", "mask other", "began",
// "moved", "ended 16", "validate 3", "accept 3", "setObjectValue".
@interface OvTestItems : NSObject {
 @public
  NSUInteger count;
  std::set<std::string> methods;
  std::function<bool(NSUInteger)> maySelect;
  std::function<bool(NSUInteger)> mayEdit;
  std::function<NSDragOperation(NSUInteger)> validate;
  std::function<std::string(NSUInteger)> toolTip;
  BOOL writes;
  BOOL accepts;
  NSImage *dragImage;
  NSMenu *menu;
  NSDragOperation sourceMask;
  // Of the last call.
  id view;
  NSCell *cell;
  NSPasteboard *pasteboard;
  id info;
  NSPoint point;
}
+ (OvTestItems *)items:(NSUInteger)count;
- (void)has:(std::initializer_list<const char *>)selectors;
@end

// Journal: "highlighted 1", "value= item 3", "draw item 3 {frame}", "edit {frame}",
// "endEditing". Draws its frame in the colour it is given.
@interface OvTestCell : NSCell
+ (int)deaths;
- (void)setFill:(NSColor *)color;
@end

// Also "hover 1".
@interface OvTestHoverCell : OvTestCell
@end

// Also "proposed 16".
@interface OvTestDropCell : OvTestCell
@end

// Both.
@interface OvTestFullCell : OvTestCell
@end

// Everything the grid keeps.
struct GridState {
  id dataSource, delegate;
  NSSize intercellSpacing, cellSize;
  NSCell *dataCell;
  id selectionManager, selectionInfo, selectionInfoBeforeMouseDown;
  NSColor *backgroundColor, *gridColor;
  NSUInteger gridStyleMask;
  CGFloat gridLineWidth;
  NSShadow *gridShadow;
  NSUInteger numberOfItems, numberOfColumns, numberOfRows;
  NSUInteger mouseDownFlags;
  NSPoint mouseDownLocation;
  NSUInteger mouseDownItemIndex;
  BOOL mouseDowned, mouseDragged, draggingRefused;
  NSRect rubberBandFrame;
  NSRange rubberBandColumns, rubberBandRows;
  NSUInteger draggingLocationItemIndex, draggingDestinationItemIndex, proposedDragOperation;
  NSUInteger editedItemIndex;
  id toolTipManager, mouseTrackingManager;
  struct HXMatrixViewFlags flags;
};

// A grid that writes down: "reload", "sizeToFit", "calcWidth 200", "calcHeight 200",
// "drawCell 3 {frame}", "gridLines {rect}", "band {frame}", "ring {frame} 3 16",
// "dirty {rect}", "dirtyItem 3", "dirtyItems 1 2", "tip 3 {frame}", "removeTips",
// "region 3 {frame}", "removeRegion", "autoscroll", "display", "startDragging",
// "dragImageAt (x, y) offset (x, y)", "changed", "edit 3", "firstResponder".
@interface OvTestGrid : HXMatrixView {
 @public
  BOOL callsThroughDragImage;
  id draggedSource;
  NSImage *draggedImage;
  NSPasteboard *draggedPasteboard;
  BOOL draggedSlideBack;
  NSEvent *draggedEvent;
  std::vector<id> regionOwners;
  std::vector<id> tipOwners;
  std::vector<BOOL> regionAssumesInside;
}
- (GridState)state;
- (void)setBand:(NSRect)frame;
- (void)setDropOperation:(NSUInteger)operation at:(NSUInteger)index;
@end

// The other grid, with nothing but access to its state.
@interface OvTestOvGrid : OvMatrixView
@end

namespace ov::test {

class GridTest : public LiveTest {
 protected:
  void SetUp() override;
  void TearDown() override;

  // A grid of 64 x 64 cells, 1 apart, that fills the width, outside any window.
  OvTestGrid *makeGrid(NSUInteger itemCount, NSSize size = NSMakeSize(200, 200));
  // The same in a window, on screen or not.
  OvTestGrid *gridInWindow(NSUInteger itemCount, NSSize size = NSMakeSize(200, 200),
                           bool onScreen = false);
  // The same as the document of a scroll view whose visible area is at most that size.
  OvTestGrid *gridInScrollView(NSUInteger itemCount, NSSize size = NSMakeSize(220, 200),
                               bool onScreen = false);

  // The grid's data source and delegate.
  OvTestItems *items = nil;
  OvTestItems *newItems(NSUInteger count);

  static NSPoint middle(HXMatrixView *grid, NSUInteger index);
  static std::string selection(HXMatrixView *grid) { return text([grid selectedItemIndexes]); }

 private:
  std::vector<OvTestItems *> all_;
};

}  // namespace ov::test
