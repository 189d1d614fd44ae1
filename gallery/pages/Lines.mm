// A text view that tells of its lines: numbers beside it, and what Return and paste announce.

#import <OvAppKit/OvAppKit.h>

#include <algorithm>

#import "forms/EventLog.h"
#import "forms/LineAnnouncer.h"
#import "forms/LineNumbers.h"
#import "shell/GalleryControls.h"
#import "shell/GalleryPage.h"
#import "shell/GallerySettings.h"
#import "shell/GalleryStyle.h"
#import "shell/GalleryValueList.h"

static const CGFloat kSideWidth = 320;
static const unsigned kLimits[] = {0, 40, 200, 1000};
static NSString *const kText =
    @"Each line has its number at the left.\n"
    @"Return announces the line that it ends, and paste the lines that come.\n"
    @"\n"
    @"A long line is broken where the view ends, and has one number all the same: the lines that "
    @"are counted here are those that line breaks end.\n"
    @"The settings below limit the length, and let Tab move on.\n";

@interface LinesPage : GalleryPage {
  NSScrollView *_scroll;
  OvTextView *_text;
  LineNumbers *_numbers;
  GalleryValueList *_values;
  EventLog *_log;
  LineAnnouncer *_announcer;
  NSButton *_tab;
  NSButton *_keep;
  NSButton *_insert;
  NSButton *_empty;
}
- (void)layOut;
@end

@interface LinesView : GalleryBox {
 @public
  LinesPage *_page;
}
@end

@implementation LinesView

- (void)resizeSubviewsWithOldSize:(NSSize)oldSize {
  (void)oldSize;
  [_page layOut];
}

- (void)drawRect:(NSRect)rect {
  [super drawRect:rect];
  const NSSize size = [self bounds].size;
  [GalleryLineColor() set];
  NSRectFill(NSMakeRect(size.width - kSideWidth - 1, 0, 1, size.height));
}

@end

@implementation LinesPage

+ (void)load {
  [GalleryPage addPageClass:self];
}

+ (int)position {
  return 70;
}

+ (NSString *)name {
  return @"lines";
}

+ (NSString *)title {
  return @"Lines";
}

+ (NSString *)summary {
  return @"A text view that limits its text, counts its lines and tells of those that end.";
}

- (void)dealloc {
  [[NSNotificationCenter defaultCenter] removeObserver:self];
  [NSObject cancelPreviousPerformRequestsWithTarget:self];
  [_text setDelegate:nil];
  [_announcer release];
  if (_view) static_cast<LinesView *>(_view)->_page = nil;
  [super dealloc];
}

- (NSView *)makeView {
  LinesView *view = static_cast<LinesView *>([LinesView boxWithFill:GalleryPanelColor()
                                                             border:nil]);
  view->_page = self;
  [self makeText];
  _numbers = [[[LineNumbers alloc] initWithTextView:_text] autorelease];
  _values = [[[GalleryValueList alloc]
      initWithNames:@[ @"Line", @"Column", @"Lines", @"Characters" ]] autorelease];
  _log = [[[EventLog alloc] initWithTitle:@"Announcements"] autorelease];
  _announcer = [[LineAnnouncer alloc] initWithLog:_log changed:[self] { [self describeSoon]; }];
  [_text setDelegate:_announcer];
  for (NSView *part in @[ _scroll, _numbers, _values, _log ]) [view addSubview:part];
  return view;
}

- (void)makeText {
  _scroll = [[[GalleryScrollView alloc] initWithFrame:NSMakeRect(0, 0, 400, 300)] autorelease];
  [_scroll setHasHorizontalScroller:NO];
  _text = [[[OvTextView alloc] initWithFrame:NSMakeRect(0, 0, 380, 300)] autorelease];
  [_text setRichText:NO];
  [_text setFont:GalleryFont(13)];
  [_text setTextColor:GalleryTextColor()];
  [_text setBackgroundColor:GalleryPanelColor()];
  [_text setInsertionPointColor:GalleryAccentColor()];
  [_text setTextContainerInset:NSMakeSize(6, 8)];
  [_text setMinSize:NSMakeSize(0, 0)];
  [_text setMaxSize:NSMakeSize(1e7, 1e7)];
  [_text setVerticallyResizable:YES];
  [_text setHorizontallyResizable:NO];
  [_text setAutoresizingMask:NSViewWidthSizable];
  [[_text textContainer] setWidthTracksTextView:YES];
  [[_text textContainer] setContainerSize:NSMakeSize(380, 1e7)];
  [_text setAllowsUndo:YES];
  [_scroll setDocumentView:_text];
  [self limitTo:0];
  [_text setString:kText];
  [_text setSelectedRange:NSMakeRange(0, 0)];
  [[NSNotificationCenter defaultCenter] addObserver:self
                                           selector:@selector(describeSoon)
                                               name:NSTextViewDidChangeSelectionNotification
                                             object:_text];
}

- (NSView *)keyView {
  return _text;
}

- (void)layOut {
  const NSSize size = [_view bounds].size;
  const CGFloat width = std::max<CGFloat>(0, size.width - kSideWidth - 1);
  const CGFloat numbers = [LineNumbers width];
  [_numbers setFrame:NSMakeRect(0, 0, numbers, size.height)];
  [_scroll setFrame:NSMakeRect(numbers, 0, std::max<CGFloat>(0, width - numbers), size.height)];
  const CGFloat x = size.width - kSideWidth;
  const CGFloat valuesHeight = [GalleryValueList heightForCount:4];
  [_values setFrame:NSMakeRect(x + GalleryMargin, 8, kSideWidth - 2 * GalleryMargin, valuesHeight)];
  const CGFloat y = valuesHeight + 14;
  [_log setFrame:NSMakeRect(x, y, kSideWidth, std::max<CGFloat>(0, size.height - y))];
}

