#import <OvAppKit/NSMenu+OvAppKit.h>
#import <OvAppKit/NSPopUpButton+OvAppKit.h>

// The button forgets a selected item that leaves by the button; one that leaves by the menu, as
// the platform has it, stays selected when it is long gone.
static void RemoveAt(NSPopUpButton *button, NSInteger index) {
  if (index != -1) [button removeItemAtIndex:index];
}

@implementation NSPopUpButton (HXAppKitExtensions)

- (void)addItem:(NSMenuItem *)item {
  [self insertItem:item atIndex:[self numberOfItems]];
}

- (void)insertItem:(NSMenuItem *)item atIndex:(NSInteger)index {
  const NSInteger count = [self numberOfItems];
  if (item == nil || [item menu] != nil || index < 0 || index > count) return;
  [[self menu] insertItem:item atIndex:index];
  if (count == 0) [self selectItemAtIndex:0];
  [self synchronizeTitleAndSelectedItem];
}

- (NSMenuItem *)itemWithTag:(NSInteger)tag {
  return static_cast<NSMenuItem *>([[self menu] itemWithTag:tag]);
}

- (NSMenuItem *)itemWithRepresentedObject:(id)object {
  return [[self menu] itemWithRepresentedObject:object];
}

- (NSMenuItem *)itemWithTarget:(id)target andAction:(SEL)action {
  return [[self menu] itemWithTarget:target andAction:action];
}

- (void)removeItemWithTag:(int)tag {
  RemoveAt(self, [self indexOfItemWithTag:tag]);
}

- (void)removeItemWithRepresentedObject:(id)object {
  RemoveAt(self, [self indexOfItemWithRepresentedObject:object]);
}

- (void)removeItemWithTarget:(id)target andAction:(SEL)action {
  RemoveAt(self, [self indexOfItemWithTarget:target andAction:action]);
}

- (void)selectItemWithRepresentedObject:(id)object {
  [self selectItemAtIndex:[self indexOfItemWithRepresentedObject:object]];
}

- (void)selectItemWithTarget:(id)target andAction:(SEL)action {
  [self selectItemAtIndex:[self indexOfItemWithTarget:target andAction:action]];
}

- (NSInteger)itemTagAtIndex:(int)index {
  return [[self itemAtIndex:index] tag];
}

- (id)itemRepresentedObjectAtIndex:(int)index {
  return [[self itemAtIndex:index] representedObject];
}

- (NSInteger)tagOfSelectedItem {
  return [[self selectedItem] tag];
}

- (id)representedObjectOfSelectedItem {
  return [[self selectedItem] representedObject];
}

@end
