#include "shell/GalleryOptions.h"

namespace gallery {

Options parseOptions(const std::vector<std::string> &arguments) {
  Options options;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string &word = arguments[i];
    if (i == 0) {
      options.platformArguments.push_back(word);
    } else if (word.size() < 2 || word[0] != '-') {
      if (!word.empty()) options.folder = word;
    } else {
      // A value is whatever follows, even if it begins with a dash.
      const std::string value = i + 1 < arguments.size() ? arguments[++i] : "";
      std::string *const known = word == "-page"         ? &options.page
                                 : word == "-snapshot"   ? &options.snapshot
                                 : word == "-statusfile" ? &options.statusFile
                                 : word == "-folder"     ? &options.folder
                                                         : nullptr;
      if (known) {
        *known = value;
      } else {
        options.platformArguments.push_back(word);
        options.platformArguments.push_back(value);
      }
    }
  }
  return options;
}

}  // namespace gallery
