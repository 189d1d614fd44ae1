// What the files of OvTextView share.

#pragma once

#import <OvAppKit/OvTextView.h>

#include <cstdint>

#import "support/Retained.h"
#import "support/ValidatedEditing.h"

struct OvTextViewState {
  ov::ValidatedEditing editing;
  // The platform says that the view became first responder at the first key again, and
  // whenever its window becomes key.
  bool announcedFirstResponder = false;
  // Tab is being handled as a field editor would.
  bool leavingByTab = false;
  // Grows with every change that the user makes.
  uint64_t changes = 0;
  // Where the view's changes were registered.
  ov::Retained<NSUndoManager *> undoManager = {};
};

@interface OvTextView (OvPrivate)

- (void)_ovPost:(NSString *)name userInfo:(NSDictionary *)userInfo;
// With the text of a line, or without user info for nil.
- (void)_ovPost:(NSString *)name line:(NSString *)line;

@end
