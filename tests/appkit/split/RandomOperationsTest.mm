#import "SplitTest.h"
