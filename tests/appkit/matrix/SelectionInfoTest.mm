// The selection record, its two ends, and the holder of the behaviours.

#import "GridTest.h"

using namespace ov::test;

namespace {

class SelectionInfo : public GridTest {
 protected:
  static constexpr NSUInteger kNone = NSNotFound;

  static HXMatrixViewSelectionInfo *record(std::initializer_list<NSUInteger> set, NSUInteger first,
                                           NSUInteger last) {
    return [[[HXMatrixViewSelectionInfo alloc] initWithSelectionIndexes:indexes(set)
                                                    firstSelectionIndex:first
                                                     lastSelectionIndex:last] autorelease];
  }

  // "1 2 | first last"
  static std::string state(HXMatrixViewSelectionInfo *info) {
    return text([info selectionIndexes]) + " | " + text([info firstSelectionIndex]) + " " +
           text([info lastSelectionIndex]);
  }
};

TEST_F(SelectionInfo, StartsEmpty) {
  HXMatrixViewSelectionInfo *info = [[[HXMatrixViewSelectionInfo alloc] init] autorelease];
  EXPECT_EQ(state(info), " | none none");
  EXPECT_EQ([info count], 0u);
  EXPECT_FALSE([info containsIndex:0]);
}

TEST_F(SelectionInfo, MayStartWithOneItem) {
  HXMatrixViewSelectionInfo *info =
      [[[HXMatrixViewSelectionInfo alloc] initWithSelectionIndex:7] autorelease];
  EXPECT_EQ(state(info), "7 | 7 7");
  EXPECT_EQ([info count], 1u);
  EXPECT_TRUE([info containsIndex:7]);
}

TEST_F(SelectionInfo, MayStartWithASetWhoseEndsAreItsOwn) {
  NSMutableIndexSet *set = [[indexes({3, 9, 5}) mutableCopy] autorelease];
  HXMatrixViewSelectionInfo *info =
      [[[HXMatrixViewSelectionInfo alloc] initWithSelectionIndexes:set] autorelease];
  EXPECT_EQ(state(info), "3 5 9 | 3 9");
  [set addIndex:1];
  EXPECT_EQ(state(info), "3 5 9 | 3 9") << "a copy";
  info = [[[HXMatrixViewSelectionInfo alloc] initWithSelectionIndexes:[NSIndexSet indexSet]]
      autorelease];
  EXPECT_EQ(state(info), " | none none");
}

TEST_F(SelectionInfo, MayStartWithGivenEnds) {
  EXPECT_EQ(state(record({3, 5, 9}, 5, 3)), "3 5 9 | 5 3");
  EXPECT_EQ(state(record({3}, 100, kNone)), "3 | 100 none") << "taken as they are";
}

TEST_F(SelectionInfo, MayStartAsACopy) {
  HXMatrixViewSelectionInfo *original = record({3, 5, 9}, 5, 3);
  HXMatrixViewSelectionInfo *copy =
      [[[HXMatrixViewSelectionInfo alloc] initWithSelectionInfo:original] autorelease];
  EXPECT_EQ(state(copy), "3 5 9 | 5 3");
  [original addIndex:20];
  EXPECT_EQ(state(copy), "3 5 9 | 5 3");
  EXPECT_NE([copy selectionIndexes], [original selectionIndexes]);
}

TEST_F(SelectionInfo, HandsOutTheSetItself) {
  HXMatrixViewSelectionInfo *info = record({3}, 3, 3);
  EXPECT_TRUE([[info selectionIndexes] isKindOfClass:[NSMutableIndexSet class]]);
  [[info selectionIndexes] addIndex:4];
  EXPECT_EQ(state(info), "3 4 | 3 3");
}

TEST_F(SelectionInfo, AnAddedIndexBecomesTheLast) {
  HXMatrixViewSelectionInfo *info = [[[HXMatrixViewSelectionInfo alloc] init] autorelease];
  [info addIndex:5];
  EXPECT_EQ(state(info), "5 | 5 5");
  [info addIndex:2];
  EXPECT_EQ(state(info), "2 5 | 5 2");
  [info addIndex:5];
  EXPECT_EQ(state(info), "2 5 | 5 5") << "also one that is there already";
}

TEST_F(SelectionInfo, AnAddedSetsHighestBecomesTheLastAlways) {
  HXMatrixViewSelectionInfo *info = [[[HXMatrixViewSelectionInfo alloc] init] autorelease];
  [info addIndexes:indexes({4, 8})];
  EXPECT_EQ(state(info), "4 8 | 4 8");
  [info addIndexes:indexes({1, 2})];
  EXPECT_EQ(state(info), "1 2 4 8 | 4 2");
}

TEST_F(SelectionInfo, AnAddedRangeKeepsTheLastThatThereIs) {
  HXMatrixViewSelectionInfo *info = record({3}, 3, 3);
  [info addIndexesInRange:NSMakeRange(0, 10)];
  EXPECT_EQ(state(info), "0 1 2 3 4 5 6 7 8 9 | 3 3");
  info = [[[HXMatrixViewSelectionInfo alloc] init] autorelease];
  [info addIndexesInRange:NSMakeRange(2, 3)];
  EXPECT_EQ(state(info), "2 3 4 | 2 4");
}

TEST_F(SelectionInfo, AnAddedRangesEndsAreThoseOfTheWholeSet) {
  // Ends that there are none of become the lowest and highest selected, not of the range.
  HXMatrixViewSelectionInfo *info = record({1, 20}, kNone, kNone);
  [info addIndexesInRange:NSMakeRange(5, 2)];
  EXPECT_EQ(state(info), "1 5 6 20 | 1 20");
}

TEST_F(SelectionInfo, ARemovedEndMovesToTheNextRemainingExtreme) {
  HXMatrixViewSelectionInfo *info = record({2, 4, 6, 8}, 4, 6);
  [info removeIndex:8];
  EXPECT_EQ(state(info), "2 4 6 | 4 6");
  [info removeIndex:4];
  EXPECT_EQ(state(info), "2 6 | 2 6") << "the lowest remaining";
  [info removeIndex:6];
  EXPECT_EQ(state(info), "2 | 2 2") << "the highest remaining";
  [info removeIndex:2];
  EXPECT_EQ(state(info), " | none none");
  [info removeIndex:2];
  EXPECT_EQ(state(info), " | none none");
}

TEST_F(SelectionInfo, RemovingASetOrARangeMovesTheEndsThatAreGone) {
  HXMatrixViewSelectionInfo *info = record({2, 4, 6, 8}, 4, 6);
  [info removeIndexes:indexes({4, 6, 99})];
  EXPECT_EQ(state(info), "2 8 | 2 8");
  info = record({2, 4, 6, 8}, 4, 6);
  [info removeIndexes:indexes({2, 8})];
  EXPECT_EQ(state(info), "4 6 | 4 6") << "ends that stay, stay";
  info = record({2, 4, 6, 8}, 4, 6);
  [info removeIndexesInRange:NSMakeRange(3, 4)];
  EXPECT_EQ(state(info), "2 8 | 2 8");
  info = record({2, 4, 6, 8}, 4, 6);
  [info removeIndexesInRange:NSMakeRange(0, 100)];
  EXPECT_EQ(state(info), " | none none");
}

TEST_F(SelectionInfo, RemovingEverythingClearsTheEnds) {
  HXMatrixViewSelectionInfo *info = record({2, 4}, 100, 200);
  [info removeAllIndexes];
  EXPECT_EQ(state(info), " | none none");
}

TEST_F(SelectionInfo, TheEndsArePlainAccessors) {
  HXMatrixViewSelectionInfo *info = record({2}, 2, 2);
  [info setFirstSelectionIndex:50];
  [info setLastSelectionIndex:kNone];
  EXPECT_EQ(state(info), "2 | 50 none");
}

TEST_F(SelectionInfo, OwnsItsSet) {
  HXMatrixViewSelectionInfo *info = [[HXMatrixViewSelectionInfo alloc] initWithSelectionIndex:3];
  NSMutableIndexSet *set = [[info selectionIndexes] retain];
  [info release];
  EXPECT_EQ([set retainCount], 1u);
  [set release];
}

class SelectionManager : public GridTest {};

TEST_F(SelectionManager, HoldsFourBehaviours) {
  HXMatrixViewSelectionManager *manager =
      [[[HXMatrixViewSelectionManager alloc] initWithMatrixView:makeGrid(3)] autorelease];
  EXPECT_EQ([manager multipleSelectionBehavior], 0);
  EXPECT_EQ([manager alternateMultipleSelectionBehavior], 1);
  EXPECT_EQ([manager multipleSelectionBehaviorForDragging], 0);
  EXPECT_EQ([manager alternateMultipleSelectionBehaviorForDragging], 1);
  [manager setMultipleSelectionBehavior:5];
  [manager setAlternateMultipleSelectionBehavior:-6];
  [manager setMultipleSelectionBehaviorForDragging:7];
  [manager setAlternateMultipleSelectionBehaviorForDragging:8];
  EXPECT_EQ([manager multipleSelectionBehavior], 5);
  EXPECT_EQ([manager alternateMultipleSelectionBehavior], -6);
  EXPECT_EQ([manager multipleSelectionBehaviorForDragging], 7);
  EXPECT_EQ([manager alternateMultipleSelectionBehaviorForDragging], 8);
}

TEST_F(SelectionManager, TheGridForwardsItsAccessors) {
  OvTestGrid *grid = makeGrid(3);
  HXMatrixViewSelectionManager *manager = [grid state].selectionManager;
  [grid setMultipleSelectionBehavior:5];
  [grid setAlternateMultipleSelectionBehavior:6];
  [grid setMultipleSelectionBehaviorForDragging:7];
  [grid setAlternateMultipleSelectionBehaviorForDragging:8];
  EXPECT_EQ([manager multipleSelectionBehavior], 5);
  EXPECT_EQ([manager alternateMultipleSelectionBehavior], 6);
  EXPECT_EQ([manager multipleSelectionBehaviorForDragging], 7);
  EXPECT_EQ([manager alternateMultipleSelectionBehaviorForDragging], 8);
  [manager setMultipleSelectionBehavior:1];
  EXPECT_EQ([grid multipleSelectionBehavior], 1);
  EXPECT_EQ([grid alternateMultipleSelectionBehavior], 6);
  EXPECT_EQ([grid multipleSelectionBehaviorForDragging], 7);
  EXPECT_EQ([grid alternateMultipleSelectionBehaviorForDragging], 8);
}

TEST_F(SelectionManager, DoesNotRetainItsGridAndIgnoresTheMouse) {
  OvTestGrid *grid = gridInWindow(3);
  NSUInteger before = [grid retainCount];
  HXMatrixViewSelectionManager *manager =
      [[HXMatrixViewSelectionManager alloc] initWithMatrixView:grid];
  EXPECT_EQ([grid retainCount], before);
  NSEvent *event = mouseEvent(NSLeftMouseDown, grid, NSMakePoint(5, 5));
  [manager mouseDown:event];
  [manager mouseDragged:event];
  [manager mouseUp:event];
  [manager mouseClicked:event];
  EXPECT_EQ(selection(grid), "");
  [manager release];
}

}  // namespace
