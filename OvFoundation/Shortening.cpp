#include "Shortening.h"

#include <algorithm>

namespace ov {
namespace {

KeptEnds endsOf(std::size_t kept, std::size_t length, CutAt cut, const ShorteningQuestions &ask) {
  std::size_t head = cut == CutAt::middle ? (kept + 1) / 2 : kept;
  std::size_t tail = kept - head;
  while (head > 0 && !ask.mayCutBefore(head)) --head;
  while (tail > 0 && !ask.mayCutBefore(length - tail)) --tail;
  return {head, tail};
}

}  // namespace

KeptEnds longestFitting(std::size_t length, CutAt cut, const ShorteningQuestions &ask) {
  if (length == 0) return {};
  std::size_t fitting = 0;
  std::size_t tooMuch = 1;
  while (tooMuch < length && ask.fits(endsOf(tooMuch, length, cut, ask))) {
    fitting = tooMuch;
    tooMuch *= 2;
  }
  tooMuch = std::min(tooMuch, length);
  while (tooMuch - fitting > 1) {
    const std::size_t middle = fitting + (tooMuch - fitting) / 2;
    if (ask.fits(endsOf(middle, length, cut, ask))) {
      fitting = middle;
    } else {
      tooMuch = middle;
    }
  }
  return endsOf(fitting, length, cut, ask);
}

}  // namespace ov
