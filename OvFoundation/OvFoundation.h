// OvFoundation: what our user-interface library needs beneath AppKit.
//
//   #import <OvFoundation/OvFoundation.h>

#import <Foundation/Foundation.h>
#import <OvFoundation/HXComparison.h>
#import <OvFoundation/HXPropertyList.h>
#import <OvFoundation/HXRuntime.h>
#import <OvFoundation/NSDictionary+OvFoundation.h>
#import <OvFoundation/NSFileManager+OvFoundation.h>
#import <OvFoundation/NSString+OvFoundation.h>
#import <OvFoundation/OvDefines.h>
#import <OvFoundation/OvPropertyListCopy.h>
#import <OvFoundation/OvSystemVersion.h>
#import <OvFoundation/OvVolume.h>
