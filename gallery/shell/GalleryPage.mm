#import "shell/GalleryPage.h"

#include <algorithm>
#include <vector>

#import "shell/GallerySettings.h"

NSString *const GalleryPageDidChangeNotification = @"GalleryPageDidChangeNotification";

// The classes announce themselves before main, in no particular order.
static std::vector<Class> &pageClasses() {
  static std::vector<Class> classes;
  return classes;
}

@implementation GalleryPage

+ (void)addPageClass:(Class)pageClass {
  pageClasses().push_back(pageClass);
}

+ (NSArray *)makePages {
  std::ranges::sort(pageClasses(), {}, [](Class c) { return [c position]; });
  NSMutableArray *pages = [NSMutableArray array];
  for (Class c : pageClasses()) [pages addObject:[[[c alloc] init] autorelease]];
  return pages;
}

- (void)dealloc {
  [_view release];
  [_settings release];
  [_message release];
  [super dealloc];
}

+ (int)position {
  return 0;
}

+ (NSString *)name {
  return @"";
}

+ (NSString *)title {
  return @"";
}

+ (NSString *)shortTitle {
  return [self title];
}

+ (NSString *)summary {
  return @"";
}

- (NSView *)view {
  if (!_view) _view = [[self makeView] retain];
  return _view;
}

- (GallerySettings *)settings {
  if (!_settings) {
    [self view];
    _settings = [[GallerySettings alloc] initWithFrame:NSZeroRect];
    [self fillSettings:_settings];
  }
  return _settings;
}

- (NSView *)makeView {
  return [[[NSView alloc] initWithFrame:NSZeroRect] autorelease];
}

- (void)fillSettings:(GallerySettings *)settings {
  (void)settings;
}

- (void)didShow {
}

- (void)willHide {
}

- (void)close {
}

- (NSView *)keyView {
  return [self view];
}

- (BOOL)isSettled {
  return YES;
}

- (NSString *)message {
  return _message ?: @"";
}

- (BOOL)messageIsWarning {
  return _messageIsWarning;
}

- (void)setMessage:(NSString *)message warning:(BOOL)warning {
  [_message autorelease];
  _message = [message copy];
  _messageIsWarning = warning;
  [self changed];
}

- (double)progress {
  return 1;
}

- (void)changed {
  [[NSNotificationCenter defaultCenter] postNotificationName:GalleryPageDidChangeNotification
                                                      object:self];
}

- (NSArray *)statusLines {
  return @[];
}

@end

NSString *GalleryStatusLine(NSString *key, NSView *view, NSRect rect, NSString *name) {
  NSWindow *window = [view window];
  const NSRect inWindow = [view convertRect:rect toView:nil];
  const NSPoint corner =
      [window convertBaseToScreen:NSMakePoint(NSMinX(inWindow), NSMaxY(inWindow))];
  const CGFloat top = NSMaxY([[window screen] frame]) - corner.y;
  return [NSString stringWithFormat:@"%@=%d %d %d %d %@", key, static_cast<int>(corner.x),
                                    static_cast<int>(top), static_cast<int>(NSWidth(rect)),
                                    static_cast<int>(NSHeight(rect)), name];
}
