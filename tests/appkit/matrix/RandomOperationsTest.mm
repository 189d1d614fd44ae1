// Thousands of operations against a plain model of the grid: what is selected, where items
// are, what is announced and to whom. The model knows sets and loops, and nothing else.

#import "GridTest.h"

#include <algorithm>
#include <cmath>

using namespace ov::test;

namespace {

using Set = std::set<NSUInteger>;
constexpr NSUInteger kNone = NSNotFound;

Set difference(const Set& a, const Set& b) {
  Set result;
  std::set_difference(a.begin(), a.end(), b.begin(), b.end(), std::inserter(result, result.end()));
  return result;
}

Set range(NSUInteger first, NSUInteger last) {
  Set set;
  for (NSUInteger i = first; i <= last; i++) set.insert(i);
  return set;
}

std::string text(const Set& set) {
  std::string all;
  for (NSUInteger i : set) all += (all.empty() ? "" : " ") + std::to_string(i);
  return all;
}

struct Record {
  Set set;
  NSUInteger first = kNone, last = kNone;

  NSUInteger lowest() const { return set.empty() ? kNone : *set.begin(); }
  NSUInteger highest() const { return set.empty() ? kNone : *set.rbegin(); }
  void add(NSUInteger i) {
    set.insert(i);
    if (first == kNone) first = i;
    last = i;
  }
  void add(const Set& s) {
    set.insert(s.begin(), s.end());
    if (first == kNone) first = *s.begin();
    last = *s.rbegin();
  }
  void addRange(NSUInteger count) {
    for (NSUInteger i = 0; i < count; i++) set.insert(i);
    if (first == kNone) first = lowest();
    if (last == kNone) last = highest();
  }
  void remove(const Set& s) {
    for (NSUInteger i : s) set.erase(i);
    if (!set.contains(first)) first = lowest();
    if (!set.contains(last)) last = highest();
  }
  static Record only(NSUInteger i) { return {{i}, i, i}; }
  static Record of(const Set& s) {
    Record r{s};
    r.first = r.lowest();
    r.last = r.highest();
    return r;
  }
};

struct Model {
  bool otherGrid = false;
  bool sideways = false;
  NSSize cell = {64, 64}, spacing = {1, 1}, frame = {200, 200};
  NSUInteger items = 0, columns = 0, rows = 0;
  Record selection;
  bool multiple = true, empty = true;
  int click = 0, alternate = 1, drag = 0, alternateDrag = 1;
  std::function<bool(NSUInteger)> may = [](NSUInteger) { return true; };
  // What the world hears.
  std::vector<std::string> told;

  // --- Layout
  static NSUInteger fitting(CGFloat length, CGFloat cell, CGFloat gap, NSUInteger items) {
    if (items == 0) return 0;
    if (!(length > cell)) return 1;
    CGFloat n = std::trunc((length - cell) / (cell + gap) + 1);
    return std::min<NSUInteger>(items, static_cast<NSUInteger>(n));
  }
  static CGFloat content(NSUInteger n, CGFloat cell, CGFloat gap) {
    return n ? static_cast<CGFloat>(n) * cell + static_cast<CGFloat>(n - 1) * gap : 0;
  }
  void layOut() {
    if (sideways) {
      rows = fitting(frame.height, cell.height, spacing.height, items);
      columns = rows ? (items + rows - 1) / rows : 0;
      frame.width = content(columns, cell.width, spacing.width);
    } else {
      columns = fitting(frame.width, cell.width, spacing.width, items);
      rows = columns ? (items + columns - 1) / columns : 0;
      frame.height = content(rows, cell.height, spacing.height);
    }
  }
  NSUInteger itemAt(NSUInteger column, NSUInteger row) const {
    NSUInteger i = row * columns + column;
    return i < items ? i : kNone;
  }
  NSUInteger hit(NSPoint p) const {
    NSUInteger column = kNone, row = kNone;
    for (NSUInteger c = 0; c < columns; c++) {
      CGFloat x = static_cast<CGFloat>(c) * (cell.width + spacing.width);
      if (x <= p.x && p.x < x + cell.width) column = c;
    }
    for (NSUInteger r = 0; r < rows; r++) {
      CGFloat y = static_cast<CGFloat>(r) * (cell.height + spacing.height);
      if (y <= p.y && p.y < y + cell.height) row = r;
    }
    return column == kNone || row == kNone ? kNone : itemAt(column, row);
  }
  static NSRange covered(CGFloat min, CGFloat max, CGFloat cell, CGFloat gap, NSUInteger count) {
    NSUInteger first = 0, end = count;
    while (first < count && !(static_cast<CGFloat>(first) * (cell + gap) + cell > min)) first++;
    while (end > 0 && !(static_cast<CGFloat>(end - 1) * (cell + gap) < max)) end--;
    return first < end ? NSMakeRange(first, end - first) : NSMakeRange(0, 0);
  }
  Set block(NSRange c, NSRange r) const {
    Set set;
    for (NSUInteger row = r.location; row < NSMaxRange(r); row++) {
      NSUInteger start = itemAt(c.location, row);
      if (start == kNone) continue;
      NSUInteger length = c.length;
      if (row == rows - 1) length = std::min(length, items - start);
      for (NSUInteger i = 0; i < length; i++) set.insert(start + i);
    }
    return set;
  }

