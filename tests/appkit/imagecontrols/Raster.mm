#import "Raster.h"

#include <ostream>

namespace ov::test {

Raster::Raster(int wide, int high)
    : width(wide), height(high), pixels(static_cast<size_t>(wide * high)) {}

Raster::Raster(const Picture &picture) : Raster(picture.width(), picture.height()) {
  for (int y = 0; y < height; y++) {
    for (int x = 0; x < width; x++) {
      pixels[static_cast<size_t>(y * width + x)] = picture.at(x, y);
    }
  }
}

Raster Raster::part(int x, int y, int wide, int high) const {
  Raster result(wide, high);
  for (int j = 0; j < high; j++) {
    for (int i = 0; i < wide; i++) {
      result.pixels[static_cast<size_t>(j * wide + i)] = at(x + i, y + j);
    }
  }
  return result;
}

Raster Raster::tile(int index, int count) const {
  return part(index * width / count, 0, width / count, height);
}

Raster Raster::upsideDown() const {
  Raster result(width, height);
  for (int y = 0; y < height; y++) {
    for (int x = 0; x < width; x++) {
      result.pixels[static_cast<size_t>(y * width + x)] = at(x, height - 1 - y);
    }
  }
  return result;
}

Raster Raster::turned() const {
  Raster result(height, width);
  for (int y = 0; y < width; y++) {
    for (int x = 0; x < height; x++) {
      result.pixels[static_cast<size_t>(y * height + x)] = at(y, x);
    }
  }
  return result;
}

// What is hardly there has hardly a colour.
static Pixel multiplied(const Pixel &pixel) {
  const auto part = [&](int value) { return value * pixel.a / 255; };
  return {part(pixel.r), part(pixel.g), part(pixel.b), pixel.a};
}

int Raster::differencesTo(const Raster &other, int tolerance) const {
  int count = 0;
  for (size_t i = 0; i < pixels.size(); i++) {
    count += !near(multiplied(pixels[i]), multiplied(other.pixels[i]), tolerance);
  }
  return count;
}

std::ostream &operator<<(std::ostream &out, const Raster &raster) {
  out << raster.width << " x " << raster.height;
  for (int y = 0; y < raster.height; y++) {
    out << "\n ";
    for (int x = 0; x < raster.width; x++) out << ' ' << raster.at(x, y);
  }
  return out;
}

Raster rasterOfResource(NSBundle *bundle, const std::string &name) {
  NSString *path = [bundle pathForResource:toNS(name) ofType:@"tiff"];
  NSBitmapImageRep *rep =
      path ? [NSBitmapImageRep imageRepWithData:[NSData dataWithContentsOfFile:path]] : nil;
  EXPECT_NE(rep, nil) << name;
  if (rep == nil) return {};
  EXPECT_EQ([rep bitsPerSample], 8) << name;
  EXPECT_EQ([rep samplesPerPixel], 4) << name;
  EXPECT_TRUE([rep hasAlpha]) << name;
  return Raster(Picture(rep));
}

NSString *toNS(const std::string &text) { return [NSString stringWithUTF8String:text.c_str()]; }

}  // namespace ov::test
