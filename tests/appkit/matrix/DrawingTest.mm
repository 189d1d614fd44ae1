// What is drawn, in which order, and where the pixels go.

#import "GridTest.h"

#import <objc/runtime.h>

using namespace ov::test;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class GridDrawing : public GridTest {
 protected:
  // Draws a part as the platform would.
  void draw(OvTestGrid *grid, NSRect rect) {
    journal().clear();
    [grid lockFocus];
    [grid drawRect:rect];
    [grid unlockFocus];
  }
};

TEST_F(GridDrawing, ItemsAreDrawnRowByRow) {
  OvTestGrid *grid = gridInWindow(5);
  draw(grid, [grid bounds]);
  EXPECT_THAT(journal().of({"drawCell"}),
              ElementsAre("drawCell 0 {0, 0, 64 x 64}", "drawCell 1 {65, 0, 64 x 64}",
                          "drawCell 2 {130, 0, 64 x 64}", "drawCell 3 {0, 65, 64 x 64}",
                          "drawCell 4 {65, 65, 64 x 64}"));
}

TEST_F(GridDrawing, OnlyCellsInThePartAreDrawn) {
  OvTestGrid *grid = gridInWindow(9);
  draw(grid, NSMakeRect(64, 64, 20, 10));
  EXPECT_THAT(journal().of({"drawCell"}), ElementsAre("drawCell 4 {65, 65, 64 x 64}"));
  draw(grid, NSMakeRect(64, 64, 0.5, 0.5));
  EXPECT_THAT(journal().of({"drawCell"}), IsEmpty());
  draw(grid, NSMakeRect(60, 60, 10, 10));
  EXPECT_EQ(journal().count("drawCell"), 4u);
}

TEST_F(GridDrawing, DrawingTheWholeBoundsAsksNoRectangle) {
  // Cells that stick out of a view of no sensible size are drawn with the whole of it.
  OvTestGrid *grid = gridInWindow(4);
  [grid setFrameSize:NSMakeSize(30, 10)];
  EXPECT_EQ([grid numberOfColumns], 1u);
  draw(grid, [grid bounds]);
  EXPECT_EQ(journal().count("drawCell"), 4u);
}

TEST_F(GridDrawing, TheOrderIsCellsLinesBandRing) {
  OvTestGrid *grid = gridInWindow(2);
  [grid setGridStyleMask:3];
  [grid setBand:NSMakeRect(10, 10, 30, 30)];
  [grid setDropOperation:NSDragOperationCopy at:NSNotFound];
  NSRect all = [grid bounds];
  draw(grid, all);
  EXPECT_THAT(journal().of({"drawCell", "gridLines", "band", "ring"}),
              ElementsAre("drawCell 0 {0, 0, 64 x 64}", "drawCell 1 {65, 0, 64 x 64}",
                          "gridLines " + text(all), "band {10, 10, 30 x 30}",
                          "ring " + text(all) + " none 1"));
}

TEST_F(GridDrawing, EachItemSetsTheCellUpThenDrawsIt) {
  OvTestGrid *grid = gridInWindow(3);
  [grid setDataCell:[[[OvTestFullCell alloc] init] autorelease]];
  [grid selectItem:1 byExtendingSelection:NO];
  draw(grid, [grid frameOfCellAtItemIndex:1]);
  EXPECT_THAT(journal().all(),
              ElementsAre("drawCell 1 {65, 0, 64 x 64}", "proposed 0", "hover 0", "highlighted 1",
                          "value 1", "value= item 1", "draw item 1 {65, 0, 64 x 64}",
                          "gridLines {65, 0, 64 x 64}"));
  EXPECT_EQ(items->view, grid);
  EXPECT_EQ(items->cell, [grid dataCell]);
}

TEST_F(GridDrawing, ACellWithoutExtrasIsNotSentThem) {
  OvTestGrid *grid = gridInWindow(3);
  draw(grid, [grid bounds]);
  EXPECT_THAT(journal().of({"proposed", "hover"}), IsEmpty());
}

