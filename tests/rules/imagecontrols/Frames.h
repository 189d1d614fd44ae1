// The pieces of a frame in comparisons.

#pragma once

#include <ostream>
#include <vector>

#include "RulePrinting.h"
#include "imagecontrols/NinePieceLayout.h"

namespace ov {

inline void PrintTo(const FramePiece& piece, std::ostream* out) {
  static constexpr const char* kNames[] = {"Center",   "Left",       "Right",
                                           "Top",      "Bottom",     "LeftTop",
                                           "RightTop", "LeftBottom", "RightBottom"};
  *out << kNames[static_cast<unsigned>(piece.part)] << " ";
  PrintTo(piece.rect, out);
}

inline std::vector<FramePiece> listOf(const FramePieces& pieces) {
  return {pieces.begin(), pieces.end()};
}

}  // namespace ov
