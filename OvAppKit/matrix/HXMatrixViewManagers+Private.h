// A grid leaves its managers alive when it goes; from then on they serve nobody.

#pragma once

#import <OvAppKit/HXMatrixViewMouseTrackingManager.h>
#import <OvAppKit/HXMatrixViewToolTipManager.h>

@interface HXMatrixViewMouseTrackingManager (OvPrivate)
- (void)_matrixViewWillDeallocate;
@end

@interface HXMatrixViewToolTipManager (OvPrivate)
- (void)_matrixViewWillDeallocate;
@end
