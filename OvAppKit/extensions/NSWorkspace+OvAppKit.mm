#import <OvAppKit/NSWorkspace+OvAppKit.h>
#import <OvFoundation/OvFoundation.h>

#include <sys/stat.h>
#include <unistd.h>

namespace {

NSString *applicationPath(NSDictionary *application) {
  NSString *path = [application objectForKey:@"NSApplicationPath"];
  return [path isKindOfClass:[NSString class]] && [path length] > 0 ? path : nil;
}

NSDictionary *bundleInfo(NSDictionary *application) {
  NSString *path = applicationPath(application);
  return path ? [[NSBundle bundleWithPath:path] infoDictionary] : nil;
}

// This platform's entries have no identifier.
NSString *applicationIdentifier(NSDictionary *application) {
  NSString *identifier = [application objectForKey:@"NSApplicationBundleIdentifier"];
  return identifier ? identifier : [bundleInfo(application) objectForKey:@"CFBundleIdentifier"];
}

// The platform's functions would take a path up to its first NUL, which may be the mount point
// of another volume, and follow a null pointer for half a character or nil.
bool canBeAPath(NSString *path) {
  if ([path length] == 0 || ![path canBeConvertedToEncoding:NSUTF8StringEncoding]) return false;
  const unichar terminator = 0;
  NSString *end = [NSString stringWithCharacters:&terminator length:1];
  return [path rangeOfString:end options:NSLiteralSearch].length == 0;
}

// nil for what is not a file URL. The platform ends a URL's path at an escaped NUL, too.
NSString *filePath(NSURL *url) {
  if (![url isFileURL]) return nil;
  return [[url absoluteString] rangeOfString:@"%00"].length == 0 ? [url path] : nil;
}

// The platform looks paths up in this file, and does not look whether it is there.
bool canAskAboutFileSystems(NSWorkspace *workspace) {
  const SEL asking = @selector(getFileSystemInfoForPath:
                                            isRemovable:isWritable:isUnmountable:description:type:);
  return access("/etc/mtab", R_OK) == 0 ||
         [workspace methodForSelector:asking] != [NSWorkspace instanceMethodForSelector:asking];
}

// However it is spelt, or linked to.
bool isRoot(NSString *path) {
  struct stat place;
  struct stat root;
  return stat([path fileSystemRepresentation], &place) == 0 && stat("/", &root) == 0 &&
         place.st_dev == root.st_dev && place.st_ino == root.st_ino;
}

// The platform knows of no volume here that it could unmount, only which devices are removable.
// What it would be told to unmount has to be a mount point of its own, and "unmounting" the root
// would leave the running system without a disk to write to.
bool isEjectable(NSWorkspace *workspace, NSString *path) {
  BOOL removable = NO;
  BOOL writable = NO;
  BOOL unmountable = NO;
  NSString *description = nil;
  NSString *type = nil;
  if (!canBeAPath(path) || isRoot(path) || !canAskAboutFileSystems(workspace) ||
      ![workspace getFileSystemInfoForPath:path
                               isRemovable:&removable
                                isWritable:&writable
                             isUnmountable:&unmountable
                               description:&description
                                      type:&type]) {
    return false;
  }
  return unmountable || (removable && [[workspace mountedLocalVolumePaths] containsObject:path]);
}

}  // namespace

@implementation NSWorkspace (QEProcessViewingExtensions)

- (NSString *)launchedApplicationPathForIdentifier:(NSString *)identifier {
  if (identifier == nil) return nil;
  for (NSDictionary *application in [self launchedApplications]) {
    if ([applicationIdentifier(application) isEqual:identifier]) {
      return applicationPath(application);
    }
  }
  return nil;
}

- (NSString *)launchedApplicationPathForSignature:(NSString *)signature {
  if (signature == nil) return nil;
  for (NSDictionary *application in [self launchedApplications]) {
    if ([[bundleInfo(application) objectForKey:@"CFBundleSignature"] isEqual:signature]) {
      return applicationPath(application);
    }
  }
  return nil;
}

- (BOOL)isApplicationLaunchedForIdentifier:(NSString *)identifier {
  return [self launchedApplicationPathForIdentifier:identifier] != nil;
}

- (BOOL)isApplicationLaunchedForSignature:(NSString *)signature {
  return [self launchedApplicationPathForSignature:signature] != nil;
}

@end

@implementation NSWorkspace (HXAppKitExtensions)

- (BOOL)isUnmountableDeviceOrNetworkVolumeAtURL:(NSURL *)url {
  return [self isUnmountableDeviceOrNetworkVolumeAtPath:filePath(url)];
}

- (BOOL)unmountAndEjectDeviceOrNetworkVolumeAtURL:(NSURL *)url {
  return [self unmountAndEjectDeviceOrNetworkVolumeAtPath:filePath(url)];
}

- (BOOL)isUnmountableDeviceOrNetworkVolumeAtPath:(NSString *)path {
  return isEjectable(self, path) || [[NSFileManager defaultManager] isNetworkVolumeAtPath:path];
}

- (BOOL)unmountAndEjectDeviceOrNetworkVolumeAtPath:(NSString *)path {
  NSFileManager *files = [NSFileManager defaultManager];
  if (isEjectable(self, path)) {
    const OvVolumeRef device = [files volumeRefWithPath:path];
    @try {
      return [self unmountAndEjectDeviceAtPath:path];
    } @catch (NSException *exception) {
      // A program that it needs is not there: "umount", or "eject", which comes afterwards.
      NSLog(@"unmountAndEjectDeviceAtPath: %@", [exception reason]);
      return device != 0 && [files volumeRefWithPath:path] != device;
    }
  }
  // Taken first: what is mounted there next is not what was asked for.
  const OvVolumeRef volume = [files volumeRefWithPath:path];
  if (volume == 0 || ![files isNetworkVolumeAtPath:path]) return NO;
  const int error = OvUnmountVolume(volume);
  if (error != 0) NSLog(@"FAILED: FSUnmountVolumeSync(); Error Code: %d", error);
  return error == 0;
}

@end
