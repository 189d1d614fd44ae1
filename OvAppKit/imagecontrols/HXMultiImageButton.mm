#import <OvAppKit/HXImageControlConstants.h>
#import <OvAppKit/HXMultiImageButton.h>
#import <OvAppKit/NSImage+OvAppKit.h>

#include "platform/MenuPopUp.h"
#import "platform/NamedImages.h"
#include "platform/TrackingRects.h"
#include "support/HoverTracking.h"
#include "support/MouseEventCopy.h"
#import "support/PlaceWatch.h"

NSString *const HXMultiImageButtonDefaultImageKey = @"HXMultiImageButtonDefaultImage";
NSString *const HXMultiImageButtonAlternateImageKey = @"HXMultiImageButtonAlternateImage";
NSString *const HXMultiImageButtonMouseOverImageKey = @"HXMultiImageButtonMouseOverImage";
NSString *const HXMultiImageButtonDisabledImageKey = @"HXMultiImageButtonDisabledImage";

struct HXMultiImageButtonState {
  _OvPlaceWatch *watch = nil;
  NSView *superview = nil;  // the one that is observed; only compared
  bool showsMouseOver = false;
  bool pressed = false;
};

namespace {

// How far below the frame's origin the menu appears.
constexpr CGFloat kMenuDistance = 3;
// How long a key shows the button pressed, in seconds.
constexpr NSTimeInterval kPressedByKey = 0.1;

Class classOfCells = Nil;

// `look` finds the image of a name.
template <typename Look>
void takeImages(HXMultiImageCell *cell, NSString *prefix, Look look) {
  const struct {
    NSString *key;
    NSString *suffix;
  } images[] = {
      {HXMultiImageButtonDefaultImageKey, HXImageControlDefaultImageSuffix},
      {HXMultiImageButtonAlternateImageKey, HXImageControlAlternateImageSuffix},
      {HXMultiImageButtonMouseOverImageKey, HXImageControlMouseOverImageSuffix},
      {HXMultiImageButtonDisabledImageKey, HXImageControlDisabledImageSuffix},
  };
  for (const auto &each : images) {
    [cell registerImage:look([prefix stringByAppendingString:each.suffix]) forKey:each.key];
  }
}

bool isPressKey(NSEvent *event) {
  constexpr NSUInteger kCommands = NSCommandKeyMask | NSAlternateKeyMask | NSControlKeyMask;
  NSString *characters = [event characters];
  if ([characters length] != 1 || ([event modifierFlags] & kCommands) != 0) return false;
  switch ([characters characterAtIndex:0]) {
    case ' ':
    case NSCarriageReturnCharacter:
    case NSEnterCharacter:
      return true;
    default:
      return false;
  }
}

}  // namespace

@implementation HXMultiImageButton

+ (void)initialize {
  if (self == [HXMultiImageButton class]) [self setCellClass:[HXMultiImageCell class]];
}

// The platform has one class of cells for all controls.
+ (Class)cellClass {
  return classOfCells;
}

+ (void)setCellClass:(Class)cellClass {
  classOfCells = cellClass != Nil ? cellClass : [HXMultiImageCell class];
}

- (id)initWithFrame:(NSRect)frame {
  self = [super initWithFrame:frame];
  if (self == nil) return nil;
  HXMultiImageCell *cell = [self multiImageCell];
  if (cell != nil) {
    [self setImagesNamedWithPrefix:@"HXMultiImageButton"
                          inBundle:[NSBundle bundleForClass:[HXMultiImageButton class]]];
    [self _ovShow:HXMultiImageButtonDefaultImageKey];
    [cell setDrawsWhenDisabled:YES];
  }
  return self;
}

- (id)initWithCoder:(NSCoder *)coder {
  self = [super initWithCoder:coder];
  if (self == nil) return nil;
  HXMultiImageCell *cell = [self multiImageCell];
  NSImage *shown = [cell image];
  if (shown != nil && (shown == [cell imageForKey:HXMultiImageButtonAlternateImageKey] ||
                       shown == [cell imageForKey:HXMultiImageButtonMouseOverImageKey])) {
    [self _ovShowAtRest];
  }
  return self;
}

- (void)dealloc {
  [[NSNotificationCenter defaultCenter] removeObserver:self];
  [self _ovRemoveTrackingRect];
  if (_state != nullptr) {
    [_state->watch stop];
    [_state->watch release];
    delete _state;
  }
  [super dealloc];
}