TEST_F(GridDrawing, TheDropTargetsCellHearsTheOperation) {
  OvTestGrid *grid = gridInWindow(3);
  [grid setDataCell:[[[OvTestDropCell alloc] init] autorelease]];
  [grid setDropOperation:NSDragOperationMove at:1];
  draw(grid, [grid bounds]);
  EXPECT_THAT(journal().of({"proposed", "ring"}),
              ElementsAre("proposed 0", "proposed 16", "proposed 0"))
      << "and no ring is drawn for it";
}

TEST_F(GridDrawing, AroundTheDropTargetIsARing) {
  OvTestGrid *grid = gridInWindow(3);
  [grid setDropOperation:NSDragOperationMove at:1];
  draw(grid, [grid bounds]);
  EXPECT_THAT(journal().of({"draw", "ring"}),
              ElementsAre("draw item 0 {0, 0, 64 x 64}", "draw item 1 {65, 0, 64 x 64}",
                          "ring {65, 0, 64 x 64} 1 16", "draw item 2 {130, 0, 64 x 64}"));
  [grid setDropOperation:0 at:1];
  draw(grid, [grid bounds]);
  EXPECT_EQ(journal().count("ring"), 0u);
}

TEST_F(GridDrawing, TheRingOfTheWholeViewSurroundsTheVisiblePart) {
  OvTestGrid *grid = gridInScrollView(60);
  [grid scrollPoint:NSMakePoint(0, 100)];
  NSRect visible = [[grid enclosingScrollView] documentVisibleRect];
  ASSERT_EQ(visible.origin.y, 100);
  [grid setDropOperation:NSDragOperationCopy at:NSNotFound];
  draw(grid, NSMakeRect(0, 100, 50, 50));
  EXPECT_THAT(journal().of({"ring"}), ElementsAre("ring " + text(visible) + " none 1"));
}

TEST_F(GridDrawing, ACellThatDrawsItsDropStillLeavesTheWholeViewsRingToTheGrid) {
  OvTestGrid *grid = gridInWindow(3);
  [grid setDataCell:[[[OvTestDropCell alloc] init] autorelease]];
  [grid setDropOperation:NSDragOperationCopy at:NSNotFound];
  draw(grid, [grid bounds]);
  EXPECT_EQ(journal().count("ring"), 1u);
}

TEST_F(GridDrawing, AnEmptyBandOrOneElsewhereIsNotDrawn) {
  OvTestGrid *grid = gridInWindow(9);
  [grid setBand:NSMakeRect(10, 10, 0, 30)];
  draw(grid, [grid bounds]);
  EXPECT_EQ(journal().count("band"), 0u);
  [grid setBand:NSMakeRect(10, 10, 30, 30)];
  draw(grid, NSMakeRect(100, 100, 20, 20));
  EXPECT_EQ(journal().count("band"), 0u);
  draw(grid, NSMakeRect(35, 35, 20, 20));
  EXPECT_THAT(journal().of({"band"}), ElementsAre("band {10, 10, 30 x 30}")) << "whole";
}

TEST_F(GridDrawing, ADragImagesCellsAreBare) {
  OvTestGrid *grid = gridInWindow(3);
  [grid setDataCell:[[[OvTestFullCell alloc] init] autorelease]];
  [grid selectItem:1 byExtendingSelection:NO];
  [grid setDropOperation:NSDragOperationMove at:1];
  journal().clear();
  [grid _setupCellWithItemIndex:1 forDragImage:YES];
  EXPECT_THAT(journal().all(),
              ElementsAre("proposed 0", "hover 0", "highlighted 0", "value 1", "value= item 1"));
  journal().clear();
  [grid _setupCellWithItemIndex:1 forDragImage:NO];
  EXPECT_THAT(journal().all(),
              ElementsAre("proposed 16", "hover 0", "highlighted 1", "value 1", "value= item 1"));
}

