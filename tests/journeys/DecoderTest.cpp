#include <gmock/gmock.h>
#include <sys/stat.h>

#include <cstdint>
#include <fstream>
#include <string>

#include "TemporaryFolder.h"
#include "pictures/ThumbnailDecoder.h"

namespace gallery {
namespace {

Thumbnail decode(const std::string &path) {
  return decodeThumbnail(path, 48, 36, [] { return false; });
}

void appendNumber(std::string &text, std::uint32_t number) {
  for (int shift = 24; shift >= 0; shift -= 8) text += static_cast<char>(number >> shift);
}

std::uint32_t crcOf(const std::string &bytes) {
  std::uint32_t crc = ~0u;
  for (const char c : bytes) {
    crc ^= static_cast<unsigned char>(c);
    for (int bit = 0; bit < 8; ++bit) crc = crc & 1 ? crc >> 1 ^ 0xEDB88320u : crc >> 1;
  }
  return ~crc;
}

void appendChunk(std::string &png, const std::string &type, const std::string &data) {
  appendNumber(png, static_cast<std::uint32_t>(data.size()));
  png += type + data;
  appendNumber(png, crcOf(type + data));
}

// Grey pixels in a PNG file whose data are stored, not compressed. Rows beyond the first
// `rows` are missing.
std::string pngFile(std::uint32_t width, std::uint32_t height, std::uint32_t rows) {
  std::string header;
  appendNumber(header, width);
  appendNumber(header, height);
  header += std::string("\x08\0\0\0\0", 5);  // 8 bits, grey
  std::string data = "\x78\x01";
  std::uint32_t a = 1, b = 0;
  for (std::uint32_t y = 0; y < rows; ++y) {
    const std::string row = std::string(1, '\0') + std::string(width, '\x80');
    const auto size = static_cast<std::uint16_t>(row.size());
    data += y + 1 == height ? '\x01' : '\0';
    data += static_cast<char>(size & 255);
    data += static_cast<char>(size >> 8);
    data += static_cast<char>(~size & 255);
    data += static_cast<char>(~size >> 8 & 255);
    data += row;
    for (const char c : row) {
      a = (a + static_cast<unsigned char>(c)) % 65521;
      b = (b + a) % 65521;
    }
  }
  appendNumber(data, b << 16 | a);
  std::string png = "\x89PNG\r\n\x1a\n";
  appendChunk(png, "IHDR", header);
  appendChunk(png, "IDAT", data);
  appendChunk(png, "IEND", "");
  return png;
}

TEST(ThumbnailDecoder, ShrinksIntoTheBoxAndKeepsTheShape) {
  const TemporaryFolder folder;
  std::ofstream(folder / "wide.png") << pngFile(400, 100, 100);
  const Thumbnail wide = decode(folder / "wide.png");
  EXPECT_EQ(wide.problem, "");
  EXPECT_EQ(wide.pictureWidth, 400);
  EXPECT_EQ(wide.pictureHeight, 100);
  EXPECT_EQ(wide.bitmap.width, 48);
  EXPECT_EQ(wide.bitmap.height, 12);
  ASSERT_EQ(wide.bitmap.pixels.size(), 48u * 12 * 4);
  EXPECT_EQ(wide.bitmap.pixels[0], 0x80);
  EXPECT_EQ(wide.bitmap.pixels[3], 255);
}

TEST(ThumbnailDecoder, NeverEnlarges) {
  const TemporaryFolder folder;
  std::ofstream(folder / "small.png") << pngFile(10, 8, 8);
  const Thumbnail small = decode(folder / "small.png");
  EXPECT_EQ(small.bitmap.width, 10);
  EXPECT_EQ(small.bitmap.height, 8);
}

TEST(ThumbnailDecoder, RefusesWhatIsNoPicture) {
  const TemporaryFolder folder;
  const std::string whole = pngFile(200, 150, 150);
  std::ofstream(folder / "empty.png");
  std::ofstream(folder / "text.png") << "hello";
  std::ofstream(folder / "cut.png") << whole.substr(0, whole.size() / 2);
  std::ofstream(folder / "header.png") << whole.substr(0, 40);
  ASSERT_EQ(mkfifo((folder / "pipe.png").c_str(), 0600), 0);
  for (const char *name :
       {"empty.png", "text.png", "cut.png", "header.png", "pipe.png", "missing.png"}) {
    const Thumbnail thumbnail = decode(folder / name);
    EXPECT_NE(thumbnail.problem, "") << name;
    EXPECT_TRUE(thumbnail.bitmap.pixels.empty()) << name;
  }
  EXPECT_NE(decode(folder.path()).problem, "");
}

TEST(ThumbnailDecoder, RefusesHugePicturesFromTheirHeaderAlone) {
  const TemporaryFolder folder;
  std::ofstream(folder / "huge.png") << pngFile(20000, 20000, 1);
  const Thumbnail huge = decode(folder / "huge.png");
  EXPECT_EQ(huge.problem, "The picture is too large to be shown.");
  EXPECT_EQ(huge.pictureWidth, 20000);
}

TEST(ThumbnailDecoder, GivesUpWhenCancelled) {
  const TemporaryFolder folder;
  std::ofstream(folder / "a.png") << pngFile(200, 150, 150);
  EXPECT_NE(decodeThumbnail(folder / "a.png", 48, 36, [] { return true; }).problem, "");
}

TEST(ThumbnailDecoder, KnowsTheCommonExtensions) {
  EXPECT_THAT(readableExtensions(), ::testing::IsSupersetOf({"png", "jpg", "jpeg", "tif", "gif"}));
}

}  // namespace
}  // namespace gallery
