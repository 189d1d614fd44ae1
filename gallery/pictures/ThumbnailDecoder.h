// Reads picture files at the size of a thumbnail.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace gallery {

// Pixels from the top row down, red green blue alpha, the colours multiplied by alpha.
struct Bitmap {
  int width = 0;
  int height = 0;
  std::vector<std::uint8_t> pixels;
};

struct Thumbnail {
  Bitmap bitmap;         // empty when the file could not be read
  int pictureWidth = 0;  // of the picture itself; 0 when the file does not tell
  int pictureHeight = 0;
  std::string problem;  // why there is no bitmap, as a sentence
};

// Reads a picture, shrunk to fit into a box (never enlarged). Safe on any thread. Files and
// pictures beyond sensible limits are refused, before their pixels are allocated. Gives up,
// with a problem, soon after cancelled answers true.
Thumbnail decodeThumbnail(const std::string &path, int boxWidth, int boxHeight,
                          const std::function<bool()> &cancelled);

// The file name extensions that can be read, in lower case without the dot.
std::vector<std::string> readableExtensions();

}  // namespace gallery
