// Which encoding bytes are counted in, by the process's own encoding and by what the system
// can convert. The choice is made once in a process, so each is tried in one of its own.

#import <OvAppKit/OvAppKit.h>

#include <dlfcn.h>
#include <gtest/gtest.h>
#include <iconv.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

// Stands in for the C library's, for the libraries too: encodings with this word in their
// names cannot be opened.
extern "C" __attribute__((visibility("default"))) iconv_t iconv_open(const char *to,
                                                                     const char *from) {
  static const auto next =
      reinterpret_cast<iconv_t (*)(const char *, const char *)>(dlsym(RTLD_NEXT, "iconv_open"));
  const char *missing = std::getenv("OV_TEST_MISSING_ENCODING");
  if (missing != nullptr && (std::strstr(to, missing) || std::strstr(from, missing))) {
    errno = EINVAL;
    return reinterpret_cast<iconv_t>(-1);
  }
  return next(to, from);
}

namespace {

// What a unit counts, and an L when it can be converted without loss.
std::string countOf(NSString *character) {
  OvSjisTextValidator *validator = [OvSjisTextValidator textValidator];
  for (uint32_t limit = 1; limit <= 4; ++limit) {
    [validator setMaxLength:limit];
    const int verdict = [validator validateString:character];
    if (verdict == -100) return "none";
    if (verdict == 100) {
      return std::to_string(limit) + ([validator isLossyString:character] ? "L" : "");
    }
  }
  return "too many";
}

int answer() {
  std::string all;
  for (NSString *character in @[ @"a", @"漢", @"あ", @"ｱ", @"①", @"丂", @"가", @"汉", @"é" ]) {
    all += " " + countOf(character);
  }
  OvSjisTextValidator *validator = [OvSjisTextValidator textValidator];
  all += [validator validateString:@"あ"] == 0 ? " unlimited" : " limited";
  [validator setMaxLength:1];
  all += " \"" + std::string([[validator validStringFromInvalidString:@"あ"] UTF8String]) + "\"";
  OvVPSjisFormatter *formatter = [[[OvVPSjisFormatter alloc] init] autorelease];
  [formatter setMaximum:[NSDecimalNumber one]];
  NSString *text = @"あ";
  NSRange range = NSMakeRange(1, 0);
  NSString *error = nil;
  all += [formatter isPartialStringValid:&text
                   proposedSelectedRange:&range
                          originalString:@""
                   originalSelectedRange:NSMakeRange(0, 0)
                        errorDescription:&error]
             ? " accepts"
             : " refuses";
  // The process's own encoding is as it was.
  all += " " + std::to_string([NSString defaultCStringEncoding]);
  std::puts(all.c_str() + 1);
  return 0;
}

// The answer of this program in other surroundings.
std::string ask(const std::string &surroundings) {
  std::array<char, 4096> path{};
  if (readlink("/proc/self/exe", path.data(), path.size() - 1) < 0) return "no program";
  const std::string command = "env -u GNUSTEP_STRING_ENCODING OV_TEST_ANSWER=1 " + surroundings +
                              " '" + path.data() + "' 2>/dev/null </dev/null";
  FILE *child = popen(command.c_str(), "r");
  std::array<char, 256> line{};
  const bool answered = std::fgets(line.data(), line.size(), child) != nullptr;
  pclose(child);
  std::string text = answered ? line.data() : "no answer";
  return text.substr(0, text.find('\n'));
}

struct Row {
  const char *name;
  const char *surroundings;
  const char *answer;
};

void PrintTo(const Row &row, std::ostream *out) { *out << row.name; }

class EncodingChoice : public ::testing::TestWithParam<Row> {};

TEST_P(EncodingChoice, IsTheProcesssOwnOrShiftJis) {
  EXPECT_EQ(ask(GetParam().surroundings), GetParam().answer);
}

//                                         a  漢 あ ｱ  ①  丂 가 汉 é
const Row kRows[] = {
    {"UTF-8", "", "1L 2L 2L 1L 2L 1 1 1 1 unlimited \"\" refuses 4"},
    {"Shift-JIS", "GNUSTEP_STRING_ENCODING=NSShiftJISStringEncoding",
     "1L 2L 2L 1L 2L 1 1 1 1 unlimited \"\" refuses 8"},
    {"EUC-JP", "GNUSTEP_STRING_ENCODING=NSJapaneseEUCStringEncoding",
     "1L 2L 2L 2L 1 3L 1 1 3L unlimited \"\" refuses 3"},
    {"GB 2312", "GNUSTEP_STRING_ENCODING=NSGB2312StringEncoding",
     "1L 1 2L 1 2L 1 1 2L 2L unlimited \"\" refuses 56"},
    {"Big 5", "GNUSTEP_STRING_ENCODING=NSBIG5StringEncoding",
     "1L 2L 1 1 1 1 1 1 1 unlimited \"あ\" accepts 66"},
    {"Korean", "GNUSTEP_STRING_ENCODING=NSKoreanEUCStringEncoding",
     "1L 2L 2L 1 2L 1 2L 1 1 unlimited \"\" refuses 67"},
    // Not of the kind.
    {"ISO Latin 1", "GNUSTEP_STRING_ENCODING=NSISOLatin1StringEncoding",
     "1L 2L 2L 1L 2L 1 1 1 1 unlimited \"\" refuses 5"},
    {"ISO 2022-JP, which switches", "GNUSTEP_STRING_ENCODING=NSISO2022JPStringEncoding",
     "1L 2L 2L 1L 2L 1 1 1 1 unlimited \"\" refuses 21"},
    // The platform's strict table stands in.
    {"no code page 932", "OV_TEST_MISSING_ENCODING=932",
     "1L 2L 2L 1L 1 1 1 1 1 unlimited \"\" refuses 4"},
    // Nothing to count by: forbidden if there is a limit, but nothing that is typed is lost.
    {"no Shift-JIS at all", "OV_TEST_MISSING_ENCODING=",
     "none none none none none none none none none unlimited \"\" accepts 4"},
};

INSTANTIATE_TEST_SUITE_P(Table, EncodingChoice, ::testing::ValuesIn(kRows));

}  // namespace

int main(int argc, char **argv) {
  if (std::getenv("OV_TEST_ANSWER") != nullptr) {
    @autoreleasepool {
      return answer();
    }
  }
  ::testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
