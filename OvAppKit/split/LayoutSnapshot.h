// A layout as it is saved, written out only when somebody reads it.

#pragma once

#import <Foundation/Foundation.h>

#include <vector>

namespace ov {

struct SavedPane {
  NSRect frame = NSZeroRect;
  bool collapsed = false;
};

struct SavedLayout {
  bool vertical = false;
  std::vector<SavedPane> panes;
};

}  // namespace ov

// The keys of a saved layout.
extern NSString *const OvLayoutVersionKey;
extern NSString *const OvLayoutIsVerticalKey;
extern NSString *const OvLayoutSubviewsKey;
extern NSString *const OvLayoutFrameKey;
extern NSString *const OvLayoutCollapsedKey;

// A new, autoreleased property list.
NSMutableDictionary *OvPropertyListOfLayout(const ov::SavedLayout &layout);

// Equal to that property list, and made for the price of a few numbers.
@interface _OvLayoutSnapshot : NSDictionary {
  ov::SavedLayout _layout;
  NSDictionary *_written;
}
- (id)initWithLayout:(ov::SavedLayout)layout;
@end
