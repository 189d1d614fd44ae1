// OvAppKit: desktop user-interface components on AppKit.
//
//   #import <OvAppKit/OvAppKit.h>

#import <AppKit/AppKit.h>
#import <OvFoundation/OvFoundation.h>

#import <OvAppKit/HXMatrixView.h>
