// Thousands of operations against a plain model of the split view: where panes and dividers
// are, what is collapsed, what is announced and saved. The model knows lists and loops; the
// platform's random numbers are made the same for both.

#import "SplitTest.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <optional>

using namespace ov::test;

namespace {

struct ModelPane {
  int id = 0;
  double x = 0, y = 0, w = 0, h = 0;
  bool collapsed = false;
};

struct ModelFrame {
  double x, y, w, h;
  bool collapsed;
};

struct ModelLayout {
  bool vertical;
  std::vector<ModelFrame> frames;
};

struct Model {
  bool vertical = true;
  double width = 300, height = 200;
  std::vector<ModelPane> panes;
  std::vector<double> dividers;
  std::vector<std::string> told;
  std::function<int()> random;
  // The delegate's answers.
  bool mayCollapse = false;
  double inset = 0;  // of both limits from what is proposed

  double own() const { return vertical ? width : height; }
  double across() const { return vertical ? height : width; }
  double thickness(const ModelPane &p) const { return vertical ? p.w : p.h; }
  double origin(const ModelPane &p) const { return vertical ? p.x : p.y; }
  void place(ModelPane &p, double at, double length) const {
    p.x = vertical ? at : 0;
    p.y = vertical ? 0 : at;
    p.w = vertical ? std::max(0.0, length) : across();
    p.h = vertical ? across() : std::max(0.0, length);
  }

  void tell(const char *what, size_t index) {
    told.push_back(std::string(what) + " " + std::to_string(index));
  }

  void setCollapsed(size_t index, bool flag) {
    if (index >= panes.size() || panes[index].collapsed == flag) return;
    panes[index].collapsed = flag;
    tell(flag ? "willCollapse" : "willExpand", index);
    layOut();
    tell(flag ? "didCollapse" : "didExpand", index);
  }

  void layOut() {
    told.push_back("willResize");
    adjust();
    updateDividers();
    for (ModelPane &p : panes) {
      if (p.collapsed) p.x = p.y = kParked;
    }
    told.push_back("didResize");
  }

  void updateDividers() {
    dividers.clear();
    double position = 0;
    for (size_t i = 0; i + 1 < panes.size(); ++i) {
      if (!panes[i].collapsed) position += thickness(panes[i]);
      dividers.push_back(position);
      position += 6;
    }
  }

  void adjust() {
    const size_t n = panes.size();
    if (n == 0) return;
    std::vector<long> share(n, 0);
    long wished = 0;
    long count = 0;
    std::optional<size_t> first;
    for (size_t i = 0; i < n; ++i) {
      if (panes[i].collapsed) continue;
      if (!first) first = i;
      share[i] = static_cast<long>(std::floor(static_cast<float>(thickness(panes[i]))));
      wished += share[i];
      count += share[i] != 0;
    }
    const float space = static_cast<float>(own()) - static_cast<float>(n - 1) * 6;
    const long available = space > 0 ? static_cast<long>(space) : 0;
    if (wished != 0) {
      const float ratio = static_cast<float>(available) / static_cast<float>(wished);
      long given = 0;
      for (long &s : share) {
        if (s == 0) continue;
        s = std::max(1L, static_cast<long>(std::floor(static_cast<float>(s) * ratio)));
        given += s;
      }
      const long step = available > given ? 1 : -1;
      long left = std::abs(available - given);
      for (long &s : share) {
        if (left == 0) break;
        if (s == 0) continue;
        const float chance = static_cast<float>(left) / static_cast<float>(count);
        if (left == count || chance * 2147483648.0 > random()) {
          s += step;
          --left;
        }
        --count;
      }
    } else {
      share[first.value_or(0)] = available;
    }

    std::optional<size_t> last;
    for (size_t i = 0; i < n; ++i) {
      if (share[i] != 0) last = i;
    }
    float position = 0;
    for (size_t i = 0; i < n; ++i) {
      if (share[i] != 0) {
        setCollapsed(i, false);
        float length = static_cast<float>(share[i]);
        if (i == *last) {
          length = std::max(
              0.0F, static_cast<float>(own()) - position - static_cast<float>(n - 1 - i) * 6);
        }
        if (length > 0) place(panes[i], position, length);
        position += length;
      }
      if (i + 1 < n) position += 6;
    }
  }

