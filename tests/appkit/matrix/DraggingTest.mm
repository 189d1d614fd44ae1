// Dragging items out of the grid and dropping onto it: what is decided, asked and drawn, with
// sessions that the test stands for.

#import "GridTest.h"

using namespace ov::test;
using testing::ElementsAre;
using testing::IsEmpty;

// Stands for the platform's dragging session at a place in a view.
@interface OvTestDraggingInfo : NSObject <NSDraggingInfo> {
 @public
  NSView *view;
  NSPoint point;  // in the view
}
@end

@implementation OvTestDraggingInfo
- (NSWindow *)draggingDestinationWindow {
  return [view window];
}
- (NSPoint)draggingLocation {
  return [view convertPoint:point toView:nil];
}
- (NSPasteboard *)draggingPasteboard {
  return [NSPasteboard pasteboardWithName:NSDragPboard];
}
- (NSInteger)draggingSequenceNumber {
  return 1;
}
- (id)draggingSource {
  return nil;
}
- (NSDragOperation)draggingSourceOperationMask {
  return NSDragOperationEvery;
}
- (NSImage *)draggedImage {
  return nil;
}
- (NSPoint)draggedImageLocation {
  return NSZeroPoint;
}
- (void)slideDraggedImageTo:(NSPoint)screenPoint {
  (void)screenPoint;
}
- (NSArray *)namesOfPromisedFilesDroppedAtDestination:(NSURL *)dropDestination {
  (void)dropDestination;
  return nil;
}
@end

