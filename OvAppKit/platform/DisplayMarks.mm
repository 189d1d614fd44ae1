#include "platform/DisplayMarks.h"

#include <algorithm>
#include <array>

// The platform's variables are open to its own methods only.
@interface NSView (OvDisplayMarks)
- (void)_ovMarkWithoutAncestors;
- (NSArray *)_ovOwnSubviews;
@end

@implementation NSView (OvDisplayMarks)

- (void)_ovMarkWithoutAncestors {
  _invalidRect = NSUnionRect(_invalidRect, _bounds);
  _rFlags.needs_display = YES;
}

- (NSArray *)_ovOwnSubviews {
  return _sub_views;
}

@end

namespace ov {

bool DisplayMarks::marksLikeThePlatform(Class kind) {
  if (kind != asked_) {
    const std::array<SEL, 2> messages = {
      @selector(setNeedsDisplay:),
      @selector(setNeedsDisplayInRect:)
    };
    asked_ = kind;
    answer_ = std::ranges::all_of(messages, [kind](SEL message) {
      return [kind instanceMethodForSelector:message] == [NSView instanceMethodForSelector:message];
    });
  }
  return answer_;
}

void DisplayMarks::add(NSView *subview) {
  if ([subview superview] != parent_ || !marksLikeThePlatform([subview class])) {
    [subview setNeedsDisplay:YES];
    return;
  }
  [subview _ovMarkWithoutAncestors];
  add([subview frame]);
}

NSArray *subviewsOf(NSView *view) { return [view _ovOwnSubviews]; }

}  // namespace ov
