#import <OvAppKit/NSScreen+OvAppKit.h>
#import <OvAppKit/NSWindow+OvAppKit.h>

#include <cmath>
#include <string>
#include <vector>

#import "LiveTest.h"

/* A screen of any frame, which is the main one or is not. */
@interface OvTestScreen : NSScreen {
 @public
  NSRect _testFrame;
  BOOL _isMain;
}
@end

@implementation OvTestScreen
- (NSRect)frame {
  return _testFrame;
}
- (BOOL)isEqual:(id)other {
  return _isMain ? other == [NSScreen mainScreen] : other == self;
}
- (BOOL)isEqualTo:(id)other {
  return [self isEqual:other];
}
@end

/* Tells which frame it was asked for, and keeps to the one that it was given. */
@interface OvTestFrameWindow : NSWindow {
 @public
  std::vector<std::string> *calls;
}
@end

@implementation OvTestFrameWindow
- (void)setFrame:(NSRect)frame display:(BOOL)display animate:(BOOL)animate {
  if (calls != nullptr) {
    calls->push_back([[NSString
        stringWithFormat:@"%@ %d %d", NSStringFromRect(frame), display, animate] UTF8String]);
  }
  [super setFrame:frame display:display animate:animate];
}
@end

namespace {

class MenuBarScope {
 public:
  explicit MenuBarScope(BOOL visible) : old_([NSMenu menuBarVisible]) {
    [NSMenu setMenuBarVisible:visible];
  }
  ~MenuBarScope() { [NSMenu setMenuBarVisible:old_]; }

 private:
  BOOL old_;
};

class WindowExtensions : public ov::test::LiveTest {
 protected:
  void TearDown() override {
    for (NSWindow *window : borderless_) {
      [window orderOut:nil];
      [window release];
    }
    borderless_.clear();
    LiveTest::TearDown();
  }

  // The platform lets it go anywhere.
  OvTestFrameWindow *borderless(NSRect frame) {
    OvTestFrameWindow *window =
        [[OvTestFrameWindow alloc] initWithContentRect:frame
                                             styleMask:NSBorderlessWindowMask
                                               backing:NSBackingStoreBuffered
                                                 defer:NO];
    [window setReleasedWhenClosed:NO];
    borderless_.push_back(window);
    return window;
  }

  OvTestScreen *screen(NSRect frame, BOOL isMain) {
    // Made by hand: the platform makes screens only for those that there are.
    OvTestScreen *screen = NSAllocateObject([OvTestScreen class], 0, NULL);
    screen->_testFrame = frame;
    screen->_isMain = isMain;
    return [screen autorelease];
  }