  // --- Selection
  void changed() { told.push_back("changed"); }
  void didSelect(const Set& s) { told.push_back("didSelectItems " + text(s)); }
  void didSelect(NSUInteger i) { told.push_back("didSelect " + std::to_string(i)); }

  void reload(NSUInteger count) {
    items = count;
    layOut();
    if (!selection.set.empty()) {
      selection = {};
      changed();
    }
  }
  void select(NSUInteger i, bool extend) {
    if (!extend) selection = {};
    if (selection.set.contains(i)) return;
    selection.add(i);
    changed();
  }
  void select(const Set& s) {
    if (s == selection.set) return;
    selection = Record::of(s);
    changed();
  }
  void selectAll() {
    if (!multiple || selection.set.size() >= items) return;
    selection.addRange(items);
    changed();
  }
  void deselectAll() {
    if (!empty || selection.set.empty()) return;
    selection = {};
    changed();
  }
  void setMultiple(bool flag) {
    multiple = flag;
    if (flag || selection.set.size() < 2) return;
    selection = Record::only(selection.last);
    changed();
  }
  void setEmpty(bool flag) {
    empty = flag;
    if (flag || !selection.set.empty() || items == 0) return;
    selection = Record::only(0);
    changed();
  }

  Set shiftSet(NSUInteger i, NSUInteger flags) const {
    int behavior = flags & kOption ? alternate : click;
    if (behavior == 0) {
      NSUInteger a = selection.first;
      NSUInteger c0 = std::min(a % columns, i % columns), c1 = std::max(a % columns, i % columns);
      NSUInteger r0 = std::min(a / columns, i / columns), r1 = std::max(a / columns, i / columns);
      return block(NSMakeRange(c0, c1 - c0 + 1), NSMakeRange(r0, r1 - r0 + 1));
    }
    if (behavior != 1) return {};
    if (otherGrid && selection.lowest() <= i) return range(selection.lowest(), i);
    return range(std::min(selection.last, i), std::max(selection.last, i));
  }

  void clickAt(NSUInteger i, NSUInteger flags) {
    if (i == kNone) return deselectAll();
    if (flags & kShift) {
      shiftClick(i, flags);
    } else if (flags & kCommand) {
      if (selection.set.contains(i)) {
        selection.remove({i});
        changed();
      } else if (may(i)) {
        selection.add(i);
        didSelect(i);
        changed();
      }
    } else if (selection.set.contains(i)) {
      if (selection.set.size() > 1) {
        selection = Record::only(i);
        changed();
      }
    } else if (may(i)) {
      selection = Record::only(i);
      didSelect(i);
      changed();
    }
    told.push_back("clicked " + std::to_string(i));
  }
  void shiftClick(NSUInteger i, NSUInteger flags) {
    if (selection.set.empty()) {
      if (!may(i)) return;
      selection.add(i);
      didSelect(i);
      return changed();
    }
    Set c = shiftSet(i, flags);
    Set fresh = difference(c, selection.set);
    std::erase_if(fresh, [&](NSUInteger n) { return !may(n); });
    if (!fresh.empty()) {
      selection.add(c);
      didSelect(fresh);
    }
    Set gone = difference(selection.set, c);
    selection.remove(gone);
    if (!fresh.empty() || !gone.empty()) changed();
  }

