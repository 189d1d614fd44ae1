#include "platform/ImageHeaders.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>

namespace ov {

namespace {

using Bytes = std::span<const std::uint8_t>;

bool startsWith(Bytes bytes, std::string_view start) {
  return bytes.size() >= start.size() &&
         std::equal(start.begin(), start.end(), bytes.begin(),
                    [](char a, std::uint8_t b) { return static_cast<std::uint8_t>(a) == b; });
}

// Numbers of either byte order. A place beyond the end fails the whole reading.
class Reader {
 public:
  Reader(Bytes bytes, bool bigEndian) : bytes_(bytes), bigEndian_(bigEndian) {}

  std::uint32_t number(std::uint64_t offset, std::uint64_t width) {
    if (width > bytes_.size() || offset > bytes_.size() - width) {
      failed_ = true;
      return 0;
    }
    std::uint32_t result = 0;
    for (std::uint64_t i = 0; i < width; i++) {
      const std::uint64_t index = bigEndian_ ? i : width - 1 - i;
      result = result << 8 | bytes_[static_cast<std::size_t>(offset + index)];
    }
    return result;
  }
  bool failed() const { return failed_; }

 private:
  Bytes bytes_;
  bool bigEndian_;
  bool failed_ = false;
};

bool hasSafeSize(std::uint64_t width, std::uint64_t height) {
  return width > 0 && height > 0 && width <= kLongestImageSide && height <= kLongestImageSide &&
         width * height <= kMostImagePixels;
}

// The entries of a TIFF directory that decide how much memory the pixels take.
struct Page {
  std::optional<std::uint32_t> width;
  std::optional<std::uint32_t> height;
  std::optional<std::uint32_t> bits;
  std::optional<std::uint32_t> samples;
  std::optional<std::uint32_t> meaning;

  std::optional<std::uint32_t>* entry(std::uint32_t tag) {
    switch (tag) {
      case 256:
        return &width;
      case 257:
        return &height;
      case 258:
        return &bits;
      case 262:
        return &meaning;
      case 277:
        return &samples;
      default:
        return nullptr;
    }
  }