namespace {

// --- Deciding to drag ----------------------------------------------------------------------------

class GridDragStart : public GridTest {
 protected:
  void SetUp() override {
    GridTest::SetUp();
    grid = gridInWindow(9, NSMakeSize(200, 200), true);
    [items has:{"matrixView:writeItemsWithIndexes:toPasteboard:"}];
    [grid setDataSource:items];
    journal().clear();
  }
  void drag(NSPoint from, NSPoint to, NSUInteger flags = 0) {
    journal().clear();
    warpPointer(grid, to);
    press(grid, from, flags);
    dragTo(grid, to, flags);
  }
  OvTestGrid *grid = nil;
};

TEST_F(GridDragStart, DragsTheWholeSelectionFromASelectedItem) {
  [grid selectItemsWithIndexes:indexes({1, 4, 8})];
  drag(middle(grid, 4), NSMakePoint(100, 110));
  EXPECT_THAT(journal().of({"startDragging", "write"}),
              ElementsAre("startDragging", "write 1 4 8"));
  EXPECT_EQ(journal().count("dragImageAt"), 1u);
  release(grid, NSMakePoint(100, 110));
  EXPECT_EQ(selection(grid), "1 4 8");
}

TEST_F(GridDragStart, DragsOnlyAnItemThatIsNotSelectedAndDoesNotSelectIt) {
  [grid selectItemsWithIndexes:indexes({1, 8})];
  drag(middle(grid, 4), NSMakePoint(100, 110));
  EXPECT_THAT(journal().of({"write"}), ElementsAre("write 4"));
  EXPECT_EQ(selection(grid), "1 8");
  release(grid, NSMakePoint(100, 110));
  EXPECT_EQ(selection(grid), "1 8");
  EXPECT_EQ(journal().count("changed"), 0u);
}

TEST_F(GridDragStart, HandsOverTheDragPasteboardAndItself) {
  drag(middle(grid, 4), NSMakePoint(100, 110));
  EXPECT_EQ(items->pasteboard, [NSPasteboard pasteboardWithName:NSDragPboard]);
  EXPECT_EQ(items->view, grid);
  EXPECT_EQ(grid->draggedPasteboard, [NSPasteboard pasteboardWithName:NSDragPboard]);
  EXPECT_EQ(grid->draggedSource, grid);
  EXPECT_TRUE(grid->draggedSlideBack);
  EXPECT_EQ([grid->draggedEvent type], NSLeftMouseDragged);
  release(grid, NSMakePoint(100, 110));
}

TEST_F(GridDragStart, TheFirstStepDecidesWhateverItsLength) {
  NSPoint from = middle(grid, 4);
  drag(from, NSMakePoint(from.x + 1, from.y));
  EXPECT_EQ(journal().count("dragImageAt"), 1u);
  release(grid, from);
}

TEST_F(GridDragStart, DrawsNoBandAndClicksNothing) {
  [items has:{"matrixViewWillStartDragSelection:", "matrixView:cellClickedAtItemIndex:"}];
  [grid setDelegate:items];
  drag(middle(grid, 4), NSMakePoint(100, 110));
  release(grid, NSMakePoint(100, 110));
  EXPECT_THAT(journal().of({"willStartBand", "autoscroll", "clicked", "changed"}), IsEmpty());
  EXPECT_EQ([grid state].rubberBandFrame, NSZeroRect);
  EXPECT_FALSE([grid inDragSelection]);
}

TEST_F(GridDragStart, ShiftAndCommandNeverDragItems) {
  for (NSUInteger flags : {kShift, kCommand, kShift | kCommand}) {
    drag(middle(grid, 4), NSMakePoint(110, 110), flags);
    EXPECT_THAT(journal().of({"startDragging", "write"}), IsEmpty());
    EXPECT_TRUE([grid inDragSelection]);
    release(grid, NSMakePoint(110, 110), flags);
    [grid deselectAll:nil];
  }
  drag(middle(grid, 4), NSMakePoint(110, 110), kOption);
  EXPECT_EQ(journal().count("write"), 1u) << "Option does";
  release(grid, NSMakePoint(110, 110), kOption);
}

TEST_F(GridDragStart, FromAGapABandIsDrawn) {
  drag(NSMakePoint(64.5, 64.5), NSMakePoint(110, 110));
  EXPECT_EQ(journal().count("startDragging"), 0u);
  EXPECT_EQ(selection(grid), "4");
  release(grid, NSMakePoint(110, 110));
}

TEST_F(GridDragStart, WithoutPermissionABandIsDrawn) {
  [grid setAllowsBeginDragging:NO];
  EXPECT_FALSE([grid allowsBeginDragging]);
  drag(NSMakePoint(70, 70), NSMakePoint(110, 110));
  EXPECT_EQ(journal().count("startDragging"), 0u);
  EXPECT_EQ(selection(grid), "4");
  release(grid, NSMakePoint(110, 110));
}

TEST_F(GridDragStart, WithoutAWriterABandIsDrawn) {
  [grid setDataSource:newItems(9)];
  drag(NSMakePoint(70, 70), NSMakePoint(110, 110));
  EXPECT_EQ(journal().count("startDragging"), 0u);
  EXPECT_EQ(selection(grid), "4");
  release(grid, NSMakePoint(110, 110));
}

TEST_F(GridDragStart, ARefusedWriteMakesItABandForTheRestOfThePress) {
  items->writes = NO;
  drag(NSMakePoint(70, 70), NSMakePoint(110, 110));
  EXPECT_EQ(journal().count("write"), 1u);
  EXPECT_EQ(journal().count("dragImageAt"), 0u);
  EXPECT_TRUE([grid state].draggingRefused);
  EXPECT_EQ(selection(grid), "4");
  items->writes = YES;
  dragTo(grid, NSMakePoint(150, 110));
  EXPECT_EQ(journal().count("write"), 1u) << "it is not asked again";
  EXPECT_EQ(selection(grid), "4 5");
  release(grid, NSMakePoint(150, 110));
  // The next press asks anew.
  drag(middle(grid, 4), NSMakePoint(110, 110));
  EXPECT_FALSE([grid state].draggingRefused);
  EXPECT_EQ(journal().count("dragImageAt"), 1u);
  release(grid, NSMakePoint(110, 110));
}

TEST_F(GridDragStart, ADataSourcesImageIsCentredOnThePointer) {
  [items has:{"matrixView:dragImageForItemIndexes:"}];
  [grid setDataSource:items];
  items->dragImage = [[NSImage alloc] initWithSize:NSMakeSize(40, 20)];
  [grid selectItemsWithIndexes:indexes({1, 4})];
  drag(middle(grid, 4), NSMakePoint(100, 110));
  EXPECT_THAT(journal().of({"write", "dragImage"}), ElementsAre("write 1 4", "dragImage 1 4"));
  EXPECT_EQ(grid->draggedImage, items->dragImage);
  EXPECT_THAT(journal().of({"dragImageAt"}), ElementsAre("dragImageAt (80, 120) offset (0, 0)"));
  release(grid, NSMakePoint(100, 110));
}

TEST_F(GridDragStart, WithoutADataSourcesImageTheGridDrawsOne) {
  [items has:{"matrixView:dragImageForItemIndexes:"}];
  [grid setDataSource:items];
  drag(middle(grid, 4), NSMakePoint(100, 110));
  EXPECT_THAT(journal().of({"dragImage"}), ElementsAre("dragImage 4"));
  ASSERT_NE(grid->draggedImage, nil);
  EXPECT_EQ([grid->draggedImage size], NSMakeSize(64, 64));
  // Its lower left corner, which in a flipped view has the larger y; and the way that the
  // pointer has gone since the press, which the platform wants with y up.
  EXPECT_THAT(journal().of({"dragImageAt"}), ElementsAre("dragImageAt (65, 129) offset (3, -13)"));
  release(grid, NSMakePoint(100, 110));
}

// --- The picture
// ----------------------------------------------------------------------------------

}  // namespace

