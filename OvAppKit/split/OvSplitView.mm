#import <OvAppKit/OvSplitView.h>
#import <OvFoundation/OvSystemVersion.h>

#import "split/OvSplitView+Private.h"
#include "support/DelegateSubscription.h"
#include "support/Retained.h"

NSString *const OvSplitViewSubviewWillExpandNotification =
    @"OvSplitViewSubviewWillExpandNotification";
NSString *const OvSplitViewSubviewDidExpandNotification =
    @"OvSplitViewSubviewDidExpandNotification";
NSString *const OvSplitViewSubviewWillCollapseNotification =
    @"OvSplitViewSubviewWillCollapseNotification";
NSString *const OvSplitViewSubviewDidCollapseNotification =
    @"OvSplitViewSubviewDidCollapseNotification";

static const ov::DelegateEvent kEvents[] = {
    {&OvSplitViewSubviewWillExpandNotification, "splitViewWillExpandSubview:"},
    {&OvSplitViewSubviewDidExpandNotification, "splitViewDidExpandSubview:"},
    {&OvSplitViewSubviewWillCollapseNotification, "splitViewWillCollapseSubview:"},
    {&OvSplitViewSubviewDidCollapseNotification, "splitViewDidCollapseSubview:"},
};
static const ov::DelegateEvent kPlatformEvents[] = {
    {&NSSplitViewWillResizeSubviewsNotification, "splitViewWillResizeSubviews:"},
    {&NSSplitViewDidResizeSubviewsNotification, "splitViewDidResizeSubviews:"},
};

@implementation OvSplitView

- (id)initWithFrame:(NSRect)frame {
  self = [super initWithFrame:frame];
  if (self != nil) [self _setup];
  return self;
}

- (id)initWithCoder:(NSCoder *)coder {
  self = [super initWithCoder:coder];
  if (self != nil) [self _setup];
  return self;
}

- (void)_setup {
  if (_state == nullptr) _state = new OvSplitViewState(self);
  const auto dividers = ov::adopt([[NSMutableArray alloc] init]);
  OvReplaceRetained(&_dividers, dividers.get());
  const auto collapsed = ov::adopt([[NSMutableArray alloc] init]);
  OvReplaceRetained(&_collapsedSubviews, collapsed.get());
  [self _setupCursors];
  [self setVertical:[self isVertical]];
}

- (void)awakeFromNib {
  [self _updateDividers];
}

- (void)dealloc {
  [self setDelegate:nil];
  [self setLayoutAutosaveName:@""];
  [_dividers release];
  [_collapsedSubviews release];
  [_verticalCursor release];
  [_horizontalCursor release];
  [_tooltip release];
  _dividers = nil;
  _collapsedSubviews = nil;
  delete _state;
  _state = nullptr;
  [super dealloc];
}

#pragma mark Cursors

- (void)_setupCursors {
  [self _ovSetupCursorsForSystemVersion:OvGestaltOSVersion()];
}

// The cursor of that name among the library's resources.
static ov::Retained<NSCursor *> ownCursor(NSString *name) {
  NSBundle *bundle = [NSBundle bundleForClass:[OvSplitView class]];
  NSString *path = [bundle pathForResource:name ofType:@"tiff"];
  const auto image = ov::adopt([[NSImage alloc] initWithContentsOfFile:path]);
  return ov::adopt([[NSCursor alloc] initWithImage:image.get() hotSpot:NSMakePoint(7, 7)]);
}

- (void)_ovSetupCursorsForSystemVersion:(int)version {
  if (version < 0x1030) {  // without shared resize cursors
    OvReplaceRetained(&_verticalCursor, ownCursor(@"OvResizeLeftRightCursor").get());
    OvReplaceRetained(&_horizontalCursor, ownCursor(@"OvResizeUpDownCursor").get());
  } else {
    OvReplaceRetained(&_verticalCursor, [NSCursor resizeLeftRightCursor]);
    OvReplaceRetained(&_horizontalCursor, [NSCursor resizeUpDownCursor]);
  }
}

- (void)setVertical:(BOOL)flag {
  [super setVertical:flag ? YES : NO];
  // The superclass's initialiser comes here before there are cursors.
  if (!_mouseLocked) _currentCursor = flag ? _verticalCursor : _horizontalCursor;
  [self _ovCursorRectsDidChange];
}

- (BOOL)isVertical {
  return [super isVertical];
}

- (void)setMouseLocked:(BOOL)flag {
  const BOOL locked = flag ? YES : NO;
  if (locked == _mouseLocked) return;
  _mouseLocked = locked;
  if (locked) {
    _currentCursor = [NSCursor arrowCursor];
  } else {
    [self setVertical:[self isVertical]];
  }
  [self _ovCursorRectsDidChange];
  [self setNeedsDisplay:YES];
}

- (BOOL)mouseLocked {
  return _mouseLocked;
}

#pragma mark Tool tip

- (void)setToolTip:(NSString *)string {
  const bool had = _tooltip != nil;
  OvReplaceRetained(&_tooltip, string);
  if (_state != nullptr && had != (string != nil)) [self _resetToolTipRect];
}

- (NSString *)toolTip {
  return _tooltip;
}

#pragma mark Delegate

// Not through the superclass, which would take the delegate off whatever it observes of this
// view by its own wish, too.
- (void)setDelegate:(id)anObject {
  const bool wasOwnDelegate = _delegate == self;
  ov::unsubscribeDelegate(_delegate, self, kEvents);
  ov::unsubscribeDelegate(_delegate, self, kPlatformEvents);
  _delegate = anObject;
  ov::subscribeDelegate(_delegate, self, kPlatformEvents);
  ov::subscribeDelegate(_delegate, self, kEvents);
  if (wasOwnDelegate && _autosaveName != nil) [self _ovObserveOwnResizes];
}

- (id)delegate {
  return _delegate;
}

#pragma mark Drawing

// The platform's own would look for dividers beside parked panes.
- (void)drawRect:(NSRect)rect {
  for (NSValue *divider in _dividers) {
    const NSRect frame = [divider rectValue];
    if (NSIntersectsRect(frame, rect)) [self drawDividerInRect:frame];
  }
}

// The dividers alone do not fill the view, with or without a background colour.
- (BOOL)isOpaque {
  return NO;
}

// Panes that came or went without a layout: their dividers are in place once they are seen.
- (void)displayRectIgnoringOpacity:(NSRect)rect inContext:(NSGraphicsContext *)context {
  const NSUInteger paneCount = [[self subviews] count];
  if (paneCount > 0 && [_dividers count] != paneCount - 1) [self _updateDividers];
  [super displayRectIgnoringOpacity:rect inContext:context];
}

@end
