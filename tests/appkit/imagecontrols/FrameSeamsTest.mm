#import "FrameHost.h"

#include <cmath>

namespace {

using ov::test::kDefault;
using ov::test::makeImage;
using ov::test::near;
using ov::test::Pixel;
using ov::test::Plane;
using ov::test::Samples;

constexpr Pixel kForbidden{255, 0, 255, 255};

// The pieces by their place in the image, left to right and from the visual top down: two colours
// of one for each piece, side by side, so that no two neighbours are alike.
constexpr Pixel kPieces[3][3] = {{{250, 10, 10, 255}, {10, 250, 10, 255}, {10, 10, 250, 255}},
                                 {{250, 250, 10, 255}, {10, 250, 250, 255}, {120, 60, 10, 255}},
                                 {{250, 130, 10, 255}, {90, 90, 90, 255}, {10, 120, 60, 255}}};

bool isOfAPiece(const Pixel &pixel) {
  for (const auto &row : kPieces) {
    for (const Pixel &piece : row) {
      if (near(pixel, piece, 2)) return true;
    }
  }
  return false;
}

// Whether some share of a piece on the ground gives this.
bool isPieceOver(const Pixel &ground, const Pixel &drawn) {
  for (const auto &row : kPieces) {
    for (const Pixel &piece : row) {
      for (int share = 0; share <= 64; ++share) {
        const auto mix = [share](int a, int b) { return a + (b - a) * share / 64; };
        if (near(drawn,
                 {mix(ground.r, piece.r), mix(ground.g, piece.g), mix(ground.b, piece.b), 255},
                 6)) {
          return true;
        }
      }
    }
  }
  return false;
}

// A tile of 18 x 18 between two others, and below and above a margin, that must not be seen.
class FrameSeams : public ov::test::FrameTest {
 protected:
  void SetUp() override {
    FrameTest::SetUp();
    image = makeImage(54, 30, [](int x, int y) {
      if (x < 18 || x >= 36 || y < 6 || y >= 24) return kForbidden;
      return kPieces[(y - 6) / 6][(x - 18) / 6];
    });
    setTile(NSMakeRect(18, 6, 18, 18));
  }
  void setTile(NSRect tile) {
    auto *segment = [[[HXImageSegment alloc] initWithImage:image rect:tile] autorelease];
    for (HXImageControlImageContainer *each : containers()) {
      [each setStrechableImage:segment leftCap:6 topCap:6 forImageVariation:kDefault];
    }
  }
};

struct Placement {
  double scale;
  double x;
  double y;
  double width;
  double height;
};

std::vector<Placement> placements() {
  std::vector<Placement> all;
  for (const double scale : {1.0, 1.5, 2.0}) {
    for (const double place : {20.0, 20.25, 20.5, 20.9}) {
      for (const double size : {30.0, 30.5, 27.3}) {
        all.push_back({scale, place, place + 1.3, size, size - 5.2});
      }
    }
  }
  return all;
}

TEST_F(FrameSeams, PiecesMeetAndNothingElseIsSeen) {
  for (const BOOL flipped : {YES, NO}) {
    view->_flipped = flipped;
    const Samples ground(view, {}, [] {});
    for (const Placement &p : placements()) {
      const NSRect rect = NSMakeRect(p.x, p.y, p.width, p.height);
      // The last drawing is of the picture.
      for (int i = 0; i < 3; ++i) {
        const Samples drawn = draw(container, rect, kDefault, {p.scale, 0});
        const double left = p.x * p.scale;
        const double right = (p.x + p.width) * p.scale;
        const double low = p.y * p.scale;
        const double high = (p.y + p.height) * p.scale;
        const double top = flipped ? low : 200 - high;
        const double bottom = flipped ? high : 200 - low;
        int wrong = 0;
        int inside = 0;
        for (int y = 0; y < drawn.height(); ++y) {
          for (int x = 0; x < drawn.width(); ++x) {
            const bool within = x >= left - 1e-6 && x + 1 <= right + 1e-6 && y >= top - 1e-6 &&
                                y + 1 <= bottom + 1e-6;
            const bool outside = x + 1 <= left + 1e-6 || x >= right - 1e-6 || y + 1 <= top + 1e-6 ||
                                 y >= bottom - 1e-6;
            if (within) {
              ++inside;
              wrong += !isOfAPiece(drawn.at(x, y));
            } else if (outside) {
              wrong += !(drawn.at(x, y) == ground.at(x, y));
            } else {
              wrong += !isPieceOver(ground.at(x, y), drawn.at(x, y));
            }
          }
        }
        ASSERT_EQ(wrong, 0) << "of " << inside << ": " << rect << " at " << p.scale << ", flipped "
                            << int{flipped} << ", drawing " << i;
        ASSERT_GT(inside, 500);
      }
    }
  }
}

TEST_F(FrameSeams, WholePixelsStayWhereTheyAre) {
  for (const BOOL flipped : {YES, NO}) {
    view->_flipped = flipped;
    const Samples drawn = draw(container, NSMakeRect(20, 30, 60, 50));
    const int top = flipped ? 30 : 120;
    for (int y = 0; y < 50; ++y) {
      for (int x = 0; x < 60; ++x) {
        const int row = y < 6 ? 0 : (y < 44 ? 1 : 2);
        const int column = x < 6 ? 0 : (x < 54 ? 1 : 2);
        ASSERT_TRUE(near(drawn.at(20 + x, top + y), kPieces[row][column], 1)) << x << ", " << y;
      }
    }
  }
}

// The display server counts in parts of pixels, and loses some over such lengths.
TEST_F(FrameSeams, AThinSliceOfGreatLengthIsAloneToo) {
  image = makeImage(
      7, 7, [](int x, int y) { return x == 3 || y == 3 ? Pixel{10, 250, 10, 255} : kForbidden; });
  NSWindow *window = makeWindow(NSMakeSize(3000, 10));
  auto *wide = [[[OvTestFrameView alloc] initWithFrame:NSMakeRect(0, 0, 3000, 10)] autorelease];
  [[window contentView] addSubview:wide];
  for (const BOOL flipped : {YES, NO}) {
    wide->_flipped = flipped;
    setPiece(image, NSMakeRect(3, 0, 1, 7), HXImageControlImagePartCenter, kDefault);
    [container removeAllImages];
    setPiece(image, NSMakeRect(3, 0, 1, 7), HXImageControlImagePartCenter, kDefault);
    for (const CGFloat width : {400.0, 800.0, 1500.0, 3000.0}) {
      const Samples drawn(wide, {}, [&] {
        [container drawImageInRect:NSMakeRect(0, 0, width, 10)
                         isFlipped:flipped
                    imageVariation:kDefault];
      });
      int wrong = 0;
      for (int x = 0; x < width; ++x) wrong += !near(drawn.at(x, 5), Pixel{10, 250, 10, 255}, 1);
      EXPECT_EQ(wrong, 0) << width;
    }
  }
}

// Every sample of a slice is drawn, also at its ends.
TEST_F(FrameSeams, AScaledSliceShowsAllOfItsPixels) {
  image = makeImage(
      12, 8, [](int x, int) { return x < 2 || x >= 10 ? kForbidden : Pixel{x * 25, 0, 0, 255}; });
  [container removeAllImages];
  setPiece(image, NSMakeRect(2, 0, 8, 8), HXImageControlImagePartCenter, kDefault);
  for (const double scale : {1.0, 1.5, 2.0}) {
    const Samples drawn = draw(container, NSMakeRect(10, 10, 8, 8), kDefault, {scale, 0});
    for (int i = 0; i < 8 * scale; ++i) {
      const int x = static_cast<int>(10 * scale) + i;
      const int expected = (2 + static_cast<int>((i + 0.5) / scale)) * 25;
      const int other = (2 + static_cast<int>((i + 0.5) / scale - 1e-3)) * 25;
      const int found = drawn.at(x, static_cast<int>(14 * scale)).r;
      EXPECT_TRUE(std::abs(found - expected) <= 1 || std::abs(found - other) <= 1)
          << scale << ": " << i << " is " << found;
    }
  }
}

}  // namespace
