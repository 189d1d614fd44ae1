#import "ScrollViewTest.h"

#include <sstream>

@implementation OvTestScrollDelegate

- (void)told:(std::string)line {
  lines.push_back(line);
  // By a copy: what is called may take it away.
  if (auto call = onLine) call(line);
}

- (BOOL)respondsToSelector:(SEL)selector {
  return [super respondsToSelector:selector] &&
         !lacks.contains([NSStringFromSelector(selector) UTF8String]);
}

- (std::string)word:(const char *)word scroller:(NSScroller *)scroller part:(NSScrollerPart)part {
  const char *direction = scroller == [lastView verticalScroller]     ? "v"
                          : scroller == [lastView horizontalScroller] ? "h"
                                                                      : "?";
  return std::string(word) + " " + direction + " " + std::to_string(static_cast<int>(part));
}

- (void)scroller:(HXScroller *)scroller
     inScrollView:(HXScrollView *)scrollView
    willTrackPart:(NSScrollerPart)part {
  lastScroller = scroller;
  lastView = scrollView;
  [self told:[self word:"will" scroller:scroller part:part]];
}

- (void)scroller:(HXScroller *)scroller
    inScrollView:(HXScrollView *)scrollView
    didTrackPart:(NSScrollerPart)part {
  lastScroller = scroller;
  lastView = scrollView;
  [self told:[self word:"did" scroller:scroller part:part]];
}

- (void)scrollViewDidScrollContent:(HXScrollView *)scrollView {
  lastView = scrollView;
  [self told:"scroll"];
}

- (std::vector<std::string>)summary {
  std::vector<std::string> summary;
  for (const std::string &line : lines) {
    if (summary.empty() || (summary.back() != line && summary.back() != line + "...")) {
      summary.push_back(line);
    } else {
      summary.back() = line + "...";
    }
  }
  return summary;
}

- (int)scrolls {
  return static_cast<int>(std::count(lines.begin(), lines.end(), "scroll"));
}

@end

@implementation OvTestDocument
- (BOOL)isFlipped {
  return YES;
}
- (BOOL)acceptsFirstResponder {
  return YES;
}
@end

