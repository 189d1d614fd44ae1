// How much of a text remains when it is cut to a width with an ellipsis.

#ifndef OV_SHORTENING_H
#define OV_SHORTENING_H

#include <cstddef>
#include <functional>

namespace ov {

/// The units of the text that stay before and after the ellipsis.
struct KeptEnds {
  std::size_t head = 0;
  std::size_t tail = 0;
  friend bool operator==(const KeptEnds &, const KeptEnds &) = default;
};

/// What `longestFitting` asks about the text.
struct ShorteningQuestions {
  /// May the text be cut before this unit? (Asked for 1 … length - 1.)
  std::function<bool(std::size_t index)> mayCutBefore;
  /// Do these ends with an ellipsis between them fit?
  std::function<bool(KeptEnds)> fits;
};

enum class CutAt { end, middle };

/// The longest ends of a text of `length` units that fit: only a head for a cut at
/// the end; for one in the middle a head and a tail of equal length, the odd unit
/// going to the head. Cuts move outwards to the nearest place where cutting is
/// allowed. Nothing is kept when nothing fits.
///
/// The widths asked for are those of texts at most twice as long as the answer, and
/// their number grows with the logarithm of its length: a long text costs no more
/// than what is seen of it.
KeptEnds longestFitting(std::size_t length, CutAt cut, const ShorteningQuestions &ask);

}  // namespace ov

#endif
