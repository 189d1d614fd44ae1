// Something to scroll: a wide sheet of numbered squares.
#import <AppKit/AppKit.h>

@interface ScrolledSheet : NSView
@end
