#import "pictures/PictureItem.h"

#include <string_view>

#include "pictures/FileNames.h"

// The bytes as a string; where they are not UTF-8, each byte beyond ASCII as "?".
static NSString *displayString(std::string_view bytes) {
  std::string text(bytes);
  if (NSString *string = [NSString stringWithUTF8String:text.c_str()]) return string;
  for (char &c : text) {
    if (c & 0x80) c = '?';
  }
  return [NSString stringWithUTF8String:text.c_str()];
}

static std::string_view lastPart(const std::string &path) {
  return std::string_view(path).substr(path.rfind('/') + 1);
}

// Never between the two halves of a surrogate pair.
static NSString *shortened(NSString *name, NSUInteger kept) {
  const NSUInteger length = [name length];
  NSUInteger head = (kept + 1) / 2, tail = length - kept / 2;
  if (head > 0 && ([name characterAtIndex:head - 1] & 0xFC00) == 0xD800) --head;
  if (tail < length && ([name characterAtIndex:tail] & 0xFC00) == 0xDC00) ++tail;
  return [NSString
      stringWithFormat:@"%@\u2026%@", [name substringToIndex:head], [name substringFromIndex:tail]];
}

@implementation PictureItem

- (id)initWithPath:(const std::string &)path modified:(std::int64_t)time size:(std::int64_t)bytes {
  self = [super init];
  if (!self) return nil;
  _path = path;
  _name = [displayString(lastPart(path)) copy];
  _modified = time;
  _size = bytes;
  return self;
}

- (void)dealloc {
  [_name release];
  [_shortName release];
  [super dealloc];
}

- (const std::string &)path {
  return _path;
}

- (NSString *)pathString {
  return [NSString stringWithUTF8String:_path.c_str()];
}

- (NSString *)name {
  return _name;
}

- (NSString *)stem {
  return [_name substringToIndex:[_name length] - [[self extension] length]];
}

- (NSString *)extension {
  return displayString(gallery::extensionOf(lastPart(_path)));
}

- (std::int64_t)modified {
  return _modified;
}

- (std::int64_t)size {
  return _size;
}

- (NSString *)nameForWidth:(CGFloat)width font:(NSFont *)font {
  if (_shortName && _shortNameWidth == width) return _shortName;
  NSDictionary *attributes = @{NSFontAttributeName : font};
  NSString *result = _name;
  if ([result sizeWithAttributes:attributes].width > width) {
    NSUInteger fits = 0, tooMany = [_name length];
    while (tooMany - fits > 1) {
      const NSUInteger middle = (fits + tooMany) / 2;
      const BOOL fit = [shortened(_name, middle) sizeWithAttributes:attributes].width <= width;
      (fit ? fits : tooMany) = middle;
    }
    result = shortened(_name, fits);
  }
  [_shortName release];
  _shortName = [result copy];
  _shortNameWidth = width;
  return _shortName;
}

@end

NSString *PictureFileSize(std::int64_t bytes) {
  if (bytes < 1000) return [NSString stringWithFormat:@"%d bytes", static_cast<int>(bytes)];
  static NSString *const units[] = {@"kB", @"MB", @"GB", @"TB"};
  double value = bytes / 1000.0;
  int unit = 0;
  while (value >= 999.5 && unit < 3) {
    value /= 1000;
    ++unit;
  }
  return [NSString stringWithFormat:value < 9.95 ? @"%.1f %@" : @"%.0f %@", value, units[unit]];
}
