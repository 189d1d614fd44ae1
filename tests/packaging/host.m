// A host of the installed libraries. It is compiled as Objective-C and as
// Objective-C++, by gcc and by clang, and told where the frameworks should be
// found: -frameworks FOLDER.

#import <OvAppKit/OvAppKit.h>
#include <stdio.h>

static int failures = 0;

static void expectBundle(Class aClass, NSString *name) {
  NSString *frameworks = [[NSUserDefaults standardUserDefaults] stringForKey:@"frameworks"];
  NSString *expected = [[[frameworks stringByAppendingPathComponent:name]
      stringByAppendingPathComponent:@"Versions/A/Resources"] stringByResolvingSymlinksInPath];
  NSBundle *bundle = [NSBundle bundleForClass:aClass];
  NSString *resources = [[bundle resourcePath] stringByResolvingSymlinksInPath];
  if (![resources isEqualToString:expected]) {
    fprintf(stderr, "%s: the resources are expected in %s, but looked for in %s\n",
            [name UTF8String], [expected UTF8String], [resources UTF8String]);
    failures++;
  }
  if ([bundle pathForResource:@"Info-gnustep" ofType:@"plist"] == nil) {
    fprintf(stderr, "%s: its property list is not found\n", [name UTF8String]);
    failures++;
  }
}

int main(void) {
  NSAutoreleasePool *pool = [[NSAutoreleasePool alloc] init];
  HXMatrixView *grid;

  [NSApplication sharedApplication];
  grid = [[HXMatrixView alloc] initWithFrame:NSMakeRect(0, 0, 200, 100)];
  if (!NSEqualRects([grid frame], NSMakeRect(0, 0, 200, 100))) {
    fprintf(stderr, "The grid lost its frame on the way through the library\n");
    failures++;
  }
  [grid release];

  if (OvGestaltOSVersion() == 0) {
    fprintf(stderr, "A function of OvFoundation answers nothing\n");
    failures++;
  }
  expectBundle([HXMatrixView class], @"OvAppKit.framework");
  expectBundle(NSClassFromString(@"NSFramework_OvFoundation"), @"OvFoundation.framework");

  [pool release];
  printf("The host ran with %d failures\n", failures);
  return failures == 0 ? 0 : 1;
}
