#import "split/DeferredDefault.h"

static NSString *const kDomain = @"OvDeferredDefaults";

// A domain of the user defaults that goes on living after the platform has taken it over:
// a new one for each value would cost as much as a handful of steps.
@interface _OvDeferredDomain : NSMutableDictionary {
  NSString *_key;
  id _value;
}
@end

@implementation _OvDeferredDomain

- (id)init {
  return [self initWithCapacity:0];
}

- (id)initWithCapacity:(NSUInteger)capacity {
  (void)capacity;
  return self;
}

- (void)dealloc {
  [_key release];
  [_value release];
  [super dealloc];
}

- (NSDictionary *)contents {
  // Defaults are read by any thread.
  @synchronized(self) {
    if (_key == nil) return [NSDictionary dictionary];
    return [NSDictionary dictionaryWithObject:_value forKey:_key];
  }
}

- (NSUInteger)count {
  @synchronized(self) {
    return _key != nil ? 1 : 0;
  }
}

- (id)objectForKey:(id)key {
  @synchronized(self) {
    return [_key isEqual:key] ? [[_value retain] autorelease] : nil;
  }
}

- (NSEnumerator *)keyEnumerator {
  return [[self contents] keyEnumerator];
}

- (NSUInteger)countByEnumeratingWithState:(NSFastEnumerationState *)state
                                  objects:(__unsafe_unretained id[])objects
                                    count:(NSUInteger)count {
  return [[self contents] countByEnumeratingWithState:state objects:objects count:count];
}

// One value at a time.
- (void)setObject:(id)object forKey:(id)key {
  @synchronized(self) {
    OvReplaceRetained(&_key, (NSString *)key);
    OvReplaceRetained(&_value, object);
  }
}

- (void)removeObjectForKey:(id)key {
  @synchronized(self) {
    if (![_key isEqual:key]) return;
    OvReplaceRetained<NSString *>(&_key, nil);
    OvReplaceRetained<id>(&_value, nil);
  }
}

// The platform copies a domain that it is given.
- (id)mutableCopyWithZone:(NSZone *)zone {
  (void)zone;
  return [self retain];
}

- (id)copyWithZone:(NSZone *)zone {
  return [[self contents] copyWithZone:zone];
}

@end

namespace ov {

// A domain of its own that is searched first, so that no other one is ever seen without its
// values.
DeferredDefault::DeferredDefault() : domain_(adopt([[_OvDeferredDomain alloc] init])) {
  NSUserDefaults *defaults = [NSUserDefaults standardUserDefaults];
  [defaults removeVolatileDomainForName:kDomain];
  [defaults setVolatileDomain:domain_.get() forName:kDomain];
  NSMutableArray *list = [[[defaults searchList] mutableCopy] autorelease];
  [list insertObject:kDomain atIndex:0];
  [defaults setSearchList:list];
}

DeferredDefault::~DeferredDefault() {
  store();
  NSUserDefaults *defaults = [NSUserDefaults standardUserDefaults];
  NSMutableArray *list = [[[defaults searchList] mutableCopy] autorelease];
  [list removeObject:kDomain];
  [defaults setSearchList:list];
  [defaults removeVolatileDomainForName:kDomain];
}

void DeferredDefault::store() const {
  NSDictionary *contents = [[domain_.get() copy] autorelease];
  for (NSString *key in contents) {
    [[NSUserDefaults standardUserDefaults] setObject:[contents objectForKey:key] forKey:key];
  }
}

void DeferredDefault::set(NSString *key, id value) {
  if ([domain_.get() count] > 0 && [domain_.get() objectForKey:key] == nil) store();
  [domain_.get() setObject:value forKey:key];
}

}  // namespace ov