TEST_F(GridDrawing, WithoutADataCellNothingIsAsked) {
  OvTestGrid *grid = gridInWindow(3);
  [grid setDataCell:nil];
  draw(grid, [grid bounds]);
  EXPECT_EQ(journal().count("drawCell"), 3u);
  EXPECT_EQ(journal().count("draw"), 0u);
}

// --- Pixels ------------------------------------------------------------------------------

TEST_F(GridDrawing, TheBackgroundFillsWhatIsDrawn) {
  OvTestGrid *grid = gridInWindow(2);
  [(OvTestCell *)[grid dataCell] setFill:[NSColor greenColor]];
  [grid setBackgroundColor:[NSColor blueColor]];
  Picture picture = pictureOf(grid);
  EXPECT_EQ(picture.at(5, 5), kGreen);
  EXPECT_EQ(picture.at(64, 5), kBlue) << "the gap";
  EXPECT_EQ(picture.at(70, 5), kGreen);
  EXPECT_EQ(picture.at(150, 5), kBlue) << "no third item";
  EXPECT_EQ(picture.at(5, 63), kGreen);
  // Without one the window shows through.
  [grid setBackgroundColor:nil];
  EXPECT_NE(pictureOf(grid).at(150, 5), kBlue);
  [(OvTestCell *)[grid dataCell] setFill:nil];
}

TEST_F(GridDrawing, TheRingIsBlackAndTwoPointsWideInsideItsFrame) {
  OvTestGrid *grid = gridInWindow(3);
  [grid setBackgroundColor:[NSColor whiteColor]];
  [grid setDropOperation:NSDragOperationCopy at:1];
  Picture picture = pictureOf(grid);
  EXPECT_EQ(picture.at(64, 30), kWhite);
  EXPECT_EQ(picture.at(65, 30), kBlack);
  EXPECT_EQ(picture.at(66, 30), kBlack);
  EXPECT_EQ(picture.at(67, 30), kWhite);
  EXPECT_EQ(picture.at(126, 30), kWhite);
  EXPECT_EQ(picture.at(127, 30), kBlack);
  EXPECT_EQ(picture.at(128, 30), kBlack);
  EXPECT_EQ(picture.at(129, 30), kWhite);
  EXPECT_EQ(picture.at(90, 0), kBlack);
  EXPECT_EQ(picture.at(90, 1), kBlack);
  EXPECT_EQ(picture.at(90, 2), kWhite);
  EXPECT_EQ(picture.at(90, 63), kBlack);
}

// The default theme's selection colour is white, in which fill and border look the same.
NSColor *testSelectionColor(id, SEL) {
  return [NSColor colorWithDeviceRed:1 green:0 blue:0 alpha:1];
}

class RedSelectionColor {
 public:
  RedSelectionColor() {
    former_ = method_setImplementation(
        method(), reinterpret_cast<IMP>(reinterpret_cast<void *>(testSelectionColor)));
  }
  ~RedSelectionColor() { method_setImplementation(method(), former_); }

 private:
  static Method method() {
    return class_getClassMethod([NSColor class], @selector(selectedControlColor));
  }
  IMP former_;
};

Pixel over(NSColor *color, double alpha, Pixel below) {
  NSColor *rgb = [color colorUsingColorSpaceName:NSDeviceRGBColorSpace];
  auto mix = [&](double top, int bottom) {
    return static_cast<int>(top * 255 * alpha + bottom * (1 - alpha) + 0.5);
  };
  return {mix([rgb redComponent], below.r), mix([rgb greenComponent], below.g),
          mix([rgb blueComponent], below.b), 255};
}

