#import "text/OvTextFieldCell.h"

#import "platform/ShadowedText.h"
#import "support/Retained.h"

@implementation OvTextFieldCell

- (id)initTextCell:(NSString *)string {
  self = [super initTextCell:string];
  if (self != nil) [self __setup];
  return self;
}

- (id)initImageCell:(NSImage *)image {
  self = [super initImageCell:image];
  if (self != nil) [self __setup];
  return self;
}

- (id)initWithCoder:(NSCoder *)coder {
  self = [super initWithCoder:coder];
  if (self != nil) [self __setup];
  return self;
}

- (id)copyWithZone:(NSZone *)zone {
  OvTextFieldCell *copy = [super copyWithZone:zone];
  // The platform's copy is one of the bytes: both would own the one shadow.
  copy->__embossParams = [__embossParams copyWithZone:zone];
  return copy;
}

- (void)dealloc {
  [__embossParams release];
  [super dealloc];
}

- (void)__setup {
  [__embossParams release];
  __embossParams = [[NSShadow alloc] init];
  [__embossParams setShadowBlurRadius:0];
  [__embossParams setShadowColor:[NSColor colorWithDeviceWhite:1.0 alpha:0.8]];
  [__embossParams setShadowOffset:NSMakeSize(1.0, -1.0)];
  __isEmboss = NO;
}

- (void)setEmboss:(BOOL)flag {
  __isEmboss = flag;
}

- (BOOL)isEmboss {
  return __isEmboss;
}

- (void)setEmbossOffset:(NSSize)offset {
  [__embossParams setShadowOffset:offset];
}

- (NSSize)embossOffset {
  return [__embossParams shadowOffset];
}

- (void)setEmbossColor:(NSColor *)color {
  [__embossParams setShadowColor:color];
}

- (NSColor *)embossColor {
  return [__embossParams shadowColor];
}

- (void)drawInteriorWithFrame:(NSRect)frame inView:(NSView *)view {
  if ([self isEmboss] != YES) {
    [super drawInteriorWithFrame:frame inView:view];
    return;
  }
  const auto copy = ov::adopt([[self attributedStringValue] mutableCopy]);
  NSMutableAttributedString *text = copy.get();
  [text addAttribute:NSShadowAttributeName
               value:__embossParams
               range:NSMakeRange(0, [text length])];
  OvDrawShadowedString(text, NSInsetRect(frame, 2.0, 1.0), [view isFlipped]);
}

@end
