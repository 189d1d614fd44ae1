#include <gtest/gtest.h>

#include <string>

#include "TextNesting.h"

namespace {

struct Row {
  const char *name;
  std::string text;
  std::size_t depth;
};

void PrintTo(const Row &row, std::ostream *out) { *out << row.name; }

class TextNesting : public testing::TestWithParam<Row> {};

TEST_P(TextNesting, IsThisDeep) { EXPECT_EQ(GetParam().depth, ov::textNesting(GetParam().text)); }

INSTANTIATE_TEST_SUITE_P(
    , TextNesting,
    testing::Values(
        Row{"Nothing", "", 0}, Row{"Word", "word", 0}, Row{"Dictionary", "{a=b;}", 1},
        Row{"Nested", "{a=(1,{b=c;});}", 3}, Row{"SideBySide", "((),(),())", 2},
        Row{"Quoted", "{a=\"((((\";}", 1}, Row{"EscapedQuote", "{a=\"\\\"((((\";}", 1},
        Row{"Unclosed", "((((", 4}, Row{"ClosedTooOften", "))))((", 2},
        Row{"UnclosedQuote", "(\"((((", 1}, Row{"EndsInABackslash", "(\"\\", 1},
        Row{"Xml", "<?xml version=\"1.0\"?><plist><dict><key>((</key><array/></dict></plist>", 2},
        Row{"XmlDeep", "<?xml?><array><array><dict></dict></array></array>", 3},
        Row{"XmlEmptyOnes", "<?xml?><array/><array/><array />", 1},
        Row{"XmlAfterMarkAndSpace", "\xEF\xBB\xBF \n<!DOCTYPE plist><array><array>((((", 2},
        Row{"XmlUnclosedTag", "<?xml?><array", 1}, Row{"Deep", std::string(100000, '('), 100000}),
    [](const auto &info) { return info.param.name; });

}  // namespace
