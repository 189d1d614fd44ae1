#import <Foundation/Foundation.h>
#import <OvFoundation/OvDefines.h>

/** The version of the desktop system that the libraries may rely on, written in
    hexadecimal digits: 0x1030 stands for 10.3, 0x1058 for 10.5.8.

    The platform here has no such number of its own. The answer is the constant
    0x1060: everything that came with 10.6 and that the libraries use (shared
    resize cursors, view hiding, deferred drawing of pop-ups) is there. */
OV_EXPORT int OvGestaltOSVersion(void);
