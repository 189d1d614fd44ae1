// Pictures made in the test, and a folder for them.

#pragma once

#import <AppKit/AppKit.h>

#include <filesystem>
#include <string>

namespace ov::test {

// A folder that goes with its contents.
class ImageFolder {
 public:
  ImageFolder() {
    std::string name = (std::filesystem::temp_directory_path() / "ov-images-XXXXXX").string();
    EXPECT_NE(mkdtemp(name.data()), nullptr);
    path_ = name;
  }
  ~ImageFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  ImageFolder(const ImageFolder &) = delete;
  ImageFolder &operator=(const ImageFolder &) = delete;

  NSString *path() const { return [NSString stringWithUTF8String:path_.c_str()]; }
  NSString *path(NSString *name) const { return [path() stringByAppendingPathComponent:name]; }

  NSString *write(NSString *name, NSData *data) const {
    NSString *file = path(name);
    std::filesystem::create_directories(
        std::filesystem::path([file fileSystemRepresentation]).parent_path());
    EXPECT_TRUE([data writeToFile:file atomically:NO]);
    return file;
  }

 private:
  std::filesystem::path path_;
};

// Red at the left, blue at the right: opaque, 4 × 2.
NSBitmapImageRep *redAndBlue();

// The same in a format; as JPEG, 64 × 32, since the platform writes smaller ones beyond the end
// of its memory.
NSData *encoded(NSBitmapImageFileType type);

// Grey, 9 × 3, of so many bits per sample; of several samples, the last is alpha.
NSData *grayTIFF(unsigned bits, unsigned samples);

// Only a header, which tells of a size.
NSData *headerOfPNG(unsigned width, unsigned height);

}  // namespace ov::test
