// The grid beside the platform's NSMatrix and NSCollectionView, and beside a bare loop that
// draws the same cells.

#import <AppKit/AppKit.h>
#import <OvAppKit/OvAppKit.h>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <string>
#include <vector>

#include "Benchmarks.h"
#include "Measure.h"

static const NSSize kPage = {800, 600};
static const NSSize kCell = {78, 38};
static const NSSize kGap = {2, 2};

@interface BenchSource : NSObject {
 @public
  NSUInteger count;
}
@end

@implementation BenchSource
- (NSUInteger)numberOfItemsInMatrixView:(HXMatrixView *)view {
  (void)view;
  return count;
}
- (id)matrixView:(HXMatrixView *)view
    objectValueForCell:(NSCell *)cell
           atItemIndex:(NSUInteger)index {
  (void)view;
  (void)cell;
  static NSString *const words[] = {@"alpha",   @"beta", @"gamma", @"delta",
                                    @"epsilon", @"zeta", @"eta",   @"theta"};
  return words[index % 8];
}
@end

@interface BenchTips : NSObject
@end

@implementation BenchTips
- (NSString *)matrixView:(HXMatrixView *)view toolTipAtItemIndex:(NSUInteger)index {
  (void)view;
  (void)index;
  return @"tip";
}
@end

// Counts what it draws, so that a scroll step can be seen to draw only what it exposed.
@interface BenchCell : NSTextFieldCell {
 @public
  NSUInteger drawn;
}
@end

@implementation BenchCell
- (void)drawWithFrame:(NSRect)frame inView:(NSView *)view {
  ++drawn;
  [super drawWithFrame:frame inView:view];
}
@end

namespace {

void pump(double seconds) {
  NSDate *end = [NSDate dateWithTimeIntervalSinceNow:seconds];
  do {
    @autoreleasepool {
      NSEvent *event = [NSApp nextEventMatchingMask:NSAnyEventMask
                                          untilDate:end
                                             inMode:NSDefaultRunLoopMode
                                            dequeue:YES];
      if (event != nil) [NSApp sendEvent:event];
    }
  } while ([end timeIntervalSinceNow] > 0);
}

// A grid of `count` items as the document of a scroll view, one page of it visible.
struct Fixture {
  NSWindow *window;
  NSScrollView *scrollView;
  HXMatrixView *grid;
  BenchSource *source;
  BenchCell *cell;

  explicit Fixture(NSUInteger count) {
    window = [[NSWindow alloc] initWithContentRect:NSMakeRect(50, 50, kPage.width, kPage.height)
                                         styleMask:NSBorderlessWindowMask
                                           backing:NSBackingStoreBuffered
                                             defer:NO];
    [window setReleasedWhenClosed:NO];
    scrollView = [[NSScrollView alloc] initWithFrame:NSMakeRect(0, 0, kPage.width, kPage.height)];
    [scrollView setHasVerticalScroller:YES];
    [window setContentView:scrollView];
    cell = [[BenchCell alloc] initTextCell:@""];
    source = [[BenchSource alloc] init];
    source->count = count;
    grid =
        [[HXMatrixView alloc] initWithFrame:NSMakeRect(0, 0, [scrollView contentSize].width, 10)];
    [grid setAutoFitHorizentally:NO];
    [grid setCellSize:kCell];
    [grid setIntercellSpacing:kGap];
    [grid setDataCell:cell];
    [grid setBackgroundColor:[NSColor whiteColor]];
    [scrollView setDocumentView:grid];
    [grid setDataSource:source];
    [window orderFront:nil];
    pump(0.2);
  }
  ~Fixture() {
    [grid setMouseTrackingEnabled:NO];
    [grid setDelegate:nil];
    [window orderOut:nil];
    [grid setDataSource:nil];
    [grid dealoc];
    [window release];
    [scrollView release];
    [grid release];
    [source release];
    [cell release];
  }
  Fixture(const Fixture &) = delete;
  Fixture &operator=(const Fixture &) = delete;

  void press(NSPoint point, NSUInteger flags = 0) const {
    [grid mouseDown:event(NSLeftMouseDown, point, flags)];
  }
  void drag(NSPoint point, NSUInteger flags = 0) const {
    [grid mouseDragged:event(NSLeftMouseDragged, point, flags)];
  }
  void release(NSPoint point) const { [grid mouseUp:event(NSLeftMouseUp, point, 0)]; }

  NSEvent *event(NSEventType type, NSPoint point, NSUInteger flags) const {
    return [NSEvent mouseEventWithType:type
                              location:[grid convertPoint:point toView:nil]
                         modifierFlags:flags
                             timestamp:0
                          windowNumber:[window windowNumber]
                               context:[window graphicsContext]
                           eventNumber:0
                            clickCount:1
                              pressure:1];
  }
};

// Two grids that differ in their item count only, each scrolled to its middle.
struct Pair {
  Fixture small{1000};
  Fixture large{1000000};