- (void)fillSettings:(GallerySettings *)settings {
  [settings addColumn:@"Keys"];
  _tab = [settings addCheckBox:@"Tab moves on"
                            on:NO
                       changed:[self](BOOL on) {
                         [_text setTabToResignFirstResponder:on];
                         [self describeSoon];
                       }];
  [settings addColumn:@"Length"];
  [settings addPopUp:@"Limit"
              titles:@[ @"None", @"40 characters", @"200 characters", @"1,000 characters" ]
            selected:0
             changed:[self](NSInteger index) { [self limitTo:kLimits[index]]; }];
  _keep = [settings
      addCheckBox:@"Keep text that is too long"
               on:NO
          changed:[self](BOOL on) { [[_text textValidator] setAllowToInputOverLength:on]; }];
  [settings addColumn:@"Text"];
  _insert = [settings addButton:@"Insert 10,000 lines"
                        pressed:[self] { [self insertLines:10000]; }];
  _empty = [settings addButton:@"Empty"
                       pressed:[self] {
                         [_text setString:@""];
                         [self describeSoon];
                       }];
  [_text setNextKeyView:_tab];
  [_tab setNextKeyView:_text];
}

- (void)limitTo:(unsigned)length {
  OvTextValidator *validator = [OvTextValidator textValidator];
  [validator setMaxLength:length];
  [validator setAllowToInputOverLength:[_keep state] == NSOnState];
  [_text setTextValidator:validator];
  [validator setDefaultTextColor:GalleryTextColor()];
  [validator setAltTextColor:GalleryWarningColor()];
  [self describeSoon];
}

// In pieces: the platform mixes up the rows of a text that is larger than a quarter of a million
// characters when it comes at once.
- (void)insertLines:(int)count {
  static const int kPiece = 1000;
  NSMutableString *lines = [NSMutableString string];
  for (int i = 1; i <= count; ++i) {
    [lines appendFormat:@"This is line %d of %d.\n", i, count];
    if (i % kPiece != 0 && i != count) continue;
    [_text insertText:lines];
    [lines setString:@""];
  }
  [self describeSoon];
}

- (void)didShow {
  [[_view window] setInitialFirstResponder:_text];
  [self describe];
}

- (void)willHide {
  [[_view window] setInitialFirstResponder:nil];
}

#pragma mark What is shown

- (void)describeSoon {
  [NSObject cancelPreviousPerformRequestsWithTarget:self selector:@selector(describe) object:nil];
  [self performSelector:@selector(describe)
             withObject:nil
             afterDelay:0
                inModes:@[ NSDefaultRunLoopMode, NSEventTrackingRunLoopMode ]];
}

static NSString *number(NSUInteger value) {
  return [NSString stringWithFormat:@"%lu", static_cast<unsigned long>(value)];
}

- (void)describe {
  NSString *string = [_text string];
  const NSUInteger caret = std::min([_text selectedRange].location, [string length]);
  const uint32_t line = OvTextViewGetLineIndexFromLocation(string, caret);
  NSString *before = OvTextViewGetLineStringFromReturnCode(string, caret);
  [_values setValues:@[
    number(line + 1), number([before length] + 1), number([_text lineCount]),
    number([string length])
  ]];
  [_numbers update];
  if (![_text isValid]) {
    [self setMessage:@"The text is too long, and is not left before it is shortened." warning:YES];
    return;
  }
  NSString *text = [_text stringAtLineIndex:line];
  [self setMessage:text ? [@"The line at the caret: " stringByAppendingString:text]
                        : @"The line at the caret is empty."
           warning:NO];
}

- (NSString *)focus {
  const id responder = [[_text window] firstResponder];
  return responder == _text ? @"text" : responder == _tab ? @"tab" : @"";
}

- (NSArray *)statusLines {
  NSString *string = [_text string];
  const uint32_t line = OvTextViewGetLineIndexFromLocation(string, [_text selectedRange].location);
  NSMutableArray *lines = [NSMutableArray
      arrayWithObjects:[@"line=" stringByAppendingString:number(line + 1)],
                       [@"lines=" stringByAppendingString:number([_text lineCount])],
                       [@"length=" stringByAppendingString:number([string length])],
                       [NSString
                           stringWithFormat:@"numbers=%lu %lu",
                                            static_cast<unsigned long>([_numbers firstNumber]),
                                            static_cast<unsigned long>([_numbers lastNumber])],
                       [@"focus=" stringByAppendingString:[self focus]],
                       GalleryStatusLine(@"rect.text", _text, [_text visibleRect], @""),
                       GalleryStatusLine(@"rect.tab", _tab, [_tab bounds], @""),
                       GalleryStatusLine(@"rect.keep", _keep, [_keep bounds], @""),
                       GalleryStatusLine(@"rect.insert", _insert, [_insert bounds], @""),
                       GalleryStatusLine(@"rect.empty", _empty, [_empty bounds], @""),
                       [NSString
                           stringWithFormat:@"tabmoveson=%d", [_text tabToResignFirstResponder]],
                       nil];
  [lines addObjectsFromArray:[_log statusLines]];
  return lines;
}

@end
