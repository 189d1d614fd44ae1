#import <Foundation/Foundation.h>

#import <OvFoundation/OvVolume.h>

@interface NSFileManager (OvVolumes)

/** Whether what is at `path` lies on a volume of another machine (NFS, SMB, AFS,
    SSH, 9P, Ceph, WebDAV and the like), by the type of the mount that the path is on.
    Links are followed; a relative path starts at the current folder.

    NO for nil, and where there is nothing at the path. A volume whose server does not
    answer still counts. What the desktop's own file services offer in a folder of
    shares is not a volume. */
- (BOOL)isNetworkVolumeAtPath:(NSString *)path;

/** The volume that what is at `path` lies on, to be given to `OvUnmountVolume`; 0
    for nil, and where there is nothing at the path. */
- (OvVolumeRef)volumeRefWithPath:(NSString *)path;

@end
