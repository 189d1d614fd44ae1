#import <OvAppKit/HXViewDynamicResponder.h>
#import <OvAppKit/HXViewDynamicResponder_NSViewReplacer.h>
#import <OvAppKit/NSWindow+HXDynamicResponder.h>
#import <OvFoundation/HXRuntime.h>

#import <objc/runtime.h>

#include <algorithm>
#include <array>
#include <bit>
#include <map>
#include <string>
#include <utility>

@interface NSView (OvPatched)
- (void)__original_viewWillMoveToWindow:(NSWindow *)newWindow;
- (void)__original_viewDidMoveToWindow;
@end

// An ancestor can be patched after a class of its line. A method of that class which calls
// super then meets a second replacement, for the same view, and must go on with the ancestor's
// original: asked for by name, the view would answer with the class's own again, without end.
// So each patched class of a line has a level, counted from below, and replacements of its
// level; by that a replacement finds the class that it stands in.
namespace {

// More patched classes than that above each other are not expected; further ones are not
// patched.
constexpr int kLevels = 16;

std::map<Class, int> &patchedClasses() {
  static std::map<Class, int> classes;
  return classes;
}

Class patchedClass(NSView *view, int level) {
  for (Class cls = object_getClass(view); cls != Nil; cls = class_getSuperclass(cls)) {
    const auto found = patchedClasses().find(cls);
    if (found != patchedClasses().end() && found->second == level) return cls;
  }
  return Nil;
}

void viewWillMove(NSView *view, NSWindow *newWindow, int level) {
  NSArray *responders =
      [[view window] _dynamicRespondersKindOfClass:[HXViewDynamicResponder class]];
  for (HXViewDynamicResponder *responder in [responders reverseObjectEnumerator]) {
    if ([responder view] == view) [responder setWindow:nil];
  }
  Class cls = patchedClass(view, level);
  if (cls == Nil) return;
  using Method = void (*)(id, SEL, NSWindow *);
  SEL original = @selector(__original_viewWillMoveToWindow:);
  std::bit_cast<Method>(class_getMethodImplementation(cls, original))(view, original, newWindow);
}

void viewDidMove(NSView *view, int level) {
  if (NSWindow *window = [view window]) {
    NSArray *responders = [HXViewDynamicResponder _instancesForView:view];
    for (HXViewDynamicResponder *responder in [responders reverseObjectEnumerator]) {
      if ([responder view] == view) [responder setWindow:window];
    }
  }
  Class cls = patchedClass(view, level);
  if (cls == Nil) return;
  using Method = void (*)(id, SEL);
  SEL original = @selector(__original_viewDidMoveToWindow);
  std::bit_cast<Method>(class_getMethodImplementation(cls, original))(view, original);
}

struct Replacements {
  void (*willMove)(NSView *, SEL, NSWindow *);
  void (*didMove)(NSView *, SEL);
};

template <int... Level>
constexpr std::array<Replacements, sizeof...(Level)> makeReplacements(
    std::integer_sequence<int, Level...>) {
  return {Replacements{
      [](NSView *view, SEL, NSWindow *newWindow) { viewWillMove(view, newWindow, Level); },
      [](NSView *view, SEL) { viewDidMove(view, Level); }}...};
}

constexpr auto kReplacements = makeReplacements(std::make_integer_sequence<int, kLevels>());

// The selector under which the replacer has a level's replacement. Level 0 is the replacer's
// ordinary method; the others are added when they are needed.
SEL replacementSelector(SEL selector, int level, IMP implementation) {
  if (level == 0) return selector;
  const std::string name = "__level" + std::to_string(level) + "_" + sel_getName(selector);
  SEL levelSelector = sel_registerName(name.c_str());
  Class replacer = [HXViewDynamicResponder_NSViewReplacer class];
  class_addMethod(replacer, levelSelector, implementation,
                  method_getTypeEncoding(class_getInstanceMethod(replacer, selector)));
  return levelSelector;
}

void patchMethod(Class viewClass, SEL selector, SEL original, int level, IMP implementation) {
  HXDuplicateInstanceMethodWithSelector(viewClass, selector, original);
  HXReplaceMethodImplementationWithSelectorOnClass(
      viewClass, selector, [HXViewDynamicResponder_NSViewReplacer class],
      replacementSelector(selector, level, implementation));
}

}  // namespace

@implementation HXViewDynamicResponder_NSViewReplacer

+ (void)replaceMethodImplementationOnClass:(Class)viewClass {
  if (![viewClass isSubclassOfClass:[NSView class]]) return;
  if (HXClassImplementingMethod(viewClass, @selector(__original_viewWillMoveToWindow:))) return;
  int level = 0;
  for (const auto &[patched, patchedLevel] : patchedClasses()) {
    if ([patched isSubclassOfClass:viewClass]) level = std::max(level, patchedLevel + 1);
  }
  if (level >= kLevels) return;
  patchedClasses()[viewClass] = level;
  patchMethod(viewClass, @selector(viewWillMoveToWindow:),
              @selector(__original_viewWillMoveToWindow:), level,
              std::bit_cast<IMP>(kReplacements[level].willMove));
  patchMethod(viewClass, @selector(viewDidMoveToWindow), @selector(__original_viewDidMoveToWindow),
              level, std::bit_cast<IMP>(kReplacements[level].didMove));
}

- (void)viewWillMoveToWindow:(NSWindow *)newWindow {
  viewWillMove(self, newWindow, 0);
}

- (void)viewDidMoveToWindow {
  viewDidMove(self, 0);
}

@end
