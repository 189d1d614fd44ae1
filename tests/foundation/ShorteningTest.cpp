#include <gtest/gtest.h>

#include <string>

#include "RandomSeed.h"
#include "Shortening.h"

namespace {

using ov::CutAt;
using ov::KeptEnds;

// A text in which "-" belongs to what precedes it, every other unit being one wide.
ov::ShorteningQuestions questions(const std::string &text, std::size_t room) {
  return {.mayCutBefore = [&text](std::size_t index) { return text[index] != '-'; },
          .fits = [room](KeptEnds ends) { return ends.head + ends.tail + 1 <= room; }};
}

struct Row {
  const char *name;
  std::string text;
  CutAt cut;
  std::size_t room;
  KeptEnds expected;
};

void PrintTo(const Row &row, std::ostream *out) { *out << row.name; }

class ShorteningRows : public testing::TestWithParam<Row> {};

TEST_P(ShorteningRows, KeepsTheseEnds) {
  const Row &row = GetParam();
  const KeptEnds ends = ov::longestFitting(row.text.size(), row.cut, questions(row.text, row.room));
  EXPECT_EQ(row.expected.head, ends.head);
  EXPECT_EQ(row.expected.tail, ends.tail);
}

INSTANTIATE_TEST_SUITE_P(
    , ShorteningRows,
    testing::Values(Row{"NoText", "", CutAt::end, 9, {0, 0}},
                    Row{"NoRoom", "abcdef", CutAt::end, 0, {0, 0}},
                    Row{"OnlyTheEllipsis", "abcdef", CutAt::middle, 1, {0, 0}},
                    Row{"End", "abcdef", CutAt::end, 4, {3, 0}},
                    Row{"MiddleOdd", "abcdef", CutAt::middle, 4, {2, 1}},
                    Row{"MiddleEven", "abcdef", CutAt::middle, 5, {2, 2}},
                    Row{"NeverTheWhole", "abcdef", CutAt::end, 100, {5, 0}},
                    Row{"MarkStaysWithItsLetter", "ab-cd", CutAt::end, 3, {1, 0}},
                    Row{"MarkedLetterWhole", "ab-cd", CutAt::end, 4, {3, 0}},
                    Row{"TailDoesNotBeginWithAMark", "abcde-", CutAt::middle, 4, {2, 0}},
                    Row{"OnlyMarks", "a-----", CutAt::middle, 4, {0, 0}}),
    [](const auto &info) { return info.param.name; });

TEST(Shortening, EqualsTheSlowDefinition) {
  const unsigned seed = testSeed();
  SCOPED_TRACE(testing::Message() << "OV_TEST_SEED=" << seed);
  std::mt19937 random(seed);
  for (int round = 0; round < 20000; ++round) {
    const std::size_t length = 1 + random() % 40, room = random() % 45;
    const CutAt cut = random() % 2 ? CutAt::middle : CutAt::end;
    const std::string text(length, 'x');
    std::size_t kept = 0;  // the longest shorter text that fits
    while (kept + 1 < length && kept + 2 <= room) ++kept;
    const KeptEnds ends = ov::longestFitting(length, cut, questions(text, room));
    ASSERT_EQ(kept, ends.head + ends.tail) << length << " " << room;
    ASSERT_EQ(cut == CutAt::middle ? kept / 2 : 0, ends.tail);
  }
}

TEST(Shortening, AsksLittleAboutALongText) {
  int asked = 0;
  std::size_t longestAsked = 0;
  const ov::ShorteningQuestions ask = {.mayCutBefore = [](std::size_t) { return true; },
                                       .fits =
                                           [&](KeptEnds ends) {
                                             ++asked;
                                             longestAsked =
                                                 std::max(longestAsked, ends.head + ends.tail);
                                             return ends.head + ends.tail <= 100;
                                           }};
  const KeptEnds ends = ov::longestFitting(10'000'000, CutAt::middle, ask);
  EXPECT_EQ((KeptEnds{50, 50}), ends);
  EXPECT_LE(asked, 16);
  EXPECT_LE(longestAsked, 200u);
}

}  // namespace
