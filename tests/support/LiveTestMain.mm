#import <AppKit/AppKit.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>

#import "Recorders.h"
#import "Supervisor.h"

namespace {

// The platform would show a panel and wait for somebody to click.
void dieOfException(NSException *exception) {
  std::fprintf(stderr, "Uncaught exception %s: %s\n", [[exception name] UTF8String],
               [[exception reason] UTF8String]);
  _exit(3);
}

void startApplication() {
  NSDictionary *defaults = @{
    // Without a window manager: titled windows of known size, and no complaints.
    @"GSBackHandlesWindowDecorations" : @"NO",
    @"GSSuppressAppIcon" : @"YES",
    // The vertical scroller at the right.
    @"NSScrollViewInterfaceStyle" : @"NSMacintoshInterfaceStyle",
    @"GSFirstAlternateKey" : @"Alt_L",
    @"GSFirstCommandKey" : @"Super_L",
  };
  [[NSUserDefaults standardUserDefaults] registerDefaults:defaults];
  [NSApplication sharedApplication];
  NSSetUncaughtExceptionHandler(dieOfException);
  [NSApp finishLaunching];
  ov::test::installRecorders();
}

class RunningTestNote : public ::testing::EmptyTestEventListener {
  void OnTestStart(const ::testing::TestInfo &info) override {
    ov::test::noteRunningTest(std::string(info.test_suite_name()) + "." + info.name());
  }
};

}  // namespace

int main(int argc, char **argv) {
  int status = 0;
  if (!ov::test::isSupervisedChild(argc, argv, &status)) {
    std::fflush(nullptr);
    _exit(status);
  }

  ::testing::InitGoogleTest(&argc, argv);
  if (GTEST_FLAG_GET(list_tests)) return RUN_ALL_TESTS();
  if (!std::getenv("DISPLAY")) {
    std::fprintf(stderr, "These tests need a display; DISPLAY is not set.\n");
    return 2;
  }
  ::testing::UnitTest::GetInstance()->listeners().Append(new RunningTestNote);
  @autoreleasepool {
    startApplication();
    status = RUN_ALL_TESTS();
    std::fflush(nullptr);
    // The platform's own tidying at exit is not what is tested.
    _exit(status);
  }
}
