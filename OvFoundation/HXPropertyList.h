#import <Foundation/Foundation.h>

#import <OvFoundation/OvDefines.h>

/** Posted by `saveChanges`, with the property list as the object and no user info,
    when the values have been written. */
OV_EXPORT NSString *const HXPropertyListDidSaveValuesNotification;

/** Settings that are kept in a file.

      HXPropertyList *settings = [[HXPropertyList alloc] initWithName:@"com.example.Paint"];
      [[settings values] setObject:@"red" forKey:@"ink"];
      if (![settings saveChanges]) …

    The file is a property list with a dictionary at the top. It is read when the
    object is made and when changes are discarded, and written as a whole by
    `saveChanges`; between these the object does not look at it. When someone else
    wrote the file meanwhile, saving replaces what they wrote, says so in the log,
    and discarding picks it up.

    No file is lost. A save leaves the old file or the new one, whole, whenever it is
    interrupted. A file that is not a property list with a dictionary at the top is
    reported when it is read, and left alone until values are saved: then it is moved
    aside to its name with ".corrupt" appended (".corrupt-2" and so on if that is
    taken). What cannot be read at all is never replaced.

    Failures are reported in the log by one line that begins with "[HXPropertyList]".
    For the main thread, as all of the library. */
@interface HXPropertyList : NSObject {
  NSString *_path;
  NSMutableDictionary *_values;
  NSDictionary *_serializedValues;
  struct OvPropertyListFile *_file;
}

/** An autoreleased property list; see `initWithPath:`. */
+ (id)propertyListWithPath:(NSString *)path;

/** An autoreleased property list; see `initWithName:`. */
+ (id)propertyListWithName:(NSString *)name;

/** The designated initialiser. A "~" at the beginning is expanded, and a relative
    path is taken from the current folder, once and for all. The file and its folders
    need not exist; they are made by the first save. A link is followed, also by
    saving. nil, with a line in the log, for a path that is nil, empty or cannot be a
    file's. */
- (id)initWithPath:(NSString *)path;

/** The list called `name` in the Preferences folder of the user's Library folder;
    the extension "plist" is added if it is not there. nil, with a line in the log,
    for a name that is nil, empty or holds a "/". */
- (id)initWithName:(NSString *)name;

/** The absolute path of the file. */
- (NSString *)path;

/** The values, to be read and changed. It is the same object for the life of the
    property list; the dictionaries and arrays in it can be changed too, until
    something else is put in their place. Empty when there is no file, or one that is not
    a property list. */
- (NSMutableDictionary *)values;

/** The values as they were last written to the file or read from it, unchangeable;
    nil when there is no file, or one that could not be read. */
- (NSDictionary *)_serializedValues;

/** Writes the values to the file, making its folders if need be, and posts
    `HXPropertyListDidSaveValuesNotification` before it returns.

    YES when the values are on the disk. Otherwise NO: the file is as it was, nothing
    is posted, and the values stay as they are. That is so when a value is not of a
    property-list type, or would not come back equal from a file (a number that is
    not a number, a string with half a character), when the list is nested too deeply
    or contains itself, and when the file cannot be written: its folder must be
    writable, and the file itself if it exists.

    The file is XML where XML keeps the values exactly, else the binary form (for
    fractions of seconds, say). The permissions of an existing file are kept. */
- (BOOL)saveChanges;

/** Returns the values to what the file holds now, which may be nothing. When the file
    cannot be read any more, or has become something else, they return to
    `_serializedValues`. Posts nothing. */
- (void)discardChanges;

@end
