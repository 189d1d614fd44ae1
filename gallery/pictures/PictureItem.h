// One picture file of the folder that is shown.
#import <AppKit/AppKit.h>

#include <cstdint>
#include <string>

@interface PictureItem : NSObject {
  std::string _path;
  NSString *_name;
  std::int64_t _modified;
  std::int64_t _size;
  NSString *_shortName;
  CGFloat _shortNameWidth;
}

- (id)initWithPath:(const std::string &)path modified:(std::int64_t)time size:(std::int64_t)bytes;

// The path as the system has it, byte for byte.
- (const std::string &)path;
// The same as a string, or nil when the bytes are not UTF-8.
- (NSString *)pathString;
// The last part of the path, to be shown; characters that are not UTF-8 are replaced.
- (NSString *)name;
// The name without its extension, and the extension with its dot (or "").
- (NSString *)stem;
- (NSString *)extension;
// When the file was last written, in nanoseconds since 1970, and its size in bytes.
- (std::int64_t)modified;
- (std::int64_t)size;

// The name, shortened in the middle to fit into a width in points.
- (NSString *)nameForWidth:(CGFloat)width font:(NSFont *)font;

@end

// "512 bytes", "1.2 MB"
NSString *PictureFileSize(std::int64_t bytes);
