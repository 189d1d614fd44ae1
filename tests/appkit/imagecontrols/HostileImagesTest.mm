#import <OvAppKit/HXDictionaryImageContainer.h>
#import <OvAppKit/HXImageControlImageResourceNameSuffixRegistry.h>
#import <OvAppKit/NSBundle+OvAppKit.h>

#include <sys/stat.h>
#include <unistd.h>

#include <string>
#include <vector>

#import "Artwork.h"

namespace {

using ov::test::corners;
using ov::test::drawn;
using ov::test::encoded;
using ov::test::isAll;
using ov::test::kWhite;
using ov::test::Picture;

constexpr uint32_t kParts = 11;
constexpr uint32_t kVariations = 5;
// Of the readers, for a file that is read once.
constexpr size_t kFewLines = 4;

NSData *half(NSData *data) { return [data subdataWithRange:NSMakeRange(0, [data length] / 2)]; }

class HostileImages : public ov::test::LiveTest {
 protected:
  // Puts each of them somewhere by a name; they are no pictures.
  std::vector<NSString *> putHostile() {
    std::vector<NSString *> names;
    const auto put = [&](NSString *name, NSData *data) {
      art.put(name, data);
      names.push_back(name);
    };
    put(@"empty.png", [NSData data]);
    put(@"text.png", [@"no picture" dataUsingEncoding:NSASCIIStringEncoding]);
    put(@"text.tiff", [@"no picture" dataUsingEncoding:NSASCIIStringEncoding]);
    put(@"text.gif", [@"no picture" dataUsingEncoding:NSASCIIStringEncoding]);
    put(@"text.bmp", [@"no picture" dataUsingEncoding:NSASCIIStringEncoding]);
    put(@"three.png", [NSData dataWithBytes:"\x89PN" length:3]);
    put(@"nowhere.png", ov::test::headerOfPNG(0, 0));
    put(@"wide.png", ov::test::headerOfPNG(20000, 20000));
    put(@"long.png", ov::test::headerOfPNG(1, 4000000000u));
    put(@"header.png", ov::test::headerOfPNG(4, 2));
    put(@"coarse.tiff", ov::test::grayTIFF(2, 1));
    put(@"coarse.png", ov::test::grayTIFF(2, 1));
    put(@"many.tiff", ov::test::grayTIFF(8, 6));
    put(@"half.tiff", half(ov::test::grayTIFF(8, 1)));
    put(@"half.gif", half(encoded(NSGIFFileType)));
    put(@"start.jpg", [encoded(NSJPEGFileType) subdataWithRange:NSMakeRange(0, 20)]);

    NSString *folder = [art.put(@"real.png", corners()) stringByDeletingLastPathComponent];
    const auto at = [&](NSString *name) {
      names.push_back(name);
      return [[folder stringByAppendingPathComponent:name] fileSystemRepresentation];
    };
    EXPECT_EQ(mkdir(at(@"folder.png"), 0700), 0);
    EXPECT_EQ(mkfifo(at(@"pipe.png"), 0600), 0);
    EXPECT_EQ(symlink("/dev/zero", at(@"endless.png")), 0);
    EXPECT_EQ(symlink("/dev/null", at(@"null.png")), 0);
    EXPECT_EQ(symlink("/proc/self/maps", at(@"made-up.png")), 0);
    EXPECT_EQ(symlink("circle.png", at(@"circle.png")), 0);
    EXPECT_EQ(symlink("nobody.png", at(@"broken.png")), 0);
    // Two terabytes that take no room.
    const std::string vast = at(@"vast.png");
    art.put(@"vast.png", ov::test::headerOfPNG(4, 2));
    EXPECT_EQ(truncate(vast.c_str(), off_t{1} << 41), 0);
    return names;
  }

  NSString *pathOf(NSString *name) {
    return [[art.folder().path(@"Art.bundle") stringByAppendingPathComponent:@"Resources"]
        stringByAppendingPathComponent:name];
  }

  static int count(HXImageControlImageContainer *container) {
    int found = 0;
    for (uint32_t part = 0; part < kParts; part++) {
      for (uint32_t variation = 0; variation < kVariations; variation++) {
        found += [container containsImageVariation:variation forImagePart:part];
      }
    }
    return found;
  }
  // Draws all that there is, too.
  static Picture draw(HXImageControlImageContainer *container) {
    return drawn(NSMakeSize(40, 40), YES, [container] {
      for (uint32_t variation = 0; variation < kVariations; variation++) {
        const NSRect all = NSMakeRect(0, 0, 40, 40);
        [container drawImageInRect:all isFlipped:YES imageVariation:variation];
        [container drawImageInRect:all isFlipped:YES imagePart:9 imageVariation:variation];
      }
    });
  }
  static bool isEmpty(HXImageControlImageContainer *container) {
    return count(container) == 0 && isAll(draw(container), NSMakeRect(0, 0, 40, 40), kWhite);
  }

