#import "imagecontrols/HXImageButton.h"

#include "imagecontrols/FaceOfCell.h"
#import "imagecontrols/HXImageButtonCell.h"

#include "platform/MenuPopUp.h"
#include "support/HoverTracking.h"
#include "support/MouseEventCopy.h"

namespace {

// How far below the button its menu opens.
constexpr CGFloat kMenuDistance = 5;

// The place in the window where the top left corner of the button's menu belongs.
NSPoint menuAnchor(NSView *button) {
  NSView *superview = [button superview];
  NSRect frame = [button frame];
  NSPoint anchor = frame.origin;
  if ([superview isFlipped])
    anchor.y = NSMaxY(frame) + kMenuDistance;
  else
    anchor.y = NSMinY(frame) - kMenuDistance;
  return [superview convertPoint:anchor toView:nil];
}

}  // namespace

@implementation HXImageButton

+ (Class)cellClass {
  return [HXImageButtonCell class];
}

- (id)initWithFrame:(NSRect)frame {
  self = [super initWithFrame:frame];
  if (self != nil) delegate = nil;
  return self;
}

- (id)initWithCoder:(NSCoder *)coder {
  self = [super initWithCoder:coder];
  // The platform's flag comes out of the archive with the cell.
  if (self != nil) ov::setHoverTracking(self, [self showsBorderOnlyWhileMouseInside]);
  return self;
}

- (void)dealloc {
  ov::setHoverTracking(self, NO);
  [super dealloc];
}

- (void)setDelegate:(id)newDelegate {
  delegate = newDelegate;
}

- (id)delegate {
  return delegate;
}

- (HXImageButtonCell *)imageButtonCell {
  id cell = [self cell];
  return [cell isKindOfClass:[HXImageButtonCell class]] ? cell : nil;
}

- (void)setImageContainer:(HXImageControlImageContainer *)container {
  ov::setImageContainerOfButton(self, [self imageButtonCell], container);
}

- (HXImageControlImageContainer *)imageContainer {
  return [[self imageButtonCell] imageContainer];
}

- (void)setShowsBorderOnlyWhileMouseInside:(BOOL)flag {
  [super setShowsBorderOnlyWhileMouseInside:flag];
  ov::setHoverTracking(self, flag);
}

- (NSMenu *)menuForEvent:(NSEvent *)event {
  return [super menuForEvent:event];
}

- (BOOL)_allowsContextMenus {
  return NO;
}

- (void)mouseDown:(NSEvent *)event {
  NSPoint location = [self convertPoint:[event locationInWindow] fromView:nil];
  if (!NSPointInRect(location, [self bounds])) return;

  NSMenu *menu = [self menuForEvent:event];
  if (menu == nil) {
    [super mouseDown:event];
    return;
  }
  if ([self isEnabled]) [self popUpMenu:menu forEvent:event];
}

- (void)popUpMenu:(NSMenu *)menu forEvent:(NSEvent *)event {
  // The delegate, or an item's action, may take the button out of its window, or give it another
  // cell.
  [[self retain] autorelease];
  NSCell *cell = [[[self cell] retain] autorelease];
  [[menu retain] autorelease];

  [cell setHighlighted:YES];
  [self setNeedsDisplay:YES];
  @try {
    if ([delegate respondsToSelector:@selector(imageButton:willPopUpMenu:)])
      [delegate imageButton:self willPopUpMenu:menu];
    NSFont *font = [NSFont menuFontOfSize:[NSFont systemFontSizeForControlSize:[cell controlSize]]];
    ov::popUpMenu(menu, ov::mouseEventLike(event, NSLeftMouseDown, menuAnchor(self)), self, font);
  } @finally {
    [cell setHighlighted:NO];
    [self setNeedsDisplay:YES];
  }
}

- (void)rightMouseDown:(NSEvent *)event {
}

@end
