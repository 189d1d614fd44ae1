#import <OvAppKit/OvCollapsingView.h>
#import <OvAppKit/OvTextField.h>
#import <OvAppKit/OvTextFieldCell.h>

#import "split/OvCollapsingView+Private.h"
#include "support/DelegateSubscription.h"
#include "support/Retained.h"

NSString *const OvCollapsingViewWillCollapseNotification =
    @"OvCollapsingViewWillCollapseNotification";
NSString *const OvCollapsingViewDidCollapseNotification =
    @"OvCollapsingViewDidCollapseNotification";
NSString *const OvCollapsingViewWillExpandNotification = @"OvCollapsingViewWillExpandNotification";
NSString *const OvCollapsingViewDidExpandNotification = @"OvCollapsingViewDidExpandNotification";

static const ov::DelegateEvent kEvents[] = {
    {&OvCollapsingViewWillCollapseNotification, "collapsingViewWillCollapse:"},
    {&OvCollapsingViewDidCollapseNotification, "collapsingViewDidCollapse:"},
    {&OvCollapsingViewWillExpandNotification, "collapsingViewWillExpand:"},
    {&OvCollapsingViewDidExpandNotification, "collapsingViewDidExpand:"},
};

static NSString *const OvTitleKey = @"OvTitle";
static NSString *const OvHeadlineKey = @"OvHeadline";
static NSString *const OvLockedKey = @"OvLocked";
static NSString *const OvDisclosureKey = @"OvDisclosure";
static NSString *const OvHeaderKey = @"OvHeader";
static NSString *const OvContentViewKey = @"OvContentView";
static NSString *const OvDelegateKey = @"OvDelegate";

@implementation OvCollapsingView

- (id)initWithFrame:(NSRect)frame {
  return [self initWithFrame:frame size:0];
}

- (id)initWithFrame:(NSRect)frame size:(int)boxSize {
  self = [super initWithFrame:frame];
  if (self != nil) [self _setupWithSize:boxSize];
  return self;
}

- (void)_setupWithSize:(int)boxSize {
  if (_state == nullptr) _state = new OvCollapsingViewState;
  [self _setBoxSize:boxSize];
  _collapsed = NO;
  _reversedFrameSize = NSMakeSize(NSWidth([self frame]), [self headerHeight]);
  [self _addInternalControls];
  [self setContentView:[self defaultContentView]];
}

- (void)dealloc {
  [self setDelegate:nil];
  // They may live on with others.
  [_disclosure setTarget:nil];
  [self _ovReleaseContentLayout];
  [_disclosure release];
  [_header release];
  [_title release];
  [_headline release];
  [_contentView release];
  delete _state;
  [super dealloc];
}

- (NSView *)defaultContentView {
  return nil;
}

- (BOOL)isFlipped {
  return YES;
}

#pragma mark Header

- (void)setTitle:(NSString *)title {
  if (title == _title) return;
  OvReplaceRetained(&_title, title);
  [self refresh];
}

- (NSString *)title {
  return _title;
}

- (void)setHeadline:(NSString *)headline {
  if (headline == _headline) return;
  OvReplaceRetained(&_headline, headline);
  [self refresh];
}

- (NSString *)headline {
  return _headline;
}

- (void)refresh {
  [self _updateUI];
}

- (void)_updateUI {
  NSString *text = _title ?: @"";
  if (_collapsed && [_headline length] > 0) {
    text = [NSString stringWithFormat:@"%@:%@", text, _headline];
  }
  [_header setStringValue:text];
}

- (NSButton *)discrosure {
  return _disclosure;
}

- (OvTextField *)header {
  return _header;
}

- (void)setHeaderEmboss:(BOOL)flag {
  [_header setEmboss:flag];
}

- (BOOL)isHeaderEmboss {
  return [_header isEmboss];
}

#pragma mark Tool tips and menu

- (void)setDisclosureToolTip:(NSString *)string {
  [_disclosure setToolTip:string];
}

- (NSString *)disclosureToolTip {
  return [_disclosure toolTip];
}

- (void)setHeaderToolTip:(NSString *)string {
  [_header setToolTip:string];
}

- (NSString *)headerToolTip {
  return [_header toolTip];
}

- (void)setContentViewToolTip:(NSString *)string {
  [_contentView setToolTip:string];
}

- (NSString *)contentViewToolTip {
  return [_contentView toolTip];
}

- (void)setMenu:(NSMenu *)menu {
  [super setMenu:menu];
  [_disclosure setMenu:menu];
  [_header setMenu:menu];
  [_contentView setMenu:menu];
}

#pragma mark Folding

- (void)setCollapsed:(BOOL)flag {
  const BOOL collapsed = flag ? YES : NO;
  if (collapsed == _collapsed) return;
  // Those who hear of it may remove the view.
  const auto kept = ov::retain(self);
  NSNotificationCenter *center = [NSNotificationCenter defaultCenter];
  _collapsed = collapsed;
  [center postNotificationName:collapsed ? OvCollapsingViewWillCollapseNotification
                                         : OvCollapsingViewWillExpandNotification
                        object:self];
  const NSRect before = [self frame];
  const NSSize size = NSMakeSize(NSWidth(before), _reversedFrameSize.height);
  _reversedFrameSize = before.size;
  if (collapsed) [self _ovTakeKeyboardFromContent];
  [self _ovChangeToSize:size];
  // The platform redraws neither what a smaller view uncovers nor what it stood on.
  [[self superview] setNeedsDisplayInRect:NSUnionRect(before, [self frame])];
  [_disclosure setState:_collapsed ? NSOffState : NSOnState];
  [self _updateUI];
  [center postNotificationName:collapsed ? OvCollapsingViewDidCollapseNotification
                                         : OvCollapsingViewDidExpandNotification
                        object:self];
}

