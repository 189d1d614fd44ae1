#import "controllers/ChainUpkeep.h"

#import <OvAppKit/NSWindow+HXDynamicResponder.h>
#import <OvFoundation/HXRuntime.h>

@interface NSWindow (OvChainUpkeep)
- (void)__ov_windowDealloc;
@end

@interface NSWindowController (OvChainUpkeep)
- (void)__ov_setWindow:(NSWindow *)window;
@end

// The platform's own methods, under the names that they get when they are extended.
@interface NSWindow (OvChainUpkeepOriginals)
- (void)__ov_original_dealloc;
@end

@interface NSWindowController (OvChainUpkeepOriginals)
- (void)__ov_original_setWindow:(NSWindow *)window;
@end

namespace ov {
namespace {

NSHashTable *knownResponders() {
  static NSHashTable *const table = NSCreateHashTable(NSNonOwnedPointerHashCallBacks, 8);
  return table;
}

// The class itself is changed, not a subclass, so that its method runs last of all.
void extendMethod(Class cls, SEL selector, SEL extension, SEL original) {
  if (HXDuplicateInstanceMethodWithSelector(cls, selector, original)) {
    HXReplaceMethodImplementationWithSelectorOnClass(cls, selector, cls, extension);
  }
}

bool extendPlatform() {
  extendMethod([NSWindow class], @selector(dealloc), @selector(__ov_windowDealloc),
               @selector(__ov_original_dealloc));
  extendMethod([NSWindowController class], @selector(setWindow:), @selector(__ov_setWindow:),
               @selector(__ov_original_setWindow:));
  return true;
}

}  // namespace

void rememberResponder(HXDynamicResponder *responder) {
  [[maybe_unused]] static const bool extended = extendPlatform();
  NSHashInsert(knownResponders(), responder);
}

void forgetResponder(HXDynamicResponder *responder) { NSHashRemove(knownResponders(), responder); }

}  // namespace ov

@implementation NSWindow (OvChainUpkeep)

- (void)__ov_windowDealloc {
  for (HXDynamicResponder *responder in NSAllHashTableObjects(ov::knownResponders())) {
    if ([responder window] == self) [responder setWindow:nil];
  }
  [self __ov_original_dealloc];
}

@end

@implementation NSWindowController (OvChainUpkeep)

- (void)__ov_setWindow:(NSWindow *)window {
  NSArray *responders = [window _removeAllDynamicResponders];
  [self __ov_original_setWindow:window];
  // From the last to the first: each goes before its equals.
  for (HXDynamicResponder *responder in [responders reverseObjectEnumerator]) {
    [window _addDynamicResponder:responder];
  }
}

@end
