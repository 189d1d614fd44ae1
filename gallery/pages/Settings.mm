// A preferences form on a property list in a file.

#import <OvAppKit/OvAppKit.h>
#import <OvFoundation/OvFoundation.h>

#import "shell/GalleryControls.h"
#import "shell/GalleryPage.h"
#import "shell/GallerySettings.h"
#import "shell/GalleryStyle.h"

static const CGFloat kFormWidth = 400;
static const CGFloat kLabelX = 20;
static const CGFloat kControlX = 130;
static const CGFloat kRow = 40;

static NSString *const kStoreNames[] = {@"org.ovappkit.gallery.home", @"org.ovappkit.gallery.work"};

static NSDictionary *defaultValues() {
  return @{@"author" : @"Anonymous", @"zoom" : @100, @"backup" : @NO, @"folder" : @"Documents"};
}

@interface SettingsPage : GalleryPage {
  HXPropertyListController *_controller;
  HXPropertyList *_stores[2];
  GalleryBox *_canvas;
  NSMutableArray *_bound;  // the controls with a binding "value"
  NSTextField *_unsaved;
  NSTextView *_fileText;
  NSTextField *_filePath;
  NSButton *_save;
  NSTimer *_timer;
  NSString *_shownText;
  CGFloat _y;
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
  return @"Controls bound to a property list. Only what differs from the defaults is stored.";
}

- (void)dealloc {
  for (NSControl *control in _bound) [control unbind:@"value"];
  [_save unbind:@"enabled"];
  [_controller removeObserver:self forKeyPath:@"hasUnsavedChanges"];
  [_timer invalidate];
  [_bound release];
  [_controller release];
  for (HXPropertyList *store : _stores) [store release];
  [_shownText release];
  [_canvas release];
  [super dealloc];
}

- (NSView *)makeView {
  for (int i = 0; i < 2; ++i) _stores[i] = [[HXPropertyList alloc] initWithName:kStoreNames[i]];
  _controller = [[HXPropertyListController alloc] initWithPropertyList:_stores[0]
                                                         initialValues:defaultValues()];
  _bound = [[NSMutableArray alloc] init];
  _canvas = [[GalleryBox boxWithFill:GalleryPanelColor() border:nil] retain];
  [_canvas setFrame:NSMakeRect(0, 0, 942, 420)];
  [self addForm];
  [self addFileView];
  [_controller addObserver:self forKeyPath:@"hasUnsavedChanges" options:0 context:NULL];
  [self showState];
  return _canvas;
}

- (void)addRow:(NSString *)title control:(NSControl *)control width:(CGFloat)width {
  NSTextField *label = GalleryLabel(title, GalleryFont(12), GalleryTextColor());
  [label setFrameOrigin:NSMakePoint(kLabelX, _y + 4)];
  [_canvas addSubview:label];
  [control setFrame:NSMakeRect(kControlX, _y, width, 24)];
  [control setFont:GalleryFont(12)];
  [_canvas addSubview:control];
  _y += kRow;
}

- (void)bind:(NSControl *)control to:(NSString *)key {
  [control bind:@"value"
         toObject:_controller
      withKeyPath:[@"values." stringByAppendingString:key]
          options:nil];
  [_bound addObject:control];
}

- (void)addForm {
  _y = 24;
  NSTextField *author = [[[NSTextField alloc] initWithFrame:NSZeroRect] autorelease];
  [self addRow:@"Author" control:author width:230];
  [self bind:author to:@"author"];
  NSTextField *folder = [[[NSTextField alloc] initWithFrame:NSZeroRect] autorelease];
  [self addRow:@"Folder" control:folder width:230];
  [self bind:folder to:@"folder"];
  NSSlider *zoom = [[[GallerySlider alloc] initWithFrame:NSZeroRect] autorelease];
  [zoom setMinValue:25];
  [zoom setMaxValue:400];
  [self addRow:@"Zoom" control:zoom width:230];
  [self bind:zoom to:@"zoom"];
  GalleryCheckBox *backup = [[[GalleryCheckBox alloc] initWithFrame:NSZeroRect] autorelease];
  [backup setButtonType:NSSwitchButton];
  [backup setTitle:@"Keep a backup copy"];
  [self addRow:@"" control:backup width:230];
  [self bind:backup to:@"backup"];
  _unsaved = GalleryLabel(@"Unsaved changes", GalleryBoldFont(12), GalleryWarningColor());
  [_unsaved setFrameOrigin:NSMakePoint(kControlX - 2, _y + 4)];
  [_canvas addSubview:_unsaved];
  _y += kRow;
  _save = [self addButton:@"Save" x:kControlX target:_controller action:@selector(save:)];
  [_save bind:@"enabled" toObject:_controller withKeyPath:@"hasUnsavedChanges" options:nil];
  [self addButton:@"Revert" x:kControlX + 80 target:_controller action:@selector(revert:)];
  [self addButton:@"Defaults"
                x:kControlX + 160
           target:_controller
           action:@selector(revertToInitialValues:)];
  [author setNextKeyView:folder];
  [folder setNextKeyView:zoom];
  [zoom setNextKeyView:author];
}