  // --- A rubber band
  Record before;
  NSPoint pressed = {0, 0};
  NSUInteger flags = 0;
  NSRange bandColumns = {0, 0}, bandRows = {0, 0};

  void press(NSPoint p, NSUInteger f) {
    before = selection;
    pressed = p;
    flags = f;
    bandColumns = bandRows = NSMakeRange(0, 0);
  }
  void dragStep(NSPoint p) {
    NSRect b = NSMakeRect(std::min(p.x, pressed.x), std::min(p.y, pressed.y),
                          std::abs(p.x - pressed.x), std::abs(p.y - pressed.y));
    NSRange c = {0, 0}, r = {0, 0};
    if (b.size.width > 0 && b.size.height > 0) {
      c = covered(NSMinX(b), NSMaxX(b), cell.width, spacing.width, columns);
      r = covered(NSMinY(b), NSMaxY(b), cell.height, spacing.height, rows);
    }
    if (NSEqualRanges(c, bandColumns) && NSEqualRanges(r, bandRows)) return;
    bandColumns = c;
    bandRows = r;
    Record next = combined(dragSet(c, r));
    Set fresh = difference(next.set, selection.set), gone = difference(selection.set, next.set);
    if (!fresh.empty()) didSelect(fresh);
    if (fresh.empty() && gone.empty()) return;
    selection = next;
    changed();
  }
  Set dragSet(NSRange c, NSRange r) const {
    int behavior = flags & kOption ? alternateDrag : drag;
    if (behavior == 0) return block(c, r);
    if (behavior != 1 || c.length == 0 || r.length == 0) return {};
    NSUInteger s = itemAt(c.location, r.location);
    NSUInteger e = itemAt(NSMaxRange(c) - 1, NSMaxRange(r) - 1);
    if (s == kNone && e == kNone) return {};
    return range(s == kNone ? 0 : s, e == kNone ? items - 1 : e);
  }
  Record combined(const Set& d) const {
    bool shift = flags & kShift, command = flags & kCommand;
    if (otherGrid && shift) {
      shift = false;
      command = true;
    }
    Record next;
    if (shift) {
      next = before;
      for (NSUInteger i : d) {
        if (!next.set.contains(i) && may(i)) next.add(i);
      }
    } else if (command) {
      next = before;
      for (NSUInteger i : d) {
        if (next.set.contains(i)) {
          next.remove({i});
        } else if (may(i)) {
          next.add(i);
        }
      }
    } else {
      for (NSUInteger i : d) {
        if (selection.set.contains(i) || may(i)) next.add(i);
      }
    }
    return next;
  }
};

class GridRandomOperations : public GridTest, public testing::WithParamInterface<bool> {
 protected:
  void compare() {
    Lines told = journal().of({"changed", "didSelect", "didSelectItems", "clicked"});
    // Where the announcement stands among the notices of one change is not promised.
    auto sorted = [](Lines lines) {
      std::sort(lines.begin(), lines.end());
      return lines;
    };
    ASSERT_EQ(sorted(told), sorted(model.told));
    ASSERT_EQ(selection(grid), text(model.selection.set));
    ASSERT_EQ([[grid _selectionInfo] firstSelectionIndex], model.selection.first);
    ASSERT_EQ([[grid _selectionInfo] lastSelectionIndex], model.selection.last);
    ASSERT_EQ([grid numberOfItems], model.items);
    ASSERT_EQ([grid numberOfColumns], model.columns);
    ASSERT_EQ([grid numberOfRows], model.rows);
    ASSERT_EQ([grid frame].size, model.frame);
    for (int i = 0; i < 3; i++) {
      NSPoint p = randomPoint();
      ASSERT_EQ([grid itemIndexAtPoint:p], model.hit(p)) << p;
    }
  }

  NSPoint randomPoint() {
    return NSMakePoint(std::floor(random.real(-20, 420)), std::floor(random.real(-20, 420)));
  }
  NSUInteger randomItem() {
    return static_cast<NSUInteger>(random.integer(0, static_cast<int64_t>(model.items) + 2));
  }
  Set randomSet() {
    Set set;
    for (int64_t n = random.integer(0, 8); n > 0; n--) set.insert(randomItem());
    return set;
  }
  NSUInteger randomFlags() {
    return random.pick<NSUInteger>({0, 0, kShift, kShift, kCommand, kOption, kShift | kOption,
                                    kCommand | kOption, kShift | kCommand});
  }

