#import "forms/LineNumbers.h"

#import <OvAppKit/OvAppKit.h>

#import "shell/GalleryStyle.h"

static const CGFloat kWidth = 52;

@implementation LineNumbers

+ (CGFloat)width {
  return kWidth;
}

- (id)initWithTextView:(NSTextView *)text {
  self = [super initWithFrame:NSMakeRect(0, 0, kWidth, 100)];
  if (!self) return nil;
  _text = [text retain];
  NSClipView *clip = [[text enclosingScrollView] contentView];
  [clip setPostsBoundsChangedNotifications:YES];
  [text setPostsFrameChangedNotifications:YES];
  NSNotificationCenter *center = [NSNotificationCenter defaultCenter];
  [center addObserver:self
             selector:@selector(update)
                 name:NSViewBoundsDidChangeNotification
               object:clip];
  [center addObserver:self
             selector:@selector(update)
                 name:NSViewFrameDidChangeNotification
               object:text];
  [center addObserver:self
             selector:@selector(update)
                 name:NSTextViewDidChangeSelectionNotification
               object:text];
  return self;
}

- (void)dealloc {
  [[NSNotificationCenter defaultCenter] removeObserver:self];
  [_text release];
  [super dealloc];
}

- (void)update {
  [self setNeedsDisplay:YES];
}

- (BOOL)isFlipped {
  return YES;
}

- (BOOL)isOpaque {
  return YES;
}

- (NSUInteger)firstNumber {
  return _shownFirst;
}

- (NSUInteger)lastNumber {
  return _shownLast;
}

- (void)drawNumber:(NSUInteger)number atLine:(NSRect)line caret:(BOOL)caret {
  line.origin.y += [_text textContainerOrigin].y;
  const NSRect place = [self convertRect:line fromView:_text];
  const NSRect row = NSMakeRect(0, NSMinY(place), kWidth, NSHeight(place));
  if (caret) {
    [GalleryColor(0x2F6FDE, 0.12) set];
    NSRectFillUsingOperation(row, NSCompositeSourceOver);
  }
  GalleryDrawText([NSString stringWithFormat:@"%lu", static_cast<unsigned long>(number)],
                  NSMakeRect(0, NSMinY(row), kWidth - 10, NSHeight(row)), GalleryFont(11),
                  caret ? GalleryAccentColor() : GalleryQuietTextColor(), NSRightTextAlignment);
  if (_shownFirst == 0) _shownFirst = number;
  _shownLast = number;
}

static BOOL isBreak(unichar character) { return character == '\n' || character == '\r'; }

- (void)drawRect:(NSRect)rect {
  (void)rect;
  [GalleryWindowColor() set];
  NSRectFill([self bounds]);
  [GalleryLineColor() set];
  NSRectFill(NSMakeRect(kWidth - 1, 0, 1, NSHeight([self bounds])));
  _shownFirst = _shownLast = 0;

  NSString *string = [_text string];
  NSLayoutManager *layout = [_text layoutManager];
  NSTextContainer *container = [_text textContainer];
  const NSUInteger caretLine =
      OvTextViewGetLineIndexFromLocation(string, [_text selectedRange].location);
  NSRect visible = [_text visibleRect];
  visible.origin.y -= [_text textContainerOrigin].y;
  const NSRange glyphs = [layout glyphRangeForBoundingRect:visible inTextContainer:container];

  // Numbered from the first line that can be seen; a line may be broken into several rows.
  NSUInteger glyph = glyphs.location;
  NSUInteger line = OvTextViewGetLineIndexFromLocation(
      string, glyphs.length ? [layout characterIndexForGlyphAtIndex:glyph] : 0);
  while (glyph < NSMaxRange(glyphs)) {
    NSRange row = NSMakeRange(glyph, 1);
    const NSRect place = [layout lineFragmentRectForGlyphAtIndex:glyph effectiveRange:&row];
    const NSRange characters = [layout characterRangeForGlyphRange:row actualGlyphRange:NULL];
    const NSUInteger start = characters.location;
    if (start == 0 || isBreak([string characterAtIndex:start - 1])) {
      [self drawNumber:line + 1 atLine:place caret:line == caretLine];
    }
    line += OvTextViewGetLineCount([string substringWithRange:characters]) - 1;
    glyph = MAX(NSMaxRange(row), glyph + 1);
  }

  const NSUInteger length = [string length];
  if (length > 0 && !isBreak([string characterAtIndex:length - 1])) return;
  // The empty line at the end.
  NSRect last = [layout extraLineFragmentRect];
  if (NSHeight(last) <= 0) last.size.height = [[_text font] defaultLineHeightForFont];
  const NSUInteger lastLine = OvTextViewGetLineCount(string) - 1;
  if (NSMinY(last) <= NSMaxY(visible)) {
    [self drawNumber:lastLine + 1 atLine:last caret:lastLine == caretLine];
  }
}

@end
