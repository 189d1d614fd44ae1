// Whole dragging sessions with the platform's own dragging, with posted events and with a
// pointer that the display server moves.

#import "GridTest.h"

using namespace ov::test;
using testing::ElementsAre;

// A place to drop strings.
@interface OvTestDropView : NSView {
 @public
  std::vector<std::string> received;
  NSDragOperation answer;
  NSDragOperation lastMask;
}
@end

@implementation OvTestDropView
- (NSDragOperation)draggingEntered:(id<NSDraggingInfo>)sender {
  lastMask = [sender draggingSourceOperationMask];
  return answer;
}
- (NSDragOperation)draggingUpdated:(id<NSDraggingInfo>)sender {
  (void)sender;
  return answer;
}
- (BOOL)prepareForDragOperation:(id<NSDraggingInfo>)sender {
  (void)sender;
  return YES;
}
- (BOOL)performDragOperation:(id<NSDraggingInfo>)sender {
  received.push_back([[[sender draggingPasteboard] stringForType:NSStringPboardType] UTF8String]
                         ?: "nil");
  return YES;
}
@end

// Drags a string out of itself.
@interface OvTestDragSource : NSView {
 @public
  bool dragging;
  NSDragOperation ended;
}
@end

@implementation OvTestDragSource
- (void)mouseDown:(NSEvent *)event {
  (void)event;
}
- (void)mouseDragged:(NSEvent *)event {
  if (dragging) return;
  dragging = true;
  NSPasteboard *pasteboard = [NSPasteboard pasteboardWithName:NSDragPboard];
  [pasteboard declareTypes:@[ NSStringPboardType ] owner:nil];
  [pasteboard setString:@"dropped" forType:NSStringPboardType];
  NSImage *image = [[[NSImage alloc] initWithSize:NSMakeSize(16, 16)] autorelease];
  [image lockFocus];
  [[NSColor redColor] set];
  NSRectFill(NSMakeRect(0, 0, 16, 16));
  [image unlockFocus];
  [self dragImage:image
               at:[self convertPoint:[event locationInWindow] fromView:nil]
           offset:NSZeroSize
            event:event
       pasteboard:pasteboard
           source:self
        slideBack:NO];
}
- (NSDragOperation)draggingSourceOperationMaskForLocal:(BOOL)isLocal {
  (void)isLocal;
  return NSDragOperationEvery;
}
- (void)draggedImage:(NSImage *)image endedAt:(NSPoint)point operation:(NSDragOperation)operation {
  (void)image, (void)point;
  ended = operation;
}
@end

namespace {

class GridRealDrag : public GridTest, public testing::WithParamInterface<DragDriver> {
 protected:
  void SetUp() override {
    GridTest::SetUp();
    window = showWindow(NSMakeSize(460, 220));
    grid = makeGrid(9);
    [items
        has:{"matrixView:writeItemsWithIndexes:toPasteboard:", "matrixView:draggedImage:beganAt:",
             "matrixView:draggedImage:endedAt:operation:", "matrixView:draggedImage:movedTo:",
             "matrixView:validateDrop:proposedItemIndex:", "matrixView:acceptDrop:itemIndex:"}];
    [grid setDataSource:items];
    grid->callsThroughDragImage = YES;
    [[window contentView] addSubview:grid];
    target = [[[OvTestDropView alloc] initWithFrame:NSMakeRect(220, 0, 100, 200)] autorelease];
    target->answer = NSDragOperationMove;
    [target registerForDraggedTypes:@[ NSStringPboardType ]];
    [[window contentView] addSubview:target];
    source = [[[OvTestDragSource alloc] initWithFrame:NSMakeRect(340, 0, 100, 200)] autorelease];
    [[window contentView] addSubview:source];
    pumpPending();
    journal().clear();
  }
  NSWindow *window = nil;
  OvTestGrid *grid = nil;
  OvTestDropView *target = nil;
  OvTestDragSource *source = nil;
};

TEST_P(GridRealDrag, CarriesItemsOut) {
  [grid selectItemsWithIndexes:indexes({3, 4})];
  journal().clear();
  EXPECT_TRUE(dragThrough(grid, middle(grid, 4),
                          {{grid, NSMakePoint(150, 100)},
                           {target, NSMakePoint(20, 100)},
                           {target, NSMakePoint(50, 100)}},
                          GetParam()));
  EXPECT_TRUE(pumpUntil([&] { return journal().count("ended") == 1; }));
  EXPECT_THAT(journal().of({"write", "began", "ended"}),
              ElementsAre("write 3 4", "began", "ended 16"));
  EXPECT_GE(journal().count("moved"), 1u);
  EXPECT_THAT(target->received, ElementsAre("items"));
  EXPECT_EQ(selection(grid), "3 4");
  // The session swallowed the release; the grid is ready for the next press all the same.
  click(grid, middle(grid, 0));
  EXPECT_EQ(selection(grid), "0");
}

TEST_P(GridRealDrag, TakesADrop) {
  [grid registerForDraggedTypes:@[ NSStringPboardType ]];
  EXPECT_TRUE(dragThrough(
      source, NSMakePoint(50, 100),
      {{target, NSMakePoint(50, 100)}, {grid, middle(grid, 5)}, {grid, middle(grid, 4)}},
      GetParam()));
  EXPECT_TRUE(pumpUntil([&] { return journal().count("accept") == 1; }));
  EXPECT_THAT(journal().of({"accept"}), ElementsAre("accept 4"));
  Lines validated = journal().of({"validate"});
  EXPECT_THAT(validated, testing::Contains("validate 5"));
  EXPECT_EQ(validated.back(), "validate 4");
  EXPECT_EQ([grid proposedDragOperation], 0u);
  EXPECT_EQ([grid draggingDestinationItemIndex], (NSUInteger)NSNotFound);
}

TEST_P(GridRealDrag, ForgetsADragThatPassesOver) {
  [grid registerForDraggedTypes:@[ NSStringPboardType ]];
  EXPECT_TRUE(dragThrough(
      source, NSMakePoint(50, 100),
      {{grid, middle(grid, 5)}, {grid, middle(grid, 4)}, {target, NSMakePoint(50, 100)}},
      GetParam()));
  EXPECT_TRUE(pumpUntil([&] { return target->received.size() == 1; }));
  EXPECT_EQ(journal().count("accept"), 0u);
  EXPECT_GE(journal().count("validate"), 1u);
  EXPECT_EQ([grid proposedDragOperation], 0u);
  EXPECT_EQ([grid draggingLocationItemIndex], (NSUInteger)NSNotFound);
}

TEST_P(GridRealDrag, IntoItself) {
  [grid registerForDraggedTypes:@[ NSStringPboardType ]];
  items->validate = [](NSUInteger) { return NSDragOperationMove; };
  EXPECT_TRUE(dragThrough(grid, middle(grid, 0), {{grid, middle(grid, 1)}, {grid, middle(grid, 4)}},
                          GetParam()));
  EXPECT_TRUE(pumpUntil([&] { return journal().count("ended") == 1; }));
  EXPECT_THAT(journal().of({"write", "accept", "ended"}),
              ElementsAre("write 0", "accept 4", "ended 16"));
}

INSTANTIATE_TEST_SUITE_P(Drivers, GridRealDrag,
                         testing::Values(DragDriver::posted, DragDriver::xtest),
                         [](const auto &info) {
                           return info.param == DragDriver::posted ? "posted" : "xtest";
                         });

}  // namespace
