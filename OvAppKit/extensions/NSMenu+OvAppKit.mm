#import <OvAppKit/NSMenu+OvAppKit.h>

static NSMenuItem *ItemAt(NSMenu *menu, NSInteger index) {
  return index == -1 ? nil : static_cast<NSMenuItem *>([menu itemAtIndex:index]);
}

static void RemoveAt(NSMenu *menu, NSInteger index) {
  if (index != -1) [menu removeItemAtIndex:index];
}

@implementation NSMenu (HXAppKitExtensions)

- (NSMenuItem *)itemWithRepresentedObject:(id)object {
  return ItemAt(self, [self indexOfItemWithRepresentedObject:object]);
}

- (NSMenuItem *)itemWithSubmenu:(NSMenu *)submenu {
  return ItemAt(self, [self indexOfItemWithSubmenu:submenu]);
}

- (NSMenuItem *)itemWithTarget:(id)target andAction:(SEL)action {
  return ItemAt(self, [self indexOfItemWithTarget:target andAction:action]);
}

- (void)removeItemWithTag:(int)tag {
  RemoveAt(self, [self indexOfItemWithTag:tag]);
}

- (void)removeItemWithRepresentedObject:(id)object {
  RemoveAt(self, [self indexOfItemWithRepresentedObject:object]);
}

- (void)removeItemWithSubmenu:(NSMenu *)submenu {
  RemoveAt(self, [self indexOfItemWithSubmenu:submenu]);
}

- (void)removeItemWithTarget:(id)target andAction:(SEL)action {
  RemoveAt(self, [self indexOfItemWithTarget:target andAction:action]);
}

@end
