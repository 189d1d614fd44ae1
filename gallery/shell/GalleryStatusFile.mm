#import "shell/GalleryStatusFile.h"

#import "shell/GalleryPage.h"
#import "shell/GalleryWindow.h"

@implementation GalleryStatusFile

- (id)initWithPath:(NSString *)path window:(GalleryWindow *)window {
  self = [super init];
  if (!self) return nil;
  _path = [path copy];
  _window = [window retain];
  NSNotificationCenter *center = [NSNotificationCenter defaultCenter];
  for (NSString *name in @[
         GalleryPageDidChangeNotification, NSWindowDidMoveNotification,
         NSWindowDidResizeNotification, NSWindowDidBecomeKeyNotification,
         NSWindowDidResignKeyNotification, NSApplicationDidBecomeActiveNotification,
         NSApplicationDidResignActiveNotification,
         // After every event, which may have moved the keyboard from one control to another.
         NSWindowDidUpdateNotification
       ]) {
    [center addObserver:self selector:@selector(somethingChanged:) name:name object:nil];
  }
  [self somethingChanged:nil];
  return self;
}

- (void)dealloc {
  [[NSNotificationCenter defaultCenter] removeObserver:self];
  [NSObject cancelPreviousPerformRequestsWithTarget:self];
  [_path release];
  [_written release];
  [_window release];
  [super dealloc];
}

// Several changes in one turn of the run loop are written once, when all are made.
- (void)somethingChanged:(NSNotification *)notification {
  (void)notification;
  [NSObject cancelPreviousPerformRequestsWithTarget:self selector:@selector(write) object:nil];
  [self performSelector:@selector(write)
             withObject:nil
             afterDelay:0
                inModes:@[
                  NSDefaultRunLoopMode, NSEventTrackingRunLoopMode, NSModalPanelRunLoopMode
                ]];
}

- (void)write {
  NSMutableString *text = [NSMutableString string];
  for (NSString *line in [_window statusLines]) {
    [text appendFormat:@"%@\n", [line stringByReplacingOccurrencesOfString:@"\n" withString:@" "]];
  }
  if ([text isEqual:_written]) return;
  [_written release];
  _written = [text copy];
  // Atomically: a reader sees the old file or the new one.
  if (![text writeToFile:_path atomically:YES encoding:NSUTF8StringEncoding error:NULL]) {
    NSLog(@"The status file %@ cannot be written.", _path);
  }
}

@end
