#import <OvAppKit/OvVPNumberFormatter.h>

@implementation OvVPNumberFormatter

- (id)init {
  self = [super init];
  if (self != nil) {
    [self setValidCharacterSet:[NSCharacterSet characterSetWithCharactersInString:@"0123456789"]];
  }
  return self;
}

@end
