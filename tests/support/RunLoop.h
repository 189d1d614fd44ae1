// Running the application's loop from a test: never sleep, wait for what should happen.

#pragma once

#import <AppKit/AppKit.h>

#include <functional>
#include <vector>

namespace ov::test {

// Delivers events, timers and deferred work until the condition holds, and answers whether
// it did before the limit.
bool pumpUntil(const std::function<bool()>& condition, double limitSeconds = 5);

// Delivers what is waiting now, and what that causes at once.
void pumpPending();

// Takes waiting events out of the queue without delivering them.
void discardPending();

// Runs one step per tick while the call blocks in one of the platform's own event loops (a
// drag, a knob, an open menu). The last step is repeated until the call returns: such loops
// can miss a single mouse-up. Answers whether every step ran.
bool runWithSteps(const std::vector<std::function<void()>>& steps,
                  const std::function<void()>& blockingCall, double interval = 0.05);

}  // namespace ov::test
