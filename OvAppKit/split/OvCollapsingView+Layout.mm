// The folding view's header and content, and where they are.

#import <OvAppKit/OvCollapsingView.h>
#import <OvAppKit/OvTextField.h>

#import "platform/FinerImages.h"
#import "split/OvCollapsingView+Private.h"
#include "support/Methods.h"
#include "support/Retained.h"

static const CGFloat kTriangleX = 12;
static const CGFloat kTriangleSize = 11;
static const CGFloat kTitleX = 35;
static const CGFloat kTitleMargin = 12;

// The platform's buttons know Space alone.
@interface _OvDisclosureButton : NSButton
@end

@implementation _OvDisclosureButton

- (void)keyDown:(NSEvent *)event {
  NSString *characters = [event characters];
  const unichar key = [characters length] == 1 ? [characters characterAtIndex:0] : 0;
  if (key == NSCarriageReturnCharacter || key == NSEnterCharacter) {
    [self performClick:self];
  } else {
    [super keyDown:event];
  }
}

@end

// A picture of the library in two resolutions.
static NSImage *ownImage(NSString *name) {
  NSBundle *bundle = [NSBundle bundleForClass:[OvCollapsingView class]];
  NSString *path = [bundle pathForResource:name ofType:@"tiff"];
  if (path == nil) return nil;
  NSImage *image = [[[NSImage alloc] initWithContentsOfFile:path] autorelease];
  OvAddFinerRepresentation(image, path);
  return image;
}

// The platform's way to hide a view, whatever the view's class makes of hiding.
static void setHidden(NSView *view, BOOL flag) {
  const SEL selector = @selector(setHidden:);
  ov::asFunction<void(id, SEL, BOOL)>([NSView instanceMethodForSelector:selector])(view, selector,
                                                                                   flag);
}

static BOOL isHidden(NSView *view) {
  const SEL selector = @selector(isHidden);
  return ov::asFunction<BOOL(id, SEL)>([NSView instanceMethodForSelector:selector])(view, selector);
}

@implementation OvCollapsingView (OvCollapsingViewLayout)

#pragma mark Header

- (void)_addInternalControls {
  const CGFloat top = _boxSize == 0 ? 4 : 2;
  _disclosure = [[_OvDisclosureButton alloc]
      initWithFrame:NSMakeRect(kTriangleX, top, kTriangleSize, kTriangleSize)];
  [_disclosure setTitle:@""];
  [_disclosure setBezelStyle:NSShadowlessSquareBezelStyle];
  [_disclosure setImagePosition:NSImageOnly];
  [_disclosure setImage:ownImage(@"OvDisclosureRightNormal")];
  [_disclosure setAlternateImage:ownImage(@"OvDisclosureDownNormal")];
  [_disclosure setButtonType:NSToggleButton];
  [_disclosure setBordered:NO];
  [_disclosure setState:NSOnState];
  [_disclosure setTarget:self];
  [_disclosure setAction:@selector(_toggleContentViewShown:)];
  [self addSubview:_disclosure];

  _header = [[OvTextField alloc] initWithFrame:[self _ovHeaderFrame]];
  [_header setStringValue:@""];
  [_header setBordered:NO];
  [_header setEditable:NO];
  [_header setDrawsBackground:NO];
  [_header setAutoresizingMask:NSViewWidthSizable];
  [[_header cell] setFont:[NSFont systemFontOfSize:[self fontSize]]];
  [[_header cell] setWraps:NO];
  [self addSubview:_header];
}

- (void)_removeInternalControls {
  [_disclosure setTarget:nil];
  [_disclosure removeFromSuperview];
  [_header removeFromSuperview];
  [_disclosure release];
  [_header release];
  _disclosure = nil;
  _header = nil;
}

- (NSRect)_ovHeaderFrame {
  const CGFloat width = NSWidth([self bounds]) - kTitleX - kTitleMargin;
  return NSMakeRect(kTitleX, 0, MAX(0, width), [self headerHeight]);
}

#pragma mark Content

