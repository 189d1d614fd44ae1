#import "GalleryProcess.h"

#include <signal.h>

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <fstream>
#include <sstream>

#include "Supervisor.h"
#include "XTest.h"

namespace ov::test {

namespace fs = std::filesystem;

static constexpr double kLimit = 20;
static constexpr double kNudgeInterval = 0.4;
static constexpr double kPress = 0.08;
// How long a click or key may take to have its effect.
static constexpr double kPatience = 5;
// Of an item in a pop-up's menu, in pixels.
static constexpr int kItemHeight = 20;

std::string GalleryState::value(const std::string &key) const {
  const auto found = values.find(key);
  return found == values.end() ? std::string() : found->second;
}

int GalleryState::number(const std::string &key) const { return std::atoi(value(key).c_str()); }

std::string GalleryState::logged(int back) const {
  return value("log." + std::to_string(number("log") - 1 - back));
}

ScreenRect GalleryState::rect(const std::string &name) const {
  const auto found = rects.find(name);
  return found == rects.end() ? ScreenRect() : found->second;
}

static ScreenRect parseRect(std::istream &in, std::string *name) {
  ScreenRect rect;
  in >> rect.x >> rect.y >> rect.width >> rect.height;
  in.get();
  if (name) std::getline(in, *name);
  return rect;
}

static void parseLine(GalleryState &state, const std::string &line) {
  const auto equals = line.find('=');
  if (equals == line.npos) return;
  const std::string key = line.substr(0, equals), value = line.substr(equals + 1);
  std::istringstream in(value);
  std::string name;
  if (key == "item" || key == "row") {
    const ScreenRect rect = parseRect(in, &name);
    (key == "item" ? state.items : state.rows)[name] = rect;
  } else if (key.starts_with("rect.")) {
    state.rects[key.substr(5)] = parseRect(in, nullptr);
  } else if (key == "grid") {
    state.grid = parseRect(in, nullptr);
  } else if (key == "window") {
    state.window = parseRect(in, nullptr);
  } else if (key == "selected") {
    state.selected.push_back(value);
  } else {
    state.values[key] = value;
  }
}

void GalleryJourney::SetUp() {
  LiveTest::SetUp();
  ASSERT_TRUE(xtest::isAvailable());
  const auto *info = ::testing::UnitTest::GetInstance()->current_test_info();
  root_ = fs::path(privateFolder()) / (std::string("gallery-") + info->name());
  folder_ = root_ / "pictures";
  fs::create_directories(folder_);
}

void GalleryJourney::TearDown() {
  if (task_) {
    sendSignal(SIGTERM);  // -terminate would make the platform call it ended at once
    EXPECT_EQ(waitForExit(), 0) << "when told to end";
  }
  LiveTest::TearDown();
}

static void writePicture(const fs::path &path, int number) {
  NSBitmapImageRep *rep =
      [[[NSBitmapImageRep alloc] initWithBitmapDataPlanes:NULL
                                               pixelsWide:60
                                               pixelsHigh:40
                                            bitsPerSample:8
                                          samplesPerPixel:3
                                                 hasAlpha:NO
                                                 isPlanar:NO
                                           colorSpaceName:NSCalibratedRGBColorSpace
                                              bytesPerRow:180
                                             bitsPerPixel:24] autorelease];
  unsigned char *bytes = [rep bitmapData];
  for (int i = 0; i < 60 * 40; ++i) {
    bytes[3 * i] = static_cast<unsigned char>(40 + number * 37 % 200);
    bytes[3 * i + 1] = static_cast<unsigned char>(i % 256);
    bytes[3 * i + 2] = 120;
  }
  NSData *data = [rep representationUsingType:NSPNGFileType properties:@{}];
  [data writeToFile:[NSString stringWithUTF8String:path.c_str()] atomically:NO];
}

void GalleryJourney::makePictures(int count) {
  for (int i = 0; i < count; ++i) {
    const std::string number = std::to_string(i);
    writePicture(folder_ / ("p" + std::string(number.size() < 2 ? 1 : 0, '0') + number + ".png"),
                 i);
  }
}

// The platform's own class: it waits for every child process that there is, and would take
// the exit status of one that was started in another way.
void GalleryJourney::launch(const std::vector<std::string> &arguments) {
  NSMutableArray *words = [NSMutableArray array];
  for (const std::string &argument : arguments) {
    [words addObject:[NSString stringWithUTF8String:argument.c_str()]];
  }
  // The keys' meanings do not depend on the machine's.
  [words addObjectsFromArray:@[
    @"-GSFirstAlternateKey", @"Alt_L", @"-GSFirstCommandKey", @"Super_L"
  ]];
  task_ = [[NSTask alloc] init];
  [task_ setLaunchPath:@GALLERY_PROGRAM];
  [task_ setArguments:words];
  [task_ launch];
}

void GalleryJourney::start(const std::vector<std::string> &more) {
  fs::remove(statusFile());  // of a gallery before this one
  std::vector<std::string> arguments = {"-statusfile", statusFile().string(), folder_.string()};
  arguments.insert(arguments.end(), more.begin(), more.end());
  launch(arguments);
  waitFor("the window is there, with the keyboard, and everything is loaded",
          [](const GalleryState &s) {
            return s.value("key") == "1" && s.window.width > 0 && s.value("settled") == "1";
          });
  if (!state().items.empty()) bringToFront();
}

// The first click in a window that has just come up may do no more than bring it to the
// front. So an item is clicked until it is selected, and then a place without items.
void GalleryJourney::bringToFront() {
  const ScreenRect item = state().items.begin()->second;
  const bool selected = [&] {
    for (int i = 0; i < 20; ++i) {
      clickAt(item.midX(), item.midY());
      if (pumpUntil([&] { return !state().selected.empty(); }, kNudgeInterval)) return true;
      nudgePointer();
    }
    return false;
  }();
  ASSERT_TRUE(selected) << "the gallery takes no clicks";
  const ScreenRect grid = state().grid;
  clickAt(item.x + item.width + 4, grid.y + 60);
  waitForSelection({});
}

int GalleryJourney::run(const std::vector<std::string> &arguments) {
  launch(arguments);
  return waitForExit();
}

int GalleryJourney::waitForExit() {
  const bool ended = pumpUntil([&] { return ![task_ isRunning]; }, 60);
  if (!ended) {
    ADD_FAILURE() << "the gallery does not end";
    kill([task_ processIdentifier], SIGKILL);
    [task_ waitUntilExit];
  }
  const int status = [task_ terminationStatus];
  [task_ release];
  task_ = nil;
  return status;
}

void GalleryJourney::sendSignal(int number) { kill([task_ processIdentifier], number); }

// The platform can leave events that it has read lying until the next one comes; a hand
// that moves a little, as hands do, brings it.
void GalleryJourney::nudgePointer() {
  nudge_ = -nudge_;
  xtest::movePointerBy(nudge_, 0);
}

GalleryState GalleryJourney::state() const {
  GalleryState state;
  std::ifstream in(statusFile());
  for (std::string line; std::getline(in, line);) parseLine(state, line);
  return state;
}

bool GalleryJourney::waitFor(const std::string &what,
                             const std::function<bool(const GalleryState &)> &is) {
  for (double waited = 0; waited < kLimit; waited += kNudgeInterval) {
    if (pumpUntil([&] { return is(state()); }, kNudgeInterval)) return true;
    nudgePointer();
  }
  std::ifstream in(statusFile());
  std::ostringstream text;
  text << in.rdbuf();
  ADD_FAILURE() << "not seen: " << what << "\n" << text.str();
  return false;
}

bool GalleryJourney::typeText(const std::string &text, const std::string &valueKey) {
  for (const char character : text) {
    const GalleryState before = state();
    const std::string wanted = before.value(valueKey) + character;
    const char name[] = {character, 0};
    const char *key = character == ' ' ? "space" : name;
    const std::vector<const char *> modifiers = std::isupper(character)
                                                    ? std::vector<const char *>{"Shift_L"}
                                                    : std::vector<const char *>{};
    const auto typed = [&](const GalleryState &s) {
      return s.value(valueKey) == wanted || s.value("focus") != before.value("focus");
    };
    typeKeys({key}, modifiers);
    if (!pumpUntil([&] { return typed(state()); }, 2)) {
      nudgePointer();
      if (!pumpUntil([&] { return typed(state()); }, 1)) typeKeys({key}, modifiers);
    }
    if (!waitFor("\"" + wanted + "\" in " + valueKey, typed)) return false;
  }
  return true;
}

void GalleryJourney::pressAt(int x, int y) {
  xtest::movePointer(x, y);
  xtest::pressButton();
  pumpUntil([] { return false; }, kPress);
  xtest::releaseButton();
  pumpUntil([] { return false; }, kPress);
}

bool GalleryJourney::clickUntil(const std::string &rectName, const std::string &what,
                                const std::function<bool(const GalleryState &)> &is) {
  for (int i = 0; i < 20; ++i) {
    const ScreenRect rect = state().rect(rectName);
    pressAt(rect.midX(), rect.midY());
    if (pumpUntil([&] { return is(state()); }, 2 * kNudgeInterval)) return true;
    nudgePointer();
  }
  return waitFor(what, is);
}

// Acts, and again if nothing comes of it, as a person would.
static bool actUntil(const std::function<void()> &act, const std::function<bool()> &is,
                     const std::function<void()> &nudge) {
  for (int i = 0; i < 4; ++i) {
    act();
    for (double waited = 0; waited < kPatience; waited += kNudgeInterval) {
      if (pumpUntil(is, kNudgeInterval)) return true;
      nudge();
    }
  }
  return false;
}

bool GalleryJourney::pressUntil(const std::string &rectName, const std::string &what,
                                const std::function<bool(const GalleryState &)> &is, int clicks) {
  actUntil(
      [&] {
        const ScreenRect rect = state().rect(rectName);
        if (clicks == 1) {
          pressAt(rect.midX(), rect.midY());
        } else {
          clickAt(rect.midX(), rect.midY(), {}, clicks);
        }
      },
      [&] { return is(state()); }, [&] { nudgePointer(); });
  return waitFor(what, is);
}

bool GalleryJourney::hoverUntil(const std::string &rectName, const std::string &what,
                                const std::function<bool(const GalleryState &)> &is) {
  actUntil(
      [&] {
        const ScreenRect rect = state().rect(rectName);
        glide(rect.midX() - 3, rect.midY() - 2, rect.midX(), rect.midY());
      },
      [&] { return is(state()); }, [&] { nudgePointer(); });
  return waitFor(what, is);
}

ScreenRect GalleryJourney::grasp(const std::string &rectName) {
  const ScreenRect rect = state().rect(rectName);
  xtest::movePointer(rect.midX(), rect.midY());
  pumpUntil([] { return false; }, kPress);
  xtest::pressButton();
  pumpUntil([] { return false; }, kPress);
  return rect;
}

bool GalleryJourney::typeUntil(const char *key, const std::string &what,
                               const std::function<bool(const GalleryState &)> &is) {
  actUntil([&] { typeKeys({key}); }, [&] { return is(state()); }, [&] { nudgePointer(); });
  return waitFor(what, is);
}

bool GalleryJourney::choose(const std::string &popUp, int itemsBelow, const std::string &what,
                            const std::function<bool(const GalleryState &)> &is) {
  const auto rest = [] { pumpUntil([] { return false; }, 4 * kPress); };
  actUntil(
      [&] {
        const ScreenRect rect = state().rect(popUp);
        const int y = rect.midY() + itemsBelow * kItemHeight;
        xtest::movePointer(rect.midX(), rect.midY());
        xtest::pressButton();
        rest();
        glide(rect.midX(), rect.midY(), rect.midX() + 2, y);
        rest();
        nudgePointer();
        rest();
        xtest::releaseButton();
      },
      [&] { return is(state()); }, [&] { nudgePointer(); });
  return waitFor(what, is);
}

void GalleryJourney::quit() {
  actUntil([&] { typeKeys({"q"}, {"Super_L"}); }, [&] { return ![task_ isRunning]; },
           [&] { nudgePointer(); });
  EXPECT_EQ(waitForExit(), 0);
}

void GalleryJourney::forgetDefaults() {
  fs::remove(fs::path(privateFolder()) / "Defaults" / "Gallery.plist");
}

bool GalleryJourney::pasteOverAll(NSString *text, const std::string &what,
                                  const std::function<bool(const GalleryState &)> &is) {
  for (int i = 0; i < 4; ++i) {
    NSPasteboard *board = [NSPasteboard generalPasteboard];
    [board declareTypes:@[ NSStringPboardType ] owner:nil];
    [board setString:text forType:NSStringPboardType];
    typeKeys({"a"}, {"Super_L"});
    typeKeys({"v"}, {"Super_L"});
    if (pumpUntil([&] { return is(state()); }, 2)) return true;
    nudgePointer();
  }
  return waitFor(what, is);
}

bool GalleryJourney::waitForSelection(const std::vector<std::string> &names) {
  std::string all;
  for (const std::string &name : names) all += name + " ";
  return waitFor("selected: " + all, [&](const GalleryState &s) { return s.selected == names; });
}

void GalleryJourney::clickAt(int x, int y, const std::vector<const char *> &modifiers, int clicks) {
  xtest::movePointer(x, y);
  for (const char *key : modifiers) xtest::pressKey(key);
  for (int i = 0; i < clicks; ++i) {
    xtest::pressButton();
    xtest::releaseButton();
  }
  for (const char *key : modifiers) xtest::releaseKey(key);
}

void GalleryJourney::clickItem(const std::string &name, const std::vector<const char *> &modifiers,
                               int clicks) {
  const auto items = state().items;
  const auto found = items.find(name);
  if (found == items.end()) {
    ADD_FAILURE() << "there is no " << name << " to be seen";
    return;
  }
  clickAt(found->second.midX(), found->second.midY(), modifiers, clicks);
}

void GalleryJourney::typeKeys(const std::vector<const char *> &keys,
                              const std::vector<const char *> &modifiers) {
  for (const char *modifier : modifiers) xtest::pressKey(modifier);
  for (const char *key : keys) {
    xtest::pressKey(key);
    xtest::releaseKey(key);
  }
  for (const char *modifier : modifiers) xtest::releaseKey(modifier);
}

void GalleryJourney::glide(int fromX, int fromY, int toX, int toY) {
  for (int i = 1; i <= 8; ++i) {
    xtest::movePointer(fromX + (toX - fromX) * i / 8, fromY + (toY - fromY) * i / 8);
  }
}

std::vector<std::string> GalleryJourney::filesInFolder() const {
  std::vector<std::string> names;
  for (const auto &entry : fs::directory_iterator(folder_)) {
    names.push_back(entry.path().filename().string());
  }
  std::ranges::sort(names);
  return names;
}

}  // namespace ov::test