namespace ov::test {

namespace {

HXScrollView *bareScroll() {
  return [[[HXScrollView alloc] initWithFrame:NSMakeRect(10, 20, 200, 150)] autorelease];
}

// Through the queue: the platform's cells take any other event for the end of the press.
void pressThroughQueue(NSView *view, NSPoint point) {
  bringToFront([view window]);
  discardPending();
  post(mouseEvent(NSLeftMouseDown, view, point));
  pumpPending();
}

NSView *document() {
  return [[[OvTestDocument alloc] initWithFrame:NSMakeRect(0, 0, 600, 500)] autorelease];
}

}  // namespace

void ScrollViewTest::SetUp() {
  LiveTest::SetUp();
  delegate = [[OvTestScrollDelegate alloc] init];
}

void ScrollViewTest::TearDown() {
  LiveTest::TearDown();
  [delegate release];
  delegate = nil;
}

HXScrollView *ScrollViewTest::makeScroll() {
  HXScrollView *scroll = bareScroll();
  [scroll setHasVerticalScroller:YES];
  [scroll setHasHorizontalScroller:YES];
  [scroll setDocumentView:document()];
  host(scroll);
  return scroll;
}

HXScrollView *ScrollViewTest::makeRelayingScroll() {
  HXScrollView *scroll = bareScroll();
  [scroll setVerticalScroller:[[NSScroller new] autorelease]];
  [scroll setHorizontalScroller:[[NSScroller new] autorelease]];
  [scroll setHasVerticalScroller:YES];
  [scroll setHasHorizontalScroller:YES];
  [scroll setDocumentView:document()];
  scroll = [NSKeyedUnarchiver
      unarchiveObjectWithData:[NSKeyedArchiver archivedDataWithRootObject:scroll]];
  host(scroll);
  return scroll;
}

void ScrollViewTest::host(HXScrollView *scroll) {
  NSWindow *window = showWindow(NSMakeSize(240, 200));
  [[window contentView] addSubview:scroll];
  [scroll setDelegate:delegate];
  pumpPending();
}

bool ScrollViewTest::dragKnob(NSScroller *scroller, const std::vector<CGFloat> &distances) {
  const bool horizontal = NSWidth([scroller bounds]) > NSHeight([scroller bounds]);
  const NSPoint start = middleOf(scroller, NSScrollerKnob);
  const auto at = [=](CGFloat distance) {
    return horizontal ? NSMakePoint(start.x + distance, start.y)
                      : NSMakePoint(start.x, start.y + distance);
  };
  // The scroll view may be gone before the end.
  NSView *view = [[scroller window] contentView];
  const auto event = [&](NSEventType type, NSPoint point) {
    return mouseEvent(type, view, [view convertPoint:point fromView:nil]);
  };
  std::vector<std::function<void()>> steps;
  NSPoint last = [scroller convertPoint:start toView:nil];
  for (CGFloat distance : distances) {
    last = [scroller convertPoint:at(distance) toView:nil];
    // The platform's loop acts on the last of all the drags that wait for it, and comes to them a
    // step late.
    for (int i = 0; i < 3; ++i) steps.push_back([=] { post(event(NSLeftMouseDragged, last)); });
  }
  steps.push_back([=] { post(event(NSLeftMouseUp, last)); });
  const bool all = runWithSteps(steps, [&] { pressThroughQueue(scroller, start); }, 0.01);
  discardPending();
  return all;
}

bool ScrollViewTest::pressAt(NSScroller *scroller, NSPoint point) {
  NSEvent *up = mouseEvent(NSLeftMouseUp, scroller, point);
  const bool all =
      runWithSteps({[=] { post(up); }}, [&] { pressThroughQueue(scroller, point); }, 0.02);
  discardPending();
  return all;
}

bool ScrollViewTest::pressPart(NSScroller *scroller, NSScrollerPart part) {
  return pressAt(scroller, middleOf(scroller, part));
}

NSPoint ScrollViewTest::middleOf(NSScroller *scroller, NSScrollerPart part) {
  const bool horizontal = NSWidth([scroller bounds]) > NSHeight([scroller bounds]);
  NSRect rect = [scroller rectForPart:part];
  // The platform's scrollers know no pages: the slot before and after the knob.
  if (part == NSScrollerDecrementPage || part == NSScrollerIncrementPage) {
    const NSRect knob = [scroller rectForPart:NSScrollerKnob];
    const NSRect slot = [scroller rectForPart:NSScrollerKnobSlot];
    const bool before = part == NSScrollerDecrementPage;
    rect = slot;
    if (horizontal) {
      rect.origin.x = before ? NSMinX(slot) : NSMaxX(knob);
      rect.size.width = before ? NSMinX(knob) - NSMinX(slot) : NSMaxX(slot) - NSMaxX(knob);
    } else {
      rect.origin.y = before ? NSMinY(slot) : NSMaxY(knob);
      rect.size.height = before ? NSMinY(knob) - NSMinY(slot) : NSMaxY(slot) - NSMaxY(knob);
    }
  }
  return NSMakePoint(NSMidX(rect), NSMidY(rect));
}

std::string layoutFault(NSScrollView *scroll) {
  std::ostringstream fault;
  const auto check = [&](NSScroller *scroller, BOOL has, const char *name) {
    if (([scroller superview] == scroll) != (has && scroller != nil)) {
      fault << name << (has ? " does not show. " : " shows. ");
    }
    if (!has || scroller == nil) return;
    if (!NSContainsRect([scroll bounds], [scroller frame])) {
      fault << name << " is outside: " << [scroller frame] << " in " << [scroll bounds] << ". ";
    }
    if (NSIntersectsRect([scroller frame], [[scroll contentView] frame])) {
      fault << name << " lies over the content. ";
    }
    if ([scroller target] != scroll) fault << name << " scrolls nothing. ";
  };
  check([scroll horizontalScroller], [scroll hasHorizontalScroller], "The horizontal scroller");
  check([scroll verticalScroller], [scroll hasVerticalScroller], "The vertical scroller");
  if ([scroll hasHorizontalScroller] && [scroll hasVerticalScroller] &&
      NSIntersectsRect([[scroll horizontalScroller] frame], [[scroll verticalScroller] frame])) {
    fault << "The scrollers lie over each other. ";
  }
  for (NSView *view in [scroll subviews]) {
    if ([view isKindOfClass:[NSScroller class]] && view != [scroll horizontalScroller] &&
        view != [scroll verticalScroller]) {
      fault << "A scroller is left over. ";
    }
  }
  return fault.str();
}

}  // namespace ov::test
