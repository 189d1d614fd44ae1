// Thousands of operations on scroll views. After each, both scrollers are of the class, and have
// the delegate, that their origin says; they lie inside of the scroll view, beside its content;
// and the delegate has heard of what was done by hand, and of nothing else.

#import "Coding.h"
#import "ScrollViewTest.h"

using namespace ov::test;

namespace {

// Where a scroller is from.
enum class Origin {
  kNone,
  kMade,      // by the scroll view
  kReplaced,  // in the place of one in an archive
  kArchived,  // from an archive
  kInstalled,
  kInstalledWithDelegate,
  kPlain,  // installed, of the platform's class
};

struct Direction {
  Origin origin = Origin::kNone;
  NSScroller *scroller = nil;
  bool had = false;
};

class ScrollViewRandomOperations : public ScrollViewTest {
 protected:
  NSScroller *scroller(bool vertical) {
    return vertical ? [scroll verticalScroller] : [scroll horizontalScroller];
  }
  bool has(bool vertical) {
    return vertical ? [scroll hasVerticalScroller] : [scroll hasHorizontalScroller];
  }
  void setHas(bool vertical, bool flag) {
    vertical ? [scroll setHasVerticalScroller:flag] : [scroll setHasHorizontalScroller:flag];
  }

  void begin() {
    window = showWindow(NSMakeSize(420, 420));
    show([[[HXScrollView alloc] initWithFrame:NSMakeRect(10, 10, 200, 150)] autorelease]);
    setDocument(600, 500);
  }

  void show(HXScrollView *view) {
    [scroll setDelegate:nil];
    [scroll removeFromSuperview];
    scroll = view;
    [[window contentView] addSubview:scroll];
    [scroll setDelegate:delegate];
    changes = std::make_unique<NotificationCount>(NSViewBoundsDidChangeNotification,
                                                  [scroll contentView]);
  }

  void setDocument(CGFloat width, CGFloat height, bool flipped = true) {
    const Class documentClass = flipped ? [OvTestDocument class] : [NSView class];
    [scroll setDocumentView:[[[documentClass alloc] initWithFrame:NSMakeRect(0, 0, width, height)]
                                autorelease]];
  }

  void install(bool vertical, Random &random) {
    Direction &direction = directions[vertical];
    switch (random.integer(0, 3)) {
      case 0:
        operation += " nothing";
        direction = {Origin::kNone, nil};
        break;
      case 1:
        operation += " a plain one";
        direction = {Origin::kPlain, [[NSScroller new] autorelease]};
        break;
      case 2:
        operation += " one of ours";
        direction = {Origin::kInstalled, [[HXScroller new] autorelease]};
        break;
      case 3: {
        operation += " one with a delegate";
        HXScroller *told = [[HXScroller new] autorelease];
        [told setDelegate:other];
        direction = {Origin::kInstalledWithDelegate, told};
        break;
      }
    }
    // As it is now: whether it shows does not change.
    direction.had = has(vertical);
    vertical ? [scroll setVerticalScroller:direction.scroller]
             : [scroll setHorizontalScroller:direction.scroller];
  }

  void archive(bool keyed) {
    HXScrollView *read = roundTrip(scroll, keyed ? Coding::keyed : Coding::sequential);
    for (bool vertical : {false, true}) {
      Direction &direction = directions[vertical];
      // Scrollers that do not show are not in archives.
      if (!has(vertical)) direction.origin = Origin::kNone;
      if (direction.origin == Origin::kPlain) {
        direction.origin = Origin::kReplaced;
      } else if (direction.origin != Origin::kNone) {
        direction.origin = Origin::kArchived;
      }
      direction.had = has(vertical);
    }
    show(read);
    for (bool vertical : {false, true}) {
      Direction &direction = directions[vertical];
      direction.scroller = direction.origin == Origin::kNone ? nil : scroller(vertical);
    }
  }

  // By hand. Answers what should be told beside the content's scrolling: the part, or none.
  NSScrollerPart work(bool vertical, Random &random) {
    NSScroller *target = scroller(vertical);
    const NSScrollerPart parts[] = {NSScrollerKnob, NSScrollerIncrementLine,
                                    NSScrollerDecrementLine, NSScrollerIncrementPage,
                                    NSScrollerDecrementPage};
    const NSScrollerPart part = parts[random.integer(0, 4)];
    operation = "work part " + std::to_string(part) + (vertical ? " v" : " h");
    const NSPoint point = middleOf(target, part);
    if ([target testPart:[target convertPoint:point toView:nil]] != part) return NSScrollerNoPart;
    if (part == NSScrollerKnob) {
      EXPECT_TRUE(dragKnob(target, {static_cast<CGFloat>(random.integer(-60, 60))}));
    } else {
      EXPECT_TRUE(pressAt(target, point));
    }
    return part;
  }

