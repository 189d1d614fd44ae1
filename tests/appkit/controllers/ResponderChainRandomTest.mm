// Thousands of operations on windows, views and their responders against a plain model: which
// responders stand in which chain, and in what order.

#include <algorithm>

#import "ResponderTest.h"

using namespace ov::test;

@interface RandomLeaf : NSView
@end
@implementation RandomLeaf
@end
@interface RandomTop : RandomLeaf
@end
@implementation RandomTop
- (void)viewDidMoveToWindow {
  [super viewDidMoveToWindow];
}
@end

namespace {

constexpr int kNone = -1;
constexpr int kWindows = 3;
constexpr int kViews = 7;
constexpr int kSteps = 4000;

class ResponderChains : public ResponderTest {
 protected:
  struct Responder {
    HXDynamicResponder *object;
    int view;
    int window;
    NSInteger ordering;
    bool enabled;
    int number;
  };
  struct View {
    NSView *object;
    int parent = kNone;  // another view
    int window = kNone;  // or the content of a window
    std::vector<int> children;
  };
  struct Window {
    NSWindow *object;
    NSWindowController *controller = nil;
    std::vector<int> chain;     // numbers of responders
    std::vector<int> children;  // views
  };

  void SetUp() override {
    ResponderTest::SetUp();
    for (Window &window : windows) window = {ownedWindow(), nil, {}, {}};
    for (int i = 0; i < kViews; ++i) {
      Class classes[] = {[RandomLeaf class], [RandomTop class], [NSTextField class]};
      views[i].object = [[classes[i % 3] alloc] initWithFrame:NSMakeRect(0, 0, 9, 9)];
    }
  }
  void TearDown() override {
    for (Responder &responder : responders) [responder.object release];
    for (Window &window : windows) {
      [window.controller release];
      [window.object release];
    }
    for (View &view : views) [view.object release];
    ResponderTest::TearDown();
  }

  // --- The model

  Responder &byNumber(int number) {
    return *std::find_if(responders.begin(), responders.end(),
                         [&](const Responder &r) { return r.number == number; });
  }
  void join(Responder &r) {
    if (r.window == kNone) return;
    std::vector<int> &chain = windows[r.window].chain;
    auto place = std::find_if(chain.begin(), chain.end(),
                              [&](int other) { return r.ordering <= byNumber(other).ordering; });
    chain.insert(place, r.number);
  }
  void leave(Responder &r) {
    if (r.window != kNone) std::erase(windows[r.window].chain, r.number);
  }
  void setWindow(Responder &r, int window) {
    if (r.window == window) return;
    if (r.enabled) leave(r);
    r.window = window;
    if (r.enabled) join(r);
  }
  int windowOf(int view) const {
    while (views[view].parent != kNone) view = views[view].parent;
    return views[view].window;
  }
  bool isUnder(int view, int ancestor) const {
    for (; view != kNone; view = views[view].parent) {
      if (view == ancestor) return true;
    }
    return false;
  }
  std::vector<int> subtree(int view) const {
    std::vector<int> all = {view};
    for (int child : views[view].children) {
      for (int below : subtree(child)) all.push_back(below);
    }
    return all;
  }
  void willLeave(int root) {
    const int window = windowOf(root);
    for (int view : subtree(root)) {
      for (Responder &r : responders) {
        if (r.view == view && r.enabled && r.window == window) setWindow(r, kNone);
      }
    }
  }
  void didArrive(int root) {
    const int window = windowOf(root);
    if (window == kNone) return;
    for (int view : subtree(root)) {
      // Among equals the order of the table decides.
      NSArray *instances = [HXViewDynamicResponder _instancesForView:views[view].object];
      for (HXViewDynamicResponder *object in [instances reverseObjectEnumerator]) {
        for (Responder &r : responders) {
          if (r.object == object) setWindow(r, window);
        }
      }
    }
  }
  void detach(int view) {
    if (views[view].parent != kNone) std::erase(views[views[view].parent].children, view);
    if (views[view].window != kNone) std::erase(windows[views[view].window].children, view);
    views[view].parent = views[view].window = kNone;
  }

  // --- Operations

