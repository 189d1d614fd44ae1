#import "ButtonTest.h"

#include <utility>

using ov::test::Drawn;
using ov::test::Pixel;

namespace ov::test {
namespace {

NSColor *colorOf(const Pixel &pixel) {
  return [NSColor colorWithDeviceRed:pixel.r / 255.0
                               green:pixel.g / 255.0
                                blue:pixel.b / 255.0
                               alpha:1];
}

HXImageSegment *segmentOf(NSSize size, const Pixel &upper, const Pixel &lower) {
  NSImage *image = [[[NSImage alloc] initWithSize:size] autorelease];
  [image lockFocus];
  [colorOf(upper) set];
  NSRectFill(NSMakeRect(0, 0, size.width, size.height));
  [colorOf(lower) set];
  NSRectFill(NSMakeRect(0, 0, size.width, size.height / 2));
  [image unlockFocus];
  return [[[HXImageSegment alloc] initWithImage:image] autorelease];
}

}  // namespace

HXImageSegment *colorSegment(const Pixel &color, NSSize size) {
  return segmentOf(size, color, color);
}

HXImageSegment *blackOverYellow(NSSize size) { return segmentOf(size, kBlack, kYellow); }

std::ostream &operator<<(std::ostream &out, const Drawn &drawn) {
  if (drawn.part == Drawn::kFrame)
    out << "frame";
  else
    out << "part " << drawn.part;
  out << " of variation " << drawn.variation << " in ";
  ::operator<<(out, drawn.rect);
  return out << (drawn.flipped ? ", flipped" : "");
}

}  // namespace ov::test

@implementation OvTestArtwork

+ (OvTestArtwork *)artworkWithVariations:(std::vector<int>)variations {
  OvTestArtwork *artwork = [[[self alloc] init] autorelease];
  variations.push_back(0);
  for (int variation : variations) {
    [artwork setColor:ov::test::kVariationColors[variation]
                  size:NSMakeSize(4, 4)
               forPart:HXImageControlImagePartCenter
        imageVariation:static_cast<HXImageControlImageVariation>(variation)];
  }
  return artwork;
}

- (void)setColor:(const Pixel &)color
              size:(NSSize)size
           forPart:(HXImageControlImagePart)part
    imageVariation:(HXImageControlImageVariation)variation {
  [self setImage:ov::test::colorSegment(color, size) forImagePart:part imageVariation:variation];
}

- (void)drawImageInRect:(NSRect)rect
              isFlipped:(BOOL)flipped
         imageVariation:(HXImageControlImageVariation)variation {
  drawn.push_back({Drawn::kFrame, static_cast<int>(variation), rect, static_cast<bool>(flipped)});
  [super drawImageInRect:rect isFlipped:flipped imageVariation:variation];
}

- (void)drawImageInRect:(NSRect)rect
              isFlipped:(BOOL)flipped
              imagePart:(HXImageControlImagePart)part
         imageVariation:(HXImageControlImageVariation)variation {
  if (part >= HXImageControlImagePartIcon)
    drawn.push_back(
        {static_cast<int>(part), static_cast<int>(variation), rect, static_cast<bool>(flipped)});
  [super drawImageInRect:rect isFlipped:flipped imagePart:part imageVariation:variation];
}

- (int)lastVariation {
  for (auto each = drawn.rbegin(); each != drawn.rend(); ++each)
    if (each->part == Drawn::kFrame) return each->variation;
  return -1;
}

@end

@implementation OvTestImageCell

- (void)dealloc {
  [lastTitle release];
  [super dealloc];
}

- (NSRect)drawTitle:(NSAttributedString *)title withFrame:(NSRect)frame inView:(NSView *)view {
  titles.push_back([[title string] UTF8String]);
  [lastTitle release];
  lastTitle = [title copy];
  lastTitleRect = frame;
  return [super drawTitle:title withFrame:frame inView:view];
}

- (NSAttributedString *)attributedTitle {
  return hidesAttributedTitles ? nil : [super attributedTitle];
}

- (NSAttributedString *)attributedAlternateTitle {
  return hidesAttributedTitles ? nil : [super attributedAlternateTitle];
}

@end

@implementation OvTestReceiver
- (void)act:(id)from {
  actions++;
  sender = from;
}
@end

@implementation OvTestGround
- (BOOL)isFlipped {
  return flipped;
}
- (void)drawRect:(NSRect)rect {
  [[NSColor whiteColor] set];
  NSRectFill(rect);
}
- (void)rightMouseDown:(NSEvent *)event {
  rightPresses++;
}
@end

namespace ov::test {

void ImageButtonTest::SetUp() { LiveTest::SetUp(); }

HXImageButton *ImageButtonTest::makeButton(bool flippedGround) {
  NSWindow *window = showWindow(NSMakeSize(300, 200));
  OvTestGround *ground =
      [[[OvTestGround alloc] initWithFrame:[[window contentView] bounds]] autorelease];
  ground->flipped = flippedGround;
  [[window contentView] addSubview:ground];
  HXImageButton *button =
      [[[HXImageButton alloc] initWithFrame:NSMakeRect(40, 30, 100, 20)] autorelease];
  [button setTitle:@""];
  [ground addSubview:button];
  movePointerAway(button);
  return button;
}

OvTestImageCell *ImageButtonTest::rememberTitles(HXImageButton *button) {
  OvTestImageCell *cell = [[[OvTestImageCell alloc] initTextCell:@""] autorelease];
  [cell setImageContainer:[button imageContainer]];
  [button setCell:cell];
  return cell;
}

void ImageButtonTest::movePointerTo(NSView *view, NSPoint point) {
  warpPointer(view, point);
  NSWindow *window = [view window];
  auto arrived = [=] {
    NSPoint pointer = [view convertPoint:[window mouseLocationOutsideOfEventStream] fromView:nil];
    return std::abs(pointer.x - point.x) < 1 && std::abs(pointer.y - point.y) < 1;
  };
  ASSERT_TRUE(pumpUntil(arrived)) << "the pointer did not move";
  pumpPending();
}

void ImageButtonTest::movePointerAway(NSView *view) {
  // Windows of tests begin at (120, 120).
  movePointerTo(view, viewPoint(view, NSMakePoint(60, 60)));
}

int ImageButtonTest::variationOf(HXImageButton *button) {
  auto *artwork = (OvTestArtwork *)[button imageContainer];
  artwork->drawn.clear();
  pictureOf(button);
  return [artwork lastVariation];
}

}  // namespace ov::test
