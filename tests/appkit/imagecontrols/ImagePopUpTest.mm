#import "ImagePopUpTest.h"

@implementation OvTestPopUpCell

- (void)dealloc {
  [lastTitle release];
  [super dealloc];
}

- (void)_drawInteriorWithFrame:(NSRect)frame inView:(NSView *)view imageVariation:(int32_t)v {
  steps.push_back("frame");
  [super _drawInteriorWithFrame:frame inView:view imageVariation:v];
}

- (void)_drawAccessoryWithFrame:(NSRect)frame inView:(NSView *)view imageVariation:(int32_t)v {
  steps.push_back("accessory");
  [super _drawAccessoryWithFrame:frame inView:view imageVariation:v];
}

- (NSRect)drawTitle:(NSAttributedString *)title withFrame:(NSRect)frame inView:(NSView *)view {
  NSString *text = [title string];
  // Half a surrogate pair has no such form.
  const BOOL whole = [text canBeConvertedToEncoding:NSUTF8StringEncoding];
  steps.push_back(whole ? [text UTF8String] : "?");
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

- (NSRect)titleRectForBounds:(NSRect)bounds {
  return hasNoTitleRect ? NSZeroRect : [super titleRectForBounds:bounds];
}

@end

@implementation OvTestPopUpButton

+ (Class)cellClass {
  return [OvTestPopUpCell class];
}

- (BOOL)isFlipped {
  return !notFlipped;
}

- (void)setNeedsDisplay:(BOOL)flag {
  marks++;
  [super setNeedsDisplay:flag];
}

@end

namespace ov::test {

OvTestPopUpButton *ImagePopUpTest::makePopUp(bool flipped) {
  NSWindow *window = showWindow(NSMakeSize(300, 200));
  OvTestGround *ground =
      [[[OvTestGround alloc] initWithFrame:[[window contentView] bounds]] autorelease];
  [[window contentView] addSubview:ground];
  OvTestPopUpButton *button = [[[OvTestPopUpButton alloc] initWithFrame:NSMakeRect(40, 30, 100, 20)
                                                              pullsDown:NO] autorelease];
  button->notFlipped = !flipped;
  [button addItemsWithTitles:@[ @"One", @"Two", @"Three" ]];
  [ground addSubview:button];
  movePointerAway(button);
  return button;
}

int ImagePopUpTest::shownBy(HXImagePopUpButton *button) {
  auto *artwork = (OvTestArtwork *)[button imageContainer];
  artwork->drawn.clear();
  pictureOf(button);
  return [artwork lastVariation];
}

}  // namespace ov::test
