#import <OvAppKit/HXSoundRepository.h>

namespace {

NSArray *soundNamesInFolder(NSString *folder) {
  NSArray *names = [[[NSFileManager defaultManager] directoryContentsAtPath:folder]
      pathsMatchingExtensions:[NSSound soundUnfilteredFileTypes]];
  if ([names count] == 0) return nil;
  if (![[names objectAtIndex:0] respondsToSelector:@selector(naturalCompare:)]) return names;
  return [names sortedArrayUsingSelector:@selector(naturalCompare:)];
}

}  // namespace

@implementation HXSoundRepository

+ (HXSoundRepository *)sharedSoundRepository {
  static HXSoundRepository *repository = nil;
  @synchronized([HXSoundRepository class]) {
    if (repository == nil) repository = [[HXSoundRepository alloc] init];
  }
  return repository;
}

- (NSArray *)soundFilePaths {
  NSMutableArray *paths = [NSMutableArray array];
  const NSSearchPathDomainMask domains = NSUserDomainMask | NSLocalDomainMask | NSSystemDomainMask;
  for (NSString *library in NSSearchPathForDirectoriesInDomains(NSLibraryDirectory, domains, YES)) {
    NSString *folder = [library stringByAppendingPathComponent:@"Sounds"];
    for (NSString *name in soundNamesInFolder(folder)) {
      [paths addObject:[folder stringByAppendingPathComponent:name]];
    }
  }
  return [NSArray arrayWithArray:paths];
}

@end
