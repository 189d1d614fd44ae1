// The names that all controls drawn from artwork share: the pieces of a picture set, the states
// that it shows, and the keys of containers that are indexed by state.

#import <AppKit/AppKit.h>
#import <OvFoundation/OvFoundation.h>

#include <stdint.h>

/** A piece of a picture set.

      +--------+-------------+--------+
      |LeftTop |     Top     |RightTop|      Center is the body, or a whole picture in one
      +--------+-------------+--------+      piece. Icon and Accessory (the arrow of a pop-up,
      |        |             |        |      say) are drawn over it by the control, at a place
      |  Left  |   Center    | Right  |      of its own.
      |        |             |        |
      +--------+-------------+--------+      "Top" is the smaller y: the visible top in a
      |LeftBot.|   Bottom    |RightB. |      flipped view, the visible bottom in another.
      +--------+-------------+--------+

    Numbers of 11 or more are no parts: setters ignore them, getters answer nothing. */
enum {
  HXImageControlImagePartCenter = 0,
  HXImageControlImagePartLeft = 1,
  HXImageControlImagePartRight = 2,
  HXImageControlImagePartTop = 3,
  HXImageControlImagePartBottom = 4,
  HXImageControlImagePartLeftTop = 5,
  HXImageControlImagePartRightTop = 6,
  HXImageControlImagePartLeftBottom = 7,
  HXImageControlImagePartRightBottom = 8,
  HXImageControlImagePartIcon = 9,
  HXImageControlImagePartAccessory = 10
};
typedef uint32_t HXImageControlImagePart;

/** A visual state. A set may lack any of them but Default, which stands in for the others. Numbers
    of 5 or more are no variations.

    Default: enabled, not pressed, the mouse elsewhere. Highlighted: pressed, or "on" where the
    control shows that by a change of image. MousePushed: pressed with the mouse inside. MouseOver:
    not pressed, the mouse inside. */
enum {
  HXImageControlImageVariationDefault = 0,
  HXImageControlImageVariationHighlighted = 1,
  HXImageControlImageVariationMousePushed = 2,
  HXImageControlImageVariationMouseOver = 3,
  HXImageControlImageVariationDisabled = 4
};
typedef uint32_t HXImageControlImageVariation;

/** Keys for the states of a HXDictionaryImageContainer; the value of each is its name without
    "Key". */
OV_EXPORT NSString *const HXImageControlDefaultImageKey;
OV_EXPORT NSString *const HXImageControlAlternateImageKey;
OV_EXPORT NSString *const HXImageControlMouseOverImageKey;
OV_EXPORT NSString *const HXImageControlDisabledImageKey;

/** What follows the prefix in the names of the pictures for these keys: "_default", "_alternate",
    "_mouseover" and "_disabled". The names of picture sets with parts follow another scheme, with
    hyphens: see HXImageControlImageResourceNameSuffixRegistry. */
OV_EXPORT NSString *const HXImageControlDefaultImageSuffix;
OV_EXPORT NSString *const HXImageControlAlternateImageSuffix;
OV_EXPORT NSString *const HXImageControlMouseOverImageSuffix;
OV_EXPORT NSString *const HXImageControlDisabledImageSuffix;
