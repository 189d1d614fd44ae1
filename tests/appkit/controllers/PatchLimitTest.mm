// More patched classes above each other than there are replacements. A program of its own: the
// platform's view could not be patched after this.

#import <objc/runtime.h>

#import "ResponderTest.h"

using namespace ov::test;

@interface LongLineView : NSView
@end
@implementation LongLineView
@end

namespace {

class PatchLimit : public ResponderTest {};

TEST_F(PatchLimit, SixteenClassesAboveEachOtherArePatchedFromBelow) {
  std::vector<Class> line = {[LongLineView class]};
  for (int i = 1; i < 18; ++i) {
    const std::string name = "LongLineView" + std::to_string(i);
    Class cls = objc_allocateClassPair(line.back(), name.c_str(), 0);
    objc_registerClassPair(cls);
    line.push_back(cls);
  }
  SEL original = NSSelectorFromString(@"__original_viewWillMoveToWindow:");
  for (size_t i = line.size(); i-- > 0;) {
    [HXViewDynamicResponder_NSViewReplacer replaceMethodImplementationOnClass:line[i]];
    EXPECT_EQ(HXClassImplementingMethod(line[i], original), i < 2 ? Nil : line[i]) << i;
  }
  NSWindow *window = makeWindow(NSMakeSize(100, 100));
  for (size_t i : {size_t{2}, line.size() - 1}) {
    NSView *view = [[[line[i] alloc] initWithFrame:NSZeroRect] autorelease];
    [viewResponder(std::to_string(i), view, static_cast<NSInteger>(i)) setEnabled:YES];
    [[window contentView] addSubview:view];
  }
  EXPECT_EQ(chain(window), "2 17 app");
}

}  // namespace
