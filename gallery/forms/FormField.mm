#import "forms/FormField.h"

#import "shell/GalleryPage.h"
#import "shell/GalleryStyle.h"

static const CGFloat kTitleHeight = 17;
static const CGFloat kBoxHeight = 27;
static const CGFloat kHintHeight = 16;
static const CGFloat kTextInset = 7;
static const CGFloat kControlHeight = 19;

@implementation FormField

+ (CGFloat)height {
  return kTitleHeight + kBoxHeight + 2 + kHintHeight;
}

- (id)initWithName:(NSString *)name
             title:(NSString *)title
              hint:(NSString *)hint
           control:(NSTextField *)control {
  self = [super initWithFrame:NSMakeRect(0, 0, 200, [FormField height])];
  if (!self) return nil;
  _name = [name copy];
  _title = [title copy];
  _control = [control retain];
  NSTextField *label = GalleryLabel(title, GalleryFont(12), GalleryTextColor());
  [label setFrameOrigin:NSMakePoint(0, -1)];
  [self addSubview:label];

  [control setBezeled:NO];
  [control setBordered:NO];
  [control setEditable:YES];
  [control setSelectable:YES];
  // Opaque, so that no trace of the text stays when it changes.
  [control setDrawsBackground:YES];
  [control setBackgroundColor:GalleryPanelColor()];
  [control setFont:GalleryFont(13)];
  [control setTextColor:GalleryTextColor()];
  [[control cell] setScrollable:YES];
  [self addSubview:control];

  _hint = GalleryLabel(hint, GalleryFont(11), GalleryQuietTextColor());
  [self addSubview:_hint];
  return self;
}

- (void)dealloc {
  [_name release];
  [_title release];
  [_control release];
  [super dealloc];
}

- (BOOL)isFlipped {
  return YES;
}

- (NSRect)boxRect {
  return NSMakeRect(0, kTitleHeight, NSWidth([self bounds]), kBoxHeight);
}

- (void)resizeSubviewsWithOldSize:(NSSize)oldSize {
  (void)oldSize;
  const NSRect box = [self boxRect];
  [_control setFrame:NSMakeRect(kTextInset - 2, NSMinY(box) + (kBoxHeight - kControlHeight) / 2,
                                NSWidth(box) - 2 * (kTextInset - 2), kControlHeight)];
  [_hint setFrame:NSMakeRect(0, NSMaxY(box) + 2, NSWidth(box), kHintHeight)];
}

- (void)drawRect:(NSRect)rect {
  (void)rect;
  NSBezierPath *path = GalleryRoundedPath(NSInsetRect([self boxRect], 1, 1), 5);
  [GalleryPanelColor() set];
  [path fill];
  [_focused ? GalleryAccentColor() : GalleryColor(0xC3CAD6) set];
  [path setLineWidth:_focused ? 2 : 1];
  [path stroke];
}

- (NSString *)name {
  return _name;
}

- (NSString *)title {
  return _title;
}

- (NSTextField *)control {
  return _control;
}

- (void)setHint:(NSString *)hint warning:(BOOL)warning {
  [_hint setTextColor:warning ? GalleryWarningColor() : GalleryQuietTextColor()];
  [_hint setStringValue:hint];
  [self setNeedsDisplay:YES];
}

- (BOOL)isFocused {
  return [_control currentEditor] != nil;
}

- (void)updateFocus {
  if (_focused == [self isFocused]) return;
  _focused = !_focused;
  [self setNeedsDisplay:YES];
}

- (NSString *)text {
  NSText *editor = [_control currentEditor];
  return editor ? [editor string] : [_control stringValue];
}

- (NSColor *)textColor {
  NSText *editor = [_control currentEditor];
  return editor ? [editor textColor] : [_control textColor];
}

static BOOL isReddish(NSColor *color) {
  NSColor *rgb = [color colorUsingColorSpaceName:NSCalibratedRGBColorSpace];
  return [rgb redComponent] > 0.6 && [rgb greenComponent] < 0.3 && [rgb blueComponent] < 0.3;
}

- (NSArray *)statusLines {
  return @[
    [NSString stringWithFormat:@"text.%@=%@", _name, [self text]],
    [NSString
        stringWithFormat:@"color.%@=%@", _name, isReddish([self textColor]) ? @"red" : @"text"],
    [NSString stringWithFormat:@"hint.%@=%@", _name, [_hint stringValue]],
    GalleryStatusLine([@"rect." stringByAppendingString:_name], _control, [_control bounds], @"")
  ];
}

@end
