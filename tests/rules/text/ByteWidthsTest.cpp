#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <string>

#include "Random.h"
#include "text/ByteWidths.h"

namespace ov {
namespace {

ByteFit fit(const ByteWidths& widths, const std::u16string& text, double limit) {
  return fitBytes(widths, text, text.size(), limit);
}

ByteWidths widthsOf(const char* encoding) {
  const std::optional<ByteWidths> widths = ByteWidths::ofEncoding(encoding);
  EXPECT_TRUE(widths.has_value()) << encoding;
  return widths.value_or(*ByteWidths::by([](char16_t) { return 1U; }));
}

struct UnitRow {
  const char* name;
  const char* encoding;
  char16_t unit;
  unsigned bytes;
  bool has;
};

void PrintTo(const UnitRow& row, std::ostream* out) { *out << row.encoding << ", " << row.name; }

class UnitWidth : public ::testing::TestWithParam<UnitRow> {};

TEST_P(UnitWidth, IsThatOfItsEncoding) {
  const UnitRow& row = GetParam();
  const ByteWidths widths = widthsOf(row.encoding);
  EXPECT_EQ(widths[row.unit], row.bytes);
  EXPECT_EQ(widths.has(row.unit), row.has);
}

const UnitRow kUnitRows[] = {
    {"NUL", "CP932", 0, 1, true},
    {"line feed", "CP932", u'\n', 1, true},
    {"ASCII letter", "CP932", u'a', 1, true},
    {"delete", "CP932", 0x7F, 1, true},
    {"C1 control", "CP932", 0x80, 1, false},
    {"no-break space", "CP932", 0xA0, 1, false},
    {"yen sign", "CP932", 0xA5, 1, true},
    {"overline", "CP932", 0x203E, 1, true},
    {"hiragana", "CP932", u'あ', 2, true},
    {"kanji", "CP932", u'漢', 2, true},
    {"half-width kana", "CP932", 0xFF71, 1, true},
    {"half-width voicing mark", "CP932", 0xFF9E, 1, true},
    {"full-width digit", "CP932", 0xFF11, 2, true},
    {"ideographic space", "CP932", 0x3000, 2, true},
    {"ellipsis", "CP932", 0x2026, 2, true},
    // What the strict Shift-JIS table lacks and people in the field type.
    {"circled digit", "CP932", 0x2460, 2, true},
    {"abbreviation for a company", "CP932", 0x3231, 2, true},
    {"variant kanji", "CP932", 0xFA11, 2, true},
    {"full-width tilde", "CP932", 0xFF5E, 2, true},
    {"wave dash", "CP932", 0x301C, 2, true},
    {"full-width hyphen", "CP932", 0xFF0D, 2, true},
    {"minus sign", "CP932", 0x2212, 2, true},
    // What it has not: one byte of a substitute.
    {"accented letter", "CP932", 0xE9, 1, false},
    {"euro sign", "CP932", 0x20AC, 1, false},
    {"hangul", "CP932", 0xAC00, 1, false},
    {"Arabic digit", "CP932", 0x663, 1, false},
    {"combining acute", "CP932", 0x301, 1, false},
    {"combining voicing mark", "CP932", 0x3099, 1, false},
    {"zero-width joiner", "CP932", 0x200D, 1, false},
    {"byte order mark", "CP932", 0xFEFF, 1, false},
    {"reversed byte order mark", "CP932", 0xFFFE, 1, false},
    {"last unit", "CP932", 0xFFFF, 1, false},
    {"high half", "CP932", 0xD83D, 1, false},
    {"low half", "CP932", 0xDE00, 1, false},

    {"ASCII letter", "EUC-JP", u'a', 1, true},
    {"hiragana", "EUC-JP", u'あ', 2, true},
    {"half-width kana", "EUC-JP", 0xFF71, 2, true},
    {"kanji of the supplementary set", "EUC-JP", 0x4E02, 3, true},
    {"circled digit", "EUC-JP", 0x2460, 1, false},
    {"accented letter", "EUC-JP", 0xE9, 3, true},
    {"hanzi", "EUC-CN", u'汉', 2, true},
    {"hanzi", "BIG5", u'漢', 2, true},
    {"simplified hanzi", "BIG5", u'汉', 1, false},
    {"hangul", "EUC-KR", 0xAC00, 2, true},
    {"rare hangul", "EUC-KR", 0xAC02, 1, false},
};

INSTANTIATE_TEST_SUITE_P(Table, UnitWidth, ::testing::ValuesIn(kUnitRows));

TEST(ByteWidths, AnEncodingWithoutConverterHasNone) {
  EXPECT_FALSE(ByteWidths::ofEncoding("no such encoding").has_value());
}

TEST(ByteWidths, AnEncodingWhoseBytesDependOnTheNeighboursHasNone) {
  EXPECT_FALSE(ByteWidths::ofEncoding("ISO-2022-JP").has_value());
}

TEST(ByteWidths, AnEncodingWithoutOneByteLettersHasNone) {
  EXPECT_FALSE(ByteWidths::ofEncoding("UTF-16LE").has_value());
  EXPECT_FALSE(ByteWidths::by([](char16_t) { return 0U; }).has_value());
  EXPECT_FALSE(ByteWidths::by([](char16_t) { return 2U; }).has_value());
}

TEST(ByteWidths, AnEncodingWiderThanTheWidestHasNone) {
  const auto wide = [](unsigned widest) {
    return ByteWidths::by([=](char16_t unit) { return unit == 0xFFFF ? widest : 1U; });
  };
  EXPECT_TRUE(wide(ByteWidths::kWidest).has_value());
  EXPECT_FALSE(wide(ByteWidths::kWidest + 1).has_value());
}

TEST(ByteWidths, KeepsEveryUnitApart) {
  const auto bytesOf = [](char16_t unit) {
    return unit < 0x80 ? 1U : static_cast<unsigned>((unit * 2654435761U >> 16) & 3);
  };
  const std::optional<ByteWidths> widths = ByteWidths::by(bytesOf);
  ASSERT_TRUE(widths.has_value());
  for (unsigned unit = 0; unit <= 0xFFFF; ++unit) {
    const unsigned bytes = bytesOf(static_cast<char16_t>(unit));
    ASSERT_EQ(widths->has(static_cast<char16_t>(unit)), bytes != 0) << unit;
    ASSERT_EQ((*widths)[static_cast<char16_t>(unit)], bytes != 0 ? bytes : 1) << unit;
  }
}

// Of every unit there is, in every encoding that may be counted: a whole is the sum of its
// parts, no cut is longer than its limit, and none could be longer.
class EveryUnit : public ::testing::TestWithParam<const char*> {};

TEST_P(EveryUnit, CountsForItselfAndFitsItsLimit) {
  const ByteWidths widths = widthsOf(GetParam());
  for (unsigned u = 0; u <= 0xFFFF; ++u) {
    const char16_t unit = static_cast<char16_t>(u);
    const unsigned bytes = widths[unit];
    ASSERT_GE(bytes, 1U) << u;
    ASSERT_LE(bytes, ByteWidths::kWidest) << u;
    if (u >= 0xD800 && u <= 0xDFFF) {
      ASSERT_EQ(bytes, 1U) << u;
      ASSERT_FALSE(widths.has(unit)) << u;
    }
    for (const std::u16string& text :
         {std::u16string{unit}, std::u16string{unit, unit}, std::u16string{u'a', unit},
          std::u16string{u'あ', unit}, std::u16string{unit, u'あ'}}) {
      uint64_t whole = 0;
      for (char16_t part : text) whole += widths[part];
      ASSERT_EQ(fit(widths, text, 100), (ByteFit{text.size(), whole})) << u;
      for (unsigned limit = 0; limit <= 7; ++limit) {
        const ByteFit cut = fit(widths, text, limit);
        ASSERT_LE(cut.bytes, limit) << u;
        if (cut.units < text.size()) {
          ASSERT_GT(cut.bytes + widths[text[cut.units]], limit) << u;
          ASSERT_GT(whole, limit) << u;
        } else {
          ASSERT_EQ(cut.bytes, whole) << u;
        }
        // The cut itself is judged as it was made.
        ASSERT_EQ(fit(widths, text.substr(0, cut.units), limit), cut) << u;
      }
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Encodings, EveryUnit,
                         ::testing::Values("CP932", "EUC-JP", "EUC-CN", "BIG5", "EUC-KR"));

struct FitRow {
  const char* name;
  std::u16string text;
  double limit;
  ByteFit fit;
};

void PrintTo(const FitRow& row, std::ostream* out) { *out << row.name; }

class Fit : public ::testing::TestWithParam<FitRow> {};

TEST_P(Fit, IsTheLongestBeginningWithinTheLimit) {
  EXPECT_EQ(fit(widthsOf("CP932"), GetParam().text, GetParam().limit), GetParam().fit);
}

const FitRow kFitRows[] = {
    {"nothing", u"", 4, {0, 0}},
    {"no room", u"a", 0, {0, 0}},
    {"room to spare", u"aあ", 4, {2, 3}},
    {"exactly full", u"aあい", 5, {3, 5}},
    {"a character that straddles the limit goes whole", u"aあいう", 4, {2, 3}},
    {"the first one straddles it", u"あ", 1, {0, 0}},
    {"a limit with a half", u"abcd", 3.5, {3, 3}},
    {"less than one byte", u"abcd", 0.5, {0, 0}},
    {"a limit beyond all numbers", u"aあ", 1e300, {2, 3}},
    {"an endless limit", u"aあ", std::numeric_limits<double>::infinity(), {2, 3}},
    {"a negative limit", u"a", -1, {0, 0}},
    {"no number", u"a", std::numeric_limits<double>::quiet_NaN(), {0, 0}},
    {"half of a pair", u"a\xD83D\xDE00z", 2, {2, 2}},
};

INSTANTIATE_TEST_SUITE_P(Table, Fit, ::testing::ValuesIn(kFitRows));

TEST(ByteFit, LooksNoFartherThanTheFirstUnitThatDoesNotFit) {
  struct Endless {
    mutable size_t farthest = 0;
    char16_t operator[](size_t index) const {
      farthest = std::max(farthest, index);
      return u'あ';
    }
  } units;
  EXPECT_EQ(fitBytes(widthsOf("CP932"), units, std::numeric_limits<size_t>::max(), 9),
            (ByteFit{4, 8}));
  EXPECT_EQ(units.farthest, 4U);
}

TEST(ByteFit, EqualsItsDefinitionForRandomTexts) {
  test::Random random;
  SCOPED_TRACE(random.describe());
  const ByteWidths widths = widthsOf("EUC-JP");
  const std::u16string units = std::u16string(1, u'\0') + u"aあｱ丂é가\n\uFEFF\xD83D\xDE00";
  for (int round = 0; round < 2000; ++round) {
    std::u16string text;
    for (int64_t n = random.integer(0, 12); n > 0; --n) {
      text += random.oneIn(4) ? static_cast<char16_t>(random.integer(0, 0xFFFF))
                              : units[static_cast<size_t>(random.integer(0, 10)) % units.size()];
    }
    const double limit = static_cast<double>(random.integer(0, 50)) / 2;
    ByteFit expected;
    for (size_t length = 0; length <= text.size(); ++length) {
      uint64_t bytes = 0;
      for (size_t i = 0; i < length; ++i) bytes += widths[text[i]];
      if (static_cast<double>(bytes) <= limit) expected = {length, bytes};
    }
    ASSERT_EQ(fit(widths, text, limit), expected);
  }
}

}  // namespace
}  // namespace ov
