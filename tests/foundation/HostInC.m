// A host written in plain Objective-C.
#import <OvFoundation/OvFoundation.h>

BOOL HostInCWorks(void) {
  return HXCompareNSInteger(1, 2) == NSOrderedAscending && OvUnmountVolume(0) != 0 &&
         [HXPropertyListDidSaveValuesNotification length] > 0 &&
         [@"a1" naturalCompare:@"a2"] == NSOrderedAscending;
}
