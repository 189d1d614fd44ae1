#include <gtest/gtest.h>

#include <algorithm>
#include <ostream>
#include <string>
#include <vector>

#include "Random.h"
#include "text/LineSplitting.h"

namespace ov {

void PrintTo(const LineExtent& line, std::ostream* out) {
  *out << "[" << line.start << ", " << line.end << ")";
}

namespace {

// Counts what is read, and lets nobody read outside.
class TestText final : public TextUnits {
 public:
  explicit TestText(std::u16string units) : TextUnits(units.size()), units_(std::move(units)) {}

  void copy(std::size_t start, std::span<char16_t> block) const override {
    EXPECT_LE(start, units_.size());
    EXPECT_LE(block.size(), units_.size() - start);
    EXPECT_LE(block.size(), kTextBlockLength);
    EXPECT_FALSE(block.empty());
    std::copy_n(units_.begin() + static_cast<std::ptrdiff_t>(start), block.size(), block.begin());
    unitsRead += block.size();
  }

  mutable std::size_t unitsRead = 0;

 private:
  std::u16string units_;
};

std::vector<LineExtent> filledLines(const TextUnits& text) {
  std::vector<LineExtent> lines;
  forEachFilledLine(text, [&](LineExtent line) { lines.push_back(line); });
  return lines;
}

// The definition: every line, one unit at a time.
std::vector<LineExtent> slowLines(const std::u16string& units) {
  std::vector<LineExtent> lines(1);
  for (std::size_t i = 0; i < units.size(); i++) {
    if (units[i] == u'\r' || units[i] == u'\n') {
      lines.back().end = i;
      lines.push_back({i + 1, i + 1});
    }
  }
  lines.back().end = units.size();
  return lines;
}

struct SplitCase {
  const char* name;
  std::u16string units;
  std::vector<LineExtent> lines;
};

void PrintTo(const SplitCase& row, std::ostream* out) { *out << row.name; }

class Splitting : public testing::TestWithParam<SplitCase> {};

TEST_P(Splitting, FindsEveryLine) {
  const TestText text(GetParam().units);
  const std::vector<LineExtent>& lines = GetParam().lines;
  ASSERT_EQ(lineCount(text), lines.size());
  std::vector<LineExtent> filled;
  for (std::size_t i = 0; i < lines.size(); i++) {
    EXPECT_EQ(lineAtIndex(text, i), lines[i]) << "line " << i;
    if (lines[i].length() > 0) filled.push_back(lines[i]);
  }
  EXPECT_EQ(lineAtIndex(text, lines.size()).length(), 0u) << "no such line";
  EXPECT_EQ(lineAtIndex(text, SIZE_MAX).length(), 0u) << "no such line";
  EXPECT_EQ(filledLines(text), filled);
}

INSTANTIATE_TEST_SUITE_P(
    Lines, Splitting,
    testing::Values(SplitCase{"Nothing", u"", {{0, 0}}}, SplitCase{"NoBreak", u"ab", {{0, 2}}},
                    SplitCase{"LineFeed", u"a\nb", {{0, 1}, {2, 3}}},
                    SplitCase{"Return", u"a\rb", {{0, 1}, {2, 3}}},
                    SplitCase{"Pair", u"a\r\nb", {{0, 1}, {2, 2}, {3, 4}}},
                    SplitCase{"PairTheOtherWay", u"a\n\rb", {{0, 1}, {2, 2}, {3, 4}}},
                    SplitCase{"OnlyABreak", u"\n", {{0, 0}, {1, 1}}},
                    SplitCase{"BreakAtTheEnd", u"a\n", {{0, 1}, {2, 2}}},
                    SplitCase{"BreakAtTheStart", u"\na", {{0, 0}, {1, 2}}},
                    // Other characters that end lines elsewhere are ordinary here.
                    SplitCase{"OtherSeparators", u"a\u2028b\u2029c\u0085d\ve\f", {{0, 10}}},
                    SplitCase{"Nul", std::u16string(u"a\0\nb", 4), {{0, 2}, {3, 4}}},
                    SplitCase{
                        "LoneHalves", std::u16string{0xD800, u'\n', 0xDC00}, {{0, 1}, {2, 3}}},
                    // U+0A0D and U+0D0A are letters, whose bytes look like breaks.
                    SplitCase{"BytesThatLookLikeBreaks", u"\u0A0D\u0D0A", {{0, 2}}}),
    [](const auto& info) { return std::string(info.param.name); });

struct CountCase {
  const char* name;
  std::u16string units;
  std::size_t location;
  std::size_t breaks;
};

void PrintTo(const CountCase& row, std::ostream* out) { *out << row.name; }

class BreaksBefore : public testing::TestWithParam<CountCase> {};

TEST_P(BreaksBefore, AreCounted) {
  const CountCase& row = GetParam();
  EXPECT_EQ(lineBreaksBefore(TestText(row.units), row.location), row.breaks);
}

INSTANTIATE_TEST_SUITE_P(Lines, BreaksBefore,
                         testing::Values(CountCase{"Empty", u"", 0, 0},
                                         CountCase{"EmptyPastTheEnd", u"", 9, 0},
                                         CountCase{"Start", u"\n", 0, 0},
                                         // The break belongs to the line that it ends.
                                         CountCase{"AtTheBreak", u"a\nb", 1, 0},
                                         CountCase{"AfterTheBreak", u"a\nb", 2, 1},
                                         CountCase{"InThePair", u"a\r\nb", 2, 1},
                                         CountCase{"AfterThePair", u"a\r\nb", 3, 2},
                                         CountCase{"AtTheEnd", u"a\r\nb", 4, 2},
                                         CountCase{"PastTheEnd", u"a\n", 5, 1},
                                         CountCase{"FarPastTheEnd", u"a\n", SIZE_MAX, 1}),
                         [](const auto& info) { return std::string(info.param.name); });

struct BeforeCase {
  const char* name;
  std::u16string units;
  std::size_t location;
  LineExtent line;
};

void PrintTo(const BeforeCase& row, std::ostream* out) { *out << row.name; }

class LineBefore : public testing::TestWithParam<BeforeCase> {};

TEST_P(LineBefore, EndsAtTheLocation) {
  const BeforeCase& row = GetParam();
  EXPECT_EQ(lineBeforeLocation(TestText(row.units), row.location), row.line);
}

INSTANTIATE_TEST_SUITE_P(Lines, LineBefore,
                         testing::Values(BeforeCase{"Empty", u"", 0, {0, 0}},
                                         BeforeCase{"Start", u"ab\ncd", 0, {0, 0}},
                                         BeforeCase{"FirstLine", u"ab\ncd", 2, {0, 2}},
                                         BeforeCase{"InTheFirstLine", u"ab\ncd", 1, {0, 1}},
                                         BeforeCase{"AfterTheBreak", u"ab\ncd", 3, {3, 3}},
                                         BeforeCase{"SecondLine", u"ab\ncd", 5, {3, 5}},
                                         BeforeCase{"NotItsRest", u"ab\ncdef", 5, {3, 5}},
                                         BeforeCase{"InThePair", u"ab\r\ncd", 3, {3, 3}},
                                         BeforeCase{"AfterThePair", u"ab\r\ncd", 6, {4, 6}},
                                         BeforeCase{"NoBreak", u"abc", 3, {0, 3}}),
                         [](const auto& info) { return std::string(info.param.name); });

// Lengths around the ends of blocks, with a break at every place near them.
TEST(LineSplitting, BlocksDoNotShow) {
  constexpr std::size_t block = kTextBlockLength;
  for (std::size_t length : {block - 1, block, block + 1, 2 * block, 2 * block + 1}) {
    for (std::size_t place : {std::size_t(0), block - 2, block - 1, block, block + 1, length - 1}) {
      if (place >= length) continue;
      SCOPED_TRACE(testing::Message() << "length " << length << ", break at " << place);
      std::u16string units(length, u'x');
      units[place] = u'\r';
      const TestText text(units);
      EXPECT_EQ(lineCount(text), 2u);
      EXPECT_EQ(lineAtIndex(text, 0), (LineExtent{0, place}));
      EXPECT_EQ(lineAtIndex(text, 1), (LineExtent{place + 1, length}));
      EXPECT_EQ(lineBreaksBefore(text, place), 0u);
      EXPECT_EQ(lineBreaksBefore(text, place + 1), 1u);
      EXPECT_EQ(lineBeforeLocation(text, length), (LineExtent{place + 1, length}));
      EXPECT_EQ(lineBeforeLocation(text, place), (LineExtent{0, place}));
    }
  }
}

TEST(LineSplitting, AgreesWithItsDefinition) {
  test::Random random;
  SCOPED_TRACE(random.describe());
  const std::u16string alphabet = {u'a', u'\n', u'\r', u'あ', 0xD83D, 0xDE00, u'\0', 0x2028};
  for (int round = 0; round < 300; round++) {
    std::u16string units(static_cast<std::size_t>(random.integer(0, random.oneIn(5) ? 6000 : 40)),
                         u'x');
    const bool few = random.oneIn(2);
    for (char16_t& unit : units) {
      if (few && !random.oneIn(200)) continue;
      unit = alphabet[static_cast<std::size_t>(random.integer(0, int64_t(alphabet.size()) - 1))];
    }
    const TestText text(units);
    const std::vector<LineExtent> lines = slowLines(units);
    ASSERT_EQ(lineCount(text), lines.size());
    std::vector<LineExtent> filled = lines;
    std::erase_if(filled, [](LineExtent line) { return line.length() == 0; });
    ASSERT_EQ(filledLines(text), filled);
    for (int look = 0; look < 20; look++) {
      const auto index = static_cast<std::size_t>(random.integer(0, int64_t(lines.size()) - 1));
      ASSERT_EQ(lineAtIndex(text, index), lines[index]);
      const auto location = static_cast<std::size_t>(random.integer(0, int64_t(units.size())));
      const auto holding =
          std::ranges::find_if(lines, [&](LineExtent line) { return location <= line.end; });
      ASSERT_EQ(lineBreaksBefore(text, location),
                static_cast<std::size_t>(holding - lines.begin()));
      ASSERT_EQ(lineBeforeLocation(text, location), (LineExtent{holding->start, location}));
    }
  }
}

TEST(LineSplitting, ReadsNoFurtherThanItMust) {
  std::u16string units;
  for (int i = 0; i < 100000; i++) units += u"0123456789\n";
  const TestText text(units);
  EXPECT_EQ(lineAtIndex(text, 10), (LineExtent{110, 120}));
  EXPECT_LE(text.unitsRead, kTextBlockLength);

  text.unitsRead = 0;
  EXPECT_EQ(lineBeforeLocation(text, 1000000), (LineExtent{999999, 1000000}));
  EXPECT_LE(text.unitsRead, kTextBlockLength);

  text.unitsRead = 0;
  EXPECT_EQ(lineBreaksBefore(text, 12), 1u);
  EXPECT_EQ(text.unitsRead, 12u);

  text.unitsRead = 0;
  EXPECT_EQ(lineCount(text), 100001u);
  EXPECT_EQ(text.unitsRead, units.size()) << "once";

  text.unitsRead = 0;
  EXPECT_EQ(filledLines(text).size(), 100000u);
  EXPECT_EQ(text.unitsRead, units.size()) << "once";
}

}  // namespace
}  // namespace ov
