// OvAppKit: desktop user-interface components on AppKit.
//
//   #import <OvAppKit/OvAppKit.h>

#import <AppKit/AppKit.h>
#import <OvAppKit/HXAutoScrollManager.h>
#import <OvAppKit/HXDynamicResponder.h>
#import <OvAppKit/HXKeyEventIntercepter.h>
#import <OvAppKit/HXMatrixView.h>
#import <OvAppKit/HXMatrixViewMouseTrackingManager.h>
#import <OvAppKit/HXMatrixViewSelectionInfo.h>
#import <OvAppKit/HXMatrixViewSelectionManager.h>
#import <OvAppKit/HXMatrixViewToolTipManager.h>
#import <OvAppKit/HXViewController.h>
#import <OvAppKit/HXViewDynamicResponder.h>
#import <OvAppKit/HXViewDynamicResponder_NSViewReplacer.h>
#import <OvAppKit/NSWindow+HXDynamicResponder.h>
#import <OvAppKit/OvMatrixView.h>
#import <OvFoundation/OvFoundation.h>
