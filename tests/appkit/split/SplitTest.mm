#import "SplitTest.h"

#import <GNUstepGUI/GSTrackingRect.h>

#include <cstdio>

using namespace ov::test;

namespace ov::test {

Lines &journal() {
  static Lines lines;
  return lines;
}

Lines journalOf(std::initializer_list<const char *> words) {
  Lines found;
  for (const std::string &line : journal()) {
    for (const char *word : words) {
      if (line.substr(0, line.find(' ')) == word) found.push_back(line);
    }
  }
  return found;
}

std::string text(CGFloat number) {
  char buffer[40];
  std::snprintf(buffer, sizeof buffer, "%g", static_cast<double>(number));
  return buffer;
}

std::string text(NSRect r) {
  return "{" + text(r.origin.x) + ", " + text(r.origin.y) + ", " + text(r.size.width) + " x " +
         text(r.size.height) + "}";
}

}  // namespace ov::test

@implementation OvTestPane
- (void)setFrame:(NSRect)frame {
  framesSet++;
  [super setFrame:frame];
}
- (void)setNeedsDisplay:(BOOL)flag {
  if (flag) marked++;
  [super setNeedsDisplay:flag];
}
- (void)drawRect:(NSRect)rect {
  (void)rect;
  drawn++;
  [[NSColor whiteColor] set];
  NSRectFill([self bounds]);
}
- (BOOL)isOpaque {
  return YES;
}
@end

@implementation OvTestSplitDelegate

- (BOOL)respondsToSelector:(SEL)selector {
  const std::string name = sel_getName(selector);
  if (name.starts_with("splitView")) return has.contains(name);
  return [super respondsToSelector:selector];
}

- (void)line:(const std::string &)line {
  journal().push_back(line);
  if (onLine) onLine(line);
}

- (BOOL)splitView:(NSSplitView *)splitView canCollapseSubview:(NSView *)subview {
  const NSInteger index = (NSInteger)[[splitView subviews] indexOfObjectIdenticalTo:subview];
  [self line:"can " + std::to_string(index)];
  return collapsible.contains(index);
}

- (CGFloat)splitView:(NSSplitView *)splitView
    constrainMinCoordinate:(CGFloat)proposed
               ofSubviewAt:(NSInteger)index {
  (void)splitView;
  [self line:"min " + std::to_string(index) + " " + text(proposed)];
  return minCoordinate;
}

- (CGFloat)splitView:(NSSplitView *)splitView
    constrainMaxCoordinate:(CGFloat)proposed
               ofSubviewAt:(NSInteger)index {
  (void)splitView;
  [self line:"max " + std::to_string(index) + " " + text(proposed)];
  return maxCoordinate;
}

- (CGFloat)splitView:(NSSplitView *)splitView
    constrainSplitPosition:(CGFloat)proposed
               ofSubviewAt:(NSInteger)index {
  (void)splitView;
  [self line:"position " + std::to_string(index) + " " + text(proposed)];
  if (positions.empty()) return proposed;
  const CGFloat answer = positions.front();
  positions.erase(positions.begin());
  return answer;
}

- (CGFloat)splitView:(NSSplitView *)splitView
    constrainMinSize:(CGFloat)proposed
         ofSubviewAt:(NSInteger)index {
  (void)splitView;
  [self line:"minSize " + std::to_string(index) + " " + text(proposed)];
  return minSize;
}

- (CGFloat)splitView:(NSSplitView *)splitView
    constrainMaxSize:(CGFloat)proposed
         ofSubviewAt:(NSInteger)index {
  (void)splitView;
  [self line:"maxSize " + std::to_string(index) + " " + text(proposed)];
  return maxSize;
}

- (void)splitView:(NSSplitView *)splitView
    didDoubleClickInDivider:(NSInteger)index
           withModifierFlag:(uint32_t)flags {
  (void)splitView;
  [self line:"double " + std::to_string(index) + " " + std::to_string(flags)];
}

- (void)splitView:(NSSplitView *)splitView resizeSubviewsWithOldSize:(NSSize)oldSize {
  (void)splitView;
  [self line:"resize " + text(oldSize.width) + " x " + text(oldSize.height)];
}

- (void)splitViewDidDoubleClickSplitter:(NSSplitView *)splitView {
  (void)splitView;
  [self line:"doubleSplitter"];
}

- (void)notice:(const char *)what of:(NSNotification *)notification {
  id index = [[notification userInfo] objectForKey:@"OvSubviewIndex"];
  [self
      line:what + (index != nil ? " " + std::to_string([index unsignedIntValue]) : std::string())];
}
- (void)ownNotice:(NSNotification *)notification {
  [self notice:"own" of:notification];
}
- (void)splitViewWillExpandSubview:(NSNotification *)notification {
  [self notice:"willExpand" of:notification];
}
- (void)splitViewDidExpandSubview:(NSNotification *)notification {
  [self notice:"didExpand" of:notification];
}
- (void)splitViewWillCollapseSubview:(NSNotification *)notification {
  [self notice:"willCollapse" of:notification];
}
- (void)splitViewDidCollapseSubview:(NSNotification *)notification {
  [self notice:"didCollapse" of:notification];
}
- (void)splitViewWillResizeSubviews:(NSNotification *)notification {
  [self notice:"willResize" of:notification];
}
- (void)splitViewDidResizeSubviews:(NSNotification *)notification {
  [self notice:"didResize" of:notification];
}

