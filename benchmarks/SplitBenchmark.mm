// The split view beside the platform's: layout, drags, saving.

#import <AppKit/AppKit.h>
#import <OvAppKit/OvAppKit.h>

#include <string>
#include <vector>

#include "Benchmarks.h"
#include "Measure.h"

@interface BenchPane : NSView
@end

@implementation BenchPane
- (void)drawRect:(NSRect)rect {
  [[NSColor whiteColor] set];
  NSRectFill(rect);
}
- (BOOL)isOpaque {
  return YES;
}
@end

@interface BenchDrawer : NSObject
@end

@implementation BenchDrawer
- (void)draw:(NSNotification *)notification {
  [[[notification object] window] displayIfNeeded];
}
@end

namespace {

// A split view of either class with panes, in a window on screen.
struct SplitFixture {
  NSWindow *window;
  NSSplitView *split;

  SplitFixture(Class kind, int panes, CGFloat width) {
    window = [[NSWindow alloc] initWithContentRect:NSMakeRect(50, 50, width, 200)
                                         styleMask:NSBorderlessWindowMask
                                           backing:NSBackingStoreBuffered
                                             defer:NO];
    [window setReleasedWhenClosed:NO];
    split = [[kind alloc] initWithFrame:NSMakeRect(0, 0, width, 200)];
    [split setVertical:YES];
    for (int i = 0; i < panes; ++i) {
      [split addSubview:[[[BenchPane alloc] initWithFrame:NSMakeRect(0, 0, 20, 200)] autorelease]];
    }
    [[window contentView] addSubview:split];
    [split resizeSubviewsWithOldSize:[split bounds].size];
    [window orderFront:nil];
    [window display];
  }
  ~SplitFixture() {
    [window orderOut:nil];
    [split removeFromSuperview];
    [split release];
    [window release];
  }
  SplitFixture(const SplitFixture &) = delete;
  SplitFixture &operator=(const SplitFixture &) = delete;

  void toggleWidth(CGFloat a, CGFloat b) const {
    const CGFloat width = [split frame].size.width == a ? b : a;
    [split setFrame:NSMakeRect(0, 0, width, 200)];
  }

  NSEvent *event(NSEventType type, CGFloat x) const {
    return [NSEvent mouseEventWithType:type
                              location:[split convertPoint:NSMakePoint(x, 100) toView:nil]
                         modifierFlags:0
                             timestamp:0
                          windowNumber:[window windowNumber]
                               context:[window graphicsContext]
                           eventNumber:0
                            clickCount:1
                              pressure:1];
  }

  // Drags the divider at x to and fro and back to where it was.
  void drag(CGFloat x, int steps) const {
    for (int i = 0; i < steps; ++i) {
      [NSApp postEvent:event(NSLeftMouseDragged, x + (i % 2 == 0 ? 10 : -10)) atStart:NO];
    }
    [NSApp postEvent:event(NSLeftMouseDragged, x) atStart:NO];
    [NSApp postEvent:event(NSLeftMouseUp, x) atStart:NO];
    [split mouseDown:event(NSLeftMouseDown, x)];
  }
};

// Draws each step of a drag.
struct Drawn {
  BenchDrawer *drawer = [[BenchDrawer alloc] init];
  explicit Drawn(const SplitFixture &f) {
    [[NSNotificationCenter defaultCenter] addObserver:drawer
                                             selector:@selector(draw:)
                                                 name:NSSplitViewDidResizeSubviewsNotification
                                               object:f.split];
  }
  ~Drawn() {
    [[NSNotificationCenter defaultCenter] removeObserver:drawer];
    [drawer release];
  }
  Drawn(const Drawn &) = delete;
  Drawn &operator=(const Drawn &) = delete;
};

void pooled(const auto &body) {
  @autoreleasepool {
    body();
  }
}

void layout() {
  for (int panes : {2, 100}) {
    const CGFloat width = panes == 2 ? 600 : 3000;
    const SplitFixture ours([OvSplitView class], panes, width);
    const SplitFixture theirs([NSSplitView class], panes, width);
    const auto resize = [&](const SplitFixture &f) {
      return [&f, width] { pooled([&] { f.toggleWidth(width, width - 100); }); };
    };
    const std::string suffix = ", " + std::to_string(panes) + " panes";
    bench::row("resize" + suffix, bench::median(resize(ours)));
    bench::row("NSSplitView: resize" + suffix, bench::median(resize(theirs)));
    bench::ratio("resize : NSSplitView's" + suffix,
                 bench::medianRatio(resize(ours), resize(theirs)), 1);
    const auto drawn = [&](const SplitFixture &f) {
      return [&f, width] {
        pooled([&] {
          f.toggleWidth(width, width - 100);
          [f.window displayIfNeeded];
        });
      };
    };
    bench::ratio("resize and draw : NSSplitView's" + suffix,
                 bench::medianRatio(drawn(ours), drawn(theirs)), 1);
    const auto adjust = [&](const SplitFixture &f) {
      return [&f] { pooled([&] { [f.split adjustSubviews]; }); };
    };
    bench::ratio("adjustSubviews, nothing to do : NSSplitView's" + suffix,
                 bench::medianRatio(adjust(ours), adjust(theirs)), 1);
  }
}

void dragging() {
  constexpr int kSteps = 500;
  const SplitFixture two([OvSplitView class], 2, 600);
  const SplitFixture hundred([OvSplitView class], 100, 3000);
  const auto dragIn = [&](const SplitFixture &f) {
    return [&f] {
      pooled([&] {
        const NSRect first = [[[f.split subviews] objectAtIndex:0] frame];
        f.drag(NSMaxX(first) + 3, kSteps);
      });
    };
  };
  bench::row("500 steps of a drag, 2 panes", bench::median(dragIn(two), 7));
  bench::row("500 steps of a drag, 100 panes", bench::median(dragIn(hundred), 7));
  bench::ratio("500 steps: 100 panes : 2 panes",
               bench::medianRatio(dragIn(hundred), dragIn(two), 7), 1.2);
  for (int panes : {2, 100}) {
    const CGFloat width = panes == 2 ? 600 : 3000;
    const SplitFixture plain([OvSplitView class], panes, width);
    const SplitFixture saving([OvSplitView class], panes, width);
    [(OvSplitView *)saving.split setLayoutAutosaveName:@"Benchmark"];
    const std::string suffix = ", " + std::to_string(panes) + " panes";
    bench::row("500 steps with autosave" + suffix, bench::median(dragIn(saving), 7));
    bench::ratio("500 steps: with autosave : without" + suffix,
                 bench::medianRatio(dragIn(saving), dragIn(plain), 15), 2);
    // As a person drags: the pointer moves on when the last step has been drawn.
    const Drawn plainDrawn(plain);
    const Drawn savingDrawn(saving);
    bench::ratio("500 steps, each drawn: with autosave : without" + suffix,
                 bench::medianRatio(dragIn(saving), dragIn(plain), 15), 1.1);
    [(OvSplitView *)saving.split setLayoutAutosaveName:nil];
  }
  [OvSplitView removeLayoutUsingName:@"Benchmark"];
}

}  // namespace

void bench::split() {
  heading("Split view");
  layout();
  dragging();
}