- (HXMultiImageCell *)multiImageCell {
  id cell = [self cell];
  return [cell isKindOfClass:[HXMultiImageCell class]] ? cell : nil;
}

// MARK: Images

- (void)setImagesNamedWithPrefix:(NSString *)prefix {
  takeImages([self multiImageCell], prefix, [](NSString *name) { return OvImageNamed(name); });
}

- (void)setImagesNamedWithPrefix:(NSString *)prefix inBundle:(NSBundle *)bundle {
  takeImages([self multiImageCell], prefix,
             [=](NSString *name) { return [NSImage imageNamed:name inBundle:bundle]; });
}

- (void)setImage:(NSImage *)image {
  [[self multiImageCell] registerImage:image forKey:HXMultiImageButtonDefaultImageKey];
  [self _ovShow:HXMultiImageButtonDefaultImageKey];
}

- (void)setAlternateImage:(NSImage *)image {
  [[self multiImageCell] registerImage:image forKey:HXMultiImageButtonAlternateImageKey];
}

- (void)setMouseOverImage:(NSImage *)image {
  [[self multiImageCell] registerImage:image forKey:HXMultiImageButtonMouseOverImageKey];
}

- (void)setDisabledImage:(NSImage *)image {
  [[self multiImageCell] registerImage:image forKey:HXMultiImageButtonDisabledImageKey];
}

- (void)setEnabled:(BOOL)flag {
  [self _ovShow:flag ? HXMultiImageButtonDefaultImageKey : HXMultiImageButtonDisabledImageKey];
  [super setEnabled:flag];
}

// Not made by the initialisers: the platform's call methods that need it.
- (HXMultiImageButtonState *)_ovState {
  if (_state == nullptr) _state = new HXMultiImageButtonState;
  return _state;
}

- (void)_ovShow:(NSString *)key {
  HXMultiImageCell *cell = [self multiImageCell];
  if (cell == nil) return;
  HXMultiImageButtonState *state = [self _ovState];
  state->showsMouseOver = key == HXMultiImageButtonMouseOverImageKey;
  // From here on it is a change of place that takes it from under the mouse.
  if (state->showsMouseOver) [state->watch settle];
  [cell setImageWithKey:key];
  [self setNeedsDisplay:YES];
}

- (void)_ovShowAtRest {
  [self _ovShow:[self isEnabled] ? HXMultiImageButtonDefaultImageKey
                                 : HXMultiImageButtonDisabledImageKey];
}

// MARK: Tracking the mouse

- (void)setDelegate:(id)object {
  delegate = object;
}

- (id)delegate {
  return delegate;
}

- (void)setTrackingEnabled:(BOOL)flag {
  const BOOL tracks = flag != NO;
  if (tracks == _trackMouseMove) return;
  _trackMouseMove = tracks;
  if (tracks) {
    [self _ovStartTracking];
  } else {
    [self _ovStopTracking];
  }
}

- (BOOL)trackingEnabled {
  return _trackMouseMove;
}

- (void)_ovStartTracking {
  HXMultiImageButtonState *state = [self _ovState];
  [self _ovInstallTrackingRect];
  if (state->watch == nil) {
    state->watch = [[_OvPlaceWatch alloc] initWithView:self
                                                target:self
                                                action:@selector(_ovPlaceDidChange)];
  }
  [self setPostsFrameChangedNotifications:YES];
  [self _ovObserveFrameOf:self];
  [self _ovObserveSuperview];
}

- (void)_ovStopTracking {
  HXMultiImageButtonState *state = [self _ovState];
  [self setPostsFrameChangedNotifications:NO];
  [[self superview] setPostsFrameChangedNotifications:NO];
  [self _ovStopObservingFrameOf:self];
  [self _ovStopObservingFrameOf:state->superview];
  state->superview = nil;
  [state->watch stop];
  [state->watch release];
  state->watch = nil;
  [self _ovRemoveTrackingRect];
  // Nothing will tell that the mouse leaves.
  if (state->showsMouseOver) [self _ovShowAtRest];
}

- (void)_ovObserveFrameOf:(NSView *)view {
  [self _ovStopObservingFrameOf:view];
  [[NSNotificationCenter defaultCenter] addObserver:self
                                           selector:@selector(frameDidChange:)
                                               name:NSViewFrameDidChangeNotification
                                             object:view];
}

- (void)_ovStopObservingFrameOf:(NSView *)view {
  // No object would mean every view.
  if (view == nil) return;
  [[NSNotificationCenter defaultCenter] removeObserver:self
                                                  name:NSViewFrameDidChangeNotification
                                                object:view];
}

