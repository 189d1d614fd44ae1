#import <AppKit/AppKit.h>

/** Which applications run. They are found in `launchedApplications`, in its order:

      NSWorkspace *workspace = [NSWorkspace sharedWorkspace];
      if (![workspace isApplicationLaunchedForIdentifier:@"net.example.Mixer"]) …

    The platform knows of its own programs only. */
@interface NSWorkspace (QEProcessViewingExtensions)

/** The path of the first running application with this bundle identifier. nil for nil, and
    where none runs. An entry that does not tell its identifier is asked for that of the bundle
    at its path. */
- (NSString *)launchedApplicationPathForIdentifier:(NSString *)identifier;
/** The path of the first running application whose bundle has this signature (four characters,
    `CFBundleSignature`). nil for nil, and where none runs. */
- (NSString *)launchedApplicationPathForSignature:(NSString *)signature;

/** Whether `launchedApplicationPathForIdentifier:` finds one. */
- (BOOL)isApplicationLaunchedForIdentifier:(NSString *)identifier;
/** Whether `launchedApplicationPathForSignature:` finds one. */
- (BOOL)isApplicationLaunchedForSignature:(NSString *)signature;

@end

/** Volumes that a person can put away: devices that can be ejected, and volumes of other
    machines.

      if ([workspace isUnmountableDeviceOrNetworkVolumeAtPath:path]) {
        [workspace unmountAndEjectDeviceOrNetworkVolumeAtPath:path];
      }

    A device is named by its mount point. A volume of another machine is named by any path on
    it, links followed, as `-[NSFileManager volumeRefWithPath:]` finds it: the whole volume is
    unmounted, for everyone. What is mounted at "/" is never unmounted, whatever the path. nil, an
    empty path, one with a NUL and one where nothing is name no volume; the answers are NO. */
@interface NSWorkspace (HXAppKitExtensions)

/** NO for what is not a file URL, otherwise the answer for its path. */
- (BOOL)isUnmountableDeviceOrNetworkVolumeAtURL:(NSURL *)url;
/** NO for what is not a file URL, otherwise the answer for its path. */
- (BOOL)unmountAndEjectDeviceOrNetworkVolumeAtURL:(NSURL *)url;

/** Whether the platform tells that the volume can be unmounted, or that its device is removable
    and mounted there (not at "/"), or else whether `-[NSFileManager isNetworkVolumeAtPath:]`
    does. It says nothing of permissions, or whether the volume is in use. */
- (BOOL)isUnmountableDeviceOrNetworkVolumeAtPath:(NSString *)path;

/** Waits until it is done. A device is ejected by `unmountAndEjectDeviceAtPath:`, whose answer
    is returned, and which posts the platform's notifications. A volume of another machine is
    unmounted by `OvUnmountVolume()`, without a notification: YES when it is gone. When it is
    not, one line in the log has the errno: "FAILED: FSUnmountVolumeSync(); Error Code: %d". NO
    for every other volume. */
- (BOOL)unmountAndEjectDeviceOrNetworkVolumeAtPath:(NSString *)path;

@end
