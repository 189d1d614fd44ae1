#include "XTest.h"

#include <X11/Xlib.h>
#include <X11/extensions/XTest.h>

namespace ov::test::xtest {

namespace {

// A connection of our own, so that nothing mixes with the application's.
Display* display() {
  static Display* const connection = XOpenDisplay(nullptr);
  return connection;
}

void button(int number, bool down) {
  XTestFakeButtonEvent(display(), static_cast<unsigned>(number), down, CurrentTime);
  XSync(display(), False);
}

void key(const char* name, bool down) {
  KeyCode code = XKeysymToKeycode(display(), XStringToKeysym(name));
  XTestFakeKeyEvent(display(), code, down, CurrentTime);
  XSync(display(), False);
}

}  // namespace

bool isAvailable() {
  int event, error, major, minor;
  return display() && XTestQueryExtension(display(), &event, &error, &major, &minor);
}

void movePointer(int x, int y) {
  XTestFakeMotionEvent(display(), -1, x, y, CurrentTime);
  XSync(display(), False);
}

void movePointerBy(int dx, int dy) {
  XTestFakeRelativeMotionEvent(display(), dx, dy, CurrentTime);
  XSync(display(), False);
}

void pressButton(int number) { button(number, true); }
void releaseButton(int number) { button(number, false); }
void pressKey(const char* name) { key(name, true); }
void releaseKey(const char* name) { key(name, false); }

int screenHeight() { return DisplayHeight(display(), DefaultScreen(display())); }

}  // namespace ov::test::xtest
