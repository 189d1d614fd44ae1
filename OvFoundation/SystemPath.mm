#import "SystemPath.h"

std::string SystemPath(NSString *path) {
  if (![path isKindOfClass:[NSString class]] || [path length] == 0) return {};
  const unichar terminator = 0;
  NSString *end = [NSString stringWithCharacters:&terminator length:1];
  if ([path rangeOfString:end options:NSLiteralSearch].length > 0) return {};
  @try {
    return [path fileSystemRepresentation];
  } @catch (NSException *) {
    return {};
  }
}
