#import "shell/GalleryValueList.h"

#import "shell/GalleryStyle.h"

static const CGFloat kRowHeight = 20;

@implementation GalleryValueList

+ (CGFloat)heightForCount:(NSUInteger)count {
  return count * kRowHeight;
}

- (id)initWithNames:(NSArray *)names {
  self = [super initWithFrame:NSZeroRect];
  if (self) _names = [names copy];
  return self;
}

- (void)dealloc {
  [_names release];
  [_values release];
  [super dealloc];
}

- (BOOL)isFlipped {
  return YES;
}

- (void)setValues:(NSArray *)values {
  if ([values isEqual:_values]) return;
  [_values autorelease];
  _values = [values copy];
  [self setNeedsDisplay:YES];
}

- (void)drawRect:(NSRect)rect {
  (void)rect;
  NSRect row = NSMakeRect(0, 0, NSWidth([self bounds]), kRowHeight);
  NSUInteger i = 0;
  for (NSString *name in _names) {
    GalleryDrawText(name, row, GalleryFont(11), GalleryQuietTextColor(), NSLeftTextAlignment);
    if (i < [_values count]) {
      GalleryDrawText([_values objectAtIndex:i], row, GalleryFont(11), GalleryTextColor(),
                      NSRightTextAlignment);
    }
    ++i;
    [GalleryLineColor() set];
    NSRectFill(NSMakeRect(0, NSMaxY(row) - 1, NSWidth(row), 1));
    row.origin.y += kRowHeight;
  }
}

@end
