#import <AppKit/AppKit.h>

/** Owns a view that is loaded from an interface file of the main bundle when it is first
    asked for. The file's owner is the controller, and its outlet `view` is connected to the
    view.

      HXViewController *details = [[HXViewController alloc] initWithViewNibName:@"Details"];
      [[window contentView] addSubview:[details view]];

    The controller owns the top-level objects of the file and releases each of them once when
    it is deallocated; a view that is in a window then lives on there. */
@interface HXViewController : NSObject {
  IBOutlet NSView *view;
  NSString *_nibName;
  BOOL _nibLoaded;
  NSArray *_nibTopLevelObjects;
}

/** Loads nothing yet. The name, without an extension, is retained. */
- (id)initWithViewNibName:(NSString *)name;

/** The view, loaded on the first call. nil when the file is missing, cannot be loaded, or
    leaves the outlet unconnected; it is not tried again.

    A failure is logged once: "Nib not found named: %d" or "Failed to load nib named: %d",
    where the number is the address of the name, not the name; this is deliberate. */
- (NSView *)view;

@end
