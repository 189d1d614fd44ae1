#import <OvAppKit/OvVPAlphabetFormatter.h>

@implementation OvVPAlphabetFormatter

- (id)init {
  self = [super init];
  if (self != nil) {
    [self setValidCharacterSet:[NSCharacterSet
                                   characterSetWithCharactersInString:
                                       @"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz"]];
  }
  return self;
}

@end
