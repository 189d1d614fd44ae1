// OvFlippedView: a plain container whose coordinates start at its top left.
//
//   OvFlippedView *column = [[OvFlippedView alloc] initWithFrame:frame];
//   [column addSubview:first];   // at (0, 0): at the top

#import <AppKit/AppKit.h>

@interface OvFlippedView : NSView

/** YES: y grows downward. */
- (BOOL)isFlipped;

@end
