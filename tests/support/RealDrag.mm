#import "RealDrag.h"

#import "Events.h"
#import "RunLoop.h"
#import "XTest.h"

namespace ov::test {

namespace {

// How often the platform's drag loop looks at the pointer is its own affair (about 30 times
// a second); each stop lasts for several looks.
constexpr double kStopInterval = 0.1;

void moveRealPointer(NSView* view, NSPoint point) {
  NSPoint p = screenPoint(view, point);
  xtest::movePointer(static_cast<int>(p.x), xtest::screenHeight() - static_cast<int>(p.y));
}

bool dragWithPostedEvents(NSView* view, NSPoint from, const std::vector<DragStop>& stops,
                          NSUInteger flags, NSPoint first) {
  warpPointer(view, from);
  pumpPending();
  std::vector<std::function<void()>> steps;
  for (const DragStop& stop : stops) {
    steps.push_back([stop] { warpPointer(stop.view, stop.point); });
  }
  DragStop last = stops.back();
  steps.push_back([=] { post(mouseEvent(NSLeftMouseUp, last.view, last.point, flags)); });
  return runWithSteps(
      steps,
      [&] {
        press(view, from, flags);
        dragTo(view, first, flags);
      },
      kStopInterval);
}

bool dragWithRealPointer(NSView* view, NSPoint from, const std::vector<DragStop>& stops,
                         NSPoint first) {
  moveRealPointer(view, from);
  pumpPending();
  bool released = false;
  std::vector<std::function<void()>> steps;
  for (const DragStop& stop : stops) {
    steps.push_back([stop] { moveRealPointer(stop.view, stop.point); });
  }
  steps.push_back([&] {
    if (released) return;
    released = true;
    xtest::releaseButton();
  });
  return runWithSteps(
      steps,
      [&] {
        xtest::pressButton();
        pumpPending();
        // The first move starts the drag, which blocks inside the pump.
        moveRealPointer(view, first);
        pumpUntil([&] { return released; });
      },
      kStopInterval);
}

}  // namespace

bool dragThrough(NSView* view, NSPoint from, const std::vector<DragStop>& stops, DragDriver driver,
                 NSUInteger flags, NSSize firstMove) {
  NSPoint first = NSMakePoint(from.x + firstMove.width, from.y + firstMove.height);
  bool done = driver == DragDriver::posted ? dragWithPostedEvents(view, from, stops, flags, first)
                                           : dragWithRealPointer(view, from, stops, first);
  // What the last step posted too often.
  discardPending();
  return done;
}

}  // namespace ov::test
