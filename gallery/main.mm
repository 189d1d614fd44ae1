// The gallery: every component to look at and to play with.
//
//   Gallery [-page NAME] [-snapshot DIR] [-statusfile PATH] [FOLDER]

#import <AppKit/AppKit.h>

#import "shell/GalleryApplication.h"

// The platform would open a modal panel for it.
static void endWithException(NSException *exception) {
  fprintf(stderr, "Gallery: %s: %s\n", [[exception name] UTF8String],
          [[exception reason] UTF8String]);
  _exit(3);
}

int main(int argc, char **argv, char **environment) {
  @autoreleasepool {
    const gallery::Options options = gallery::parseOptions({argv, argv + argc});
    std::vector<char *> arguments;
    for (const std::string &word : options.platformArguments) {
      arguments.push_back(const_cast<char *>(word.c_str()));
    }
    arguments.push_back(nullptr);
    [NSProcessInfo initializeWithArguments:arguments.data()
                                     count:static_cast<int>(arguments.size()) - 1
                               environment:environment];

    // Before the application exists: it reads them only once.
    [[NSUserDefaults standardUserDefaults] registerDefaults:@{
      @"GSBackHandlesWindowDecorations" : @"NO",
      @"GSSuppressAppIcon" : @"YES",
      @"NSScrollViewInterfaceStyle" : @"NSMacintoshInterfaceStyle",
      @"NSMenuInterfaceStyle" : @"NSWindows95InterfaceStyle",
    }];
    [NSApplication sharedApplication];
    NSSetUncaughtExceptionHandler(endWithException);
    GalleryApplication *delegate = [[GalleryApplication alloc] initWithOptions:options];
    [NSApp setDelegate:static_cast<id>(delegate)];
    [NSApp run];
  }
  return 0;
}
