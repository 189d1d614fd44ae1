#include "imagecontrols/FaceOfCell.h"

#import <OvAppKit/HXImageButtonCell.h>
#import <OvFoundation/NSString+OvFoundation.h>

#include "support/SystemFont.h"

namespace ov {
namespace {

bool pointerIsInside(NSRect frame, NSView *view) {
  NSWindow *window = [view window];
  if (window == nil) return false;
  NSPoint pointer = [view convertPoint:[window mouseLocationOutsideOfEventStream] fromView:nil];
  // A part that is scrolled out of sight is not under the pointer: nothing would tell when the
  // pointer leaves it.
  return NSPointInRect(pointer, frame) && NSPointInRect(pointer, [view visibleRect]);
}

}  // namespace

void setImageContainerOfButton(NSButton *button, id cell, HXImageControlImageContainer *container) {
  if (cell == nil || [cell imageContainer] == container) return;
  [cell setImageContainer:container];
  [button setNeedsDisplay:YES];
  [button setShowsBorderOnlyWhileMouseInside:
              [container containsImageVariation:HXImageControlImageVariationMouseOver
                                   forImagePart:HXImageControlImagePartCenter]];
}

ButtonState stateOfCell(NSButtonCell *cell, NSRect frame, NSView *view) {
  return {.enabled = static_cast<bool>([cell isEnabled]),
          .highlighted = static_cast<bool>([cell isHighlighted]),
          .on = [cell state] == NSOnState,
          .showsStateByImage = ([cell showsStateBy] & NSChangeGrayCellMask) != 0,
          .mouseInside = pointerIsInside(frame, view)};
}

NSAttributedString *titleOfCell(NSButtonCell *cell, FaceTitle which, CGFloat width, int truncCode) {
  // A pop-up button's cell without items has no title, and raises when it is asked for an
  // attributed one.
  NSString *plain = [cell title];
  if (plain == nil) return nil;

  if (which == FaceTitle::kAlternate) {
    NSAttributedString *alternate = [cell attributedAlternateTitle];
    if ([alternate length] > 0) return alternate;
  }
  NSAttributedString *ordinary = [cell attributedTitle];
  if ([ordinary length] > 0) return ordinary;

  NSString *shortened = [plain truncateControlStringWithDrawingWidth:static_cast<float>(width)
                                                           truncCode:truncCode
                                                         controlSize:[cell controlSize]];
  if ([shortened length] == 0) return nil;
  NSDictionary *attributes = [NSDictionary dictionaryWithObject:systemFont([cell controlSize])
                                                         forKey:NSFontAttributeName];
  return [[[NSAttributedString alloc] initWithString:shortened attributes:attributes] autorelease];
}

}  // namespace ov