@end

// A host that was written for single precision.
#pragma clang diagnostic push
#pragma clang diagnostic ignored "-Wmismatched-return-types"
#pragma clang diagnostic ignored "-Wmismatched-parameter-types"
@implementation OvTestFloatDelegate
- (float)splitView:(NSSplitView *)splitView
    constrainMinCoordinate:(float)proposed
               ofSubviewAt:(int)index {
  (void)splitView;
  return proposed + 40 + (float)index;
}
- (float)splitView:(NSSplitView *)splitView
    constrainMaxCoordinate:(float)proposed
               ofSubviewAt:(int)index {
  (void)splitView;
  return proposed - 40 - (float)index;
}
@end
#pragma clang diagnostic pop

namespace ov::test {

void SplitTest::SetUp() {
  LiveTest::SetUp();
  journal().clear();
  delegate = [[OvTestSplitDelegate alloc] init];
}

void SplitTest::TearDown() {
  discardPending();
  LiveTest::TearDown();
  [delegate release];
}

OvSplitView *SplitTest::makeSplit(std::initializer_list<CGFloat> thicknesses, bool vertical) {
  return makeSplit(std::vector<CGFloat>(thicknesses), vertical);
}

OvSplitView *SplitTest::makeSplit(const std::vector<CGFloat> &thicknesses, bool vertical,
                                  CGFloat own) {
  const NSSize size = vertical ? NSMakeSize(own, 200) : NSMakeSize(200, own);
  OvSplitView *split =
      [[[OvSplitView alloc] initWithFrame:NSMakeRect(10, 20, size.width, size.height)] autorelease];
  [split setVertical:vertical];
  for (CGFloat thickness : thicknesses) {
    const NSRect frame =
        vertical ? NSMakeRect(0, 0, thickness, 200) : NSMakeRect(0, 0, 200, thickness);
    [split addSubview:[[[OvTestPane alloc] initWithFrame:frame] autorelease]];
  }
  NSWindow *window = makeWindow(NSMakeSize(size.width + 20, size.height + 40));
  [[window contentView] addSubview:split];
  [split resizeSubviewsWithOldSize:[split bounds].size];
  return split;
}

NSView *SplitTest::pane(OvSplitView *split, NSUInteger index) {
  return [[split subviews] objectAtIndex:index];
}

std::string SplitTest::spans(OvSplitView *split) {
  std::string all;
  for (NSView *view in [split subviews]) {
    const NSRect f = [view frame];
    const bool vertical = [split isVertical];
    all += (all.empty() ? "" : " ") + text(vertical ? f.origin.x : f.origin.y) + "+" +
           text(vertical ? f.size.width : f.size.height);
  }
  return all;
}

std::vector<NSRect> SplitTest::dividers(OvSplitView *split) {
  std::vector<NSRect> rects;
  for (NSValue *value in [split valueForKey:@"dividers"]) rects.push_back([value rectValue]);
  return rects;
}

NSCursor *SplitTest::currentCursor(OvSplitView *split) {
  return [split valueForKey:@"currentCursor"];
}

std::vector<std::pair<NSCursor *, NSRect>> SplitTest::cursorRects(NSView *view) {
  std::vector<std::pair<NSCursor *, NSRect>> rects;
  for (GSTrackingRect *rect in [view valueForKey:@"cursor_rects"]) {
    rects.emplace_back(rect->owner, [view convertRect:rect->rectangle fromView:nil]);
  }
  return rects;
}

NSPoint SplitTest::onDivider(OvSplitView *split, NSUInteger index, CGFloat along) {
  const NSRect rect = dividers(split).at(index);
  return [split isVertical] ? NSMakePoint(NSMidX(rect) + along, NSMidY(rect))
                            : NSMakePoint(NSMidX(rect), NSMidY(rect) + along);
}

void SplitTest::drag(OvSplitView *split, NSUInteger index,
                     std::initializer_list<CGFloat> distances) {
  drag(split, index, std::vector<CGFloat>(distances));
}

void SplitTest::drag(OvSplitView *split, NSUInteger index, const std::vector<CGFloat> &distances) {
  if (![[split window] isVisible]) show([split window]);
  discardPending();
  const NSPoint start = onDivider(split, index);
  for (CGFloat distance : distances) {
    post(mouseEvent(NSLeftMouseDragged, split, onDivider(split, index, distance)));
  }
  post(mouseEvent(NSLeftMouseUp, split, start));
  if (beforePress) beforePress();
  [split mouseDown:mouseEvent(NSLeftMouseDown, split, start)];
}

}  // namespace ov::test
