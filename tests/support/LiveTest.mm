#import "LiveTest.h"

namespace ov::test {

void LiveTest::SetUp() {
  // Some parts of the platform live as long as the first pool they meet; the program's own
  // pool is below this one.
  pool_ = [[NSAutoreleasePool alloc] init];
}

void LiveTest::TearDown() {
  if (HasFailure()) {
    const ::testing::TestInfo* info = ::testing::UnitTest::GetInstance()->current_test_info();
    int number = 0;
    for (NSWindow* window : windows_) {
      if (![window isVisible]) continue;
      std::string name = std::string(info->test_suite_name()) + "." + info->name() + "-" +
                         std::to_string(++number) + ".png";
      for (char& c : name) c = c == '/' ? '_' : c;
      pictureOf([window contentView]).writePNG(outputPath(name));
    }
    if (!lastExceptionReason().empty()) {
      ADD_FAILURE() << "The last exception raised was " << lastExceptionReason();
    }
  }
  for (NSWindow* window : windows_) {
    [window makeFirstResponder:nil];
    [window orderOut:nil];
    [window setContentView:nil];
    [window release];
  }
  windows_.clear();
  discardPending();
  [pool_ release];
  pool_ = nil;
}

NSWindow* LiveTest::makeWindow(NSSize contentSize) {
  NSRect frame = NSMakeRect(120, 120, contentSize.width, contentSize.height);
  NSWindow* window = [[NSWindow alloc] initWithContentRect:frame
                                                 styleMask:NSTitledWindowMask
                                                   backing:NSBackingStoreBuffered
                                                     defer:NO];
  [window setReleasedWhenClosed:NO];
  windows_.push_back(window);
  return window;
}

NSWindow* LiveTest::showWindow(NSSize contentSize) {
  NSWindow* window = makeWindow(contentSize);
  show(window);
  return window;
}

void LiveTest::show(NSWindow* window) {
  EXPECT_TRUE(bringToFront(window)) << "the window never got the keyboard";
  pumpPending();
}

NSScrollView* LiveTest::scrollView(NSWindow* window, NSView* document) {
  NSScrollView* scroll = [[NSScrollView alloc] initWithFrame:[[window contentView] bounds]];
  [scroll setHasVerticalScroller:YES];
  [scroll setHasHorizontalScroller:YES];
  [scroll setAutoresizingMask:NSViewWidthSizable | NSViewHeightSizable];
  [scroll setDocumentView:document];
  [[window contentView] addSubview:scroll];
  return [scroll autorelease];
}

void LiveTest::drainPool() {
  [pool_ release];
  pool_ = [[NSAutoreleasePool alloc] init];
}

}  // namespace ov::test

std::ostream& operator<<(std::ostream& out, const NSRect& r) {
  return out << "{" << r.origin.x << ", " << r.origin.y << ", " << r.size.width << " x "
             << r.size.height << "}";
}
std::ostream& operator<<(std::ostream& out, const NSPoint& p) {
  return out << "(" << p.x << ", " << p.y << ")";
}
std::ostream& operator<<(std::ostream& out, const NSSize& s) {
  return out << s.width << " x " << s.height;
}
std::ostream& operator<<(std::ostream& out, const NSRange& r) {
  return out << "(" << r.location << ", " << r.length << ")";
}
