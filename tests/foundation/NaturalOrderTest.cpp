#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <ostream>
#include <string>
#include <vector>

#include "NaturalOrder.h"
#include "RandomSeed.h"

namespace {

char16_t lower(char16_t unit) { return unit >= u'A' && unit <= u'Z' ? unit + 32 : unit; }

int sign(std::strong_ordering order) { return order < 0 ? -1 : order > 0 ? 1 : 0; }

int compare(std::u16string_view a, std::u16string_view b) {
  return sign(ov::naturalOrder(a, b, lower));
}

struct Pair {
  const char *name;
  std::u16string first, second;  // in this order
};

void PrintTo(const Pair &pair, std::ostream *out) { *out << pair.name; }

class NaturalOrderPairs : public testing::TestWithParam<Pair> {};

TEST_P(NaturalOrderPairs, FirstComesFirst) {
  const Pair &pair = GetParam();
  EXPECT_EQ(-1, compare(pair.first, pair.second));
  EXPECT_EQ(1, compare(pair.second, pair.first));
  EXPECT_EQ(0, compare(pair.first, pair.first));
  EXPECT_EQ(0, compare(pair.second, pair.second));
}

INSTANTIATE_TEST_SUITE_P(
    , NaturalOrderPairs,
    testing::Values(
        Pair{"ByValue", u"Item 2", u"item 10"}, Pair{"EmptyFirst", u"", std::u16string(1, u'\0')},
        Pair{"PrefixFirst", u"a", u"a1"}, Pair{"Letters", u"abc", u"abd"},
        Pair{"CaseDoesNotCount", u"B2", u"b10"}, Pair{"CaseBreaksTies", u"A", u"a"},
        Pair{"TiesComeLast", u"a2", u"A10"}, Pair{"ZerosBreakTies", u"a01", u"a1"},
        Pair{"ZerosDoNotCount", u"a01b", u"a1c"}, Pair{"ZeroFirst", u"a0", u"a1"},
        Pair{"OnlyZeros", u"a000", u"a0000"}, Pair{"ZerosThenLetter", u"a00b", u"a1"},
        Pair{"MoreNumbers", u"1.2.3", u"1.2.10"}, Pair{"SecondNumberDecides", u"1a9", u"1a10"},
        Pair{"LongerThanAnyInteger", u"x99999999999999999999999999999998",
             u"x99999999999999999999999999999999"},
        Pair{"LongerIsLarger", u"x9999999999999999999999", u"x10000000000000000000000"},
        Pair{"WideDigits", u"a\uFF12", u"a10"}, Pair{"ArabicDigits", u"a9", u"a\u0661\u0660"},
        Pair{"MixedScriptsAreOneNumber", u"a1\uFF10", u"a11"},
        Pair{"ScriptBreaksTies", u"a7", u"a\uFF17"}, Pair{"NumberBeforeLetter", u"a1", u"ab"},
        Pair{"SpaceBeforeNumber", u"a b", u"a1"}, Pair{"WideNumberBeforeLetter", u"a\uFF11", u"ab"},
        Pair{"NulIsACharacter", std::u16string(u"a\0a", 3), std::u16string(u"a\0b", 3)},
        Pair{"LoneHalf", u"a", std::u16string(u"a") + char16_t(0xD83D)}),
    [](const auto &info) { return info.param.name; });

TEST(NaturalOrder, EveryDigitOfAScriptHasItsValue) {
  EXPECT_EQ(0, ov::decimalDigitValue(u'0'));
  EXPECT_EQ(9, ov::decimalDigitValue(u'9'));
  EXPECT_EQ(-1, ov::decimalDigitValue(u'0' - 1));
  EXPECT_EQ(-1, ov::decimalDigitValue(u'9' + 1));
  EXPECT_EQ(-1, ov::decimalDigitValue(0));
  EXPECT_EQ(-1, ov::decimalDigitValue(0xFFFF));
  EXPECT_EQ(9, ov::decimalDigitValue(0x0669));
  EXPECT_EQ(9, ov::decimalDigitValue(0xFF19));
  int digits = 0;
  for (int unit = 0; unit < 0x10000; ++unit) {
    if (ov::decimalDigitValue(char16_t(unit)) >= 0) ++digits;
  }
  EXPECT_EQ(370, digits);
}

std::u16string randomName(std::mt19937 &random) {
  // Few characters, so that names often agree for a while.
  static constexpr std::u16string_view alphabet = u"aAbB0019_. \uFF10\u0661\u00E9\xD83D";
  std::u16string name;
  for (auto length = random() % 7; length > 0; --length)
    name += alphabet[random() % alphabet.size()];
  return name;
}

TEST(NaturalOrder, IsATotalOrder) {
  const unsigned seed = testSeed();
  SCOPED_TRACE(testing::Message() << "OV_TEST_SEED=" << seed);
  std::mt19937 random(seed);
  for (int round = 0; round < 200000; ++round) {
    const auto a = randomName(random), b = randomName(random), c = randomName(random);
    ASSERT_EQ(compare(a, b), -compare(b, a));
    ASSERT_EQ(compare(a, b) == 0, a == b);
    if (compare(a, b) <= 0 && compare(b, c) <= 0) ASSERT_LE(compare(a, c), 0);
  }
}

TEST(NaturalOrder, NumbersSortByValue) {
  const unsigned seed = testSeed();
  SCOPED_TRACE(testing::Message() << "OV_TEST_SEED=" << seed);
  std::mt19937_64 random(seed);
  for (int round = 0; round < 20000; ++round) {
    const std::uint64_t values[] = {random() >> (random() % 64), random() >> (random() % 64)};
    std::array<std::u16string, 2> names;
    for (int i = 0; i < 2; ++i) {
      const std::string digits = std::to_string(values[i]);
      names[i] = u"n" + std::u16string(random() % 3, u'0') +
                 std::u16string(digits.begin(), digits.end()) + u"z";
    }
    if (values[0] != values[1]) {
      ASSERT_EQ(values[0] < values[1] ? -1 : 1, compare(names[0], names[1]));
    }
  }
}

TEST(NaturalOrder, SortsLongNames) {
  std::u16string a(5'000'000, u'7'), b = a;
  b.back() = u'8';
  EXPECT_EQ(-1, compare(a, b));
  EXPECT_EQ(1, compare(a + u"7", b));
}

}  // namespace
