#include "scrolling/NeededScrollers.h"

namespace ov {

NeededScrollers neededScrollers(const Size& document, const Size& room, const Size& taken) {
  const bool tooWide = document.width > room.width;
  const bool tooHigh = document.height > room.height;
  return {.horizontal = tooWide || (tooHigh && document.width > room.width - taken.width),
          .vertical = tooHigh || (tooWide && document.height > room.height - taken.height)};
}

}  // namespace ov
