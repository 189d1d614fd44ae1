#import "split/LayoutSnapshot.h"

#include "split/StoredLayout.h"
#include "support/GeometryBridge.h"

NSString *const OvLayoutVersionKey = @"Format Version";
NSString *const OvLayoutIsVerticalKey = @"SplitView IsVertical";
NSString *const OvLayoutSubviewsKey = @"Subviews";
NSString *const OvLayoutFrameKey = @"Subview Frame";
NSString *const OvLayoutCollapsedKey = @"Subview Collapsed";

NSMutableDictionary *OvPropertyListOfLayout(const ov::SavedLayout &layout) {
  NSMutableArray *entries = [NSMutableArray arrayWithCapacity:layout.panes.size()];
  for (const ov::SavedPane &pane : layout.panes) {
    // Not the platform's text, which keeps six digits.
    const std::string frame = ov::textOfRect(ov::fromNS(pane.frame));
    [entries addObject:@{
      OvLayoutFrameKey : [NSString stringWithUTF8String:frame.c_str()],
      OvLayoutCollapsedKey : [NSNumber numberWithBool:pane.collapsed]
    }];
  }
  return [NSMutableDictionary
      dictionaryWithObjectsAndKeys:@1, OvLayoutVersionKey,
                                   [NSNumber numberWithBool:layout.vertical], OvLayoutIsVerticalKey,
                                   entries, OvLayoutSubviewsKey, nil];
}

@implementation _OvLayoutSnapshot

- (id)initWithLayout:(ov::SavedLayout)layout {
  self = [super init];
  if (self != nil) _layout = std::move(layout);
  return self;
}

- (void)dealloc {
  [_written release];
  [super dealloc];
}

- (NSDictionary *)written {
  // Defaults are read by any thread.
  @synchronized(self) {
    if (_written == nil) _written = [OvPropertyListOfLayout(_layout) copy];
  }
  return _written;
}

- (NSUInteger)count {
  return [[self written] count];
}

- (id)objectForKey:(id)key {
  return [[self written] objectForKey:key];
}

- (NSEnumerator *)keyEnumerator {
  return [[self written] keyEnumerator];
}

- (NSUInteger)countByEnumeratingWithState:(NSFastEnumerationState *)state
                                  objects:(__unsafe_unretained id[])objects
                                    count:(NSUInteger)count {
  return [[self written] countByEnumeratingWithState:state objects:objects count:count];
}

- (id)copyWithZone:(NSZone *)zone {
  (void)zone;
  return [self retain];
}

@end
