// ov_draw_artwork SOURCE.svg RESULT tiff|png [SCALE]: draws a picture in its own size, or that
// size times a whole number.

#include <gdk-pixbuf/gdk-pixbuf.h>

#include <cstdio>
#include <cstdlib>

int main(int argc, char** argv) {
  const int scale = argc == 5 ? std::atoi(argv[4]) : 1;
  if ((argc != 4 && argc != 5) || scale < 1) {
    std::fprintf(stderr, "usage: %s SOURCE.svg RESULT tiff|png [SCALE]\n", argv[0]);
    return 2;
  }
  GError* error = nullptr;
  int width = 0;
  int height = 0;
  if (gdk_pixbuf_get_file_info(argv[1], &width, &height) == nullptr) {
    std::fprintf(stderr, "%s is no picture.\n", argv[1]);
    return 1;
  }
  GdkPixbuf* picture =
      gdk_pixbuf_new_from_file_at_size(argv[1], width * scale, height * scale, &error);
  if (picture == nullptr || !gdk_pixbuf_save(picture, argv[2], argv[3], &error, nullptr)) {
    std::fprintf(stderr, "%s: %s\n", argv[1], error->message);
    g_error_free(error);
    return 1;
  }
  g_object_unref(picture);
  return 0;
}
