#import <OvAppKit/NSTabView+OvAppKit.h>

@implementation NSTabView (HXAppKitExtensions)

- (NSTabViewItem *)tabViewItemWithIdentifier:(id)identifier {
  const NSInteger index = [self indexOfTabViewItemWithIdentifier:identifier];
  return index == NSNotFound ? nil : [self tabViewItemAtIndex:index];
}

- (NSInteger)indexOfSelectedTabViewItem {
  NSTabViewItem *item = [self selectedTabViewItem];
  return item == nil ? NSNotFound : [self indexOfTabViewItem:item];
}

@end