- (void)_ovObserveSuperview {
  HXMultiImageButtonState *state = [self _ovState];
  NSView *superview = [self superview];
  if (superview == state->superview) return;
  [self _ovStopObservingFrameOf:state->superview];
  state->superview = superview;
  if (superview == nil) return;
  [superview setPostsFrameChangedNotifications:YES];
  [self _ovObserveFrameOf:superview];
}

- (void)_ovInstallTrackingRect {
  [self _ovRemoveTrackingRect];
  _lastTrackingTag = [self addTrackingRect:[self bounds] owner:self userData:NULL assumeInside:YES];
}

- (void)_ovRemoveTrackingRect {
  if (_lastTrackingTag == 0) return;
  [self removeTrackingRect:static_cast<NSTrackingRectTag>(_lastTrackingTag)];
  _lastTrackingTag = 0;
}

// Also from inside mouseEntered: and mouseExited:, where the platform would go on with a freed
// one.
- (void)removeTrackingRect:(NSTrackingRectTag)tag {
  ov::TrackingRects(self).remove(tag);
}

- (void)frameDidChange:(NSNotification *)notification {
  (void)notification;
  [self _ovInstallTrackingRect];
}

// The mouse rests, and the button has moved.
- (void)_ovPlaceDidChange {
  if ([self _ovState]->pressed || ![self isEnabled]) return;
  const bool inside = ov::isMouseInside(self);
  if (inside == [self _ovState]->showsMouseOver) return;
  [self _ovShow:inside ? HXMultiImageButtonMouseOverImageKey : HXMultiImageButtonDefaultImageKey];
}

- (void)awakeFromNib {
  if ([NSControl instancesRespondToSelector:_cmd]) [super awakeFromNib];
  if (_trackMouseMove && _lastTrackingTag == 0) [self _ovStartTracking];
}

- (void)viewDidMoveToSuperview {
  [super viewDidMoveToSuperview];
  if (_trackMouseMove) [self _ovObserveSuperview];
}

- (void)viewWillMoveToWindow:(NSWindow *)window {
  [super viewWillMoveToWindow:window];
  [self _ovRemoveTrackingRect];
}

- (void)viewDidMoveToWindow {
  [super viewDidMoveToWindow];
  NSWindow *window = [self window];
  if (window == nil) {
    [self _ovShowAtRest];
    return;
  }
  if (!_trackMouseMove) return;
  [self _ovInstallTrackingRect];
  const NSPoint pointer = [[self superview] convertPoint:[window mouseLocationOutsideOfEventStream]
                                                fromView:nil];
  if ([self isEnabled] && NSPointInRect(pointer, [self frame])) {
    [self _ovShow:HXMultiImageButtonMouseOverImageKey];
  }
}

- (void)mouseEntered:(NSEvent *)event {
  // Whoever hears of it next may remove the button, and the platform is not done with it.
  [[self retain] autorelease];
  if ([self isEnabled]) [self _ovShow:HXMultiImageButtonMouseOverImageKey];
  [super mouseEntered:event];
}

- (void)mouseExited:(NSEvent *)event {
  [[self retain] autorelease];
  if ([self isEnabled]) [self _ovShow:HXMultiImageButtonDefaultImageKey];
  [super mouseExited:event];
}

// MARK: Clicks

- (void)mouseDown:(NSEvent *)event {
  if ([self multiImageCell] == nil) {
    [super mouseDown:event];
    return;
  }
  if (![self isEnabled]) return;
  // The action may be the end of the button.
  [[self retain] autorelease];
  HXMultiImageButtonState *state = [self _ovState];
  bool acts = false;
  bool hovers = false;
  @try {
    state->pressed = true;
    [self _ovShow:HXMultiImageButtonAlternateImageKey];
    if (NSMenu *menu = [self _ovMenu]) {
      const NSPoint pointer = [NSEvent mouseLocation];
      hovers = [self _ovContains:event];
      [self _ovPopUp:menu event:event];
      // The mouse may have gone anywhere in the menu.
      if (!NSEqualPoints(pointer, [NSEvent mouseLocation])) hovers = ov::isMouseInside(self);
    } else {
      acts = hovers = [self _ovTrackMouse];
    }
  } @finally {
    state->pressed = false;
  }
  [self _ovShowReleasedUnderMouse:hovers];
  if (acts && [self isEnabled]) [self sendAction:[self action] to:[self target]];
}

