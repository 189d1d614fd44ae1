// Which scrollers a document needs that is to be seen whole with as few as possible. A scroller
// takes room from the other direction, so that one may call for the other.

#pragma once

#include "geometry/Geometry.h"

namespace ov {

struct NeededScrollers {
  bool horizontal = false;
  bool vertical = false;
  friend bool operator==(const NeededScrollers&, const NeededScrollers&) = default;
};

// room is what there is without scrollers; taken is the width that a vertical one takes of it,
// and the height that a horizontal one does.
NeededScrollers neededScrollers(const Size& document, const Size& room, const Size& taken);

}  // namespace ov
