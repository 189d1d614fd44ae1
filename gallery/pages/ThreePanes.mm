// A split view as a mail program uses it: folders, letters, a letter.

#import <OvAppKit/OvAppKit.h>

#include "panes/Mailbox.h"
#import "panes/PaneList.h"
#import "panes/PaneSplitView.h"
#import "shell/GalleryPage.h"
#import "shell/GallerySettings.h"
#import "shell/GalleryStyle.h"

namespace {

enum Pane { kFolders, kLetters, kMessage, kPaneCount };

NSString *const kPaneNames[kPaneCount] = {@"Folders", @"Letters", @"Message"};
NSString *const kLayoutNames[] = {@"Gallery reading", @"Gallery writing", @"Gallery overview"};

// Points that a pane keeps while its divider is dragged: side by side, and stacked.
const CGFloat kLeast[2][kPaneCount] = {{120, 140, 200}, {50, 70, 90}};

}  // namespace

@interface ThreePanesPage : GalleryPage {
  OvSplitView *_split;
  PaneList *_folders;
  PaneList *_letters;
  PaneMessage *_letterView;
  NSView *_panes[kPaneCount];
  NSButton *_shown[kPaneCount];
  NSButton *_locked;
  NSPopUpButton *_orientation;
  NSButton *_restore;
  NSButton *_forget;
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
  _split = [[PaneSplitView alloc] initWithFrame:NSMakeRect(0, 0, 942, 400)];
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
  [self setMessage:@"" warning:NO];  // of what has been restored
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
  _locked = [settings addCheckBox:@"Lock the dividers"
                               on:[_split mouseLocked]
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
             changed:[self](NSInteger index) {
               _layout = index;
               [self layoutChanged];
             }];
  [settings addButton:@"Save"
              pressed:[self] {
                [_split saveLayoutUsingName:kLayoutNames[_layout]];
                [self showState];
                [self setMessage:@"The layout is saved." warning:NO];
              }];
  _restore = [settings addButton:@"Restore" pressed:[self] { [self restoreLayout]; }];
  _forget = [settings addButton:@"Forget"
                        pressed:[self] {
                          [OvSplitView removeLayoutUsingName:kLayoutNames[_layout]];
                          [self showState];
                          [self setMessage:@"The layout is forgotten." warning:NO];
                        }];
  [self showState];
}

// Another gallery may have forgotten it in between.
- (void)restoreLayout {
  const BOOL restored = [_split setLayoutUsingName:kLayoutNames[_layout]];
  [_split setNeedsDisplay:YES];
  [self showState];
  [self setMessage:restored ? @"The layout is restored." : @"No layout of this name is saved."
           warning:!restored];
}

- (BOOL)isLayoutSaved {
  NSString *key = [@"OvSplitView layout " stringByAppendingString:kLayoutNames[_layout]];
  return [[NSUserDefaults standardUserDefaults] objectForKey:key] != nil;
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
  [_locked setState:[_split mouseLocked] ? NSOnState : NSOffState];
  [_orientation selectItemAtIndex:[_split isVertical] ? 0 : 1];
  [_restore setEnabled:[self isLayoutSaved]];
  [_forget setEnabled:[self isLayoutSaved]];
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

// The folders and the message keep their thickness, and the letters take the rest: what a pane
// gains or loses by collapsing moves nothing beyond its neighbour. Without room for that, all
// share.
- (void)splitView:(NSSplitView *)split resizeSubviewsWithOldSize:(NSSize)oldSize {
  (void)oldSize;
  const BOOL vertical = [split isVertical];
  const NSSize size = [split bounds].size;
  CGFloat thickness[kPaneCount] = {};
  CGFloat rest = (vertical ? size.width : size.height) - 2 * [split dividerThickness];
  for (int i : {kFolders, kMessage}) {
    if ([_split isSubviewCollapsed:_panes[i]]) continue;
    const NSSize pane = [_panes[i] frame].size;
    thickness[i] = vertical ? pane.width : pane.height;
    rest -= thickness[i];
  }
  thickness[kLetters] = rest;
  if (rest < kLeast[!vertical][kLetters]) {
    [split adjustSubviews];
    return;
  }
  CGFloat position = 0;
  for (int i = 0; i < kPaneCount; ++i) {
    if (thickness[i] > 0) {
      [_panes[i] setFrame:vertical ? NSMakeRect(position, 0, thickness[i], size.height)
                                   : NSMakeRect(0, position, size.width, thickness[i])];
    }
    position += thickness[i] + [split dividerThickness];
  }
}

- (BOOL)splitView:(NSSplitView *)split canCollapseSubview:(NSView *)view {
  (void)split;
  return view != _letters;
}

- (CGFloat)splitView:(NSSplitView *)split
    constrainMinCoordinate:(CGFloat)proposed
               ofSubviewAt:(NSInteger)divider {
  return proposed + kLeast[![split isVertical]][divider];
}

- (CGFloat)splitView:(NSSplitView *)split
    constrainMaxCoordinate:(CGFloat)proposed
               ofSubviewAt:(NSInteger)divider {
  return proposed - [split dividerThickness] - kLeast[![split isVertical]][divider + 1];
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
    NSString *name = [kPaneNames[i] lowercaseString];
    const BOOL collapsed = [_split isSubviewCollapsed:_panes[i]];
    [lines addObject:[NSString stringWithFormat:@"collapsed.%@=%d", name, collapsed]];
    if (collapsed) continue;
    [lines addObject:GalleryStatusLine([@"rect." stringByAppendingString:name], _panes[i],
                                       [_panes[i] bounds], @"")];
  }
  for (int i = 0; i + 1 < kPaneCount; ++i) {
    NSString *key = [NSString stringWithFormat:@"rect.divider%d", i];
    [lines addObject:GalleryStatusLine(key, _split, [self rectOfDivider:i], @"")];
  }
  [lines addObject:[NSString stringWithFormat:@"vertical=%d", [_split isVertical]]];
  [lines addObject:[NSString stringWithFormat:@"locked=%d", [_split mouseLocked]]];
  [lines addObject:[NSString stringWithFormat:@"saved=%d", [self isLayoutSaved]]];
  NSResponder *focus = [[_split window] firstResponder];
  for (int i = 0; i < kPaneCount; ++i) {
    if (_panes[i] == focus) {
      [lines addObject:[@"focus=" stringByAppendingString:[kPaneNames[i] lowercaseString]]];
    }
  }
  [lines addObject:GalleryStatusLine(@"grid", _split, [_split bounds], @"")];
  return lines;
}

@end
