#include "TextNesting.h"

#include <algorithm>

namespace ov {
namespace {

class Depth {
 public:
  void open() { deepest_ = std::max(deepest_, ++now_); }
  void close() {
    if (now_ > 0) --now_;
  }
  std::size_t deepest() const { return deepest_; }

 private:
  std::size_t now_ = 0;
  std::size_t deepest_ = 0;
};

// Text between the tags is escaped, so every "<" begins a tag.
std::size_t nestingOfXML(std::string_view text) {
  Depth depth;
  for (std::size_t at = text.find('<'); at < text.size(); at = text.find('<', at + 1)) {
    std::string_view tag = text.substr(at + 1);
    const bool closes = tag.starts_with('/');
    if (closes) tag.remove_prefix(1);
    if (!tag.starts_with("array") && !tag.starts_with("dict")) continue;
    const std::size_t end = std::min(tag.find('>'), tag.size());
    if (closes) {
      depth.close();
    } else {
      depth.open();
      if (end > 0 && tag[end - 1] == '/') depth.close();
    }
  }
  return depth.deepest();
}

std::size_t nestingOfBraces(std::string_view text) {
  Depth depth;
  for (std::size_t at = 0; at < text.size(); ++at) {
    switch (text[at]) {
      case '"':
        for (++at; at < text.size() && text[at] != '"'; ++at) {
          if (text[at] == '\\') ++at;
        }
        break;
      case '(':
      case '{':
        depth.open();
        break;
      case ')':
      case '}':
        depth.close();
        break;
      default:
        break;
    }
  }
  return depth.deepest();
}

}  // namespace

std::size_t textNesting(std::string_view text) {
  const std::size_t start = std::min(text.find_first_not_of(" \t\r\n\xEF\xBB\xBF"), text.size());
  const bool isXML = text.substr(start).starts_with("<?") || text.substr(start).starts_with("<!");
  return isXML ? nestingOfXML(text) : nestingOfBraces(text);
}

}  // namespace ov
