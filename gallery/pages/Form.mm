// A form whose fields judge what is typed, and a log of everything that they announce.

#import <OvAppKit/OvAppKit.h>

#include <algorithm>

#import "forms/EventLog.h"
#import "forms/FormEvents.h"
#import "forms/FormField.h"
#import "forms/FormFields.h"
#import "shell/GalleryControls.h"
#import "shell/GalleryPage.h"
#import "shell/GalleryStyle.h"

static const CGFloat kHeaderHeight = 38;
static const CGFloat kTop = 10;
static const CGFloat kRowGap = 5;
static const CGFloat kLogWidth = 360;

@interface FormPage : GalleryPage {
  OvTextField *_header;
  NSArray *_fields;  // in the order of the key view loop
  NSButton *_fill;
  NSButton *_empty;
  EventLog *_log;
  FormEvents *_events;
}
- (void)layOut;
@end

@interface FormView : GalleryBox {
 @public
  FormPage *_page;
}
@end

@implementation FormView

- (void)resizeSubviewsWithOldSize:(NSSize)oldSize {
  (void)oldSize;
  [_page layOut];
}

- (void)drawRect:(NSRect)rect {
  [super drawRect:rect];
  const NSRect bounds = [self bounds];
  [GalleryColor(0xDFE5EE) set];
  NSRectFill(NSMakeRect(0, 0, NSWidth(bounds) - kLogWidth, kHeaderHeight));
  [GalleryLineColor() set];
  NSRectFill(NSMakeRect(0, kHeaderHeight - 1, NSWidth(bounds) - kLogWidth, 1));
  NSRectFill(NSMakeRect(NSWidth(bounds) - kLogWidth - 1, 0, 1, NSHeight(bounds)));
}

@end

@implementation FormPage

+ (void)load {
  [GalleryPage addPageClass:self];
}

+ (int)position {
  return 66;
}

+ (NSString *)name {
  return @"form";
}

+ (NSString *)title {
  return @"Validated form";
}

+ (NSString *)summary {
  return @"Fields that judge what is typed: refuse it, cut it, mark it, or move on when full.";
}

- (void)dealloc {
  [_events release];
  static_cast<FormView *>(_view)->_page = nil;
  [_fields release];
  [super dealloc];
}

- (NSView *)makeView {
  FormView *view = static_cast<FormView *>([FormView boxWithFill:GalleryPanelColor() border:nil]);
  view->_page = self;
  _header = FormMakeHeader(@"Membership");
  [view addSubview:_header];
  _fields = [FormMakeFields() retain];
  for (FormField *field in _fields) [view addSubview:field];
  _fill = [self buttonWithTitle:@"Fill with example" action:@selector(fill:)];
  _empty = [self buttonWithTitle:@"Empty" action:@selector(empty:)];
  [view addSubview:_fill];
  [view addSubview:_empty];
  _log = [[[EventLog alloc] initWithTitle:@"Notifications"] autorelease];
  [view addSubview:_log];
  [self linkKeyViews];
  _events = [[FormEvents alloc]
      initWithFields:_fields
            happened:[self](NSString *name, FormField *field) { [self field:field posted:name]; }];
  return view;
}

- (NSButton *)buttonWithTitle:(NSString *)title action:(SEL)action {
  NSButton *button = [[[GalleryButton alloc] initWithFrame:NSZeroRect] autorelease];
  [button setTitle:title];
  [button setFont:GalleryFont(12)];
  [button setTarget:self];
  [button setAction:action];
  return button;
}

- (void)linkKeyViews {
  NSView *last = nil;
  for (FormField *field in _fields) {
    [last setNextKeyView:[field control]];
    last = [field control];
  }
  [last setNextKeyView:_fill];
  [_fill setNextKeyView:_empty];
  [_empty setNextKeyView:[self keyView]];
}

- (NSView *)keyView {
  return [[_fields objectAtIndex:0] control];
}

