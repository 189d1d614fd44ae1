// A few invented letters for the panes to show.
#pragma once

#include <string>
#include <vector>

namespace gallery {

struct Letter {
  std::string subject;
  std::string from;
  std::string text;
};

struct Folder {
  std::string name;
  std::vector<Letter> letters;
};

const std::vector<Folder> &mailbox();

}  // namespace gallery
