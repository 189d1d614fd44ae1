#import "split/DelegateConstraint.h"

#include <cmath>
#include <string_view>

namespace ov {
namespace {

// Past the qualifiers that may stand before a type.
char kindOf(const char *type) {
  std::string_view rest = type != nullptr ? type : "";
  const std::size_t kind = rest.find_first_not_of("rnNoORV");
  return kind == rest.npos ? '\0' : rest[kind];
}

template <typename Answer, typename Proposed>
float call(id delegate, SEL question, NSSplitView *splitView, float proposed, NSInteger index) {
  using Method = Answer (*)(id, SEL, NSSplitView *, Proposed, NSInteger);
  const auto method =
      reinterpret_cast<Method>(reinterpret_cast<void (*)()>([delegate methodForSelector:question]));
  return static_cast<float>(
      method(delegate, question, splitView, static_cast<Proposed>(proposed), index));
}

}  // namespace

float askConstraint(NSSplitView *splitView, SEL question, float proposed, NSInteger index) {
  id delegate = [splitView delegate];
  if (![delegate respondsToSelector:question]) return proposed;
  NSMethodSignature *signature = [delegate methodSignatureForSelector:question];
  if ([signature numberOfArguments] != 5) return proposed;
  const char answers = kindOf([signature methodReturnType]);
  const char takes = kindOf([signature getArgumentTypeAtIndex:3]);
  if ((answers != 'f' && answers != 'd') || (takes != 'f' && takes != 'd')) return proposed;
  const auto ask = answers == 'f' ? (takes == 'f' ? call<float, float> : call<float, double>)
                                  : (takes == 'f' ? call<double, float> : call<double, double>);
  const float answer = ask(delegate, question, splitView, proposed, index);
  return std::isfinite(answer) ? answer : proposed;
}

}  // namespace ov
