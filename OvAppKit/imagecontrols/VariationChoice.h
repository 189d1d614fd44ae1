// Which artwork, and which of its two titles, a button that is drawn from images shows in
// the state that it is in.
//
// The push button and the pop-up button differ on purpose: only the push button has artwork
// for a press under the pointer, looks whether there is artwork for a state before it asks
// for it, and shows a disabled one that is on as highlighted.

#pragma once

namespace ov {

// The numbers are those of HXImageControlImageVariation.
enum class Variation {
  kDefault = 0,
  kHighlighted = 1,
  kMousePushed = 2,
  kMouseOver = 3,
  kDisabled = 4,
};

// The alternate title is meant: a cell that has none shows its ordinary one instead.
enum class FaceTitle { kOrdinary, kAlternate };

struct ButtonState {
  bool enabled = true;
  bool highlighted = false;
  bool on = false;
  // The state is shown by a change of the image.
  bool showsStateByImage = false;
  bool mouseInside = false;
};

// What there is beyond the artwork that every button has.
struct FaceArtwork {
  bool mousePushed = false;
  bool mouseOver = false;
};

struct ButtonFace {
  Variation variation = Variation::kDefault;
  FaceTitle title = FaceTitle::kOrdinary;

  friend bool operator==(const ButtonFace&, const ButtonFace&) = default;
};

ButtonFace pushButtonFace(const ButtonState& state, const FaceArtwork& artwork);
ButtonFace popUpButtonFace(const ButtonState& state);

}  // namespace ov
