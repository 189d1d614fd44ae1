#include "platform/ShadowedText.h"

#include "support/Retained.h"

void OvDrawShadowedString(NSAttributedString *string, NSRect frame, BOOL flipped) {
  if ([string length] == 0) return;
  NSShadow *shadow = [string attribute:NSShadowAttributeName atIndex:0 effectiveRange:NULL];
  if ([shadow shadowColor] != nil) {
    const auto copy = ov::adopt([string mutableCopy]);
    NSMutableAttributedString *cast = copy.get();
    const NSRange all = NSMakeRange(0, [cast length]);
    [cast addAttribute:NSForegroundColorAttributeName value:[shadow shadowColor] range:all];
    [cast removeAttribute:NSBackgroundColorAttributeName range:all];
    // The offset's height is upward on the screen, whichever way the view is flipped.
    const NSSize offset = [shadow shadowOffset];
    const CGFloat dy = flipped ? -offset.height : offset.height;
    [cast drawInRect:NSOffsetRect(frame, offset.width, dy)];
  }
  [string drawInRect:frame];
}
