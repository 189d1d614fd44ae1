// Responders that join a chain, change places and follow a view.

#import "GalleryProcess.h"
#include "XTest.h"

namespace ov::test {

class ResponderJourney : public GalleryJourney {
 protected:
  void open() {
    start({"-page", "chain"});
    waitForChains("First window|C, order 3|A, order 5|The application",
                  "Second window|The application");
  }

  static bool are(const GalleryState &s, const std::string &first, const std::string &second) {
    return s.value("chain.0") == first && s.value("chain.1") == second;
  }

  bool waitForChains(const std::string &first, const std::string &second) {
    return waitFor(first + " and " + second,
                   [&](const GalleryState &s) { return are(s, first, second); });
  }

  bool clickUntilChains(const std::string &control, const std::string &first,
                        const std::string &second = "Second window|The application") {
    // Once, unless nothing happens: a check box that is clicked twice is what it was.
    const std::string before = state().value("chain.0") + state().value("chain.1");
    for (int i = 0; i < 10; ++i) {
      const ScreenRect rect = state().rect(control);
      pressAt(rect.x + 8, rect.midY());
      nudgePointer();
      if (pumpUntil([&] { return state().value("chain.0") + state().value("chain.1") != before; },
                    2)) {
        break;
      }
    }
    return waitForChains(first, second);
  }

  bool choosePlace(int place, const std::string &first, const std::string &second) {
    return clickUntil("place" + std::to_string(place), first + " and " + second,
                      [&](const GalleryState &s) { return are(s, first, second); });
  }
};

TEST_F(ResponderJourney, RespondersJoinInTheirOrderAndLeave) {
  open();
  ASSERT_TRUE(
      clickUntilChains("B", "First window|B, order 1|C, order 3|A, order 5|The application"));
  ASSERT_TRUE(clickUntilChains(
      "D", "First window|B, order 1|C, order 3|A, order 5|D, order 7|The application"));
  ASSERT_TRUE(
      clickUntilChains("C", "First window|B, order 1|A, order 5|D, order 7|The application"));
}

TEST_F(ResponderJourney, ANewOrderMovesAResponder) {
  open();
  const ScreenRect order = state().rect("order");
  bool moved = false;
  for (int i = 0; i < 5 && !moved; ++i) {
    pressAt(order.x + 7, order.midY());
    nudgePointer();
    moved = pumpUntil(
        [&] { return state().value("chain.0").find("A, order 5") == std::string::npos; }, 2);
  }
  ASSERT_TRUE(moved);
  waitForChains("First window|A, order 0|C, order 3|The application",
                "Second window|The application");
}

TEST_F(ResponderJourney, TheViewsRespondersFollowItFromWindowToWindow) {
  open();
  ASSERT_TRUE(choosePlace(1, "First window|A, order 5|The application",
                          "Second window|C, order 3|The application"));
  // Also one that joins there.
  ASSERT_TRUE(clickUntilChains("D", "First window|A, order 5|The application",
                               "Second window|C, order 3|D, order 7|The application"));
  ASSERT_TRUE(
      choosePlace(2, "First window|A, order 5|The application", "Second window|The application"));
  ASSERT_TRUE(choosePlace(0, "First window|C, order 3|A, order 5|D, order 7|The application",
                          "Second window|The application"));
}

TEST_F(ResponderJourney, AnActionGoesToTheFirstInTheChain) {
  open();
  ASSERT_TRUE(clickUntil("send0", "C has it", [](const GalleryState &s) {
    return s.value("message") == "C took the action.";
  }));
  ASSERT_TRUE(clickUntil("send1", "nobody has it", [](const GalleryState &s) {
    return s.value("message") == "Nobody in this chain has the action." && s.number("warning");
  }));
  ASSERT_TRUE(clickUntilChains("C", "First window|A, order 5|The application"));
  clickUntil("send0", "A has it",
             [](const GalleryState &s) { return s.value("message") == "A took the action."; });
}

}  // namespace ov::test
