// The fixture of every test that needs the application: an autorelease pool per test,
// windows that go away by themselves, and a picture of each when the test failed.
//
//   class Grid : public ov::test::LiveTest {};
//
//   TEST_F(Grid, SelectsOnClick) {
//     NSWindow *window = showWindow(NSMakeSize(300, 200));
//     [[window contentView] addSubview:…];
//     ov::test::click(view, NSMakePoint(10, 10));
//     EXPECT_TRUE(ov::test::pumpUntil([&] { return …; }));
//   }

#pragma once

#import <AppKit/AppKit.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <vector>

#import "Events.h"
#import "Pixels.h"
#import "Random.h"
#import "RealDrag.h"
#import "Recorders.h"
#import "RunLoop.h"

namespace ov::test {

class LiveTest : public ::testing::Test {
 protected:
  void SetUp() override;
  void TearDown() override;

  // A titled window that is not on screen. It lives until the test ends.
  NSWindow* makeWindow(NSSize contentSize);
  // The same, in front, with the keyboard.
  NSWindow* showWindow(NSSize contentSize);
  void show(NSWindow* window);

  // A scroll view with both scrollers that fills the content of the window, and the view as
  // its document.
  NSScrollView* scrollView(NSWindow* window, NSView* document);

  // End this test's pool and begin another, for tests that watch objects die.
  void drainPool();

 private:
  NSAutoreleasePool* pool_ = nil;
  std::vector<NSWindow*> windows_;
};

}  // namespace ov::test

// So that a failed comparison says something.
std::ostream& operator<<(std::ostream& out, const NSRect& rect);
std::ostream& operator<<(std::ostream& out, const NSPoint& point);
std::ostream& operator<<(std::ostream& out, const NSSize& size);
std::ostream& operator<<(std::ostream& out, const NSRange& range);

inline bool operator==(const NSRect& a, const NSRect& b) { return NSEqualRects(a, b); }
inline bool operator==(const NSPoint& a, const NSPoint& b) { return NSEqualPoints(a, b); }
inline bool operator==(const NSSize& a, const NSSize& b) { return NSEqualSizes(a, b); }
inline bool operator==(const NSRange& a, const NSRange& b) { return NSEqualRanges(a, b); }
