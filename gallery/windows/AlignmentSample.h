// Bars at places between the pixels: as they are given, and aligned.
#import <AppKit/AppKit.h>

@interface AlignmentSample : NSView
+ (CGFloat)height;
@end
