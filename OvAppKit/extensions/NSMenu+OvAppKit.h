#import <AppKit/AppKit.h>

/** Finding and removing items by what they are for.

      [[menu itemWithTarget:self andAction:@selector(save:)] setEnabled:NO];
      [menu removeItemWithTag:kRecentFilesTag];

    An item is the first that the platform's `indexOfItemWith…` finds: objects and submenus are
    compared by `isEqual:`, and nil finds no item; targets by identity, and nil is the target of
    items without one; a NULL action stands for any. */
@interface NSMenu (HXAppKitExtensions)

/** The item, or nil. */
- (NSMenuItem *)itemWithRepresentedObject:(id)object;
- (NSMenuItem *)itemWithSubmenu:(NSMenu *)submenu;
- (NSMenuItem *)itemWithTarget:(id)target andAction:(SEL)action;

/** Removes the item; nothing where there is none. */
- (void)removeItemWithTag:(int)tag;
- (void)removeItemWithRepresentedObject:(id)object;
- (void)removeItemWithSubmenu:(NSMenu *)submenu;
- (void)removeItemWithTarget:(id)target andAction:(SEL)action;

@end
