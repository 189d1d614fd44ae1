#include "split/DividerDrag.h"

namespace ov {

DragLimits dragLimits(float min, float max, float askedLow, float askedHigh) {
  DragLimits limits = {min, max, min, max};
  // Written so that what is no number asks for nothing.
  if (askedLow > min) limits.low = askedLow;
  if (askedHigh < max) limits.high = askedHigh;
  if (limits.low > limits.high) {
    limits.low = min;
    limits.high = max;
  }
  return limits;
}

DragStep dragStep(const DragLimits& limits, bool mayCollapseBefore, bool mayCollapseBehind,
                  float pointer) {
  const float collapseBefore = limits.min + (limits.low - limits.min) * 0.5F;
  const float collapseBehind = limits.max - (limits.max - limits.high) * 0.5F;
  DragStep step;
  if (limits.min == limits.max) {  // no space for either
    step.collapsesBefore = mayCollapseBefore;
    step.collapsesBehind = mayCollapseBehind;
    step.position = limits.min;
  } else if (mayCollapseBefore && pointer < collapseBefore) {
    step.collapsesBefore = true;
    step.behindFirst = true;
    step.position = limits.min;
  } else if (pointer < limits.low) {
    step.position = limits.low;
    step.held = DragStep::Held::kAtLow;
  } else if (pointer < limits.high) {
    step.position = pointer;
  } else if (mayCollapseBehind && pointer >= collapseBehind) {
    step.collapsesBehind = true;
    step.position = limits.max;
  } else {
    step.position = limits.high;
    step.held = DragStep::Held::kAtHigh;
  }
  return step;
}

}  // namespace ov
