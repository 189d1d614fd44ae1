// The pictures of the themed scrollers: how they fit together when a scroller is drawn from them.

#import <OvAppKit/OvAppKit.h>

#import "Raster.h"

namespace {

using ov::test::Pixel;
using ov::test::Raster;
using ov::test::rasterOfResource;

constexpr int kThickness = 18;
// How much of an arrow with the end of the slot, or of such an end alone, is slot.
constexpr int kSlotEnd = 5;

struct Part {
  const char *name;
  int length;  // along the scroller, in points
  int states;
};
constexpr Part kParts[] = {
    {"DecrementArrow_MinEnd", 18, 3},
    {"DecrementArrow_MinEnd_EndCap", 23, 3},
    {"DecrementArrow_MaxEnd_EndCap", 23, 3},
    {"IncrementArrow_MaxEnd", 18, 3},
    {"IncrementArrow_MaxEnd_EndCap", 23, 3},
    {"IncrementArrow_MinEnd_EndCap", 23, 3},
    {"KnobBody", 4, 3},
    {"KnobCap_MaxEnd", 9, 3},
    {"KnobCap_MinEnd", 9, 3},
    {"EndCap_MaxEnd", kSlotEnd, 2},
    {"EndCap_MinEnd", kSlotEnd, 2},
    {"KnobSlot", 4, 1},
};

// Of each look, with as many pixels per point.
struct Look {
  const char *name;
  int scale;
};

std::ostream &operator<<(std::ostream &out, const Look &look) {
  return out << look.name << " at " << look.scale;
}

class ScrollerArtwork : public ov::test::LiveTest, public testing::WithParamInterface<Look> {
 protected:
  int scale() const { return GetParam().scale; }

  Raster picture(const std::string &part, char orientation = 'V') const {
    NSBundle *bundle = [NSBundle bundleForClass:[OvSplitView class]];
    return rasterOfResource(bundle, std::string("HXScroller_") + GetParam().name + "_" + part +
                                        "_" + orientation + (scale() == 2 ? "@2x" : ""));
  }