- (NSRect)_ovContentFrameOfHeight:(CGFloat)height {
  return NSMakeRect(0, [self headerHeight], NSWidth([self frame]), MAX(0, height));
}

// A view of no height would squeeze what is in it, and not all of it would come back.
- (void)_ovHoldContentLayout {
  if (_contentView == nil || _state->holdsContentLayout) return;
  _state->holdsContentLayout = true;
  _state->contentSize = [_contentView frame].size;
  _state->contentAutoresizes = [_contentView autoresizesSubviews];
  _state->contentHidden = isHidden(_contentView);
  [_contentView setAutoresizesSubviews:NO];
  setHidden(_contentView, YES);
}

- (void)_ovReleaseContentLayout {
  if (_state == nullptr || !_state->holdsContentLayout) return;
  _state->holdsContentLayout = false;
  [_contentView setAutoresizesSubviews:_state->contentAutoresizes];
  setHidden(_contentView, _state->contentHidden);
}

- (void)_ovShowContentLayout:(BOOL)flag {
  if (!_state->holdsContentLayout) return;
  [_contentView setAutoresizesSubviews:NO];
  [_contentView setFrameSize:flag ? _state->contentSize : [self visibleContentViewSize]];
  if (flag) [_contentView setAutoresizesSubviews:_state->contentAutoresizes];
  setHidden(_contentView, flag ? _state->contentHidden : YES);
}

- (void)_ovChangeToSize:(NSSize)size {
  if (_collapsed) [self _ovHoldContentLayout];
  [self setFrameSize:size];
  if (_collapsed || !_state->holdsContentLayout) return;
  const NSSize laidOutFor = _state->contentSize;
  [self _ovReleaseContentLayout];
  if (NSEqualSizes(laidOutFor, [_contentView frame].size)) return;
  [_contentView resizeSubviewsWithOldSize:laidOutFor];
  [_contentView setNeedsDisplay:YES];
}

#pragma mark Resizing

// Header and content are placed afresh: automatic resizing would keep the error that a view
// makes which was too small for a while.
- (void)resizeSubviewsWithOldSize:(NSSize)oldSize {
  const NSUInteger both = NSViewWidthSizable | NSViewHeightSizable;
  NSView *content = [_contentView autoresizingMask] == both ? _contentView : nil;
  [_header setAutoresizingMask:NSViewNotSizable];
  [content setAutoresizingMask:NSViewNotSizable];
  [super resizeSubviewsWithOldSize:oldSize];
  [_header setAutoresizingMask:NSViewWidthSizable];
  [content setAutoresizingMask:both];
  if (!NSEqualRects([_header frame], [self _ovHeaderFrame])) {
    [_header setFrame:[self _ovHeaderFrame]];
  }
  const NSRect frame = [self _ovContentFrameOfHeight:[self visibleContentViewSize].height];
  if (content != nil && !NSEqualRects([content frame], frame)) [content setFrame:frame];
}

@end

@implementation OvCollapsingView (OvCollapsingViewContent)

- (NSSize)visibleContentViewSize {
  const NSSize size = [self frame].size;
  return NSMakeSize(size.width, MAX(0, size.height - [self headerHeight]));
}

- (void)setContentView:(NSView *)view {
  if (view == _contentView) return;
  const auto kept = ov::retain(view);
  [self _ovReleaseContentLayout];
  if ([_contentView superview] == self) [_contentView removeFromSuperview];
  OvReplaceRetained(&_contentView, view);
  if (view == nil) return;
  // It is fitted to the unfolded view, whatever the state.
  const CGFloat height = _collapsed ? _reversedFrameSize.height : NSHeight([self frame]);
  [view setFrame:[self _ovContentFrameOfHeight:height - [self headerHeight]]];
  [view setAutoresizingMask:NSViewWidthSizable | NSViewHeightSizable];
  [self addSubview:view];
  if (!_collapsed) return;
  [self _ovHoldContentLayout];
  [view setFrame:[self _ovContentFrameOfHeight:0]];
}

- (NSView *)contentView {
  return _contentView;
}

@end
