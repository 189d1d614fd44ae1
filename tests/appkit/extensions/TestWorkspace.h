// A workspace whose applications and volumes the test tells.

#pragma once

#import <AppKit/AppKit.h>

#include <string>
#include <vector>

@interface OvTestWorkspace : NSWorkspace {
 @public
  // Answered by launchedApplications; not retained.
  NSArray *_applications;
  // What is told of every path; not retained.
  NSArray *_mountPoints;
  BOOL _known;
  BOOL _removable;
  BOOL _unmountable;
  // The answer of unmountAndEjectDeviceAtPath:, or an exception instead; not retained.
  BOOL _ejects;
  NSException *_failure;
  // What happens before that answer.
  void (*_beforeAnswer)();
  std::vector<std::string> *_asked;
  std::vector<std::string> *_ejected;
}
@end

namespace ov::test {

// The platform has one workspace and refuses to make another; this one is made without asking.
class Workspace {
 public:
  Workspace();
  ~Workspace();
  Workspace(const Workspace &) = delete;
  Workspace &operator=(const Workspace &) = delete;

  OvTestWorkspace *get() const { return workspace_; }
  OvTestWorkspace *operator->() const { return workspace_; }

  // The paths whose file system was asked for, and those that were to be ejected.
  const std::vector<std::string> &asked() const { return asked_; }
  const std::vector<std::string> &ejected() const { return ejected_; }

 private:
  OvTestWorkspace *workspace_;
  std::vector<std::string> asked_;
  std::vector<std::string> ejected_;
};

}  // namespace ov::test
