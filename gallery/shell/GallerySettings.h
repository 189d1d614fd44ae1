// The strip of settings below a page: titled columns of labelled controls. Each control
// calls a function with its new value.
//
//   GallerySettings *settings = [[[GallerySettings alloc] init] autorelease];
//   [settings addColumn:@"Layout"];
//   [settings addSlider:@"Spacing" from:0 to:40 value:8 changed:[self](double value) {
//     [_grid setIntercellSpacing:NSMakeSize(value, value)];
//   }];
#import <AppKit/AppKit.h>

#include <functional>

#import "shell/GalleryStyle.h"

@interface GallerySettings : GalleryBox {
  NSMutableArray *_actions;
  CGFloat _columnX;
  CGFloat _rowY;
  BOOL _hasColumn;
}

// What every strip's height is, in points.
+ (CGFloat)height;

// Starts a new column at the right of the others.
- (void)addColumn:(NSString *)title;

- (NSPopUpButton *)addPopUp:(NSString *)label
                     titles:(NSArray *)titles
                   selected:(NSInteger)index
                    changed:(std::function<void(NSInteger index)>)changed;

- (NSSlider *)addSlider:(NSString *)label
                   from:(double)least
                     to:(double)most
                  value:(double)value
                changed:(std::function<void(double value)>)changed;

- (NSButton *)addCheckBox:(NSString *)label
                       on:(BOOL)on
                  changed:(std::function<void(BOOL on)>)changed;

// As wide as the column.
- (NSButton *)addButton:(NSString *)title pressed:(std::function<void()>)pressed;

@end
