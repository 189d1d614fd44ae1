#import "MultiImageTest.h"

#include <objc/runtime.h>

#include "Coding.h"

using namespace ov::test;
using testing::ElementsAre;
using testing::IsEmpty;

@interface OvTestIconTarget : NSObject <NSCoding> {
 @public
  int count;
  id sender;
}
- (void)act:(id)sender;
@end
@implementation OvTestIconTarget
- (void)act:(id)aSender {
  count++;
  sender = aSender;
}
- (id)initWithCoder:(NSCoder *)coder {
  (void)coder;
  return [super init];
}
- (void)encodeWithCoder:(NSCoder *)coder {
  (void)coder;
}
@end

// A representation that tells whether its image was flipped when it was drawn.
@interface OvTestAttentiveRep : NSImageRep {
 @public
  NSImage *image;
  BOOL sawFlipped;
}
@end
@implementation OvTestAttentiveRep
- (BOOL)draw {
  sawFlipped = [image isFlipped];
  return YES;
}
@end

@interface OvTestIconView : NSView {
 @public
  OvIconButtonCell *cell;
  NSRect frame;
  BOOL flipped;
}
@end
@implementation OvTestIconView
- (BOOL)isFlipped {
  return flipped;
}
- (void)drawRect:(NSRect)rect {
  [[NSColor whiteColor] set];
  NSRectFill(rect);
  [cell drawWithFrame:frame inView:self];
}
@end

