// A row of colours, one of which is chosen by a click.
#import <AppKit/AppKit.h>

#include <functional>

NSColor *SwatchColor(NSInteger index);
NSString *SwatchName(NSInteger index);

@interface Swatches : NSView {
  NSInteger _chosen;
  std::function<void(NSInteger)> _changed;
}
- (id)initWithFrame:(NSRect)frame changed:(std::function<void(NSInteger index)>)changed;
@end
