#import <OvAppKit/OvVPFormatter.h>

/** No colon, for a component of a path, and on request no period at its head. init sets the
    valid set to everything but ":"; an owner may set another. */
@interface OvVPPathFormatter : OvVPFormatter {
  BOOL _allowPeriodAtTheHead;
}

/** Whether the text may begin with ".", which hides a file. Default YES. With NO an edit that
    would is refused, with a beep and the caret at 0, and loses its first character; only that
    one goes in one edit, and the rest is not looked at ("..x" becomes ".x"). */
- (void)setAllowPeriodAtTheHead:(BOOL)flag;
- (BOOL)allowPeriodAtTheHead;

@end
