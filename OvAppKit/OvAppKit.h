// OvAppKit: desktop user-interface components on AppKit.
//
//   #import <OvAppKit/OvAppKit.h>

#import <AppKit/AppKit.h>
#import <OvAppKit/HXAutoScrollManager.h>
#import <OvAppKit/HXMatrixView.h>
#import <OvAppKit/HXMatrixViewMouseTrackingManager.h>
#import <OvAppKit/HXMatrixViewSelectionInfo.h>
#import <OvAppKit/HXMatrixViewSelectionManager.h>
#import <OvAppKit/HXMatrixViewToolTipManager.h>
#import <OvAppKit/HXPropertyListController.h>
#import <OvAppKit/HXPropertyListControllerValues.h>
#import <OvAppKit/HXSplitView.h>
#import <OvAppKit/NSBitmapImageRep+OvAppKit.h>
#import <OvAppKit/NSBundle+OvAppKit.h>
#import <OvAppKit/NSDrawer+OvAppKit.h>
#import <OvAppKit/NSEvent+OvAppKit.h>
#import <OvAppKit/NSGraphicsContext+OvAppKit.h>
#import <OvAppKit/NSScreen+OvAppKit.h>
#import <OvAppKit/NSView+OvAppKit.h>
#import <OvAppKit/NSWindow+OvAppKit.h>
#import <OvAppKit/OvAlphabetTextValidator.h>
#import <OvAppKit/OvBorderlessTabView.h>
#import <OvAppKit/OvCollapsingView.h>
#import <OvAppKit/OvComboBox.h>
#import <OvAppKit/OvDatePicker.h>
#import <OvAppKit/OvDatePickerCell.h>
#import <OvAppKit/OvFlippedView.h>
#import <OvAppKit/OvMatrixView.h>
#import <OvAppKit/OvNumberTextValidator.h>
#import <OvAppKit/OvPathTextValidator.h>
#import <OvAppKit/OvSimpleView.h>
#import <OvAppKit/OvSjisTextValidator.h>
#import <OvAppKit/OvSplitView.h>
#import <OvAppKit/OvTextField.h>
#import <OvAppKit/OvTextFieldCell.h>
#import <OvAppKit/OvTextValidator.h>
#import <OvAppKit/OvTextView.h>
#import <OvAppKit/OvTextViewLines.h>
#import <OvAppKit/OvVPAlphabetFormatter.h>
#import <OvAppKit/OvVPComboBox.h>
#import <OvAppKit/OvVPFormatter.h>
#import <OvAppKit/OvVPNumberFormatter.h>
#import <OvAppKit/OvVPPathFormatter.h>
#import <OvAppKit/OvVPSjisFormatter.h>
#import <OvAppKit/OvVPTextField.h>
#import <OvFoundation/OvFoundation.h>
