// Working the scrollers, and cutting a picture.

#import "GalleryProcess.h"
#include "XTest.h"

namespace ov::test {

class ScrollersJourney : public GalleryJourney {
 protected:
  void open(const std::string &page) {
    start({"-page", page});
    waitFor(page, [&](const GalleryState &s) { return s.value("page") == page; });
  }

  static bool starts(const std::string &line, const std::string &text) {
    return line.compare(0, text.size(), text) == 0;
  }

  // The newest lines are: did track, the content's moves, will track.
  static bool tracked(const GalleryState &s, const std::string &part, const std::string &look) {
    if (s.logged(0) != "did track " + part + " " + look) return false;
    int i = 1;
    while (starts(s.logged(i), "content at ")) ++i;
    return i > 1 && s.logged(i) == "will track " + part + " " + look;
  }

  // Moves what is held so far.
  void drag(const std::string &name, int dx, int dy,
            const std::function<bool(const GalleryState &)> &is) {
    for (int i = 0; i < 4 && !is(state()); ++i) {
      const ScreenRect rect = grasp(name);
      glide(rect.midX(), rect.midY(), rect.midX() + dx, rect.midY() + dy);
      nudgePointer();
      pumpUntil([] { return false; }, 0.2);
      xtest::releaseButton();
      nudgePointer();
      pumpUntil([&] { return is(state()); }, 2);
    }
  }
};

TEST_F(ScrollersJourney, TheKnobIsDragged) {
  open("scrollers");
  for (const std::string look : {"platform", "metal", "black"}) {
    drag(look + ".knob", 0, 40, [&](const GalleryState &s) { return tracked(s, "knob", look); });
    EXPECT_TRUE(waitFor("the drag is told in order", [&](const GalleryState &s) {
      return tracked(s, "knob", look);
    })) << look;
    EXPECT_NE(state().value("origin." + look), "0 0") << look;
  }
}

TEST_F(ScrollersJourney, AnArrowMovesTheContent) {
  open("scrollers");
  ASSERT_TRUE(pressUntil("metal.down", "an arrow", [](const GalleryState &s) {
    return tracked(s, "increment line", "metal");
  }));
  ASSERT_TRUE(pressUntil("metal.up", "the other arrow", [](const GalleryState &s) {
    return tracked(s, "decrement line", "metal");
  }));
}

TEST_F(ScrollersJourney, APressBelowTheKnobTurnsPages) {
  open("scrollers");
  for (int i = 0; i < 4 && !tracked(state(), "increment page", "black"); ++i) {
    const ScreenRect knob = state().rect("black.knob"), bar = state().rect("black");
    pressAt(bar.midX(), knob.y + knob.height + 30);
    pumpUntil([&] { return tracked(state(), "increment page", "black"); }, 2);
    nudgePointer();
  }
  EXPECT_TRUE(waitFor("a page",
                      [](const GalleryState &s) { return tracked(s, "increment page", "black"); }));
}

using SlicingJourney = ScrollersJourney;

TEST_F(SlicingJourney, TheLinesAndTheCornerAreDragged) {
  open("slicing");
  const std::string caps = state().value("caps");
  const auto moved = [&](const GalleryState &s) { return s.value("caps") != caps; };
  drag("leftcap", 14, 0, moved);
  EXPECT_TRUE(waitFor("the left cap has moved", moved));
  const std::string frame = state().value("frame");
  const auto resized = [&](const GalleryState &s) { return s.value("frame") != frame; };
  drag("corner", 20, 30, resized);
  EXPECT_TRUE(waitFor("the frame has another size", resized));
}

TEST_F(SlicingJourney, AnotherSampleIsChosen) {
  open("slicing");
  EXPECT_TRUE(choose("Sample", 2, "the strip",
                     [](const GalleryState &s) { return s.value("picture") == "GalleryStrip"; }));
}

}  // namespace ov::test
