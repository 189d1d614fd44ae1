#import "windows/DemonstrationWindow.h"

#import "shell/GalleryStyle.h"

// Arrows from the middle to the edges, and how large the content is.
@interface DemonstrationView : NSView
@end

@implementation DemonstrationView

- (BOOL)isOpaque {
  return YES;
}

- (void)drawRect:(NSRect)rect {
  (void)rect;
  const NSRect bounds = [self bounds];
  [GalleryPanelColor() set];
  NSRectFill(bounds);
  [GalleryColor(0x2F6FDE, 0.10) set];
  [GalleryRoundedPath(NSInsetRect(bounds, 10, 10), 6) fill];
  // It is resized about this corner.
  const NSRect corner = NSMakeRect(NSMaxX(bounds) - 21, NSMaxY(bounds) - 21, 8, 8);
  [GalleryAccentColor() set];
  [[NSBezierPath bezierPathWithOvalInRect:corner] fill];
  NSRect line = NSMakeRect(0, NSMidY(bounds), NSWidth(bounds), 18);
  GalleryDrawText(@"Move me with the buttons", line, GalleryFont(12), GalleryTextColor(),
                  NSCenterTextAlignment);
  line.origin.y -= 18;
  NSString *size = [NSString stringWithFormat:@"content %d × %d", static_cast<int>(NSWidth(bounds)),
                                              static_cast<int>(NSHeight(bounds))];
  GalleryDrawText(size, line, GalleryFont(11), GalleryQuietTextColor(), NSCenterTextAlignment);
}

@end

@interface DemonstrationToolbarItems : NSObject
@end

@implementation DemonstrationToolbarItems

static NSArray *identifiers() { return @[ @"Sun", @"Leaf", @"Sea" ]; }

- (NSArray *)toolbarDefaultItemIdentifiers:(NSToolbar *)toolbar {
  (void)toolbar;
  return identifiers();
}

- (NSArray *)toolbarAllowedItemIdentifiers:(NSToolbar *)toolbar {
  (void)toolbar;
  return identifiers();
}

static NSImage *disc(unsigned color) {
  NSImage *image = [[[NSImage alloc] initWithSize:NSMakeSize(24, 24)] autorelease];
  [image lockFocus];
  [GalleryColor(color) set];
  [[NSBezierPath bezierPathWithOvalInRect:NSMakeRect(3, 3, 18, 18)] fill];
  [image unlockFocus];
  return image;
}

- (NSToolbarItem *)toolbar:(NSToolbar *)toolbar
        itemForItemIdentifier:(NSString *)identifier
    willBeInsertedIntoToolbar:(BOOL)flag {
  (void)toolbar, (void)flag;
  static const unsigned colors[] = {0xE3A008, 0x3F9142, 0x2F6FDE};
  const NSUInteger index = [identifiers() indexOfObject:identifier];
  if (index == NSNotFound) return nil;
  NSToolbarItem *item = [[[NSToolbarItem alloc] initWithItemIdentifier:identifier] autorelease];
  [item setLabel:identifier];
  [item setImage:disc(colors[index])];
  return item;
}

@end

NSWindow *MakeDemonstrationWindow() {
  static DemonstrationToolbarItems *items = [[DemonstrationToolbarItems alloc] init];
  NSWindow *window = [[[NSWindow alloc] initWithContentRect:NSMakeRect(0, 0, 240, 120)
                                                  styleMask:NSTitledWindowMask
                                                    backing:NSBackingStoreBuffered
                                                      defer:NO] autorelease];
  [window setReleasedWhenClosed:NO];
  [window setTitle:@"Demonstration"];
  [window setLevel:NSFloatingWindowLevel];
  [window setContentView:[[[DemonstrationView alloc] initWithFrame:NSZeroRect] autorelease]];
  NSToolbar *toolbar = [[[NSToolbar alloc] initWithIdentifier:@"GalleryDemonstration"] autorelease];
  [toolbar setDelegate:static_cast<id>(items)];
  [window setToolbar:toolbar];
  [toolbar setVisible:YES];
  return window;
}
