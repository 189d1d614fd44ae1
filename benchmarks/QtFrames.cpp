#include "QtFrames.h"

#ifdef OV_HAVE_QT

#include <qdrawutil.h>

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <memory>

namespace bench {

namespace {

void startQt() {
  static int count = 1;
  static char name[] = "benchmarks";
  static char* arguments[] = {name, nullptr};
  qputenv("QT_QPA_PLATFORM", "offscreen");
  // Never destroyed: the program ends by _exit().
  static auto* const application = new QApplication(count, arguments);
  (void)application;
}

struct Canvas {
  QImage image{900, 700, QImage::Format_ARGB32_Premultiplied};
  QPainter painter{&image};
};

}  // namespace

std::function<void()> qtFrame(const unsigned char* pixels, int width, int height) {
  startQt();
  const QImage image(pixels, 24, 24, 24 * 4, QImage::Format_RGBA8888_Premultiplied);
  const QPixmap pixmap = QPixmap::fromImage(image);
  const auto canvas = std::make_shared<Canvas>();
  return [=] {
    qDrawBorderPixmap(&canvas->painter, QRect(10, 10, width, height), QMargins(8, 8, 8, 8), pixmap);
  };
}

}  // namespace bench

#else

namespace bench {

std::function<void()> qtFrame(const unsigned char* /*pixels*/, int /*width*/, int /*height*/) {
  return {};
}

}  // namespace bench

#endif
