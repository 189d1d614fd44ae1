#import <OvAppKit/OvVPPathFormatter.h>

#import "text/RefusedEdit.h"
#import "text/StringPart.h"

@implementation OvVPPathFormatter

- (id)init {
  self = [super init];
  if (self != nil) {
    _allowPeriodAtTheHead = YES;
    [self setValidCharacterSet:[[NSCharacterSet characterSetWithCharactersInString:@":"]
                                   invertedSet]];
  }
  return self;
}

- (id)copyWithZone:(NSZone *)zone {
  OvVPPathFormatter *copy = [super copyWithZone:zone];
  if (copy != nil) copy->_allowPeriodAtTheHead = _allowPeriodAtTheHead;
  return copy;
}

- (void)setAllowPeriodAtTheHead:(BOOL)flag {
  _allowPeriodAtTheHead = flag;
}

- (BOOL)allowPeriodAtTheHead {
  return _allowPeriodAtTheHead;
}

- (BOOL)isPartialStringValid:(NSString **)proposed
       proposedSelectedRange:(NSRange *)proposedRange
              originalString:(NSString *)original
       originalSelectedRange:(NSRange)originalRange
            errorDescription:(NSString **)error {
  NSString *string = proposed != nullptr ? *proposed : nil;
  const NSUInteger length = [string length];
  if (!_allowPeriodAtTheHead && length > 0 && [string characterAtIndex:0] == '.') {
    NSString *rest = ov::stringPart(string, NSMakeRange(1, length - 1));
    return ov::refuseEdit(proposed, proposedRange, rest, 0);
  }
  return [super isPartialStringValid:proposed
               proposedSelectedRange:proposedRange
                      originalString:original
               originalSelectedRange:originalRange
                    errorDescription:error];
}

@end