namespace {

class IconButton : public LiveTest {
 protected:
  OvIconButton *makeButton() {
    OvIconButton *button =
        [[[OvIconButton alloc] initWithFrame:NSMakeRect(50, 60, 30, 20)] autorelease];
    [button setImage:filledImage(kImageSize, [NSColor greenColor])];
    NSWindow *window = makeWindow(NSMakeSize(200, 150));
    [[window contentView] addSubview:button];
    show(window);
    [window makeFirstResponder:nil];  // which would be framed
    return button;
  }
  int count(OvIconButton *button, const Pixel &pixel) {
    return pictureOf(button).count([button bounds], pixel);
  }
};

TEST_F(IconButton, IsSetUp) {
  OvIconButton *button =
      [[[OvIconButton alloc] initWithFrame:NSMakeRect(1, 2, 30, 20)] autorelease];
  EXPECT_TRUE([[button cell] isMemberOfClass:[OvIconButtonCell class]]);
  EXPECT_FALSE([button isBordered]);
  EXPECT_EQ([[button cell] imagePosition], NSImageOnly);
  EXPECT_EQ([[button cell] highlightsBy], 0);
  EXPECT_EQ([button highlightImage], nil);
  EXPECT_EQ([button frame], NSMakeRect(1, 2, 30, 20));
  NSButton *plain = [[[NSButton alloc] initWithFrame:NSMakeRect(1, 2, 30, 20)] autorelease];
  EXPECT_TRUE([[button title] isEqual:[plain title]]) << "that of a new button";
}

TEST_F(IconButton, TheNewCellHasWhatIsCarriedOver) {
  OvIconButton *button =
      [[[OvIconButton alloc] initWithFrame:NSMakeRect(0, 0, 30, 20)] autorelease];
  NSButtonCell *former = [[[NSButtonCell alloc] initTextCell:@"former"] autorelease];
  NSMenu *menu = [[[NSMenu alloc] initWithTitle:@"menu"] autorelease];
  OvTestIconTarget *target = [[[OvTestIconTarget alloc] init] autorelease];
  [former setMenu:menu];
  [former setControlSize:NSMiniControlSize];
  [former setImage:filledImage(kImageSize, [NSColor redColor])];
  [former setTag:7];
  [button setCell:former];
  [button setTarget:target];
  [button setAction:@selector(act:)];
  [button _setupButtonCell];
  OvIconButtonCell *cell = [button cell];
  EXPECT_NE(static_cast<id>(cell), static_cast<id>(former));
  EXPECT_TRUE([cell isMemberOfClass:[OvIconButtonCell class]]);
  EXPECT_TRUE([[cell title] isEqual:@"former"]);
  EXPECT_EQ([cell menu], menu);
  EXPECT_EQ([cell controlSize], NSMiniControlSize);
  EXPECT_EQ([button action], @selector(act:));
  EXPECT_EQ([button target], nil);
  EXPECT_EQ([cell image], nil);
  EXPECT_NE([cell tag], 7);
}

TEST_F(IconButton, TheHighlightImageIsTheCells) {
  OvIconButton *button = makeButton();
  NSImage *image = filledImage(kImageSize, [NSColor redColor]);
  const NSUInteger before = [image retainCount];
  [button setHighlightImage:image];
  EXPECT_EQ([[button cell] highlightImage], image);
  EXPECT_EQ([button highlightImage], image);
  EXPECT_EQ([image retainCount], before + 1);
  [button setHighlightImage:image];
  EXPECT_EQ([image retainCount], before + 1);
  OvIconButtonCell *copy = [[button cell] copy];
  EXPECT_EQ([copy highlightImage], image);
  EXPECT_EQ([image retainCount], before + 2);
  [copy release];
  [button setHighlightImage:nil];
  EXPECT_EQ([button highlightImage], nil);
  EXPECT_EQ([image retainCount], before);
  [button setCell:[[[NSButtonCell alloc] initTextCell:@""] autorelease]];
  [button setHighlightImage:image];
  EXPECT_EQ([button highlightImage], nil) << "a cell of another class has none";
}

TEST_F(IconButton, TheHighlightImageFillsTheFrameWhileItIsPressed) {
  OvIconButton *button = makeButton();
  [button setHighlightImage:filledImage(NSMakeSize(3, 2), [NSColor redColor])];
  EXPECT_EQ(count(button, kGreen), 60);
  EXPECT_EQ(count(button, kRed), 0);
  [[button cell] setHighlighted:YES];
  EXPECT_EQ(count(button, kRed), 600);
  [[button cell] setHighlighted:NO];
  EXPECT_EQ(count(button, kGreen), 60);
}

TEST_F(IconButton, WithoutAHighlightImageItLooksTheSameWhileItIsPressed) {
  OvIconButton *button = makeButton();
  const Picture before = pictureOf(button);
  [[button cell] setHighlighted:YES];
  const Picture pressed = pictureOf(button);
  for (int y = 0; y < 20; y++) {
    for (int x = 0; x < 30; x++) ASSERT_EQ(pressed.at(x, y), before.at(x, y)) << x << ", " << y;
  }
}

TEST_F(IconButton, TheHighlightImageIsUprightAndItsFlagIsKept) {
  for (BOOL viewIsFlipped : {NO, YES}) {
    for (BOOL imageIsFlipped : {NO, YES}) {
      SCOPED_TRACE(viewIsFlipped ? "flipped view" : "plain view");
      OvTestIconView *view =
          [[[OvTestIconView alloc] initWithFrame:NSMakeRect(0, 0, 40, 30)] autorelease];
      view->cell = [[[OvIconButtonCell alloc] initTextCell:@""] autorelease];
      [view->cell setBordered:NO];
      view->frame = NSMakeRect(4, 2, 20, 12);
      view->flipped = viewIsFlipped;
      NSImage *image = redOverBlue(kImageSize);
      [image setFlipped:imageIsFlipped];
      [view->cell setHighlightImage:image];
      [view->cell setHighlighted:YES];
      [[makeWindow(NSMakeSize(40, 30)) contentView] addSubview:view];
      const Picture picture = pictureOf(view);
      const int top = viewIsFlipped ? 2 : 30 - 2 - 12;
      EXPECT_EQ(picture.count(NSMakeRect(4, top, 20, 6), kRed), 120);
      EXPECT_EQ(picture.count(NSMakeRect(4, top + 6, 20, 6), kBlue), 120);
      EXPECT_EQ(picture.count(NSMakeRect(0, 0, 40, 30), kWhite), 1200 - 240);
      EXPECT_EQ([image isFlipped], imageIsFlipped);
    }
  }
}

TEST_F(IconButton, TheImageIsFlippedWhileItIsDrawn) {
  OvIconButton *button = makeButton();
  NSImage *image = [[[NSImage alloc] initWithSize:kImageSize] autorelease];
  OvTestAttentiveRep *rep = [[[OvTestAttentiveRep alloc] init] autorelease];
  [rep setSize:kImageSize];
  rep->image = image;
  [image addRepresentation:rep];
  [button setHighlightImage:image];
  [[button cell] setHighlighted:YES];
  pictureOf(button);
  EXPECT_TRUE(rep->sawFlipped);
  EXPECT_FALSE([image isFlipped]);
}

TEST_F(IconButton, AHighlightImageWithoutSizeDrawsNothing) {
  OvIconButton *button = makeButton();
  [button setHighlightImage:[[[NSImage alloc] initWithSize:NSZeroSize] autorelease]];
  [[button cell] setHighlighted:YES];
  EXPECT_EQ(count(button, kGreen), 0);
}

TEST_F(IconButton, ClicksAndKeysActAsOnEveryButton) {
  OvIconButton *button = makeButton();
  OvTestIconTarget *target = [[[OvTestIconTarget alloc] init] autorelease];
  [button setTarget:target];
  [button setAction:@selector(act:)];
  post(mouseEvent(NSLeftMouseDown, button, NSMakePoint(15, 10)));
  post(mouseEvent(NSLeftMouseUp, button, NSMakePoint(15, 10)));
  EXPECT_TRUE(pumpUntil([=] { return target->count == 1; }));
  EXPECT_EQ(target->sender, button);
  ASSERT_TRUE([[button window] makeFirstResponder:button]);
  type([button window], @" ");
  EXPECT_EQ(target->count, 2);
  [button setKeyEquivalent:@"\r"];
  [[button window] performKeyEquivalent:keyEvent([button window], @"\r")];
  EXPECT_EQ(target->count, 3);
}

class IconButtonArchive : public IconButton, public testing::WithParamInterface<Coding> {};

INSTANTIATE_TEST_SUITE_P(Codings, IconButtonArchive,
                         testing::Values(Coding::keyed, Coding::sequential), codingName);

TEST_P(IconButtonArchive, KeepsTheActionAndNotTheTarget) {
  for (Class kind : {[OvIconButton class], [OvSelectableButton class]}) {
    SCOPED_TRACE([NSStringFromClass(kind) UTF8String]);
    OvIconButton *button = [[[kind alloc] initWithFrame:NSMakeRect(1, 2, 30, 20)] autorelease];
    OvTestIconTarget *target = [[[OvTestIconTarget alloc] init] autorelease];
    [button setTitle:@"title"];
    [button setTarget:target];
    [button setAction:@selector(act:)];
    [button setImage:filledImage(kImageSize, [NSColor redColor])];
    [button setHighlightImage:filledImage(kImageSize, [NSColor redColor])];
    OvIconButton *read = roundTrip(button, GetParam());
    ASSERT_TRUE([read isMemberOfClass:kind]);
    EXPECT_TRUE([[read cell] isMemberOfClass:[OvIconButtonCell class]]);
    EXPECT_TRUE(sel_isEqual([read action], @selector(act:)));
    EXPECT_EQ([read target], nil);
    EXPECT_TRUE([[read title] isEqual:@"title"]);
    EXPECT_EQ([read image], nil);
    EXPECT_EQ([read highlightImage], nil);
    EXPECT_FALSE([read isBordered]);
    EXPECT_EQ([[read cell] imagePosition], NSImageOnly);
    EXPECT_EQ([[read cell] highlightsBy], 0);
    EXPECT_EQ([read frame], NSMakeRect(1, 2, 30, 20));
  }
}

// As interface files have it: a plain button cell in a button of our class.
TEST_P(IconButtonArchive, ReplacesACellOfThePlatform) {
  OvIconButton *button =
      [[[OvIconButton alloc] initWithFrame:NSMakeRect(1, 2, 30, 20)] autorelease];
  NSButtonCell *plain = [[[NSButtonCell alloc] initTextCell:@"plain"] autorelease];
  [plain setControlSize:NSSmallControlSize];
  [button setCell:plain];
  [button setTarget:[[[OvTestIconTarget alloc] init] autorelease]];
  [button setAction:@selector(act:)];
  OvIconButton *read = roundTrip(button, GetParam());
  EXPECT_TRUE([[read cell] isMemberOfClass:[OvIconButtonCell class]]);
  EXPECT_TRUE([[read title] isEqual:@"plain"]);
  EXPECT_EQ([[read cell] controlSize], NSSmallControlSize);
  EXPECT_TRUE(sel_isEqual([read action], @selector(act:)));
  EXPECT_EQ([read target], nil);
}

}  // namespace
