#include "imagecontrols/VariationChoice.h"

namespace ov {

ButtonFace pushButtonFace(const ButtonState& state, const FaceArtwork& artwork) {
  constexpr auto ordinary = FaceTitle::kOrdinary;
  constexpr auto alternate = FaceTitle::kAlternate;

  if (!state.enabled)
    return state.on ? ButtonFace{Variation::kHighlighted, alternate}
                    : ButtonFace{Variation::kDisabled, ordinary};

  // One that shows that it is on looks off while it is pressed with the pointer outside.
  const bool showsOn = state.showsStateByImage && state.on;
  if (showsOn && state.highlighted && !state.mouseInside) return {Variation::kDefault, ordinary};

  if (state.highlighted) {
    const bool pushed = state.mouseInside && artwork.mousePushed;
    return {pushed ? Variation::kMousePushed : Variation::kHighlighted, alternate};
  }
  if (showsOn) return {Variation::kHighlighted, alternate};

  const bool over = state.mouseInside && artwork.mouseOver;
  return {over ? Variation::kMouseOver : Variation::kDefault, ordinary};
}

ButtonFace popUpButtonFace(const ButtonState& state) {
  auto face = [](Variation variation) {
    const bool highlighted = variation == Variation::kHighlighted;
    return ButtonFace{variation, highlighted ? FaceTitle::kAlternate : FaceTitle::kOrdinary};
  };

  if (!state.enabled) return face(Variation::kDisabled);
  if (state.showsStateByImage && state.on)
    return face(state.highlighted && !state.mouseInside ? Variation::kDefault
                                                        : Variation::kHighlighted);
  if (state.highlighted) return face(Variation::kHighlighted);
  return face(state.mouseInside ? Variation::kMouseOver : Variation::kDefault);
}

}  // namespace ov
