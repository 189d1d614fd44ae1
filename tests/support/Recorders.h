// What happened while a test ran: notifications, log lines, beeps, pop-up menus, deaths.

#pragma once

#import <AppKit/AppKit.h>

#include <string>
#include <vector>

@class OvTestObserver;

namespace ov::test {

// Counts a notification while it exists; a nil object means from anyone.
class NotificationCount {
 public:
  NotificationCount(NSString* name, id object);
  ~NotificationCount();
  NotificationCount(const NotificationCount&) = delete;
  NotificationCount& operator=(const NotificationCount&) = delete;

  int count() const;
  // The count since the last call.
  int take();
  NSDictionary* lastUserInfo() const;
  id lastObject() const;

 private:
  OvTestObserver* observer_;
};

// Collects what goes to the system log while it exists, one entry per message, without the
// time and process in front.
class LogCapture {
 public:
  LogCapture();
  ~LogCapture();
  LogCapture(const LogCapture&) = delete;
  LogCapture& operator=(const LogCapture&) = delete;

  const std::vector<std::string>& lines() const { return lines_; }

 private:
  std::vector<std::string> lines_;
};

// How often the system beep has sounded since the program started. Compare before and after.
int beepCount();

// While it exists, pop-up menus are recorded instead of shown.
class MenuInterceptor {
 public:
  MenuInterceptor();
  ~MenuInterceptor();
  MenuInterceptor(const MenuInterceptor&) = delete;
  MenuInterceptor& operator=(const MenuInterceptor&) = delete;

  int count() const;
  NSMenu* menu() const;
  NSView* view() const;
  NSFont* font() const;
  NSEvent* event() const;
  // In the window of the event.
  NSPoint location() const;
};

// The reason of the exception raised last, or "": what a test that died of one should say.
const std::string& lastExceptionReason();

// Called once, after the application was made.
void installRecorders();

}  // namespace ov::test

// An object whose death is counted. Hand it to what should (not) release it.
@interface OvTestDeathCounter : NSObject
+ (int)deaths;
@end
