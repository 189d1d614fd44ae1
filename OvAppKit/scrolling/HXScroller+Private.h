// What the files of the scroller share.

#pragma once

#import <OvAppKit/HXDictionaryImageContainer.h>
#import <OvAppKit/HXScroller.h>

#include "scrolling/ScrollerPieces.h"

struct OvScrollerState {
  // Where the knob is on the screen, or will be by what is marked for drawing.
  ov::Rect knob;
  // An arrow is tracked, and the pointer has left it.
  bool pointerIsAway = false;
};

@interface HXScroller (OvPrivate)
- (HXDictionaryImageContainer *)_ovContainerOf:(ov::ScrollerArt)art;
// What decides where the parts are, with images.
- (ov::ScrollerState)_ovScrollerState;
// A stretch of the scroller for drawing, across its whole thickness: images may be thicker than
// the part.
- (void)_ovMark:(const ov::Rect &)rect;
- (void)_ovFollowKeyStateOfWindow:(NSWindow *)window;
@end
