#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

#include "BinaryPropertyList.h"
#include "RandomSeed.h"

namespace {

using namespace std::string_literals;

std::string number(std::uint64_t value) {
  std::string bytes;
  for (int shift = 56; shift >= 0; shift -= 8) bytes += char(value >> shift);
  return bytes;
}

// A list of these objects, the first of which is the top.
std::string list(const std::vector<std::string> &objects, std::uint64_t top = 0) {
  std::string bytes = "bplist00", table;
  for (const auto &object : objects) {
    table += char(bytes.size() >> 8);
    table += char(bytes.size());
    bytes += object;
  }
  const std::size_t place = bytes.size();
  return bytes + table + "\0\0\0\0\0\0\2\1"s + number(objects.size()) + number(top) + number(place);
}

bool isSound(const std::string &bytes) { return ov::isSoundBinaryPropertyList(bytes, 5, 100); }

struct Row {
  const char *name;
  std::string bytes;
  bool isSound;
};

void PrintTo(const Row &row, std::ostream *out) { *out << row.name; }

class BinaryPropertyList : public testing::TestWithParam<Row> {};

TEST_P(BinaryPropertyList, IsSoundOrNot) {
  EXPECT_EQ(GetParam().isSound, isSound(GetParam().bytes));
}

const std::string one = "\x10\1";

INSTANTIATE_TEST_SUITE_P(
    Sound, BinaryPropertyList,
    testing::Values(Row{"Number", list({one}), true}, Row{"Truth", list({"\x9"s}), true},
                    Row{"Date", list({"\x33" + std::string(8, 'd')}), true},
                    Row{"Text",
                        list({"\x53"
                              "abc"}),
                        true},
                    Row{"WideText", list({"\x61\x30\x42"}), true},
                    Row{"LongData", list({"\x4F\x10\x20" + std::string(32, 'x')}), true},
                    Row{"Dictionary",
                        list({"\xD1\1\2",
                              "\x51"
                              "a",
                              one}),
                        true},
                    Row{"EmptyOnes", list({"\xA2\1\2", "\xA0", "\xD0"}), true},
                    Row{"Shared", list({"\xA3\1\1\1", one}), true},
                    Row{"OtherTop", list({one, "\xA1\0"s}, 1), true},
                    Row{"DeepestNesting",
                        list({"\xA1\1", "\xA1\2", "\xA1\3", "\xA1\4", "\xA1\5", one}), true}),
    [](const auto &info) { return info.param.name; });

INSTANTIATE_TEST_SUITE_P(
    NotSound, BinaryPropertyList,
    testing::Values(
        Row{"Nothing", "", false}, Row{"OnlyAHeader", "bplist00", false},
        Row{"OtherHeader", "bplist01" + list({one}).substr(8), false},
        Row{"CutShort", list({one}).substr(0, 30), false}, Row{"NoObjects", list({}), false},
        Row{"NoSuchTop", list({one}, 1), false}, Row{"UnknownKind", list({"\x70"s}), false},
        Row{"NumberTooLong", list({"\x15" + std::string(32, 'x')}), false},
        Row{"NumberCutShort",
            list({"\x13"
                  "1234"}),
            false},
        Row{"TextTooLong",
            list({"\x5E"
                  "abc"}),
            false},
        Row{"WideTextTooLong",
            list({"\x62"
                  "abc"}),
            false},
        Row{"CountIsNoNumber",
            list({"\x5F\x51"
                  "abc"}),
            false},
        Row{"CountMissing", list({"\x5F"}), false},
        Row{"HugeCount", list({"\xAF\x13" + std::string(8, '\xFF')}), false},
        Row{"NoSuchMember", list({"\xA1\2", one}), false},
        Row{"InItself", list({"\xA1\0"s}), false},
        Row{"InItselfFurtherDown", list({"\xA1\1", "\xD1\2\0"s, one}), false},
        Row{"TooDeep", list({"\xA1\1", "\xA1\2", "\xA1\3", "\xA1\4", "\xA1\5", "\xA1\6", one}),
            false},
        // Checked first where it is not too deep.
        Row{"TooDeepAtItsSecondPlace",
            list({"\xA2\4\1", "\xA1\2", "\xA1\3", "\xA1\4", "\xA1\5", "\xA1\6", one}), false},
        Row{"Multiplies",
            list({"\xA8\1\1\1\1\1\1\1\1", "\xA8\2\2\2\2\2\2\2\2", "\xA8\3\3\3\3\3\3\3\3", one}),
            false}),
    [](const auto &info) { return info.param.name; });

TEST(BinaryPropertyListDamage, IsLookedAtWithoutHarm) {
  const unsigned seed = testSeed();
  SCOPED_TRACE(testing::Message() << "OV_TEST_SEED=" << seed);
  std::mt19937 random(seed);
  const std::string good = list({"\xD2\1\2\3\4",
                                 "\x51"
                                 "a",
                                 "\x51"
                                 "b",
                                 "\xA2\4\4", "\x4F\x10\x10" + std::string(16, 'x')});
  ASSERT_TRUE(isSound(good));
  int sound = 0;
  for (int round = 0; round < 200'000; ++round) {
    std::string bytes = good;
    for (auto count = 1 + random() % 4; count > 0; --count)
      bytes[random() % bytes.size()] = char(random());
    if (random() % 4 == 0) bytes.resize(random() % bytes.size());
    sound += isSound(bytes);
  }
  EXPECT_GT(sound, 0);
}

}  // namespace