// Red in the upper half, blue in the lower one.
@interface OvTestTwoColourCell : OvTestFullCell
@end

@implementation OvTestTwoColourCell
- (void)drawWithFrame:(NSRect)frame inView:(NSView *)view {
  [super drawWithFrame:frame inView:view];
  NSRect upper, lower;
  NSDivideRect(frame, &upper, &lower, NSHeight(frame) / 2,
               [view isFlipped] ? NSMinYEdge : NSMaxYEdge);
  [[NSColor redColor] set];
  NSRectFill(upper);
  [[NSColor blueColor] set];
  NSRectFill(lower);
}
@end

namespace {

class GridDragImage : public GridTest {
 protected:
  NSImage *imageOf(OvTestGrid *grid, NSIndexSet *set, NSPoint *location) {
    journal().clear();
    return [grid _dragImageForItemIndexes:set
                                    event:mouseEvent(NSLeftMouseDragged, grid, NSMakePoint(5, 5))
                            imageLocation:location];
  }
};

TEST_F(GridDragImage, ShowsTheCellsUprightAndHalfTransparent) {
  OvTestGrid *grid = gridInWindow(9);
  [grid setDataCell:[[[OvTestTwoColourCell alloc] init] autorelease]];
  NSPoint location;
  NSImage *image = imageOf(grid, indexes({1, 3}), &location);
  EXPECT_EQ([image size], NSMakeSize(129, 129));
  EXPECT_EQ(location, NSMakePoint(0, 129));
  Picture picture = pictureOfImage(image);
  ASSERT_EQ(picture.width(), 129);
  ASSERT_EQ(picture.height(), 129);
  auto half = [](Pixel p) { return p.a > 120 && p.a < 136; };
  Pixel upper = picture.at(90, 10), lower = picture.at(90, 50);
  EXPECT_TRUE(half(upper) && upper.r > 200 && upper.b < 50) << upper;
  EXPECT_TRUE(half(lower) && lower.b > 200 && lower.r < 50) << lower;
  upper = picture.at(20, 75), lower = picture.at(20, 115);
  EXPECT_TRUE(half(upper) && upper.r > 200) << upper;
  EXPECT_TRUE(half(lower) && lower.b > 200) << lower;
  EXPECT_EQ(picture.at(20, 20).a, 0) << "item 0 is not dragged";
  EXPECT_EQ(picture.at(90, 100).a, 0) << "nor is item 4";
  EXPECT_EQ(picture.at(64, 20).a, 0) << "nor the gap";
}

TEST_F(GridDragImage, DrawsBareCellsInOrder) {
  OvTestGrid *grid = gridInWindow(9);
  [grid setDataCell:[[[OvTestFullCell alloc] init] autorelease]];
  [grid selectItemsWithIndexes:indexes({1, 3})];
  [grid setDropOperation:NSDragOperationCopy at:3];
  NSPoint location;
  imageOf(grid, indexes({3, 1}), &location);
  EXPECT_THAT(journal().of({"proposed", "hover", "highlighted", "value"}),
              ElementsAre("proposed 0", "hover 0", "highlighted 0", "value 1", "proposed 0",
                          "hover 0", "highlighted 0", "value 3"));
  Lines drawn = journal().of({"draw"});
  ASSERT_EQ(drawn.size(), 2u);
  EXPECT_EQ(drawn[0], "draw item 1 {65, 0, 64 x 64}") << "moved by the image's origin, (0, 0)";
  EXPECT_EQ(drawn[1], "draw item 3 {0, 65, 64 x 64}");
  imageOf(grid, indexes({4, 5}), &location);
  EXPECT_THAT(journal().of({"draw"}),
              ElementsAre("draw item 4 {0, 0, 64 x 64}", "draw item 5 {65, 0, 64 x 64}"));
  EXPECT_EQ(location, NSMakePoint(65, 129));
}

TEST_F(GridDragImage, HoldsOnlyTheVisibleItems) {
  OvTestGrid *grid = gridInScrollView(60);
  [grid scrollPoint:NSMakePoint(0, 130)];
  NSPoint location;
  NSImage *image = imageOf(grid, indexRange(0, 60), &location);
  // Rows 2 to 4 are visible, the last of them in part.
  EXPECT_EQ([image size].width, 194);
  EXPECT_EQ(journal().of({"draw"}).front(), "draw item 6 {0, 0, 64 x 64}");
  NSRect visible = [[grid enclosingScrollView] documentVisibleRect];
  size_t count = 0;
  for (NSUInteger i = 0; i < 60; i++) {
    count += NSIntersectsRect([grid frameOfCellAtItemIndex:i], visible);
  }
  EXPECT_EQ(journal().count("draw"), count);
  EXPECT_EQ(location, NSMakePoint(0, 130 + [image size].height));
}

TEST_F(GridDragImage, OfNothingIsSmallAndHarmless) {
  OvTestGrid *grid = gridInWindow(9);
  NSPoint location;
  EXPECT_NO_FATAL_FAILURE(imageOf(grid, [NSIndexSet indexSet], &location));
  EXPECT_NO_FATAL_FAILURE(imageOf(grid, indexes({100}), &location));
  EXPECT_EQ(journal().count("draw"), 0u);
}

TEST_F(GridDragImage, IsAutoreleased) {
  OvTestGrid *grid = gridInWindow(9);
  NSPoint location;
  NSImage *image = nil;
  @autoreleasepool {
    image = [imageOf(grid, indexes({1}), &location) retain];
  }
  EXPECT_EQ([image retainCount], 1u);
  [image release];
}

// --- The source's side
// ------------------------------------------------------------------------------

class GridDragSource : public GridTest {};

TEST_F(GridDragSource, MovesWithinTheApplicationAndCopiesToOthers) {
  OvTestGrid *grid = makeGrid(3);
  EXPECT_EQ([grid draggingSourceOperationMaskForLocal:YES], 16u);
  EXPECT_EQ([grid draggingSourceOperationMaskForLocal:NO], 1u);
  [items has:{"matrixView:draggingSourceOperationMaskForLocal:"}];
  [grid setDataSource:items];
  items->sourceMask = NSDragOperationLink;
  journal().clear();
  EXPECT_EQ([grid draggingSourceOperationMaskForLocal:YES], (NSDragOperation)NSDragOperationLink);
  EXPECT_EQ([grid draggingSourceOperationMaskForLocal:NO], (NSDragOperation)NSDragOperationLink);
  EXPECT_THAT(journal().of({"mask"}), ElementsAre("mask local", "mask other"));
}

TEST_F(GridDragSource, PassesTheCourseOfTheDragOn) {
  OvTestGrid *grid = makeGrid(3);
  NSImage *image = [[[NSImage alloc] initWithSize:NSMakeSize(5, 5)] autorelease];
  [grid draggedImage:image beganAt:NSMakePoint(1, 2)];
  [grid draggedImage:image movedTo:NSMakePoint(3, 4)];
  [grid draggedImage:image endedAt:NSMakePoint(5, 6) operation:NSDragOperationMove];
  EXPECT_THAT(journal().of({"began", "moved", "ended"}), IsEmpty()) << "to nobody";
  [items has:{"matrixView:draggedImage:beganAt:", "matrixView:draggedImage:movedTo:",
              "matrixView:draggedImage:endedAt:operation:"}];
  [grid setDataSource:items];
  journal().clear();
  [grid draggedImage:image beganAt:NSMakePoint(1, 2)];
  EXPECT_EQ(items->point, NSMakePoint(1, 2));
  [grid draggedImage:image movedTo:NSMakePoint(3, 4)];
  EXPECT_EQ(items->point, NSMakePoint(3, 4));
  [grid draggedImage:image endedAt:NSMakePoint(5, 6) operation:NSDragOperationMove];
  EXPECT_EQ(items->point, NSMakePoint(5, 6));
  EXPECT_THAT(journal().all(), ElementsAre("began", "moved", "ended 16"));
  EXPECT_EQ(items->view, grid);
}

// --- The destination's side
// ---------------------------------------------------------------------------

class GridDrop : public GridTest {
 protected:
  void SetUp() override {
    GridTest::SetUp();
    grid = gridInWindow(7);
    [items has:{"matrixView:validateDrop:proposedItemIndex:", "matrixView:acceptDrop:itemIndex:"}];
    [grid setDataSource:items];
    info = [[[OvTestDraggingInfo alloc] init] autorelease];
    info->view = grid;
    journal().clear();
  }
  OvTestDraggingInfo *at(NSPoint point) {
    info->point = point;
    return info;
  }
  OvTestDraggingInfo *over(NSUInteger index) { return at(middle(grid, index)); }
  // "operation destination location"
  std::string state() {
    return text([grid proposedDragOperation]) + " " + text([grid draggingDestinationItemIndex]) +
           " " + text([grid draggingLocationItemIndex]);
  }
  Lines asked() { return journal().of({"validate", "accept"}); }
  Lines marked() { return journal().of({"dirty"}); }
  std::string whole() { return "dirty " + text([grid bounds]); }

