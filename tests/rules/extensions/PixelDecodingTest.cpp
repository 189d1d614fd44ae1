#include <gtest/gtest.h>

#include <array>
#include <ostream>

#include "extensions/PixelDecoding.h"

namespace ov {

void PrintTo(const Components& c, std::ostream* out) {
  *out << c.red << ", " << c.green << ", " << c.blue << ", " << c.alpha;
}

namespace {

Scalar part(int sample) { return static_cast<Scalar>(sample / 255.0); }

struct Row {
  const char* name;
  bool hasAlpha;
  std::uintptr_t format;
  std::intptr_t samples;
  Components expected;
  std::size_t bytes;
};

void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }

class PixelDecoding : public testing::TestWithParam<Row> {};

TEST_P(PixelDecoding, ReadsTheBytesOfTheLayout) {
  constexpr std::array<std::uint8_t, 4> pixel = {40, 20, 10, 128};
  const Row& row = GetParam();
  EXPECT_EQ(decodeRGB(pixel.data(), row.hasAlpha, row.format, row.samples), row.expected);
  EXPECT_EQ(bytesOfRGB(row.hasAlpha, row.format, row.samples), row.bytes);
}

const Components kLast{part(40), part(20), part(10), part(128)};
const Components kFirst{part(20), part(10), part(128), part(40)};
const Components kOpaque{part(40), part(20), part(10), 1};
const Components kPadded{part(20), part(10), part(128), 1};

INSTANTIATE_TEST_SUITE_P(
    Layouts, PixelDecoding,
    testing::Values(Row{"AlphaLast", true, 0, 4, kLast, 4},
                    Row{"AlphaFirst", true, kAlphaFirst, 4, kFirst, 4},
                    // Alpha decides, whatever the number of samples.
                    Row{"AlphaLastOfThree", true, 0, 3, kLast, 4},
                    Row{"AlphaFirstOfThree", true, kAlphaFirst, 3, kFirst, 4},
                    Row{"PaddingFirst", false, kAlphaFirst, 4, kPadded, 4},
                    // Any number but three is taken for padded.
                    Row{"PaddingFirstOfOne", false, kAlphaFirst, 1, kPadded, 4},
                    Row{"ThreeDespiteTheFlag", false, kAlphaFirst, 3, kOpaque, 3},
                    Row{"Three", false, 0, 3, kOpaque, 3},
                    Row{"PaddingLast", false, 0, 4, kOpaque, 3}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(PixelLayout, TheFirstReasonCounts) {
  EXPECT_EQ(unreadable(0, 8), Unreadable::no);
  EXPECT_EQ(unreadable(kAlphaFirst, 8), Unreadable::no);
  EXPECT_EQ(unreadable(0, 16), Unreadable::notEightBits);
  EXPECT_EQ(unreadable(0, 0), Unreadable::notEightBits);
  EXPECT_EQ(unreadable(kFloatingSamples, 32), Unreadable::floating);
  EXPECT_EQ(unreadable(kAlphaNotPremultiplied, 16), Unreadable::notPremultiplied);
  EXPECT_EQ(unreadable(kAlphaNotPremultiplied | kFloatingSamples, 32),
            Unreadable::notPremultiplied);
}

TEST(PixelLayout, RowsThenWholeBytesOfAPixel) {
  EXPECT_EQ(pixelOffset(0, 0, 64, 32), 0);
  EXPECT_EQ(pixelOffset(3, 2, 64, 32), 140);
  EXPECT_EQ(pixelOffset(3, 2, 64, 24), 137);
  EXPECT_EQ(pixelOffset(3, 2, 64, 31), 137) << "31 bits are 3 bytes";
  EXPECT_EQ(pixelOffset(3, 2, 64, 1), 128) << "one bit is none";
}

TEST(PixelLayout, LargeBitmapsDoNotOverflow) {
  // No such bitmap fits into the memory of 32 bits.
  if constexpr (sizeof(std::intptr_t) == 8) {
    EXPECT_EQ(pixelOffset(1, 100000, 400000, 32), std::intptr_t(40000000004LL));
  }
}

}  // namespace
}  // namespace ov
