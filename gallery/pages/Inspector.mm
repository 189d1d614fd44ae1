// A picture and its inspector: folding views in a column that closes up as they fold.

#import <OvAppKit/OvAppKit.h>

#import "panes/InspectorRows.h"
#import "panes/PicturePreview.h"
#import "panes/Swatches.h"
#import "shell/GalleryControls.h"
#import "shell/GalleryPage.h"
#import "shell/GallerySettings.h"
#import "shell/GalleryStyle.h"

static const CGFloat kScrollerWidth = 20;
static const CGFloat kScrollWidth = GalleryMargin + InspectorWidth + GalleryMargin + kScrollerWidth;

// The column has the keyboard when the page opens, so that no triangle shows a focus yet.
@interface InspectorColumn : OvFlippedView
@end

@implementation InspectorColumn

- (BOOL)acceptsFirstResponder {
  return YES;
}

@end

namespace {

enum Section { kGeneral, kPicture, kLabel, kNotes, kSectionCount };

NSString *const kTitles[kSectionCount] = {@"General", @"Picture", @"Label", @"Notes"};

}  // namespace

@interface InspectorPage : GalleryPage {
  NSView *_board;
  PicturePreview *_preview;
  NSScrollView *_scroll;
  InspectorColumn *_column;
  OvCollapsingView *_sections[kSectionCount];
  NSView *_contents[kSectionCount];
  CGFloat _contentHeights[kSectionCount];
  NSString *_summaries[kSectionCount];
  BOOL _showsSummaries;
  BOOL _embossed;
  BOOL _locked;
  int _boxSize;
}
@end

@implementation InspectorPage

+ (void)load {
  [GalleryPage addPageClass:self];
}

+ (int)position {
  return 62;
}

+ (NSString *)name {
  return @"inspector";
}

+ (NSString *)title {
  return @"Inspector";
}

+ (NSString *)summary {
  return @"Views that fold to their header: click it or its triangle, or press Space or Return.";
}

- (void)dealloc {
  [[NSNotificationCenter defaultCenter] removeObserver:self];
  for (int i = 0; i < kSectionCount; ++i) {
    [_sections[i] setDelegate:nil];
    [_contents[i] release];
  }
  [_board release];
  [super dealloc];
}

#pragma mark The views

- (NSView *)makeView {
  _board = [[GalleryBox boxWithFill:GalleryPanelColor() border:nil] retain];
  [_board setFrame:NSMakeRect(0, 0, 942, 498)];
  const CGFloat left = 942 - kScrollWidth;
  _preview = [[[PicturePreview alloc] initWithName:@"Evening walk.png"
                                        labelColor:SwatchColor(0)] autorelease];
  [_preview setFrame:NSMakeRect(0, 0, left - 1, 498)];
  [_preview setAutoresizingMask:NSViewWidthSizable | NSViewHeightSizable];
  GalleryBox *line = [GalleryBox boxWithFill:GalleryLineColor() border:nil];
  [line setFrame:NSMakeRect(left - 1, 0, 1, 498)];
  [line setAutoresizingMask:NSViewMinXMargin | NSViewHeightSizable];
  _scroll = [[[GalleryScrollView alloc] initWithFrame:NSMakeRect(left, 0, kScrollWidth, 498)]
      autorelease];
  // Not white, on which embossed titles would not show.
  [_scroll setBackgroundColor:GallerySidebarColor()];
  [_scroll setAutoresizingMask:NSViewMinXMargin | NSViewHeightSizable];
  _column = [[[InspectorColumn alloc] initWithFrame:NSMakeRect(0, 0, 100, 100)] autorelease];
  [_scroll setDocumentView:_column];
  for (NSView *view in @[ _preview, line, _scroll ]) [_board addSubview:view];

  _showsSummaries = YES;
  [self makeContents];
  [self makeSections];
  [_scroll setPostsFrameChangedNotifications:YES];
  [[NSNotificationCenter defaultCenter] addObserver:self
                                           selector:@selector(restack)
                                               name:NSViewFrameDidChangeNotification
                                             object:_scroll];
  return _board;
}