  void say(const std::string& line) {
    script.push_back(line);
    if (script.size() > 40) script.erase(script.begin());
  }

  void operate();
  void layOutSomehow();
  void clickSomewhere();
  void dragABand();

  void send(NSEventType type, NSPoint p, NSUInteger flags) {
    NSEvent* event = mouseEvent(type, grid, p, flags);
    if (type == NSLeftMouseDown) [grid mouseDown:event];
    if (type == NSLeftMouseDragged) [grid mouseDragged:event];
    if (type == NSLeftMouseUp) [grid mouseUp:event];
  }

  Random random;
  HXMatrixView* grid = nil;
  Model model;
  std::vector<std::string> script;
};

void GridRandomOperations::layOutSomehow() {
  switch (random.integer(0, 4)) {
    case 0:
      model.cell = NSMakeSize(static_cast<CGFloat>(random.integer(5, 80)),
                              static_cast<CGFloat>(random.integer(5, 80)) + 0.5);
      say("setCellSize " + std::to_string(model.cell.width) + " " +
          std::to_string(model.cell.height));
      [grid setCellSize:model.cell];
      model.layOut();
      break;
    case 1:
      model.spacing = NSMakeSize(static_cast<CGFloat>(random.integer(-3, 9)),
                                 static_cast<CGFloat>(random.integer(0, 4)) * 0.25);
      say("setIntercellSpacing " + std::to_string(model.spacing.width) + " " +
          std::to_string(model.spacing.height));
      [grid setIntercellSpacing:model.spacing];
      model.layOut();
      break;
    case 2:
      model.frame = NSMakeSize(static_cast<CGFloat>(random.integer(0, 400)),
                               static_cast<CGFloat>(random.integer(0, 400)));
      say("setFrameSize " + std::to_string(model.frame.width) + " " +
          std::to_string(model.frame.height));
      if (random.oneIn(2)) {
        [grid setFrameSize:model.frame];
      } else {
        NSRect frame = [grid frame];
        frame.size = model.frame;
        [grid setFrame:frame];
      }
      model.layOut();
      break;
    case 3:
      // The mode alone changes nothing; a size follows at once, or the layouts would differ by
      // what the view was before.
      model.sideways = !model.sideways;
      model.frame = NSMakeSize(150, 150);
      say(model.sideways ? "sideways, 150 x 150" : "downward, 150 x 150");
      [grid setAutoFitHorizentally:model.sideways];
      [grid setFrameSize:model.frame];
      model.layOut();
      break;
    default: {
      NSUInteger count =
          static_cast<NSUInteger>(random.oneIn(4) ? random.integer(0, 3) : random.integer(0, 70));
      say("reload " + std::to_string(count));
      items->count = count;
      [grid reloadData];
      model.reload(count);
    }
  }
}

void GridRandomOperations::clickSomewhere() {
  NSUInteger flags = randomFlags();
  // Mostly on an item.
  NSPoint p = randomPoint();
  if (!random.oneIn(4) && model.items > 0) {
    NSUInteger i =
        static_cast<NSUInteger>(random.integer(0, static_cast<int64_t>(model.items) - 1));
    p = middle(grid, i);
  }
  NSUInteger hit = model.hit(p);
  say("click " + ov::test::text(hit) + " flags " + std::to_string(flags));
  send(NSLeftMouseDown, p, flags);
  send(NSLeftMouseUp, p, flags);
  model.clickAt(hit, flags);
}

void GridRandomOperations::dragABand() {
  NSUInteger flags = randomFlags();
  NSPoint from = randomPoint();
  say("press " + ov::test::text(from) + " flags " + std::to_string(flags));
  send(NSLeftMouseDown, from, flags);
  model.press(from, flags);
  NSPoint p = from;
  for (int64_t n = random.integer(1, 5); n > 0; n--) {
    p = random.oneIn(6) ? from : randomPoint();
    say("drag " + ov::test::text(p));
    send(NSLeftMouseDragged, p, 0);
    model.dragStep(p);
  }
  say("release");
  send(NSLeftMouseUp, p, 0);
}

void GridRandomOperations::operate() {
  bool flag = random.oneIn(2);
  switch (random.integer(0, 15)) {
    case 0:
    case 1:
      return layOutSomehow();
    case 2: {
      NSUInteger i = randomItem();
      say("selectItem " + std::to_string(i) + (flag ? " extending" : ""));
      [grid selectItem:i byExtendingSelection:flag];
      return model.select(i, flag);
    }
    case 3: {
      Set set = randomSet();
      say("selectItems " + text(set));
      NSMutableIndexSet* indexes = [NSMutableIndexSet indexSet];
      for (NSUInteger i : set) [indexes addIndex:i];
      [grid selectItemsWithIndexes:indexes];
      return model.select(set);
    }
    case 4:
      say("selectAll");
      [grid selectAll:nil];
      return model.selectAll();
    case 5:
      say("deselectAll");
      [grid deselectAll:nil];
      return model.deselectAll();
    case 6:
      say(flag ? "allow multiple" : "no multiple");
      [grid setAllowsMultipleSelection:flag];
      return model.setMultiple(flag);
    case 7:
      say(flag ? "allow empty" : "no empty");
      [grid setAllowsEmptySelection:flag];
      return model.setEmpty(flag);
    case 8: {
      auto behavior = [&] { return static_cast<int>(random.oneIn(8) ? 2 : random.integer(0, 1)); };
      model.click = behavior();
      model.alternate = behavior();
      model.drag = behavior();
      model.alternateDrag = behavior();
      say("behaviours " + std::to_string(model.click) + std::to_string(model.alternate) +
          std::to_string(model.drag) + std::to_string(model.alternateDrag));
      [grid setMultipleSelectionBehavior:model.click];
      [grid setAlternateMultipleSelectionBehavior:model.alternate];
      [grid setMultipleSelectionBehaviorForDragging:model.drag];
      [grid setAlternateMultipleSelectionBehaviorForDragging:model.alternateDrag];
      return;
    }
    case 9: {
      NSUInteger divisor = static_cast<NSUInteger>(random.integer(1, 5));
      say("refuse every " + std::to_string(divisor));
      items->maySelect = [divisor](NSUInteger i) { return divisor == 1 || i % divisor != 0; };
      model.may = items->maySelect;
      return;
    }
    case 10:
    case 11:
    case 12:
      return dragABand();
    default:
      return clickSomewhere();
  }
}

TEST_P(GridRandomOperations, AgreeWithThePlainModel) {
  constexpr int kGrids = 10, kOperations = 1000;
  items = newItems(0);
  [items has:{"matrixView:shouldSelectItemIndex:", "matrixView:didSelectItemIndex:",
              "matrixView:didSelectItemIndexes:", "matrixView:cellClickedAtItemIndex:"}];
  for (int g = 0; g < kGrids; g++) {
    NSWindow* window = makeWindow(NSMakeSize(400, 400));
    @autoreleasepool {
      Class gridClass = GetParam() ? [OvTestOvGrid class] : [HXMatrixView class];
      grid = [[gridClass alloc] initWithFrame:NSMakeRect(0, 0, 200, 200)];
      [[window contentView] addSubview:grid];
      [grid release];
      [grid setDataCell:[[[OvTestCell alloc] init] autorelease]];
      items->count = 20;
      items->maySelect = nullptr;
      [grid setAutoFitHorizentally:NO];
      [grid setDelegate:items];
      [grid setDataSource:items];
      model = Model{};
      model.otherGrid = GetParam();
      model.items = 20;
      model.layOut();
      NotificationCount notifications(HXMatrixViewSelectionDidChangeNotification, grid);
      for (int n = 0; n < kOperations; n++) {
        @autoreleasepool {
          journal().clear();
          model.told.clear();
          operate();
          // The notification itself, whoever overrides its posting.
          for (int posted = notifications.take(); posted > 0; posted--) journal().add("changed");
          compare();
        }
        // The run loop forgets stopped timers only when it runs.
        if (n % 100 == 0) pumpPending();
        if (HasFatalFailure()) {
          std::string all;
          for (const std::string& line : script) all += "  " + line + "\n";
          FAIL() << "after operation " << n << " of grid " << g << "; " << random.describe()
                 << "\nthe last operations:\n"
                 << all;
        }
      }
      [grid removeFromSuperview];
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Grids, GridRandomOperations, testing::Values(false, true),
                         [](const auto& info) {
                           return info.param ? "OvMatrixView" : "HXMatrixView";
                         });

}  // namespace
