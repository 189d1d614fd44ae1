// What the scroller's tests share: a scroller whose arrows stand where a test wants them, and that
// tells what is done to it; parts that write down how they are drawn; and images of parts, made
// by the test, that the library finds in its bundles.

#pragma once

#import <OvAppKit/HXDictionaryImageContainer.h>
#import <OvAppKit/HXScroller.h>

#include <string>
#include <utility>
#include <vector>

#import "LiveTest.h"

namespace ov::test {

using Lines = std::vector<std::string>;

// What happened, in order.
Lines &journal();
// The journal since the last call.
Lines takeJournal();

// "0 134 18 14"
std::string text(NSRect rect);

// All part names, in the order of HXScroller.h.
NSArray *partNames();

// The size of a part's picture in a vertical scroller: arrows 10 long, those that meet the slot
// 14, end caps 3, the knob's caps 6 and 5 and narrower than its body, which is narrower than the
// slot, 18.
NSSize sizeOfPart(NSString *name, bool horizontal);

// Gives the scroller parts that write into the journal, "KnobBody default 0 134 18 14", instead
// of being drawn. A part without the states named is as if the image had not those.
void setRecordingParts(HXScroller *scroller, NSArray *names, NSArray *missingStates = nil);
void setRecordingParts(HXScroller *scroller);

// While it exists, every bundle has images of all parts: each state a tile with a colour of its
// own, and the quarter at the top left black.
class PartImages {
 public:
  PartImages();
  ~PartImages();
  PartImages(const PartImages &) = delete;
  PartImages &operator=(const PartImages &) = delete;

  // What was asked for, and of which bundle.
  static std::vector<std::pair<NSBundle *, std::string>> &requests();
  // Of the tile, with states counted as HXScroller.h tells.
  static Pixel color(NSString *part, int state);

 private:
  IMP original_;
};

}  // namespace ov::test

// Journal: "marked 0 10 18 30", and what its parts write.
@interface OvTestScroller : HXScroller {
 @public
  bool unflipped;
  bool isMarking;  // whether marks go to the journal
  int hitPartReads;
  NSRect knob;  // instead of the real one, unless empty
}
// Where the arrows of these stand; 1 before every test.
+ (void)setArrows:(int)configuration;
@end

// Journal: "will 4", "did 4"; with that, it runs what it was given.
@interface OvTestScrollerDelegate : NSObject {
 @public
  std::function<void()> onWill;
  std::function<void()> onDid;
}
@end

namespace ov::test {

class ScrollerTest : public LiveTest {
 protected:
  void SetUp() override;

  // In the content view, at (20, 20), enabled and half as long as what it scrolls, in the middle.
  OvTestScroller *makeScroller(NSWindow *window, bool horizontal, CGFloat length);
  template <typename Class>
  Class *addScroller(NSWindow *window, Class *scroller) {
    [scroller setKnobProportion:0.5];
    [scroller setFloatValue:0.5F];
    [[window contentView] addSubview:scroller];
    return scroller;
  }
};

inline constexpr int kThemes[] = {HXScrollerAppearanceMetal, HXScrollerAppearanceBlack};

}  // namespace ov::test
