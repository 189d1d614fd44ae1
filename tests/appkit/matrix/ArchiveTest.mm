// A grid that goes through an archive or an interface file keeps its configuration.

#import "GridTest.h"

#import "Coding.h"
#import "InterfaceFiles.h"

using namespace ov::test;

// Owns an interface file, and is the grid's data source there.
@interface OvTestNibOwner : NSObject {
 @public
  HXMatrixView *grid;
  int awake;
}
@end

@implementation OvTestNibOwner
- (NSUInteger)numberOfItemsInMatrixView:(HXMatrixView *)matrixView {
  (void)matrixView;
  return 6;
}
- (id)matrixView:(HXMatrixView *)matrixView
    objectValueForCell:(NSCell *)cell
           atItemIndex:(NSUInteger)index {
  (void)matrixView, (void)cell, (void)index;
  return @"x";
}
- (void)setGrid:(HXMatrixView *)aGrid {
  grid = aGrid;
}
@end

// A data source that can be archived with its grid.
@interface OvTestArchivedSource : NSObject <NSCoding>
@end

@implementation OvTestArchivedSource
- (void)encodeWithCoder:(NSCoder *)coder {
  (void)coder;
}
- (id)initWithCoder:(NSCoder *)coder {
  (void)coder;
  return [self init];
}
- (NSUInteger)numberOfItemsInMatrixView:(HXMatrixView *)matrixView {
  (void)matrixView;
  return 4;
}
- (id)matrixView:(HXMatrixView *)matrixView
    objectValueForCell:(NSCell *)cell
           atItemIndex:(NSUInteger)index {
  (void)matrixView, (void)cell, (void)index;
  return @"x";
}
@end