  void drag(size_t i, const std::vector<double> &pointers, double grabbedAt) {
    const bool beforeGone = panes[i].collapsed;
    const bool behindGone = panes[i + 1].collapsed;
    const double divider = dividers[i];
    const double min = beforeGone ? divider : origin(panes[i]);
    const double max = behindGone ? divider + 6 : origin(panes[i + 1]) + thickness(panes[i + 1]);
    double low = std::max(min, min + inset);
    double high = std::min(max, max - inset);
    if (low > high) {
      low = min;
      high = max;
    }
    double last = 1000000;
    for (double pointer : pointers) {
      double p = pointer + divider - grabbedAt;
      if (min == max) {
        setCollapsed(i, mayCollapse);
        setCollapsed(i + 1, mayCollapse);
        p = min;
      } else if (mayCollapse && p < min + (low - min) * 0.5) {
        setCollapsed(i + 1, false);
        setCollapsed(i, true);
        p = min;
      } else if (p < low) {
        setCollapsed(i, false);
        setCollapsed(i + 1, false);
        p = low;
      } else if (p < high) {
        setCollapsed(i, false);
        setCollapsed(i + 1, false);
      } else {
        setCollapsed(i, false);
        if (mayCollapse && p >= max - (max - high) * 0.5) {
          setCollapsed(i + 1, true);
          p = max;
        } else {
          setCollapsed(i + 1, false);
          p = high;
        }
      }
      if (p == last) continue;
      told.push_back("willResize");
      dividers[i] = p;
      move(panes[i], min, p - min);
      move(panes[i + 1], p + 6, max - (p + 6));
      told.push_back("didResize");
      last = p;
    }
  }

  void move(ModelPane &p, double at, double length) const {
    if (p.collapsed) {
      p.x = p.y = kParked;
    } else {
      place(p, at, length);
    }
  }

  ModelLayout save() const {
    ModelLayout layout{vertical, {}};
    for (const ModelPane &p : panes) layout.frames.push_back({p.x, p.y, p.w, p.h, p.collapsed});
    return layout;
  }

  void restore(const ModelLayout &layout) {
    vertical = layout.vertical;
    for (size_t i = 0; i < panes.size() && i < layout.frames.size(); ++i) {
      const ModelFrame &f = layout.frames[i];
      panes[i].x = f.x;
      panes[i].y = f.y;
      panes[i].w = f.w;
      panes[i].h = f.h;
      setCollapsed(i, f.collapsed);
    }
    layOut();
  }
};

}  // namespace

// Insets both limits, as the model does.
@interface OvTestRandomDelegate : OvTestSplitDelegate {
 @public
  const Model *model;
}
@end

@implementation OvTestRandomDelegate
- (BOOL)splitView:(NSSplitView *)splitView canCollapseSubview:(NSView *)subview {
  (void)splitView, (void)subview;
  return model->mayCollapse;
}
- (CGFloat)splitView:(NSSplitView *)splitView
    constrainMinCoordinate:(CGFloat)proposed
               ofSubviewAt:(NSInteger)index {
  (void)splitView, (void)index;
  return proposed + model->inset;
}
- (CGFloat)splitView:(NSSplitView *)splitView
    constrainMaxCoordinate:(CGFloat)proposed
               ofSubviewAt:(NSInteger)index {
  (void)splitView, (void)index;
  return proposed - model->inset;
}
@end

