#import "PropertyListFile.h"

#import <OvFoundation/OvPropertyListCopy.h>

#include <string.h>

#include <errno.h>

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
  // The parsers of text, and the release of what they made, call themselves for every level.
  const bool isBinary = bytes.starts_with("bplist") || bytes.starts_with(std::string(1, '\0'));
  if (!isBinary && ov::textNesting(bytes) > OvPropertyListMaximumDepth) {
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

NSData *PropertyListDataThatReadsBack(NSDictionary *values) {
  for (NSPropertyListFormat format : {NSPropertyListXMLFormat_v1_0, NSPropertyListBinaryFormat_v1_0,
                                      NSPropertyListGNUstepFormat}) {
    NSData *data = DataInFormat(values, format);
    NSString *problem = nil;
    if (data && [values isEqual:ParsedPropertyList(data, &problem)]) return data;
  }
  return nil;
}
