#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <limits>

#include "Random.h"
#include "RulePrinting.h"
#include "split/StoredLayout.h"

namespace ov {
namespace {

using testing::Eq;
using testing::Optional;

TEST(RectText, IsShortWhereItCanBe) {
  EXPECT_EQ(textOfRect({0, 0, 100, 50}), "{{0, 0}, {100, 50}}");
  EXPECT_EQ(textOfRect({1000000, 1000000, 120.5, 80}), "{{1000000, 1000000}, {120.5, 80}}");
  EXPECT_EQ(textOfRect({-1.25, 0, 1, 12345678}), "{{-1.25, 0}, {1, 12345678}}");
}

TEST(RectText, OfWhatIsNoNumberIsZero) {
  const Scalar infinity = std::numeric_limits<Scalar>::infinity();
  EXPECT_EQ(textOfRect({infinity, -infinity, std::numeric_limits<Scalar>::quiet_NaN(), 1}),
            "{{0, 0}, {0, 1}}");
}

TEST(RectText, LosesNoDigit) {
  test::Random random;
  SCOPED_TRACE(random.describe());
  const auto number = [&]() -> Scalar {
    switch (random.integer(0, 3)) {
      case 0:
        return static_cast<Scalar>(random.integer(-5000, 5000));
      case 1:
        return static_cast<Scalar>(random.real(-1, 1));
      case 2:
        return static_cast<Scalar>(random.real(-1e9, 1e9));
      default: {
        // Any number there is.
        using Bits = std::conditional_t<sizeof(Scalar) == 4, std::uint32_t, std::uint64_t>;
        const Scalar any = std::bit_cast<Scalar>(static_cast<Bits>(random.integer(
            std::numeric_limits<int64_t>::min(), std::numeric_limits<int64_t>::max())));
        return std::isfinite(any) ? any : 0;
      }
    }
  };
  for (int i = 0; i < 20000; ++i) {
    const Rect rect = {number(), number(), number(), number()};
    ASSERT_THAT(rectFromText(textOfRect(rect)), Optional(Eq(rect))) << textOfRect(rect);
  }
}

struct ReadRow {
  const char* name;
  std::string_view text;
  std::optional<Rect> expected;
};

void PrintTo(const ReadRow& row, std::ostream* out) { *out << row.name; }

class RectFromText : public testing::TestWithParam<ReadRow> {};

TEST_P(RectFromText, Row) {
  const auto read = rectFromText(GetParam().text);
  EXPECT_EQ(read.has_value(), GetParam().expected.has_value());
  if (read && GetParam().expected) {
    EXPECT_EQ(*read, *GetParam().expected);
  }
}

INSTANTIATE_TEST_SUITE_P(
    Rows, RectFromText,
    testing::Values(ReadRow{"own", "{{1, 2}, {3, 4}}", Rect{1, 2, 3, 4}},
                    ReadRow{"tight", "{{1,2},{3,4}}", Rect{1, 2, 3, 4}},
                    ReadRow{"named", "{x = 1; y = 2; width = 3; height = 4}", Rect{1, 2, 3, 4}},
                    ReadRow{"sixDigits", "{{1e+06, 1E+06}, {.5, -0.333333}}",
                            Rect{1000000, 1000000, Scalar(.5), Scalar(-0.333333)}},
                    ReadRow{"bare", "1 2 3 4", Rect{1, 2, 3, 4}},
                    ReadRow{"spaces", "  { { 1 , 2 } , { 3 , 4 } }\n", Rect{1, 2, 3, 4}},
                    ReadRow{"plusSigns", "{{+1, +2}, {+3, +4}}", Rect{1, 2, 3, 4}},
                    ReadRow{"moreThanFour", "{{1, 2}, {3, 4}}, 5", Rect{1, 2, 3, 4}},
                    ReadRow{"loneSigns", "- . -. {{1, 2}, {3, 4}}", Rect{1, 2, 3, 4}},
                    ReadRow{"empty", "", std::nullopt},
                    ReadRow{"words", "no rectangle at all", std::nullopt},
                    ReadRow{"three", "{{1, 2}, {3}}", std::nullopt},
                    ReadRow{"notANumber", "{{nan, 1}, {2, 3}} 4", std::nullopt},
                    ReadRow{"infinite", "{{1, 2}, {inf, 3}} 4", std::nullopt},
                    ReadRow{"minusInfinity", "{{1, 2}, {-Infinity, 3}} 4", std::nullopt},
                    ReadRow{"tooLarge", "{{1, 2}, {1e999, 3}} 4", std::nullopt},
                    ReadRow{"cutOffExponent", "{{1e, 2}, {3, 4}}", Rect{1, 2, 3, 4}},
                    ReadRow{"embeddedZero", std::string_view("{{1, 2}\0, {3, 4}}", 17),
                            Rect{1, 2, 3, 4}},
                    ReadRow{"otherScript", "{{\xEF\xBC\x91, 1}, {2, 3}} 4", Rect{1, 2, 3, 4}}),
    [](const auto& info) { return info.param.name; });

TEST(RectFromText, SurvivesAnyBytes) {
  test::Random random;
  SCOPED_TRACE(random.describe());
  const std::string alphabet = "0123456789.-+eE{},;= xywidthheightinfna\n\0\xff";
  for (int i = 0; i < 20000; ++i) {
    std::string text;
    for (int64_t n = random.integer(0, 60); n > 0; --n) {
      text += alphabet[static_cast<std::size_t>(
          random.integer(0, static_cast<int64_t>(alphabet.size()) - 1))];
    }
    if (const auto rect = rectFromText(text)) {
      for (Scalar number : {rect->x, rect->y, rect->width, rect->height}) {
        ASSERT_TRUE(std::isfinite(number)) << text;
      }
      ASSERT_THAT(rectFromText(textOfRect(*rect)), Optional(Eq(*rect))) << text;
    }
  }
}

}  // namespace
}  // namespace ov