- (void)makeContents {
  Swatches *swatches = [[[Swatches alloc]
      initWithFrame:NSMakeRect(InspectorIndent, 0, InspectorWidth - InspectorIndent, 34)
            changed:[self](NSInteger index) { [self chooseLabel:index]; }] autorelease];
  NSView *const contents[kSectionCount] = {
      InspectorStack(@[
        InspectorRow(@"Name", @"Evening walk.png"), InspectorRow(@"Kind", @"PNG picture"),
        InspectorRow(@"Size", @"1,284,310 bytes"), InspectorRow(@"Changed", @"3 October, 18:42")
      ]),
      InspectorStack(@[
        InspectorRow(@"Width", @"2400 pixels"), InspectorRow(@"Height", @"1600 pixels"),
        InspectorRow(@"Depth", @"8 bits, RGB")
      ]),
      InspectorStack(@[ swatches ]), InspectorStack(@[ InspectorNotes() ])};
  NSString *const summaries[kSectionCount] = {@"Evening walk.png", @"2400 x 1600", SwatchName(0),
                                              @"1 note"};
  for (int i = 0; i < kSectionCount; ++i) {
    _contents[i] = [contents[i] retain];
    _contentHeights[i] = NSHeight([contents[i] frame]);
    _summaries[i] = summaries[i];
  }
}

// The size of a header is for ever, so other sizes take new views. What they hold, and which are
// folded, stays.
- (void)makeSections {
  for (int i = 0; i < kSectionCount; ++i) {
    const BOOL folded = [_sections[i] isCollapsed];
    [_sections[i] setDelegate:nil];
    [_sections[i] setContentView:nil];
    [_sections[i] removeFromSuperview];
    _sections[i] = [[[OvCollapsingView alloc] initWithFrame:NSMakeRect(0, 0, InspectorWidth, 100)
                                                       size:_boxSize] autorelease];
    OvCollapsingView *section = _sections[i];
    [section setFrameSize:NSMakeSize(InspectorWidth, [section headerHeight] + _contentHeights[i])];
    [section setContentView:_contents[i]];
    [section setTitle:kTitles[i]];
    [section setHeaderToolTip:@"Click to fold or unfold"];
    [section setHeaderEmboss:_embossed];
    [section setLocked:_locked];
    [section setCollapsed:folded];
    [section setDelegate:self];
    [_column addSubview:section];
  }
  [self showSummaries];
  [self connectKeyViews];
  [self restack];
}

- (void)showSummaries {
  for (int i = 0; i < kSectionCount; ++i) {
    [_sections[i] setHeadline:_showsSummaries ? _summaries[i] : nil];
    [_sections[i] refresh];
  }
}

// Tab goes from triangle to triangle.
- (void)connectKeyViews {
  NSView *last = _column;
  for (OvCollapsingView *section : _sections) {
    [last setNextKeyView:[section discrosure]];
    last = [section discrosure];
  }
  [last setNextKeyView:_column];
}

- (void)restack {
  CGFloat y = GallerySmallMargin;
  for (OvCollapsingView *section : _sections) {
    [section setFrameOrigin:NSMakePoint(GalleryMargin, y)];
    y = NSMaxY([section frame]) + GallerySmallMargin;
  }
  [_column setFrameSize:NSMakeSize(InspectorWidth + 2 * GalleryMargin,
                                   MAX(NSHeight([_scroll frame]), y))];
  [_column setNeedsDisplay:YES];
}

- (NSView *)keyView {
  return _column;
}

- (void)chooseLabel:(NSInteger)index {
  _summaries[kLabel] = SwatchName(index);
  [self showSummaries];
  [_preview setLabelColor:SwatchColor(index)];
  [self setMessage:[SwatchName(index) stringByAppendingString:@" chosen."] warning:NO];
}

