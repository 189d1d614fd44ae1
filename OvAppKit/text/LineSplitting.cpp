#include "text/LineSplitting.h"

#include <algorithm>
#include <array>
#include <ranges>

namespace ov {

namespace {

using Block = std::array<char16_t, kTextBlockLength>;

// Calls `visit` with the place of each break before `end`, until it answers false.
template <class Visit>
void visitBreaks(const TextUnits& text, std::size_t end, Visit visit) {
  Block block;
  for (std::size_t start = 0; start < end;) {
    const std::span units = std::span(block).first(std::min(block.size(), end - start));
    text.copy(start, units);
    for (std::size_t i = 0; i < units.size(); i++) {
      if (isLineBreak(units[i]) && !visit(start + i)) return;
    }
    start += units.size();
  }
}

}  // namespace

std::size_t lineBreaksBefore(const TextUnits& text, std::size_t location) {
  std::size_t count = 0;
  visitBreaks(text, std::min(location, text.length()), [&](std::size_t) {
    count++;
    return true;
  });
  return count;
}

std::size_t lineCount(const TextUnits& text) { return 1 + lineBreaksBefore(text, text.length()); }

LineExtent lineAtIndex(const TextUnits& text, std::size_t index) {
  LineExtent line = {0, text.length()};
  std::size_t passed = 0;
  visitBreaks(text, text.length(), [&](std::size_t place) {
    if (passed == index) {
      line.end = place;
      return false;
    }
    passed++;
    line.start = place + 1;
    return true;
  });
  return passed == index ? line : LineExtent{};
}

LineExtent lineBeforeLocation(const TextUnits& text, std::size_t location) {
  Block block;
  for (std::size_t end = location; end > 0;) {
    const std::span units = std::span(block).first(std::min(block.size(), end));
    const std::size_t start = end - units.size();
    text.copy(start, units);
    const auto backward = units | std::views::reverse;
    const auto found = std::ranges::find_if(backward, isLineBreak);
    if (found != backward.end()) {
      return {end - static_cast<std::size_t>(found - backward.begin()), location};
    }
    end = start;
  }
  return {0, location};
}

void forEachFilledLine(const TextUnits& text, const std::function<void(LineExtent)>& show) {
  std::size_t start = 0;
  visitBreaks(text, text.length(), [&](std::size_t place) {
    if (place > start) show({start, place});
    start = place + 1;
    return true;
  });
  if (text.length() > start) show({start, text.length()});
}

}  // namespace ov
