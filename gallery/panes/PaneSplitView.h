// A split view in the gallery's style: its dividers are a thin line with a grip to take them by.
// Locked ones have no grip.
#import <OvAppKit/OvSplitView.h>

@interface PaneSplitView : OvSplitView
@end
