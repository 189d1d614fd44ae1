#import <OvFoundation/OvFoundation.h>

#include <gtest/gtest.h>

namespace {

TEST(CompareNSInteger, IsRightAtTheEnds) {
  const NSInteger values[] = {NSIntegerMin,     NSIntegerMin + 1, -1, 0, 1,
                              NSIntegerMax - 1, NSIntegerMax};
  const int count = sizeof values / sizeof *values;
  for (int i = 0; i < count; ++i) {
    for (int j = 0; j < count; ++j) {
      const NSComparisonResult expected = i < j   ? NSOrderedAscending
                                          : i > j ? NSOrderedDescending
                                                  : NSOrderedSame;
      EXPECT_EQ(expected, HXCompareNSInteger(values[i], values[j]))
          << values[i] << " " << values[j];
    }
  }
}

TEST(SystemVersion, IsAtLeastTheOneWithResizeCursors) { EXPECT_GE(OvGestaltOSVersion(), 0x1030); }

}  // namespace
