#import <OvAppKit/HXMatrixView.h>
#import <OvAppKit/HXMatrixViewToolTipManager.h>

#import "matrix/HXMatrixView+Private.h"
#import "matrix/HXMatrixViewManagers+Private.h"

@implementation HXMatrixViewToolTipManager

- (id)initWithMatrixView:(HXMatrixView *)matrixView {
  self = [super init];
  if (self != nil) {
    _matrixView = matrixView;
    [self resetAllToolTips];
  }
  return self;
}

- (void)dealloc {
  [self removeAllToolTips];
  [super dealloc];
}

- (void)resetAllToolTips {
  [self removeAllToolTips];
  if ([_matrixView _ovAddToolTipsForItemsWithOwner:self]) return;
  const NSUInteger count = [_matrixView numberOfItems];
  for (NSUInteger i = 0; i < count; ++i) {
    [_matrixView addToolTipRect:[_matrixView frameOfCellAtItemIndex:i]
                          owner:self
                       userData:reinterpret_cast<void *>(i)];
  }
}

- (void)removeAllToolTips {
  [_matrixView removeAllToolTips];
}

- (NSString *)view:(NSView *)view
    stringForToolTip:(NSToolTipTag)tag
               point:(NSPoint)point
            userData:(void *)userData {
  (void)view;
  (void)tag;
  (void)point;
  return [[_matrixView delegate] matrixView:_matrixView
                         toolTipAtItemIndex:reinterpret_cast<NSUInteger>(userData)];
}

- (void)_matrixViewWillDeallocate {
  _matrixView = nil;
}

@end