TEST_F(GridDrawing, TheBandIsATranslucentFillWithinALighterBorder) {
  RedSelectionColor red;
  OvTestGrid *grid = gridInWindow(3);
  [grid setBackgroundColor:[NSColor blueColor]];
  [grid setBand:NSMakeRect(20, 30, 40, 20)];
  Picture picture = pictureOf(grid);
  Pixel fill = over([NSColor selectedControlColor], 0.4, kBlue);
  Pixel border = over([[NSColor selectedControlColor] highlightWithLevel:0.6], 0.4, kBlue);
  ASSERT_FALSE(near(fill, border, 20));
  EXPECT_TRUE(near(picture.at(40, 40), fill)) << picture.at(40, 40) << " for " << fill;
  EXPECT_TRUE(near(picture.at(21, 31), fill)) << picture.at(21, 31);
  EXPECT_TRUE(near(picture.at(58, 48), fill)) << picture.at(58, 48);
  EXPECT_TRUE(near(picture.at(20, 40), border)) << picture.at(20, 40) << " for " << border;
  EXPECT_TRUE(near(picture.at(59, 40), border)) << picture.at(59, 40);
  EXPECT_TRUE(near(picture.at(40, 30), border)) << picture.at(40, 30);
  EXPECT_TRUE(near(picture.at(40, 49), border)) << picture.at(40, 49);
  EXPECT_EQ(picture.at(19, 40), kBlue);
  EXPECT_EQ(picture.at(60, 40), kBlue);
  EXPECT_EQ(picture.at(40, 50), kBlue);
}

TEST_F(GridDrawing, TheBandCompositesOverTheCells) {
  RedSelectionColor red;
  OvTestGrid *grid = gridInWindow(3);
  [(OvTestCell *)[grid dataCell] setFill:[NSColor greenColor]];
  [grid setBand:NSMakeRect(10, 10, 40, 20)];
  Picture picture = pictureOf(grid);
  EXPECT_TRUE(near(picture.at(30, 20), over([NSColor selectedControlColor], 0.4, kGreen)));
  [(OvTestCell *)[grid dataCell] setFill:nil];
}

// --- Invalidation ------------------------------------------------------------------------

class GridInvalidation : public GridTest {
 protected:
  Lines dirtyAfter(OvTestGrid *grid, NSIndexSet *set) {
    journal().clear();
    [grid setNeedsDisplayAtItemIndexes:set];
    return journal().of({"dirty"});
  }
};

TEST_F(GridInvalidation, AnItemMarksItsCell) {
  OvTestGrid *grid = gridInWindow(9);
  [grid setNeedsDisplayAtItemIndex:4];
  [grid setNeedsDisplayAtItemIndex:9];
  [grid setNeedsDisplayAtItemIndex:NSNotFound];
  EXPECT_THAT(journal().of({"dirty"}), ElementsAre("dirty {65, 65, 64 x 64}"));
}

TEST_F(GridInvalidation, ASetMarksOneRectangle) {
  OvTestGrid *grid = gridInWindow(9);
  EXPECT_THAT(dirtyAfter(grid, indexes({})), IsEmpty());
  EXPECT_THAT(dirtyAfter(grid, nil), IsEmpty());
  EXPECT_THAT(dirtyAfter(grid, indexes({4})), ElementsAre("dirty {65, 65, 64 x 64}"));
  EXPECT_THAT(dirtyAfter(grid, indexes({9})), IsEmpty());
  EXPECT_THAT(dirtyAfter(grid, indexes({1, 4})), ElementsAre("dirty {65, 0, 64 x 129}"));
  EXPECT_THAT(dirtyAfter(grid, indexes({1, 3})), ElementsAre("dirty {0, 0, 129 x 129}"));
  EXPECT_THAT(dirtyAfter(grid, indexes({4, 5})), ElementsAre("dirty {65, 65, 129 x 64}"));
  EXPECT_THAT(dirtyAfter(grid, indexes({2, 3, 7})), ElementsAre("dirty {0, 0, 194 x 194}"));
  EXPECT_THAT(dirtyAfter(grid, indexRange(0, 9)), ElementsAre("dirty {0, 0, 194 x 194}"));
}

TEST_F(GridInvalidation, NothingIsMarkedWithoutALayout) {
  OvTestGrid *grid = gridInWindow(0);
  EXPECT_THAT(dirtyAfter(grid, indexes({0, 1})), IsEmpty());
}

