#import <AppKit/AppKit.h>

@class HXMatrixView;

/** Gives every item of a grid a tool tip whose text the grid's delegate supplies. The view
    has one while its delegate implements matrixView:toolTipAtItemIndex:. */
@interface HXMatrixViewToolTipManager : NSObject {
  HXMatrixView *_matrixView;
}

/** Installs the tool tips. The view is not retained. */
- (id)initWithMatrixView:(HXMatrixView *)matrixView;

/** Removes every tool tip of the view, then adds one rectangle per item, in item order:
    the item's cell frame, with this object as owner and the index as user data. */
- (void)resetAllToolTips;
/** Removes every tool tip of the view, those that a host installed included. */
- (void)removeAllToolTips;

/** The delegate's text for the item whose index is the user data. */
- (NSString *)view:(NSView *)view
    stringForToolTip:(NSToolTipTag)tag
               point:(NSPoint)point
            userData:(void *)userData;

@end
