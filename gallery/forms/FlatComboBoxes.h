// The library's combo boxes with the gallery's flat arrow in place of the platform's button.
#import <OvAppKit/OvAppKit.h>

@interface FlatComboBoxCell : NSComboBoxCell
@end

@interface FlatComboBox : OvComboBox
@end

@interface FlatVPComboBox : OvVPComboBox
@end
