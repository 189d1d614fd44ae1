#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include "Random.h"
#include "RulePrinting.h"
#include "scrolling/ScrollerPieces.h"

namespace ov {

void PrintTo(const ArrowPieces& pieces, std::ostream* out) {
  *out << (pieces.atMaxEnd ? "at the maximum end:" : "at the minimum end:");
  for (std::size_t i = 0; i < pieces.count; ++i) {
    const ArrowPiece& piece = pieces.pieces[i];
    *out << " " << static_cast<int>(piece.art) << "/"
         << (piece.arrow ? static_cast<int>(*piece.arrow) : -1);
  }
}
void PrintTo(const KnobPieces& pieces, std::ostream* out) {
  PrintTo(pieces.body, out);
  PrintTo(pieces.minCap, out);
  PrintTo(pieces.maxCap, out);
}

namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr Scalar kInfinity = std::numeric_limits<Scalar>::infinity();
constexpr auto kIncrement = ScrollerArrow::kIncrement;
constexpr auto kDecrement = ScrollerArrow::kDecrement;

struct ArrowRow {
  const char* name;
  ScrollerArrow arrow;
  int configuration;
  ArrowPieces expected;
};

void PrintTo(const ArrowRow& row, std::ostream* out) { *out << row.name; }

class ArrowsByConfiguration : public testing::TestWithParam<ArrowRow> {};

TEST_P(ArrowsByConfiguration, DrawsThesePieces) {
  EXPECT_EQ(arrowPieces(GetParam().arrow, GetParam().configuration), GetParam().expected);
}

constexpr ArrowPiece piece(ScrollerArt art, std::optional<ScrollerArrow> arrow) {
  return {art, arrow};
}

INSTANTIATE_TEST_SUITE_P(
    Table, ArrowsByConfiguration,
    testing::Values(
        ArrowRow{"Decrement1",
                 kDecrement,
                 1,
                 {false, 1, {piece(ScrollerArt::kDecrementArrowMinEndEndCap, kDecrement)}}},
        ArrowRow{"Decrement2",
                 kDecrement,
                 2,
                 {false,
                  2,
                  {piece(ScrollerArt::kDecrementArrowMinEnd, kDecrement),
                   piece(ScrollerArt::kIncrementArrowMinEndEndCap, kIncrement)}}},
        ArrowRow{"Decrement3",
                 kDecrement,
                 3,
                 {false, 1, {piece(ScrollerArt::kEndCapMinEnd, std::nullopt)}}},
        ArrowRow{"Decrement4",
                 kDecrement,
                 4,
                 {false,
                  2,
                  {piece(ScrollerArt::kDecrementArrowMinEnd, kDecrement),
                   piece(ScrollerArt::kIncrementArrowMinEndEndCap, kIncrement)}}},
        ArrowRow{"Increment1",
                 kIncrement,
                 1,
                 {true, 1, {piece(ScrollerArt::kIncrementArrowMaxEndEndCap, kIncrement)}}},
        ArrowRow{"Increment2",
                 kIncrement,
                 2,
                 {true, 1, {piece(ScrollerArt::kEndCapMaxEnd, std::nullopt)}}},
        ArrowRow{"Increment3",
                 kIncrement,
                 3,
                 {true,
                  2,
                  {piece(ScrollerArt::kIncrementArrowMaxEnd, kIncrement),
                   piece(ScrollerArt::kDecrementArrowMaxEndEndCap, kDecrement)}}},
        ArrowRow{"Increment4",
                 kIncrement,
                 4,
                 {true,
                  2,
                  {piece(ScrollerArt::kIncrementArrowMaxEnd, kIncrement),
                   piece(ScrollerArt::kDecrementArrowMaxEndEndCap, kDecrement)}}},
        ArrowRow{"Decrement0", kDecrement, 0, {}}, ArrowRow{"Increment0", kIncrement, 0, {}},
        ArrowRow{"Decrement5", kDecrement, 5, {}}, ArrowRow{"Increment5", kIncrement, 5, {}},
        ArrowRow{"DecrementLess", kDecrement, -1, {}},
        ArrowRow{"IncrementMost", kIncrement, std::numeric_limits<int>::max(), {}}),
    [](const auto& info) { return std::string(info.param.name); });

// Two pieces of different sizes, in bounds that do not begin at 0.
TEST(ArrowPlaces, FollowEachOtherFromTheEnd) {
  const Rect bounds{2, 3, 100, 200};
  const PieceSizes sizes = {Size{10, 12}, Size{14, 16}};
  const ArrowPieces atMin = arrowPieces(kDecrement, 4);
  const ArrowPieces atMax = arrowPieces(kIncrement, 4);
  EXPECT_EQ(placeArrowPieces(atMin, sizes, bounds, true),
            (std::array{Rect{0, 0, 10, 12}, Rect{10, 0, 14, 16}}));
  EXPECT_EQ(placeArrowPieces(atMin, sizes, bounds, false),
            (std::array{Rect{0, 0, 10, 12}, Rect{0, 12, 14, 16}}));
  EXPECT_EQ(placeArrowPieces(atMax, sizes, bounds, true),
            (std::array{Rect{92, 0, 10, 12}, Rect{78, 0, 14, 16}}));
  EXPECT_EQ(placeArrowPieces(atMax, sizes, bounds, false),
            (std::array{Rect{0, 191, 10, 12}, Rect{0, 175, 14, 16}}));
}

TEST(ArrowPlaces, OfNothingAreEmpty) {
  EXPECT_EQ(placeArrowPieces({}, {Size{9, 9}, Size{9, 9}}, {0, 0, 50, 50}, true),
            (std::array<Rect, 2>{}));
}

struct KnobRow {
  const char* name;
  Rect knob;
  bool horizontal;
  KnobPieces expected;
};

void PrintTo(const KnobRow& row, std::ostream* out) { *out << row.name; }

class KnobParts : public testing::TestWithParam<KnobRow> {};

// Body 7 × 9, caps 6 × 5 and 4 × 3.
TEST_P(KnobParts, LieThere) {
  const KnobRow& row = GetParam();
  EXPECT_EQ(placeKnobPieces(row.knob, {7, 9}, {6, 5}, {4, 3}, row.horizontal), row.expected);
}

INSTANTIATE_TEST_SUITE_P(
    Table, KnobParts,
    testing::Values(
        KnobRow{"Horizontal",
                {30, 2, 40, 16},
                true,
                {{35, 5.5, 32, 9}, {30, 7.5, 6, 5}, {66, 8.5, 4, 3}}},
        KnobRow{
            "Vertical", {2, 30, 16, 40}, false, {{6.5, 34, 7, 34}, {7, 30, 6, 5}, {8, 67, 4, 3}}},
        // Images thicker than the knob stand out on both sides alike.
        KnobRow{"Thin", {30, 2, 40, 5}, true, {{35, 0, 32, 9}, {30, 2, 6, 5}, {66, 3, 4, 3}}}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(KnobParts, BodyReachesUnderTheCaps) {
  const KnobPieces pieces = placeKnobPieces({100, 0, 20, 18}, {4, 18}, {6, 18}, {6, 18}, true);
  EXPECT_EQ(pieces.body, (Rect{105, 0, 10, 18}));
}

TEST(SlotPlace, IsAsThickAsTheImage) {
  EXPECT_EQ(placeSlot({1, 2, 30, 40}, {5, 7}, true), (Rect{1, 2, 30, 7}));
  EXPECT_EQ(placeSlot({1, 2, 30, 40}, {5, 7}, false), (Rect{1, 2, 5, 40}));
}

// Arrows 10 long, those that meet the slot 14; caps 3; the knob's ends 6 and 5. A vertical
// scroller that is 18 thick, as its images are.
ScrollerState stateOf(Scalar length, int configuration, double value = 0, double proportion = 0.5) {
  ScrollerState state;
  state.bounds = {0, 0, 18, length};
  state.configuration = configuration;
  state.art.fill({18, 4});
  const auto set = [&](ScrollerArt art, Scalar height) {
    state.art[static_cast<std::size_t>(art)].height = height;
  };
  set(ScrollerArt::kDecrementArrowMinEnd, 10);
  set(ScrollerArt::kIncrementArrowMaxEnd, 10);
  set(ScrollerArt::kDecrementArrowMinEndEndCap, 14);
  set(ScrollerArt::kDecrementArrowMaxEndEndCap, 14);
  set(ScrollerArt::kIncrementArrowMinEndEndCap, 14);
  set(ScrollerArt::kIncrementArrowMaxEndEndCap, 14);
  set(ScrollerArt::kEndCapMinEnd, 3);
  set(ScrollerArt::kEndCapMaxEnd, 3);
  set(ScrollerArt::kKnobCapMinEnd, 6);
  set(ScrollerArt::kKnobCapMaxEnd, 5);
  state.value = value;
  state.proportion = proportion;
  return state;
}

ScrollerState turned(ScrollerState state) {
  state.horizontal = !state.horizontal;
  state.bounds = {state.bounds.y, state.bounds.x, state.bounds.height, state.bounds.width};
  for (Size& size : state.art) size = {size.height, size.width};
  return state;
}

Rect turned(const Rect& rect) { return {rect.y, rect.x, rect.height, rect.width}; }

// What a press hits from the minimum to the maximum end, as "part:length …".
std::string hits(const ScrollerState& state) {
  const ScrollerLayout layout = layOutScroller(state);
  const Scalar length = state.horizontal ? state.bounds.width : state.bounds.height;
  std::string text;
  int last = -1;
  int count = 0;
  const auto close = [&] {
    if (count > 0) {
      text += (text.empty() ? "" : " ") + std::to_string(last) + ":" + std::to_string(count);
    }
    count = 0;
  };
  for (Scalar place = 0; place < length; ++place) {
    const Point point = state.horizontal ? Point{place, 9} : Point{9, place};
    const int part = static_cast<int>(partAtPoint(layout, state, point));
    if (part != last) close();
    last = part;
    ++count;
  }
  close();
  return text;
}

struct HitRow {
  const char* name;
  Scalar length;
  int configuration;
  double value;
  double proportion;
  const char* expected;
  ScrollerRoom room = ScrollerRoom::kAll;
};

void PrintTo(const HitRow& row, std::ostream* out) { *out << row.name; }

class ScrollerHits : public testing::TestWithParam<HitRow> {};

TEST_P(ScrollerHits, FollowTheImages) {
  const HitRow& row = GetParam();
  const ScrollerState state = stateOf(row.length, row.configuration, row.value, row.proportion);
  EXPECT_EQ(hits(state), row.expected);
  EXPECT_EQ(hits(turned(state)), row.expected) << "horizontal";
  EXPECT_EQ(layOutScroller(state).room, row.room);
}

INSTANTIATE_TEST_SUITE_P(
    Table, ScrollerHits,
    testing::Values(
        HitRow{"OneAtEachEnd", 128, 1, 0.5, 0.5, "4:14 1:25 2:50 3:25 5:14"},
        HitRow{"BothAtTheMinimum", 127, 2, 0.5, 0.5, "4:10 5:14 1:25 2:50 3:28"},
        // The cap of the empty end is part of the way, although the knob does not go there.
        HitRow{"BothAtTheMaximum", 127, 3, 0.5, 0.5, "1:28 2:50 3:25 4:14 5:10"},
        HitRow{"BothAtBothEnds", 148, 4, 0.5, 0.5, "4:10 5:14 1:25 2:50 3:25 4:14 5:10"},
        HitRow{"NoArrows", 100, 0, 0.5, 0.5, "1:25 2:50 3:25"},
        HitRow{"NoSuchConfiguration", 100, 7, 0.5, 0.5, "1:25 2:50 3:25"},
        HitRow{"AtTheStart", 128, 1, 0, 0.5, "4:14 2:50 3:50 5:14"},
        HitRow{"AtTheEnd", 128, 1, 1, 0.5, "4:14 1:50 2:50 5:14"},
        HitRow{"AllIsSeen", 128, 1, 0.7, 1, "4:14 2:100 5:14"},
        // As long as the scroller is thick, at least.
        HitRow{"LittleIsSeen", 128, 1, 0, 0, "4:14 2:18 3:82 5:14"},
        HitRow{"WholePoints", 128, 1, 0.999, 0.333, "4:14 1:66 2:33 3:1 5:14"},
        HitRow{"BeyondTheEnds", 128, 1, 7, 9, "4:14 2:100 5:14"},
        HitRow{"BeforeTheStart", 128, 1, -1, -1, "4:14 2:18 3:82 5:14"},
        HitRow{"NoNumbers", 128, 1, kNaN, kNaN, "4:14 2:18 3:82 5:14"},
        HitRow{"RoomForTheShortestKnob", 46, 1, 0.5, 0.5, "4:14 2:18 5:14"},
        HitRow{"NoRoomForTheKnob", 45, 1, 0.5, 0.5, "4:14 0:17 5:14", ScrollerRoom::kArrows},
        HitRow{"RoomForTheArrowsOnly", 28, 1, 0.5, 0.5, "4:14 5:14", ScrollerRoom::kArrows},
        HitRow{"NoRoomForTheArrows", 27, 1, 0.5, 0.5, "0:27", ScrollerRoom::kNothing},
        HitRow{"NoRoomForTheCap", 26, 2, 0.5, 0.5, "0:26", ScrollerRoom::kNothing},
        HitRow{"NoRoomForFourArrows", 47, 4, 0.5, 0.5, "0:47", ScrollerRoom::kNothing},
        HitRow{"NoLength", 0, 1, 0.5, 0.5, "", ScrollerRoom::kNothing}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(ScrollerLayout, PlacesOfTheParts) {
  const ScrollerLayout layout = layOutScroller(stateOf(148, 4, 0.5, 0.5));
  const auto rect = [&](ScrollerPart part) { return rectForPart(layout, part); };
  EXPECT_EQ(rect(ScrollerPart::kDecrementLine), (Rect{0, 0, 18, 10}));
  EXPECT_EQ(rect(ScrollerPart::kIncrementLine), (Rect{0, 138, 18, 10}));
  EXPECT_EQ(rect(ScrollerPart::kSlot), (Rect{0, 24, 18, 100}));
  EXPECT_EQ(rect(ScrollerPart::kKnob), (Rect{0, 49, 18, 50}));
  EXPECT_EQ(rect(ScrollerPart::kDecrementPage), (Rect{0, 24, 18, 25}));
  EXPECT_EQ(rect(ScrollerPart::kIncrementPage), (Rect{0, 99, 18, 25}));
  EXPECT_EQ(rect(ScrollerPart::kNone), Rect{});
  EXPECT_EQ(rect(static_cast<ScrollerPart>(99)), Rect{});
}

TEST(ScrollerLayout, ArrowsAtOneEndHaveTheirPlaceThere) {
  ScrollerLayout layout = layOutScroller(stateOf(127, 2));
  EXPECT_EQ(rectForPart(layout, ScrollerPart::kIncrementLine), (Rect{0, 10, 18, 14}));
  layout = layOutScroller(stateOf(127, 3));
  EXPECT_EQ(rectForPart(layout, ScrollerPart::kDecrementLine), (Rect{0, 103, 18, 14}));
  EXPECT_EQ(rectForPart(layout, ScrollerPart::kSlot), (Rect{0, 3, 18, 100}));
}

TEST(ScrollerLayout, WithoutRoomTheSlotIsAll) {
  const ScrollerLayout layout = layOutScroller(stateOf(27, 1));
  EXPECT_EQ(rectForPart(layout, ScrollerPart::kSlot), (Rect{0, 0, 18, 27}));
  for (const ScrollerPart part :
       {ScrollerPart::kDecrementLine, ScrollerPart::kIncrementLine, ScrollerPart::kKnob,
        ScrollerPart::kDecrementPage, ScrollerPart::kIncrementPage}) {
    EXPECT_EQ(rectForPart(layout, part), Rect{});
  }
}

TEST(ScrollerLayout, TheKnobLiesOnAThinSlotAndIsHitBesideIt) {
  ScrollerState state = stateOf(128, 1, 0, 0.5);
  for (Size& size : state.art) size.width = 15;
  const ScrollerLayout layout = layOutScroller(state);
  EXPECT_EQ(layout.knob, (Rect{0, 14, 15, 50}));
  EXPECT_EQ(partAtPoint(layout, state, {17, 20}), ScrollerPart::kKnob);
  EXPECT_EQ(partAtPoint(layout, state, {0, 0}), ScrollerPart::kDecrementLine);
}

TEST(ScrollerLayout, NothingIsHitOutside) {
  const ScrollerState state = stateOf(128, 1);
  const ScrollerLayout layout = layOutScroller(state);
  for (const Point point :
       {Point{-1, 20}, Point{18, 20}, Point{9, -1}, Point{9, 128},
        Point{static_cast<Scalar>(kNaN), 20}, Point{9, static_cast<Scalar>(kNaN)}}) {
    EXPECT_EQ(partAtPoint(layout, state, point), ScrollerPart::kNone);
  }
}

TEST(ScrollerLayout, WithoutImagesThereIsAKnob) {
  ScrollerState state = stateOf(100, 3, 0.5, 0.5);
  state.art.fill({0, 0});
  EXPECT_EQ(hits(state), "1:25 2:50 3:25");
}

TEST(ScrollerLayout, SurvivesSizesThatAreNone) {
  for (const Scalar odd : {static_cast<Scalar>(kNaN), kInfinity, -kInfinity, Scalar{-5}}) {
    for (const int configuration : {0, 1, 2, 3, 4}) {
      ScrollerState state = stateOf(128, configuration);
      state.art.fill({odd, odd});
      const ScrollerLayout layout = layOutScroller(state);
      partAtPoint(layout, state, {9, 64});
      EXPECT_FALSE(rectForPart(layout, ScrollerPart::kSlot).isEmpty());
      state = stateOf(odd, configuration);
      partAtPoint(layOutScroller(state), state, {9, 64});
    }
  }
}

// The parts lie one behind the other without gaps, and a press in the middle of one hits it.
TEST(ScrollerLayout, PartsShareTheLength) {
  test::Random random;
  SCOPED_TRACE(random.describe());
  for (int round = 0; round < 2000; ++round) {
    ScrollerState state =
        stateOf(static_cast<Scalar>(random.integer(0, 300)), static_cast<int>(random.integer(0, 5)),
                random.real(0, 1), random.real(0, 1));
    for (Size& size : state.art) size.height = static_cast<Scalar>(random.integer(0, 30));
    const ScrollerLayout layout = layOutScroller(state);
    std::vector<Rect> parts = {layout.decrementPage, layout.knob, layout.incrementPage};
    for (const auto& places : layout.arrows)
      parts.insert(parts.end(), places.begin(), places.end());
    std::erase_if(parts, [](const Rect& rect) { return rect.isEmpty(); });
    std::ranges::sort(parts, {}, &Rect::y);
    for (std::size_t i = 1; i < parts.size(); ++i) {
      EXPECT_FALSE(overlap(parts[i - 1], parts[i]));
      if (layout.room == ScrollerRoom::kAll) {
        EXPECT_EQ(parts[i - 1].maxY(), parts[i].y);
      }
    }
    if (layout.room == ScrollerRoom::kAll) {
      EXPECT_EQ(parts.front().y, 0);
      EXPECT_EQ(parts.back().maxY(), state.bounds.height);
      EXPECT_GE(layout.knob.y, layout.slot.y);
      EXPECT_LE(layout.knob.maxY(), layout.slot.maxY());
    }
    for (int part = 1; part < 6; ++part) {
      const Rect rect = rectForPart(layout, static_cast<ScrollerPart>(part));
      if (rect.isEmpty()) continue;
      EXPECT_EQ(partAtPoint(layout, state, {9, rect.y + rect.height / 2}),
                static_cast<ScrollerPart>(part));
    }
    const ScrollerState other = turned(state);
    const ScrollerLayout otherLayout = layOutScroller(other);
    for (int part = 0; part <= 6; ++part) {
      EXPECT_EQ(rectForPart(otherLayout, static_cast<ScrollerPart>(part)),
                turned(rectForPart(layout, static_cast<ScrollerPart>(part))));
    }
  }
}

}  // namespace
}  // namespace ov
