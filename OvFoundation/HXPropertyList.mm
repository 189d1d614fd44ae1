#import <OvFoundation/HXPropertyList.h>

#import <OvFoundation/OvPropertyListCopy.h>

#include <string_view>

#import "PropertyListFile.h"
#import "SystemPath.h"

NSString *const HXPropertyListDidSaveValuesNotification =
    @"HXPropertyListDidSaveValuesNotification";

// What was known of the file when it was last read or written.
struct OvPropertyListFile {
  std::string path;
  StoredKind kind = StoredKind::nothing;
  ov::FileStamp stamp;
};

@interface HXPropertyList ()
- (void)_readValues;
- (BOOL)_mayReplaceFileOfKind:(StoredKind *)kind changed:(BOOL *)isChanged;
@end

@implementation HXPropertyList

+ (id)propertyListWithPath:(NSString *)path {
  return [[[self alloc] initWithPath:path] autorelease];
}

+ (id)propertyListWithName:(NSString *)name {
  return [[[self alloc] initWithName:name] autorelease];
}

- (id)init {
  return [self initWithPath:nil];
}

- (id)initWithName:(NSString *)name {
  const BOOL usable = [name isKindOfClass:[NSString class]] && [name length] > 0 &&
                      [name rangeOfString:@"/" options:NSLiteralSearch].length == 0;
  if (!usable) {
    NSLog(@"[HXPropertyList] %@ cannot be the name of a property list.", name);
    [self release];
    return nil;
  }
  NSArray *folders = NSSearchPathForDirectoriesInDomains(NSLibraryDirectory, NSUserDomainMask, YES);
  if (![[name pathExtension] isEqualToString:@"plist"]) {
    name = [name stringByAppendingString:@".plist"];
  }
  NSString *preferences = [[folders objectAtIndex:0] stringByAppendingPathComponent:@"Preferences"];
  return [self initWithPath:[preferences stringByAppendingPathComponent:name]];
}

- (id)initWithPath:(NSString *)path {
  self = [super init];
  if (!self) return nil;
  std::string systemPath;
  if ([path isKindOfClass:[NSString class]] && [path length] > 0) {
    path = [path stringByExpandingTildeInPath];
    if (![path isAbsolutePath]) {
      NSString *current = [[NSFileManager defaultManager] currentDirectoryPath];
      path = [current stringByAppendingPathComponent:path];
    }
    systemPath = SystemPath(path);
  }
  if (systemPath.empty()) {
    NSLog(@"[HXPropertyList] A property list needs the path of a file.");
    [self release];
    return nil;
  }
  _path = [path copy];
  _file = new OvPropertyListFile;
  _file->path = std::move(systemPath);
  _values = [[NSMutableDictionary alloc] init];
  [self _readValues];
  return self;
}

- (void)dealloc {
  [_path release];
  [_values release];
  [_serializedValues release];
  delete _file;
  [super dealloc];
}

- (NSString *)path {
  return _path;
}

- (NSMutableDictionary *)values {
  return _values;
}

- (NSDictionary *)_serializedValues {
  return _serializedValues;
}

- (NSString *)description {
  return [NSString stringWithFormat:@"<%@ %p %@>", NSStringFromClass([self class]), self, _path];
}

- (void)discardChanges {
  [self _readValues];
}

// Takes the values from the file. If it is there but of no use, what was last known
// of it is better than nothing.
- (void)_readValues {
  const StoredPropertyList stored = ReadStoredPropertyList(_file->path);
  _file->kind = stored.kind;
  _file->stamp = stored.stamp;
  if (stored.kind == StoredKind::somethingElse) {
    NSLog(@"[HXPropertyList] %@ is not a property list of settings: %@.", _path, stored.problem);
  } else if (stored.kind == StoredKind::unreadable) {
    NSLog(@"[HXPropertyList] %@ cannot be read: %@.", _path, stored.problem);
  } else {
    [_serializedValues release];
    _serializedValues = [stored.values retain];
  }
  NSDictionary *values = _serializedValues ? _serializedValues : [NSDictionary dictionary];
  [_values setDictionary:OvPropertyListDeepCopy(values, NSPropertyListMutableContainers, NULL)];
}

- (BOOL)saveChanges {
  NSString *problem = nil;
  NSDictionary *snapshot = OvPropertyListDeepCopy(_values, NSPropertyListImmutable, &problem);
  [problem autorelease];
  NSData *data = snapshot ? PropertyListDataThatReadsBack(snapshot) : nil;
  if (!data) {
    NSLog(@"[HXPropertyList] %@ was not saved. %@", _path,
          problem ? problem : @"A value would not survive being written.");
    return NO;
  }
  StoredKind kind = _file->kind;
  BOOL isChanged = NO;
  if (![self _mayReplaceFileOfKind:&kind changed:&isChanged]) return NO;

  const ov::Replacement replacement = ov::replaceFile(
      _file->path, std::string_view(static_cast<const char *>([data bytes]), [data length]),
      kind == StoredKind::somethingElse ? ov::OldFile::movesAside : ov::OldFile::isReplaced);
  if (replacement.error) {
    NSLog(@"[HXPropertyList] %@ was not saved. %@", _path, ErrorName(replacement.error));
    return NO;
  }
  if (!replacement.movedOldTo.empty()) {
    NSLog(@"[HXPropertyList] What %@ held before is kept in %s.", _path,
          replacement.movedOldTo.c_str());
  }
  if (isChanged) {
    NSLog(@"[HXPropertyList] %@ was changed by someone else; their changes are replaced.", _path);
  }
  _file->kind = StoredKind::dictionary;
  _file->stamp = replacement.stamp;
  [_serializedValues release];
  _serializedValues = [snapshot retain];
  // An observer may drop the last reference.
  [[self retain] autorelease];
  [[NSNotificationCenter defaultCenter] postNotificationName:HXPropertyListDidSaveValuesNotification
                                                      object:self];
  return YES;
}

// Looks at the file again if it is not the one that was last read or written.
- (BOOL)_mayReplaceFileOfKind:(StoredKind *)kind changed:(BOOL *)isChanged {
  if (*kind != StoredKind::unreadable && ov::stampOfFile(_file->path) == _file->stamp) return YES;
  const StoredPropertyList stored = ReadStoredPropertyList(_file->path);
  *kind = stored.kind;
  *isChanged = stored.kind == StoredKind::dictionary;
  if (stored.kind != StoredKind::unreadable) return YES;
  NSLog(@"[HXPropertyList] %@ was not saved. What is there cannot be read: %@.", _path,
        stored.problem);
  return NO;
}

@end
