// Pieces that meet on whole device pixels. Between two of them, an edge within a pixel would be
// antialiased twice, and what is behind the frame would show through.

#pragma once

#include "extensions/PixelAlignment.h"
#include "imagecontrols/NinePieceLayout.h"

namespace ov {

// Every edge within the destination at the nearest pixel boundary, less than one pixel away; its
// outer edges, and what is there already, where they were. An empty piece stays as it is. Nothing
// moves in a plane that is turned.
FramePieces alignFrame(const FramePieces& pieces, const Rect& destination, const Affine& toDevice);

// Whether pixels lie along both axes.
bool isUpright(const Affine& toDevice);

// The pixels that the pieces touch, in device space; empty without any, or if that is no number.
Rect pixelsOf(const FramePieces& pieces, const Affine& toDevice);

}  // namespace ov
