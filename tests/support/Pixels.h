// What was really drawn.

#pragma once

#import <AppKit/AppKit.h>

#include <iosfwd>
#include <string>

namespace ov::test {

// Red, green, blue 0 to 255, not multiplied with alpha.
struct Pixel {
  int r = 0;
  int g = 0;
  int b = 0;
  int a = 0;
  friend bool operator==(const Pixel&, const Pixel&) = default;
  int brightness() const { return (r + g + b) / 3; }
};
std::ostream& operator<<(std::ostream& out, const Pixel& pixel);

// Whether each part differs by no more than the tolerance.
bool near(const Pixel& a, const Pixel& b, int tolerance = 3);

inline constexpr Pixel kWhite{255, 255, 255, 255};
inline constexpr Pixel kBlack{0, 0, 0, 255};
inline constexpr Pixel kRed{255, 0, 0, 255};
inline constexpr Pixel kGreen{0, 255, 0, 255};
inline constexpr Pixel kBlue{0, 0, 255, 255};

// A picture; (0, 0) is the visual top left, whichever way a view is flipped.
class Picture {
 public:
  Picture() = default;
  explicit Picture(NSBitmapImageRep* rep) : rep_([rep retain]) {}
  Picture(const Picture& other) : rep_([other.rep_ retain]) {}
  Picture& operator=(const Picture& other);
  ~Picture() { [rep_ release]; }

  int width() const { return static_cast<int>([rep_ pixelsWide]); }
  int height() const { return static_cast<int>([rep_ pixelsHigh]); }
  // A place outside answers a transparent pixel.
  Pixel at(int x, int y) const;
  // How many pixels of a rectangle are (nearly) of a colour.
  int count(NSRect rect, const Pixel& pixel, int tolerance = 3) const;
  bool writePNG(const std::string& path) const;

 private:
  NSBitmapImageRep* rep_ = nil;
};

// Redraws the view and answers what it shows; for a part of it, that part's top left is
// (0, 0). The view must be in a window, which need not be on screen.
Picture pictureOf(NSView* view);
Picture pictureOf(NSView* view, NSRect part);
// What an image contains.
Picture pictureOfImage(NSImage* image);

// 8 bits of red, green, blue and alpha for each pixel, none set yet.
NSBitmapImageRep* emptyBitmap(NSInteger width, NSInteger height,
                              NSString* space = NSDeviceRGBColorSpace);

// Where a failing test leaves its pictures: OV_TEST_OUTPUT, or the current folder.
std::string outputPath(const std::string& name);

}  // namespace ov::test
