#import <OvFoundation/HXComparison.h>

NSComparisonResult HXCompareNSInteger(NSInteger first, NSInteger second) {
  if (first == second) return NSOrderedSame;
  return first < second ? NSOrderedAscending : NSOrderedDescending;
}
