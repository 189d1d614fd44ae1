#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "Random.h"
#include "platform/ImageHeaders.h"

namespace ov {
namespace {

using Bytes = std::vector<std::uint8_t>;

void add(Bytes& bytes, const std::string& text) {
  bytes.insert(bytes.end(), text.begin(), text.end());
}

void add(Bytes& bytes, std::uint32_t number, int width, bool bigEndian) {
  for (int i = 0; i < width; i++) {
    const int shift = 8 * (bigEndian ? width - 1 - i : i);
    bytes.push_back(static_cast<std::uint8_t>(number >> shift));
  }
}

struct Entry {
  std::uint32_t tag;
  std::uint32_t value;
  std::uint32_t type = 3;
};

std::vector<Entry> entries(std::uint32_t width, std::uint32_t height, std::uint32_t bits = 8,
                           std::uint32_t samples = 4) {
  return {{256, width, 4}, {257, height, 4}, {258, bits}, {262, 2}, {277, samples}};
}

// One directory after the other; the last one goes on at `next`.
Bytes tiff(const std::vector<std::vector<Entry>>& pages, bool bigEndian = false,
           std::uint32_t next = 0) {
  Bytes bytes;
  add(bytes, bigEndian ? std::string("MM\0*", 4) : std::string("II*\0", 4));
  add(bytes, 8, 4, bigEndian);
  for (std::size_t i = 0; i < pages.size(); i++) {
    add(bytes, static_cast<std::uint32_t>(pages[i].size()), 2, bigEndian);
    for (const Entry& entry : pages[i]) {
      add(bytes, entry.tag, 2, bigEndian);
      add(bytes, entry.type, 2, bigEndian);
      add(bytes, 1, 4, bigEndian);
      const int width = entry.type == 1 ? 1 : entry.type == 3 ? 2 : 4;
      add(bytes, entry.value, width, bigEndian);
      add(bytes, 0, 4 - width, bigEndian);
    }
    const bool last = i + 1 == pages.size();
    add(bytes, last ? next : static_cast<std::uint32_t>(bytes.size() + 4), 4, bigEndian);
  }
  return bytes;
}

bool isSafe(const std::vector<Entry>& page) { return isSafeImage(tiff({page})); }

Bytes png(std::uint32_t width, std::uint32_t height) {
  Bytes bytes;
  add(bytes, "\x89PNG\r\n\x1A\n");
  add(bytes, 13, 4, true);
  add(bytes, "IHDR");
  add(bytes, width, 4, true);
  add(bytes, height, 4, true);
  return bytes;
}

// Flags: 0x80 | bits - 1 for a table of colours.
Bytes gif(std::uint32_t width, std::uint32_t height, std::uint8_t common, std::uint8_t own,
          std::uint8_t codeSize, bool extension = false) {
  Bytes bytes;
  add(bytes, "GIF89a");
  add(bytes, width, 2, false);
  add(bytes, height, 2, false);
  bytes.insert(bytes.end(), {common, 0, 0});
  if (common & 0x80) bytes.resize(bytes.size() + (std::size_t{6} << (common & 7)));
  if (extension) bytes.insert(bytes.end(), {0x21, 0xF9, 4, 0, 0, 0, 0, 0});
  bytes.push_back(0x2C);
  add(bytes, 0, 4, false);
  add(bytes, width, 2, false);
  add(bytes, height, 2, false);
  bytes.push_back(own);
  if (own & 0x80) bytes.resize(bytes.size() + (std::size_t{6} << (own & 7)));
  bytes.push_back(codeSize);
  return bytes;
}

// A frame of one component, and its scan.
Bytes jpeg(std::uint32_t width, std::uint32_t height, std::uint8_t frame = 0xC0) {
  Bytes bytes = {0xFF, 0xD8, 0xFF, 0xE0, 0, 4, 'J', 'F', 0xFF, 0xFF, frame, 0, 11, 8};
  add(bytes, height, 2, true);
  add(bytes, width, 2, true);
  bytes.insert(bytes.end(), {1, 1, 0x11, 0});
  bytes.insert(bytes.end(), {0xFF, 0xDA, 0, 8, 1, 1, 0, 0, 63, 0});
  bytes.insert(bytes.end(), {1, 2, 0xFF, 0, 3, 0xFF, 0xD0, 4});
  bytes.insert(bytes.end(), {0xFF, 0xD9});
  return bytes;
}
// What comes before the pixels.
constexpr std::size_t kHeaderOfJPEG = 32;

TEST(ImageHeaders, OtherFormatsAreNotLookedAt) {
  EXPECT_TRUE(isSafeImage({}));
  EXPECT_TRUE(isSafeImage(Bytes{'B', 'M', 1, 2, 3}));
  EXPECT_TRUE(isSafeImage(Bytes{'I', 'I'}));
}

// It crashes the platform there.
TEST(ImageHeaders, PostScriptIsNotReadOn32Bits) {
  const Bytes bytes{'%', '!', 'P', 'S', '-'};
  EXPECT_EQ(isSafeImage(bytes), sizeof(void*) > 4);
  EXPECT_FALSE(isKnownImage(bytes));
}

TEST(ImageHeaders, KnownFormatsAreKnownByTheirStart) {
  for (const Bytes& bytes : {tiff({}), tiff({}, true), png(0, 0), gif(0, 0, 0, 0, 0), jpeg(0, 0)}) {
    EXPECT_TRUE(isKnownImage(bytes));
    EXPECT_FALSE(isSafeImage(bytes));
  }
  EXPECT_TRUE(isKnownImage(Bytes{'I', 'I', '+', 0}));
  EXPECT_FALSE(isKnownImage({}));
  EXPECT_FALSE(isKnownImage(Bytes{'B', 'M', 1, 2, 3}));
  EXPECT_FALSE(isKnownImage(Bytes{'I', 'I'}));
}

TEST(ImageHeaders, TIFFOfWholeBytesIsSafe) {
  EXPECT_TRUE(isSafe(entries(10, 10, 8, 1)));
  EXPECT_TRUE(isSafe(entries(10, 10, 8, 4)));
  EXPECT_TRUE(isSafe(entries(10, 10, 16, 3)));
  EXPECT_TRUE(isSafe(entries(10, 10, 8, 5)));
  EXPECT_TRUE(isSafe(entries(10, 10, 1, 1)));
  EXPECT_TRUE(isSafe({{256, 10, 1}, {257, 10, 1}})) << "one bit of one sample by default";
  EXPECT_TRUE(isSafeImage(tiff({entries(10, 10)}, true)));
}

TEST(ImageHeaders, TIFFOfOtherSamplesIsNot) {
  for (std::uint32_t bits : {0u, 2u, 3u, 4u, 7u, 9u, 12u, 24u, 32u, 64u, 65535u}) {
    EXPECT_FALSE(isSafe(entries(10, 10, bits, 1))) << bits;
    EXPECT_FALSE(isSafe(entries(10, 10, bits, 4))) << bits;
  }
  EXPECT_FALSE(isSafe(entries(10, 10, 1, 2)));
  EXPECT_FALSE(isSafe(entries(10, 10, 8, 0)));
  EXPECT_FALSE(isSafe(entries(10, 10, 8, 6)));
  EXPECT_FALSE(isSafe({{256, 10}, {257, 10}, {258, 1}, {262, 3}, {277, 1}})) << "palette";
  EXPECT_TRUE(isSafe({{256, 10}, {257, 10}, {258, 8}, {262, 3}, {277, 1}}));
}

TEST(ImageHeaders, TheBitsOfSeveralSamplesAreLookedUp) {
  // 4 × SHORT do not fit into an entry.
  auto make = [](std::uint32_t bits) {
    Bytes b;
    add(b, std::string("II*\0", 4));
    add(b, 8, 4, false);
    add(b, 4, 2, false);
    for (const Entry& e : std::vector<Entry>{{256, 10, 4}, {257, 10, 4}, {277, 4, 4}}) {
      add(b, e.tag, 2, false);
      add(b, e.type, 2, false);
      add(b, 1, 4, false);
      add(b, e.value, 4, false);
    }
    add(b, 258, 2, false);
    add(b, 3, 2, false);
    add(b, 4, 4, false);
    add(b, static_cast<std::uint32_t>(b.size() + 8), 4, false);
    add(b, 0, 4, false);
    for (int i = 0; i < 4; i++) add(b, bits, 2, false);
    return b;
  };
  EXPECT_TRUE(isSafeImage(make(8)));
  EXPECT_FALSE(isSafeImage(make(2)));
  Bytes cut = make(8);
  cut.resize(cut.size() - 8);
  EXPECT_FALSE(isSafeImage(cut));
}

TEST(ImageHeaders, DamagedDirectoriesAreRefused) {
  EXPECT_FALSE(isSafe({{256, 10}, {258, 8}})) << "no height";
  EXPECT_FALSE(isSafe({{256, 10}, {257, 10}, {258, 8}, {258, 2}})) << "twice";
  EXPECT_FALSE(isSafe({{256, 10, 5}, {257, 10}, {258, 8}})) << "a fraction";
  EXPECT_FALSE(isSafeImage(tiff({entries(10, 10)}, false, 8))) << "a circle";
  EXPECT_FALSE(isSafeImage(tiff({entries(10, 10)}, false, 0xFFFFFFF0)));
  EXPECT_FALSE(isSafeImage(tiff({{}})));
  const Bytes whole = tiff({entries(10, 10)});
  for (std::size_t length = 4; length < whole.size(); length++) {
    EXPECT_FALSE(isSafeImage(std::span(whole).first(length))) << length;
  }
  for (const char* start : {"II+", "EP*"}) {
    Bytes relative = tiff({entries(10, 10)});
    std::copy(start, start + 3, relative.begin());
    EXPECT_FALSE(isSafeImage(relative)) << start;
  }
}

TEST(ImageHeaders, EveryPageCounts) {
  EXPECT_TRUE(isSafeImage(tiff({entries(10, 10), entries(20, 20)})));
  EXPECT_FALSE(isSafeImage(tiff({entries(10, 10), entries(10, 10, 2)})));
  EXPECT_FALSE(isSafeImage(tiff({entries(10000, 10000), entries(10000, 10000)})));
}

TEST(ImageHeaders, SizesHaveLimits) {
  struct {
    std::uint32_t width, height;
    bool safe;
  } const rows[] = {
      {1, 1, true},      {32767, 1, true},      {1, 32767, true},      {11585, 11585, true},
      {0, 0, false},     {0, 10, false},        {10, 0, false},        {32768, 1, false},
      {1, 32768, false}, {11586, 11586, false}, {20000, 20000, false}, {65535, 65535, false},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(testing::Message() << row.width << " x " << row.height);
    EXPECT_EQ(isSafe(entries(row.width, row.height)), row.safe);
    EXPECT_EQ(isSafeImage(png(row.width, row.height)), row.safe);
    EXPECT_EQ(isSafeImage(jpeg(row.width, row.height)), row.safe);
    EXPECT_EQ(isSafeImage(gif(row.width, row.height, 0x80, 0, 2)), row.safe);
  }
  EXPECT_FALSE(isSafe(entries(0xFFFFFFFF, 0xFFFFFFFF)));
  EXPECT_FALSE(isSafeImage(png(0xFFFFFFFF, 1)));
}

TEST(ImageHeaders, PNGStartsWithItsHeader) {
  Bytes other = png(10, 10);
  other[12] = 'J';
  EXPECT_FALSE(isSafeImage(other));
  const Bytes whole = png(10, 10);
  EXPECT_FALSE(isSafeImage(std::span(whole).first(whole.size() - 1)));
}

TEST(ImageHeaders, GIFNeedsColours) {
  EXPECT_TRUE(isSafeImage(gif(4, 4, 0x87, 0, 8)));
  EXPECT_TRUE(isSafeImage(gif(4, 4, 0, 0x87, 8)));
  EXPECT_TRUE(isSafeImage(gif(4, 4, 0x81, 0x87, 8)));
  EXPECT_TRUE(isSafeImage(gif(4, 4, 0x80, 0, 2))) << "two colours are written with two bits";
  EXPECT_TRUE(isSafeImage(gif(4, 4, 0x87, 0, 8, true)));
  EXPECT_FALSE(isSafeImage(gif(4, 4, 0, 0, 8)));
  EXPECT_FALSE(isSafeImage(gif(4, 4, 0x81, 0, 8))) << "an index beyond the table";
  EXPECT_FALSE(isSafeImage(gif(4, 4, 0x87, 0x81, 8))) << "its own table counts";
  const Bytes whole = gif(4, 4, 0x87, 0x87, 8, true);
  for (std::size_t length = 4; length < whole.size(); length++) {
    EXPECT_FALSE(isSafeImage(std::span(whole).first(length))) << length;
  }
}

TEST(ImageHeaders, JPEGHasAFrame) {
  EXPECT_TRUE(isSafeImage(jpeg(10, 10, 0xC2)));
  EXPECT_FALSE(isSafeImage(jpeg(10, 10, 0xC4))) << "a table is no frame";
  EXPECT_FALSE(isSafeImage(jpeg(10, 10, 0xD9))) << "the end before it";
  const Bytes whole = jpeg(10, 10);
  for (std::size_t length = 2; length < whole.size(); length++) {
    EXPECT_EQ(isSafeImage(std::span(whole).first(length)), length >= kHeaderOfJPEG) << length;
  }
}

TEST(ImageHeaders, NoSegmentOfAJPEGLeadsBeyondTheEnd) {
  // A remark in each place between segments, and amid the pixels.
  for (const std::size_t place : {2u, 8u, 22u, 32u, 34u, 40u}) {
    Bytes bytes = jpeg(10, 10);
    const auto at = bytes.begin() + static_cast<std::ptrdiff_t>(place);
    const std::size_t most = bytes.size() - place + 2;
    Bytes remark = {0xFF, 0xFE, 0, 3, '!'};
    bytes.insert(at, remark.begin(), remark.end());
    EXPECT_TRUE(isSafeImage(bytes)) << place;
    for (const std::size_t length : {0u, 1u}) {
      bytes[place + 3] = static_cast<std::uint8_t>(length);
      EXPECT_FALSE(isSafeImage(bytes)) << place;
    }
    bytes[place + 3] = static_cast<std::uint8_t>(most + 2);
    EXPECT_FALSE(isSafeImage(bytes)) << place;
    bytes[place + 2] = 0xFF;
    EXPECT_FALSE(isSafeImage(bytes)) << place;
  }
}

TEST(ImageHeaders, JPEGMayHaveBytesBetweenItsSegments) {
  Bytes bytes = jpeg(10, 10);
  const Bytes more = {0, 0, 'x', 0xFF, 0xFF};
  bytes.insert(bytes.begin() + 8, more.begin(), more.end());
  EXPECT_TRUE(isSafeImage(bytes));
}

TEST(ImageHeaders, EveryFrameOfAJPEGCounts) {
  Bytes bytes = jpeg(10, 10);
  const Bytes frame = {0xFF, 0xC1, 0, 11, 8, 0xFF, 0xFF, 0xFF, 0xFF, 1, 1, 0x11, 0};
  bytes.insert(bytes.begin() + 22, frame.begin(), frame.end());
  EXPECT_FALSE(isSafeImage(bytes));
}

TEST(ImageHeaders, NoBytesLeadBeyondTheEnd) {
  test::Random random;
  SCOPED_TRACE(random.describe());
  const std::vector<Bytes> starts = {tiff({entries(10, 10), entries(9, 9)}), png(9, 9),
                                     gif(4, 4, 0x87, 0x87, 8, true), jpeg(9, 9)};
  int safe = 0;
  for (int i = 0; i < 50000; i++) {
    Bytes bytes = random.pick(starts);
    for (int change = 0; change < 3; change++) {
      const auto index =
          static_cast<std::size_t>(random.integer(0, static_cast<std::int64_t>(bytes.size()) - 1));
      bytes[index] = static_cast<std::uint8_t>(random.integer(0, 255));
    }
    bytes.resize(
        static_cast<std::size_t>(random.integer(0, static_cast<std::int64_t>(bytes.size()))));
    // The copy has no room after its end, where a sanitizer watches.
    bytes.shrink_to_fit();
    safe += isSafeImage(bytes);
  }
  EXPECT_GT(safe, 0);
}

}  // namespace
}  // namespace ov
