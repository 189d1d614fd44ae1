// What the tests of image buttons share: artwork made of plain colours that remembers what it was
// asked to draw, a cell that remembers its titles, and buttons in a window.

#pragma once

#import <OvAppKit/HXImageButton.h>
#import <OvAppKit/HXImageButtonCell.h>
#import <OvAppKit/HXImageSegment.h>

#import "LiveTest.h"

#include <string>
#include <vector>

namespace ov::test {

inline constexpr Pixel kGray{128, 128, 128, 255};
inline constexpr Pixel kYellow{255, 255, 0, 255};

// The colour of each variation's frame.
inline constexpr Pixel kVariationColors[] = {kWhite, kRed, kBlue, kGreen, kGray};

// A segment of one colour.
HXImageSegment* colorSegment(const Pixel& color, NSSize size);
// Black over yellow: upright when the black half is at the visible top.
HXImageSegment* blackOverYellow(NSSize size);

struct Drawn {
  static constexpr int kFrame = -1;
  int part;  // kFrame for the whole frame
  int variation;
  NSRect rect;
  bool flipped;
  friend bool operator==(const Drawn&, const Drawn&) = default;
};
std::ostream& operator<<(std::ostream& out, const Drawn& drawn);

}  // namespace ov::test

/* Remembers what controls ask for; the pieces of the frame itself are left out. */
@interface OvTestArtwork : HXImageControlImageContainer {
 @public
  std::vector<ov::test::Drawn> drawn;
}
/* Centers of plain colours, for Default and for the variations given. */
+ (OvTestArtwork*)artworkWithVariations:(std::vector<int>)variations;
- (void)setColor:(const ov::test::Pixel&)color
              size:(NSSize)size
           forPart:(HXImageControlImagePart)part
    imageVariation:(HXImageControlImageVariation)variation;
/* The variation of the last frame; -1 for none. */
- (int)lastVariation;
@end

/* Remembers the titles that it draws. */
@interface OvTestImageCell : HXImageButtonCell {
 @public
  std::vector<std::string> titles;
  NSAttributedString* lastTitle;
  NSRect lastTitleRect;
  BOOL hidesAttributedTitles;
}
@end

/* Counts what is sent to it. */
@interface OvTestReceiver : NSObject {
 @public
  int actions;
  int rightPresses;
  id sender;
}
- (void)act:(id)from;
@end

/* Flipped on demand, and white. */
@interface OvTestGround : NSView {
 @public
  BOOL flipped;
  int rightPresses;
}
@end

namespace ov::test {

class ImageButtonTest : public LiveTest {
 protected:
  void SetUp() override;

  // A button at (40, 30), 100 x 20, in a ground that fills a new window of 300 x 200; without a
  // title.
  HXImageButton* makeButton(bool flippedGround = false);
  OvTestGround* groundOf(NSView* button) { return (OvTestGround*)[button superview]; }
  // Puts one in the cell's place that remembers titles.
  OvTestImageCell* rememberTitles(HXImageButton* button);

  // Puts the real pointer there, in the view's coordinates, and waits until the window knows.
  void movePointerTo(NSView* view, NSPoint point);
  // Far from every window of the test.
  void movePointerAway(NSView* view);

  // Draws the button, and answers which variation it asked for.
  int variationOf(HXImageButton* button);
};

}  // namespace ov::test
