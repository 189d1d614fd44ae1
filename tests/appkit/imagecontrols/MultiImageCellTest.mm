#import "MultiImageTest.h"

#import "../extensions/ImageFiles.h"
#include "Coding.h"

using namespace ov::test;

// Archives as another implementation writes them.
@interface OvTestForeignCell : NSActionCell {
 @public
  id images;
}
@end
@implementation OvTestForeignCell
- (void)encodeWithCoder:(NSCoder *)coder {
  [super encodeWithCoder:coder];
  if ([coder allowsKeyedCoding]) {
    [coder encodeObject:images forKey:@"images"];
    [coder encodeBool:YES forKey:@"drawsWhenDisabled"];
  } else {
    [coder encodeObject:images];
    const char flag = 1;
    [coder encodeValueOfObjCType:"c" at:&flag];
  }
}
@end

// Reads what the cell writes.
@interface OvTestForeignReader : NSActionCell {
 @public
  id images;
  bool flag;
}
@end
@implementation OvTestForeignReader
- (id)initWithCoder:(NSCoder *)coder {
  self = [super initWithCoder:coder];
  if ([coder allowsKeyedCoding]) {
    images = [[coder decodeObjectForKey:@"images"] retain];
    flag = [coder containsValueForKey:@"drawsWhenDisabled"] &&
           [coder decodeBoolForKey:@"drawsWhenDisabled"];
  } else {
    images = [[coder decodeObject] retain];
    char c = 0;
    [coder decodeValueOfObjCType:"c" at:&c];
    flag = c == 1;
  }
  return self;
}
- (void)dealloc {
  [images release];
  [super dealloc];
}
@end

@interface OvTestDyingImage : NSImage
@end
@implementation OvTestDyingImage
static int dyingImages = 0;
- (void)dealloc {
  dyingImages++;
  [super dealloc];
}
@end

// A view that draws a cell in a part of itself.
@interface OvTestCellView : NSView {
 @public
  NSCell *cell;
  NSRect frame;
  BOOL flipped;
}
@end
@implementation OvTestCellView
- (BOOL)isFlipped {
  return flipped;
}
- (void)drawRect:(NSRect)rect {
  [[NSColor whiteColor] set];
  NSRectFill(rect);
  [cell drawInteriorWithFrame:frame inView:self];
}
@end

namespace {

class MultiImageCell : public LiveTest {
 protected:
  HXMultiImageCell *makeCell() { return [[[HXMultiImageCell alloc] init] autorelease]; }

  Picture draw(NSCell *cell, NSRect frame, BOOL flipped) {
    NSWindow *window = makeWindow(NSMakeSize(40, 30));
    OvTestCellView *view =
        [[[OvTestCellView alloc] initWithFrame:NSMakeRect(0, 0, 40, 30)] autorelease];
    view->cell = cell;
    view->frame = frame;
    view->flipped = flipped;
    [[window contentView] addSubview:view];
    return pictureOf(view);
  }

