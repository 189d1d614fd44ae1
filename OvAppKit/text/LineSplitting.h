// Where the lines of a text begin and end. Every carriage return and every line feed is one
// break, so a pair of them has an empty line in between:
//
//   a \r \n b      line 0 is "a", line 1 is empty, line 2 is "b"
//   0  1  2 3
//
// Texts may be long and may be stored in any way: they are read in blocks, forward or
// backward, and only as far as the answer needs.

#pragma once

#include <cstddef>
#include <functional>
#include <span>

namespace ov {

constexpr bool isLineBreak(char16_t unit) { return unit == u'\n' || unit == u'\r'; }

// A text that copies its UTF-16 units out on request.
class TextUnits {
 public:
  explicit TextUnits(std::size_t length) : length_(length) {}
  TextUnits(const TextUnits&) = delete;
  TextUnits& operator=(const TextUnits&) = delete;

  std::size_t length() const { return length_; }
  // Fills all of `block` with the units from `start` on; they exist.
  virtual void copy(std::size_t start, std::span<char16_t> block) const = 0;

 protected:
  ~TextUnits() = default;

 private:
  std::size_t length_;
};

// How much is read at once.
inline constexpr std::size_t kTextBlockLength = 2048;

// The units from start up to end, which is not one of them.
struct LineExtent {
  std::size_t start = 0;
  std::size_t end = 0;

  std::size_t length() const { return end - start; }
  friend bool operator==(const LineExtent&, const LineExtent&) = default;
};

// The number of breaks before a location; a location past the end counts all.
std::size_t lineBreaksBefore(const TextUnits& text, std::size_t location);

// One more than there are breaks; an empty text has one line.
std::size_t lineCount(const TextUnits& text);

// The line with that index, without its break; empty when there is no such line.
LineExtent lineAtIndex(const TextUnits& text, std::size_t index);

// What lies between the last break before a location and the location, which is at most the
// length of the text.
LineExtent lineBeforeLocation(const TextUnits& text, std::size_t location);

// Shows every line that is not empty, in order.
void forEachFilledLine(const TextUnits& text, const std::function<void(LineExtent)>& show);

}  // namespace ov
