// What the tests of the property list controller share: a folder for files, stores that
// answer badly, and a controller and values that write down what they announce.

#pragma once

#import <OvAppKit/OvAppKit.h>

#include <string>
#include <vector>

#import "LiveTest.h"
#include "TemporaryFolder.h"

namespace ov::test {

using Lines = std::vector<std::string>;

class SettingsTest : public LiveTest {
 protected:
  NSString *path(const char *name = "list.plist") {
    return [NSString stringWithUTF8String:(folder / name).c_str()];
  }

  // A store with a file, or without one if the values are nil.
  HXPropertyList *storeHolding(NSDictionary *values, const char *name = "list.plist") {
    HXPropertyList *store = [HXPropertyList propertyListWithPath:path(name)];
    if (!values) return store;
    [[store values] setDictionary:values];
    EXPECT_TRUE([store saveChanges]);
    return store;
  }

  // What the file holds, read anew.
  NSDictionary *stored(const char *name = "list.plist") {
    return [[HXPropertyList propertyListWithPath:path(name)] _serializedValues];
  }

  TemporaryFolder folder;
};

// A controller with the given store and defaults, autoreleased.
HXPropertyListController *controllerWith(HXPropertyList *store, NSDictionary *defaults);

// The failures that a dictionary with a URL in it causes: the first two lines of the log, for
// the given kind of copy.
bool tellsOfFailedCopy(const LogCapture &log, const char *kind, size_t firstLine = 0);

// For EXPECT_TRUE: equal, and otherwise the two in words.
testing::AssertionResult same(id actual, id expected);

}  // namespace ov::test

// Answers what it is told to.
@interface OvTestStore : HXPropertyList {
 @public
  id answeredValues;
  id answeredSerializedValues;
}
@end

// Writes down the announcements: "will values", "did values".
@interface OvTestController : HXPropertyListController {
 @public
  ov::test::Lines *lines;
}
@end

// Writes down what key-value observation and the values' reports bring: "ink" for a change of
// that key path, "report ink,size" in the order of the alphabet.
@interface OvTestSettingsObserver : NSObject {
 @public
  ov::test::Lines *lines;
  NSArray *lastKeys;
}
@end
