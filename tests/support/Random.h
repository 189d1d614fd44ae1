// Random test data that can be repeated: the seed is printed with every failure, and
// OV_TEST_SEED=<number> runs the same rows again.

#pragma once

#include <cstdint>
#include <cstdlib>
#include <limits>
#include <random>
#include <string>
#include <vector>

namespace ov::test {

class Random {
 public:
  Random() : Random(chooseSeed()) {}
  explicit Random(uint64_t seed) : seed_(seed), engine_(seed) {}

  uint64_t seed() const { return seed_; }
  // For SCOPED_TRACE.
  std::string describe() const { return "repeat with OV_TEST_SEED=" + std::to_string(seed_); }

  // Both ends included.
  int64_t integer(int64_t low, int64_t high) {
    return std::uniform_int_distribution<int64_t>(low, high)(engine_);
  }
  double real(double low, double high) {
    return std::uniform_real_distribution<double>(low, high)(engine_);
  }
  bool oneIn(int n) { return integer(1, n) == 1; }
  template <typename T>
  const T& pick(const std::vector<T>& values) {
    return values[static_cast<size_t>(integer(0, static_cast<int64_t>(values.size()) - 1))];
  }
  // Nothing, small, large, or no number at all.
  template <typename T>
  T anyNumber() {
    using Limits = std::numeric_limits<T>;
    static const std::vector<T> values = {0,
                                          1,
                                          -1,
                                          0.5,
                                          1e-30,
                                          1e30,
                                          -1e30,
                                          100,
                                          Limits::max(),
                                          Limits::denorm_min(),
                                          Limits::infinity(),
                                          Limits::quiet_NaN()};
    return pick(values);
  }

 private:
  static uint64_t chooseSeed() {
    if (const char* given = std::getenv("OV_TEST_SEED")) return std::strtoull(given, nullptr, 10);
    return std::random_device{}();
  }

  uint64_t seed_;
  std::mt19937_64 engine_;
};

}  // namespace ov::test