  void compare(const std::string &what, const std::function<void(const Fixture &)> &body,
               double limit = 1.5) {
    const auto runOn = [&](const Fixture &f) {
      return [&] {
        @autoreleasepool {
          body(f);
        }
      };
    };
    bench::row(what + ", 1e3", bench::median(runOn(small)));
    bench::row(what + ", 1e6", bench::median(runOn(large)));
    bench::ratio(what + ", 1e6 : 1e3", bench::medianRatio(runOn(large), runOn(small)), limit);
  }
};

void independentOfCount() {
  bench::heading("Independent of the item count");
  Pair pair;
  for (const Fixture *f : {&pair.small, &pair.large}) {
    [f->grid scrollPoint:NSMakePoint(0, NSHeight([f->grid frame]) / 2)];
    pump(0.1);
  }
  pair.compare("reload", [](const Fixture &f) { [f.grid reloadData]; });
  pair.compare("reflow after a resize", [](const Fixture &f) {
    const CGFloat width = NSWidth([f.grid frame]) == 500 ? 781 : 500;
    [f.grid setFrameSize:NSMakeSize(width, NSHeight([f.grid frame]))];
  });
  pair.compare("64 hit tests", [](const Fixture &f) {
    const CGFloat y = NSHeight([f.grid frame]) / 2;
    for (int i = 0; i < 64; ++i) [f.grid itemIndexAtPoint:NSMakePoint(7 * i, y + 3 * i)];
  });
  pair.compare("columns, rows and items of a page", [](const Fixture &f) {
    const NSRect page = NSMakeRect(0, NSHeight([f.grid frame]) / 2, kPage.width, kPage.height);
    [f.grid itemIndexesAtColumns:[f.grid columnsInRect:page] rows:[f.grid rowsInRect:page]];
  });
  for (const Fixture *f : {&pair.small, &pair.large}) {
    [f->grid setFrameSize:NSMakeSize(781, NSHeight([f->grid frame]))];
    [f->grid setMouseTrackingEnabled:YES];
  }
  const auto reinstall = [](const Fixture &f) {
    [(HXMatrixViewMouseTrackingManager *)[f.grid valueForKey:@"mouseTrackingManager"]
        resetAllTrackingRegions];
  };
  pair.compare("re-install hover regions (a scroll step)", reinstall);
  bench::bounded("re-install hover regions (a scroll step), 1e6", bench::median([&] {
                   @autoreleasepool {
                     reinstall(pair.large);
                   }
                 }),
                 150);
}

void besideNSMatrix() {
  bench::heading("Beside NSMatrix and NSCollectionView");
  const NSUInteger columns = 10;
  for (NSUInteger count : {NSUInteger{1000}, NSUInteger{100000}}) {
    @autoreleasepool {
      Fixture f(count);
      NSTextFieldCell *prototype = [[[NSTextFieldCell alloc] initTextCell:@"alpha"] autorelease];
      NSMatrix *matrix = [[[NSMatrix alloc] initWithFrame:NSMakeRect(0, 0, 800, 600)
                                                     mode:NSTrackModeMatrix
                                                prototype:prototype
                                             numberOfRows:(NSInteger)(count / columns)
                                          numberOfColumns:(NSInteger)columns] autorelease];
      [matrix setCellSize:kCell];
      [matrix setIntercellSpacing:kGap];
      const std::string suffix = count == 1000 ? ", 1e3" : ", 1e5";
      const double reload = bench::median([&] {
        @autoreleasepool {
          [f.grid reloadData];
        }
      });
      const double renew = bench::median(
          [&] {
            @autoreleasepool {
              [matrix renewRows:0 columns:0];
              [matrix renewRows:(NSInteger)(count / columns) columns:(NSInteger)columns];
              [matrix sizeToCells];
            }
          },
          5);
      bench::row("NSMatrix: renew and size to cells" + suffix, renew);
      bench::ratio("grid reload : NSMatrix renew" + suffix, reload / renew, 1);
      const double hit = bench::median([&] { [f.grid itemIndexAtPoint:NSMakePoint(333, 444)]; });
      NSInteger row = 0;
      NSInteger column = 0;
      const double matrixHit = bench::median(
          [&] { [matrix getRow:&row column:&column forPoint:NSMakePoint(333, 444)]; });
      bench::row("NSMatrix: hit test" + suffix, matrixHit);
      bench::row("grid: hit test" + suffix, hit);
    }
  }
  @autoreleasepool {
    Fixture f(1000);
    NSCollectionView *collection =
        [[[NSCollectionView alloc] initWithFrame:NSMakeRect(0, 0, 800, 600)] autorelease];
    NSCollectionViewItem *item = [[[NSCollectionViewItem alloc] init] autorelease];
    [item setView:[[[NSTextField alloc] initWithFrame:NSMakeRect(0, 0, 78, 38)] autorelease]];
    [collection setItemPrototype:item];
    [collection setMinItemSize:kCell];
    [collection setMaxItemSize:kCell];
    NSMutableArray *content = [NSMutableArray array];
    for (int i = 0; i < 1000; ++i) [content addObject:@(i)];
    const double fill = bench::median(
        [&] {
          @autoreleasepool {
            [collection setContent:content];
          }
        },
        1);
    const double reload = bench::median([&] {
      @autoreleasepool {
        [f.grid reloadData];
      }
    });
    bench::row("NSCollectionView: set content, 1e3", fill);
    bench::ratio("grid reload : NSCollectionView set content, 1e3", reload / fill, 1);
  }
}

void drawing() {
  bench::heading("Drawing a page");
  for (NSUInteger count : {NSUInteger{1000}, NSUInteger{1000000}}) {
    @autoreleasepool {
      Fixture f(count);
      HXMatrixView *grid = f.grid;
      const CGFloat top = floor(NSHeight([grid frame]) / 2 / 40) * 40;
      [grid scrollPoint:NSMakePoint(0, top)];
      pump(0.1);
      const NSRect page = [f.scrollView documentVisibleRect];
      const NSRange columns = [grid columnsInRect:page];
      const NSRange rows = [grid rowsInRect:page];
      const std::string suffix = count == 1000 ? ", 1e3" : ", 1e6";
      [grid lockFocus];
      const auto drawGrid = [&] {
        @autoreleasepool {
          [grid drawRect:page];
        }
      };
      const auto drawBare = [&] {
        @autoreleasepool {
          [[NSColor whiteColor] set];
          NSRectFill(page);
          for (NSUInteger r = rows.location; r < NSMaxRange(rows); ++r) {
            for (NSUInteger c = columns.location; c < NSMaxRange(columns); ++c) {
              const NSUInteger index = r * [grid numberOfColumns] + c;
              if (index >= count) continue;
              [f.cell setObjectValue:[f.source matrixView:grid
                                         objectValueForCell:f.cell
                                                atItemIndex:index]];
              [f.cell drawWithFrame:NSMakeRect((CGFloat)c * 80, (CGFloat)r * 40, kCell.width,
                                               kCell.height)
                             inView:grid];
            }
          }
        }
      };
      bench::row("page of the grid" + suffix, bench::median(drawGrid));
      bench::row("the same cells in a bare loop" + suffix, bench::median(drawBare));
      bench::ratio("grid : bare loop" + suffix, bench::medianRatio(drawGrid, drawBare), 1.05);
      [grid unlockFocus];

      // A step of 32 points, through the clip view as a scroller does it.
      f.cell->drawn = 0;
      [grid scrollPoint:NSMakePoint(0, top + 32)];
      [f.window displayIfNeeded];
      std::printf("  %-58s %8lu of %lu cells\n",
                  ("drawn by a scroll step of 32 points" + suffix).c_str(),
                  (unsigned long)f.cell->drawn, (unsigned long)(columns.length * rows.length));
    }
  }
  @autoreleasepool {
    Fixture f(1000);
    const NSInteger columnCount = (NSInteger)[f.grid numberOfColumns];
    BenchCell *prototype = [[[BenchCell alloc] initTextCell:@""] autorelease];
    NSMatrix *matrix = [[[NSMatrix alloc] initWithFrame:NSMakeRect(0, 0, 800, 600)
                                                   mode:NSTrackModeMatrix
                                              prototype:prototype
                                           numberOfRows:1000 / columnCount
                                        numberOfColumns:columnCount] autorelease];
    [matrix setCellSize:kCell];
    [matrix setIntercellSpacing:kGap];
    [matrix sizeToCells];
    for (NSInteger i = 0; i < 1000 / columnCount * columnCount; ++i) {
      [[matrix cellAtRow:i / columnCount
                  column:i % columnCount] setObjectValue:[f.source matrixView:nil
                                                             objectValueForCell:nil
                                                                    atItemIndex:(NSUInteger)i]];
    }
    [matrix setDrawsBackground:YES];
    [matrix setBackgroundColor:[NSColor whiteColor]];
    const NSRect page = [f.scrollView documentVisibleRect];
    [[f.window contentView] addSubview:matrix];
    [matrix lockFocus];
    const double matrixTime = bench::median([&] {
      @autoreleasepool {
        [matrix drawRect:page];
      }
    });
    [matrix unlockFocus];
    [matrix removeFromSuperview];
    [f.grid lockFocus];
    const double gridTime = bench::median([&] {
      @autoreleasepool {
        [f.grid drawRect:page];
      }
    });
    [f.grid unlockFocus];
    bench::row("page of NSMatrix, 1e3", matrixTime);
    bench::ratio("grid : NSMatrix, 1e3", gridTime / matrixTime, 1);
  }
}

void selecting() {
  bench::heading("Selecting among 1e6 items, without drawing");
  @autoreleasepool {
    Fixture f(1000000);
    HXMatrixView *grid = f.grid;
    [grid setAllowsBeginDragging:NO];
    [f.window orderOut:nil];
    [f.scrollView setDocumentView:nil];  // nothing is drawn
    bench::bounded("select all", bench::median([&] {
                     @autoreleasepool {
                       [grid deselectAll:nil];
                       [grid selectAll:nil];
                     }
                   }),
                   2000);
    bench::bounded("deselect all", bench::median([&] {
                     @autoreleasepool {
                       [grid selectAll:nil];
                       [grid deselectAll:nil];
                     }
                   }),
                   2000);
    const NSPoint corner = NSMakePoint(NSMaxX([grid bounds]), NSMaxY([grid bounds]));
    for (NSUInteger flags :
         {NSUInteger{0}, NSUInteger{NSShiftKeyMask}, NSUInteger{NSCommandKeyMask}}) {
      const std::string name = flags == 0 ? "plain" : flags == NSShiftKeyMask ? "Shift" : "Command";
      bench::bounded("rubber band over the whole grid, there and back, " + name, bench::median([&] {
                       @autoreleasepool {
                         f.press(NSZeroPoint, flags);
                         f.drag(corner, flags);
                         f.drag(NSMakePoint(1, 1), flags);
                         f.release(NSZeroPoint);
                       }
                     }),
                     2000);
    }
    // A band over some columns only: a hundred thousand rows, of which a step adds one.
    for (NSUInteger flags :
         {NSUInteger{0}, NSUInteger{NSShiftKeyMask}, NSUInteger{NSCommandKeyMask}}) {
      const std::string name = flags == 0 ? "plain" : flags == NSShiftKeyMask ? "Shift" : "Command";
      @autoreleasepool {
        double x = 300;
        double y = NSMaxY([grid bounds]) - 4000;
        f.press(NSMakePoint(100, 0), flags);
        f.drag(NSMakePoint(x, y), flags);
        int step = 0;
        const double time = bench::median([&] {
          @autoreleasepool {
            f.drag(NSMakePoint(x, y + 40 * (++step % 2)), flags);
          }
        });
        bench::bounded("one row more of a band over three columns of 1e5 rows, " + name, time,
                       2000);
        f.release(NSZeroPoint);
        [grid deselectAll:nil];
      }
    }
  }
}

void toolTips() {
  bench::heading("Tool tips for 1e6 items");
  @autoreleasepool {
    Fixture f(1000000);
    BenchTips *tips = [[[BenchTips alloc] init] autorelease];
    const double before = bench::residentBytes();
    const double install = bench::median([&] {
      @autoreleasepool {
        [f.grid setDelegate:nil];
        [f.grid setDelegate:tips];
      }
    });
    bench::bounded("install all", install, 50000);
    std::printf("  %-58s %12.1f bytes an item\n", "memory they take",
                (bench::residentBytes() - before) / 1e6);
    int step = 0;
    bench::bounded("a mouse move from item to item", bench::median([&] {
                     @autoreleasepool {
                       const NSPoint point = NSMakePoint(40 + 80 * (++step % 2), 20);
                       [f.window sendEvent:f.event(NSMouseMoved, point, 0)];
                     }
                   }),
                   100);
    [f.grid setMouseTrackingEnabled:YES];
    double y = 0;
    bench::row("a scroll step with tips and hover, drawing included", bench::median([&] {
                 @autoreleasepool {
                   y = y > 4000 ? 0 : y + 32;
                   [f.grid scrollPoint:NSMakePoint(0, y)];
                   [f.window displayIfNeeded];
                 }
               }));
  }
}

void memory() {
  bench::heading("Memory");
  @autoreleasepool {
    double used[2] = {};
    int i = 0;
    for (NSUInteger count : {NSUInteger{1000}, NSUInteger{1000000}}) {
      const double before = bench::residentBytes();
      Fixture f(count);
      [f.grid selectAll:nil];
      used[i++] = bench::residentBytes() - before;
    }
    std::printf("  %-58s %12.3f bytes an item\n",
                "grid of 1e6 items, all selected, over one of 1e3",
                std::max(0.0, (used[1] - used[0]) / 1e6));
  }
}

}  // namespace

void bench::grid() {
  independentOfCount();
  besideNSMatrix();
  drawing();
  selecting();
  toolTips();
  memory();
}
