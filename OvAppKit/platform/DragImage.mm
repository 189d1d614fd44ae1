#include "platform/DragImage.h"

@interface _OvOffscreenView : NSView {
  BOOL _flipped;
}
- (id)initWithSize:(NSSize)size flipped:(BOOL)flag;
@end

@implementation _OvOffscreenView

- (id)initWithSize:(NSSize)size flipped:(BOOL)flag {
  self = [super initWithFrame:NSMakeRect(0, 0, size.width, size.height)];
  if (self != nil) _flipped = flag;
  return self;
}

- (BOOL)isFlipped {
  return _flipped;
}

@end

NSImage *OvImageDrawnByView(NSSize size, BOOL flipped, void (*draw)(void *context), void *context) {
  if (!(size.width > 0 && size.height > 0)) return nil;
  // Far from the screen, and never ordered in.
  NSWindow *window = [[NSWindow alloc]
      initWithContentRect:NSMakeRect(-20000, -20000, ceil(size.width), ceil(size.height))
                styleMask:NSBorderlessWindowMask
                  backing:NSBackingStoreBuffered
                    defer:NO];
  [window setReleasedWhenClosed:NO];
  [window setOpaque:NO];
  [window setBackgroundColor:[NSColor clearColor]];
  NSView *view = [[_OvOffscreenView alloc] initWithSize:size flipped:flipped];
  [window setContentView:view];
  const NSRect bounds = NSMakeRect(0, 0, size.width, size.height);

  [view lockFocus];
  [[NSColor clearColor] set];
  NSRectFillUsingOperation([view bounds], NSCompositeClear);
  draw(context);
  NSBitmapImageRep *pixels = [[NSBitmapImageRep alloc] initWithFocusedViewRect:bounds];
  [view unlockFocus];
  [pixels setSize:size];

  NSImage *image = [[[NSImage alloc] initWithSize:size] autorelease];
  [image addRepresentation:pixels];
  [pixels release];
  [view release];
  [window close];
  [window release];
  return image;
}
