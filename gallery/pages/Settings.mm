// A preferences form on a property list in a file.

#import <OvAppKit/OvAppKit.h>

#include <algorithm>

#import "forms/FormField.h"
#import "shell/GalleryControls.h"
#import "shell/GalleryPage.h"
#import "shell/GalleryStage.h"

static const CGFloat kFormWidth = 360;
static const CGFloat kRowGap = 10;
static const NSTimeInterval kLookAtFile = 0.3;

static NSString *const kStoreNames[] = {@"org.ovappkit.gallery.home", @"org.ovappkit.gallery.work"};

static NSDictionary *defaultValues() {
  return @{@"author" : @"Anonymous", @"folder" : @"Documents", @"zoom" : @100, @"backup" : @(NO)};
}

// Whole steps only: the file would hold every fraction of a pixel.
@interface ZoomSlider : GallerySlider
@end

@implementation ZoomSlider

- (BOOL)sendAction:(SEL)action to:(id)target {
  [self setDoubleValue:5 * round([self doubleValue] / 5)];
  return [super sendAction:action to:target];
}

@end

@interface SettingsPage : GalleryPage {
  HXPropertyListController *_controller;
  NSArray *_stores;
  NSArray *_fields;
  NSTextField *_zoomTitle;
  NSTextField *_zoomText;
  NSSlider *_zoom;
  NSButton *_backup;
  NSTextField *_mark;
  NSArray *_buttons;
  NSButton *_store;
  NSTextField *_filePath;
  NSScrollView *_fileScroll;
  NSTextView *_fileText;
  NSString *_shownText;
  NSTimer *_timer;
}
@end

@implementation SettingsPage

+ (void)load {
  [GalleryPage addPageClass:self];
}

+ (int)position {
  return 90;
}

+ (NSString *)name {
  return @"settings";
}

+ (NSString *)title {
  return @"Settings";
}

+ (NSString *)summary {
  return @"Controls bound to a property list in a file, which keeps what differs from the "
         @"defaults.";
}

- (void)dealloc {
  [_timer invalidate];
  [[NSNotificationCenter defaultCenter] removeObserver:self];
  if (_controller) {
    for (NSControl *control in [self boundControls]) [control unbind:@"value"];
    [[_buttons objectAtIndex:0] unbind:@"enabled"];
    [_controller removeObserver:self forKeyPath:@"hasUnsavedChanges"];
    for (FormField *field in _fields) [[field control] setDelegate:nil];
    [static_cast<GalleryStage *>(_view) setLayout:nullptr];
  }
  [_fields release];
  [_buttons release];
  [_controller release];
  [_stores release];
  [_shownText release];
  [super dealloc];
}

- (NSView *)makeView {
  GalleryStage *stage = [GalleryStage stageWithLayout:[self](NSSize size) { [self layOut:size]; }];
  NSMutableArray *stores = [NSMutableArray array];
  for (NSString *name : kStoreNames) {
    [stores addObject:[HXPropertyList propertyListWithName:name]];
  }
  _stores = [stores copy];
  _controller = [[HXPropertyListController alloc] initWithPropertyList:[_stores objectAtIndex:0]
                                                         initialValues:defaultValues()];
  [self makeForm];
  [self makeButtons];
  [self makeFileView];
  for (NSView *field in _fields) [stage addSubview:field];
  for (NSView *button in _buttons) [stage addSubview:button];
  for (NSView *view in
       @[ _zoomTitle, _zoomText, _zoom, _backup, _mark, _store, _filePath, _fileScroll ]) {
    [stage addSubview:view];
  }
  [self linkKeyViews];
  [_controller addObserver:self forKeyPath:@"hasUnsavedChanges" options:0 context:NULL];
  [[NSNotificationCenter defaultCenter] addObserver:self
                                           selector:@selector(focusMayHaveMoved)
                                               name:NSWindowDidUpdateNotification
                                             object:nil];
  return stage;
}

