#import <OvAppKit/HXPackageSerializationContext.h>

namespace {

NSFileWrapper *folderNamed(NSString *name, NSFileWrapper *parent) {
  if (parent == nil) return nil;
  if (![parent isDirectory]) {
    NSLog(@"[HXPackageSerializationContext] There is no folder for \"%@\".", name);
    return nil;
  }
  NSFileWrapper *child = [[parent fileWrappers] objectForKey:name];
  if (child == nil) {
    child = [[[NSFileWrapper alloc] initDirectoryWithFileWrappers:nil] autorelease];
    [child setPreferredFilename:name];
    [parent addFileWrapper:child];
  } else if (![child isDirectory]) {
    NSLog(@"[HXPackageSerializationContext] \"%@\" is not a folder.", name);
    return nil;
  }
  return child;
}

}  // namespace

@implementation HXPackageSerializationContext

- (id)initWithFileWrapper:(NSFileWrapper *)fileWrapper {
  return [self initWithFileWrapper:fileWrapper document:nil];
}

- (id)initWithFileWrapper:(NSFileWrapper *)fileWrapper document:(NSDocument *)document {
  self = [super init];
  if (!self) return nil;
  _fileWrapper = [fileWrapper retain];
  _document = [document retain];
  return self;
}

- (void)dealloc {
  [_fileWrapper release];
  [_document release];
  [super dealloc];
}

- (NSFileWrapper *)rootDirectoryFileWrapper {
  return _fileWrapper;
}

- (NSFileWrapper *)contentsDirectoryFileWrapper {
  return folderNamed(@"Contents", _fileWrapper);
}

- (NSFileWrapper *)resourcesDirectoryFileWrapper {
  return folderNamed(@"Resources", [self contentsDirectoryFileWrapper]);
}

- (void)addPackageInfoFile:(NSString *)packageInfo {
  if (packageInfo == nil) return;
  NSData *bytes = [packageInfo dataUsingEncoding:NSUTF8StringEncoding];
  if (bytes == nil) {
    NSLog(@"[HXPackageSerializationContext] The package information has no UTF-8.");
    return;
  }
  NSString *name = @"PkgInfo";
  NSFileWrapper *contents = [self contentsDirectoryFileWrapper];
  // A second child of the same preferred name would be written under a made-up one.
  NSFileWrapper *old = [[contents fileWrappers] objectForKey:name];
  if (old != nil) [contents removeFileWrapper:old];
  [contents addRegularFileWithContents:bytes preferredFilename:name];
}

- (NSDocument *)document {
  return _document;
}

@end
