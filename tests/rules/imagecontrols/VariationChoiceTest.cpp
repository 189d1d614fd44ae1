#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

#include "imagecontrols/VariationChoice.h"

namespace ov {

static void PrintTo(const ButtonFace& face, std::ostream* out) {
  *out << "variation " << static_cast<int>(face.variation)
       << (face.title == FaceTitle::kAlternate ? " with the alternate title" : "");
}

namespace {

// One letter for each input: the letter when it holds, '-' when it does not, '.' either way.
//   e enabled, h highlighted, o on, i shows its state by the image, m mouse inside,
//   p artwork for a press under the pointer, v artwork for a pointer over it
constexpr char kLetters[] = "ehoimpv";
constexpr unsigned kInputs = sizeof kLetters - 1;

struct Row {
  const char* when;
  int variation;
  bool alternate;
};

bool holds(unsigned inputs, unsigned which) { return (inputs >> which) & 1; }

bool matches(const Row& row, unsigned inputs) {
  for (unsigned i = 0; i < kInputs; i++)
    if (row.when[i] != '.' && (row.when[i] == kLetters[i]) != holds(inputs, i)) return false;
  return true;
}

std::string describe(unsigned inputs) {
  std::string result;
  for (unsigned i = 0; i < kInputs; i++) result += holds(inputs, i) ? kLetters[i] : '-';
  return result;
}

ButtonState stateOf(unsigned inputs) {
  return {.enabled = holds(inputs, 0),
          .highlighted = holds(inputs, 1),
          .on = holds(inputs, 2),
          .showsStateByImage = holds(inputs, 3),
          .mouseInside = holds(inputs, 4)};
}

FaceArtwork artworkOf(unsigned inputs) {
  return {.mousePushed = holds(inputs, 5), .mouseOver = holds(inputs, 6)};
}

// Every combination of inputs is in exactly one row, and looks as the row says.
template <class Face>
void expectTable(const std::vector<Row>& rows, Face face) {
  for (unsigned inputs = 0; inputs < 1U << kInputs; inputs++) {
    std::vector<Row> found;
    for (const Row& row : rows)
      if (matches(row, inputs)) found.push_back(row);
    ASSERT_EQ(found.size(), 1U) << describe(inputs);
    ButtonFace expected{static_cast<Variation>(found.front().variation),
                        found.front().alternate ? FaceTitle::kAlternate : FaceTitle::kOrdinary};
    EXPECT_EQ(face(inputs), expected) << describe(inputs);
  }
}

TEST(VariationChoice, OfAPushButton) {
  const std::vector<Row> rows = {
      {"-.o....", 1, true},    // disabled and on: looks pressed, not disabled
      {"-.-....", 4, false},   // disabled and off
      {"e-oi...", 1, true},    // shows that it is on, whatever is over it
      {"ehoi-..", 0, false},   // … pressed, with the pointer outside: looks off
      {"ehoimp.", 2, true},    // … pressed under the pointer
      {"ehoim-.", 1, true},    // … without artwork for that
      {"eh--mp.", 2, true},    // pressed under the pointer
      {"eh-imp.", 2, true},    //
      {"eho-mp.", 2, true},    //
      {"eh--m-.", 1, true},    // … without artwork for that
      {"eh-im-.", 1, true},    //
      {"eho-m-.", 1, true},    //
      {"eh---..", 1, true},    // pressed, with the pointer outside
      {"eh-i-..", 1, true},    //
      {"eho--..", 1, true},    //
      {"e---m.v", 3, false},   // the pointer over it
      {"e--im.v", 3, false},   //
      {"e-o-m.v", 3, false},   // … that it is on shows otherwise
      {"e---m.-", 0, false},   // … without artwork for that
      {"e--im.-", 0, false},   //
      {"e-o-m.-", 0, false},   //
      {"e----..", 0, false},   // at rest
      {"e--i-..", 0, false},   //
      {"e-o--..", 0, false}};  //
  expectTable(rows,
              [](unsigned inputs) { return pushButtonFace(stateOf(inputs), artworkOf(inputs)); });
}

TEST(VariationChoice, OfAPopUpButton) {
  const std::vector<Row> rows = {
      {"-......", 4, false},   // disabled, on or not
      {"e-oi...", 1, true},    // shows that it is on
      {"ehoim..", 1, true},    // … pressed under the pointer: never the artwork for that
      {"ehoi-..", 0, false},   // … pressed, with the pointer outside: looks off
      {"eh--...", 1, true},    // pressed
      {"eh-i...", 1, true},    //
      {"eho-...", 1, true},    //
      {"e---m..", 3, false},   // the pointer over it, whether there is artwork for that or not
      {"e--im..", 3, false},   //
      {"e-o-m..", 3, false},   //
      {"e----..", 0, false},   // at rest
      {"e--i-..", 0, false},   //
      {"e-o--..", 0, false}};  //
  expectTable(rows, [](unsigned inputs) { return popUpButtonFace(stateOf(inputs)); });
}

}  // namespace
}  // namespace ov
