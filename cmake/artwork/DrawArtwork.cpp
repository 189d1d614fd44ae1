// ov_draw_artwork SOURCE.svg RESULT tiff|png: draws a picture in its own size.

#include <gdk-pixbuf/gdk-pixbuf.h>

#include <cstdio>

int main(int argc, char** argv) {
  if (argc != 4) {
    std::fprintf(stderr, "usage: %s SOURCE.svg RESULT tiff|png\n", argv[0]);
    return 2;
  }
  GError* error = nullptr;
  GdkPixbuf* picture = gdk_pixbuf_new_from_file(argv[1], &error);
  if (picture == nullptr || !gdk_pixbuf_save(picture, argv[2], argv[3], &error, nullptr)) {
    std::fprintf(stderr, "%s: %s\n", argv[1], error->message);
    g_error_free(error);
    return 1;
  }
  g_object_unref(picture);
  return 0;
}
