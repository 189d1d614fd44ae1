#import <OvAppKit/OvVPSjisFormatter.h>

#import "text/MultibyteEncoding.h"
#import "text/RefusedEdit.h"
#import "text/StringPart.h"

@implementation OvVPSjisFormatter

- (BOOL)isPartialStringValid:(NSString **)proposed
       proposedSelectedRange:(NSRange *)proposedRange
              originalString:(NSString *)original
       originalSelectedRange:(NSRange)originalRange
            errorDescription:(NSString **)error {
  (void)original;
  (void)error;
  const double limit = [_maximum doubleValue];
  // Nor for what is no number.
  if (!(limit > 0)) return YES;
  NSString *string = proposed != nullptr ? *proposed : nil;
  const std::optional<ov::ByteFit> fit = ov::fitBytes(string, limit);
  if (!fit || fit->units == [string length]) return YES;
  return ov::refuseEdit(proposed, proposedRange, ov::stringHead(string, fit->units),
                        originalRange.location);
}

@end
