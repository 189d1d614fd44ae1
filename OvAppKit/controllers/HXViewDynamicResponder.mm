#import <OvAppKit/HXViewDynamicResponder.h>
#import <OvAppKit/HXViewDynamicResponder_NSViewReplacer.h>

@implementation HXViewDynamicResponder

+ (NSHashTable *)_instanceTable {
  static NSHashTable *table = nil;
  // The same lock and table for subclasses.
  @synchronized([HXViewDynamicResponder class]) {
    if (table == nil) table = NSCreateHashTable(NSNonRetainedObjectHashCallBacks, 8);
  }
  return table;
}

+ (NSArray *)_instancesForView:(NSView *)view {
  NSMutableArray *instances = [NSMutableArray array];
  @synchronized([HXViewDynamicResponder class]) {
    NSHashEnumerator enumerator = NSEnumerateHashTable([self _instanceTable]);
    while (void *item = NSNextHashEnumeratorItem(&enumerator)) {
      HXViewDynamicResponder *responder = static_cast<HXViewDynamicResponder *>(item);
      if ([responder view] == view) [instances addObject:responder];
    }
    NSEndHashTableEnumeration(&enumerator);
  }
  return instances;
}

- (id)initWithView:(NSView *)view ordering:(NSInteger)ordering {
  self = [super initWithWindow:[view window] ordering:ordering];
  if (self != nil) {
    _view = view;
    // A view that is observed answers its true class here, not the observer's.
    [HXViewDynamicResponder_NSViewReplacer replaceMethodImplementationOnClass:[view class]];
    [self _didInitialized];
  }
  return self;
}

- (void)dealloc {
  [self _willDeallocate];
  [super dealloc];
}

- (NSView *)view {
  return _view;
}

- (void)_didInitialized {
  @synchronized(self) {
    NSHashInsert([HXViewDynamicResponder _instanceTable], self);
  }
}

- (void)_willDeallocate {
  @synchronized(self) {
    NSHashRemove([HXViewDynamicResponder _instanceTable], self);
  }
}

@end