#pragma mark Settings

- (void)fillSettings:(GallerySettings *)settings {
  [settings addColumn:@"Headers"];
  [settings addPopUp:@"Size"
              titles:@[ @"0: 23 points", @"1: 17 points", @"2: 14 points" ]
            selected:0
             changed:[self](NSInteger index) {
               _boxSize = static_cast<int>(index);
               [self makeSections];
               [self changed];
             }];
  [settings addCheckBox:@"Summaries while folded"
                     on:YES
                changed:[self](BOOL on) {
                  _showsSummaries = on;
                  [self showSummaries];
                  [self changed];
                }];
  [settings addCheckBox:@"Embossed titles"
                     on:NO
                changed:[self](BOOL on) {
                  _embossed = on;
                  for (OvCollapsingView *section : _sections) [section setHeaderEmboss:on];
                  [_column setNeedsDisplay:YES];
                  [self changed];
                }];
  [settings addColumn:@"Behaviour"];
  [settings addCheckBox:@"Locked"
                     on:NO
                changed:[self](BOOL on) {
                  _locked = on;
                  for (OvCollapsingView *section : _sections) [section setLocked:on];
                  [self changed];
                }];
  [settings addButton:@"Fold all" pressed:[self] { [self foldAll:YES]; }];
  [settings addButton:@"Unfold all" pressed:[self] { [self foldAll:NO]; }];
}

// The lock is the user's only: the program may fold all the same.
- (void)foldAll:(BOOL)folded {
  for (OvCollapsingView *section : _sections) {
    [section setCollapsed:folded];
    [section refresh];
  }
  [self setMessage:folded ? @"All are folded." : @"All are unfolded." warning:NO];
}

#pragma mark The folding views' delegate

- (void)collapsingViewDidCollapse:(NSNotification *)notification {
  [self section:[notification object] became:@"folded"];
}

- (void)collapsingViewDidExpand:(NSNotification *)notification {
  [self section:[notification object] became:@"unfolded"];
}

- (void)section:(OvCollapsingView *)section became:(NSString *)state {
  [self restack];
  [self setMessage:[NSString stringWithFormat:@"%@ %@.", [section title], state] warning:NO];
}

#pragma mark Status

- (NSArray *)statusLines {
  NSMutableArray *lines = [NSMutableArray array];
  NSString *focus = [[_board window] firstResponder] == _column ? @"column" : @"";
  for (OvCollapsingView *section : _sections) {
    NSString *name = [[section title] lowercaseString];
    NSView *triangle = [section discrosure];
    NSRect header = [section bounds];
    header.size.height = [section headerHeight];
    [lines addObject:GalleryStatusLine([@"rect." stringByAppendingString:name], section,
                                       [section bounds], @"")];
    [lines addObject:GalleryStatusLine([NSString stringWithFormat:@"rect.%@.header", name], section,
                                       header, @"")];
    [lines addObject:GalleryStatusLine([NSString stringWithFormat:@"rect.%@.triangle", name],
                                       triangle, [triangle bounds], @"")];
    [lines addObject:[NSString stringWithFormat:@"folded.%@=%d", name, [section isCollapsed]]];
    [lines
        addObject:[NSString stringWithFormat:@"text.%@=%@", name, [[section header] stringValue]]];
    if ([[_board window] firstResponder] == triangle) focus = name;
  }
  [lines addObject:[@"focus=" stringByAppendingString:focus]];
  const NSRect visible = [_column visibleRect];
  [lines addObject:[NSString stringWithFormat:@"columnheight=%d",
                                              static_cast<int>(NSHeight([_column frame]))]];
  [lines addObject:[NSString stringWithFormat:@"scrolled=%d", static_cast<int>(NSMinY(visible))]];
  [lines addObject:GalleryStatusLine(@"grid", _column, visible, @"")];
  return lines;
}

@end
