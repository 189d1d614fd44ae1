#import "shell/GallerySnapshot.h"

#import "shell/GalleryPage.h"
#import "shell/GalleryWindow.h"

static const NSTimeInterval kLimitForOnePage = 20;

static void handleEventsUntil(NSDate *limit) {
  @autoreleasepool {
    NSEvent *event = [NSApp nextEventMatchingMask:NSAnyEventMask
                                        untilDate:limit
                                           inMode:NSDefaultRunLoopMode
                                          dequeue:YES];
    if (event) [NSApp sendEvent:event];
  }
}

static void waitUntilSettled(GalleryPage *page) {
  NSDate *limit = [NSDate dateWithTimeIntervalSinceNow:kLimitForOnePage];
  do {
    handleEventsUntil([NSDate dateWithTimeIntervalSinceNow:0.05]);
  } while (![page isSettled] && [limit timeIntervalSinceNow] > 0);
  if (![page isSettled]) NSLog(@"The page %@ did not finish loading.", [[page class] name]);
}

static BOOL writeView(NSView *view, NSString *path) {
  [view display];
  [view lockFocus];
  NSBitmapImageRep *bitmap =
      [[[NSBitmapImageRep alloc] initWithFocusedViewRect:[view bounds]] autorelease];
  [view unlockFocus];
  NSData *data = [bitmap representationUsingType:NSPNGFileType properties:@{}];
  if ([data writeToFile:path atomically:YES]) return YES;
  NSLog(@"The picture %@ cannot be written.", path);
  return NO;
}

BOOL GalleryWriteSnapshots(GalleryWindow *window, NSString *directory) {
  [[NSFileManager defaultManager] createDirectoryAtPath:directory
                            withIntermediateDirectories:YES
                                             attributes:nil
                                                  error:NULL];
  BOOL written = YES;
  for (GalleryPage *page in [window pages]) {
    [window showPage:page];
    waitUntilSettled(page);
    NSString *file = [[[page class] name] stringByAppendingPathExtension:@"png"];
    if (!writeView([[window window] contentView],
                   [directory stringByAppendingPathComponent:file])) {
      written = NO;
    }
  }
  return written;
}
