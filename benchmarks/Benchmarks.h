// One function per component family.

#pragma once

namespace bench {

void grid();
void split();

}  // namespace bench
