// A question to a delegate whose answer is a coordinate.

#pragma once

#import <AppKit/AppKit.h>

namespace ov {

// The delegate's answer to "splitView:constrain…:ofSubviewAt:"; proposed if it has no such
// method, or its answer is no finite number. The method may take and answer float or
// CGFloat: hosts have been written against either.
float askConstraint(NSSplitView *splitView, SEL question, float proposed, NSInteger index);

}  // namespace ov