  ImageFolder folder;
};

TEST_F(MultiImageCell, StartsWithoutImages) {
  NSImage *image = filledImage(kImageSize, [NSColor redColor]);
  HXMultiImageCell *cells[] = {makeCell(),
                               [[[HXMultiImageCell alloc] initTextCell:@"text"] autorelease],
                               [[[HXMultiImageCell alloc] initImageCell:image] autorelease],
                               [[[HXMultiImageCell alloc] initImageCell:nil] autorelease]};
  for (HXMultiImageCell *cell : cells) {
    EXPECT_FALSE([cell drawsWhenDisabled]);
    EXPECT_EQ([[cell valueForKey:@"_images"] count], 0u);
    EXPECT_TRUE([[cell valueForKey:@"_images"] isKindOfClass:[NSMutableDictionary class]]);
    [cell registerImage:image forKey:@"key"];
    EXPECT_EQ([cell imageForKey:@"key"], image);
  }
  EXPECT_EQ([cells[0] image], nil);
  EXPECT_EQ([cells[2] image], image);
  EXPECT_TRUE([HXMultiImageCell isSubclassOfClass:[NSActionCell class]]);
}

TEST_F(MultiImageCell, KeepsImagesByKey) {
  HXMultiImageCell *cell = makeCell();
  NSImage *red = filledImage(kImageSize, [NSColor redColor]);
  NSImage *blue = filledImage(kImageSize, [NSColor blueColor]);
  [cell registerImage:red forKey:@"a"];
  [cell registerImage:red forKey:@"b"];
  [cell registerImage:blue forKey:@"a"];
  EXPECT_EQ([cell imageForKey:@"a"], blue);
  EXPECT_EQ([cell imageForKey:@"b"], red);
  EXPECT_EQ([cell image], nil) << "what is shown does not follow";
  [cell registerImage:nil forKey:@"a"];
  EXPECT_EQ([cell imageForKey:@"a"], nil);
  [cell unregistImageForKey:@"b"];
  EXPECT_EQ([cell imageForKey:@"b"], nil);
  EXPECT_EQ([[cell valueForKey:@"_images"] count], 0u);
}

TEST_F(MultiImageCell, ANilKeyIsNoKey) {
  HXMultiImageCell *cell = makeCell();
  LogCapture log;
  [cell registerImage:filledImage(kImageSize, [NSColor redColor]) forKey:nil];
  [cell registerImage:nil forKey:nil];
  [cell unregistImageForKey:nil];
  [cell unregistImageForKey:@"unknown"];
  EXPECT_EQ([cell imageForKey:nil], nil);
  EXPECT_EQ([[cell valueForKey:@"_images"] count], 0u);
  EXPECT_THAT(log.lines(), testing::IsEmpty());
}

TEST_F(MultiImageCell, ShowsTheImageOfAKey) {
  HXMultiImageCell *cell = makeCell();
  NSImage *red = filledImage(kImageSize, [NSColor redColor]);
  [cell registerImage:red forKey:@"a"];
  [cell setImageWithKey:@"a"];
  EXPECT_EQ([cell image], red);
  [cell registerImage:nil forKey:@"a"];
  EXPECT_EQ([cell image], red);
  [cell setImageWithKey:@"a"];
  EXPECT_EQ([cell image], nil);
  [cell setImageWithKey:nil];
  EXPECT_EQ([cell image], nil);
}

TEST_F(MultiImageCell, LetsGoOfItsImages) {
  const int before = dyingImages;
  {
    HXMultiImageCell *cell = [[HXMultiImageCell alloc] init];
    NSImage *image = [[OvTestDyingImage alloc] initWithSize:kImageSize];
    [cell registerImage:image forKey:@"a"];
    [image release];
    EXPECT_EQ(dyingImages, before) << "retained";
    HXMultiImageCell *copy = [cell copy];
    [cell release];
    drainPool();
    EXPECT_EQ(dyingImages, before) << "by the copy, too";
    EXPECT_EQ([copy imageForKey:@"a"], image);
    [copy release];
  }
  drainPool();
  EXPECT_EQ(dyingImages, before + 1);
}

TEST_F(MultiImageCell, ACopyHasATableOfItsOwn) {
  HXMultiImageCell *cell = makeCell();
  NSImage *red = filledImage(kImageSize, [NSColor redColor]);
  [cell registerImage:red forKey:@"a"];
  [cell setDrawsWhenDisabled:YES];
  HXMultiImageCell *copy = [[cell copy] autorelease];
  [cell unregistImageForKey:@"a"];
  EXPECT_EQ([copy imageForKey:@"a"], red);
  EXPECT_TRUE([copy drawsWhenDisabled]);
}

TEST_F(MultiImageCell, DrawsAtTheOriginInTheImagesOwnSizeAndUpright) {
  HXMultiImageCell *cell = makeCell();
  [cell setImage:redOverBlue(kImageSize)];
  for (BOOL flipped : {NO, YES}) {
    SCOPED_TRACE(flipped ? "flipped" : "not flipped");
    const NSRect frame = NSMakeRect(5, 4, 30, 20);
    const Picture picture = draw(cell, frame, flipped);
    const int top = flipped ? 4 : 30 - 4 - 6;
    EXPECT_EQ(picture.count(NSMakeRect(5, top, 10, 3), kRed), 30);
    EXPECT_EQ(picture.count(NSMakeRect(5, top + 3, 10, 3), kBlue), 30);
    EXPECT_EQ(picture.count(NSMakeRect(0, 0, 40, 30), kWhite), 40 * 30 - 60)
        << "the rest of the frame is left alone";
  }
}

TEST_F(MultiImageCell, DrawsNothingWithoutAnImageThatHasASize) {
  HXMultiImageCell *cell = makeCell();
  EXPECT_EQ(draw(cell, NSMakeRect(0, 0, 40, 30), NO).count(NSMakeRect(0, 0, 40, 30), kWhite), 1200);
  [cell setImage:[[[NSImage alloc] initWithSize:NSZeroSize] autorelease]];
  EXPECT_EQ(draw(cell, NSMakeRect(0, 0, 40, 30), NO).count(NSMakeRect(0, 0, 40, 30), kWhite), 1200);
}

TEST_F(MultiImageCell, DrawsNothingWhileDisabledUnlessItIsToldTo) {
  HXMultiImageCell *cell = makeCell();
  [cell registerImage:filledImage(kImageSize, [NSColor redColor])
               forKey:HXMultiImageButtonDisabledImageKey];
  [cell setImageWithKey:HXMultiImageButtonDisabledImageKey];
  [cell setEnabled:NO];
  const NSRect all = NSMakeRect(0, 0, 40, 30);
  EXPECT_EQ(draw(cell, all, NO).count(all, kRed), 0);
  [cell setDrawsWhenDisabled:YES];
  EXPECT_EQ(draw(cell, all, NO).count(all, kRed), 60);
  [cell setDrawsWhenDisabled:NO];
  [cell setEnabled:YES];
  EXPECT_EQ(draw(cell, all, NO).count(all, kRed), 60);
}

class MultiImageCellArchive : public MultiImageCell, public testing::WithParamInterface<Coding> {};

INSTANTIATE_TEST_SUITE_P(Codings, MultiImageCellArchive,
                         testing::Values(Coding::keyed, Coding::sequential), codingName);

TEST_P(MultiImageCellArchive, KeepsImagesAndTheFlag) {
  HXMultiImageCell *cell = makeCell();
  [cell registerImage:redOverBlue(kImageSize) forKey:@"a"];
  [cell registerImage:filledImage(NSMakeSize(3, 2), [NSColor greenColor]) forKey:@"b"];
  [cell setImageWithKey:@"b"];
  [cell setDrawsWhenDisabled:YES];
  [cell setEnabled:NO];
  [cell setTag:7];
  HXMultiImageCell *read = roundTrip(cell, GetParam());
  ASSERT_TRUE([read isMemberOfClass:[HXMultiImageCell class]]);
  EXPECT_TRUE([read drawsWhenDisabled]);
  EXPECT_FALSE([read isEnabled]);
  EXPECT_EQ([read tag], 7);
  EXPECT_EQ([[read imageForKey:@"a"] size], kImageSize);
  EXPECT_EQ(pictureOfImage([read imageForKey:@"a"]).at(0, 0), kRed);
  EXPECT_EQ(pictureOfImage([read imageForKey:@"a"]).at(0, 5), kBlue);
  EXPECT_EQ(pictureOfImage([read imageForKey:@"b"]).at(0, 0), kGreen);
  EXPECT_EQ([read image], [read imageForKey:@"b"]) << "the same image as the one in the table";
  [read registerImage:nil forKey:@"a"];
  EXPECT_EQ([read imageForKey:@"a"], nil) << "the table can be changed";
  EXPECT_EQ([cell image], [cell imageForKey:@"b"]) << "the archived cell is as it was";
  HXMultiImageCell *again = roundTrip(read, GetParam());
  EXPECT_EQ(pictureOfImage([again imageForKey:@"b"]).at(0, 0), kGreen);

  EXPECT_FALSE([roundTrip(makeCell(), GetParam()) drawsWhenDisabled]);
}

TEST_P(MultiImageCellArchive, KeepsThePixelsOfImagesFromFilesAndOfNamedOnes) {
  NSString *path = folder.write(@"four.png", encoded(NSPNGFileType));
  HXMultiImageCell *cell = makeCell();
  NSImage *referring = [[[NSImage alloc] initByReferencingFile:path] autorelease];
  NSImage *named = [[[NSImage alloc] initByReferencingFile:path] autorelease];
  ASSERT_TRUE([named setName:@"OvTestArchivedName"]);
  [cell registerImage:referring forKey:@"referring"];
  [cell registerImage:named forKey:@"named"];
  [cell setImage:named];
  NSData *data = GetParam() == Coding::keyed ? [NSKeyedArchiver archivedDataWithRootObject:cell]
                                             : [NSArchiver archivedDataWithRootObject:cell];
  [named setName:nil];
  HXMultiImageCell *read = GetParam() == Coding::keyed
                               ? [NSKeyedUnarchiver unarchiveObjectWithData:data]
                               : [NSUnarchiver unarchiveObjectWithData:data];
  for (NSString *key in @[ @"referring", @"named" ]) {
    SCOPED_TRACE([key UTF8String]);
    NSImage *image = [read imageForKey:key];
    EXPECT_EQ([image size], NSMakeSize(4, 2));
    EXPECT_EQ(pictureOfImage(image).at(0, 0), kRed);
    EXPECT_EQ(pictureOfImage(image).at(3, 1), kBlue);
    EXPECT_EQ([image name], nil);
  }
  EXPECT_EQ([read image], [read imageForKey:@"named"]);
}

TEST_P(MultiImageCellArchive, KeepsAnImageUnderNoKey) {
  HXMultiImageCell *cell = makeCell();
  NSString *path = folder.write(@"four.png", encoded(NSPNGFileType));
  [cell setImage:[[[NSImage alloc] initByReferencingFile:path] autorelease]];
  EXPECT_EQ(pictureOfImage([roundTrip(cell, GetParam()) image]).at(0, 0), kRed);
}

TEST_P(MultiImageCellArchive, KeepsEveryResolution) {
  NSImage *image = [[[NSImage alloc] initWithSize:NSMakeSize(4, 2)] autorelease];
  [image addRepresentation:redAndBlue()];
  NSImage *twice = redOverBlue(NSMakeSize(8, 4));
  NSImageRep *fine = [[twice representations] objectAtIndex:0];
  [fine setSize:NSMakeSize(4, 2)];
  [image addRepresentation:fine];
  HXMultiImageCell *cell = makeCell();
  [cell registerImage:image forKey:@"a"];
  NSImage *read = [roundTrip(cell, GetParam()) imageForKey:@"a"];
  EXPECT_EQ([read size], NSMakeSize(4, 2));
  ASSERT_EQ([[read representations] count], 2u);
  for (NSUInteger i = 0; i < 2; i++) {
    NSImageRep *rep = [[read representations] objectAtIndex:i];
    EXPECT_EQ([rep size], NSMakeSize(4, 2));
    EXPECT_EQ([rep pixelsWide], i == 0 ? 4 : 8);
  }
  EXPECT_EQ(Picture([[read representations] objectAtIndex:1]).at(7, 0), kRed);
}

TEST_P(MultiImageCellArchive, KeepsWhatWasDrawnIntoAnImage) {
  NSImage *image = [[[NSImage alloc] initWithSize:kImageSize] autorelease];
  [image lockFocus];
  [[NSColor redColor] set];
  NSRectFill(NSMakeRect(0, 3, 10, 3));
  [[NSColor blueColor] set];
  NSRectFill(NSMakeRect(0, 0, 10, 3));
  [image unlockFocus];
  HXMultiImageCell *cell = makeCell();
  [cell registerImage:image forKey:@"a"];
  NSImage *read = [roundTrip(cell, GetParam()) imageForKey:@"a"];
  EXPECT_EQ([read size], kImageSize);
  EXPECT_EQ(pictureOfImage(read).at(0, 0), kRed);
  EXPECT_EQ(pictureOfImage(read).at(9, 5), kBlue);
}

TEST_P(MultiImageCellArchive, KeepsImagesThatShowNothing) {
  HXMultiImageCell *cell = makeCell();
  [cell registerImage:[[[NSImage alloc] initWithSize:NSZeroSize] autorelease] forKey:@"a"];
  [cell registerImage:[[[NSImage alloc] initWithSize:NSMakeSize(3, 2)] autorelease] forKey:@"b"];
  HXMultiImageCell *read = roundTrip(cell, GetParam());
  EXPECT_EQ([[read imageForKey:@"a"] size], NSZeroSize);
  EXPECT_EQ([[read imageForKey:@"b"] size], NSMakeSize(3, 2));
  EXPECT_FALSE([[read imageForKey:@"b"] isValid]);
}

TEST_P(MultiImageCellArchive, HasTheForm) {
  HXMultiImageCell *cell = makeCell();
  [cell registerImage:redOverBlue(kImageSize) forKey:@"a"];
  [cell setDrawsWhenDisabled:YES];
  OvTestForeignReader *reader =
      roundTripAs(cell, [HXMultiImageCell class], [OvTestForeignReader class], GetParam());
  ASSERT_TRUE([reader isKindOfClass:[OvTestForeignReader class]]);
  EXPECT_TRUE([reader->images isKindOfClass:[NSMutableDictionary class]]);
  EXPECT_EQ(pictureOfImage([reader->images objectForKey:@"a"]).at(0, 0), kRed);
  EXPECT_TRUE(reader->flag);
}

TEST_P(MultiImageCellArchive, TakesWhatItCanFromForeignArchives) {
  NSImage *image = redOverBlue(kImageSize);
  NSDictionary *mixed = @{@"a" : image, @"number" : @1, @2 : image};
  const struct {
    const char *name;
    id images;
    NSUInteger count;
  } rows[] = {{"images and others", mixed, 1},
              {"a dictionary that cannot be changed", @{@"a" : image}, 1},
              {"no dictionary", @"images", 0},
              {"nothing", nil, 0}};
  for (const auto &row : rows) {
    SCOPED_TRACE(row.name);
    OvTestForeignCell *cell = [[[OvTestForeignCell alloc] initTextCell:@""] autorelease];
    cell->images = row.images;
    HXMultiImageCell *read =
        roundTripAs(cell, [OvTestForeignCell class], [HXMultiImageCell class], GetParam());
    ASSERT_TRUE([read isMemberOfClass:[HXMultiImageCell class]]);
    EXPECT_EQ([[read valueForKey:@"_images"] count], row.count);
    EXPECT_TRUE([read drawsWhenDisabled]);
    [read registerImage:image forKey:@"more"];
    EXPECT_EQ([[read valueForKey:@"_images"] count], row.count + 1);
  }
}

}  // namespace
