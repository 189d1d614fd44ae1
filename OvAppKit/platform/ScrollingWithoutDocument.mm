// Scrolling a clip view that has no document asks nothing for a rectangle. On 32 bits the
// platform's compilers leave the stack wrong after such a message, and the program crashes: when a
// scroller is worked while there is no document, or none any more. Removable once the platform
// looks whether there is a document.

#import <AppKit/AppKit.h>

#include "support/Methods.h"

@interface NSClipView (OvPlatformScrolling)
- (void)_scrollToPoint:(NSPoint)point;
@end

// The platform's method by another name, and ours by the platform's, once exchanged.
@interface NSClipView (OvScrollingWithoutDocument)
- (void)_ovScrollToPoint:(NSPoint)point;
@end

@implementation NSClipView (OvScrollingWithoutDocument)

// There was nothing that could have scrolled.
- (void)_ovScrollToPoint:(NSPoint)point {
  if ([self documentView] != nil) [self _ovScrollToPoint:point];
}

@end

@interface _OvScrollingWithoutDocumentBridge : NSObject
@end

@implementation _OvScrollingWithoutDocumentBridge

+ (void)load {
  ov::exchangeMethods("NSClipView", @selector(_ovScrollToPoint:), @selector(_scrollToPoint:));
}

@end
