// OvFoundation: what our user-interface library needs beneath AppKit.
//
//   #import <OvFoundation/OvFoundation.h>

#import <Foundation/Foundation.h>

#import <OvFoundation/OvDefines.h>
#import <OvFoundation/OvSystemVersion.h>
