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

// The same, with the objects of one class read as of another.
inline id roundTripAs(id object, Class written, Class read, Coding coding) {
  if (coding == Coding::keyed) {
    NSData *data = [NSKeyedArchiver archivedDataWithRootObject:object];
    NSKeyedUnarchiver *unarchiver =
        [[[NSKeyedUnarchiver alloc] initForReadingWithData:data] autorelease];
    [unarchiver setClass:read forClassName:NSStringFromClass(written)];
    return [unarchiver decodeObjectForKey:@"root"];
  }
  NSData *data = [NSArchiver archivedDataWithRootObject:object];
  NSUnarchiver *unarchiver = [[[NSUnarchiver alloc] initForReadingWithData:data] autorelease];
  [unarchiver decodeClassName:NSStringFromClass(written) asClassName:NSStringFromClass(read)];
  return [unarchiver decodeObject];
}

// For INSTANTIATE_TEST_SUITE_P.
inline const char *codingName(const testing::TestParamInfo<Coding> &info) {
  return info.param == Coding::keyed ? "keyed" : "sequential";
}

}  // namespace ov::test
