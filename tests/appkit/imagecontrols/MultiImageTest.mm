#import "MultiImageTest.h"

@implementation OvTestMultiButton
- (void)act:(id)sender {
  events->push_back(sender == self ? "act" : "act of another");
}
- (void)setNeedsDisplay:(BOOL)flag {
  if (flag) marks++;
  [super setNeedsDisplay:flag];
}
- (void)drawRect:(NSRect)rect {
  drawings++;
  [super drawRect:rect];
}
- (NSTrackingRectTag)addTrackingRect:(NSRect)rect
                               owner:(id)owner
                            userData:(void *)userData
                        assumeInside:(BOOL)flag {
  if (events != nullptr) {
    events->push_back("add " + std::string([NSStringFromRect(rect) UTF8String]) +
                      (owner == self ? "" : " other owner") + (userData ? " data" : "") +
                      (flag ? "" : " outside"));
  }
  return [super addTrackingRect:rect owner:owner userData:userData assumeInside:flag];
}
- (void)removeTrackingRect:(NSTrackingRectTag)tag {
  if (events != nullptr) events->push_back("remove " + std::to_string(tag));
  [super removeTrackingRect:tag];
}
@end

@implementation OvTestMenuDelegate
- (NSMenu *)menuForPopUp:(HXMultiImageButton *)button {
  asked = button;
  return menu;
}
@end
@implementation OvTestMenuViewDelegate
- (NSView *)targetViewForPopUp:(HXMultiImageButton *)button {
  (void)button;
  return view;
}
@end

namespace ov::test {

namespace {

NSBitmapImageRep *bitmap(NSSize size, NSColor *upper, NSColor *lower) {
  const int width = static_cast<int>(size.width), height = static_cast<int>(size.height);
  NSBitmapImageRep *rep = emptyBitmap(width, height);
  unsigned char *p = [rep bitmapData];
  for (int y = 0; y < height; y++) {
    NSColor *color =
        [(y < height / 2 ? upper : lower) colorUsingColorSpaceName:NSDeviceRGBColorSpace];
    for (int x = 0; x < width; x++, p += 4) {
      p[0] = static_cast<unsigned char>([color redComponent] * 255);
      p[1] = static_cast<unsigned char>([color greenComponent] * 255);
      p[2] = static_cast<unsigned char>([color blueComponent] * 255);
      p[3] = 255;
    }
  }
  return rep;
}

NSImage *imageOf(NSSize size, NSColor *upper, NSColor *lower) {
  NSImage *image = [[[NSImage alloc] initWithSize:size] autorelease];
  [image addRepresentation:bitmap(size, upper, lower)];
  return image;
}

}  // namespace

NSImage *filledImage(NSSize size, NSColor *color) { return imageOf(size, color, color); }

NSImage *redOverBlue(NSSize size) { return imageOf(size, [NSColor redColor], [NSColor blueColor]); }

void expectLike(NSEvent *press, NSEvent *opening) {
  EXPECT_EQ([opening type], NSLeftMouseDown);
  EXPECT_EQ([opening modifierFlags], [press modifierFlags]);
  EXPECT_EQ([opening timestamp], [press timestamp]);
  EXPECT_EQ([opening windowNumber], [press windowNumber]);
  EXPECT_EQ([opening context], [press context]);
  EXPECT_EQ([opening eventNumber], [press eventNumber]);
  EXPECT_EQ([opening clickCount], 2);
  EXPECT_EQ([opening pressure], [press pressure]);
}

void MultiImageTest::SetUp() { LiveTest::SetUp(); }

void MultiImageTest::TearDown() {
  for (OvTestMultiButton *button : buttons_) {
    [button removeFromSuperview];
    button->events = nullptr;
    [button release];
  }
  buttons_.clear();
  [HXImageManager setSharedImageManager:nil];
  LiveTest::TearDown();
}

OvTestMultiButton *MultiImageTest::newButton() {
  OvTestMultiButton *button = [[OvTestMultiButton alloc] initWithFrame:NSMakeRect(50, 60, 30, 20)];
  buttons_.push_back(button);
  button->events = &events_;
  [button setImage:filledImage(kImageSize, [NSColor greenColor])];
  [button setAlternateImage:filledImage(kImageSize, [NSColor redColor])];
  [button setMouseOverImage:filledImage(kImageSize, [NSColor blueColor])];
  [button setDisabledImage:filledImage(kImageSize, [NSColor blackColor])];
  [button setTarget:button];
  [button setAction:@selector(act:)];
  return button;
}

OvTestMultiButton *MultiImageTest::makeButton() {
  OvTestMultiButton *button = newButton();
  NSWindow *window = makeWindow(NSMakeSize(200, 150));
  [[window contentView] addSubview:button];
  show(window);
  // Away from all windows.
  warpPointer([window contentView], NSMakePoint(-90, -90));
  pumpPending();
  takeEvents();
  return button;
}

std::string MultiImageTest::shown(HXMultiImageButton *button) {
  HXMultiImageCell *cell = [button multiImageCell];
  NSImage *image = [cell image];
  if (image == nil) return "nothing";
  if (image == [cell imageForKey:HXMultiImageButtonDefaultImageKey]) return "default";
  if (image == [cell imageForKey:HXMultiImageButtonAlternateImageKey]) return "alternate";
  if (image == [cell imageForKey:HXMultiImageButtonMouseOverImageKey]) return "mouse over";
  if (image == [cell imageForKey:HXMultiImageButtonDisabledImageKey]) return "disabled";
  return "another";
}

std::vector<std::string> MultiImageTest::takeEvents() { return std::exchange(events_, {}); }

}  // namespace ov::test
