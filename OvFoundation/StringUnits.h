// The units of a string, read a block at a time: cheap for short looks into long strings.

#import <Foundation/Foundation.h>

#include <stddef.h>

#include <vector>

class StringUnits {
 public:
  // The string must outlive this.
  explicit StringUnits(NSString *string) : string_(string), length_([string length]) {}

  size_t length() const { return length_; }

  char16_t operator[](size_t index) const {
    // Before the block as well: the difference is unsigned.
    if (index - start_ >= count_) load(index);
    return block_[index - start_];
  }

 private:
  static constexpr size_t blockLength = 512;

  void load(size_t index) const;

  NSString *string_;
  size_t length_;
  mutable size_t start_ = 0;
  mutable size_t count_ = 0;
  mutable unichar block_[blockLength];
};

// A string of any units. The platform makes none, or answers nil for a part of one, when
// half a character stands alone among them, and loses a byte order mark at the start.
NSString *StringWithUnits(const std::vector<unichar> &units);