 private:
  std::vector<NSWindow *> borderless_;
};

TEST_F(WindowExtensions, TheMainScreenLeavesTheMenuBarFree) {
  NSScreen *main = [NSScreen mainScreen];
  const NSRect whole = [main frame];
  ASSERT_GT(NSHeight(whole), 22);
  {
    MenuBarScope visible(YES);
    EXPECT_EQ([main frameByExcludingMenuBar],
              NSMakeRect(NSMinX(whole), NSMinY(whole), NSWidth(whole), NSHeight(whole) - 22));
    EXPECT_EQ([screen(NSMakeRect(0, 0, 1440, 900), YES) frameByExcludingMenuBar],
              NSMakeRect(0, 0, 1440, 878));
    EXPECT_EQ([screen(NSMakeRect(-1440, 40, 1440, 900), NO) frameByExcludingMenuBar],
              NSMakeRect(-1440, 40, 1440, 900));
  }
  MenuBarScope hidden(NO);
  EXPECT_EQ([main frameByExcludingMenuBar], whole);
  EXPECT_EQ([screen(NSMakeRect(0, 0, 1440, 900), YES) frameByExcludingMenuBar],
            NSMakeRect(0, 0, 1440, 900));
  EXPECT_EQ([static_cast<NSScreen *>(nil) frameByExcludingMenuBar], NSZeroRect);
}

TEST_F(WindowExtensions, AWindowGoesToEachCorner) {
  MenuBarScope visible(YES);
  struct {
    const char *name;
    SEL move;
    BOOL isMain;
    NSPoint origin;
  } const rows[] = {
      {"top left, main", @selector(moveToTopLeftOfScreen:), YES, {0, 578}},
      {"bottom left, main", @selector(moveToBottomLeftOfScreen:), YES, {0, 0}},
      {"top right, main", @selector(moveToTopRightOfScreen:), YES, {1040, 578}},
      {"bottom right, main", @selector(moveToBottomRightOfScreen:), YES, {1040, 0}},
      {"centre, main", @selector(moveToCenterOfScreen:), YES, {520, 289}},
      {"top left, second", @selector(moveToTopLeftOfScreen:), NO, {0, 600}},
      {"bottom left, second", @selector(moveToBottomLeftOfScreen:), NO, {0, 0}},
      {"top right, second", @selector(moveToTopRightOfScreen:), NO, {1040, 600}},
      {"bottom right, second", @selector(moveToBottomRightOfScreen:), NO, {1040, 0}},
      {"centre, second", @selector(moveToCenterOfScreen:), NO, {520, 300}},
  };
  for (const NSPoint offset : {NSMakePoint(0, 0), NSMakePoint(-1440, 25)}) {
    for (const auto &row : rows) {
      SCOPED_TRACE(row.name);
      NSWindow *window = borderless(NSMakeRect(200, 150, 400, 300));
      OvTestScreen *target = screen(NSMakeRect(offset.x, offset.y, 1440, 900), row.isMain);
      [window performSelector:row.move withObject:target];
      EXPECT_EQ([window frame],
                NSMakeRect(row.origin.x + offset.x, row.origin.y + offset.y, 400, 300));
    }
  }
}

TEST_F(WindowExtensions, TheCentreMayLieBetweenPoints) {
  MenuBarScope visible(NO);
  OvTestFrameWindow *window = borderless(NSMakeRect(10, 10, 401, 301));
  [window moveToCenterOfScreen:screen(NSMakeRect(0, 0, 1440, 900), NO)];
  // The window itself may keep whole points only.
  EXPECT_NEAR(NSMinX([window frame]), 519.5, 0.5);
  EXPECT_NEAR(NSMinY([window frame]), 299.5, 0.5);
  EXPECT_EQ([window frame].size, NSMakeSize(401, 301));
}

TEST_F(WindowExtensions, ALargeWindowKeepsItsSize) {
  MenuBarScope visible(NO);
  NSWindow *window = borderless(NSMakeRect(0, 0, 500, 400));
  [window moveToTopRightOfScreen:screen(NSMakeRect(0, 0, 300, 200), NO)];
  EXPECT_EQ([window frame], NSMakeRect(-200, -200, 500, 400));
}

TEST_F(WindowExtensions, ATitledWindowGoesByItsFrame) {
  MenuBarScope visible(YES);
  NSWindow *window = showWindow(NSMakeSize(200, 100));
  NSScreen *main = [NSScreen mainScreen];
  const NSRect area = [main frameByExcludingMenuBar];
  const NSSize size = [window frame].size;
  ASSERT_GT(size.height, 100) << "it has a title";
  [window moveToTopRightOfScreen:main];
  EXPECT_EQ([window frame].origin,
            NSMakePoint(NSMaxX(area) - size.width, NSMaxY(area) - size.height));
  [window moveToBottomLeftOfScreen:main];
  EXPECT_EQ([window frame].origin, area.origin);
  EXPECT_EQ([window frame].size, size);
}

TEST_F(WindowExtensions, WithoutAScreenAWindowStays) {
  NSWindow *window = borderless(NSMakeRect(30, 40, 100, 50));
  [window moveToTopLeftOfScreen:nil];
  [window moveToBottomLeftOfScreen:nil];
  [window moveToTopRightOfScreen:nil];
  [window moveToBottomRightOfScreen:nil];
  [window moveToCenterOfScreen:nil];
  EXPECT_EQ([window frame], NSMakeRect(30, 40, 100, 50));
}

TEST_F(WindowExtensions, TopLeftIsMeasuredDownwards) {
  const CGFloat top = NSMaxY([[NSScreen mainScreen] frame]);
  NSWindow *window = borderless(NSMakeRect(100, 120, 200, 80));
  EXPECT_EQ([window frameTopLeftPoint], NSMakePoint(100, top - 200));
  [window setFrameTopLeftPointWithFlipped:NSMakePoint(30, 50)];
  EXPECT_EQ([window frame], NSMakeRect(30, top - 130, 200, 80));
  EXPECT_EQ([window frameTopLeftPoint], NSMakePoint(30, 50));
  [window setFrameTopLeftPointWithFlipped:NSMakePoint(NAN, 10)];
  [window setFrameTopLeftPointWithFlipped:NSMakePoint(10, INFINITY)];
  EXPECT_EQ([window frameTopLeftPoint], NSMakePoint(30, 50));
}

TEST_F(WindowExtensions, TheTopLeftPointBringsATitledWindowBack) {
  NSWindow *window = showWindow(NSMakeSize(200, 100));
  const NSRect frame = [window frame];
  const NSPoint point = [window frameTopLeftPoint];
  [window setFrameOrigin:NSMakePoint(5, 5)];
  [window setFrameTopLeftPointWithFlipped:point];
  EXPECT_EQ([window frame], frame);
}

TEST_F(WindowExtensions, ResizingKeepsTheTopRightCorner) {
  std::vector<std::string> calls;
  OvTestFrameWindow *window = borderless(NSMakeRect(100, 100, 400, 300));
  window->calls = &calls;
  [window resizeWindowTo:NSMakeSize(200, 200) display:YES animate:NO];
  EXPECT_EQ([window frame], NSMakeRect(300, 200, 200, 200));
  [window resizeWindowTo:NSMakeSize(400, 300) display:NO animate:NO];
  EXPECT_EQ([window frame], NSMakeRect(100, 100, 400, 300));
  ASSERT_EQ(calls.size(), 2u);
  EXPECT_EQ(calls[0].back(), '0');
  EXPECT_EQ(calls[0][calls[0].size() - 3], '1') << "display is passed on";
  EXPECT_EQ(calls[1][calls[1].size() - 3], '0');
  window->calls = nullptr;
}

TEST_F(WindowExtensions, AnAnimatedResizeArrives) {
  OvTestFrameWindow *window = borderless(NSMakeRect(100, 100, 300, 200));
  [window orderFront:nil];
  [window resizeWindowTo:NSMakeSize(200, 150) display:YES animate:YES];
  EXPECT_TRUE(ov::test::pumpUntil([&] {
    return NSEqualRects([window frame], NSMakeRect(200, 150, 200, 150));
  })) <<
      [NSStringFromRect([window frame]) UTF8String];
}

TEST_F(WindowExtensions, ImpossibleSizesAreIgnored) {
  OvTestFrameWindow *window = borderless(NSMakeRect(100, 100, 400, 300));
  for (const NSSize size :
       {NSMakeSize(-1, 10), NSMakeSize(10, -1), NSMakeSize(NAN, 10), NSMakeSize(10, INFINITY)}) {
    [window resizeWindowTo:size display:NO animate:NO];
    EXPECT_EQ([window frame], NSMakeRect(100, 100, 400, 300));
  }
}

TEST_F(WindowExtensions, SizeWithoutContentIsWhatTheDecorationsTake) {
  NSWindow *window = makeWindow(NSMakeSize(300, 200));
  const NSSize frame = [window frame].size;
  EXPECT_EQ([window sizeWithoutContent], NSMakeSize(frame.width - 300, frame.height - 200));
  EXPECT_GT([window heightWithoutContent], 0);
  EXPECT_EQ([window widthWithoutContent], [window sizeWithoutContent].width);
  EXPECT_EQ([window heightWithoutContent], [window sizeWithoutContent].height);
  [[window contentView] setBoundsSize:NSMakeSize(100, 50)];
  EXPECT_EQ([window sizeWithoutContent], NSMakeSize(frame.width - 100, frame.height - 50))
      << "the bounds count, not the frame";
  EXPECT_EQ([borderless(NSMakeRect(0, 0, 50, 50)) sizeWithoutContent], NSMakeSize(0, 0));
}

TEST_F(WindowExtensions, ToolbarHeightIsWhatTheToolbarTakes) {
  NSWindow *window = showWindow(NSMakeSize(300, 200));
  EXPECT_EQ([window toolbarHeight], 0) << "there is none";
  const CGFloat before = [window heightWithoutContent];
  NSToolbar *toolbar = [[[NSToolbar alloc] initWithIdentifier:@"OvTest"] autorelease];
  [window setToolbar:toolbar];
  ov::test::pumpPending();
  ASSERT_TRUE([toolbar isVisible]);
  EXPECT_GT([window toolbarHeight], 0);
  EXPECT_EQ([window toolbarHeight], [window heightWithoutContent] - before);
  [toolbar setVisible:NO];
  ov::test::pumpPending();
  EXPECT_EQ([window toolbarHeight], 0) << "there is one, but hidden";
  [toolbar setVisible:YES];
  ov::test::pumpPending();
  EXPECT_GT([window toolbarHeight], 0);
  [window setToolbar:nil];
  EXPECT_EQ([window toolbarHeight], 0);
}

}  // namespace
