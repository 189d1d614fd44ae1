// Property lists in files: what a file holds, and bytes that can be trusted.

#import <Foundation/Foundation.h>

#include <string>

#include "AtomicFile.h"

enum class StoredKind {
  nothing,        // there is no file
  dictionary,     // a property list with a dictionary at the top
  somethingElse,  // a plain file with other contents
  unreadable,     // a file that cannot be read, or not a plain one
};

struct StoredPropertyList {
  StoredKind kind = StoredKind::nothing;
  ov::FileStamp stamp;
  NSDictionary *values = nil;  // autoreleased and unchangeable; for a dictionary only
  NSString *problem = nil;     // autoreleased; why it is something else, or unreadable
};

StoredPropertyList ReadStoredPropertyList(const std::string &path);

// The bytes of a file that reads back equal to the values; nil when no form of file
// does. The platform's writers lose some values without a word: XML cuts dates to
// seconds and breaks characters beyond U+FFFF, the binary form wraps large unsigned numbers.
NSData *PropertyListDataThatReadsBack(NSDictionary *values);

// A system error's name for the log.
NSString *ErrorName(int error);
