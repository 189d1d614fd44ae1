#import <Foundation/Foundation.h>

#import <OvFoundation/OvDefines.h>

/** The order of two integers: ascending when the first is smaller, descending when
    it is larger, else same. Right for every pair, also where their difference would
    overflow. */
OV_EXPORT NSComparisonResult HXCompareNSInteger(NSInteger first, NSInteger second);