- (void)bind:(NSControl *)control to:(NSString *)key {
  [control bind:@"value"
         toObject:_controller
      withKeyPath:[@"values." stringByAppendingString:key]
          options:@{NSContinuouslyUpdatesValueBindingOption : @(YES)}];
}

- (FormField *)fieldNamed:(NSString *)name title:(NSString *)title hint:(NSString *)hint {
  NSTextField *control = [[[NSTextField alloc] initWithFrame:NSZeroRect] autorelease];
  FormField *field = [[[FormField alloc] initWithName:name title:title hint:hint
                                              control:control] autorelease];
  [control setDelegate:static_cast<id>(self)];
  [self bind:control to:name];
  return field;
}

- (void)makeForm {
  _fields = [@[
    [self fieldNamed:@"author" title:@"Author" hint:@"Written into every file"],
    [self fieldNamed:@"folder" title:@"Folder" hint:@"Where files are kept"]
  ] retain];
  _zoomTitle = GalleryLabel(@"Zoom in per cent", GalleryFont(12), GalleryTextColor());
  // Follows the slider through the controller alone.
  _zoomText = GalleryLabel(@"", GalleryBoldFont(12), GalleryTextColor());
  [_zoomText setAlignment:NSRightTextAlignment];
  [self bind:_zoomText to:@"zoom"];
  _zoom = [[[ZoomSlider alloc] initWithFrame:NSZeroRect] autorelease];
  [_zoom setMinValue:25];
  [_zoom setMaxValue:400];
  [self bind:_zoom to:@"zoom"];
  _backup = [[[GalleryCheckBox alloc] initWithFrame:NSZeroRect] autorelease];
  [_backup setButtonType:NSSwitchButton];
  [_backup setTitle:@"Keep a backup copy"];
  [_backup setFont:GalleryFont(12)];
  [self bind:_backup to:@"backup"];
  _mark = GalleryLabel(@" ", GalleryBoldFont(12), GalleryWarningColor());
}

- (NSArray *)boundControls {
  NSMutableArray *controls = [NSMutableArray arrayWithObjects:_zoomText, _zoom, _backup, nil];
  for (FormField *field in _fields) [controls addObject:[field control]];
  return controls;
}

- (void)makeButtons {
  NSMutableArray *buttons = [NSMutableArray array];
  const auto add = [&](NSString *title, id target, SEL action) {
    NSButton *button = [[[GalleryButton alloc] initWithFrame:NSZeroRect] autorelease];
    [button setTitle:title];
    [button setFont:GalleryFont(12)];
    [button setTarget:target];
    [button setAction:action];
    [buttons addObject:button];
  };
  add(@"Save", _controller, @selector(save:));
  add(@"Revert", _controller, @selector(revert:));
  add(@"Defaults", _controller, @selector(revertToInitialValues:));
  add(@"Set the zoom to 150 from the program", self, @selector(zoomFromProgram:));
  _buttons = [buttons copy];
  [[_buttons objectAtIndex:0] bind:@"enabled"
                          toObject:_controller
                       withKeyPath:@"hasUnsavedChanges"
                           options:nil];
}

