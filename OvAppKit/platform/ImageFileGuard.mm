#include "platform/ImageFileGuard.h"

#include <dlfcn.h>

#include <cstdarg>
#include <span>

#import "platform/FinerImages.h"
#include "platform/ImageHeaders.h"

namespace {

// While it exists, nobody is told what the library for TIFF complains of. The platform sets a
// handler of its own once, and tries every picture as a TIFF; the library that it has for other
// formats sets another handler when it reads its first TIFF, and that one ends the program whenever
// somebody else reads.
class QuietTIFF {
 public:
  QuietTIFF() : errors_("TIFFSetErrorHandler"), warnings_("TIFFSetWarningHandler") {}

 private:
  using Handler = void (*)(const char *, const char *, va_list);
  using Setter = Handler(Handler);

  static void ignore(const char *, const char *, va_list) {}

  class Scope {
   public:
    explicit Scope(const char *setter) {
      set_ = reinterpret_cast<Setter *>(dlsym(RTLD_DEFAULT, setter));
      if (set_) previous_ = set_(ignore);
    }
    ~Scope() {
      if (set_ == nullptr) return;
      // What the platform sets meanwhile, stays.
      const Handler current = set_(previous_);
      if (current != ignore) set_(current);
    }
    Scope(const Scope &) = delete;
    Scope &operator=(const Scope &) = delete;

   private:
    Setter *set_ = nullptr;
    Handler previous_ = nullptr;
  };

  Scope errors_;
  Scope warnings_;
};

// As the most pixels without compression.
constexpr unsigned long long kMostBytes = 4 * ov::kMostImagePixels;

std::span<const uint8_t> bytesOf(NSData *data) {
  return {static_cast<const uint8_t *>([data bytes]), [data length]};
}

NSImage *newImage(NSData *data) __attribute__((ns_returns_retained));
NSImage *newImage(NSData *data) {
  if (data == nil) return nil;
  const QuietTIFF quiet;
  NSImage *image = [NSImage alloc];
  @try {
    if (!ov::isKnownImage(bytesOf(data))) return [image initWithData:data];
    // Where the platform's own reader fails, the other library is not to try.
    NSArray *bitmaps = [NSBitmapImageRep imageRepsWithData:data];
    if ([bitmaps count] > 0) {
      image = [image init];
      [image addRepresentations:bitmaps];
      return image;
    }
  } @catch (NSException *) {
    // Some damage is met with an exception: a JPEG without pixels, less than four bytes.
  }
  [image release];
  return nil;
}

}  // namespace

BOOL OvIsSafeImageData(NSData *data) { return data != nil && ov::isSafeImage(bytesOf(data)); }

NSData *OvSafeImageDataWithContentsOfFile(NSString *path) {
  if ([path length] == 0) return nil;
  NSDictionary *attributes = [[NSFileManager defaultManager] fileAttributesAtPath:path
                                                                     traverseLink:YES];
  if (![[attributes fileType] isEqualToString:NSFileTypeRegular]) return nil;
  // Without a size are also files of the system that make their content up, and may wait for it.
  const unsigned long long size = [attributes fileSize];
  if (size == 0 || size > kMostBytes) return nil;
  NSData *data = [NSData dataWithContentsOfFile:path];
  return OvIsSafeImageData(data) ? data : nil;
}

NSBitmapImageRep *OvInitBitmapWithData(NSBitmapImageRep *bitmap, NSData *data) {
  if (!OvIsSafeImageData(data)) {
    [bitmap release];
    return nil;
  }
  const QuietTIFF quiet;
  // A TIFF that fails releases the bitmap and answers it all the same. With a reference of
  // ours it lives on, and the one that is missing tells.
  [bitmap retain];
  const NSUInteger references = [bitmap retainCount];
  NSBitmapImageRep *result = [bitmap initWithData:data];
  if (result == bitmap && [bitmap retainCount] < references) result = nil;
  [bitmap release];
  return result;
}

NSImage *OvNewImageByReferencingFile(NSString *path) {
  NSImage *image = newImage(OvSafeImageDataWithContentsOfFile(path));
  OvAddFinerRepresentation(image, path);
  return image;
}

NSImage *OvNewImageByReferencingURL(NSURL *url) {
  if ([url isFileURL]) return OvNewImageByReferencingFile([url path]);
  NSData *data = url ? [NSData dataWithContentsOfURL:url] : nil;
  return OvIsSafeImageData(data) ? newImage(data) : nil;
}
