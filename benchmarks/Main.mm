// Runs the benchmarks. The limits are goals that are printed, not assertions: the exit
// status is 0 whatever the figures, so that a busy machine fails nothing.

#import <AppKit/AppKit.h>

#include <cstdio>

#include "Benchmarks.h"
#include "Measure.h"

int main() {
  std::setvbuf(stdout, nullptr, _IOLBF, 0);
  @autoreleasepool {
    [[NSUserDefaults standardUserDefaults] registerDefaults:@{
      @"GSBackHandlesWindowDecorations" : @"NO",
      @"GSSuppressAppIcon" : @"YES",
      @"NSScrollViewInterfaceStyle" : @"NSMacintoshInterfaceStyle"
    }];
    [NSApplication sharedApplication];
    [NSApp finishLaunching];
    bench::grid();
    bench::split();
    bench::text();
    bench::imageControls();
    std::printf("\n%d limits exceeded\n", bench::exceeded());
    std::fflush(stdout);
  }
  // The platform's exit handlers may wait for its helper programs.
  _exit(0);
}
