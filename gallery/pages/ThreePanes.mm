// A split view as a mail program uses it: folders, letters, a letter.

#import <OvAppKit/OvAppKit.h>

#include "panes/Mailbox.h"
#import "panes/PaneList.h"
#import "shell/GalleryControls.h"
#import "shell/GalleryPage.h"
#import "shell/GallerySettings.h"
#import "shell/GalleryStyle.h"

namespace {

enum Pane { kFolders, kLetters, kMessage, kPaneCount };

NSString *const kPaneNames[kPaneCount] = {@"Folders", @"Letters", @"Message"};
NSString *const kLayoutNames[] = {@"Gallery reading", @"Gallery writing", @"Gallery overview"};

// Points that a pane keeps while its divider is dragged.
const CGFloat kLeastFolders = 120;
const CGFloat kLeastLetters = 140;
const CGFloat kLeastMessage = 200;

}  // namespace

@interface ThreePanesPage : GalleryPage {
  OvSplitView *_split;
  PaneList *_folders;
  PaneList *_letters;
  PaneMessage *_letterView;
  NSView *_panes[kPaneCount];
  NSButton *_shown[kPaneCount];
  NSPopUpButton *_orientation;
  NSInteger _layout;
}
@end

@implementation ThreePanesPage

+ (void)load {
  [GalleryPage addPageClass:self];
}

+ (int)position {
  return 60;
}

+ (NSString *)name {
  return @"panes";
}

+ (NSString *)title {
  return @"Three panes";
}

+ (NSString *)summary {
  return @"Drag a divider to the edge, or click it twice, to collapse a pane. The layout is kept.";
}

- (void)dealloc {
  [[NSNotificationCenter defaultCenter] removeObserver:self];
  [_split setDelegate:nil];
  [_split release];
  [super dealloc];
}

- (NSView *)makeView {
  _split = [[OvSplitView alloc] initWithFrame:NSMakeRect(0, 0, 942, 400)];
  [_split setVertical:YES];
  [_split setToolTip:@"Drag to resize, click twice to collapse"];
  _folders =
      [[[PaneList alloc] initWithBackground:GallerySidebarColor()
                                     chosen:[self](NSInteger) { [self showLetters]; }] autorelease];
  _letters =
      [[[PaneList alloc] initWithBackground:GalleryWindowColor()
                                     chosen:[self](NSInteger) { [self showLetter]; }] autorelease];
  _letterView = [[[PaneMessage alloc] initWithFrame:NSZeroRect] autorelease];
  _panes[kFolders] = _folders;
  _panes[kLetters] = _letters;
  _panes[kMessage] = _letterView;
  const CGFloat widths[kPaneCount] = {190, 270, 470};
  CGFloat x = 0;
  for (int i = 0; i < kPaneCount; ++i) {
    [_panes[i] setFrame:NSMakeRect(x, 0, widths[i], 400)];
    [_split addSubview:_panes[i]];
    x += widths[i] + [_split dividerThickness];
  }
  [self fillPanes];
  [_split resizeSubviewsWithOldSize:[_split bounds].size];
  [_split setDelegate:self];
  [_split setLayoutAutosaveName:@"Gallery mail"];
  [[NSNotificationCenter defaultCenter] addObserver:self
                                           selector:@selector(layoutChanged)
                                               name:NSSplitViewDidResizeSubviewsNotification
                                             object:_split];
  return _split;
}

- (void)fillPanes {
  std::vector<PaneRow> rows;
  for (const gallery::Folder &folder : gallery::mailbox()) {
    rows.push_back({folder.name, "", static_cast<int>(folder.letters.size())});
  }
  [_folders setRows:rows];
  [self showLetters];
}

- (const gallery::Folder &)folder {
  return gallery::mailbox()[[_folders selectedRow]];
}

- (void)showLetters {
  std::vector<PaneRow> rows;
  for (const gallery::Letter &letter : [self folder].letters) {
    rows.push_back({letter.from, letter.subject});
  }
  [_letters setRows:rows];
  [self showLetter];
}

- (void)showLetter {
  const gallery::Letter &letter = [self folder].letters[[_letters selectedRow]];
  [_letterView setSubject:letter.subject from:letter.from text:letter.text];
}

- (NSView *)keyView {
  return _folders;
}

#pragma mark Settings

