#include "imagecontrols/FrameBudget.h"

#include <algorithm>
#include <map>
#include <numeric>
#include <utility>

namespace ov {

namespace {

struct Load {
  std::size_t bytes = 0;
  std::size_t frames = 0;

  void add(const HeldFrame& frame) {
    bytes += frame.bytes;
    ++frames;
  }
  void remove(const HeldFrame& frame) {
    bytes -= frame.bytes;
    --frames;
  }
};

}  // namespace

std::vector<std::size_t> framesToDrop(const std::vector<HeldFrame>& held,
                                      const FrameLimits& limits) {
  Load all;
  std::map<const void*, Load> ofOwner;
  for (const HeldFrame& frame : held) {
    all.add(frame);
    ofOwner[frame.owner].add(frame);
  }
  std::vector<std::size_t> oldestFirst(held.size());
  std::iota(oldestFirst.begin(), oldestFirst.end(), std::size_t{0});
  std::ranges::sort(oldestFirst, {},
                    [&held](std::size_t i) { return std::pair(held[i].lastUse, i); });

  std::vector<std::size_t> dropped;
  std::vector<std::size_t> kept;
  for (const std::size_t i : oldestFirst) {
    Load& load = ofOwner[held[i].owner];
    if (load.bytes <= limits.bytesOfOwner && load.frames <= limits.framesOfOwner) {
      kept.push_back(i);
      continue;
    }
    load.remove(held[i]);
    all.remove(held[i]);
    dropped.push_back(i);
  }
  for (const std::size_t i : kept) {
    if (all.bytes <= limits.bytes && all.frames <= limits.frames) break;
    all.remove(held[i]);
    dropped.push_back(i);
  }
  return dropped;
}

}  // namespace ov
