#import <AppKit/AppKit.h>

/** An action cell under a name of its own, with nothing added. OvDatePicker does not use it:
    its cell is NSTextField's. */
@interface OvDatePickerCell : NSActionCell
@end
