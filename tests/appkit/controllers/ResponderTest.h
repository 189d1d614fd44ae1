// The fixture of the tests of responder chains: responders with names, and chains as text.

#pragma once

#import <OvAppKit/OvAppKit.h>

#include <map>
#include <string>

#import "LiveTest.h"

namespace ov::test {

class ResponderTest : public LiveTest {
 protected:
  void TearDown() override {
    for (HXDynamicResponder* responder : responders_) {
      [responder setEnabled:NO];
      [responder release];
    }
    responders_.clear();
    LiveTest::TearDown();
  }

  // Disabled. Lives until the test ends or kill() is called.
  HXDynamicResponder* responder(const std::string& name, NSWindow* window, NSInteger ordering) {
    return keep(name, [[HXDynamicResponder alloc] initWithWindow:window ordering:ordering]);
  }
  HXViewDynamicResponder* viewResponder(const std::string& name, NSView* view, NSInteger ordering) {
    return keep(name, [[HXViewDynamicResponder alloc] initWithView:view ordering:ordering]);
  }
  template <typename T>
  T keep(const std::string& name, T responder) {
    responders_.push_back(responder);
    names_[responder] = name;
    return responder;
  }
  void kill(HXDynamicResponder* responder) {
    std::erase(responders_, responder);
    names_.erase(responder);
    [responder release];
  }

  void name(id object, const std::string& name) { names_[object] = name; }

  std::string nameOf(id object) {
    if (object == NSApp) return "app";
    if (const auto found = names_.find(object); found != names_.end()) return found->second;
    if ([object isKindOfClass:[NSWindowController class]]) return "controller";
    return "?";
  }

  // What comes after the window, for as long as that ends.
  std::string chain(NSWindow* window) {
    std::string text;
    int count = 0;
    for (NSResponder* link = [window nextResponder]; link; link = [link nextResponder]) {
      if (++count > 100) return text + " … (endless)";
      text += (text.empty() ? "" : " ") + nameOf(link);
    }
    return text;
  }

  std::string list(NSArray* objects) {
    std::string text;
    for (id object in objects) text += (text.empty() ? "" : " ") + nameOf(object);
    return text;
  }

  // A window of its own, not one of the fixture's: it dies when the caller releases it.
  static NSWindow* ownedWindow() {
    NSWindow* window = [[NSWindow alloc] initWithContentRect:NSMakeRect(0, 0, 200, 100)
                                                   styleMask:NSTitledWindowMask
                                                     backing:NSBackingStoreBuffered
                                                       defer:YES];
    [window setReleasedWhenClosed:NO];
    return window;
  }

 private:
  std::vector<HXDynamicResponder*> responders_;
  std::map<id, std::string> names_;
};

}  // namespace ov::test
