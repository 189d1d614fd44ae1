// Through an archive and back, of either kind.

#pragma once

#import <Foundation/Foundation.h>
#include <gtest/gtest.h>

namespace ov::test {

enum class Coding { keyed, sequential };

inline id roundTrip(id object, Coding coding) {
  if (coding == Coding::keyed) {
    return [NSKeyedUnarchiver
        unarchiveObjectWithData:[NSKeyedArchiver archivedDataWithRootObject:object]];
  }
  return [NSUnarchiver unarchiveObjectWithData:[NSArchiver archivedDataWithRootObject:object]];
}

// For INSTANTIATE_TEST_SUITE_P.
inline const char *codingName(const testing::TestParamInfo<Coding> &info) {
  return info.param == Coding::keyed ? "keyed" : "sequential";
}

}  // namespace ov::test
