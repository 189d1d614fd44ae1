#import <OvAppKit/NSWindow+HXDynamicResponder.h>

static HXDynamicResponder *AsDynamic(NSResponder *responder) {
  if (![responder isKindOfClass:[HXDynamicResponder class]]) return nil;
  return static_cast<HXDynamicResponder *>(responder);
}

@implementation NSWindow (HXDynamicResponderExtensions)

- (void)_addDynamicResponder:(HXDynamicResponder *)responder {
  if (AsDynamic(responder) == nil || [self _containsDynamicResponder:responder]) return;
  // The question above leaves out the window's neighbour, which would be made its own next.
  if ([self nextResponder] == responder) return;
  NSResponder *controller = [self windowController];
  NSResponder *current = self;
  for (;;) {
    NSResponder *next = [current nextResponder];
    BOOL here = next == controller;
    // On this platform the chain of a window without a controller goes on to the application,
    // which is the end of every window's chain.
    if (controller == nil && next == NSApp) here = YES;
    HXDynamicResponder *dynamic = AsDynamic(next);
    if (dynamic != nil && [responder ordering] <= [dynamic ordering]) here = YES;
    if (here) {
      [responder setNextResponder:next];
      [current setNextResponder:responder];
      return;
    }
    if (next == nil) return;
    current = next;
  }
}

- (void)_removeDynamicResponder:(HXDynamicResponder *)responder {
  if (responder == nil) return;
  for (NSResponder *current = self; current != nil; current = [current nextResponder]) {
    if ([current nextResponder] != responder) continue;
    [current setNextResponder:[responder nextResponder]];
    return;
  }
}

- (NSArray *)_removeAllDynamicResponders {
  NSMutableArray *removed = [NSMutableArray arrayWithCapacity:8];
  for (NSResponder *current = self; current != nil; current = [current nextResponder]) {
    while (HXDynamicResponder *next = AsDynamic([current nextResponder])) {
      [removed addObject:next];
      [current setNextResponder:[next nextResponder]];
    }
  }
  return removed;
}

- (void)_rearrangeDynamicResponders {
  for (HXDynamicResponder *responder in [self _removeAllDynamicResponders]) {
    [self _addDynamicResponder:responder];
  }
}

- (BOOL)_containsDynamicResponder:(HXDynamicResponder *)responder {
  for (NSResponder *x = [self nextResponder]; x != nil;) {
    x = [x nextResponder];
    if (x != nil && x == responder) return YES;
  }
  return NO;
}

- (NSArray *)_dynamicResponders {
  return [self _dynamicRespondersKindOfClass:[HXDynamicResponder class]];
}

- (NSArray *)_dynamicRespondersKindOfClass:(Class)responderClass {
  NSMutableArray *found = [NSMutableArray arrayWithCapacity:8];
  for (NSResponder *x = [self nextResponder]; x != nil; x = [x nextResponder]) {
    if (AsDynamic(x) != nil && [x isKindOfClass:responderClass]) [found addObject:x];
  }
  return found;
}

@end
