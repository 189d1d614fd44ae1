// What the files of the folding view share.

#pragma once

#import <OvAppKit/OvCollapsingView.h>

struct OvCollapsingViewState {
  // While the view is folded: the size that the content's own subviews are laid out for, and
  // whether the content lays them out by itself otherwise.
  bool holdsContentLayout = false;
  NSSize contentSize = {};
  BOOL contentAutoresizes = YES;
};

@interface OvCollapsingView (OvPrivate)
- (void)_setupWithSize:(int)boxSize;
- (void)_updateUI;
- (void)_toggleContentViewShown:(id)sender;
@end

@interface OvCollapsingView (OvCollapsingViewLayout)
- (void)_addInternalControls;
- (void)_removeInternalControls;
// Takes the size of the other state; _collapsed is the new state already.
- (void)_ovChangeToSize:(NSSize)size;
- (NSRect)_ovContentFrameOfHeight:(CGFloat)height;
// The content, which is folded, leaves its subviews where they are.
- (void)_ovHoldContentLayout;
// Gives a folded content the size that its subviews are laid out for, or takes it away again.
- (void)_ovShowContentLayout:(BOOL)flag;
// The content lays out its subviews by itself again.
- (void)_ovReleaseContentLayout;
@end