// Two columns of fields, column by column, the log at the right, the buttons below.
- (void)layOut {
  const NSSize size = [_view bounds].size;
  const CGFloat width = std::max<CGFloat>(0, size.width - kLogWidth - 1);
  const CGFloat columnWidth = floor((width - 3 * GalleryLargeMargin) / 2);
  [_header setFrame:NSMakeRect(GalleryLargeMargin - 2, 7, width - 2 * GalleryLargeMargin, 26)];
  const NSUInteger rows = ([_fields count] + 1) / 2;
  // A window that is higher spreads the fields a little.
  const CGFloat room = size.height - kHeaderHeight - kTop - rows * [FormField height];
  const CGFloat gap = std::clamp(floor((room - GallerySmallMargin) / (rows - 1)), kRowGap,
                                 CGFloat(GalleryLargeMargin));
  const CGFloat top = kHeaderHeight + std::min(CGFloat(GalleryLargeMargin), kTop + gap - kRowGap);
  NSUInteger index = 0;
  CGFloat x = 0, y = 0;
  for (FormField *field in _fields) {
    x = GalleryLargeMargin + (index / rows) * (columnWidth + GalleryLargeMargin);
    y = top + (index % rows) * ([FormField height] + gap);
    [field setFrame:NSMakeRect(x, y, columnWidth, [FormField height])];
    ++index;
  }
  // In the free place at the end, on the line of the field's frame beside it.
  const CGFloat buttonWidth = floor((columnWidth - GallerySmallMargin) / 2);
  y += [FormField height] + gap + 17;
  [_fill setFrame:NSMakeRect(x, y, buttonWidth, 27)];
  [_empty setFrame:NSMakeRect(x + buttonWidth + GallerySmallMargin, y, buttonWidth, 27)];
  [_log setFrame:NSMakeRect(size.width - kLogWidth, 0, kLogWidth, size.height)];
}

- (void)didShow {
  // Without one the platform would make a loop of its own when the window gets the keyboard.
  [[_view window] setInitialFirstResponder:[self keyView]];
  [self describe];
}

- (void)willHide {
  [[_view window] setInitialFirstResponder:nil];
}

#pragma mark What the fields announce

- (void)field:(FormField *)field posted:(NSString *)name {
  NSColor *color = nil;
  if ([name hasSuffix:@"DidBecomeInvalidNotification"]) color = GalleryWarningColor();
  if ([name hasSuffix:@"DidBecomeValidNotification"]) color = GalleryColor(0x147D3F);
  if ([name isEqual:OvVPFormatterBufferIsFull]) color = GalleryAccentColor();
  if ([name hasSuffix:@"Notification"]) {
    name = [name substringToIndex:[name length] - [@"Notification" length]];
  }
  [_log addEvent:name from:[field title] color:color];
  [self describeSoon];
}

// The keyboard is on its way while the notifications come.
- (void)describeSoon {
  [NSObject cancelPreviousPerformRequestsWithTarget:self selector:@selector(describe) object:nil];
  [self performSelector:@selector(describe)
             withObject:nil
             afterDelay:0
                inModes:@[ NSDefaultRunLoopMode, NSEventTrackingRunLoopMode ]];
}

- (void)describe {
  NSString *warning = nil;
  for (FormField *field in _fields) {
    [field updateFocus];
    if (NSString *reason = FormUpdateHint(field)) warning = reason;
  }
  [self setMessage:warning
                       ?: @"Tab goes through the form; fields that are full move on by themselves."
           warning:warning != nil];
}

- (void)fill:(id)sender {
  (void)sender;
  for (FormField *field in _fields) [[field control] setStringValue:FormExample([field name])];
  [self describeSoon];
}

- (void)empty:(id)sender {
  (void)sender;
  for (FormField *field in _fields) [[field control] setStringValue:@""];
  [self describeSoon];
}

- (NSArray *)statusLines {
  NSMutableArray *lines = [NSMutableArray array];
  NSString *focus = @"";
  for (FormField *field in _fields) {
    [lines addObjectsFromArray:[field statusLines]];
    if ([field isFocused]) focus = [field name];
  }
  const id responder = [[_view window] firstResponder];
  if (responder == _fill) focus = @"fill";
  if (responder == _empty) focus = @"empty";
  [lines addObject:[@"focus=" stringByAppendingString:focus]];
  [lines addObject:GalleryStatusLine(@"rect.fill", _fill, [_fill bounds], @"")];
  [lines addObject:GalleryStatusLine(@"rect.empty", _empty, [_empty bounds], @"")];
  [lines addObjectsFromArray:[_log statusLines]];
  return lines;
}

@end
