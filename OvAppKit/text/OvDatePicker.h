#import <AppKit/AppKit.h>

/** A text field under a name of its own, for interface files and hosts that name the class.
    It behaves as NSTextField does: a date is typed and formatted by the formatter it is
    given.

      OvDatePicker *date = [[OvDatePicker alloc] initWithFrame:frame];
      [date setFormatter:[[[NSDateFormatter alloc] init] autorelease]]; */
@interface OvDatePicker : NSTextField
@end
