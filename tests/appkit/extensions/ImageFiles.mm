#import "LiveTest.h"

#import "ImageFiles.h"

namespace ov::test {

namespace {

void add(NSMutableData *data, uint32_t number, int width, bool bigEndian) {
  for (int i = 0; i < width; i++) {
    const auto byte = static_cast<unsigned char>(number >> (8 * (bigEndian ? width - 1 - i : i)));
    [data appendBytes:&byte length:1];
  }
}

NSBitmapImageRep *redAndBlue(int unit) {
  const int width = 4 * unit, height = 2 * unit;
  NSBitmapImageRep *rep = emptyBitmap(width, height);
  unsigned char *p = [rep bitmapData];
  for (int i = 0; i < width * height; i++, p += 4) {
    const bool left = i % width < width / 2;
    p[0] = left ? 255 : 0;
    p[1] = 0;
    p[2] = left ? 0 : 255;
    p[3] = 255;
  }
  return rep;
}

}  // namespace

NSBitmapImageRep *redAndBlue() { return redAndBlue(1); }

NSData *encoded(NSBitmapImageFileType type) {
  return [redAndBlue(type == NSJPEGFileType ? 16 : 1)
      representationUsingType:type
                   properties:[NSDictionary dictionary]];
}

NSData *grayTIFF(unsigned bits, unsigned samples) {
  constexpr uint32_t kWidth = 9, kHeight = 3, kEntries = 9;
  const uint32_t length = (kWidth * bits * samples + 7) / 8 * kHeight;
  const uint32_t pixels = 8 + 2 + 12 * kEntries + 4;
  struct {
    uint32_t tag, type, value;
  } const entries[kEntries] = {
      {256, 4, kWidth}, {257, 4, kHeight}, {258, 3, bits},    {259, 3, 1},      {262, 3, 1},
      {273, 4, pixels}, {277, 3, samples}, {278, 4, kHeight}, {279, 4, length},
  };
  NSMutableData *data = [NSMutableData dataWithBytes:"II*\0" length:4];
  add(data, 8, 4, false);
  add(data, kEntries, 2, false);
  for (const auto &entry : entries) {
    add(data, entry.tag, 2, false);
    add(data, entry.type, 2, false);
    add(data, 1, 4, false);
    add(data, entry.value, 4, false);
  }
  add(data, 0, 4, false);
  [data increaseLengthBy:length];
  return data;
}

NSData *headerOfPNG(unsigned width, unsigned height) {
  NSMutableData *data = [NSMutableData dataWithBytes:"\x89PNG\r\n\x1A\n\0\0\0\rIHDR" length:16];
  add(data, width, 4, true);
  add(data, height, 4, true);
  return data;
}

}  // namespace ov::test
