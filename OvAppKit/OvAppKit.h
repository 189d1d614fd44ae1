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
#import <OvAppKit/HXPackageSerializationContext.h>
#import <OvAppKit/HXSoundRepository.h>
#import <OvAppKit/NSBitmapImageRep+OvAppKit.h>
#import <OvAppKit/NSBundle+OvAppKit.h>
#import <OvAppKit/NSDrawer+OvAppKit.h>
#import <OvAppKit/NSEvent+OvAppKit.h>
#import <OvAppKit/NSGraphicsContext+OvAppKit.h>
#import <OvAppKit/NSImage+OvAppKit.h>
#import <OvAppKit/NSScreen+OvAppKit.h>
#import <OvAppKit/NSView+OvAppKit.h>
#import <OvAppKit/NSWindow+OvAppKit.h>
#import <OvAppKit/NSWorkspace+OvAppKit.h>
#import <OvAppKit/OvMatrixView.h>
#import <OvFoundation/OvFoundation.h>