namespace {

class GridArchive : public GridTest, public testing::WithParamInterface<Coding> {};

TEST_P(GridArchive, KeepsTheConfiguration) {
  OvTestGrid *grid = [[[OvTestGrid alloc] initWithFrame:NSMakeRect(10, 20, 300, 200)] autorelease];
  NSTextFieldCell *cell = [[[NSTextFieldCell alloc] initTextCell:@"cell"] autorelease];
  [cell setEditable:YES];
  NSShadow *shadow = [[[NSShadow alloc] init] autorelease];
  [shadow setShadowOffset:NSMakeSize(2, -3)];
  [shadow setShadowBlurRadius:4];
  [shadow setShadowColor:[NSColor colorWithDeviceRed:0 green:1 blue:0 alpha:1]];
  [grid setAutoFitHorizentally:NO];
  [grid setCellSize:NSMakeSize(33, 44.5)];
  [grid setIntercellSpacing:NSMakeSize(5, 6)];
  [grid setDataCell:cell];
  [grid setBackgroundColor:[NSColor colorWithDeviceRed:1 green:0 blue:0 alpha:1]];
  [grid setGridColor:[NSColor colorWithDeviceRed:0 green:0 blue:1 alpha:1]];
  [grid setGridShadow:shadow];
  [grid setGridStyleMask:0x80000003U];
  [grid setGridLineWidth:2.5];
  [grid setAllowsMultipleSelection:NO];
  [grid setAllowsEmptySelection:NO];
  [grid setAllowsBeginDragging:NO];
  [grid setMultipleSelectionBehavior:1];
  [grid setAlternateMultipleSelectionBehavior:0];
  [grid setMultipleSelectionBehaviorForDragging:1];
  [grid setAlternateMultipleSelectionBehaviorForDragging:5];
  [grid setMouseTrackingEnabled:YES];
  NSRect frame = [grid frame];

  OvTestGrid *copy = roundTrip(grid, GetParam());
  ASSERT_TRUE([copy isMemberOfClass:[OvTestGrid class]]);
  EXPECT_NE(copy, grid);
  EXPECT_EQ([copy frame], frame);
  EXPECT_FALSE([copy autoFitHorizentally]);
  EXPECT_EQ([copy cellSize], NSMakeSize(33, 44.5));
  EXPECT_EQ([copy intercellSpacing], NSMakeSize(5, 6));
  EXPECT_TRUE([[copy dataCell] isMemberOfClass:[NSTextFieldCell class]]);
  EXPECT_TRUE([[copy dataCell] isEditable]);
  EXPECT_TRUE([[copy backgroundColor] isEqual:[grid backgroundColor]]);
  EXPECT_TRUE([[copy gridColor] isEqual:[grid gridColor]]);
  EXPECT_EQ([[copy gridShadow] shadowOffset], NSMakeSize(2, -3));
  EXPECT_EQ([[copy gridShadow] shadowBlurRadius], 4);
  EXPECT_TRUE([[[copy gridShadow] shadowColor] isEqual:[shadow shadowColor]]);
  EXPECT_EQ([copy gridStyleMask], 0x80000003U);
  EXPECT_EQ([copy gridLineWidth], 2.5);
  EXPECT_FALSE([copy allowsMultipleSelection]);
  EXPECT_FALSE([copy allowsEmptySelection]);
  EXPECT_FALSE([copy allowsBeginDragging]);
  EXPECT_EQ([copy multipleSelectionBehavior], 1);
  EXPECT_EQ([copy alternateMultipleSelectionBehavior], 0);
  EXPECT_EQ([copy multipleSelectionBehaviorForDragging], 1);
  EXPECT_EQ([copy alternateMultipleSelectionBehaviorForDragging], 5);
  EXPECT_TRUE([copy mouseTrackingEnabled]);
}

TEST_P(GridArchive, KeepsTheInitialState) {
  OvTestGrid *copy = roundTrip(
      [[[OvTestGrid alloc] initWithFrame:NSMakeRect(10, 20, 300, 200)] autorelease], GetParam());
  GridState s = [copy state];
  EXPECT_EQ(s.cellSize, NSMakeSize(64, 64));
  EXPECT_EQ(s.dataCell, nil);
  EXPECT_EQ(s.backgroundColor, nil);
  EXPECT_EQ(s.gridColor, nil);
  EXPECT_EQ(s.gridShadow, nil);
  EXPECT_EQ(s.gridStyleMask, 0u);
  EXPECT_EQ(s.mouseDownItemIndex, (NSUInteger)NSNotFound);
  EXPECT_EQ(s.editedItemIndex, (NSUInteger)NSNotFound);
  EXPECT_EQ(s.draggingDestinationItemIndex, (NSUInteger)NSNotFound);
  EXPECT_TRUE([copy autoFitHorizentally]);
  EXPECT_TRUE([copy allowsMultipleSelection]);
  EXPECT_TRUE([copy allowsEmptySelection]);
  EXPECT_TRUE([copy allowsBeginDragging]);
  EXPECT_FALSE([copy mouseTrackingEnabled]);
  EXPECT_EQ([copy alternateMultipleSelectionBehavior], 1);
  EXPECT_NE(s.selectionManager, nil);
  EXPECT_EQ([s.selectionInfo count], 0u);
}

TEST_P(GridArchive, TheSelectionAndTheLayoutAreMadeAnew) {
  OvTestGrid *grid = makeGrid(7);
  [grid selectItemsWithIndexes:indexes({1, 2})];
  [grid setDataSource:nil];
  [grid selectItemsWithIndexes:indexes({1, 2})];
  OvTestGrid *copy = roundTrip(grid, GetParam());
  EXPECT_EQ(selection(copy), "");
  EXPECT_EQ([copy numberOfItems], 0u);
  [copy setDataSource:items];
  EXPECT_EQ([copy numberOfItems], 7u);
  EXPECT_EQ([copy frameOfCellAtItemIndex:1], NSMakeRect(65, 0, 64, 64));
  [copy setDataSource:nil];
}

TEST_P(GridArchive, EveryBitOfTheStyleMaskSurvives) {
  OvTestGrid *grid = makeGrid(0);
  NSUInteger high = (NSUInteger(1) << (sizeof(NSUInteger) * 8 - 1)) | 3;
  [grid setDataSource:nil];
  [grid setDelegate:nil];
  [grid setGridStyleMask:high];
  EXPECT_EQ([roundTrip(grid, GetParam()) gridStyleMask], high);
}

TEST_P(GridArchive, ADecodedGridDrawsClicksAndGoes) {
  OvTestGrid *grid = makeGrid(0);
  [grid setDataSource:nil];
  [grid setDelegate:nil];
  [grid setMouseTrackingEnabled:YES];
  OvTestGrid *copy = roundTrip(grid, GetParam());
  items = newItems(7);
  NSWindow *window = showWindow(NSMakeSize(200, 200));
  [[window contentView] addSubview:copy];
  [copy setFrame:NSMakeRect(0, 0, 200, 200)];
  [copy setDataSource:items];
  [copy setDelegate:items];
  [copy display];
  click(copy, middle(copy, 4));
  EXPECT_EQ(selection(copy), "4");
}

TEST_P(GridArchive, ItsDocumentRoleSurvives) {
  OvTestGrid *grid = makeGrid(0);
  [grid setDataSource:nil];
  [grid setDelegate:nil];
  NSScrollView *scroll =
      [[[NSScrollView alloc] initWithFrame:NSMakeRect(0, 0, 220, 200)] autorelease];
  [scroll setDocumentView:grid];
  NSScrollView *copy = roundTrip(scroll, GetParam());
  OvTestGrid *document = [copy documentView];
  ASSERT_TRUE([document isKindOfClass:[HXMatrixView class]]);
  items = newItems(60);
  [document setDataSource:items];
  EXPECT_EQ([document numberOfColumns], 3u);
  EXPECT_EQ([document frame].size.height, 20 * 65 - 1);
  [document setDataSource:nil];
}

INSTANTIATE_TEST_SUITE_P(Codings, GridArchive, testing::Values(Coding::keyed, Coding::sequential),
                         codingName);

class GridInterfaceFile : public GridTest {};

TEST_F(GridInterfaceFile, ASourceInASequentialArchiveStaysConnected) {
  OvTestGrid *grid = makeGrid(0);
  OvTestArchivedSource *source = [[[OvTestArchivedSource alloc] init] autorelease];
  [grid setDelegate:source];
  [grid setDataSource:source];
  NSArray *both = roundTrip(@[ source, grid ], Coding::sequential);
  OvTestGrid *copy = [both objectAtIndex:1];
  EXPECT_EQ([copy dataSource], [both objectAtIndex:0]);
  EXPECT_EQ([copy delegate], [both objectAtIndex:0]);
  [copy awakeFromNib];
  EXPECT_EQ([copy numberOfItems], 4u);
  // Alone, it comes without: the connection is conditional.
  OvTestGrid *alone = roundTrip(grid, Coding::sequential);
  EXPECT_EQ([alone dataSource], nil);
  EXPECT_EQ([alone delegate], nil);
  [copy setDataSource:nil];
  [copy setDelegate:nil];
  [grid setDataSource:nil];
  [grid setDelegate:nil];
}

TEST_F(GridInterfaceFile, AnXMLFileMakesAndConnectsOne) {
  NSString *objects = @"<customView id=\"v1\" customClass=\"OvMatrixView\">"
                      @"<rect key=\"frame\" x=\"0.0\" y=\"0.0\" width=\"300\" height=\"200\"/>"
                      @"<connections><outlet property=\"dataSource\" destination=\"-2\" id=\"o2\"/>"
                      @"<outlet property=\"delegate\" destination=\"-2\" id=\"o3\"/></connections>"
                      @"</customView>";
  OvTestNibOwner *owner = [[[OvTestNibOwner alloc] init] autorelease];
  ASSERT_TRUE(loadXib(owner, @{@"grid" : @"v1"}, objects));
  ASSERT_TRUE([owner->grid isMemberOfClass:[OvMatrixView class]]);
  EXPECT_EQ([owner->grid dataSource], owner);
  EXPECT_EQ([owner->grid delegate], owner);
  EXPECT_EQ([owner->grid numberOfItems], 6u);
  EXPECT_EQ([owner->grid frame].size.height, 200);
  EXPECT_EQ([owner->grid numberOfRows], 3u);
  [owner->grid setDataSource:nil];
  [owner->grid setDelegate:nil];
}

TEST_F(GridInterfaceFile, AnObjectArchiveFileMakesAndConnectsOne) {
  HXMatrixView *made =
      [[[HXMatrixView alloc] initWithFrame:NSMakeRect(0, 0, 200, 200)] autorelease];
  [made setAutoFitHorizentally:NO];
  [made setCellSize:NSMakeSize(40, 30)];
  GormFile file;
  file.add(@"Grid", made);
  file.outlet(@"NSOwner", @"grid", @"Grid");
  file.outlet(@"Grid", @"dataSource", @"NSOwner");
  OvTestNibOwner *owner = [[[OvTestNibOwner alloc] init] autorelease];
  ASSERT_TRUE(file.load(owner));
  ASSERT_TRUE([owner->grid isMemberOfClass:[HXMatrixView class]]);
  EXPECT_NE(owner->grid, made);
  EXPECT_EQ([owner->grid dataSource], owner);
  EXPECT_EQ([owner->grid cellSize], NSMakeSize(40, 30));
  EXPECT_EQ([owner->grid numberOfItems], 6u);
  EXPECT_EQ([owner->grid numberOfColumns], 4u);
  [owner->grid setDataSource:nil];
}

}  // namespace
