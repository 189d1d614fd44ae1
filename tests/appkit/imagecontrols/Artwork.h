// Artwork made in the test, bundles with it, and a view to draw it in.

#pragma once

#import <AppKit/AppKit.h>
#import <OvAppKit/HXImageControlImageContainer.h>
#import <OvAppKit/HXImageSegment.h>

#include <functional>
#include <vector>

#import "LiveTest.h"

#import "ImageFiles.h"

// White, with what a test draws on it.
@interface OvTestArtView : NSView {
 @public
  BOOL flipped;
  std::function<void()> draw;
}
@end

// Counts those that are gone.
@interface OvTestImage : NSImage
+ (int)deaths;
@end

// Lets a test see what a container holds.
@interface OvTestContainer : HXImageControlImageContainer
- (HXImageSegment *)segmentForPart:(HXImageControlImagePart)part
                         variation:(HXImageControlImageVariation)variation;
@end

namespace ov::test {

inline constexpr Pixel kYellow{255, 255, 0, 255};

// Opaque, a point for a pixel; rows from the visible top.
using Rows = std::vector<std::vector<Pixel>>;
NSBitmapImageRep *bitmapOf(const Rows &rows);
NSImage *imageOf(const Rows &rows, Class imageClass = [NSImage class]);
// Each pixel becomes a block of so many.
Rows enlarged(const Rows &rows, int factor);
NSData *pngOf(const Rows &rows);

// Of one colour.
Rows plain(int width, int height, const Pixel &color);
// Red and green above blue and yellow.
Rows corners();

// What a view of a size shows after drawing, flipped or not.
Picture drawn(NSSize size, BOOL flipped, const std::function<void()> &draw);

// Whether a rectangle, counted from the visible top left, is all of a colour.
testing::AssertionResult isAll(const Picture &picture, NSRect rect, const Pixel &color);

// A folder that is a bundle.
class ArtBundle {
 public:
  // A name that is a path has its folders made.
  NSString *put(NSString *name, NSData *data) const;
  NSString *put(NSString *name, const Rows &rows) const { return put(name, pngOf(rows)); }
  // After the last of its files was put there: the platform looks once.
  NSBundle *bundle(Class bundleClass = [NSBundle class]) const;
  const ImageFolder &folder() const { return folder_; }

 private:
  ImageFolder folder_;
};

}  // namespace ov::test
