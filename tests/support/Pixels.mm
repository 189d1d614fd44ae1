#import "Pixels.h"

#include <cstdlib>
#include <ostream>

namespace ov::test {

std::ostream& operator<<(std::ostream& out, const Pixel& p) {
  return out << "rgba(" << p.r << ", " << p.g << ", " << p.b << ", " << p.a << ")";
}

bool near(const Pixel& a, const Pixel& b, int tolerance) {
  return std::abs(a.r - b.r) <= tolerance && std::abs(a.g - b.g) <= tolerance &&
         std::abs(a.b - b.b) <= tolerance && std::abs(a.a - b.a) <= tolerance;
}

Picture& Picture::operator=(const Picture& other) {
  [other.rep_ retain];
  [rep_ release];
  rep_ = other.rep_;
  return *this;
}

Pixel Picture::at(int x, int y) const {
  if (x < 0 || y < 0 || x >= width() || y >= height()) return {};
  NSUInteger samples[5] = {0, 0, 0, 0, 0};
  [rep_ getPixel:samples atX:x y:y];
  NSInteger count = [rep_ samplesPerPixel];
  bool gray = count < 3;
  Pixel p;
  p.r = static_cast<int>(samples[0]);
  p.g = static_cast<int>(samples[gray ? 0 : 1]);
  p.b = static_cast<int>(samples[gray ? 0 : 2]);
  p.a = [rep_ hasAlpha] ? static_cast<int>(samples[gray ? 1 : 3]) : 255;
  bool multiplied = !([rep_ bitmapFormat] & NSAlphaNonpremultipliedBitmapFormat);
  if (multiplied && p.a > 0 && p.a < 255) {
    p.r = std::min(255, p.r * 255 / p.a);
    p.g = std::min(255, p.g * 255 / p.a);
    p.b = std::min(255, p.b * 255 / p.a);
  }
  return p;
}

int Picture::count(NSRect rect, const Pixel& pixel, int tolerance) const {
  int found = 0;
  for (int y = static_cast<int>(NSMinY(rect)); y < NSMaxY(rect); y++) {
    for (int x = static_cast<int>(NSMinX(rect)); x < NSMaxX(rect); x++) {
      found += near(at(x, y), pixel, tolerance);
    }
  }
  return found;
}

bool Picture::writePNG(const std::string& path) const {
  NSData* data = [rep_ representationUsingType:NSPNGFileType properties:[NSDictionary dictionary]];
  return [data writeToFile:[NSString stringWithUTF8String:path.c_str()] atomically:NO];
}

Picture pictureOf(NSView* view) { return pictureOf(view, [view bounds]); }

Picture pictureOf(NSView* view, NSRect part) {
  [view display];
  [view lockFocus];
  NSBitmapImageRep* rep = [[NSBitmapImageRep alloc] initWithFocusedViewRect:part];
  [view unlockFocus];
  Picture picture(rep);
  [rep release];
  return picture;
}

NSBitmapImageRep* emptyBitmap(NSInteger width, NSInteger height, NSString* space) {
  return [[[NSBitmapImageRep alloc] initWithBitmapDataPlanes:NULL
                                                  pixelsWide:width
                                                  pixelsHigh:height
                                               bitsPerSample:8
                                             samplesPerPixel:4
                                                    hasAlpha:YES
                                                    isPlanar:NO
                                              colorSpaceName:space
                                                 bytesPerRow:0
                                                bitsPerPixel:0] autorelease];
}

Picture pictureOfImage(NSImage* image) {
  return Picture([NSBitmapImageRep imageRepWithData:[image TIFFRepresentation]]);
}

std::string outputPath(const std::string& name) {
  const char* folder = std::getenv("OV_TEST_OUTPUT");
  return (folder ? std::string(folder) + "/" : std::string()) + name;
}

}  // namespace ov::test
