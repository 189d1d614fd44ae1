// A live test program runs its tests in a child of itself, because
//
// - the platform reads its configuration before main, and the child gets one of its own
//   (so that no test touches the user's defaults or library);
// - the platform takes every word of the command line for a document to open, so the
//   child has none: test flags travel in the environment;
// - when the child crashes, someone must say in which test.

#pragma once

#include <string>

namespace ov::test {

// In the child: true. In the parent: runs the child, and `status` becomes what main answers.
bool isSupervisedChild(int argc, char** argv, int* status);

// The private folder of this run: defaults, library, whatever a test writes. Removed at the
// end.
const std::string& privateFolder();

// In the child: where the parent looks for the name of the test that was running.
void noteRunningTest(const std::string& name);

}  // namespace ov::test
