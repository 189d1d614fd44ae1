// What the tests of image pop-up buttons share: a cell that remembers what it draws, and buttons in
// a window.

#pragma once

#import <OvAppKit/HXImagePopUpButton.h>
#import <OvAppKit/HXImagePopUpButtonCell.h>

#import "ButtonTest.h"

/* Remembers what it was asked to draw, in order: "frame", "accessory" and the titles. */
@interface OvTestPopUpCell : HXImagePopUpButtonCell {
 @public
  std::vector<std::string> steps;
  NSAttributedString *lastTitle;
  NSRect lastTitleRect;
  BOOL hidesAttributedTitles;
  BOOL hasNoTitleRect;
}
@end

/* Whose cells remember. */
@interface OvTestPopUpButton : HXImagePopUpButton {
 @public
  BOOL notFlipped;
  int marks;
}
@end

namespace ov::test {

class ImagePopUpTest : public ImageButtonTest {
 protected:
  // A button at (40, 30), 100 x 20, in a white ground that fills a new window of 300 x 200, with
  // the items One, Two and Three; the pointer is elsewhere.
  OvTestPopUpButton *makePopUp(bool flipped = true);
  OvTestPopUpCell *cellOf(HXImagePopUpButton *button) { return (OvTestPopUpCell *)[button cell]; }
  // Draws the button, and answers which variation it asked for.
  int shownBy(HXImagePopUpButton *button);
};

}  // namespace ov::test
