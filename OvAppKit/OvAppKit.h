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
#import <OvAppKit/NSAttributedString+OvAppKit.h>
#import <OvAppKit/NSBitmapImageRep+OvAppKit.h>
#import <OvAppKit/NSBundle+OvAppKit.h>
#import <OvAppKit/NSColor+OvAppKit.h>
#import <OvAppKit/NSDrawer+OvAppKit.h>
#import <OvAppKit/NSEvent+OvAppKit.h>
#import <OvAppKit/NSFont+OvAppKit.h>
#import <OvAppKit/NSGraphicsContext+OvAppKit.h>
#import <OvAppKit/NSMenu+OvAppKit.h>
#import <OvAppKit/NSMenuItem+OvAppKit.h>
#import <OvAppKit/NSOutlineView+OvAppKit.h>
#import <OvAppKit/NSPopUpButton+OvAppKit.h>
#import <OvAppKit/NSScreen+OvAppKit.h>
#import <OvAppKit/NSTabView+OvAppKit.h>
#import <OvAppKit/NSTableView+OvAppKit.h>
#import <OvAppKit/NSView+OvAppKit.h>
#import <OvAppKit/NSWindow+OvAppKit.h>
#import <OvAppKit/OvMatrixView.h>
#import <OvAppKit/OvMouseKeyPanel.h>
#import <OvAppKit/OvTableView.h>
#import <OvFoundation/OvFoundation.h>