- (void)makeFileView {
  _store = [[[GalleryButton alloc] initWithFrame:NSZeroRect] autorelease];
  [_store setTitle:@"The other file"];
  [_store setFont:GalleryFont(12)];
  [_store setTarget:self];
  [_store setAction:@selector(chooseStore:)];
  _filePath = GalleryLabel(@"", GalleryFont(11), GalleryQuietTextColor());
  [[_filePath cell] setLineBreakMode:NSLineBreakByTruncatingMiddle];
  _fileScroll = [[[GalleryScrollView alloc] initWithFrame:NSMakeRect(0, 0, 100, 100)] autorelease];
  [_fileScroll setHasHorizontalScroller:NO];
  [_fileScroll setBackgroundColor:GalleryWindowColor()];
  _fileText = [[[NSTextView alloc] initWithFrame:NSMakeRect(0, 0, 100, 100)] autorelease];
  [_fileText setAutoresizingMask:NSViewWidthSizable];
  [_fileText setMaxSize:NSMakeSize(1e6, 1e6)];
  [_fileText setVerticallyResizable:YES];
  [_fileText setHorizontallyResizable:NO];
  [[_fileText textContainer] setWidthTracksTextView:YES];
  [_fileText setTextContainerInset:NSMakeSize(8, 8)];
  [_fileText setEditable:NO];
  [_fileText setBackgroundColor:GalleryWindowColor()];
  [_fileText setFont:[NSFont userFixedPitchFontOfSize:11]];
  [_fileText setTextColor:GalleryTextColor()];
  [_fileScroll setDocumentView:_fileText];
}

- (void)linkKeyViews {
  NSView *last = nil;
  for (FormField *field in _fields) {
    [last setNextKeyView:[field control]];
    last = [field control];
  }
  for (NSView *view in [@[ _zoom, _backup ] arrayByAddingObjectsFromArray:_buttons]) {
    [last setNextKeyView:view];
    last = view;
  }
  [last setNextKeyView:[self keyView]];
}

// The form at the left, the file at the right.
- (void)layOut:(NSSize)size {
  const CGFloat x = GalleryLargeMargin, width = kFormWidth - 2 * GalleryLargeMargin;
  CGFloat y = GalleryMargin + 2;
  for (FormField *field in _fields) {
    [field setFrame:NSMakeRect(x, y, width, [FormField height])];
    y += [FormField height] + kRowGap;
  }
  [_zoomTitle setFrameOrigin:NSMakePoint(x, y)];
  [_zoomText setFrame:NSMakeRect(x + width - 80, y, 80, NSHeight([_zoomTitle frame]))];
  y += 18;
  [_zoom setFrame:NSMakeRect(x, y, width, 22)];
  y += 22 + kRowGap;
  [_backup setFrame:NSMakeRect(x, y, width, 22)];
  y += 22 + kRowGap;
  [_mark setFrame:NSMakeRect(x, y, width, 20)];
  y += 24;
  const CGFloat buttonWidth = floor((width - 2 * GallerySmallMargin) / 3);
  for (NSUInteger i = 0; i < 3; ++i) {
    [[_buttons objectAtIndex:i]
        setFrame:NSMakeRect(x + i * (buttonWidth + GallerySmallMargin), y, buttonWidth, 27)];
  }
  y += 27 + GallerySmallMargin;
  [[_buttons objectAtIndex:3] setFrame:NSMakeRect(x, y, width, 27)];

  const CGFloat right = kFormWidth, rightWidth = size.width - right - GalleryLargeMargin;
  [_store setFrame:NSMakeRect(right, GalleryMargin + 2, 110, 26)];
  [_filePath setFrame:NSMakeRect(right + 118, GalleryMargin + 6, rightWidth - 118, 18)];
  const CGFloat top = GalleryMargin + 2 + 26 + GallerySmallMargin;
  [_fileScroll setFrame:NSMakeRect(right, top, rightWidth,
                                   std::max<CGFloat>(0, size.height - top - GalleryLargeMargin))];
}

- (NSView *)keyView {
  return [[_fields objectAtIndex:0] control];
}

- (void)didShow {
  [[_view window] setInitialFirstResponder:[self keyView]];
  // Others may write the file, too.
  _timer = [NSTimer scheduledTimerWithTimeInterval:kLookAtFile
                                            target:self
                                          selector:@selector(showFile)
                                          userInfo:nil
                                           repeats:YES];
  [self showState];
}

- (void)willHide {
  [[_view window] setInitialFirstResponder:nil];
  [_timer invalidate];
  _timer = nil;
}

- (void)zoomFromProgram:(id)sender {
  (void)sender;
  [[_controller values] setObject:@150 forKey:@"zoom"];
}