- (NSButton *)addButton:(NSString *)title x:(CGFloat)x target:(id)target action:(SEL)action {
  GalleryButton *button =
      [[[GalleryButton alloc] initWithFrame:NSMakeRect(x, _y, 72, 26)] autorelease];
  [button setTitle:title];
  [button setFont:GalleryFont(12)];
  [button setTarget:target];
  [button setAction:action];
  [_canvas addSubview:button];
  return button;
}

- (void)addFileView {
  _filePath = GalleryLabel(@"", GalleryFont(11), GalleryQuietTextColor());
  [_filePath setFrame:NSMakeRect(kFormWidth + 20, 22, 500, 18)];
  [_filePath setAutoresizingMask:NSViewWidthSizable];
  [_canvas addSubview:_filePath];
  GalleryBox *frame = [GalleryBox boxWithFill:GalleryWindowColor() border:GalleryLineColor()];
  [frame setFrame:NSMakeRect(kFormWidth + 20, 46, 942 - kFormWidth - 40, 420 - 66)];
  [frame setAutoresizingMask:NSViewWidthSizable | NSViewHeightSizable];
  _fileText = [[[NSTextView alloc] initWithFrame:NSInsetRect([frame bounds], 10, 10)] autorelease];
  [_fileText setAutoresizingMask:NSViewWidthSizable | NSViewHeightSizable];
  [_fileText setEditable:NO];
  [_fileText setDrawsBackground:NO];
  [_fileText setFont:[NSFont userFixedPitchFontOfSize:11]];
  [_fileText setTextColor:GalleryTextColor()];
  [frame addSubview:_fileText];
  [_canvas addSubview:frame];
}

- (NSView *)keyView {
  return [_bound objectAtIndex:0];
}

- (void)didShow {
  _timer = [NSTimer scheduledTimerWithTimeInterval:0.3
                                            target:self
                                          selector:@selector(showFile)
                                          userInfo:nil
                                           repeats:YES];
  [self showState];
}

- (void)willHide {
  [_timer invalidate];
  _timer = nil;
}

- (void)fillSettings:(GallerySettings *)settings {
  [settings addColumn:@"Store"];
  [settings addPopUp:@"File"
              titles:@[ @"At home", @"At work" ]
            selected:0
             changed:[self](NSInteger index) {
               [_controller setPropertyList:_stores[index]];
               [self showState];
             }];
  [settings addButton:@"Set zoom to 150 in the program"
              pressed:[self] { [[_controller values] setObject:@150 forKey:@"zoom"]; }];
}

- (void)observeValueForKeyPath:(NSString *)keyPath
                      ofObject:(id)object
                        change:(NSDictionary *)change
                       context:(void *)context {
  (void)keyPath, (void)object, (void)change, (void)context;
  [self showState];
}

- (void)showState {
  [_unsaved setHidden:![_controller hasUnsavedChanges]];
  [_canvas setNeedsDisplay:YES];
  [self showFile];
  [self changed];
}

- (NSString *)textOfFile {
  NSString *text = [NSString stringWithContentsOfFile:[[_controller propertyList] path]
                                             encoding:NSUTF8StringEncoding
                                                error:NULL];
  return text ?: @"There is no file yet.";
}

// The file can be changed by others, too.
- (void)showFile {
  NSString *text = [self textOfFile];
  [_filePath setStringValue:[[[_controller propertyList] path] stringByAbbreviatingWithTildeInPath]];
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
  NSArray *names = @[ @"author", @"folder", @"zoom", @"backup" ];
  for (NSUInteger i = 0; i < [names count]; ++i) {
    NSControl *control = [_bound objectAtIndex:i];
    [lines addObject:GalleryStatusLine(
                         [@"control." stringByAppendingString:[names objectAtIndex:i]], control,
                         [control bounds], @"")];
  }
  [lines addObject:GalleryStatusLine(@"save", _save, [_save bounds], @"")];
  [lines addObject:[NSString stringWithFormat:@"unsaved=%d", [_controller hasUnsavedChanges]]];
  [lines addObject:[NSString stringWithFormat:@"canSave=%d", [_save isEnabled]]];
  [lines addObject:[@"file=" stringByAppendingString:[self textOfFile]]];
  [lines addObject:GalleryStatusLine(@"grid", _canvas, [_canvas bounds], @"")];
  return lines;
}

@end
