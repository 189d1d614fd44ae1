// One function per component family.

#pragma once

namespace bench {

void grid();
void imageControls();
void split();
void text();

}  // namespace bench