- (void)chooseStore:(id)sender {
  (void)sender;
  const NSUInteger now = [_stores indexOfObjectIdenticalTo:[_controller propertyList]];
  [_controller setPropertyList:[_stores objectAtIndex:1 - now]];
  [self showState];
}

// What is typed counts at once: a bound field passes on what its cell holds.
- (void)controlTextDidChange:(NSNotification *)notification {
  [[notification object] validateEditing];
}

#pragma mark What is shown

- (void)observeValueForKeyPath:(NSString *)keyPath
                      ofObject:(id)object
                        change:(NSDictionary *)change
                       context:(void *)context {
  (void)keyPath, (void)object, (void)change, (void)context;
  [self showState];
}

- (void)focusMayHaveMoved {
  for (FormField *field in _fields) [field updateFocus];
}

- (void)showState {
  const BOOL unsaved = [_controller hasUnsavedChanges];
  [_mark setTextColor:unsaved ? GalleryWarningColor() : GalleryQuietTextColor()];
  [_mark setStringValue:unsaved ? @"● Unsaved changes" : @"Everything is saved"];
  [_view setNeedsDisplay:YES];
  [self showFile];
  [self setMessage:unsaved ? @"Save writes what differs from the defaults; Revert reads the file."
                           : @"The file holds what differs from the defaults."
           warning:NO];
}

- (NSString *)textOfFile {
  NSString *path = [[_controller propertyList] path];
  NSData *data = [NSData dataWithContentsOfFile:path];
  if (!data) return @"There is no file yet.";
  NSString *text = [[[NSString alloc] initWithData:data encoding:NSUTF8StringEncoding] autorelease];
  return text ?: @"The file is not text.";
}

- (void)showFile {
  [_filePath
      setStringValue:[[[_controller propertyList] path] stringByAbbreviatingWithTildeInPath]];
  NSString *text = [self textOfFile];
  if ([text isEqualToString:_shownText]) return;
  [_shownText release];
  _shownText = [text copy];
  [_fileText setString:text];
  [self changed];
}

- (NSArray *)statusLines {
  NSMutableArray *lines = [NSMutableArray array];
  NSDictionary *values = [_controller values];
  for (NSString *key in defaultValues()) {
    [lines addObject:[NSString stringWithFormat:@"value.%@=%@", key, [values objectForKey:key]]];
  }
  NSString *focus = @"";
  for (FormField *field in _fields) {
    [lines addObjectsFromArray:[field statusLines]];
    if ([field isFocused]) focus = [field name];
  }
  [lines addObject:[@"focus=" stringByAppendingString:focus]];
  NSArray *names = @[ @"save", @"revert", @"defaults", @"program" ];
  for (NSUInteger i = 0; i < [names count]; ++i) {
    NSButton *button = [_buttons objectAtIndex:i];
    [lines addObject:GalleryStatusLine([@"rect." stringByAppendingString:[names objectAtIndex:i]],
                                       button, [button bounds], @"")];
  }
  for (NSView *view in @[ _zoom, _backup, _store ]) {
    NSString *key = view == _zoom ? @"rect.zoom" : view == _backup ? @"rect.backup" : @"rect.store";
    [lines addObject:GalleryStatusLine(key, view, [view bounds], @"")];
  }
  [lines addObject:[NSString stringWithFormat:@"zoomtext=%@", [_zoomText stringValue]]];
  [lines addObject:[NSString stringWithFormat:@"mark=%@", [_mark stringValue]]];
  [lines
      addObject:[NSString stringWithFormat:@"cansave=%d", [[_buttons objectAtIndex:0] isEnabled]]];
  [lines addObject:[@"path=" stringByAppendingString:[[_controller propertyList] path]]];
  [lines addObject:[@"file=" stringByAppendingString:_shownText ?: @""]];
  return lines;
}

@end
