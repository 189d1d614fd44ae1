#import "shell/GallerySettings.h"

#import "shell/GalleryControls.h"

static const CGFloat kLabelWidth = 76;
static const CGFloat kControlWidth = 124;
static const CGFloat kColumnGap = 24;
static const CGFloat kRowHeight = 26;
static const CGFloat kRows = 5;

// The target of one control.
@interface GallerySettingAction : NSObject {
  std::function<void(id)> _changed;
}
- (id)initWithFunction:(std::function<void(id)>)changed;
- (void)perform:(id)sender;
@end

@implementation GallerySettingAction

- (id)initWithFunction:(std::function<void(id)>)changed {
  self = [super init];
  if (self) _changed = std::move(changed);
  return self;
}

- (void)perform:(id)sender {
  _changed(sender);
}

@end

@implementation GallerySettings

+ (CGFloat)height {
  return 20 + kRows * kRowHeight;
}

- (id)initWithFrame:(NSRect)frame {
  self = [super initWithFrame:frame];
  if (self) _actions = [[NSMutableArray alloc] init];
  return self;
}

- (void)dealloc {
  [_actions release];
  [super dealloc];
}

- (void)addColumn:(NSString *)title {
  _columnX = _hasColumn ? _columnX + kLabelWidth + 8 + kControlWidth + kColumnGap : 0;
  _hasColumn = YES;
  NSTextField *label = GalleryLabel(title, GalleryBoldFont(11), GalleryQuietTextColor());
  [label setFrameOrigin:NSMakePoint(_columnX + 2, 0)];
  [self addSubview:label];
  _rowY = 20;
}

- (void)target:(NSControl *)control changed:(std::function<void(id)>)changed {
  GallerySettingAction *action =
      [[[GallerySettingAction alloc] initWithFunction:std::move(changed)] autorelease];
  [_actions addObject:action];
  [control setTarget:action];
  [control setAction:@selector(perform:)];
  [control setFont:GalleryFont(11)];
  [self addSubview:control];
}

- (NSRect)nextRowWithLabel:(NSString *)text {
  NSTextField *label = GalleryLabel(text, GalleryFont(11), GalleryTextColor());
  [label setAlignment:NSRightTextAlignment];
  const CGFloat height = NSHeight([label frame]);
  [label
      setFrame:NSMakeRect(_columnX, _rowY + floor((kRowHeight - height) / 2), kLabelWidth, height)];
  [self addSubview:label];
  const NSRect frame =
      NSMakeRect(_columnX + kLabelWidth + 8, _rowY + 2, kControlWidth, kRowHeight - 4);
  _rowY += kRowHeight;
  return frame;
}

- (NSPopUpButton *)addPopUp:(NSString *)label
                     titles:(NSArray *)titles
                   selected:(NSInteger)index
                    changed:(std::function<void(NSInteger)>)changed {
  NSPopUpButton *popUp = [[[GalleryPopUp alloc] initWithFrame:[self nextRowWithLabel:label]
                                                    pullsDown:NO] autorelease];
  [popUp addItemsWithTitles:titles];
  [popUp selectItemAtIndex:index];
  [self
       target:popUp
      changed:[changed = std::move(changed)](id sender) { changed([sender indexOfSelectedItem]); }];
  return popUp;
}

- (NSSlider *)addSlider:(NSString *)label
                   from:(double)least
                     to:(double)most
                  value:(double)value
                changed:(std::function<void(double)>)changed {
  NSSlider *slider =
      [[[GallerySlider alloc] initWithFrame:[self nextRowWithLabel:label]] autorelease];
  [slider setMinValue:least];
  [slider setMaxValue:most];
  [slider setDoubleValue:value];
  [slider setContinuous:YES];
  [self target:slider
       changed:[changed = std::move(changed)](id sender) { changed(round([sender doubleValue])); }];
  return slider;
}

- (NSButton *)addCheckBox:(NSString *)label on:(BOOL)on changed:(std::function<void(BOOL)>)changed {
  const NSRect frame =
      NSMakeRect(_columnX + 2, _rowY + 2, kLabelWidth + kControlWidth, kRowHeight - 4);
  _rowY += kRowHeight;
  NSButton *box = [[[GalleryCheckBox alloc] initWithFrame:frame] autorelease];
  [box setButtonType:NSSwitchButton];
  [box setTitle:label];
  [box setState:on ? NSOnState : NSOffState];
  [self target:box
       changed:[changed = std::move(changed)](id sender) { changed([sender state] == NSOnState); }];
  return box;
}

- (NSButton *)addButton:(NSString *)title pressed:(std::function<void()>)pressed {
  const NSRect frame =
      NSMakeRect(_columnX + 2, _rowY + 2, kLabelWidth + kControlWidth + 6, kRowHeight - 4);
  _rowY += kRowHeight;
  NSButton *button = [[[GalleryButton alloc] initWithFrame:frame] autorelease];
  [button setTitle:title];
  [self target:button changed:[pressed = std::move(pressed)](id) { pressed(); }];
  return button;
}

@end