  ov::test::ArtBundle art;
};

TEST_F(HostileImages, SegmentsHaveNoImageThen) {
  for (NSString *name : putHostile()) {
    SCOPED_TRACE([name UTF8String]);
    ov::test::LogCapture log;
    HXImageSegment *file = [[[HXImageSegment alloc] initWithPath:pathOf(name)] autorelease];
    HXImageSegment *url =
        [[[HXImageSegment alloc] initWithURL:[NSURL fileURLWithPath:pathOf(name)]] autorelease];
    for (HXImageSegment *segment : {file, url}) {
      ASSERT_NE(segment, nil);
      EXPECT_EQ([segment image], nil);
      EXPECT_EQ([segment rect], NSZeroRect);
    }
    EXPECT_LE(log.lines().size(), 2 * kFewLines) << log.lines()[0];
  }
}

TEST_F(HostileImages, ContainersStayEmpty) {
  HXImageControlImageContainer *container =
      [[[HXImageControlImageContainer alloc] init] autorelease];
  for (NSString *name : putHostile()) {
    SCOPED_TRACE([name UTF8String]);
    ov::test::LogCapture log;
    [container setImageWithPath:pathOf(name) forImagePart:0 imageVariation:0];
    [container setImageWithPath:pathOf(name) forImagePart:9 imageVariation:1];
    EXPECT_TRUE(isEmpty(container));
    [container setStrechableImageWithPath:pathOf(name) leftCap:1 topCap:1 forImageVariation:0];
    EXPECT_TRUE(isEmpty(container));
    EXPECT_LE(log.lines().size(), 3 * kFewLines) << log.lines()[0];
  }
}

TEST_F(HostileImages, BundlesHaveNoImageThen) {
  const std::vector<NSString *> names = putHostile();
  NSBundle *bundle = art.bundle();
  for (NSString *name : names) {
    SCOPED_TRACE([name UTF8String]);
    ov::test::LogCapture log;
    EXPECT_EQ([bundle imageForResource:name], nil);
    EXPECT_LE(log.lines().size(), kFewLines) << log.lines()[0];
  }
}

TEST_F(HostileImages, SetsStayEmpty) {
  const std::vector<NSString *> names = putHostile();
  NSBundle *bundle = art.bundle();
  const int32_t variations[] = {0, 1, 2, 3, 4};
  NSMutableDictionary *resources = [NSMutableDictionary dictionary];
  for (NSString *name : names) {
    SCOPED_TRACE([name UTF8String]);
    ov::test::LogCapture log;
    EXPECT_TRUE(isEmpty([[[HXImageControlImageContainer alloc]
        initWithTiledImageResourceName:name
                       imageVariations:variations
                                 count:5
                              inBundle:bundle] autorelease]));
    EXPECT_TRUE(isEmpty([[[HXImageControlImageContainer alloc]
        initWithTiledStrechableImageResourceName:name
                                         leftCap:1
                                          topCap:1
                                 imageVariations:variations
                                           count:5
                                        inBundle:bundle] autorelease]));
    HXDictionaryImageContainer *strip =
        [[[HXDictionaryImageContainer alloc] initWithImageResourceName:name
                                                              keyArray:@[ @"a" ]
                                                              inBundle:bundle] autorelease];
    EXPECT_FALSE([strip containsImageForKey:@"a"]);
    EXPECT_LE(log.lines().size(), 3 * kFewLines) << log.lines()[0];
    [resources setObject:name forKey:name];
  }
  HXDictionaryImageContainer *container =
      [[[HXDictionaryImageContainer alloc] initWithImageResourceNameDictionary:resources
                                                                      inBundle:bundle] autorelease];
  for (NSString *name : names) EXPECT_FALSE([container containsImageForKey:name]);
}

// A whole set of them, and the one that is a picture.
TEST_F(HostileImages, OnePictureAmongThemIsShown) {
  const std::vector<NSString *> names = putHostile();
  HXImageControlImageResourceNameSuffixRegistry *registry =
      [HXImageControlImageContainer imageResourceNameSuffixRegistry];
  size_t next = 0;
  for (uint32_t part = 0; part < kParts; part++) {
    for (uint32_t variation = 0; variation < kVariations; variation++) {
      NSString *name = [[registry stringWithPrefix:@"B" imagePart:part
                                    imageVariation:variation] stringByAppendingString:@".png"];
      NSString *target = part + variation == 0 ? @"real.png" : names[next++ % names.size()];
      EXPECT_EQ(symlink([target fileSystemRepresentation], [pathOf(name) fileSystemRepresentation]),
                0);
    }
  }
  ov::test::LogCapture log;
  HXImageControlImageContainer *container = [[[HXImageControlImageContainer alloc]
      initWithSeparatedImageResourceNamePrefix:@"B"
                                      inBundle:art.bundle()] autorelease];
  EXPECT_EQ(count(container), 1);
  const Picture picture = draw(container);
  EXPECT_TRUE(isAll(picture, NSMakeRect(0, 0, 20, 20), ov::test::kRed));
  EXPECT_TRUE(isAll(picture, NSMakeRect(20, 20, 20, 20), ov::test::kYellow));
  EXPECT_LE(log.lines().size(), 54 * kFewLines);
}

// Of these, what is there may be shown.
TEST_F(HostileImages, PicturesThatEndEarlyDoNoHarm) {
  for (const NSBitmapImageFileType type :
       {NSPNGFileType, NSTIFFFileType, NSGIFFileType, NSJPEGFileType}) {
    NSData *whole = encoded(type);
    const NSUInteger step = [whole length] / 16 + 1;
    for (NSUInteger length = 1; length < [whole length]; length += step) {
      SCOPED_TRACE(testing::Message() << type << ", " << length);
      ov::test::LogCapture log;
      NSString *path = art.put(@"part.png", [whole subdataWithRange:NSMakeRange(0, length)]);
      HXImageControlImageContainer *container =
          [[[HXImageControlImageContainer alloc] init] autorelease];
      [container setStrechableImageWithPath:path leftCap:1 topCap:1 forImageVariation:0];
      draw(container);
      EXPECT_TRUE(count(container) == 0 || count(container) == 9);
      EXPECT_LE(log.lines().size(), kFewLines) << log.lines()[0];
    }
  }
}

// Formats that the platform hands on to others.
TEST_F(HostileImages, HeadersOfOtherFormatsDoNoHarm) {
  const auto ascii = [](NSString *text) { return [text dataUsingEncoding:NSASCIIStringEncoding]; };
  const auto bytes = [](const std::string &text) {
    return [NSData dataWithBytes:text.data() length:text.size()];
  };
  const std::string size = {32, 78, 0, 0};  // 20,000
  const std::string dib = {40, 0, 0, 0};
  NSDictionary *contents = @{
    @"script.eps" : ascii(@"%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 0 0 20000 20000\n{} loop\n"),
    @"script.pdf" : ascii(@"%PDF-1.4\n1 0 obj\n<< /Type /Catalog >>\nendobj\n"),
    @"drawing.svg" : ascii(@"<?xml version=\"1.0\"?><svg xmlns=\"http://www.w3.org/2000/svg\" "
                           @"width=\"20000\" height=\"20000\"/>"),
    @"page.html" : ascii(@"<html><body>no picture</body></html>"),
    @"vectors.mvg" : ascii(@"push graphic-context\nviewbox 0 0 20000 20000\n"),
    @"text.xpm" : ascii(@"/* XPM */\nstatic char *x[] = {\n\"20000 20000 1 1\",\n"),
    @"gray.pgm" : ascii(@"P5 20000 20000 255\n"),
    @"dib.bmp" : bytes("BM" + std::string(8, '\0') + std::string({54, 0, 0, 0}) + dib + size +
                       size + std::string({1, 0, 24, 0}) + std::string(24, '\0')),
    @"icons.icns" : bytes(std::string("icns\x7F\xFF\xFF\xFFic08\x7F\xFF\xFF\xF0", 16)),
    @"photo.psd" :
        bytes(std::string("8BPS\0\1\0\0\0\0\0\0\0\3\0\0\x4E\x20\0\0\x4E\x20\0\x08\0\3", 26)),
  };
  for (NSString *name in contents) {
    SCOPED_TRACE([name UTF8String]);
    ov::test::LogCapture log;
    NSString *path = art.put(name, static_cast<NSData *>([contents objectForKey:name]));
    HXImageControlImageContainer *container =
        [[[HXImageControlImageContainer alloc] init] autorelease];
    [container setImageWithPath:path forImagePart:0 imageVariation:0];
    draw(container);
    EXPECT_LE(log.lines().size(), kFewLines) << log.lines()[0];
  }
}

TEST_F(HostileImages, TheSmallestPictureIsAFrame) {
  NSString *path = art.put(@"dot.png", ov::test::plain(1, 1, ov::test::kRed));
  HXImageControlImageContainer *container =
      [[[HXImageControlImageContainer alloc] init] autorelease];
  [container setImageWithPath:path forImagePart:0 imageVariation:0];
  EXPECT_TRUE(isAll(draw(container), NSMakeRect(0, 0, 40, 40), ov::test::kRed));
  // Its caps have taken all of it, and more.
  [container setStrechableImageWithPath:path leftCap:1 topCap:1 forImageVariation:0];
  EXPECT_EQ(count(container), 9);
  draw(container);
}

TEST_F(HostileImages, AFileThatIsReplacedIsTheOldPicture) {
  NSString *path = art.put(@"real.png", corners());
  HXImageControlImageContainer *container =
      [[[HXImageControlImageContainer alloc] init] autorelease];
  [container setImageWithPath:path forImagePart:0 imageVariation:0];
  art.put(@"real.png", ov::test::grayTIFF(2, 1));
  EXPECT_TRUE(isAll(draw(container), NSMakeRect(0, 0, 20, 20), ov::test::kRed));
}

}  // namespace