- (BOOL)isCollapsed {
  return _collapsed;
}

// What is out of sight must not be typed into.
- (void)_ovTakeKeyboardFromContent {
  NSWindow *window = [self window];
  id responder = [window firstResponder];
  // A field that is being edited is represented by the window's editor, which is inside it.
  if (![responder isKindOfClass:[NSView class]] || _contentView == nil ||
      ![responder isDescendantOf:_contentView]) {
    return;
  }
  if (![_disclosure acceptsFirstResponder] || ![window makeFirstResponder:_disclosure]) {
    [window makeFirstResponder:nil];
  }
}

- (void)setLocked:(BOOL)flag {
  const BOOL locked = flag ? YES : NO;
  if (locked == _locked) return;
  _locked = locked;
  [_disclosure setEnabled:!locked];
}

- (BOOL)isLocked {
  return _locked;
}

- (void)setReversedFrameSize:(NSSize)size {
  _reversedFrameSize = size;
}

- (NSSize)reversedFrameSize {
  return _reversedFrameSize;
}

- (void)_ovToggle {
  if (_locked) return;
  const auto kept = ov::retain(self);
  [self setCollapsed:!_collapsed];
  [self refresh];
}

- (void)_toggleContentViewShown:(id)sender {
  (void)sender;
  [self _ovToggle];
}

- (void)mouseDown:(NSEvent *)event {
  const NSPoint point = [self convertPoint:[event locationInWindow] fromView:nil];
  NSRect header = [self bounds];
  header.size.height = [self headerHeight];
  if (NSPointInRect(point, header)) [self _ovToggle];
}

#pragma mark Box size

- (int)boxSize {
  return _boxSize;
}

- (void)_setBoxSize:(int)boxSize {
  _boxSize = boxSize;
}

- (float)headerHeight {
  if (_boxSize == 1) return 17;
  return _boxSize == 2 ? 14 : 23;
}

- (float)fontSize {
  if (_boxSize == 1) return 11;
  return _boxSize == 2 ? 9 : 13;
}

#pragma mark Delegate

- (void)setDelegate:(id)delegate {
  ov::unsubscribeDelegate(_delegate, self, kEvents);
  _delegate = delegate;
  ov::subscribeDelegate(_delegate, self, kEvents);
}

- (id)delegate {
  return _delegate;
}

#pragma mark Archiving

+ (void)initialize {
  // Sequential archives of version 0 hold a plain view.
  if (self == [OvCollapsingView class]) [self setVersion:1];
}

- (id)initWithCoder:(NSCoder *)coder {
  return [self initWithCoder:coder size:0];
}

- (id)initWithCoder:(NSCoder *)coder size:(int)boxSize {
  self = [super initWithCoder:coder];
  if (self == nil) return nil;
  [self _setupWithSize:boxSize];
  NSButton *oldButton = nil;
  OvTextField *oldHeader = nil;
  NSView *content = nil;
  id delegate = nil;
  BOOL locked = NO;
  if ([coder allowsKeyedCoding]) {
    [self setTitle:[coder decodeObjectForKey:OvTitleKey]];
    [self setHeadline:[coder decodeObjectForKey:OvHeadlineKey]];
    locked = [coder decodeBoolForKey:OvLockedKey];
    oldButton = [coder decodeObjectForKey:OvDisclosureKey];
    oldHeader = [coder decodeObjectForKey:OvHeaderKey];
    content = [coder decodeObjectForKey:OvContentViewKey];
    delegate = [coder decodeObjectForKey:OvDelegateKey];
  } else if ([coder versionForClassName:@"OvCollapsingView"] == 1) {
    [self setTitle:[coder decodeObject]];
    [self setHeadline:[coder decodeObject]];
    [coder decodeValueOfObjCType:@encode(BOOL) at:&locked];
    oldButton = [coder decodeObject];
    oldHeader = [coder decodeObject];
    content = [coder decodeObject];
    delegate = [coder decodeObject];
  }
  // It has new ones.
  [oldButton removeFromSuperview];
  [oldHeader removeFromSuperview];
  if (content != nil) [self setContentView:content];
  [self setLocked:locked];
  [self setDelegate:delegate];
  return self;
}

- (void)encodeWithCoder:(NSCoder *)coder {
  const NSSize frameSize = _frame.size;
  const NSSize boundsSize = _bounds.size;
  if (_collapsed) {
    [self _ovShowContentLayout:YES];
    _frame.size.height = _bounds.size.height = _reversedFrameSize.height;
  }
  @try {
    [super encodeWithCoder:coder];
  } @finally {
    _frame.size = frameSize;
    _bounds.size = boundsSize;
    if (_collapsed) [self _ovShowContentLayout:NO];
  }
  if ([coder allowsKeyedCoding]) {
    [coder encodeObject:_title forKey:OvTitleKey];
    [coder encodeObject:_headline forKey:OvHeadlineKey];
    [coder encodeBool:_locked forKey:OvLockedKey];
    [coder encodeObject:_disclosure forKey:OvDisclosureKey];
    [coder encodeObject:_header forKey:OvHeaderKey];
    [coder encodeObject:_contentView forKey:OvContentViewKey];
    [coder encodeConditionalObject:_delegate forKey:OvDelegateKey];
  } else {
    [coder encodeObject:_title];
    [coder encodeObject:_headline];
    [coder encodeValueOfObjCType:@encode(BOOL) at:&_locked];
    [coder encodeObject:_disclosure];
    [coder encodeObject:_header];
    [coder encodeObject:_contentView];
    [coder encodeConditionalObject:_delegate];
  }
}

@end
