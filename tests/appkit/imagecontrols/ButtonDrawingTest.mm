// Where an image button's cell draws what.

#import "ButtonTest.h"

using namespace ov::test;
using testing::ElementsAre;
using testing::IsEmpty;

/* Draws a cell, flipped on demand. */
@interface OvTestCellView : NSView {
 @public
  NSCell *_cell;
  BOOL _flipped;
}
@end
@implementation OvTestCellView
- (BOOL)isFlipped {
  return _flipped;
}
- (void)drawRect:(NSRect)rect {
  [[NSColor whiteColor] set];
  NSRectFill([self bounds]);
  [_cell drawWithFrame:[self bounds] inView:self];
}
@end

namespace {

constexpr auto kIcon = HXImageControlImagePartIcon;
constexpr auto kAccessory = HXImageControlImagePartAccessory;
constexpr int kPositions[] = {NSNoImage,    NSImageOnly,  NSImageLeft,    NSImageRight,
                              NSImageBelow, NSImageAbove, NSImageOverlaps};

class ImageButtonDrawing : public ImageButtonTest {
 protected:
  // An icon of 12 x 8 and an accessory of 6 x 10, each in Default only.
  OvTestArtwork *fullArtwork() {
    OvTestArtwork *artwork = [OvTestArtwork artworkWithVariations:{1, 4}];
    [artwork setColor:kBlack size:NSMakeSize(12, 8) forPart:kIcon imageVariation:0];
    [artwork setColor:kYellow size:NSMakeSize(6, 10) forPart:kAccessory imageVariation:0];
    return artwork;
  }
  HXImageButtonCell *makeCell(HXImageControlImageContainer *container) {
    HXImageButtonCell *cell = [[[HXImageButtonCell alloc] initTextCell:@""] autorelease];
    [cell setImageContainer:container];
    return cell;
  }
  NSButtonCell *plainTwin(HXImageButtonCell *cell) {
    NSButtonCell *twin = [[[NSButtonCell alloc] initTextCell:@""] autorelease];
    [twin setBordered:[cell isBordered]];
    [twin setImagePosition:[cell imagePosition]];
    [twin setHighlighted:[cell isHighlighted]];
    [twin setControlView:[cell controlView]];
    return twin;
  }
};

constexpr NSRect kBounds{{10, 20}, {101, 41}};

// The rectangle of a title that has an icon beside, above or below it, before it gives way: within
// the border, as without an icon.
static NSRect titleRoom(NSButtonCell *twin) {
  const NSCellImagePosition position = [twin imagePosition];
  if (position >= NSImageLeft && position <= NSImageAbove) [twin setImagePosition:NSNoImage];
  return [twin titleRectForBounds:kBounds];
}

TEST_F(ImageButtonDrawing, ABorderKeepsTheIconFromTheEdge) {
  HXImageButtonCell *cell = makeCell(fullArtwork());
  [cell setBordered:YES];
  [cell setImagePosition:NSImageLeft];
  EXPECT_GT(NSMinX([cell imageRectForBounds:kBounds]), NSMinX(kBounds));
  [cell setImagePosition:NSImageRight];
  EXPECT_LT(NSMaxX([cell imageRectForBounds:kBounds]), NSMaxX(kBounds));
  [cell setBordered:NO];
  EXPECT_EQ(NSMaxX([cell imageRectForBounds:kBounds]), NSMaxX(kBounds));
}

TEST_F(ImageButtonDrawing, TheIconLiesByTheImagePosition) {
  for (BOOL bordered : {NO, YES}) {
    for (BOOL pressed : {NO, YES}) {
      HXImageButtonCell *cell = makeCell(fullArtwork());
      [cell setBordered:bordered];
      [cell setHighlighted:pressed];
      CGFloat push = pressed ? 1 : 0;
      // 10 + floor(44.5), 20 + floor(16.5)
      CGFloat x = 54, y = 36;
      for (int position : kPositions) {
        [cell setImagePosition:static_cast<NSCellImagePosition>(position)];
        NSRect title = titleRoom(plainTwin(cell));
        NSRect expected = NSZeroRect;
        switch (position) {
          case NSImageOnly:
          case NSImageOverlaps:
            expected = NSMakeRect(x + push, y + push, 12, 8);
            break;
          case NSImageLeft:
            expected = NSMakeRect(NSMinX(title), y + push, 12, 8);
            break;
          case NSImageRight:
            expected = NSMakeRect(NSMaxX(title) - 12, y + push, 12, 8);
            break;
          case NSImageBelow:
            expected = NSMakeRect(x + push, NSMinY(title), 12, 8);
            break;
          case NSImageAbove:
            expected = NSMakeRect(x + push, NSMaxY(title) - 8, 12, 8);
            break;
        }
        EXPECT_EQ([cell imageRectForBounds:kBounds], expected) << "position " << position;
      }
    }
  }
}

TEST_F(ImageButtonDrawing, TheTitleMakesRoomForTheIcon) {
  for (BOOL bordered : {NO, YES}) {
    HXImageButtonCell *cell = makeCell(fullArtwork());
    [cell setBordered:bordered];
    for (int position : kPositions) {
      [cell setImagePosition:static_cast<NSCellImagePosition>(position)];
      NSRect expected = titleRoom(plainTwin(cell));
      if (position == NSImageLeft) expected.origin.x += 12;
      if (position == NSImageLeft || position == NSImageRight) expected.size.width -= 12;
      if (position == NSImageBelow) expected.origin.y += 8;
      if (position == NSImageBelow || position == NSImageAbove) expected.size.height -= 8;
      EXPECT_EQ([cell titleRectForBounds:kBounds], expected) << "position " << position;
    }
  }
}

TEST_F(ImageButtonDrawing, WithoutAnIconTheRectanglesAreThePlatforms) {
  OvTestArtwork *elsewhere = [OvTestArtwork artworkWithVariations:{1}];
  // Only the Default picture counts.
  [elsewhere setColor:kBlack size:NSMakeSize(12, 8) forPart:kIcon imageVariation:1];
  [elsewhere setColor:kBlack size:NSMakeSize(12, 8) forPart:kAccessory imageVariation:1];
  for (HXImageControlImageContainer *container :
       {(HXImageControlImageContainer *)nil, (HXImageControlImageContainer *)elsewhere}) {
    HXImageButtonCell *cell = makeCell(container);
    for (int position : kPositions) {
      [cell setImagePosition:static_cast<NSCellImagePosition>(position)];
      NSButtonCell *twin = plainTwin(cell);
      EXPECT_EQ([cell imageRectForBounds:kBounds], [twin imageRectForBounds:kBounds]);
      EXPECT_EQ([cell titleRectForBounds:kBounds], [twin titleRectForBounds:kBounds]);
      EXPECT_EQ([cell accessoryRectForBounds:kBounds], NSZeroRect);
    }
  }
}

TEST_F(ImageButtonDrawing, AnIconWithoutAreaTakesNoRoom) {
  HXImageSegment *flat = [[[HXImageSegment alloc]
      initWithImage:[[[NSImage alloc] initWithSize:NSMakeSize(5, 5)] autorelease]
               rect:NSMakeRect(0, 0, 12, 0)] autorelease];
  OvTestArtwork *artwork = [OvTestArtwork artworkWithVariations:{}];
  [artwork setImage:flat forImagePart:kIcon imageVariation:0];
  HXImageButtonCell *cell = makeCell(artwork);
  for (int position : kPositions) {
    [cell setImagePosition:static_cast<NSCellImagePosition>(position)];
    EXPECT_EQ([cell imageRectForBounds:kBounds], NSZeroRect);
    EXPECT_EQ([cell titleRectForBounds:kBounds], [plainTwin(cell) titleRectForBounds:kBounds]);
  }
}

TEST_F(ImageButtonDrawing, TheAccessoryIsAsFarFromTheRightAsFromTheTop) {
  HXImageButtonCell *cell = makeCell(fullArtwork());
  // floor((41 - 10) / 2) = 15
  EXPECT_EQ([cell accessoryRectForBounds:kBounds], NSMakeRect(111 - 6 - 15, 20 + 15, 6, 10));
  [cell setHighlighted:YES];
  EXPECT_EQ([cell accessoryRectForBounds:kBounds], NSMakeRect(111 - 6 - 15, 20 + 15, 6, 10));
}

TEST_F(ImageButtonDrawing, FrameThenIconThenAccessory) {
  HXImageButton *button = makeButton();
  OvTestArtwork *artwork = fullArtwork();
  [button setImageContainer:artwork];
  [button setImagePosition:NSImageOnly];
  [[button cell] setHighlighted:YES];
  Picture picture = pictureOf(button);
  // A highlighted one, though icon and accessory have only Default pictures.
  EXPECT_THAT(artwork->drawn, ElementsAre(Drawn{Drawn::kFrame, 1, NSMakeRect(0, 0, 100, 20), true},
                                          Drawn{9, 1, NSMakeRect(45, 7, 12, 8), true},
                                          Drawn{10, 1, NSMakeRect(89, 5, 6, 10), true}));
  EXPECT_EQ(picture.count(NSMakeRect(45, 7, 12, 8), kBlack), 12 * 8);
  EXPECT_EQ(picture.count(NSMakeRect(0, 0, 100, 20), kBlack), 12 * 8);
  EXPECT_EQ(picture.count(NSMakeRect(89, 5, 6, 10), kYellow), 6 * 10);
  EXPECT_EQ(picture.count(NSMakeRect(0, 0, 100, 20), kYellow), 6 * 10);
  EXPECT_EQ(picture.count(NSMakeRect(0, 0, 100, 20), kRed), 2000 - 12 * 8 - 6 * 10);
  [[button cell] setHighlighted:NO];
}

TEST_F(ImageButtonDrawing, PiecesOverTheFrameHaveVariationsToo) {
  HXImageButton *button = makeButton();
  OvTestArtwork *artwork = fullArtwork();
  [artwork setColor:kBlue size:NSMakeSize(12, 8) forPart:kIcon imageVariation:4];
  [artwork setColor:kGreen size:NSMakeSize(6, 10) forPart:kAccessory imageVariation:4];
  [button setImageContainer:artwork];
  [button setImagePosition:NSImageOnly];
  EXPECT_EQ(pictureOf(button).at(50, 10), kBlack);
  [button setEnabled:NO];
  Picture disabled = pictureOf(button);
  EXPECT_EQ(disabled.at(50, 10), kBlue);
  EXPECT_EQ(disabled.at(92, 10), kGreen);
}

TEST_F(ImageButtonDrawing, WithNoImageThereIsNoIconAndTheTitleHasAll) {
  HXImageButton *button = makeButton();
  OvTestArtwork *artwork = fullArtwork();
  [button setImageContainer:artwork];
  [button setImagePosition:NSNoImage];
  pictureOf(button);
  for (const Drawn &each : artwork->drawn) EXPECT_NE(each.part, 9) << each;
  EXPECT_EQ([[button cell] imageRectForBounds:[button bounds]], NSZeroRect);
  EXPECT_EQ([[button cell] titleRectForBounds:[button bounds]],
            [plainTwin([button imageButtonCell]) titleRectForBounds:[button bounds]]);
}

TEST_F(ImageButtonDrawing, APictureOnlyInAnotherVariationIsNotDrawn) {
  HXImageButton *button = makeButton();
  OvTestArtwork *artwork = [OvTestArtwork artworkWithVariations:{4}];
  [artwork setColor:kBlack size:NSMakeSize(12, 8) forPart:kIcon imageVariation:4];
  [artwork setColor:kBlack size:NSMakeSize(6, 10) forPart:kAccessory imageVariation:4];
  [button setImageContainer:artwork];
  [button setImagePosition:NSImageOnly];
  [button setEnabled:NO];
  pictureOf(button);
  EXPECT_THAT(artwork->drawn,
              ElementsAre(Drawn{Drawn::kFrame, 4, NSMakeRect(0, 0, 100, 20), true}));
}

TEST_F(ImageButtonDrawing, EverythingIsUprightInBothKindsOfView) {
  NSWindow *window = makeWindow(NSMakeSize(100, 40));
  OvTestArtwork *artwork = [OvTestArtwork artworkWithVariations:{}];
  [artwork setImage:blackOverYellow(NSMakeSize(40, 40)) forImagePart:0 imageVariation:0];
  [artwork setImage:blackOverYellow(NSMakeSize(12, 8)) forImagePart:kIcon imageVariation:0];
  [artwork setImage:blackOverYellow(NSMakeSize(6, 10)) forImagePart:kAccessory imageVariation:0];
  HXImageButtonCell *cell = makeCell(artwork);
  [cell setImagePosition:NSImageOnly];
  for (BOOL flipped : {NO, YES}) {
    OvTestCellView *view =
        [[[OvTestCellView alloc] initWithFrame:NSMakeRect(0, 0, 100, 40)] autorelease];
    view->_cell = cell;
    view->_flipped = flipped;
    [[window contentView] addSubview:view];
    artwork->drawn.clear();
    Picture picture = pictureOf(view);
    for (const Drawn &each : artwork->drawn) EXPECT_EQ(each.flipped, static_cast<bool>(flipped));
    EXPECT_EQ(artwork->drawn.size(), 3u);
    EXPECT_EQ(picture.at(2, 2), kBlack) << "frame";
    EXPECT_EQ(picture.at(2, 37), kYellow) << "frame";
    // The icon from 16 to 24, the accessory from 15 to 25, over the two halves of the frame.
    EXPECT_EQ(picture.at(50, 17), kBlack) << "icon";
    EXPECT_EQ(picture.at(50, 22), kYellow) << "icon";
    EXPECT_EQ(picture.at(81, 17), kBlack) << "accessory";
    EXPECT_EQ(picture.at(81, 23), kYellow) << "accessory";
    [view removeFromSuperview];
  }
}

TEST_F(ImageButtonDrawing, IsNeverOpaqueAndNeverDrawsABezel) {
  NSWindow *window = makeWindow(NSMakeSize(100, 40));
  OvTestCellView *view =
      [[[OvTestCellView alloc] initWithFrame:NSMakeRect(0, 0, 100, 40)] autorelease];
  [[window contentView] addSubview:view];
  for (HXImageControlImageContainer *container :
       {(HXImageControlImageContainer *)nil,
        (HXImageControlImageContainer *)[[[HXImageControlImageContainer alloc] init]
            autorelease]}) {
    HXImageButtonCell *cell = makeCell(container);
    [cell setBordered:YES];
    EXPECT_FALSE([cell isOpaque]);
    [cell setBordered:NO];
    EXPECT_FALSE([cell isOpaque]);
    [cell setBordered:YES];
    view->_cell = cell;
    // Nothing of the platform's bezel, and nothing of artwork that is not there.
    EXPECT_EQ(pictureOf(view).count(NSMakeRect(0, 0, 100, 40), kWhite), 4000);
    [view lockFocus];
    [cell drawBezelWithFrame:[view bounds] inView:view];
    [view unlockFocus];
  }
  EXPECT_FALSE([[[[HXImageButton alloc] initWithFrame:NSZeroRect] autorelease] isOpaque]);
}

TEST_F(ImageButtonDrawing, WithoutAContainerTheInteriorIsThePlatforms) {
  NSWindow *window = makeWindow(NSMakeSize(100, 40));
  NSImage *image = [blackOverYellow(NSMakeSize(10, 10)) image];
  for (BOOL highlighted : {NO, YES}) {
    for (int position : kPositions) {
      HXImageButtonCell *ours = [[[HXImageButtonCell alloc] initTextCell:@"Title"] autorelease];
      NSButtonCell *plain = [[[NSButtonCell alloc] initTextCell:@"Title"] autorelease];
      Picture pictures[2];
      int drawn = 0;
      for (NSButtonCell *cell : {(NSButtonCell *)ours, plain}) {
        [cell setBordered:NO];
        [cell setImage:image];
        [cell setImagePosition:static_cast<NSCellImagePosition>(position)];
        [cell setHighlighted:highlighted];
        OvTestCellView *view =
            [[[OvTestCellView alloc] initWithFrame:NSMakeRect(0, 0, 100, 40)] autorelease];
        view->_cell = cell;
        [[window contentView] addSubview:view];
        pictures[drawn++] = pictureOf(view);
        [view removeFromSuperview];
      }
      for (int y = 0; y < 40; y++)
        for (int x = 0; x < 100; x++) ASSERT_EQ(pictures[0].at(x, y), pictures[1].at(x, y));
      EXPECT_LT(pictures[0].count(NSMakeRect(0, 0, 100, 40), kWhite), 4000);
    }
  }
}

TEST_F(ImageButtonDrawing, ATransparentOneDrawsNothing) {
  HXImageButton *button = makeButton();
  OvTestArtwork *artwork = fullArtwork();
  [button setImageContainer:artwork];
  [button setTransparent:YES];
  pictureOf(button);
  EXPECT_THAT(artwork->drawn, IsEmpty());
}

TEST_F(ImageButtonDrawing, AnEmptyButtonDrawsNothing) {
  HXImageButton *button = makeButton();
  OvTestArtwork *artwork = fullArtwork();
  [button setImageContainer:artwork];
  [button setTitle:@"Title"];
  for (NSSize size : {NSMakeSize(0, 20), NSMakeSize(100, 0), NSZeroSize}) {
    [button setFrameSize:size];
    [groundOf(button) display];
  }
  EXPECT_THAT(artwork->drawn, IsEmpty());
}

// MARK: highlight:withFrame:inView:

TEST_F(ImageButtonDrawing, HighlightingMarksTheView) {
  HXImageButton *button = makeButton();
  [button setImageContainer:[OvTestArtwork artworkWithVariations:{1}]];
  pictureOf(button);
  for (BOOL flag : {YES, NO}) {
    [button setNeedsDisplay:NO];
    [[button cell] highlight:flag withFrame:[button bounds] inView:button];
    EXPECT_EQ([[button cell] isHighlighted], flag);
    EXPECT_TRUE([button needsDisplay]);
    EXPECT_EQ(variationOf(button), flag ? 1 : 0);
  }
}

TEST_F(ImageButtonDrawing, WithoutAContainerHighlightingOnlyDraws) {
  HXImageButton *button = makeButton();
  OvTestImageCell *cell = rememberTitles(button);
  [cell setTitle:@"A"];
  pictureOf(button);
  for (BOOL before : {NO, YES}) {
    for (BOOL flag : {NO, YES}) {
      [cell setHighlighted:before];
      [button setNeedsDisplay:NO];
      cell->titles.clear();
      [button lockFocus];
      [cell highlight:flag withFrame:[button bounds] inView:button];
      [button unlockFocus];
      EXPECT_EQ([cell isHighlighted], before) << "deliberately: the highlight stays";
      EXPECT_FALSE([button needsDisplay]);
      EXPECT_THAT(cell->titles, ElementsAre("A"));
    }
  }
  [cell setHighlighted:NO];
}

TEST_F(ImageButtonDrawing, HighlightingWithoutFocusIsHarmless) {
  // As -[NSButton highlight:] does.
  HXImageButton *button = makeButton();
  [button setTitle:@"A"];
  [button setImage:[blackOverYellow(NSMakeSize(10, 10)) image]];
  [button setImagePosition:NSImageLeft];
  [button highlight:YES];
  [button highlight:NO];
  [button removeFromSuperview];
  [button highlight:YES];
  [button highlight:NO];
  EXPECT_FALSE([[button cell] isHighlighted]);
}

}  // namespace
