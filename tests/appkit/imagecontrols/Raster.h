// The pixels of a picture file, to compare parts of artwork with each other.

#pragma once

#import "LiveTest.h"

#include <string>
#include <vector>

namespace ov::test {

struct Raster {
  int width = 0;
  int height = 0;
  std::vector<Pixel> pixels;  // from the top, each row from the left

  Raster() = default;
  Raster(int wide, int high);
  explicit Raster(const Picture &picture);

  Pixel at(int x, int y) const { return pixels[static_cast<size_t>(y * width + x)]; }
  Raster part(int x, int y, int wide, int high) const;
  // One of so many equal parts from left to right.
  Raster tile(int index, int count) const;
  Raster row(int y) const { return part(0, y, width, 1); }
  Raster upsideDown() const;
  // Mirrored at the falling diagonal.
  Raster turned() const;
  // How many pixels are of another colour than those of a raster of the same size, by more than
  // the tolerance.
  int differencesTo(const Raster &other, int tolerance = 0) const;

  friend bool operator==(const Raster &, const Raster &) = default;
};
std::ostream &operator<<(std::ostream &out, const Raster &raster);

// The picture of a resource, which must be a TIFF of 8 bits per sample with alpha; empty, and a
// failure, otherwise.
Raster rasterOfResource(NSBundle *bundle, const std::string &name);

NSString *toNS(const std::string &text);

}  // namespace ov::test
