#ifndef OV_RANDOM_SEED_H
#define OV_RANDOM_SEED_H

#include <cstdlib>
#include <random>

/// A new seed for each run; OV_TEST_SEED repeats one. Print it with SCOPED_TRACE.
inline unsigned testSeed() {
  const char *given = std::getenv("OV_TEST_SEED");
  return given ? unsigned(std::strtoul(given, nullptr, 10)) : std::random_device()();
}

#endif
