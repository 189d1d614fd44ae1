// How many composed frames are kept, and which go first.

#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace ov {

struct HeldFrame {
  const void* owner = nullptr;
  std::size_t bytes = 0;
  std::uint64_t lastUse = 0;  // greater is later
};

struct FrameLimits {
  // Of one frame; a larger one is not composed.
  std::size_t bytesOfFrame = std::size_t{2} << 20;
  std::size_t bytesOfOwner = std::size_t{4} << 20;
  std::size_t bytes = std::size_t{8} << 20;
  std::size_t framesOfOwner = 64;
  std::size_t frames = 256;
};

// The indices of those that have to go so that the rest keeps to the limits, the longest unused
// first: of an owner that holds too much its own, then whoever's.
std::vector<std::size_t> framesToDrop(const std::vector<HeldFrame>& held,
                                      const FrameLimits& limits);

}  // namespace ov
