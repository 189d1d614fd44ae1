// Where a dragged divider goes, and which of its two panes it collapses on the way.
//
//   min   collapse    low                 high   collapse   max
//    |    before       |                    |     behind     |
//    +-------:---------+--------------------+--------:-------+
//    |///////:         |                    |        :///////|
//     pane   : divider |    divider is      | divider: pane
//     before : stays   |    where the       | stays  : behind
//     goes   : at low  |    pointer is      | at high: goes
//
// min and max are the outer edges of the two panes, low and high the limits within which the
// divider moves; half way between an edge and its limit the pane collapses, if it may.
// Positions are single precision.

#pragma once

namespace ov {

struct DragLimits {
  float min = 0;
  float max = 0;
  float low = 0;
  float high = 0;
};

// The limits from what was asked for; limits that cross count for nothing, like answers that
// are no numbers.
DragLimits dragLimits(float min, float max, float askedLow, float askedHigh);

struct DragStep {
  // A divider that is held at a limit may be placed by somebody else.
  enum class Held { kNowhere, kAtLow, kAtHigh };

  float position = 0;
  bool collapsesBefore = false;
  bool collapsesBehind = false;
  // The pane behind is to be told first.
  bool behindFirst = false;
  Held held = Held::kNowhere;

  friend bool operator==(const DragStep&, const DragStep&) = default;
};

DragStep dragStep(const DragLimits& limits, bool mayCollapseBefore, bool mayCollapseBehind,
                  float pointer);

}  // namespace ov
