#import <AppKit/AppKit.h>

/** Where named images come from. `imageNamed:inBundle:` and `imageNamed:inBundleForClass:` of
    NSImage ask the shared manager, and with them every control that loads its images by name. A
    host that wants other images, a theme for example, installs a manager of its own:

      @interface DarkImages : HXImageManager
      @end
      @implementation DarkImages
      - (NSImage *)imageNamed:(NSString *)name {
        NSImage *dark = [super imageNamed:[@"dark_" stringByAppendingString:name]];
        return dark != nil ? dark : [super imageNamed:name];
      }
      @end

      [HXImageManager setSharedImageManager:[[[DarkImages alloc] init] autorelease]];

    For the main thread. */
@interface HXImageManager : NSObject

/** The manager that is asked. Made when there is none, of the class that receives the
    message. */
+ (id)sharedImageManager;

/** Replaces it; the new one is retained, the former one released. nil: the next
    `sharedImageManager` makes another. */
+ (void)setSharedImageManager:(HXImageManager *)manager;

/** `+[NSImage imageNamed:]`: an image that has this name, or one of the application's own bundle,
    which has it from then on. nil for a name that is nil, empty or no file name, and where the
    application's file is no picture or one that `-[NSBitmapImageRep initWithContentsOfFile:]`
    refuses as unsafe. */
- (NSImage *)imageNamed:(NSString *)name;

/** The image that the receiver's `imageNamed:` answers, if it is valid: who overrides that one
    changes this one, too. Otherwise an image that refers to the bundle's file of that name, which
    `pathForImageResource:` finds; it gets the name, also where an image that is not valid had it
    so far, and lives as long as it has it. nil where there is no such file, and for the names and
    files that `imageNamed:` refuses. */
- (NSImage *)imageNamed:(NSString *)name inBundle:(NSBundle *)bundle;

@end
