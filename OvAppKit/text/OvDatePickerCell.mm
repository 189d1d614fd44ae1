#import "text/OvDatePickerCell.h"

@implementation OvDatePickerCell
@end
