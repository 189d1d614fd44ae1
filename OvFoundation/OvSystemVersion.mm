#import <OvFoundation/OvSystemVersion.h>

int OvGestaltOSVersion(void) { return 0x1060; }