  // A state of a part of the vertical scroller.
  Raster state(const Part &part, int index) const {
    return picture(part.name).tile(index, part.states);
  }
  Raster slotRow() const { return picture("KnobSlot").row(0); }
};

INSTANTIATE_TEST_SUITE_P(Looks, ScrollerArtwork,
                         testing::Values(Look{"Metal", 1}, Look{"Metal", 2}, Look{"Black", 1},
                                         Look{"Black", 2}),
                         [](const auto &look) {
                           return std::string(look.param.name) + std::to_string(look.param.scale);
                         });

TEST_P(ScrollerArtwork, IsAsThickAsAScroller) {
  ASSERT_EQ([NSScroller scrollerWidth], kThickness);
  for (const Part &part : kParts) {
    SCOPED_TRACE(part.name);
    const Raster vertical = picture(part.name);
    EXPECT_EQ(vertical.width, part.states * kThickness * scale());
    EXPECT_EQ(vertical.height, part.length * scale());
    const Raster horizontal = picture(part.name, 'H');
    EXPECT_EQ(horizontal.width, part.states * part.length * scale());
    EXPECT_EQ(horizontal.height, kThickness * scale());
  }
}

TEST_P(ScrollerArtwork, HorizontalPartsAreVerticalOnesTurned) {
  for (const Part &part : kParts) {
    for (int i = 0; i < part.states; i++) {
      EXPECT_TRUE(picture(part.name, 'H').tile(i, part.states) == state(part, i).turned())
          << part.name << " " << i;
    }
  }
}

TEST_P(ScrollerArtwork, StatesDiffer) {
  for (const Part &part : kParts) {
    for (int i = 1; i < part.states; i++) {
      for (int j = 0; j < i; j++) {
        EXPECT_GT(state(part, i).differencesTo(state(part, j)), 0)
            << part.name << " " << i << " " << j;
      }
    }
  }
}

TEST_P(ScrollerArtwork, WhatIsStretchedDoesNotChangeAlongTheScroller) {
  for (const char *name : {"KnobSlot", "KnobBody"}) {
    const Raster raster = picture(name);
    for (int y = 1; y < raster.height; y++) {
      EXPECT_TRUE(raster.row(y) == raster.row(0)) << name << " " << y;
    }
  }
}

TEST_P(ScrollerArtwork, OnlyTheKnobIsSeenThrough) {
  for (const Part &part : kParts) {
    SCOPED_TRACE(part.name);
    int clear = 0, opaque = 0;
    const Raster raster = picture(part.name);
    for (const Pixel &pixel : raster.pixels) {
      clear += pixel.a == 0;
      opaque += pixel.a == 255;
    }
    if (std::string(part.name).starts_with("Knob") && std::string(part.name) != "KnobSlot") {
      EXPECT_GT(clear, 0);
      EXPECT_GT(opaque, 0);
    } else {
      EXPECT_EQ(opaque, raster.width * raster.height);
    }
  }
}

// The body lies below one point of each cap: half a pixel's alpha would count twice there.
TEST_P(ScrollerArtwork, KnobCapsMeetTheBodyWithoutASeam) {
  const Raster body = picture("KnobBody").row(0);
  for (const Pixel &pixel : body.pixels) EXPECT_TRUE(pixel.a == 0 || pixel.a == 255) << pixel;
  const Raster minimum = picture("KnobCap_MinEnd"), maximum = picture("KnobCap_MaxEnd");
  for (int i = 0; i < scale(); i++) {
    EXPECT_EQ(minimum.row(minimum.height - 1 - i), body);
    EXPECT_EQ(maximum.row(i), body);
  }
}

TEST_P(ScrollerArtwork, EndsOfTheSlotMeetTheSlotWithoutASeam) {
  const Raster slot = slotRow();
  for (const Part &part : kParts) {
    const std::string name = part.name;
    if (name.find("EndCap") == std::string::npos) continue;
    const bool atMinimum = name.find("MinEnd") != std::string::npos;
    for (int i = 0; i < part.states; i++) {
      const Raster end = state(part, i);
      EXPECT_EQ(end.row(atMinimum ? end.height - 1 : 0), slot) << name << " " << i;
    }
  }
}

// … and is the same, whether an arrow is beside it or none.
TEST_P(ScrollerArtwork, EndsOfTheSlotAreAlike) {
  const int slot = (kSlotEnd - 1) * scale();  // without the row that the frame starts with
  for (int i = 0; i < 2; i++) {
    const Raster end = picture("EndCap_MinEnd").tile(i, 2);
    const Raster arrow = picture("DecrementArrow_MinEnd_EndCap").tile(i, 3);
    EXPECT_EQ(arrow.part(0, arrow.height - slot, arrow.width, slot),
              end.part(0, end.height - slot, end.width, slot))
        << i;
  }
}

TEST_P(ScrollerArtwork, TheEndsAreEachOtherUpsideDown) {
  const char *const pairs[][2] = {
      {"DecrementArrow_MinEnd", "IncrementArrow_MaxEnd"},
      {"DecrementArrow_MinEnd_EndCap", "IncrementArrow_MaxEnd_EndCap"},
      {"IncrementArrow_MinEnd_EndCap", "DecrementArrow_MaxEnd_EndCap"},
      {"KnobCap_MinEnd", "KnobCap_MaxEnd"},
      {"EndCap_MinEnd", "EndCap_MaxEnd"},
  };
  for (const auto &[minimum, maximum] : pairs) {
    // Curves are not drawn quite alike upside down.
    EXPECT_EQ(picture(minimum).upsideDown().differencesTo(picture(maximum), 8), 0) << minimum;
  }
}

// The pixels of the colour at the middle of the arrow's button, counted in each row.
std::vector<int> arrowRows(const Raster &button) {
  const Pixel color = button.at(button.width / 2, button.height / 2);
  std::vector<int> rows;
  for (int y = 0; y < button.height; y++) {
    int count = 0;
    for (int x = 0; x < button.width; x++) count += button.at(x, y) == color;
    if (count > 0) rows.push_back(count);
  }
  return rows;
}

TEST_P(ScrollerArtwork, ArrowsPointWhereTheyLead) {
  for (const Part &part : kParts) {
    const std::string name = part.name;
    if (name.find("Arrow") == std::string::npos) continue;
    const bool decrements = name.starts_with("Decrement");
    const int size = kThickness * scale();
    for (int i = 0; i < part.states; i++) {
      const Raster piece = state(part, i);
      const bool atMinimum = name.find("MinEnd") != std::string::npos;
      const std::vector<int> rows =
          arrowRows(piece.part(0, atMinimum ? 0 : piece.height - size, size, size));
      ASSERT_GE(rows.size(), 4u * static_cast<unsigned>(scale())) << name << " " << i;
      for (size_t row = 1; row < rows.size(); row++) {
        // A slope of 45 degrees: two pixels more in each row.
        EXPECT_EQ(rows[row] - rows[row - 1], decrements ? 2 : -2) << name << " " << i;
      }
    }
  }
}

TEST_P(ScrollerArtwork, ArrowsAreInTheMiddle) {
  for (const Part &part : kParts) {
    if (std::string(part.name).find("Arrow") == std::string::npos) continue;
    for (int i = 0; i < part.states; i++) {
      const Raster piece = state(part, i);
      const Pixel color =
          piece.at(piece.width / 2, std::string(part.name).find("MinEnd") != std::string::npos
                                        ? kThickness * scale() / 2
                                        : piece.height - kThickness * scale() / 2);
      for (int y = 0; y < piece.height; y++) {
        for (int x = 0; x < piece.width; x++) {
          if (piece.at(x, y) != color) continue;
          EXPECT_EQ(piece.at(piece.width - 1 - x, y), color) << part.name << " " << x << " " << y;
        }
      }
    }
  }
}

}  // namespace