  void create(Random &random) {
    if (responders.size() > 12) return;
    const NSInteger ordering = random.integer(-2, 2);
    Responder r = {nil, kNone, kNone, ordering, false, ++numbers};
    if (random.oneIn(3)) {
      r.window = static_cast<int>(random.integer(kNone, kWindows - 1));
      NSWindow *window = r.window == kNone ? nil : windows[r.window].object;
      r.object = [[HXDynamicResponder alloc] initWithWindow:window ordering:ordering];
    } else {
      r.view = static_cast<int>(random.integer(0, kViews - 1));
      r.window = windowOf(r.view);
      r.object = [[HXViewDynamicResponder alloc] initWithView:views[r.view].object
                                                     ordering:ordering];
    }
    responders.push_back(r);
    did("create " + std::to_string(r.number));
  }
  void destroy(Random &random) {
    const size_t index = pickResponder(random);
    if (responders[index].enabled) leave(responders[index]);
    did("destroy " + std::to_string(responders[index].number));
    [responders[index].object release];
    responders.erase(responders.begin() + static_cast<long>(index));
  }
  void enable(Random &random) {
    Responder &r = responders[pickResponder(random)];
    const bool on = !random.oneIn(3);
    if (on != r.enabled) on ? join(r) : leave(r);
    r.enabled = on;
    [r.object setEnabled:on];
    did((on ? "enable " : "disable ") + std::to_string(r.number));
  }
  void order(Random &random) {
    Responder &r = responders[pickResponder(random)];
    const NSInteger ordering = random.integer(-2, 2);
    if (ordering != r.ordering) {
      r.ordering = ordering;
      if (r.enabled && r.window != kNone) {
        const std::vector<int> old = std::exchange(windows[r.window].chain, {});
        for (int number : old) join(byNumber(number));
      }
    }
    [r.object setOrdering:ordering];
    did("order " + std::to_string(r.number) + " " + std::to_string(ordering));
  }
  void changeWindow(Random &random) {
    Responder &r = responders[pickResponder(random)];
    if (r.view != kNone) return;
    const int window = static_cast<int>(random.integer(kNone, kWindows - 1));
    setWindow(r, window);
    [r.object setWindow:window == kNone ? nil : windows[window].object];
    did("window " + std::to_string(r.number) + " " + std::to_string(window));
  }
  void moveView(Random &random) {
    const int view = static_cast<int>(random.integer(0, kViews - 1));
    willLeave(view);
    if (random.oneIn(4)) {
      detach(view);
      [views[view].object removeFromSuperview];
      did("remove view " + std::to_string(view));
      return;
    }
    detach(view);
    NSView *parent = nil;
    const int other = static_cast<int>(random.integer(0, kViews - 1));
    if (random.oneIn(2) && !isUnder(other, view)) {
      views[view].parent = other;
      views[other].children.push_back(view);
      parent = views[other].object;
      did("view " + std::to_string(view) + " into view " + std::to_string(other));
    } else {
      const int window = static_cast<int>(random.integer(0, kWindows - 1));
      views[view].window = window;
      windows[window].children.push_back(view);
      parent = [windows[window].object contentView];
      did("view " + std::to_string(view) + " into window " + std::to_string(window));
    }
    [parent addSubview:views[view].object];
    didArrive(view);
  }
  void changeController(Random &random) {
    Window &window = windows[random.integer(0, kWindows - 1)];
    NSWindowController *old = window.controller;
    if (random.oneIn(2)) [old setWindow:nil];
    [old release];
    window.controller =
        random.oneIn(3) ? nil : [[NSWindowController alloc] initWithWindow:window.object];
    did("controller");
  }
  void closeWindow(Random &random) {
    [windows[random.integer(0, kWindows - 1)].object close];
    did("close");
  }
  void destroyWindow(Random &random) {
    const int index = static_cast<int>(random.integer(0, kWindows - 1));
    Window &window = windows[index];
    for (Responder &r : responders) {
      if (r.window == index) r.window = kNone;
    }
    while (!window.children.empty()) detach(window.children.back());
    [window.controller release];
    EXPECT_EQ([window.object retainCount], 1u) << "somebody else keeps the window";
    [window.object release];
    window = {ownedWindow(), nil, {}, {}};
    did("destroy window " + std::to_string(index));
  }

  void step(Random &random) {
    const int64_t kind = random.integer(1, 100);
    if (responders.empty() || kind <= 12) {
      create(random);
    } else if (kind <= 20) {
      destroy(random);
    } else if (kind <= 45) {
      enable(random);
    } else if (kind <= 57) {
      order(random);
    } else if (kind <= 65) {
      changeWindow(random);
    } else if (kind <= 88) {
      moveView(random);
    } else if (kind <= 94) {
      changeController(random);
    } else if (kind <= 96) {
      closeWindow(random);
    } else {
      destroyWindow(random);
    }
  }

  void compare() {
    for (const Responder &r : responders) {
      name(r.object, std::to_string(r.number));
      EXPECT_EQ([r.object window], r.window == kNone ? nil : windows[r.window].object) << r.number;
      EXPECT_EQ([r.object enabled], r.enabled) << r.number;
    }
    for (const Window &window : windows) {
      std::string expected;
      for (int number : window.chain) expected += std::to_string(number) + " ";
      if (window.controller) expected += "controller ";
      EXPECT_EQ(chain(window.object), expected + "app");
    }
  }

  size_t pickResponder(Random &random) {
    return static_cast<size_t>(random.integer(0, static_cast<int64_t>(responders.size()) - 1));
  }
  void did(const std::string &what) { script.push_back(what); }
  std::string lastSteps() const {
    std::string text = "the last steps:";
    for (size_t i = script.size() > 25 ? script.size() - 25 : 0; i < script.size(); ++i) {
      text += "\n  " + script[i];
    }
    return text;
  }

  Window windows[kWindows];
  View views[kViews];
  std::vector<Responder> responders;
  std::vector<std::string> script;
  int numbers = 0;
};

TEST_F(ResponderChains, RandomOperationsAgreeWithTheModel) {
  Random random;
  SCOPED_TRACE(random.describe());
  for (int i = 0; i < kSteps; ++i) {
    @autoreleasepool {
      step(random);
    }
    @autoreleasepool {
      compare();
    }
    ASSERT_FALSE(HasFailure()) << "after step " << i << ", " << lastSteps();
  }
}

}  // namespace
