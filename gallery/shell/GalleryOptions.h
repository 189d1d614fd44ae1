// The command line: Gallery [-page NAME] [-snapshot DIR] [-statusfile PATH] [FOLDER]
#pragma once

#include <string>
#include <vector>

namespace gallery {

struct Options {
  std::string page;        // the page to open on; empty: the first
  std::string snapshot;    // where to draw every page to, instead of staying open
  std::string statusFile;  // where to write what the window shows, after each change
  std::string folder;      // the pictures to show
  // What is left for the platform: the program and "-key value" pairs. It would take any
  // other word for the name of a document to open.
  std::vector<std::string> platformArguments;
};

Options parseOptions(const std::vector<std::string> &arguments);

}  // namespace gallery
