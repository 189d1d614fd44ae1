// Calls of the system that a test can take over: what the library calls by these names
// is found in the test program first.

#ifndef OV_FAULTY_CALLS_H
#define OV_FAULTY_CALLS_H

#include <functional>
#include <string>

struct FaultyCalls {
  /// Each may answer an errno instead of letting the call happen; 0 lets it.
  std::function<int(const std::string &from, const std::string &to)> beforeRename;
  std::function<int(int fd)> beforeFlush;
  /// Called when a rename has happened.
  std::function<void()> afterRename;
  /// Stand for the call: the result is an errno.
  std::function<int(const std::string &point)> unmount;
  std::function<int(const std::string &program, const std::string &argument)> spawn;
};

/// All empty: the calls are the system's own.
FaultyCalls &faultyCalls();

/// Gives the calls back to the system at the end of a test.
struct FaultyCallsScope {
  ~FaultyCallsScope() { faultyCalls() = {}; }
};

#endif
