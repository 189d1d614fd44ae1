#import "keys/KeyView.h"

#import "shell/GalleryStyle.h"

static NSString *nameOfKey(unichar key) {
  switch (key) {
    case NSUpArrowFunctionKey:
      return @"Up";
    case NSDownArrowFunctionKey:
      return @"Down";
    case NSLeftArrowFunctionKey:
      return @"Left";
    case NSRightArrowFunctionKey:
      return @"Right";
    case NSHomeFunctionKey:
      return @"Home";
    case NSEndFunctionKey:
      return @"End";
    case NSPageUpFunctionKey:
      return @"Page Up";
    case NSPageDownFunctionKey:
      return @"Page Down";
    case NSCarriageReturnCharacter:
      return @"Return";
    case NSEnterCharacter:
      return @"Enter";
    case NSDeleteCharacter:
      return @"Delete";
    case ' ':
      return @"Space";
    case '\t':
      return @"Tab";
    case '\033':
      return @"Escape";
    default:
      // Below and above: control characters, and the platform's own for function keys.
      if (key > ' ' && key < 0xD800) return [NSString stringWithCharacters:&key length:1];
      return [NSString stringWithFormat:@"U+%04X", static_cast<unsigned>(key)];
  }
}

@implementation KeyView

- (id)initWithChange:(std::function<void()>)changed {
  self = [super initWithFrame:NSZeroRect];
  if (!self) return nil;
  _intercepter = [[HXKeyEventIntercepter alloc] init];
  _changed = std::move(changed);
  _lastKey = @"";
  return self;
}

- (void)dealloc {
  [_intercepter release];
  [_lastKey release];
  [super dealloc];
}

- (HXKeyEventIntercepter *)intercepter {
  return _intercepter;
}

- (NSString *)lastKey {
  return _lastKey;
}

- (BOOL)lastWasProcessed {
  return _processed;
}

- (int)count {
  return _count;
}

- (BOOL)isFlipped {
  return YES;
}

- (BOOL)acceptsFirstResponder {
  return YES;
}

- (BOOL)becomeFirstResponder {
  [self setNeedsDisplay:YES];
  return YES;
}

- (BOOL)resignFirstResponder {
  [self setNeedsDisplay:YES];
  return YES;
}

- (void)mouseDown:(NSEvent *)event {
  (void)event;
  [[self window] makeFirstResponder:self];
}

- (void)keyDown:(NSEvent *)event {
  NSString *characters = [event charactersIgnoringModifiers];
  if ([characters length] == 0) return;
  [_lastKey autorelease];
  _lastKey = [nameOfKey([characters characterAtIndex:0]) copy];
  _processed = [_intercepter shouldProcessKeyDown:self event:event];
  ++_count;
  [self setNeedsDisplay:YES];
  _changed();
}

- (void)drawRect:(NSRect)rect {
  (void)rect;
  const BOOL focused = [[self window] firstResponder] == self;
  NSBezierPath *path = GalleryRoundedPath(NSInsetRect([self bounds], 1, 1), 8);
  [GalleryWindowColor() set];
  [path fill];
  [focused ? GalleryAccentColor() : GalleryColor(0xC3CAD6) set];
  [path setLineWidth:focused ? 2 : 1];
  [path stroke];
  const CGFloat middle = NSMidY([self bounds]), width = NSWidth([self bounds]);
  if (_count == 0) {
    GalleryDrawText(focused ? @"Press any key" : @"Click here, then press keys",
                    NSMakeRect(0, middle - 12, width, 24), GalleryFont(14), GalleryQuietTextColor(),
                    NSCenterTextAlignment);
    return;
  }
  GalleryDrawText(_lastKey, NSMakeRect(0, middle - 34, width, 36), GalleryBoldFont(26),
                  GalleryTextColor(), NSCenterTextAlignment);
  GalleryDrawText(_processed ? @"processed" : @"not processed",
                  NSMakeRect(0, middle + 10, width, 20), GalleryFont(12),
                  _processed ? GalleryColor(0x147D3F) : GalleryWarningColor(),
                  NSCenterTextAlignment);
}

@end
