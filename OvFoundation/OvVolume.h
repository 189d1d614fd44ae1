#import <Foundation/Foundation.h>

#import <OvFoundation/OvDefines.h>

/** A mounted volume; 0 is none. A reference is good while the volume stays mounted;
    the system gives the number of an unmounted one to another later. */
typedef int OvVolumeRef;

/** Unmounts a volume, if need be with the help of the system's `umount` program,
    which lets users unmount what they mounted themselves. Waits until it is done.

    0 when the volume is no longer mounted, otherwise an errno: ENODEV when there is
    no such volume (any more), EBUSY when it is in use, is the one at "/", or
    another volume lies over it, EPERM when the user may not. */
OV_EXPORT int OvUnmountVolume(OvVolumeRef volume);

/** For tests: text in the form of /proc/self/mountinfo that stands for the system's
    own list of mounts from now on; nil brings that back. The text is copied. */
OV_EXPORT void OvSetMountTableText(NSString *text);
