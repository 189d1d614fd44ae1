#include "BinaryPropertyList.h"

#include <cstdint>
#include <vector>

namespace ov {
namespace {

constexpr std::string_view header = "bplist00";
constexpr std::size_t trailerSize = 32;

std::uint64_t bigEndian(std::string_view bytes) {
  std::uint64_t number = 0;
  for (const char byte : bytes) number = number << 8 | std::uint8_t(byte);
  return number;
}

class Checker {
 public:
  Checker(std::string_view bytes, std::size_t maximumDepth, std::size_t maximumCount)
      : bytes_(bytes), maximumDepth_(maximumDepth), maximumCount_(maximumCount) {}

  // header, objects, table of their places, trailer
  bool check() {
    if (bytes_.size() < header.size() + 1 + trailerSize) return false;
    const std::string_view trailer = bytes_.substr(bytes_.size() - trailerSize);
    placeSize_ = std::uint8_t(trailer[6]);
    referenceSize_ = std::uint8_t(trailer[7]);
    const std::uint64_t count = bigEndian(trailer.substr(8, 8));
    const std::uint64_t top = bigEndian(trailer.substr(16, 8));
    const std::uint64_t table = bigEndian(trailer.substr(24, 8));
    const std::size_t end = bytes_.size() - trailerSize;
    if (placeSize_ < 1 || placeSize_ > 8 || referenceSize_ < 1 || referenceSize_ > 8) return false;
    if (table <= header.size() || table > end) return false;
    if (count == 0 || count > (end - table) / placeSize_ || top >= count) return false;
    table_ = std::size_t(table);
    sizes_.assign(std::size_t(count), unknown);
    depths_.assign(std::size_t(count), 0);
    return sizeOf(top, 0) != 0;
  }

 private:
  static constexpr std::size_t unknown = 0;
  static constexpr std::size_t inProgress = SIZE_MAX;

  // The number of objects in this one, itself included; 0 when something is wrong with it.
  std::size_t sizeOf(std::uint64_t object, std::size_t depth) {
    if (object >= sizes_.size() || depth > maximumDepth_) return 0;
    std::size_t &size = sizes_[std::size_t(object)];
    if (size == inProgress) return 0;
    // What is held twice may be too deep at the second place.
    if (size != unknown && depth <= depths_[std::size_t(object)]) return size;
    size = inProgress;
    size = sizeOfContents(object, depth);
    depths_[std::size_t(object)] = depth;
    return size;
  }

  std::size_t sizeOfContents(std::uint64_t object, std::size_t depth) {
    std::uint64_t place =
        bigEndian(bytes_.substr(table_ + std::size_t(object) * placeSize_, placeSize_));
    if (place < header.size() || place >= table_) return 0;
    const unsigned marker = std::uint8_t(bytes_[std::size_t(place++)]);
    const unsigned kind = marker >> 4, low = marker & 15;
    const std::uint64_t room = table_ - place;
    switch (kind) {
      case 0x0:
        return 1;
      case 0x1:
      case 0x2:
        return low <= 4 && room >= (1u << low) ? 1 : 0;
      case 0x3:
        return room >= 8 ? 1 : 0;
      case 0x8:
        return room >= low + 1 ? 1 : 0;
      case 0x4:
      case 0x5:
      case 0x6:
      case 0xA:
      case 0xC:
      case 0xD:
        break;
      default:
        return 0;
    }
    std::uint64_t count = low;
    if (low == 15 && !readCount(place, count)) return 0;
    const std::uint64_t unit = kind == 0x4 || kind == 0x5 ? 1
                               : kind == 0x6              ? 2
                               : kind == 0xD              ? 2 * referenceSize_
                                                          : referenceSize_;
    if (count > (table_ - place) / unit) return 0;
    if (kind < 0xA) return 1;
    return sizeOfMembers(place, kind == 0xD ? 2 * count : count, depth);
  }

  // One object and what it refers to.
  std::size_t sizeOfMembers(std::uint64_t place, std::uint64_t references, std::size_t depth) {
    std::size_t total = 1;
    for (std::uint64_t i = 0; i < references; ++i) {
      const std::uint64_t member =
          bigEndian(bytes_.substr(std::size_t(place + i * referenceSize_), referenceSize_));
      const std::size_t size = sizeOf(member, depth + 1);
      if (size == 0) return 0;
      total += size;
      if (total > maximumCount_) return 0;
    }
    return total;
  }

  // A count of 15 and more follows as a number of its own.
  bool readCount(std::uint64_t &place, std::uint64_t &count) const {
    if (place >= table_) return false;
    const unsigned marker = std::uint8_t(bytes_[std::size_t(place++)]);
    const unsigned low = marker & 15;
    if (marker >> 4 != 1 || low > 3 || table_ - place < (1u << low)) return false;
    count = bigEndian(bytes_.substr(std::size_t(place), 1u << low));
    place += 1u << low;
    return true;
  }

  std::string_view bytes_;
  std::size_t maximumDepth_, maximumCount_;
  std::size_t placeSize_ = 0, referenceSize_ = 0, table_ = 0;
  std::vector<std::size_t> sizes_;
  std::vector<std::size_t> depths_;
};

}  // namespace

bool isBinaryPropertyList(std::string_view bytes) { return bytes.starts_with("bplist"); }

bool isSoundBinaryPropertyList(std::string_view bytes, std::size_t maximumDepth,
                               std::size_t maximumCount) {
  return bytes.starts_with(header) && Checker(bytes, maximumDepth, maximumCount).check();
}

}  // namespace ov
