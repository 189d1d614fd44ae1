#import <AppKit/AppKit.h>

/** The system font in the sizes of controls, which the platform decides. */
@interface NSFont (QEBasicExtensions)

+ (NSFont *)regularSystemFont;
+ (NSFont *)smallSystemFont;
+ (NSFont *)miniSystemFont;

@end