TEST_F(GridInvalidation, ScrollingIsNeverAdjusted) {
  OvTestGrid *grid = gridInScrollView(60, NSMakeSize(220, 200), true);
  NSRect proposed = NSMakeRect(3, 57, 120, 80);
  EXPECT_EQ([grid adjustScroll:proposed], proposed);
  EXPECT_THAT(journal().of({"dirty"}), IsEmpty());
  [grid setDropOperation:NSDragOperationCopy at:4];
  EXPECT_EQ([grid adjustScroll:proposed], proposed);
  EXPECT_THAT(journal().of({"dirty"}), IsEmpty()) << "a drop on an item has no moving ring";
}

TEST_F(GridInvalidation, TheWholeViewsRingMarksTwoPlacesPerAxisThatScrolls) {
  OvTestGrid *grid = gridInScrollView(60, NSMakeSize(220, 200), true);
  [grid setDropOperation:NSDragOperationCopy at:NSNotFound];
  NSRect visible = [grid visibleRect];
  journal().clear();
  EXPECT_EQ([grid adjustScroll:visible], visible);
  EXPECT_EQ(journal().count("dirty"), 0u) << "nothing moves";
  EXPECT_EQ([grid adjustScroll:NSOffsetRect(visible, 0, 40)], NSOffsetRect(visible, 0, 40));
  EXPECT_EQ(journal().count("dirty"), 2u);
  journal().clear();
  [grid adjustScroll:NSOffsetRect(visible, 10, 0)];
  EXPECT_EQ(journal().count("dirty"), 2u);
  journal().clear();
  [grid adjustScroll:NSOffsetRect(visible, 10, 40)];
  EXPECT_EQ(journal().count("dirty"), 4u);
}

class GridRing : public GridTest {};

// However the document is scrolled, the ring follows and leaves nothing behind.
TEST_F(GridRing, LeavesNoTrailWhenTheViewScrolls) {
  OvTestGrid *grid = gridInScrollView(60, NSMakeSize(220, 200), true);
  NSScrollView *scroll = [grid enclosingScrollView];
  NSClipView *clip = [scroll contentView];
  [grid setBackgroundColor:[NSColor whiteColor]];
  std::function<void(CGFloat)> ways[] = {
      [&](CGFloat y) { [grid scrollPoint:NSMakePoint(0, y)]; },
      [&](CGFloat y) {
        [grid scrollRectToVisible:NSMakeRect(0, y, 10, [clip bounds].size.height)];
      },
      [&](CGFloat y) {
        [clip scrollToPoint:NSMakePoint(0, y)];
        [scroll reflectScrolledClipView:clip];
      },
  };
  for (auto &scrollTo : ways) {
    scrollTo(0);
    [grid setDropOperation:NSDragOperationCopy at:NSNotFound];
    [grid setNeedsDisplay:YES];
    [[grid window] displayIfNeeded];
    for (CGFloat y : {30, 70, 45}) {
      scrollTo(y);
      [[grid window] displayIfNeeded];
      NSRect visible = [scroll documentVisibleRect];
      ASSERT_EQ(visible.origin.y, y);
      // Read without drawing again.
      [clip lockFocus];
      NSBitmapImageRep *rep = [[NSBitmapImageRep alloc] initWithFocusedViewRect:[clip bounds]];
      [clip unlockFocus];
      Picture picture(rep);
      [rep release];
      int width = picture.width(), height = picture.height();
      EXPECT_EQ(picture.count(NSMakeRect(0, 0, width, 2), kBlack), width * 2) << "top at " << y;
      EXPECT_EQ(picture.count(NSMakeRect(0, height - 2, width, 2), kBlack), width * 2)
          << "bottom at " << y;
      EXPECT_EQ(picture.count(NSMakeRect(2, 2, width - 4, height - 4), kBlack), 0)
          << "a trail at " << y;
    }
    [grid setDropOperation:0 at:NSNotFound];
  }
}

}  // namespace