- (void)fillSettings:(GallerySettings *)settings {
  [settings addColumn:@"Panes"];
  for (int i : {kFolders, kMessage}) {
    _shown[i] = [settings
        addCheckBox:[@"Show " stringByAppendingString:[kPaneNames[i] lowercaseString]]
                 on:YES
            changed:[self, i](BOOL on) { [_split setSubview:_panes[i] isCollapsed:!on]; }];
  }
  [settings addCheckBox:@"Lock the dividers"
                     on:NO
                changed:[self](BOOL on) {
                  [_split setMouseLocked:on];
                  [self changed];
                }];
  _orientation = [settings addPopUp:@"Panes are"
                             titles:@[ @"side by side", @"stacked" ]
                           selected:0
                            changed:[self](NSInteger index) {
                              [_split setVertical:index == 0];
                              [_split resizeSubviewsWithOldSize:[_split bounds].size];
                              [_split setNeedsDisplay:YES];
                            }];
  [settings addColumn:@"Layouts"];
  [settings addPopUp:@"Name"
              titles:@[ @"Reading", @"Writing", @"Overview" ]
            selected:0
             changed:[self](NSInteger index) { _layout = index; }];
  [settings addButton:@"Save"
              pressed:[self] {
                [_split saveLayoutUsingName:kLayoutNames[_layout]];
                [self setMessage:@"The layout is saved." warning:NO];
              }];
  [settings addButton:@"Restore" pressed:[self] { [self restoreLayout]; }];
  [settings addButton:@"Forget"
              pressed:[self] {
                [OvSplitView removeLayoutUsingName:kLayoutNames[_layout]];
                [self setMessage:@"The layout is forgotten." warning:NO];
              }];
  [self showState];
}

- (void)restoreLayout {
  const BOOL restored = [_split setLayoutUsingName:kLayoutNames[_layout]];
  [self setMessage:restored ? @"The layout is restored." : @"No layout of this name is saved."
           warning:!restored];
}

#pragma mark The split view

- (void)layoutChanged {
  [self showState];
  [self changed];
}

- (void)showState {
  for (int i : {kFolders, kMessage}) {
    [_shown[i] setState:[_split isSubviewCollapsed:_panes[i]] ? NSOffState : NSOnState];
  }
  [_orientation selectItemAtIndex:[_split isVertical] ? 0 : 1];
}

- (NSString *)nameOfPane:(NSView *)view {
  for (int i = 0; i < kPaneCount; ++i) {
    if (_panes[i] == view) return kPaneNames[i];
  }
  return @"";
}

- (void)splitViewDidCollapseSubview:(NSNotification *)notification {
  NSString *name = [self nameOfPane:[[notification userInfo] objectForKey:@"OvSubview"]];
  [self setMessage:[name stringByAppendingString:@" collapsed."] warning:NO];
}

- (void)splitViewDidExpandSubview:(NSNotification *)notification {
  NSString *name = [self nameOfPane:[[notification userInfo] objectForKey:@"OvSubview"]];
  [self setMessage:[name stringByAppendingString:@" expanded."] warning:NO];
}

- (BOOL)splitView:(NSSplitView *)split canCollapseSubview:(NSView *)view {
  (void)split;
  return view != _letters;
}

- (CGFloat)splitView:(NSSplitView *)split
    constrainMinCoordinate:(CGFloat)proposed
               ofSubviewAt:(NSInteger)divider {
  (void)split;
  return proposed + (divider == 0 ? kLeastFolders : kLeastLetters);
}

- (CGFloat)splitView:(NSSplitView *)split
    constrainMaxCoordinate:(CGFloat)proposed
               ofSubviewAt:(NSInteger)divider {
  return proposed - [split dividerThickness] - (divider == 0 ? kLeastLetters : kLeastMessage);
}

- (void)splitView:(NSSplitView *)split
    didDoubleClickInDivider:(NSInteger)divider
           withModifierFlag:(unsigned int)flags {
  (void)split, (void)flags;
  NSView *pane = _panes[divider == 0 ? kFolders : kMessage];
  [_split setSubview:pane isCollapsed:![_split isSubviewCollapsed:pane]];
}

#pragma mark Status

// Where a divider is follows from the panes before it.
- (NSRect)rectOfDivider:(int)divider {
  CGFloat position = 0;
  for (int i = 0; i <= divider; ++i) {
    const NSSize size = [_panes[i] frame].size;
    if (![_split isSubviewCollapsed:_panes[i]]) {
      position += [_split isVertical] ? size.width : size.height;
    }
    if (i < divider) position += [_split dividerThickness];
  }
  const NSSize size = [_split bounds].size;
  return [_split isVertical] ? NSMakeRect(position, 0, [_split dividerThickness], size.height)
                             : NSMakeRect(0, position, size.width, [_split dividerThickness]);
}

- (NSArray *)statusLines {
  NSMutableArray *lines = [NSMutableArray array];
  for (int i = 0; i < kPaneCount; ++i) {
    NSString *key = [@"pane." stringByAppendingString:[kPaneNames[i] lowercaseString]];
    const BOOL collapsed = [_split isSubviewCollapsed:_panes[i]];
    [lines addObject:[NSString stringWithFormat:@"%@.collapsed=%d", key, collapsed]];
    if (!collapsed) [lines addObject:GalleryStatusLine(key, _panes[i], [_panes[i] bounds], @"")];
  }
  for (int i = 0; i + 1 < kPaneCount; ++i) {
    NSString *key = [NSString stringWithFormat:@"divider.%d", i];
    [lines addObject:GalleryStatusLine(key, _split, [self rectOfDivider:i], @"")];
  }
  [lines addObject:[NSString stringWithFormat:@"vertical=%d", [_split isVertical]]];
  [lines addObject:[NSString stringWithFormat:@"locked=%d", [_split mouseLocked]]];
  [lines addObject:GalleryStatusLine(@"grid", _split, [_split bounds], @"")];
  return lines;
}

@end
