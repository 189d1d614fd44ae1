#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <string>
#include <vector>

#include "Random.h"
#include "imagecontrols/FrameBudget.h"

namespace ov {
namespace {

constexpr FrameLimits kLimits{100, 200, 300, 3, 5};
const int kA = 0;
const int kB = 0;
const int kC = 0;

using Dropped = std::vector<std::size_t>;

TEST(FrameBudget, WithinTheLimitsNothingGoes) {
  EXPECT_EQ(framesToDrop({}, kLimits), Dropped{});
  EXPECT_EQ(framesToDrop({{&kA, 100, 1}, {&kA, 100, 2}, {&kB, 100, 3}}, kLimits), Dropped{});
}

TEST(FrameBudget, AnOwnersOldestGoesWhenItHasTooMuch) {
  EXPECT_EQ(framesToDrop({{&kB, 10, 1}, {&kA, 90, 4}, {&kA, 90, 2}, {&kA, 90, 3}}, kLimits),
            Dropped{2});
  EXPECT_EQ(
      framesToDrop({{&kA, 1, 4}, {&kA, 1, 3}, {&kA, 1, 2}, {&kA, 1, 1}, {&kB, 1, 0}}, kLimits),
      Dropped{3});
}

TEST(FrameBudget, ThenTheOldestOfAll) {
  EXPECT_EQ(framesToDrop({{&kA, 90, 5}, {&kA, 90, 2}, {&kB, 90, 3}, {&kC, 90, 4}}, kLimits),
            Dropped{1});
  EXPECT_EQ(
      framesToDrop({{&kA, 1, 5}, {&kA, 1, 6}, {&kB, 1, 3}, {&kB, 1, 4}, {&kC, 1, 1}, {&kC, 1, 2}},
                   kLimits),
      Dropped{4});
}

// Against the slow definition, and the limits hold.
TEST(FrameBudget, NoMoreGoesThanHasTo) {
  test::Random random;
  SCOPED_TRACE(random.describe());
  const int owners[4] = {};
  for (int round = 0; round < 2000; ++round) {
    std::vector<HeldFrame> held;
    const auto count = random.integer(0, 12);
    for (int i = 0; i < count; ++i) {
      held.push_back({&owners[random.integer(0, 3)],
                      static_cast<std::size_t>(random.integer(1, 100)),
                      static_cast<std::uint64_t>(random.integer(0, 1000))});
    }
    std::vector<std::size_t> left;
    const std::vector<std::size_t> dropped = framesToDrop(held, kLimits);
    for (std::size_t i = 0; i < held.size(); ++i) {
      if (std::ranges::find(dropped, i) == dropped.end()) left.push_back(i);
    }
    std::size_t bytes = 0;
    std::map<const void*, std::pair<std::size_t, std::size_t>> ofOwner;
    for (const std::size_t i : left) {
      bytes += held[i].bytes;
      ofOwner[held[i].owner].first += held[i].bytes;
      ++ofOwner[held[i].owner].second;
    }
    EXPECT_LE(bytes, kLimits.bytes);
    EXPECT_LE(left.size(), kLimits.frames);
    for (const auto& [owner, load] : ofOwner) {
      EXPECT_LE(load.first, kLimits.bytesOfOwner);
      EXPECT_LE(load.second, kLimits.framesOfOwner);
    }
    if (held.empty()) continue;
    const auto newest =
        std::ranges::max(held, {}, [](const HeldFrame& frame) { return frame.lastUse; }).lastUse;
    EXPECT_TRUE(std::ranges::any_of(left, [&](std::size_t i) { return held[i].lastUse == newest; }))
        << "one frame is always within the limits";
  }
}

}  // namespace
}  // namespace ov
