#include "pictures/ThumbnailDecoder.h"

#include <fcntl.h>
#include <gdk-pixbuf/gdk-pixbuf.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cmath>
#include <cstring>
#include <memory>
#include <string_view>
#include <utility>

namespace gallery {
namespace {

constexpr off_t kLargestFile = 512 << 20;
constexpr double kMostPixels = 64e6;  // 256 MB while it is being read

struct Unref {
  void operator()(void *object) const { g_object_unref(object); }
};
using LoaderRef = std::unique_ptr<GdkPixbufLoader, Unref>;
using PixbufRef = std::unique_ptr<GdkPixbuf, Unref>;

struct Box {
  int width;
  int height;
  Thumbnail *thumbnail;
  bool tooLarge = false;
  int rowsRead = 0;
  std::string head{};  // the first four bytes of the file
  std::string tail{};  // its last bytes
};
constexpr std::size_t kTail = 4096;

void rowsAreRead(GdkPixbufLoader *, int, int y, int, int height, void *data) {
  Box &box = *static_cast<Box *>(data);
  box.rowsRead = std::max(box.rowsRead, y + height);
}

bool isJpeg(const Box &box) { return box.head.starts_with("\xFF\xD8\xFF"); }

// The decoders of these two formats make up what is missing at the end of a file, once they
// are told that it ends; so this is asked before.
bool isIncomplete(GdkPixbufLoader *loader, const Box &box) {
  if (box.head == "\x89PNG") return box.tail.find("IEND") == std::string::npos;
  if (!isJpeg(box)) return false;
  GdkPixbuf *pixbuf = gdk_pixbuf_loader_get_pixbuf(loader);
  if (pixbuf) return box.rowsRead < gdk_pixbuf_get_height(pixbuf);
  // A small file is only looked at when it has come to its end: here is all of it.
  const std::size_t scan = box.tail.rfind("\xFF\xDA"), end = box.tail.rfind("\xFF\xD9");
  return scan == std::string::npos || end == std::string::npos || end < scan;
}

// The size that a picture has in the box, where it is larger than that.
std::pair<int, int> fitted(int width, int height, const Box &box) {
  const double scale = std::min({1.0, static_cast<double>(box.width) / std::max(width, 1),
                                 static_cast<double>(box.height) / std::max(height, 1)});
  return {std::max(1, static_cast<int>(std::lround(width * scale))),
          std::max(1, static_cast<int>(std::lround(height * scale)))};
}

// The decoder tells the picture's size from its header, and takes the one it should have.
void sizeIsKnown(GdkPixbufLoader *loader, int width, int height, void *data) {
  Box &box = *static_cast<Box *>(data);
  box.thumbnail->pictureWidth = width;
  box.thumbnail->pictureHeight = height;
  if (static_cast<double>(width) * height > kMostPixels) {
    box.tooLarge = true;
    return;
  }
  const auto [fitWidth, fitHeight] = fitted(width, height, box);
  int divisor = 1;
  if (isJpeg(box)) {
    // A half, a quarter or an eighth is what this decoder reads fast and exactly; with
    // another size it would not tell of its rows.
    while (divisor < 8 && width / (divisor * 2) >= fitWidth &&
           height / (divisor * 2) >= fitHeight) {
      divisor *= 2;
    }
    if (divisor > 1) {
      gdk_pixbuf_loader_set_size(loader, (width + divisor - 1) / divisor,
                                 (height + divisor - 1) / divisor);
    }
  } else if (fitWidth < width || fitHeight < height) {
    gdk_pixbuf_loader_set_size(loader, fitWidth, fitHeight);
  }
}

Bitmap bitmapFrom(const GdkPixbuf *pixbuf) {
  Bitmap bitmap{gdk_pixbuf_get_width(pixbuf), gdk_pixbuf_get_height(pixbuf), {}};
  const int channels = gdk_pixbuf_get_n_channels(pixbuf);
  const int stride = gdk_pixbuf_get_rowstride(pixbuf);
  const std::uint8_t *rows = gdk_pixbuf_read_pixels(pixbuf);
  bitmap.pixels.reserve(static_cast<std::size_t>(bitmap.width) * bitmap.height * 4);
  for (int y = 0; y < bitmap.height; ++y) {
    const std::uint8_t *pixel = rows + static_cast<std::ptrdiff_t>(y) * stride;
    for (int x = 0; x < bitmap.width; ++x, pixel += channels) {
      const int alpha = channels == 4 ? pixel[3] : 255;
      for (int c = 0; c < 3; ++c) {
        bitmap.pixels.push_back(static_cast<std::uint8_t>((pixel[c] * alpha + 127) / 255));
      }
      bitmap.pixels.push_back(static_cast<std::uint8_t>(alpha));
    }
  }
  return bitmap;
}

std::string messageOf(GError *error) {
  std::string text = error && error->message ? error->message : "It is not a picture.";
  g_clear_error(&error);
  return text;
}

void noteBytes(Box &box, std::string_view bytes) {
  if (box.head.size() < 4) box.head.append(bytes.substr(0, 4 - box.head.size()));
  box.tail.append(bytes);
  if (box.tail.size() > kTail) box.tail.erase(0, box.tail.size() - kTail);
}

// Feeds the open file to the loader: an empty string, or the problem.
std::string feed(GdkPixbufLoader *loader, int file, Box &box,
                 const std::function<bool()> &cancelled) {
  std::array<unsigned char, 64 * 1024> buffer;
  GError *error = nullptr;
  while (true) {
    if (cancelled()) return "Reading was given up.";
    const ssize_t count = read(file, buffer.data(), buffer.size());
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return std::strerror(errno);
    if (count == 0) return {};
    noteBytes(box,
              {reinterpret_cast<const char *>(buffer.data()), static_cast<std::size_t>(count)});
    const bool taken =
        gdk_pixbuf_loader_write(loader, buffer.data(), static_cast<gsize>(count), &error);
    if (box.tooLarge) {
      g_clear_error(&error);
      return "The picture is too large to be shown.";
    }
    if (!taken) return messageOf(error);
  }
}

void decodeFile(int file, Box &box, const std::function<bool()> &cancelled) {
  Thumbnail &thumbnail = *box.thumbnail;
  LoaderRef loader(gdk_pixbuf_loader_new());
  g_signal_connect(loader.get(), "size-prepared", G_CALLBACK(sizeIsKnown), &box);
  g_signal_connect(loader.get(), "area-updated", G_CALLBACK(rowsAreRead), &box);
  thumbnail.problem = feed(loader.get(), file, box, cancelled);
  if (thumbnail.problem.empty() && isIncomplete(loader.get(), box)) {
    thumbnail.problem = "The file is incomplete.";
  }
  GError *error = nullptr;
  const bool complete = gdk_pixbuf_loader_close(loader.get(), &error);
  if (!thumbnail.problem.empty()) {
    g_clear_error(&error);
    return;
  }
  // Some formats look at their header only once the file is complete.
  if (box.tooLarge) {
    thumbnail.problem = "The picture is too large to be shown.";
    g_clear_error(&error);
    return;
  }
  GdkPixbuf *pixbuf = gdk_pixbuf_loader_get_pixbuf(loader.get());
  if (!complete || !pixbuf) {
    thumbnail.problem = messageOf(error);
    return;
  }
  const PixbufRef upright(gdk_pixbuf_apply_embedded_orientation(pixbuf));
  const auto [width, height] =
      fitted(gdk_pixbuf_get_width(upright.get()), gdk_pixbuf_get_height(upright.get()), box);
  const PixbufRef small(gdk_pixbuf_scale_simple(upright.get(), width, height, GDK_INTERP_BILINEAR));
  if (!small) {
    thumbnail.problem = "There is not enough memory to show it.";
    return;
  }
  thumbnail.bitmap = bitmapFrom(small.get());
}

}  // namespace

Thumbnail decodeThumbnail(const std::string &path, int boxWidth, int boxHeight,
                          const std::function<bool()> &cancelled) {
  Thumbnail thumbnail;
  // Not blocking: the file may have become a pipe since it was listed.
  const int file = open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
  if (file < 0) {
    thumbnail.problem = std::strerror(errno);
    return thumbnail;
  }
  struct stat info;
  if (fstat(file, &info) != 0 || !S_ISREG(info.st_mode)) {
    thumbnail.problem = "It is not a file.";
  } else if (info.st_size > kLargestFile) {
    thumbnail.problem = "The file is too large to be shown.";
  } else {
    Box box{boxWidth, boxHeight, &thumbnail};
    decodeFile(file, box, cancelled);
  }
  close(file);
  return thumbnail;
}

std::vector<std::string> readableExtensions() {
  std::vector<std::string> result;
  GSList *formats = gdk_pixbuf_get_formats();
  for (GSList *item = formats; item; item = item->next) {
    char **extensions =
        gdk_pixbuf_format_get_extensions(static_cast<GdkPixbufFormat *>(item->data));
    for (char **extension = extensions; extension && *extension; ++extension) {
      result.emplace_back(*extension);
    }
    g_strfreev(extensions);
  }
  g_slist_free(formats);
  return result;
}

}  // namespace gallery
