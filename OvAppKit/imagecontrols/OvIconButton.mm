#import <OvAppKit/OvIconButton.h>
#import <OvAppKit/OvIconButtonCell.h>

@implementation OvIconButton

- (id)initWithFrame:(NSRect)frame {
  self = [super initWithFrame:frame];
  if (self != nil) [self _setup];
  return self;
}

- (id)initWithCoder:(NSCoder *)coder {
  self = [super initWithCoder:coder];
  if (self != nil) [self _setup];
  return self;
}

- (void)_setup {
  [self _setupButtonCell];
  [self setBordered:NO];
  [[self cell] setImagePosition:NSImageOnly];
  [[self cell] setHighlightsBy:NSNoCellMask];
}

- (void)_setupButtonCell {
  NSCell *former = [self cell];
  const SEL action = [self action];
  NSString *title = [former title];
  OvIconButtonCell *cell =
      [[OvIconButtonCell allocWithZone:[self zone]] initTextCell:title != nil ? title : @""];
  [cell setMenu:[former menu]];
  [cell setControlSize:[former controlSize]];
  [self setCell:cell];
  [cell release];
  [self setAction:action];
}

- (OvIconButtonCell *)_ovCell {
  id cell = [self cell];
  return [cell isKindOfClass:[OvIconButtonCell class]] ? cell : nil;
}

- (void)setHighlightImage:(NSImage *)image {
  [[self _ovCell] setHighlightImage:image];
}

- (NSImage *)highlightImage {
  return [[self _ovCell] highlightImage];
}

@end
