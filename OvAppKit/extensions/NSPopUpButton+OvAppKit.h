#import <AppKit/AppKit.h>

/** The items of a pop-up button by what they are for. Looking up, adding and removing are those
    of the button's menu, see `NSMenu+OvAppKit.h`.

      [button selectItemWithRepresentedObject:town];
      … [button representedObjectOfSelectedItem]; */
@interface NSPopUpButton (HXAppKitExtensions)

/** Appends an item, or puts it before the one at an index from 0 to the number of items; at
    another index nothing happens. The menu retains the item. A nil item, and one that is in a
    menu already, is left alone. */
- (void)addItem:(NSMenuItem *)item;
- (void)insertItem:(NSMenuItem *)item atIndex:(NSInteger)index;

/** The item, or nil. */
- (NSMenuItem *)itemWithTag:(NSInteger)tag;
- (NSMenuItem *)itemWithRepresentedObject:(id)object;
- (NSMenuItem *)itemWithTarget:(id)target andAction:(SEL)action;

/** Removes the item; nothing where there is none. */
- (void)removeItemWithTag:(int)tag;
- (void)removeItemWithRepresentedObject:(id)object;
- (void)removeItemWithTarget:(id)target andAction:(SEL)action;

/** Selects the item. Where there is none the selection is cleared. */
- (void)selectItemWithRepresentedObject:(id)object;
- (void)selectItemWithTarget:(id)target andAction:(SEL)action;

/** What the item at an index has; 0 or nil where there is no such item. */
- (NSInteger)itemTagAtIndex:(int)index;
- (id)itemRepresentedObjectAtIndex:(int)index;

/** What the selected item has; 0 or nil without one. */
- (NSInteger)tagOfSelectedItem;
- (id)representedObjectOfSelectedItem;

@end
