#import <OvAppKit/HXPropertyListControllerValues.h>

#include <algorithm>

namespace {

const NSUInteger kLargestCapacity = 4096;

BOOL isUsable(BOOL usable, NSString *complaint) {
  if (!usable) NSLog(@"[HXPropertyListControllerValues] %@", complaint);
  return usable;
}

BOOL isKey(id key) { return isUsable(key != nil, @"A key cannot be nil."); }

BOOL isDictionaryOrNil(id object) {
  return isUsable(!object || [object isKindOfClass:[NSDictionary class]],
                  @"Entries can only be taken from a dictionary.");
}

// The values hold what changes, perhaps through an observer that drops them.
template <typename Change>
void report(HXPropertyListControllerValues *values, NSArray *keys, Change change) {
  [[values retain] autorelease];
  NSMutableSet *announced = [NSMutableSet set];
  for (id key in keys) {
    if ([key isKindOfClass:[NSString class]]) [announced addObject:key];
  }
  for (NSString *key in announced) [values willChangeValueForKey:key];
  change();
  for (NSString *key in announced) [values didChangeValueForKey:key];
  id delegate = [values delegate];
  if ([delegate respondsToSelector:@selector(propertyListControllerValues:
                                                   didChangeValuesForKeys:)]) {
    [delegate propertyListControllerValues:values didChangeValuesForKeys:keys];
  }
}

}  // namespace

@implementation HXPropertyListControllerValues

// Every change is announced below, so that it makes no difference whether it comes through
// setValue:forKey:, which the platform would announce once more.
+ (BOOL)automaticallyNotifiesObserversForKey:(NSString *)key {
  (void)key;
  return NO;
}

// MARK: Creating

- (id)initWithCapacity:(NSUInteger)capacity delegate:(id)delegate {
  self = [super init];
  if (!self) return nil;
  _delegate = delegate;
  // The room is taken at once, so a careless hint could ask for all there is.
  _dictionary = [[NSMutableDictionary alloc]
      initWithCapacity:std::min<NSUInteger>(capacity, kLargestCapacity)];
  return self;
}

- (id)initWithDictionary:(NSDictionary *)dictionary delegate:(id)delegate {
  self = [super init];
  if (!self) return nil;
  _delegate = delegate;
  _dictionary = [[NSMutableDictionary alloc] init];
  if (isDictionaryOrNil(dictionary)) [_dictionary addEntriesFromDictionary:dictionary];
  return self;
}

- (id)init {
  return [self initWithCapacity:0 delegate:nil];
}

// The two that the inherited initialisers come down to.
- (id)initWithCapacity:(NSUInteger)capacity {
  return [self initWithCapacity:capacity delegate:nil];
}

- (id)initWithObjects:(const id[])objects
              forKeys:(const id<NSCopying>[])keys
                count:(NSUInteger)count {
  return [self initWithDictionary:[NSDictionary dictionaryWithObjects:objects
                                                              forKeys:keys
                                                                count:count]
                         delegate:nil];
}

- (void)dealloc {
  [_dictionary release];
  [super dealloc];
}

- (void)setDelegate:(id)delegate {
  _delegate = delegate;
}

- (id)delegate {
  return _delegate;
}

// MARK: Reading

- (BOOL)isEqual:(id)object {
  return [_dictionary isEqual:object];
}

- (NSUInteger)hash {
  return [_dictionary hash];
}

- (NSUInteger)count {
  return [_dictionary count];
}

- (NSEnumerator *)keyEnumerator {
  return [_dictionary keyEnumerator];
}

- (id)objectForKey:(id)key {
  return [_dictionary objectForKey:key];
}

- (NSArray *)allKeys {
  return [_dictionary allKeys];
}

- (NSArray *)allKeysForObject:(id)object {
  return [_dictionary allKeysForObject:object];
}

- (NSArray *)allValues {
  return [_dictionary allValues];
}

- (NSString *)description {
  return [_dictionary description];
}

- (NSString *)descriptionInStringsFileFormat {
  return [_dictionary descriptionInStringsFileFormat];
}

- (NSString *)descriptionWithLocale:(id)locale {
  return [_dictionary descriptionWithLocale:locale];
}

- (NSString *)descriptionWithLocale:(id)locale indent:(NSUInteger)level {
  return [_dictionary descriptionWithLocale:locale indent:level];
}

- (BOOL)isEqualToDictionary:(NSDictionary *)dictionary {
  return [_dictionary isEqualToDictionary:dictionary];
}

- (NSEnumerator *)objectEnumerator {
  return [_dictionary objectEnumerator];
}

- (NSArray *)objectsForKeys:(NSArray *)keys notFoundMarker:(id)marker {
  return [_dictionary objectsForKeys:keys notFoundMarker:marker];
}

- (BOOL)writeToFile:(NSString *)path atomically:(BOOL)atomically {
  return [_dictionary writeToFile:path atomically:atomically];
}

- (BOOL)writeToURL:(NSURL *)url atomically:(BOOL)atomically {
  return [_dictionary writeToURL:url atomically:atomically];
}

- (NSArray *)keysSortedByValueUsingSelector:(SEL)comparator {
  return [_dictionary keysSortedByValueUsingSelector:comparator];
}

// A dictionary of one's own cannot be enumerated fast on this platform otherwise.
- (NSUInteger)countByEnumeratingWithState:(NSFastEnumerationState *)state
                                  objects:(id[])buffer
                                    count:(NSUInteger)length {
  return [_dictionary countByEnumeratingWithState:state objects:buffer count:length];
}

// MARK: Writing

- (void)setObject:(id)object forKey:(id)key {
  if (!isKey(key) || !isUsable(object != nil, @"A value cannot be nil.")) return;
  report(self, [NSArray arrayWithObject:key], [&] { [_dictionary setObject:object forKey:key]; });
}

- (void)removeObjectForKey:(id)key {
  if (!isKey(key)) return;
  report(self, [NSArray arrayWithObject:key], [&] { [_dictionary removeObjectForKey:key]; });
}

- (void)addEntriesFromDictionary:(NSDictionary *)dictionary {
  if (!isDictionaryOrNil(dictionary)) return;
  NSArray *keys = dictionary ? [dictionary allKeys] : [NSArray array];
  report(self, keys, [&] { [_dictionary addEntriesFromDictionary:dictionary]; });
}

- (void)removeObjectsForKeys:(NSArray *)keys {
  if (!isUsable(!keys || [keys isKindOfClass:[NSArray class]], @"Keys come in an array.")) return;
  report(self, keys, [&] { [_dictionary removeObjectsForKeys:keys]; });
}

- (void)removeAllObjects {
  report(self, [_dictionary allKeys], [&] { [_dictionary removeAllObjects]; });
}

- (void)setDictionary:(NSDictionary *)dictionary {
  if (!isDictionaryOrNil(dictionary)) return;
  // A copy, since it may be this very dictionary.
  NSDictionary *entries = [NSDictionary dictionaryWithDictionary:dictionary];
  NSMutableSet *keys = [NSMutableSet setWithArray:[_dictionary allKeys]];
  [keys addObjectsFromArray:[entries allKeys]];
  report(self, [keys allObjects], [&] { [_dictionary setDictionary:entries]; });
}

@end
