// Another tool kit's nine-piece frame, if it is there, measured beside ours.

#pragma once

#include <functional>

namespace bench {

// Draws premultiplied pixels of 24 x 24 (RGBA), cut 8 from each side, as a frame of a size into a
// picture in memory. Empty if the tool kit is not there.
std::function<void()> qtFrame(const unsigned char* pixels, int width, int height);

}  // namespace bench
