// A list of what happened, the newest last, which scrolls to it: a title, a button that
// empties it, and one line per event with what it came from.
#import "shell/GalleryStyle.h"

@class EventLines;

@interface EventLog : GalleryBox {
  NSTextField *_title;
  NSButton *_clear;
  NSScrollView *_scroll;
  EventLines *_lines;
  NSUInteger _count;
}

- (id)initWithTitle:(NSString *)title;

// Events whose colour is nil are in the colour of text.
- (void)addEvent:(NSString *)event from:(NSString *)source color:(NSColor *)color;
- (void)clear:(id)sender;
- (NSButton *)clearButton;

// "log=" and how many events came since the log was emptied; "log.N=" and "event source" for
// the newest, counted from 0; and the place of the button, "rect.clear=".
- (NSArray *)statusLines;

@end
