#import "StringUnits.h"

#include "Utf16.h"

void StringUnits::load(size_t index) const {
  // Walks go either way: the unit asked for is not at the edge.
  start_ = index > blockLength / 4 ? index - blockLength / 4 : 0;
  count_ = length_ - start_ < blockLength ? length_ - start_ : blockLength;
  [string_ getCharacters:block_ range:NSMakeRange(start_, count_)];
}

NSString *StringWithUnits(const std::vector<unichar> &units) {
  std::vector<size_t> refused;
  // At the start these two tell the order of bytes: the platform takes them away, and swaps
  // the bytes of all the others for the second.
  if (!units.empty() && (units[0] == 0xFEFF || units[0] == 0xFFFE)) refused.push_back(0);
  for (size_t i = 0; i < units.size();) {
    const ov::Character character = ov::characterAt(units, i, units.size());
    if (character.units == 1 && ov::isSurrogate(units[i])) refused.push_back(i);
    i += character.units;
  }
  if (refused.empty()) {
    return [NSString stringWithCharacters:units.data() length:units.size()];
  }
  // No string can be made from these units, but they can be put into one.
  std::vector<unichar> whole = units;
  for (size_t i : refused) whole[i] = 0xFFFD;
  NSMutableString *string = [NSMutableString stringWithCharacters:whole.data() length:whole.size()];
  for (size_t i : refused) {
    NSString *unit = [NSString stringWithFormat:@"%C", units[i]];
    [string replaceCharactersInRange:NSMakeRange(i, 1) withString:unit];
  }
  return [[string copy] autorelease];
}
