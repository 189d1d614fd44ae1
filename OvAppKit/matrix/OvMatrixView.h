#import <OvAppKit/HXMatrixView.h>

/** A grid with two selection rules of its own:

    - a rubber band with Shift toggles the items it covers, as one with Command does;
    - a Shift-click under linear selection extends from the lowest selected item to the
      clicked one when that is not below it; otherwise from the clicked item to the one
      selected last, as in HXMatrixView. */
@interface OvMatrixView : HXMatrixView
@end