namespace {

class SplitRandomOperations : public SplitTest {
 protected:
  void run(Random &random, int operations, int mostPanes);
  void compare();
  void doOne(Random &random, int mostPanes);

  OvSplitView *split = nil;
  Model model;
  std::vector<std::pair<NSDictionary *, ModelLayout>> saved;
  std::string operation;
  int nextId = 0;
};

void SplitRandomOperations::compare() {
  ASSERT_EQ([split isVertical], model.vertical);
  NSArray *panes = [split subviews];
  ASSERT_EQ([panes count], model.panes.size());
  for (NSUInteger i = 0; i < [panes count]; ++i) {
    const ModelPane &p = model.panes[i];
    ASSERT_EQ([[panes objectAtIndex:i] frame], NSMakeRect(p.x, p.y, p.w, p.h)) << "pane " << i;
    ASSERT_EQ([split isSubviewCollapsedAtIndex:(uint32_t)i], p.collapsed) << "pane " << i;
  }
  const std::vector<NSRect> rects = dividers(split);
  ASSERT_EQ(rects.size(), model.dividers.size());
  for (size_t i = 0; i < rects.size(); ++i) {
    ASSERT_EQ(model.vertical ? rects[i].origin.x : rects[i].origin.y, model.dividers[i])
        << "divider " << i;
  }
  ASSERT_EQ(journal(), model.told);
}

void SplitRandomOperations::doOne(Random &random, int mostPanes) {
  const auto count = static_cast<int64_t>(model.panes.size());
  switch (random.integer(0, 11)) {
    case 0:
    case 1:
    case 2: {
      const auto index = static_cast<size_t>(random.integer(0, count));
      const bool flag = random.oneIn(2);
      operation = (flag ? "collapse " : "expand ") + std::to_string(index);
      model.setCollapsed(index, flag);
      [split setSubviewAtIndex:(uint32_t)index isCollapsed:flag];
      break;
    }
    case 3:
    case 4: {
      // Halves and quarters, which a float holds; now and then smaller than its dividers.
      model.width = static_cast<double>(random.integer(random.oneIn(8) ? 1 : 400, 4000)) / 4;
      model.height = static_cast<double>(random.integer(400, 4000)) / 4;
      operation = "resize to " + text(model.width) + " x " + text(model.height);
      const NSSize size = NSMakeSize(model.width, model.height);
      if (NSEqualSizes([split frame].size, size)) break;
      model.layOut();
      [split setFrame:NSMakeRect((CGFloat)random.integer(0, 9), 0, size.width, size.height)];
      break;
    }
    case 5:
    case 6:
    case 7: {
      if (count < 2) break;
      const auto index = static_cast<size_t>(random.integer(0, count - 2));
      // The first divider under the pointer is the one that is dragged.
      const double grabbedAt = model.dividers[index] + 3;
      if ([split _dividerIndexUnderMouse:NSMakePoint(grabbedAt, grabbedAt)] != (NSInteger)index) {
        break;
      }
      operation = "drag " + std::to_string(index) + " by";
      std::vector<double> pointers = {grabbedAt};
      std::vector<CGFloat> distances;
      for (int64_t n = random.integer(0, 6); n > 0; --n) {
        const auto distance = static_cast<CGFloat>(random.integer(-400, 400)) / 2;
        operation += " " + text(distance);
        distances.push_back(distance);
        pointers.push_back(grabbedAt + distance);
      }
      model.drag(index, pointers, grabbedAt);
      drag(split, index, distances);
      break;
    }
    case 8: {
      if (count >= mostPanes) break;
      const NSRect frame = NSMakeRect(0, 0, (CGFloat)random.integer(0, 600) / 4,
                                      (CGFloat)random.integer(0, 600) / 4);
      const bool first = random.oneIn(3) && count > 0;
      operation = std::string("add ") + (first ? "first " : "last ") + text(frame);
      ModelPane pane{++nextId, 0, 0, frame.size.width, frame.size.height, false};
      model.panes.insert(first ? model.panes.begin() : model.panes.end(), pane);
      NSView *view = [[[NSView alloc] initWithFrame:frame] autorelease];
      [split addSubview:view positioned:first ? NSWindowBelow : NSWindowAbove relativeTo:nil];
      model.layOut();
      [split resizeSubviewsWithOldSize:[split bounds].size];
      break;
    }
    case 9: {
      if (count == 0) break;
      const auto index = static_cast<size_t>(random.integer(0, count - 1));
      operation = "remove " + std::to_string(index);
      model.panes.erase(model.panes.begin() + (ptrdiff_t)index);
      [pane(split, index) removeFromSuperview];
      model.layOut();
      [split resizeSubviewsWithOldSize:[split bounds].size];
      break;
    }
    case 10: {
      operation = "turn";
      model.vertical = !model.vertical;
      [split setVertical:model.vertical];
      model.layOut();
      [split resizeSubviewsWithOldSize:[split bounds].size];
      break;
    }
    default: {
      if (saved.empty() || random.oneIn(2)) {
        operation = "save";
        if (saved.size() == 4) {
          [saved.front().first release];
          saved.erase(saved.begin());
        }
        saved.emplace_back([[split stringWithSavedLayout] retain], model.save());
      } else {
        const auto index =
            static_cast<size_t>(random.integer(0, static_cast<int64_t>(saved.size()) - 1));
        operation = "restore " + std::to_string(index);
        model.restore(saved[index].second);
        [split setLayoutFromString:saved[index].first];
      }
      model.mayCollapse = random.oneIn(2);
      model.inset = static_cast<double>(random.integer(-10, 80)) / 2;
    }
  }
}

void SplitRandomOperations::run(Random &random, int operations, int mostPanes) {
  split = makeSplit({});
  OvTestRandomDelegate *insets = [[[OvTestRandomDelegate alloc] init] autorelease];
  insets->model = &model;
  insets->has = {"splitView:canCollapseSubview:",
                 "splitView:constrainMinCoordinate:ofSubviewAt:",
                 "splitView:constrainMaxCoordinate:ofSubviewAt:",
                 "splitViewWillExpandSubview:",
                 "splitViewDidExpandSubview:",
                 "splitViewWillCollapseSubview:",
                 "splitViewDidCollapseSubview:",
                 "splitViewWillResizeSubviews:",
                 "splitViewDidResizeSubviews:"};
  [split setDelegate:insets];
  LogCapture log;  // the platform complains of each pane that a drag leaves less than nothing
  for (int i = 0; i < operations && !HasFatalFailure(); ++i) {
    @autoreleasepool {
      // Both sides draw the same numbers, one after the other.
      const auto seed = static_cast<unsigned>(random.integer(1, 1000000));
      std::vector<int> drawn;
      size_t used = 0;
      model.random = [&] {
        if (used == drawn.size()) {
          srand(seed);
          drawn.clear();
          for (size_t k = 0; k < used + 64; ++k) drawn.push_back(rand());
          srand(seed);
        }
        return drawn[used++];
      };
      srand(seed);
      // The platform draws some for its windows, too.
      beforePress = [&] { srand(seed); };
      journal().clear();
      model.told.clear();
      operation = "nothing";
      doOne(random, mostPanes);
      SCOPED_TRACE("operation " + std::to_string(i) + ": " + operation);
      compare();
    }
  }
  [split setDelegate:nil];
  for (auto &[dictionary, layout] : saved) [dictionary release];
  saved.clear();
}

TEST_F(SplitRandomOperations, AgreeWithAPlainModel) {
  Random random;
  SCOPED_TRACE(random.describe());
  run(random, 10000, 7);
}

TEST_F(SplitRandomOperations, WithManyPanes) {
  Random random;
  SCOPED_TRACE(random.describe());
  run(random, 2000, 100);
}

}  // namespace
