#import <OvAppKit/HXMatrixView.h>
#include "matrix/GridGeometry.h"
@implementation HXMatrixView
- (void)foo { ov::f(); }
@end