  OvTestGrid *grid = nil;
  OvTestDraggingInfo *info = nil;
};

TEST_F(GridDrop, ComesOntoAnItem) {
  EXPECT_EQ([grid draggingEntered:over(4)], (NSDragOperation)NSDragOperationCopy);
  EXPECT_EQ(state(), "1 4 4");
  EXPECT_THAT(asked(), ElementsAre("validate 4"));
  EXPECT_THAT(marked(), ElementsAre("dirty {65, 65, 64 x 64}"));
  EXPECT_EQ(items->info, info);
  EXPECT_EQ(items->view, grid);
}

TEST_F(GridDrop, ComesOntoAGap) {
  EXPECT_EQ([grid draggingEntered:at(NSMakePoint(64.5, 10))], (NSDragOperation)NSDragOperationCopy);
  EXPECT_EQ(state(), "1 none none");
  EXPECT_THAT(asked(), ElementsAre("validate none"));
  EXPECT_THAT(marked(), ElementsAre(whole()));
}

TEST_F(GridDrop, AskAgainForTheWholeViewWhenAnItemRefuses) {
  items->validate = [](NSUInteger i) -> NSDragOperation {
    return i == NSNotFound ? NSDragOperationMove : NSDragOperationNone;
  };
  EXPECT_EQ([grid draggingEntered:over(4)], (NSDragOperation)NSDragOperationMove);
  EXPECT_EQ(state(), "16 none 4");
  EXPECT_THAT(asked(), ElementsAre("validate 4", "validate none"));
  EXPECT_THAT(marked(), ElementsAre(whole()));
}

TEST_F(GridDrop, ARefusedGapIsNotAskedTwice) {
  items->validate = [](NSUInteger) { return NSDragOperationNone; };
  EXPECT_EQ([grid draggingEntered:at(NSMakePoint(64.5, 10))], 0u);
  EXPECT_THAT(asked(), ElementsAre("validate none"));
  EXPECT_EQ(state(), "0 none none");
  EXPECT_THAT(marked(), IsEmpty());
}

TEST_F(GridDrop, RefusedEverywhereMarksNothing) {
  items->validate = [](NSUInteger) { return NSDragOperationNone; };
  EXPECT_EQ([grid draggingEntered:over(4)], 0u);
  EXPECT_EQ(state(), "0 none 4");
  EXPECT_THAT(asked(), ElementsAre("validate 4", "validate none"));
  EXPECT_THAT(marked(), IsEmpty());
}

TEST_F(GridDrop, MovingWithinACellAsksNothing) {
  [grid draggingEntered:over(4)];
  journal().clear();
  NSPoint p = middle(grid, 4);
  EXPECT_EQ([grid draggingUpdated:at(NSMakePoint(p.x + 10, p.y + 10))],
            (NSDragOperation)NSDragOperationCopy);
  EXPECT_THAT(asked(), IsEmpty());
  EXPECT_THAT(marked(), IsEmpty());
  EXPECT_EQ(state(), "1 4 4");
}

TEST_F(GridDrop, MovingOntoAnotherItemMarksBoth) {
  [grid draggingEntered:over(4)];
  journal().clear();
  items->validate = [](NSUInteger) { return NSDragOperationMove; };
  EXPECT_EQ([grid draggingUpdated:over(2)], (NSDragOperation)NSDragOperationMove);
  EXPECT_EQ(state(), "16 2 2");
  EXPECT_THAT(asked(), ElementsAre("validate 2"));
  EXPECT_THAT(marked(), ElementsAre("dirty {65, 65, 64 x 64}", "dirty {130, 0, 64 x 64}"));
}

TEST_F(GridDrop, MovingOntoAGapMarksTheCellAndTheWholeView) {
  [grid draggingEntered:over(4)];
  journal().clear();
  [grid draggingUpdated:at(NSMakePoint(64.5, 10))];
  EXPECT_EQ(state(), "1 none none");
  EXPECT_THAT(marked(), ElementsAre("dirty {65, 65, 64 x 64}", whole()));
  journal().clear();
  [grid draggingUpdated:at(NSMakePoint(10, 64.5))];
  EXPECT_THAT(asked(), IsEmpty()) << "another gap is the same none";
  [grid draggingUpdated:over(0)];
  EXPECT_EQ(state(), "1 0 0");
  EXPECT_THAT(marked(), ElementsAre(whole(), "dirty {0, 0, 64 x 64}"));
}

TEST_F(GridDrop, LeavingForgetsTheTarget) {
  [grid draggingEntered:over(4)];
  journal().clear();
  [grid draggingExited:over(4)];
  EXPECT_EQ(state(), "0 none none");
  EXPECT_THAT(marked(), ElementsAre("dirty {65, 65, 64 x 64}"));
  [grid draggingEntered:at(NSMakePoint(64.5, 10))];
  journal().clear();
  [grid draggingExited:over(4)];
  EXPECT_THAT(marked(), ElementsAre(whole()));
}

TEST_F(GridDrop, DropsOnTheItem) {
  [grid draggingEntered:over(4)];
  journal().clear();
  EXPECT_TRUE([grid performDragOperation:over(4)]);
  EXPECT_THAT(asked(), ElementsAre("accept 4"));
  EXPECT_EQ(items->info, info);
  EXPECT_THAT(marked(), ElementsAre("dirty {65, 65, 64 x 64}"));
  EXPECT_EQ(state(), "0 none none");
}

TEST_F(GridDrop, DropsOnTheWholeView) {
  [grid draggingEntered:at(NSMakePoint(64.5, 10))];
  journal().clear();
  EXPECT_TRUE([grid performDragOperation:info]);
  EXPECT_THAT(asked(), ElementsAre("accept none"));
  EXPECT_THAT(marked(), ElementsAre(whole()));
}

TEST_F(GridDrop, TheDataSourcesReplyIsTheAnswer) {
  [grid draggingEntered:over(4)];
  items->accepts = NO;
  EXPECT_FALSE([grid performDragOperation:over(4)]);
  EXPECT_EQ(state(), "0 none none");
}

TEST_F(GridDrop, WithoutAnAccepterNothingIsDropped) {
  OvTestItems *validator = newItems(7);
  [validator has:{"matrixView:validateDrop:proposedItemIndex:"}];
  [grid setDataSource:validator];
  EXPECT_EQ([grid draggingEntered:over(4)], (NSDragOperation)NSDragOperationCopy);
  EXPECT_FALSE([grid performDragOperation:over(4)]);
  EXPECT_EQ(state(), "0 none none");
}

TEST_F(GridDrop, WithoutAValidatorEveryDropIsRefused) {
  OvTestItems *accepter = newItems(7);
  [accepter has:{"matrixView:acceptDrop:itemIndex:"}];
  [grid setDataSource:accepter];
  journal().clear();
  EXPECT_EQ([grid draggingEntered:over(4)], 0u);
  EXPECT_EQ([grid draggingUpdated:over(2)], 0u);
  EXPECT_FALSE([grid performDragOperation:over(2)]);
  [grid draggingExited:over(2)];
  EXPECT_THAT(asked(), IsEmpty());
  EXPECT_THAT(marked(), IsEmpty());
  EXPECT_EQ(state(), "0 none none");
}

TEST_F(GridDrop, ASecondSessionStartsAfresh) {
  [grid draggingEntered:over(4)];
  // The session ends without a word, and another comes onto the same item.
  items->validate = [](NSUInteger) { return NSDragOperationNone; };
  EXPECT_EQ([grid draggingEntered:over(4)], 0u);
  EXPECT_EQ(state(), "0 none 4");
}

}  // namespace