  void doOne(Random &random) {
    const bool vertical = random.oneIn(2);
    const char *name = vertical ? " v" : " h";
    NSScrollerPart worked = NSScrollerNoPart;
    Origin from = directions[vertical].origin;
    switch (random.integer(0, 11)) {
      case 0:
      case 1: {
        const bool flag = !has(vertical);
        operation = std::string(flag ? "show" : "hide") + name;
        setHas(vertical, flag);
        break;
      }
      case 2:
        operation = "autohide";
        [scroll setAutohidesScrollers:![scroll autohidesScrollers]];
        break;
      case 3:
        operation = "resize";
        [scroll setFrame:NSMakeRect(10, 10, random.integer(80, 400), random.integer(80, 400))];
        break;
      case 4:
      case 5:
        operation = "document's size";
        [[scroll documentView]
            setFrameSize:NSMakeSize(random.integer(1, 900), random.integer(1, 900))];
        break;
      case 6:
        operation = "another document";
        if (random.oneIn(4)) {
          [scroll setDocumentView:nil];
        } else {
          setDocument(random.integer(1, 900), random.integer(1, 900), random.oneIn(2));
        }
        break;
      case 7: {
        operation = std::string("appearance") + name;
        NSScroller *target = scroller(vertical);
        if ([target isKindOfClass:[HXScroller class]]) {
          [(HXScroller *)target setAppearance:static_cast<int>(random.integer(0, 3))];
        }
        break;
      }
      case 8:
        operation = std::string("install") + name;
        if (random.oneIn(2)) install(vertical, random);
        break;
      case 9:
        operation = "scroll by code";
        [[scroll documentView]
            scrollPoint:NSMakePoint(random.integer(-10, 900), random.integer(-10, 900))];
        break;
      case 10: {
        const bool keyed = random.oneIn(2);
        operation = keyed ? "keyed archive" : "sequential archive";
        if (random.oneIn(2)) archive(keyed);
        break;
      }
      case 11:
        operation = "border";
        if (random.oneIn(8) && has(vertical) && scroller(vertical) != nil &&
            [scroller(vertical) isEnabled] && from != Origin::kPlain) {
          changes->take();
          worked = work(vertical, random);
          EXPECT_EQ([delegate scrolls], changes -> take());
        } else {
          [scroll setBorderType:static_cast<NSBorderType>(random.integer(0, 3))];
        }
        break;
    }
    compareLines(vertical, worked, from == Origin::kReplaced);
    compare();
  }

  void compareLines(bool vertical, NSScrollerPart part, bool relays) {
    std::vector<std::string> expected(static_cast<size_t>([delegate scrolls]), "scroll");
    if (part == NSScrollerNoPart) {
      expected.clear();
    } else if (relays) {
      const std::string rest = std::string(vertical ? " v " : " h ") + std::to_string(part);
      expected.insert(expected.begin(), "will" + rest);
      expected.push_back("did" + rest);
    }
    EXPECT_EQ(delegate->lines, expected) << operation;
    delegate->lines.clear();
  }

  bool isNeeded(bool vertical) {
    const NSSize document = [[scroll documentView] frame].size;
    const NSSize content = [scroll contentSize];
    return vertical ? document.height > content.height : document.width > content.width;
  }

  void compare() {
    // Whatever scrolls next would.
    if ([scroll autohidesScrollers]) [scroll reflectScrolledClipView:[scroll contentView]];
    for (bool vertical : {false, true}) {
      SCOPED_TRACE(vertical ? "vertical" : "horizontal");
      Direction &direction = directions[vertical];
      NSScroller *now = scroller(vertical);
      if (direction.scroller == nil && now != nil) {
        // One that hides by itself may have come back at once.
        EXPECT_TRUE(!direction.had || [scroll autohidesScrollers]) << "there should be one already";
        direction.origin = Origin::kMade;
        direction.scroller = now;
      }
      EXPECT_EQ(now, direction.scroller);
      direction.had = has(vertical);
      if ([scroll autohidesScrollers]) EXPECT_EQ(has(vertical), isNeeded(vertical));
      if (now == nil) continue;
      EXPECT_EQ([now class],
                direction.origin == Origin::kPlain ? [NSScroller class] : [HXScroller class]);
      EXPECT_EQ([now hitPart], NSScrollerNoPart);
      if (direction.origin != Origin::kPlain) {
        id hears = direction.origin == Origin::kReplaced                ? scroll
                   : direction.origin == Origin::kInstalledWithDelegate ? (id)other
                                                                        : nil;
        EXPECT_EQ([(HXScroller *)now delegate], hears);
        if (has(vertical)) EXPECT_EQ([now isEnabled], isNeeded(vertical));
      }
    }
    EXPECT_FALSE([scroll isHorizontalScrollerTraking]);
    EXPECT_FALSE([scroll isVerticalScrollerTraking]);
    EXPECT_EQ(layoutFault(scroll), "");
  }

  NSWindow *window = nil;
  HXScrollView *scroll = nil;
  OvTestScrollDelegate *other = [[OvTestScrollDelegate new] autorelease];
  std::unique_ptr<NotificationCount> changes;
  Direction directions[2];
  std::string operation;
};

TEST_F(ScrollViewRandomOperations, KeepTheirScrollers) {
  Random random;
  SCOPED_TRACE(random.describe());
  begin();
  for (int i = 0; i < 10000 && !HasFailure(); ++i) {
    operation = "nothing";
    @autoreleasepool {
      doOne(random);
    }
    if (HasFailure()) ADD_FAILURE() << "operation " << i << ": " << operation;
  }
  [scroll setDelegate:nil];
  changes.reset();
}

}  // namespace
