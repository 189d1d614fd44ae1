#import <AppKit/AppKit.h>

/** The items of a tab view.

      [tabs selectTabViewItem:[tabs tabViewItemWithIdentifier:@"Colours"]]; */
@interface NSTabView (HXAppKitExtensions)

/** The first item with that identifier, or nil. */
- (NSTabViewItem *)tabViewItemWithIdentifier:(id)identifier;

/** `NSNotFound` when no item is selected. The platform selects the first one when the view is
    drawn, not before. */
- (NSInteger)indexOfSelectedTabViewItem;

@end
