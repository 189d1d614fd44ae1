#import "text/OvDatePicker.h"

@implementation OvDatePicker

- (id)initWithFrame:(NSRect)frame {
  return [super initWithFrame:frame];
}

- (void)drawRect:(NSRect)rect {
  [super drawRect:rect];
}

@end
