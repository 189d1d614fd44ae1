#import <AppKit/AppKit.h>
@interface HXMatrixView : NSView
@end
