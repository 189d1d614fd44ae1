#include "text/ByteWidths.h"

#include <iconv.h>

#include <bit>

namespace ov {

namespace {

class Converter {
 public:
  explicit Converter(const char* encoding) : handle_(iconv_open(encoding, "UTF-16LE")) {}
  ~Converter() {
    if (isOpen()) iconv_close(handle_);
  }
  Converter(const Converter&) = delete;
  Converter& operator=(const Converter&) = delete;

  // The C library marks a handle that it could not open with an address of -1.
  bool isOpen() const { return std::bit_cast<intptr_t>(handle_) != -1; }

  // 0 for what cannot be converted.
  unsigned bytesOf(char16_t unit) {
    std::array<char, 2> input = {static_cast<char>(unit & 0xFF), static_cast<char>(unit >> 8)};
    std::array<char, 16> output{};
    char* in = input.data();
    char* out = output.data();
    size_t inLeft = input.size(), outLeft = output.size();
    iconv(handle_, nullptr, nullptr, nullptr, nullptr);
    if (iconv(handle_, &in, &inLeft, &out, &outLeft) != 0 || inLeft != 0) return 0;
    return static_cast<unsigned>(output.size() - outLeft);
  }

 private:
  iconv_t handle_;
};

}  // namespace

std::optional<ByteWidths> ByteWidths::ofEncoding(const char* name) {
  Converter converter(name);
  if (!converter.isOpen()) return std::nullopt;
  return by([&](char16_t unit) { return converter.bytesOf(unit); });
}

}  // namespace ov