- (void)performClick:(id)sender {
  if ([self multiImageCell] == nil) {
    [super performClick:sender];
    return;
  }
  if (![self isEnabled]) return;
  [[self retain] autorelease];
  HXMultiImageButtonState *state = [self _ovState];
  const bool hovers = state->showsMouseOver;
  bool acts = false;
  @try {
    state->pressed = true;
    [self _ovShow:HXMultiImageButtonAlternateImageKey];
    if (NSMenu *menu = [self _ovMenu]) {
      [self _ovPopUp:menu event:[self _ovPress]];
    } else {
      acts = true;
      [self _ovStayPressed];
    }
  } @finally {
    state->pressed = false;
  }
  [self _ovShowReleasedUnderMouse:hovers];
  if (acts && [self isEnabled]) [self sendAction:[self action] to:[self target]];
}

- (void)_ovShowReleasedUnderMouse:(BOOL)flag {
  if (flag && _trackMouseMove && [self isEnabled]) {
    [self _ovShow:HXMultiImageButtonMouseOverImageKey];
  } else {
    [self _ovShowAtRest];
  }
}

- (BOOL)_ovContains:(NSEvent *)event {
  NSView *superview = [self superview];
  if (superview == nil) return NO;
  return NSPointInRect([superview convertPoint:[event locationInWindow] fromView:nil],
                       [self frame]);
}

// Until the mouse is released; answers whether that is inside.
- (BOOL)_ovTrackMouse {
  BOOL inside = YES;
  NSWindow *window = [[[self window] retain] autorelease];
  while (NSEvent *event =
             [window nextEventMatchingMask:NSLeftMouseUpMask | NSLeftMouseDraggedMask]) {
    const BOOL isInside = [self _ovContains:event];
    if ([event type] == NSLeftMouseUp) return isInside;
    if (isInside != inside && [self isEnabled]) {
      [self _ovShow:isInside ? HXMultiImageButtonAlternateImageKey
                             : HXMultiImageButtonDefaultImageKey];
    }
    inside = isInside;
  }
  return NO;
}

- (NSMenu *)_ovMenu {
  if (![delegate respondsToSelector:@selector(menuForPopUp:)]) return nil;
  return [delegate menuForPopUp:self];
}

- (void)_ovPopUp:(NSMenu *)menu event:(NSEvent *)event {
  NSView *view = nil;
  if ([delegate respondsToSelector:@selector(targetViewForPopUp:)]) {
    view = [delegate targetViewForPopUp:self];
  }
  NSPoint corner = [[self superview] convertPoint:[self frame].origin toView:nil];
  corner.y += [[[self window] contentView] isFlipped] ? kMenuDistance : -kMenuDistance;
  ov::popUpMenu(menu, ov::mouseEventLike(event, NSLeftMouseDown, corner), view != nil ? view : self,
                nil);
}

// MARK: The keyboard

- (void)keyDown:(NSEvent *)event {
  if ([self multiImageCell] != nil && [self isEnabled] && isPressKey(event)) {
    [self performClick:self];
  } else {
    [super keyDown:event];
  }
}

- (BOOL)becomeFirstResponder {
  if (![super becomeFirstResponder]) return NO;
  // A click shows by itself which button it is.
  [[self cell] setShowsFirstResponder:[[NSApp currentEvent] type] == NSKeyDown];
  [self setNeedsDisplay:YES];
  return YES;
}

- (BOOL)resignFirstResponder {
  if (![super resignFirstResponder]) return NO;
  [[self cell] setShowsFirstResponder:NO];
  [self setNeedsDisplay:YES];
  return YES;
}

// As if the mouse were pressed here.
- (NSEvent *)_ovPress {
  NSWindow *window = [self window];
  return [NSEvent mouseEventWithType:NSLeftMouseDown
                            location:[self convertPoint:NSZeroPoint toView:nil]
                       modifierFlags:0
                           timestamp:[[NSProcessInfo processInfo] systemUptime]
                        windowNumber:[window windowNumber]
                             context:[window graphicsContext]
                         eventNumber:0
                          clickCount:1
                            pressure:1];
}

// Long enough to be seen.
- (void)_ovStayPressed {
  if (![self canDraw]) return;
  [self displayIfNeeded];
  [[self window] flushWindow];
  [[NSRunLoop currentRunLoop] runUntilDate:[NSDate dateWithTimeIntervalSinceNow:kPressedByKey]];
}

@end