  // The platform looks for alpha in whole bytes, and writes three bytes for an index into a
  // palette into room for three indexes. Its colour of a pixel has room for five samples.
  // 0 for a page that is not safe.
  std::uint64_t safePixels() const {
    const std::uint32_t depth = bits.value_or(1);
    const std::uint32_t count = samples.value_or(1);
    const bool isPalette = meaning == 3;
    const bool roomy = depth == 8 || depth == 16 || (depth == 1 && count == 1 && !isPalette);
    const std::uint64_t across = width.value_or(0);
    const std::uint64_t down = height.value_or(0);
    return roomy && count >= 1 && count <= 5 && hasSafeSize(across, down) ? across * down : 0;
  }
};

// The number of an entry; of several (the bits of each sample), the first, since the platform's
// reader refuses pages where they differ. Nothing for a type that is no whole number.
std::optional<std::uint32_t> entryValue(Reader& reader, std::uint64_t entry) {
  const std::uint32_t type = reader.number(entry + 2, 2);
  const std::uint32_t count = reader.number(entry + 4, 4);
  const std::uint32_t width = type == 1 ? 1 : type == 3 ? 2 : type == 4 ? 4 : 0;
  if (width == 0 || count == 0) return std::nullopt;
  const std::uint64_t place =
      std::uint64_t{width} * count <= 4 ? entry + 8 : reader.number(entry + 8, 4);
  return reader.number(place, width);
}

bool isSafeTIFF(Bytes bytes) {
  constexpr int kMostPages = 1000;
  constexpr std::uint32_t kMostEntries = 4096;
  Reader reader(bytes, bytes[0] == 'M');
  std::uint64_t pixels = 0;
  std::uint64_t directory = reader.number(4, 4);
  for (int pages = 0; directory != 0; pages++) {
    const std::uint32_t entries = reader.number(directory, 2);
    if (pages == kMostPages || entries > kMostEntries) return false;
    Page page;
    for (std::uint32_t i = 0; i < entries && !reader.failed(); i++) {
      const std::uint64_t entry = directory + 2 + std::uint64_t{12} * i;
      std::optional<std::uint32_t>* value = page.entry(reader.number(entry, 2));
      if (value == nullptr) continue;
      // Which of two counts, another reader may see otherwise.
      if (value->has_value()) return false;
      *value = entryValue(reader, entry);
      if (!value->has_value()) return false;
    }
    const std::uint64_t pagePixels = page.safePixels();
    if (reader.failed() || pagePixels == 0) return false;
    pixels += pagePixels;
    if (pixels > kMostImagePixels) return false;
    // A chain of directories that ends early, or in a circle, ends in the number of pages.
    directory = reader.number(directory + 2 + std::uint64_t{12} * entries, 4);
    if (reader.failed()) return false;
  }
  return pixels > 0;
}

bool isSafePNG(Bytes bytes) {
  Reader reader(bytes, true);
  const bool safe = hasSafeSize(reader.number(16, 4), reader.number(20, 4));
  return safe && startsWith(bytes.subspan(12), "IHDR") && !reader.failed();
}

// How many bits an index into a table of colours has, from the flags before it; 0 without one.
std::uint32_t tableBits(std::uint32_t flags) { return (flags & 0x80) != 0 ? (flags & 7) + 1 : 0; }

std::uint64_t tableLength(std::uint32_t bits) { return bits == 0 ? 0 : std::uint64_t{3} << bits; }

// Finds the first picture, which is the one that is read: without colours of its own or of the
// file the platform would follow a null pointer, and it takes any index.
bool isSafeGIF(Bytes bytes) {
  Reader reader(bytes, false);
  if (!hasSafeSize(reader.number(6, 2), reader.number(8, 2))) return false;
  const std::uint32_t common = tableBits(reader.number(10, 1));
  std::uint64_t place = 13 + tableLength(common);
  while (!reader.failed()) {
    const std::uint32_t kind = reader.number(place, 1);
    if (kind == 0x21) {
      place += 2;
      while (const std::uint32_t length = reader.number(place, 1)) place += 1 + length;
      place += 1;
    } else if (kind == 0x2C) {
      const std::uint32_t own = tableBits(reader.number(place + 9, 1));
      const std::uint32_t bits = own != 0 ? own : common;
      const std::uint32_t codeSize = reader.number(place + 10 + tableLength(own), 1);
      return !reader.failed() && bits != 0 && codeSize <= std::max(bits, std::uint32_t{2});
    } else {
      return false;
    }
  }
  return false;
}

// Whether a marker is followed by the length of its segment. Restarts come amid pixels.
bool hasLength(std::uint32_t marker) {
  return marker != 0x00 && marker != 0x01 && !(marker >= 0xD0 && marker <= 0xD8);
}

bool isFrame(std::uint32_t marker) {
  return marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
}

// Goes through the segments, also of later scans, since the platform's reader follows a length
// beyond the end. Bytes between them that belong to none are passed over as that reader does.
// Pixels may end early.
bool isSafeJPEG(Bytes bytes) {
  constexpr std::uint32_t kEnd = 0xD9;
  constexpr std::uint32_t kScan = 0xDA;
  Reader reader(bytes, true);
  bool sawFrame = false;
  bool sawScan = false;
  std::uint64_t place = 2;
  for (; place < bytes.size(); place++) {
    if (bytes[static_cast<std::size_t>(place)] != 0xFF) continue;
    if (place + 1 == bytes.size()) break;
    const std::uint32_t marker = reader.number(place + 1, 1);
    if (marker == 0xFF) continue;  // filling
    if (marker == kEnd) break;
    if (!hasLength(marker)) {
      place += 1;
      continue;
    }
    const std::uint64_t end = place + 2 + reader.number(place + 2, 2);
    if (reader.failed() || end > bytes.size() || end < place + 4) return false;
    if (isFrame(marker)) {
      if (!hasSafeSize(reader.number(place + 7, 2), reader.number(place + 5, 2))) return false;
      sawFrame = true;
    }
    sawScan = sawScan || marker == kScan;
    place = end - 1;
  }
  return sawFrame && sawScan && !reader.failed();
}

enum class Format { Other, TIFF, RelativeOfTIFF, PNG, GIF, JPEG, PostScript };

Format formatOf(Bytes bytes) {
  using namespace std::string_view_literals;
  if (startsWith(bytes, "II*\0"sv) || startsWith(bytes, "MM\0*"sv)) return Format::TIFF;
  // The platform's library reads these, too: with 64-bit offsets, and EP.
  constexpr std::array kRelatives = {"II+\0"sv, "MM\0+"sv, "EP*\0"sv, "EP\0*"sv};
  if (std::any_of(kRelatives.begin(), kRelatives.end(),
                  [&](std::string_view start) { return startsWith(bytes, start); })) {
    return Format::RelativeOfTIFF;
  }
  if (startsWith(bytes, "\x89PNG"sv)) return Format::PNG;
  if (startsWith(bytes, "GIF8"sv)) return Format::GIF;
  if (startsWith(bytes, "%!PS"sv)) return Format::PostScript;
  return startsWith(bytes, "\xFF\xD8"sv) ? Format::JPEG : Format::Other;
}

}  // namespace

bool isKnownImage(Bytes bytes) {
  const Format format = formatOf(bytes);
  return format != Format::Other && format != Format::PostScript;
}

bool isSafeImage(Bytes bytes) {
  switch (formatOf(bytes)) {
    case Format::TIFF:
      return isSafeTIFF(bytes);
    case Format::RelativeOfTIFF:
      return false;
    case Format::PNG:
      return isSafePNG(bytes);
    case Format::GIF:
      return isSafeGIF(bytes);
    case Format::JPEG:
      return isSafeJPEG(bytes);
    case Format::PostScript:
      // One that it cannot read, the platform asks for its size all the same: nil, that is, and on
      // 32 bits it crashes.
      return sizeof(void*) > 4;
    case Format::Other:
      return true;
  }
  return true;
}

}  // namespace ov
