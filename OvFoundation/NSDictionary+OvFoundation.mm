#import <OvFoundation/NSDictionary+OvFoundation.h>

@implementation NSDictionary (OvDifferences)

- (NSDictionary *)differencesFromDictionary:(NSDictionary *)other {
  if (![other isKindOfClass:[NSDictionary class]]) other = nil;
  NSMutableDictionary *differences = [NSMutableDictionary dictionary];
  // An enumerator, since a subclass may not support fast enumeration.
  NSEnumerator *keys = [self keyEnumerator];
  while (id key = [keys nextObject]) {
    id value = [self objectForKey:key];
    if (![value isEqual:[other objectForKey:key]]) [differences setObject:value forKey:key];
  }
  return [NSDictionary dictionaryWithDictionary:differences];
}

@end
