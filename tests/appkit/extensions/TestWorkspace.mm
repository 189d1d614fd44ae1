#import "TestWorkspace.h"

#include <objc/runtime.h>

@implementation OvTestWorkspace

- (NSArray *)launchedApplications {
  return _applications;
}

- (NSArray *)mountedLocalVolumePaths {
  return _mountPoints;
}

- (BOOL)getFileSystemInfoForPath:(NSString *)path
                     isRemovable:(BOOL *)removable
                      isWritable:(BOOL *)writable
                   isUnmountable:(BOOL *)unmountable
                     description:(NSString **)description
                            type:(NSString **)type {
  _asked->push_back([path UTF8String]);
  *removable = _removable;
  *writable = YES;
  *unmountable = _unmountable;
  *description = @"disk";
  *type = @"test";
  return _known;
}

- (BOOL)unmountAndEjectDeviceAtPath:(NSString *)path {
  _ejected->push_back([path UTF8String]);
  if (_beforeAnswer) _beforeAnswer();
  if (_failure) [_failure raise];
  return _ejects;
}

@end

namespace ov::test {

Workspace::Workspace() {
  workspace_ = static_cast<OvTestWorkspace *>(class_createInstance([OvTestWorkspace class], 0));
  workspace_->_known = YES;
  workspace_->_asked = &asked_;
  workspace_->_ejected = &ejected_;
}

Workspace::~Workspace() { object_dispose(workspace_); }

}  // namespace ov::test
