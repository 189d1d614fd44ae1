// ov_draw_artwork SOURCE.svg tiff|png SCALE RESULT PIECE [RESULT PIECE …]: draws a picture in its
// own size times a whole number, and writes pieces of it.
//
// A piece is "X Y WIDTH HEIGHT", in the picture's own units from its top left, or "whole".
// "X Y WIDTH HEIGHT TILES" divides the piece into so many tiles from left to right and mirrors
// each at its falling diagonal: what was on top is at the left then, and what was lit from the
// left is lit from above.

#include <gdk-pixbuf/gdk-pixbuf.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string_view>

namespace {

struct Unref {
  void operator()(GdkPixbuf* picture) const { g_object_unref(picture); }
};
using Picture = std::unique_ptr<GdkPixbuf, Unref>;

int fail(const char* file, GError* error) {
  std::fprintf(stderr, "%s: %s\n", file, error != nullptr ? error->message : "is no picture");
  g_clear_error(&error);
  return 1;
}

Picture turned(GdkPixbuf* strip, int tiles) {
  const int width = gdk_pixbuf_get_width(strip) / tiles;
  const int height = gdk_pixbuf_get_height(strip);
  const int channels = gdk_pixbuf_get_n_channels(strip);
  Picture result(gdk_pixbuf_new(GDK_COLORSPACE_RGB, gdk_pixbuf_get_has_alpha(strip), 8,
                                height * tiles, width));
  const guchar* from = gdk_pixbuf_read_pixels(strip);
  guchar* to = gdk_pixbuf_get_pixels(result.get());
  for (int tile = 0; tile < tiles; tile++) {
    for (int y = 0; y < height; y++) {
      for (int x = 0; x < width; x++) {
        std::copy_n(
            from + y * gdk_pixbuf_get_rowstride(strip) + (tile * width + x) * channels, channels,
            to + x * gdk_pixbuf_get_rowstride(result.get()) + (tile * height + y) * channels);
      }
    }
  }
  return result;
}

// Nothing where the piece is not a part of the picture, or not of whole tiles.
Picture pieceOf(GdkPixbuf* picture, const char* piece, int scale) {
  if (std::string_view(piece) == "whole")
    return Picture(static_cast<GdkPixbuf*>(g_object_ref(picture)));
  int x = 0, y = 0, width = 0, height = 0, tiles = 0;
  const int numbers = std::sscanf(piece, "%d %d %d %d %d", &x, &y, &width, &height, &tiles);
  const bool isPart = numbers >= 4 && x >= 0 && y >= 0 && width > 0 && height > 0 &&
                      (x + width) * scale <= gdk_pixbuf_get_width(picture) &&
                      (y + height) * scale <= gdk_pixbuf_get_height(picture);
  if (!isPart || (numbers == 5 && (tiles < 1 || width % tiles != 0))) return nullptr;
  Picture part(
      gdk_pixbuf_new_subpixbuf(picture, x * scale, y * scale, width * scale, height * scale));
  return numbers == 5 ? turned(part.get(), tiles) : std::move(part);
}

}  // namespace

int main(int argc, char** argv) {
  const int scale = argc > 3 ? std::atoi(argv[3]) : 0;
  if (argc < 6 || argc % 2 != 0 || scale < 1) {
    std::fprintf(stderr, "usage: %s SOURCE.svg tiff|png SCALE RESULT PIECE …\n", argv[0]);
    return 2;
  }
  GError* error = nullptr;
  int width = 0;
  int height = 0;
  if (gdk_pixbuf_get_file_info(argv[1], &width, &height) == nullptr) return fail(argv[1], nullptr);
  const Picture picture(
      gdk_pixbuf_new_from_file_at_size(argv[1], width * scale, height * scale, &error));
  if (picture == nullptr) return fail(argv[1], error);
  for (int i = 4; i < argc; i += 2) {
    const Picture piece = pieceOf(picture.get(), argv[i + 1], scale);
    if (piece == nullptr) {
      std::fprintf(stderr, "%s has no piece \"%s\".\n", argv[1], argv[i + 1]);
      return 1;
    }
    if (!gdk_pixbuf_save(piece.get(), argv[i], argv[2], &error, nullptr)) {
      return fail(argv[i], error);
    }
  }
  return 0;
}
