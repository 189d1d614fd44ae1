// A person's pointer and keyboard, as far as the display server can tell. Places are in
// pixels from the screen's top left. Free of the platform's headers, which X11's clash with.

#pragma once

namespace ov::test::xtest {

bool isAvailable();

void movePointer(int x, int y);
void movePointerBy(int dx, int dy);
void pressButton(int button = 1);
void releaseButton(int button = 1);
// A key by its X11 name: "a", "Return", "Shift_L".
void pressKey(const char* name);
void releaseKey(const char* name);

int screenHeight();

}  // namespace ov::test::xtest
