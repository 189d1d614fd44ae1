#import "PropertyListFile.h"

#import <OvFoundation/OvPropertyListCopy.h>

#include <string.h>

#include <errno.h>

#include "BinaryPropertyList.h"
#include "TextNesting.h"

NSString *ErrorName(int error) { return [NSString stringWithUTF8String:strerror(error)]; }

// nil and a problem when the bytes are no property list. The platform's parsers raise
// for some damaged files.
static id ParsedPropertyList(NSData *data, NSString **problem) {
  NSString *description = nil;
  id parsed = nil;
  @try {
    NSError *error = nil;
    parsed = [NSPropertyListSerialization propertyListWithData:data
                                                       options:NSPropertyListImmutable
                                                        format:NULL
                                                         error:&error];
    if (!parsed) description = [error localizedDescription];
  } @catch (NSException *exception) {
    description = [exception reason];
  }
  if (!parsed) *problem = description ? description : @"it cannot be parsed";
  return parsed;
}

static NSDictionary *DictionaryFromBytes(const std::string &bytes, NSString **problem) {
  if (bytes.empty()) {
    *problem = @"it is empty";
    return nil;
  }
  // The platform's parsers trust what they read: for damaged binary files one asks for absurd
  // amounts of memory, and every level of a text is a call. The form that begins with 0 or 1
  // is the platform's own for messages; nobody keeps settings in it.
  if (bytes[0] == 0 || bytes[0] == 1 ||
      (ov::isBinaryPropertyList(bytes) &&
       !ov::isSoundBinaryPropertyList(bytes, OvPropertyListMaximumDepth,
                                      OvPropertyListMaximumCount))) {
    *problem = @"it cannot be parsed";
    return nil;
  }
  if (!ov::isBinaryPropertyList(bytes) && ov::textNesting(bytes) > OvPropertyListMaximumDepth) {
    *problem = @"it is nested too deeply";
    return nil;
  }
  NSData *data = [NSData dataWithBytes:bytes.data() length:bytes.size()];
  id parsed = ParsedPropertyList(data, problem);
  if (!parsed) return nil;
  if (![parsed isKindOfClass:[NSDictionary class]]) {
    *problem = @"there is no dictionary at the top";
    return nil;
  }
  NSDictionary *values = OvPropertyListDeepCopy(parsed, NSPropertyListImmutable, problem);
  [*problem autorelease];
  return values;
}

StoredPropertyList ReadStoredPropertyList(const std::string &path) {
  StoredPropertyList stored;
  const ov::FileContents contents = ov::readPlainFile(path);
  stored.stamp = contents.stamp;
  if (contents.error == ENOENT) return stored;
  if (contents.error) {
    stored.kind = StoredKind::unreadable;
    stored.problem = ErrorName(contents.error);
    return stored;
  }
  stored.values = DictionaryFromBytes(contents.bytes, &stored.problem);
  stored.kind = stored.values ? StoredKind::dictionary : StoredKind::somethingElse;
  return stored;
}

static NSData *DataInFormat(NSDictionary *values, NSPropertyListFormat format) {
  @try {
    return [NSPropertyListSerialization dataWithPropertyList:values
                                                      format:format
                                                     options:0
                                                       error:NULL];
  } @catch (NSException *) {
    return nil;
  }
}

// Whether every date lies in the years that the platform writes as text. It counts its way
// to others, and never gets to some.
static bool DatesFitText(id node) {
  if ([node isKindOfClass:[NSDate class]]) {
    const NSTimeInterval time = [node timeIntervalSinceReferenceDate];
    return time >= [[NSDate distantPast] timeIntervalSinceReferenceDate] &&
           time <= [[NSDate distantFuture] timeIntervalSinceReferenceDate];
  }
  const bool isDictionary = [node isKindOfClass:[NSDictionary class]];
  if (!isDictionary && ![node isKindOfClass:[NSArray class]]) return true;
  for (id member in isDictionary ? [node allValues] : node) {
    if (!DatesFitText(member)) return false;
  }
  return true;
}

NSData *PropertyListDataThatReadsBack(NSDictionary *values) {
  const bool fitsText = DatesFitText(values);
  for (NSPropertyListFormat format : {NSPropertyListXMLFormat_v1_0, NSPropertyListBinaryFormat_v1_0,
                                      NSPropertyListGNUstepFormat}) {
    if (!fitsText && format != NSPropertyListBinaryFormat_v1_0) continue;
    NSData *data = DataInFormat(values, format);
    NSString *problem = nil;
    if (data && [values isEqual:ParsedPropertyList(data, &problem)]) return data;
  }
  return nil;
}
