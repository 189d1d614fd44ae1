// Graphics state that the end of a scope puts back.

#pragma once

#import <AppKit/AppKit.h>

namespace ov {

class GraphicsStateScope {
 public:
  GraphicsStateScope() { [NSGraphicsContext saveGraphicsState]; }
  ~GraphicsStateScope() { [NSGraphicsContext restoreGraphicsState]; }
  GraphicsStateScope(const GraphicsStateScope&) = delete;
  GraphicsStateScope& operator=(const GraphicsStateScope&) = delete;
};

// The default line width is the process's, not the graphics state's.
class DefaultLineWidthScope {
 public:
  explicit DefaultLineWidthScope(CGFloat width) : old_([NSBezierPath defaultLineWidth]) {
    [NSBezierPath setDefaultLineWidth:width];
  }
  ~DefaultLineWidthScope() { [NSBezierPath setDefaultLineWidth:old_]; }
  DefaultLineWidthScope(const DefaultLineWidthScope&) = delete;
  DefaultLineWidthScope& operator=(const DefaultLineWidthScope&) = delete;

 private:
  CGFloat old_;
};

}  // namespace ov
