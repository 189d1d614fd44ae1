#import <AppKit/AppKit.h>

/** The installed sounds.

      for (NSString *path in [[HXSoundRepository sharedSoundRepository] soundFilePaths]) {
        [menu addItemWithTitle:[[path lastPathComponent] stringByDeletingPathExtension] …];
      } */
@interface HXSoundRepository : NSObject

/** The one of this process. Any thread may be the first to ask. */
+ (HXSoundRepository *)sharedSoundRepository;

/** Full paths of the sound files in the folders "Sounds" of the user's, the local and the
    system's Library, in this order; within a folder in natural order ("Ping 2" before
    "Ping 10"). The folders are read at each call. One that cannot be read is passed over, folders
    in them are not entered, and sounds of the same name are all listed.

    Sound files are told by their extension, one of `+[NSSound soundUnfilteredFileTypes]`; case
    counts. Autoreleased and immutable; empty when there are none. */
- (NSArray *)soundFilePaths;

@end
