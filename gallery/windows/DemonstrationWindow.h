// The small window that the Windows page moves about: a toolbar and a picture of itself.
#import <AppKit/AppKit.h>

// Its toolbar is visible. The window floats, so that it stays in sight.
NSWindow *MakeDemonstrationWindow();
