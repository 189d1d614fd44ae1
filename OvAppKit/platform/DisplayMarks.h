// Marks many subviews of one view for display.
//
// The platform's setNeedsDisplay: makes two objects, converts the rectangle to the nearest
// opaque ancestor and walks up the hierarchy, for each view anew: as long as giving the view
// its frame. Here the walk is made once for all. A view of a class that has a say in its
// marking is told as usual.
// Removable once the platform's marks are cheap.

#pragma once

#import <AppKit/AppKit.h>

namespace ov {

class DisplayMarks {
 public:
  explicit DisplayMarks(NSView *parent) : parent_(parent) {}
  // Tells the parent and all above it.
  ~DisplayMarks() { [parent_ setNeedsDisplayInRect:area_]; }
  DisplayMarks(const DisplayMarks &) = delete;
  DisplayMarks &operator=(const DisplayMarks &) = delete;

  // All of a subview, as setNeedsDisplay: does.
  void add(NSView *subview);
  // Of the parent itself.
  void add(NSRect area) { area_ = NSUnionRect(area_, area); }

 private:
  bool marksLikeThePlatform(Class kind);

  NSView *parent_;  // not retained
  NSRect area_ = NSZeroRect;
  Class asked_ = Nil;  // the class of the last subview
  bool answer_ = false;
};

// The view's own list of subviews, for a quick look: -subviews makes a copy.
NSArray *subviewsOf(NSView *view);

}  // namespace ov
